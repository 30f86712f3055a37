// ask() and server: bundles between two threads, refusals, faults of either side.
#include <lumo_ui_tarn/exchange.hpp>

#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <thread>

#include "tests/cpp/usage_support.h"

namespace {

using namespace lumo_ui_tarn;
using usage::expect_error;
using namespace std::chrono_literals;

// A folder for sockets, removed at the end.
class Folder {
public:
    Folder() {
        std::string name = std::filesystem::temp_directory_path() / "exchange.XXXXXX";
        path_ = mkdtemp(name.data());
    }
    Folder(const Folder &) = delete;
    Folder &operator=(const Folder &) = delete;
    ~Folder() { std::filesystem::remove_all(path_); }
    std::string operator/(const char *name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

// A server that runs in a thread of its own until the end of the scope.
class Running {
public:
    Running(const std::string &address, answers known, const server_options &options = {})
        : server_(address, std::move(known), options), thread_([this] { server_.run(); }) {}
    Running(const Running &) = delete;
    Running &operator=(const Running &) = delete;
    ~Running() {
        server_.stop();
        thread_.join();
    }
    std::string address() const { return server_.address(); }

private:
    server server_;
    std::thread thread_;
};

void write_levels(bundle_writer<cl_debug_rsp> &answer) {
    debug_setting_msg levels(answer.context());
    levels.payload().set_warn_enabled(true);
    answer.add(levels).add(levels);
}

answers known_answers() {
    answers known;
    known.add<cl_debug_rsp>(write_levels);
    known.add<dp_tt_cfg_rsp>([](bundle_writer<dp_tt_cfg_rsp> &answer) { answer.abort(); });
    known.add<dp_intf_rsp>([](auto &) { throw std::system_error(EACCES, std::generic_category(), "not today\x1b"); });
    known.add<dp_appl_cfg_rsp>([](auto &) { throw std::runtime_error("lost"); });
    known.add<cl_cfg_rsp>([](bundle_writer<cl_cfg_rsp> &answer) { answer.context().fail(EBUSY); });
    known.add<cl_appl_cfg_rsp>([](auto &) { throw std::bad_alloc(); });
    known.add<pal_debug_rsp>([](auto &) { throw 5; });
    return known;
}

struct Exchange : testing::Test {
    Exchange() { mirk_platform_trace_set_levels(1); }

    template <class B>
    void expect_refusal(int number, const std::string &part) {
        try {
            (void)ask<B>(c, address);
            ADD_FAILURE() << "no error";
        } catch (const std::system_error &error) {
            EXPECT_EQ(error.code().value(), number) << error.what();
            EXPECT_NE(std::string(error.what()).find(part), std::string::npos) << error.what();
        }
    }

    Folder folder;
    std::string address = folder / "socket";
    handle h;
    context c{h};
};

TEST_F(Exchange, ABundleIsAskedForAndServed) {
    const Running running(address, known_answers());
    EXPECT_EQ(running.address(), address);
    for (int round = 0; round < 3; ++round) {
        const std::vector<debug_setting_msg> levels = ask<cl_debug_rsp>(c, address);
        ASSERT_EQ(levels.size(), 2u);
        EXPECT_TRUE(levels[1].payload().warn_enabled());
        EXPECT_EQ(levels[1].payload().warn_enabled_state(), std::nullopt);
    }
}

TEST_F(Exchange, ServeEndsWithASignal) {
    std::thread thread([&] { serve(address, known_answers()); });
    std::vector<debug_setting_msg> levels;
    while (levels.empty()) {
        try {
            levels = ask<cl_debug_rsp>(c, address);
        } catch (const std::system_error &) {  // it does not listen yet
            std::this_thread::sleep_for(1ms);
        }
    }
    // A peer is connected, so the server waits for signals already.
    std::raise(SIGTERM);
    thread.join();
    expect_error(std::errc::no_such_file_or_directory, [&] { (void)ask<cl_debug_rsp>(c, address); });
}

TEST_F(Exchange, AHandleThatTracksStateGetsState) {
    const Running running(address, known_answers());
    const handle tracking(MIRK_PLATFORM_TRACKING_ON);
    context tracked(tracking);
    const auto levels = ask<cl_debug_rsp>(tracked, address);
    ASSERT_EQ(levels.size(), 2u);
    EXPECT_EQ(levels[0].payload().warn_enabled_state(), 2);
    EXPECT_EQ(levels[0].payload().info_enabled_state(), 0);
}

TEST_F(Exchange, AnAddressWithoutASlashIsTcp) {
    const Running running("127.0.0.1:0", known_answers());
    EXPECT_EQ(running.address().find("127.0.0.1:"), 0u);
    EXPECT_EQ(ask<cl_debug_rsp>(c, running.address()).size(), 2u);
}

TEST_F(Exchange, RefusalsHaveANumberAndASentence) {
    const Running running(address, known_answers());
    expect_refusal<dp_intf_rsp>(EACCES, R"(refused: "not today\x1b: Permission denied")");
    expect_refusal<dp_appl_cfg_rsp>(EIO, "lost");
    expect_refusal<cl_cfg_rsp>(EBUSY, address);
    expect_refusal<cl_appl_cfg_rsp>(ENOMEM, "out of memory");
    expect_refusal<pal_debug_rsp>(EIO, "could not be written");
    expect_refusal<dp_debug_rsp>(ENOENT, "not served here");
    expect_refusal<dp_tt_cfg_rsp>(ECANCELED, "aborted");
    EXPECT_EQ(ask<cl_debug_rsp>(c, address).size(), 2u) << "the server goes on";
}

TEST_F(Exchange, AnswersWithKeptErrorsAreRefused) {
    server_options options;
    options.mode = errors::kept;
    answers known;
    known.add<cl_cfg_rsp>([](bundle_writer<cl_cfg_rsp> &answer) { answer.context().fail(EBUSY); });
    const Running running(address, known, options);
    expect_refusal<cl_cfg_rsp>(EBUSY, "could not be written");
}

TEST_F(Exchange, ErrorsOfConnectingHaveTheirNames) {
    expect_error(std::errc::no_such_file_or_directory, [&] { (void)ask<cl_debug_rsp>(c, address); });
    std::ofstream(folder / "file") << "text";
    expect_error(std::errc::connection_refused, [&] { (void)ask<cl_debug_rsp>(c, folder / "file"); });
    expect_error(std::errc::invalid_argument, [&] { (void)ask<cl_debug_rsp>(c, "127.0.0.1:many"); });
    expect_error(std::errc::invalid_argument, [&] { (void)ask<cl_debug_rsp>(c, address + '\0'); });
    expect_error(std::errc::invalid_argument, [&] { const server one(address + '\0', {}); });
    expect_error(std::errc::file_exists, [&] { const server one(folder / "file", {}); });
    const Running running(address, {});
    expect_error(std::errc::address_in_use, [&] { const server second(address, {}); });
    server_options kept;
    kept.mode = errors::kept;
    server second(address, {}, kept);
    EXPECT_EQ(second.error(), std::errc::address_in_use);
    EXPECT_EQ(second.address(), "");
    second.run();
    second.stop();
    EXPECT_EQ(serve(address, {}, kept), std::errc::address_in_use);
}

TEST_F(Exchange, KeptErrorsAreKept) {
    context kept(h, errors::kept);
    EXPECT_TRUE(ask<cl_debug_rsp>(kept, address).empty());
    EXPECT_EQ(kept.error(), std::errc::no_such_file_or_directory);
    const Running running(address, known_answers());
    EXPECT_TRUE(ask<cl_debug_rsp>(kept, address).empty()) << "until the error is taken";
    (void)kept.take_error();
    EXPECT_EQ(ask<cl_debug_rsp>(kept, address).size(), 2u);
    EXPECT_TRUE(ask<dp_debug_rsp>(kept, address).empty());
    EXPECT_EQ(kept.take_error(), std::errc::no_such_file_or_directory);
}

// A peer that sends these bytes to each who connects.
class Peer {
public:
    Peer(const std::string &path, frame bytes, bool closes) : bytes_(std::move(bytes)), closes_(closes) {
        mirk_platform_server_options options;
        mirk_platform_server_options_init(&options);
        options.user = this;
        options.on_frame = [](void *user, mirk_platform_server *s, mirk_platform_peer peer, void *, std::uint32_t) {
            const auto *self = static_cast<Peer *>(user);
            mirk_platform_server_send(s, peer, self->bytes_.data(), self->bytes_.size());
            if (self->closes_) mirk_platform_server_disconnect(s, peer, nullptr);
        };
        EXPECT_EQ(mirk_platform_server_open(path.c_str(), &options, &server_), 0u);
        thread_ = std::thread([this] { mirk_platform_server_run(server_); });
    }
    Peer(const Peer &) = delete;
    Peer &operator=(const Peer &) = delete;
    ~Peer() {
        mirk_platform_server_stop(server_);
        thread_.join();
        mirk_platform_server_close(server_);
    }

private:
    frame bytes_;
    bool closes_;
    mirk_platform_server *server_ = nullptr;
    std::thread thread_;
};

TEST_F(Exchange, FaultsOfThePeerHaveTheirNames) {
    bundle_writer<cl_debug_rsp> writer(c);
    writer.add(debug_setting_msg(c)).commit();
    const frame &whole = writer.frames();
    const auto expect = [&](std::errc expected, const frame &bytes, bool closes, ask_options options = {}) {
        const Peer peer(address, bytes, closes);
        expect_error(expected, [&] { (void)ask<cl_debug_rsp>(c, address, options); });
    };
    ask_options brief;
    brief.timeout = 100ms;
    expect(std::errc::timed_out, frame(whole.data(), whole.size() - 43), false, brief);
    expect(std::errc::connection_reset, frame(whole.data(), whole.size() - 43), true);
    expect(std::errc::connection_reset, frame(), true);
    expect(std::errc::bad_message, frame("garbage, garbage, garbage, garbage, garbage", 43), true);
    expect(std::errc::bad_message, frame(whole.data() + 43, whole.size() - 43), true);
    std::uint8_t request[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    const std::uint32_t size = mirk_platform_request_encode(request, sizeof request, 0, "bundle", 0, nullptr);
    expect(std::errc::bad_message, frame(request, size), true);
    ask_options small;
    small.limits.frame = 50;
    expect(std::errc::message_size, whole, true, small);
    small = {};
    small.limits.bundle = 50;
    expect(std::errc::message_size, whole, true, small);
    brief.timeout = 0ms;
    expect(std::errc::timed_out, whole, false, brief);
    const Peer peer(address, whole, true);
    EXPECT_EQ(ask<cl_debug_rsp>(c, address).size(), 1u);
}

TEST_F(Exchange, APeerThatSendsSomethingElseIsDisconnected) {
    const Running running(address, known_answers());
    mirk_platform_client *client = nullptr;
    ASSERT_EQ(mirk_platform_client_open(address.c_str(), 0, 10000, &client), 0u);
    const frame other = debug_setting_msg(c).to_frame();
    ASSERT_EQ(mirk_platform_client_send(client, other.data(), other.size(), 10000), 0u);
    void *bytes = nullptr;
    std::uint32_t size = 0;
    EXPECT_EQ(mirk_platform_client_receive(client, &bytes, &size, 10000), mirk_platform_error{ECONNRESET});
    mirk_platform_client_close(client);
}

TEST_F(Exchange, LimitsOfTheTransportHold) {
    server_options options;
    options.transport.peer_limit = 1;
    const Running running(address, known_answers(), options);
    mirk_platform_client *first = nullptr;
    ASSERT_EQ(mirk_platform_client_open(address.c_str(), 0, 10000, &first), 0u);
    std::uint8_t request[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    const std::uint32_t size = mirk_platform_request_encode(request, sizeof request, 0, "none", 0, nullptr);
    ASSERT_EQ(mirk_platform_client_send(first, request, size, 10000), 0u);
    void *bytes = nullptr;
    std::uint32_t length = 0;
    ASSERT_EQ(mirk_platform_client_receive(first, &bytes, &length, 10000), 0u) << "the first peer is connected";
    EXPECT_EQ(ask<cl_debug_rsp>(c, address).size(), 2u) << "a silent peer gives way";
    mirk_platform_client_close(first);
}

TEST_F(Exchange, AnswersAreWrittenWithinTheCeilingsOfTheHandle) {
    server_options options;
    options.handle.total_ceiling = 64;
    const Running running(address, known_answers(), options);
    expect_refusal<cl_debug_rsp>(ENOMEM, "refused");
}

}  // namespace
