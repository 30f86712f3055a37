// Object identifiers (oids), and reference counts that defer the destruction of an object.
#include "platform/contract/handle.hpp"

using mirk::own;

namespace mirk {

void References::erase_entries(uintptr_t begin, size_t size) {
    const uintptr_t end = begin + (size == 0 ? 1 : size);
    if (!oid_of.empty()) {
        const auto first = oid_of.lower_bound(begin), last = oid_of.lower_bound(end);
        for (auto it = first; it != last; ++it) mappings.erase(it->second);
        oid_of.erase(first, last);
    }
    if (!held_by_address.empty()) {
        held_by_address.erase(held_by_address.lower_bound(begin), held_by_address.lower_bound(end));
    }
}

}  // namespace mirk

namespace {

uint32_t request_destroy(mirk::Handle &handle, void *object, uint32_t *err) {
    if (*err != 0) return 0;
    *err = handle.failure(MIRK_PLATFORM_TESTING_OID_MAPPING_DESTROY);
    if (*err != 0) return 0;
    auto &references = handle.references;
    const auto found = references.oid_of.find(mirk::address_of(object));
    if (found == references.oid_of.end()) return 1;
    mirk::OidMapping &mapping = references.mappings.at(found->second);
    if (mapping.references != 0) {
        mapping.condemned = true;
        return 0;
    }
    static_cast<mirk_object *>(object)->obj_flag &= static_cast<uint8_t>(~mirk::oid_mapped);
    references.mappings.erase(found->second);
    references.oid_of.erase(found);
    return 1;
}

uint32_t update_count(mirk_handle *h, uint32_t ctx_id, const void *oid, bool raise) {
    if (const uint32_t number = own(h)->failure(MIRK_PLATFORM_TESTING_OID_REF_COUNT); number != 0) return number;
    auto &mappings = own(h)->references.mappings;
    const auto found = mappings.find(oid);
    if (found == mappings.end()) return ENOENT;
    mirk::OidMapping &mapping = found->second;
    if (raise) {
        ++mapping.references;
        return 0;
    }
    if (mapping.references == 0) return EINVAL;
    if (--mapping.references == 0 && mapping.condemned && mapping.destroy != nullptr) {
        // This requests removal of the mapping and thereby erases it, so it must not be used afterwards.
        mapping.destroy(h, ctx_id, mapping.object);
    }
    return 0;
}

}  // namespace

extern "C" {

uint32_t mirk_request_oid_mapping_destroy(mirk_handle *h, uint32_t ctx_id, void *object, uint32_t *err) {
    const uint32_t gone = request_destroy(*own(h), object, err);
    own(h)->event(MIRK_PLATFORM_TESTING_OID_DESTROY, object, 0, gone, ctx_id);
    return gone;
}

void mirklib_lookup_and_update_oid_ref_count(mirk_handle *h, uint32_t ctx_id, void *oid, uint32_t raise,
                                             uint32_t *err) {
    if (*err != 0) return;
    *err = update_count(h, ctx_id, oid, raise != 0);
    own(h)->event(MIRK_PLATFORM_TESTING_OID_LOWERED, oid, 0, *err, ctx_id);
}

mirk_platform_error mirk_platform_oid_mapping_make(mirk_handle *h, void *object, uint32_t references,
                                                   mirk_platform_object_destroy destroy, void **oid) {
    if (object == nullptr || oid == nullptr) return EINVAL;
    return mirk::guarded([&]() -> mirk_platform_error {
        auto &known = own(h)->references;
        const auto [entry, fresh] = known.oid_of.try_emplace(mirk::address_of(object), nullptr);
        if (!fresh) return EEXIST;
        // An oid is a counter in the type of an address; it points to nothing.
        void *made = reinterpret_cast<void *>(++known.last_oid);
        try {
            known.mappings.emplace(made, mirk::OidMapping{object, references, false, destroy});
        } catch (...) {
            known.oid_of.erase(entry);
            throw;
        }
        entry->second = made;
        static_cast<mirk_object *>(object)->obj_flag |= mirk::oid_mapped;
        *oid = made;
        return 0;
    });
}

mirk_platform_error mirk_platform_oid_mapping_state(mirk_handle *h, const void *oid, uint32_t *references,
                                                    uint32_t *condemned) {
    const auto &mappings = own(h)->references.mappings;
    const auto found = mappings.find(oid);
    if (found == mappings.end()) return ENOENT;
    if (references != nullptr) *references = found->second.references;
    if (condemned != nullptr) *condemned = found->second.condemned ? 1 : 0;
    return 0;
}

mirk_platform_error mirk_platform_address_set_oids(mirk_handle *h, const ip_address *address, void *const *oids,
                                                   uint32_t count) {
    if (address == nullptr || (oids == nullptr && count != 0)) return EINVAL;
    auto &held = own(h)->references.held_by_address;
    if (count == 0) {
        held.erase(mirk::address_of(address));
        own(h)->update_unobserved();
        return 0;
    }
    return mirk::guarded([&]() -> mirk_platform_error {
        held[mirk::address_of(address)] = std::vector<void *>(oids, oids + count);
        own(h)->update_unobserved();
        return 0;
    });
}

}  // extern "C"
