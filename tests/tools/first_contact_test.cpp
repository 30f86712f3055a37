// What a person meets first: help, version, misspelled words, errors in their words, colors, terminals.
#include <gtest/gtest.h>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

// The tool on a terminal of its own, with what the terminal shows.
Outcome on_terminal(const std::string &arguments, const std::string &environment = "") {
    const std::string command = "env -u NO_COLOR TERM=xterm " + environment + " '" + tool() + "' " + arguments;
    return run("/usr/bin/script", {"-qec", command, "/dev/null"});
}

bool has_color(const std::string &text) { return text.find("\x1b[") != std::string::npos; }

TEST(FirstContact, TheToolAlonePrintsItsHelpAndFails) {
    const Outcome outcome = tarn({});
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_EQ(outcome.out, tarn({"--help"}).out);
    EXPECT_EQ(outcome.err, "");
}

TEST(FirstContact, EveryCommandPrintsTheVersionTheSchemaAndTheCompiler) {
    const Outcome version = tarn({"--version"});
    EXPECT_EQ(version.exit, 0);
    EXPECT_EQ(version.out.find("tarn " TARN_VERSION "\nschema "), 0U) << version.out;
    EXPECT_NE(version.out.find(std::to_string(reference::records().size()) + " records"), std::string::npos);
    EXPECT_NE(version.out.find("\ncompiler "), std::string::npos);
    for (const char *command : {"answer", "show", "decode", "generate", "schema", "view"}) {
        EXPECT_EQ(tarn({command, "--version"}).out, version.out) << command;
    }
}

TEST(FirstContact, MisspelledWordsGetASuggestion) {
    const Directory directory;
    const auto json = [&](const std::string &text) {
        return directory.write(std::to_string(text.size()) + ".json", text);
    };
    struct Misspelled {
        std::vector<std::string> words;
        std::string expected;
    };
    for (const Misspelled &m : std::vector<Misspelled>{
             {{"decod", "x"}, "tarn: unknown command \"decod\"; did you mean decode?"},
             {{"--versoin"}, "tarn: unknown option \"--versoin\"; did you mean --version?"},
             {{"decode", "--jsn"}, "tarn decode: unknown option \"--jsn\"; did you mean --json?"},
             {{"show", "cl-debug", "--sockt", "/x"}, "unknown option \"--sockt\"; did you mean --socket?"},
             {{"show", "cl-debug", "--sockt=/x"}, "unknown option \"--sockt\"; did you mean --socket?"},
             {{"generate", "dp-intf", "--form", "jsn"},
              "\"jsn\" is none of xml, json, text, frames; did you mean json?"},
             {{"answer", "--socket", "/x", "--fault", "abrot", "cl-debug=/x"}, "did you mean abort?"},
             {{"generate", "dp-inft"}, "unknown bundle or message \"dp-inft\"; did you mean dp-intf?"},
             {{"schema", "dp-tcc"}, "unknown type \"dp-tcc\"; did you mean dp-tc?"},
             {{"schema", "dp-tcc.id"}, "unknown type \"dp-tcc\"; did you mean dp-tc?"},
             {{"schema", "dp-tt-cfg.lumo_dta.x"}, "no member \"lumo_dta\"; did you mean dp-tt-cfg.lumo_data?"},
             {{"schema", "dp-tc.id.x"}, "\"dp-tc.id\" nests no record"},
             {{"view", "a", "b", "c"}, "tarn view: unexpected argument \"c\"\n"},
             {{"show", "cl-debug"}, "tarn show: one of --socket, --connect is required\n"},
             {{"decode", "--xml", "--json"}, "tarn decode: only one of --text, --xml, --json is allowed\n"},
             {{"encode", json(R"({"message":"lumo_tarn_debug_seting_msg"})")},
              "did you mean lumo_tarn_debug_setting_msg?"},
             {{"encode", json(R"({"bundle":"lumo_tarn_dp_inft_rsp","control":"start"})")},
              "did you mean lumo_tarn_dp_intf_rsp?"},
         }) {
        const Outcome outcome = tarn(m.words);
        EXPECT_EQ(outcome.exit, 2) << m.expected;
        EXPECT_NE(outcome.err.find(m.expected), std::string::npos) << m.expected << "\n" << outcome.err;
    }
}

TEST(FirstContact, ErrorsNameWhatFailed) {
    const Directory directory;
    const std::string debug = directory.write("debug.xml", debug_xml);
    std::string prefix = tarn({"generate", "pal-mp-prefix"}).out;
    const auto with_length = [&](const std::string &address) {
        const std::size_t at = prefix.find("<prefix>") + 8;
        return std::string(prefix).replace(at, prefix.find('<', at) - at, address);
    };
    struct Failing {
        std::vector<std::string> words;
        int exit;
        std::string expected;
    };
    for (const Failing &f : std::vector<Failing>{
             {{"show", "cl-debug", "--connect", "nohost.invalid:5"},
              3,
              "nohost.invalid:5: cannot connect: the host is unknown"},
             {{"show", "cl-debug", "--connect", "localhost:65536"},
              2,
              "the port \"65536\" is not a number from 0 to 65535"},
             {{"show", "cl-debug", "--connect", "::1:5"}, 2, "an IPv6 address is written in brackets"},
             {{"show", "cl-debug", "--connect", "[::1"}, 2, "has no closing bracket"},
             {{"answer", "--listen", "localhost:x", "cl-debug=" + debug}, 2, "the port \"x\" is not a number"},
             {{"show", "cl-debug", "--socket", directory.path("no")}, 3, "there is no such socket"},
             {{"encode", "--bundle", "dp-intf", debug},
              2,
              "lumo_tarn_dp_intf_rsp does not admit lumo_tarn_debug_setting_msg, only lumo_tarn_dp_intf_msg"},
             {{"encode", directory.write("v4.xml", with_length("10.0.0.0/99"))},
              2,
              "the prefix length of \"10.0.0.0/99\" is greater than 32"},
             {{"encode", directory.write("v6.xml", with_length("::/129"))}, 2, "\"::/129\" is greater than 128"},
         }) {
        const Outcome outcome = tarn(f.words);
        EXPECT_EQ(outcome.exit, f.exit) << f.expected;
        EXPECT_NE(outcome.err.find(f.expected), std::string::npos) << f.expected << "\n" << outcome.err;
    }
    // A frame can contain any length, so what was decoded can be encoded.
    const Outcome lenient = tarn({"encode", "--lenient", "--from", "detect"}, with_length("10.0.0.0/99"));
    EXPECT_EQ(lenient.exit, 0) << lenient.err;
    EXPECT_NE(tarn({"decode"}, lenient.out).out.find("10.0.0.0/99"), std::string::npos);
}

TEST(FirstContact, MoreThanTwentyComplaintsAreCounted) {
    std::string members;
    for (int i = 0; i < 33; ++i) members += "<wrong" + std::to_string(i) + "/>";
    const Outcome one = tarn({"encode"}, "<lumo_tarn_debug_setting_msg><lumo_tarn_debug_setting>" + members +
                                             "</lumo_tarn_debug_setting></lumo_tarn_debug_setting_msg>");
    EXPECT_EQ(one.exit, 2);
    EXPECT_EQ(occurrences(one.err, "has no member"), 20U) << one.err;
    EXPECT_NE(one.err.find("\nand 13 more errors\n"), std::string::npos) << one.err;

    std::string fragments;
    for (int i = 0; i < 21; ++i) fragments += "<wrong_msg/>\n";
    const Outcome many = tarn({"decode", "-k"}, fragments + debug_xml);
    EXPECT_EQ(many.exit, 2);
    EXPECT_NE(many.out, "");
    EXPECT_EQ(occurrences(many.err, "is not a message"), 20U) << many.err;
    EXPECT_NE(many.err.find("\ntarn: and 1 more error\n"), std::string::npos) << many.err;
}

TEST(FirstContact, ColorsAreOnTerminalsOrOnRequest) {
    EXPECT_TRUE(has_color(on_terminal("schema dp-tc").out));
    EXPECT_FALSE(has_color(on_terminal("schema dp-tc", "NO_COLOR=1").out));
    EXPECT_FALSE(has_color(on_terminal("schema dp-tc", "TERM=dumb").out));
    EXPECT_FALSE(has_color(on_terminal("schema dp-tc --color never").out));
    EXPECT_TRUE(has_color(on_terminal("schema dp-tc --color always", "NO_COLOR=1").out));
    EXPECT_FALSE(has_color(tarn({"schema", "dp-tc"}).out));
    EXPECT_TRUE(has_color(tarn({"schema", "dp-tc", "--color", "always"}).out));
    const auto forced = [](const std::string &value) {
        return run("/usr/bin/env", {"CLICOLOR_FORCE=" + value, tool(), "schema", "dp-tc"}).out;
    };
    EXPECT_TRUE(has_color(forced("1")));
    EXPECT_FALSE(has_color(forced("0")));
}

TEST(FirstContact, FramesAreNotWrittenToATerminalUnlessForced) {
    const Directory directory;
    const std::string debug = directory.write("debug.xml", debug_xml);
    const std::string refusal = "frames are not written to a terminal: use -o FILE, a pipe or --force";
    const std::string source = directory.write("source", "frame cl-debug start");
    for (const std::string &words :
         {"encode " + debug, "assemble " + source, std::string("generate cl-debug --form frames")}) {
        const Outcome refused = on_terminal(words);
        EXPECT_EQ(refused.exit, 2) << words;
        EXPECT_NE(refused.out.find(refusal), std::string::npos) << refused.out;
        const Outcome forced = on_terminal(words + " --force");
        EXPECT_EQ(forced.exit, 0) << forced.out;
        EXPECT_NE(forced.out.find('\xbc'), std::string::npos);
    }
    EXPECT_EQ(on_terminal("generate cl-debug").exit, 0);
    EXPECT_EQ(on_terminal("encode " + debug + " | cat").exit, 0);
    const std::string show = "show cl-debug --socket /x --save -",
                      record = "record --from /dev/null -o /dev/null --full -";
    EXPECT_NE(on_terminal(show).out.find(refusal), std::string::npos);
    EXPECT_NE(on_terminal(record).out.find(refusal), std::string::npos);
}

TEST(FirstContact, AHyphenIsStandardOutputForEveryOutputFile) {
    const Directory directory;
    const std::string debug = directory.write("debug.xml", debug_xml);
    const std::string frames = tarn({"encode", debug}).out;
    EXPECT_EQ(tarn({"encode", debug, "-o", "-"}).out, frames);
    EXPECT_EQ(tarn({"generate", "cl-debug", "-o", "-"}).out, tarn({"generate", "cl-debug"}).out);
    EXPECT_EQ(tarn({"view", debug, "-o", "-"}).out, tarn({"view", debug}).out);
    EXPECT_EQ(tarn({"record", "--from", "-", "-o", "/dev/null", "--full", "-"}, frames).out, frames);
    EXPECT_NE(tarn({"record", "--from", "-", "-o", "-"}, frames).out.find("<lumo_tarn_debug_setting_msg>"),
              std::string::npos);
    Server server({"cl-debug=" + debug});
    ASSERT_EQ(server.show("cl-debug", {"--save", directory.path("answer.bin")}).exit, 0);
    // Instead of the text. Each answer has its own stamp.
    const std::string saved = server.show("cl-debug", {"--save", "-"}).out;
    EXPECT_EQ(saved.size(), directory.read("answer.bin").size());
    EXPECT_EQ(tarn({"decode"}, saved).out, tarn({"decode", directory.path("answer.bin")}).out);
}

}  // namespace

}  // namespace tool_test
