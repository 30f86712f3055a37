/// @file
/// frame_parts.hpp - the parts of each record's frame, for the tests of admission.hpp.
// Generated from the schema; edit the tables there and run tools/regenerate.
#ifndef LUMO_UI_TARN_FRAME_PARTS_HPP
#define LUMO_UI_TARN_FRAME_PARTS_HPP

#include <lumo_ui_tarn/admission.hpp>

/// A table for each record, with the name of the record.
namespace lumo_ui_tarn::frame_parts {

/// @cond tables
inline constexpr frame_part ip_address[] = {
    {frame_part::values, 7, 20, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_exmem_info[] = {
    {frame_part::values, 4, 28, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_fdb_base[] = {
    {frame_part::values, 5, 8, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_fdb_mem_info[] = {
    {frame_part::values, 3, 16, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_exmem_info_wrapper[] = {
    {frame_part::record, 0, 0, lumo_tarn_exmem_info, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_appl[] = {
    {frame_part::record, 0, 0, lumo_tarn_exmem_info, nullptr},
    {frame_part::values, 4, 13, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_tc[] = {
    {frame_part::record, 0, 0, lumo_tarn_exmem_info, nullptr},
    {frame_part::record, 0, 0, ip_address, nullptr},
    {frame_part::record, 0, 0, ip_address, nullptr},
    {frame_part::values, 12, 33, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_dp_appl, nullptr},
    {frame_part::values, 1, 4, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_tc_list[] = {
    {frame_part::array, 0, 4, lumo_tarn_dp_tc, "lumo_tarn_dp_tc_list.tc_list"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_appl_list[] = {
    {frame_part::array, 0, 4, lumo_tarn_dp_appl, "lumo_tarn_dp_appl_list.appl_list"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_ll_spec[] = {
    {frame_part::values, 3, 6, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_exmem_info, nullptr},
    {frame_part::values, 7, 20, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_dp_tc_list, nullptr},
    {frame_part::values, 1, 8, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_dp_tc_list, nullptr},
    {frame_part::values, 1, 8, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_dp_appl_list, nullptr},
    {frame_part::values, 8, 46, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_learn_list[] = {
    {frame_part::array, 0, 4, lumo_tarn_dp_ll_spec, "lumo_tarn_dp_learn_list.ll_spec_list"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_debug_setting[] = {
    {frame_part::values, 9, 33, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_debug_setting[] = {
    {frame_part::values, 4, 16, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_debug_setting_data[] = {
    {frame_part::array, 0, 1, lumo_tarn_dp_debug_setting, "lumo_tarn_dp_debug_setting_data.lumo_data"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_cl_kesh_appl[] = {
    {frame_part::string, 0, 2, nullptr, "lumo_tarn_cl_kesh_appl.proto_name"},
    {frame_part::string, 0, 2, nullptr, "lumo_tarn_cl_kesh_appl.sub_proto_name"},
    {frame_part::values, 2, 4, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_cl_appl_data[] = {
    {frame_part::values, 1, 2, nullptr, nullptr},
    {frame_part::array, 0, 4, lumo_tarn_cl_kesh_appl, "lumo_tarn_cl_appl_data.kesh_appl"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_static_exmem_info[] = {
    {frame_part::values, 2, 9, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_exmem_info, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dyn_exmem_info[] = {
    {frame_part::values, 2, 13, nullptr, nullptr},
    {frame_part::array, 0, 4, lumo_tarn_exmem_info_wrapper, "lumo_tarn_dyn_exmem_info.exmem"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_lumo_info[] = {
    {frame_part::values, 12, 29, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_fdb_base, nullptr},
    {frame_part::values, 4, 8, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_fdb_mem_info, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_fdb_mem_info, nullptr},
    {frame_part::values, 30, 181, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_exmem_info, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_exmem_info, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_exmem_info, nullptr},
    {frame_part::array, 0, 1, lumo_tarn_static_exmem_info, "lumo_tarn_lumo_info.static_exmem"},
    {frame_part::array, 0, 1, lumo_tarn_dyn_exmem_info, "lumo_tarn_lumo_info.dyn_exmem"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_lumo_info_list[] = {
    {frame_part::array, 0, 4, lumo_tarn_lumo_info, "lumo_tarn_lumo_info_list.lumo_info"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_global_info[] = {
    {frame_part::values, 13, 52, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_lumo_info_list, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_cl_cfg_data[] = {
    {frame_part::values, 2, 4, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_global_info, nullptr},
    {frame_part::values, 4, 24, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_wexa_info[] = {
    {frame_part::values, 1, 4, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_lumo_wexa_info[] = {
    {frame_part::values, 2, 3, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_dp_wexa_info, nullptr},
    {frame_part::values, 1, 2, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_dp_wexa_info, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_intf_data[] = {
    {frame_part::values, 1, 2, nullptr, nullptr},
    {frame_part::string, 0, 2, nullptr, "lumo_tarn_dp_intf_data.intf_name"},
    {frame_part::values, 1, 2, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_dp_lumo_wexa_info, nullptr},
    {frame_part::values, 1, 2, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_dp_lumo_wexa_info, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_appl_sig[] = {
    {frame_part::record, 0, 0, lumo_tarn_exmem_info, nullptr},
    {frame_part::values, 2, 8, nullptr, nullptr},
    {frame_part::string, 0, 2, nullptr, "lumo_tarn_dp_appl_sig.appl_name"},
    {frame_part::values, 9, 24, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_appl_cfg[] = {
    {frame_part::values, 2, 3, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_exmem_info, nullptr},
    {frame_part::array, 0, 4, lumo_tarn_dp_appl_sig, "lumo_tarn_dp_appl_cfg.sig_list"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_appl_data[] = {
    {frame_part::values, 1, 2, nullptr, nullptr},
    {frame_part::array, 0, 1, lumo_tarn_dp_appl_cfg, "lumo_tarn_dp_appl_data.lumo_data"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_tt_table[] = {
    {frame_part::values, 8, 16, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_fdb_mem_info, nullptr},
    {frame_part::values, 12, 32, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_dp_tc_list, nullptr},
    {frame_part::values, 1, 8, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_dp_tc_list, nullptr},
    {frame_part::values, 1, 8, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_dp_learn_list, nullptr},
    {frame_part::values, 5, 28, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_tt_table_data[] = {
    {frame_part::values, 1, 2, nullptr, nullptr},
    {frame_part::array, 0, 1, lumo_tarn_dp_tt_table, "lumo_tarn_dp_tt_table_data.lumo_data"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_mp_tc_prefix[] = {
    {frame_part::values, 2, 9, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_exmem_info, nullptr},
    {frame_part::values, 1, 8, nullptr, nullptr},
    {frame_part::record, 0, 0, lumo_tarn_dp_tc_list, nullptr},
    {frame_part::values, 1, 2, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_mp_tc_prefix_lumo_data[] = {
    {frame_part::record, 0, 0, ip_address, nullptr},
    {frame_part::array, 0, 1, lumo_tarn_dp_mp_tc_prefix, "lumo_tarn_dp_mp_tc_prefix_lumo_data.lumo_data"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_mp_tc_prefix_data[] = {
    {frame_part::values, 2, 6, nullptr, nullptr},
    {frame_part::array, 0, 1, lumo_tarn_dp_mp_tc_prefix_lumo_data, "lumo_tarn_dp_mp_tc_prefix_data.prefix_data"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_mp_prefix[] = {
    {frame_part::values, 1, 1, nullptr, nullptr},
    {frame_part::record, 0, 0, ip_address, nullptr},
    {frame_part::values, 2, 10, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_mp_prefix_complex_data[] = {
    {frame_part::record, 0, 0, ip_address, nullptr},
    {frame_part::array, 0, 1, lumo_tarn_dp_mp_prefix, "lumo_tarn_dp_mp_prefix_complex_data.complex_data"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_dp_mp_prefix_data[] = {
    {frame_part::values, 1, 2, nullptr, nullptr},
    {frame_part::array, 0, 1, lumo_tarn_dp_mp_prefix_complex_data, "lumo_tarn_dp_mp_prefix_data.prefix_data"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_pal_mp_prefix[] = {
    {frame_part::values, 2, 9, nullptr, nullptr},
    {frame_part::record, 0, 0, ip_address, nullptr},
    {frame_part::values, 1, 4, nullptr, nullptr},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
inline constexpr frame_part lumo_tarn_pal_mp_prefix_data[] = {
    {frame_part::values, 2, 6, nullptr, nullptr},
    {frame_part::array, 0, 1, lumo_tarn_pal_mp_prefix, "lumo_tarn_pal_mp_prefix_data.prefix_data"},
    {frame_part::end, 0, 0, nullptr, nullptr},
};
/// @endcond

}  // namespace lumo_ui_tarn::frame_parts

#endif
