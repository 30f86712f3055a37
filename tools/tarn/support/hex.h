// Hexadecimal digits of bytes and numbers.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace tarn::tool {

// Two digits per byte, each byte followed by `separator`.
inline std::string hex_text(std::span<const std::uint8_t> bytes, const std::string &separator = {}) {
    constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += {digits[byte >> 4], digits[byte & 15]};
        text += separator;
    }
    return text;
}

// 0x7f00
inline std::string hex_number(std::uint64_t number) {
    constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (; number != 0 || text.empty(); number >>= 4) text.insert(text.begin(), digits[number & 15]);
    return "0x" + text;
}

}  // namespace tarn::tool
