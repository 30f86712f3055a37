// The domain of a handle: variants of types and permitted messages. Look-ups use the luid, since a private copy of a
// type record and the module's own record describe the same type.
#include "platform/contract/handle.hpp"

using mirk::own;

namespace {

const mirk::Handle &configured(const mirk_domain *domain) {
    return *static_cast<const mirk::Handle *>(domain->opaque[0]);
}

[[gnu::noinline]] int8_t look_up_variant(mirk::Handle &handle, const mirk::Handle &domain, mirk_type_info *type,
                                         uint32_t *err) {
    int8_t variant = 0;
    if (const uint32_t number = handle.failure(MIRK_PLATFORM_TESTING_VARIANT_LOOKUP); number != 0) {
        *err = number;
    } else if (type != nullptr) {
        const auto found = domain.variants.find(mirk::luid_from(type->luid));
        if (found != domain.variants.end()) variant = found->second;
    }
    handle.event(MIRK_PLATFORM_TESTING_VARIANT_LOOKED_UP, type, 0, variant, 0);
    return variant;
}

}  // namespace

extern "C" {

// Called for each frame written and each object created, mostly on handles whose domain is empty.
int8_t mirk_domain_lookup_variant(mirk_handle *h, mirk_domain *domain, mirk_type_info *type, uint32_t *err) {
    if (domain == &h->domain && mirk::skip_variant_lookup(*own(h))) return 0;
    return look_up_variant(*own(h), configured(domain), type, err);
}

uint32_t mirk_domain_lookup_message_ok(mirk_handle *h, mirk_domain *domain, mirk_type_info *type, uint32_t *err) {
    bool allowed = true;
    if (const uint32_t number = own(h)->failure(MIRK_PLATFORM_TESTING_MESSAGE_LOOKUP); number != 0) {
        *err = number;
        allowed = false;
    } else if (const auto &messages = configured(domain).messages; type != nullptr && !messages.empty()) {
        const auto found = messages.find(mirk::luid_from(type->luid));
        if (found != messages.end()) allowed = found->second;
    }
    own(h)->event(MIRK_PLATFORM_TESTING_MESSAGE_LOOKED_UP, type, 0, allowed ? 1 : 0, 0);
    return allowed ? 1 : 0;
}

mirk_platform_error mirk_platform_domain_set_variant(mirk_handle *h, const uint8_t *luid, int8_t variant) {
    return mirk::guarded([&]() -> mirk_platform_error {
        own(h)->variants[mirk::luid_from(luid)] = variant;
        own(h)->update_unobserved();
        return 0;
    });
}

mirk_platform_error mirk_platform_domain_set_message(mirk_handle *h, const uint8_t *luid, uint32_t allowed) {
    return mirk::guarded([&]() -> mirk_platform_error {
        own(h)->messages[mirk::luid_from(luid)] = allowed != 0;
        return 0;
    });
}

void mirk_platform_domain_clear(mirk_handle *h) {
    own(h)->variants.clear();
    own(h)->messages.clear();
    own(h)->update_unobserved();
}

}  // extern "C"
