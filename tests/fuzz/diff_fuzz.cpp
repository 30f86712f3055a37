// Two inputs of messages, the names of members to ignore, and the members that align elements. What is compared with
// itself is equal, and what differs one way differs the other way.
#include <nlohmann/json.hpp>

#include "tool_target.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/message_changes.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/formats/writer.h"

namespace {

using namespace tarn::tool;
using fuzz::require;

constexpr unsigned with_state = 0, frames = 1, by_others = 2;

// The messages of an input, as frames or as what is read from them.
class Messages {
public:
    Messages(const Handles &handles, std::string_view content, bool as_frames)
        : handles_(handles), as_frames_(as_frames) {
        for (const Item &item : items_of(handles, content, "input", false)) {
            frames_.emplace_back(item.identity, rendered(item, Style::frames));
        }
    }

    void compare(Messages &other, Comparison &comparison, const std::function<void(Change &, std::size_t)> &report) {
        at_ = other.at_ = 0;
        compare_sequences(
            handles_, comparison, [this] { return next(); }, [&] { return other.next(); }, report);
    }

private:
    std::optional<Version> next() {
        if (at_ == frames_.size()) return std::nullopt;
        const auto &[identity, bytes] = frames_[at_++];
        const Frame frame{bytes_of(bytes), 0, identity};
        if (as_frames_) return version_of(frame, "input");
        return Version{.identity = identity, .frame = {}, .item = item_of(handles_, frame, "input"), .origin = {}};
    }

    const Handles &handles_;
    std::vector<std::pair<Identity, std::string>> frames_;
    bool as_frames_;
    std::size_t at_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    fuzz::Input input = fuzz::tool_input(data, size);
    const fuzz::Choice choice(input.u8());
    const std::string names = input.text(input.u8()), first = input.text(input.u16()), second = input.rest_of_text();
    fuzz::succeeds([&] {
        ComparisonRules rules;
        rules.add_ignored(names, "names");
        rules.with_state = choice.bit(with_state);
        if (choice.bit(by_others)) rules.by = {"id,flags", "exmem.size"};
        Comparison comparison(rules);
        const Handles handles(Tracking::as_input);
        Messages a(handles, first, choice.bit(frames)), b(handles, second, false), same(handles, first, false);
        std::size_t forth = 0, back = 0;
        ChangeCounts counts;
        a.compare(b, comparison, [&](Change &change, std::size_t number) {
            ++forth;
            name_message(change, number);
            require(line_of(change).find('\n') == std::string::npos, "a change is one line");
            json_text(json_of(change));
            counts.add(change);
        });
        b.compare(a, comparison, [&](Change &, std::size_t) { ++back; });
        require((forth == 0) == (back == 0), "what differs one way differs the other way");
        require(counts.text().empty() == (forth == 0), "what differs is counted");
        a.compare(same, comparison, [](Change &, std::size_t) { require(false, "messages equal themselves"); });
    });
    return 0;
}
