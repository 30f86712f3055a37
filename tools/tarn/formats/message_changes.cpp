#include "tools/tarn/formats/message_changes.h"

#include <nlohmann/json.hpp>

#include "tools/tarn/formats/input.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/message.h"
#include "tools/tarn/support/failure.h"

namespace tarn::tool {

namespace {

// The header contains a stamp, which is no difference.
bool are_equal(const Version &a, const Version &b) {
    constexpr std::size_t sttr = offset_of(schema::message_frame, "sttr");
    return !a.frame.empty() && a.frame.size() == b.frame.size() && a.frame[sttr] == b.frame[sttr] &&
           std::string_view(a.frame).substr(schema::message_header_size) ==
               std::string_view(b.frame).substr(schema::message_header_size);
}

Frame frame_of(const Version &version) { return {bytes_of(version.frame), version.offset, version.identity}; }

// Counts are checked, since frames with equal bytes are not read.
void require_admitted(const Handles &handles, const Version &version) {
    const Frame frame = frame_of(version);
    try {
        require_admitted(handles.choose(frame.is_tracked()), *frame.identity.operations, frame.bytes);
    } catch (const Failure &failure) {
        throw Failure(failure.exit(), frame_location(version.origin, version.offset) + ": " + failure.what());
    }
}

// The message of a version. `read` keeps it if it is read from a frame.
const Message &message_of(const Handles &handles, const Version &version, std::optional<Item> &read) {
    if (version.item) return *version.item->message;
    try {
        read.emplace(item_of(handles, frame_of(version), version.origin));
    } catch (const Failure &failure) {
        throw with_cause(failure, frame_of(version));
    }
    return *read->message;
}

}  // namespace

std::size_t compare_sequences(const Handles &handles, Comparison &comparison, const MessagePairs::Next &a,
                              const MessagePairs::Next &b, const std::function<void(Change &, std::size_t)> &report) {
    MessagePairs pairs;
    pairs.both = [&](const Version &left, const Version &right) {
        if (left.identity.is_control()) return;
        if (are_equal(left, right)) return require_admitted(handles, left);
        std::optional<Item> read_left, read_right;
        const Message &message_a = message_of(handles, left, read_left);
        const Message &message_b = message_of(handles, right, read_right);
        comparison.compare(message_a, message_b, [&](Change &change) { report(change, left.number); });
    };
    const auto only = [&](const Version &version, Change::Kind kind) {
        std::optional<Item> read;
        Change change;
        change.kind = kind;
        change.element = "message";
        change.place = version.identity.operations->name;
        if (version.identity.is_control()) {
            change.path = "control";
            change.whole = [&] { return json_of(Item{version.identity, std::nullopt, {}}); };
        } else {
            const Message &message = message_of(handles, version, read);
            change.path = "payload";
            change.whole = [&] { return json_of(message.handle(), message.record(), message.payload()); };
        }
        report(change, version.number);
    };
    pairs.only_a = [&](const Version &version) { only(version, Change::Kind::removed); };
    pairs.only_b = [&](const Version &version) { only(version, Change::Kind::added); };
    return pairs.run(a, b);
}

void name_message(Change &change, std::size_t number) {
    const std::string message = "message " + std::to_string(number);
    if (change.element == "message") {
        change.place = message + " (" + change.place + ")";
        return;
    }
    for (std::string *place : {&change.list, &change.place}) *place = message + (place->empty() ? "" : ", ") + *place;
}

}  // namespace tarn::tool
