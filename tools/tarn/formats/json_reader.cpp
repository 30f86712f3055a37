// Converts JSON to instances. Names that the schema does not define are errors with their path, unless lenient.
#include "tools/tarn/formats/json_reader.h"

#include <algorithm>
#include <charconv>
#include <type_traits>
#include <utility>

#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/problems.h"
#include "tools/tarn/formats/xml_check.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/instance.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

using reflect::MemberOperations;
using reflect::RecordOperations;
using schema::Kind;
using schema::Role;
using Names = std::vector<std::string>;

// Reads one message. What cannot be read is a problem, and reading continues after it.
class Reader {
public:
    explicit Reader(bool lenient) : lenient_(lenient) {}

    std::optional<Item> read(const Handles &handles, const JsonValue &json, const std::string &location);
    // The form in which `tarn show` prints a bundle.
    bool is_list_of_messages(const JsonValue &json, JsonValue &list);

    const ProblemList &problems() const { return problems_; }

private:
    struct Field {
        const RecordOperations &operations;
        void *instance;
        std::size_t index;

        const MemberOperations &member() const { return operations.members[index]; }
        const schema::Member &schema() const { return *member().member; }
    };

    std::optional<Item> read_message(const Handles &handles, const JsonValue &json, const std::string &location);
    std::optional<Item> read_control(const JsonValue &json, const std::string &location);
    void read_record(const JsonValue &json, const RecordOperations &operations, void *instance, const Path &path);
    void read_member(const JsonValue &json, const Field &field, const Path &path);
    void read_embedded(const JsonValue &json, const Field &field, const Path &path);
    void read_address(const JsonValue &json, ip_address *address, const Path &path);
    void read_enumeration(const JsonValue &json, const Field &field, void *object, const Path &path);
    void read_string(const JsonValue &json, const Field &field, const Path &path);
    void read_array(const JsonValue &json, const Field &field, const Path &path);
    void read_state(const JsonValue &json, const RecordOperations &operations, void *instance, const Path &path);
    void read_state(const JsonValue *given, const JsonValue &json, const MemberOperations &m, void *instance,
                    const Path &path);
    bool read_header(const JsonValue &json, void *object, const Path &path);
    void check_count(const JsonValue &json, const JsonValue &given, const Field &field, const Path &path);
    void check_keys(const JsonValue &json, const Names &known, const Path &path);

    std::optional<std::uint64_t> number_in(const JsonValue &json, std::uint64_t limit, const Path &path);
    std::optional<std::string> bytes_in(const JsonValue &json, const Path &path);
    std::uint8_t byte_in(const JsonValue &json, const Path &path) {
        return static_cast<std::uint8_t>(number_in(json, 255, path).value_or(0));
    }

    // The reason is a text or a function that makes it.
    template <class Reason>
    void fail(const JsonValue &json, const Path &path, const Reason &reason) {
        problems_.add([&] {
            Problem problem{json.position(), path.text(), {}, path.pointer()};
            if constexpr (std::is_invocable_v<Reason>) {
                problem.reason = reason();
            } else {
                problem.reason = reason;
            }
            return problem;
        });
    }
    // False after an error of the library.
    bool is_good(const JsonValue &json, const Path &path) {
        const std::uint32_t number = std::exchange(err_, 0);
        if (number == 0) return true;
        if (exit_of(number) == Exit::environment)
            throw Failure(exit_of(number), path.text() + ": " + error_text(number));
        fail(json, path, [number] { return error_text(number); });
        return false;
    }

    mirk_handle *h() const { return handle_->get(); }

    const Handle *handle_ = nullptr;
    bool lenient_;
    std::uint32_t err_ = 0;
    ProblemList problems_;
};

template <typename Number>
std::optional<Number> parsed(std::string_view text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (text.empty() || error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

std::optional<std::uint64_t> Reader::number_in(const JsonValue &json, std::uint64_t limit, const Path &path) {
    if (json.is_number() || (json.is_string() && is_wide(limit))) {
        const auto number = parsed<std::uint64_t>(json.text());
        if (number && *number <= limit) return number;
    }
    fail(json, path, [&] { return json.shown() + " is not a number from 0 to " + std::to_string(limit); });
    return std::nullopt;
}

std::optional<std::string> Reader::bytes_in(const JsonValue &json, const Path &path) {
    if (json.is_string()) return std::string(json.text());
    JsonValue digits = json;
    const bool is_hex = json.is_object() && json.size() == 1 && json.find("bytes", digits) && digits.is_string();
    const std::string_view text = is_hex ? digits.text() : "?";
    if (text.size() % 2 != 0 || text.find_first_not_of("0123456789abcdefABCDEF") != std::string_view::npos) {
        fail(json, path, "neither a string nor {\"bytes\": HEX}");
        return std::nullopt;
    }
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); i += 2) {
        std::uint8_t byte = 0;
        std::from_chars(text.data() + i, text.data() + i + 2, byte, 16);
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

// True if the object has a body.
bool Reader::read_header(const JsonValue &json, void *object, const Path &path) {
    JsonValue ra = json, variant = json, value = json, byte = json;
    if (json.find("@ra", ra)) {
        if (!ra.is_object() || !ra.find("value", value) || !ra.find("byte", byte)) {
            fail(ra, path / "@ra", "expected value and byte");
        } else {
            const auto number = number_in(value, ~std::uint64_t{0}, path / "@ra" / "value");
            set_ra_data(*handle_, object, {number.value_or(0), byte_in(byte, path / "@ra" / "byte")});
        }
    }
    if (!json.find("@variant", variant)) return true;
    const auto number = variant.is_number() ? parsed<std::int8_t>(variant.text()) : std::nullopt;
    if (!number || *number >= 0) {
        fail(variant, path / "@variant", [&] { return variant.shown() + " is not a number from -128 to -1"; });
    } else {
        set_variant(object, *number);
    }
    return false;
}

void Reader::check_keys(const JsonValue &json, const Names &known, const Path &path) {
    if (lenient_) return;
    json.for_each_member([&](const JsonValue &key, const JsonValue &) {
        if (std::find(known.begin(), known.end(), key.text()) != known.end()) return;
        fail(key, path, [&] { return "unknown key " + in_quotes(key.text()) + suggestion(key.text(), known); });
    });
}

void Reader::check_count(const JsonValue &json, const JsonValue &given, const Field &field, const Path &path) {
    if (lenient_) return;
    std::size_t actual = 0;
    if (JsonValue counted = json; json.find(field.operations.members[field.index + 1].member->name, counted)) {
        // What is neither is a problem of the counted member.
        if (counted.is_array()) actual = counted.size();
        if (counted.is_string()) actual = counted.text().size();
        if (JsonValue digits = counted; counted.is_object() && counted.find("bytes", digits))
            actual = digits.text().size() / 2;
    }
    if (given.is_number() && parsed<std::uint64_t>(given.text()) == actual) return;
    fail(given, path, [&] { return "is " + given.shown() + ", but there are " + std::to_string(actual); });
}

void Reader::read_record(const JsonValue &json, const RecordOperations &operations, void *instance, const Path &path) {
    if (!json.is_object()) {
        return fail(json, path, [&] { return "expected an object for " + std::string(operations.record->name); });
    }
    const std::span<const MemberOperations> members = operations.members;
    bool has_others = false;
    std::size_t next = 0;
    json.for_each_member([&](const JsonValue &key, const JsonValue &value) {
        const std::string_view name = key.text();
        // Usually in the order of the schema.
        std::size_t index = 0;
        while (index < members.size() && members[(next + index) % members.size()].member->name != name) ++index;
        if (index == members.size()) {
            const bool is_known = name == "@ra" || name == "@variant" || name == "@state";
            has_others = has_others || is_known;
            if (is_known || lenient_) return;
            return fail(key, path, [&] {
                Names candidates;
                for (const MemberOperations &m : members) candidates.emplace_back(m.member->name);
                return std::string(operations.record->name) + " has no member " + in_quotes(name) +
                       suggestion(name, candidates);
            });
        }
        index = (next + index) % members.size();
        next = index + 1;
        const Field field{operations, instance, index};
        if (members[index].member->role == Role::value) {
            read_member(value, field, path / members[index].member->name);
        } else {
            check_count(json, value, field, path / members[index].member->name);
        }
    });
    if (handle_->tracked()) read_state(json, operations, instance, path);
    if (has_others) read_header(json, instance, path);
}

void Reader::read_member(const JsonValue &json, const Field &field, const Path &path) {
    const schema::Member &m = field.schema();
    if (is_integer(m.kind)) {
        if (const auto number = number_in(json, greatest(m.kind), path)) {
            field.member().set_value(h(), context_id, field.instance, *number, &err_);
        }
    } else if (m.kind == Kind::string) {
        read_string(json, field, path);
    } else if (m.kind == Kind::array) {
        read_array(json, field, path);
    } else {
        read_embedded(json, field, path);
    }
    is_good(json, path);
}

void Reader::read_embedded(const JsonValue &json, const Field &field, const Path &path) {
    const schema::Member &m = field.schema();
    void *object = field.member().get(h(), context_id, field.instance, &err_);
    if (!is_good(json, path)) return;
    if (m.kind == Kind::record) return read_record(json, reflect::operations_of(*m.record), object, path);
    if (m.kind == Kind::address) {
        if (!json.is_object() || read_header(json, object, path))
            read_address(json, static_cast<ip_address *>(object), path);
        return;
    }
    JsonValue value = json;
    if (json.is_object() && (!json.contains("@variant") || !json.find("@value", value))) {
        return fail(json, path, "expected a value, or @variant and @value");
    }
    if (m.kind == Kind::enumeration) {
        read_enumeration(value, field, object, path);
    } else if (value.is_boolean()) {
        field.member().set_value(h(), context_id, field.instance, value.text() == "true", &err_);
    } else if (const auto number = number_in(value, 255, path)) {
        field.member().set_value(h(), context_id, field.instance, *number, &err_);
    }
    // Setting the value has reset the variant to that of the domain.
    if (json.is_object()) read_header(json, object, path);
}

void Reader::read_address(const JsonValue &json, ip_address *address, const Path &path) {
    JsonValue text = json, members = json;
    if (json.is_object() && !json.find("@address", text)) return fail(json, path, "expected an address");
    const std::string_view words = text.is_string() ? text.text() : "?";
    const bool is_set = set_address(address, words);
    if (!is_set && !text.is_string()) {
        return fail(json, path, [&] { return text.shown() + " is not an address with a prefix length"; });
    }
    if (!is_set || !lenient_) {
        const std::string problem = address_problem(words);
        if (!problem.empty()) return fail(json, path, problem);
    }
    std::uint8_t *state = address_state(*handle_, address);
    if (state == nullptr) return;
    std::fill_n(state, 7, std::uint8_t{0});
    if (!json.is_object() || !json.find("@members", members)) return;
    if (!members.is_array() || members.size() != 7) {
        return fail(members, path / "@members", "expected seven state bytes");
    }
    members.for_each_element([&](const JsonValue &byte) { *state++ = byte_in(byte, path / "@members"); });
}

void Reader::read_enumeration(const JsonValue &json, const Field &field, void *object, const Path &path) {
    const auto &enumerators = field.schema().enumeration->enumerators;
    if (json.is_string()) {
        const auto found = std::find(enumerators.begin(), enumerators.end(), json.text());
        if (found == enumerators.end()) {
            if (lenient_) return;
            return fail(json, path, [&] {
                return "unknown enumerator " + json.shown() +
                       suggestion(json.text(), Names(enumerators.begin(), enumerators.end()));
            });
        }
        const auto number = static_cast<std::uint64_t>(found - enumerators.begin());
        field.member().set_value(h(), context_id, field.instance, number, &err_);
        return;
    }
    // A frame may contain any number, but the setter rejects an unknown one.
    const auto number = number_in(json, 0xffffffff, path);
    if (!number) return;
    if (*number >= enumerators.size() && !lenient_) {
        return fail(json, path, [&] { return "unknown enumerator " + json.shown(); });
    }
    set_enumeration_value(object, static_cast<std::uint32_t>(*number));
}

void Reader::read_string(const JsonValue &json, const Field &field, const Path &path) {
    const std::optional<std::string> text = bytes_in(json, path);
    if (!text) return;
    if (text->size() > 65535) return fail(json, path, "more than 65535 bytes");
    // The setter copies up to the first NUL and pads with NULs.
    if (const std::size_t nul = text->find('\0');
        nul != std::string::npos && text->find_first_not_of('\0', nul) != std::string::npos) {
        return fail(json, path, "a string cannot contain a NUL before other characters");
    }
    field.member().text_set(h(), context_id, field.instance, text->c_str(), static_cast<std::uint32_t>(text->size()),
                            &err_);
}

void Reader::read_array(const JsonValue &json, const Field &field, const Path &path) {
    if (!json.is_array()) return fail(json, path, "expected an array");
    if (json.size() > greatest(field.operations.members[field.index - 1].member->kind)) {
        return fail(json, path,
                    [&] { return std::to_string(json.size()) + " elements exceed the range of its count"; });
    }
    if (json.size() == 0) return;
    const RecordOperations &element = reflect::operations_of(*field.schema().record);
    err_ = lengthen(*handle_, field.member(), field.instance, static_cast<std::uint32_t>(json.size()));
    if (!is_good(json, path)) return;
    std::uint32_t i = 0;
    json.for_each_element([&](const JsonValue &one) {
        void *object = field.member().element_get(h(), context_id, field.instance, i, &err_);
        if (is_good(one, path[i])) read_record(one, element, object, path[i]);
        ++i;
    });
}

void Reader::read_state(const JsonValue &json, const RecordOperations &operations, void *instance, const Path &path) {
    JsonValue states = json;
    const bool any = json.find("@state", states);
    if (any && !states.is_object()) return fail(states, path / "@state", "expected an object");
    for (const MemberOperations &m : operations.members) {
        if (m.member->role != Role::value) continue;
        JsonValue given = json;
        const bool is_given = any && states.find(m.member->name, given);
        read_state(is_given ? &given : nullptr, json, m, instance, path);
    }
    is_good(states, path / "@state");
}

void Reader::read_state(const JsonValue *given, const JsonValue &json, const MemberOperations &m, void *instance,
                        const Path &path) {
    const Path here = path / "@state";
    if (m.member->kind != Kind::array) {
        const std::uint8_t byte = given != nullptr ? byte_in(*given, here / m.member->name) : std::uint8_t{0};
        return m.state_flag_set(h(), context_id, instance, byte, &err_);
    }
    JsonValue array = json, whole = json, elements = json;
    const std::size_t count = json.find(m.member->name, array) && array.is_array() ? array.size() : 0;
    if (given != nullptr && (!given->is_object() || !given->find("whole", whole) ||
                             !given->find("elements", elements) || !elements.is_array() || elements.size() != count)) {
        return fail(*given, here / m.member->name, "expected whole, and elements with one byte per element");
    }
    const std::uint8_t own = given != nullptr ? byte_in(whole, here / m.member->name) : std::uint8_t{0};
    m.state_flag_set(h(), context_id, instance, own, &err_);
    std::uint32_t i = 0;
    const auto set = [&](std::uint8_t byte) { m.element_state_flag_set(h(), context_id, instance, i++, byte, &err_); };
    if (given == nullptr) {
        while (i < count) set(0);
    } else {
        elements.for_each_element([&](const JsonValue &byte) { set(byte_in(byte, here / m.member->name)); });
    }
}

std::optional<Item> Reader::read_control(const JsonValue &json, const std::string &location) {
    JsonValue name = json, word_given = json;
    check_keys(json, {"bundle", "control"}, {});
    json.find("bundle", name);
    json.find("control", word_given);
    const auto *bundle = name.is_string() ? reflect::find_bundle(name.text()) : nullptr;
    if (bundle == nullptr) {
        fail(name, Path{} / "bundle",
             [&] { return name.shown() + " is not a bundle" + suggestion(name.text(), bundle_names()); });
    }
    for (const Control control : controls) {
        if (!word_given.is_string() || word_given.text() != word(control)) continue;
        if (bundle == nullptr) return std::nullopt;
        return Item{identity_of(*bundle, control), std::nullopt, location};
    }
    fail(word_given, Path{} / "control", [&] { return word_given.shown() + " is not start, abort or commit"; });
    return std::nullopt;
}

std::optional<Item> Reader::read_message(const Handles &handles, const JsonValue &json, const std::string &location) {
    JsonValue name = json, tracked = json, payload = json;
    check_keys(json, {"message", "tracked", "payload"}, {});
    json.find("message", name);
    const bool has_tracked = json.find("tracked", tracked), has_payload = json.find("payload", payload);
    if (has_tracked && !tracked.is_boolean()) {
        fail(tracked, Path{} / "tracked", [&] { return tracked.shown() + " is neither true nor false"; });
    }
    const auto *operations = name.is_string() ? reflect::find_message(name.text()) : nullptr;
    if (operations == nullptr) {
        fail(name, Path{} / "message",
             [&] { return name.shown() + " is not a message" + suggestion(name.text(), message_names()); });
        return std::nullopt;
    }
    if (!has_payload && !lenient_) fail(json, {}, "the payload is missing");
    handle_ = &handles.choose(has_tracked && tracked.is_boolean() && tracked.text() == "true");
    Item item{{operations}, Message::create(*handle_, *operations), location};
    if (has_payload) {
        read_record(payload, item.message->record(), item.message->payload(), Path{} / "payload");
    }
    return item;
}

bool Reader::is_list_of_messages(const JsonValue &json, JsonValue &list) {
    if (!json.is_object() || json.contains("message") || json.contains("control") || !json.find("messages", list)) {
        return false;
    }
    check_keys(json, {"bundle", "messages"}, {});
    if (!list.is_array()) fail(list, Path{} / "messages", "expected an array");
    return list.is_array();
}

std::optional<Item> Reader::read(const Handles &handles, const JsonValue &json, const std::string &location) {
    if (json.is_object() && json.contains("message")) return read_message(handles, json, location);
    if (json.is_object() && json.contains("bundle") && json.contains("control")) return read_control(json, location);
    fail(json, {}, "neither a message, a control message nor a list of them");
    return std::nullopt;
}

}  // namespace

std::optional<Item> JsonReader::next() {
    for (;;) {
        if (pending_.empty()) {
            if (!texts_.next()) return std::nullopt;
            pending_.push_back(texts_.value());
        }
        const JsonValue json = pending_.back();
        pending_.pop_back();
        Reader reader(lenient_);
        std::optional<Item> item;
        JsonValue list = json;
        if (json.is_array() || reader.is_list_of_messages(json, list)) {
            add_elements(list);
        } else {
            item = reader.read(handles_, json, origin_ + ":" + json.position().text());
        }
        reader.problems().require_none(origin_);
        if (item) return item;
    }
}

// The first one last.
void JsonReader::add_elements(const JsonValue &list) {
    const auto end = static_cast<std::ptrdiff_t>(pending_.size());
    list.for_each_element([&](const JsonValue &element) { pending_.push_back(element); });
    std::reverse(pending_.begin() + end, pending_.end());
}

std::vector<Item> from_json(const Handles &handles, std::string_view content, const std::string &origin, bool lenient) {
    ByteStream stream = stream_of(std::string(content), origin);
    JsonReader reader(handles, stream, lenient);
    std::vector<Item> items;
    while (std::optional<Item> item = reader.next()) items.push_back(std::move(*item));
    return items;
}

}  // namespace tarn::tool
