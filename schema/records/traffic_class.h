// Traffic classes and the application entries that they refer to.
#pragma once

#include "schema/model.h"
#include "schema/records/memory.h"

namespace tarn::schema {

inline constexpr Member lumo_tarn_dp_appl_members[] = {
    one("exmem_info", lumo_tarn_exmem_info, "location of the entry in memory"),
    u8("type", "type of the application entry"),
    u16("id", "identifier of the application entry"),
    u16("tarn_kesh_id", "tarn feature's identifier of the kesh application"),
    pointer("next_ptr", "link to the next entry in the data plane"),
};
inline constexpr Record lumo_tarn_dp_appl{"lumo_tarn_dp_appl", "79672243f138925a1adfdb7e012965bd",
                                          "one application entry in the data plane", lumo_tarn_dp_appl_members,
                                          keyed_by("id").called("application")};

inline constexpr Member lumo_tarn_dp_tc_members[] = {
    one("exmem_info", lumo_tarn_exmem_info, "location of the traffic class in memory"),
    address("src_prefix", "source prefix of the class"),
    address("dst_prefix", "destination prefix of the class"),
    u8("proto", "protocol number to match"),
    u8("tos", "type-of-service value to match"),
    u16("flags", "flags of the class, sixteen bits"),
    u8("bit_flags", "second, separate set of flags, eight bits"),
    u16("src_port_min", "low end of the source port range"),
    u16("src_port_max", "high end of the source port range"),
    u16("dst_port_min", "low end of the destination port range"),
    u16("dst_port_max", "high end of the destination port range"),
    u16("src_port_opr", "operator applied to the source port range"),
    u16("dst_port_opr", "operator applied to the destination port range"),
    pointer("next_ptr", "link to the next class in the data plane"),
    pointer("appl_data_ptr", "location of the application data in the data plane"),
    one("appl", lumo_tarn_dp_appl, "application entry of the class"),
    u32("id", "identifier of the class"),
};
inline constexpr Record lumo_tarn_dp_tc{"lumo_tarn_dp_tc", "ed7168bceeaa74618db6b05286fecacb", "one traffic class",
                                        lumo_tarn_dp_tc_members, keyed_by("id").called("class")};

inline constexpr Member lumo_tarn_dp_tc_list_members[] = {
    count32("num_tcs", "number of elements in tc_list"),
    many("tc_list", lumo_tarn_dp_tc, "traffic classes"),
};
inline constexpr Record lumo_tarn_dp_tc_list{"lumo_tarn_dp_tc_list", "e418727cd10ea7443c8bbbe9816b285b",
                                             "counted list of traffic classes", lumo_tarn_dp_tc_list_members};

inline constexpr Member lumo_tarn_dp_appl_list_members[] = {
    count32("num_appls", "number of elements in appl_list"),
    many("appl_list", lumo_tarn_dp_appl, "application entries"),
};
inline constexpr Record lumo_tarn_dp_appl_list{"lumo_tarn_dp_appl_list", "552017bbbbd8bdc890695d1686395706",
                                               "counted list of application entries", lumo_tarn_dp_appl_list_members};

}  // namespace tarn::schema
