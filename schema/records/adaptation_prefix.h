// Prefixes as the adaptation layer holds them.
#pragma once

#include "schema/model.h"

namespace tarn::schema {

inline constexpr Member lumo_tarn_pal_mp_prefix_members[] = {
    u64("id", "identifier of the prefix"),
    u8("flags", "flags of the prefix, eight bits: half the width of flags in lumo_tarn_dp_mp_prefix"),
    address("prefix", "network prefix"),
    u32("tc_list_size", "size of the prefix's class list"),
};
inline constexpr Record lumo_tarn_pal_mp_prefix{"lumo_tarn_pal_mp_prefix", "ac9e5fcfde50ba72b735168c77bba633",
                                                "one prefix of the adaptation layer", lumo_tarn_pal_mp_prefix_members,
                                                keyed_by("id").called("prefix")};

inline constexpr Member lumo_tarn_pal_mp_prefix_data_members[] = {
    boolean("show_header", "selection flag of the show request"),
    u32("total_prefixes", "total number of prefixes"),
    count8("num_prefixes", "number of elements in prefix_data"),
    many("prefix_data", lumo_tarn_pal_mp_prefix, "prefixes"),
};
inline constexpr Record lumo_tarn_pal_mp_prefix_data{"lumo_tarn_pal_mp_prefix_data", "241d16b4c4922cef34b251a15d1689cb",
                                                     "prefixes of the adaptation layer",
                                                     lumo_tarn_pal_mp_prefix_data_members};

}  // namespace tarn::schema
