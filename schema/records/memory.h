// Blocks of memory held for a processor.
#pragma once

#include "schema/enumerations.h"
#include "schema/model.h"

namespace tarn::schema {

inline constexpr Member lumo_tarn_exmem_info_members[] = {
    pointer("cl_addr", "address of the block on the client side"),
    pointer("exmem_addr", "address of the block in external memory"),
    pointer("ppe_addr", "address of the block as the ppe side uses it"),
    u32("size", "size of the block"),
};
inline constexpr Record lumo_tarn_exmem_info{"lumo_tarn_exmem_info", "60d55c75e70c45de4e19a835975182eb",
                                             "one block of external memory: its three addresses and its size",
                                             lumo_tarn_exmem_info_members};

inline constexpr Member lumo_tarn_fdb_base_members[] = {
    u8("hdr_ver", "version of the header"),  u8("hdr_len", "length of the header"),  u16("hdr_flags", "header flags"),
    u16("ftr_ver", "version of the footer"), u16("ftr_len", "length of the footer"),
};
inline constexpr Record lumo_tarn_fdb_base{"lumo_tarn_fdb_base", "6a69888fdf996d4535521688d91ce774",
                                           "versions and lengths of the header and the footer of the fdb",
                                           lumo_tarn_fdb_base_members};

inline constexpr Member lumo_tarn_fdb_mem_info_members[] = {
    u32("type", "type of the memory"),
    u32("size", "size of the memory"),
    pointer("mem_addr", "address of the memory"),
};
inline constexpr Record lumo_tarn_fdb_mem_info{"lumo_tarn_fdb_mem_info", "5ea662ce18406a57e8d97350d5779fbc",
                                               "one piece of fdb memory", lumo_tarn_fdb_mem_info_members};

inline constexpr Member lumo_tarn_exmem_info_wrapper_members[] = {
    one("exmem", lumo_tarn_exmem_info, "wrapped block description"),
};
inline constexpr Record lumo_tarn_exmem_info_wrapper{"lumo_tarn_exmem_info_wrapper", "1ac4a09d31cce88dcc15cc105062ccf8",
                                                     "one block of a growing list of blocks",
                                                     lumo_tarn_exmem_info_wrapper_members, no_key.called("block")};

inline constexpr Member lumo_tarn_static_exmem_info_members[] = {
    enumerated("mem_type", lumo_tarn_mem_desc_e, "which kind of memory this is"),
    u32("num_hash_elements", "number of hash elements in the block"),
    one("exmem", lumo_tarn_exmem_info, "the block itself"),
};
inline constexpr Record lumo_tarn_static_exmem_info{
    "lumo_tarn_static_exmem_info", "2557d9fc36ed08f926459963e2b84549",
    "memory block that a processor holds permanently, with its kind of memory", lumo_tarn_static_exmem_info_members,
    keyed_by("mem_type").called("static memory")};

inline constexpr Member lumo_tarn_dyn_exmem_info_members[] = {
    enumerated("mem_type", lumo_tarn_mem_desc_e, "which kind of memory this is"),
    pointer("list_header_ptr", "list header of the dynamic blocks"),
    count32("num_exmems", "number of elements in exmem"),
    many("exmem", lumo_tarn_exmem_info_wrapper, "dynamic blocks"),
};
inline constexpr Record lumo_tarn_dyn_exmem_info{
    "lumo_tarn_dyn_exmem_info", "21946a632bd59ef767c684b5ebddc290",
    "memory blocks that a processor adds at run time, with their kind of memory", lumo_tarn_dyn_exmem_info_members,
    keyed_by("mem_type").called("dynamic memory")};

}  // namespace tarn::schema
