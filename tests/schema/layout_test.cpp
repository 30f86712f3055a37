// The layout computed from the tables, compared with the reference's, which was worked out independently.
#include "schema/layout.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "reference/layout.h"
#include "reference/tables.h"
#include "schema/catalogue.h"

namespace {

using namespace tarn;
using schema::Category;
using schema::Kind;
using schema::Role;

std::string class_name(const schema::Member &m) {
    if (m.role == Role::count) return "count";
    if (m.role == Role::length) return "length";
    switch (category(m.kind)) {
        case Category::boolean:
            return "boolean";
        case Category::address:
            return "address";
        case Category::enumeration:
            return "enumeration";
        case Category::record:
            return "nested";
        case Category::string:
            return "string";
        case Category::array:
            return "array";
        case Category::integer:
            break;
    }
    return "integer";
}

// One line for each member, in the form of reference::layout_text.
std::vector<std::string> computed_lines() {
    std::vector<std::string> lines;
    for (const schema::Record *record : schema::records) {
        const schema::Layout layout = lay_out(*record);
        for (std::size_t i = 0; i < record->members.size(); ++i) {
            const schema::Member &m = record->members[i];
            const schema::MemberLayout &p = layout.members[i];
            const bool has_inner = has_area(m) || m.kind == Kind::array;
            std::ostringstream line;
            line << record->name << ' ' << m.name << ' ' << class_name(m) << ' ' << p.offset << ' ' << p.size << ' '
                 << (is_tracked(m) ? std::to_string(p.slot) : "-") << ' '
                 << (has_inner ? std::to_string(p.inner) : "-");
            lines.push_back(line.str());
        }
    }
    return lines;
}

TEST(Layout, OffsetsOfMembersAreThoseOfTheReference) {
    std::istringstream expected(reference::layout_text());
    std::string line;
    for (const std::string &computed : computed_lines()) {
        ASSERT_TRUE(std::getline(expected, line)) << computed;
        EXPECT_EQ(computed, line);
    }
    EXPECT_FALSE(std::getline(expected, line)) << line;
}

TEST(Layout, SizesOfRecordsAreThoseOfTheReference) {
    ASSERT_EQ(schema::records.size(), reference::records().size());
    for (std::size_t i = 0; i < schema::records.size(); ++i) {
        const reference::RecordTable &expected = reference::records()[i];
        SCOPED_TRACE(expected.name);
        const schema::Layout l = lay_out(*schema::records[i]);
        EXPECT_EQ(l.used_length, expected.used);
        EXPECT_EQ(l.rounded, expected.rounded);
        EXPECT_EQ(l.alloc_slop, expected.slop);
        EXPECT_EQ(l.base_size, expected.base);
        EXPECT_EQ(l.state_width, expected.state);
        EXPECT_EQ(l.base_size + l.state_width, expected.tracked);
    }
}

TEST(Layout, SlopDependsOnTheRoundedLength) {
    static constexpr schema::Member below[] = {schema::u64("a", "a"), schema::u64("b", "b"), schema::u64("c", "c"),
                                               schema::u64("d", "d"), schema::u64("e", "e")};
    static constexpr schema::Member at[] = {schema::u64("a", "a"), schema::u64("b", "b"), schema::u64("c", "c"),
                                            schema::u64("d", "d"), schema::u64("e", "e"), schema::u64("f", "f")};
    constexpr char luid[] = "00000000000000000000000000000001";
    const schema::Layout small = lay_out(schema::Record{"small", luid, "", below});
    const schema::Layout large = lay_out(schema::Record{"large", luid, "", at});
    EXPECT_EQ(small.rounded, 56u);
    EXPECT_EQ(small.base_size, 64u);
    EXPECT_EQ(large.rounded, 64u);
    EXPECT_EQ(large.base_size, 80u);
}

TEST(Layout, AMemberMayDirectlyFollowTheHeader) {
    static constexpr schema::Member members[] = {schema::u8("a", "a"), schema::u16("b", "b")};
    const schema::Layout l = lay_out(schema::Record{"r", "00000000000000000000000000000001", "", members});
    EXPECT_EQ(l.members[0].offset, 11u);
    EXPECT_EQ(l.members[1].offset, 12u);
}

TEST(Layout, CountsAndLengthsHaveNoStateByte) {
    for (const schema::Record *record : schema::records) {
        const schema::Layout l = lay_out(*record);
        std::uint32_t next = 0;
        for (std::size_t i = 0; i < record->members.size(); ++i) {
            const schema::Member &m = record->members[i];
            if (!is_tracked(m)) continue;
            EXPECT_GE(l.members[i].slot, next) << record->name << '.' << m.name;
            next = l.members[i].slot + 1;
        }
        EXPECT_LE(next, l.state_width) << record->name;
    }
}

}  // namespace
