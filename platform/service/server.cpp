// The server of the frame transport.
//
// platform/service/ moves frames over sockets and encodes requests for bundles. It may use asio and everything that
// platform/contract/ offers. It knows the header of a frame, its luid and total_length, and the request message, but no
// other message, no record and no bundle: callbacks of the program handle those. platform/contract/ does not use it.
//
// Connections and their acceptor work with any stream socket; only listening differs between socket files and TCP
// ports.
#include <sys/eventfd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <csignal>
#include <deque>
#include <optional>
#include <sstream>
#include <tuple>
#include <utility>

#include "platform/contract/handle.hpp"
#include "platform/contract/options.hpp"
#include "platform/service/inbox.hpp"
#include "platform/service/origin.hpp"
#include "platform/service/socket_file.hpp"
#include "platform/service/tcp_address.hpp"

using Socket = mirk::StreamProtocol::socket;
using LocalProtocol = asio::local::stream_protocol;
using Clock = std::chrono::steady_clock;

namespace {

class Connection;

// Why a peer should go before others when something runs out: those with the lowest rank go first, of these one from
// the origin whose claims weigh most, and of these the oldest.
struct Claim {
    unsigned rank;
    uint64_t weight;
    Clock::time_point since;
};

// A peer in its last callbacks, which may disconnect further peers.
struct Leaving {
    mirk_platform_peer peer;
    const mirk::Origin &origin;
    const Leaving *outer;
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
    void add_connection(Socket socket);
    void wait_for_stop();
    void stop_now();

    // Notifies the program that a peer exceeded a limit or could not be accepted.
    void notify_refused(mirk_platform_peer peer, const char *reason);
    std::shared_ptr<mirk::Origin> origin_of(Socket &socket);
    // Enforce the limits on memory and on peers, and the shares of an origin in both, by disconnecting peers.
    void make_room_for(const mirk::Chunk &chunk, const mirk::Origin &origin);
    // The new peer counts for its origin already. Returns an empty text, or the reason why there is no place.
    std::string make_place_for_peer_of(const mirk::Origin &origin);
    std::shared_ptr<Connection> first_to_go(std::optional<Claim> (Connection::*claim)(Clock::time_point now),
                                            const mirk::Origin *within);
    uint64_t total_pending_limit() const;
    uint64_t share_of(uint64_t limit) const;

    mirk_platform_server_options options;
    mirk::Held held;
    std::unordered_map<std::string, std::weak_ptr<mirk::Origin>> origins;  // of connected peers
    bool accepting = true;  // false between a failed accept and the next successful one
    asio::io_context context{1};
    asio::basic_socket_acceptor<mirk::StreamProtocol> acceptor{context};
    bool is_tcp = false;
    std::string endpoint_text;
    asio::steady_timer accept_retry{context};
    asio::posix::stream_descriptor stop_signal{context};
    int stop_fd = -1;
    std::optional<asio::signal_set> signals;
    mirk::SocketFile file;
    mirk_platform_peer last_peer = 0;
    std::unordered_map<mirk_platform_peer, std::shared_ptr<Connection>> connections;
    const Leaving *leaving = nullptr;
};

namespace {

// The deadline of a time limit that begins at `from`. A limit of 0 has no deadline.
Clock::time_point deadline_after(Clock::time_point from, uint32_t ms) {
    return ms == 0 ? Clock::time_point::max() : from + std::chrono::milliseconds(ms);
}

class Connection : public std::enable_shared_from_this<Connection> {
public:
    Connection(mirk_platform_server &server, mirk_platform_peer peer, Socket socket,
               std::shared_ptr<mirk::Origin> origin)
        : server_(server),
          peer_(peer),
          socket_(std::move(socket)),
          origin_(std::move(origin)),
          timer_(server.context),
          inbox_(server.options.frame_limit) {
        ++origin_->peers;
    }

    void start() {
        set_timer();
        read();
    }

    const mirk::Origin &origin() const { return *origin_; }

    mirk_platform_error send(const mirk::Chunk &chunk) {
        if (closed_ || disconnecting_) return ENOTCONN;
        if (chunk.size == 0) return 0;
        if (pending_ + chunk.size > server_.options.pending_limit) {
            refuse("it left too many bytes unread");
            return ENOBUFS;
        }
        server_.make_room_for(chunk, *origin_);
        if (closed_) return ENOBUFS;
        enqueue(chunk);
        if (queue_.size() == 1) {
            front_since_ = last_taken_ = Clock::now();
            is_full_ = reads_ = false;
            wait_to_write();
            set_timer();
        }
        return 0;
    }

    // A peer that does not read has to go first; then one that has not had the time to; then one that reads, or whose
    // socket is not full yet.
    std::optional<Claim> claim_on_memory(Clock::time_point now) {
        if (queue_.empty()) return std::nullopt;
        const unsigned rank = is_stalled(now) ? 0 : is_full_ && !reads_ ? 1 : 2;
        return Claim{rank, pending_, last_taken_};
    }
    // A silent peer has to go first, then one that does not read. Others keep their place.
    std::optional<Claim> claim_on_place(Clock::time_point now) {
        if (!queue_.empty()) return is_stalled(now) ? std::optional(Claim{1, 1, last_taken_}) : std::nullopt;
        asio::error_code ignored;
        if (socket_.available(ignored) != 0) return std::nullopt;  // its request has arrived
        return Claim{0, 1, last_moved_};
    }

    void disconnect_when_sent(const char *reason, uint32_t level = 7) {
        if (disconnecting_) return;
        disconnecting_ = true;
        disconnect_reason_ = reason;
        disconnect_level_ = level;
        if (queue_.empty()) close(level, reason);
    }

    // Disconnects a peer that exceeded a limit or sent something other than a frame.
    void refuse(const char *reason) { close(3, reason, true); }

    // Disconnects a peer that does nothing wrong but has to make place for another, or finds no place.
    void turn_away() {
        turn_away(queue_.empty() ? "silent while others waited for a place"
                                 : "did not read while others waited for a place");
    }
    void turn_away(const char *reason) {
        char frame[MIRK_PLATFORM_REQUEST_SIZE_MAX];
        const uint32_t size = mirk_platform_refusal_encode(frame, sizeof frame, 0, EUSERS, reason, nullptr);
        asio::error_code ignored;
        if (queue_.empty()) socket_.write_some(asio::buffer(frame, size), ignored);
        refuse(reason);
    }

    // Sends what the socket accepts without blocking, then closes.
    void stop() {
        asio::error_code error;
        while (!queue_.empty() && !error) write_some(error);
        close(7, "the server stops");
    }

    void close(uint32_t level, const char *reason, bool refused = false) {
        if (closed_) return;
        closed_ = true;
        // The connection may own `reason`.
        const auto self = shared_from_this();
        // Removed before any callback, which could otherwise send to this peer and exceed the limit again.
        const bool connected = server_.connections.erase(peer_) != 0;
        while (!queue_.empty()) pop_front();
        if (--origin_->peers == 0) server_.origins.erase(origin_->name);
        asio::error_code ignored;
        timer_.cancel();
        socket_.close(ignored);
        const Leaving now{peer_, *origin_, server_.leaving};
        const std::unique_ptr<const Leaving *, void (*)(const Leaving **)> until_the_end(
            &(server_.leaving = &now), [](const Leaving **innermost) { *innermost = (*innermost)->outer; });
        if (refused) server_.notify_refused(peer_, reason);
        skald_wrapper(mirk::trace_module(), level, 0, "%speer %llu is %s: %s",
                      level == 3 ? "(ERR): " : "(debug): ", static_cast<unsigned long long>(peer_),
                      connected ? "disconnected" : "refused", reason);
        if (connected && server_.options.on_disconnect != nullptr) {
            server_.options.on_disconnect(server_.options.user, &server_, peer_, reason);
        }
    }

private:
    // Runs one step. If it throws, as when memory runs out, only this connection is closed.
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
                                    self->protect([&] { self->on_read(error, count); });
                                });
    }

    void on_read(const asio::error_code &error, size_t count) {
        if (closed_) return;
        if (error == asio::error::eof) return on_end_of_input();
        if (error) return close(3, std::strerror(error.value()));
        last_moved_ = Clock::now();
        inbox_.received(count);
        void *frame = nullptr;
        uint32_t size = 0;
        while (!closed_ && !disconnecting_) {
            switch (inbox_.next(&frame, &size)) {
                case mirk::Inbox::Cut::frame:
                    frame_has_begun_ = false;
                    server_.options.on_frame(server_.options.user, &server_, peer_, frame, size);
                    break;
                case mirk::Inbox::Cut::more_needed:
                    if (!inbox_.empty() && !frame_has_begun_) {
                        frame_has_begun_ = true;
                        frame_since_ = last_moved_;
                        set_timer();
                    }
                    read();
                    return;
                case mirk::Inbox::Cut::bad:
                    refuse("it sent bytes that are not a frame");
                    return;
                case mirk::Inbox::Cut::too_long:
                    refuse("its frame exceeds the limit");
                    return;
            }
        }
    }

    // The peer may have closed only its sending side, so it still gets what is queued for it.
    void on_end_of_input() {
        frame_has_begun_ = false;
        if (inbox_.empty()) {
            disconnect_when_sent("it closed the connection");
        } else {
            disconnect_when_sent("it closed the connection within a frame", 3);
        }
    }

    // Has no effect if allocation fails.
    void enqueue(const mirk::Chunk &chunk) {
        queue_.push_back(chunk);
        try {
            server_.held.add(chunk);
            try {
                origin_->held.add(chunk);
            } catch (...) {
                server_.held.remove(chunk);
                throw;
            }
        } catch (...) {
            queue_.pop_back();
            throw;
        }
        pending_ += chunk.size;
    }

    void wait_to_write() {
        socket_.async_wait(Socket::wait_write, [self = shared_from_this()](const asio::error_code &error) {
            self->protect([&] { self->on_writable(error); });
        });
    }

    void on_writable(asio::error_code error) {
        if (closed_) return;
        // Until the socket is full, which shows whether the peer reads. The limit is more than a socket buffers, and so
        // little that other peers do not wait for long.
        for (size_t count = 0; count < most_at_once && !queue_.empty() && !error;) count += write_some(error);
        if (error && error != asio::error::would_block) return close(3, std::strerror(error.value()));
        if (!queue_.empty()) {
            wait_to_write();
        } else if (disconnecting_) {
            close(disconnect_level_, disconnect_reason_.c_str());
        }
    }

    size_t write_some(asio::error_code &error) {
        const mirk::Chunk &front = queue_.front();
        const size_t count =
            socket_.write_some(asio::buffer(front.bytes.get() + front_sent_, front.size - front_sent_), error);
        // Once the socket is full, it takes more only after the peer has read.
        if (is_full_ && count != 0) reads_ = true;
        is_full_ = count < front.size - front_sent_;
        if (count == 0) return 0;
        front_sent_ += count;
        last_taken_ = last_moved_ = Clock::now();
        if (!is_full_) pop_front();
        return count;
    }

    void pop_front() {
        const mirk::Chunk front = std::move(queue_.front());
        queue_.pop_front();
        pending_ -= front.size;
        server_.held.remove(front);
        origin_->held.remove(front);
        front_sent_ = 0;
        front_since_ = Clock::now();
    }

    static constexpr size_t most_at_once = size_t{8} << 20;

    bool is_stalled(Clock::time_point now) const {
        return now >= deadline_after(last_taken_, server_.options.stall_ms);
    }

    // When this peer exceeds a time limit unless it makes progress.
    Clock::time_point next_deadline() const {
        return std::min({deadline_after(last_moved_, server_.options.idle_ms), frame_deadline(), answer_deadline()});
    }
    Clock::time_point frame_deadline() const {
        return frame_has_begun_ ? deadline_after(frame_since_, server_.options.frame_ms) : Clock::time_point::max();
    }
    Clock::time_point answer_deadline() const {
        return queue_.empty() ? Clock::time_point::max() : deadline_after(front_since_, server_.options.answer_ms);
    }

    // Sets the timer unless it expires early enough already. A timer that expires too early sets itself again.
    void set_timer() {
        const Clock::time_point end = next_deadline();
        if (closed_ || end >= timer_at_) return;
        timer_at_ = end;
        timer_.expires_at(end);
        timer_.async_wait([self = shared_from_this()](const asio::error_code &error) {
            if (error || self->closed_) return;
            self->protect([&] { self->on_timer(); });
        });
    }

    void on_timer() {
        timer_at_ = Clock::time_point::max();
        const Clock::time_point now = Clock::now();
        if (now >= frame_deadline()) {
            refuse("it took too long for one frame");
        } else if (now >= answer_deadline()) {
            refuse("it took too long to read an answer");
        } else if (now >= next_deadline()) {
            refuse("it was idle for too long");
        } else {
            set_timer();
        }
    }

    mirk_platform_server &server_;
    mirk_platform_peer peer_;
    Socket socket_;
    std::shared_ptr<mirk::Origin> origin_;
    asio::steady_timer timer_;
    Clock::time_point timer_at_ = Clock::time_point::max();
    mirk::Inbox inbox_;
    std::deque<mirk::Chunk> queue_;
    size_t front_sent_ = 0;
    uint64_t pending_ = 0;  // bytes of the queue
    bool is_full_ = false;  // whether the socket has not taken the whole front
    bool reads_ = false;    // whether the peer has made room in a full socket
    Clock::time_point last_taken_;
    Clock::time_point last_moved_ = Clock::now();
    Clock::time_point frame_since_, front_since_;
    bool frame_has_begun_ = false;
    bool closed_ = false;
    bool disconnecting_ = false;
    std::string disconnect_reason_;
    uint32_t disconnect_level_ = 7;
};

}  // namespace

mirk_platform_server::~mirk_platform_server() { connections.clear(); }

mirk_platform_error mirk_platform_server::prepare_stop() {
    stop_fd = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (stop_fd < 0) return static_cast<mirk_platform_error>(errno);
    stop_signal.assign(stop_fd);
    return 0;
}

mirk_platform_error mirk_platform_server::listen_on_file(const char *path) {
    // The system would choose an abstract address, which has no access rights.
    if (*path == 0) return EINVAL;
    if (const mirk_platform_error error = file.reserve(path); error != 0) return error;
    const LocalProtocol::endpoint endpoint(path);
    asio::error_code error;
    acceptor.open(endpoint.protocol(), error);
    // Binding gives the file the mode of the socket without the bits of the umask, so it never has wider access rights.
    if (!error && ::fchmod(acceptor.native_handle(), options.socket_mode) != 0) {
        return static_cast<mirk_platform_error>(errno);
    }
    if (!error) acceptor.bind(endpoint, error);
    if (!error) {
        endpoint_text = path;
        if (const mirk_platform_error failed = file.bound(options.socket_mode); failed != 0) return failed;
        acceptor.listen(asio::socket_base::max_listen_connections, error);
    }
    return number_of(error);
}

// Address reuse permits a port that a previous server has just released, but not one that another process listens on.
mirk_platform_error mirk_platform_server::listen_on_tcp(const char *address) {
    std::vector<mirk::StreamProtocol::endpoint> endpoints;
    const mirk_platform_error unresolved = mirk::resolve_tcp_address(context, address, &endpoints);
    if (unresolved != 0) return unresolved;
    asio::error_code error;
    acceptor.open(endpoints.front().protocol(), error);
    if (!error) acceptor.set_option(asio::socket_base::reuse_address(true), error);
    if (!error) acceptor.bind(endpoints.front(), error);
    if (!error) acceptor.listen(asio::socket_base::max_listen_connections, error);
    if (error) return number_of(error);
    const mirk::StreamProtocol::endpoint bound = acceptor.local_endpoint();
    asio::ip::tcp::endpoint numbers;
    numbers.resize(bound.size());
    std::memcpy(numbers.data(), bound.data(), bound.size());
    std::ostringstream text;
    text << numbers;
    endpoint_text = text.str();
    is_tcp = true;
    return 0;
}

void mirk_platform_server::notify_refused(mirk_platform_peer peer, const char *reason) {
    if (options.on_refused != nullptr) options.on_refused(options.user, this, peer, reason);
}

std::shared_ptr<mirk::Origin> mirk_platform_server::origin_of(Socket &socket) {
    const std::string name = mirk::origin_name(socket, is_tcp);
    auto &known = origins[name];
    std::shared_ptr<mirk::Origin> origin = known.lock();
    if (origin == nullptr) known = origin = std::make_shared<mirk::Origin>(mirk::Origin{name, 0, {}});
    return origin;
}

uint64_t mirk_platform_server::share_of(uint64_t limit) const {
    return options.origin_share < 100 ? limit / 100 * options.origin_share + limit % 100 * options.origin_share / 100
                                      : limit;
}

uint64_t mirk_platform_server::total_pending_limit() const {
    return std::max(options.total_pending_limit, options.pending_limit + mirk::Held::entry_cost);
}

std::shared_ptr<Connection> mirk_platform_server::first_to_go(
    std::optional<Claim> (Connection::*claim)(Clock::time_point now), const mirk::Origin *within) {
    std::vector<std::pair<std::shared_ptr<Connection>, Claim>> claims;
    unsigned lowest = UINT_MAX;
    const Clock::time_point now = Clock::now();
    for (const auto &[peer, connection] : connections) {
        if (within != nullptr && &connection->origin() != within) continue;
        const std::optional<Claim> made = ((*connection).*claim)(now);
        if (!made) continue;
        claims.emplace_back(connection, *made);
        lowest = std::min(lowest, made->rank);
    }
    std::unordered_map<const mirk::Origin *, uint64_t> weights;
    for (const auto &[connection, made] : claims) {
        if (made.rank == lowest) weights[&connection->origin()] += made.weight;
    }
    const auto first = std::min_element(claims.begin(), claims.end(), [&](const auto &a, const auto &b) {
        const auto order = [&](const auto &one) {
            return std::tuple(one.second.rank, ~weights[&one.first->origin()], one.second.since);
        };
        return order(a) < order(b);
    });
    return first != claims.end() ? first->first : nullptr;
}

void mirk_platform_server::make_room_for(const mirk::Chunk &chunk, const mirk::Origin &origin) {
    const uint64_t limit = total_pending_limit();
    const uint64_t share = std::max(share_of(limit), options.pending_limit + mirk::Held::entry_cost);
    for (;;) {
        const bool all_exceed = held.bytes() + held.cost(chunk) > limit;
        if (!all_exceed && origin.held.bytes() + origin.held.cost(chunk) <= share) return;
        const auto connection = first_to_go(&Connection::claim_on_memory, all_exceed ? nullptr : &origin);
        if (connection == nullptr) return;
        connection->refuse(all_exceed ? "all peers left too many bytes unread, and this one reads slowest"
                                      : "peers of its origin left too many bytes unread, and this one reads slowest");
    }
}

std::string mirk_platform_server::make_place_for_peer_of(const mirk::Origin &origin) {
    const bool all_exceed = connections.size() >= options.peer_limit;
    if (!all_exceed && origin.peers <= std::max(share_of(options.peer_limit), uint64_t{1})) return {};
    if (const auto connection = first_to_go(&Connection::claim_on_place, all_exceed ? nullptr : &origin)) {
        connection->turn_away();
        return {};
    }
    return "there are " +
           (all_exceed ? std::to_string(connections.size()) + " peers"
                       : std::to_string(origin.peers - 1) + " peers of " + origin.name) +
           " already";
}

void mirk_platform_server::add_connection(Socket socket) {
    const mirk_platform_peer peer = ++last_peer;
    asio::error_code ignored;
    socket.non_blocking(true, ignored);
    if (is_tcp) mirk::set_no_delay(socket);
    const auto origin = origin_of(socket);
    const auto connection = std::make_shared<Connection>(*this, peer, std::move(socket), origin);
    const std::string reason = make_place_for_peer_of(*origin);
    if (!reason.empty()) return connection->turn_away(reason.c_str());
    connections.emplace(peer, connection);
    if (options.on_connect != nullptr) options.on_connect(options.user, this, peer);
    if (connections.contains(peer)) connection->start();
}

void mirk_platform_server::accept_next() {
    acceptor.async_accept([this](const asio::error_code &error, Socket socket) {
        if (error == asio::error::operation_aborted) return;
        if (error) {
            // Most likely out of descriptors, which become available again when peers disconnect.
            const char *reason = std::strerror(error.value());
            skald_wrapper(mirk::trace_module(), 3, 0, "(ERR): cannot accept a peer: %s", reason);
            if (std::exchange(accepting, false)) notify_refused(0, (std::string("cannot accept: ") + reason).c_str());
            accept_retry.expires_after(std::chrono::milliseconds(100));
            accept_retry.async_wait([this](const asio::error_code &ended) {
                if (!ended) accept_next();
            });
            return;
        }
        accepting = true;
        const mirk_platform_error failed = mirk::guarded([&]() -> mirk_platform_error {
            add_connection(std::move(socket));
            return 0;
        });
        if (failed != 0) {
            skald_wrapper(mirk::trace_module(), 3, 0, "(ERR): cannot accept a peer: %s",
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
    options.origin_share = 100;
    options.stall_ms = 1000;
    return options;
}

mirk_platform_error open_server(const char *address, mirk_platform_error (mirk_platform_server::*listen)(const char *),
                                const mirk_platform_server_options *chosen, mirk_platform_server **server) {
    if (address == nullptr || chosen == nullptr || server == nullptr) return EINVAL;
    const mirk_platform_server_options options = mirk::read_options(chosen, default_options());
    if (options.on_frame == nullptr) return EINVAL;
    return mirk::guarded([&]() -> mirk_platform_error {
        auto opened = std::make_unique<mirk_platform_server>(options);
        mirk_platform_error error = opened->prepare_stop();
        if (error == 0) error = (*opened.*listen)(address);
        if (error == 0) *server = opened.release();
        return error;
    });
}

template <typename MakeChunk>
mirk_platform_error send_chunk(mirk_platform_server *server, mirk_platform_peer peer, MakeChunk make_chunk) {
    return mirk::guarded([&]() -> mirk_platform_error {
        const auto found = server->connections.find(peer);
        if (found == server->connections.end()) return ENOTCONN;
        const auto connection = found->second;
        return connection->send(make_chunk());
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

const char *mirk_platform_server_place(const mirk_platform_server *server) { return server->endpoint_text.c_str(); }

mirk_platform_error mirk_platform_server_run(mirk_platform_server *server) {
    return mirk::guarded([&]() -> mirk_platform_error {
        server->accept_next();
        server->wait_for_stop();
        server->context.run();
        return 0;
    });
}

void mirk_platform_server_stop(mirk_platform_server *server) {
    // Only one write(), which is safe in a signal handler.
    const int kept = errno;
    const uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(server->stop_fd, &one, sizeof one);
    errno = kept;
}

mirk_platform_error mirk_platform_server_stop_on_signals(mirk_platform_server *server) {
    return mirk::guarded([&]() -> mirk_platform_error {
        server->signals.emplace(server->context, SIGINT, SIGTERM);
        server->signals->async_wait([server](const asio::error_code &error, int) {
            if (!error) server->stop_now();
        });
        return 0;
    });
}

mirk_platform_error mirk_platform_server_send(mirk_platform_server *server, mirk_platform_peer peer, const void *bytes,
                                              size_t size) {
    return send_chunk(server, peer, [&] {
        std::shared_ptr<char> copy(new char[size], std::default_delete<char[]>());
        std::memcpy(copy.get(), bytes, size);
        return mirk::Chunk{copy, size, false};
    });
}

mirk_platform_error mirk_platform_server_refuse(mirk_platform_server *server, mirk_platform_peer peer, uint32_t error,
                                                const char *sentence) {
    uint8_t frame[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    const uint32_t size = mirk_platform_refusal_encode(frame, sizeof frame, 0, error, sentence, nullptr);
    return mirk_platform_server_send(server, peer, frame, size);
}

mirk_platform_error mirk_platform_server_send_shared(mirk_platform_server *server, mirk_platform_peer peer,
                                                     const void *bytes, size_t size, mirk_platform_release release,
                                                     void *owner) {
    return mirk::guarded([&]() -> mirk_platform_error {
        // Calls `release` even if its own allocation fails.
        const std::shared_ptr<const char> shared(static_cast<const char *>(bytes),
                                                 [release, owner](const char *) { release(owner); });
        return send_chunk(server, peer, [&] { return mirk::Chunk{shared, size, true}; });
    });
}

const char *mirk_platform_server_origin(const mirk_platform_server *server, mirk_platform_peer peer) {
    const auto connected = server->connections.find(peer);
    if (connected != server->connections.end()) return connected->second->origin().name.c_str();
    const Leaving *left = server->leaving;
    while (left != nullptr && left->peer != peer) left = left->outer;
    return left != nullptr ? left->origin.name.c_str() : nullptr;
}

void mirk_platform_server_disconnect(mirk_platform_server *server, mirk_platform_peer peer, const char *reason) {
    mirk::guarded([&]() -> mirk_platform_error {
        const auto found = server->connections.find(peer);
        if (found == server->connections.end()) return ENOTCONN;
        const auto connection = found->second;
        connection->disconnect_when_sent(reason != nullptr ? reason : "disconnected by the program");
        return 0;
    });
}

size_t mirk_platform_server_peers(mirk_platform_server *server) { return server->connections.size(); }

void mirk_platform_server_close(mirk_platform_server *server) { delete server; }

}  // extern "C"
