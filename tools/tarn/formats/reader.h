// Reads files of any format: frames, XML or JSON.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/tarn/formats/item.h"

namespace tarn::tool {

enum class Form : std::uint8_t { frames, xml, json };

// Decides by the first byte that is not a blank.
Form form_of(std::string_view content, const std::string &origin);

std::vector<Item> items_of(const Handles &handles, std::string_view content, const std::string &origin, bool lenient);
std::vector<Item> read_items(const Handles &handles, const std::string &path, bool lenient);

}  // namespace tarn::tool
