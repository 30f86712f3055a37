// Writes items in the form that was asked for.
#pragma once

#include <string>
#include <string_view>

#include "tools/tarn/formats/item.h"

namespace tarn::tool {

enum class Style : std::uint8_t { text, xml, json, frames };

// Text with the control lines, XML fragments one to a line, JSON one object to a line, or a frame.
std::string rendered(const Item &item, Style style);

std::string hex_dump(std::string_view bytes);

}  // namespace tarn::tool
