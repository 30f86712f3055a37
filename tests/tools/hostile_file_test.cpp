// Files that are made to exhaust the stack, the memory or the time of whoever reads them, or to be read differently by
// different readers.
#include <gtest/gtest.h>

#include "process.h"

namespace tool_test {

namespace {

std::string repeated(std::string_view text, std::size_t times) {
    std::string all;
    for (std::size_t i = 0; i < times; ++i) all += text;
    return all;
}

const std::string debug_start = R"({"message": "lumo_tarn_debug_setting_msg", "payload": {)";

void expect_refused(const std::string &input, const std::string &reason) {
    for (const std::string command : {"encode", "decode", "view"}) {
        for (const bool lenient : {false, true}) {
            std::vector<std::string> words{command, "-"};
            if (lenient) words.emplace_back("--lenient");
            const Outcome outcome = tarn(words, input);
            EXPECT_EQ(outcome.exit, 2) << command;
            EXPECT_NE(outcome.err.find(reason), std::string::npos) << command << outcome.err.substr(0, 1000);
        }
    }
}

TEST(HostileFile, JsonIsNestedUpToALimit) {
    const std::string deepest = repeated("[", 256) + repeated("]", 256);
    const Outcome inside = tarn({"encode"}, deepest);
    EXPECT_EQ(inside.err, "tarn: standard input: no message\n");
    expect_refused("\n[" + deepest + "]", "standard input:2:257: nested more than 256 deep");
    expect_refused(repeated("[", 1000000), "nested more than 256 deep");
    expect_refused(repeated("{\"messages\":", 100000), "nested more than 256 deep");
    expect_refused(debug_start + "\n\"info_enabled\": " + repeated("[", 100000) + repeated("]", 100000) + "}}",
                   "standard input:2:271: nested more than 256 deep");
}

TEST(HostileFile, XmlIsNestedUpToALimit) {
    const std::string deep = repeated("<a>", 100000) + repeated("</a>", 100000);
    for (const std::string &input : {"<lumo_tarn_debug_setting_msg>" + deep + "</lumo_tarn_debug_setting_msg>",
                                     "<lumo_tarn_debug_setting_msg><lumo_tarn_debug_setting><info_enabled>" + deep +
                                         "</info_enabled></lumo_tarn_debug_setting></lumo_tarn_debug_setting_msg>"}) {
        expect_refused(input, "Excessive depth in document: 256");
    }
}

TEST(HostileFile, XmlDeclarationsAreShort) {
    // Each message gets it again.
    const auto document = [](std::size_t size) {
        const std::string begin = "<?xml version='1.0'", end = "?>";
        const std::string blanks(size - begin.size() - end.size(), ' ');
        return begin + blanks + end +
               "\n<lumo_tarn_debug_setting_msg><lumo_tarn_debug_setting/></lumo_tarn_debug_setting_msg>";
    };
    const Outcome outcome = tarn({"encode"}, document(200));
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    expect_refused(document(201), "standard input:1:1: the XML declaration has more than 200 bytes");
    expect_refused(document(1000000), "standard input:1:1: the XML declaration has more than 200 bytes");
}

// Other readers would take the other value.
TEST(HostileFile, KeysOfJsonAreUnique) {
    expect_refused(debug_start + "\n\"info_enabled\": 1,\n\"warn_enabled\": 1,\n\n\"info_enabled\": 2}}",
                   "standard input:5:1: the key \"info_enabled\" is also in line 2\n");
    expect_refused("{\"message\": \"lumo_tarn_debug_setting_msg\",\n\"message\": \"lumo_tarn_dp_intf_msg\"}",
                   "standard input:2:1: the key \"message\" is also in line 1\n");
    const Outcome outcome =
        tarn({"encode"}, debug_start + "\"info_enabled\": 1}}\n" + debug_start + "\"info_enabled\": 2}}");
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
}

}  // namespace

}  // namespace tool_test
