/* base.h - what every header of the library begins with. */
#ifndef LUMO_UI_TARN_BASE_H
#define LUMO_UI_TARN_BASE_H

#include <mirk/mirk.h>

#if defined(__GNUC__)
#define LUMO_UI_TARN_API __attribute__((visibility("default")))
#else
#define LUMO_UI_TARN_API
#endif

#ifdef __cplusplus
#define LUMO_UI_TARN_BEGIN extern "C" {
#define LUMO_UI_TARN_END }
#else
#define LUMO_UI_TARN_BEGIN
#define LUMO_UI_TARN_END
#endif

/* Bits of an object's obj_flag. */
#define MIRK_OBJ_OID_MAPPED 1
#define MIRK_OBJ_EMBEDDED 2
#define MIRK_OBJ_NESTED 4
#define MIRK_OBJ_STATE_TRACKED 8
#define MIRK_OBJ_RA_DATA 32
#define MIRK_OBJ_STTR_OFFSET 64

#endif
