// The ten plain messages, in the order of the type table.
#pragma once

#include "schema/records/adaptation_prefix.h"
#include "schema/records/application_signature.h"
#include "schema/records/class_prefix.h"
#include "schema/records/client_application.h"
#include "schema/records/debug_setting.h"
#include "schema/records/global.h"
#include "schema/records/interface.h"
#include "schema/records/prefix.h"
#include "schema/records/traffic_table.h"

namespace tarn::schema {

inline constexpr Message lumo_tarn_debug_setting_msg{"lumo_tarn_debug_setting_msg", "c6d03c8ee80cba20dd871f4a31ff1bf6",
                                                     lumo_tarn_debug_setting};
inline constexpr Message lumo_tarn_dp_debug_setting_msg{
    "lumo_tarn_dp_debug_setting_msg", "34856d1c3d8fef9816f26f688ed7fe82", lumo_tarn_dp_debug_setting_data};
inline constexpr Message lumo_tarn_cl_appl_msg{"lumo_tarn_cl_appl_msg", "25175b62ed9584492b982f102b03e841",
                                               lumo_tarn_cl_appl_data};
inline constexpr Message lumo_tarn_cl_cfg_msg{"lumo_tarn_cl_cfg_msg", "42d69f323527323cf9c127b08c66e15b",
                                              lumo_tarn_cl_cfg_data};
inline constexpr Message lumo_tarn_dp_intf_msg{"lumo_tarn_dp_intf_msg", "6f7e34b9c031660199b46f4894fce5e0",
                                               lumo_tarn_dp_intf_data};
inline constexpr Message lumo_tarn_dp_appl_msg{"lumo_tarn_dp_appl_msg", "9505c52537a7401aec949d6f6aa29842",
                                               lumo_tarn_dp_appl_data};
inline constexpr Message lumo_tarn_dp_tt_msg{"lumo_tarn_dp_tt_msg", "c0a6cb349ac9f1ecb8fcc7a7661b5791",
                                             lumo_tarn_dp_tt_table_data};
inline constexpr Message lumo_tarn_dp_mp_tc_msg{"lumo_tarn_dp_mp_tc_msg", "61eefb66d6770c166e479215c04e9c0b",
                                                lumo_tarn_dp_mp_tc_prefix_data};
inline constexpr Message lumo_tarn_dp_mp_prefix_msg{"lumo_tarn_dp_mp_prefix_msg", "53f56439f7d5c7c1f09d57588594ccb1",
                                                    lumo_tarn_dp_mp_prefix_data};
inline constexpr Message lumo_tarn_pal_mp_prefix_msg{"lumo_tarn_pal_mp_prefix_msg", "7c2eca33cf0a7bdd8c148632750fbea6",
                                                     lumo_tarn_pal_mp_prefix_data};

}  // namespace tarn::schema
