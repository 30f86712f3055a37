// What the shells are offered: every name of the schema, and members by their path.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

// The candidates without their explanations, in order.
std::vector<std::string> candidates(std::vector<std::string> words) {
    words.insert(words.begin(), "complete");
    const Outcome outcome = tarn(words);
    EXPECT_EQ(0, outcome.exit) << outcome.err;
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
        EXPECT_EQ(members, candidates({"schema", record.name + "."}));
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
            ASSERT_EQ(nested->members.size(), found.size()) << path;
            for (std::size_t i = 0; i < found.size(); ++i) EXPECT_EQ(path + nested->members[i].name, found[i]);
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

TEST(Completion, OffersBundlesWhereBundlesAreAskedFor) {
    Names wanted;
    for (const auto &b : reference::bundles()) wanted.push_back(b.name);
    Names shown = candidates({"show", "lumo_"});
    std::sort(wanted.begin(), wanted.end());
    std::sort(shown.begin(), shown.end());
    EXPECT_EQ(wanted, shown);
    EXPECT_EQ(wanted.size(), candidates({"show", ""}).size());
    EXPECT_EQ((Names{"cl-debug="}), candidates({"answer", "cl-deb"}));
    EXPECT_EQ((Names{"cl-debug"}), candidates({"encode", "--bundle", "cl-deb"}));
}

TEST(Completion, KnowsWhatAnOptionTakes) {
    EXPECT_EQ((Names{"lut", "linked"}), candidates({"show", "--via", "l"}));
    EXPECT_EQ((Names{"--via=linked"}), candidates({"show", "--via=li"}));
    EXPECT_EQ((Names{":files"}), candidates({"show", "--socket", ""}));
    EXPECT_EQ((Names{":files"}), candidates({"answer", "cl-debug="}));
    EXPECT_EQ((Names{":files"}), candidates({"diff", "a.xml", ""}));
    EXPECT_EQ((Names{}), candidates({"diff", "a.xml", "b.xml", ""}));
    EXPECT_EQ((Names{}), candidates({"generate", "--seed", ""}));
    EXPECT_EQ((Names{"--json"}), candidates({"show", "cl-debug", "--js"}));
    EXPECT_EQ((Names{":files"}), candidates({"decode", "--", "--js"}));
    EXPECT_EQ((Names{}), candidates({"explain", ""}));
    EXPECT_EQ((Names{"schema"}), candidates({"sch"}));
    EXPECT_GE(candidates({""}).size(), 10u);
}

TEST(Schema, ShowsAMemberByItsPath) {
    const Outcome outcome = tarn({"schema", "dp-tc-list.tc_list.appl.exmem_info.size"});
    EXPECT_EQ(0, outcome.exit);
    EXPECT_EQ(0u, outcome.out.find("lumo_tarn_exmem_info.size\n")) << outcome.out;
    EXPECT_NE(std::string::npos, outcome.out.find("size of the block"));
    const Outcome nested = tarn({"schema", "dp-tc-list.tc_list"});
    EXPECT_NE(std::string::npos, nested.out.find("\nlumo_tarn_dp_tc: one traffic class\n")) << nested.out;
    EXPECT_EQ("tc_list", tarn({"schema", "dp-tc-list.tc_list", "--json"}).out.substr(13, 7));
    const Outcome unknown = tarn({"schema", "dp-tc-list.tc_lost"});
    EXPECT_EQ(2, unknown.exit);
    EXPECT_NE(std::string::npos, unknown.err.find("did you mean dp-tc-list.tc_list?")) << unknown.err;
    EXPECT_EQ(2, tarn({"schema", "dp-tc-list.num_tcs.more"}).exit);
}

}  // namespace

}  // namespace tool_test
