/** @file
 * handle.h - the handle: created by the runtime, owned by the program, used by the library.
 */
#ifndef MIRK_HANDLE_H
#define MIRK_HANDLE_H

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** The members have this order, with no other members between them. A runtime may add its own after oid_mapping.
 * Callbacks are never null, except bundle_handler. */
struct mirk_handle {
    /** Allocates `size` bytes that live as long as the handle; the library never frees them. Returns null if allocation
     * fails. `id` is 0xFFFFFFFF. */
    void *(*sys_alloc)(void *sys_ctx, uint32_t id, size_t size);
    /** Allocates `size` bytes, which may be 0, for an object, an array block, a string body or a token. The library
     * owns them until obj_free. Contents are unspecified. Returns null if allocation fails. */
    void *(*obj_alloc)(void *mem_ctx, uint32_t ctx_id, size_t size);
    /** Frees a block of obj_alloc. Also called with the sentinel of a control message, which is not a block and must
     * not be treated as one. */
    void (*obj_free)(void *mem_ctx, uint32_t ctx_id, void *p);
    /** Called before `size` bytes of an existing object change. The result is ignored. Note that ctx_id is the last
     * argument. */
    int (*write_notify)(void *mem_ctx, void *address, size_t size, uint32_t ctx_id);
    /** Called before a usage counter changes by delta. The result is ignored. Note that ctx_id is the last argument. */
    int (*count_notify)(void *mem_ctx, uint64_t *address, int64_t delta, uint32_t ctx_id);
    /** Stores a private copy of a type record under its luid_text. The store refers to the copy; it copies the key. */
    void (*type_store_put)(void *type_store, uint32_t ctx_id, const char *key, mirk_type_info_copy *copy);
    /** Returns the copy stored under this key, or null. */
    mirk_type_info_copy *(*type_store_get)(void *type_store, uint32_t ctx_id, const char *key);
    uint32_t private_types;             /**< nonzero: objects refer to private copies, whose counters are not atomic */
    void *mem_ctx;                      /**< first argument of obj_alloc, obj_free and the two notify callbacks */
    void *type_store;                   /**< first argument of type_store_put and type_store_get */
    void *sys_ctx;                      /**< first argument of sys_alloc */
    mirk_bundle_handler bundle_handler; /**< receives committed bundles; may be null */
    uint32_t send_bundle_open;          /**< nonzero from writing a start message to its commit or abort */
    uint32_t recv_bundle_open;          /**< nonzero from receiving a start message to its commit or abort */
    const mirk_allowed_row *bundle_table;       /**< messages that the open send bundle admits */
    mirk_dispatch_info *recv_bundle_lut;        /**< dispatch entry of the start of the receive bundle */
    void *recv_bundle_lut_ref;                  /**< look-up table of that entry */
    mirk_dispatch_info *recv_bundle_commit_lut; /**< dispatch entry of the commit, while its handler runs */
    mirk_list_head send_bundle_list;            /**< messages admitted to the send bundle */
    mirk_list_head recv_bundle_list;            /**< messages received in the receive bundle */
    const char *domain_name;                    /**< name of the domain, for trace lines */
    uint32_t message_stamp;                     /**< stamp of every header that is written */
    mirk_domain domain;                         /**< variants and messages that the peers of this handle understand */
    uint32_t last_error;                        /**< the sticky error, which is the error slot of every _cr operation */
    uint32_t default_id;                        /**< the ctx_id of every _cr operation */
    uint32_t cr_mode;                           /**< 1 while a _create_cr runs */
    mirk_sttr_desc *sttr_desc;                  /**< null: no state tracking */
    uint32_t oid_mapping;                       /**< nonzero: destroying an object removes state offset and RA data */
};

#ifdef __cplusplus
}
#endif
#endif
