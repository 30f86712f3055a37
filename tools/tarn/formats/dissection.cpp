#include "tools/tarn/formats/dissection.h"

#include <algorithm>
#include <charconv>

#include "schema/frame.h"
#include "tools/tarn/support/hex.h"

namespace tarn::tool {

namespace {

using namespace schema;

static_assert(schema::message_head_size == MIRK_PLATFORM_FRAME_SIZE);

constexpr std::uint32_t length_at = offset_of(schema::message_frame, "total_length");

// Thrown at any depth; the visitor has what was found so far.
struct Stop {};

class Dissector {
public:
    Dissector(FrameBytes bytes, std::size_t base, DissectionVisitor &visitor)
        : bytes_(bytes), base_(base), end_(bytes.size()), visitor_(visitor) {}

    Walked run() {
        try {
            walk_frame();
        } catch (const Stop &) {
        }
        done_.size = done_.broken ? at_ : end_;
        return std::move(done_);
    }

private:
    // A member or a part of a frame: its name, and for an element of an array its number.
    struct Name {
        std::string_view text;
        std::size_t index = no_index;
    };

    // The head of a record.
    struct Head {
        const Record &record;
        std::int8_t variant = 0;
        std::uint8_t flag = 0;
        std::uint32_t jump = 0;
        std::size_t jump_at = 0;

        bool has(std::uint8_t bit) const { return (flag & bit) != 0; }
    };

    void walk_frame();
    void walk_header();
    void walk_header_part(const Part &part);
    void walk_request();
    void walk_record(const Record &record, const Name &name, const Member *member = nullptr);
    void walk_parts(std::span<const Part> parts, Head &head);
    std::uint64_t walk_small_frame(std::span<const Part> parts, const Member &member);
    void walk_members(const Record &record, bool tracked);
    void walk_member(const Member &member, std::uint64_t count, bool tracked);
    void walk_array(const Member &member, std::uint64_t count, bool tracked);
    void walk_end(const Head &head, const Name &name);

    void open(const Group &group) {
        visitor_.open(group);
        if (group.kind != Group::Kind::array) path_.push_back({group.name, group.index});
    }
    void close(Group::Kind kind) {
        visitor_.close();
        if (kind != Group::Kind::array) path_.pop_back();
    }
    std::string path(const Name &last, std::string_view suffix = {}) const {
        std::string text;
        const auto add = [&](const Name &name) {
            text += (text.empty() ? "" : ".") + std::string(name.text);
            if (name.index != no_index) text += "[" + std::to_string(name.index) + "]";
        };
        for (const Name &name : path_) add(name);
        if (!last.text.empty()) add(last);
        return text + std::string(suffix);
    }

    void note(std::size_t offset, const std::string &path, const std::string &reason) {
        if (!done_.broken) done_.broken = Break{base_ + offset, path, reason};
    }
    [[noreturn]] void stop(std::size_t offset, const std::string &path, const std::string &reason) {
        note(offset, path, reason);
        throw Stop{};
    }
    // The next bytes. The suffix is that of the path in an error.
    Field take(Field::Kind kind, std::size_t size, const Name &name, std::string_view type,
               std::string_view suffix = {}) {
        if (size > end_ - at_) {
            // The value of a small frame belongs to the member that the frame is.
            const bool is_value = kind == Field::Kind::boolean || kind == Field::Kind::enumeration;
            stop(at_, path(is_value ? Name{} : name, suffix),
                 "needs " + std::to_string(size) + " bytes, but " + std::to_string(end_ - at_) + " are left");
        }
        Field field{kind, name.text, name.index, type, base_ + at_, bytes_.subspan(at_, size)};
        if (size <= sizeof field.number) {
            for (const std::uint8_t byte : field.bytes) field.number = field.number << 8 | byte;
        }
        at_ += size;
        return field;
    }
    std::uint64_t add(const Field &field) {
        visitor_.field(field);
        return field.number;
    }
    std::uint64_t number(std::size_t size, std::string_view name, std::string_view type,
                         Field::Kind kind = Field::Kind::number, const Member *member = nullptr) {
        Field field = take(kind, size, {name}, type);
        field.member = member;
        return add(field);
    }
    void state(const Name &name) { add(take(Field::Kind::state, 1, name, "state", ".state")); }

    FrameBytes bytes_;
    std::size_t base_;
    std::size_t end_;         // of the frame
    std::size_t length_ = 0;  // according to the header
    std::size_t at_ = 0;
    std::vector<Name> path_;
    DissectionVisitor &visitor_;
    Walked done_;
};

void Dissector::walk_header() {
    open({Group::Kind::header, "header", no_index, "", base_});
    for (const Part &part : schema::message_frame) {
        if (part.content == Content::identity) break;
        walk_header_part(part);
    }
    close(Group::Kind::header);
}

void Dissector::walk_header_part(const Part &part) {
    const bool constant = part.content == Content::constant;
    const std::size_t from = at_;
    Field field = take(constant ? Field::Kind::constant : Field::Kind::number, part.size, {part.name}, part.type);
    const auto is_zero = [](std::uint8_t byte) { return byte == 0; };
    if (constant && part.size > 1 && part.value == 0 && !std::all_of(field.bytes.begin(), field.bytes.end(), is_zero)) {
        field.words = "not all zero";
    }
    const std::uint64_t value = add(field);
    if (constant && part.size == 1 && value != part.value) {
        stop(from, path({part.name}),
             "the " + std::string(part.name) + " is " + std::to_string(value) + ", not " + std::to_string(part.value));
    }
    if (from != length_at) return;
    if (value < schema::message_head_size) {
        stop(from, path({part.name}), std::to_string(value) + " is less than the size of a header and a luid");
    }
    end_ = std::min<std::size_t>(end_, value);
    length_ = value;
}

void Dissector::walk_request() {
    const RequestText text = request_text(number(1, "options", "u_int8"));
    if (text.refused) number(4, "number", "u_int32");
    Field length = take(Field::Kind::length, 1, {text.length_name()}, "length");
    length.words = text.name();
    add(length);
    add(take(Field::Kind::text, length.number, {text.name()}, "text"));
}

void Dissector::walk_frame() {
    const std::size_t available = bytes_.size();
    walk_header();
    Field field = take(Field::Kind::luid, schema::luid_size, {"luid"}, "luid");
    const std::optional<Identity> identity = identify(field.bytes.data());
    const bool request = std::equal(field.bytes.begin(), field.bytes.end(), message_ui_req_msg_luid);
    if (request) field.words = "ui_req_msg";
    if (identity) field.words = identity->operations->name;
    add(field);
    if (field.words.empty()) stop(at_ - schema::luid_size, "luid", "unknown luid");
    if (request) {
        walk_request();
    } else if (!identity->is_control()) {
        walk_record(identity->operations->message->payload, {"payload"});
    }
    if (length_ > available) {
        stop(at_, "",
             "truncated: the total length is " + std::to_string(length_) + ", but there are " +
                 std::to_string(available) + " bytes");
    }
    if (at_ != end_) stop(at_, "", std::to_string(end_ - at_) + " extra bytes after the message");
}

void Dissector::walk_record(const Record &record, const Name &name, const Member *member) {
    const bool address = &record == &schema::address_record;
    open({address ? Group::Kind::address : Group::Kind::record, name.text, name.index, record.name, base_ + at_, member,
          &record});
    Head head{record};
    walk_parts(schema::record_frame, head);
    if (head.variant >= 0) walk_members(record, head.has(schema::wire_flag::tracked));
    walk_end(head, name);
    close(Group::Kind::record);
}

// The parts of a record's frame that precede its members.
void Dissector::walk_parts(std::span<const Part> parts, Head &head) {
    for (const Part &part : parts) {
        if (part.flag != 0 && !head.has(part.flag)) continue;
        if (part.content == Content::parts) walk_parts(part.parts, head);
        if (part.content == Content::parts || part.size == schema::varies) continue;
        const std::size_t from = at_;
        Field field = take(Field::Kind::opaque, part.size, {part.name}, part.type);
        if (part.content == Content::signed_number) {
            field.kind = Field::Kind::variant;
            field.record = &head.record;
            head.variant = static_cast<std::int8_t>(field.number);
        } else if (part.content == Content::flags) {
            field.kind = Field::Kind::flags;
            head.flag = static_cast<std::uint8_t>(field.number);
        } else if (part.content == Content::number) {
            field.kind = Field::Kind::jump;
            head.jump = static_cast<std::uint32_t>(field.number);
            head.jump_at = from;
        }
        add(field);
    }
}

// A variant and a value.
std::uint64_t Dissector::walk_small_frame(std::span<const Part> parts, const Member &m) {
    const bool boolean = m.kind == schema::Kind::boolean;
    const Part &variant = parts.front(), &value = parts.back();
    const std::string_view type = boolean ? value.type : m.enumeration->name;
    const auto kind = boolean ? Group::Kind::boolean : Group::Kind::enumeration;
    open({kind, m.name, no_index, type, base_ + at_, &m});
    number(variant.size, variant.name, variant.type, Field::Kind::variant);
    const auto result =
        number(value.size, value.name, type, boolean ? Field::Kind::boolean : Field::Kind::enumeration, &m);
    close(kind);
    return result;
}

// A newer sender may append members that this schema does not know. A jump into the known members is an error.
void Dissector::walk_end(const Head &head, const Name &name) {
    const std::size_t end = head.jump_at + head.jump;
    if (end >= at_ && end <= end_) {
        if (end > at_) add(take(Field::Kind::skipped, end - at_, name, "skipped"));
        return;
    }
    const std::string reason =
        end < at_
            ? " ends at " + std::to_string(base_ + end) + ", but the members end at " + std::to_string(base_ + at_)
            : " leads to " + std::to_string(base_ + end) + ", beyond the end at " + std::to_string(base_ + end_);
    note(head.jump_at, path({"jump"}), "jump " + std::to_string(head.jump) + reason);
    if (!visitor_.ignores_jumps()) throw Stop{};
}

void Dissector::walk_members(const Record &record, bool tracked) {
    std::uint64_t count = 0;
    for (const Member &m : record.members) {
        if (m.role == Role::value) {
            walk_member(m, count, tracked);
        } else if (m.role == Role::count) {
            count = number(facts(m.kind).wire, m.name, "count", Field::Kind::count, &m);
        } else {
            count = number(facts(m.kind).wire, m.name, "length", Field::Kind::length, &m);
        }
    }
}

void Dissector::walk_member(const Member &m, std::uint64_t count, bool tracked) {
    switch (category(m.kind)) {
        case Category::integer:
            number(facts(m.kind).wire, m.name, facts(m.kind).primitive, Field::Kind::number, &m);
            break;
        case Category::boolean:
            walk_small_frame(schema::boolean_frame, m);
            break;
        case Category::enumeration:
            walk_small_frame(schema::enumeration_frame, m);
            break;
        case Category::address:
            walk_record(schema::address_record, {m.name}, &m);
            break;
        case Category::record:
            walk_record(*m.record, {m.name}, &m);
            break;
        case Category::string:
            if (count == 0) return;
            number(count, m.name, facts(m.kind).primitive, Field::Kind::text, &m);
            break;
        case Category::array:
            return walk_array(m, count, tracked);
    }
    if (tracked) state({m.name});
}

void Dissector::walk_array(const Member &m, std::uint64_t count, bool tracked) {
    if (count == 0) return;
    open({Group::Kind::array, m.name, no_index, m.record->name, base_ + at_, &m, m.record});
    for (std::uint64_t i = 0; i < count; ++i) walk_record(*m.record, {m.name, i}, &m);
    close(Group::Kind::array);
    if (!tracked) return;
    state({m.name});
    for (std::uint64_t i = 0; i < count; ++i) state({m.name, i});
}

void append_number(std::uint64_t number, std::string &out) {
    char text[24];
    out.append(text, std::to_chars(text, text + sizeof text, number).ptr);
}

}  // namespace

void append_quoted(FrameBytes bytes, std::string &out) {
    out += '"';
    for (const std::uint8_t byte : bytes) {
        if (byte < ' ' || byte > '~') {
            out += "\\x" + hex_text({&byte, 1});
        } else {
            if (byte == '"' || byte == '\\') out += '\\';
            out += static_cast<char>(byte);
        }
    }
    out += '"';
}

bool is_pointer(const Field &field) {
    return field.member != nullptr && field.member->notation == schema::Notation::hexadecimal;
}

void append_value(const Field &field, std::string &out) {
    using Kind = Field::Kind;
    switch (field.kind) {
        case Kind::variant:
            out += std::to_string(static_cast<std::int8_t>(field.number));
            if (field.record != nullptr) (out += ", begins ") += field.record->name;
            return;
        case Kind::flags:
            append_number(field.number, out);
            if ((field.number & schema::wire_flag::tracked) != 0) out += " tracked";
            if ((field.number & schema::wire_flag::ra_data) != 0) out += " ra_data";
            return;
        case Kind::jump:
            append_number(field.number, out);
            out += ", ends at ";
            return append_number(field.offset + field.number, out);
        case Kind::boolean:
            out += field.number == 0 ? "false" : "true";
            if (field.number > 1) out += " (" + std::to_string(field.number) + ")";
            return;
        case Kind::enumeration: {
            const auto &enumerators = field.member->enumeration->enumerators;
            append_number(field.number, out);
            (out += ' ') += field.number < enumerators.size() ? enumerators[field.number] : "out of range";
            return;
        }
        case Kind::text:
            return append_quoted(field.bytes, out);
        case Kind::luid:
            out += luid_text(field.bytes.data());
            if (!field.words.empty()) (out += ' ') += field.words;
            return;
        case Kind::skipped:
            append_number(field.bytes.size(), out);
            out += " bytes of a newer version";
            return;
        case Kind::constant:
            if (field.bytes.size() == 1) append_number(field.number, out);
            out += field.words;
            return;
        case Kind::number:
        case Kind::opaque:
        case Kind::count:
        case Kind::length:
        case Kind::state:
            return append_number(field.number, out);
    }
}

Walked walk_frame(FrameBytes bytes, std::size_t base, DissectionVisitor &visitor) {
    return Dissector(bytes, base, visitor).run();
}

std::optional<Break> error_in(FrameBytes frame, std::size_t base) {
    DissectionVisitor nothing;
    return walk_frame(frame, base, nothing).broken;
}

std::string sentence_of(const Break &broken) {
    return "offset " + std::to_string(broken.offset) + (broken.path.empty() ? "" : ", " + broken.path) + ": " +
           broken.reason;
}

}  // namespace tarn::tool
