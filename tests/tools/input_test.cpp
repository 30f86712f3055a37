// The input of decode: many files and folders, what is broken in them, and memory.
#include <gtest/gtest.h>

#include <filesystem>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

const reference::MessageTable &debug() { return reference::message_table("lumo_tarn_debug_setting_msg"); }
std::string good(std::uint64_t seed = 1) { return frame(debug(), plain_payload(debug(), seed), false); }
std::string good_text(std::uint64_t seed = 1) { return shown(debug(), plain_payload(debug(), seed)); }

void expect_words(const Outcome &outcome, const std::string &words) {
    EXPECT_NE(outcome.err.find(words), std::string::npos) << outcome.err;
}

TEST(Input, AFolderIsItsFilesInOrder) {
    const Directory directory;
    std::filesystem::create_directories(directory.path("all/below"));
    directory.write("all/b.bin", good(2));
    directory.write("all/a.xml", debug_xml);
    directory.write("all/below/c.bin", good(3));
    const std::string single = directory.write("single.bin", good(4));
    const Outcome outcome = tarn({"decode", single, directory.path("all")});
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(outcome.out,
              good_text(4) + tarn({"decode", directory.path("all/a.xml")}).out + good_text(2) + good_text(3));
}

TEST(Input, DecodingContinuesAfterABadFile) {
    const Directory directory;
    const std::string first = directory.write("first.bin", good(1)), bad = directory.write("bad.bin", "garbage"),
                      cut = directory.write("cut.bin", good(2) + "garbage" + good(5)),
                      empty = directory.write("empty.bin", ""), last = directory.write("last.bin", good(3));
    const Outcome outcome = tarn({"decode", first, bad, cut, empty, last});
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_EQ(outcome.out, good_text(1) + good_text(2) + good_text(3));
    expect_words(outcome, "tarn: " + bad + ": neither frames nor XML nor JSON\n");
    expect_words(outcome, "tarn: " + cut + ": frame at offset 65: not a frame");
    expect_words(outcome, "tarn: " + empty + ": empty\n");
    const Outcome missing = tarn({"decode", directory.path("none"), last});
    EXPECT_EQ(missing.exit, 3);
    EXPECT_EQ(missing.out, good_text(3));
}

TEST(Input, AThousandFilesAreConvertedInOneCall) {
    const Directory directory;
    std::filesystem::create_directories(directory.path("in/below"));
    for (int i = 0; i < 1000; ++i) {
        directory.write((i % 2 == 0 ? "in/" : "in/below/") + std::to_string(i) + ".bin",
                        good(static_cast<std::uint64_t>(i)));
    }
    directory.write("in/7.bad", good() + "garbage");
    for (const std::string jobs : {"1", "3"}) {
        const std::string out = directory.path("out" + jobs);
        const Outcome outcome = tarn({"decode", "--output-directory", out, "--jobs", jobs, directory.path("in")});
        EXPECT_EQ(outcome.exit, 2);
        EXPECT_EQ(outcome.out, "");
        EXPECT_EQ(occurrences(outcome.err, "\n"), 1U) << outcome.err;
        expect_words(outcome, directory.path("in/7.bad") + ": frame at offset 65: ");
        EXPECT_FALSE(std::filesystem::exists(out + "/7.bad.txt"));
        for (int i = 0; i < 1000; ++i) {
            const std::string name = (i % 2 == 0 ? "/" : "/below/") + std::to_string(i) + ".bin.txt";
            EXPECT_EQ(directory.read("out" + jobs + name), good_text(static_cast<std::uint64_t>(i)));
        }
    }
}

TEST(Input, TwoFilesOfOneNameDoNotReplaceEachOther) {
    const Directory directory;
    std::filesystem::create_directories(directory.path("other"));
    const std::string a = directory.write("same.bin", good(1)), b = directory.write("other/same.bin", good(2));
    const Outcome outcome = tarn({"decode", "--json", "--output-directory", directory.path("out"), a, b});
    EXPECT_EQ(outcome.exit, 2);
    expect_words(outcome, directory.path("out/same.bin.json") + ": the same file is two outputs\n");
    EXPECT_EQ(directory.read("out/same.bin.json"), tarn({"decode", "--json", a}).out);
}

struct Damage {
    std::string name, bytes, words, text;
};

std::vector<Damage> damages() {
    const std::string a = good(1), b = good(2), garbage(1000, '\xbc');
    const std::string both = good_text(1) + good_text(2);
    std::string too_long = good(3), too_short = good(3), no_marker = good(3), huge = good(3), count_of_many = good(3);
    too_long[15] = static_cast<char>(a.size() + 10);
    too_short[15] = 50;
    no_marker[0] = 'x';
    huge[12] = '\x7f';
    return {
        {"Garbage", a + garbage + b,
         "frame at offset 65: truncated: its total length is 3166485692, but 1065 bytes are left; 1000 bytes are "
         "skipped",
         both},
        {"GarbageInFront", "xy" + a + b, "frame at offset 0: not a frame", both},
        {"GarbageBehind", a + b + "xy", "frame at offset 130: 2 bytes are left, but a frame has at least 43; 2 bytes",
         both},
        {"TooLong", a + too_long + b,
         "frame at offset 65: broken at offset 130: 10 extra bytes after the message; 65 bytes", both},
        {"TooShort", a + too_short + b, "; 65 bytes are skipped", both},
        {"NoMarker", a + no_marker + b, "frame at offset 65: not a frame", both},
        {"Huge", a + huge + b,
         "frame at offset 65: truncated: its total length is 2130706497, but 130 bytes are left; 65 bytes", both},
        {"Cut", a + a.substr(0, 44) + b, "; 44 bytes are skipped", both},
        {"CutAtTheEnd", a + b + a.substr(0, 60), "frame at offset 130: truncated: its total length is 65, but 60 bytes",
         both},
    };
}

TEST(Input, KeepGoingFindsTheNextFrameBehindWhatIsBroken) {
    const Directory directory;
    for (const Damage &damage : damages()) {
        const std::string file = directory.write(damage.name, damage.bytes);
        const Outcome outcome = tarn({"decode", "-k", file});
        EXPECT_EQ(outcome.exit, 2) << damage.name;
        EXPECT_EQ(outcome.out, damage.text) << damage.name;
        expect_words(outcome, damage.words);
        EXPECT_EQ(occurrences(outcome.err, "\n"), 1U) << damage.name << outcome.err;
        // The size of a pipe is not known.
        const Outcome piped = tarn({"decode", "-k"}, damage.bytes);
        EXPECT_EQ(piped.out, damage.text) << damage.name;
        EXPECT_EQ(piped.err.substr(piped.err.find(": frame")), outcome.err.substr(outcome.err.find(": frame")));
    }
}

TEST(Input, AFrameThatIsReadAlthoughItIsBrokenIsDecodedWithAWarning) {
    std::string longer = good(2) + "more";
    longer[15] = static_cast<char>(longer.size());
    const Outcome outcome = tarn({"decode"}, good(1) + longer + good(3));
    EXPECT_EQ(outcome.exit, 0);
    EXPECT_EQ(outcome.out, good_text(1) + good_text(2) + good_text(3));
    EXPECT_EQ(outcome.err,
              "tarn: standard input: frame at offset 65: warning: it can be read, but is broken at offset 130: "
              "4 extra bytes after the message\n");
}

TEST(Input, NoDamageOfOneByteCostsAnotherFrame) {
    const Directory directory;
    const std::string all = good(1) + good(2) + good(3);
    for (std::size_t at = 65; at < 130; ++at) {
        std::string bytes = all;
        bytes[at] = static_cast<char>(bytes[at] ^ 0x41);
        const Outcome outcome = tarn({"decode", "-k"}, bytes);
        EXPECT_TRUE(outcome.out.starts_with(good_text(1))) << at;
        EXPECT_TRUE(outcome.out.ends_with(good_text(3))) << at;
    }
}

// A sanitizer reserves more memory than any limit.
#ifndef TARN_SANITIZED
TEST(Input, MemoryHoldsOneFrameWhateverTheLengthOfTheInput) {
    const Directory directory;
    const std::string one = directory.path("one.bin");
    ASSERT_EQ(tarn({"generate", "dp-tt-cfg", "--size", "256KiB", "--form", "frames", "-o", one}).exit, 0);
    // 73 MB of frames with 70 MB of memory, of which the program takes most.
    const std::string script =
        R"(for i in $(seq 280); do cat "$1"; done | (ulimit -v 100000 && "$0" decode --xml 2>&1) | grep -c '<lumo_tarn_dp_tt_msg>\|tarn:')";
    const Outcome outcome = run("/bin/sh", {"-c", script, tool(), one});
    EXPECT_EQ(outcome.out, "280\n");
}
#endif

}  // namespace

}  // namespace tool_test
