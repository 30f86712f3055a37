// Bytes as hexadecimal text: the output of xxd, "hexdump -C", "tshark -x", "od -A x -t x1z" and gdb's x/NNxb,
// arrays in C, and plain digits.
#pragma once

#include <string_view>

#include "tools/tarn/support/byte_stream.h"

namespace tarn::tool {

// True if the text begins like one of them.
bool looks_like_hex(std::string_view text);

// The bytes, of which those of one line are in memory. Reading them throws a Failure that names the input, the line and
// the reason if the text stops being one of them.
ByteStream bytes_of_hex(ByteStream text);

}  // namespace tarn::tool
