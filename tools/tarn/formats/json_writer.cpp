// Writes instances as JSON.
#include <algorithm>
#include <charconv>
#include <iterator>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

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

// Appends to a text. The caller writes what is between the brackets of an object or a list.
class Output {
public:
    explicit Output(std::string &text) : text_(text) {}

    void open(char bracket) {
        separate();
        text_ += bracket;
    }
    void close(char bracket) { text_ += bracket; }
    void key(std::string_view name) {
        separate();
        text_ += '"';
        text_ += name;
        text_ += "\":";
    }
    template <class Number>
    void number(Number number) {
        separate();
        char digits[24];
        const auto [end, error] = std::to_chars(digits, digits + sizeof digits, number);
        text_.append(digits, end);
    }
    void word(std::string_view word) {
        separate();
        text_ += word;
    }
    // Of printable ASCII characters without quotation marks and backslashes.
    void plain(std::string_view text) {
        separate();
        text_ += '"';
        text_ += text;
        text_ += '"';
    }
    void string(std::string_view text) {
        const auto is_plain = [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; };
        if (std::all_of(text.begin(), text.end(), is_plain)) return plain(text);
        separate();
        text_ += json_text(text);
    }
    template <class Numbers>
    void list(const Numbers &numbers) {
        open('[');
        for (const auto one : numbers) number(one);
        close(']');
    }

private:
    // From what precedes on the same level.
    void separate() {
        if (!text_.empty() && std::string_view("{[:").find(text_.back()) == std::string_view::npos) text_ += ',';
    }

    std::string &text_;
};

void put_ra_data(const Handle &handle, void *object, Output &out) {
    const auto ra = ra_data_of(handle, object);
    if (!ra) return;
    out.key("@ra");
    out.open('{');
    out.key("value");
    out.plain(std::to_string(ra->value));
    out.key("byte");
    out.number(unsigned{ra->byte});
    out.close('}');
}

void put_string(const std::string &text, Output &out) {
    if (is_utf8(text)) return out.string(text);
    out.open('{');
    out.key("bytes");
    out.plain(hex_text(bytes_of(text)));
    out.close('}');
}

void put_variant(const void *object, Output &out) {
    out.key("@variant");
    out.number(int{variant_of(object)});
}

void put_address(const Handle &handle, ip_address *address, Output &out) {
    const std::uint8_t *const state = address->variant < 0 ? nullptr : address_state(handle, address);
    const bool has_state = state != nullptr && std::any_of(state, state + 7, [](std::uint8_t b) { return b != 0; });
    if (address->variant >= 0 && !has_state && !ra_data_of(handle, address)) {
        return out.plain(address_text(handle, address));
    }
    out.open('{');
    put_ra_data(handle, address, out);
    if (address->variant < 0) {
        put_variant(address, out);
    } else {
        if (has_state) {
            out.key("@members");
            out.list(std::vector<unsigned>(state, state + 7));
        }
        out.key("@address");
        out.plain(address_text(handle, address));
    }
    out.close('}');
}

void put_scalar(const MemberOperations &member, const void *value, Output &out) {
    if (member.member->kind == Kind::boolean) {
        const std::uint8_t truth = static_cast<const mirk_boolean *>(value)->value;
        if (truth > 1) return out.number(unsigned{truth});
        return out.word(truth != 0 ? "true" : "false");
    }
    const std::uint32_t number = enumeration_value(value);
    const auto &enumerators = member.member->enumeration->enumerators;
    if (number < enumerators.size()) return out.plain(enumerators[number]);
    out.number(number);
}

// One walk over the members of an instance.
class Writer {
public:
    Writer(const Handle &handle, const RecordOperations &operations, void *instance, Output &out)
        : handle_(handle), operations_(operations), instance_(instance), out_(out) {}

    void run() {
        out_.open('{');
        put_ra_data(handle_, instance_, out_);
        if (variant_of(instance_) < 0) {
            put_variant(instance_, out_);
        } else {
            for (std::size_t i = 0; i < operations_.members.size(); ++i) {
                const MemberOperations &m = operations_.members[i];
                if (m.member->role != schema::Role::value) continue;
                out_.key(m.member->name);
                put_value(i);
            }
            if (handle_.tracked()) put_states();
        }
        out_.close('}');
    }

    void put_value(std::size_t index) {
        const MemberOperations &m = operations_.members[index];
        mirk_handle *h = handle_.get();
        switch (category(m.member->kind)) {
            case Category::integer: {
                const std::uint64_t number = m.get_value(h, context_id, instance_, &err_);
                return is_wide(greatest(m.member->kind)) ? out_.plain(std::to_string(number)) : out_.number(number);
            }
            case Category::string:
                return put_string(string_at(*operations_.record, index, instance_), out_);
            case Category::record:
                return put_record(*m.member->record, m.get(h, context_id, instance_, &err_));
            case Category::array:
                return put_elements(index);
            case Category::address:
                return put_address(handle_, static_cast<ip_address *>(m.get(h, context_id, instance_, &err_)), out_);
            case Category::boolean:
            case Category::enumeration:
                break;
        }
        const void *value = m.get(h, context_id, instance_, &err_);
        // It has a value even if its variant is negative.
        if (variant_of(value) >= 0) return put_scalar(m, value, out_);
        out_.open('{');
        put_variant(value, out_);
        out_.key("@value");
        put_scalar(m, value, out_);
        out_.close('}');
    }

private:
    void put_record(const schema::Record &record, void *instance) {
        Writer(handle_, reflect::operations_of(record), instance, out_).run();
    }

    std::uint32_t count_of(std::size_t array) {
        const MemberOperations &count = operations_.members[array - 1];
        return static_cast<std::uint32_t>(count.get_value(handle_.get(), context_id, instance_, &err_));
    }

    void put_elements(std::size_t index) {
        const MemberOperations &m = operations_.members[index];
        const RecordOperations &element = reflect::operations_of(*m.member->record);
        out_.open('[');
        const std::uint32_t count = count_of(index);
        for (std::uint32_t i = 0; i < count; ++i) {
            void *object = m.element_get(handle_.get(), context_id, instance_, i, &err_);
            if (object == nullptr) break;
            Writer(handle_, element, object, out_).run();
        }
        out_.close(']');
    }

    // Only if there are any that are not 0.
    void put_states() {
        bool is_first = true;
        for (std::size_t i = 0; i < operations_.members.size(); ++i) {
            const MemberOperations &m = operations_.members[i];
            if (m.member->role != schema::Role::value) continue;
            const unsigned own = m.state_flag_get(handle_.get(), context_id, instance_, &err_);
            std::vector<unsigned> each;
            for (std::uint32_t e = 0, count = m.member->kind == Kind::array ? count_of(i) : 0; e < count; ++e) {
                each.push_back(m.element_state_flag_get(handle_.get(), context_id, instance_, e, &err_));
            }
            if (own == 0 && std::count(each.begin(), each.end(), 0U) == std::ssize(each)) continue;
            if (std::exchange(is_first, false)) {
                out_.key("@state");
                out_.open('{');
            }
            out_.key(m.member->name);
            if (m.member->kind != Kind::array) {
                out_.number(own);
                continue;
            }
            out_.open('{');
            out_.key("whole");
            out_.number(own);
            out_.key("elements");
            out_.list(each);
            out_.close('}');
        }
        if (!is_first) out_.close('}');
    }

    const Handle &handle_;
    const RecordOperations &operations_;
    void *instance_;
    Output &out_;
    std::uint32_t err_ = 0;
};

// What the function writes.
template <class Put>
ordered_json parsed(const Put &put) {
    std::string text;
    Output out(text);
    put(out);
    return ordered_json::parse(text);
}

}  // namespace

std::string json_text(const ordered_json &json, int indent) {
    return printable_output(json.dump(indent, ' ', false, ordered_json::error_handler_t::replace), Notation::json);
}

std::string json_line(const Item &item) {
    std::string text;
    Output out(text);
    const Identity &identity = item.identity;
    out.open('{');
    if (identity.is_control()) {
        out.key("bundle");
        out.plain(identity.bundle->bundle->name);
        out.key("control");
        out.plain(word(identity.control));
    } else {
        const Message &message = *item.message;
        out.key("message");
        out.plain(message.operations().name);
        if (message.handle().tracked()) {
            out.key("tracked");
            out.word("true");
        }
        out.key("payload");
        Writer(message.handle(), message.record(), message.payload(), out).run();
    }
    out.close('}');
    return text;
}

ordered_json json_of(const Item &item) { return ordered_json::parse(json_line(item)); }

ordered_json json_of(const Handle &handle, const RecordOperations &operations, void *instance) {
    return parsed([&](Output &out) { Writer(handle, operations, instance, out).run(); });
}

ordered_json json_of_member(const Handle &handle, const RecordOperations &operations, std::size_t index,
                            void *instance) {
    return parsed([&](Output &out) { Writer(handle, operations, instance, out).put_value(index); });
}

ordered_json json_of_string(const std::string &text) {
    return parsed([&](Output &out) { put_string(text, out); });
}

}  // namespace tarn::tool
