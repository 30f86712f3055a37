// Traffic classes of prefixes, by prefix and processor.
#pragma once

#include "schema/model.h"
#include "schema/records/memory.h"
#include "schema/records/traffic_class.h"

namespace tarn::schema {

inline constexpr Member lumo_tarn_dp_mp_tc_prefix_members[] = {
    u8("lumo_num", "number of the lumo processor that this entry describes"),
    pointer("cl_addr", "the entry's address on the client side"),
    one("tc_list_head", lumo_tarn_exmem_info, "location of the head of the class list in memory"),
    pointer("tc_list_head_next", "link of the list head to its successor in the data plane"),
    one("tc_list", lumo_tarn_dp_tc_list, "traffic classes"),
    boolean("show_pfx_comm", "selection flag of the show request"),
};
inline constexpr Record lumo_tarn_dp_mp_tc_prefix{
    "lumo_tarn_dp_mp_tc_prefix", "fbe004f62f1d7cc30a8c75dac41c968e", "traffic classes of one prefix on one processor",
    lumo_tarn_dp_mp_tc_prefix_members, keyed_by("lumo_num").called("processor")};

inline constexpr Member lumo_tarn_dp_mp_tc_prefix_lumo_data_members[] = {
    address("prefix", "network prefix"),
    count8("num_lumos", "number of elements in lumo_data"),
    many("lumo_data", lumo_tarn_dp_mp_tc_prefix, "entries, one for each processor"),
};
inline constexpr Record lumo_tarn_dp_mp_tc_prefix_lumo_data{
    "lumo_tarn_dp_mp_tc_prefix_lumo_data", "711360b81716cdfdc00a905deaa73014", "one prefix with its entries",
    lumo_tarn_dp_mp_tc_prefix_lumo_data_members, keyed_by("prefix").called("prefix")};

inline constexpr Member lumo_tarn_dp_mp_tc_prefix_data_members[] = {
    boolean("show_header", "selection flag of the show request"),
    u32("total_prefixes", "total number of prefixes"),
    count8("num_prefixes", "number of elements in prefix_data"),
    many("prefix_data", lumo_tarn_dp_mp_tc_prefix_lumo_data, "prefixes"),
};
inline constexpr Record lumo_tarn_dp_mp_tc_prefix_data{
    "lumo_tarn_dp_mp_tc_prefix_data", "4b537616bd52ae9760915de7a444c97a", "prefixes with their traffic classes",
    lumo_tarn_dp_mp_tc_prefix_data_members};

}  // namespace tarn::schema
