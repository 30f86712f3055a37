// The bundles. Each admits one message of this module and has three control messages.
#pragma once

#include "schema/messages.h"

namespace tarn::schema {

inline constexpr Bundle lumo_tarn_pal_debug_rsp{
    .name = "lumo_tarn_pal_debug_rsp",
    .message = lumo_tarn_debug_setting_msg,
    .start = "6994123b36ab4d43c036c42213a03676",
    .abort = "878246396aafa8b5afd47256290a5153",
    .commit = "6994de2dbbeb3cafd4247df9b5e9d13b",
};
inline constexpr Bundle lumo_tarn_cl_debug_rsp{
    .name = "lumo_tarn_cl_debug_rsp",
    .message = lumo_tarn_debug_setting_msg,
    .start = "9fb0f24091877ce4245077bafa7d22bb",
    .abort = "681de773ba26f3f70b89987226bda515",
    .commit = "e09955eeb03a2e3b99108050f30464a2",
};
inline constexpr Bundle lumo_tarn_dp_debug_rsp{
    .name = "lumo_tarn_dp_debug_rsp",
    .message = lumo_tarn_dp_debug_setting_msg,
    .start = "fade283fa1283dc2dfa64d992cd8bfae",
    .abort = "4d4947db32a4e5ec0de201013b13a05e",
    .commit = "49282c35437c49c87153ff4dcd2e2e03",
};
inline constexpr Bundle lumo_tarn_cl_appl_cfg_rsp{
    .name = "lumo_tarn_cl_appl_cfg_rsp",
    .message = lumo_tarn_cl_appl_msg,
    .start = "0960992f4adfc2c1fbe43f4b4628a1a2",
    .abort = "0e78ac25a71220c645632715c40fbac6",
    .commit = "69bfe111b98047cefdd03f1af0aa19c4",
};
inline constexpr Bundle lumo_tarn_cl_cfg_rsp{
    .name = "lumo_tarn_cl_cfg_rsp",
    .message = lumo_tarn_cl_cfg_msg,
    .start = "42eff4577b4c29615343c2bf144cf565",
    .abort = "108d43e76d85e8418f8e1467f08c99ee",
    .commit = "ca461fb81fea492d3f3fecd376c6c92d",
};
inline constexpr Bundle lumo_tarn_dp_intf_rsp{
    .name = "lumo_tarn_dp_intf_rsp",
    .message = lumo_tarn_dp_intf_msg,
    .start = "9956a056cd2e0d172bc125143bf2638d",
    .abort = "6b90fe86c5b13abc31a838d55759f6dc",
    .commit = "502533ee6b6b4fd0d37b1e94f1576ea4",
};
inline constexpr Bundle lumo_tarn_dp_appl_cfg_rsp{
    .name = "lumo_tarn_dp_appl_cfg_rsp",
    .message = lumo_tarn_dp_appl_msg,
    .start = "adf217da65986ef2def05a5fb294d04f",
    .abort = "6f346131449e293b427dd3c31ab73efc",
    .commit = "34fab9eeac1eaadd6afdd09d89c3b735",
};
inline constexpr Bundle lumo_tarn_dp_tt_cfg_rsp{
    .name = "lumo_tarn_dp_tt_cfg_rsp",
    .message = lumo_tarn_dp_tt_msg,
    .start = "f8cc6d39c089ecfad6bb2ca4bddb1819",
    .abort = "7bfff5ebf529c515b08972d7271edd04",
    .commit = "12eb5ab02d5880b70ec553a98fb4c01b",
};
inline constexpr Bundle lumo_tarn_dp_mp_tc_cfg_rsp{
    .name = "lumo_tarn_dp_mp_tc_cfg_rsp",
    .message = lumo_tarn_dp_mp_tc_msg,
    .start = "f3357c5ae11134956936be44dd899eef",
    .abort = "96a30363a961bdb6feb326d6ba1397cf",
    .commit = "af3e8d500cecc7ca35729c18eb9d2125",
};
inline constexpr Bundle lumo_tarn_dp_mp_prefix_cfg_rsp{
    .name = "lumo_tarn_dp_mp_prefix_cfg_rsp",
    .message = lumo_tarn_dp_mp_prefix_msg,
    .start = "6c4380ebb06a2a85608ec413d8813f4e",
    .abort = "3617dfc3f5e5bebf48f9b0f6cf95f419",
    .commit = "0c24ee6b5d70988ea9c09c626b00d59a",
};
inline constexpr Bundle lumo_tarn_pal_mp_prefix_cfg_rsp{
    .name = "lumo_tarn_pal_mp_prefix_cfg_rsp",
    .message = lumo_tarn_pal_mp_prefix_msg,
    .start = "8bd737570a48e37a4bb5fa8bf3563217",
    .abort = "a814dc660bbddea504286aee16b4e51d",
    .commit = "8998b8b44d7d6a25aa39e0f40c55f32e",
};

}  // namespace tarn::schema
