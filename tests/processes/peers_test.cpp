// What peers with unusual connections get, and what they cost the others.
#include <gtest/gtest.h>

#include <memory>

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
    LimitedServer limited({"--unread", "64MiB", "--verbose", "--log-rate", "0"});
    ASSERT_TRUE(limited.is_ready());
    const Socket peer = Socket::connect_to(limited.server().socket());
    peer.send(table_requests(many));
    peer.end_sending();
    EXPECT_EQ(peer.receive().size(), many * limited.answer_size());
    EXPECT_TRUE(limited.server().process().wait_for_error("peer 1: disconnected: it closed the connection\n"));
}

TEST(HalfClosed, APeerThatEndsWithinAFrameGetsTheAnswersToItsWholeRequests) {
    LimitedServer limited({"--unread", "64MiB", "--verbose", "--log-rate", "0"});
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

// More connections than a process serves, none of which sends anything.
TEST(Silent, PeersMakePlaceForOthersAndAreToldWhy) {
    LimitedServer limited({"--idle", "0"});
    ASSERT_TRUE(limited.is_ready());
    std::vector<Socket> silent;
    for (int i = 0; i < 256; ++i) silent.push_back(Socket::connect_to(limited.server().socket()));
    const Outcome shown = limited.server().show("dp-tt-cfg", {"--timeout", "60"});
    EXPECT_EQ(shown.exit, 0) << shown.err;
    EXPECT_NE(silent.front().receive().find("silent while others waited for a place"), std::string::npos);
    EXPECT_TRUE(limited.server().process().wait_for_error(
        "tarn: peer 1 disconnected: silent while others waited for a place\n"));
    silent.back().send(table_request());
    EXPECT_EQ(silent.back().receive(limited.answer_size()).size(), limited.answer_size());
}

// `tarn show` prints why it was turned away, even if that happens before it could send its request.
TEST(Silent, ARefusalIsPrintedAlsoIfTheRequestCannotBeSent) {
    const Directory directory;
    const LimitedServer limited;
    ASSERT_TRUE(limited.is_ready());
    const Socket asked = Socket::connect_to(limited.server().socket());
    asked.send(request("lumo_tarn_no_such_rsp"));
    const std::string refusal = asked.receive(43 + 6 + std::string("unknown bundle \"lumo_tarn_no_such_rsp\"").size());
    // The test plays a server that refuses and closes at once.
    const Socket listener = Socket::listen_on(directory.path("socket"));
    for (int i = 0; i < 20; ++i) {
        Process client({"show", "cl-debug", "--socket", directory.path("socket")});
        listener.accept().send(refusal);
        const Outcome outcome = client.finish();
        EXPECT_EQ(outcome.exit, 1);
        EXPECT_NE(outcome.err.find(": refused: unknown bundle"), std::string::npos) << outcome.err;
    }
}

// Answers that wait for a peer that reads are larger than what waits for any of the others.
TEST(Greedy, PeersThatDoNotReadDoNotPushOutOneThatReads) {
    LimitedServer limited({"--unread", "1MiB", "--unread-total", "4MiB", "--stall", "60", "--answer-time", "0",
                           "--frame-time", "0", "--idle", "0"});
    ASSERT_TRUE(limited.is_ready());
    const Process &process = limited.server().process();
    const std::size_t before = process.resident_kib();
    Crowd greedy(limited.server().socket(), limited.answer_size());
    greedy.never_read_refusals(10);
    constexpr std::size_t requests = 25;
    const std::size_t more_than_a_socket_takes = 300000;
    for (int i = 0; i < 20; ++i) {
        const Socket reads = Socket::connect_to(limited.server().socket());
        reads.send(table_requests(requests));
        EXPECT_EQ(reads.receive(more_than_a_socket_takes).size(), more_than_a_socket_takes);
        greedy.never_read_refusals(1);
        const std::size_t left = requests * limited.answer_size() - more_than_a_socket_takes;
        EXPECT_EQ(reads.receive(left).size(), left) << process.err();
    }
    EXPECT_TRUE(
        process.wait_for_error(" disconnected: all peers left too many bytes unread, and this one reads slowest\n"));
    EXPECT_LE(process.resident_kib(), before + 4096 + allocator_tolerance_kib);
}

TEST(Greedy, AnAnswerThatManyWaitForIsKeptOnce) {
    LimitedServer limited({"--unread", "4MiB", "--unread-total", "4MiB", "--answer-time", "0", "--idle", "0"});
    ASSERT_TRUE(limited.is_ready());
    const std::size_t before = limited.server().process().resident_kib();
    Crowd crowd(limited.server().socket(), limited.answer_size());
    crowd.never_read(60);  // more than two MiB for each
    crowd.wait_for_answers();
    EXPECT_LE(limited.server().process().resident_kib(), before + allocator_tolerance_kib);
    const Outcome end = limited.server().process().stop();
    EXPECT_NE(end.out.find(", 0 peers disconnected\n"), std::string::npos) << end.out << end.err;
}

// Two origins are two addresses of this machine.
class Share : public testing::Test {
protected:
    void serve(std::vector<std::string> words) {
        const Outcome tables = tarn({"generate", "dp-tt-cfg", "--elements", "40", "--form", "frames"});
        words.insert(words.begin(), {"answer", "--listen", ":0", "--idle", "0", "--answer-time", "0", "--stall", "0"});
        words.push_back("dp-tt-cfg=" + directory_.write("tables.bin", tables.out));
        server_ = std::make_unique<Process>(words);
        ASSERT_TRUE(server_->wait_for(": dp-tt-cfg\n"));
        const std::string line = server_->out().substr(0, server_->out().find(": "));
        port_ = line.substr(line.rfind(':') + 1);
    }
    Socket connect(const std::string &from) const { return Socket::connect_to_port(port_, from); }
    // A peer that does not read what it has requested, far more than TCP buffers.
    Socket connect_greedy(const std::string &from, const std::string &requests) const {
        Socket socket = connect(from);
        socket.send(requests);
        EXPECT_EQ(socket.receive(1).size(), 1U);
        return socket;
    }

    Directory directory_;
    std::unique_ptr<Process> server_;
    std::string port_;
};

TEST_F(Share, OfThePeersIsLimitedForEachOrigin) {
    serve({"--peers", "4", "--share", "50", "--unread", "64MiB"});
    const Socket first = connect_greedy("127.0.0.1", table_requests(30));
    const Socket second = connect_greedy("127.0.0.1", table_requests(30));
    EXPECT_NE(connect("127.0.0.1").receive().find("there are 2 peers of address 127.0.0.1 already"), std::string::npos);
    const Socket other = connect("127.0.0.2");
    other.send(request("lumo_tarn_no_such_rsp"));
    EXPECT_EQ(other.receive(43).size(), 43U);
}

}  // namespace

}  // namespace tool_test
