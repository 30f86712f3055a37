/** @file
 * state.h - variants, what an object carries beside its members, state tracking, the type table.
 *
 * The pair (is_record, is_value_kind) names the caller: (1, 0) records, (1, 1) accessors of boolean and enumeration
 * fields, (0, 1) enumerations. It selects nothing.
 */
#ifndef MIRK_STATE_H
#define MIRK_STATE_H

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** The variant of a type in a domain; negative: it has none there. May exceed what the caller knows, who caps it.
 * `type` may be null. Answers whatever *err holds, and writes the slot only if the look-up fails. */
int8_t mirk_domain_lookup_variant(mirk_handle *h, mirk_domain *domain, mirk_type_info *type, uint32_t *err);
/** The object's variant, uncapped; 0 for null. */
int8_t mirk_get_instance_variant(void *object, uint32_t is_record, uint32_t is_value_kind);
/** Brings the object to the variant of the handle's domain before a write, announced if it changes. Nothing happens for
 * a null object or type. `zero` is always 0. */
void mirklib_adjust_variant(mirk_handle *h, uint32_t ctx_id, void *object, mirk_type_info *tinfo, uint32_t zero,
                            uint32_t *err);
/** The one modified mark of the object: value 1 sets it, 0 clears it. Nothing happens for null. Not announced. */
void mirk_set_instance_modified(void *object, uint32_t is_record, uint32_t is_value_kind, uint32_t value);
/** 1 or 0; 0 for null. */
uint32_t mirk_get_instance_modified(void *object, uint32_t is_record, uint32_t is_value_kind);
/** obj_flag; 0 for null. */
uint8_t mirk_get_instance_obj_flag(void *object, uint32_t is_record, uint32_t is_value_kind);

/** Distance from the object to its state area. Asked only when obj_flag has bit 64; without an entry the area lies
 * directly behind the object. */
uint32_t mirklib_get_sttr_offset(mirk_handle *h, uint32_t ctx_id, void *object);
/** Records that distance, replacing an earlier one, and sets bit 64 in obj_flag. Not announced. */
void mirklib_update_sttr_offset(mirk_handle *h, uint32_t ctx_id, void *object, uint32_t offset);
/** The handle's work buffer, the same at every call. It has one byte of slack behind `size`. */
void mirklib_get_handle_ws(mirk_handle *h, void **buffer, uint32_t *size);

/** The handle's private copy of a module's record. Calls `init` once when the store has none; answers the module's own
 * record if there is still none. */
mirk_type_info *mirk_type_info_ptr_get(mirk_handle *h, uint32_t ctx_id, mirk_type_info *own,
                                       mirk_typeinfo_init_fn init);
/** Brings the sizes in a private copy in line with the module's record. is_new 1 also gives the copy counters of its
 * own, at 0; without memory it goes on sharing the module's. copy->info.variant_info is usable afterwards. */
void mirk_update_variant_info(mirk_handle *h, uint32_t ctx_id, mirk_type_info_copy *copy, mirk_type_info *own,
                              uint32_t is_new);

/** All modules of the process. Constant-initialised with last = &first, as modules link themselves in at load. */
extern mirk_module_root mirk_module_tot_root;

#ifdef __cplusplus
}
#endif
#endif
