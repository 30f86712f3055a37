/** @file
 * errors.h - the sticky error of a handle, and trace.
 */
#ifndef MIRK_ERRORS_H
#define MIRK_ERRORS_H

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Zeroes last_error. */
void mirk_clear_last_error(mirk_handle *h);
/** Writes last_error only; the caller writes its own slot. */
void mirk_store_err(mirk_handle *h, uint32_t number);
/** For errors of variant (43) and domain (52): writes last_error and, as the runtime's policy has it, the slot. Runs
 * whatever *err holds. */
void mirk_store_epoch_err(mirk_handle *h, uint32_t number, uint32_t *err);

/** Writes a trace line. Levels in use are 0, 3, 6 and 7; `zero` is always 0. From any thread. */
void skald_wrapper(uint16_t module_id, uint32_t level, uint32_t zero, const char *format, ...);
/** Registers a trace module. Repeatable: one name, one identifier. The name is copied. From any thread. */
void skald_module_init_fn(const char *name, uint16_t *module_id, uint64_t *module_state);

#ifdef __cplusplus
}
#endif
#endif
