#include "tools/tarn/formats/writer.h"

#include <cctype>
#include <cstdio>

#include "tools/tarn/formats/frames.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/message.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

std::string rendered(const Item &item, Style style) {
    if (style == Style::json) return json_line(item) + "\n";
    // A control message has no object, so any handle can write it.
    thread_local const Handle any(false);
    const Handle &handle = item.message ? item.message->handle() : any;
    const reflect::MessageOperations &operations = *item.identity.operations;
    if (style == Style::xml) return printable_output(xml_of(handle, operations, item.object()), Notation::xml) + "\n";
    if (style == Style::text) return printable_output(text_of(handle, operations, item.object()), Notation::text);
    return std::string(chars_of(frame_of(handle, operations, item.object())));
}

std::string hex_dump(std::string_view bytes, std::size_t from) {
    std::string dump;
    for (std::size_t at = 0; at < bytes.size(); at += 16) {
        char offset[24];
        std::snprintf(offset, sizeof offset, "%08zx ", from + at);
        dump += offset;
        const std::string_view line = bytes.substr(at, 16);
        for (std::size_t i = 0; i < 16; ++i) {
            if (i == 8) dump += ' ';
            char pair[8] = "   ";
            if (i < line.size()) std::snprintf(pair, sizeof pair, " %02x", static_cast<unsigned char>(line[i]));
            dump += pair;
        }
        dump += "  |";
        for (const char c : line) dump += std::isprint(static_cast<unsigned char>(c)) != 0 ? c : '.';
        dump += "|\n";
    }
    return dump;
}

}  // namespace tarn::tool
