// Input of the command-line tool: frames, JSON, XML and recordings, each recognized by its first byte; and the output
// for broken frames.
#include <nlohmann/json.hpp>

#include "tool_target.h"
#include "tools/tarn/formats/dissection.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/formats/writer.h"
#include "tools/tarn/formats/xml_check.h"
#include "tools/tarn/service/receiver.h"

namespace {

using namespace tarn::tool;
using fuzz::require;

constexpr unsigned lenient_bit = 0, tracking_bit = 1, falls_bit = 3;

void read(std::string_view content, const fuzz::Choice &choice) {
    const Handles handles(choice.bit(tracking_bit)       ? Tracking::on
                          : choice.bit(tracking_bit + 1) ? Tracking::off
                                                         : Tracking::as_input);
    const std::vector<Item> items = items_of(handles, content, "input", choice.bit(lenient_bit));
    std::string all;
    for (const Item &item : items) {
        rendered(item, Style::text);
        rendered(item, Style::xml);
        all += rendered(item, Style::json);
    }
    // Its own output must be read to the same value.
    if (items.empty()) return;
    std::string again;
    for (const Item &item : from_json(handles, all, "output", false)) again += rendered(item, Style::json);
    require(all == again, "JSON that was written reads back as it was");
}

class Fields : public DissectionVisitor {
public:
    Fields(std::size_t begin, std::size_t end) : at_(begin), end_(end) {}

    void open(const Group &) override { ++depth_; }
    void close() override { --depth_; }
    void field(const Field &field) override {
        require(field.offset == at_, "fields are adjacent");
        at_ += field.bytes.size();
        require(at_ <= end_, "fields are inside the frame");
        std::string value;
        append_value(field, value);
    }
    bool is_closed() const { return depth_ == 0; }

private:
    std::size_t at_, end_;
    std::size_t depth_ = 0;
};

void take_apart(std::string_view content) {
    const FrameBytes all = bytes_of(content);
    for (std::size_t offset = 0; offset < all.size();) {
        Fields fields(offset, all.size());
        const Walked walked = walk_frame(all.subspan(offset), offset, fields);
        if (walked.broken) {
            sentence_of(*walked.broken);
            return;
        }
        require(walked.size != 0, "a complete frame has a size");
        require(fields.is_closed(), "all groups of a complete frame are closed");
        offset += walked.size;
    }
}

void deliver(std::string_view content, bool tracked) {
    Receiver receiver(tracked, Via::handle);
    for (const Frame &frame : split_frames(bytes_of(content), "input")) {
        receiver.feed(frame, "input");
        for (const Item &item : receiver.take()) rendered(item, Style::json);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    fuzz::Input input = fuzz::tool_input(data, size);
    const fuzz::Choice choice(input.u8());
    const std::string content = input.rest_of_text();
    fuzz::succeeds([&] { read(content, choice); });
    if (!choice.bit(falls_bit)) return 0;
    fuzz::succeeds([&] { take_apart(content); });
    fuzz::succeeds([&] { deliver(content, choice.bit(tracking_bit)); });
    hex_dump(content);
    address_problem(content);
    return 0;
}
