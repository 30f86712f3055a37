#include "reference/layout.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>

namespace reference {
namespace {

TEST(Tables, AreWhole) {
    ASSERT_EQ(records().size(), 37u);
    ASSERT_EQ(enumerations().size(), 3u);
    ASSERT_EQ(messages().size(), 10u);
    ASSERT_EQ(bundles().size(), 11u);
    EXPECT_EQ(record_table("lumo_tarn_lumo_info").members.size(), 56u);
    EXPECT_EQ(enumeration_table("lumo_tarn_ha_state_e").enumerators.size(), 9u);
    EXPECT_EQ(enumeration_table("lumo_tarn_lumo_direction_e").enumerators.size(), 3u);
    EXPECT_EQ(enumeration_table("lumo_tarn_mem_desc_e").enumerators.size(), 3u);

    std::map<Class, int> members;
    for (const RecordTable &table : records())
        for (const MemberTable &member : table.members) ++members[member.cls];
    EXPECT_EQ(members[Class::kInteger], 157);
    EXPECT_EQ(members[Class::kBoolean], 37);
    EXPECT_EQ(members[Class::kNested], 29);
    EXPECT_EQ(members[Class::kEnumeration], 4);
    EXPECT_EQ(members[Class::kAddress], 6);
    EXPECT_EQ(members[Class::kArray], 17);
    EXPECT_EQ(members[Class::kCount], 17);
    EXPECT_EQ(members[Class::kString], 4);
    EXPECT_EQ(members[Class::kLength], 4);
}

TEST(Tables, CountersStandDirectlyAheadOfWhatTheyCount) {
    int products = 0;
    for (const RecordTable &table : records())
        for (std::size_t i = 0; i < table.members.size(); ++i) {
            const MemberTable &member = table.members[i];
            if (member.cls != Class::kArray && member.cls != Class::kString) continue;
            ASSERT_GT(i, 0u);
            EXPECT_EQ(table.members[i - 1].name, member.counted_by) << table.name;
            EXPECT_FALSE(table.members[i - 1].tracked());
            products += member.product ? 1 : 0;
        }
    EXPECT_EQ(products, 3);
}

TEST(Tables, EveryLuidIsItsOwn) {
    std::set<Luid> seen;
    for (const RecordTable &table : records()) seen.insert(table.luid);
    for (const EnumerationTable &table : enumerations()) seen.insert(table.luid);
    for (const MessageTable &table : messages()) seen.insert(table.luid);
    for (const BundleTable &table : bundles())
        for (const char *kind : {"start", "abort", "commit"}) seen.insert(table.luid(kind));
    EXPECT_EQ(seen.size(), 50u + 33);
    EXPECT_EQ(luid_text(record_table("lumo_tarn_exmem_info").luid), "60d55c75e70c45de4e19a835975182eb");
}

TEST(Tables, EveryBundleAdmitsOneMessage) {
    std::size_t admitted = 0;
    for (const MessageTable &message : messages()) admitted += message.bundles.size();
    EXPECT_EQ(admitted, 11u);
    EXPECT_EQ(message_table("lumo_tarn_debug_setting_msg").bundles,
              (std::vector<std::string>{"lumo_tarn_pal_debug_rsp", "lumo_tarn_cl_debug_rsp"}));
}

TEST(Layout, SizesAreThoseOfTheTables) {
    for (const RecordTable &table : records()) {
        const RecordLayout &layout = layout_of(table);
        EXPECT_EQ(layout.used, table.used) << table.name;
        EXPECT_EQ(layout.rounded, table.rounded) << table.name;
        EXPECT_EQ(layout.slop, table.slop) << table.name;
        EXPECT_EQ(layout.base, table.base) << table.name;
        EXPECT_EQ(layout.state, table.state) << table.name;
        EXPECT_EQ(layout.tracked, table.tracked) << table.name;
    }
}

TEST(Layout, OneByteMembersFollowTheHeader) {
    const RecordTable &table = record_table("lumo_tarn_fdb_base");
    const RecordLayout &layout = layout_of(table);
    EXPECT_EQ(layout.members[0].offset, 11u);
    EXPECT_EQ(layout.members[1].offset, 12u);
    EXPECT_EQ(layout.members[2].offset, 14u);
    EXPECT_EQ(layout.members[4].offset, 18u);
}

TEST(Layout, SlotsOfTheTrafficClass) {
    const RecordTable &table = record_table("lumo_tarn_dp_tc");
    const RecordLayout &layout = layout_of(table);
    EXPECT_EQ(layout.members[table.index_of("exmem_info")].area, 1u);
    EXPECT_EQ(layout.members[table.index_of("src_prefix")].area, 6u);
    EXPECT_EQ(layout.members[table.index_of("dst_prefix")].area, 14u);
    EXPECT_EQ(layout.members[table.index_of("appl")].area, 34u);
    EXPECT_EQ(layout.members[table.index_of("id")].slot, 43u);
}

TEST(Layout, AreasWithPointersAreAligned) {
    const RecordTable &table = record_table("lumo_tarn_dp_ll_spec");
    const RecordLayout &layout = layout_of(table);
    const auto &member = [&](const char *name) -> const MemberLayout & { return layout.members[table.index_of(name)]; };
    EXPECT_EQ(member("filter_tc_list").slot, 15u);
    EXPECT_EQ(member("filter_tc_list").area, 16u);
    EXPECT_EQ(member("acl_tc_list").slot, 33u);
    EXPECT_EQ(member("acl_tc_list").area, 40u);
    EXPECT_EQ(member("appl_list").slot, 57u);
    EXPECT_EQ(member("appl_list").area, 64u);
    EXPECT_EQ(member("show_ll_comm").slot, 87u);
}

// The golden file is what reference_layout prints.
TEST(Layout, MatchesTheGolden) {
    std::ifstream file(REFERENCE_GOLDEN);
    std::ostringstream golden;
    golden << file.rdbuf();
    EXPECT_EQ(golden.str(), layout_text());
}

}  // namespace
}  // namespace reference
