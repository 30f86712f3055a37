// What objects have besides their members: variant, flags, modified mark, offset of the state area, RA data.
#include "platform/contract/handle.hpp"

using mirk::own;

namespace {

mirk_object *object_at(void *object) { return static_cast<mirk_object *>(object); }

// Has the arguments of mirklib_adjust_variant in the same order, so that it is reached by a jump.
[[gnu::noinline]] void adjust_variant(mirk_handle *h, uint32_t ctx_id, void *object, mirk_type_info *tinfo, uint32_t,
                                      uint32_t *err) {
    own(h)->event(MIRK_PLATFORM_TESTING_ADJUST_VARIANT, object, 0, 0, ctx_id);
    if (object == nullptr || tinfo == nullptr || *err != 0) return;
    const int8_t variant = mirk_domain_lookup_variant(h, &h->domain, tinfo, err);
    int8_t &stored = object_at(object)->variant;
    if (*err != 0 || stored == variant) return;
    mirk::notify_write(h, ctx_id, &stored, sizeof stored);
    stored = variant;
}

[[gnu::noinline]] uint32_t find_offset(mirk_handle *h, uint32_t ctx_id, void *object) {
    uint32_t offset = 0;
    if (const uint32_t *known = own(h)->offsets.find(object); known != nullptr) {
        offset = *known;
    } else if (object != nullptr) {
        // The flag bit came from a frame or a copy: assumes that the area directly follows the object.
        const mirk_type_info *type = object_at(object)->tinfo;
        if (type != nullptr && type->variant_info != nullptr) {
            const mirk_variant_entry &entry = type->variant_info->entries[0];
            offset = entry.used_length + entry.alloc_slop;
        }
    }
    own(h)->event(MIRK_PLATFORM_TESTING_OFFSET_GET, object, 0, offset, ctx_id);
    return offset;
}

}  // namespace

extern "C" {

int8_t mirk_get_instance_variant(void *object, uint32_t, uint32_t) {
    return object == nullptr ? int8_t{0} : object_at(object)->variant;
}

uint8_t mirk_get_instance_obj_flag(void *object, uint32_t, uint32_t) {
    return object == nullptr ? uint8_t{0} : object_at(object)->obj_flag;
}

uint32_t mirk_get_instance_modified(void *object, uint32_t, uint32_t) {
    return object != nullptr && (object_at(object)->obj_flag & mirk::modified) != 0 ? 1 : 0;
}

void mirk_set_instance_modified(void *object, uint32_t, uint32_t, uint32_t value) {
    if (object == nullptr) return;
    uint8_t &flag = object_at(object)->obj_flag;
    if (value != 0) {
        flag |= mirk::modified;
    } else {
        flag &= static_cast<uint8_t>(~mirk::modified);
    }
}

void mirklib_adjust_variant(mirk_handle *h, uint32_t ctx_id, void *object, mirk_type_info *tinfo, uint32_t zero,
                            uint32_t *err) {
    const bool usual = object != nullptr && tinfo != nullptr && *err == 0 && object_at(object)->variant == 0 &&
                       mirk::skip_variant_lookup(*own(h));
    if (!usual) adjust_variant(h, ctx_id, object, tinfo, zero, err);
}

uint32_t mirklib_get_sttr_offset(mirk_handle *h, uint32_t ctx_id, void *object) {
    const uint32_t *const known = own(h)->offsets.find_recent(object);
    return known != nullptr && own(h)->hook == nullptr ? *known : find_offset(h, ctx_id, object);
}

void mirklib_update_sttr_offset(mirk_handle *h, uint32_t ctx_id, void *object, uint32_t offset) {
    own(h)->event(MIRK_PLATFORM_TESTING_OFFSET_UPDATE, object, 0, offset, ctx_id);
    if (object == nullptr) return;
    // Entries are reserved for every object in a block of a tracking handle. For other objects a failed allocation
    // cannot be reported, and ending the process is better than writing state bytes to a wrong address.
    if (!own(h)->offsets.put(object, offset)) mirk::fatal("(FATAL): no memory for a state offset");
    object_at(object)->obj_flag |= mirk::has_sttr_offset;
}

uint32_t mirklib_get_ra_data(mirk_handle *h, uint32_t ctx_id, void *instance, void **ra_value, uint8_t *ra_byte) {
    const uint32_t number = own(h)->failure(MIRK_PLATFORM_TESTING_RA_DATA);
    if (number == 0) {
        // Copying an object copies the flag but not the entry: without an entry the data is empty.
        const mirk::RaData *known = own(h)->ra_data.find(instance);
        *ra_value = known != nullptr ? known->value : nullptr;
        *ra_byte = known != nullptr ? known->byte : uint8_t{0};
    }
    own(h)->event(MIRK_PLATFORM_TESTING_RA_GET, instance, 0, number, ctx_id);
    return number;
}

void mirklib_update_ra_all(mirk_handle *h, uint32_t ctx_id, void *instance, void *ra_value, uint8_t ra_byte) {
    own(h)->event(MIRK_PLATFORM_TESTING_RA_UPDATE, instance, ra_byte, static_cast<int64_t>(mirk::address_of(ra_value)),
                  ctx_id);
    if (instance == nullptr) return;
    if (!own(h)->ra_data.put(instance, {ra_value, ra_byte})) {
        skald_wrapper(mirk::trace_module(), 3, 0, "(ERR): no memory for RA data of %p", instance);
    }
}

void mirk_hd_mapping_destroy(mirk_handle *h, uint32_t ctx_id, void *object, uint32_t *err) {
    own(h)->event(MIRK_PLATFORM_TESTING_HD_DESTROY, object, 0, 0, ctx_id);
    if (*err != 0) return;
    *err = own(h)->failure(MIRK_PLATFORM_TESTING_HD_MAPPING_DESTROY);
    if (*err != 0) return;
    own(h)->offsets.erase(object);
    own(h)->ra_data.erase(object);
}

mirk_platform_error mirk_platform_set_ra_data(mirk_handle *h, void *object, void *value, uint8_t byte) {
    if (object == nullptr) return EINVAL;
    if (!own(h)->ra_data.put(object, {value, byte})) return ENOMEM;
    object_at(object)->obj_flag |= mirk::has_ra_data;
    return 0;
}

mirk_platform_error mirk_platform_ra_data(mirk_handle *h, const void *object, void **value, uint8_t *byte) {
    const mirk::RaData *known = own(h)->ra_data.find(object);
    if (known == nullptr) return ENOENT;
    if (value != nullptr) *value = known->value;
    if (byte != nullptr) *byte = known->byte;
    return 0;
}

mirk_platform_error mirk_platform_sttr_offset(mirk_handle *h, const void *object, uint32_t *offset) {
    const uint32_t *known = own(h)->offsets.find(object);
    if (known == nullptr) return ENOENT;
    if (offset != nullptr) *offset = *known;
    return 0;
}

size_t mirk_platform_testing_offset_entries(mirk_handle *h) { return own(h)->offsets.size(); }

size_t mirk_platform_testing_ra_entries(mirk_handle *h) { return own(h)->ra_data.size(); }

mirk_platform_error mirk_platform_testing_mark_integer(mirk_handle *h, const void *address, uint32_t changed) {
    if (address == nullptr) return EINVAL;
    if (changed == 0) {
        own(h)->changed_integers.erase(mirk::address_of(address));
        return 0;
    }
    return own(h)->changed_integers.put(mirk::address_of(address), true) != nullptr ? 0 : ENOMEM;
}

}  // extern "C"
