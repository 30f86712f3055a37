/** @file
 * types.h - type records, objects and structures that library and runtime share. Their layouts are part of the
 * contract.
 */
#ifndef MIRK_TYPES_H
#define MIRK_TYPES_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** The handle that functions work on; see mirk/handle.h. */
typedef struct mirk_handle mirk_handle;
/** Describes a type of objects. */
typedef struct mirk_type_info mirk_type_info;

/** Receives one message. `message` is null for a control message. */
typedef void (*mirk_message_handler)(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx, void *message, uint32_t *err);
/** Receives a committed bundle. Its messages are on the handle's recv_bundle_list while the handler runs. */
typedef void (*mirk_bundle_handler)(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx, uint32_t *err);
/** Stores private copies of a module's type records in the type store of the handle. */
typedef void (*mirk_typeinfo_init_fn)(mirk_handle *h, uint32_t ctx_id, uint32_t *err);
/** printf, or a function that behaves like it. */
typedef int (*mirk_print_fn)(const char *format, ...);

/** One variant of a type: its sizes and its usage counters. 40 bytes. */
typedef struct mirk_variant_entry {
    uint32_t variant_word;  /**< 0; not used */
    uint32_t used_length;   /**< bytes of an object up to the end of its last member */
    uint32_t alloc_slop;    /**< bytes of an object after that */
    uint64_t num_created;   /**< objects created */
    uint64_t num_destroyed; /**< objects destroyed */
    uint64_t num_live;      /**< the difference of both; always 0 for messages */
} mirk_variant_entry;

/** The variants of a type. Negative variants, which objects without a body have, also count objects: entries[-128] to
 * entries[n_variants - 1] must exist. */
typedef struct mirk_variant_info {
    int8_t n_variants;           /**< number of variants with a body: 0 to n_variants - 1 */
    mirk_variant_entry *entries; /**< indexed by variant */
} mirk_variant_info;

/** Describes a type of objects. 272 bytes. Text members are padded with NUL. */
struct mirk_type_info {
    uint32_t magic;                  /**< 0xbeeff00d */
    uint8_t luid[16];                /**< identity of the type */
    char luid_text[33];              /**< luid in hexadecimal; the key in the type store */
    char name[64];                   /**< name in the schema */
    char module[64];                 /**< name of the schema module */
    char kind[64];                   /**< category of the type */
    int32_t reserved_index;          /**< -1; not used */
    mirk_variant_info *variant_info; /**< sizes and counters */
    uint32_t plain_counters;         /**< 0: counters are atomic; nonzero: they are not shared between threads */
};

/** A handle's private copy of a type record, allocated by sys_alloc. It lives as long as the type store. 288 bytes. */
typedef struct mirk_type_info_copy {
    mirk_type_info info;   /**< the copy */
    uint64_t store_word_0; /**< for use by the type store */
    uint64_t store_word_1; /**< for use by the type store */
} mirk_type_info_copy;

/** A schema module in the list of all modules, a tail queue. */
typedef struct mirk_module {
    const char *name;          /**< name of the module */
    mirk_type_info **types;    /**< its type records; the last pointer is null */
    struct mirk_module *next;  /**< the next module, or null */
    struct mirk_module **prev; /**< the link that points to this module */
} mirk_module;

/** The list of all modules. */
typedef struct mirk_module_root {
    uint32_t count;     /**< number of modules */
    mirk_module *first; /**< the first, or null */
    mirk_module **last; /**< the link that will point to the next module */
} mirk_module_root;

/** The header of every object: 11 bytes without the padding of this structure, whose size is 16. Members of an object
 * may begin at offset 11. */
typedef struct mirk_object {
    mirk_type_info *tinfo; /**< the type */
    int8_t variant;        /**< variant of the object; negative: it has no body */
    int8_t home_variant;   /**< variant in which it was created */
    /** Sum of flags: 1 has an oid, 2 embedded, 4 nested, 8 has state, 16 for use by the runtime, 32 has RA data, 64 has
     * a recorded state offset. */
    uint8_t obj_flag;
} mirk_object;

/** A truth value as an object. 16 bytes, alignment 8. */
typedef struct mirk_boolean {
    mirk_type_info *tinfo; /**< the type */
    int8_t variant;        /**< as in mirk_object */
    int8_t home_variant;   /**< as in mirk_object */
    uint8_t obj_flag;      /**< as in mirk_object */
    uint8_t value;         /**< 0: false; any other value: true */
} mirk_boolean;

/** A network address with a prefix length. */
typedef struct ip_address ip_address;
/** A network address with a prefix length. 40 bytes, alignment 8. Words are numbers in host byte order; word[0] is the
 * most significant. */
struct ip_address {
    mirk_type_info *tinfo; /**< the type */
    int8_t variant;        /**< as in mirk_object */
    int8_t home_variant;   /**< as in mirk_object */
    uint8_t obj_flag;      /**< as in mirk_object */
    uint8_t af;            /**< address family: AF_INET or AF_INET6 */
    uint8_t prefix_len;    /**< number of leading bits that are significant */
    uint16_t scope;        /**< scope number; 0: none */
    uint32_t word[4];      /**< the address; an IPv4 address is in word[0] */
    uint64_t slop;         /**< reserved */
};

/** A message header in memory. 16 bytes, alignment 4. On the wire it has 27 bytes: these members in this order, with
 * big-endian integers, and 11 zero bytes. */
typedef struct mirk_message_header {
    uint8_t marker;        /**< 0xBC */
    uint8_t fill[6];       /**< 0xFF */
    uint8_t sttr;          /**< 1: the frame contains state */
    uint32_t stamp;        /**< message_stamp of the sender */
    uint32_t total_length; /**< bytes of the frame, including header and luid */
} mirk_message_header;

/** A message that a bundle admits: a row of a table, which ends with a row of zeros. */
typedef struct mirk_allowed_row {
    const uint8_t *luid; /**< luid of the message, 16 bytes */
    const char *name;    /**< for trace lines */
    uint64_t zero;       /**< 0 */
} mirk_allowed_row;

/** A dispatch entry. The library reads only `name` and `handler`. */
typedef struct mirk_dispatch_info {
    void *word_0;                /**< for use by the runtime */
    const char *name;            /**< for trace lines */
    void *word_2;                /**< for use by the runtime */
    void *word_3;                /**< for use by the runtime */
    mirk_bundle_handler handler; /**< receives a committed bundle instead of all other handlers; may be null */
} mirk_dispatch_info;

/** The head of a circular list. Empty: both members point to the head itself. */
typedef struct mirk_list_head {
    struct mirk_list_head *next; /**< the first item */
    struct mirk_list_head *prev; /**< the last item */
} mirk_list_head;

/** State tracking of a handle. 0xDDDD: off; 0xEEEE: on. Any other word means that the handle is corrupt. */
typedef struct mirk_sttr_desc {
    uint32_t sttr_mode; /**< 0xDDDD or 0xEEEE */
} mirk_sttr_desc;

/** A domain. Its contents belong to the runtime; the library only passes its address. */
typedef struct mirk_domain {
    void *opaque[4]; /**< for use by the runtime */
} mirk_domain;

#ifdef __cplusplus
}
#endif
#endif
