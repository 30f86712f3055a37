// Messages in JSON: what is read is written, as JSON and as frames, and read again.
#include "tool_target.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/formats/writer.h"

namespace {

using namespace tarn::tool;
using fuzz::require;

constexpr unsigned lenient = 0, tracked = 1, untracked = 2;

// All items as JSON, or the messages as frames.
std::string rendered(const std::vector<Item> &items, Style style) {
    std::string all;
    for (const Item &item : items) {
        if (style == Style::json || item.message) all += rendered(item, style);
    }
    return all;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    fuzz::Input input = fuzz::tool_input(data, size);
    const fuzz::Choice choice(input.u8());
    const std::string content = input.rest_of_text();
    const Handles handles(choice.bit(tracked)     ? Tracking::on
                          : choice.bit(untracked) ? Tracking::off
                                                  : Tracking::as_input);
    fuzz::succeeds([&] {
        const std::vector<Item> items = from_json(handles, content, "input", choice.bit(lenient));
        if (items.empty()) return;
        const std::string json = rendered(items, Style::json);
        require(rendered(from_json(handles, json, "output", false), Style::json) == json,
                "JSON that was written reads back as it was");
        // A frame does not carry everything, such as the state of an empty array; a second one carries the same.
        const std::string frames = rendered(items, Style::frames);
        if (frames.empty()) return;
        const std::string again = rendered(items_of(handles, frames, "frames", false), Style::frames);
        require(again == frames, "frames that were written are written again as they were");
    });
    return 0;
}
