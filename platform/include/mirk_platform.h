/** @file
 * mirk_platform.h - control interface of the reference runtime.
 *
 * The contract headers (mirk/mirk.h) say what a schema library may call. This header is for the programs around such a
 * library: it opens handles, fills their domains, loads documents, dispatches received frames and moves frames over
 * sockets. A schema library never calls anything declared here.
 *
 * Conventions
 *   - A result of type mirk_platform_error is 0 or a system error number (errno.h); nothing is thrown.
 *   - A handle, and everything made for it, belongs to one thread at a time. The trace, the recorder switch and
 *     mirk_platform_server_stop may be used from any thread.
 *   - Text is NUL-terminated. Text given to a call is copied unless the call says that it is kept.
 *   - A structure of options begins with its size, which its initializer sets. Later versions add members at the end:
 *     programs that were compiled before get their defaults.
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

/** 0, or a system error number. */
typedef uint32_t mirk_platform_error;

/** What went wrong, for people and for programs. `number` 0 means nothing did. */
typedef struct mirk_platform_report {
    uint32_t number;    /**< system error number */
    uint32_t offset;    /**< dispatch: first byte of the frame concerned */
    uint32_t line;      /**< documents: line, counted from 1; 0 if there is none */
    char sentence[256]; /**< one sentence without a line end */
} mirk_platform_report;

/* ---- handles ---------------------------------------------------------------------------------------------------- */

/** Whether a handle tracks state. */
typedef enum mirk_platform_tracking {
    MIRK_PLATFORM_TRACKING_NONE = 0, /**< no descriptor */
    MIRK_PLATFORM_TRACKING_OFF = 1,  /**< a descriptor that says 0xDDDD */
    MIRK_PLATFORM_TRACKING_ON = 2    /**< a descriptor that says 0xEEEE */
} mirk_platform_tracking;

/** What errors of variant and domain do to the slot. */
typedef enum mirk_platform_epoch_policy {
    MIRK_PLATFORM_STRICT = 0, /**< mirk_store_epoch_err writes last_error and the slot */
    /** 43 leaves the slot clear (and last_error, when that is the slot), so that a frame which the domain wants in an
     * older variant is written to its end; callers of accessors then see no error for a negative variant */
    MIRK_PLATFORM_LENIENT_EIDRM = 1
} mirk_platform_epoch_policy;

/** How a handle is opened. */
typedef struct mirk_platform_handle_options {
    size_t size;                     /**< of the structure as the program knows it; set by the initializer */
    mirk_platform_tracking tracking; /**< default NONE */
    uint32_t private_types;          /**< default 0; nonzero gives the handle type records of its own */
    uint64_t request_ceiling;        /**< obj_alloc above this answers null; default 256 MiB */
    /** obj_alloc returns null if the handle would exceed this; default 1 GiB. The sizes of live blocks count. With
     * tracking ON, so do 136 bytes for each 256-byte stretch of addresses that a block touches, which hold the state
     * offsets of the objects in it; a request counts as many as a block of its size can touch. Memory below obj_alloc
     * does not count: the tables that find blocks and offsets (up to 128 bytes for each block and 64 for each stretch),
     * what the C library adds to a block, and what the runtime keeps for types, documents and bundles. */
    uint64_t total_ceiling;
    mirk_platform_epoch_policy epoch_policy; /**< default STRICT */
    mirk_bundle_handler bundle_handler;      /**< default null */
    const char *domain_name;                 /**< default "default" */
    uint32_t default_id;                     /**< default 1 */
    uint32_t message_stamp;                  /**< default 0 */
    uint32_t oid_mapping;                    /**< default 1 */
} mirk_platform_handle_options;

/** Writes the defaults and the size. Always start from here. */
#define mirk_platform_handle_options_init(options) mirk_platform_handle_options_init_sized(options, sizeof *(options))
/** The same for a structure of this many bytes. */
MIRK_PLATFORM_API void mirk_platform_handle_options_init_sized(mirk_platform_handle_options *options, size_t size);

/** Null options mean the defaults. Returns null if allocation fails. obj_alloc of the handle returns a distinct
 * address for size 0, too. */
MIRK_PLATFORM_API mirk_handle *mirk_platform_handle_open(const mirk_platform_handle_options *options);

/** Drops both bundle lists, then releases blocks that are still live, private type copies and the handle. Returns how
 * many blocks of obj_alloc were still live, which a tidy program finds to be 0. Messages still filed on the receive
 * list are destroyed first and are not counted. Null is allowed and gives 0. */
MIRK_PLATFORM_API size_t mirk_platform_handle_close(mirk_handle *h);

/** The ctx_id of every sticky operation. */
MIRK_PLATFORM_API void mirk_platform_handle_set_default_id(mirk_handle *h, uint32_t ctx_id);
/** The stamp of every header that is written. */
MIRK_PLATFORM_API void mirk_platform_handle_set_message_stamp(mirk_handle *h, uint32_t stamp);
/** The domain's name, for trace lines. 12 without memory. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_handle_set_domain_name(mirk_handle *h, const char *name);
/** Whether destroying an object removes what the runtime keeps beside it. */
MIRK_PLATFORM_API void mirk_platform_handle_set_oid_mapping(mirk_handle *h, uint32_t oid_mapping);
/** The handle's own handler of committed bundles; null takes it away. */
MIRK_PLATFORM_API void mirk_platform_handle_set_bundle_handler(mirk_handle *h, mirk_bundle_handler handler);
/** What errors of variant and domain do to the slot from now on. */
MIRK_PLATFORM_API void mirk_platform_handle_set_epoch_policy(mirk_handle *h, mirk_platform_epoch_policy policy);
/** What mirklib_suppress_messages_enabled answers; off at first. */
MIRK_PLATFORM_API void mirk_platform_handle_set_suppress_messages(mirk_handle *h, uint32_t enabled);
/** Changes the descriptor's word, or attaches or removes the descriptor. For a handle without live objects: objects
 * made under one mode must not be used under the other. */
MIRK_PLATFORM_API void mirk_platform_handle_set_tracking(mirk_handle *h, mirk_platform_tracking tracking);

/** Blocks and bytes of obj_alloc that have not been freed. */
MIRK_PLATFORM_API size_t mirk_platform_live_blocks(mirk_handle *h);
/** Bytes of obj_alloc that have not been freed. */
MIRK_PLATFORM_API uint64_t mirk_platform_live_bytes(mirk_handle *h);

/** A live block of obj_alloc. */
typedef struct mirk_platform_block {
    void *address;   /**< where it lies */
    size_t size;     /**< bytes that were asked for */
    uint32_t ctx_id; /**< under which it was asked for */
    uint64_t serial; /**< 1 for the first block that the handle made */
} mirk_platform_block;

/** Writes up to `capacity` live blocks, oldest first, and returns how many there are. `blocks` may be null with 0. */
MIRK_PLATFORM_API size_t mirk_platform_list_blocks(mirk_handle *h, mirk_platform_block *blocks, size_t capacity);

/* ---- domain: keyed by the 16 bytes of a luid -------------------------------------------------------------------- */

/** The variant that the domain has for a type. Types that were never set have variant 0. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_domain_set_variant(mirk_handle *h, const uint8_t *luid,
                                                                       int8_t variant);
/** Messages that were never set are allowed. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_domain_set_message(mirk_handle *h, const uint8_t *luid,
                                                                       uint32_t allowed);
/** Back to variant 0 and everything allowed. */
MIRK_PLATFORM_API void mirk_platform_domain_clear(mirk_handle *h);

/* ---- trace (process-wide, any thread) --------------------------------------------------------------------------- */

/** Gets each line of a selected level, without a line end. Calls never overlap. A line traced from inside a sink is
 * dropped. */
typedef void (*mirk_platform_trace_sink)(void *user, uint16_t module_id, uint32_t level, const char *line);

/** Null goes back to standard error, where a line reads "module: line". When the call returns, the former sink is no
 * longer running. */
MIRK_PLATFORM_API void mirk_platform_trace_set_sink(mirk_platform_trace_sink sink, void *user);

/** Bit n selects level n. At first the levels are those of the environment variable MIRK_TRACE, a comma-separated list
 * of numbers from 0 to 31, "all" or "none"; without it, or with one that does not read so, levels 0 and 3. */
MIRK_PLATFORM_API void mirk_platform_trace_set_levels(uint32_t mask);
/** The levels that are selected. */
MIRK_PLATFORM_API uint32_t mirk_platform_trace_levels(void);
/** Reads a list in the form of MIRK_TRACE; 22 and an untouched mask if it is none. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_trace_parse_levels(const char *text, uint32_t *mask);
/** Name under which a module was registered; "?" for an unknown identifier. Valid for the life of the process. */
MIRK_PLATFORM_API const char *mirk_platform_trace_module_name(uint16_t module_id);

/* ---- objects: RA data and references ---------------------------------------------------------------------------- */

/** Gives the object RA data and flag bit 32. The value is an opaque word that is never followed. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_set_ra_data(mirk_handle *h, void *object, void *value,
                                                                uint8_t byte);
/** 2 if the object has none. Either pointer may be null. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_ra_data(mirk_handle *h, const void *object, void **value,
                                                            uint8_t *byte);

/** Shape of every destroy operation of a record. */
typedef void (*mirk_platform_object_destroy)(mirk_handle *h, uint32_t ctx_id, void *object);

/** Gives the object an oid and flag bit 1. While `references` is above 0 a destroy request only condemns the object;
 * lowering the count to 0 then calls `destroy` under the ctx_id of that call. `destroy` may be null: then a condemned
 * object stays until somebody destroys it again. 17 if the object has an oid already. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_oid_mapping_make(mirk_handle *h, void *object, uint32_t references,
                                                                     mirk_platform_object_destroy destroy, void **oid);
/** References left and whether a destroy request waits for them; 2 for an unknown oid. Pointers may be null. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_oid_mapping_state(mirk_handle *h, const void *oid,
                                                                      uint32_t *references, uint32_t *condemned);
/** Says which oids an ip_address holds, replacing what it held; count 0 takes them away. No count is raised by this. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_address_set_oids(mirk_handle *h, const ip_address *address,
                                                                     void *const *oids, uint32_t count);

/** Whether the object has an entry in the table of state offsets, and which. 2 if it has none. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_sttr_offset(mirk_handle *h, const void *object, uint32_t *offset);

/* ---- XML documents ---------------------------------------------------------------------------------------------- */

/** The result is what the `document` argument of every _from_xml operation expects. Null on failure, with the line and
 * a sentence in the report (which may be null). A document type declaration is refused; nothing is fetched from
 * anywhere. A document is used by one thread at a time. */
MIRK_PLATFORM_API void *mirk_platform_document_load_memory(const void *text, size_t length,
                                                           mirk_platform_report *report);
/** As mirk_platform_document_load_memory(), from a file. */
MIRK_PLATFORM_API void *mirk_platform_document_load_file(const char *path, mirk_platform_report *report);
/** Null is allowed. */
MIRK_PLATFORM_API void mirk_platform_document_free(void *document);

/* ---- dispatch --------------------------------------------------------------------------------------------------- */

/** Shape of every unmarshal operation of messages. */
typedef uint32_t (*mirk_platform_unmarshal)(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx, void **out,
                                            void *buffer, uint32_t size, mirk_message_handler handler, uint32_t *err);
/** Shape of every unmarshal_only operation of plain messages. */
typedef uint32_t (*mirk_platform_unmarshal_only)(mirk_handle *h, uint32_t ctx_id, void **out, void *buffer,
                                                 uint32_t size, uint32_t *err);
/** Shape of every destroy operation of messages. */
typedef void (*mirk_platform_message_destroy)(mirk_handle *h, uint32_t ctx_id, void *message);

/** One message that a handle can receive. `luid` and `name` are kept by address and must outlive the handle. */
typedef struct mirk_platform_message {
    const uint8_t *luid; /**< 16 bytes */
    const char *name;    /**< for trace lines */
    /** Reads a frame again when the recorder is on, since only this operation records, and when there is no `handler`,
     * since only this operation calls the linked-in one. */
    mirk_platform_unmarshal unmarshal;
    mirk_platform_unmarshal_only unmarshal_only; /**< null makes it a control message */
    mirk_platform_message_destroy destroy;       /**< null for a control message */
    /** Gets each message that arrives outside a bundle and owns it from then on, unless it leaves 38 in the slot: then
     * nobody took the message and the dispatcher destroys it. Null: the linked-in handler, by the same rule. */
    mirk_message_handler handler;
} mirk_platform_message;

/** Enters a message, or replaces the entry of the same luid. 22 if luid, name or unmarshal is missing, or a plain
 * message lacks destroy. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_dispatch_register(mirk_handle *h,
                                                                      const mirk_platform_message *message);
/** Sets the fifth word of a dispatch entry: a bundle handler that comes before all others when the control message of
 * this luid commits a bundle. Null takes it away. 2 for a luid that is not registered. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_dispatch_set_bundle_handler(mirk_handle *h, const uint8_t *luid,
                                                                                mirk_bundle_handler handler);

/** Takes a buffer of one or more whole frames. There must be one readable and writable byte behind it, as with every
 * buffer that frames are read from. Stops at the first frame that is bad or whose handler leaves an error; the report
 * (which may be null) then names the frame. Frames before it have been delivered. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_dispatch(mirk_handle *h, uint32_t ctx_id, void *buffer,
                                                             uint32_t size, void *dispatch_ctx,
                                                             mirk_platform_report *report);

/** What a bundle brought, in order of arrival; meant for a bundle handler while it runs. What is still on the list when
 * the handler returns is destroyed. */
typedef struct mirk_platform_received mirk_platform_received;

/** How many messages are on the list. */
MIRK_PLATFORM_API uint32_t mirk_platform_received_count(mirk_handle *h);
/** The first item, or null. */
MIRK_PLATFORM_API mirk_platform_received *mirk_platform_received_first(mirk_handle *h);
/** The item behind this one, or null. */
MIRK_PLATFORM_API mirk_platform_received *mirk_platform_received_next(mirk_handle *h, mirk_platform_received *item);
/** The message, which stays on the list. */
MIRK_PLATFORM_API void *mirk_platform_received_message(const mirk_platform_received *item);
/** Its identity, 16 bytes. */
MIRK_PLATFORM_API const uint8_t *mirk_platform_received_luid(const mirk_platform_received *item);
/** Its name. */
MIRK_PLATFORM_API const char *mirk_platform_received_name(const mirk_platform_received *item);
/** Takes the message off the list and hands it over; the item is gone afterwards. */
MIRK_PLATFORM_API void *mirk_platform_received_detach(mirk_handle *h, mirk_platform_received *item);

/** The messages admitted to the bundle that is open for sending, with the count of each. Writes up to `capacity` and
 * returns how many there are. */
typedef struct mirk_platform_sent {
    const uint8_t *luid; /**< identity, 16 bytes */
    const char *name;    /**< of the message */
    uint64_t count;      /**< how many were written */
} mirk_platform_sent;
/** Writes up to `capacity` rows and returns how many there are. */
MIRK_PLATFORM_API size_t mirk_platform_list_sent(mirk_handle *h, mirk_platform_sent *sent, size_t capacity);

/* ---- recorder (process-wide, any thread) ------------------------------------------------------------------------ */

/** While on, every received plain message goes to the stream as XML before it is delivered. The stream may be null,
 * which is traced for each message; it stays the caller's and must stay open while the recorder is on. A message that
 * cannot be recorded is traced; dispatch delivers it and the frames after it as if the recorder were off. */
MIRK_PLATFORM_API void mirk_platform_recorder_set(uint32_t on, FILE *stream);

/* ---- frames and requests ---------------------------------------------------------------------------------------- */

enum {
    MIRK_PLATFORM_HEADER_SIZE = 27,      /**< header of a frame */
    MIRK_PLATFORM_FRAME_SIZE = 43,       /**< the smallest frame: header and luid */
    MIRK_PLATFORM_REQUEST_SIZE_MAX = 304 /**< room for every request and refusal */
};

/** The head of a frame. */
typedef struct mirk_platform_frame {
    mirk_message_header header; /**< what the 27 bytes say */
    uint8_t luid[16];           /**< identity of the message */
} mirk_platform_frame;

/** Looks at the first frame of a buffer: 90 with less than 43 bytes, 74 if the marker is wrong or total_length is below
 * 43. A total_length that exceeds `size` is no error here: more may be on its way. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_frame_look(const void *buffer, size_t size,
                                                               mirk_platform_frame *frame);

enum {
    MIRK_PLATFORM_REQUEST_TRACKED = 0x01, /**< answer with state tracking */
    MIRK_PLATFORM_REQUEST_REFUSED = 0x80  /**< the frame is a refusal */
};

/** A request for a bundle, or the refusal of one. */
typedef struct mirk_platform_request {
    uint8_t options;    /**< bits MIRK_PLATFORM_REQUEST_... */
    char bundle[256];   /**< request: name of the bundle that is asked for */
    uint32_t number;    /**< refusal: system error number */
    char sentence[256]; /**< refusal: why, for people */
} mirk_platform_request;

/** Write a frame and return its length; 0 and *number set (may be null) if it does not fit (90) or the text is longer
 * than 255 bytes (22). */
MIRK_PLATFORM_API uint32_t mirk_platform_request_encode(void *buffer, uint32_t size, uint32_t stamp, const char *bundle,
                                                        uint8_t options, uint32_t *number);
/** A sentence longer than 255 bytes is cut. */
MIRK_PLATFORM_API uint32_t mirk_platform_refusal_encode(void *buffer, uint32_t size, uint32_t stamp, uint32_t reason,
                                                        const char *sentence, uint32_t *number);
/** Reads either; options tells which it is. 2: a frame of another message. 74: not a frame, or its parts do not fill
 * exactly total_length bytes, or a name holds a NUL. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_request_decode(const void *buffer, size_t size,
                                                                   mirk_platform_request *request);

/* ---- transport: frames over a stream socket --------------------------------------------------------------------- */

/** Listens for peers; see mirk_platform_server_open(). */
typedef struct mirk_platform_server mirk_platform_server;
/** A connection to a server; see mirk_platform_client_open(). */
typedef struct mirk_platform_client mirk_platform_client;

/** A peer of a server; never used twice in the life of a server. */
typedef uint64_t mirk_platform_peer;

/** How a server serves. */
typedef struct mirk_platform_server_options {
    size_t size;            /**< of the structure as the program knows it; set by the initializer */
    uint32_t frame_limit;   /**< a longer frame disconnects its sender; default 16 MiB */
    uint32_t peer_limit;    /**< further peers are turned away; default 64 */
    uint32_t idle_ms;       /**< a peer that moved no byte for so long is disconnected; 0: never; default 60000 */
    uint64_t pending_limit; /**< a peer that lets more than this pile up unread is disconnected; default 64 MiB */
    uint32_t socket_mode;   /**< access rights of the socket file; default 0600 */
    /** One whole frame. The buffer is writable and has a byte of slack; it is the callback's until it returns. */
    void (*on_frame)(void *user, mirk_platform_server *server, mirk_platform_peer peer, void *frame, uint32_t size);
    void (*on_connect)(void *user, mirk_platform_server *server, mirk_platform_peer peer); /**< may be null */
    /** The peer is gone; the reason is a sentence for people. May be null. */
    void (*on_disconnect)(void *user, mirk_platform_server *server, mirk_platform_peer peer, const char *reason);
    void *user; /**< first argument of the callbacks */
    /** A frame that is not whole so long after its first byte disconnects its sender; 0: never; default 10000. */
    uint32_t frame_ms;
    /** A peer that needs longer to read what one send queued, once it is its turn, is disconnected; 0: never; default
     * 60000. */
    uint32_t answer_ms;
    /** If more than this piles up unread for all peers together, the peer with the most is disconnected; never less
     * than the pending_limit of one peer; default 256 MiB. */
    uint64_t total_pending_limit;
    /** A peer passed a limit, or sent bytes that are not a frame: called before on_disconnect. Called as well for a
     * peer that is turned away because there are too many, which gets no other call. The peer is 0 if no connection can
     * be accepted, as without descriptors; that is said once until it works again. The reason is a sentence for people.
     * May be null. */
    void (*on_refused)(void *user, mirk_platform_server *server, mirk_platform_peer peer, const char *reason);
} mirk_platform_server_options;

/** Writes the defaults and the size. Always start from here. */
#define mirk_platform_server_options_init(options) mirk_platform_server_options_init_sized(options, sizeof *(options))
/** The same for a structure of this many bytes. */
MIRK_PLATFORM_API void mirk_platform_server_options_init_sized(mirk_platform_server_options *options, size_t size);

/** Listens on a socket file. A socket file that nobody listens on any more is replaced; 98 if somebody does; 17 if the
 * path is taken by anything else; 22 without on_frame. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_server_open(const char *path,
                                                                const mirk_platform_server_options *options,
                                                                mirk_platform_server **server);
/** The port that a frame transport over TCP uses if none is named. */
#define MIRK_PLATFORM_TCP_PORT 28276

/** Listens on a TCP address: "HOST:PORT", "HOST", ":PORT" or "". A host is a name, a number, or an IPv6 number in
 * brackets; without one it is 127.0.0.1. Port 0 lets the system choose. 22 for text that is no address; 99 for a host
 * that is not known or not here; 98 if somebody listens there. A port has no access rights: whoever reaches it is
 * served. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_server_open_tcp(const char *address,
                                                                    const mirk_platform_server_options *options,
                                                                    mirk_platform_server **server);
/** Where the server listens: the path of its socket file, or the number of its host and its port, "127.0.0.1:28276". */
MIRK_PLATFORM_API const char *mirk_platform_server_place(const mirk_platform_server *server);
/** Serves on the calling thread until stop; all callbacks run there. What is queued for peers when stop is called is
 * still sent as far as their sockets take it at once. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_server_run(mirk_platform_server *server);
/** From any thread, and from a signal handler. Before run it makes run return at once. */
MIRK_PLATFORM_API void mirk_platform_server_stop(mirk_platform_server *server);
/** From a callback. Queues a copy of the bytes, which should be whole frames. 107 for a peer that is gone; 105 if its
 * pending limit is passed, which also disconnects it. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_server_send(mirk_platform_server *server, mirk_platform_peer peer,
                                                                const void *bytes, size_t size);
/** From a callback. Sends what is queued, then closes. */
MIRK_PLATFORM_API void mirk_platform_server_disconnect(mirk_platform_server *server, mirk_platform_peer peer,
                                                       const char *reason);
/** How many peers are connected. */
MIRK_PLATFORM_API size_t mirk_platform_server_peers(mirk_platform_server *server);
/** After run has returned. Removes the socket file. Null is allowed. */
MIRK_PLATFORM_API void mirk_platform_server_close(mirk_platform_server *server);

/** Connects to a socket file; `frame_limit` 0 means 16 MiB. 110 when the time is over. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_client_open(const char *path, uint32_t frame_limit,
                                                                uint32_t timeout_ms, mirk_platform_client **client);
/** Connects to a TCP address as mirk_platform_server_open_tcp takes it. Looking up the name of a host does not count
 * into the time. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_client_open_tcp(const char *address, uint32_t frame_limit,
                                                                    uint32_t timeout_ms, mirk_platform_client **client);
/** Sends the bytes, which should be whole frames. 110 when the time is over, 104 if the peer is gone. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_client_send(mirk_platform_client *client, const void *bytes,
                                                                size_t size, uint32_t timeout_ms);
/** Waits for one whole frame. It lies in the client's buffer, writable and with a byte of slack, until the next call.
 * 104: the peer closed the connection. 74: what it sent is no frame. 90: the frame exceeds the limit. 110: time over;
 * what has arrived so far is kept for the next call. After 74, 90 and 104 only close is of use. */
MIRK_PLATFORM_API mirk_platform_error mirk_platform_client_receive(mirk_platform_client *client, void **frame,
                                                                   uint32_t *size, uint32_t timeout_ms);
/** Null is allowed. */
MIRK_PLATFORM_API void mirk_platform_client_close(mirk_platform_client *client);

#ifdef __cplusplus
}
#endif
#endif
