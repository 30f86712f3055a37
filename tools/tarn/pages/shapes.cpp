#include "tools/tarn/pages/shapes.h"

#include "tools/tarn/support/hex.h"

namespace tarn::tool {

namespace {

constexpr std::uint32_t own = 0;  // the name ""

std::string bytes_in(const void *first, std::size_t size) { return {static_cast<const char *>(first), size}; }

}  // namespace

void Shapes::Slot::start(std::uint32_t new_name) {
    name = new_name;
    is_array = is_element = is_small = false;
    parts.clear();
    states = state = 0;
}

std::uint32_t Shapes::name_number(std::string_view name, bool is_member) {
    auto &known = is_member ? member_names_ : other_names_;
    const auto [at, is_new] = known.try_emplace(name.data(), static_cast<std::uint32_t>(names_.size()));
    if (is_new) names_.push_back((is_member ? "" : "@") + std::string(name));
    return at->second;
}

std::uint32_t Shapes::add_shape(nlohmann::ordered_json shape) {
    shapes_.push_back(std::move(shape));
    return static_cast<std::uint32_t>(shapes_.size() - 1);
}

std::uint32_t Shapes::leaf(const Field &field) {
    // The names of types and records are constants in the schema.
    const bool hex = is_pointer(field);
    const void *const key[] = {field.type.data(), reinterpret_cast<const void *>(2 * field.bytes.size() + hex),
                               field.record};
    const auto [at, is_new] = numbers_.try_emplace(bytes_in(key, sizeof key));
    if (is_new) {
        std::string text = std::string(field.type) + " " + std::to_string(field.bytes.size());
        if (field.record != nullptr) text += ", begins " + std::string(field.record->name);
        if (hex) text += " hex";
        at->second = add_shape(std::move(text));
    }
    return at->second;
}

std::uint32_t Shapes::number_of(const Slot &slot) {
    // A single piece needs no list.
    if (!slot.is_array && slot.parts.size() == 2 && slot.parts.front() == own) return slot.parts.back();
    std::string key = slot.is_array ? "array" + std::to_string(slot.states) + " " : "list ";
    key += bytes_in(slot.parts.data(), slot.parts.size() * sizeof slot.parts.front());
    const auto [at, is_new] = numbers_.try_emplace(std::move(key));
    if (!is_new) return at->second;
    if (slot.is_array) {
        return at->second = add_shape({{"elements", slot.parts}, {"states", slot.states}, {"state", slot.state}});
    }
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (std::size_t i = 0; i < slot.parts.size(); i += 2) {
        list.push_back(names_[slot.parts[i]]);
        list.push_back(slot.parts[i + 1]);
    }
    return at->second = add_shape(std::move(list));
}

// Adds the last piece or group to the one around it: no state has followed.
void Shapes::settle() {
    if (!std::exchange(has_last_, false)) return;
    const Slot &last = slots_[depth_ + 1];
    const std::uint32_t number = number_of(last);
    Numbers &parts = slots_[depth_].parts;
    if (!last.is_element) parts.push_back(last.name);
    parts.push_back(number);
}

void Shapes::begin() {
    depth_ = 0;
    has_last_ = false;
    slots_.front().start(own);
}

std::uint32_t Shapes::end() {
    while (depth_ > 0) close();
    settle();
    return number_of(slots_.front());
}

void Shapes::open(const Group &group) {
    settle();
    if (++depth_ + 1 >= slots_.size()) slots_.resize(depth_ + 2);
    Slot &slot = slots_[depth_];
    slot.start(name_number(group.name, true));
    slot.is_array = group.kind == Group::Kind::array;
    slot.is_element = group.index != no_index;
    slot.is_small = group.kind == Group::Kind::boolean || group.kind == Group::Kind::enumeration;
}

void Shapes::close() {
    settle();
    --depth_;
    has_last_ = true;
}

void Shapes::field(const Field &field) {
    using Kind = Field::Kind;
    const std::uint32_t shape = leaf(field);
    if (field.kind == Kind::state) {
        Slot &last = slots_[depth_ + 1];
        if (last.is_array) {
            last.state = shape;
            ++last.states;
        } else {
            last.parts.push_back(name_number("state", false));
            last.parts.push_back(shape);
        }
        return;
    }
    if (field.kind == Kind::luid && !field.words.empty()) luids_[hex_text(field.bytes)] = field.words;
    settle();
    const bool is_framing = field.kind == Kind::variant || field.kind == Kind::flags || field.kind == Kind::jump ||
                            field.kind == Kind::skipped;
    Numbers &parts = slots_[depth_].parts;
    if (is_framing) {
        parts.push_back(name_number(field.kind == Kind::skipped ? "skipped" : field.name, false));
    } else if (slots_[depth_].is_small) {
        parts.push_back(own);
    } else {
        if (depth_ + 1 >= slots_.size()) slots_.resize(depth_ + 2);
        slots_[depth_ + 1].start(name_number(field.name, true));
        slots_[depth_ + 1].parts.push_back(own);
        slots_[depth_ + 1].parts.push_back(shape);
        has_last_ = true;
        return;
    }
    parts.push_back(shape);
}

}  // namespace tarn::tool
