// Conditions of `tarn rows`, and the rows that meet them: names of columns, operators, numbers, addresses, enumerators.
//
// The first byte chooses the record and the second one the format; the rest is the condition.
#include <map>

#include "reference/codec.h"
#include "tool_target.h"
#include "tools/tarn/formats/condition.h"
#include "tools/tarn/formats/frames.h"
#include "tools/tarn/formats/row_writer.h"
#include "tools/tarn/support/failure.h"

namespace {

using namespace tarn::tool;
using fuzz::require;

// One message of each type.
const std::vector<Entry> &messages() {
    static const Handles handles(tarn::tool::Tracking::as_input);
    static const std::vector<Entry> all = [] {
        std::vector<Entry> entries;
        for (const reference::MessageTable &table : reference::messages()) {
            const auto frame = reference::message_frame(table.name, fuzz::small_value(table.payload), false, 0);
            entries.push_back({item_of(handles, frame_at(frame, 0, "sample"), "sample"), "sample", 1, nullptr});
        }
        return entries;
    }();
    return all;
}

void run(const Instances &instances, RowStyle style, std::string_view text) {
    const Condition holds = condition(text, instances);
    std::size_t size = 0;
    RowWriter writer(style, instances.columns(), [&](std::string_view piece) { size += piece.size(); });
    std::size_t expected = 0;
    for (const Entry &entry : messages()) {
        instances.visit(entry, [&](const Instance &instance) {
            if (!holds(instance)) return;
            const std::string line = line_of(style, instances.columns(), instance);
            require(line.find('\n') == std::string::npos, "a row is one line");
            writer.add(line);
            expected += line.size();
        });
    }
    writer.finish();
    // Only the alignment of a table may remove blanks.
    require(style == RowStyle::table || size >= expected, "all rows are written");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static std::map<std::size_t, Instances> made;
    fuzz::Input input = fuzz::tool_input(data, size);
    const std::size_t number = input.u8() % tables().size();
    const auto style = static_cast<RowStyle>(input.u8() % 4);
    const auto found = made.try_emplace(number, *tables()[number].record).first;
    const std::string text = input.rest_of_text();
    try {
        run(found->second, style, text);
    } catch (const Failure &failure) {
        require(std::string_view(failure.what()).find(": character ") != std::string_view::npos,
                "a failure has a place");
    }
    return 0;
}
