// Frames byte by byte, for people and for programs.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "tools/tarn/formats/dissection.h"

namespace tarn::tool {

using Write = std::function<void(std::string_view)>;

// Prints one frame after the other, in pieces of limited size, while the frame is walked.
class Dump : public DissectionVisitor {
public:
    virtual void begin(std::size_t offset) = 0;
    virtual void end(const Walked &walked) = 0;
};

// A line for each member: its offset, its bytes, its name and its value, and its state if there is any.
std::unique_ptr<Dump> text_dump(Write write);

// A line for each frame:
//
//   {"offset": 0, "size": 65, "parts": [FIELD or GROUP, ...], "broken": {"offset": 57, "path": PATH, "reason": TEXT}}
//   a field: {"name": NAME, "offset": N, "size": N, "kind": KIND, "value": TEXT}
//   a group: {"name": NAME, "kind": KIND, "parts": [FIELD or GROUP, ...]}
//
// An element of a list and its state have an "index". The size follows the parts. "broken" is present if the frame is
// broken.
std::unique_ptr<Dump> json_dump(Write write);

}  // namespace tarn::tool
