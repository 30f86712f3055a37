// Converts JSON to instances. Names that the schema does not define are errors with their path, unless lenient.
#include "tools/tarn/formats/json.h"

#include <algorithm>
#include <charconv>

#include "tools/tarn/formats/json_texts.h"
#include "tools/tarn/formats/xml_check.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/instance.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

using Json = nlohmann::json;
using reflect::MemberOperations;
using reflect::RecordOperations;
using schema::Kind;
using schema::Role;

[[noreturn]] void fail(const std::string &path, const std::string &reason) {
    throw Failure(Exit::input, path + ": " + reason);
}

// A list or an object may be as long as the file.
std::string shown(const Json &json) {
    return json.is_array() ? "a list" : json.is_object() ? "an object" : printable(json.dump());
}

std::uint64_t number_in(const Json &json, std::uint64_t limit, const std::string &path) {
    if (json.is_number_unsigned() && json.get<std::uint64_t>() <= limit) return json.get<std::uint64_t>();
    if (json.is_string() && is_wide(limit)) {
        const auto &text = json.get_ref<const std::string &>();
        std::uint64_t number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error == std::errc() && end == text.data() + text.size()) return number;
    }
    fail(path, shown(json) + " is not a number from 0 to " + std::to_string(limit));
}

std::int8_t variant_in(const Json &json, const std::string &path) {
    if (!json.is_number_integer() || json.get<std::int64_t>() < -128 || json.get<std::int64_t>() > -1) {
        fail(path, shown(json) + " is not a number from -128 to -1");
    }
    return static_cast<std::int8_t>(json.get<std::int64_t>());
}

std::string bytes_in(const Json &json, const std::string &path) {
    if (json.is_string()) return json.get<std::string>();
    const auto digits = json.is_object() && json.size() == 1 && json.contains("bytes") && json["bytes"].is_string()
                            ? json["bytes"].get<std::string>()
                            : std::string("?");
    if (digits.size() % 2 != 0 || digits.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos) {
        fail(path, "neither a string nor {\"bytes\": HEX}");
    }
    std::string bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2) {
        bytes += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
    }
    return bytes;
}

class Reader {
public:
    Reader(const Handle &handle, bool lenient) : handle_(handle), lenient_(lenient) {}

    void read_record(const Json &json, const RecordOperations &operations, void *instance, const std::string &path);

private:
    struct Field {
        const RecordOperations &operations;
        void *instance;
        std::size_t index;

        const MemberOperations &member() const { return operations.members[index]; }
        const schema::Member &schema() const { return *member().member; }
    };

    void read_member(const Json &json, const Field &field, const std::string &path);
    void read_embedded(const Json &json, const Field &field, const std::string &path);
    void read_address(const Json &json, ip_address *address, const std::string &path);
    void read_enumeration(const Json &json, const Field &field, void *object, const std::string &path);
    void read_string(const Json &json, const Field &field, const std::string &path);
    void read_array(const Json &json, const Field &field, const std::string &path);
    void read_state(const Json &json, const RecordOperations &operations, void *instance, const std::string &path);
    void check_names(const Json &json, const RecordOperations &operations, const std::string &path);
    void check_count(const Json &json, const RecordOperations &operations, std::size_t index, const std::string &path);
    bool read_header(const Json &json, void *object, const std::string &path);
    void require(const std::string &path) {
        if (err_ != 0) throw Failure(exit_of(err_), path + ": " + error_text(err_));
    }

    const Handle &handle_;
    bool lenient_;
    std::uint32_t err_ = 0;
};

// True if the object has a body.
bool Reader::read_header(const Json &json, void *object, const std::string &path) {
    if (const auto ra = json.find("@ra"); ra != json.end()) {
        if (!ra->is_object() || !ra->contains("value") || !ra->contains("byte"))
            fail(path + "/@ra", "expected value and byte");
        set_ra_data(handle_, object,
                    {number_in((*ra)["value"], ~std::uint64_t{0}, path + "/@ra/value"),
                     static_cast<std::uint8_t>(number_in((*ra)["byte"], 255, path + "/@ra/byte"))});
    }
    const auto variant = json.find("@variant");
    if (variant == json.end()) return true;
    set_variant(object, variant_in(*variant, path + "/@variant"));
    return false;
}

void Reader::check_names(const Json &json, const RecordOperations &operations, const std::string &path) {
    std::vector<std::string> candidates;
    for (const MemberOperations &m : operations.members) candidates.emplace_back(m.member->name);
    for (const auto &item : json.items()) {
        const std::string &name = item.key();
        if (name == "@ra" || name == "@variant" || name == "@state") continue;
        if (std::find(candidates.begin(), candidates.end(), name) == candidates.end()) {
            fail(path, std::string(operations.record->name) + " has no member " + in_quotes(name) +
                           suggestion(name, candidates));
        }
    }
}

void Reader::check_count(const Json &json, const RecordOperations &operations, std::size_t index,
                         const std::string &path) {
    const auto given = json.find(operations.members[index].member->name);
    const auto counted = json.find(operations.members[index + 1].member->name);
    if (given == json.end() || lenient_) return;
    const std::size_t actual = counted == json.end() ? 0
                               : counted->is_array() ? counted->size()
                                                     : bytes_in(*counted, path).size();
    if (!given->is_number_unsigned() || given->get<std::uint64_t>() != actual) {
        fail(path + "/" + std::string(operations.members[index].member->name),
             "is " + shown(*given) + ", but there are " + std::to_string(actual));
    }
}

void Reader::read_record(const Json &json, const RecordOperations &operations, void *instance,
                         const std::string &path) {
    if (!json.is_object()) fail(path, "expected an object for " + std::string(operations.record->name));
    if (!lenient_) check_names(json, operations, path);
    for (std::size_t i = 0; i < operations.members.size(); ++i) {
        const schema::Member &m = *operations.members[i].member;
        if (m.role != Role::value) {
            check_count(json, operations, i, path);
        } else if (const auto found = json.find(m.name); found != json.end()) {
            read_member(*found, {operations, instance, i}, path + "/" + std::string(m.name));
        }
    }
    if (handle_.tracked()) read_state(json, operations, instance, path);
    read_header(json, instance, path);
}

void Reader::read_member(const Json &json, const Field &field, const std::string &path) {
    const schema::Member &m = field.schema();
    if (is_integer(m.kind)) {
        field.member().set_value(handle_.get(), context_id, field.instance, number_in(json, greatest(m.kind), path),
                                 &err_);
    } else if (m.kind == Kind::string) {
        read_string(json, field, path);
    } else if (m.kind == Kind::array) {
        read_array(json, field, path);
    } else {
        read_embedded(json, field, path);
    }
    require(path);
}

void Reader::read_embedded(const Json &json, const Field &field, const std::string &path) {
    const schema::Member &m = field.schema();
    void *object = field.member().get(handle_.get(), context_id, field.instance, &err_);
    require(path);
    if (m.kind == Kind::record) return read_record(json, reflect::operations_of(*m.record), object, path);
    if (m.kind == Kind::address) {
        if (!json.is_object() || read_header(json, object, path))
            read_address(json, static_cast<ip_address *>(object), path);
        return;
    }
    if (json.is_object() && (!json.contains("@value") || !json.contains("@variant"))) {
        fail(path, "expected a value, or @variant and @value");
    }
    const Json &value = json.is_object() ? json["@value"] : json;
    if (m.kind == Kind::enumeration) {
        read_enumeration(value, field, object, path);
    } else {
        const std::uint64_t truth = value.is_boolean() ? value.get<bool>() : number_in(value, 255, path);
        field.member().set_value(handle_.get(), context_id, field.instance, truth, &err_);
    }
    // Setting the value has reset the variant to that of the domain.
    if (json.is_object()) read_header(json, object, path);
}

void Reader::read_address(const Json &json, ip_address *address, const std::string &path) {
    const Json *text = &json;
    if (json.is_object()) {
        const auto found = json.find("@address");
        if (found == json.end()) fail(path, "expected an address");
        text = &*found;
    }
    const std::string words = text->is_string() ? text->get<std::string>() : shown(*text);
    if (const std::string problem = address_problem(words); !problem.empty() && !lenient_) fail(path, problem);
    if (!text->is_string() || !set_address(handle_, address, words)) {
        fail(path, in_quotes(words) + " is not an address with a prefix length");
    }
    std::uint8_t *state = address_state(handle_, address);
    if (state == nullptr) return;
    std::fill_n(state, 7, std::uint8_t{0});
    if (!json.is_object() || !json.contains("@members")) return;
    const Json &members = json["@members"];
    if (!members.is_array() || members.size() != 7) fail(path + "/@members", "expected seven state bytes");
    for (std::size_t i = 0; i < 7; ++i)
        state[i] = static_cast<std::uint8_t>(number_in(members[i], 255, path + "/@members"));
}

void Reader::read_enumeration(const Json &json, const Field &field, void *object, const std::string &path) {
    const auto &enumerators = field.schema().enumeration->enumerators;
    const std::vector<std::string> candidates(enumerators.begin(), enumerators.end());
    if (json.is_string()) {
        const auto found = std::find(candidates.begin(), candidates.end(), json.get<std::string>());
        if (found == candidates.end()) {
            if (lenient_) return;
            fail(path, "unknown enumerator " + shown(json) + suggestion(json.get<std::string>(), candidates));
        }
        const auto number = static_cast<std::uint64_t>(found - candidates.begin());
        field.member().set_value(handle_.get(), context_id, field.instance, number, &err_);
        return;
    }
    // A frame may contain any number, but the setter rejects an unknown one.
    const std::uint64_t number = number_in(json, 0xffffffff, path);
    if (number >= candidates.size() && !lenient_) fail(path, "unknown enumerator " + shown(json));
    set_enumeration_value(object, static_cast<std::uint32_t>(number));
}

void Reader::read_string(const Json &json, const Field &field, const std::string &path) {
    const std::string text = bytes_in(json, path);
    if (text.size() > 65535) fail(path, "more than 65535 bytes");
    // The setter copies up to the first NUL and pads with NULs.
    if (const std::size_t nul = text.find('\0');
        nul != std::string::npos && text.find_first_not_of('\0', nul) != std::string::npos) {
        fail(path, "a string cannot contain a NUL before other characters");
    }
    field.member().text_set(handle_.get(), context_id, field.instance, text.c_str(),
                            static_cast<std::uint32_t>(text.size()), &err_);
}

void Reader::read_array(const Json &json, const Field &field, const std::string &path) {
    if (!json.is_array()) fail(path, "expected an array");
    if (json.size() > greatest(field.operations.members[field.index - 1].member->kind))
        fail(path, std::to_string(json.size()) + " elements exceed the range of its count");
    if (json.empty()) return;
    // Setting the last element first grows the array only once.
    const RecordOperations &element = reflect::operations_of(*field.schema().record);
    void *fresh = element.create(handle_.get(), context_id);
    if (fresh == nullptr) throw Failure(Exit::environment, "out of memory for " + path);
    const auto count = static_cast<std::uint32_t>(json.size());
    field.member().element_set(handle_.get(), context_id, field.instance, count - 1, fresh, &err_);
    element.destroy(handle_.get(), context_id, fresh);
    require(path);
    for (std::uint32_t i = 0; i < count; ++i) {
        void *object = field.member().element_get(handle_.get(), context_id, field.instance, i, &err_);
        require(path);
        read_record(json[i], element, object, path + "[" + std::to_string(i) + "]");
    }
}

void Reader::read_state(const Json &json, const RecordOperations &operations, void *instance, const std::string &path) {
    const auto all = json.find("@state");
    const Json none = Json::object();
    const Json &states = all != json.end() ? *all : none;
    if (!states.is_object()) fail(path + "/@state", "expected an object");
    const auto byte = [&](const Json &value) {
        return static_cast<std::uint8_t>(number_in(value, 255, path + "/@state"));
    };
    for (const MemberOperations &m : operations.members) {
        if (m.member->role != Role::value) continue;
        const auto state = states.find(m.member->name);
        const bool given = state != states.end();
        if (m.member->kind != Kind::array) {
            m.state_flag_set(handle_.get(), context_id, instance, given ? byte(*state) : std::uint8_t{0}, &err_);
            continue;
        }
        const auto array = json.find(m.member->name);
        const auto count = array != json.end() ? static_cast<std::uint32_t>(array->size()) : 0;
        if (given && (!state->is_object() || !state->contains("whole") || !state->contains("elements") ||
                      (*state)["elements"].size() != count)) {
            fail(path + "/@state/" + std::string(m.member->name),
                 "expected whole, and elements with one byte per element");
        }
        m.state_flag_set(handle_.get(), context_id, instance, given ? byte((*state)["whole"]) : std::uint8_t{0}, &err_);
        for (std::uint32_t i = 0; i < count; ++i) {
            m.element_state_flag_set(handle_.get(), context_id, instance, i,
                                     given ? byte((*state)["elements"][i]) : std::uint8_t{0}, &err_);
        }
    }
    require(path + "/@state");
}

// Of the objects around payloads.
void check_keys(const Json &json, const std::vector<std::string> &known, const std::string &location) {
    for (const auto &item : json.items()) {
        if (std::find(known.begin(), known.end(), item.key()) != known.end()) continue;
        fail(location, "unknown key " + in_quotes(item.key()) + suggestion(item.key(), known));
    }
}

Item control_of(const Json &json, const std::string &location) {
    const std::string name = json["bundle"].is_string() ? json["bundle"].get<std::string>() : std::string();
    const auto *bundle = reflect::find_bundle(name);
    if (bundle == nullptr) {
        fail(location, shown(json["bundle"]) + " is not a bundle" + suggestion(name, bundle_names()));
    }
    for (const Control control : controls) {
        if (json["control"] != word(control)) continue;
        return {identity_of(*bundle, control), std::nullopt, location};
    }
    fail(location, shown(json["control"]) + " is not start, abort or commit");
}

Item message_of(const Handles &handles, const Json &json, const std::string &location, bool lenient) {
    if (!json["message"].is_string()) fail(location, "message must be a name");
    const auto *operations = reflect::find_message(json["message"].get<std::string>());
    if (operations == nullptr) {
        const std::string name = json["message"].get<std::string>();
        fail(location, shown(json["message"]) + " is not a message" + suggestion(name, message_names()));
    }
    if (!json.contains("payload") && !lenient) fail(location, "the payload is missing");
    const Handle &handle = handles.choose(json.contains("tracked") && json["tracked"] == true);
    Item item{{operations}, Message::create(handle, *operations), location};
    if (json.contains("payload")) {
        Reader(handle, lenient)
            .read_record(json["payload"], item.message->record(), item.message->payload(), location + ": payload");
    }
    return item;
}

void collect(const Handles &handles, const Json &json, const std::string &location, bool lenient,
             std::vector<Item> &items) {
    const auto check = [&](const std::vector<std::string> &known) {
        if (!lenient) check_keys(json, known, location);
    };
    if (json.is_array()) {
        for (const Json &one : json) collect(handles, one, location, lenient, items);
    } else if (json.is_object() && json.contains("message")) {
        check({"message", "tracked", "payload"});
        items.push_back(message_of(handles, json, location, lenient));
    } else if (json.is_object() && json.contains("bundle") && json.contains("control")) {
        check({"bundle", "control"});
        items.push_back(control_of(json, location));
    } else if (json.is_object() && json.contains("messages")) {
        check({"bundle", "messages"});
        collect(handles, json["messages"], location, lenient, items);
    } else {
        fail(location, "neither a message, a control message nor a list of them");
    }
}

}  // namespace

std::vector<Item> from_json(const Handles &handles, std::string_view content, const std::string &origin, bool lenient) {
    std::vector<Item> items;
    JsonTexts texts(content, origin);
    while (texts.next()) collect(handles, texts.value(), texts.location(), lenient, items);
    return items;
}

}  // namespace tarn::tool
