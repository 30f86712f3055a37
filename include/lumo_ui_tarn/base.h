/** @file
 * base.h - included by every header of the library: export macro, C linkage, flags of objects. */
#ifndef LUMO_UI_TARN_BASE_H
#define LUMO_UI_TARN_BASE_H

#include <mirk/mirk.h>

#if defined(__GNUC__)
/** Marks a name that the library exports. */
#define LUMO_UI_TARN_API __attribute__((visibility("default")))
#else
#define LUMO_UI_TARN_API
#endif

#ifdef __cplusplus
/** Opens a block of names with C linkage. */
#define LUMO_UI_TARN_BEGIN extern "C" {
/** Closes the block. */
#define LUMO_UI_TARN_END }
#else
/** Opens a block of names with C linkage. */
#define LUMO_UI_TARN_BEGIN
/** Closes the block. */
#define LUMO_UI_TARN_END
#endif

/** @name Bits of an object's obj_flag; 16 is the modified mark, which only the runtime accesses
 *  @{ */
#define MIRK_OBJ_OID_MAPPED 1    /**< other objects refer to it by its identifier */
#define MIRK_OBJ_EMBEDDED 2      /**< the caller states that it lies in memory of another object */
#define MIRK_OBJ_NESTED 4        /**< a member of another object; its state is part of that object's state area */
#define MIRK_OBJ_STATE_TRACKED 8 /**< has state bytes */
#define MIRK_OBJ_RA_DATA 32      /**< the runtime keeps RA data for the object */
#define MIRK_OBJ_STTR_OFFSET 64  /**< the runtime has the location of the state; otherwise it follows the object */
/** @} */

#endif
