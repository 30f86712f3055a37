// Readers of JSON and XML: one message in memory, and all problems of a message at once.
#include <gtest/gtest.h>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

// A sanitizer reserves more memory than any limit.
#ifndef TARN_SANITIZED
// Runs `tarn encode` on many copies of a text with little address space.
Outcome encoded_copies(const std::string &text, int copies) {
    const Directory directory;
    const std::string one = directory.write("one", text);
    const std::string script = "for i in $(seq " + std::to_string(copies) +
                               "); do cat \"$1\"; done | (ulimit -v 90000 && exec \"$0\" encode -o \"$2\")";
    Outcome outcome = run("/bin/sh", {"-c", script, tool(), one, directory.path("frames")});
    outcome.out = directory.read("frames");
    return outcome;
}

TEST(Reading, OneMessageOfManyIsInMemory) {
    const std::string frame = tarn({"generate", "dp-tt-cfg", "--elements", "40", "--form", "frames"}).out;
    for (const std::string form : {"--json", "--xml"}) {
        const std::string text = tarn({"decode", form}, frame).out;
        const int copies = static_cast<int>((std::size_t{40} << 20) / text.size());
        const Outcome outcome = encoded_copies(text, copies);
        EXPECT_EQ(outcome.exit, 0) << outcome.err;
        EXPECT_EQ(outcome.out.size(), static_cast<std::size_t>(copies) * frame.size()) << form;
    }
}

#endif

TEST(Reading, ElementsOfAListArePrintedBeforeItsEndIsRead) {
    const std::string message = R"({"message": "lumo_tarn_debug_setting_msg", "payload": {}})";
    const std::string one = tarn({"decode", "--json"}, message).out;
    const Outcome outcome = tarn({"decode", "--json"}, "[" + message + ", " + message + ",\n");
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_EQ(outcome.out, one + one);
    EXPECT_NE(outcome.err.find("standard input:2:1: syntax error"), std::string::npos) << outcome.err;
}

TEST(Reading, JsonIsTakenInListsAndOneAfterTheOther) {
    const std::string message = R"({"message": "lumo_tarn_debug_setting_msg", "payload": {}})";
    const std::string frame = tarn({"encode"}, message).out;
    const auto expect = [&](const std::string &text, int count) {
        std::string all;
        for (int i = 0; i < count; ++i) all += frame;
        const Outcome outcome = tarn({"encode"}, text);
        EXPECT_EQ(outcome.err, "") << text;
        EXPECT_EQ(outcome.out, all) << text;
    };
    expect(message + message, 2);
    expect("[" + message + " , " + message + "]\n" + message, 3);
    expect("[[], [" + message + "], " + message + "]", 2);
    expect(R"({"bundle": "any", "messages": [)" + message + ", [" + message + "]]}", 2);
    const std::size_t size = message.size();
    const std::vector<std::pair<std::string, std::size_t>> faults{{"[" + message + message + "]", size + 2},
                                                                  {"[" + message + ",]", size + 3},
                                                                  {"[," + message + "]", 2},
                                                                  {"[" + message, size + 2},
                                                                  {message + "," + message, size + 1},
                                                                  {"[]]", 3}};
    for (const auto &[bad, column] : faults) {
        const Outcome outcome = tarn({"encode", "-o", "-"}, bad);
        EXPECT_EQ(outcome.exit, 2) << bad;
        EXPECT_NE(outcome.err.find("standard input:1:" + std::to_string(column) + ": syntax error: "),
                  std::string::npos)
            << outcome.err;
    }
}

TEST(Reading, AllProblemsOfAMessageInJsonAreListed) {
    const Outcome outcome = tarn({"encode"}, R"({"message": "lumo_tarn_debug_setting_msg", "payload": {
"info_enabled": "x",
"warn_enabeld": 1,
"error_enabled": -1}})");
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_EQ(outcome.err,
              "tarn: standard input:2:17: payload/info_enabled: \"x\" is not a number from 0 to 4294967295\n"
              "standard input:3:1: payload: lumo_tarn_debug_setting has no member \"warn_enabeld\"; did you mean "
              "warn_enabled?\n"
              "standard input:4:18: payload/error_enabled: -1 is not a number from 0 to 4294967295\n");
}

TEST(Reading, EncodeContinuesAfterAMessageWithProblems) {
    const std::string good = R"({"message": "lumo_tarn_debug_setting_msg", "payload": {}})";
    const std::string bad = R"({"message": "lumo_tarn_debug_setting_msg", "payload": {"a": 1}})";
    const Outcome outcome = tarn({"encode", "-k"}, good + "\n" + bad + "\n" + good);
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_EQ(outcome.out, tarn({"encode"}, good + good).out);
    EXPECT_EQ(tarn({"encode"}, bad).out, "");
}

TEST(Reading, EncodeTakesManyFiles) {
    const Directory directory;
    const std::string a = directory.write("a", debug_xml), b = directory.write("b", debug_xml);
    const std::string frame = tarn({"encode", a}).out;
    EXPECT_EQ(tarn({"encode", a, b}).out, frame + frame);
    EXPECT_EQ(tarn({"encode", a, b, "--output-directory", directory.path("out")}).exit, 0);
    EXPECT_EQ(directory.read("out/a.bin"), frame);
    EXPECT_EQ(directory.read("out/b.bin"), frame);
    EXPECT_EQ(tarn({"encode", a, "-o", directory.path("x"), "--output-directory", directory.path("out")}).exit, 2);
}

TEST(Reading, AFileThatCannotBeReadLeavesNoFrames) {
    const Directory directory;
    const std::string out = directory.write("out", "before");
    EXPECT_EQ(tarn({"encode", "-o", out}, debug_xml + "<a>").exit, 2);
    EXPECT_EQ(directory.read("out"), "before");
}

}  // namespace

}  // namespace tool_test
