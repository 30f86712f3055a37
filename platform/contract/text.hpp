// Lines of printed text and XML elements, as all primitives write them.
#pragma once

#include <bit>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "platform/contract/contract.hpp"

namespace mirk {

// Writes "<name>VALUE</name>" and a NUL that is not counted; a nonzero state becomes an attribute. Writes all or
// nothing.
uint32_t print_element(char *buffer, const char *name, uint8_t state, std::string_view value, int32_t remaining,
                       uint32_t *err);

// Decimal digits of a number. Eight are made at once: a word is divided by 100 in halves, and by 10 in quarters.
class Decimal {
public:
    explicit Decimal(uint64_t value) {
        constexpr uint64_t group = 100'000'000;
        size_t zeros = put_group(value % group);
        while (value >= group) {
            value /= group;
            zeros = put_group(value % group);
        }
        first_ += zeros;
    }
    std::string_view view() const {
        if (first_ >= sizeof digits_) __builtin_unreachable();  // shows the compiler which copies are possible
        return {digits_ + first_, sizeof digits_ - first_};
    }

private:
    // Puts eight digits before the others. Returns how many zeros they begin with, not counting the last digit.
    size_t put_group(uint64_t value) {
        const uint64_t fours = value / 10000 | value % 10000 << 32;
        const uint64_t hundreds = (fours * 10486 >> 20) & 0x7f'0000'007f;  // fours / 100, in each half
        const uint64_t twos = hundreds | (fours - hundreds * 100) << 16;
        const uint64_t tens = (twos * 103 >> 10) & 0x000f'000f'000f'000f;  // twos / 10, in each quarter
        const uint64_t digits = tens | (twos - tens * 10) << 8;            // the first one is in the lowest byte
        uint64_t text = digits | 0x3030'3030'3030'3030;
        if constexpr (std::endian::native == std::endian::big) text = __builtin_bswap64(text);
        first_ -= sizeof text;
        std::memcpy(digits_ + first_, &text, sizeof text);
        return static_cast<size_t>(std::countr_zero(digits | uint64_t{1} << 56)) / 8;
    }

    char digits_[24];
    size_t first_ = sizeof digits_;
};

// Copies the first and the last `width` bytes of a text, which may overlap.
template <size_t width>
[[gnu::always_inline]] inline void copy_both_ends(char *to, const char *from, size_t size) {
    char head[width], tail[width];
    std::memcpy(head, from, width);
    std::memcpy(tail, from + size - width, width);
    std::memcpy(to, head, width);
    std::memcpy(to + size - width, tail, width);
}

// Copies text that is usually short, such as names and numbers: two overlapping moves are cheaper than a call. Returns
// the end of the copy.
[[gnu::always_inline]] inline char *copy_short(char *to, std::string_view text) {
    const char *from = text.data();
    const size_t size = text.size();
    if (size > 32) {
        std::memcpy(to, from, size);
    } else if (size >= 16) {
        copy_both_ends<16>(to, from, size);
    } else if (size >= 8) {
        copy_both_ends<8>(to, from, size);
    } else if (size >= 4) {
        copy_both_ends<4>(to, from, size);
    } else if (size >= 2) {
        copy_both_ends<2>(to, from, size);
    } else if (size == 1) {
        *to = *from;
    }
    return to + size;
}

// Returns the end of the blanks, which are usually few.
[[gnu::always_inline]] inline char *put_blanks(char *to, uint32_t count) {
    constexpr std::string_view blanks = "                                ";
    if (count <= blanks.size()) return copy_short(to, blanks.substr(0, count));
    std::memset(to, ' ', count);
    return to + count;
}

// Measures or writes text. The same code runs twice, first without a buffer to measure and then to write, so that text
// is written completely or not at all.
class TextSink {
public:
    explicit TextSink(char *to) : to_(to) {}
    uint64_t length() const { return length_; }

    void put(std::string_view text) {
        if (to_ != nullptr) to_ = text.copy(to_, text.size()) + to_;
        length_ += text.size();
    }
    void blanks(uint32_t count) {
        if (to_ != nullptr) {
            for (uint32_t i = 0; i < count; ++i) *to_++ = ' ';
        }
        length_ += count;
    }

private:
    char *to_;
    uint64_t length_ = 0;
};

// Runs `walk` with a measuring and then with a writing sink. EMSGSIZE if the text and its NUL do not fit.
template <typename Walk>
uint32_t write_whole(char *buffer, int32_t remaining, uint32_t *err, Walk walk) {
    TextSink measured(nullptr);
    walk(measured);
    if (remaining < 0 || measured.length() + 1 > static_cast<uint64_t>(remaining)) {
        *err = EMSGSIZE;
        return 0;
    }
    TextSink written(buffer);
    walk(written);
    buffer[written.length()] = 0;
    return static_cast<uint32_t>(written.length());
}

inline std::string_view text_or_empty(const char *text) { return text != nullptr ? std::string_view(text) : ""; }

// Writes `indent` blanks, "name@kind:VALUE", a line end and a NUL that is not counted. Writes all or nothing. Inlined,
// because most printed text is such lines and callers pass a constant `kind`.
[[gnu::always_inline]] inline uint32_t print_line(char *buffer, uint32_t indent, const char *name,
                                                  std::string_view kind, std::string_view value, int32_t remaining,
                                                  uint32_t *err) {
    const std::string_view own = text_or_empty(name);
    const uint64_t length = uint64_t{indent} + own.size() + kind.size() + value.size() + 1;
    if (remaining < 0 || length + 1 > static_cast<uint64_t>(remaining)) {
        *err = EMSGSIZE;
        return 0;
    }
    char *to = copy_short(put_blanks(buffer, indent), own);
    std::memcpy(to, kind.data(), kind.size());
    to = copy_short(to + kind.size(), value);
    to[0] = '\n';
    to[1] = 0;
    return static_cast<uint32_t>(length);
}

// Writes the opening tag; `name` may contain attributes after a blank.
void put_start_tag(TextSink &sink, std::string_view name, uint8_t state);
void put_end_tag(TextSink &sink, std::string_view name);

// The text without the blanks of XML at both ends.
inline std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// Parses the whole text as a decimal number that fits T.
template <typename T>
bool parse_decimal(std::string_view text, T *value) {
    T parsed{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), parsed);
    if (error != std::errc() || end != text.data() + text.size() || text.empty()) return false;
    *value = parsed;
    return true;
}

}  // namespace mirk
