// The candidates for the shells: every name of the schema, and members by their path.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

// The candidates without their descriptions, in order.
std::vector<std::string> candidates(std::vector<std::string> words) {
    words.insert(words.begin(), "complete");
    const Outcome outcome = tarn(words);
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    std::vector<std::string> names;
    std::istringstream in(outcome.out);
    for (std::string line; std::getline(in, line);) names.push_back(line.substr(0, line.find('\t')));
    return names;
}

using Names = std::vector<std::string>;

TEST(Completion, OffersTheMembersOfEveryRecord) {
    for (const reference::RecordTable &record : reference::records()) {
        Names members;
        for (const reference::MemberTable &m : record.members) members.push_back(record.name + "." + m.name);
        EXPECT_EQ(candidates({"schema", record.name + "."}), members);
    }
}

TEST(Completion, FollowsAPathThroughNestedRecords) {
    for (const reference::RecordTable &record : reference::records()) {
        for (const reference::MemberTable &m : record.members) {
            const auto nested = std::find_if(reference::records().begin(), reference::records().end(),
                                             [&m](const auto &other) { return other.name == m.type; });
            if (nested == reference::records().end()) continue;
            const std::string path = record.name + "." + m.name + ".";
            const Names found = candidates({"schema", path});
            ASSERT_EQ(found.size(), nested->members.size()) << path;
            for (std::size_t i = 0; i < found.size(); ++i) EXPECT_EQ(found[i], path + nested->members[i].name);
        }
    }
}

TEST(Completion, OffersEveryTypeByItsFullName) {
    Names all = candidates({"schema", "lumo_"});
    std::sort(all.begin(), all.end());
    for (const auto &r : reference::records()) EXPECT_TRUE(std::binary_search(all.begin(), all.end(), r.name));
    for (const auto &e : reference::enumerations()) EXPECT_TRUE(std::binary_search(all.begin(), all.end(), e.name));
    for (const auto &m : reference::messages()) EXPECT_TRUE(std::binary_search(all.begin(), all.end(), m.name));
    for (const auto &b : reference::bundles()) EXPECT_TRUE(std::binary_search(all.begin(), all.end(), b.name));
}

TEST(Completion, OffersOnlyBundlesForBundleArguments) {
    Names wanted;
    for (const auto &b : reference::bundles()) wanted.push_back(b.name);
    Names shown = candidates({"show", "lumo_"});
    std::sort(wanted.begin(), wanted.end());
    std::sort(shown.begin(), shown.end());
    EXPECT_EQ(shown, wanted);
    EXPECT_EQ(candidates({"show", ""}).size(), wanted.size());
    EXPECT_EQ(candidates({"answer", "cl-deb"}), (Names{"cl-debug="}));
    EXPECT_EQ(candidates({"encode", "--bundle", "cl-deb"}), (Names{"cl-debug"}));
}

TEST(Completion, OffersTheColumnsOfTheRowsOfARecord) {
    EXPECT_EQ(candidates({"rows", "tc", "--columns", "appl."}),
              (Names{"appl.exmem_info.cl_addr", "appl.exmem_info.exmem_addr", "appl.exmem_info.ppe_addr",
                     "appl.exmem_info.size", "appl.type", "appl.id", "appl.tarn_kesh_id", "appl.next_ptr"}));
    EXPECT_EQ(candidates({"rows", "tc", "--sort", "id,mess"}), (Names{"id,message"}));
    EXPECT_EQ(candidates({"rows", "tc", "--columns=id,mess"}), (Names{"--columns=id,message"}));
    EXPECT_EQ(candidates({"rows", "unknown", "--columns", "i"}), Names());
}

TEST(Completion, OffersTheValuesOfOptions) {
    EXPECT_EQ(candidates({"show", "--via", "l"}), (Names{"lut", "linked"}));
    EXPECT_EQ(candidates({"show", "--via=li"}), (Names{"--via=linked"}));
    EXPECT_EQ(candidates({"show", "--socket", ""}), (Names{":files"}));
    EXPECT_EQ(candidates({"answer", "cl-debug="}), (Names{":files"}));
    EXPECT_EQ(candidates({"diff", "a.xml", ""}), (Names{":files"}));
    EXPECT_EQ(candidates({"diff", "a.xml", "b.xml", ""}), (Names{}));
    EXPECT_EQ(candidates({"generate", "--seed", ""}), (Names{}));
    EXPECT_EQ(candidates({"show", "cl-debug", "--js"}), (Names{"--json"}));
    EXPECT_EQ(candidates({"decode", "--", "--js"}), (Names{":files"}));
    EXPECT_EQ(candidates({"explain", ""}), (Names{}));
    EXPECT_EQ(candidates({"sch"}), (Names{"schema"}));
    EXPECT_GE(candidates({""}).size(), 10u);
}

TEST(Schema, ShowsAMemberByItsPath) {
    const Outcome outcome = tarn({"schema", "dp-tc-list.tc_list.appl.exmem_info.size"});
    EXPECT_EQ(outcome.exit, 0);
    EXPECT_EQ(outcome.out.find("lumo_tarn_exmem_info.size\n"), 0u) << outcome.out;
    EXPECT_NE(outcome.out.find("size of the block"), std::string::npos);
    const Outcome nested = tarn({"schema", "dp-tc-list.tc_list"});
    EXPECT_NE(nested.out.find("\nlumo_tarn_dp_tc: one traffic class\n"), std::string::npos) << nested.out;
    EXPECT_EQ(tarn({"schema", "dp-tc-list.tc_list", "--json"}).out.substr(13, 7), "tc_list");
    const Outcome unknown = tarn({"schema", "dp-tc-list.tc_lost"});
    EXPECT_EQ(unknown.exit, 2);
    EXPECT_NE(unknown.err.find("did you mean dp-tc-list.tc_list?"), std::string::npos) << unknown.err;
    EXPECT_EQ(tarn({"schema", "dp-tc-list.num_tcs.more"}).exit, 2);
}

}  // namespace

}  // namespace tool_test
