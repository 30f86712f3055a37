// One process answers, another requests: every bundle, every format, with and without per-field state.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <thread>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

class EveryBundle : public testing::TestWithParam<reference::BundleTable> {
protected:
    const reference::BundleTable &bundle() const { return GetParam(); }
    const reference::MessageTable &message() const { return reference::message_table(bundle().message); }
};

// The first answer of a server has the stamp 1.
std::string first_answer(const reference::BundleTable &bundle, const reference::Record &payload, bool tracked) {
    return text_of(reference::control_frame(bundle.name, "start", 1)) +
           frame(reference::message_table(bundle.message), payload, tracked, 1) +
           text_of(reference::control_frame(bundle.name, "commit", 1));
}

TEST_P(EveryBundle, IsServedFromXmlAndShownAsTextAndXml) {
    const Directory directory;
    const reference::Record payload = plain_payload(message(), 5);
    const std::string xml = reference::message_to_xml(bundle().message, payload, false);
    const Server server({short_name(bundle().name) + "=" + directory.write("snapshot.xml", xml)});
    ASSERT_TRUE(server.is_ready());

    const Outcome text = server.show(short_name(bundle().name));
    EXPECT_EQ(text.exit, 0) << text.err;
    EXPECT_EQ(text.out, shown(message(), payload));
    EXPECT_EQ(text.err, "");

    const Outcome again = server.show(bundle().name, {"--xml"});
    EXPECT_EQ(again.exit, 0) << again.err;
    EXPECT_EQ(again.out, xml + "\n");
}

TEST_P(EveryBundle, ArrivesAsTheReferenceEncodesIt) {
    for (const bool tracked : {false, true}) {
        const Directory directory;
        const reference::Record payload = strange_payload(message(), tracked ? 21 : 22);
        const reference::Record received = reference::as_received(payload, tracked);
        const Server server(
            {bundle().name + "=" + directory.write("snapshot.bin", frame(message(), payload, tracked))});
        ASSERT_TRUE(server.is_ready());
        std::vector<std::string> options{"--save", directory.path("saved.bin")};
        if (tracked) options.emplace_back("--tracked");
        const Outcome outcome = server.show(bundle().name, options);
        EXPECT_EQ(outcome.exit, 0) << outcome.err;
        EXPECT_EQ(directory.read("saved.bin"), first_answer(bundle(), received, tracked));
        EXPECT_EQ(outcome.out, shown(message(), received));
    }
}

// The request decides about per-field state, whether the served frames have it or not.
TEST_P(EveryBundle, IsServedWithStateOnlyOnRequest) {
    const Directory directory;
    const reference::Record payload = plain_payload(message(), 23);
    for (const bool tracked : {false, true}) {
        const Server server(
            {bundle().name + "=" + directory.write("snapshot.bin", frame(message(), payload, !tracked))});
        ASSERT_TRUE(server.is_ready());
        std::vector<std::string> options{"--save", directory.path("saved.bin")};
        if (tracked) options.emplace_back("--tracked");
        EXPECT_EQ(server.show(bundle().name, options).exit, 0);
        EXPECT_EQ(directory.read("saved.bin"), first_answer(bundle(), payload, tracked));
    }
}

TEST_P(EveryBundle, ShowsPerFieldStateInXml) {
    const Directory directory;
    reference::GeneratorOptions options;
    options.printable = true;
    const reference::Record payload = reference::Generator(9, options).make(message().payload);
    const reference::Record received = reference::as_received(payload, true);
    const Server server({bundle().name + "=" + directory.write("snapshot.bin", frame(message(), payload, true))});
    ASSERT_TRUE(server.is_ready());
    const Outcome outcome = server.show(bundle().name, {"--tracked", "--xml"});
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(outcome.out, reference::message_to_xml(bundle().message, received, true) + "\n");
}

INSTANTIATE_TEST_SUITE_P(Show, EveryBundle, testing::ValuesIn(reference::bundles()),
                         [](const auto &info) { return info.param.name; });

TEST(Show, OneProcessServesSeveralBundles) {
    const Directory directory;
    const std::string debug = directory.write("debug.xml", debug_xml);
    const std::string interface = directory.write(
        "intf.json", R"({"message": "lumo_tarn_dp_intf_msg", "payload": {"intf_name": "TenGigE0/1/0/3"}})");
    Server server({"cl-debug=" + debug, "pal-debug=" + debug, "dp-intf=" + interface});
    ASSERT_TRUE(server.is_ready());
    EXPECT_EQ(server.show("cl-debug").exit, 0);
    EXPECT_EQ(server.show("pal-debug").exit, 0);
    const Outcome outcome = server.show("dp-intf");
    EXPECT_NE(outcome.out.find("intf_name@var_string:TenGigE0/1/0/3\n"), std::string::npos) << outcome.out;
    const Outcome end = server.process().stop();
    EXPECT_EQ(end.exit, 0) << end.err;
    EXPECT_NE(end.out.find("stopped after 3 answers"), std::string::npos);
}

TEST(Show, ABundleThatIsNotServedIsRefused) {
    const Directory directory;
    const Server server({"cl-debug=" + directory.write("debug.xml", debug_xml)});
    ASSERT_TRUE(server.is_ready());
    const Outcome outcome = server.show("dp-intf");
    EXPECT_EQ(outcome.exit, 1);
    EXPECT_NE(outcome.err.find("lumo_tarn_dp_intf_rsp is not served here"), std::string::npos) << outcome.err;
    EXPECT_EQ(outcome.out, "");
}

TEST(Show, ShowPrintsJsonAndHex) {
    const Directory directory;
    const Server server({"cl-debug=" + directory.write("debug.xml", debug_xml)});
    ASSERT_TRUE(server.is_ready());
    const Outcome json = server.show("cl-debug", {"--json"});
    EXPECT_NE(json.out.find("\"info_enabled\": 1"), std::string::npos) << json.out;
    const Outcome hex = server.show("cl-debug", {"--hex"});
    EXPECT_EQ(hex.out.find("00000000  bc ff ff ff ff ff ff 00  00 00 00 02 00 00 00 2b"), 0U) << hex.out;
    EXPECT_EQ(server.show("cl-debug", {"--hex", "--json"}).exit, 2);
}

TEST(Show, TcpAndSocketsGiveTheSameAnswer) {
    const Directory directory;
    const std::string snapshot = "cl-debug=" + directory.write("debug.xml", debug_xml);
    const Server local({snapshot});
    Process server({"answer", "--listen", ":0", snapshot});
    ASSERT_TRUE(local.is_ready() && server.wait_for(": cl-debug\n"));
    const std::string address = server.out().substr(0, server.out().find(": ")).substr(strlen("answering on "));
    EXPECT_EQ(address.find("127.0.0.1:"), 0U) << address;
    const Outcome over_tcp = tarn({"show", "cl-debug", "--connect", address});
    EXPECT_EQ(over_tcp.exit, 0) << over_tcp.err;
    EXPECT_EQ(over_tcp.out, local.show("cl-debug").out);
    const Outcome recorded = tarn({"record", "cl-debug", "--connect", address, "-o", directory.path("recording.xml")});
    EXPECT_EQ(recorded.out, "recorded 1 of 1 messages\n") << recorded.err;
    const Outcome second = tarn({"answer", "--listen", address, snapshot});
    EXPECT_EQ(second.exit, 3);
    EXPECT_NE(second.err.find("EADDRINUSE"), std::string::npos) << second.err;
    EXPECT_EQ(server.stop().exit, 0);
    const Outcome gone = tarn({"show", "cl-debug", "--connect", address});
    EXPECT_EQ(gone.exit, 3);
    EXPECT_NE(gone.err.find("ECONNREFUSED"), std::string::npos) << gone.err;
}

// Several messages are printed one after the other, but as one document.
TEST(Show, ShowPrintsSeveralMessagesInEveryForm) {
    const Directory directory;
    const Server server({"cl-debug=" + directory.write("debug.xml", debug_xml + debug_xml + debug_xml)});
    ASSERT_TRUE(server.is_ready());
    const std::string one = tarn({"decode"}, debug_xml).out;
    EXPECT_EQ(server.show("cl-debug").out, one + one + one);
    const Outcome json = server.show("cl-debug", {"--json", "--save", directory.path("saved.bin")});
    const std::string message =
        "    {\n      \"message\": \"lumo_tarn_debug_setting_msg\",\n      \"payload\": {\n"
        "        \"info_enabled\": 1,\n        \"trace_enabled\": 0,\n"
        "        \"warn_enabled\": 0,\n        \"error_enabled\": 0\n      }\n    }";
    EXPECT_EQ(json.out, "{\n  \"bundle\": \"lumo_tarn_cl_debug_rsp\",\n  \"messages\": [\n" + message + ",\n" +
                            message + ",\n" + message + "\n  ]\n}\n");
    // Lines of the dump do not begin anew with each frame.
    const std::string hex = server.show("cl-debug", {"--hex"}).out;
    EXPECT_EQ(occurrences(hex, "\n"), (directory.read("saved.bin").size() + 15) / 16);
    EXPECT_NE(hex.find("\n00000020  "), std::string::npos) << hex;
}

// Data that is ready does not extend the time: the client is stopped until the deadline has passed.
TEST(Show, TheDeadlineHoldsEvenIfTheWholeAnswerHasArrived) {
    const Directory directory;
    const auto &bundle = reference::bundle_table("lumo_tarn_cl_debug_rsp");
    const auto &message = reference::message_table(bundle.message);
    const Socket listener = Socket::listen_on(directory.path("socket"));
    Process client({"show", "cl-debug", "--socket", directory.path("socket"), "--timeout", "1"});
    const Socket peer = listener.accept();
    client.signal(SIGSTOP);
    peer.send(answer(bundle, plain_payload(message, 1), false));
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
    client.signal(SIGCONT);
    const Outcome outcome = client.finish();
    EXPECT_EQ(outcome.exit, 3);
    EXPECT_EQ(outcome.out, "");
    EXPECT_NE(outcome.err.find("Connection timed out (ETIMEDOUT)"), std::string::npos) << outcome.err;
}

// The largest resident size of the processes that have ended, in KiB.
long largest_resident_kib() {
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    return used.ru_maxrss;
}

// The answer is 300 times as large as one of its frames.
TEST(Show, MemoryIsBoundedByTheLargestFrame) {
    // The address sanitizer must not keep what was released.
    setenv("ASAN_OPTIONS", "quarantine_size_mb=1", 0);
    const Directory directory;
    const auto &bundle = reference::bundle_table("lumo_tarn_dp_tt_cfg_rsp");
    const std::string one = tarn({"generate", "dp-tt-cfg", "--elements", "10", "--form", "frames"}).out;
    const auto show = [&](int messages) {
        const std::string path = directory.path("socket" + std::to_string(messages));
        const Socket listener = Socket::listen_on(path);
        Process client({"show", "dp-tt-cfg", "--json", "--socket", path, "--timeout", "600"});
        const Socket peer = listener.accept();
        peer.send(control(bundle, "start"));
        for (int i = 0; i < messages; ++i) peer.send(one);
        peer.send(control(bundle, "commit"));
        const Outcome outcome = client.finish();
        EXPECT_EQ(outcome.exit, 0) << outcome.err;
        EXPECT_EQ(occurrences(outcome.out, "\"lumo_tarn_dp_tt_msg\""), static_cast<std::size_t>(messages));
        return largest_resident_kib();
    };
    const long small = show(3);
    EXPECT_LE(show(300), small + 12 * 1024);
}

TEST(Show, ExactlyOneValidEndpointIsRequired) {
    const Directory directory;
    const std::string snapshot = "cl-debug=" + directory.write("debug.xml", debug_xml);
    for (const char *wrong : {"127.0.0.1:", "127.0.0.1:99999", "::1", "[::1"}) {
        EXPECT_EQ(tarn({"answer", "--listen", wrong, snapshot}).exit, 2) << wrong;
        EXPECT_EQ(tarn({"show", "cl-debug", "--connect", wrong}).exit, 2) << wrong;
    }
    EXPECT_EQ(tarn({"answer", snapshot}).exit, 2);
    EXPECT_EQ(tarn({"show", "cl-debug"}).exit, 2);
    EXPECT_EQ(tarn({"answer", "--listen", ":0", "--socket", directory.path("socket"), snapshot}).exit, 2);
    EXPECT_EQ(tarn({"show", "cl-debug", "--connect", ":1", "--socket", directory.path("socket")}).exit, 2);
}

TEST(Show, ConnectingToNoServerIsAnEnvironmentError) {
    const Directory directory;
    const Outcome outcome = tarn({"show", "cl-debug", "--socket", directory.path("nothing")});
    EXPECT_EQ(outcome.exit, 3);
    EXPECT_NE(outcome.err.find("cannot connect"), std::string::npos) << outcome.err;
}

TEST(Show, ASilentServerEndsTheRequestAtTheTimeout) {
    const Directory directory;
    const Server server({"--fault", "silent", "cl-debug=" + directory.write("debug.xml", debug_xml)});
    ASSERT_TRUE(server.is_ready());
    const Outcome outcome = server.show("cl-debug", {"--timeout", "0.3"});
    EXPECT_EQ(outcome.exit, 3);
    EXPECT_NE(outcome.err.find("ETIMEDOUT"), std::string::npos) << outcome.err;
}

TEST(Show, TwoProcessesDoNotShareASocket) {
    const Directory directory;
    const std::string snapshot = directory.write("debug.xml", debug_xml);
    const Server server({"cl-debug=" + snapshot});
    ASSERT_TRUE(server.is_ready());
    const Outcome second = tarn({"answer", "--socket", server.socket(), "cl-debug=" + snapshot});
    EXPECT_EQ(second.exit, 3);
    EXPECT_NE(second.err.find("EADDRINUSE"), std::string::npos) << second.err;
    EXPECT_EQ(server.show("cl-debug").exit, 0);
}

TEST(Show, FilesAreCheckedBeforeServingStarts) {
    const Directory directory;
    const std::string socket = directory.path("socket");
    const auto start = [&](const std::string &served) { return tarn({"answer", "--socket", socket, served}); };
    EXPECT_EQ(start("cl-debug=" + directory.path("absent.xml")).exit, 3);
    EXPECT_EQ(start("cl-debug").exit, 2);
    EXPECT_EQ(start("no-such-bundle=" + directory.write("debug.xml", debug_xml)).exit, 2);
    const Outcome foreign = start("dp-intf=" + directory.path("debug.xml"));
    EXPECT_EQ(foreign.exit, 2);
    EXPECT_NE(foreign.err.find("lumo_tarn_dp_intf_rsp does not admit lumo_tarn_debug_setting_msg"), std::string::npos)
        << foreign.err;
}

}  // namespace

}  // namespace tool_test
