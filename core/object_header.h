// What records and enumerations do with the header that they have in common: create, count, destroy.
#pragma once

#include <cstring>

#include "core/named_text.h"
#include "core/type_table.h"

namespace tarn {

// A sticky create after an error allocates nothing and returns the sentinel.
inline bool create_is_off(const mirk_handle *h) { return h->cr_mode != 0 && h->last_error != 0; }

// The result of a create whose allocation failed: null or, in a sticky create, the sentinel with ENOMEM in the handle.
inline void *no_object(mirk_handle *h, void *sentinel) {
    if (h->cr_mode == 0) return nullptr;
    if (h->last_error == 0) mirk_store_err(h, ENOMEM);
    return sentinel;
}

// Zeroed storage for a new object, or no_object.
[[gnu::noinline]] inline void *new_object(mirk_handle *h, std::uint32_t ctx_id, std::size_t size, void *sentinel) {
    void *storage = allocate(h, ctx_id, size);
    return storage != nullptr ? std::memset(storage, 0, size) : no_object(h, sentinel);
}

// Writes the header of a new object. Returns its variant, and in type the type that it is bound to.
[[gnu::always_inline]] inline std::int8_t set_header(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                                     mirk_type_info *&type, bool observed, std::uint8_t flags,
                                                     std::uint32_t *err) {
    const std::int8_t variant = cap_variant(mirk_domain_lookup_variant(h, &h->domain, type, err));
    const auto write = [&](auto notify) TARN_INLINE {
        notify(&object->home_variant);
        object->home_variant = variant;
        notify(&object->variant);
        object->variant = variant;
        notify(&object->tinfo);
        type = bind_type(h, ctx_id, type);
        object->tinfo = type;
        notify(&object->obj_flag);
        object->obj_flag |= flags;
    };
    if (observed) {
        write([&](auto *member) TARN_INLINE { h->write_notify(h->mem_ctx, member, sizeof *member, ctx_id); });
    } else {
        write([](auto *) {});
    }
    return variant;
}

[[gnu::cold, gnu::noinline]] inline void report_variant(const mirk_variant_info &info, std::int8_t variant) {
    trace(info_level, "(info): variant %u requested only %u variants present", variant, info.n_variants);
}
inline void check_variant_count(const mirk_variant_info &info, std::int8_t variant) {
    if (info.n_variants < variant) report_variant(info, variant);
}

[[gnu::always_inline]] inline void count_created(mirk_handle *h, std::uint32_t ctx_id, const mirk_type_info *type,
                                                 std::int8_t variant, bool observed) {
    const mirk_variant_info &info = variant_info(type);
    check_variant_count(info, variant);
    mirk_variant_entry &entry = info.entries[variant];
    count(h, ctx_id, type, &entry.num_created, 1, observed);
    count(h, ctx_id, type, &entry.num_live, 1, observed);
}

// Trace lines of a type's destroy.
struct DestroyTexts {
    const char *mapping_failed, *still_referred_to, *mapping_gone;
};
template <const auto &Type>
inline constexpr auto mapping_failed_text =
    named_text<Type>("(ERR): ", " destroy: Failed to remove oid mapping for object. Error %s");
template <const auto &Type>
inline constexpr auto still_referred_to_text = named_text<Type>(
    "(info): ", " destroy: Object has references and will be cleaned up when all of them are released");
template <const auto &Type>
inline constexpr auto mapping_gone_text = named_text<Type>("(debug): ", " destroy: Successfully removed OID mapping");
template <const auto &Type>
inline constexpr DestroyTexts destroy_texts{mapping_failed_text<Type>.data(), still_referred_to_text<Type>.data(),
                                            mapping_gone_text<Type>.data()};

[[gnu::cold]] inline void report_mapping_failure(mirk_handle *h, std::uint32_t error, const DestroyTexts &texts) {
    trace(error_level, texts.mapping_failed, error_text(error));
    mirk_store_err(h, error);
}

[[gnu::noinline]] inline bool release_present_mapping(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                                      const DestroyTexts &texts) {
    std::uint32_t error = 0;
    const std::uint32_t gone = mirk_request_oid_mapping_destroy(h, ctx_id, object, &error);
    if (error != 0) {
        report_mapping_failure(h, error, texts);
    } else if (gone == 0) {
        trace(info_level, texts.still_referred_to);
    } else {
        trace(debug_level, texts.mapping_gone);
        return true;
    }
    return false;
}

// An object with an identifier is destroyed only once nothing refers to it. False: it must not be destroyed yet.
inline bool release_mapping(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, const DestroyTexts &texts) {
    return (object->obj_flag & flag::oid_mapped) == 0 || release_present_mapping(h, ctx_id, object, texts);
}

// Destroys an object whose members have been destroyed: counters, runtime entries, memory.
[[gnu::noinline, gnu::flatten]] inline void finish_destroy(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                                           std::uint32_t free_it, const DestroyTexts &texts) {
    constexpr std::uint8_t has_area_elsewhere = flag::state_tracked | flag::sttr_offset;
    if ((object->obj_flag & has_area_elsewhere) == has_area_elsewhere) mirklib_get_sttr_offset(h, ctx_id, object);

    const mirk_type_info *type = object->tinfo;
    check_type(type);
    const mirk_variant_info &info = variant_info(type);
    const std::int8_t variant = object->variant;
    check_variant_count(info, variant);
    mirk_variant_entry &entry = info.entries[cap_variant(variant)];
    const bool observed = is_observed(h);
    count(h, ctx_id, type, &entry.num_destroyed, 1, observed);
    count(h, ctx_id, type, &entry.num_live, -1, observed);

    if ((object->obj_flag & (flag::ra_data | flag::sttr_offset)) != 0 && h->oid_mapping != 0) {
        std::uint32_t error = 0;
        mirk_hd_mapping_destroy(h, ctx_id, object, &error);
        if (error != 0) {
            report_mapping_failure(h, error, texts);
            return;
        }
    }
    if (free_it == 0) return;
    store(h, ctx_id, &object->tinfo, static_cast<mirk_type_info *>(nullptr));
    release(h, ctx_id, object);
}

}  // namespace tarn
