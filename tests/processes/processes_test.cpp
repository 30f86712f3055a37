// What the processes live through: crowds, their own end, and disks without room.
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <memory>

#include "../tools/samples.h"
#include "crowd.h"

namespace tool_test {

namespace {

void misbehave(Crowd &crowd, std::size_t of_each) {
    crowd.stall(of_each);
    crowd.send_rubbish(of_each);
    crowd.vanish_within_a_frame(of_each);
    crowd.send_too_long_a_frame(of_each);
    crowd.never_read(of_each);
}

TEST(Crowd, OfAHundredThatMisbehaveAtOnceCostsTheOthersNothing) {
    Besieged besieged;
    ASSERT_TRUE(besieged.is_ready());
    Process &process = besieged.server().process();
    Crowd crowd(besieged.server().socket(), besieged.answer_size());
    const std::size_t files = process.open_files();

    misbehave(crowd, 20);
    std::vector<std::unique_ptr<Process>> honest;
    for (int i = 0; i < 3; ++i) {
        honest.push_back(std::make_unique<Process>(
            std::vector<std::string>{"show", "dp-tt-cfg", "--socket", besieged.server().socket(), "--timeout", "60"}));
    }
    crowd.ask(20);
    EXPECT_EQ(crowd.answered(), 20U);
    for (const auto &client : honest) {
        const Outcome outcome = client->finish();
        EXPECT_EQ(outcome.exit, 0) << outcome.err;
    }
    crowd.wait_until_turned_out();
    crowd.ask(20);
    EXPECT_EQ(crowd.answered(), 40U);
    EXPECT_TRUE(process.comes_down_to(files)) << process.open_files() << " files are open, there were " << files;
    EXPECT_EQ(besieged.server().show("dp-tt-cfg").exit, 0);

    const Outcome end = process.stop();
    EXPECT_EQ(end.exit, 0) << end.err;
    // On a busy machine one that is about to vanish may be too slow even for that.
    EXPECT_GE(occurrences(end.err, "it took too long for one frame\n"), 20U);
    const std::string named = std::to_string(occurrences(end.err, "tarn: peer "));
    EXPECT_NE(end.out.find(" answers, " + named + " peers turned out\n"), std::string::npos) << end.out;
    EXPECT_EQ(occurrences(end.err, "its frame exceeds the limit\n"), 20U);
    EXPECT_EQ(occurrences(end.err, "it lets too much pile up unread\n") +
                  occurrences(end.err, "it took too long to read an answer\n"),
              20U);
}

// ./check load does the same for minutes. A connection that were kept would cost the 64 KiB of its buffer.
TEST(Crowd, CostsNoMemory) {
    Besieged besieged;
    ASSERT_TRUE(besieged.is_ready());
    Process &process = besieged.server().process();
    Crowd crowd(besieged.server().socket(), besieged.answer_size());
    const std::size_t files = process.open_files();
    const auto rounds = [&](int count) {
        for (int i = 0; i < count; ++i) {
            misbehave(crowd, 2);
            crowd.ask(2);
            crowd.let_go(10);
        }
        crowd.let_go(0);
        EXPECT_TRUE(process.comes_down_to(files));
    };
    rounds(20);
    const std::size_t before = process.resident_kib();
    rounds(80);
    EXPECT_EQ(crowd.answered(), crowd.asked());
    EXPECT_EQ(crowd.clients(), 1200U);
    EXPECT_LE(process.resident_kib(), before + allocator_play_kib);
    EXPECT_EQ(process.stop().exit, 0);
}

std::vector<std::string> answer_on(const std::string &socket, const std::string &snapshot, const char *fault) {
    std::vector<std::string> words{"answer", "--socket", socket, "--verbose", snapshot};
    if (*fault != '\0') words.insert(words.end(), {"--fault", fault});
    return words;
}

TEST(Killed, AndStartedAgainOnTheSameSocketWhileClientsWait) {
    const Directory directory;
    const std::string socket = directory.path("socket");
    const std::string snapshot = "cl-debug=" + directory.write("debug.xml", debug_xml);
    for (int i = 0; i < 3; ++i) {
        // One that never answers keeps the clients waiting.
        Process server(answer_on(socket, snapshot, "silent"));
        ASSERT_TRUE(server.wait_for("answering on")) << server.err();
        std::vector<std::unique_ptr<Process>> waiting;
        for (int c = 0; c < 5; ++c) {
            waiting.push_back(std::make_unique<Process>(
                std::vector<std::string>{"show", "cl-debug", "--socket", socket, "--timeout", "600"}));
        }
        ASSERT_TRUE(server.wait_for_error("asks for lumo_tarn_cl_debug_rsp", 5)) << server.err();
        server.signal(SIGKILL);
        EXPECT_EQ(server.finish().exit, 128 + SIGKILL);
        for (const auto &client : waiting) {
            const Outcome outcome = client->finish();
            EXPECT_EQ(outcome.exit, 3);
            EXPECT_NE(outcome.err.find("no whole answer: Connection reset by peer"), std::string::npos) << outcome.err;
            EXPECT_EQ(outcome.out, "");
        }
        // The file is still there, and nobody behind it.
        EXPECT_TRUE(std::filesystem::exists(socket));
        const Outcome nobody = tarn({"show", "cl-debug", "--socket", socket});
        EXPECT_EQ(nobody.exit, 3);
        EXPECT_NE(nobody.err.find("ECONNREFUSED"), std::string::npos) << nobody.err;

        Process again(answer_on(socket, snapshot, ""));
        ASSERT_TRUE(again.wait_for("answering on")) << again.err();
        EXPECT_EQ(tarn({"show", "cl-debug", "--socket", socket}).exit, 0);
        EXPECT_EQ(again.stop().exit, 0);
        EXPECT_FALSE(std::filesystem::exists(socket));
    }
}

const reference::MessageTable &debug_message() { return reference::message_table("lumo_tarn_debug_setting_msg"); }

std::string fragment() {
    return reference::message_to_xml(debug_message().name, plain_payload(debug_message(), 3), false);
}

TEST(Killed, WhileARecordingGoesOnLosesNothingOfIt) {
    const Directory directory;
    const std::string socket = directory.path("socket"), recording = directory.path("recording.xml");
    Process server(answer_on(socket, "cl-debug=" + directory.write("debug.xml", fragment()), ""));
    ASSERT_TRUE(server.wait_for("answering on")) << server.err();
    Process recorder({"record", "cl-debug", "--socket", socket, "-o", recording, "--full", directory.path("full.bin"),
                      "--rounds", "100000", "--interval", "0.001"});
    ASSERT_TRUE(server.wait_for_error("asks for", 5)) << recorder.err();
    server.signal(SIGKILL);
    const Outcome end = recorder.finish();
    EXPECT_EQ(end.exit, 3);
    EXPECT_NE(end.err.find(socket), std::string::npos) << end.err;
    const std::string kept = directory.read("recording.xml");
    const std::size_t count = occurrences(kept, fragment());
    EXPECT_GE(count, 4U);
    EXPECT_EQ(kept.size(), count * fragment().size());
    const std::string told = std::to_string(count);
    EXPECT_EQ(end.out, "recorded " + told + " of " + told + " messages\n");
    const Outcome frames = tarn({"decode", "--xml", directory.path("full.bin")});
    EXPECT_EQ(occurrences(frames.out, "<lumo_tarn_debug_setting_msg>"), count) << frames.err;
}

TEST(Killed, TheRecorderItselfLeavesWholeMessages) {
    const Directory directory;
    const Server server({"cl-debug=" + directory.write("debug.xml", fragment()), "--verbose"});
    ASSERT_TRUE(server.is_ready());
    Process recorder({"record", "cl-debug", "--socket", server.socket(), "-o", directory.path("recording.xml"),
                      "--rounds", "100000", "--interval", "0.001"});
    // A request says that the answers before it are written.
    ASSERT_TRUE(server.process().wait_for_error("asks for", 5));
    recorder.signal(SIGKILL);
    EXPECT_EQ(recorder.finish().exit, 128 + SIGKILL);
    const std::string kept = directory.read("recording.xml");
    EXPECT_GE(occurrences(kept, fragment()), 4U);
    EXPECT_EQ(kept.size() % fragment().size(), 0U);
}

// Runs the tool with a largest size of files, in blocks of 512 bytes.
Outcome tarn_with_file_limit(int blocks, const std::vector<std::string> &arguments) {
    std::vector<std::string> words{"-c", R"(ulimit -f "$0" && exec "$@")", std::to_string(blocks), tool()};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return run("/bin/sh", words);
}

std::string three_answers() {
    std::string all;
    for (int i = 0; i < 3; ++i) {
        all += answer(reference::bundle_table("lumo_tarn_cl_debug_rsp"), plain_payload(debug_message(), 3), false);
    }
    return all;
}

TEST(FullDisk, IsNamedByEachCommandThatWrites) {
    const Directory directory;
    const std::string frames = directory.write("frames.bin", three_answers());
    const Server server({"cl-debug=" + directory.write("debug.xml", fragment())});
    ASSERT_TRUE(server.is_ready());
    const std::vector<std::vector<std::string>> all = {
        {"record", "--from", frames, "-o", "/dev/full"},
        {"record", "--from", frames, "-o", directory.path("kept.xml"), "--full", "/dev/full"},
        {"record", "cl-debug", "--socket", server.socket(), "-o", "/dev/full"},
        {"show", "cl-debug", "--socket", server.socket(), "--save", "/dev/full"},
        {"generate", "dp-intf", "-o", "/dev/full"},
        {"encode", directory.path("debug.xml"), "-o", "/dev/full"},
        {"view", frames, "-o", "/dev/full"},
    };
    for (const std::vector<std::string> &words : all) {
        const Outcome outcome = tarn(words);
        EXPECT_EQ(outcome.exit, 3) << words.front();
        EXPECT_NE(outcome.err.find("tarn: /dev/full: "), std::string::npos) << outcome.err;
        EXPECT_NE(outcome.err.find("No space left on device"), std::string::npos) << outcome.err;
    }
    for (const std::string command : {"decode", "dissect"}) {
        const Outcome outcome = run("/bin/sh", {"-c", R"(exec "$0" "$1" "$2" >/dev/full)", tool(), command, frames});
        EXPECT_EQ(outcome.exit, 3) << command;
        EXPECT_EQ(outcome.err, "tarn: standard output: No space left on device\n");
    }
}

// The end of the room lies within a message: what came before it stays whole, and the place is named.
TEST(FullDisk, EndsARecordingBehindItsLastWholeMessage) {
    const Directory directory;
    std::string frames;
    for (int i = 0; i < 10; ++i) frames += three_answers();
    const std::string from = directory.write("frames.bin", frames);
    for (const int blocks : {1, 2, 3}) {
        const std::size_t room = static_cast<std::size_t>(blocks) * 512, fit = room / fragment().size();
        ASSERT_NE(room % fragment().size(), 0U);
        const Outcome outcome =
            tarn_with_file_limit(blocks, {"record", "--from", from, "-o", directory.path("recording.xml")});
        EXPECT_EQ(outcome.exit, 3);
        EXPECT_EQ(outcome.err, "tarn: " + directory.path("recording.xml") + ": at byte " + std::to_string(room) +
                                   ": File too large (EFBIG, 27)\n");
        EXPECT_EQ(outcome.out, "recorded " + std::to_string(fit) + " of " + std::to_string(fit + 1) + " messages\n");
        std::string whole;
        for (std::size_t i = 0; i < fit; ++i) whole += fragment();
        EXPECT_EQ(directory.read("recording.xml"), whole);
        const Outcome decoded = tarn({"decode", directory.path("recording.xml")});
        EXPECT_EQ(decoded.exit, 0) << decoded.err;
    }
}

TEST(FullDisk, LeavesTheFramesOfARecordingWholeToo) {
    const Directory directory;
    const std::string from = directory.write("frames.bin", three_answers());
    const Outcome outcome = tarn_with_file_limit(
        1, {"record", "--from", from, "-o", directory.path("recording.xml"), "--full", directory.path("full.bin")});
    EXPECT_EQ(outcome.exit, 3);
    const std::string kept = directory.read("full.bin");
    EXPECT_EQ(kept, three_answers().substr(0, kept.size()));
    EXPECT_GT(kept.size(), 0U);
    const Outcome decoded = tarn({"dissect", directory.path("full.bin")});
    EXPECT_EQ(decoded.exit, 0) << decoded.err;
}

}  // namespace

}  // namespace tool_test
