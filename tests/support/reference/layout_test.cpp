#include "reference/layout.h"

#include <gtest/gtest.h>

#include <set>

namespace reference {
namespace {

std::size_t occurrences(std::string_view text, std::string_view word) {
    std::size_t count = 0;
    for (std::size_t at = text.find(word); at != text.npos; at = text.find(word, at + 1)) ++count;
    return count;
}

TEST(Tables, ContainEachLineOfTheirText) {
    EXPECT_EQ(records().size(), occurrences(record_tables, "\nrecord "));
    EXPECT_EQ(enumerations().size(), occurrences(catalogue_tables, "\nenumeration "));
    EXPECT_EQ(messages().size(), occurrences(catalogue_tables, "\nmessage "));
    EXPECT_EQ(bundles().size(), occurrences(catalogue_tables, "\nbundle "));
    EXPECT_EQ(enumeration_table("lumo_tarn_ha_state_e").enumerators.size(),
              occurrences(catalogue_tables, "\n  LUMO_TARN_HA_"));

    EXPECT_EQ(members_of(Class::integer), occurrences(record_tables, " integer u_int"));
    EXPECT_EQ(members_of(Class::boolean), occurrences(record_tables, " boolean mirk_boolean\n"));
    EXPECT_EQ(members_of(Class::nested), occurrences(record_tables, " nested "));
    EXPECT_EQ(members_of(Class::enumeration), occurrences(record_tables, " enumeration "));
    EXPECT_EQ(members_of(Class::address), occurrences(record_tables, " address ip_address\n"));
    EXPECT_EQ(members_of(Class::array), occurrences(record_tables, " array "));
    EXPECT_EQ(members_of(Class::count), occurrences(record_tables, " count u_int"));
    EXPECT_EQ(members_of(Class::string), occurrences(record_tables, " string var_string "));
    EXPECT_EQ(members_of(Class::length), occurrences(record_tables, " length u_int"));
}

TEST(Tables, CountersDirectlyPrecedeWhatTheyCount) {
    std::size_t products = 0;
    for (const RecordTable &table : records())
        for (std::size_t i = 0; i < table.members.size(); ++i) {
            const MemberTable &member = table.members[i];
            if (member.cls != Class::array && member.cls != Class::string) continue;
            ASSERT_GT(i, 0u);
            EXPECT_EQ(table.members[i - 1].name, member.counted_by) << table.name;
            EXPECT_FALSE(table.members[i - 1].tracked());
            products += member.product ? 1 : 0;
        }
    EXPECT_EQ(products, occurrences(record_tables, " product\n"));
}

TEST(Tables, LuidsAreUnique) {
    std::set<Luid> seen;
    for (const RecordTable &table : records()) seen.insert(table.luid);
    for (const EnumerationTable &table : enumerations()) seen.insert(table.luid);
    for (const MessageTable &table : messages()) seen.insert(table.luid);
    for (const BundleTable &table : bundles())
        for (const char *kind : {"start", "abort", "commit"}) seen.insert(table.luid(kind));
    EXPECT_EQ(seen.size(), records().size() + enumerations().size() + messages().size() + 3 * bundles().size());
    EXPECT_EQ(luid_text(record_table("lumo_tarn_exmem_info").luid), "60d55c75e70c45de4e19a835975182eb");
}

TEST(Tables, EveryBundleAdmitsOneMessage) {
    std::size_t admitted = 0;
    for (const MessageTable &message : messages()) admitted += message.bundles.size();
    EXPECT_EQ(admitted, bundles().size());
    EXPECT_EQ(message_table("lumo_tarn_debug_setting_msg").bundles,
              (std::vector<std::string>{"lumo_tarn_pal_debug_rsp", "lumo_tarn_cl_debug_rsp"}));
}

TEST(Layout, SizesEqualThoseOfTheTables) {
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

TEST(Layout, TheTrafficClassHasItsSlots) {
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

}  // namespace
}  // namespace reference
