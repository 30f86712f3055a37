// Blanks, formatted text, tags.
#include "platform/contract/text.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace mirk {

uint32_t print_element(char *buffer, const char *name, uint8_t state, std::string_view value, int32_t remaining,
                       uint32_t *err) {
    const std::string_view own = text_or_empty(name);
    return write_whole(buffer, remaining, err, [&](TextSink &sink) {
        put_start_tag(sink, own, state);
        sink.put(value);
        put_end_tag(sink, own);
    });
}

void put_start_tag(TextSink &sink, std::string_view name, uint8_t state) {
    sink.put("<");
    sink.put(name);
    if (state != 0) {
        sink.put(" state=\"");
        sink.put(Decimal(state).view());
        sink.put("\"");
    }
    sink.put(">");
}

void put_end_tag(TextSink &sink, std::string_view name) {
    sink.put("</");
    sink.put(name);
    sink.put(">");
}

}  // namespace mirk

namespace {

constexpr int unsupported_format = -2;

// Most formats contain only text and %s. Formats those as vsnprintf does, but faster.
int print_strings(char *buffer, size_t size, const char *format, va_list arguments) {
    size_t length = 0;
    for (; *format != 0; ++format) {
        if (*format != '%') {
            if (length < size) buffer[length] = *format;
            ++length;
            continue;
        }
        if (*++format != 's') return unsupported_format;
        const char *argument = va_arg(arguments, const char *);
        const std::string_view text = argument != nullptr ? argument : "(null)";
        if (length < size) text.copy(buffer + length, size - length);
        length += text.size();
    }
    buffer[std::min(length, size - 1)] = 0;
    return length <= INT32_MAX ? static_cast<int>(length) : -1;
}

}  // namespace

extern "C" {

uint32_t mirk_print_space(mirk_handle *, uint32_t, char *buffer, uint32_t indent, int32_t remaining, uint32_t *err) {
    if (*err != 0 || indent == 0) return 0;
    if (buffer == nullptr) {
        *err = EINVAL;
        return 0;
    }
    if (remaining < 0 || indent > static_cast<uint32_t>(remaining)) {
        *err = ENOSPC;
        return 0;
    }
    // No NUL, since a caller may fill blanks into text that already exists.
    mirk::put_blanks(buffer, indent);
    return indent;
}

uint32_t mirk_snprintf(mirk_handle *, uint32_t, char *buffer, int32_t remaining, uint32_t *err, const char *format,
                       ...) {
    if (*err != 0) return 0;
    if (buffer == nullptr || format == nullptr) {
        *err = EINVAL;
        return 0;
    }
    if (remaining < 1) {
        *err = ENOSPC;
        return 0;
    }
    va_list arguments;
    va_start(arguments, format);
    int length = print_strings(buffer, static_cast<size_t>(remaining), format, arguments);
    va_end(arguments);
    if (length == unsupported_format) {
        va_start(arguments, format);
        length = std::vsnprintf(buffer, static_cast<size_t>(remaining), format, arguments);
        va_end(arguments);
    }
    if (length < 0) {
        *err = EINVAL;
        return 0;
    }
    if (length >= remaining) {
        *err = ENOSPC;
        return static_cast<uint32_t>(remaining - 1);
    }
    return static_cast<uint32_t>(length);
}

uint32_t start_tag(mirk_handle *, uint32_t, char *buffer, const char *name, int32_t remaining, uint8_t state,
                   uint32_t *err) {
    if (*err != 0) return 0;
    if (buffer == nullptr || name == nullptr) {
        *err = EINVAL;
        return 0;
    }
    return mirk::write_whole(buffer, remaining, err,
                             [&](mirk::TextSink &sink) { mirk::put_start_tag(sink, name, state); });
}

uint32_t end_tag(mirk_handle *, uint32_t, char *buffer, const char *name, int32_t remaining, uint32_t *err) {
    if (*err != 0) return 0;
    if (buffer == nullptr || name == nullptr) {
        *err = EINVAL;
        return 0;
    }
    return mirk::write_whole(buffer, remaining, err, [&](mirk::TextSink &sink) { mirk::put_end_tag(sink, name); });
}

uint32_t xml_enum_print(mirk_handle *, uint32_t, char *buffer, const char *text, int32_t remaining,
                        uint32_t text_length, uint32_t *err) {
    if (*err != 0) return 0;
    if (buffer == nullptr || text == nullptr) {
        *err = EINVAL;
        return 0;
    }
    return mirk::write_whole(buffer, remaining, err, [&](mirk::TextSink &sink) { sink.put({text, text_length}); });
}

}  // extern "C"
