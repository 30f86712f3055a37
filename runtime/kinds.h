// Kinds by operations: what each kind of single-valued member does in each family. Integers, booleans and addresses are
// the runtime's; enumerations and nested records are the families themselves. Arrays and strings are told in each
// family.
#pragma once

#include "encodings/enumerations.h"
#include "encodings/text.h"
#include "encodings/value.h"
#include "encodings/wire.h"
#include "encodings/xml.h"
#include "runtime/assignment.h"
#include "runtime/lifecycle.h"
#include "runtime/references.h"

namespace tarn {

// Of is the type that a kind has besides: the enumeration, the record.
template <Kind K, auto Of>
struct PrimitiveOf;

// F is a Field.
template <class F>
using Primitive = PrimitiveOf<F::kind, F::of>;

#define TARN_INTEGER_KIND(KIND, NAME)                                   \
    template <auto Of>                                                  \
    struct PrimitiveOf<Kind::KIND, Of> {                                \
        static constexpr auto get = NAME##_get;                         \
        static constexpr auto get_value = NAME##_get_value;             \
        static constexpr auto set = NAME##_set;                         \
        static constexpr auto set_value = NAME##_set_value;             \
        static constexpr auto len = NAME##_len;                         \
        static constexpr auto marshal = NAME##_marshal;                 \
        static constexpr auto unmarshal = NAME##_unmarshal;             \
        static constexpr auto print = NAME##_print;                     \
        static constexpr auto to_xml = NAME##_to_xml;                   \
        static constexpr auto from_xml = NAME##_from_xml;               \
        static constexpr auto hash = NAME##_hash;                       \
        static constexpr auto backpropagate = NAME##_backpropagate;     \
        template <class T>                                              \
        static constexpr std::int32_t compare(const T *a, const T *b) { \
            if (*a == *b) return 0;                                     \
            return *a > *b ? 1 : -1;                                    \
        }                                                               \
    };
TARN_INTEGER_KIND(u8, u_int8)
TARN_INTEGER_KIND(u16, u_int16)
TARN_INTEGER_KIND(u32, u_int32)
TARN_INTEGER_KIND(u64, u_int64)
#undef TARN_INTEGER_KIND

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
    static constexpr auto get_object_references = ip_address_get_object_references;
};

template <auto Of>
struct PrimitiveOf<Kind::enumeration, Of> : Enum<*Of> {
    static std::uint32_t unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, enumeration_object *field,
                                   std::int32_t left, std::uint32_t reuse, std::uint32_t *err) {
        return Enum<*Of>::unmarshal(h, ctx_id, buffer, field, static_cast<std::uint32_t>(left), reuse, err);
    }
    static mirk_type_info *type() { return &TypeInfo<*Of>::own; }
};

template <auto Of>
struct PrimitiveOf<Kind::record, Of> {
    static mirk_object *get(mirk_handle *, std::uint32_t, mirk_object *field, std::uint32_t *) { return field; }
    static constexpr auto set = Assignment<*Of>::set;
    static constexpr auto len = WireWrite<*Of>::len;
    static constexpr auto marshal = WireWrite<*Of>::marshal;
    static std::uint32_t unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *field,
                                   std::int32_t left, std::uint32_t reuse, std::uint32_t *err) {
        return WireRead<*Of>::unmarshal(h, ctx_id, buffer, field, static_cast<std::uint32_t>(left), reuse, err);
    }
    static constexpr auto print = Text<*Of>::print;
    static constexpr auto to_xml = XmlWrite<*Of>::to_xml;
    static constexpr auto from_xml = XmlRead<*Of>::from_xml;
    static constexpr auto compare = Compare<*Of>::compare;
    static constexpr auto hash = Hash<*Of>::hash;
    static constexpr auto backpropagate = Propagate<*Of>::backpropagate;
    static constexpr auto initialize = Lifecycle<*Of>::initialize;
    static mirk_type_info *type() { return &TypeInfo<*Of>::own; }
    static constexpr auto set_instance_embedded = Lifecycle<*Of>::set_instance_embedded;
    static constexpr auto destroy_internal = Lifecycle<*Of>::destroy_internal;
    static std::uint32_t get_oid_count(mirk_handle *h, std::uint32_t, mirk_object *field, std::uint32_t *err) {
        return tarn::get_oid_count(h, field, err);
    }
    static void get_object_references(mirk_handle *h, std::uint32_t, mirk_object *field, void **, std::uint32_t,
                                      std::uint32_t *err) {
        tarn::get_object_references(h, field, err);
    }
};

}  // namespace tarn
