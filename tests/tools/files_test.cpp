// Output files: complete or as they were, and never an input at the same time.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

Outcome shell(const std::string &script, const std::vector<std::string> &arguments) {
    std::vector<std::string> words{"-c", script, tool()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return run("/bin/sh", words);
}

std::size_t files_in(const Directory &directory) {
    const std::filesystem::directory_iterator files(directory.path(""));
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

std::string long_answer() {
    const auto &message = reference::message_table("lumo_tarn_debug_setting_msg");
    std::string all;
    for (int i = 0; i < 100; ++i) all += frame(message, plain_payload(message, 3), false);
    return all;
}

TEST(Files, AnOutputThatFailsLeavesTheFileThatWasThere) {
    const Directory directory;
    const std::string frames = directory.write("frames.bin", long_answer()), xml = directory.write("d.xml", debug_xml);
    const std::string kept = directory.write("kept", "what was there");
    const Server server({"cl-debug=" + xml});
    ASSERT_TRUE(server.is_ready());
    // No file may have a byte.
    for (const std::vector<std::string> &words : std::vector<std::vector<std::string>>{
             {"encode", frames, "-o", kept},
             {"view", frames, "-o", kept},
             {"generate", "dp-intf", "-o", kept},
             {"show", "cl-debug", "--socket", server.socket(), "--save", kept},
             {"record", "--from", frames, "-o", kept},
             {"record", "--from", frames, "-o", "-", "--full", kept},
         }) {
        const Outcome outcome = shell(R"((ulimit -f 0 && exec "$0" "$@") 2>&1 | cat)", words);
        EXPECT_NE(outcome.out.find("tarn: " + kept + ": at byte 0: File too large (EFBIG)\n"), std::string::npos)
            << words.front() << outcome.out;
        EXPECT_EQ(directory.read("kept"), "what was there") << words.front();
        EXPECT_EQ(files_in(directory), 3U) << words.front();
    }
    const Outcome invalid = tarn({"encode", "-o", kept}, "{");
    EXPECT_EQ(invalid.exit, 2);
    EXPECT_EQ(directory.read("kept"), "what was there");
}

TEST(Files, AnOutputReplacesTheFileBehindALinkAndKeepsItsMode) {
    const Directory directory;
    const std::string file = directory.write("file", "old"), link = directory.path("link");
    std::filesystem::create_symlink(file, link);
    ASSERT_EQ(chmod(file.c_str(), 0640), 0);
    ASSERT_EQ(tarn({"generate", "dp-intf", "-o", link}).exit, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(directory.read("file"), tarn({"generate", "dp-intf"}).out);
    struct stat status {};
    ASSERT_EQ(stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640U);
    EXPECT_EQ(files_in(directory), 2U);
}

TEST(Files, NoFileIsInputAndOutput) {
    const Directory directory;
    const std::string content = long_answer(), x = directory.write("x", content);
    const std::string other_name = directory.path("./x"), link = directory.path("link"), hard = directory.path("hard");
    const std::string one = directory.write("one.bin", content.substr(0, 65));
    std::filesystem::create_symlink(x, link);
    std::filesystem::create_hard_link(x, hard);
    for (const std::string &name : {x, other_name, link, hard}) {
        for (const std::vector<std::string> &words : std::vector<std::vector<std::string>>{
                 {"record", "--from", x, "-o", name},
                 {"record", "--from", x, "-o", "-", "--full", name},
                 {"encode", x, "-o", name},
                 {"view", x, "-o", name},
                 {"view", one, x, "-o", name},
             }) {
            const Outcome outcome = tarn(words);
            EXPECT_EQ(outcome.exit, 2) << words.front();
            EXPECT_NE(outcome.err.find(": the same file is input and output\n"), std::string::npos) << outcome.err;
            EXPECT_EQ(directory.read("x"), content) << words.front();
        }
    }
    EXPECT_EQ(shell(R"("$0" decode "$1" >>"$1")", {x}).exit, 2);
    EXPECT_EQ(shell(R"("$0" encode -o "$1" <"$1")", {x}).exit, 2);
    EXPECT_EQ(directory.read("x"), content);
    const Outcome twice = tarn({"record", "--from", x, "-o", directory.path("new"), "--full", directory.path("./new")});
    EXPECT_EQ(twice.exit, 2);
    EXPECT_NE(twice.err.find("/new: the same file is two outputs\n"), std::string::npos) << twice.err;
    EXPECT_EQ(tarn({"diff", x, x}).exit, 0);
}

TEST(Files, StandardOutputIsCheckedToItsEnd) {
    const Directory directory;
    const std::string frames = directory.write("frames.bin", long_answer());
    const std::string one = directory.write("one.bin", long_answer().substr(0, 65));
    for (const std::vector<std::string> &words : std::vector<std::vector<std::string>>{
             {"--help"},
             {"show", "--help"},
             {"manual"},
             {"complete", ""},
             {"schema"},
             {"schema", "--html"},
             {"generate", "dp-intf"},
             {"encode", frames},
             {"decode", frames},
             {"decode", frames, "--bundles"},
             {"dissect", frames},
             {"dissect", frames, "--json"},
             {"dissect", frames, "--source"},
             {"diff", frames, one},
             {"view", frames},
             {"manifest", TARN_LIBRARY},
             {"record", "--from", frames, "-o", "-"},
             {"record", "--from", frames, "-o", directory.path("recording.xml")},
         }) {
        const Outcome full = shell(R"(exec "$0" "$@" >/dev/full)", words);
        EXPECT_EQ(full.exit, 3) << words.front();
        EXPECT_NE(full.err.find("tarn: standard output: "), std::string::npos) << words.front() << full.err;
        const Outcome closed = shell(R"(exec "$0" "$@" >&-)", words);
        EXPECT_EQ(closed.exit, 3) << words.front();
        EXPECT_NE(closed.err.find("Bad file descriptor"), std::string::npos) << words.front() << closed.err;
    }
}

// The first file that is opened would become standard error, and get whatever is printed there.
TEST(Files, NoFileTakesThePlaceOfAClosedStream) {
    const Directory directory;
    const std::string too_large = tarn({"generate", "dp-tt-cfg", "--elements", "20", "--form", "frames"}).out;
    const std::string frames = directory.write("frames.bin", long_answer() + too_large + long_answer());
    const std::string file = directory.path("recording.xml");
    EXPECT_NE(tarn({"record", "--from", frames, "-o", file}).err.find("is too large for the recorder"),
              std::string::npos);
    const std::string recording = directory.read("recording.xml");
    EXPECT_EQ(shell(R"(exec "$0" record --from "$1" -o "$2" 2>&-)", {frames, file}).exit, 1);
    EXPECT_EQ(directory.read("recording.xml"), recording);
    EXPECT_EQ(shell(R"(exec "$0" decode <&-)", {}).exit, 3);
}

}  // namespace

}  // namespace tool_test
