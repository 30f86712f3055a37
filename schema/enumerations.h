// The enumerations. An enumerator's number is its index in the list.
#pragma once

#include "schema/model.h"

namespace tarn::schema {

inline constexpr std::string_view lumo_tarn_ha_state_e_enumerators[] = {
    "LUMO_TARN_HA_INVALID_STATE",
    "LUMO_TARN_HA_RESET_STATE",
    "LUMO_TARN_HA_INIT_STATE",
    "LUMO_TARN_HA_ACTIVE_SOLO_STATE",
    "LUMO_TARN_HA_ACTIVE_REDUNDANT_STATE",
    "LUMO_TARN_HA_STANDBY_STATE",
    "LUMO_TARN_HA_HOT_STANDBY_STATE",
    "LUMO_TARN_HA_FAULT_RECOVERY_STATE",
    "LUMO_TARN_HA_QUIESCE_STATE",
};
inline constexpr Enumeration lumo_tarn_ha_state_e{"lumo_tarn_ha_state_e", "26bbde370374ae5b5cbbe652c7ee982c",
                                                  "high-availability state of a processor",
                                                  lumo_tarn_ha_state_e_enumerators};

inline constexpr std::string_view lumo_tarn_lumo_direction_e_enumerators[] = {
    "LUMO_TARN_DIR_INGRESS",
    "LUMO_TARN_DIR_EGRESS",
    "LUMO_TARN_DIR_BOTH",
};
inline constexpr Enumeration lumo_tarn_lumo_direction_e{
    "lumo_tarn_lumo_direction_e", "22d2eb9e237cb057c60e2c4b1a097d2e", "direction of traffic that a processor serves",
    lumo_tarn_lumo_direction_e_enumerators};

inline constexpr std::string_view lumo_tarn_mem_desc_e_enumerators[] = {
    "LUMO_TARN_MP_MEM",
    "LUMO_TARN_TT_MEM",
    "LUMO_TARN_FLOW_MEM",
};
inline constexpr Enumeration lumo_tarn_mem_desc_e{"lumo_tarn_mem_desc_e", "5320c65a0cbb7ceed2c4d8a56e5ea0ef",
                                                  "kind of memory", lumo_tarn_mem_desc_e_enumerators};

}  // namespace tarn::schema
