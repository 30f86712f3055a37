// The static description of each type, and its usage counters.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "core/guard.h"
#include "schema/catalogue.h"

extern "C" void lumo_ui_tarn_typeinfo_initialize(mirk_handle *h, std::uint32_t ctx_id, std::uint32_t *err);

namespace tarn {

constexpr std::uint32_t used_length(const schema::Record &record) { return schema::lay_out(record).used_length; }
constexpr std::uint32_t used_length(const schema::Enumeration &) { return schema::enumeration_size; }
constexpr std::uint32_t used_length(const schema::Message &) { return sizeof(message_object); }
constexpr std::uint32_t alloc_slop(const schema::Record &record) { return schema::lay_out(record).alloc_slop; }
constexpr std::uint32_t alloc_slop(const schema::Enumeration &) { return 0; }
constexpr std::uint32_t alloc_slop(const schema::Message &) { return 0; }
constexpr std::string_view kind_text(const schema::Record &) { return "type"; }
constexpr std::string_view kind_text(const schema::Enumeration &) { return "enum"; }
constexpr std::string_view kind_text(const schema::Message &) { return "message"; }

// A variant indexes the entries directly, so there is one for each: -128 to 0.
inline constexpr int variant_entries = 129;

// Counters, and the lengths of an object of the type. Initialized at compile time, although that takes a quarter of a
// megabyte in the file: a constructor that runs before this library's own may create and read objects, and the runtime
// copies each record by these lengths.
//
// Threads that share types change the counters of the last entry. Nothing else is in its cache line: the record of the
// type, which each of them reads for every object, would otherwise follow directly.
struct alignas(64) VariantEntries : std::array<mirk_variant_entry, variant_entries> {};
static_assert((variant_entries - 1) * sizeof(mirk_variant_entry) % 64 == 0);

template <const auto &Type>
inline constinit VariantEntries entries_of = [] {
    constexpr std::uint32_t used = used_length(Type), slop = alloc_slop(Type);
    VariantEntries entries{};
    for (mirk_variant_entry &entry : entries) {
        entry.used_length = used;
        entry.alloc_slop = slop;
    }
    return entries;
}();

template <const auto &Type>
inline constinit mirk_variant_info variant_info_of{1, &entries_of<Type>[variant_entries - 1]};

// The initial value of the type record; the type table exports it under the type's name.
template <const auto &Type>
consteval mirk_type_info type_record() {
    mirk_type_info info{};
    info.magic = type_magic;
    std::copy(Type.luid.bytes.begin(), Type.luid.bytes.end(), info.luid);
    std::copy(Type.luid.text.begin(), Type.luid.text.end(), info.luid_text);
    std::copy(Type.name.begin(), Type.name.end(), info.name);
    std::copy(schema::module_name.begin(), schema::module_name.end(), info.module);
    const std::string_view kind = kind_text(Type);
    std::copy(kind.begin(), kind.end(), info.kind);
    info.reserved_index = -1;
    info.variant_info = &variant_info_of<Type>;
    return info;
}

// The module's own record of a type: a reference to the exported object.
template <const auto &Type>
struct TypeInfo;

// The record that an object on this handle points to.
inline mirk_type_info *bind_type(mirk_handle *h, std::uint32_t ctx_id, mirk_type_info *own) {
    return h->private_types != 0 ? mirk_type_info_ptr_get(h, ctx_id, own, lumo_ui_tarn_typeinfo_initialize) : own;
}

inline mirk_variant_info &variant_info(const mirk_type_info *type,
                                       const std::uint16_t &module = g_mirk_lumo_ui_tarn_type_trace_module_id) {
    if (type == nullptr || type->variant_info == nullptr) die(module, "(FATAL): varinfo is NULL");
    return *type->variant_info;
}

inline void check_type(const mirk_type_info *type,
                       const std::uint16_t &module = g_mirk_lumo_ui_tarn_type_trace_module_id) {
    if (type == nullptr || type->magic != type_magic) die(module, "(FATAL): tinfo is null or corrupted");
}

// Counters of the module's own records are shared by all handles and therefore atomic; a private copy belongs to one.
inline void count(mirk_handle *h, std::uint32_t ctx_id, const mirk_type_info *type, std::uint64_t *counter,
                  std::int64_t delta, bool observed) {
    if (observed) h->count_notify(h->mem_ctx, counter, delta, ctx_id);
    const auto change = static_cast<std::uint64_t>(delta);
    if (type->plain_counters != 0) {
        *counter += change;
    } else {
        __atomic_fetch_add(counter, change, __ATOMIC_SEQ_CST);
    }
}

}  // namespace tarn

#include "exports/type_info.inc"
