// Bytes in hexadecimal digits.
#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace tarn::tool {

// Two digits a byte, each byte followed by `gap`.
inline std::string hex_text(std::span<const std::uint8_t> bytes, const std::string &gap = {}) {
    constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += {digits[byte >> 4], digits[byte & 15]};
        text += gap;
    }
    return text;
}

}  // namespace tarn::tool
