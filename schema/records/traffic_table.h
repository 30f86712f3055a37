// Traffic tables of the data plane, by processor.
#pragma once

#include "schema/model.h"
#include "schema/records/learn_list.h"
#include "schema/records/memory.h"
#include "schema/records/traffic_class.h"

namespace tarn::schema {

inline constexpr Member lumo_tarn_dp_tt_table_members[] = {
    boolean("show_header", "whether to show the table's header"),
    boolean("show_agg_list", "whether to show the aggregation class list"),
    boolean("show_filter_list", "whether to show the filter class list"),
    boolean("show_ll_header", "whether to show the header of the learn list"),
    boolean("show_ll_list", "whether to show the learn list itself"),
    boolean("display_all", "whether to show everything"),
    boolean("display_tc", "whether to show the traffic classes"),
    boolean("display_ll", "whether to show the learn lists"),
    one("fdb_info", lumo_tarn_fdb_mem_info, "fdb memory of the table"),
    u8("lumo_num", "number of the lumo processor that holds the table"),
    u8("state", "state of the table: a code of the data plane"),
    u8("learn_type", "how the table learns: a code of the data plane"),
    u8("agg_type", "how the table aggregates: a code of the data plane"),
    u8("min_mask", "minimum mask length"),
    u8("tt_bit_flags", "flags of the table"),
    u16("aging_type", "how entries of the table age: a code of the data plane"),
    u32("num_prefixes", "number of prefixes in the table"),
    u32("duration", "duration, in the data plane's unit of time"),
    u32("start_time", "start time, in the data plane's unit of time"),
    u32("end_time", "end time, in the data plane's unit of time"),
    pointer("agg_tc_list_ptr", "location of the aggregation class list in the data plane"),
    one("agg_tc_list", lumo_tarn_dp_tc_list, "aggregation classes"),
    pointer("filter_tc_list_ptr", "location of the filter class list in the data plane"),
    one("filter_tc_list", lumo_tarn_dp_tc_list, "filter classes"),
    pointer("learn_list_ptr", "location of the learn list in the data plane"),
    one("learn_list", lumo_tarn_dp_learn_list, "learn list definitions of the table"),
    u32("key_mask", "mask of the table's key"),
    pointer("thruput_head_ptr", "head of the throughput entries in the data plane"),
    u32("thruput_entries", "number of throughput entries"),
    pointer("delay_head_ptr", "head of the delay entries in the data plane"),
    u32("delay_entries", "number of delay entries"),
};
inline constexpr Record lumo_tarn_dp_tt_table{"lumo_tarn_dp_tt_table", "9035b091bd9713f7567017cbe2e56f08",
                                              "one traffic table of one processor", lumo_tarn_dp_tt_table_members,
                                              keyed_by("lumo_num").called("processor")};

inline constexpr Member lumo_tarn_dp_tt_table_data_members[] = {
    boolean("show_header", "selection flag of the show request"),
    count8("num_lumos", "number of elements in lumo_data"),
    many("lumo_data", lumo_tarn_dp_tt_table, "tables, one for each processor"),
};
inline constexpr Record lumo_tarn_dp_tt_table_data{"lumo_tarn_dp_tt_table_data", "f1ed07c033b05e484505be542bc9308f",
                                                   "one traffic table for each processor",
                                                   lumo_tarn_dp_tt_table_data_members};

}  // namespace tarn::schema
