// Bytes as hexadecimal text: the output of xxd, "hexdump -C", "tshark -x", "od -A x -t x1z" and gdb's x/NNxb,
// arrays in C, and plain digits.
#pragma once

#include <string>
#include <string_view>

namespace tarn::tool {

// True if the text begins like one of them.
bool looks_like_hex(std::string_view text);

// The bytes. Throws a Failure that names the origin, the line and the reason if the text stops being one of them.
std::string bytes_of_hex(std::string_view text, const std::string &origin);

}  // namespace tarn::tool
