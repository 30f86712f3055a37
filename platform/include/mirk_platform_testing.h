/** @file
 * mirk_platform_testing.h - knobs of the reference runtime for tests: failures on demand, captured trace, a log of what
 * a library asked the runtime. Programs have no use for this header.
 */
#ifndef MIRK_PLATFORM_TESTING_H
#define MIRK_PLATFORM_TESTING_H

#include "mirk_platform.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- allocations that fail -------------------------------------------------------------------------------------- */

/** Which requests for memory. */
typedef enum mirk_platform_testing_allocator {
    MIRK_PLATFORM_TESTING_OBJ_ALLOC = 0,
    MIRK_PLATFORM_TESTING_SYS_ALLOC = 1,
    MIRK_PLATFORM_TESTING_MIRKLIB_MALLOC = 2, /**< process-wide; the handle is ignored and may be null */
    MIRK_PLATFORM_TESTING_VARIANT_BLOCK = 3   /**< what mirk_update_variant_info gives a private copy */
} mirk_platform_testing_allocator;

/** The nth request from now on (1 is the next) answers null; with `onwards` nonzero, that one and all later ones. nth 0
 * puts an end to it. */
MIRK_PLATFORM_API void mirk_platform_testing_fail_allocation(mirk_handle *h, mirk_platform_testing_allocator allocator,
                                                             uint64_t nth, uint32_t onwards);
/** Requests so far, failed ones included. */
MIRK_PLATFORM_API uint64_t mirk_platform_testing_allocations(mirk_handle *h, mirk_platform_testing_allocator allocator);

/** Changes the ceilings of an open handle. */
MIRK_PLATFORM_API void mirk_platform_testing_set_ceilings(mirk_handle *h, uint64_t request, uint64_t total);

/** From now on fresh blocks of obj_alloc are filled with this byte, so that nothing relies on their contents. At first
 * nothing is filled. */
MIRK_PLATFORM_API void mirk_platform_testing_set_fresh_fill(mirk_handle *h, uint8_t byte);

/* ---- operations that fail --------------------------------------------------------------------------------------- */

/** Which operations can be made to fail, and how each then behaves. */
typedef enum mirk_platform_testing_operation {
    MIRK_PLATFORM_TESTING_VARIANT_LOOKUP = 0,      /**< mirk_domain_lookup_variant: writes the number, answers 0 */
    MIRK_PLATFORM_TESTING_MESSAGE_LOOKUP = 1,      /**< mirk_domain_lookup_message_ok: writes the number, answers 0 */
    MIRK_PLATFORM_TESTING_OID_MAPPING_DESTROY = 2, /**< mirk_request_oid_mapping_destroy: the mapping stays */
    MIRK_PLATFORM_TESTING_HD_MAPPING_DESTROY = 3,  /**< mirk_hd_mapping_destroy: the entries stay */
    MIRK_PLATFORM_TESTING_OID_REF_COUNT = 4,       /**< mirklib_lookup_and_update_oid_ref_count: the count stays */
    MIRK_PLATFORM_TESTING_OBJECT_REFERENCES = 5,   /**< ip_address_get_object_references: nothing is written */
    MIRK_PLATFORM_TESTING_RA_DATA = 6,             /**< mirklib_get_ra_data: the number is the result */
    MIRK_PLATFORM_TESTING_HEADER_MARSHAL = 7,      /**< _mirk_message_header_marshal: nothing is written */
    MIRK_PLATFORM_TESTING_VALIDATE_ADD = 8,        /**< bundle_message_validate_add: nothing is entered */
    MIRK_PLATFORM_TESTING_OPERATIONS = 9           /**< how many there are */
} mirk_platform_testing_operation;

/** After `skip` calls that go well, the next `count` calls fail with the number. count 0 puts an end to it. */
MIRK_PLATFORM_API void mirk_platform_testing_fail_operation(mirk_handle *h, mirk_platform_testing_operation operation,
                                                            uint32_t skip, uint32_t count, uint32_t number);
/** Calls of the operation so far, failed ones included. */
MIRK_PLATFORM_API uint64_t mirk_platform_testing_calls(mirk_handle *h, mirk_platform_testing_operation operation);

/** Writes any word into the descriptor (attaching one if there is none), also a corrupt one. */
MIRK_PLATFORM_API void mirk_platform_testing_set_sttr_mode(mirk_handle *h, uint32_t sttr_mode);

/* ---- log of what the library does on a handle ------------------------------------------------------------------- */

/** What the library did; behind each, the members of the event that mean something. */
typedef enum mirk_platform_testing_event_kind {
    MIRK_PLATFORM_TESTING_WRITE_NOTIFY,        /**< address, size, ctx_id */
    MIRK_PLATFORM_TESTING_COUNT_NOTIFY,        /**< address, value (delta), ctx_id */
    MIRK_PLATFORM_TESTING_ALLOC,               /**< address (null: failed), size, ctx_id */
    MIRK_PLATFORM_TESTING_FREE,                /**< address, size (0: never handed out), ctx_id */
    MIRK_PLATFORM_TESTING_SYS_ALLOCATED,       /**< address, size, value (the id) */
    MIRK_PLATFORM_TESTING_CLEAR_ERROR,         /**< nothing */
    MIRK_PLATFORM_TESTING_STORE_ERROR,         /**< value (number) */
    MIRK_PLATFORM_TESTING_STORE_EPOCH,         /**< value (number) */
    MIRK_PLATFORM_TESTING_VARIANT_LOOKED_UP,   /**< address (type record), value (answer) */
    MIRK_PLATFORM_TESTING_MESSAGE_LOOKED_UP,   /**< address (type record), value (answer) */
    MIRK_PLATFORM_TESTING_ADJUST_VARIANT,      /**< address (object), ctx_id */
    MIRK_PLATFORM_TESTING_OFFSET_GET,          /**< address (object), value (offset), ctx_id */
    MIRK_PLATFORM_TESTING_OFFSET_UPDATE,       /**< address (object), value (offset), ctx_id */
    MIRK_PLATFORM_TESTING_HD_DESTROY,          /**< address (object), ctx_id */
    MIRK_PLATFORM_TESTING_OID_DESTROY,         /**< address (object), value (answer), ctx_id */
    MIRK_PLATFORM_TESTING_OID_LOWERED,         /**< address (oid), value (number), ctx_id */
    MIRK_PLATFORM_TESTING_RA_GET,              /**< address (object), value (result), ctx_id */
    MIRK_PLATFORM_TESTING_RA_UPDATE,           /**< address (object), value (RA value), size (RA byte), ctx_id */
    MIRK_PLATFORM_TESTING_TYPE_GET,            /**< type_store_get: address (answer), ctx_id */
    MIRK_PLATFORM_TESTING_TYPE_PUT,            /**< type_store_put: address (copy), ctx_id */
    MIRK_PLATFORM_TESTING_VARIANT_INFO_UPDATE, /**< address (copy), value (is-new), ctx_id */
    MIRK_PLATFORM_TESTING_WORKSPACE            /**< mirklib_get_handle_ws: address, size */
} mirk_platform_testing_event_kind;

/** One thing that the library did on a handle. */
typedef struct mirk_platform_testing_event {
    mirk_platform_testing_event_kind kind; /**< what was done */
    void *address;                         /**< of what; see the kind */
    uint64_t size;                         /**< bytes */
    int64_t value;                         /**< see the kind */
    uint32_t ctx_id;                       /**< as the library handed it on */
} mirk_platform_testing_event;

/** Called before a notified write or count is made and before a block goes, and behind everything else. */
typedef void (*mirk_platform_testing_hook)(void *user, mirk_handle *h, const mirk_platform_testing_event *event);
/** Sets the function that gets the events of a handle; null ends it. */
MIRK_PLATFORM_API void mirk_platform_testing_set_hook(mirk_handle *h, mirk_platform_testing_hook hook, void *user);

/** Entries in the table of state offsets. */
MIRK_PLATFORM_API size_t mirk_platform_testing_offset_entries(mirk_handle *h);
/** Entries in the table of RA data. */
MIRK_PLATFORM_API size_t mirk_platform_testing_ra_entries(mirk_handle *h);

/** What the _backpropagate operation of a bare integer at this address answers. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_testing_mark_integer(mirk_handle *h, const void *address,
                                                                         uint32_t changed);

/* ---- captured trace (process-wide) ------------------------------------------------------------------------------ */

/** Keeps every line of every level from now on, whatever levels are selected. Only lines of level 0 still go to the
 * sink, since the process is about to end. Starting again empties what was kept. */
MIRK_PLATFORM_API void mirk_platform_testing_capture_start(void);
/** What was kept stays readable. */
MIRK_PLATFORM_API void mirk_platform_testing_capture_stop(void);
/** Empties what was kept. */
MIRK_PLATFORM_API void mirk_platform_testing_capture_clear(void);
/** How many lines were kept. */
MIRK_PLATFORM_API size_t mirk_platform_testing_captured(void);
/** Text of a kept line, valid until clear or start; null past the end. The pointers may be null. */
MIRK_PLATFORM_API const char *mirk_platform_testing_captured_line(size_t index, uint16_t *module_id, uint32_t *level);

#ifdef __cplusplus
}
#endif
#endif
