#include "tools/tarn/formats/dissection.h"

#include <algorithm>

#include "schema/frame.h"
#include "tools/tarn/support/hex.h"

namespace tarn::tool {

namespace {

using schema::Category;
using schema::Content;
using schema::Member;
using schema::Part;
using schema::Record;
using schema::Role;

static_assert(schema::message_head_size == MIRK_PLATFORM_FRAME_SIZE);

constexpr std::uint32_t length_at = offset_of(schema::message_frame, "total_length");

// Thrown at any depth; the pieces found so far are kept.
struct Stop {};

class Dissector {
public:
    Dissector(FrameBytes bytes, std::size_t base) : bytes_(bytes), base_(base), end_(bytes.size()) {}

    Dissection run() {
        try {
            walk_frame();
        } catch (const Stop &) {
        }
        done_.size = done_.broken ? at_ : end_;
        return std::move(done_);
    }

private:
    // The head of a record.
    struct Head {
        std::string_view record;
        std::int8_t variant = 0;
        std::uint8_t flag = 0;
        std::uint32_t jump = 0;
        std::size_t jump_at = 0;

        bool has(std::uint8_t bit) const { return (flag & bit) != 0; }
    };

    void walk_frame();
    void walk_header();
    void walk_header_part(const Part &part, const std::string &path);
    void walk_request();
    void walk_record(const Record &record, const std::string &path, unsigned depth);
    void walk_parts(std::span<const Part> parts, Head &head, const std::string &path, unsigned depth);
    std::uint64_t walk_small_frame(std::span<const Part> parts, const std::string &path, unsigned depth);
    void walk_members(const Record &record, const std::string &path, unsigned depth, bool tracked);
    void walk_member(const Member &member, std::uint64_t count, const std::string &path, unsigned depth, bool tracked);
    void walk_array(const Member &member, std::uint64_t count, const std::string &path, unsigned depth, bool tracked);
    void walk_enumeration(const Member &member, const std::string &path, unsigned depth);
    void walk_end(std::size_t end, std::size_t jump_at, std::uint32_t jump, const std::string &path, unsigned depth);

    [[noreturn]] void stop(std::size_t offset, const std::string &path, const std::string &reason) {
        done_.broken = Break{base_ + offset, path, reason};
        throw Stop{};
    }
    // A number in network byte order, recorded as a piece.
    std::uint64_t number(std::size_t size, const std::string &path, unsigned depth, std::string_view kind) {
        require(size, path);
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < size; ++i) value = value << 8 | bytes_[at_ + i];
        note(size, path, depth, std::string(kind), std::to_string(value));
        return value;
    }
    void require(std::size_t size, const std::string &path) {
        if (size > end_ - at_) {
            stop(at_, path,
                 "needs " + std::to_string(size) + " bytes, but " + std::to_string(end_ - at_) + " are left");
        }
    }
    void note(std::size_t size, const std::string &path, unsigned depth, std::string kind, std::string value) {
        done_.pieces.push_back({base_ + at_, size, depth, path, std::move(kind), std::move(value)});
        at_ += size;
    }
    Piece &last() { return done_.pieces.back(); }
    void state(const std::string &path, unsigned depth) { number(1, path, depth, "state"); }

    FrameBytes bytes_;
    std::size_t base_;
    std::size_t end_;         // of the frame
    std::size_t length_ = 0;  // according to the header
    std::size_t at_ = 0;
    Dissection done_;
};

std::string quoted(FrameBytes bytes) {
    std::string text = "\"";
    for (const std::uint8_t byte : bytes) {
        if (byte < ' ' || byte > '~') {
            text += "\\x" + hex_text({&byte, 1});
        } else {
            if (byte == '"' || byte == '\\') text += '\\';
            text += static_cast<char>(byte);
        }
    }
    return text + "\"";
}

void Dissector::walk_header() {
    for (const Part &part : schema::message_frame) {
        if (part.content == Content::identity) break;
        walk_header_part(part, "header." + std::string(part.name));
    }
}

void Dissector::walk_header_part(const Part &part, const std::string &path) {
    if (part.content == Content::constant && part.size > 1) {
        require(part.size, path);
        const FrameBytes bytes = bytes_.subspan(at_, part.size);
        note(part.size, path, 1, std::string(part.type), "");
        const bool zero = std::all_of(bytes.begin(), bytes.end(), [](auto byte) { return byte == 0; });
        if (part.value == 0 && !zero) last().value = "not all zero";
        return;
    }
    const std::size_t from = at_;
    const std::uint64_t value = number(part.size, path, 1, part.type);
    if (part.content == Content::constant && value != part.value) {
        stop(from, path,
             "the " + std::string(part.name) + " is " + std::to_string(value) + ", not " + std::to_string(part.value));
    }
    if (from != length_at) return;
    if (value < schema::message_head_size) {
        stop(from, path, std::to_string(value) + " is less than the size of a header and a luid");
    }
    end_ = std::min<std::size_t>(end_, value);
    length_ = value;
}

void Dissector::walk_request() {
    const auto options = number(1, "options", 1, "u_int8");
    const bool refused = (options & MIRK_PLATFORM_REQUEST_REFUSED) != 0;
    if (refused) number(4, "number", 1, "u_int32");
    const char *const name = refused ? "sentence" : "bundle";
    const auto length = number(1, std::string(name) + "_len", 1, "length");
    require(length, name);
    note(length, name, 1, "text", quoted(bytes_.subspan(at_, length)));
}

void Dissector::walk_frame() {
    const std::size_t available = bytes_.size();
    walk_header();
    const std::string path = "luid";
    require(schema::luid_size, path);
    const std::uint8_t *luid = bytes_.data() + at_;
    const std::optional<Identity> identity = identify(luid);
    const bool request = std::equal(luid, luid + schema::luid_size, message_ui_req_msg_luid);
    note(schema::luid_size, path, 1, path, luid_text(luid));
    if (!identity && !request) stop(at_ - schema::luid_size, path, "unknown luid");
    last().value += " " + std::string(request ? "ui_req_msg" : identity->operations->name);
    if (request) {
        walk_request();
    } else if (!identity->is_control()) {
        walk_record(identity->operations->message->payload, "payload", 1);
    }
    if (length_ > available) {
        stop(at_, "",
             "truncated: the total length is " + std::to_string(length_) + ", but there are " +
                 std::to_string(available) + " bytes");
    }
    if (at_ != end_) stop(at_, "", std::to_string(end_ - at_) + " extra bytes after the message");
}

void Dissector::walk_record(const Record &record, const std::string &path, unsigned depth) {
    Head head{record.name};
    walk_parts(schema::record_frame, head, path, depth + 1);
    if (head.variant >= 0) walk_members(record, path, depth + 1, head.has(schema::wire_flag::tracked));
    walk_end(head.jump_at + head.jump, head.jump_at, head.jump, path, depth + 1);
}

// The parts of a record's frame that precede its members.
void Dissector::walk_parts(std::span<const Part> parts, Head &head, const std::string &path, unsigned depth) {
    for (const Part &part : parts) {
        if (part.flag != 0 && !head.has(part.flag)) continue;
        if (part.content == Content::parts) walk_parts(part.parts, head, path, depth);
        if (part.content == Content::parts || part.size == schema::varies) continue;
        const std::size_t from = at_;
        const auto value = number(part.size, path + "." + std::string(part.name), depth, part.type);
        if (part.content == Content::signed_number) {
            head.variant = static_cast<std::int8_t>(value);
            last().value = std::to_string(head.variant) + ", begins " + std::string(head.record);
        } else if (part.content == Content::flags) {
            head.flag = static_cast<std::uint8_t>(value);
            if (head.has(schema::wire_flag::tracked)) last().value += " tracked";
            if (head.has(schema::wire_flag::ra_data)) last().value += " ra_data";
        } else if (part.content == Content::number) {
            head.jump = static_cast<std::uint32_t>(value);
            head.jump_at = from;
            last().value += ", ends at " + std::to_string(base_ + from + head.jump);
        }
    }
}

// A variant and a value. Returns the value, which is the member's piece.
std::uint64_t Dissector::walk_small_frame(std::span<const Part> parts, const std::string &path, unsigned depth) {
    const Part &variant = parts.front(), &value = parts.back();
    number(variant.size, path + "." + std::string(variant.name), depth + 1, variant.type);
    return number(value.size, path, depth, value.type);
}

// A newer sender may append members that this schema does not know. A jump into the known members is an error.
void Dissector::walk_end(std::size_t end, std::size_t jump_at, std::uint32_t jump, const std::string &path,
                         unsigned depth) {
    if (end < at_) {
        stop(jump_at, path + ".jump",
             "jump " + std::to_string(jump) + " ends at " + std::to_string(base_ + end) + ", but the members end at " +
                 std::to_string(base_ + at_));
    }
    if (end > end_) {
        stop(jump_at, path + ".jump",
             "jump " + std::to_string(jump) + " leads to " + std::to_string(base_ + end) + ", beyond the end at " +
                 std::to_string(base_ + end_));
    }
    if (end > at_) note(end - at_, path, depth, "skipped", std::to_string(end - at_) + " bytes of a newer version");
}

void Dissector::walk_members(const Record &record, const std::string &path, unsigned depth, bool tracked) {
    std::uint64_t count = 0;
    for (const Member &m : record.members) {
        const std::string below = path + "." + std::string(m.name);
        if (m.role == Role::value) {
            walk_member(m, count, below, depth, tracked);
        } else {
            count = number(facts(m.kind).wire, below, depth, m.role == Role::count ? "count" : "length");
        }
    }
}

void Dissector::walk_member(const Member &m, std::uint64_t count, const std::string &path, unsigned depth,
                            bool tracked) {
    switch (category(m.kind)) {
        case Category::integer:
            number(facts(m.kind).wire, path, depth, facts(m.kind).primitive);
            break;
        case Category::boolean:
            if (const auto value = walk_small_frame(schema::boolean_frame, path, depth); value > 1) {
                last().value = "true (" + std::to_string(value) + ")";
            } else {
                last().value = value == 0 ? "false" : "true";
            }
            break;
        case Category::enumeration:
            walk_enumeration(m, path, depth);
            break;
        case Category::address:
            walk_record(schema::address_record, path, depth);
            break;
        case Category::record:
            walk_record(*m.record, path, depth);
            break;
        case Category::string:
            if (count == 0) return;
            require(count, path);
            note(count, path, depth, std::string(facts(m.kind).primitive), quoted(bytes_.subspan(at_, count)));
            break;
        case Category::array:
            return walk_array(m, count, path, depth, tracked);
    }
    if (tracked) state(path + ".state", depth);
}

void Dissector::walk_enumeration(const Member &m, const std::string &path, unsigned depth) {
    const auto value = walk_small_frame(schema::enumeration_frame, path, depth);
    last().kind = m.enumeration->name;
    last().value += value < m.enumeration->enumerators.size() ? " " + std::string(m.enumeration->enumerators[value])
                                                              : std::string(" out of range");
}

void Dissector::walk_array(const Member &m, std::uint64_t count, const std::string &path, unsigned depth,
                           bool tracked) {
    if (count == 0) return;
    for (std::uint64_t i = 0; i < count; ++i) walk_record(*m.record, path + "[" + std::to_string(i) + "]", depth);
    if (!tracked) return;
    state(path + ".state", depth);
    for (std::uint64_t i = 0; i < count; ++i) state(path + "[" + std::to_string(i) + "].state", depth);
}

}  // namespace

Dissection dissect_frame(FrameBytes bytes, std::size_t base) { return Dissector(bytes, base).run(); }

std::string sentence_of(const Break &broken) {
    return "offset " + std::to_string(broken.offset) + (broken.path.empty() ? "" : ", " + broken.path) + ": " +
           broken.reason;
}

}  // namespace tarn::tool
