/*
 * types.h - type records, and the objects that both sides lay hands on. Layouts are part of the contract.
 */
#ifndef MIRK_TYPES_H
#define MIRK_TYPES_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct mirk_handle mirk_handle;
typedef struct mirk_type_info mirk_type_info;

/* Receives one message. The message argument of a control message is null. */
typedef void (*mirk_message_handler)(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx, void *message, uint32_t *err);
/* Receives a committed bundle; its messages lie on the handle's recv_bundle_list while the handler runs. */
typedef void (*mirk_bundle_handler)(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx, uint32_t *err);
/* Enters private copies of a module's type records in the handle's type store. */
typedef void (*mirk_typeinfo_init_fn)(mirk_handle *h, uint32_t ctx_id, uint32_t *err);
/* printf or what behaves like it. */
typedef int (*mirk_print_fn)(const char *format, ...);

/* One variant of a type: its sizes and its usage counters. 40 bytes. */
typedef struct mirk_variant_entry {
    uint32_t variant_word; /* 0; not interpreted */
    uint32_t used_length;  /* bytes of an instance up to the end of its last member */
    uint32_t alloc_slop;   /* bytes that an instance has beyond that */
    uint64_t num_created, num_destroyed, num_live;
} mirk_variant_entry;

typedef struct mirk_variant_info {
    int8_t n_variants;
    mirk_variant_entry *entries; /* entries[-128] to entries[0] are all readable and writable */
} mirk_variant_info;

/* Describes a type. 272 bytes. The text members are NUL-padded. */
struct mirk_type_info {
    uint32_t magic;     /* 0xbeeff00d */
    uint8_t luid[16];   /* the type's identity */
    char luid_text[33]; /* the same in hexadecimal: the key of the type store */
    char name[64], module[64], kind[64];
    int32_t reserved_index;
    mirk_variant_info *variant_info;
    uint32_t plain_counters; /* 0: counters are shared and change atomically */
};

/* A handle's own copy of a type record, from sys_alloc; it lives as long as the type store. 288 bytes. */
typedef struct mirk_type_info_copy {
    mirk_type_info info;
    uint64_t store_word_0, store_word_1;
} mirk_type_info_copy;

/* A schema module in the list of the process: a tail queue. `types` ends with a null pointer. */
typedef struct mirk_module {
    const char *name;
    mirk_type_info **types;
    struct mirk_module *next, **prev;
} mirk_module;

typedef struct mirk_module_root {
    uint32_t count;
    mirk_module *first, **last;
} mirk_module_root;

/* The header of every object. Members follow from offset 11 on. */
typedef struct mirk_object {
    mirk_type_info *tinfo;
    int8_t variant, home_variant;
    uint8_t obj_flag;
} mirk_object;

/* 16 bytes. */
typedef struct mirk_boolean {
    mirk_type_info *tinfo;
    int8_t variant, home_variant;
    uint8_t obj_flag, value;
} mirk_boolean;

/* 40 bytes, alignment 8. Words are host-order numbers, word[0] the most significant. */
typedef struct ip_address ip_address;
struct ip_address {
    mirk_type_info *tinfo;
    int8_t variant, home_variant;
    uint8_t obj_flag, af, prefix_len;
    uint16_t scope;
    uint32_t word[4];
    uint64_t slop;
};

/* What the library knows of a message header. 16 bytes, alignment 4. */
typedef struct mirk_message_header {
    uint8_t marker, fill[6], sttr;
    uint32_t stamp, total_length;
} mirk_message_header;

/* A message that a bundle admits. A table ends with a row of three zero words. */
typedef struct mirk_allowed_row {
    const uint8_t *luid;
    const char *name;
    uint64_t zero;
} mirk_allowed_row;

/* What is being dispatched. The library reads the name, for trace lines, and the handler, which may be null. */
typedef struct mirk_dispatch_info {
    void *word_0;
    const char *name;
    void *word_2, *word_3;
    mirk_bundle_handler handler;
} mirk_dispatch_info;

/* Empty: both words point at the head itself. */
typedef struct mirk_list_head {
    struct mirk_list_head *next, *prev;
} mirk_list_head;

/* 0xDDDD: tracking off; 0xEEEE: tracking on; anything else is a corrupt handle. */
typedef struct mirk_sttr_desc {
    uint32_t sttr_mode;
} mirk_sttr_desc;

/* The runtime's own: the library passes its address and never looks inside. */
typedef struct mirk_domain {
    void *opaque[4];
} mirk_domain;

#ifdef __cplusplus
}
#endif
#endif
