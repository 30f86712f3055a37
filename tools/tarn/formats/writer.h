// Writes items in the requested format.
#pragma once

#include <string>
#include <string_view>

#include "tools/tarn/formats/item.h"

namespace tarn::tool {

enum class Style : std::uint8_t { text, xml, json, frames };

// Text including the control lines, one XML fragment per line, one JSON object per line, or a frame.
std::string rendered(const Item &item, Style style);

// Lines of 16 bytes. The first has the offset `from`.
std::string hex_dump(std::string_view bytes, std::size_t from = 0);

}  // namespace tarn::tool
