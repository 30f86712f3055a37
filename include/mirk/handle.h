/** @file
 * handle.h - the handle: the runtime makes it, the callers of the library own it, the library works on it.
 */
#ifndef MIRK_HANDLE_H
#define MIRK_HANDLE_H

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** The members stand in this order with none between them; a runtime's own may follow behind oid_mapping. Callbacks are
 * never null, bundle_handler excepted. */
struct mirk_handle {
    /** Memory that outlives any operation; never given back by the library. Null: out of memory. `id` is 0xFFFFFFFF. */
    void *(*sys_alloc)(void *sys_ctx, uint32_t id, size_t size);
    /** Instances, blocks, bodies, tokens; the library owns what it gets until obj_free. Size 0 is a legal request.
     * Contents are unspecified. Null: out of memory. */
    void *(*obj_alloc)(void *mem_ctx, uint32_t ctx_id, size_t size);
    /** Takes back what obj_alloc gave. */
    void (*obj_free)(void *mem_ctx, uint32_t ctx_id, void *p);
    /** Called before `size` bytes of an existing object change. The result is ignored.
     * Note that ctx_id stands last. */
    int (*write_notify)(void *mem_ctx, void *address, size_t size, uint32_t ctx_id);
    /** Called before a usage counter changes by delta. The result is ignored. Note that ctx_id stands last. */
    int (*count_notify)(void *mem_ctx, uint64_t *address, int64_t delta, uint32_t ctx_id);
    /** The handle's private copies by luid_text. The store keeps the copy, not the key; get answers null for none. */
    void (*type_store_put)(void *type_store, uint32_t ctx_id, const char *key, mirk_type_info_copy *copy);
    /** The copy under this key, or null. */
    mirk_type_info_copy *(*type_store_get)(void *type_store, uint32_t ctx_id, const char *key);
    uint32_t private_types; /**< nonzero: objects point at private copies, whose counters change by plain arithmetic */
    void *mem_ctx;          /**< first argument of obj_alloc, obj_free and the two notify callbacks */
    void *type_store;       /**< first argument of type_store_put and type_store_get */
    void *sys_ctx;          /**< first argument of sys_alloc */
    mirk_bundle_handler bundle_handler;         /**< for committed bundles; may be null */
    uint32_t send_bundle_open;                  /**< nonzero from the start that was written to its commit or abort */
    uint32_t recv_bundle_open;                  /**< nonzero from the start that was received to its commit or abort */
    const mirk_allowed_row *bundle_table;       /**< of the open send bundle */
    mirk_dispatch_info *recv_bundle_lut;        /**< dispatch entry at the start of the receive bundle */
    void *recv_bundle_lut_ref;                  /**< look-up table at that time */
    mirk_dispatch_info *recv_bundle_commit_lut; /**< dispatch entry while a commit's handler runs */
    mirk_list_head send_bundle_list;            /**< messages admitted to the send bundle, with counts */
    mirk_list_head recv_bundle_list;            /**< messages filed for the receive bundle */
    const char *domain_name;                    /**< for trace lines */
    uint32_t message_stamp;                     /**< goes into every header that is marshalled */
    mirk_domain domain;                         /**< what the peers of this handle understand */
    uint32_t last_error;                        /**< the sticky error, and the slot of every _cr operation */
    uint32_t default_id;                        /**< the ctx_id of every _cr operation */
    uint32_t cr_mode;                           /**< 1 while a _create_cr runs */
    mirk_sttr_desc *sttr_desc;                  /**< null: no state tracking */
    uint32_t oid_mapping;                       /**< nonzero: mappings are to be removed at destruction */
};

#ifdef __cplusplus
}
#endif
#endif
