/** @file
 * mirk_platform.h - control interface of the reference runtime.
 *
 * The contract (mirk/mirk.h) declares what a schema library may call. This header is for programs that use such a
 * library: it opens handles, configures their domains, loads XML documents, dispatches received frames, and sends and
 * receives frames over sockets. A schema library calls nothing that is declared here.
 *
 * Conventions
 *   - mirk/mirk.h explains handle, ctx_id, error slot and last_error; lumo_ui_tarn/families.h explains variant, body,
 *     domain, RA data, bundle, control message and sticky form. Messages that are not control messages are plain. A
 *     luid is the identity of a type or a message, 16 bytes. A linked-in handler is a weak function of the schema
 *     library, which a program can replace.
 *   - mirk_platform_error is 0 or an error number of errno.h. Functions that return it also return ENOMEM if an
 *     allocation fails, and EIO for an unexpected failure. No function throws an exception.
 *   - Use each handle, document, server and client from one thread at a time. The functions of the trace
 *     and of the recorder may be called from any thread, and so may mirk_platform_server_stop().
 *   - Text is NUL-terminated. Functions copy the text that they are given unless their comment says otherwise.
 *   - Pointers must not be null unless the comment permits it.
 *   - Options structures begin with their size, which the initializer sets. Later versions only add members at the end,
 *     so programs compiled with this header keep working and get the defaults of new members.
 *   - A guard byte is one readable and writable byte after the stated size of a buffer. The buffer that is passed to
 *     mirk_platform_dispatch() must have one, and received frames have one.
 */
#ifndef MIRK_PLATFORM_H
#define MIRK_PLATFORM_H

#include <stddef.h>
#include <stdint.h>
#include <stdio.h>

#include "mirk/mirk.h"

#if defined(__GNUC__)
/** Marks a name that the reference runtime exports. */
#define MIRK_PLATFORM_API __attribute__((visibility("default")))
#else
#define MIRK_PLATFORM_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** 0, or an error number of errno.h. */
typedef uint32_t mirk_platform_error;

/** Describes an error for users and programs. All members are 0 after success. */
typedef struct mirk_platform_report {
    uint32_t number;    /**< error number of errno.h; 0: no error */
    uint32_t offset;    /**< in bytes: of the frame in the buffer, or of the error in the document; 0 if unknown */
    uint32_t line;      /**< documents: line, counted from 1; 0 if unknown */
    char sentence[256]; /**< description without a line end; cut if it is longer */
} mirk_platform_report;

/* ---- handles ---------------------------------------------------------------------------------------------------- */

/** State tracking of a handle: whether objects have a state byte for each member. Programs choose NONE or ON. OFF
 * is for tests: tracking is off, but the library has a descriptor to read. */
typedef enum mirk_platform_tracking {
    MIRK_PLATFORM_TRACKING_NONE = 0, /**< off: the handle's sttr_desc is null */
    MIRK_PLATFORM_TRACKING_OFF = 1,  /**< off: the word in sttr_desc is 0xDDDD */
    MIRK_PLATFORM_TRACKING_ON = 2    /**< on: the word in sttr_desc is 0xEEEE */
} mirk_platform_tracking;

/** How operations report EIDRM: an object has no body, the domain does not have its variant, or a value is not an
 * enumerator. */
typedef enum mirk_platform_epoch_policy {
    MIRK_PLATFORM_STRICT = 0, /**< they set last_error and the error slot, as for every other error */
    /** They set only last_error and leave the error slot clear. A frame is then written completely, in the older
     * variant that the domain has. Accessors of an object without a body, and setters that refuse a value, report no
     * error. Sticky forms, whose error slot is last_error, set neither. */
    MIRK_PLATFORM_LENIENT_EIDRM = 1
} mirk_platform_epoch_policy;

/** Options of mirk_platform_handle_open(). Initialize them with mirk_platform_handle_options_init(). */
typedef struct mirk_platform_handle_options {
    size_t size;                     /**< bytes of this structure; set by the initializer */
    mirk_platform_tracking tracking; /**< default NONE */
    uint32_t private_types;          /**< nonzero: the handle has its own copies of type records; default 0 */
    uint64_t request_ceiling;        /**< bytes; obj_alloc returns null for larger requests; default 256 MiB */
    /** Bytes; obj_alloc returns null if the sum of the sizes of live blocks would exceed this; default 1 GiB. With
     * tracking ON, memory for state offsets counts, too: 136 bytes for each aligned 256-byte range that a block
     * overlaps. A request is checked against the largest number of ranges that a block of its size can overlap.
     *
     * Not counted: allocator overhead; the tables of blocks and offsets, up to 128 bytes per block and 64 per range;
     * types; documents; bundles. */
    uint64_t total_ceiling;
    mirk_platform_epoch_policy epoch_policy; /**< default STRICT */
    mirk_bundle_handler bundle_handler;      /**< gets committed bundles; may be null, the default */
    const char *domain_name;                 /**< name for trace lines; null means ""; default "default" */
    uint32_t default_id;                     /**< ctx_id of every sticky (_cr) operation; default 1 */
    uint32_t message_stamp;                  /**< stamp of every header that is written; default 0 */
    uint32_t oid_mapping;                    /**< see mirk_platform_handle_set_oid_mapping(); default 1 */
} mirk_platform_handle_options;

/** Sets the size and all defaults. Call this before setting members. */
#define mirk_platform_handle_options_init(options) mirk_platform_handle_options_init_sized(options, sizeof *(options))
/** The same for a structure of `size` bytes. Programs use the macro above. */
MIRK_PLATFORM_API void mirk_platform_handle_options_init_sized(mirk_platform_handle_options *options, size_t size);

/** Opens a handle, which the caller owns and releases with mirk_platform_handle_close(). Null options mean the
 * defaults. Returns null if allocation fails. */
MIRK_PLATFORM_API mirk_handle *mirk_platform_handle_open(const mirk_platform_handle_options *options);

/** Closes a handle: destroys messages on the receive list, then frees every live block, all copies of types, and the
 * handle. Returns the number of blocks that were still live, 0 unless objects were leaked. Messages on the receive list
 * do not count. Null is permitted and gives 0. */
MIRK_PLATFORM_API size_t mirk_platform_handle_close(mirk_handle *h);

/** Sets the ctx_id of every sticky (_cr) operation. */
MIRK_PLATFORM_API void mirk_platform_handle_set_default_id(mirk_handle *h, uint32_t ctx_id);
/** Sets the stamp of every header that is written from now on. */
MIRK_PLATFORM_API void mirk_platform_handle_set_message_stamp(mirk_handle *h, uint32_t stamp);
/** Sets the name of the domain for trace lines. ENOMEM: the old name remains. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_handle_set_domain_name(mirk_handle *h, const char *name);
/** Nonzero: destroying an object also removes its RA data and its state offset, see mirk_platform_sttr_offset(). 0:
 * they remain until the block that holds the object is freed. Does not concern oids. */
MIRK_PLATFORM_API void mirk_platform_handle_set_oid_mapping(mirk_handle *h, uint32_t oid_mapping);
/** Sets the handle's own handler of committed bundles; null removes it. A handler of
 * mirk_platform_dispatch_set_bundle_handler() takes precedence. */
MIRK_PLATFORM_API void mirk_platform_handle_set_bundle_handler(mirk_handle *h, mirk_bundle_handler handler);
/** Sets the epoch policy from now on. */
MIRK_PLATFORM_API void mirk_platform_handle_set_epoch_policy(mirk_handle *h, mirk_platform_epoch_policy policy);
/** Nonzero: a message that fails to marshal is traced at level 7 instead of level 3. Initially 0. */
MIRK_PLATFORM_API void mirk_platform_handle_set_suppress_messages(mirk_handle *h, uint32_t enabled);
/** Sets the tracking mode. The handle must have no live objects, since objects created in one mode must not be used in
 * another. */
MIRK_PLATFORM_API void mirk_platform_handle_set_tracking(mirk_handle *h, mirk_platform_tracking tracking);

/** Returns the number of obj_alloc blocks that have not been freed. */
MIRK_PLATFORM_API size_t mirk_platform_live_blocks(mirk_handle *h);
/** Returns the total size in bytes of the obj_alloc blocks that have not been freed. */
MIRK_PLATFORM_API uint64_t mirk_platform_live_bytes(mirk_handle *h);
/** Returns how many requests obj_alloc has denied because of request_ceiling or total_ceiling. Operations report
 * ENOMEM for these as for a lack of memory; this number distinguishes them. */
MIRK_PLATFORM_API uint64_t mirk_platform_ceiling_refusals(mirk_handle *h);
/** Lowers total_ceiling so that live blocks can grow by no more than this many bytes, for example while input from
 * outside is read. Returns the previous total_ceiling, for mirk_platform_handle_set_total_ceiling(). */
MIRK_PLATFORM_API uint64_t mirk_platform_handle_limit_growth(mirk_handle *h, uint64_t bytes);
/** Sets total_ceiling, in bytes, from now on. */
MIRK_PLATFORM_API void mirk_platform_handle_set_total_ceiling(mirk_handle *h, uint64_t bytes);

/** A live block of obj_alloc. Blocks of size 0 also have distinct addresses. */
typedef struct mirk_platform_block {
    void *address;   /**< its first byte */
    size_t size;     /**< bytes requested */
    uint32_t ctx_id; /**< ctx_id of the request */
    uint64_t serial; /**< counts the blocks of the handle in the order of their allocation, from 1 */
} mirk_platform_block;

/** Writes up to `capacity` live blocks to `blocks`, oldest first, and returns the number of all live blocks. `blocks`
 * may be null if `capacity` is 0. If allocation fails, nothing is written and the result is the same. */
MIRK_PLATFORM_API size_t mirk_platform_list_blocks(mirk_handle *h, mirk_platform_block *blocks, size_t capacity);

/* ---- domain: what the peers of a handle understand --------------------------------------------------------------- */

/** Sets the variant that the domain has for the type with this luid; negative: the domain does not have the type. Types
 * that were not set have variant 0. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_domain_set_variant(mirk_handle *h, const uint8_t *luid,
                                                                       int8_t variant);
/** Allows (nonzero) or forbids (0) the message with this luid. Messages that were not set are allowed.
 * Marshaling a forbidden message fails with EBADE. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_domain_set_message(mirk_handle *h, const uint8_t *luid,
                                                                       uint32_t allowed);
/** Resets the domain: every type has variant 0, and every message is allowed. */
MIRK_PLATFORM_API void mirk_platform_domain_clear(mirk_handle *h);

/* ---- trace (process-wide, any thread) --------------------------------------------------------------------------- */

/** Receives each line of a selected level, without a line end. Calls never overlap, even from different threads. A line
 * traced from inside a sink is discarded. */
typedef void (*mirk_platform_trace_sink)(void *user, uint16_t module_id, uint32_t level, const char *line);

/** Sets the sink; `user` is its first argument. Null restores the default, which writes "module: line" to standard
 * error. When this returns, the former sink is not running any more. Must not be called from a sink. */
MIRK_PLATFORM_API void mirk_platform_trace_set_sink(mirk_platform_trace_sink sink, void *user);

/** Selects levels: bit n selects level n. The initial mask comes from the environment variable MIRK_TRACE in the form
 * of mirk_platform_trace_parse_levels(). If that is absent or invalid, levels 0 and 3 are selected. */
MIRK_PLATFORM_API void mirk_platform_trace_set_levels(uint32_t mask);
/** Returns the mask of selected levels. */
MIRK_PLATFORM_API uint32_t mirk_platform_trace_levels(void);
/** Parses "all", "none", or a comma-separated list of levels from 0 to 31 into a mask, ignoring white space around
 * each. EINVAL for null and for any other text; the mask is then unchanged. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_trace_parse_levels(const char *text, uint32_t *mask);
/** Returns the name under which a module was registered, or "?" for an unknown identifier. The text stays valid until
 * the process ends. */
MIRK_PLATFORM_API const char *mirk_platform_trace_module_name(uint16_t module_id);

/* ---- addresses -------------------------------------------------------------------------------------------------- */

/** Sets the members of an address from the text that _to_xml writes, such as "10.0.0.0/8" or "unset". The state bytes
 * and the variant remain. EINVAL if the `length` bytes are not such a text; the address is then unchanged. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_address_parse(const char *text, size_t length, ip_address *address);

enum {
    MIRK_PLATFORM_ADDRESS_TEXT_SIZE = 64 /**< bytes of the longest text of an address, with the NUL */
};

/** Writes the text that _to_xml writes for an address, with a NUL, to a buffer of `size` bytes. EMSGSIZE: `size` is too
 * small. EINVAL: an argument is null. The buffer is then unchanged. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_address_text(const ip_address *address, char *text, size_t size);

/* ---- objects: RA data and references ---------------------------------------------------------------------------- */

/** Attaches RA data to an object, replacing earlier data, and sets its flag "has RA data" (32). The value is an opaque
 * word that is never dereferenced. EINVAL for a null object. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_set_ra_data(mirk_handle *h, void *object, void *value,
                                                                uint8_t byte);
/** Reads the RA data of an object. ENOENT if it has none. `value` and `byte` may be null. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_ra_data(mirk_handle *h, const void *object, void **value,
                                                            uint8_t *byte);

/** The type of the destroy operation of every record. */
typedef void (*mirk_platform_object_destroy)(mirk_handle *h, uint32_t ctx_id, void *object);

/** Assigns an identifier (oid) to an object and sets its flag "has an oid" (1). `*oid` receives the oid, an opaque
 * word.
 *
 * While `references` is above 0, destroying the object only marks it as condemned. The library lowers the count with
 * mirklib_lookup_and_update_oid_ref_count() when it destroys a record that refers to the oid. At 0 that function calls
 * `destroy` for a condemned object, with the ctx_id that it was called with. `destroy` may be null: a condemned object
 * then remains until the program destroys it again.
 *
 * EINVAL if `object` or `oid` is null; EEXIST if the object already has an oid. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_oid_mapping_make(mirk_handle *h, void *object, uint32_t references,
                                                                     mirk_platform_object_destroy destroy, void **oid);
/** Reads how many references remain and whether the object is condemned (1 or 0). ENOENT for an unknown oid. Both
 * pointers may be null. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_oid_mapping_state(mirk_handle *h, const void *oid,
                                                                      uint32_t *references, uint32_t *condemned);
/** Sets the oids that an ip_address refers to, replacing earlier ones; `count` 0 removes them. The array is copied.
 * Reference counts do not change. EINVAL if `address` is null, or if `oids` is null and `count` is not 0. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_address_set_oids(mirk_handle *h, const ip_address *address,
                                                                     void *const *oids, uint32_t count);

/** Reads the recorded distance in bytes from an object to its state area. ENOENT if none is recorded. `offset` may be
 * null.
 */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_sttr_offset(mirk_handle *h, const void *object, uint32_t *offset);

/* ---- XML documents ---------------------------------------------------------------------------------------------- */

/** Parses an XML document of `length` bytes. The result is the `document` argument of every _from_xml operation; the
 * caller owns it and releases it with mirk_platform_document_free(). The text may be released at once.
 *
 * Returns null on failure. The report, which may be null, then has the number (EINVAL or ENOMEM), the place and a
 * sentence. Documents with a document type declaration are rejected, and those with elements more than 256 deep or with
 * more than 256 attributes or visible namespaces, or with more than 10,000 different names. The parser never opens a
 * file or a connection. */
MIRK_PLATFORM_API void *mirk_platform_document_load_memory(const void *text, size_t length,
                                                           mirk_platform_report *report);
/** The same for the contents of a file. The report may also have the error of opening or reading the file, such as
 * ENOENT or EACCES. */
MIRK_PLATFORM_API void *mirk_platform_document_load_file(const char *path, mirk_platform_report *report);
/** Limits the time that _from_xml operations take for a document. They read the elements of a list one by one and move
 * all others for each of them, so n elements inside another one count n * n. Documents where these numbers are more
 * than `per_byte` for each byte of the document are rejected with EINVAL. Applies to all threads and to documents that
 * are loaded afterwards. 0, the default, means no limit; 256 rejects documents with long lists of elements that are
 * nearly empty. */
MIRK_PLATFORM_API void mirk_platform_document_limit_lists(uint32_t per_byte);
/** Releases a document. Null is permitted. */
MIRK_PLATFORM_API void mirk_platform_document_free(void *document);

/* ---- dispatch --------------------------------------------------------------------------------------------------- */

/** The type of the unmarshal operation of every message. */
typedef uint32_t (*mirk_platform_unmarshal)(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx, void **out,
                                            void *buffer, uint32_t size, mirk_message_handler handler, uint32_t *err);
/** The type of the unmarshal_only operation of every plain message. */
typedef uint32_t (*mirk_platform_unmarshal_only)(mirk_handle *h, uint32_t ctx_id, void **out, void *buffer,
                                                 uint32_t size, uint32_t *err);
/** The type of the destroy operation of every message. */
typedef void (*mirk_platform_message_destroy)(mirk_handle *h, uint32_t ctx_id, void *message);

/** A message that a handle can receive: its luid and the operations of the schema library. */
typedef struct mirk_platform_message {
    const uint8_t *luid; /**< not copied; must outlive the handle */
    const char *name;    /**< for trace lines; not copied; must outlive the handle */
    /** Required. Reads control messages. A plain message is read with unmarshal_only. If it must be recorded or
     * passed to the linked-in handler, its frame is then read a second time with this operation, since no other can do
     * either. */
    mirk_platform_unmarshal unmarshal;
    mirk_platform_unmarshal_only unmarshal_only; /**< reads plain messages; null: this is a control message */
    mirk_platform_message_destroy destroy;       /**< null is permitted for a control message */
    /** Receives each plain message that arrives outside a bundle, and owns it. If it sets the error slot to ENOSYS it
     * does not take the message, and the dispatcher destroys it. Null: the linked-in handler, with the same rule. */
    mirk_message_handler handler;
} mirk_platform_message;

/** Registers a message, or replaces the entry with the same luid; its bundle handler stays. The structure is
 * copied. EINVAL if luid, name or unmarshal is null, or if a plain message has no destroy operation. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_dispatch_register(mirk_handle *h,
                                                                      const mirk_platform_message *message);
/** Sets the handler that receives bundles whose commit message has this luid, instead of all other bundle handlers;
 * with the luid of any other message it is never called. Null removes it. ENOENT if the message is not registered. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_dispatch_set_bundle_handler(mirk_handle *h, const uint8_t *luid,
                                                                                mirk_bundle_handler handler);

/** Delivers a buffer of `size` bytes, which contains complete frames and has a guard byte. Messages of an open bundle
 * go to the receive list, other plain messages to their handlers. The buffer stays the caller's. `dispatch_ctx` is
 * passed to the handlers unchanged and may be null.
 *
 * Stops at the first error; frames before it have been delivered. An error in an open bundle, before its commit or
 * abort, leaves the bundle open: call bundle_receive_message_list_destroy(), or close the handle, before dispatching
 * other frames. The report, which may be null, contains the offset of the frame. EBADMSG: not a complete frame; ENOENT:
 * the message is not registered; otherwise the error of reading the frame or of its handler. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_dispatch(mirk_handle *h, uint32_t ctx_id, void *buffer,
                                                             uint32_t size, void *dispatch_ctx,
                                                             mirk_platform_report *report);

/** An item of a handle's receive list, which contains the messages of the open bundle in order of arrival. For use by a
 * bundle handler: when it returns, the messages that are still on the list are destroyed. */
typedef struct mirk_platform_received mirk_platform_received;

/** Returns the number of messages on the list. */
MIRK_PLATFORM_API uint32_t mirk_platform_received_count(mirk_handle *h);
/** Returns the first item, or null if the list is empty. */
MIRK_PLATFORM_API mirk_platform_received *mirk_platform_received_first(mirk_handle *h);
/** Returns the item after this one, or null after the last. */
MIRK_PLATFORM_API mirk_platform_received *mirk_platform_received_next(mirk_handle *h, mirk_platform_received *item);
/** Returns the message, which remains on the list. */
MIRK_PLATFORM_API void *mirk_platform_received_message(const mirk_platform_received *item);
/** Returns the luid of the message. */
MIRK_PLATFORM_API const uint8_t *mirk_platform_received_luid(const mirk_platform_received *item);
/** Returns the name of the message. */
MIRK_PLATFORM_API const char *mirk_platform_received_name(const mirk_platform_received *item);
/** Removes the item from the list, frees it, and returns its message. The caller owns the message and releases it with
 * the destroy operation of the message. */
MIRK_PLATFORM_API void *mirk_platform_received_detach(mirk_handle *h, mirk_platform_received *item);

/** A message admitted to the bundle that is open for sending. */
typedef struct mirk_platform_sent {
    const uint8_t *luid; /**< luid of the message */
    const char *name;    /**< name of the message */
    uint64_t count;      /**< number of messages written */
} mirk_platform_sent;
/** Writes up to `capacity` rows to `sent`, in the order of admission, and returns the number of all rows. `sent` may be
 * null if `capacity` is 0. */
MIRK_PLATFORM_API size_t mirk_platform_list_sent(mirk_handle *h, mirk_platform_sent *sent, size_t capacity);

/* ---- recorder (process-wide, any thread) ------------------------------------------------------------------------ */

/** Switches the recorder on or off. While it is on, each plain message is written to the stream as XML when its
 * unmarshal operation has read it, before it is delivered. Only messages of at most 4095 bytes of XML are recorded.
 *
 * The stream stays the caller's and must remain open while the recorder is on. Switching off does not wait for a
 * message that another thread is recording: close the stream only when no thread receives messages. Null is
 * permitted: each message then causes a trace line instead.
 *
 * mirk_platform_dispatch() delivers messages that cannot be recorded as if the recorder were off; see
 * mirk_platform_recorder_failures(). A direct call of the unmarshal operation passes EMSGSIZE to the handler of a
 * larger message, and ignores write errors. If the 4096-byte buffer cannot be allocated, the process ends. */
MIRK_PLATFORM_API void mirk_platform_recorder_set(uint32_t on, FILE *stream);
/** Returns how many messages mirk_platform_dispatch() could not record since the recorder was last switched on; each is
 * also traced. `*number`, if not null, receives the error of the last one, or 0. EMSGSIZE: the message is too large.
 * Errors of writing are those of the system, such as ENOSPC; EIO if unknown.
 *
 * While the error indicator of the stream is set, every message counts as failed. Streams are buffered, so a write
 * error may concern earlier messages; check fflush() or fclose() for the last ones. */
MIRK_PLATFORM_API uint64_t mirk_platform_recorder_failures(uint32_t *number);

/* ---- frames and requests ---------------------------------------------------------------------------------------- */

enum {
    MIRK_PLATFORM_HEADER_SIZE = 27,      /**< bytes of the header of a frame */
    MIRK_PLATFORM_FRAME_SIZE = 43,       /**< bytes of the smallest frame: header and luid */
    MIRK_PLATFORM_REQUEST_SIZE_MAX = 304 /**< bytes of the largest request or refusal */
};

/** The start of a frame: header and luid. */
typedef struct mirk_platform_frame {
    mirk_message_header header; /**< decoded from the first 27 bytes */
    uint8_t luid[16];           /**< luid of the message */
} mirk_platform_frame;

/** Reads the start of the first frame in a buffer of `size` bytes. EMSGSIZE: fewer than 43 bytes. EBADMSG: wrong
 * marker, or a total_length below 43. A total_length that exceeds `size` is not an error: the rest may not have arrived
 * yet. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_frame_look(const void *buffer, size_t size,
                                                               mirk_platform_frame *frame);

enum {
    MIRK_PLATFORM_REQUEST_TRACKED = 0x01, /**< request: the answer is to contain state */
    MIRK_PLATFORM_REQUEST_REFUSED = 0x80  /**< the frame is a refusal */
};

/** A request for a bundle, or the refusal of a request. */
typedef struct mirk_platform_request {
    uint8_t options;    /**< bits MIRK_PLATFORM_REQUEST_... */
    char bundle[256];   /**< request: name of the bundle */
    uint32_t number;    /**< refusal: error number of errno.h */
    char sentence[256]; /**< refusal: the reason, for users */
} mirk_platform_request;

/** Writes the frame of a request to a buffer of `size` bytes and returns its length in bytes. `bundle` is the name of
 * the bundle; null means "". `options` are bits MIRK_PLATFORM_REQUEST_...; REFUSED is ignored.
 *
 * On failure returns 0 and writes an error to `*number`, if that is not null. EMSGSIZE: `size` is too small. EINVAL:
 * the name exceeds 255 bytes. */
MIRK_PLATFORM_API uint32_t mirk_platform_request_encode(void *buffer, uint32_t size, uint32_t stamp, const char *bundle,
                                                        uint8_t options, uint32_t *number);
/** Writes the frame of a refusal in the same way. `error` is an error number of errno.h. A sentence longer than 255
 * bytes is cut; null means "". The only error is EMSGSIZE. */
MIRK_PLATFORM_API uint32_t mirk_platform_refusal_encode(void *buffer, uint32_t size, uint32_t stamp, uint32_t error,
                                                        const char *sentence, uint32_t *number);
/** Reads the frame of a request or a refusal, which the bit REFUSED of `options` distinguishes. ENOENT: a frame of
 * another message. EBADMSG: not a complete frame, or its parts do not fill exactly total_length bytes, or the text
 * contains a NUL. On an error `*request` is unchanged. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_request_decode(const void *buffer, size_t size,
                                                                   mirk_platform_request *request);

/* ---- transport: frames over a stream socket --------------------------------------------------------------------- */

/** A listening socket and its connections; see mirk_platform_server_open(). */
typedef struct mirk_platform_server mirk_platform_server;
/** A connection to a server; see mirk_platform_client_open(). */
typedef struct mirk_platform_client mirk_platform_client;

/** Identifies a peer of a server. A server never reuses an identifier. */
typedef uint64_t mirk_platform_peer;

/** Options of a server. Initialize them with mirk_platform_server_options_init(). */
typedef struct mirk_platform_server_options {
    size_t size;            /**< bytes of this structure; set by the initializer */
    uint32_t frame_limit;   /**< bytes; a peer that sends a longer frame is disconnected; default 16 MiB */
    uint32_t peer_limit;    /**< number of connected peers, see origin_share; default 64 */
    uint32_t idle_ms;       /**< a peer without traffic for this long is disconnected; 0: never; default 60000 */
    uint64_t pending_limit; /**< bytes queued for one peer; beyond it the peer is disconnected; default 64 MiB */
    uint32_t socket_mode;   /**< access rights of the socket file, regardless of the umask; default 0600 */
    /** Receives one complete frame. The buffer is writable and has a guard byte; it is valid until the callback
     * returns. Required. */
    void (*on_frame)(void *user, mirk_platform_server *server, mirk_platform_peer peer, void *frame, uint32_t size);
    /** A peer has connected. May be null. */
    void (*on_connect)(void *user, mirk_platform_server *server, mirk_platform_peer peer);
    /** A connected peer was disconnected, by either side; `reason` is text for users. May be null. */
    void (*on_disconnect)(void *user, mirk_platform_server *server, mirk_platform_peer peer, const char *reason);
    void *user; /**< first argument of the callbacks */
    /** Milliseconds from the first byte of a frame to its last; a slower peer is disconnected; 0: no limit; default
     * 10000.
     */
    uint32_t frame_ms;
    /** Time limit in milliseconds for writing the bytes of one mirk_platform_server_send() to the socket, from when
     * they reach the head of the queue; a slower peer is disconnected; 0: no limit; default 60000. */
    uint32_t answer_ms;
    /** Memory for what is queued for all peers together, in bytes; see origin_share; default 256 MiB. Each
     * mirk_platform_server_send() takes 128 bytes more than its size until all of it is sent. A value that is too small
     * for pending_limit means pending_limit. */
    uint64_t total_pending_limit;
    /** A peer exceeded a limit or sent something other than a frame. Nothing can be sent to it any more; on_disconnect
     * follows. May be null.
     *
     * Also called for a peer that is refused because of peer_limit; it gets no other callback. Called once with peer 0
     * when accepting connections starts to fail, for example when descriptors run out. */
    void (*on_refused)(void *user, mirk_platform_server *server, mirk_platform_peer peer, const char *reason);
    /** Percentage of peer_limit and of total_pending_limit that the peers of one origin may use together; default 100,
     * at least one peer and pending_limit. An origin is a user on a socket file, an address over TCP, and a network of
     * 64 bits over IPv6.
     *
     * Beyond total_pending_limit, or its share, a peer that does not read is disconnected; see stall_ms. If all read,
     * it is one that reads. In both cases it belongs to the origin with the most queued bytes, and has read nothing for
     * the longest time.
     *
     * Beyond peer_limit, or its share, a new peer takes the place of a silent peer, to which nothing is queued, or else
     * of a peer that does not read. It belongs to the origin with the most such peers, and has been silent for the
     * longest time. If there is none, the new peer is refused. The peer that has to go is sent a refusal
     * (mirk_platform_refusal_encode()) with EUSERS. */
    uint32_t origin_share;
    /** A peer that has taken nothing of what is queued for it for this many milliseconds does not read; 0: all do;
     * default 1000. */
    uint32_t stall_ms;
} mirk_platform_server_options;

/** Sets the size and all defaults. Call this before setting members. */
#define mirk_platform_server_options_init(options) mirk_platform_server_options_init_sized(options, sizeof *(options))
/** The same for a structure of `size` bytes. Programs use the macro above. */
MIRK_PLATFORM_API void mirk_platform_server_options_init_sized(mirk_platform_server_options *options, size_t size);

/** Listens on a socket file. The caller owns `*server` and releases it with mirk_platform_server_close(). A socket file
 * that no process listens on is replaced. Until it is closed, the server locks the file `path`.lock, which it creates
 * and removes. The options are copied.
 *
 * EADDRINUSE: a process listens on the file, or locks it, or it cannot be determined that none does. EEXIST: the path
 * is not a socket. ENAMETOOLONG: the path does not fit a socket address. EINVAL: the path is empty, or an argument or
 * on_frame is null. Other errors come from the system, such as EACCES. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_server_open(const char *path,
                                                                const mirk_platform_server_options *options,
                                                                mirk_platform_server **server);
/** The TCP port if an address does not contain one. */
#define MIRK_PLATFORM_TCP_PORT 28276

/** Listens on a TCP address: "HOST:PORT", "HOST", ":PORT" or "". HOST is a name, an IPv4 address, or an IPv6 address in
 * brackets; the default is 127.0.0.1. If a name has several addresses, the first is used. Port 0 selects a free port.
 *
 * EINVAL: not an address, or an argument or on_frame is null. EADDRNOTAVAIL: the host is unknown or not local.
 * EADDRINUSE: a process listens on the port. Other errors come from the system.
 *
 * A port has no access rights: every process that can reach it is served. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_server_open_tcp(const char *address,
                                                                    const mirk_platform_server_options *options,
                                                                    mirk_platform_server **server);
/** Returns where the server listens: the path of its socket file, or address and port such as "127.0.0.1:28276". Valid
 * until the server is closed. */
MIRK_PLATFORM_API const char *mirk_platform_server_place(const mirk_platform_server *server);
/** Serves until mirk_platform_server_stop() is called. All callbacks run on the calling thread. A peer that has closed
 * its sending side gets what is queued for it before it is disconnected. When stopped, sends what the sockets accept
 * without blocking, and disconnects all peers. Call it once per server. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_server_run(mirk_platform_server *server);
/** Stops the server. May be called from any thread and from a signal handler. A later mirk_platform_server_run()
 * returns immediately. */
MIRK_PLATFORM_API void mirk_platform_server_stop(mirk_platform_server *server);
/** From now on, SIGINT and SIGTERM stop the server, also before it runs. They have their default action again when the
 * server is closed. For programs that do not handle these signals themselves. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_server_stop_on_signals(mirk_platform_server *server);
/** Queues a copy of `size` bytes, which should be complete frames, for a peer. Call it only from a callback. May
 * call on_refused and on_disconnect before it returns, for this or for another peer.
 *
 * ENOTCONN: the peer is gone or being disconnected. ENOBUFS: pending_limit or total_pending_limit was exceeded; the
 * peer has been disconnected. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_server_send(mirk_platform_server *server, mirk_platform_peer peer,
                                                                const void *bytes, size_t size);
/** Queues the frame that mirk_platform_refusal_encode() writes. Otherwise like mirk_platform_server_send(). */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_server_refuse(mirk_platform_server *server, mirk_platform_peer peer,
                                                                  uint32_t error, const char *sentence);
/** Releases what a program has lent to a server. */
typedef void (*mirk_platform_release)(void *owner);
/** Queues bytes for a peer without copying them. They must not change until `release` is called with `owner`: exactly
 * once, also after an error, possibly before this function returns, and at the latest by mirk_platform_server_close().
 * Bytes that several peers wait for, with the same address and size, count once toward total_pending_limit. Otherwise
 * like mirk_platform_server_send(). */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_server_send_shared(mirk_platform_server *server,
                                                                       mirk_platform_peer peer, const void *bytes,
                                                                       size_t size, mirk_platform_release release,
                                                                       void *owner);
/** Returns the origin of a peer as text: "user 1000", "address 192.0.2.1" or "network 2001:db8::/64"; see origin_share.
 * Valid until the callback returns; null for an unknown peer. Call it only from a callback; those of a disconnected or
 * refused peer still know it. */
MIRK_PLATFORM_API const char *mirk_platform_server_origin(const mirk_platform_server *server, mirk_platform_peer peer);
/** Disconnects a peer after sending what is queued for it; its further frames are ignored. Call it only from a
 * callback. May call on_disconnect before it returns. `reason` goes to on_disconnect and the trace; null means
 * "disconnected by the program". An unknown peer is ignored. */
MIRK_PLATFORM_API void mirk_platform_server_disconnect(mirk_platform_server *server, mirk_platform_peer peer,
                                                       const char *reason);
/** Returns the number of connected peers. Call it only from a callback, or while the server does not run. */
MIRK_PLATFORM_API size_t mirk_platform_server_peers(mirk_platform_server *server);
/** Releases a server that is not running, and removes its socket file. A file that has replaced it remains. Null is
 * permitted. */
MIRK_PLATFORM_API void mirk_platform_server_close(mirk_platform_server *server);

/** Connects to a socket file. The caller owns `*client` and releases it with mirk_platform_client_close().
 * `frame_limit` is the length in bytes of the longest frame to receive; 0 means 16 MiB. `timeout_ms`, here and below,
 * is in milliseconds; 0 means not to wait. An infinite timeout is not available.
 *
 * ETIMEDOUT: the timeout expired. ECONNREFUSED: no process listens. ENOENT: the file does not exist. ENAMETOOLONG: the
 * path does not fit a socket address. EINVAL: the path is empty, or an argument is null. Other errors come from the
 * system. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_client_open(const char *path, uint32_t frame_limit,
                                                                uint32_t timeout_ms, mirk_platform_client **client);
/** Connects to a TCP address in the form of mirk_platform_server_open_tcp(). If a name has several addresses, they are
 * tried in turn. The timeout cannot interrupt looking up a host name, but the time counts.
 *
 * EINVAL: not an address, or an argument is null. EADDRNOTAVAIL: the host is unknown. ETIMEDOUT, ECONNREFUSED and other
 * errors of the system: of the address that was tried last. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_client_open_tcp(const char *address, uint32_t frame_limit,
                                                                    uint32_t timeout_ms, mirk_platform_client **client);
/** Sends `size` bytes, which should be complete frames. EPIPE or ECONNRESET: the peer closed the connection. ETIMEDOUT:
 * the timeout expired. After an error part of the bytes may have been sent, and the client can only be closed. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_client_send(mirk_platform_client *client, const void *bytes,
                                                                size_t size, uint32_t timeout_ms);
/** Waits for one complete frame. It is in the client's buffer, which is writable and has a guard byte, and stays valid
 * until the next receive or close.
 *
 * ETIMEDOUT: the timeout expired; bytes that have arrived are kept for the next call. ECONNRESET: the peer closed the
 * connection. EBADMSG: it sent something other than a frame. EMSGSIZE: the frame exceeds frame_limit. After the last
 * three, the client can only be closed. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_client_receive(mirk_platform_client *client, void **frame,
                                                                   uint32_t *size, uint32_t timeout_ms);
/** Closes the connection and releases the client. Null is permitted. */
MIRK_PLATFORM_API void mirk_platform_client_close(mirk_platform_client *client);

#ifdef __cplusplus
}
#endif
#endif
