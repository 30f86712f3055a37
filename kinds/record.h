// A record in a record: each family calls itself for the nested record. This layer may not include the families, so it
// declares them.
#pragma once

#include "core/own_references.h"
#include "core/type_table.h"
#include "kinds/kind.h"

namespace tarn {

template <const Record &R>
struct Assignment;
template <const Record &R>
struct Compare;
template <const Record &R>
struct Hash;
template <const Record &R>
struct Lifecycle;
template <const Record &R>
struct Propagate;
template <const Record &R>
struct References;
template <const Record &R>
struct Text;
template <const Record &R>
struct WireRead;
template <const Record &R>
struct WireWrite;
template <const Record &R>
struct XmlRead;
template <const Record &R>
struct XmlWrite;

template <>
struct StorageOf<Kind::record> : std::type_identity<mirk_object> {};

template <auto Of>
struct PrimitiveOf<Kind::record, Of> {
    static mirk_object *get(mirk_handle *, std::uint32_t, mirk_object *field, std::uint32_t *) { return field; }
    static void set(auto... arguments) { Assignment<*Of>::set(arguments...); }
    static std::uint32_t len(auto... arguments) { return WireWrite<*Of>::len(arguments...); }
    static std::uint32_t marshal(auto... arguments) { return WireWrite<*Of>::marshal(arguments...); }
    static std::uint32_t unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *field,
                                   std::int32_t left, std::uint32_t reuse, std::uint32_t *err) {
        return WireRead<*Of>::unmarshal(h, ctx_id, buffer, field, static_cast<std::uint32_t>(left), reuse, err);
    }
    static std::uint32_t print(auto... arguments) { return Text<*Of>::print(arguments...); }
    static std::uint32_t to_xml(auto... arguments) { return XmlWrite<*Of>::to_xml(arguments...); }
    static void from_xml(auto... arguments) { XmlRead<*Of>::from_xml(arguments...); }
    static std::int32_t compare(auto... arguments) { return Compare<*Of>::compare(arguments...); }
    static std::uint32_t hash(auto... arguments) { return Hash<*Of>::hash(arguments...); }
    static std::uint32_t backpropagate(auto... arguments) { return Propagate<*Of>::backpropagate(arguments...); }
    static void initialize(auto... arguments) { Lifecycle<*Of>::initialize(arguments...); }
    static std::uint32_t initialize_new(auto... arguments) { return Lifecycle<*Of>::initialize_new(arguments...); }
    static mirk_type_info *type() { return &TypeInfo<*Of>::own; }
    static void set_instance_embedded(auto... arguments) { Lifecycle<*Of>::set_instance_embedded(arguments...); }
    static void destroy_internal(mirk_handle *h, std::uint32_t ctx_id, mirk_object *field, std::uint32_t free_it) {
        Lifecycle<*Of>::destroy_internal(h, ctx_id, field, free_it);
    }
    static std::uint32_t get_oid_count(mirk_handle *h, std::uint32_t, mirk_object *field, std::uint32_t *err) {
        return get_own_oid_count(h, field, err);
    }
    static void offset_update(auto... arguments) { References<*Of>::offset_update(arguments...); }
    static void offset_remove(auto... arguments) { References<*Of>::offset_remove(arguments...); }
};

}  // namespace tarn
