// Frames of records and messages: numbers and the jump are big-endian, a boolean is a variant and a value byte, an
// address a record frame of its own, and RA data a 64-bit number and a byte.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "reference/value.h"

namespace reference {

using Bytes = std::vector<std::uint8_t>;

// The record's frame. A variant above 0 is written as 0.
Bytes encode(const Record &value, bool tracked);

// A value of at most two elements to an array and five characters to a string, whose frame has a few hundred bytes.
Record small_value(std::string_view type, std::uint64_t seed, bool printable = false);

struct Decoded {
    std::optional<Record> value;  // empty if the bytes are not exactly a frame
    std::size_t consumed = 0;
    std::size_t offset = 0;  // offset of the error in the outermost frame
    std::string reason;
};

// Strict: the frame must be what encode writes, tracked or not as given, and complete. Bytes after the frame are
// ignored and not included in consumed.
Decoded decode(std::string_view type, std::span<const std::uint8_t> bytes, bool tracked);

struct Header {
    std::uint8_t marker = 0;
    std::uint8_t fill[6] = {};
    std::uint8_t sttr = 0;
    std::uint32_t stamp = 0, total_length = 0;
};

constexpr std::size_t header_size = 27;
constexpr std::size_t payload_offset = 43;

Bytes message_frame(std::string_view message, const Record &payload, bool tracked, std::uint32_t stamp);
Bytes control_frame(std::string_view bundle, std::string_view kind, std::uint32_t stamp);

// Empty if there are fewer than 27 bytes, the marker is wrong, or the last 11 bytes of the header are not zero.
std::optional<Header> decode_header(std::span<const std::uint8_t> frame);
Decoded decode_message(std::string_view message, std::span<const std::uint8_t> frame, bool tracked);

}  // namespace reference
