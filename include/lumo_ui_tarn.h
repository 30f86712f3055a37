/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_ui_tarn.h - umbrella header: records, enumerations, messages and bundles of the traffic-aware
 * routing feature tarn. Start with lumo_ui_tarn/families.h, which describes the operations; the other
 * headers list names. The library runs on a runtime, which mirk/mirk.h declares. */
#ifndef LUMO_UI_TARN_H
#define LUMO_UI_TARN_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/families.h>

#include <lumo_ui_tarn/bundles/lumo_tarn_cl_appl_cfg_rsp.h>
#include <lumo_ui_tarn/bundles/lumo_tarn_cl_cfg_rsp.h>
#include <lumo_ui_tarn/bundles/lumo_tarn_cl_debug_rsp.h>
#include <lumo_ui_tarn/bundles/lumo_tarn_dp_appl_cfg_rsp.h>
#include <lumo_ui_tarn/bundles/lumo_tarn_dp_debug_rsp.h>
#include <lumo_ui_tarn/bundles/lumo_tarn_dp_intf_rsp.h>
#include <lumo_ui_tarn/bundles/lumo_tarn_dp_mp_prefix_cfg_rsp.h>
#include <lumo_ui_tarn/bundles/lumo_tarn_dp_mp_tc_cfg_rsp.h>
#include <lumo_ui_tarn/bundles/lumo_tarn_dp_tt_cfg_rsp.h>
#include <lumo_ui_tarn/bundles/lumo_tarn_pal_debug_rsp.h>
#include <lumo_ui_tarn/bundles/lumo_tarn_pal_mp_prefix_cfg_rsp.h>

#include <lumo_ui_tarn/enumerations/lumo_tarn_ha_state_e.h>
#include <lumo_ui_tarn/enumerations/lumo_tarn_lumo_direction_e.h>
#include <lumo_ui_tarn/enumerations/lumo_tarn_mem_desc_e.h>

#include <lumo_ui_tarn/messages/lumo_tarn_cl_appl_msg.h>
#include <lumo_ui_tarn/messages/lumo_tarn_cl_cfg_msg.h>
#include <lumo_ui_tarn/messages/lumo_tarn_debug_setting_msg.h>
#include <lumo_ui_tarn/messages/lumo_tarn_dp_appl_msg.h>
#include <lumo_ui_tarn/messages/lumo_tarn_dp_debug_setting_msg.h>
#include <lumo_ui_tarn/messages/lumo_tarn_dp_intf_msg.h>
#include <lumo_ui_tarn/messages/lumo_tarn_dp_mp_prefix_msg.h>
#include <lumo_ui_tarn/messages/lumo_tarn_dp_mp_tc_msg.h>
#include <lumo_ui_tarn/messages/lumo_tarn_dp_tt_msg.h>
#include <lumo_ui_tarn/messages/lumo_tarn_pal_mp_prefix_msg.h>

#include <lumo_ui_tarn/module.h>

#include <lumo_ui_tarn/records/lumo_tarn_cl_appl_data.h>
#include <lumo_ui_tarn/records/lumo_tarn_cl_cfg_data.h>
#include <lumo_ui_tarn/records/lumo_tarn_cl_kesh_appl.h>
#include <lumo_ui_tarn/records/lumo_tarn_debug_setting.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_appl.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_appl_cfg.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_appl_data.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_appl_list.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_appl_sig.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_debug_setting.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_debug_setting_data.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_intf_data.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_learn_list.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_ll_spec.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_lumo_wexa_info.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_mp_prefix.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_mp_prefix_complex_data.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_mp_prefix_data.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_mp_tc_prefix.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_mp_tc_prefix_data.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_mp_tc_prefix_lumo_data.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_tc.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_tc_list.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_tt_table.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_tt_table_data.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_wexa_info.h>
#include <lumo_ui_tarn/records/lumo_tarn_dyn_exmem_info.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info_wrapper.h>
#include <lumo_ui_tarn/records/lumo_tarn_fdb_base.h>
#include <lumo_ui_tarn/records/lumo_tarn_fdb_mem_info.h>
#include <lumo_ui_tarn/records/lumo_tarn_global_info.h>
#include <lumo_ui_tarn/records/lumo_tarn_lumo_info.h>
#include <lumo_ui_tarn/records/lumo_tarn_lumo_info_list.h>
#include <lumo_ui_tarn/records/lumo_tarn_pal_mp_prefix.h>
#include <lumo_ui_tarn/records/lumo_tarn_pal_mp_prefix_data.h>
#include <lumo_ui_tarn/records/lumo_tarn_static_exmem_info.h>

#endif
