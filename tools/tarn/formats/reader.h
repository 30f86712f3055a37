// Reads files of any format: frames, also as hexadecimal text, XML or JSON.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/tarn/formats/item.h"
#include "tools/tarn/support/byte_stream.h"

namespace tarn::tool {

enum class Form : std::uint8_t { frames, xml, json };

// How to take the bytes of a file: by looking at them, or as hexadecimal text.
enum class From : std::uint8_t { detect, hex };

// Enough to tell what a file contains.
inline constexpr std::size_t enough_to_detect = std::size_t{64} << 10;

// The bytes of a file. Hexadecimal text is converted to the bytes that it shows, and a network capture to the frames of
// all connections with the default port; a Failure names what is missing or broken in it.
ByteStream open_bytes(const std::string &path, From from);
std::string read_input(const std::string &path, From from = From::detect);
// The bytes, or those that they show as hexadecimal text.
ByteStream converted(ByteStream file, From from);

// Decides by the first byte that is not a blank.
Form form_of(std::string_view content, const std::string &origin);

std::vector<Item> items_of(const Handles &handles, std::string_view content, const std::string &origin, bool lenient);
std::vector<Item> read_items(const Handles &handles, const std::string &path, bool lenient, From from = From::detect);

}  // namespace tarn::tool
