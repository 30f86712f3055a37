/** @file
 * errors.h - the sticky error of a handle, and the trace.
 */
#ifndef MIRK_ERRORS_H
#define MIRK_ERRORS_H

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Sets last_error to 0. */
void mirk_clear_last_error(mirk_handle *h);
/** Sets last_error to the error number. The caller writes its own error slot. */
void mirk_store_err(mirk_handle *h, uint32_t number);
/** Reports EIDRM (variant) or EBADE (domain): by default writes last_error and the error slot. The policy of the
 * runtime may leave the slot clear. Has its effect even if *err is set. */
void mirk_store_epoch_err(mirk_handle *h, uint32_t number, uint32_t *err);

/** Writes a trace line, formatted as by printf, without a line end. The library uses levels 0 (fatal), 3 (error), 6
 * (info) and 7 (debug); `zero` is always 0. May be called from any thread. */
void skald_wrapper(uint16_t module_id, uint32_t level, uint32_t zero, const char *format, ...);
/** Registers a trace module and writes its identifier. The same name always gets the same identifier; repeated calls
 * are permitted. The name is copied. `module_state` belongs to the runtime and is initially 0. May be called from any
 * thread. */
void skald_module_init_fn(const char *name, uint16_t *module_id, uint64_t *module_state);

#ifdef __cplusplus
}
#endif
#endif
