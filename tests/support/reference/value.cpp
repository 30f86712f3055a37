#include "reference/value.h"

namespace reference {

bool Member::operator==(const Member &other) const {
    return number == other.number && variant == other.variant && text == other.text && items == other.items &&
           state == other.state && element_state == other.element_state;
}

Record::Record(const RecordTable &t) : table(&t), members(t.members.size()) {
    for (std::size_t i = 0; i < members.size(); ++i) {
        const MemberTable &row = t.members[i];
        if (row.cls == Class::nested || row.cls == Class::address) members[i].items.emplace_back(row.element());
    }
}

Record &Record::append(std::string_view array, std::uint8_t element_state) {
    Member &member = (*this)[array];
    member.element_state.push_back(element_state);
    return member.items.emplace_back(table->member(array).element());
}

std::uint64_t Record::number(std::size_t index) const {
    const MemberTable &row = table->members[index];
    // The array or string directly follows the member that counts it.
    if (row.cls == Class::count) return members[index + 1].items.size();
    if (row.cls == Class::length) return members[index + 1].text.size();
    return members[index].number;
}

bool Record::operator==(const Record &other) const {
    return table == other.table && variant == other.variant && ra == other.ra && members == other.members;
}

void set_address(Record &address, const Address &value) {
    address.members[0].number = value.af;
    address.members[1].number = value.prefix_len;
    address.members[2].number = value.scope;
    for (std::size_t i = 0; i < 4; ++i) address.members[3 + i].number = value.word[i];
}

Address get_address(const Record &address) {
    Address value;
    value.af = static_cast<std::uint8_t>(address.members[0].number);
    value.prefix_len = static_cast<std::uint8_t>(address.members[1].number);
    value.scope = static_cast<std::uint16_t>(address.members[2].number);
    for (std::size_t i = 0; i < 4; ++i) value.word[i] = static_cast<std::uint32_t>(address.members[3 + i].number);
    return value;
}

Record as_received(const Record &value, bool tracked) {
    Record result(*value.table);
    result.variant = value.variant > 0 ? std::int8_t{0} : value.variant;
    result.ra = value.ra;
    if (result.variant < 0) return result;
    for (std::size_t i = 0; i < value.members.size(); ++i) {
        const Member &from = value.members[i];
        Member &to = result.members[i];
        to.number = from.number;
        to.variant = from.variant > 0 ? std::int8_t{0} : from.variant;
        to.text = from.text;
        to.items.clear();
        for (const Record &item : from.items) to.items.push_back(as_received(item, tracked));
        to.element_state.assign(from.element_state.size(), 0);
        const Class cls = value.table->members[i].cls;
        const bool empty = (cls == Class::string && from.text.empty()) || (cls == Class::array && from.items.empty());
        if (tracked && !empty) {
            to.state = from.state;
            to.element_state = from.element_state;
        }
    }
    return result;
}

namespace {

template <typename T>
std::string differ(const std::string &path, const T &a, const T &b) {
    return path + ": " + std::to_string(a) + " and " + std::to_string(b);
}

std::string difference(const std::string &path, const Record &a, const Record &b);

std::string difference(const std::string &path, const Member &a, const Member &b) {
    if (a.number != b.number) return differ(path, a.number, b.number);
    if (a.variant != b.variant) return differ(path + " variant", a.variant, b.variant);
    if (a.text.size() != b.text.size()) return differ(path + " length", a.text.size(), b.text.size());
    for (std::size_t i = 0; i < a.text.size(); ++i)
        if (a.text[i] != b.text[i]) return differ(path + " byte " + std::to_string(i), a.text[i], b.text[i]);
    if (a.items.size() != b.items.size()) return differ(path + " count", a.items.size(), b.items.size());
    for (std::size_t i = 0; i < a.items.size(); ++i) {
        const std::string found = difference(path + "[" + std::to_string(i) + "]", a.items[i], b.items[i]);
        if (!found.empty()) return found;
    }
    if (a.state != b.state) return differ(path + " state", a.state, b.state);
    if (a.element_state.size() != b.element_state.size())
        return differ(path + " states", a.element_state.size(), b.element_state.size());
    for (std::size_t i = 0; i < a.element_state.size(); ++i)
        if (a.element_state[i] != b.element_state[i])
            return differ(path + " state " + std::to_string(i), a.element_state[i], b.element_state[i]);
    return {};
}

std::string difference(const std::string &path, const Record &a, const Record &b) {
    if (a.table != b.table) return path + ": " + a.table->name + " and " + b.table->name;
    if (a.variant != b.variant) return differ(path + " variant", a.variant, b.variant);
    if (a.ra != b.ra) return path + " RA data";
    for (std::size_t i = 0; i < a.members.size(); ++i) {
        const std::string found = difference(path + "." + a.table->members[i].name, a.members[i], b.members[i]);
        if (!found.empty()) return found;
    }
    return {};
}

}  // namespace

std::string first_difference(const Record &a, const Record &b) { return difference(a.table->name, a, b); }

}  // namespace reference
