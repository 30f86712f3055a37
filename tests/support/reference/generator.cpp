#include <algorithm>

#include "reference/lengths.h"
#include "reference/value.h"

namespace reference {

Record Generator::make(std::string_view type) {
    budget_ = options_.budget;
    return fill(record_table(type));
}

Record Generator::fill(const RecordTable &table) {
    Record record(table);
    if (strangely()) record.ra = ReferenceData{random_(), static_cast<std::uint8_t>(below(256))};
    if (strangely()) {
        record.variant = static_cast<std::int8_t>(-1 - static_cast<int>(below(128)));
        return record;
    }
    for (std::size_t i = 0; i < table.members.size(); ++i) {
        const MemberTable &row = table.members[i];
        if (row.cls == Class::array)
            fill_array(row, table.member(row.counted_by).width == 1 ? 255 : ~std::uint32_t{0}, record.members[i]);
        else
            fill_member(row, record.members[i]);
    }
    return record;
}

void Generator::fill_member(const MemberTable &row, Member &member) {
    if (row.tracked()) member.state = state();
    switch (row.cls) {
        case Class::integer:
            member.number = number(row.width);
            break;
        case Class::boolean:
            member.number = strangely() ? number(1) : below(2);
            if (strangely()) member.variant = -1;
            break;
        case Class::enumeration:
            member.number = strangely() ? number(4) : below(enumeration_table(row.type).enumerators.size());
            if (strangely()) member.variant = -1;
            break;
        case Class::address:
            member.items[0] = fill(row.element());
            if (member.items[0].variant == 0 && below(4) != 0) fill_address(member.items[0]);
            break;
        case Class::nested:
            member.items[0] = fill(row.element());
            break;
        case Class::string:
            fill_text(member);
            break;
        case Class::array:
        case Class::length:
        case Class::count:
            break;
    }
}

void Generator::fill_array(const MemberTable &row, std::uint32_t limit, Member &member) {
    member.state = state();
    const RecordTable &element = row.element();
    // The minimum size of the elements is reserved before they are filled, so that a deep tree stays within the budget.
    const std::size_t least = length(Record(element), true) + 1;
    const std::uint64_t most = std::min(options_.max_elements, limit);
    const std::uint64_t span = most - std::min<std::uint64_t>(options_.min_elements, most) + 1;
    const std::uint64_t count = std::min<std::uint64_t>(most - below(span), budget_ / least);
    budget_ -= static_cast<std::size_t>(count) * least;
    for (std::uint64_t i = 0; i < count; ++i) {
        member.items.push_back(fill(element));
        member.element_state.push_back(state());
    }
}

void Generator::fill_text(Member &member) {
    const std::uint64_t limit = std::min<std::uint64_t>(options_.max_text, 65535);
    const std::uint64_t span = limit - std::min<std::uint64_t>(options_.min_text, limit) + 1;
    const auto size = static_cast<std::size_t>(std::min<std::uint64_t>(limit - below(span), budget_));
    budget_ -= size;
    for (std::size_t i = 0; i < size; ++i)
        member.text += static_cast<char>(options_.printable ? 32 + below(95) : below(256));
}

void Generator::fill_address(Record &address) {
    Address value;
    if (below(2) == 0) {
        value.af = 2;
        value.prefix_len = static_cast<std::uint8_t>(below(33));
        value.word[0] = static_cast<std::uint32_t>(random_());
    } else {
        value.af = 10;
        value.prefix_len = static_cast<std::uint8_t>(below(129));
        for (std::uint32_t &word : value.word) word = below(3) == 0 ? 0 : static_cast<std::uint32_t>(random_());
        if (below(4) == 0) value.scope = static_cast<std::uint16_t>(below(65536));
    }
    set_address(address, value);
}

std::uint64_t Generator::number(unsigned width) {
    const std::uint64_t all = width == 8 ? ~std::uint64_t{0} : (std::uint64_t{1} << (8 * width)) - 1;
    switch (below(8)) {
        case 0:
            return 0;
        case 1:
            return all;
        case 2:
            return below(10);
        default:
            return random_() & all;
    }
}

}  // namespace reference
