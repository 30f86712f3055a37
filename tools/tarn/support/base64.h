// Base64, as browsers decode it.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tarn::tool {

inline std::string base64_of(std::span<const std::uint8_t> bytes) {
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::size_t count = std::min<std::size_t>(3, bytes.size() - at);
        std::uint32_t bits = 0;
        for (std::size_t i = 0; i < 3; ++i) bits = bits << 8 | (i < count ? bytes[at + i] : 0);
        for (std::size_t i = 0; i < 4; ++i) text += i <= count ? letters[bits >> (18 - 6 * i) & 63] : '=';
    }
    return text;
}

}  // namespace tarn::tool
