// What peers with unusual connections get, and what they cost the others.
#include <gtest/gtest.h>

#include "../tools/samples.h"
#include "crowd.h"

namespace tool_test {

namespace {

std::string table_requests(std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) all += table_request();
    return all;
}

// Far more than the buffers of the connection take at once.
constexpr std::size_t many = 200;

TEST(HalfClosed, APeerThatHasEndedSendingGetsItsWholeAnswer) {
    LimitedServer limited({"--unread", "64MiB", "--verbose"});
    ASSERT_TRUE(limited.is_ready());
    const Socket peer = Socket::connect_to(limited.server().socket());
    peer.send(table_requests(many));
    peer.end_sending();
    EXPECT_EQ(peer.receive().size(), many * limited.answer_size());
    EXPECT_TRUE(limited.server().process().wait_for_error("peer 1: disconnected: it closed the connection\n"));
}

TEST(HalfClosed, APeerThatEndsWithinAFrameGetsTheAnswersToItsWholeRequests) {
    LimitedServer limited({"--unread", "64MiB", "--verbose"});
    ASSERT_TRUE(limited.is_ready());
    const Socket peer = Socket::connect_to(limited.server().socket());
    peer.send(table_requests(many) + table_request().substr(0, 50));
    peer.end_sending();
    EXPECT_EQ(peer.receive().size(), many * limited.answer_size());
    EXPECT_TRUE(
        limited.server().process().wait_for_error("peer 1: disconnected: it closed the connection within a frame\n"));
}

TEST(HalfClosed, APeerThatDoesNotReadItsAnswerIsDisconnectedAtTheTimeLimit) {
    LimitedServer limited({"--unread", "64MiB", "--answer-time", "0.2"});
    ASSERT_TRUE(limited.is_ready());
    const Socket peer = Socket::connect_to(limited.server().socket());
    peer.send(table_requests(many));
    peer.end_sending();
    EXPECT_TRUE(
        limited.server().process().wait_for_error("tarn: peer 1 disconnected: it took too long to read an answer\n"));
    EXPECT_LT(peer.receive().size(), many * limited.answer_size());
}

}  // namespace

}  // namespace tool_test
