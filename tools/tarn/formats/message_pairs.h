// Two sequences of messages side by side: which message of the one is another version of which of the other.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <tuple>

#include "tools/tarn/formats/frames.h"
#include "tools/tarn/formats/item.h"

namespace tarn::tool {

// A message, as a frame that has not been read or as an item; or a control message.
struct Version {
    Identity identity;
    std::string frame;         // empty for an item
    std::optional<Item> item;  // empty for a frame
    std::string origin;        // of the frame, for messages
    std::size_t offset = 0;    // of the frame
    std::size_t source = 0;    // a bundle does not continue in another one
    std::size_t number = 0;    // among the messages of its sequence, from 1; set by the pairing
};

inline Version version_of(const Frame &frame, const std::string &origin) {
    return {frame.identity, std::string(chars_of(frame.bytes)), std::nullopt, origin, frame.offset};
}

// Calls its functions for each message of two sequences. Two belong together if they have the same type and the same
// position in the same bundle: the third bundle of its type, for example. If one of the sequences begins without a
// bundle, the third message of a type belongs to the third. Only messages that have not been paired yet are kept.
class MessagePairs {
public:
    using Next = std::function<std::optional<Version>()>;

    std::function<void(const Version &, const Version &)> both;
    std::function<void(const Version &)> only_a, only_b;

    // Returns the number of messages in the longer sequence.
    std::size_t run(const Next &a, const Next &b);

private:
    // The type, its bundle, which bundle of this type, and which message of this type in it.
    using Position = std::tuple<const void *, const void *, std::size_t, std::size_t>;
    using Waiting = std::map<Position, Version>;

    struct Sequence {
        const Next &next;
        std::optional<Version> ahead{};
        std::size_t number = 0, source = 0;
        const reflect::BundleOperations *bundle = nullptr;
        std::map<const void *, std::size_t> bundles{}, messages{};
        Waiting waiting{};

        bool begins_with_bundle();
        std::optional<std::pair<Position, Version>> message(bool by_bundle);
    };
};

}  // namespace tarn::tool
