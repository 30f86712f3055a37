#include "kinds/enumeration.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "core/object_header.h"
#include "core/own_references.h"

namespace tarn {

namespace {

template <const Enumeration &E>
constinit enumeration_object sentinel_of{};

template <const Enumeration &E>
constexpr std::uint32_t bound = static_cast<std::uint32_t>(E.enumerators.size());

// An empty XML element, and its length.
struct EmptyElement {
    std::array<char, 64> text{};
    std::uint32_t length = 0;

    constexpr EmptyElement(std::string_view name, std::string_view more) {
        for (const std::string_view piece : {std::string_view("<"), name, more, std::string_view("/>")}) {
            for (const char c : piece) text[length++] = c;
        }
    }
};

// One element for each enumerator, followed by the one for any other value. That one is not well-formed XML, and a peer
// can cause it, since the sender chooses the value: readers of a recording must expect it.
template <const Enumeration &E>
constexpr auto elements_of = []<std::size_t... I>(std::index_sequence<I...>) {
    return std::array{EmptyElement(E.enumerators[I], "")..., EmptyElement(E.name, " value out of range")};
}
(std::make_index_sequence<bound<E>>{});

std::uint32_t value_of(const enumeration_object *instance) { return instance != nullptr ? instance->value : 0; }

}  // namespace

template <const Enumeration &E>
auto Enum<E>::sentinel() -> object * {
    return &sentinel_of<E>;
}

template <const Enumeration &E>
auto Enum<E>::create(mirk_handle *h, std::uint32_t ctx_id) -> object * {
    if (create_is_off(h)) return sentinel();
    auto *instance = static_cast<object *>(new_object(h, ctx_id, sizeof(object), sentinel()));
    if (instance == nullptr || instance == sentinel()) return instance;
    if (const std::uint32_t error = initialize_new(h, ctx_id, instance, 0, nullptr); error != 0) {
        static constexpr auto text = named_text<E>("(ERR): error in ", " create %s");
        trace(error_level, text.data(), error_text(error));
    }
    return instance;
}

// Unlike for records, an error of the domain look-up is kept, so that an enclosing create fails; the tracking mode is
// ignored.
template <const Enumeration &E>
void Enum<E>::initialize(mirk_handle *h, std::uint32_t ctx_id, object *instance, mirk_type_info *type,
                         std::uint32_t notify, std::uint32_t, std::uint8_t flags, void *, std::uint32_t *err) {
    if (!enter(h, err)) return;
    const bool observed = is_observed(h);
    const std::int8_t variant = set_header(h, ctx_id, header_of(instance), type, notify != 0 && observed, flags, err);
    count_created(h, ctx_id, type, variant, observed);
}

template <const Enumeration &E>
[[gnu::flatten]] std::uint32_t Enum<E>::initialize_new(mirk_handle *h, std::uint32_t ctx_id, object *instance,
                                                       std::uint8_t flags, void *) {
    std::uint32_t error = 0;
    initialize(h, ctx_id, instance, &TypeInfo<E>::own, 1, 0, flags, nullptr, &error);
    return error;
}

template <const Enumeration &E>
void Enum<E>::set_instance_embedded(mirk_handle *h, std::uint32_t ctx_id, object *instance) {
    if (instance == nullptr) {
        trace(error_level, "(ERR): Invalid object handle passed to set embedded flag");
        return;
    }
    store(h, ctx_id, &instance->obj_flag, static_cast<std::uint8_t>(instance->obj_flag | flag::embedded));
}

template <const Enumeration &E>
std::uint32_t Enum<E>::get_oid_count(mirk_handle *h, std::uint32_t, object *instance, std::uint32_t *err) {
    return get_own_oid_count(h, instance, err);
}

template <const Enumeration &E>
void Enum<E>::get_object_references(mirk_handle *h, std::uint32_t, object *instance, void **, std::uint32_t,
                                    std::uint32_t *err) {
    get_own_object_references(h, instance, err);
}

template <const Enumeration &E>
void Enum<E>::destroy(mirk_handle *h, std::uint32_t ctx_id, object *instance) {
    destroy_internal(h, ctx_id, instance, 1);
}

template <const Enumeration &E>
auto Enum<E>::destroy_internal(mirk_handle *h, std::uint32_t ctx_id, object *instance, std::uint32_t free_it)
    -> object * {
    if (instance != nullptr && instance != sentinel() && free_it != 0) {
        if (release_mapping(h, ctx_id, header_of(instance), destroy_texts<E>)) {
            finish_destroy(h, ctx_id, header_of(instance), free_it, destroy_texts<E>);
        }
    }
    return sentinel();
}

template <const Enumeration &E>
void Enum<E>::adjust_variant(mirk_handle *h, std::uint32_t ctx_id, object *instance, std::uint32_t *err) {
    tarn::adjust_variant(h, ctx_id, header_of(instance), err);
}

// Hashes the bytes of the value, least significant first on every host, so that all peers compute the same hash.
template <const Enumeration &E>
std::uint32_t Enum<E>::hash(const object *instance, std::uint32_t seed) {
    if (instance == nullptr) return seed;
    if constexpr (std::endian::native == std::endian::little) {
        return SuperFastHash(&instance->value, sizeof instance->value, seed);
    } else {
        const std::uint32_t value = __builtin_bswap32(instance->value);
        return SuperFastHash(&value, sizeof value, seed);
    }
}

template <const Enumeration &E>
std::uint32_t Enum<E>::get_value(mirk_handle *h, std::uint32_t, object *instance, std::uint32_t *err) {
    if (!enter(h, err)) return 0;
    if (instance == nullptr) {
        fail(h, err, EINVAL);
        return 0;
    }
    return instance->value;
}

// A value that is not an enumerator is only accepted in a newer variant.
template <const Enumeration &E>
bool Enum<E>::admits(object *instance, std::uint32_t value) {
    const std::int8_t variant = mirk_get_instance_variant(instance, 0, 1);
    return value < bound<E> || variant > highest_variant;
}

template <const Enumeration &E>
void Enum<E>::set(mirk_handle *h, std::uint32_t ctx_id, object *instance, object *source, std::uint32_t *err) {
    if (!enter(h, err)) return;
    adjust_variant(h, ctx_id, instance, err);
    if (instance == nullptr || source == nullptr) {
        fail(h, err, EINVAL);
        return;
    }
    if (!admits(instance, source->value)) {
        mirk_store_epoch_err(h, EIDRM, err);
        return;
    }
    notify_write(h, ctx_id, instance);
    std::memcpy(instance, source, sizeof *instance);
    mirk_set_instance_modified(instance, 0, 1, 1);
}

template <const Enumeration &E>
void Enum<E>::set_value(mirk_handle *h, std::uint32_t ctx_id, object *instance, std::uint32_t value,
                        std::uint32_t *err) {
    if (!enter(h, err)) return;
    adjust_variant(h, ctx_id, instance, err);
    if (instance == nullptr) {
        fail(h, err, EINVAL);
        return;
    }
    if (!admits(instance, value)) {
        mirk_store_epoch_err(h, EIDRM, err);
        return;
    }
    store(h, ctx_id, &instance->value, value);
    mirk_set_instance_modified(instance, 0, 1, 1);
}

template <const Enumeration &E>
std::uint32_t Enum<E>::marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, object *instance,
                               std::int32_t remaining, std::uint32_t *err) {
    if (!enter(h, err)) return 0;
    if (remaining < 1) {
        fail(h, err, ENOMEM);
        return 0;
    }
    std::int8_t variant = mirk_get_instance_variant(instance, 0, 1);
    const std::int8_t domain_variant =
        mirk_domain_lookup_variant(h, &h->domain, instance != nullptr ? instance->tinfo : nullptr, err);
    if (variant > domain_variant) {
        mirk_store_epoch_err(h, EIDRM, err);
        variant = domain_variant;
    }
    variant = cap_variant(variant);
    std::uint32_t offset = _mirk_instance_variant_marshal(h, ctx_id, buffer, &variant, remaining, err);
    // The value is written even with a negative variant, since an enumeration has no body to omit.
    std::uint32_t value = value_of(instance);
    offset += u_int32_marshal(h, ctx_id, static_cast<std::uint8_t *>(buffer) + offset, &value,
                              remaining - static_cast<std::int32_t>(offset), err);
    return offset;
}

template <const Enumeration &E>
std::uint32_t Enum<E>::unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, object *instance,
                                 std::uint32_t length, std::uint32_t reuse, std::uint32_t *err) {
    if (!enter(h, err)) return 0;
    const auto size = static_cast<std::int32_t>(length);
    if (size < 1) {
        fail(h, err, ENOMEM);
        return 0;
    }
    if (instance == nullptr) {
        fail(h, err, EINVAL);
        return 0;
    }
    std::int8_t variant = 0;
    std::uint32_t offset = _mirk_instance_variant_unmarshal(h, ctx_id, buffer, &variant, size, err);
    instance->variant = cap_variant(variant);
    instance->tinfo = bind_type(h, ctx_id, &TypeInfo<E>::own);
    offset += u_int32_unmarshal(h, ctx_id, static_cast<std::uint8_t *>(buffer) + offset, &instance->value,
                                size - static_cast<std::int32_t>(offset), reuse, err);
    // Any value is accepted. The primitive has stored it without a notification, so it is stored again with one.
    store(h, ctx_id, &instance->value, instance->value);
    return offset;
}

template <const Enumeration &E>
std::uint32_t Enum<E>::backpropagate(mirk_handle *, std::uint32_t, object *instance, void *) {
    if (instance == nullptr) {
        static constexpr auto text = named_text<E>("(info): backpropagate: Null pointer to ", " enum");
        trace(info_level, text.data());
        return 0;
    }
    if (mirk_get_instance_modified(instance, 0, 1) == 0) return 0;
    mirk_set_instance_modified(instance, 0, 1, 0);
    return 1;
}

template <const Enumeration &E>
std::uint32_t Enum<E>::print(mirk_handle *h, std::uint32_t ctx_id, char *buffer, std::uint32_t indent, const char *name,
                             object *instance, std::int32_t remaining, std::uint32_t *err) {
    if (!enter(h, err)) return 0;
    std::uint32_t offset = 0;
    const auto left = [&] { return remaining - static_cast<std::int32_t>(offset); };
    offset += mirk_print_space(h, ctx_id, buffer, indent, remaining, err);
    offset += mirk_snprintf(h, ctx_id, buffer + offset, left(), err, "%s@%s:", name, E.name.data());
    const std::uint32_t value = value_of(instance);
    if (value < bound<E>) {
        offset += mirk_snprintf(h, ctx_id, buffer + offset, left(), err, "%s\n", E.enumerators[value].data());
    } else {
        // There is no line end, so the next text follows on the same line.
        offset += mirk_snprintf(h, ctx_id, buffer + offset, left(), err, "Enum value out of range");
    }
    return offset;
}

template <const Enumeration &E>
std::uint32_t Enum<E>::to_xml(mirk_handle *h, std::uint32_t ctx_id, const char *name, char *buffer, object *instance,
                              std::int32_t remaining, std::uint8_t, std::uint32_t *err) {
    if (!enter(h, err)) return 0;
    std::uint32_t offset = start_tag(h, ctx_id, buffer, name, remaining, 0, err);
    const auto left = [&] { return remaining - static_cast<std::int32_t>(offset); };
    const EmptyElement &element = elements_of<E>[std::min(value_of(instance), bound<E>)];
    offset += xml_enum_print(h, ctx_id, buffer + offset, element.text.data(), left(), element.length, err);
    offset += end_tag(h, ctx_id, buffer + offset, name, left(), err);
    return offset;
}

// The value is that of the enumerator whose element is present, the lowest one if there are several. If there is none,
// the value does not change.
template <const Enumeration &E>
void Enum<E>::from_xml(mirk_handle *h, std::uint32_t, const char *path, void *document, object *instance,
                       std::uint32_t *err, char *message, std::uint32_t message_size) {
    if (!enter(h, err)) return;
    for (std::uint32_t value = 0; value < bound<E>; ++value) {
        char own[256];
        char content[128];
        std::snprintf(own, sizeof own, "%s/%s", path, E.enumerators[value].data());
        *err = xml_get_element_value(document, own, content, sizeof content, nullptr);
        if (*err != 0) mirk_store_err(h, *err);
        if (*err == 0) {
            if (instance != nullptr) instance->value = value;
            return;
        }
        if (*err != ENOENT) {
            if (message != nullptr) std::snprintf(message, message_size, "Failed xpath: %s", path);
            return;
        }
        *err = 0;
    }
}

template <const Enumeration &E>
std::uint32_t Enum<E>::is_valid_cr(mirk_handle *h, std::uint32_t value) {
    const std::int8_t variant = mirk_domain_lookup_variant(h, &h->domain, &TypeInfo<E>::own, &h->last_error);
    // Signed here and unsigned in the setters: values with the top bit set are valid here and refused there.
    const bool above = static_cast<std::int32_t>(value) >= static_cast<std::int32_t>(bound<E>);
    return above && variant <= highest_variant ? 0 : 1;
}

}  // namespace tarn

#include "exports/enumeration.inc"
