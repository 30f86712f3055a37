// Strings: the value is characters with a length, never NUL-terminated.
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include "platform/contract/document.hpp"
#include "platform/contract/text.hpp"

namespace {

constexpr uint64_t ones = 0x0101010101010101u;

using mirk::TextSink;

// Length of the character at `text`, if it is UTF-8 that an XML document may hold, else 0.
size_t xml_character(std::string_view text) {
    const auto byte = [&](size_t i) { return static_cast<uint8_t>(text[i]); };
    const uint8_t first = byte(0);
    if (first < 0x80) return first >= 0x20 || first == '\t' || first == '\n' || first == '\r' ? 1 : 0;
    const size_t length = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
    if (first < 0xc2 || first > 0xf4 || text.size() < length) return 0;
    uint32_t code = first & (0x7fu >> length);
    for (size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xc0) != 0x80) return 0;
        code = code << 6 | (byte(i) & 0x3fu);
    }
    constexpr std::array<uint32_t, 5> least = {0, 0, 0x80, 0x800, 0x10000};
    if (code < least[length] || code > 0x10ffff) return 0;
    if ((code >= 0xd800 && code <= 0xdfff) || code == 0xfffe || code == 0xffff) return 0;
    return length;
}

// Replaces each byte that XML does not allow by one "?", so that the length stays the same.
void put_escaped(TextSink &sink, std::string_view text) {
    const auto stays = [](char c) {
        const auto byte = static_cast<uint8_t>(c);
        return byte >= 0x20 && byte < 0x80 && c != '&' && c != '<' && c != '>' && c != '"';
    };
    while (!text.empty()) {
        const auto run = static_cast<size_t>(std::find_if_not(text.begin(), text.end(), stays) - text.begin());
        sink.put(text.substr(0, run));
        text.remove_prefix(run);
        if (text.empty()) break;
        const size_t length = xml_character(text);
        switch (length == 0 ? '?' : text[0]) {
            case '&':
                sink.put("&amp;");
                break;
            case '<':
                sink.put("&lt;");
                break;
            case '>':
                sink.put("&gt;");
                break;
            case '"':
                sink.put("&quot;");
                break;
            case '\r':
                sink.put("&#13;");
                break;
            default:
                sink.put(length == 0 ? "?" : text.substr(0, length));
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
}

// Sets the high bit of each byte that equals the given one. The word must have no high bits set.
uint64_t bytes_that_are(uint64_t word, uint8_t byte) {
    const uint64_t difference = word ^ (ones * byte);
    return (difference - ones) & ~difference & ones * 0x80;
}

bool prints_unchanged(uint8_t byte) { return byte >= 0x20 && byte < 0x7f && byte != '\\'; }
// The same for eight characters.
bool all_print_unchanged(const char *text) {
    uint64_t word;
    std::memcpy(&word, text, sizeof word);
    const uint64_t control = (word - ones * 0x20) & ~word;
    return ((word | control) & ones * 0x80) == 0 && (bytes_that_are(word, 0x7f) | bytes_that_are(word, '\\')) == 0;
}

// Number of leading characters that are printed unchanged. Examines eight at a time; the last eight may overlap others.
size_t printable_prefix(std::string_view text) {
    constexpr size_t width = sizeof(uint64_t);
    size_t at = 0;
    if (text.size() >= width) {
        const size_t last = text.size() - width;
        while (at < last && all_print_unchanged(text.data() + at)) at += width;
        if (at >= last && all_print_unchanged(text.data() + last)) return text.size();
        at = std::min(at, last);
    }
    while (at < text.size() && prints_unchanged(static_cast<uint8_t>(text[at]))) ++at;
    return at;
}

// Escapes control characters, so that a string stays on one line.
void put_printable(TextSink &sink, std::string_view text) {
    constexpr char digits[] = "0123456789abcdef";
    while (!text.empty()) {
        const size_t run = printable_prefix(text);
        sink.put(text.substr(0, run));
        text.remove_prefix(run);
        if (text.empty()) break;
        const auto byte = static_cast<uint8_t>(text[0]);
        const char hex[4] = {'\\', 'x', digits[byte >> 4], digits[byte & 15]};
        sink.put(byte == '\\' ? std::string_view("\\\\") : std::string_view(hex, sizeof hex));
        text.remove_prefix(1);
    }
}

bool usable(const char *buffer, const char *chars, uint32_t length, uint32_t *err) {
    if (*err != 0) return false;
    if (buffer == nullptr || (chars == nullptr && length != 0)) *err = EINVAL;
    return *err == 0;
}

std::string_view view(const char *chars, uint32_t length) {
    return length == 0 ? std::string_view() : std::string_view(chars, length);
}

}  // namespace

extern "C" {

// One character is one byte.
uint32_t char_len(mirk_handle *, uint32_t, void *) { return 1; }
uint32_t char_sizeof(mirk_handle *) { return 1; }

uint32_t var_string_print(mirk_handle *, uint32_t, char *buffer, uint32_t indent, const char *name, const char *chars,
                          int32_t remaining, uint32_t length, uint32_t *err) {
    if (!usable(buffer, chars, length, err)) return 0;
    const std::string_view text = view(chars, length);
    if (printable_prefix(text) == text.size()) {
        return mirk::print_line(buffer, indent, name, "@var_string:", text, remaining, err);
    }
    const std::string_view own = mirk::text_or_empty(name);
    return mirk::write_whole(buffer, remaining, err, [&](TextSink &sink) {
        sink.blanks(indent);
        sink.put(own);
        sink.put("@var_string:");
        put_printable(sink, text);
        sink.put("\n");
    });
}

uint32_t var_string_to_xml(mirk_handle *, uint32_t, const char *name, char *buffer, const char *chars,
                           int32_t remaining, uint32_t length, uint8_t state, uint32_t *err) {
    if (!usable(buffer, chars, length, err)) return 0;
    const std::string_view own = mirk::text_or_empty(name);
    return mirk::write_whole(buffer, remaining, err, [&](TextSink &sink) {
        mirk::put_start_tag(sink, own, state);
        put_escaped(sink, view(chars, length));
        mirk::put_end_tag(sink, own);
    });
}

void var_string_from_xml(mirk_handle *, uint32_t, const char *path, void *document, char *buffer, uint32_t size,
                         uint32_t *err, char *, uint32_t) {
    if (*err != 0) return;
    *err = buffer == nullptr ? EINVAL : xml_get_element_value(document, path, buffer, size, nullptr);
}

}  // extern "C"
