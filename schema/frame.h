// The parts of the two frames, in wire order. Numbers are big-endian.
//
// A message frame is a header, an identity and, for a plain message, the frame of its record. A record frame is a head
// and the members in table order. Encoders use the sizes and flag bits; dissectors, dumps and documents are printed
// from the tables.
#pragma once

#include "schema/model.h"

namespace tarn::schema {

enum class Content : std::uint8_t {
    constant,  // each byte is the part's value
    number,
    signed_number,
    flags,
    opaque,
    identity,
    parts,    // smaller parts
    record,   // the frame of a record
    members,  // interleaved with state bytes if the flags say so
};

struct Part {
    std::string_view name;   // in dumps and filters
    std::string_view title;  // in documents
    std::string_view type;   // in dumps
    Content content;
    std::uint32_t size;  // bytes; varies for a record and members
    std::string_view meaning;
    std::uint8_t value = 0;            // of each byte of a constant
    std::uint8_t flag = 0;             // the part is present only with this bit of the record's flag; 0: always
    std::span<const Part> parts = {};  // of which it consists
};

constexpr std::uint32_t size_of(std::span<const Part> parts) {
    std::uint32_t sum = 0;
    for (const Part &part : parts) sum += part.flag == 0 ? part.size : 0;
    return sum;
}

consteval std::uint32_t offset_of(std::span<const Part> parts, std::string_view name) {
    std::uint32_t offset = 0;
    for (; parts.front().name != name; parts = parts.subspan(1)) offset += parts.front().size;
    return offset;
}

// ---- a message

inline constexpr std::uint8_t frame_marker = 0xBC;
inline constexpr std::uint8_t frame_fill = 0xFF;

inline constexpr Part message_frame[] = {
    {"marker", "marker", "marker", Content::constant, 1, "0xBC", frame_marker},
    {"fill", "fill", "fill", Content::constant, 6, "0xFF", frame_fill},
    {"sttr", "sttr", "u_int8", Content::number, 1, "1 in a plain message of a sender that tracks state, else 0"},
    {"stamp", "stamp", "u_int32", Content::number, 4, "chosen by the sender"},
    {"total_length", "total length", "u_int32", Content::number, 4, "bytes of the frame, from the marker to its end"},
    {"zero", "zero", "zero", Content::constant, 11, "0"},
    {"luid", "identity", "luid", Content::identity, 16, "which message it is"},
    {"payload", "payload", "", Content::record, varies, "a record"},
};
inline constexpr std::uint32_t message_header_size = offset_of(message_frame, "luid");
inline constexpr std::uint32_t luid_size = sizeof(Luid::bytes);
inline constexpr std::uint32_t message_head_size = offset_of(message_frame, "payload");  // a control message ends here
static_assert(message_head_size == message_header_size + luid_size);

// ---- a record

namespace wire_flag {
inline constexpr std::uint8_t tracked = 8;   // each member is followed by its state byte
inline constexpr std::uint8_t ra_data = 32;  // RA data precedes the jump
}  // namespace wire_flag

inline constexpr Part variant_part{
    "variant", "variant", "variant", Content::signed_number, 1, "0; negative: no body follows"};
inline constexpr Part ra_data_parts[] = {
    {"ra_value", "value", "u_int64", Content::opaque, 8, "of the runtime"},
    {"ra_byte", "byte", "u_int8", Content::opaque, 1, "of the runtime"},
};
inline constexpr Part record_frame[] = {
    variant_part,
    {"flag", "flag", "flag", Content::flags, 1, "8: members have state bytes; 32: RA data follows; 40: both"},
    {"ra_data", "RA data", "", Content::parts, size_of(ra_data_parts), "a value of eight bytes and one byte, opaque", 0,
     wire_flag::ra_data, ra_data_parts},
    {"jump", "jump", "jump", Content::number, 4, "bytes from its own start to the end of the record"},
    {"body", "body", "", Content::members, varies, "the members in table order"},
};
inline constexpr std::uint32_t record_head_size = size_of(record_frame);  // without RA data

// ---- members that are not plain numbers

inline constexpr Part boolean_frame[] = {variant_part,
                                         {"value", "value", "mirk_boolean", Content::number, 1, "0 or 1"}};
inline constexpr Part enumeration_frame[] = {variant_part,
                                             {"value", "value", "", Content::number, 4, "number of the enumerator"}};
static_assert(size_of(boolean_frame) == facts(Kind::boolean).wire);
static_assert(size_of(enumeration_frame) == facts(Kind::enumeration).wire);

// An address is a record of seven integers. Its identity belongs to the runtime, so none is given here.
inline constexpr Member address_members[] = {u8("af", ""),       u8("prefix_len", ""), u16("scope", ""),
                                             u32("word[0]", ""), u32("word[1]", ""),   u32("word[2]", ""),
                                             u32("word[3]", "")};
inline constexpr Record address_record{"ip_address", "00000000000000000000000000000000", "", address_members};
static_assert(std::size(address_members) == facts(Kind::address).own_states);

}  // namespace tarn::schema
