#include "reference/lengths.h"

namespace reference {
namespace {

std::uint32_t member_length(const MemberTable &row, const Member &member, bool tracked) {
    const std::uint32_t state = tracked ? 1 : 0;
    std::uint32_t sum = 0;
    switch (row.cls) {
        case Class::integer:
            return row.width + state;
        case Class::count:
        case Class::length:
            return row.width;
        case Class::boolean:
            return 2 + state;
        case Class::enumeration:
            return enumeration_length + state;
        case Class::address:
        case Class::nested:
            return length(member.items[0], tracked) + state;
        case Class::string:
            sum = static_cast<std::uint32_t>(member.text.size());
            return tracked ? sum + 1 + sum : sum;
        case Class::array:
            break;
    }
    const auto count = static_cast<std::uint32_t>(member.items.size());
    if (row.product && count != 0)
        sum = length(member.items[0], tracked) * count;
    else
        for (const Record &item : member.items) sum += length(item, tracked);
    return tracked ? sum + 1 + count : sum;
}

}  // namespace

std::uint32_t length(const Record &value, bool tracked) {
    std::uint32_t sum = 6;
    if (value.variant < 0) return sum;
    for (std::size_t i = 0; i < value.members.size(); ++i)
        sum += member_length(value.table->members[i], value.members[i], tracked);
    return sum;
}

std::uint32_t length_of_null(const RecordTable &table) { return length(Record(table), false); }

}  // namespace reference
