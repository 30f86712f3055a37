#include "tools/tarn/support/identity.h"

#include <cstring>

#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/hex.h"

namespace tarn::tool {

namespace {

constexpr std::size_t luid_size = 16;

bool has_luid(const reflect::MessageOperations &operations, const std::uint8_t *luid) {
    return std::memcmp(operations.luid, luid, luid_size) == 0;
}

}  // namespace

std::string_view word(Control control) {
    constexpr std::string_view words[] = {"start", "abort", "commit"};
    return words[static_cast<std::size_t>(control)];
}

const reflect::MessageOperations &operations_of(const reflect::BundleOperations &bundle, Control control) {
    switch (control) {
        case Control::start:
            return bundle.start;
        case Control::abort:
            return bundle.abort;
        case Control::commit:
            break;
    }
    return bundle.commit;
}

Identity identity_of(const reflect::BundleOperations &bundle, Control control) {
    return {&operations_of(bundle, control), &bundle, control};
}

std::optional<Identity> identify(const std::uint8_t *luid) {
    for (const reflect::MessageOperations &o : reflect::messages()) {
        if (has_luid(o, luid)) return Identity{&o};
    }
    for (const reflect::BundleOperations &b : reflect::bundles()) {
        for (const Control control : controls) {
            if (has_luid(operations_of(b, control), luid)) return identity_of(b, control);
        }
    }
    return std::nullopt;
}

std::string luid_text(const std::uint8_t *luid) { return hex_text({luid, luid_size}); }

const reflect::BundleOperations &bundle_of(const reflect::MessageOperations &message) {
    for (const reflect::BundleOperations &b : reflect::bundles()) {
        if (admits(b, message)) return b;
    }
    throw Failure(Exit::input, std::string(message.name) + ": no bundle admits it");
}

bool admits(const reflect::BundleOperations &bundle, const reflect::MessageOperations &message) {
    return &bundle.bundle->message == message.message;
}

std::string not_admitted(const std::string &location, const reflect::BundleOperations &bundle,
                         const reflect::MessageOperations &message) {
    return location + ": " + std::string(bundle.bundle->name) + " does not admit " + message.name + ", only " +
           std::string(bundle.bundle->message.name);
}

}  // namespace tarn::tool
