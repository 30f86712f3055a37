// A buffer of a given size with a guard byte that may be written, and bytes around both that must not be.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace kit {

class Buffer {
public:
    using Bytes = std::vector<std::uint8_t>;

    explicit Buffer(std::size_t size) : bytes_(size + 1 + 2 * margin, fill), size_(size) {}
    explicit Buffer(const Bytes &content) : Buffer(content.size()) { set(content); }
    void set(const Bytes &content) { std::copy(content.begin(), content.end(), bytes_.begin() + margin); }

    std::uint8_t *data() { return bytes_.data() + margin; }
    char *text() { return reinterpret_cast<char *>(data()); }
    std::uint32_t size() const { return static_cast<std::uint32_t>(size_); }
    Bytes first(std::size_t n) const {
        const auto begin = bytes_.begin() + margin;
        return {begin, begin + static_cast<std::ptrdiff_t>(n)};
    }
    bool untouched(std::size_t from = 0) const {
        return std::all_of(bytes_.begin() + margin + static_cast<std::ptrdiff_t>(from), bytes_.end(), is_fill);
    }
    // The guard byte may have been written, but nothing after it.
    bool guards_are_intact() const {
        return std::all_of(bytes_.begin(), bytes_.begin() + margin, is_fill) &&
               std::all_of(bytes_.end() - margin, bytes_.end(), is_fill);
    }

private:
    static constexpr std::ptrdiff_t margin = 16;
    static constexpr std::uint8_t fill = 0xA5;
    static bool is_fill(std::uint8_t byte) { return byte == fill; }

    Bytes bytes_;
    std::size_t size_;
};

}  // namespace kit
