/** @file
 * state.h - variants, flags and marks of objects, state tracking, type records.
 *
 * The arguments (is_record, is_value_kind) identify the caller: (1, 0) records, (1, 1) accessors of boolean and
 * enumeration members, (0, 1) enumerations. They do not change the result.
 */
#ifndef MIRK_STATE_H
#define MIRK_STATE_H

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Returns the variant of a type in a domain; negative: the domain does not have the type. The result may exceed the
 * variants that the caller knows; the caller caps it. `type` may be null. Returns its result even if *err is set, and
 * writes *err only if the look-up fails. */
int8_t mirk_domain_lookup_variant(mirk_handle *h, mirk_domain *domain, mirk_type_info *type, uint32_t *err);
/** Returns the variant of an object as stored. 0 for null. */
int8_t mirk_get_instance_variant(void *object, uint32_t is_record, uint32_t is_value_kind);
/** Sets the variant of an object to that of the handle's domain, before a write. Calls write_notify if it changes. No
 * effect for a null object or type. `zero` is always 0. */
void mirklib_adjust_variant(mirk_handle *h, uint32_t ctx_id, void *object, mirk_type_info *tinfo, uint32_t zero,
                            uint32_t *err);
/** Sets (1) or clears (0) the modified mark of an object. Does not call write_notify. No effect for null. */
void mirk_set_instance_modified(void *object, uint32_t is_record, uint32_t is_value_kind, uint32_t value);
/** Returns the modified mark of an object, 1 or 0. 0 for null. */
uint32_t mirk_get_instance_modified(void *object, uint32_t is_record, uint32_t is_value_kind);
/** Returns the flags of an object. 0 for null. */
uint8_t mirk_get_instance_obj_flag(void *object, uint32_t is_record, uint32_t is_value_kind);

/** Returns the distance in bytes from an object to its state area. Called only if obj_flag has flag 64, a recorded
 * state offset. If no distance is recorded, the area directly follows the object. */
uint32_t mirklib_get_sttr_offset(mirk_handle *h, uint32_t ctx_id, void *object);
/** Records that distance, replacing an earlier one, and sets flag 64 in obj_flag. Does not call write_notify. */
void mirklib_update_sttr_offset(mirk_handle *h, uint32_t ctx_id, void *object, uint32_t offset);
/** Writes address and size in bytes of the handle's work buffer, always the same. A guard byte follows the buffer. */
void mirklib_get_handle_ws(mirk_handle *h, void **buffer, uint32_t *size);

/** Returns the handle's private copy of the type record `own` of a module. If the store has none, calls `init` and
 * looks again. Returns `own` if there is still none. */
mirk_type_info *mirk_type_info_ptr_get(mirk_handle *h, uint32_t ctx_id, mirk_type_info *own,
                                       mirk_typeinfo_init_fn init);
/** Copies the sizes of the module's type record `own` to a private copy. If `is_new` is 1, also gives the copy its own
 * counters, set to 0. If allocation fails, the copy keeps sharing the counters of `own`. copy->info.variant_info is
 * valid afterwards in both cases. */
void mirk_update_variant_info(mirk_handle *h, uint32_t ctx_id, mirk_type_info_copy *copy, mirk_type_info *own,
                              uint32_t is_new);

/** The list of all modules of the process. Constant-initialized with last = &first, since modules add themselves when
 * they are loaded. */
extern mirk_module_root mirk_module_tot_root;

#ifdef __cplusplus
}
#endif
#endif
