// Prefixes of the data plane, by looked-up prefix and complex.
#pragma once

#include "schema/model.h"

namespace tarn::schema {

inline constexpr Member lumo_tarn_dp_mp_prefix_members[] = {
    u8("complex_num", "number of the complex that this entry describes"),
    address("prefix", "prefix as the complex holds it"),
    u16("flags", "flags of the prefix, sixteen bits"),
    pointer("tc_list_ptr", "location of the prefix's class list in the data plane"),
};
inline constexpr Record lumo_tarn_dp_mp_prefix{"lumo_tarn_dp_mp_prefix", "877f4706728a7ef61240d5ada90d521a",
                                               "one prefix as one complex holds it", lumo_tarn_dp_mp_prefix_members,
                                               keyed_by("complex_num").called("complex")};

inline constexpr Member lumo_tarn_dp_mp_prefix_complex_data_members[] = {
    address("lookup_prefix", "prefix that was looked up"),
    count8("num_complexes", "number of elements in complex_data"),
    many("complex_data", lumo_tarn_dp_mp_prefix, "entries, one for each complex"),
};
inline constexpr Record lumo_tarn_dp_mp_prefix_complex_data{
    "lumo_tarn_dp_mp_prefix_complex_data", "7b6d292586e45fb1cd81d6683d42da19", "one looked-up prefix with its entries",
    lumo_tarn_dp_mp_prefix_complex_data_members, keyed_by("lookup_prefix").called("prefix")};

inline constexpr Member lumo_tarn_dp_mp_prefix_data_members[] = {
    boolean("show_header", "selection flag of the show request"),
    count8("num_prefixes", "number of elements in prefix_data"),
    many("prefix_data", lumo_tarn_dp_mp_prefix_complex_data, "looked-up prefixes"),
};
inline constexpr Record lumo_tarn_dp_mp_prefix_data{"lumo_tarn_dp_mp_prefix_data", "eb7c2027f5bf174d47e3e2d2c4504a6f",
                                                    "looked-up prefixes", lumo_tarn_dp_mp_prefix_data_members};

}  // namespace tarn::schema
