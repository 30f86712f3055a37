// IP addresses: an object with a header and a state area of its own, handled by the runtime's primitives.
#pragma once

#include "kinds/kind.h"

namespace tarn {

template <>
struct StorageOf<Kind::address> : std::type_identity<ip_address> {};

template <auto Of>
struct PrimitiveOf<Kind::address, Of> {
    static constexpr auto get = ip_address_get;
    static constexpr auto set = ip_address_set;
    static constexpr auto len = ip_address_len;
    static constexpr auto marshal = ip_address_marshal;
    static constexpr auto unmarshal = ip_address_unmarshal;
    static constexpr auto print = ip_address_print;
    static constexpr auto to_xml = ip_address_to_xml;
    static constexpr auto from_xml = ip_address_from_xml;
    static constexpr auto compare = ip_address_compare;
    static constexpr auto hash = ip_address_hash;
    static constexpr auto backpropagate = ip_address_type_type_backpropagate;
    static constexpr auto initialize = ip_address_initialize;
    static mirk_type_info *type() { return &_ip_address_type_info_internal; }
    static constexpr auto set_instance_embedded = ip_address_set_instance_embedded;
    static constexpr auto destroy_internal = ip_address_destroy_internal;
    static constexpr auto get_oid_count = ip_address_get_oid_count;
    static constexpr auto offset_update = ip_address_offset_update;
    static constexpr auto offset_remove = ip_address_offset_remove;
};

}  // namespace tarn
