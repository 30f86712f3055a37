// Application signatures of the data plane, by processor.
#pragma once

#include "schema/model.h"
#include "schema/records/memory.h"

namespace tarn::schema {

inline constexpr Member lumo_tarn_dp_appl_sig_members[] = {
    one("exmem_info", lumo_tarn_exmem_info, "location of the signature in memory"),
    u32("dp_hash_bucket", "bucket of the signature in the data plane's hash"),
    u32("pal_id", "identifier of the signature in the adaptation layer"),
    length("appl_name_len", "length of appl_name in bytes"),
    string("appl_name", "name of the application"),
    u16("appl_id", "identifier of the application"),
    u8("protocol", "protocol number to match"),
    u8("tos", "type-of-service value to match"),
    u32("flags", "flags of the signature"),
    u16("dport_min", "low end of the destination port range"),
    u16("dport_max", "high end of the destination port range"),
    u16("sport_min", "low end of the source port range"),
    u16("sport_max", "high end of the source port range"),
    pointer("next_ptr", "link to the next signature in the bucket"),
};
inline constexpr Record lumo_tarn_dp_appl_sig{"lumo_tarn_dp_appl_sig", "aaa0672e95bcc307d1218218a1706891",
                                              "one signature", lumo_tarn_dp_appl_sig_members,
                                              keyed_by("pal_id").called("signature")};

inline constexpr Member lumo_tarn_dp_appl_cfg_members[] = {
    boolean("show_header", "whether to show the header"),
    u8("lumo_num", "number of the lumo processor"),
    one("hash_exmem_info", lumo_tarn_exmem_info, "memory block of the processor's signature hash"),
    count32("num_sigs", "number of elements in sig_list"),
    many("sig_list", lumo_tarn_dp_appl_sig, "signatures"),
};
inline constexpr Record lumo_tarn_dp_appl_cfg{"lumo_tarn_dp_appl_cfg", "74fae40b85570bd4a83d4a45eb2dee05",
                                              "signatures of one processor", lumo_tarn_dp_appl_cfg_members,
                                              keyed_by("lumo_num").called("processor")};

inline constexpr Member lumo_tarn_dp_appl_data_members[] = {
    boolean("show_header", "whether to show the header"),
    count8("num_lumos", "number of elements in lumo_data"),
    many("lumo_data", lumo_tarn_dp_appl_cfg, "one element for each processor"),
};
inline constexpr Record lumo_tarn_dp_appl_data{"lumo_tarn_dp_appl_data", "6f31f2ab35c46bda63067283fc99bf24",
                                               "signature tables, one for each processor",
                                               lumo_tarn_dp_appl_data_members};

}  // namespace tarn::schema
