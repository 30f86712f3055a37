#include "tools/tarn/formats/reader.h"

#include "schema/frame.h"
#include "tools/tarn/formats/capture.h"
#include "tools/tarn/formats/frame_reader.h"
#include "tools/tarn/formats/frames.h"
#include "tools/tarn/formats/hex_dump.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/xml.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"

namespace tarn::tool {

namespace {

std::vector<Item> from_frames(const Handles &handles, std::string_view content, const std::string &origin) {
    std::vector<Item> items;
    for (const Frame &frame : split_frames(bytes_of(content), origin)) items.push_back(item_of(handles, frame, origin));
    return items;
}

std::vector<Item> from_xml(const Handles &handles, std::string_view content, const std::string &origin, bool lenient) {
    std::vector<Item> items;
    for (const Fragment &fragment : split_fragments(content, origin)) {
        items.push_back(item_of(handles, fragment, origin, lenient));
    }
    return items;
}

// The frames of all connections, without the requests.
std::string frames_of_capture(ByteStream &file) {
    Capture capture = read_capture(file, MIRK_PLATFORM_TCP_PORT);
    if (!capture.missing.empty()) throw capture.missing.front();
    std::string frames;
    for (Sent &sent : capture.sent) {
        FrameReader reader(sent.bytes, false);
        while (const auto stretch = reader.next()) {
            if (!stretch->fault.empty()) {
                throw Failure(Exit::input, frame_location(sent.bytes.name(), stretch->offset) + ": " + stretch->fault);
            }
            if (stretch->identity) frames += chars_of(stretch->bytes);
        }
    }
    return frames;
}

}  // namespace

std::string read_input(const std::string &path, From from) {
    ByteStream file = open_input(path);
    if (from != From::hex && is_capture(file.look(4))) return frames_of_capture(file);
    std::string content = file.take_rest();
    if (from == From::hex || looks_like_hex(content)) return bytes_of_hex(content, shown_path(path));
    return content;
}

Form form_of(std::string_view content, const std::string &origin) {
    if (content.substr(0, 3) == "\xEF\xBB\xBF") content.remove_prefix(3);
    const std::size_t first = content.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos) throw Failure(Exit::input, origin + ": empty");
    switch (content[first]) {
        case '<':
            return Form::xml;
        case '{':
        case '[':
            return Form::json;
        case static_cast<char>(schema::frame_marker):
            return Form::frames;
        default:
            throw Failure(Exit::input, origin + ": neither frames nor XML nor JSON");
    }
}

std::vector<Item> items_of(const Handles &handles, std::string_view content, const std::string &origin, bool lenient) {
    switch (form_of(content, origin)) {
        case Form::frames:
            return from_frames(handles, content, origin);
        case Form::xml:
            return from_xml(handles, content, origin, lenient);
        case Form::json:
            break;
    }
    return from_json(handles, content, origin, lenient);
}

std::vector<Item> read_items(const Handles &handles, const std::string &path, bool lenient, From from) {
    const std::string origin = shown_path(path);
    std::vector<Item> items = items_of(handles, read_input(path, from), origin, lenient);
    if (items.empty()) throw Failure(Exit::input, origin + ": no message");
    return items;
}

}  // namespace tarn::tool
