/** @file
 * references.h - object identifiers and the mappings that a runtime keeps beside objects.
 */
#ifndef MIRK_REFERENCES_H
#define MIRK_REFERENCES_H

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Asks for the object's oid mapping to go. Nonzero: it is gone, or there was none. 0 without an error: references
 * remain, and the runtime destroys the object when the last one goes. */
uint32_t mirk_request_oid_mapping_destroy(mirk_handle *h, uint32_t ctx_id, void *object, uint32_t *err);
/** Drops the state offset and the RA data kept for the object; none is no error. Clears no flag bit. */
void mirk_hd_mapping_destroy(mirk_handle *h, uint32_t ctx_id, void *object, uint32_t *err);
/** Lowers the reference count of the object that has this oid; 2 for an unknown one. At 0 it destroys an object whose
 * destruction was put off. `zero` is always 0. */
void mirklib_lookup_and_update_oid_ref_count(mirk_handle *h, uint32_t ctx_id, void *oid, uint32_t zero, uint32_t *err);

#ifdef __cplusplus
}
#endif
#endif
