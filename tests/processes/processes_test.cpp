// Processes with many clients, killed processes, and full disks.
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <memory>

#include "../tools/samples.h"
#include "crowd.h"

namespace tool_test {

namespace {

void misbehave(Crowd &crowd, std::size_t clients_of_each_kind) {
    crowd.stall(clients_of_each_kind);
    crowd.send_garbage(clients_of_each_kind);
    crowd.disconnect_within_a_frame(clients_of_each_kind);
    crowd.send_a_long_frame(clients_of_each_kind);
    crowd.never_read(clients_of_each_kind);
}

TEST(Crowd, AHundredMisbehavingClientsDoNotAffectOthers) {
    LimitedServer limited;
    ASSERT_TRUE(limited.is_ready());
    Process &process = limited.server().process();
    Crowd crowd(limited.server().socket(), limited.answer_size());
    const std::size_t files = process.open_files();

    misbehave(crowd, 20);
    std::vector<std::unique_ptr<Process>> well_behaved;
    for (int i = 0; i < 3; ++i) {
        well_behaved.push_back(std::make_unique<Process>(
            std::vector<std::string>{"show", "dp-tt-cfg", "--socket", limited.server().socket(), "--timeout", "60"}));
    }
    crowd.request(20);
    EXPECT_EQ(crowd.answered(), 20U);
    for (const auto &client : well_behaved) {
        const Outcome outcome = client->finish();
        EXPECT_EQ(outcome.exit, 0) << outcome.err;
    }
    crowd.wait_until_disconnected();
    crowd.request(20);
    EXPECT_EQ(crowd.answered(), 40U);
    EXPECT_TRUE(process.reaches_open_files(files)) << process.open_files() << " files are open, there were " << files;
    EXPECT_EQ(limited.server().show("dp-tt-cfg").exit, 0);

    const Outcome end = process.stop();
    EXPECT_EQ(end.exit, 0) << end.err;
    // On a busy machine, a client that is about to disconnect may be too slow as well.
    EXPECT_GE(occurrences(end.err, "it took too long for one frame\n"), 20U);
    const std::string reported = std::to_string(occurrences(end.err, "tarn: peer "));
    EXPECT_NE(end.out.find(" answers, " + reported + " peers disconnected\n"), std::string::npos) << end.out;
    EXPECT_EQ(occurrences(end.err, "its frame exceeds the limit\n"), 20U);
    EXPECT_EQ(occurrences(end.err, "it left too many bytes unread\n") +
                  occurrences(end.err, "it took too long to read an answer\n"),
              20U);
}

// ./check load does the same for minutes. A leaked connection would keep its buffer of 64 KiB.
TEST(Crowd, MemoryDoesNotGrow) {
    LimitedServer limited;
    ASSERT_TRUE(limited.is_ready());
    Process &process = limited.server().process();
    Crowd crowd(limited.server().socket(), limited.answer_size());
    const std::size_t files = process.open_files();
    const auto rounds = [&](int count) {
        for (int i = 0; i < count; ++i) {
            misbehave(crowd, 2);
            crowd.request(2);
            crowd.close_oldest(10);
        }
        crowd.close_oldest(0);
        EXPECT_TRUE(process.reaches_open_files(files));
    };
    rounds(20);
    const std::size_t before = process.resident_kib();
    rounds(80);
    EXPECT_EQ(crowd.answered(), crowd.requests());
    EXPECT_EQ(crowd.clients(), 1200U);
    EXPECT_LE(process.resident_kib(), before + allocator_tolerance_kib);
    EXPECT_EQ(process.stop().exit, 0);
}

std::vector<std::string> answer_on(const std::string &socket, const std::string &snapshot, const char *fault) {
    std::vector<std::string> words{"answer", "--socket", socket, "--verbose", snapshot};
    if (*fault != '\0') words.insert(words.end(), {"--fault", fault});
    return words;
}

TEST(Killed, ServerRestartsOnTheSameSocketWhileClientsWait) {
    const Directory directory;
    const std::string socket = directory.path("socket");
    const std::string snapshot = "cl-debug=" + directory.write("debug.xml", debug_xml);
    for (int i = 0; i < 3; ++i) {
        // A server that never answers keeps the clients waiting.
        Process server(answer_on(socket, snapshot, "silent"));
        ASSERT_TRUE(server.wait_for("answering on")) << server.err();
        std::vector<std::unique_ptr<Process>> waiting;
        for (int c = 0; c < 5; ++c) {
            waiting.push_back(std::make_unique<Process>(
                std::vector<std::string>{"show", "cl-debug", "--socket", socket, "--timeout", "600"}));
        }
        ASSERT_TRUE(server.wait_for_error("requests lumo_tarn_cl_debug_rsp", 5)) << server.err();
        server.signal(SIGKILL);
        EXPECT_EQ(server.finish().exit, 128 + SIGKILL);
        for (const auto &client : waiting) {
            const Outcome outcome = client->finish();
            EXPECT_EQ(outcome.exit, 3);
            EXPECT_NE(outcome.err.find("no complete answer: Connection reset by peer"), std::string::npos)
                << outcome.err;
            EXPECT_EQ(outcome.out, "");
        }
        // The socket file still exists, but no process listens on it.
        EXPECT_TRUE(std::filesystem::exists(socket));
        const Outcome refused = tarn({"show", "cl-debug", "--socket", socket});
        EXPECT_EQ(refused.exit, 3);
        EXPECT_NE(refused.err.find("ECONNREFUSED"), std::string::npos) << refused.err;

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

TEST(Killed, ServerLeavesACompleteRecording) {
    const Directory directory;
    const std::string socket = directory.path("socket"), recording = directory.path("recording.xml");
    Process server(answer_on(socket, "cl-debug=" + directory.write("debug.xml", fragment()), ""));
    ASSERT_TRUE(server.wait_for("answering on")) << server.err();
    Process recorder({"record", "cl-debug", "--socket", socket, "-o", recording, "--full", directory.path("full.bin"),
                      "--rounds", "100000", "--interval", "0.001"});
    ASSERT_TRUE(server.wait_for_error("requests", 5)) << recorder.err();
    server.signal(SIGKILL);
    const Outcome end = recorder.finish();
    EXPECT_EQ(end.exit, 3);
    EXPECT_NE(end.err.find(socket), std::string::npos) << end.err;
    const std::string kept = directory.read("recording.xml");
    const std::size_t count = occurrences(kept, fragment());
    EXPECT_GE(count, 4U);
    EXPECT_EQ(kept.size(), count * fragment().size());
    const std::string number = std::to_string(count);
    EXPECT_EQ(end.out, "recorded " + number + " of " + number + " messages\n");
    const Outcome frames = tarn({"decode", "--xml", directory.path("full.bin")});
    EXPECT_EQ(occurrences(frames.out, "<lumo_tarn_debug_setting_msg>"), count) << frames.err;
}

TEST(Killed, RecorderLeavesWholeMessages) {
    const Directory directory;
    const Server server({"cl-debug=" + directory.write("debug.xml", fragment()), "--verbose"});
    ASSERT_TRUE(server.is_ready());
    Process recorder({"record", "cl-debug", "--socket", server.socket(), "-o", directory.path("recording.xml"),
                      "--rounds", "100000", "--interval", "0.001"});
    // The server gets a request only after the client has written the previous answers.
    ASSERT_TRUE(server.process().wait_for_error("requests", 5));
    recorder.signal(SIGKILL);
    EXPECT_EQ(recorder.finish().exit, 128 + SIGKILL);
    const std::string kept = directory.read("recording.xml");
    EXPECT_GE(occurrences(kept, fragment()), 4U);
    EXPECT_EQ(kept.size() % fragment().size(), 0U);
}

// Runs the tool with a limit on the size of files, in blocks of 512 bytes.
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

TEST(FullDisk, IsReportedByEachCommandThatWrites) {
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

// The limit lies within a message: all preceding messages are kept, and the error names the offset.
TEST(FullDisk, EndsARecordingAfterItsLastWholeMessage) {
    const Directory directory;
    std::string frames;
    for (int i = 0; i < 10; ++i) frames += three_answers();
    const std::string from = directory.write("frames.bin", frames);
    for (const int blocks : {1, 2, 3}) {
        const std::size_t limit = static_cast<std::size_t>(blocks) * 512, fit = limit / fragment().size();
        ASSERT_NE(limit % fragment().size(), 0U);
        const Outcome outcome =
            tarn_with_file_limit(blocks, {"record", "--from", from, "-o", directory.path("recording.xml")});
        EXPECT_EQ(outcome.exit, 3);
        EXPECT_EQ(outcome.err, "tarn: " + directory.path("recording.xml") + ": at byte " + std::to_string(limit) +
                                   ": File too large (EFBIG)\n");
        EXPECT_EQ(outcome.out, "recorded " + std::to_string(fit) + " of " + std::to_string(fit + 1) + " messages\n");
        std::string whole;
        for (std::size_t i = 0; i < fit; ++i) whole += fragment();
        EXPECT_EQ(directory.read("recording.xml"), whole);
        const Outcome decoded = tarn({"decode", directory.path("recording.xml")});
        EXPECT_EQ(decoded.exit, 0) << decoded.err;
    }
}

TEST(FullDisk, LeavesWholeFramesInTheFullRecording) {
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
