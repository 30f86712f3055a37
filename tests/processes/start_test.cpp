// Starting on a path that others use, and stopping while signals arrive.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <memory>
#include <thread>

#include "../tools/samples.h"
#include "crowd.h"

namespace tool_test {

namespace {

class Starting : public testing::Test {
protected:
    std::unique_ptr<Process> start() const {
        return std::make_unique<Process>(std::vector<std::string>{"answer", "--socket", socket_, snapshot_});
    }
    void expect_in_use(Process &process) const {
        for (int i = 0; i < 6000 && process.is_running(); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        ASSERT_FALSE(process.is_running());
        const Outcome outcome = process.finish();
        EXPECT_EQ(outcome.exit, 3);
        EXPECT_EQ(outcome.out, "");
        EXPECT_NE(outcome.err.find("cannot listen on " + socket_ + ": Address already in use (EADDRINUSE)"),
                  std::string::npos)
            << outcome.err;
    }

    Directory directory_;
    std::string socket_ = directory_.path("socket");
    std::string snapshot_ = "cl-debug=" + directory_.write("debug.xml", debug_xml);
};

TEST_F(Starting, DoesNotWaitForAProcessWhoseQueueIsFull) {
    const Socket listener = Socket::listen_on(socket_);
    std::vector<Socket> queue;
    for (int i = 0; i < 9; ++i) queue.push_back(Socket::connect_to(socket_));
    expect_in_use(*start());
    EXPECT_TRUE(std::filesystem::exists(socket_));
}

TEST_F(Starting, AtTheSameTimeOnAStaleFileSucceedsOnce) {
    for (int round = 0; round < 5; ++round) {
        { const Socket stale = Socket::listen_on(socket_); }
        std::vector<std::unique_ptr<Process>> all;
        for (int i = 0; i < 12; ++i) all.push_back(start());
        // All but one end by themselves.
        std::size_t running = all.size();
        for (int i = 0; i < 6000 && running > 1; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
            running = static_cast<std::size_t>(
                std::count_if(all.begin(), all.end(), [](const auto &process) { return process->is_running(); }));
        }
        ASSERT_EQ(running, 1U);
        for (const auto &process : all) {
            if (!process->is_running()) {
                expect_in_use(*process);
                continue;
            }
            ASSERT_TRUE(process->wait_for("answering on"));
            EXPECT_EQ(tarn({"show", "cl-debug", "--socket", socket_}).exit, 0);
            EXPECT_EQ(process->stop().exit, 0);
        }
        EXPECT_FALSE(std::filesystem::exists(socket_));
        EXPECT_FALSE(std::filesystem::exists(socket_ + ".lock"));
    }
}

TEST_F(Starting, SucceedsAfterAProcessThatWasKilled) {
    const auto first = start();
    ASSERT_TRUE(first->wait_for("answering on"));
    first->signal(SIGKILL);
    first->finish();
    EXPECT_TRUE(std::filesystem::exists(socket_ + ".lock"));
    const auto second = start();
    EXPECT_TRUE(second->wait_for("answering on")) << second->err();
}

TEST(Stopping, IsNotDisturbedByFurtherSignals) {
    for (int round = 0; round < 5; ++round) {
        LimitedServer limited({"--unread", "64MiB"});
        ASSERT_TRUE(limited.is_ready());
        Crowd crowd(limited.server().socket(), limited.answer_size());
        crowd.never_read(5);
        crowd.wait_for_answers();
        Process &process = limited.server().process();
        while (process.is_running()) process.signal(round % 2 == 0 ? SIGTERM : SIGINT);
        const Outcome end = process.finish();
        EXPECT_EQ(end.exit, 0) << end.err;
        EXPECT_NE(end.out.find("stopped after "), std::string::npos);
    }
}

}  // namespace

}  // namespace tool_test
