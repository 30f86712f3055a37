// State of the feature on one interface.
#pragma once

#include "schema/model.h"

namespace tarn::schema {

inline constexpr Member lumo_tarn_dp_wexa_info_members[] = {
    u32("flags", "flags of the wexa entry"),
};
inline constexpr Record lumo_tarn_dp_wexa_info{"lumo_tarn_dp_wexa_info", "f787e24cabb6e71d7c7a1a55adc9c035",
                                               "flags of a wexa entry", lumo_tarn_dp_wexa_info_members};

inline constexpr Member lumo_tarn_dp_lumo_wexa_info_members[] = {
    u8("lumo_num", "number of the lumo processor"),
    boolean("in_wexa_is_valid", "whether in_wexa holds a value"),
    one("in_wexa", lumo_tarn_dp_wexa_info, "ingress entry"),
    boolean("out_wexa_is_valid", "whether out_wexa holds a value"),
    one("out_wexa", lumo_tarn_dp_wexa_info, "egress entry"),
};
inline constexpr Record lumo_tarn_dp_lumo_wexa_info{"lumo_tarn_dp_lumo_wexa_info", "c849e2fb6aba5a95d1c584169eb76386",
                                                    "two wexa entries of one processor",
                                                    lumo_tarn_dp_lumo_wexa_info_members};

inline constexpr Member lumo_tarn_dp_intf_data_members[] = {
    boolean("intf_name_is_valid", "whether intf_name holds a value"),
    length("intf_name_len", "length of intf_name in bytes"),
    string("intf_name", "name of the interface"),
    boolean("in_lumo_wexa_is_valid", "whether in_lumo_wexa holds a value"),
    one("in_lumo_wexa", lumo_tarn_dp_lumo_wexa_info, "ingress side"),
    boolean("out_lumo_wexa_is_valid", "whether out_lumo_wexa holds a value"),
    one("out_lumo_wexa", lumo_tarn_dp_lumo_wexa_info, "egress side"),
};
inline constexpr Record lumo_tarn_dp_intf_data{"lumo_tarn_dp_intf_data", "49fdfe5214d816701b9520f8fc870db7",
                                               "state of the feature on one interface", lumo_tarn_dp_intf_data_members};

}  // namespace tarn::schema
