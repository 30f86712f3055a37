// Cutting a run of bytes into frames by the length that each of them states.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "tools/tarn/support/handle.h"
#include "tools/tarn/support/names.h"

namespace tarn::tool {

using FrameBytes = std::span<const std::uint8_t>;

struct Frame {
    FrameBytes bytes;
    std::size_t offset;
    Identity identity;

    // The sender made the message with per-field state.
    bool is_tracked() const { return bytes[7] != 0; }
};

inline FrameBytes bytes_of(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t *>(text.data()), text.size()};
}

// The frame at the front of the bytes, or a Failure that names the origin, the offset and the reason.
Frame frame_at(FrameBytes bytes, std::size_t offset, const std::string &origin);
std::vector<Frame> split_frames(FrameBytes bytes, const std::string &origin);

// "FILE: frame at offset N"
std::string frame_place(const std::string &origin, std::size_t offset);

}  // namespace tarn::tool
