// tarn validate reports all errors with their places.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

const std::string json_message = R"({"message": "lumo_tarn_debug_setting_msg", "payload": {)";

TEST(Validate, SaysHowManyMessagesAValidFileHas) {
    const Directory directory;
    const std::string xml = directory.write("a.xml", debug_xml + "\n" + debug_xml);
    const std::string frames = directory.path("a.bin");
    ASSERT_EQ(tarn({"encode", xml, "-o", frames}).exit, 0);
    const Outcome outcome = tarn({"validate", xml, frames});
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(outcome.out, xml + ": valid, 2 messages\n" + frames + ": valid, 2 messages\n");
}

TEST(Validate, ReportsXmlWithLineAndColumn) {
    const std::string xml =
        "<!-- <a> -->\n<lumo_tarn_debug_setting_msg><!-- <b> --><lumo_tarn_debug_setting>\n  "
        "<info_enabled>x</info_enabled><warn_enabled>1</warn_enabled><trace_enabeld/>\n"
        "</lumo_tarn_debug_setting></lumo_tarn_debug_setting_msg> "
        "<lumo_tarn_debug_setting_mgs></lumo_tarn_debug_setting_mgs>";
    const Outcome outcome = tarn({"validate"}, xml);
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_EQ(outcome.err, "");
    const std::string path = "/lumo_tarn_debug_setting_msg/lumo_tarn_debug_setting";
    EXPECT_EQ(outcome.out, "standard input:3:3: " + path +
                               "/info_enabled: \"x\" is not a number from 0 to 4294967295\n"
                               "standard input:3:63: " +
                               path +
                               ": lumo_tarn_debug_setting has no member \"trace_enabeld\"; did you mean "
                               "trace_enabled?\n"
                               "standard input:4:58: \"lumo_tarn_debug_setting_mgs\" is not a message; did you mean "
                               "lumo_tarn_debug_setting_msg?\n");
}

TEST(Validate, ReportsJsonWithAPointer) {
    const std::string text =
        json_message + "\n\"info_enabled\": \"x\\\"\\\\\"}}\n" +
        R"({"message": "lumo_tarn_pal_mp_prefix_msg", "payload": {"prefix_data": [{}, {"prefix": "10.0.0.0"}]}})";
    const Outcome outcome = tarn({"validate"}, text);
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_EQ(outcome.out,
              "standard input:2:17: /payload/info_enabled: \"x\"\\\" is not a number from 0 to 4294967295\n"
              "standard input:3:87: /payload/prefix_data/1/prefix: \"10.0.0.0\" is not an address with a prefix "
              "length\n");
}

TEST(Validate, ReportsFramesWithOffsetAndMember) {
    const auto &message = reference::message_table("lumo_tarn_debug_setting_msg");
    const std::string good = frame(message, plain_payload(message, 1), false);
    std::string bad = good;
    bad.resize(bad.size() - 2);
    bad[15] = static_cast<char>(bad.size());
    const Outcome outcome = tarn({"validate"}, good + bad + good);
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.out.find("standard input: offset "), std::string::npos) << outcome.out;
    EXPECT_NE(outcome.out.find(": payload.error_enabled: needs 4 bytes"), std::string::npos) << outcome.out;
    EXPECT_EQ(occurrences(outcome.out, "\n"), 1U) << outcome.out;
}

TEST(Validate, CountsErrorsAfterTheFirstTwenty) {
    std::string lines;
    for (int i = 0; i < 23; ++i) lines += json_message + "\"a\": 1, \"b\": 2}}\n";
    const Outcome outcome = tarn({"validate"}, lines);
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_EQ(occurrences(outcome.out, "has no member"), 20U) << outcome.out;
    EXPECT_TRUE(outcome.out.ends_with("standard input: and 26 more errors\n")) << outcome.out;
}

TEST(Validate, ContinuesWithTheNextFile) {
    const Directory directory;
    const std::string missing = directory.path("missing"), good = directory.write("good", debug_xml);
    const Outcome outcome = tarn({"validate", missing, good});
    EXPECT_EQ(outcome.exit, 3);
    EXPECT_EQ(outcome.out, missing + ": No such file or directory\n" + good + ": valid, 1 message\n");
}

TEST(Validate, PrintsAnObjectForEachFile) {
    const Outcome outcome = tarn({"validate", "--json"}, json_message + "\"info_enabled\": -1}}\n{");
    EXPECT_EQ(outcome.exit, 2);
    const auto json = nlohmann::json::parse(outcome.out);
    EXPECT_EQ(json["file"], "standard input");
    EXPECT_EQ(json["valid"], false);
    ASSERT_EQ(json["errors"].size(), 2U);
    EXPECT_EQ(json["errors"][0]["line"], 1);
    EXPECT_EQ(json["errors"][0]["pointer"], "/payload/info_enabled");
    EXPECT_EQ(json["errors"][0]["reason"], "-1 is not a number from 0 to 4294967295");
    EXPECT_EQ(json["errors"][1]["line"], 2);
}

// A sanitizer reserves more memory than any limit.
#ifndef TARN_SANITIZED
TEST(Validate, MemoryHoldsOneFrameWhateverTheLengthOfTheInput) {
    const Directory directory;
    const std::string one = directory.path("one.bin");
    ASSERT_EQ(tarn({"generate", "dp-tt-cfg", "--size", "256KiB", "--form", "frames", "-o", one}).exit, 0);
    // 73 MB of frames with 70 MB of memory, of which the program takes most.
    const std::string script =
        R"(for i in $(seq 280); do cat "$1"; done | (ulimit -v 100000 && exec "$0" validate 2>&1))";
    EXPECT_EQ(run("/bin/sh", {"-c", script, tool(), one}).out, "standard input: valid, 280 messages\n");
}
#endif

TEST(Validate, ReportsAMessageThatItsBundleDoesNotAdmit) {
    const Outcome outcome =
        tarn({"validate"}, "<bundle_start name=\"lumo_tarn_dp_intf_rsp\"></bundle_start>" + debug_xml);
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.out.find("lumo_tarn_debug_setting_msg"), std::string::npos) << outcome.out;
}

}  // namespace

}  // namespace tool_test
