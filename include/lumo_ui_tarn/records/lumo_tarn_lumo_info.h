/* lumo_tarn_lumo_info.h - one processor.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_LUMO_INFO_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_LUMO_INFO_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/enumerations/lumo_tarn_ha_state_e.h>
#include <lumo_ui_tarn/enumerations/lumo_tarn_lumo_direction_e.h>
#include <lumo_ui_tarn/records/lumo_tarn_dyn_exmem_info.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info.h>
#include <lumo_ui_tarn/records/lumo_tarn_fdb_base.h>
#include <lumo_ui_tarn/records/lumo_tarn_fdb_mem_info.h>
#include <lumo_ui_tarn/records/lumo_tarn_static_exmem_info.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_lumo_info: one processor.
 *
 *   display_all                  boolean                        show: everything
 *   display_fdb                  boolean                        show: the fdb part
 *   display_ha                   boolean                        show: the high-availability part
 *   display_wexa                 boolean                        show: the wexa part
 *   display_handles              boolean                        show: the handles
 *   display_exmem                boolean                        show: the memory blocks
 *   display_init                 boolean                        show: the initialisation state
 *   lumo_num                     uint8_t                        number of this lumo processor
 *   complex_num                  uint8_t                        number of the complex that the processor belongs to
 *   direction                    lumo_tarn_lumo_direction_e     direction of traffic that the processor serves
 *   epoch                        uint32_t                       epoch value of the processor
 *   fdb_initialized              uint32_t                       flag word: fdb initialised
 *   fdb_base                     lumo_tarn_fdb_base             header and footer description of the fdb
 *   chunk_overhead               uint16_t                       overhead of a chunk
 *   flow_info_mem_size           uint16_t                       memory size of a flow information entry
 *   mp_cache_entry_size          uint16_t                       size of an mp cache entry
 *   tt_cache_entry_size          uint16_t                       size of a tt cache entry
 *   tarn_tt_tbl                  lumo_tarn_fdb_mem_info         memory of the feature's traffic table
 *   tarn_debug_flags             lumo_tarn_fdb_mem_info         memory of the feature's debug flags
 *   ha_state                     lumo_tarn_ha_state_e           high-availability state of the processor
 *   ha_running                   uint32_t                       flag word: high availability is running
 *   ha_enabled                   uint32_t                       flag word: high availability is enabled
 *   drv_conn_h                   uint64_t                       handle: the connection to the driver
 *   exmem_h                      uint64_t                       handle: external memory
 *   wexa_num_feat                uint16_t                       number of features in a wexa entry
 *   wexa_feat_size               uint16_t                       size of a feature in a wexa entry
 *   in_wexa_h                    uint64_t                       handle: ingress wexa
 *   in_wexa_feat_h               uint64_t                       handle: ingress wexa feature
 *   out_wexa_h                   uint64_t                       handle: egress wexa
 *   out_wexa_feat_h              uint64_t                       handle: egress wexa feature
 *   dp_hash_salt                 uint32_t                       salt of the data plane's hash, carried as a datum
 *   flow_info_initialized        uint32_t                       flag word: flow information initialised on the client side
 *   dp_flow_info_initialized     uint32_t                       flag word: flow information initialised in the data plane
 *   mp_initialized               uint32_t                       flag word: mp initialised on the client side
 *   dp_mp_initialized            uint32_t                       flag word: mp initialised in the data plane
 *   tt_initialized               uint32_t                       flag word: tt initialised on the client side
 *   dp_tt_initialized            uint32_t                       flag word: tt initialised in the data plane
 *   appl_sig_initialized         uint32_t                       flag word: application signatures initialised on the client side
 *   dp_appl_sig_initialized      uint32_t                       flag word: application signatures initialised in the data plane
 *   tt_tc_filter_list_exmem_ptr  uint64_t                       external memory of the traffic table's filter class list
 *   tt_tc_agg_list_exmem_ptr     uint64_t                       external memory of the traffic table's aggregation class list
 *   tt_tc_learn_list_exmem_ptr   uint64_t                       external memory of the traffic table's learn list
 *   tc_list_head_chunk_h         uint64_t                       handle: chunk pool of class list heads
 *   tc_chunk_h                   uint64_t                       handle: chunk pool of traffic classes
 *   ll_chunk_h                   uint64_t                       handle: chunk pool of learn lists
 *   appl_chunk_h                 uint64_t                       handle: chunk pool of applications
 *   cl_appl_sig_hash_ptr         uint64_t                       the client side's application signature hash
 *   dp_appl_sig_hash_h           uint64_t                       handle: the data plane's application signature hash
 *   appl_sig_chunk_h             uint64_t                       handle: chunk pool of application signatures
 *   appl_sig_hash_exmem          lumo_tarn_exmem_info           block of the application signature hash
 *   mp_export_exmem              lumo_tarn_exmem_info           block of the mp export
 *   tt_export_exmem              lumo_tarn_exmem_info           block of the tt export
 *   num_static_exmems            uint8_t count                  elements in static_exmem
 *   static_exmem                 lumo_tarn_static_exmem_info[]  processor's static memory blocks
 *   num_dyn_exmems               uint8_t count                  elements in dyn_exmem
 *   dyn_exmem                    lumo_tarn_dyn_exmem_info[]     processor's dynamic memory blocks
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_lumo_info lumo_tarn_lumo_info;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_lumo_info_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_lumo_info *lumo_tarn_lumo_info_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_lumo_info *lumo_tarn_lumo_info_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_lumo_info *lumo_tarn_lumo_info_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_lumo_info_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_adjust_variant(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_destroy_cr(mirk_handle *h, lumo_tarn_lumo_info *object);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_destroy_internal(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_lumo_info *lumo_tarn_lumo_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint8_t *display_all, uint8_t *display_fdb, uint8_t *display_ha, uint8_t *display_wexa, uint8_t *display_handles,
    uint8_t *display_exmem, uint8_t *display_init, uint8_t *lumo_num, uint8_t *complex_num, uint32_t *direction,
    uint32_t *epoch, uint32_t *fdb_initialized, uint16_t *chunk_overhead, uint16_t *flow_info_mem_size,
    uint16_t *mp_cache_entry_size, uint16_t *tt_cache_entry_size, uint32_t *ha_state, uint32_t *ha_running,
    uint32_t *ha_enabled, uint64_t *drv_conn_h, uint64_t *exmem_h, uint16_t *wexa_num_feat, uint16_t *wexa_feat_size,
    uint64_t *in_wexa_h, uint64_t *in_wexa_feat_h, uint64_t *out_wexa_h, uint64_t *out_wexa_feat_h,
    uint32_t *dp_hash_salt, uint32_t *flow_info_initialized, uint32_t *dp_flow_info_initialized,
    uint32_t *mp_initialized, uint32_t *dp_mp_initialized, uint32_t *tt_initialized, uint32_t *dp_tt_initialized,
    uint32_t *appl_sig_initialized, uint32_t *dp_appl_sig_initialized, uint64_t *tt_tc_filter_list_exmem_ptr,
    uint64_t *tt_tc_agg_list_exmem_ptr, uint64_t *tt_tc_learn_list_exmem_ptr, uint64_t *tc_list_head_chunk_h,
    uint64_t *tc_chunk_h, uint64_t *ll_chunk_h, uint64_t *appl_chunk_h, uint64_t *cl_appl_sig_hash_ptr,
    uint64_t *dp_appl_sig_hash_h, uint64_t *appl_sig_chunk_h, uint8_t *num_static_exmems, uint8_t *num_dyn_exmems,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint8_t display_all, uint8_t display_fdb, uint8_t display_ha, uint8_t display_wexa, uint8_t display_handles,
    uint8_t display_exmem, uint8_t display_init, uint8_t lumo_num, uint8_t complex_num, uint32_t direction,
    uint32_t epoch, uint32_t fdb_initialized, uint16_t chunk_overhead, uint16_t flow_info_mem_size,
    uint16_t mp_cache_entry_size, uint16_t tt_cache_entry_size, uint32_t ha_state, uint32_t ha_running,
    uint32_t ha_enabled, uint64_t drv_conn_h, uint64_t exmem_h, uint16_t wexa_num_feat, uint16_t wexa_feat_size,
    uint64_t in_wexa_h, uint64_t in_wexa_feat_h, uint64_t out_wexa_h, uint64_t out_wexa_feat_h, uint32_t dp_hash_salt,
    uint32_t flow_info_initialized, uint32_t dp_flow_info_initialized, uint32_t mp_initialized,
    uint32_t dp_mp_initialized, uint32_t tt_initialized, uint32_t dp_tt_initialized, uint32_t appl_sig_initialized,
    uint32_t dp_appl_sig_initialized, uint64_t tt_tc_filter_list_exmem_ptr, uint64_t tt_tc_agg_list_exmem_ptr,
    uint64_t tt_tc_learn_list_exmem_ptr, uint64_t tc_list_head_chunk_h, uint64_t tc_chunk_h, uint64_t ll_chunk_h,
    uint64_t appl_chunk_h, uint64_t cl_appl_sig_hash_ptr, uint64_t dp_appl_sig_hash_h, uint64_t appl_sig_chunk_h,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *destination,
    lumo_tarn_lumo_info *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *new_place, lumo_tarn_lumo_info *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_is_valid_cr(mirk_handle *h, lumo_tarn_lumo_info *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_offset_update(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_offset_remove(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_len_cr(mirk_handle *h, lumo_tarn_lumo_info *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_lumo_info *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_lumo_info *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_lumo_info *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *source,
    lumo_tarn_lumo_info **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_lumo_info *lumo_tarn_lumo_info_clone_cr(mirk_handle *h, lumo_tarn_lumo_info *source);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_copy_cr(mirk_handle *h, lumo_tarn_lumo_info *source,
    lumo_tarn_lumo_info *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_lumo_info *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_print_cr(mirk_handle *h, lumo_tarn_lumo_info *instance, char *buffer,
    int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_lumo_info *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_toxml_cr(mirk_handle *h, lumo_tarn_lumo_info *instance, char *buffer,
    int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_lumo_info *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_lumo_info_compare(const lumo_tarn_lumo_info *a, const lumo_tarn_lumo_info *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_hash(const lumo_tarn_lumo_info *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *instance, void *word);

/* display_all: show: everything */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_all_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_all_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_all_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_all_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_all_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_all_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* display_fdb: show: the fdb part */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_fdb_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_fdb_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_fdb_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_fdb_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_fdb_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_fdb_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* display_ha: show: the high-availability part */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_ha_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_ha_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_ha_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_ha_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_ha_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_ha_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* display_wexa: show: the wexa part */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_wexa_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_wexa_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_wexa_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_wexa_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_wexa_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_wexa_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* display_handles: show: the handles */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_handles_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_handles_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_handles_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_handles_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_handles_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_handles_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* display_exmem: show: the memory blocks */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_exmem_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_exmem_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_exmem_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* display_init: show: the initialisation state */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_init_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_init_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_init_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_init_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_init_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_init_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* lumo_num: number of this lumo processor */
LUMO_UI_TARN_API uint8_t *lumo_tarn_lumo_info_lumo_num_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_lumo_num_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_lumo_num_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_lumo_num_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_lumo_num_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_lumo_num_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* complex_num: number of the complex that the processor belongs to */
LUMO_UI_TARN_API uint8_t *lumo_tarn_lumo_info_complex_num_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_complex_num_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_complex_num_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_complex_num_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_complex_num_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_complex_num_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* direction: direction of traffic that the processor serves */
LUMO_UI_TARN_API lumo_tarn_lumo_direction_e *lumo_tarn_lumo_info_direction_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_direction_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_direction_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    lumo_tarn_lumo_direction_e *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_direction_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_direction_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_direction_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* epoch: epoch value of the processor */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_epoch_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_epoch_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_epoch_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_epoch_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_epoch_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_epoch_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* fdb_initialized: flag word: fdb initialised */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_fdb_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_fdb_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_fdb_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_fdb_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_fdb_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_fdb_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* fdb_base: header and footer description of the fdb */
LUMO_UI_TARN_API lumo_tarn_fdb_base *lumo_tarn_lumo_info_fdb_base_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_fdb_base_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    lumo_tarn_fdb_base *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_fdb_base_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_fdb_base_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* chunk_overhead: overhead of a chunk */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_chunk_overhead_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_chunk_overhead_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_chunk_overhead_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_chunk_overhead_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_chunk_overhead_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_chunk_overhead_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* flow_info_mem_size: memory size of a flow information entry */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_flow_info_mem_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_flow_info_mem_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_mem_size_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_mem_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_flow_info_mem_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_mem_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* mp_cache_entry_size: size of an mp cache entry */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_mp_cache_entry_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_mp_cache_entry_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_cache_entry_size_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_cache_entry_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_mp_cache_entry_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_cache_entry_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* tt_cache_entry_size: size of a tt cache entry */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_tt_cache_entry_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_tt_cache_entry_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_cache_entry_size_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_cache_entry_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_cache_entry_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_cache_entry_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* tarn_tt_tbl: memory of the feature's traffic table */
LUMO_UI_TARN_API lumo_tarn_fdb_mem_info *lumo_tarn_lumo_info_tarn_tt_tbl_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tarn_tt_tbl_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    lumo_tarn_fdb_mem_info *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tarn_tt_tbl_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tarn_tt_tbl_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* tarn_debug_flags: memory of the feature's debug flags */
LUMO_UI_TARN_API lumo_tarn_fdb_mem_info *lumo_tarn_lumo_info_tarn_debug_flags_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tarn_debug_flags_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, lumo_tarn_fdb_mem_info *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tarn_debug_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tarn_debug_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* ha_state: high-availability state of the processor */
LUMO_UI_TARN_API lumo_tarn_ha_state_e *lumo_tarn_lumo_info_ha_state_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_ha_state_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_state_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    lumo_tarn_ha_state_e *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_state_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_ha_state_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_state_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* ha_running: flag word: high availability is running */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_ha_running_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_ha_running_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_running_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_running_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_ha_running_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_running_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* ha_enabled: flag word: high availability is enabled */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_ha_enabled_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_ha_enabled_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_enabled_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_enabled_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_ha_enabled_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_enabled_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* drv_conn_h: handle: the connection to the driver */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_drv_conn_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_drv_conn_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_drv_conn_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_drv_conn_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_drv_conn_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_drv_conn_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* exmem_h: handle: external memory */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_exmem_h_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_exmem_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_exmem_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_exmem_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_exmem_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_exmem_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* wexa_num_feat: number of features in a wexa entry */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_wexa_num_feat_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_wexa_num_feat_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_num_feat_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_num_feat_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_wexa_num_feat_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_num_feat_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* wexa_feat_size: size of a feature in a wexa entry */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_wexa_feat_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_wexa_feat_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_feat_size_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_feat_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_wexa_feat_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_feat_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* in_wexa_h: handle: ingress wexa */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_in_wexa_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_in_wexa_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_in_wexa_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* in_wexa_feat_h: handle: ingress wexa feature */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_in_wexa_feat_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_in_wexa_feat_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_feat_h_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_feat_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_in_wexa_feat_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_feat_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* out_wexa_h: handle: egress wexa */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_out_wexa_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_out_wexa_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_out_wexa_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* out_wexa_feat_h: handle: egress wexa feature */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_out_wexa_feat_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_out_wexa_feat_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_feat_h_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_feat_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_out_wexa_feat_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_feat_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* dp_hash_salt: salt of the data plane's hash, carried as a datum */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_dp_hash_salt_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dp_hash_salt_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_hash_salt_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_hash_salt_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_hash_salt_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_hash_salt_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* flow_info_initialized: flag word: flow information initialised on the client side */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_flow_info_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_flow_info_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_flow_info_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* dp_flow_info_initialized: flag word: flow information initialised in the data plane */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_dp_flow_info_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dp_flow_info_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_flow_info_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_flow_info_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_flow_info_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_flow_info_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* mp_initialized: flag word: mp initialised on the client side */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_mp_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_mp_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_mp_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* dp_mp_initialized: flag word: mp initialised in the data plane */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_dp_mp_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dp_mp_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_mp_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_mp_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_mp_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_mp_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* tt_initialized: flag word: tt initialised on the client side */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_tt_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_tt_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* dp_tt_initialized: flag word: tt initialised in the data plane */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_dp_tt_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dp_tt_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_tt_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_tt_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_tt_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_tt_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* appl_sig_initialized: flag word: application signatures initialised on the client side */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_appl_sig_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_appl_sig_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_appl_sig_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* dp_appl_sig_initialized: flag word: application signatures initialised in the data plane */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_dp_appl_sig_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dp_appl_sig_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_appl_sig_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* tt_tc_filter_list_exmem_ptr: external memory of the traffic table's filter class list */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* tt_tc_agg_list_exmem_ptr: external memory of the traffic table's aggregation class list */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* tt_tc_learn_list_exmem_ptr: external memory of the traffic table's learn list */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* tc_list_head_chunk_h: handle: chunk pool of class list heads */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_tc_list_head_chunk_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_tc_list_head_chunk_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_list_head_chunk_h_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_list_head_chunk_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tc_list_head_chunk_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_list_head_chunk_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* tc_chunk_h: handle: chunk pool of traffic classes */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_tc_chunk_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_tc_chunk_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_chunk_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_chunk_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tc_chunk_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_chunk_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* ll_chunk_h: handle: chunk pool of learn lists */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_ll_chunk_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_ll_chunk_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ll_chunk_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ll_chunk_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_ll_chunk_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ll_chunk_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* appl_chunk_h: handle: chunk pool of applications */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_appl_chunk_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_appl_chunk_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_chunk_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_chunk_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_appl_chunk_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_chunk_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* cl_appl_sig_hash_ptr: the client side's application signature hash */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* dp_appl_sig_hash_h: handle: the data plane's application signature hash */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_dp_appl_sig_hash_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_dp_appl_sig_hash_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_hash_h_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_hash_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_appl_sig_hash_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_hash_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* appl_sig_chunk_h: handle: chunk pool of application signatures */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_appl_sig_chunk_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_appl_sig_chunk_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_chunk_h_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_chunk_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_appl_sig_chunk_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_chunk_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* appl_sig_hash_exmem: block of the application signature hash */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_lumo_info_appl_sig_hash_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_hash_exmem_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, lumo_tarn_exmem_info *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_appl_sig_hash_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_hash_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* mp_export_exmem: block of the mp export */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_lumo_info_mp_export_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_export_exmem_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, lumo_tarn_exmem_info *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_mp_export_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_export_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* tt_export_exmem: block of the tt export */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_lumo_info_tt_export_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_export_exmem_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, lumo_tarn_exmem_info *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_export_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_export_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);

/* num_static_exmems: elements in static_exmem */
LUMO_UI_TARN_API uint8_t *lumo_tarn_lumo_info_num_static_exmems_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_num_static_exmems_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);

/* static_exmem: processor's static memory blocks */
LUMO_UI_TARN_API lumo_tarn_static_exmem_info *lumo_tarn_lumo_info_static_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_static_exmem_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t index, lumo_tarn_static_exmem_info *value, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_static_exmem_set_cr(mirk_handle *h, lumo_tarn_lumo_info *object,
    uint32_t index, lumo_tarn_static_exmem_info *value, uint32_t copy_mode);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_static_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_static_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_static_exmem_state_flag_whole_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_static_exmem_state_flag_whole_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_static_exmem_state_flag_get_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t **out, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_static_exmem_state_flag_set_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint8_t *source, uint32_t length, uint32_t *err);

/* num_dyn_exmems: elements in dyn_exmem */
LUMO_UI_TARN_API uint8_t *lumo_tarn_lumo_info_num_dyn_exmems_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_num_dyn_exmems_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);

/* dyn_exmem: processor's dynamic memory blocks */
LUMO_UI_TARN_API lumo_tarn_dyn_exmem_info *lumo_tarn_lumo_info_dyn_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dyn_exmem_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t index, lumo_tarn_dyn_exmem_info *value, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dyn_exmem_set_cr(mirk_handle *h, lumo_tarn_lumo_info *object,
    uint32_t index, lumo_tarn_dyn_exmem_info *value, uint32_t copy_mode);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dyn_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dyn_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dyn_exmem_state_flag_whole_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dyn_exmem_state_flag_whole_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dyn_exmem_state_flag_get_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t **out, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dyn_exmem_state_flag_set_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint8_t *source, uint32_t length, uint32_t *err);

LUMO_UI_TARN_END

#endif
