// Definitions of the learn lists of a traffic table.
#pragma once

#include "schema/model.h"
#include "schema/records/memory.h"
#include "schema/records/traffic_class.h"

namespace tarn::schema {

inline constexpr Member lumo_tarn_dp_ll_spec_members[] = {
    boolean("display_all", "whether to show everything"),
    boolean("display_tc", "whether to show the traffic classes"),
    boolean("display_appl", "whether to show the applications"),
    one("exmem_info", lumo_tarn_exmem_info, "location of the definition in memory"),
    u32("id", "identifier of the definition"),
    u8("min_mask", "minimum mask length"),
    u8("agg_type", "how the list aggregates: a code of the data plane"),
    u8("learn_type", "how the list learns: a code of the data plane"),
    u8("ll_type", "kind of learn list: a code of the data plane"),
    u32("num_prefixes", "number of prefixes"),
    pointer("filter_tc_list_ptr", "location of the filter list in the data plane"),
    one("filter_tc_list", lumo_tarn_dp_tc_list, "filter traffic classes"),
    pointer("acl_tc_list_ptr", "location of the access-list classes in the data plane"),
    one("acl_tc_list", lumo_tarn_dp_tc_list, "access-list traffic classes"),
    pointer("appl_list_ptr", "location of the application list in the data plane"),
    one("appl_list", lumo_tarn_dp_appl_list, "applications"),
    pointer("next_ptr", "link to the next definition"),
    pointer("head_ptr", "head of the entries that num_entries counts"),
    u32("num_entries", "number of entries that start at head_ptr"),
    u32("heap_max_elements", "capacity of the definition's heap"),
    u32("heap_size", "current size of the heap"),
    pointer("heap_compare_func", "value of the heap's comparison routine as a 64-bit number"),
    pointer("heap_elements_ptr", "location of the heap's elements"),
    boolean("show_ll_comm", "selection flag of the show command"),
};
inline constexpr Record lumo_tarn_dp_ll_spec{"lumo_tarn_dp_ll_spec", "1a46d1ad245ecd8ddb03940c9e78474e",
                                             "definition of one learn list", lumo_tarn_dp_ll_spec_members,
                                             keyed_by("id").called("learn list")};

inline constexpr Member lumo_tarn_dp_learn_list_members[] = {
    count32("num_ll_specs", "number of elements in ll_spec_list"),
    many("ll_spec_list", lumo_tarn_dp_ll_spec, "learn list definitions"),
};
inline constexpr Record lumo_tarn_dp_learn_list{"lumo_tarn_dp_learn_list", "42d51729efe0ba6f65a2b03426858912",
                                                "learn list definitions of one traffic table",
                                                lumo_tarn_dp_learn_list_members};

}  // namespace tarn::schema
