// Booleans: an object with a header and one byte, handled by the runtime's primitives.
#pragma once

#include "kinds/kind.h"

namespace tarn {

template <>
struct StorageOf<Kind::boolean> : std::type_identity<mirk_boolean> {};

template <auto Of>
struct PrimitiveOf<Kind::boolean, Of> {
    static constexpr auto get = mirk_boolean_get;
    static constexpr auto get_value = mirk_boolean_get_value;
    static constexpr auto set = mirk_boolean_set;
    static constexpr auto set_value = mirk_boolean_set_value;
    static constexpr auto len = mirk_boolean_len;
    static constexpr auto marshal = mirk_boolean_marshal;
    static constexpr auto unmarshal = mirk_boolean_unmarshal;
    static constexpr auto print = mirk_boolean_print;
    static constexpr auto to_xml = mirk_boolean_to_xml;
    static constexpr auto from_xml = mirk_boolean_from_xml;
    static constexpr auto compare = mirk_boolean_compare;
    static constexpr auto hash = mirk_boolean_hash;
    static constexpr auto backpropagate = mirk_boolean_backpropagate;
    static constexpr auto initialize = mirk_boolean_initialize;
    static mirk_type_info *type() { return &_mirk_boolean_type_info_internal; }
    static constexpr auto set_instance_embedded = mirk_boolean_set_instance_embedded;
};

}  // namespace tarn
