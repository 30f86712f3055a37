// Converts instances to JSON.
#include <algorithm>
#include <nlohmann/json.hpp>

#include "tools/tarn/formats/frames.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/support/hex.h"
#include "tools/tarn/support/instance.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

using nlohmann::ordered_json;
using reflect::MemberOperations;
using reflect::RecordOperations;
using schema::Category;
using schema::Kind;

bool is_utf8(const std::string &text) {
    try {
        (void)ordered_json(text).dump();
        return true;
    } catch (const ordered_json::type_error &) {
        return false;
    }
}

void add_ra_data(const Handle &handle, void *object, ordered_json &json) {
    if (const auto ra = ra_data_of(handle, object))
        json["@ra"] = {{"value", std::to_string(ra->value)}, {"byte", ra->byte}};
}

ordered_json json_of_address(const Handle &handle, ip_address *address) {
    ordered_json json = ordered_json::object();
    add_ra_data(handle, address, json);
    if (address->variant < 0) {
        json["@variant"] = address->variant;
        return json;
    }
    if (const std::uint8_t *state = address_state(handle, address)) {
        const std::vector<std::uint8_t> bytes(state, state + 7);
        if (bytes != std::vector<std::uint8_t>(7)) json["@members"] = bytes;
    }
    if (json.empty()) return address_text(handle, address);
    json["@address"] = address_text(handle, address);
    return json;
}

ordered_json json_of_value(const Handle &handle, const MemberOperations &member, void *value) {
    if (member.member->kind == Kind::address) return json_of_address(handle, static_cast<ip_address *>(value));
    ordered_json json;
    if (member.member->kind == Kind::boolean) {
        const std::uint8_t truth = static_cast<const mirk_boolean *>(value)->value;
        json = truth > 1 ? ordered_json(truth) : ordered_json(truth != 0);
    } else {
        const std::uint32_t number = enumeration_value(value);
        const auto &enumerators = member.member->enumeration->enumerators;
        json = number < enumerators.size() ? ordered_json(enumerators[number]) : ordered_json(number);
    }
    // Booleans and enumerations have a value even if their variant is negative.
    if (variant_of(value) < 0) return {{"@variant", variant_of(value)}, {"@value", json}};
    return json;
}

// One walk over the members of an instance.
class Writer {
public:
    Writer(const Handle &handle, const RecordOperations &operations, void *instance)
        : handle_(handle), operations_(operations), instance_(instance) {}

    ordered_json run() {
        ordered_json json = ordered_json::object();
        add_ra_data(handle_, instance_, json);
        if (variant_of(instance_) < 0) {
            json["@variant"] = variant_of(instance_);
            return json;
        }
        for (std::size_t i = 0; i < operations_.members.size(); ++i) {
            const MemberOperations &m = operations_.members[i];
            if (m.member->role != schema::Role::value) continue;
            json[std::string(m.member->name)] = value(i);
            if (handle_.tracked()) add_state(m, count_);
        }
        if (!state_.empty()) json["@state"] = state_;
        return json;
    }

    ordered_json value(std::size_t index) {
        const MemberOperations &m = operations_.members[index];
        mirk_handle *h = handle_.get();
        switch (category(m.member->kind)) {
            case Category::integer: {
                const std::uint64_t number = m.get_value(h, context_id, instance_, &err_);
                return is_wide(greatest(m.member->kind)) ? ordered_json(std::to_string(number)) : ordered_json(number);
            }
            case Category::string:
                return json_of_string(string_at(*operations_.record, index, instance_));
            case Category::record:
                return json_of(handle_, reflect::operations_of(*m.member->record),
                               m.get(h, context_id, instance_, &err_));
            case Category::array:
                return elements(index);
            case Category::boolean:
            case Category::enumeration:
            case Category::address:
                break;
        }
        return json_of_value(handle_, m, m.get(h, context_id, instance_, &err_));
    }

private:
    ordered_json elements(std::size_t index) {
        const MemberOperations &m = operations_.members[index];
        const RecordOperations &element = reflect::operations_of(*m.member->record);
        ordered_json json = ordered_json::array();
        count_ = static_cast<std::uint32_t>(
            operations_.members[index - 1].get_value(handle_.get(), context_id, instance_, &err_));
        for (std::uint32_t i = 0; i < count_; ++i) {
            void *object = m.element_get(handle_.get(), context_id, instance_, i, &err_);
            if (object == nullptr) break;
            json.push_back(json_of(handle_, element, object));
        }
        return json;
    }

    void add_state(const MemberOperations &m, std::uint32_t count) {
        const std::uint8_t own = m.state_flag_get(handle_.get(), context_id, instance_, &err_);
        const std::string name(m.member->name);
        if (m.member->kind != Kind::array) {
            if (own != 0) state_[name] = own;
            return;
        }
        std::vector<std::uint8_t> each;
        for (std::uint32_t i = 0; i < count; ++i) {
            each.push_back(m.element_state_flag_get(handle_.get(), context_id, instance_, i, &err_));
        }
        const bool any = std::any_of(each.begin(), each.end(), [](std::uint8_t byte) { return byte != 0; });
        if (own != 0 || any) state_[name] = {{"whole", own}, {"elements", each}};
    }

    const Handle &handle_;
    const RecordOperations &operations_;
    void *instance_;
    ordered_json state_;
    std::uint32_t err_ = 0;
    std::uint32_t count_ = 0;  // of the array written last
};

}  // namespace

ordered_json json_of_string(const std::string &text) {
    if (is_utf8(text)) return text;
    return {{"bytes", hex_text(bytes_of(text))}};
}

ordered_json json_of(const Handle &handle, const RecordOperations &operations, void *instance) {
    return Writer(handle, operations, instance).run();
}

ordered_json json_of_member(const Handle &handle, const RecordOperations &operations, std::size_t index,
                            void *instance) {
    return Writer(handle, operations, instance).value(index);
}

std::string json_text(const ordered_json &json, int indent) {
    return printable_output(json.dump(indent, ' ', false, ordered_json::error_handler_t::replace), Notation::json);
}

ordered_json json_of(const Item &item) {
    const Identity &identity = item.identity;
    if (identity.is_control()) return {{"bundle", identity.bundle->bundle->name}, {"control", word(identity.control)}};
    const Message &message = *item.message;
    ordered_json json{{"message", message.operations().name}};
    if (message.handle().tracked()) json["tracked"] = true;
    json["payload"] = json_of(message.handle(), message.record(), message.payload());
    return json;
}

}  // namespace tarn::tool
