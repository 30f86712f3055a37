// Finding things of the schema by the names that people use, and by the identity that stands in a frame.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/reflect/operations.h"

namespace tarn::tool {

enum class Control : std::uint8_t { start, abort, commit };

std::string_view word(Control control);
const reflect::MessageOperations &operations_of(const reflect::BundleOperations &bundle, Control control);

// What a luid stands for: a plain message, or a control message of a bundle.
struct Identity {
    const reflect::MessageOperations *operations;
    const reflect::BundleOperations *bundle = nullptr;  // of a control message
    Control control = Control::start;

    bool is_control() const { return bundle != nullptr; }
};

std::optional<Identity> identify(const std::uint8_t *luid);
std::string luid_text(const std::uint8_t *luid);

// "lumo_tarn_dp_tt_cfg_rsp" gives "dp-tt-cfg".
std::string short_form(std::string_view name);

// A full name or its short form. These throw a Failure that names the nearest name there is.
const reflect::BundleOperations &bundle_named(std::string_view name);
const reflect::MessageOperations &message_named(std::string_view name);

// The bundle that a plain message is shown in, the first if there are several.
const reflect::BundleOperations &bundle_of(const reflect::MessageOperations &message);
bool admits(const reflect::BundleOperations &bundle, const reflect::MessageOperations &message);

// "; did you mean X?", or nothing if no candidate is close.
std::string suggestion(std::string_view word, const std::vector<std::string> &candidates);

}  // namespace tarn::tool
