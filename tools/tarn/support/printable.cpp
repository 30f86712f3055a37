#include "tools/tarn/support/printable.h"

#include <algorithm>
#include <cstdio>

namespace tarn::tool {

namespace {

struct Character {
    char32_t code;
    std::size_t size;  // 0 if the bytes are not UTF-8
};

Character first_of(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    if (byte(0) < 0x80) return {byte(0), 1};
    const std::size_t size = byte(0) >= 0xf0 ? 4 : byte(0) >= 0xe0 ? 3 : 2;
    const Character invalid{byte(0), 0};
    if (byte(0) < 0xc2 || byte(0) > 0xf4 || text.size() < size) return invalid;
    char32_t code = byte(0) & (0x7fU >> size);
    for (std::size_t i = 1; i < size; ++i) {
        if ((byte(i) & 0xc0) != 0x80) return invalid;
        code = code << 6 | (byte(i) & 0x3fU);
    }
    const bool overlong = code < (size == 4 ? 0x10000U : size == 3 ? 0x800U : 0x80U);
    const bool surrogate = code >= 0xd800 && code < 0xe000;
    return overlong || surrogate || code > 0x10ffff ? invalid : Character{code, size};
}

bool is_control(char32_t code) { return code < 0x20 || (code >= 0x7f && code < 0xa0); }

// Line and paragraph separators, and the marks, embeddings, overrides and isolates of bidirectional text.
bool is_layout(char32_t code) {
    return code == 0x61c || code == 0x200e || code == 0x200f || (code >= 0x2028 && code <= 0x202e) ||
           (code >= 0x2066 && code <= 0x2069);
}

std::string escape(const Character &character, Notation notation) {
    const auto code = static_cast<unsigned>(character.code);
    const bool is_byte = character.size == 0 || code < 0x80;
    const char *const form = notation == Notation::xml               ? "&#%u;"
                             : notation == Notation::text && is_byte ? "\\x%02x"
                                                                     : "\\u%04x";
    char text[16];
    std::snprintf(text, sizeof text, form, code);
    return text;
}

// True of nearly all output. Without an early exit, the compiler takes many characters at a time.
bool is_printable_ascii(std::string_view text, bool keep_lines) {
    const char kept = keep_lines ? '\n' : ' ';
    unsigned others = 0;
    for (const char c : text) others |= (c < ' ' || c > '~') && c != kept ? 1U : 0U;
    return others == 0;
}

std::string escaped(std::string_view text, Notation notation, bool keep_lines) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const auto end = std::find_if_not(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
        out.append(text.begin(), end);
        text.remove_prefix(static_cast<std::size_t>(end - text.begin()));
        if (text.empty()) break;
        const Character character = first_of(text);
        const bool line_end = character.code == '\n' && keep_lines;
        const bool unsafe = character.size == 0 || is_control(character.code) || is_layout(character.code);
        const std::size_t size = std::max<std::size_t>(character.size, 1);
        out += unsafe && !line_end ? escape(character, notation) : std::string(text.substr(0, size));
        text.remove_prefix(size);
    }
    return out;
}

}  // namespace

std::string printable(std::string_view text, std::size_t most) {
    if (text.size() <= most) return escaped(text, Notation::text, false);
    // Not inside a character.
    std::size_t size = most;
    while (size > 0 && (static_cast<unsigned char>(text[size]) & 0xc0) == 0x80 && most - size < 3) --size;
    return escaped(text.substr(0, size), Notation::text, false) + "... (" + std::to_string(text.size()) + " bytes)";
}

bool is_utf8(std::string_view text) {
    unsigned char bits = 0;
    for (const char c : text) bits |= static_cast<unsigned char>(c);
    if (bits < 0x80) return true;
    while (!text.empty()) {
        const std::size_t size = first_of(text).size;
        if (size == 0) return false;
        text.remove_prefix(size);
    }
    return true;
}

std::string in_quotes(std::string_view text) { return "\"" + printable(text) + "\""; }

std::string printable_output(std::string output, Notation notation) {
    const bool keep_lines = notation != Notation::xml;
    return is_printable_ascii(output, keep_lines) ? output : escaped(output, notation, keep_lines);
}

}  // namespace tarn::tool
