// Peers of one server: the conversations of up to four connections with `tarn answer`, one step after the other.
//
// Without tight limits, each peer gets the complete answers to its requests, whatever the others do. In any case what
// it gets is the beginning of that, the server goes on, and it leaves no file open.
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <linux/sockios.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <deque>
#include <filesystem>
#include <fstream>
#include <optional>
#include <thread>

#include "pieces.h"
#include "reference/text.h"
#include "schema/frame.h"
#include "tool_target.h"
#include "tools/tarn/service/server.h"

namespace {

using namespace tarn::tool;
using fuzz::require;

constexpr unsigned few_bytes = 0, no_time = 1, verbose = 2;
constexpr int patience_ms = 20000;  // for what must happen

ServerOptions options_of(const fuzz::Choice &choice) {
    ServerOptions options;
    options.socket = fuzz::scratch_folder() + "/socket";
    options.verbose = choice.bit(verbose);
    if (choice.bit(few_bytes)) {
        options.peers = 4;
        options.share = 50;
        options.log_rate = 1;
        options.frame_limit = options.unread = options.unread_total = 1 << 10;
    }
    if (choice.bit(no_time)) options.idle = options.frame_time = options.answer_time = options.stall = 0.001;
    return options;
}

// Answers to requests for all bundles but the last.
struct AllButTheLast : Answerer {
    AllButTheLast() : Answerer(1 << 30) {
        const auto bundles = tarn::reflect::bundles();
        for (const auto &bundle : bundles.first(bundles.size() - 1)) {
            const std::string path = fuzz::scratch_folder() + "/" + std::string(bundle.bundle->name) + ".xml";
            const std::string message(bundle.bundle->message.name);
            const std::string &payload = reference::message_table(message).payload;
            std::ofstream(path) << reference::message_to_xml(message, fuzz::small_value(payload, true), false);
            add(bundle, path, false);
        }
    }
};

// That of the server, which only its thread uses.
Answerer &answerer() {
    static AllButTheLast all;
    return all;
}

std::span<std::uint8_t> stamp_of(std::span<std::uint8_t> frame) {
    constexpr std::size_t at = offset_of(tarn::schema::message_frame, "stamp");
    return frame.subspan(at, sizeof(std::uint32_t));
}

std::uint32_t length_of(std::span<const std::uint8_t> frame) {
    mirk_platform_frame seen;
    require(mirk_platform_frame_look(frame.data(), frame.size(), &seen) == 0, "a server sends frames");
    return seen.header.total_length;
}

// The next complete frame of a stream, with stamp 0, taken from its front.
std::optional<fuzz::Bytes> take_frame(fuzz::Bytes &stream) {
    if (stream.size() < MIRK_PLATFORM_FRAME_SIZE) return std::nullopt;
    const std::uint32_t length = length_of(stream);
    if (stream.size() < length) return std::nullopt;
    fuzz::Bytes frame(stream.begin(), stream.begin() + length);
    stream.erase(stream.begin(), stream.begin() + length);
    const auto stamp = stamp_of(frame);
    std::fill(stamp.begin(), stamp.end(), std::uint8_t{0});
    return frame;
}

// What a server sends next: a frame, or if it is empty, any refusal.
using Replies = std::deque<fuzz::Bytes>;

// The answer to a request. False: the bundle is not served.
bool add_answer(const tarn::reflect::BundleOperations &bundle, bool tracked, Replies &to) {
    static AllButTheLast expected;
    if (!expected.has(bundle)) return false;
    fuzz::Bytes answer = *expected.answer(bundle, tracked, Fault::none);
    while (const auto frame = take_frame(answer)) to.push_back(*frame);
    return true;
}

// The server in a thread. It stops on a signal, as the program does.
class Service {
public:
    explicit Service(const fuzz::Choice &choice)
        : options_(options_of(choice)),
          roomy_(!choice.bit(few_bytes) && !choice.bit(no_time)),
          server_(options_, answerer(), log_) {
        for (std::size_t i = 0; i < signals.size(); ++i) ::sigaction(signals[i], nullptr, &before_[i]);
        server_.open();
        thread_ = std::thread([this] { server_.run(); });
    }
    ~Service() {
        ::kill(::getpid(), SIGTERM);
        thread_.join();
        for (std::size_t i = 0; i < signals.size(); ++i) ::sigaction(signals[i], &before_[i], nullptr);
    }
    Service(const Service &) = delete;
    Service &operator=(const Service &) = delete;

    const ServerOptions &options() const { return options_; }
    // True without tight limits.
    bool is_roomy() const { return roomy_; }

private:
    static constexpr std::array signals{SIGINT, SIGTERM};

    ServerOptions options_;
    bool roomy_;
    Log log_;
    Server server_;
    std::thread thread_;
    struct sigaction before_[signals.size()] = {};
};

class Peer {
public:
    explicit Peer(const Service &service) : options_(service.options()), roomy_(service.is_roomy()) {}
    ~Peer() { hang_up(); }
    Peer(const Peer &) = delete;
    Peer &operator=(const Peer &) = delete;

    bool is_connected() const { return socket_ >= 0; }

    void connect() {
        socket_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        require(options_.socket.size() < sizeof address.sun_path, "the path of a socket is short");
        options_.socket.copy(address.sun_path, options_.socket.size());
        require(::connect(socket_, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0,
                "a server accepts connections");
    }

    // Sends what is left of earlier pieces and the first bytes of this one; the rest waits for the next.
    void send(std::span<const std::uint8_t> piece, std::size_t first = SIZE_MAX) {
        unsent_.insert(unsent_.end(), piece.begin(), piece.end());
        const std::size_t size = std::min(first, unsent_.size());
        if (!half_closed_ && size != 0) {
            const ssize_t count = ::send(socket_, unsent_.data(), size, MSG_NOSIGNAL);
            // The server may not be reading any more.
            const auto end = unsent_.begin() + std::max(count, ssize_t{0});
            sent_.insert(sent_.end(), unsent_.begin(), end);
            expect();
        }
        unsent_.erase(unsent_.begin(), unsent_.begin() + static_cast<std::ptrdiff_t>(size));
    }

    // Waits until the server has read everything or has disconnected this peer.
    void settle() const {
        for (int unread = 1; unread != 0;) {
            pollfd at{socket_, POLLIN, 0};
            if (::ioctl(socket_, SIOCOUTQ, &unread) != 0) return;
            if (unread == 0 || (::poll(&at, 1, 0) > 0 && (at.revents & (POLLHUP | POLLERR)) != 0)) return;
            std::this_thread::yield();
        }
    }

    // Reads what there is, up to some bytes. False: the server has closed the connection.
    bool read(std::size_t most = SIZE_MAX) {
        while (most != 0) {
            std::uint8_t part[4096];
            const ssize_t count = ::recv(socket_, part, std::min(most, sizeof part), 0);
            if (count < 0 && errno == EAGAIN) return true;
            if (count <= 0) return false;
            most -= static_cast<std::size_t>(count);
            received_.insert(received_.end(), part, part + count);
            check();
        }
        return true;
    }

    // Reads everything that is due.
    void read_all() {
        send({});
        if (abandoned_) return;
        while (!expected_.empty() || ends_ || half_closed_) {
            pollfd at{socket_, POLLIN, 0};
            require(::poll(&at, 1, patience_ms) == 1, "an answer arrives in time");
            if (read()) continue;
            require(expected_.empty(), "an answer is complete");
            return;
        }
        require(received_.empty(), "an answer is all that arrives");
    }

    void half_close() {
        if (half_closed_) return;
        send({});
        ::shutdown(socket_, SHUT_WR);
        half_closed_ = true;
    }

    void hang_up() {
        if (is_connected()) ::close(socket_);
        socket_ = -1;
        unsent_.clear();
        sent_.clear();
        received_.clear();
        expected_.clear();
        half_closed_ = ends_ = abandoned_ = false;
    }

    // True if the server owes this peer all that it expects.
    bool is_due() const { return is_connected() && !abandoned_; }

private:
    // Takes complete requests from the front of what was sent.
    void expect() {
        while (!ends_ && !abandoned_ && !sent_.empty()) {
            mirk_platform_frame seen;
            const mirk_platform_error error = mirk_platform_frame_look(sent_.data(), sent_.size(), &seen);
            const bool too_short = sent_.size() < MIRK_PLATFORM_FRAME_SIZE;
            if (too_short && sent_[0] == tarn::schema::frame_marker) return;
            // Not a frame: the peer is disconnected, even if an answer is still on its way.
            abandoned_ = error != 0 || seen.header.total_length > options_.frame_limit;
            if (abandoned_ || sent_.size() < seen.header.total_length) return;
            request(std::span(sent_).first(seen.header.total_length));
            sent_.erase(sent_.begin(), sent_.begin() + seen.header.total_length);
        }
    }

    void request(std::span<const std::uint8_t> frame) {
        mirk_platform_request request;
        const mirk_platform_error error = mirk_platform_request_decode(frame.data(), frame.size(), &request);
        ends_ = error != 0 || (request.options & MIRK_PLATFORM_REQUEST_REFUSED) != 0;
        const auto *bundle = ends_ ? nullptr : tarn::reflect::find_bundle(request.bundle);
        const bool tracked = (request.options & MIRK_PLATFORM_REQUEST_TRACKED) != 0;
        if (bundle == nullptr || !add_answer(*bundle, tracked, expected_)) expected_.emplace_back();
    }

    // Compares complete frames with what is expected.
    void check() {
        while (const auto frame = take_frame(received_)) {
            mirk_platform_request reply;
            const bool refused = mirk_platform_request_decode(frame->data(), frame->size(), &reply) == 0 &&
                                 (reply.options & MIRK_PLATFORM_REQUEST_REFUSED) != 0;
            // With tight limits a server may turn a peer away at any time, and tells it.
            if (!roomy_ && refused && (expected_.empty() || !expected_.front().empty())) {
                abandoned_ = true;
                expected_.clear();
                continue;
            }
            require(!expected_.empty(), "a server sends nothing unasked");
            require(refused || *frame == expected_.front(), "an answer is the one that was requested");
            expected_.pop_front();
        }
    }

    const ServerOptions &options_;
    bool roomy_;
    int socket_ = -1;
    fuzz::Bytes unsent_;
    fuzz::Bytes sent_, received_;  // not yet understood
    Replies expected_;
    bool half_closed_ = false;
    bool ends_ = false;       // the server disconnects it after what is expected
    bool abandoned_ = false;  // nothing is owed to it any more
};

std::size_t open_files() {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {}));
}

enum class Step : std::uint8_t { send, send_and_settle, send_in_two, read, read_all, half_close, hang_up };
constexpr std::uint8_t steps = 7, peers = 4;

void play(fuzz::Input &input, const Service &service) {
    std::deque<Peer> all;
    for (unsigned i = 0; i < peers; ++i) all.emplace_back(service);
    while (!input.empty()) {
        const std::uint8_t byte = input.u8();
        Peer &peer = all[byte % peers];
        const auto step = static_cast<Step>(byte / peers % steps);
        if (!peer.is_connected()) peer.connect();
        switch (step) {
            case Step::send:
            case Step::send_and_settle:
            case Step::send_in_two: {
                const fuzz::Bytes piece = fuzz::piece(input);
                peer.send(piece, step == Step::send_in_two ? input.u16() % (piece.size() + 1) : SIZE_MAX);
                if (step != Step::send) peer.settle();
                break;
            }
            case Step::read:
                peer.read(input.u8());
                break;
            case Step::read_all:
                if (service.is_roomy() && peer.is_due()) peer.read_all();
                break;
            case Step::half_close:
                peer.half_close();
                break;
            case Step::hang_up:
                peer.hang_up();
                break;
        }
    }
    for (Peer &peer : all) {
        if (service.is_roomy() && peer.is_due()) peer.read_all();
    }
}

// A peer that requests and reads. With tight limits it may be disconnected first; in any case the server runs.
void ask(const Service &service) {
    Peer peer(service);
    peer.connect();
    peer.send(fuzz::request_frame(0, true));
    peer.settle();
    if (service.is_roomy()) peer.read_all();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    fuzz::Input input = fuzz::tool_input(data, size);
    const fuzz::Choice choice(input.u8());
    answerer();
    const std::size_t before = open_files();
    {
        const Service service(choice);
        ask(service);
        play(input, service);
        ask(service);
    }
    require(open_files() == before, "a server closes what it opened");
    return 0;
}
