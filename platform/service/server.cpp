// The serving side of the frame transport. Connections and their acceptor work on any stream socket; only listening
// tells a socket file from a TCP port.
#include <sys/eventfd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <deque>
#include <sstream>
#include <utility>

#include "platform/contract/handle.hpp"
#include "platform/contract/options.hpp"
#include "platform/service/inbox.hpp"
#include "platform/service/tcp_address.hpp"

using Socket = mirk::StreamProtocol::socket;
using LocalProtocol = asio::local::stream_protocol;
using Clock = std::chrono::steady_clock;

namespace {

class Connection;

// Removes the socket file that was bound, and no other that took its place.
struct SocketFile {
    std::string path;
    struct stat bound {};

    void remember() {
        if (::stat(path.c_str(), &bound) != 0) path.clear();
    }
    void remove() const {
        struct stat now {};
        if (path.empty() || ::stat(path.c_str(), &now) != 0) return;
        if (now.st_ino == bound.st_ino && now.st_dev == bound.st_dev) ::unlink(path.c_str());
    }
};

mirk_platform_error number_of(const asio::error_code &error) { return static_cast<mirk_platform_error>(error.value()); }

}  // namespace

struct mirk_platform_server {
    explicit mirk_platform_server(const mirk_platform_server_options &chosen) : options(chosen) {}
    ~mirk_platform_server();

    mirk_platform_error prepare_stop();
    mirk_platform_error listen_on_file(const char *path);
    mirk_platform_error listen_on_tcp(const char *address);
    void accept_next();
    void take_on(Socket socket);
    void wait_for_stop();
    void stop_now();

    // Tells the program that a limit was passed.
    void refused(mirk_platform_peer peer, const char *reason);
    // Makes room among what waits for all peers: whoever has the most is turned out, until the bytes fit.
    void make_room_for(size_t size);
    uint64_t total_pending_limit() const { return std::max(options.total_pending_limit, options.pending_limit); }

    mirk_platform_server_options options;
    uint64_t total_pending = 0;
    bool accepts = true;  // false from a failure to accept until it works again
    asio::io_context context{1};
    asio::basic_socket_acceptor<mirk::StreamProtocol> acceptor{context};
    bool is_tcp = false;
    std::string place;
    asio::steady_timer pause{context};
    asio::posix::stream_descriptor stop_signal{context};
    int stop_fd = -1;
    SocketFile file;
    mirk_platform_peer last_peer = 0;
    std::unordered_map<mirk_platform_peer, std::shared_ptr<Connection>> connections;
};

namespace {

// The end of a span that begins at a moment; a span of 0 has none.
Clock::time_point end_of(Clock::time_point from, uint32_t ms) {
    return ms == 0 ? Clock::time_point::max() : from + std::chrono::milliseconds(ms);
}

class Connection : public std::enable_shared_from_this<Connection> {
public:
    Connection(mirk_platform_server &server, mirk_platform_peer peer, Socket socket)
        : server_(server),
          peer_(peer),
          socket_(std::move(socket)),
          alarm_(server.context),
          inbox_(server.options.frame_limit) {}

    void start() {
        watch();
        read();
    }

    mirk_platform_error send(const void *bytes, size_t size) {
        if (closed_ || leaving_) return ENOTCONN;
        if (size == 0) return 0;
        if (pending_ + size > server_.options.pending_limit) {
            refuse("it lets too much pile up unread");
            return ENOBUFS;
        }
        server_.make_room_for(size);
        if (closed_) return ENOBUFS;
        const auto *from = static_cast<const char *>(bytes);
        queue_.emplace_back(from, from + size);
        pending_ += size;
        server_.total_pending += size;
        if (queue_.size() == 1) {
            front_since_ = Clock::now();
            write();
            watch();
        }
        return 0;
    }

    uint64_t pending() const { return pending_; }

    void leave(const char *reason) {
        leaving_ = true;
        leaving_reason_ = reason;
        if (queue_.empty()) close(7, reason);
    }

    // Closes because a limit is passed, or because what arrived is not a frame.
    void refuse(const char *reason) {
        if (closed_) return;
        const auto self = shared_from_this();
        server_.refused(peer_, reason);
        close(3, reason);
    }

    // Sends what the socket takes at once, then closes.
    void stop() {
        asio::error_code error;
        socket_.non_blocking(true, error);
        while (!queue_.empty() && !error) {
            written(socket_.write_some(front(), error));
        }
        close(7, "the server stops");
    }

    // `reason` is copied first: it may lie in something that goes away here.
    void close(uint32_t level, const char *reason) {
        if (closed_) return;
        closed_ = true;
        const auto self = shared_from_this();
        skald_wrapper(mirk::trace_module(), level, 0, "%speer %llu is disconnected: %s",
                      level == 3 ? "(ERR): " : "(debug): ", static_cast<unsigned long long>(peer_), reason);
        server_.connections.erase(peer_);
        server_.total_pending -= pending_;
        pending_ = 0;
        if (server_.options.on_disconnect != nullptr) {
            server_.options.on_disconnect(server_.options.user, &server_, peer_, reason);
        }
        asio::error_code ignored;
        alarm_.cancel();
        socket_.close(ignored);
    }

private:
    // Runs one step; a connection that runs out of memory ends alone.
    template <typename Step>
    void protect(Step step) noexcept {
        const mirk_platform_error error = mirk::guarded([&]() -> mirk_platform_error {
            step();
            return 0;
        });
        if (error == 0) return;
        mirk::guarded([&]() -> mirk_platform_error {
            close(3, std::strerror(static_cast<int>(error)));
            return 0;
        });
    }

    void read() {
        const auto [at, size] = inbox_.room();
        socket_.async_read_some(asio::buffer(at, size),
                                [self = shared_from_this()](const asio::error_code &error, size_t count) {
                                    self->protect([&] { self->arrived(error, count); });
                                });
    }

    void arrived(const asio::error_code &error, size_t count) {
        if (closed_) return;
        if (error) {
            const bool whole = inbox_.empty();
            if (error == asio::error::eof) {
                close(whole ? 7 : 3, whole ? "it closed the connection" : "it closed the connection within a frame");
            } else {
                close(3, std::strerror(error.value()));
            }
            return;
        }
        last_moved_ = Clock::now();
        inbox_.received(count);
        void *frame = nullptr;
        uint32_t size = 0;
        while (!closed_ && !leaving_) {
            switch (inbox_.next(&frame, &size)) {
                case mirk::Inbox::Cut::frame:
                    frame_is_begun_ = false;
                    server_.options.on_frame(server_.options.user, &server_, peer_, frame, size);
                    break;
                case mirk::Inbox::Cut::more_needed:
                    if (!inbox_.empty() && !frame_is_begun_) {
                        frame_is_begun_ = true;
                        frame_since_ = last_moved_;
                        watch();
                    }
                    read();
                    return;
                case mirk::Inbox::Cut::bad:
                    refuse("what it sent is no frame");
                    return;
                case mirk::Inbox::Cut::too_long:
                    refuse("its frame exceeds the limit");
                    return;
            }
        }
    }

    asio::const_buffer front() const {
        return asio::buffer(queue_.front().data() + front_sent_, queue_.front().size() - front_sent_);
    }

    void written(size_t count) {
        front_sent_ += count;
        pending_ -= count;
        server_.total_pending -= count;
        if (front_sent_ == queue_.front().size()) {
            queue_.pop_front();
            front_sent_ = 0;
            front_since_ = Clock::now();
        }
    }

    void write() {
        socket_.async_write_some(front(), [self = shared_from_this()](const asio::error_code &error, size_t count) {
            self->protect([&] {
                if (self->closed_) return;
                if (error) {
                    self->close(3, std::strerror(error.value()));
                    return;
                }
                self->last_moved_ = Clock::now();
                self->written(count);
                if (!self->queue_.empty()) {
                    self->write();
                } else if (self->leaving_) {
                    self->close(7, self->leaving_reason_.c_str());
                }
            });
        });
    }

    // When this peer will have taken too long, unless it moves.
    Clock::time_point patience() const {
        return std::min({end_of(last_moved_, server_.options.idle_ms), frame_end(), answer_end()});
    }
    Clock::time_point frame_end() const {
        return frame_is_begun_ ? end_of(frame_since_, server_.options.frame_ms) : Clock::time_point::max();
    }
    Clock::time_point answer_end() const {
        return queue_.empty() ? Clock::time_point::max() : end_of(front_since_, server_.options.answer_ms);
    }

    // Sets the alarm, unless it rings early enough already; one that rings too early sets itself again.
    void watch() {
        const Clock::time_point end = patience();
        if (closed_ || end >= alarm_at_) return;
        alarm_at_ = end;
        alarm_.expires_at(end);
        alarm_.async_wait([self = shared_from_this()](const asio::error_code &error) {
            if (error || self->closed_) return;
            self->protect([&] { self->rung(); });
        });
    }

    void rung() {
        alarm_at_ = Clock::time_point::max();
        const Clock::time_point now = Clock::now();
        if (now >= frame_end()) {
            refuse("it took too long for one frame");
        } else if (now >= answer_end()) {
            refuse("it took too long to read an answer");
        } else if (now >= patience()) {
            refuse("it was idle for too long");
        } else {
            watch();
        }
    }

    mirk_platform_server &server_;
    mirk_platform_peer peer_;
    Socket socket_;
    asio::steady_timer alarm_;
    Clock::time_point alarm_at_ = Clock::time_point::max();
    mirk::Inbox inbox_;
    std::deque<std::vector<char>> queue_;
    size_t front_sent_ = 0;
    uint64_t pending_ = 0;
    Clock::time_point last_moved_ = Clock::now();
    Clock::time_point frame_since_, front_since_;
    bool frame_is_begun_ = false;
    bool closed_ = false;
    bool leaving_ = false;
    std::string leaving_reason_;
};

// Makes way for a socket file: one that nobody listens on any more is removed.
mirk_platform_error make_way(asio::io_context &context, const char *path, const LocalProtocol::endpoint &endpoint) {
    struct stat there {};
    if (::lstat(path, &there) != 0) return errno == ENOENT ? 0 : static_cast<mirk_platform_error>(errno);
    if (!S_ISSOCK(there.st_mode)) return EEXIST;
    LocalProtocol::socket probe(context);
    asio::error_code error;
    probe.connect(endpoint, error);
    if (error != asio::error::connection_refused) return EADDRINUSE;
    return ::unlink(path) == 0 ? 0 : static_cast<mirk_platform_error>(errno);
}

}  // namespace

mirk_platform_server::~mirk_platform_server() {
    connections.clear();
    file.remove();
}

mirk_platform_error mirk_platform_server::prepare_stop() {
    stop_fd = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (stop_fd < 0) return static_cast<mirk_platform_error>(errno);
    stop_signal.assign(stop_fd);
    return 0;
}

mirk_platform_error mirk_platform_server::listen_on_file(const char *path) {
    if (std::strlen(path) >= sizeof(sockaddr_un::sun_path)) return ENAMETOOLONG;
    const LocalProtocol::endpoint endpoint(path);
    if (const mirk_platform_error error = make_way(context, path, endpoint); error != 0) return error;
    asio::error_code error;
    acceptor.open(endpoint.protocol(), error);
    // The rights of the socket become those of its file, so that it is never open to more.
    if (!error && ::fchmod(acceptor.native_handle(), options.socket_mode) != 0) {
        return static_cast<mirk_platform_error>(errno);
    }
    if (!error) acceptor.bind(endpoint, error);
    if (!error) {
        place = path;
        file.path = path;
        file.remember();
        acceptor.listen(asio::socket_base::max_listen_connections, error);
    }
    return number_of(error);
}

// A port that a former server has just left may be taken again; one that is listened on may not.
mirk_platform_error mirk_platform_server::listen_on_tcp(const char *address) {
    std::vector<mirk::StreamProtocol::endpoint> places;
    const mirk_platform_error unknown = mirk::resolve_tcp_address(context, address, &places);
    if (unknown != 0) return unknown;
    asio::error_code error;
    acceptor.open(places.front().protocol(), error);
    if (!error) acceptor.set_option(asio::socket_base::reuse_address(true), error);
    if (!error) acceptor.bind(places.front(), error);
    if (!error) acceptor.listen(asio::socket_base::max_listen_connections, error);
    if (error) return number_of(error);
    const mirk::StreamProtocol::endpoint bound = acceptor.local_endpoint();
    asio::ip::tcp::endpoint numbers;
    numbers.resize(bound.size());
    std::memcpy(numbers.data(), bound.data(), bound.size());
    std::ostringstream text;
    text << numbers;
    place = text.str();
    is_tcp = true;
    return 0;
}

void mirk_platform_server::refused(mirk_platform_peer peer, const char *reason) {
    if (options.on_refused != nullptr) options.on_refused(options.user, this, peer, reason);
}

void mirk_platform_server::make_room_for(size_t size) {
    while (!connections.empty() && total_pending + size > total_pending_limit()) {
        const auto most = std::max_element(connections.begin(), connections.end(), [](const auto &a, const auto &b) {
            return a.second->pending() < b.second->pending();
        });
        const auto connection = most->second;
        if (connection->pending() == 0) return;
        connection->refuse("too much piles up unread, and most of it is for this peer");
    }
}

void mirk_platform_server::take_on(Socket socket) {
    const mirk_platform_peer peer = ++last_peer;
    if (connections.size() >= options.peer_limit) {
        const std::string reason = "there are " + std::to_string(connections.size()) + " peers already";
        skald_wrapper(mirk::trace_module(), 3, 0, "(ERR): peer %llu is turned away: %s",
                      static_cast<unsigned long long>(peer), reason.c_str());
        refused(peer, reason.c_str());
        return;
    }
    if (is_tcp) mirk::send_at_once(socket);
    const auto connection = std::make_shared<Connection>(*this, peer, std::move(socket));
    connections.emplace(peer, connection);
    if (options.on_connect != nullptr) options.on_connect(options.user, this, peer);
    if (connections.contains(peer)) connection->start();
}

void mirk_platform_server::accept_next() {
    acceptor.async_accept([this](const asio::error_code &error, Socket socket) {
        if (error == asio::error::operation_aborted) return;
        if (error) {
            // Out of descriptors, most likely; they come back when peers leave.
            const char *reason = std::strerror(error.value());
            skald_wrapper(mirk::trace_module(), 3, 0, "(ERR): cannot accept a peer: %s", reason);
            if (std::exchange(accepts, false)) refused(0, (std::string("cannot accept: ") + reason).c_str());
            pause.expires_after(std::chrono::milliseconds(100));
            pause.async_wait([this](const asio::error_code &ended) {
                if (!ended) accept_next();
            });
            return;
        }
        accepts = true;
        const mirk_platform_error failed = mirk::guarded([&]() -> mirk_platform_error {
            take_on(std::move(socket));
            return 0;
        });
        if (failed != 0) {
            skald_wrapper(mirk::trace_module(), 3, 0, "(ERR): cannot take on a peer: %s",
                          std::strerror(static_cast<int>(failed)));
        }
        accept_next();
    });
}

void mirk_platform_server::wait_for_stop() {
    stop_signal.async_wait(asio::posix::stream_descriptor::wait_read, [this](const asio::error_code &error) {
        if (!error) stop_now();
    });
}

void mirk_platform_server::stop_now() {
    asio::error_code ignored;
    acceptor.close(ignored);
    while (!connections.empty()) {
        const auto connection = connections.begin()->second;
        connection->stop();
    }
    context.stop();
}

namespace {

mirk_platform_server_options default_options() {
    mirk_platform_server_options options{};
    options.frame_limit = mirk::default_frame_limit;
    options.peer_limit = 64;
    options.idle_ms = 60000;
    options.pending_limit = uint64_t{64} << 20;
    options.socket_mode = 0600;
    options.frame_ms = 10000;
    options.answer_ms = 60000;
    options.total_pending_limit = uint64_t{256} << 20;
    return options;
}

mirk_platform_error open_server(const char *place, mirk_platform_error (mirk_platform_server::*listen)(const char *),
                                const mirk_platform_server_options *chosen, mirk_platform_server **server) {
    if (place == nullptr || chosen == nullptr || server == nullptr) return EINVAL;
    const mirk_platform_server_options options = mirk::read_options(chosen, default_options());
    if (options.on_frame == nullptr) return EINVAL;
    return mirk::guarded([&]() -> mirk_platform_error {
        auto opened = std::make_unique<mirk_platform_server>(options);
        mirk_platform_error error = opened->prepare_stop();
        if (error == 0) error = (*opened.*listen)(place);
        if (error == 0) *server = opened.release();
        return error;
    });
}

}  // namespace

extern "C" {

void mirk_platform_server_options_init_sized(mirk_platform_server_options *options, size_t size) {
    mirk::initialize_options(options, size, default_options());
}

mirk_platform_error mirk_platform_server_open(const char *path, const mirk_platform_server_options *options,
                                              mirk_platform_server **server) {
    return open_server(path, &mirk_platform_server::listen_on_file, options, server);
}

mirk_platform_error mirk_platform_server_open_tcp(const char *address, const mirk_platform_server_options *options,
                                                  mirk_platform_server **server) {
    return open_server(address, &mirk_platform_server::listen_on_tcp, options, server);
}

const char *mirk_platform_server_place(const mirk_platform_server *server) { return server->place.c_str(); }

mirk_platform_error mirk_platform_server_run(mirk_platform_server *server) {
    return mirk::guarded([&]() -> mirk_platform_error {
        server->accept_next();
        server->wait_for_stop();
        server->context.run();
        return 0;
    });
}

void mirk_platform_server_stop(mirk_platform_server *server) {
    // One write of eight bytes: all that a signal handler may do.
    const int kept = errno;
    const uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(server->stop_fd, &one, sizeof one);
    errno = kept;
}

mirk_platform_error mirk_platform_server_send(mirk_platform_server *server, mirk_platform_peer peer, const void *bytes,
                                              size_t size) {
    return mirk::guarded([&]() -> mirk_platform_error {
        const auto found = server->connections.find(peer);
        if (found == server->connections.end()) return ENOTCONN;
        const auto connection = found->second;
        return connection->send(bytes, size);
    });
}

void mirk_platform_server_disconnect(mirk_platform_server *server, mirk_platform_peer peer, const char *reason) {
    mirk::guarded([&]() -> mirk_platform_error {
        const auto found = server->connections.find(peer);
        if (found == server->connections.end()) return ENOTCONN;
        const auto connection = found->second;
        connection->leave(reason != nullptr ? reason : "asked to leave");
        return 0;
    });
}

size_t mirk_platform_server_peers(mirk_platform_server *server) { return server->connections.size(); }

void mirk_platform_server_close(mirk_platform_server *server) { delete server; }

}  // extern "C"
