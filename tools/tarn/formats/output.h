// Printing items in the form that was asked for.
#pragma once

#include <string>

#include "tools/tarn/formats/items.h"

namespace tarn::tool {

enum class Style : std::uint8_t { text, xml, json };

// As a whole document for one reader: text with the control lines, XML fragments one to a line, or JSON, one object to
// a line.
std::string rendered(const Item &item, Style style);

std::string hex_dump(std::string_view bytes);

}  // namespace tarn::tool
