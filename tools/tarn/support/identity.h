// Messages and control messages of bundles, as the luid of a frame identifies them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "tools/reflect/operations.h"

namespace tarn::tool {

enum class Control : std::uint8_t { start, abort, commit };
inline constexpr Control controls[] = {Control::start, Control::abort, Control::commit};
std::string_view word(Control control);

const reflect::MessageOperations &operations_of(const reflect::BundleOperations &bundle, Control control);

struct Identity {
    const reflect::MessageOperations *operations;
    const reflect::BundleOperations *bundle = nullptr;  // null for a message
    Control control = Control::start;

    bool is_control() const { return bundle != nullptr; }
};
Identity identity_of(const reflect::BundleOperations &bundle, Control control);
std::optional<Identity> identify(const std::uint8_t *luid);

std::string luid_text(const std::uint8_t *luid);

// The first bundle that admits the message.
const reflect::BundleOperations &bundle_of(const reflect::MessageOperations &message);
bool admits(const reflect::BundleOperations &bundle, const reflect::MessageOperations &message);

// "FILE: frame at offset N: lumo_tarn_dp_tt_cfg_rsp does not admit NAME"
std::string not_admitted(const std::string &location, const reflect::BundleOperations &bundle,
                         const reflect::MessageOperations &message);

}  // namespace tarn::tool
