/** @file
 * mirk_platform_testing.h - controls of the reference runtime for tests of a schema library: failures on demand, a log
 * of calls into the runtime, and captured trace. Programs do not use this header. Its conventions are those of
 * mirk_platform.h.
 */
#ifndef MIRK_PLATFORM_TESTING_H
#define MIRK_PLATFORM_TESTING_H

#include "mirk_platform.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- failing allocations ---------------------------------------------------------------------------------------- */

/** Kinds of requests for memory. */
typedef enum mirk_platform_testing_allocator {
    MIRK_PLATFORM_TESTING_OBJ_ALLOC = 0,      /**< obj_alloc of the handle */
    MIRK_PLATFORM_TESTING_SYS_ALLOC = 1,      /**< sys_alloc of the handle */
    MIRK_PLATFORM_TESTING_MIRKLIB_MALLOC = 2, /**< mirklib_malloc, process-wide: the handle is ignored */
    MIRK_PLATFORM_TESTING_VARIANT_BLOCK = 3   /**< the block that mirk_update_variant_info allocates for a copy */
} mirk_platform_testing_allocator;

/** Makes the nth request from now on return null; 1 is the next. With nonzero `onwards` all later requests fail, too.
 * `nth` 0 ends the failures. */
MIRK_PLATFORM_API void mirk_platform_testing_fail_allocation(mirk_handle *h, mirk_platform_testing_allocator allocator,
                                                             uint64_t nth, uint32_t onwards);
/** Returns the number of requests so far, including failed ones. */
MIRK_PLATFORM_API uint64_t mirk_platform_testing_allocations(mirk_handle *h, mirk_platform_testing_allocator allocator);

/** Changes request_ceiling and total_ceiling of an open handle, both in bytes. */
MIRK_PLATFORM_API void mirk_platform_testing_set_ceilings(mirk_handle *h, uint64_t request, uint64_t total);

/** Fills new blocks of obj_alloc with this byte from now on, to detect code that relies on their contents. Initially
 * blocks are not filled. */
MIRK_PLATFORM_API void mirk_platform_testing_set_fresh_fill(mirk_handle *h, uint8_t byte);

/* ---- failing operations ----------------------------------------------------------------------------------------- */

/** Operations that can be made to fail, and what each does then. */
typedef enum mirk_platform_testing_operation {
    MIRK_PLATFORM_TESTING_VARIANT_LOOKUP = 0,      /**< mirk_domain_lookup_variant: sets the error, returns 0 */
    MIRK_PLATFORM_TESTING_MESSAGE_LOOKUP = 1,      /**< mirk_domain_lookup_message_ok: sets the error, returns 0 */
    MIRK_PLATFORM_TESTING_OID_MAPPING_DESTROY = 2, /**< mirk_request_oid_mapping_destroy: the mapping remains */
    MIRK_PLATFORM_TESTING_HD_MAPPING_DESTROY = 3,  /**< mirk_hd_mapping_destroy: the entries remain */
    MIRK_PLATFORM_TESTING_OID_REF_COUNT = 4,       /**< mirklib_lookup_and_update_oid_ref_count: the count remains */
    MIRK_PLATFORM_TESTING_OBJECT_REFERENCES = 5,   /**< ip_address_get_object_references: nothing is written */
    MIRK_PLATFORM_TESTING_RA_DATA = 6,             /**< mirklib_get_ra_data: returns the error */
    MIRK_PLATFORM_TESTING_HEADER_MARSHAL = 7,      /**< _mirk_message_header_marshal: nothing is written */
    MIRK_PLATFORM_TESTING_VALIDATE_ADD = 8,        /**< bundle_message_validate_add: nothing is added */
    MIRK_PLATFORM_TESTING_OPERATIONS = 9           /**< number of these operations */
} mirk_platform_testing_operation;

/** After `skip` successful calls, makes the next `count` calls fail with the error `number`. `count` 0 ends the
 * failures. */
MIRK_PLATFORM_API void mirk_platform_testing_fail_operation(mirk_handle *h, mirk_platform_testing_operation operation,
                                                            uint32_t skip, uint32_t count, uint32_t number);
/** Returns the number of calls of the operation so far, including failed ones. */
MIRK_PLATFORM_API uint64_t mirk_platform_testing_calls(mirk_handle *h, mirk_platform_testing_operation operation);

/** Writes any word to the descriptor, also an invalid one. Attaches a descriptor if there is none. */
MIRK_PLATFORM_API void mirk_platform_testing_set_sttr_mode(mirk_handle *h, uint32_t sttr_mode);

/* ---- log of calls into the runtime ------------------------------------------------------------------------------ */

/** Kinds of events. Each lists the members of the event that it uses. */
typedef enum mirk_platform_testing_event_kind {
    MIRK_PLATFORM_TESTING_WRITE_NOTIFY,        /**< address, size, ctx_id */
    MIRK_PLATFORM_TESTING_COUNT_NOTIFY,        /**< address, value (delta), ctx_id */
    MIRK_PLATFORM_TESTING_ALLOC,               /**< address (null: failed), size, ctx_id */
    MIRK_PLATFORM_TESTING_FREE,                /**< address, size (0 if it is not a live block), ctx_id */
    MIRK_PLATFORM_TESTING_SYS_ALLOCATED,       /**< address (null: failed), size, value (id) */
    MIRK_PLATFORM_TESTING_CLEAR_ERROR,         /**< none */
    MIRK_PLATFORM_TESTING_STORE_ERROR,         /**< value (error number) */
    MIRK_PLATFORM_TESTING_STORE_EPOCH,         /**< value (error number) */
    MIRK_PLATFORM_TESTING_VARIANT_LOOKED_UP,   /**< address (type record), value (result) */
    MIRK_PLATFORM_TESTING_MESSAGE_LOOKED_UP,   /**< address (type record), value (result) */
    MIRK_PLATFORM_TESTING_ADJUST_VARIANT,      /**< address (object), ctx_id */
    MIRK_PLATFORM_TESTING_OFFSET_GET,          /**< address (object), value (offset), ctx_id */
    MIRK_PLATFORM_TESTING_OFFSET_UPDATE,       /**< address (object), value (offset), ctx_id */
    MIRK_PLATFORM_TESTING_HD_DESTROY,          /**< address (object), ctx_id */
    MIRK_PLATFORM_TESTING_OID_DESTROY,         /**< address (object), value (result), ctx_id */
    MIRK_PLATFORM_TESTING_OID_LOWERED,         /**< address (oid), value (error number), ctx_id */
    MIRK_PLATFORM_TESTING_RA_GET,              /**< address (object), value (result), ctx_id */
    MIRK_PLATFORM_TESTING_RA_UPDATE,           /**< address (object), value (RA value), size (RA byte), ctx_id */
    MIRK_PLATFORM_TESTING_TYPE_GET,            /**< type_store_get: address (result), ctx_id */
    MIRK_PLATFORM_TESTING_TYPE_PUT,            /**< type_store_put: address (copy), ctx_id */
    MIRK_PLATFORM_TESTING_VARIANT_INFO_UPDATE, /**< address (copy), value (is-new), ctx_id */
    MIRK_PLATFORM_TESTING_WORKSPACE            /**< mirklib_get_handle_ws: address, size */
} mirk_platform_testing_event_kind;

/** A call into the runtime. Members that its kind does not list are unspecified. */
typedef struct mirk_platform_testing_event {
    mirk_platform_testing_event_kind kind; /**< which call */
    void *address;                         /**< see the kind */
    uint64_t size;                         /**< bytes */
    int64_t value;                         /**< see the kind */
    uint32_t ctx_id;                       /**< as the library passed it */
} mirk_platform_testing_event;

/** Receives the events of a handle: after the call if the event contains a result, otherwise before the runtime changes
 * anything. */
typedef void (*mirk_platform_testing_hook)(void *user, mirk_handle *h, const mirk_platform_testing_event *event);
/** Sets the hook of a handle; `user` is its first argument. Null removes it. */
MIRK_PLATFORM_API void mirk_platform_testing_set_hook(mirk_handle *h, mirk_platform_testing_hook hook, void *user);

/** Returns the number of state offsets that the handle keeps; see mirk_platform_sttr_offset(). */
MIRK_PLATFORM_API size_t mirk_platform_testing_offset_entries(mirk_handle *h);
/** Returns the number of objects with RA data. */
MIRK_PLATFORM_API size_t mirk_platform_testing_ra_entries(mirk_handle *h);

/** Sets (nonzero) or clears (0) the modified mark that the _backpropagate operation of the integer at this address
 * reports and clears. EINVAL for a null address. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_testing_mark_integer(mirk_handle *h, const void *address,
                                                                         uint32_t changed);

/* ---- captured trace (process-wide) ------------------------------------------------------------------------------ */

/** Captures every line of every level from now on, instead of passing selected ones to the sink. Selected lines of
 * level 0 go to the sink as well, since the process is about to end. Discards lines captured earlier. */
MIRK_PLATFORM_API void mirk_platform_testing_capture_start(void);
/** Ends the capture. Captured lines remain readable. */
MIRK_PLATFORM_API void mirk_platform_testing_capture_stop(void);
/** Discards the captured lines. */
MIRK_PLATFORM_API void mirk_platform_testing_capture_clear(void);
/** Returns the number of captured lines. */
MIRK_PLATFORM_API size_t mirk_platform_testing_captured(void);
/** Returns the text of a captured line, or null if `index` is too large. Valid until the capture is cleared or started.
 * `module_id` and `level` may be null. */
MIRK_PLATFORM_API const char *mirk_platform_testing_captured_line(size_t index, uint16_t *module_id, uint32_t *level);

#ifdef __cplusplus
}
#endif
#endif
