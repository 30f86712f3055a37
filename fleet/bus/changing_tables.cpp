#include "fleet/bus/changing_tables.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string_view>

#include "tools/tarn/formats/dissection.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/writer.h"
#include "tools/tarn/support/random_payload.h"

namespace tarn::fleet {

namespace {

using tool::Field;

constexpr std::uint64_t kinds = 16;
// Changes of a device from one change of a state or a row to the next.
constexpr std::uint64_t state_period = 40, row_period = 60;

bool has_any(std::string_view name, std::initializer_list<std::string_view> parts) {
    return std::any_of(parts.begin(), parts.end(),
                       [&](std::string_view part) { return name.find(part) != std::string_view::npos; });
}

bool is_counter(const schema::Member &m) {
    return m.notation == schema::Notation::decimal &&
           has_any(m.name, {"num_prefixes", "num_entries", "num_hash_elements", "total_", "_entries", "_count", "epoch",
                            "heap_size", "queue_size"}) &&
           !has_any(m.name, {"max_"});
}

bool is_state(const schema::Member &m) {
    return has_any(m.name, {"flags", "_enabled", "_running"}) || m.name == "state";
}

// Removes the last element of the first list that is not of a fixed length.
bool remove_row(nlohmann::ordered_json &json) {
    for (auto &member : json) {
        if (member.is_array() && member.size() > 2) {
            member.erase(member.size() - 1);
            return true;
        }
        if (member.is_structured() && remove_row(member)) return true;
    }
    return false;
}

}  // namespace

// The finalizer of a common generator of random numbers.
std::uint64_t ChangingTables::mixed(std::uint64_t a, std::uint64_t b) const {
    std::uint64_t x = seed_ * 0x9e3779b97f4a7c15 + a * 0xd1342543de82ef95 + b + 0x632be59bd9b4e019;
    x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9;
    x = (x ^ (x >> 27)) * 0x94d049bb133111eb;
    return x ^ (x >> 31);
}

ChangingTables::Frames ChangingTables::make(const reflect::BundleOperations &bundle, bool tracked, std::uint64_t kind,
                                            bool has_row) const {
    const tool::Handles handles(tracked ? tool::Tracking::on : tool::Tracking::off);
    const tool::Handle &handle = handles.choose(tracked);
    const reflect::MessageOperations &operations = reflect::operations_of(bundle.bundle->message);
    tool::Item whole{{&operations}, tool::Message::create(handle, operations), {}};
    tool::RandomPayload(handle, mixed(kind, 0), elements_ + 1)
        .fill(bundle.bundle->message.payload, whole.message->payload());
    std::vector<tool::Item> items;
    nlohmann::ordered_json json = tool::json_of(whole);
    if (!has_row && remove_row(json)) {
        items = tool::from_json(handles, json.dump(), "simulated", false);
    } else {
        items.push_back(std::move(whole));
    }

    struct Visitor : tool::DissectionVisitor {
        explicit Visitor(std::vector<Place> &all) : places(all) {}
        void field(const Field &field) override {
            if (field.kind != Field::Kind::number || field.member == nullptr) return;
            if (!is_counter(*field.member) && !is_state(*field.member)) return;
            places.push_back({field.offset, field.bytes.size(), is_counter(*field.member)});
        }
        std::vector<Place> &places;
    };
    Frames frames;
    Visitor visitor(frames.places);
    const auto add = [&](const tool::Item &item) {
        const std::string frame = tool::rendered(item, tool::Style::frames);
        tool::walk_frame(tool::bytes_of(frame), frames.bytes.size(), visitor);
        frames.bytes.insert(frames.bytes.end(), frame.begin(), frame.end());
    };
    add({tool::identity_of(bundle, tool::Control::start), std::nullopt, {}});
    for (const tool::Item &item : items) add(item);
    add({tool::identity_of(bundle, tool::Control::commit), std::nullopt, {}});
    return frames;
}

const ChangingTables::Frames &ChangingTables::frames(const reflect::BundleOperations &bundle, bool tracked,
                                                     std::uint64_t kind, bool has_row) {
    std::unique_ptr<Frames> &found = frames_[{&bundle, tracked, kind, has_row}];
    if (found == nullptr) found = std::make_unique<Frames>(make(bundle, tracked, kind, has_row));
    return *found;
}

tool::Bytes ChangingTables::answer(const reflect::BundleOperations &bundle, bool tracked, std::uint64_t device,
                                   std::uint64_t changes) {
    const std::uint64_t own = mixed(device, 1);
    const bool has_row = (changes + own % row_period) / row_period % 2 != 0;
    const Frames &shared = frames(bundle, tracked, own % kinds, has_row);
    tool::Bytes bytes = shared.bytes;
    for (std::size_t i = 0; i < shared.places.size(); ++i) {
        const Place &place = shared.places[i];
        const std::uint64_t random = mixed(own, i + 2);
        std::uint64_t number = 0;
        for (std::size_t k = 0; k < place.size; ++k) number = number << 8 | bytes[place.offset + k];
        if (place.is_counter) {
            // Each device begins elsewhere. Some counters do not move.
            number += random % 1000 + random / 1000 % 4 * changes;
        } else {
            number ^= (changes + random % state_period) / state_period % 2;
        }
        for (std::size_t k = place.size; k-- != 0; number >>= 8) {
            bytes[place.offset + k] = static_cast<std::uint8_t>(number);
        }
    }
    return bytes;
}

}  // namespace tarn::fleet
