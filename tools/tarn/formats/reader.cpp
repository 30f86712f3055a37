#include "tools/tarn/formats/reader.h"

#include <memory>
#include <optional>
#include <utility>

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

// The frames of all connections in a capture, without the requests.
class CapturedFrames {
public:
    explicit CapturedFrames(Capture capture) : capture_(std::move(capture)) {
        if (!capture_.missing.empty()) throw capture_.missing.front();
    }

    std::size_t read(char *to, std::size_t most) {
        while (rest_.empty() && current_ < capture_.sent.size()) read_frame();
        const std::size_t got = rest_.copy(to, most);
        rest_.remove_prefix(got);
        return got;
    }

private:
    void read_frame() {
        ByteStream &bytes = capture_.sent[current_].bytes;
        if (!reader_) reader_.emplace(bytes, false);
        const std::optional<Stretch> stretch = reader_->next();
        if (!stretch) {
            reader_.reset();
            ++current_;
        } else if (!stretch->fault.empty()) {
            throw Failure(Exit::input, frame_location(bytes.name(), stretch->offset) + ": " + stretch->fault);
        } else if (stretch->identity) {
            rest_ = chars_of(stretch->bytes);
        }
    }

    Capture capture_;
    std::size_t current_ = 0;
    std::optional<FrameReader> reader_;
    std::string_view rest_;  // of the last frame
};

}  // namespace

ByteStream converted(ByteStream file, From from) {
    if (from != From::hex && !looks_like_hex(file.look(enough_to_detect))) return file;
    return bytes_of_hex(std::move(file));
}

ByteStream open_bytes(const std::string &path, From from) {
    ByteStream file = open_input(path);
    if (from == From::hex || !is_capture(file.look(enough_to_detect))) return converted(std::move(file), from);
    const auto frames = std::make_shared<CapturedFrames>(read_capture(file, MIRK_PLATFORM_TCP_PORT));
    return {file.name(), [frames](char *to, std::size_t most) { return frames->read(to, most); }};
}

std::string read_input(const std::string &path, From from) { return open_bytes(path, from).take_rest(); }

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
        case Form::xml: {
            ByteStream stream = stream_of(std::string(content), origin);
            XmlReader reader(handles, stream, lenient);
            std::vector<Item> items;
            while (std::optional<Item> item = reader.next()) items.push_back(std::move(*item));
            return items;
        }
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
