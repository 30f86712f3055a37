#include "reference/layout.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace reference {
namespace {

constexpr std::uint32_t header = 11;  // tinfo, variant, home_variant, obj_flag
constexpr std::uint32_t pointer = 8;

std::uint32_t align(std::uint32_t value, std::uint32_t to) { return (value + to - 1) / to * to; }

// The members' offsets in the instance.
void assign_offsets(const RecordTable &table, RecordLayout &layout) {
    std::uint32_t end = header;
    const auto next = [&end](std::uint32_t size, std::uint32_t alignment) {
        const std::uint32_t offset = align(end, alignment);
        end = offset + size;
        return offset;
    };
    for (const MemberTable &row : table.members) {
        MemberLayout member;
        switch (row.cls) {
            case Class::integer:
            case Class::count:
            case Class::length:
                member.size = row.width;
                member.offset = next(row.width, row.width);
                break;
            case Class::boolean:
            case Class::enumeration:
                member.size = 16;
                member.offset = next(member.size, 8);
                break;
            case Class::address:
                member.size = 40;
                member.offset = next(member.size, 8);
                break;
            case Class::nested:
                member.size = layout_of(row.element()).base;
                member.offset = next(member.size, 8);
                break;
            case Class::string:
            case Class::array:
                member.size = pointer;
                member.offset = member.block_offset = next(pointer, pointer);
                break;
        }
        layout.members.push_back(member);
    }
    layout.used = end;
    layout.rounded = align(end, 8);
    layout.base = layout.rounded + (layout.rounded < 64 ? 8 : 16);
    layout.slop = layout.base - layout.used;
}

// The members' offsets in the state area.
void number_slots(const RecordTable &table, RecordLayout &layout) {
    std::uint32_t end = 0;
    for (std::size_t i = 0; i < table.members.size(); ++i) {
        const MemberTable &row = table.members[i];
        MemberLayout &member = layout.members[i];
        if (!row.tracked()) continue;
        member.slot = end++;
        if (row.cls == Class::address) {
            member.area = end;
            end += 7;
        } else if (row.cls == Class::nested) {
            const RecordLayout &child = layout_of(row.element());
            member.area = child.holds_pointer ? align(end, pointer) : end;
            end = member.area + child.state;
            layout.holds_pointer |= child.holds_pointer;
        } else if (row.cls == Class::array) {
            member.area = align(end, pointer);
            end = member.area + pointer;
            layout.holds_pointer = true;
        }
    }
    layout.state = layout.holds_pointer ? align(end, pointer) : end;
    layout.tracked = layout.base + layout.state;
}

const char *class_name(Class cls) {
    switch (cls) {
        case Class::integer:
            return "integer";
        case Class::boolean:
            return "boolean";
        case Class::enumeration:
            return "enumeration";
        case Class::address:
            return "address";
        case Class::nested:
            return "nested";
        case Class::length:
            return "length";
        case Class::string:
            return "string";
        case Class::count:
            return "count";
        case Class::array:
            return "array";
    }
    return "";
}

}  // namespace

const RecordLayout &layout_of(const RecordTable &table) {
    // A map does not move its nodes while nested records are computed.
    static std::map<std::string, RecordLayout> known;
    const auto found = known.find(table.name);
    if (found != known.end()) return found->second;
    RecordLayout layout;
    assign_offsets(table, layout);
    number_slots(table, layout);
    return known.emplace(table.name, std::move(layout)).first->second;
}

std::string layout_text() {
    std::ostringstream out;
    const auto slot = [](std::uint32_t number) { return number == no_slot ? "-" : std::to_string(number); };
    for (const RecordTable &table : records()) {
        const RecordLayout &layout = layout_of(table);
        for (std::size_t i = 0; i < table.members.size(); ++i) {
            const MemberLayout &member = layout.members[i];
            out << table.name << ' ' << table.members[i].name << ' ' << class_name(table.members[i].cls) << ' '
                << member.offset << ' ' << member.size << ' ' << slot(member.slot) << ' ' << slot(member.area) << '\n';
        }
    }
    return out.str();
}

}  // namespace reference
