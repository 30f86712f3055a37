// The serving side of the frame transport. Connections and their acceptor work on any stream socket; only listening
// tells a socket file from a TCP port.
#include <sys/eventfd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <asio.hpp>
#include <chrono>
#include <deque>
#include <sstream>

#include "handle.hpp"
#include "inbox.hpp"
#include "tcp_address.hpp"

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
    void wait_for_stop();
    void stop_now();

    mirk_platform_server_options options;
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

class Connection : public std::enable_shared_from_this<Connection> {
public:
    Connection(mirk_platform_server &server, mirk_platform_peer peer, Socket socket)
        : server_(server),
          peer_(peer),
          socket_(std::move(socket)),
          idle_(server.context),
          inbox_(server.options.frame_limit) {}

    void start() {
        watch_idle();
        read();
    }

    mirk_platform_error send(const void *bytes, size_t size) {
        if (closed_ || leaving_) return ENOTCONN;
        if (size == 0) return 0;
        if (pending_ + size > server_.options.pending_limit) {
            close(3, "it lets too much pile up unread");
            return ENOBUFS;
        }
        const auto *from = static_cast<const char *>(bytes);
        queue_.emplace_back(from, from + size);
        pending_ += size;
        if (queue_.size() == 1) write();
        return 0;
    }

    void leave(const char *reason) {
        leaving_ = true;
        leaving_reason_ = reason;
        if (queue_.empty()) close(7, reason);
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
        if (server_.options.on_disconnect != nullptr) {
            server_.options.on_disconnect(server_.options.user, &server_, peer_, reason);
        }
        asio::error_code ignored;
        idle_.cancel();
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
                close(3, error.message().c_str());
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
                    server_.options.on_frame(server_.options.user, &server_, peer_, frame, size);
                    break;
                case mirk::Inbox::Cut::more_needed:
                    read();
                    return;
                case mirk::Inbox::Cut::bad:
                    close(3, "what it sent is no frame");
                    return;
                case mirk::Inbox::Cut::too_long:
                    close(3, "its frame exceeds the limit");
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
        if (front_sent_ == queue_.front().size()) {
            queue_.pop_front();
            front_sent_ = 0;
        }
    }

    void write() {
        socket_.async_write_some(front(), [self = shared_from_this()](const asio::error_code &error, size_t count) {
            self->protect([&] {
                if (self->closed_) return;
                if (error) {
                    self->close(3, error.message().c_str());
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

    void watch_idle() {
        if (server_.options.idle_ms == 0) return;
        idle_.expires_at(last_moved_ + std::chrono::milliseconds(server_.options.idle_ms));
        idle_.async_wait([self = shared_from_this()](const asio::error_code &error) {
            if (error || self->closed_) return;
            self->protect([&] {
                const auto idle = std::chrono::milliseconds(self->server_.options.idle_ms);
                if (Clock::now() >= self->last_moved_ + idle) {
                    self->close(3, "it was idle for too long");
                } else {
                    self->watch_idle();
                }
            });
        });
    }

    mirk_platform_server &server_;
    mirk_platform_peer peer_;
    Socket socket_;
    asio::steady_timer idle_;
    mirk::Inbox inbox_;
    std::deque<std::vector<char>> queue_;
    size_t front_sent_ = 0;
    uint64_t pending_ = 0;
    Clock::time_point last_moved_ = Clock::now();
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

void mirk_platform_server::accept_next() {
    acceptor.async_accept([this](const asio::error_code &error, Socket socket) {
        if (error == asio::error::operation_aborted) return;
        if (error) {
            // Out of descriptors, most likely; they come back when peers leave.
            skald_wrapper(mirk::trace_module(), 3, 0, "(ERR): cannot accept a peer: %s", error.message().c_str());
            pause.expires_after(std::chrono::milliseconds(100));
            pause.async_wait([this](const asio::error_code &ended) {
                if (!ended) accept_next();
            });
            return;
        }
        const mirk_platform_error failed = mirk::guarded([&]() -> mirk_platform_error {
            if (connections.size() >= options.peer_limit) {
                skald_wrapper(mirk::trace_module(), 3, 0, "(ERR): a peer is turned away: there are %zu already",
                              connections.size());
                return 0;
            }
            if (is_tcp) mirk::send_at_once(socket);
            const mirk_platform_peer peer = ++last_peer;
            const auto connection = std::make_shared<Connection>(*this, peer, std::move(socket));
            connections.emplace(peer, connection);
            if (options.on_connect != nullptr) options.on_connect(options.user, this, peer);
            if (connections.contains(peer)) connection->start();
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

mirk_platform_error open_server(const char *place, mirk_platform_error (mirk_platform_server::*listen)(const char *),
                                const mirk_platform_server_options *options, mirk_platform_server **server) {
    if (place == nullptr || options == nullptr || options->on_frame == nullptr || server == nullptr) return EINVAL;
    return mirk::guarded([&]() -> mirk_platform_error {
        auto opened = std::make_unique<mirk_platform_server>(*options);
        mirk_platform_error error = opened->prepare_stop();
        if (error == 0) error = (*opened.*listen)(place);
        if (error == 0) *server = opened.release();
        return error;
    });
}

}  // namespace

extern "C" {

void mirk_platform_server_options_init(mirk_platform_server_options *options) {
    *options = mirk_platform_server_options{};
    options->frame_limit = mirk::default_frame_limit;
    options->peer_limit = 64;
    options->idle_ms = 60000;
    options->pending_limit = uint64_t{64} << 20;
    options->socket_mode = 0600;
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
