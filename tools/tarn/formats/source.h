// Frames as text that people edit, and back. docs/assemble.md describes the language.
#pragma once

#include <functional>
#include <string_view>

#include "tools/tarn/support/byte_stream.h"

namespace tarn::tool {

// The text of all bytes of a file, frame by frame, also of broken frames and of bytes between frames. Assembled, it
// gives the same bytes. One frame is in memory, or the bytes between two.
void write_source(ByteStream &bytes, const std::function<void(std::string_view)> &write);

// The bytes that the text describes, of which one frame is in memory. Throws a Failure that names the input, the line,
// the column and the reason.
void assemble(ByteStream &text, const std::function<void(std::string_view)> &write);

}  // namespace tarn::tool
