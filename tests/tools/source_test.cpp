// dissect --source and assemble: frames as text, and back.
#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <sstream>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

std::string source_of(const std::string &bytes) {
    const Outcome outcome = tarn({"dissect", "--source"}, bytes);
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    return outcome.out;
}

std::string assembled(const std::string &source) {
    const Outcome outcome = tarn({"assemble"}, source);
    EXPECT_EQ(outcome.exit, 0) << outcome.err << source;
    return outcome.out;
}

std::string error_of(const std::string &source) {
    const Outcome outcome = tarn({"assemble"}, source);
    EXPECT_EQ(outcome.exit, 2) << source;
    EXPECT_EQ(outcome.out, "");
    return outcome.err;
}

std::string replaced(std::string text, const std::string &old, const std::string &by) {
    const std::size_t at = text.find(old);
    EXPECT_NE(at, std::string::npos) << old << " in " << text;
    return at == std::string::npos ? text : text.replace(at, old.size(), by);
}

std::string hex(const std::string &bytes) {
    std::string text;
    for (const char c : bytes) {
        char digits[4];
        std::snprintf(digits, sizeof digits, "%02x ", static_cast<unsigned char>(c));
        text += digits;
    }
    return text;
}

// Changes, removes or adds a few bytes anywhere.
void damage(std::string &bytes, std::mt19937_64 &random) {
    const auto below = [&](std::size_t limit) { return static_cast<std::size_t>(random() % limit); };
    for (std::size_t left = below(4); left != 0 && !bytes.empty(); --left) {
        const std::size_t at = below(bytes.size());
        constexpr unsigned char usual[] = {0, 1, 2, 8, 32, 40, 0x7f, 0x80, 0xff};
        switch (below(4)) {
            case 0:
                bytes[at] = static_cast<char>(usual[below(std::size(usual))]);
                break;
            case 1:
                bytes[at] = static_cast<char>(below(256));
                break;
            case 2:
                bytes.erase(at, 1 + below(12));
                break;
            default:
                bytes.insert(at, 1 + below(12), static_cast<char>(below(256)));
        }
    }
}

const reference::MessageTable &debug_message() { return reference::message_table("lumo_tarn_debug_setting_msg"); }
const reference::BundleTable &debug_bundle() { return reference::bundles().front(); }
std::string debug_frame(bool tracked) { return frame(debug_message(), plain_payload(debug_message(), 1), tracked, 7); }

// A frame of this type that is not empty, with lists, strings, addresses and enumerations.
std::string full_frame(const reference::MessageTable &message, bool tracked, std::uint64_t seed) {
    reference::GeneratorOptions options;
    options.strange = true;
    options.min_elements = 1;
    options.min_text = 1;
    options.budget = 2000;
    return frame(message, reference::Generator(seed, options).make(message.payload), tracked);
}

class EverySource : public testing::TestWithParam<reference::MessageTable> {};

TEST_P(EverySource, ReturnsToTheSameBytes) {
    std::string bytes;
    for (std::uint64_t seed = 0; seed < 30; ++seed) {
        bytes += frame(GetParam(), strange_payload(GetParam(), seed), seed % 2 == 0);
        bytes += full_frame(GetParam(), seed % 2 == 0, seed);
    }
    EXPECT_EQ(hex(assembled(source_of(bytes))), hex(bytes));
}

TEST_P(EverySource, NeedsNoRawBytes) {
    std::string bytes;
    for (std::uint64_t seed = 0; seed < 5; ++seed) {
        bytes += frame(GetParam(), plain_payload(GetParam(), seed), seed % 2 == 0);
    }
    const std::string source = source_of(bytes);
    std::istringstream lines(source);
    for (std::string line; std::getline(lines, line);) {
        const bool has_text = line.find('"') != std::string::npos;
        EXPECT_TRUE(has_text || line.find('<') == std::string::npos) << line;
    }
    for (const char *const computed : {"jump ", "total_length ", "(count ", "(length "}) {
        EXPECT_EQ(source.find(computed), std::string::npos) << computed << source;
    }
}

// Many frames in a file, which may swallow each other.
TEST_P(EverySource, ReturnsToTheSameBytesWhenDamaged) {
    std::mt19937_64 random(11);
    for (std::uint64_t seed = 0; seed < 12; ++seed) {
        std::string bytes;
        for (int i = 0; i < 8; ++i) {
            std::string one = full_frame(GetParam(), random() % 2 == 0, random());
            damage(one, random);
            bytes += one;
        }
        EXPECT_EQ(hex(assembled(source_of(bytes))), hex(bytes)) << seed;
    }
}

// The frame before the last one is whole, and the last one is cut.
TEST_P(EverySource, ReturnsToTheSameBytesWhenCut) {
    std::mt19937_64 random(12);
    for (const bool tracked : {false, true}) {
        const std::string whole = full_frame(GetParam(), tracked, 3);
        for (int i = 0; i < 25; ++i) {
            const std::string bytes = whole + whole.substr(0, static_cast<std::size_t>(random() % whole.size()));
            EXPECT_EQ(hex(assembled(source_of(bytes))), hex(bytes)) << i;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Source, EverySource, testing::ValuesIn(reference::messages()),
                         [](const auto &info) { return info.param.name; });

TEST(Source, HasNamesAndValues) {
    reference::Record payload = plain_payload(debug_message(), 1);
    payload["info_enabled"].number = 5;
    payload["trace_enabled"].number = 6;
    payload["warn_enabled"].number = 7;
    payload["error_enabled"].number = 8;
    payload["warn_enabled"].state = 2;
    const std::string whole = control(debug_bundle(), "start") + frame(debug_message(), payload, true, 9);
    EXPECT_EQ(source_of(whole), "# offset 0\nframe " + debug_bundle().name +
                                    " start\n"
                                    "# offset 43\n"
                                    "frame lumo_tarn_debug_setting_msg (sttr 1, stamp 9) {\n"
                                    "  payload {\n"
                                    "    info_enabled 5\n"
                                    "    trace_enabled 6\n"
                                    "    warn_enabled 7 (state 2)\n"
                                    "    error_enabled 8\n"
                                    "  }\n"
                                    "}\n");
}

TEST(Source, StandsForACutFrame) {
    reference::Record payload = plain_payload(debug_message(), 1);
    payload["info_enabled"].number = 5;
    payload["trace_enabled"].number = 6;
    EXPECT_EQ(source_of(frame(debug_message(), payload, true).substr(0, 58)),
              "# offset 0\n"
              "frame lumo_tarn_debug_setting_msg (sttr 1) {\n"
              "  payload {\n"
              "    info_enabled 5\n"
              "    trace_enabled 6 (state none)\n"
              "    # broken at offset 58, payload.trace_enabled.state: needs 1 bytes, but 0 are left\n"
              "  } (jump 24)\n"
              "} (total_length 69)\n");
}

TEST(Source, KeepsBytesBetweenFrames) {
    const std::string bytes = "noise" + debug_frame(false) + std::string(40, '\xff') + debug_frame(true);
    const std::string source = source_of(bytes);
    EXPECT_EQ(source.find("# offset 0, no frame\n<6e 6f 69 73 65>\n# offset 5\nframe "), 0U) << source;
    EXPECT_NE(source.find("\n# offset 70, no frame\n<\n  ff ff "), std::string::npos) << source;
    EXPECT_EQ(hex(assembled(source)), hex(bytes));
}

TEST(Source, ContinuesAfterAWrongJump) {
    std::string bytes = debug_frame(false);
    bytes[48] = 19;
    const std::string source = source_of(bytes);
    EXPECT_NE(source.find("error_enabled "), std::string::npos) << source;
    EXPECT_NE(source.find("\n  } (jump 19)\n"), std::string::npos) << source;
    EXPECT_EQ(hex(assembled(source)), hex(bytes));
}

TEST(Source, ReturnsToTheSameBytesWhereverAFrameIsCut) {
    for (const bool tracked : {false, true}) {
        const std::string whole = control(debug_bundle(), "start") + debug_frame(tracked);
        for (std::size_t size = 1; size < whole.size(); ++size) {
            EXPECT_EQ(hex(assembled(source_of(whole.substr(0, size)))), hex(whole.substr(0, size))) << size;
        }
    }
    std::string bytes = control(debug_bundle(), "start");
    bytes[15] = 99;
    EXPECT_EQ(hex(assembled(source_of(bytes))), hex(bytes));
}

TEST(Source, HasTheTextOfRequests) {
    const std::string bytes = request("lumo_tarn_cl_debug_rsp", 3);
    EXPECT_EQ(source_of(bytes),
              "# offset 0\nframe ui_req_msg {\n  options 3\n  bundle \"lumo_tarn_cl_debug_rsp\"\n}\n");
    EXPECT_EQ(hex(assembled(source_of(bytes))), hex(bytes));
    for (std::size_t size = 43; size < bytes.size(); ++size) {
        EXPECT_EQ(hex(assembled(source_of(bytes.substr(0, size)))), hex(bytes.substr(0, size)));
    }
}

TEST(Assemble, ComputesLengthsCountsAndJumps) {
    const Outcome before = tarn({"generate", "dp-mp-tc-cfg", "--elements", "2", "--form", "frames"});
    std::string source = source_of(before.out);
    const std::size_t first = source.find("\n      {  # [0]\n"), second = source.find("\n      {  # [1]\n");
    ASSERT_NE(second, std::string::npos) << source;
    source.insert(first, source.substr(first, second - first));
    const Outcome dissected = tarn({"dissect"}, assembled(source));
    EXPECT_EQ(dissected.exit, 0) << dissected.err;
    EXPECT_NE(dissected.out.find(" count 3\n"), std::string::npos) << dissected.out;
    EXPECT_EQ(tarn({"decode"}, assembled(source)).exit, 0);
}

TEST(Assemble, WritesWhatIsGivenInsteadOfWhatIsComputed) {
    const std::string source = source_of(debug_frame(false));
    const std::string bytes = assembled(replaced(replaced(source, "  }\n}", "  } (jump 77)\n} (total_length 99)"),
                                                 "(stamp 7)", "(stamp 0x10, sttr 3, fill <00 01 02 03 04 05>)"));
    EXPECT_EQ(hex(bytes.substr(0, 16)), "bc 00 01 02 03 04 05 03 00 00 00 10 00 00 00 63 ");
    EXPECT_EQ(hex(bytes.substr(45, 4)), "00 00 00 4d ");
}

TEST(Assemble, WritesRawBytesAnywhere) {
    const std::string source = "<01>frame <000102030405060708090a0b0c0d0e0f> { <ff> <> } < 0 2 >\n";
    const std::string bytes = assembled(source);
    EXPECT_EQ(bytes.size(), 1U + 44 + 1);
    EXPECT_EQ(hex(bytes.substr(28)), "00 01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e 0f ff 02 ");
    EXPECT_EQ(hex(assembled("frame debug-setting { payload { warn_enabled <ff> <ee> } }").substr(43)),
              "00 00 00 00 00 06 ff ee ");
}

TEST(Assemble, FillsTheRemainingMembersWithZeros) {
    for (const reference::MessageTable &message : reference::messages()) {
        for (const std::string tracked : {"", "(sttr 1) "}) {
            const std::string bytes = assembled("frame " + message.name + " " + tracked + "{ payload { ... } }");
            reference::Record empty(message.payload);
            EXPECT_EQ(hex(bytes), hex(frame(message, empty, !tracked.empty()))) << message.name;
        }
    }
}

TEST(Assemble, TakesMembersInAnyOrder) {
    EXPECT_EQ(
        hex(assembled("frame debug-setting { payload { warn_enabled 1 info_enabled 2 info_enabled 3 } }").substr(49)),
        "00 00 00 01 00 00 00 02 00 00 00 03 ");
}

TEST(Assemble, IgnoresCommentsBlanksAndCommas) {
    EXPECT_EQ(assembled("# all\nframe debug-setting(stamp 7,sttr 0){payload{info_enabled 0x1#one\n,,...}}#end"),
              assembled("frame lumo_tarn_debug_setting_msg (stamp 7) { payload { info_enabled 1 ... } }"));
}

// The example of the manual.
TEST(Assemble, WritesTheExampleOfItsManual) {
    std::string manual, line;
    std::ifstream file(TARN_DOCS "/assemble.md");
    while (std::getline(file, line)) manual += line + "\n";
    const std::size_t begin = manual.find("    # offset 0\n"), end = manual.find("    }\n\n", begin);
    ASSERT_NE(end, std::string::npos);
    EXPECT_EQ(hex(assembled(manual.substr(begin, end + 6 - begin)).substr(43)),
              "00 08 00 00 00 13 00 00 00 05 02 00 00 00 00 00 00 00 00 10 00 00 ff ");
}

TEST(Assemble, NamesLineColumnAndReason) {
    const struct {
        const char *source, *error;
    } wrong[] = {
        {"frame", "1:6: unknown message \"\""},
        {"\n  frames x", "2:3: expected \"frame\" or raw bytes, not \"frames\""},
        {"frame debug-settin {}", "1:7: unknown message \"debug-settin\"; did you mean debug-setting?"},
        {"frame cl-debugs start", "1:7: unknown bundle \"cl-debugs\"; did you mean cl-debug?"},
        {"frame debug-setting (jump 1) {}",
         "1:22: \"jump\" cannot be given here; possible: marker, fill, sttr, stamp, zero"},
        {"frame debug-setting (stamp 1 stamp 2) {}", "1:30: \"stamp\" is given twice"},
        {"frame debug-setting (stamp 4294967296) {}", "1:28: \"4294967296\" is greater than 4294967295"},
        {"frame debug-setting (stamp x) {}", "1:28: expected a number, not \"x\""},
        {"frame debug-setting (zero <00>) {}", "1:27: zero has 11 bytes"},
        {"frame debug-setting {\n payload {\n  warn_enable 1\n",
         "3:3: lumo_tarn_debug_setting has no member \"warn_enable\"; did you mean warn_enabled?"},
        {"frame debug-setting { payload { warn_enabled 1", "1:47: expected a member, raw bytes or \"}\", not the end"},
        {"frame dp-mp-tc { payload { num_prefixes 1 } }",
         "1:28: num_prefixes comes with prefix_data; to give it, write (count N) after it"},
        {"frame dp-mp-tc { payload { show_header maybe } }", "1:40: expected a number, not \"maybe\""},
        {"frame dp-mp-tc { payload { prefix_data [ { prefix 10.0.0.0/99x } ] } }",
         "1:51: \"10.0.0.0/99x\" is not an address with a prefix length"},
        {"frame dp-mp-tc { payload { prefix_data [ { prefix 10.0.0/9 } ] } }",
         "1:51: \"10.0.0/9\" is not an address with a prefix length"},
        {"frame <00>", "1:7: a luid has 16 bytes"},
        {"frame dp-mp-tc { payload { prefix_data [] (states 1) } }", "1:51: expected \"[\", not \"1\""},
        {"frame dp-mp-tc { payload { prefix_data [] (state [1]) } }", "1:50: expected a number, not \"[\""},
        {"frame dp-mp-tc { payload { prefix_data [{}] (states [2*2]) } }",
         "1:56: the number of state bytes here is at most 1"},
        {"<0>", "1:3: a byte has two hexadecimal digits"},
        {"<0g>", "1:3: expected a hexadecimal digit or >"},
        {"<00", "1:1: the raw bytes have no end"},
        {"frame ui_req_msg { bundle \"x\ny\" }", "1:27: the text has no end in its line"},
        {"frame ui_req_msg { bundle \"\\q\" }", "1:28: unknown escape; known are \\x41, \\\" and \\\\"},
        {"frame ui_req_msg { bundle \"\\x4\" }", "1:28: two hexadecimal digits must follow \\x"},
        {"frame debug-setting \x1b", "1:21: unexpected \"\\x1b\""},
        {"frame debug-setting (sttr 1) { payload { info_enabled 1 (states [1]) } }",
         "1:58: \"states\" cannot be given here; possible: state"},
    };
    for (const auto &[source, error] : wrong) {
        EXPECT_EQ(error_of(source), "tarn: standard input:" + std::string(error) + "\n") << source;
    }
}

TEST(Assemble, RefusesMoreThanANumberCanSay) {
    std::string elements;
    for (int i = 0; i < 256; ++i) elements += "{}";
    const std::string source = "frame dp-mp-tc { payload { prefix_data [ { lumo_data [" + elements + "] } ] } }";
    EXPECT_NE(error_of(source).find("1:54: there are 256, but their number is at most 255"), std::string::npos)
        << error_of(source);
    EXPECT_EQ(tarn({"assemble"}, replaced(source, "{}] }", "{}] (count 3) }")).exit, 0);
}

// A sanitizer reserves more memory than any limit.
#ifndef TARN_SANITIZED
TEST(Assemble, AndItsTextHoldOneFrameInMemoryWhateverTheirLength) {
    const Directory directory;
    const std::string one = directory.path("one.bin");
    ASSERT_EQ(tarn({"generate", "dp-tt-cfg", "--size", "256KiB", "--form", "frames", "-o", one}).exit, 0);
    // 26 MB of frames with 85 MB of memory, of which the programs take most.
    const std::string script =
        R"(for i in $(seq 100); do cat "$1"; done >"$1.all"
           ulimit -v 85000 && "$0" dissect --source "$1.all" | "$0" assemble | cmp - "$1.all")";
    const Outcome outcome = run("/bin/sh", {"-c", script, tool(), one});
    EXPECT_EQ(outcome.exit, 0) << outcome.out << outcome.err;
}
#endif

TEST(Assemble, LeavesNoFileBehindAnError) {
    const Directory directory;
    const Outcome outcome = tarn({"assemble", "-o", directory.path("out.bin")}, "frame debug-setting {");
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_EQ(run("/bin/ls", {"-A", directory.path(".")}).out, "");
}

}  // namespace

}  // namespace tool_test
