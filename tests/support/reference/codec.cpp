#include "reference/codec.h"

#include <cstdlib>
#include <stdexcept>

namespace reference {
namespace {

constexpr std::uint8_t tracked_flag = 8;
constexpr std::uint8_t reference_flag = 32;
constexpr std::uint8_t marker = 0xBC;

void put(Bytes &out, std::uint64_t number, unsigned width) {
    for (unsigned i = width; i-- > 0;) out.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
}

void put_variant(Bytes &out, std::int8_t variant) { put(out, static_cast<std::uint8_t>(variant > 0 ? 0 : variant), 1); }

void put_record(Bytes &out, const Record &value, bool tracked);

void put_member(Bytes &out, const Record &owner, std::size_t index, bool tracked) {
    const MemberTable &row = owner.table->members[index];
    const Member &member = owner.members[index];
    switch (row.cls) {
        case Class::integer:
        case Class::count:
        case Class::length:
            put(out, owner.number(index), row.width);
            break;
        case Class::boolean:
            put_variant(out, member.variant);
            put(out, member.number, 1);
            break;
        case Class::enumeration:
            put_variant(out, member.variant);
            put(out, member.number, 4);
            break;
        case Class::string:
            out.insert(out.end(), member.text.begin(), member.text.end());
            if (member.text.empty()) return;
            break;
        case Class::address:
        case Class::nested:
        case Class::array:
            for (const Record &item : member.items) put_record(out, item, tracked);
            if (member.items.empty()) return;
            break;
    }
    if (!tracked || !row.tracked()) return;
    put(out, member.state, 1);
    if (row.cls != Class::array) return;
    for (std::size_t i = 0; i < member.items.size(); ++i)
        put(out, i < member.element_state.size() ? member.element_state[i] : 0, 1);
}

void put_record(Bytes &out, const Record &value, bool tracked) {
    put_variant(out, value.variant);
    put(out, (tracked ? tracked_flag : 0u) | (value.ra ? reference_flag : 0u), 1);
    if (value.ra) {
        put(out, value.ra->value, 8);
        put(out, value.ra->byte, 1);
    }
    const std::size_t base = out.size();
    put(out, 0, 4);
    if (value.variant >= 0)
        for (std::size_t i = 0; i < value.members.size(); ++i) put_member(out, value, i, tracked);
    Bytes jump;
    put(jump, out.size() - base, 4);
    for (std::size_t i = 0; i < 4; ++i) out[base + i] = jump[i];
}

class Reader {
public:
    Reader(std::span<const std::uint8_t> bytes, bool tracked, std::size_t offset)
        : bytes_(bytes), offset_(offset), tracked_(tracked) {}

    Record record(const RecordTable &table);
    std::size_t offset() const { return offset_; }

    struct Failure {
        std::size_t offset;
        std::string reason;
    };

private:
    std::uint64_t take(unsigned width, const std::string &what);
    std::int8_t take_variant(const std::string &what);
    void take_member(const MemberTable &row, std::uint64_t count, Member &member);

    std::span<const std::uint8_t> bytes_;
    std::size_t offset_;
    bool tracked_;
};

std::uint64_t Reader::take(unsigned width, const std::string &what) {
    if (bytes_.size() - offset_ < width) throw Failure{bytes_.size(), what + " is cut"};
    std::uint64_t number = 0;
    for (unsigned i = 0; i < width; ++i) number = number << 8 | bytes_[offset_ + i];
    offset_ += width;
    return number;
}

std::int8_t Reader::take_variant(const std::string &what) {
    const auto variant = static_cast<std::int8_t>(take(1, what + " variant"));
    if (variant > 0) throw Failure{offset_ - 1, what + " has a variant above 0"};
    return variant;
}

void Reader::take_member(const MemberTable &row, std::uint64_t count, Member &member) {
    switch (row.cls) {
        case Class::integer:
            member.number = take(row.width, row.name);
            break;
        case Class::count:
        case Class::length:
            return;
        case Class::boolean:
            member.variant = take_variant(row.name);
            member.number = take(1, row.name);
            break;
        case Class::enumeration:
            member.variant = take_variant(row.name);
            member.number = take(4, row.name);
            break;
        case Class::address:
        case Class::nested:
            member.items[0] = record(row.element());
            break;
        case Class::string:
            if (count == 0) return;
            for (std::uint64_t i = 0; i < count; ++i) member.text += static_cast<char>(take(1, row.name));
            break;
        case Class::array:
            if (count == 0) return;
            for (std::uint64_t i = 0; i < count; ++i) member.items.push_back(record(row.element()));
            member.element_state.assign(member.items.size(), 0);
            break;
    }
    if (!tracked_) return;
    member.state = static_cast<std::uint8_t>(take(1, row.name + " state"));
    for (std::uint8_t &state : member.element_state)
        state = static_cast<std::uint8_t>(take(1, row.name + " element state"));
}

Record Reader::record(const RecordTable &table) {
    Record value(table);
    value.variant = take_variant(table.name);
    const std::uint64_t flag = take(1, table.name + " flag");
    if ((flag & ~std::uint64_t{tracked_flag | reference_flag}) != 0)
        throw Failure{offset_ - 1, table.name + " has flag bits that do not travel"};
    if (((flag & tracked_flag) != 0) != tracked_)
        throw Failure{offset_ - 1, table.name + (tracked_ ? " is not tracked" : " is tracked")};
    if ((flag & reference_flag) != 0) {
        value.ra.emplace();
        value.ra->value = take(8, table.name + " RA value");
        value.ra->byte = static_cast<std::uint8_t>(take(1, table.name + " RA byte"));
    }
    const std::size_t base = offset_;
    const std::uint64_t jump = take(4, table.name + " jump");
    if (value.variant >= 0) {
        std::uint64_t count = 0;
        for (std::size_t i = 0; i < table.members.size(); ++i) {
            const MemberTable &row = table.members[i];
            if (!row.tracked()) count = take(row.width, row.name);
            take_member(row, count, value.members[i]);
        }
    }
    if (offset_ - base != jump)
        throw Failure{base,
                      table.name + " has jump " + std::to_string(jump) + " and not " + std::to_string(offset_ - base)};
    return value;
}

Decoded decode_at(const RecordTable &table, std::span<const std::uint8_t> bytes, bool tracked, std::size_t offset) {
    Decoded result;
    Reader reader(bytes, tracked, offset);
    try {
        result.value = reader.record(table);
        result.consumed = reader.offset();
    } catch (const Reader::Failure &failure) {
        result.offset = failure.offset;
        result.reason = failure.reason;
    }
    return result;
}

Bytes frame_head(const Luid &luid, bool tracked, std::uint32_t stamp, std::size_t total) {
    Bytes out{marker};
    out.insert(out.end(), 6, 0xFF);
    put(out, tracked ? 1 : 0, 1);
    put(out, stamp, 4);
    put(out, total, 4);
    out.insert(out.end(), 11, 0);
    out.insert(out.end(), luid.begin(), luid.end());
    return out;
}

Decoded failed(std::size_t offset, const std::string &reason) {
    Decoded result;
    result.offset = offset;
    result.reason = reason;
    return result;
}

}  // namespace

Bytes encode(const Record &value, bool tracked) {
    Bytes out;
    put_record(out, value, tracked);
    return out;
}

Record small_value(std::string_view type, std::uint64_t seed, bool printable) {
    constexpr std::size_t small = 300;
    GeneratorOptions options{.min_text = 1, .max_text = 5, .printable = printable};
    for (const std::uint32_t elements : {2U, 1U}) {
        options.min_elements = options.max_elements = elements;
        const Record value = Generator(seed, options).make(type);
        if (elements == 1 || encode(value, true).size() <= small) return value;
    }
    std::abort();
}

Decoded decode(std::string_view type, std::span<const std::uint8_t> bytes, bool tracked) {
    return decode_at(record_table(type), bytes, tracked, 0);
}

Bytes message_frame(std::string_view message, const Record &payload, bool tracked, std::uint32_t stamp) {
    const MessageTable &table = message_table(message);
    if (payload.table->name != table.payload) throw std::invalid_argument("payload of " + table.name);
    const Bytes body = encode(payload, tracked);
    Bytes out = frame_head(table.luid, tracked, stamp, payload_offset + body.size());
    out.insert(out.end(), body.begin(), body.end());
    return out;
}

Bytes control_frame(std::string_view bundle, std::string_view kind, std::uint32_t stamp) {
    return frame_head(bundle_table(bundle).luid(kind), false, stamp, payload_offset);
}

std::optional<Header> decode_header(std::span<const std::uint8_t> frame) {
    if (frame.size() < header_size || frame[0] != marker) return std::nullopt;
    for (std::size_t i = 16; i < header_size; ++i)
        if (frame[i] != 0) return std::nullopt;
    const auto word = [frame](std::size_t at) {
        return static_cast<std::uint32_t>(frame[at]) << 24 | static_cast<std::uint32_t>(frame[at + 1]) << 16 |
               static_cast<std::uint32_t>(frame[at + 2]) << 8 | static_cast<std::uint32_t>(frame[at + 3]);
    };
    Header header;
    header.marker = frame[0];
    for (std::size_t i = 0; i < 6; ++i) header.fill[i] = frame[1 + i];
    header.sttr = frame[7];
    header.stamp = word(8);
    header.total_length = word(12);
    return header;
}

Decoded decode_message(std::string_view message, std::span<const std::uint8_t> frame, bool tracked) {
    const MessageTable &table = message_table(message);
    const std::optional<Header> header = decode_header(frame);
    if (!header) return failed(0, "header");
    for (std::size_t i = 0; i < 6; ++i)
        if (header->fill[i] != 0xFF) return failed(1 + i, "fill");
    if (header->sttr != (tracked ? 1 : 0)) return failed(7, "sttr");
    if (header->total_length != frame.size()) return failed(12, "total_length");
    if (frame.size() < payload_offset) return failed(frame.size(), "luid is cut");
    for (std::size_t i = 0; i < 16; ++i)
        if (frame[header_size + i] != table.luid[i]) return failed(header_size + i, "luid");
    Decoded result = decode_at(record_table(table.payload), frame, tracked, payload_offset);
    if (result.value && result.consumed != frame.size()) return failed(result.consumed, "bytes after the payload");
    return result;
}

}  // namespace reference
