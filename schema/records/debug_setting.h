// Debug switches of the control side and of the data plane.
#pragma once

#include "schema/model.h"

namespace tarn::schema {

inline constexpr Member lumo_tarn_dp_debug_setting_members[] = {
    u8("lumo_num", "number of the lumo processor that this entry describes"),
    u32("mp_cache_enabled", "debug switch of the data plane's mp (prefix) cache"),
    u32("tt_cache_enabled", "debug switch of the data plane's tt (traffic table) cache"),
    u32("flow_cache_enabled", "debug switch of the data plane's flow cache"),
    u32("ager_enabled", "debug switch of the data plane's ager"),
    u32("exporter_enabled", "debug switch of the exporter as a whole"),
    u32("proxy_enabled", "debug switch of the proxy"),
    u32("exporter_tt_enabled", "debug switch of the exporter for tt data"),
    u32("exporter_mp_enabled", "debug switch of the exporter for mp data"),
};
inline constexpr Record lumo_tarn_dp_debug_setting{
    "lumo_tarn_dp_debug_setting", "ad41ed1f43f7eb0ede202ce5d6780f0a", "debug switches of one processor's data plane",
    lumo_tarn_dp_debug_setting_members, keyed_by("lumo_num").called("processor")};

inline constexpr Member lumo_tarn_debug_setting_members[] = {
    u32("info_enabled", "switch of information-level debug output"),
    u32("trace_enabled", "switch of trace-level debug output"),
    u32("warn_enabled", "switch of warning-level debug output"),
    u32("error_enabled", "switch of error-level debug output"),
};
inline constexpr Record lumo_tarn_debug_setting{"lumo_tarn_debug_setting", "c5b10f0f65bc6c4b33577adf0ed8d6b3",
                                                "four debug levels of one component", lumo_tarn_debug_setting_members};

inline constexpr Member lumo_tarn_dp_debug_setting_data_members[] = {
    count8("num_lumos", "number of elements in lumo_data"),
    many("lumo_data", lumo_tarn_dp_debug_setting, "one element for each processor"),
};
inline constexpr Record lumo_tarn_dp_debug_setting_data{
    "lumo_tarn_dp_debug_setting_data", "7d38b0fd6ac289bba5994bd78204d896", "debug switches of all processors",
    lumo_tarn_dp_debug_setting_data_members};

}  // namespace tarn::schema
