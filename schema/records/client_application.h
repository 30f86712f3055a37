// Applications known to the client side, by name.
#pragma once

#include "schema/model.h"

namespace tarn::schema {

inline constexpr Member lumo_tarn_cl_kesh_appl_members[] = {
    length("proto_name_len", "length of proto_name in bytes"),
    string("proto_name", "name of the protocol"),
    length("sub_proto_name_len", "length of sub_proto_name in bytes"),
    string("sub_proto_name", "name of the sub-protocol"),
    u16("protocol_id", "identifier of the protocol"),
    u16("tarn_id", "identifier of the application within the tarn feature"),
};
inline constexpr Record lumo_tarn_cl_kesh_appl{"lumo_tarn_cl_kesh_appl", "6be60647e80e57000b6b6f8f2d9a6e0f",
                                               "one application", lumo_tarn_cl_kesh_appl_members,
                                               keyed_by("tarn_id").called("application")};

inline constexpr Member lumo_tarn_cl_appl_data_members[] = {
    boolean("show_header", "whether to show the header"),
    count32("num_kesh_appls", "number of elements in kesh_appl"),
    many("kesh_appl", lumo_tarn_cl_kesh_appl, "applications"),
};
inline constexpr Record lumo_tarn_cl_appl_data{"lumo_tarn_cl_appl_data", "31558f3e5ec0670c57987d4b5f175613",
                                               "applications of the client", lumo_tarn_cl_appl_data_members};

}  // namespace tarn::schema
