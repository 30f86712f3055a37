// State of one processor on the client side.
#pragma once

#include "schema/enumerations.h"
#include "schema/model.h"
#include "schema/records/memory.h"

namespace tarn::schema {

inline constexpr Member lumo_tarn_lumo_info_members[] = {
    boolean("display_all", "whether to show everything"),
    boolean("display_fdb", "whether to show the fdb part"),
    boolean("display_ha", "whether to show the high-availability part"),
    boolean("display_wexa", "whether to show the wexa part"),
    boolean("display_handles", "whether to show the handles"),
    boolean("display_exmem", "whether to show the memory blocks"),
    boolean("display_init", "whether to show the initialization state"),
    u8("lumo_num", "number of this lumo processor"),
    u8("complex_num", "number of the complex that the processor belongs to"),
    enumerated("direction", lumo_tarn_lumo_direction_e, "direction of traffic that the processor serves"),
    u32("epoch", "epoch value of the processor"),
    u32("fdb_initialized", "flag word, set if the fdb is initialized"),
    one("fdb_base", lumo_tarn_fdb_base, "header and footer description of the fdb"),
    u16("chunk_overhead", "what a chunk takes beyond its content, in the unit of the processor"),
    u16("flow_info_mem_size", "memory that a flow information entry takes, in the unit of the processor"),
    u16("mp_cache_entry_size", "memory that an entry of the mp (prefix) cache takes, in the unit of the processor"),
    u16("tt_cache_entry_size",
        "memory that an entry of the tt (traffic table) cache takes, in the unit of the processor"),
    one("tarn_tt_tbl", lumo_tarn_fdb_mem_info, "memory of the feature's traffic table"),
    one("tarn_debug_flags", lumo_tarn_fdb_mem_info, "memory of the feature's debug flags"),
    enumerated("ha_state", lumo_tarn_ha_state_e, "high-availability state of the processor"),
    u32("ha_running", "flag word, set if high availability is running"),
    u32("ha_enabled", "flag word, set if high availability is enabled"),
    pointer("drv_conn_h", "handle of the connection to the driver"),
    pointer("exmem_h", "handle of the external memory"),
    u16("wexa_num_feat", "number of features in a wexa entry"),
    u16("wexa_feat_size", "memory that a feature takes in a wexa entry, in the unit of the processor"),
    pointer("in_wexa_h", "handle of the ingress wexa"),
    pointer("in_wexa_feat_h", "handle of the ingress wexa feature"),
    pointer("out_wexa_h", "handle of the egress wexa"),
    pointer("out_wexa_feat_h", "handle of the egress wexa feature"),
    u32("dp_hash_salt", "salt of the data plane's hash"),
    u32("flow_info_initialized", "flag word, set if flow information is initialized on the client side"),
    u32("dp_flow_info_initialized", "flag word, set if flow information is initialized in the data plane"),
    u32("mp_initialized", "flag word, set if mp is initialized on the client side"),
    u32("dp_mp_initialized", "flag word, set if mp is initialized in the data plane"),
    u32("tt_initialized", "flag word, set if tt is initialized on the client side"),
    u32("dp_tt_initialized", "flag word, set if tt is initialized in the data plane"),
    u32("appl_sig_initialized", "flag word, set if application signatures are initialized on the client side"),
    u32("dp_appl_sig_initialized", "flag word, set if application signatures are initialized in the data plane"),
    pointer("tt_tc_filter_list_exmem_ptr", "external memory of the traffic table's filter class list"),
    pointer("tt_tc_agg_list_exmem_ptr", "external memory of the traffic table's aggregation class list"),
    pointer("tt_tc_learn_list_exmem_ptr", "external memory of the traffic table's learn list"),
    pointer("tc_list_head_chunk_h", "handle of the chunk pool of class list heads"),
    pointer("tc_chunk_h", "handle of the chunk pool of traffic classes"),
    pointer("ll_chunk_h", "handle of the chunk pool of learn lists"),
    pointer("appl_chunk_h", "handle of the chunk pool of applications"),
    pointer("cl_appl_sig_hash_ptr", "application signature hash of the client side"),
    pointer("dp_appl_sig_hash_h", "handle of the data plane's application signature hash"),
    pointer("appl_sig_chunk_h", "handle of the chunk pool of application signatures"),
    one("appl_sig_hash_exmem", lumo_tarn_exmem_info, "block of the application signature hash"),
    one("mp_export_exmem", lumo_tarn_exmem_info, "block of the mp export"),
    one("tt_export_exmem", lumo_tarn_exmem_info, "block of the tt export"),
    count8("num_static_exmems", "number of elements in static_exmem"),
    many("static_exmem", lumo_tarn_static_exmem_info, "static memory blocks of the processor"),
    count8("num_dyn_exmems", "number of elements in dyn_exmem"),
    many("dyn_exmem", lumo_tarn_dyn_exmem_info, "dynamic memory blocks of the processor"),
};
inline constexpr Record lumo_tarn_lumo_info{"lumo_tarn_lumo_info", "96db130edec7ebbd06d4f894d4fe5c5c",
                                            "state of one processor", lumo_tarn_lumo_info_members,
                                            keyed_by("lumo_num").called("processor")};

inline constexpr Member lumo_tarn_lumo_info_list_members[] = {
    count32("num_lumos", "number of elements in lumo_info"),
    many("lumo_info", lumo_tarn_lumo_info, "one element for each processor"),
};
inline constexpr Record lumo_tarn_lumo_info_list{"lumo_tarn_lumo_info_list", "feae474225863ddfc8b3a23c79e311d4",
                                                 "processors of the system", lumo_tarn_lumo_info_list_members};

}  // namespace tarn::schema
