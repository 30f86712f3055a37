// The fixed orders of the schema, which the type table, the catalogue and all generated files follow.
#pragma once

#include <array>

#include "schema/bundles.h"
#include "schema/enumerations.h"
#include "schema/lint.h"
#include "schema/records/adaptation_prefix.h"
#include "schema/records/application_signature.h"
#include "schema/records/class_prefix.h"
#include "schema/records/client_application.h"
#include "schema/records/debug_setting.h"
#include "schema/records/global.h"
#include "schema/records/interface.h"
#include "schema/records/learn_list.h"
#include "schema/records/memory.h"
#include "schema/records/prefix.h"
#include "schema/records/processor.h"
#include "schema/records/traffic_class.h"
#include "schema/records/traffic_table.h"

namespace tarn::schema {

inline constexpr std::array records{
    &lumo_tarn_exmem_info,
    &lumo_tarn_fdb_base,
    &lumo_tarn_fdb_mem_info,
    &lumo_tarn_exmem_info_wrapper,
    &lumo_tarn_dp_appl,
    &lumo_tarn_dp_tc,
    &lumo_tarn_dp_tc_list,
    &lumo_tarn_dp_appl_list,
    &lumo_tarn_dp_ll_spec,
    &lumo_tarn_dp_learn_list,
    &lumo_tarn_dp_debug_setting,
    &lumo_tarn_debug_setting,
    &lumo_tarn_dp_debug_setting_data,
    &lumo_tarn_cl_kesh_appl,
    &lumo_tarn_cl_appl_data,
    &lumo_tarn_static_exmem_info,
    &lumo_tarn_dyn_exmem_info,
    &lumo_tarn_lumo_info,
    &lumo_tarn_lumo_info_list,
    &lumo_tarn_global_info,
    &lumo_tarn_cl_cfg_data,
    &lumo_tarn_dp_wexa_info,
    &lumo_tarn_dp_lumo_wexa_info,
    &lumo_tarn_dp_intf_data,
    &lumo_tarn_dp_appl_sig,
    &lumo_tarn_dp_appl_cfg,
    &lumo_tarn_dp_appl_data,
    &lumo_tarn_dp_tt_table,
    &lumo_tarn_dp_tt_table_data,
    &lumo_tarn_dp_mp_tc_prefix,
    &lumo_tarn_dp_mp_tc_prefix_lumo_data,
    &lumo_tarn_dp_mp_tc_prefix_data,
    &lumo_tarn_dp_mp_prefix,
    &lumo_tarn_dp_mp_prefix_complex_data,
    &lumo_tarn_dp_mp_prefix_data,
    &lumo_tarn_pal_mp_prefix,
    &lumo_tarn_pal_mp_prefix_data,
};

inline constexpr std::array enumerations{
    &lumo_tarn_ha_state_e,
    &lumo_tarn_lumo_direction_e,
    &lumo_tarn_mem_desc_e,
};

inline constexpr std::array messages{
    &lumo_tarn_debug_setting_msg, &lumo_tarn_dp_debug_setting_msg, &lumo_tarn_cl_appl_msg, &lumo_tarn_cl_cfg_msg,
    &lumo_tarn_dp_intf_msg,       &lumo_tarn_dp_appl_msg,          &lumo_tarn_dp_tt_msg,   &lumo_tarn_dp_mp_tc_msg,
    &lumo_tarn_dp_mp_prefix_msg,  &lumo_tarn_pal_mp_prefix_msg,
};

inline constexpr std::array bundles{
    &lumo_tarn_pal_debug_rsp,
    &lumo_tarn_cl_debug_rsp,
    &lumo_tarn_dp_debug_rsp,
    &lumo_tarn_cl_appl_cfg_rsp,
    &lumo_tarn_cl_cfg_rsp,
    &lumo_tarn_dp_intf_rsp,
    &lumo_tarn_dp_appl_cfg_rsp,
    &lumo_tarn_dp_tt_cfg_rsp,
    &lumo_tarn_dp_mp_tc_cfg_rsp,
    &lumo_tarn_dp_mp_prefix_cfg_rsp,
    &lumo_tarn_pal_mp_prefix_cfg_rsp,
};

inline constexpr std::string_view module_name = "lumo_ui_tarn";

// If one of these fails, the schema test names the record, the member and the rule.
static_assert(!lint_each(records) && !lint_identities(records));
static_assert(!lint_each(enumerations) && !lint_identities(enumerations));
static_assert(!lint_identities(messages));

}  // namespace tarn::schema
