#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <future>
#include <thread>

#include "support.hpp"

namespace {

std::string frame(size_t length, char fill) {
    std::string bytes(length, fill);
    std::memset(bytes.data(), 0, 43);
    bytes[0] = static_cast<char>(0xbc);
    for (int i = 0; i < 4; ++i) bytes[12 + static_cast<size_t>(i)] = static_cast<char>(length >> (24 - 8 * i));
    return bytes;
}

// A server that returns every frame to its sender; runs on its own thread.
class Echo {
public:
    using OnFrame = decltype(mirk_platform_server_options::on_frame);

    explicit Echo(mirk_platform_server_options options = defaults(), OnFrame on_frame = echo) {
        path = "/tmp/mirk_transport_" + std::to_string(getpid()) + "_" + std::to_string(++number);
        options.on_frame = on_frame;
        options.on_disconnect = gone;
        options.user = this;
        EXPECT_EQ(mirk_platform_server_open(path.c_str(), &options, &server), 0u);
        thread = std::thread([this] { EXPECT_EQ(mirk_platform_server_run(server), 0u); });
    }
    ~Echo() { stop(); }

    void stop() {
        if (!thread.joinable()) return;
        mirk_platform_server_stop(server);
        thread.join();
        mirk_platform_server_close(server);
    }

    static mirk_platform_server_options defaults() {
        mirk_platform_server_options options;
        mirk_platform_server_options_init(&options);
        options.on_refused = refused;
        return options;
    }

    std::string path;
    std::vector<std::string> reasons, refusals;  // read them only after stop
    std::atomic<int> frames = 0, peers_gone = 0;
    mirk_platform_server *server = nullptr;

    static void echo(void *user, mirk_platform_server *server, mirk_platform_peer peer, void *bytes, uint32_t size) {
        static_cast<char *>(bytes)[size] = 'S';  // the guard byte is writable and not part of the next frame
        if (static_cast<char *>(bytes)[size - 1] == 'Q') {
            mirk_platform_server_send(server, peer, bytes, size);
            mirk_platform_server_disconnect(server, peer, "asked to");
            return;
        }
        mirk_platform_server_send(server, peer, bytes, size);
        ++static_cast<Echo *>(user)->frames;
    }

private:
    static void gone(void *user, mirk_platform_server *, mirk_platform_peer, const char *reason) {
        static_cast<Echo *>(user)->reasons.emplace_back(reason);
        ++static_cast<Echo *>(user)->peers_gone;
    }
    static void refused(void *user, mirk_platform_server *, mirk_platform_peer peer, const char *reason) {
        static_cast<Echo *>(user)->refusals.push_back(std::to_string(peer) + ": " + reason);
    }
    static inline int number = 0;
    std::thread thread;
};

void wait_for(const std::atomic<int> &count, int most) {
    while (count < most) std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

class Client {
public:
    explicit Client(const std::string &path, uint32_t limit = 0) {
        EXPECT_EQ(mirk_platform_client_open(path.c_str(), limit, 2000, &client), 0u);
    }
    ~Client() { mirk_platform_client_close(client); }

    void send(const std::string &bytes) {
        EXPECT_EQ(mirk_platform_client_send(client, bytes.data(), bytes.size(), 5000), 0u);
    }
    uint32_t receive(std::string *bytes, uint32_t timeout_ms = 5000) {
        void *at = nullptr;
        uint32_t size = 0;
        const uint32_t error = mirk_platform_client_receive(client, &at, &size, timeout_ms);
        if (error == 0) bytes->assign(static_cast<char *>(at), size);
        return error;
    }
    std::string next() {
        std::string bytes;
        const uint32_t error = receive(&bytes);
        return error == 0 ? bytes : strerrorname_np(static_cast<int>(error));
    }

    // The sentence of a refusal and the name of its error.
    std::string refusal() {
        const std::string bytes = next();
        mirk_platform_request reply;
        if (mirk_platform_request_decode(bytes.data(), bytes.size(), &reply) != 0) return "no refusal";
        return std::string(reply.sentence) + " (" + strerrorname_np(static_cast<int>(reply.number)) + ")";
    }

    mirk_platform_client *client = nullptr;
};

}  // namespace

TEST(Transport, SplitsFramesByTheirLength) {
    Echo echo;
    Client client(echo.path);
    const std::string a = frame(43, 'a'), b = frame(44, 'b'), c = frame(300000, 'c');
    client.send(a + b + c);
    EXPECT_EQ(client.next(), a);
    EXPECT_EQ(client.next(), b);
    EXPECT_EQ(client.next(), c);
}

TEST(Transport, JoinsFramesThatArriveInPieces) {
    Echo echo;
    Client client(echo.path);
    const std::string whole = frame(100, 'x');
    for (const char byte : whole) client.send(std::string(1, byte));
    EXPECT_EQ(client.next(), whole);
}

TEST(Transport, ServesManyPeers) {
    Echo echo;
    std::vector<std::unique_ptr<Client>> clients;
    for (char c = 'a'; c < 'u'; ++c) clients.push_back(std::make_unique<Client>(echo.path));
    for (size_t i = 0; i < clients.size(); ++i) clients[i]->send(frame(50 + i, static_cast<char>('a' + i)));
    for (size_t i = 0; i < clients.size(); ++i) {
        EXPECT_EQ(clients[i]->next(), frame(50 + i, static_cast<char>('a' + i)));
    }
}

TEST(Transport, DisconnectsPeersThatSendGarbageAndTracesTheReason) {
    test::Trace trace;
    Echo echo;
    std::string zero_length = frame(43, 0);
    zero_length[15] = 0;
    for (const std::string &garbage :
         {std::string("hello"), std::string(1, '\0'), zero_length, std::string(5000, 'z')}) {
        Client client(echo.path);
        client.send(garbage);
        EXPECT_EQ(client.next(), "ECONNRESET");
    }
    Client other(echo.path);
    other.send(frame(60, 'k'));
    EXPECT_EQ(other.next(), frame(60, 'k'));
    echo.stop();
    ASSERT_GE(echo.reasons.size(), 4u);
    EXPECT_EQ(echo.reasons[0], "it sent bytes that are not a frame");
    EXPECT_TRUE(trace.has(3, "is disconnected: it sent bytes that are not a frame"));
}

TEST(Transport, LimitsFramesOnBothSides) {
    auto options = Echo::defaults();
    options.frame_limit = 1000;
    test::Trace trace;
    Echo echo(options);
    Client client(echo.path);
    client.send(frame(1001, 'x').substr(0, 43));
    EXPECT_EQ(client.next(), "ECONNRESET");
    Client narrow(echo.path, 100);
    narrow.send(frame(101, 'y'));
    EXPECT_EQ(narrow.next(), "EMSGSIZE");
    echo.stop();
    ASSERT_FALSE(echo.reasons.empty());
    EXPECT_EQ(echo.reasons[0], "its frame exceeds the limit");
}

// A silent peer would have to make place, so the first one leaves a frame unread.
TEST(Transport, RefusesPeersBeyondTheLimit) {
    auto options = Echo::defaults();
    options.peer_limit = 1;
    options.stall_ms = 0;
    test::Trace trace;
    Echo echo(options);
    Client first(echo.path);
    first.send(frame(4000000, 'a'));
    wait_for(echo.frames, 1);
    Client second(echo.path);
    EXPECT_EQ(second.refusal(), "there are 1 peers already (EUSERS)");
    EXPECT_EQ(second.next(), "ECONNRESET");
    EXPECT_EQ(first.next(), frame(4000000, 'a'));
    EXPECT_TRUE(trace.has(3, "is refused: there are 1 peers already"));
}

TEST(Transport, TheOldestSilentPeerMakesPlace) {
    auto options = Echo::defaults();
    options.peer_limit = 2;
    test::Trace trace;
    Echo echo(options);
    Client first(echo.path), second(echo.path);
    for (Client *each : {&second, &first}) {
        each->send(frame(43, 'a'));
        EXPECT_EQ(each->next(), frame(43, 'a'));
    }
    Client third(echo.path);
    third.send(frame(43, 'c'));
    EXPECT_EQ(third.next(), frame(43, 'c'));
    EXPECT_EQ(second.refusal(), "silent while others waited for a place (EUSERS)");
    EXPECT_EQ(second.next(), "ECONNRESET");
    first.send(frame(43, 'f'));
    EXPECT_EQ(first.next(), frame(43, 'f'));
}

TEST(Transport, APeerThatDoesNotReadMakesPlaceIfNoneIsSilent) {
    auto options = Echo::defaults();
    options.peer_limit = 1;
    options.stall_ms = 1;
    test::Trace trace;
    Echo echo(options);
    Client first(echo.path);
    first.send(frame(4000000, 'a'));
    wait_for(echo.frames, 1);
    for (;;) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        Client second(echo.path);
        second.send(frame(43, 'b'));
        if (second.next() == frame(43, 'b')) break;
    }
    echo.stop();
    EXPECT_EQ(echo.refusals.back(), "1: did not read while others waited for a place");
}

TEST(Transport, DisconnectsIdlePeers) {
    auto options = Echo::defaults();
    options.idle_ms = 50;
    test::Trace trace;
    Echo echo(options);
    Client client(echo.path);
    EXPECT_EQ(client.next(), "ECONNRESET");
    echo.stop();
    ASSERT_EQ(echo.reasons.size(), 1u);
    EXPECT_EQ(echo.reasons[0], "it was idle for too long");
}

TEST(Transport, DisconnectsPeersThatDoNotRead) {
    auto options = Echo::defaults();
    options.pending_limit = 1 << 20;
    test::Trace trace;
    Echo echo(options);
    Client client(echo.path);
    const std::string big = frame(400000, 'x');
    for (int i = 0; i < 50; ++i) {
        if (mirk_platform_client_send(client.client, big.data(), big.size(), 2000) != 0) break;
    }
    echo.stop();
    ASSERT_EQ(echo.reasons.size(), 1u);
    EXPECT_EQ(echo.reasons[0], "it left too many bytes unread");
}

TEST(Transport, ReportsEachPeerThatExceededALimit) {
    test::Trace trace;
    auto options = Echo::defaults();
    options.peer_limit = 1;
    options.stall_ms = 0;
    options.frame_limit = 4000000;
    Echo echo(options);
    Client first(echo.path);
    first.send(frame(4000000, 'a'));
    wait_for(echo.frames, 1);
    Client second(echo.path);
    EXPECT_EQ(second.refusal(), "there are 1 peers already (EUSERS)");
    first.send(frame(4000001, 'x').substr(0, 43));
    EXPECT_EQ(first.next(), "ECONNRESET");
    echo.stop();
    EXPECT_EQ(echo.refusals,
              (std::vector<std::string>{"2: there are 1 peers already", "1: its frame exceeds the limit"}));
    EXPECT_EQ(echo.reasons, (std::vector<std::string>{"its frame exceeds the limit"}));
}

TEST(Transport, SendingToARefusedPeerIsEnotconn) {
    test::Trace trace;
    static std::vector<uint32_t> results;
    results.clear();
    auto options = Echo::defaults();
    options.pending_limit = 50;
    options.on_refused = [](void *, mirk_platform_server *server, mirk_platform_peer peer, const char *) {
        const std::string beyond_the_limit = frame(60, 'r');
        results.push_back(mirk_platform_server_send(server, peer, beyond_the_limit.data(), beyond_the_limit.size()));
    };
    Echo echo(options);
    for (const std::string &refused : {frame(60, 'a'), std::string(43, 'x')}) {
        Client client(echo.path);
        client.send(refused);
        EXPECT_EQ(client.next(), "ECONNRESET");
    }
    echo.stop();
    EXPECT_EQ(results, (std::vector<uint32_t>{ENOTCONN, ENOTCONN}));
    EXPECT_EQ(echo.reasons,
              (std::vector<std::string>{"it left too many bytes unread", "it sent bytes that are not a frame"}));
}

TEST(Transport, LimitsTheTimeForAFrame) {
    test::Trace trace;
    auto options = Echo::defaults();
    options.frame_ms = 50;
    Echo echo(options);
    Client silent(echo.path);
    Client client(echo.path);
    // Neither complete frames nor the time between them count.
    client.send(frame(60, 'a') + frame(60, 'b').substr(0, 20));
    EXPECT_EQ(client.next(), frame(60, 'a'));
    EXPECT_EQ(client.next(), "ECONNRESET");
    silent.send(frame(60, 'c'));
    EXPECT_EQ(silent.next(), frame(60, 'c'));
    echo.stop();
    EXPECT_EQ(echo.refusals, (std::vector<std::string>{"2: it took too long for one frame"}));
}

TEST(Transport, LimitsTheTimeToReadAnAnswer) {
    test::Trace trace;
    auto options = Echo::defaults();
    options.answer_ms = 50;
    Echo echo(options);
    Client client(echo.path);
    const std::string big = frame(4000000, 'x');
    client.send(big);
    wait_for(echo.peers_gone, 1);
    echo.stop();
    EXPECT_EQ(echo.refusals, (std::vector<std::string>{"1: it took too long to read an answer"}));
}

TEST(Transport, DisconnectsThePeerThatReadsSlowestIfMemoryRunsOut) {
    test::Trace trace;
    auto options = Echo::defaults();
    options.pending_limit = 3000000;
    options.total_pending_limit = 0;  // means pending_limit
    Echo echo(options);
    Client much(echo.path), little(echo.path), reads(echo.path);
    much.send(frame(2500000, 'm'));
    wait_for(echo.frames, 1);
    reads.send(frame(43, 'r'));
    EXPECT_EQ(reads.next(), frame(43, 'r'));
    little.send(frame(1500000, 'l'));
    EXPECT_EQ(little.next(), frame(1500000, 'l'));
    echo.stop();
    EXPECT_EQ(echo.refusals,
              (std::vector<std::string>{"1: all peers left too many bytes unread, and this one reads slowest"}));
}

TEST(Transport, CountsMemoryUntilTheWholeFrameIsSent) {
    test::Trace trace;
    auto options = Echo::defaults();
    options.pending_limit = 3000000;
    options.total_pending_limit = 4000000;
    Echo echo(options);
    Client first(echo.path), second(echo.path);
    // The socket takes a part of the frame, which stays in memory.
    first.send(frame(2000000, 'a'));
    wait_for(echo.frames, 1);
    second.send(frame(2000000, 'b'));
    wait_for(echo.frames, 2);
    echo.stop();
    EXPECT_EQ(echo.refusals,
              (std::vector<std::string>{"1: all peers left too many bytes unread, and this one reads slowest"}));
}

// Each peer is sent the same bytes instead of an echo.
TEST(Transport, SharedBytesCountOnceAndAreReleasedForEachPeer) {
    static const std::string shared = frame(2000000, 's');
    static std::atomic<int> sent, released;
    sent = released = 0;
    {
        auto options = Echo::defaults();
        options.pending_limit = 2000000;
        options.total_pending_limit = 2100000;
        Echo echo(options, [](void *, mirk_platform_server *server, mirk_platform_peer peer, void *, uint32_t) {
            EXPECT_EQ(mirk_platform_server_send_shared(
                          server, peer, shared.data(), shared.size(),
                          [](void *count) { ++*static_cast<std::atomic<int> *>(count); }, &released),
                      0u);
            ++sent;
        });
        std::vector<std::unique_ptr<Client>> clients;
        for (int i = 0; i < 5; ++i) {
            clients.push_back(std::make_unique<Client>(echo.path));
            clients.back()->send(frame(43, 'r'));
        }
        wait_for(sent, 5);
        EXPECT_EQ(clients[0]->next(), shared);
        EXPECT_EQ(clients[1]->next(), shared);
        clients[2].reset();
        wait_for(released, 3);
        echo.stop();
        EXPECT_EQ(echo.refusals, std::vector<std::string>{});
    }
    EXPECT_EQ(released, 5);
}

TEST(Transport, KnowsTheOriginOfPeersUntilTheirLastCallback) {
    static std::vector<std::string> origins;
    origins.clear();
    test::Trace trace;
    auto options = Echo::defaults();
    const auto note = [](mirk_platform_server *server, mirk_platform_peer peer) {
        const char *origin = mirk_platform_server_origin(server, peer);
        origins.emplace_back(origin != nullptr ? origin : "none");
    };
    static const auto add = note;
    options.on_connect = [](void *, mirk_platform_server *server, mirk_platform_peer peer) {
        add(server, peer);
        add(server, peer + 1);
    };
    options.on_refused = [](void *, mirk_platform_server *server, mirk_platform_peer peer, const char *) {
        add(server, peer);
    };
    Echo echo(options);
    {
        Client client(echo.path);
        client.send("garbage");
        EXPECT_EQ(client.next(), "ECONNRESET");
    }
    echo.stop();
    const std::string user = "user " + std::to_string(getuid());
    EXPECT_EQ(origins, (std::vector<std::string>{user, "none", user}));
}

TEST(Transport, AProgramWithFewerOptionsHasTheDefaultsOfTheOthers) {
    test::Trace trace;
    mirk_platform_server_options options;
    std::memset(&options, 0x5c, sizeof options);
    mirk_platform_server_options_init_sized(&options, offsetof(mirk_platform_server_options, frame_ms));
    EXPECT_EQ(options.socket_mode, 0600u);
    EXPECT_EQ(options.frame_ms, 0x5c5c5c5cu) << "the initializer wrote past the members that the program has";
    Echo echo(options);
    Client client(echo.path);
    client.send(std::string(43, 'x'));
    EXPECT_EQ(client.next(), "ECONNRESET");
    echo.stop();
    EXPECT_EQ(echo.reasons, (std::vector<std::string>{"it sent bytes that are not a frame"}));
    options.size = offsetof(mirk_platform_server_options, on_frame);
    mirk_platform_server *server = nullptr;
    EXPECT_EQ(mirk_platform_server_open(echo.path.c_str(), &options, &server), uint32_t{EINVAL});
}

TEST(Transport, SendsWhatIsQueuedBeforeADisconnect) {
    Echo echo;
    Client client(echo.path);
    const std::string last = frame(2000000, 'Q');
    client.send(last);
    EXPECT_EQ(client.next(), last);
    EXPECT_EQ(client.next(), "ECONNRESET");
}

TEST(Transport, ReceiveContinuesAfterATimeout) {
    Echo echo;
    Client client(echo.path);
    std::string bytes;
    EXPECT_EQ(client.receive(&bytes, 20), uint32_t{ETIMEDOUT});
    client.send(frame(70, 'l'));
    EXPECT_EQ(client.next(), frame(70, 'l'));
}

TEST(Transport, ConnectingWaitsForAPlaceInAFullQueue) {
    const std::string path = "/tmp/mirk_transport_full_" + std::to_string(getpid());
    sockaddr_un address{AF_UNIX, {}};
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    ASSERT_EQ(listen(listener, 0), 0);  // one place

    mirk_platform_client *first = nullptr, *second = nullptr;
    EXPECT_EQ(mirk_platform_client_open(path.c_str(), 0, 5000, &first), 0u);
    EXPECT_EQ(mirk_platform_client_open(path.c_str(), 0, 30, &second), uint32_t{ETIMEDOUT});
    EXPECT_EQ(second, nullptr);
    std::thread server([listener] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        close(accept(listener, nullptr, nullptr));
    });
    EXPECT_EQ(mirk_platform_client_open(path.c_str(), 0, 5000, &second), 0u);
    server.join();
    mirk_platform_client_close(first);
    mirk_platform_client_close(second);
    close(listener);
    unlink(path.c_str());
}

TEST(Transport, SendToAPeerThatDoesNotReadEndsAtTheTimeout) {
    const std::string path = "/tmp/mirk_transport_unread_" + std::to_string(getpid());
    sockaddr_un address{AF_UNIX, {}};
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    ASSERT_EQ(listen(listener, 4), 0);

    const std::string big = frame(8 << 20, 'x');
    std::vector<std::future<uint32_t>> results;
    for (const uint32_t timeout_ms : {0u, 1u, 50u}) {
        results.push_back(std::async(std::launch::async, [&big, &path, timeout_ms] {
            Client client(path);
            return mirk_platform_client_send(client.client, big.data(), big.size(), timeout_ms);
        }));
    }
    for (auto &result : results) EXPECT_EQ(result.wait_for(std::chrono::seconds(5)), std::future_status::ready);
    close(listener);  // disconnects the clients, so that a send that is still blocked fails
    for (auto &result : results) EXPECT_EQ(result.get(), static_cast<uint32_t>(ETIMEDOUT));
    unlink(path.c_str());
}

TEST(Transport, SendWithTimeoutZeroSendsWhatFits) {
    Echo echo;
    Client client(echo.path);
    const std::string whole = frame(30000, 'x');
    EXPECT_EQ(mirk_platform_client_send(client.client, whole.data(), whole.size(), 0), 0u);
    EXPECT_EQ(client.next(), whole);
}

TEST(Transport, StopEndsRunAndRemovesTheFile) {
    Echo echo;
    EXPECT_EQ(mirk_platform_server_place(echo.server), echo.path);
    Client client(echo.path);
    struct stat info {};
    ASSERT_EQ(stat(echo.path.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600u);
    echo.stop();
    EXPECT_NE(stat(echo.path.c_str(), &info), 0);
    EXPECT_EQ(client.next(), "ECONNRESET");
}

TEST(Transport, TheUmaskDoesNotChangeTheAccessRightsOfTheFile) {
    auto options = Echo::defaults();
    options.socket_mode = 0660;
    for (const mode_t mask : {mode_t{0}, mode_t{027}, mode_t{0777}}) {
        const mode_t before = umask(mask);
        const Echo echo(options);
        umask(before);
        struct stat info {};
        ASSERT_EQ(stat(echo.path.c_str(), &info), 0);
        EXPECT_EQ(info.st_mode & 0777, 0660u) << mask;
    }
}

TEST(Transport, RunReturnsIfStoppedBefore) {
    auto options = Echo::defaults();
    options.on_frame = [](void *, mirk_platform_server *, mirk_platform_peer, void *, uint32_t) {};
    mirk_platform_server *server = nullptr;
    const std::string path = "/tmp/mirk_transport_stop_" + std::to_string(getpid());
    ASSERT_EQ(mirk_platform_server_open(path.c_str(), &options, &server), 0u);
    mirk_platform_server_stop(server);
    EXPECT_EQ(mirk_platform_server_run(server), 0u);
    mirk_platform_server_close(server);
}

TEST(Transport, ReplacesOnlyAStaleSocketFile) {
    Echo echo;
    auto options = Echo::defaults();
    mirk_platform_server *server = nullptr;
    EXPECT_EQ(mirk_platform_server_open(echo.path.c_str(), &options, &server), uint32_t{EINVAL});
    options.on_frame = [](void *, mirk_platform_server *, mirk_platform_peer, void *, uint32_t) {};
    EXPECT_EQ(mirk_platform_server_open(echo.path.c_str(), &options, &server), uint32_t{EADDRINUSE});
    const std::string path = echo.path + "_stale";
    const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strcpy(address.sun_path, path.c_str());
    ASSERT_EQ(bind(fd, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    close(fd);
    EXPECT_EQ(mirk_platform_server_open(path.c_str(), &options, &server), 0u);
    mirk_platform_server_close(server);
    FILE *file = std::fopen(path.c_str(), "w");
    ASSERT_NE(file, nullptr);
    std::fclose(file);
    EXPECT_EQ(mirk_platform_server_open(path.c_str(), &options, &server), uint32_t{EEXIST});
    unlink(path.c_str());
    EXPECT_EQ(mirk_platform_server_open((path + std::string(200, 'x')).c_str(), &options, &server), 36u);
}

// The system would choose an abstract address, which any user can connect to.
TEST(Transport, AnEmptyPathIsAnError) {
    auto options = Echo::defaults();
    options.on_frame = [](void *, mirk_platform_server *, mirk_platform_peer, void *, uint32_t) {};
    mirk_platform_server *server = nullptr;
    EXPECT_EQ(mirk_platform_server_open("", &options, &server), uint32_t{EINVAL});
    EXPECT_EQ(server, nullptr);
    mirk_platform_client *client = nullptr;
    EXPECT_EQ(mirk_platform_client_open("", 0, 100, &client), uint32_t{EINVAL});
}

TEST(Transport, ConnectingWithoutAServerFails) {
    mirk_platform_client *client = nullptr;
    EXPECT_EQ(mirk_platform_client_open("/tmp/mirk_transport_nobody", 0, 100, &client), uint32_t{ENOENT});
}

namespace {

// The same over TCP, on a port that the system chooses.
class TcpEcho {
public:
    explicit TcpEcho(const char *address, mirk_platform_server_options options = Echo::defaults()) {
        options.on_refused = [](void *user, mirk_platform_server *, mirk_platform_peer peer, const char *reason) {
            static_cast<TcpEcho *>(user)->refusals.push_back(std::to_string(peer) + ": " + reason);
        };
        options.user = this;
        options.on_frame = [](void *, mirk_platform_server *from, mirk_platform_peer peer, void *bytes, uint32_t size) {
            mirk_platform_server_send(from, peer, bytes, size);
        };
        EXPECT_EQ(mirk_platform_server_open_tcp(address, &options, &server), 0u);
        const std::string endpoint = mirk_platform_server_place(server);
        port = endpoint.substr(endpoint.rfind(':') + 1);
        thread = std::thread([this] { EXPECT_EQ(mirk_platform_server_run(server), 0u); });
    }
    ~TcpEcho() { stop(); }

    void stop() {
        if (!thread.joinable()) return;
        mirk_platform_server_stop(server);
        thread.join();
        mirk_platform_server_close(server);
    }

    std::string port;
    std::vector<std::string> refusals;  // read them only after stop

private:
    mirk_platform_server *server = nullptr;
    std::thread thread;
};

// A peer with one of the addresses of this machine, which sends a frame and reads the first byte of the echo.
class PeerAt {
public:
    PeerAt(const char *address, const std::string &port, const std::string &bytes)
        : descriptor_(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in at{};
        at.sin_family = AF_INET;
        EXPECT_EQ(inet_pton(AF_INET, address, &at.sin_addr), 1);
        EXPECT_EQ(bind(descriptor_, reinterpret_cast<const sockaddr *>(&at), sizeof at), 0);
        at.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        at.sin_port = htons(static_cast<uint16_t>(std::stoi(port)));
        EXPECT_EQ(connect(descriptor_, reinterpret_cast<const sockaddr *>(&at), sizeof at), 0);
        EXPECT_EQ(::send(descriptor_, bytes.data(), bytes.size(), MSG_NOSIGNAL), static_cast<ssize_t>(bytes.size()));
        char first = 0;
        EXPECT_EQ(recv(descriptor_, &first, 1, 0), 1);
    }
    PeerAt(const PeerAt &) = delete;
    PeerAt &operator=(const PeerAt &) = delete;
    ~PeerAt() { close(descriptor_); }

private:
    int descriptor_;
};

uint32_t open_tcp(const std::string &address, mirk_platform_client **client) {
    return mirk_platform_client_open_tcp(address.c_str(), 0, 2000, client);
}

}  // namespace

TEST(Transport, CarriesFramesOverTcp) {
    const TcpEcho echo("127.0.0.1:0");
    ASSERT_NE(echo.port, "0");
    for (const char *host : {"127.0.0.1", "localhost", ""}) {
        mirk_platform_client *client = nullptr;
        ASSERT_EQ(open_tcp(host + (":" + echo.port), &client), 0u) << host;
        const std::string both = frame(43, 'a') + frame(300000, 'b');
        EXPECT_EQ(mirk_platform_client_send(client, both.data(), both.size(), 5000), 0u);
        for (const std::string &expected : {frame(43, 'a'), frame(300000, 'b')}) {
            void *at = nullptr;
            uint32_t size = 0;
            ASSERT_EQ(mirk_platform_client_receive(client, &at, &size, 5000), 0u);
            EXPECT_EQ(std::string(static_cast<char *>(at), size), expected);
        }
        mirk_platform_client_close(client);
    }
}

// TCP buffers less than half of a frame.
TEST(Transport, LimitsTheShareOfAnOriginInTheMemory) {
    test::Trace trace;
    auto options = Echo::defaults();
    options.frame_limit = 24u << 20;
    options.pending_limit = 24u << 20;
    options.total_pending_limit = uint64_t{100} << 20;
    options.origin_share = 25;
    TcpEcho echo("127.0.0.1:0", options);
    const std::string big = frame(24u << 20, 'x');
    {
        const PeerAt other("127.0.0.2", echo.port, big), first("127.0.0.1", echo.port, big),
            second("127.0.0.1", echo.port, big);
    }
    echo.stop();
    EXPECT_EQ(
        echo.refusals,
        (std::vector<std::string>{"2: peers of its origin left too many bytes unread, and this one reads slowest"}));
}

TEST(Transport, ATcpPortWithoutAHostIsLocal) {
    const TcpEcho echo(":0");
    mirk_platform_client *client = nullptr;
    EXPECT_EQ(open_tcp("127.0.0.1:" + echo.port, &client), 0u);
    mirk_platform_client_close(client);
    // Another address of this machine, at which a server on all addresses would be reachable.
    EXPECT_EQ(open_tcp("127.0.0.2:" + echo.port, &client), 111u);
}

TEST(Transport, TwoServersDoNotShareATcpPort) {
    const TcpEcho echo(":0");
    auto options = Echo::defaults();
    options.on_frame = [](void *, mirk_platform_server *, mirk_platform_peer, void *, uint32_t) {};
    mirk_platform_server *server = nullptr;
    EXPECT_EQ(mirk_platform_server_open_tcp((":" + echo.port).c_str(), &options, &server), uint32_t{EADDRINUSE});
}

TEST(Transport, RefusesTextThatIsNotATcpAddress) {
    auto options = Echo::defaults();
    options.on_frame = [](void *, mirk_platform_server *, mirk_platform_peer, void *, uint32_t) {};
    mirk_platform_server *server = nullptr;
    mirk_platform_client *client = nullptr;
    for (const char *text : {"127.0.0.1:", "127.0.0.1:x", "127.0.0.1:65536", "127.0.0.1:-1", "127.0.0.1:123456", "::1",
                             "[::1", "[]:1", "[::1]1", ":"}) {
        EXPECT_EQ(mirk_platform_server_open_tcp(text, &options, &server), uint32_t{EINVAL}) << text;
        EXPECT_EQ(open_tcp(text, &client), uint32_t{EINVAL}) << text;
    }
    EXPECT_EQ(mirk_platform_server_open_tcp("no such host:1", &options, &server), uint32_t{EADDRNOTAVAIL});
    EXPECT_EQ(mirk_platform_server_open_tcp("192.0.2.1:0", &options, &server),
              uint32_t{EADDRNOTAVAIL});  // reserved for documentation
    EXPECT_EQ(open_tcp("no such host:1", &client), uint32_t{EADDRNOTAVAIL});
    options.on_frame = nullptr;
    EXPECT_EQ(mirk_platform_server_open_tcp(":0", &options, &server), uint32_t{EINVAL});
}

TEST(Transport, SignalsStopAServerThatAsksForThem) {
    for (const int number : {SIGINT, SIGTERM}) {
        for (const bool runs_before : {false, true}) {
            mirk_platform_server_options options = Echo::defaults();
            options.on_frame = Echo::echo;
            mirk_platform_server *server = nullptr;
            const std::string path = "/tmp/mirk_transport_" + std::to_string(getpid()) + "_signals";
            ASSERT_EQ(mirk_platform_server_open(path.c_str(), &options, &server), 0u);
            ASSERT_EQ(mirk_platform_server_stop_on_signals(server), 0u);
            if (!runs_before) std::raise(number);
            std::thread thread([&] { EXPECT_EQ(mirk_platform_server_run(server), 0u); });
            if (runs_before) std::raise(number);
            thread.join();
            std::raise(number);  // has no effect until the server is closed
            mirk_platform_server_close(server);
            struct sigaction action {};
            ASSERT_EQ(sigaction(number, nullptr, &action), 0);
            EXPECT_EQ(action.sa_handler, SIG_DFL);
        }
    }
}

TEST(Transport, ARefusalIsSentLikeAFrame) {
    Echo echo(Echo::defaults(), [](void *, mirk_platform_server *server, mirk_platform_peer peer, void *, uint32_t) {
        EXPECT_EQ(mirk_platform_server_refuse(server, peer, EACCES, "not today"), 0u);
        EXPECT_EQ(mirk_platform_server_refuse(server, peer + 1, EACCES, nullptr), mirk_platform_error{ENOTCONN});
    });
    mirk_platform_client *client = nullptr;
    ASSERT_EQ(mirk_platform_client_open(echo.path.c_str(), 0, 10000, &client), 0u);
    const std::string request = frame(50, 'x');
    ASSERT_EQ(mirk_platform_client_send(client, request.data(), request.size(), 10000), 0u);
    void *bytes = nullptr;
    uint32_t size = 0;
    ASSERT_EQ(mirk_platform_client_receive(client, &bytes, &size, 10000), 0u);
    mirk_platform_request refusal;
    ASSERT_EQ(mirk_platform_request_decode(bytes, size, &refusal), 0u);
    EXPECT_EQ(refusal.options, MIRK_PLATFORM_REQUEST_REFUSED);
    EXPECT_EQ(refusal.number, uint32_t{EACCES});
    EXPECT_STREQ(refusal.sentence, "not today");
    mirk_platform_client_close(client);
}
