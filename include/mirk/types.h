/** @file
 * types.h - type records, and the objects that both sides lay hands on. Layouts are part of the contract.
 */
#ifndef MIRK_TYPES_H
#define MIRK_TYPES_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** What all operations work under; see mirk/handle.h. */
typedef struct mirk_handle mirk_handle;
/** Describes a type. */
typedef struct mirk_type_info mirk_type_info;

/** Receives one message. The message argument of a control message is null. */
typedef void (*mirk_message_handler)(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx, void *message, uint32_t *err);
/** Receives a committed bundle; its messages lie on the handle's recv_bundle_list while the handler runs. */
typedef void (*mirk_bundle_handler)(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx, uint32_t *err);
/** Enters private copies of a module's type records in the handle's type store. */
typedef void (*mirk_typeinfo_init_fn)(mirk_handle *h, uint32_t ctx_id, uint32_t *err);
/** printf or what behaves like it. */
typedef int (*mirk_print_fn)(const char *format, ...);

/** One variant of a type: its sizes and its usage counters. 40 bytes. */
typedef struct mirk_variant_entry {
    uint32_t variant_word;  /**< 0; not interpreted */
    uint32_t used_length;   /**< bytes of an instance up to the end of its last member */
    uint32_t alloc_slop;    /**< bytes that an instance has beyond that */
    uint64_t num_created;   /**< instances that were made */
    uint64_t num_destroyed; /**< instances that were ended */
    uint64_t num_live;      /**< the difference; stays 0 for messages */
} mirk_variant_entry;

/** The variants of a type. */
typedef struct mirk_variant_info {
    int8_t n_variants;           /**< how many there are; variants are counted from 0 */
    mirk_variant_entry *entries; /**< entries[-128] to entries[0] are all readable and writable */
} mirk_variant_info;

/** Describes a type. 272 bytes. The text members are NUL-padded. */
struct mirk_type_info {
    uint32_t magic;                  /**< 0xbeeff00d */
    uint8_t luid[16];                /**< the type's identity */
    char luid_text[33];              /**< the same in hexadecimal: the key of the type store */
    char name[64];                   /**< as the schema has it */
    char module[64];                 /**< schema module that the type belongs to */
    char kind[64];                   /**< what sort of type it is */
    int32_t reserved_index;          /**< -1; not interpreted */
    mirk_variant_info *variant_info; /**< sizes and counters */
    uint32_t plain_counters;         /**< 0: counters are shared and change atomically */
};

/** A handle's own copy of a type record, from sys_alloc; it lives as long as the type store. 288 bytes. */
typedef struct mirk_type_info_copy {
    mirk_type_info info;   /**< the copy */
    uint64_t store_word_0; /**< the type store's */
    uint64_t store_word_1; /**< the type store's */
} mirk_type_info_copy;

/** A schema module in the list of the process: a tail queue. `types` ends with a null pointer. */
typedef struct mirk_module {
    const char *name;          /**< of the module */
    mirk_type_info **types;    /**< its type records */
    struct mirk_module *next;  /**< the next module, or null */
    struct mirk_module **prev; /**< the link that points here */
} mirk_module;

/** The list of all modules. */
typedef struct mirk_module_root {
    uint32_t count;     /**< modules in the list */
    mirk_module *first; /**< the first, or null */
    mirk_module **last; /**< the link that the next module is hung on */
} mirk_module_root;

/** The header of every object. Members follow from offset 11 on. */
typedef struct mirk_object {
    mirk_type_info *tinfo; /**< the type */
    int8_t variant;        /**< in which form the object is; negative: without body */
    int8_t home_variant;   /**< in which form it was made */
    uint8_t obj_flag;      /**< bits MIRK_OBJ_... */
} mirk_object;

/** A truth value as an object. 16 bytes. */
typedef struct mirk_boolean {
    mirk_type_info *tinfo; /**< the type */
    int8_t variant;        /**< as in mirk_object */
    int8_t home_variant;   /**< as in mirk_object */
    uint8_t obj_flag;      /**< as in mirk_object */
    uint8_t value;         /**< 0 is false */
} mirk_boolean;

/** A network address with its prefix length. 40 bytes, alignment 8. Words are host-order numbers, word[0] the most
 * significant. */
typedef struct ip_address ip_address;
/** A network address with its prefix length. */
struct ip_address {
    mirk_type_info *tinfo; /**< the type */
    int8_t variant;        /**< as in mirk_object */
    int8_t home_variant;   /**< as in mirk_object */
    uint8_t obj_flag;      /**< as in mirk_object */
    uint8_t af;            /**< address family */
    uint8_t prefix_len;    /**< leading bits that matter */
    uint16_t scope;        /**< where the address is valid */
    uint32_t word[4];      /**< the address; one of four bytes is in word[0] */
    uint64_t slop;         /**< room behind the last member */
};

/** What the library knows of a message header. 16 bytes, alignment 4. */
typedef struct mirk_message_header {
    uint8_t marker;        /**< 0xBC */
    uint8_t fill[6];       /**< 0xFF */
    uint8_t sttr;          /**< 1: the frame carries state */
    uint32_t stamp;        /**< the sender's message_stamp */
    uint32_t total_length; /**< bytes of the frame, header and identity included */
} mirk_message_header;

/** A message that a bundle admits. A table ends with a row of three zero words. */
typedef struct mirk_allowed_row {
    const uint8_t *luid; /**< identity, 16 bytes */
    const char *name;    /**< for trace lines */
    uint64_t zero;       /**< 0 */
} mirk_allowed_row;

/** What is being dispatched. The library reads the name, for trace lines, and the handler, which may be null. */
typedef struct mirk_dispatch_info {
    void *word_0;                /**< the runtime's */
    const char *name;            /**< for trace lines */
    void *word_2;                /**< the runtime's */
    void *word_3;                /**< the runtime's */
    mirk_bundle_handler handler; /**< gets the committed bundle ahead of all others; may be null */
} mirk_dispatch_info;

/** A list in a ring. Empty: both words point at the head itself. */
typedef struct mirk_list_head {
    struct mirk_list_head *next; /**< the first item */
    struct mirk_list_head *prev; /**< the last item */
} mirk_list_head;

/** Whether a handle tracks state. 0xDDDD: tracking off; 0xEEEE: tracking on; anything else is a corrupt handle. */
typedef struct mirk_sttr_desc {
    uint32_t sttr_mode; /**< one of the two words */
} mirk_sttr_desc;

/** A domain, the runtime's own: the library passes its address and never looks inside. */
typedef struct mirk_domain {
    void *opaque[4]; /**< the runtime's */
} mirk_domain;

#ifdef __cplusplus
}
#endif
#endif
