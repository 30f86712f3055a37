// Shared by the tests of enumerations.
#pragma once

#include <stdexcept>

#include "value_support.h"

namespace forms {

using tarn::reflect::EnumerationOperations;

// A free-standing instance. The value begins inside the header's padding, so it is reached through bytes.
class EnumerationObject {
public:
    EnumerationObject(mirk_handle *h, const EnumerationOperations &operations)
        : h_(h), operations_(operations), p_(operations.create(h, id)) {}
    EnumerationObject(mirk_handle *h, const EnumerationOperations &operations, std::uint32_t value)
        : EnumerationObject(h, operations) {
        put(value);
    }
    EnumerationObject(const EnumerationObject &) = delete;
    EnumerationObject &operator=(const EnumerationObject &) = delete;
    ~EnumerationObject() { operations_.destroy(h_, id, p_); }

    void *get() const { return p_; }
    mirk_object *header() const { return static_cast<mirk_object *>(p_); }
    std::uint32_t value() const {
        std::uint32_t value = 0;
        std::memcpy(&value, static_cast<char *>(p_) + 12, sizeof value);
        return value;
    }
    // Any value, as a sender may choose it.
    void put(std::uint32_t value) { std::memcpy(static_cast<char *>(p_) + 12, &value, sizeof value); }

private:
    mirk_handle *h_;
    const EnumerationOperations &operations_;
    void *p_;
};

inline const EnumerationOperations &enumeration(std::string_view name) {
    for (const EnumerationOperations &e : tarn::reflect::enumerations()) {
        if (e.enumeration->name == name) return e;
    }
    throw std::out_of_range(std::string(name));
}
inline const EnumerationOperations &ha_state() { return enumeration("lumo_tarn_ha_state_e"); }

inline std::uint32_t bound(const EnumerationOperations &e) {
    return static_cast<std::uint32_t>(e.enumeration->enumerators.size());
}
inline std::string name_of(const EnumerationOperations &e) { return std::string(e.enumeration->name); }

inline void set_domain(mirk_handle *h, const EnumerationOperations &e, std::int8_t variant) {
    mirk_platform_domain_set_variant(h, e.enumeration->luid.bytes.data(), variant);
}

}  // namespace forms
