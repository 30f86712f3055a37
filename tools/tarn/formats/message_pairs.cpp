#include "tools/tarn/formats/message_pairs.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tarn::tool {

bool MessagePairs::Sequence::begins_with_bundle() {
    ahead = next();
    return !ahead || ahead->identity.is_control();
}

// The next message with its position. Starts and commits are skipped; an abort counts as a message.
std::optional<std::pair<MessagePairs::Position, Version>> MessagePairs::Sequence::message(bool by_bundle) {
    for (;;) {
        std::optional<Version> version = ahead ? std::exchange(ahead, std::nullopt) : next();
        if (!version) return std::nullopt;
        const Identity &identity = version->identity;
        if (std::exchange(source, version->source) != source) bundle = nullptr;
        if (by_bundle && identity.is_control() && identity.control == Control::start) {
            bundle = identity.bundle;
            ++bundles[bundle];
            messages.clear();
        }
        const Position position{identity.operations, bundle, bundles[bundle], messages[identity.operations]};
        const bool is_message = !identity.is_control() || identity.control == Control::abort;
        if (by_bundle && identity.is_control() && identity.control != Control::start) bundle = nullptr;
        if (!is_message) continue;
        ++messages[identity.operations];
        version->number = ++number;
        return std::pair{position, std::move(*version)};
    }
}

std::size_t MessagePairs::run(const Next &a, const Next &b) {
    Sequence sequences[2] = {{a}, {b}};
    const bool bundles_in_a = sequences[0].begins_with_bundle(),
               by_bundle = sequences[1].begins_with_bundle() && bundles_in_a;
    for (bool more = true; more;) {
        more = false;
        for (std::size_t side = 0; side < 2; ++side) {
            auto message = sequences[side].message(by_bundle);
            if (!message) continue;
            more = true;
            Waiting &others = sequences[1 - side].waiting;
            const auto other = others.find(message->first);
            if (other == others.end()) {
                sequences[side].waiting.insert(std::move(*message));
                continue;
            }
            side == 0 ? both(message->second, other->second) : both(other->second, message->second);
            others.erase(other);
        }
    }
    for (std::size_t side = 0; side < 2; ++side) {
        std::map<std::size_t, const Version *> rest;  // in the order of the sequence
        for (const auto &[position, version] : sequences[side].waiting) rest[version.number] = &version;
        for (const auto &[number, version] : rest) (side == 0 ? only_a : only_b)(*version);
    }
    return std::max(sequences[0].number, sequences[1].number);
}

}  // namespace tarn::tool
