// State of the whole client process.
#pragma once

#include "schema/model.h"
#include "schema/records/processor.h"

namespace tarn::schema {

inline constexpr Member lumo_tarn_global_info_members[] = {
    boolean("display_all", "whether to show everything"),
    boolean("display_plat_cfg", "whether to show the platform configuration"),
    boolean("display_proc_ctx", "whether to show the process context"),
    u32("platform_cfg_set", "flag word, set if the platform configuration is set"),
    u32("max_tt_cache_entries", "maximum number of tt cache entries"),
    u32("max_mp_cache_entries", "maximum number of mp cache entries"),
    pointer("lumo_evctx_p", "event context of the lumo side"),
    pointer("smc_evctx_p", "event context of the smc side"),
    pointer("listen_chan", "the listening channel"),
    u32("ha_init", "flag word, set if high availability is initialized"),
    u32("mdr", "flag word named mdr"),
    u8("num_lumos", "number of processors"),
    u8("num_complexes", "number of complexes"),
    one("lumo_info_list", lumo_tarn_lumo_info_list, "per-processor records"),
};
inline constexpr Record lumo_tarn_global_info{"lumo_tarn_global_info", "f6cafb21d420353f770a3e4d6248dfc5",
                                              "state of the whole client process", lumo_tarn_global_info_members};

inline constexpr Member lumo_tarn_cl_cfg_data_members[] = {
    boolean("display_all", "whether to show everything"),
    boolean("display_smc", "whether to show the smc part"),
    one("global_info", lumo_tarn_global_info, "global record"),
    u32("tarn_smc_queue_initialized", "flag word, set if the smc queue is initialized"),
    u64("tarn_smc_queue_size", "size of the smc queue, in the unit of the client process"),
    u32("tarn_smc_blocked_flags", "blocked flags of the smc queue"),
    u64("tarn_smc_queue_size_warn_count", "number of warnings on the queue's size"),
};
inline constexpr Record lumo_tarn_cl_cfg_data{"lumo_tarn_cl_cfg_data", "d00c3d42455dc1989145fd9dcb356014",
                                              "state of the client side as a whole", lumo_tarn_cl_cfg_data_members};

}  // namespace tarn::schema
