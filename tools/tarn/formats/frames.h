// Splits bytes into frames by the length in their headers, and reads a frame.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "schema/frame.h"
#include "tools/tarn/formats/item.h"

namespace tarn::tool {

using FrameBytes = std::span<const std::uint8_t>;

struct Frame {
    FrameBytes bytes;
    std::size_t offset;
    Identity identity;

    // True if the frame contains per-field state.
    bool is_tracked() const { return bytes[offset_of(schema::message_frame, "sttr")] != 0; }
};

inline FrameBytes bytes_of(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t *>(text.data()), text.size()};
}

inline std::string_view chars_of(FrameBytes bytes) {
    return {reinterpret_cast<const char *>(bytes.data()), bytes.size()};
}

// Why the bytes do not begin with a frame, of which `left` bytes are there; empty if they do.
std::string fault_of(FrameBytes bytes, std::uint64_t left);
// The number of bytes that a frame has according to its header; 0 if the bytes do not begin with one.
std::size_t claimed_size(FrameBytes bytes);
std::string unknown_luid(FrameBytes frame);

// The frame at the offset, in two steps: its bytes, then its identity. Throws a Failure that names the origin, the
// offset and the reason.
FrameBytes frame_bytes_at(FrameBytes bytes, std::size_t offset, const std::string &origin);
Frame identified(FrameBytes frame, std::size_t offset, const std::string &origin);
Frame frame_at(FrameBytes bytes, std::size_t offset, const std::string &origin);
std::vector<Frame> split_frames(FrameBytes bytes, const std::string &origin);

Item item_of(const Handles &handles, const Frame &frame, const std::string &origin);

// "FILE: frame at offset N"
std::string frame_location(const std::string &origin, std::size_t offset);

}  // namespace tarn::tool
