// Order and hash of reference values, computed member by member.
#pragma once

#include "value_support.h"

namespace forms {

// -1, 0 or 1: the sign that the library must return. Header, variants and states are ignored.
inline int reference_order(const reference::Record &a, const reference::Record &b) {
    using reference::Class;
    const auto numbers = [](std::uint64_t x, std::uint64_t y) { return x < y ? -1 : x > y ? 1 : 0; };
    for (std::size_t i = 0; i < a.members.size(); ++i) {
        const reference::Member &x = a.members[i];
        const reference::Member &y = b.members[i];
        int order = 0;
        switch (a.table->members[i].cls) {
            case Class::boolean:
                order = numbers(x.number != 0, y.number != 0);
                break;
            case Class::enumeration: {
                // By the difference as a signed number, which is an order for enumerators but not for all 32-bit
                // numbers.
                const auto distance = static_cast<std::int32_t>(static_cast<std::uint32_t>(x.number - y.number));
                order = distance < 0 ? -1 : distance > 0 ? 1 : 0;
                break;
            }
            case Class::string:
                order = x.text.compare(y.text);
                order = order < 0 ? -1 : order > 0 ? 1 : 0;
                break;
            case Class::array:
            case Class::nested:
            case Class::address:
                for (std::size_t k = 0; k < x.items.size() && order == 0; ++k)
                    order = reference_order(x.items[k], y.items[k]);
                break;
            default:
                order = numbers(a.number(i), b.number(i));
        }
        if (order != 0) return order;
    }
    return 0;
}

// By the runtime's operations for single values.
inline std::uint32_t reference_hash(const reference::Record &value, std::uint32_t seed);

inline std::uint32_t integer_hash(unsigned width, std::uint64_t number, std::uint32_t seed) {
    const auto n8 = static_cast<std::uint8_t>(number);
    const auto n16 = static_cast<std::uint16_t>(number);
    const auto n32 = static_cast<std::uint32_t>(number);
    return width == 1   ? u_int8_hash(&n8, seed)
           : width == 2 ? u_int16_hash(&n16, seed)
           : width == 4 ? u_int32_hash(&n32, seed)
                        : u_int64_hash(&number, seed);
}

inline std::uint32_t member_hash(const reference::Record &owner, std::size_t i, std::uint32_t seed) {
    using reference::Class;
    const reference::Member &member = owner.members[i];
    switch (owner.table->members[i].cls) {
        case Class::integer:
        case Class::count:
        case Class::length:
            return integer_hash(owner.table->members[i].width, owner.number(i), seed);
        case Class::boolean: {
            mirk_boolean boolean{};
            boolean.value = static_cast<std::uint8_t>(member.number);
            return mirk_boolean_hash(&boolean, seed);
        }
        case Class::enumeration: {
            // Least significant first on every host.
            std::uint8_t bytes[4];
            for (unsigned k = 0; k < 4; ++k) bytes[k] = static_cast<std::uint8_t>(member.number >> (8 * k));
            return SuperFastHash(bytes, sizeof bytes, seed);
        }
        case Class::address: {
            const reference::Address from = reference::get_address(member.items[0]);
            ip_address address{};
            address.af = from.af;
            address.prefix_len = from.prefix_len;
            address.scope = from.scope;
            std::memcpy(address.word, from.word.data(), sizeof address.word);
            return ip_address_hash(&address, seed);
        }
        case Class::nested:
            return reference_hash(member.items[0], seed);
        case Class::string:
            // The length a second time, then the characters.
            seed = member_hash(owner, i - 1, seed);
            return SuperFastHash(member.text.data(), static_cast<std::uint32_t>(member.text.size()), seed);
        case Class::array:
            seed = member_hash(owner, i - 1, seed);
            for (const reference::Record &item : member.items) seed = reference_hash(item, seed);
            return seed;
    }
    return seed;
}

inline std::uint32_t reference_hash(const reference::Record &value, std::uint32_t seed) {
    for (std::size_t i = 0; i < value.members.size(); ++i) seed = member_hash(value, i, seed);
    return seed;
}

// Changes one member, at any depth.
inline void change(reference::Record &value, reference::Generator &random) {
    using reference::Class;
    const std::size_t i = random.below(value.members.size());
    const reference::MemberTable &row = value.table->members[i];
    reference::Member &member = value.members[i];
    switch (row.cls) {
        case Class::integer:
            member.number ^= std::uint64_t{1} << random.below(8 * row.width);
            return;
        case Class::boolean:
            member.number = member.number == 0 ? 1 : 0;
            return;
        case Class::enumeration:
            member.number = (member.number + 1) % reference::enumeration_table(row.type).enumerators.size();
            return;
        case Class::string:
            if (member.text.empty() || random.below(2) == 0) {
                member.text += static_cast<char>('a' + random.below(26));
            } else {
                member.text[random.below(member.text.size())] = static_cast<char>(1 + random.below(255));
            }
            return;
        case Class::array:
            if (member.items.empty() || random.below(4) == 0) {
                member.items.emplace_back(row.element());
                member.element_state.push_back(0);
            } else {
                change(member.items[random.below(member.items.size())], random);
            }
            return;
        case Class::nested:
        case Class::address:
            change(member.items[0], random);
            return;
        case Class::count:
        case Class::length:
            // Follows from the array or string after it.
            return;
    }
}

}  // namespace forms
