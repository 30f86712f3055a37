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
    virtual void begin(const std::string &file, std::size_t offset) = 0;  // an empty name is omitted
    virtual void end(const Walked &walked) = 0;
};

// A line for each member: its offset, its bytes, its name and its value, and its state if there is any.
std::unique_ptr<Dump> text_dump(Write write);

// A line for each frame:
//
//   {"file": NAME, "offset": 0, "parts": [FIELD or GROUP, ...], "size": 59,
//    "broken": {"offset": 57, "path": PATH, "reason": TEXT}}
//   a field: {"name": NAME, "offset": N, "size": N, "kind": KIND, "value": TEXT}
//   a group: {"name": NAME, "kind": KIND, "parts": [FIELD or GROUP, ...]}
//
// An element of a list and its state have an "index". A pointer and an address also have a "text" for people. The size
// is that of the parts. "broken" is present if the frame is broken.
std::unique_ptr<Dump> json_dump(Write write);

}  // namespace tarn::tool
