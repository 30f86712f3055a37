// What a file holds, whatever its form: plain messages and control messages, in order.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/tarn/support/handle.h"
#include "tools/tarn/support/names.h"

namespace tarn::tool {

enum class Form : std::uint8_t { frames, xml, json };

struct Item {
    Identity identity;
    std::optional<Message> message;  // nothing for a control message
    std::string place;               // where it was found, for messages to people

    void *object() const { return message ? message->object() : nullptr; }
};

// By the first byte that is not blank.
Form form_of(std::string_view content, const std::string &origin);

std::vector<Item> items_of(const Handles &handles, std::string_view content, const std::string &origin, bool lenient);
std::vector<Item> read_items(const Handles &handles, const std::string &path, bool lenient);

}  // namespace tarn::tool
