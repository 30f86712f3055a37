// Frames as text that people edit, and back. docs/assemble.md describes the language.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "tools/tarn/formats/frames.h"

namespace tarn::tool {

// The text of all bytes of a file, frame by frame, also of broken frames and of bytes between frames. Assembled, it
// gives the same bytes.
void write_source(FrameBytes bytes, const std::function<void(std::string_view)> &write);

// The bytes that the text describes. Throws a Failure that names the origin, the line, the column and the reason.
std::string assemble(std::string_view text, const std::string &origin);

}  // namespace tarn::tool
