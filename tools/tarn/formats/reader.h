// Reads files of any format: frames, also as hexadecimal text, XML or JSON.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/tarn/formats/item.h"

namespace tarn::tool {

enum class Form : std::uint8_t { frames, xml, json };

// How to take the bytes of a file: by looking at them, or as hexadecimal text.
enum class From : std::uint8_t { detect, hex };

// The content of a file; hexadecimal text is converted to the bytes that it shows, and a network capture to the frames
// of all connections with the default port.
std::string read_input(const std::string &path, From from = From::detect);

// Decides by the first byte that is not a blank.
Form form_of(std::string_view content, const std::string &origin);

std::vector<Item> items_of(const Handles &handles, std::string_view content, const std::string &origin, bool lenient);
std::vector<Item> read_items(const Handles &handles, const std::string &path, bool lenient, From from = From::detect);

}  // namespace tarn::tool
