#include "tools/tarn/formats/dissection.h"

#include <arpa/inet.h>

#include <algorithm>

#include "tools/tarn/support/hex.h"

namespace tarn::tool {

namespace {

using schema::Kind;
using schema::Member;
using schema::Record;
using schema::Role;

constexpr std::uint8_t flag_tracked = 8, flag_ra_data = 32;

// An address travels as a record of seven integers.
constexpr Member address_members[] = {
    schema::u8("af", ""),       schema::u8("prefix_len", ""), schema::u16("scope", ""),  schema::u32("word[0]", ""),
    schema::u32("word[1]", ""), schema::u32("word[2]", ""),   schema::u32("word[3]", "")};
constexpr Record address_record{"ip_address", "00000000000000000000000000000000", "", address_members};

// Thrown from any depth; what was found up to there stays.
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
    void walk_frame();
    void walk_header();
    void walk_request();
    void walk_record(const Record &record, const std::string &path, unsigned depth);
    void walk_members(const Record &record, const std::string &path, unsigned depth, bool tracked);
    void walk_member(const Member &member, std::uint64_t count, const std::string &path, unsigned depth, bool tracked);
    void walk_array(const Member &member, std::uint64_t count, const std::string &path, unsigned depth, bool tracked);
    void walk_enumeration(const Member &member, const std::string &path, unsigned depth);
    void walk_end(std::size_t end, std::size_t jump_at, std::uint32_t jump, const std::string &path, unsigned depth);

    [[noreturn]] void stop(std::size_t offset, const std::string &path, const std::string &reason) {
        done_.broken = Break{base_ + offset, path, reason};
        throw Stop{};
    }
    // A number in network order; the piece is noted with what `show` makes of it.
    std::uint64_t number(std::size_t size, const std::string &path, unsigned depth, const char *kind) {
        require(size, path);
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < size; ++i) value = value << 8 | bytes_[at_ + i];
        note(size, path, depth, kind, std::to_string(value));
        return value;
    }
    void require(std::size_t size, const std::string &path) {
        if (size > end_ - at_) {
            stop(at_, path, std::to_string(end_ - at_) + " bytes are left of " + std::to_string(size));
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
    std::size_t end_;  // of the frame
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
    const auto marker = number(1, "header.marker", 1, "marker");
    if (marker != 0xbc) stop(at_ - 1, "header.marker", "the marker is " + std::to_string(marker) + ", not 188");
    require(6, "header.fill");
    note(6, "header.fill", 1, "fill", "");
    number(1, "header.sttr", 1, "u_int8");
    number(4, "header.stamp", 1, "u_int32");
    const auto length = number(4, "header.total_length", 1, "u_int32");
    if (length < MIRK_PLATFORM_FRAME_SIZE) {
        stop(at_ - 4, "header.total_length", std::to_string(length) + " is less than a header and a luid");
    }
    end_ = std::min<std::size_t>(end_, length);
    require(11, "header.zero");
    note(11, "header.zero", 1, "zero", "");
    const auto zero = bytes_.subspan(at_ - 11, 11);
    if (std::any_of(zero.begin(), zero.end(), [](auto byte) { return byte != 0; })) last().value = "not all zero";
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
    require(16, path);
    const std::uint8_t *luid = bytes_.data() + at_;
    const std::optional<Identity> identity = identify(luid);
    const bool request = std::equal(luid, luid + 16, message_ui_req_msg_luid);
    note(16, path, 1, "luid", luid_text(luid));
    if (!identity && !request) stop(at_ - 16, path, "no message is known by this luid");
    last().value += " " + std::string(request ? "ui_req_msg" : identity->operations->name);
    const auto length =
        (std::size_t{bytes_[12]} << 24) + (std::size_t{bytes_[13]} << 16) + (std::size_t{bytes_[14]} << 8) + bytes_[15];
    if (request) {
        walk_request();
    } else if (!identity->is_control()) {
        walk_record(identity->operations->message->payload, "payload", 1);
    }
    if (length > available) {
        stop(at_, "",
             "cut short: the total length is " + std::to_string(length) + ", and " + std::to_string(available) +
                 " bytes are there");
    }
    if (at_ != end_) stop(at_, "", std::to_string(end_ - at_) + " bytes more than the message has");
}

void Dissector::walk_record(const Record &record, const std::string &path, unsigned depth) {
    const auto variant = static_cast<std::int8_t>(number(1, path + ".variant", depth + 1, "variant"));
    last().value = std::to_string(variant) + ", begins " + std::string(record.name);
    const auto flag = static_cast<std::uint8_t>(number(1, path + ".flag", depth + 1, "flag"));
    if ((flag & flag_tracked) != 0) last().value += " tracked";
    if ((flag & flag_ra_data) != 0) {
        last().value += " ra_data";
        number(8, path + ".ra_value", depth + 1, "u_int64");
        number(1, path + ".ra_byte", depth + 1, "u_int8");
    }
    const std::size_t jump_at = at_;
    const auto jump = static_cast<std::uint32_t>(number(4, path + ".jump", depth + 1, "jump"));
    last().value += ", ends at " + std::to_string(base_ + jump_at + jump);
    if (variant >= 0) walk_members(record, path, depth + 1, (flag & flag_tracked) != 0);
    walk_end(jump_at + jump, jump_at, jump, path, depth + 1);
}

// A newer sender may have more behind the members that are known; a jump into them is a contradiction.
void Dissector::walk_end(std::size_t end, std::size_t jump_at, std::uint32_t jump, const std::string &path,
                         unsigned depth) {
    if (end < at_) {
        stop(jump_at, path + ".jump",
             "jump " + std::to_string(jump) + " ends at " + std::to_string(base_ + end) + ", but the members end at " +
                 std::to_string(base_ + at_));
    }
    if (end > end_) {
        stop(jump_at, path + ".jump",
             "jump " + std::to_string(jump) + " leads to " + std::to_string(base_ + end) + ", behind the end at " +
                 std::to_string(base_ + end_));
    }
    if (end > at_) note(end - at_, path, depth, "skipped", std::to_string(end - at_) + " bytes of a newer form");
}

void Dissector::walk_members(const Record &record, const std::string &path, unsigned depth, bool tracked) {
    std::uint64_t count = 0;
    for (const Member &m : record.members) {
        const std::string below = path + "." + std::string(m.name);
        if (m.role == Role::value) {
            walk_member(m, count, below, depth, tracked);
        } else {
            count = number(std::size_t{1} << static_cast<unsigned>(m.kind), below, depth,
                           m.role == Role::count ? "count" : "length");
        }
    }
}

void Dissector::walk_member(const Member &m, std::uint64_t count, const std::string &path, unsigned depth,
                            bool tracked) {
    constexpr const char *kinds[] = {"u_int8", "u_int16", "u_int32", "u_int64"};
    switch (m.kind) {
        case Kind::u8:
        case Kind::u16:
        case Kind::u32:
        case Kind::u64: {
            const auto index = static_cast<unsigned>(m.kind);
            number(std::size_t{1} << index, path, depth, kinds[index]);
            break;
        }
        case Kind::boolean:
            number(1, path + ".variant", depth + 1, "variant");
            number(1, path, depth, "mirk_boolean");
            last().value = last().value == "0" ? "false" : last().value == "1" ? "true" : "true (" + last().value + ")";
            break;
        case Kind::enumeration:
            walk_enumeration(m, path, depth);
            break;
        case Kind::address:
            walk_record(address_record, path, depth);
            break;
        case Kind::record:
            walk_record(*m.record, path, depth);
            break;
        case Kind::string:
            if (count == 0) return;
            require(count, path);
            note(count, path, depth, "var_string", quoted(bytes_.subspan(at_, count)));
            break;
        case Kind::array:
            return walk_array(m, count, path, depth, tracked);
    }
    if (tracked) state(path + ".state", depth);
}

void Dissector::walk_enumeration(const Member &m, const std::string &path, unsigned depth) {
    number(1, path + ".variant", depth + 1, "variant");
    const auto value = number(4, path, depth, "");
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
