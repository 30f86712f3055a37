// Peers that send garbage, disconnect early or are many; broken answers.
#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <thread>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

class HostilePeer : public testing::Test {
protected:
    Directory directory_;
    Server server_{{"cl-debug=" + directory_.write("debug.xml", debug_xml), "--verbose"}};

    void SetUp() override { ASSERT_TRUE(server_.is_ready()); }
    // After each test, the process still answers and stops without a crash or, with a leak checker, a leak.
    void TearDown() override {
        EXPECT_EQ(server_.show("cl-debug").exit, 0);
        const Outcome end = server_.process().stop();
        EXPECT_EQ(end.exit, 0) << end.err;
    }
    std::string talk(std::string_view bytes, std::size_t most = SIZE_MAX) {
        const Socket socket = Socket::connect_to(server_.socket());
        socket.send(bytes);
        return socket.receive(most);
    }
};

TEST_F(HostilePeer, GarbageIsDisconnected) { EXPECT_EQ(talk(std::string(1000, 'x')), ""); }

TEST_F(HostilePeer, ATotalLengthBelowAFrameIsDisconnected) {
    std::string bytes = request("lumo_tarn_cl_debug_rsp");
    bytes[15] = 42;
    EXPECT_EQ(talk(bytes), "");
}

TEST_F(HostilePeer, AHugeTotalLengthIsDisconnected) {
    std::string bytes = request("lumo_tarn_cl_debug_rsp");
    bytes[12] = '\x7f';
    EXPECT_EQ(talk(bytes), "");
}

TEST_F(HostilePeer, AFrameOfAnotherMessageIsRefusedAndDisconnected) {
    const std::string reply = talk(control(reference::bundle_table("lumo_tarn_cl_debug_rsp"), "start"));
    EXPECT_NE(reply.find("not a request"), std::string::npos);
}

TEST_F(HostilePeer, AnUnknownLuidIsRefusedAndDisconnected) {
    std::string bytes = request("lumo_tarn_cl_debug_rsp");
    bytes[30] ^= 0x55;
    EXPECT_NE(talk(bytes).find("not a request"), std::string::npos);
}

TEST_F(HostilePeer, ANameLongerThanItsFrameIsRefused) {
    std::string bytes = request("lumo_tarn_cl_debug_rsp");
    bytes[44] = '\xff';
    EXPECT_NE(talk(bytes).find("not a request"), std::string::npos);
}

TEST_F(HostilePeer, AnUnknownBundleIsRefusedByName) {
    const std::string reply = talk(request("lumo_tarn_no_such_rsp"), 60);
    EXPECT_EQ(reply.at(43), '\x80');
    EXPECT_EQ(reply.at(47), '\x02');
}

TEST_F(HostilePeer, ATruncatedRequestDoesNotAffectOthers) {
    const std::string bytes = request("lumo_tarn_cl_debug_rsp");
    for (std::size_t size = 0; size < bytes.size(); size += 7) {
        const Socket socket = Socket::connect_to(server_.socket());
        socket.send(std::string_view(bytes).substr(0, size));
    }
}

TEST_F(HostilePeer, UnreadAnswersDoNotAffectOthers) {
    const Socket socket = Socket::connect_to(server_.socket());
    for (int i = 0; i < 200; ++i) socket.send(request("lumo_tarn_cl_debug_rsp"));
}

TEST_F(HostilePeer, AKilledClientDoesNotAffectOthers) {
    for (int i = 0; i < 5; ++i) {
        const Process client({"show", "cl-debug", "--socket", server_.socket()});
        if (i % 2 == 0) std::this_thread::sleep_for(std::chrono::milliseconds(5 * i));
        client.signal(9);
    }
}

TEST_F(HostilePeer, AHundredConcurrentClientsAreServed) {
    std::vector<Socket> clients;
    for (int i = 0; i < 100; ++i) clients.push_back(Socket::connect_to(server_.socket()));
    for (const Socket &client : clients) client.send(request("lumo_tarn_cl_debug_rsp", 1));
    const std::size_t size = 43 + 43 + 26 + 43;  // four integers of four bytes, each with its state byte
    for (const Socket &client : clients) EXPECT_EQ(client.receive(size).size(), size);
}

TEST_F(HostilePeer, ConcurrentProcessesAreServed) {
    std::vector<std::unique_ptr<Process>> clients;
    for (int i = 0; i < 12; ++i) {
        clients.push_back(std::make_unique<Process>(
            std::vector<std::string>{"show", "cl-debug", "--socket", server_.socket(), "--timeout", "60"}));
    }
    for (const auto &client : clients) EXPECT_EQ(client->finish().exit, 0);
}

struct Fault {
    std::string name;
    int exit;
    std::string message;
};

class BrokenAnswer : public testing::TestWithParam<Fault> {};

TEST_P(BrokenAnswer, IsReported) {
    const Directory directory;
    Server server({"--fault", GetParam().name, "cl-debug=" + directory.write("debug.xml", debug_xml)});
    ASSERT_TRUE(server.is_ready());
    const Outcome outcome = server.show("cl-debug", {"--timeout", "5"});
    EXPECT_EQ(outcome.exit, GetParam().exit);
    EXPECT_NE(outcome.err.find(GetParam().message), std::string::npos) << outcome.err;
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(server.process().stop().exit, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Show, BrokenAnswer,
    testing::Values(
        Fault{"abort", 1, "the answering process aborted lumo_tarn_cl_debug_rsp"},
        Fault{"second-start", 2, "frame at offset 43: lumo_tarn_cl_debug_rsp_bundle_start: File exists (EEXIST)"},
        Fault{"foreign", 2, "frame at offset 43: lumo_tarn_cl_debug_rsp does not admit lumo_tarn_dp_debug_setting_msg"},
        Fault{"cut", 3, "ECONNRESET"}, Fault{"unknown", 2, "unknown luid 39d03c8ee80cba20dd871f4a31ff1bf6"},
        Fault{"garbage", 2, "EBADMSG"}),
    [](const auto &info) {
        std::string name = info.param.name;
        for (char &c : name) c = c == '-' ? '_' : c;
        return name;
    });

// The test plays the answering process.
Outcome show_from(const std::string &bytes) {
    const Directory directory;
    const Socket listener = Socket::listen_on(directory.path("socket"));
    Process client({"show", "cl-debug", "--socket", directory.path("socket"), "--timeout", "5"});
    {
        const Socket peer = listener.accept();
        peer.receive(request("lumo_tarn_cl_debug_rsp").size());
        peer.send(bytes);
    }
    return client.finish();
}

TEST(BrokenAnswer, ACommitWithoutAStartIsReported) {
    const Outcome outcome = show_from(control(reference::bundle_table("lumo_tarn_cl_debug_rsp"), "commit"));
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("frame at offset 0: lumo_tarn_cl_debug_rsp_bundle_commit"), std::string::npos)
        << outcome.err;
    EXPECT_NE(outcome.err.find("(EBADMSG)"), std::string::npos) << outcome.err;
}

TEST(BrokenAnswer, AMessageBeforeTheStartIsReported) {
    const auto &message = reference::message_table("lumo_tarn_debug_setting_msg");
    const Outcome outcome = show_from(frame(message, plain_payload(message, 1), false));
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("precedes the start of its bundle"), std::string::npos) << outcome.err;
}

TEST(BrokenAnswer, ATruncatedPayloadIsReported) {
    const auto &bundle = reference::bundle_table("lumo_tarn_cl_debug_rsp");
    const auto &message = reference::message_table(bundle.message);
    std::string truncated = frame(message, plain_payload(message, 1), false);
    truncated.pop_back();
    truncated[15] = static_cast<char>(truncated.size());
    const Outcome outcome = show_from(control(bundle, "start") + truncated + control(bundle, "commit"));
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("frame at offset 43: lumo_tarn_debug_setting_msg"), std::string::npos) << outcome.err;
}

TEST(BrokenAnswer, ARequestAsAnswerIsReported) {
    const Outcome outcome = show_from(request("lumo_tarn_cl_debug_rsp"));
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find("the answer is a request"), std::string::npos) << outcome.err;
}

TEST(BrokenAnswer, AClosedConnectionIsReported) {
    const Outcome outcome = show_from("");
    EXPECT_EQ(outcome.exit, 3);
    EXPECT_NE(outcome.err.find("ECONNRESET"), std::string::npos) << outcome.err;
}

}  // namespace

}  // namespace tool_test
