// The client of the frame transport: blocking calls with timeouts.
#include <chrono>
#include <thread>

#include "platform/contract/handle.hpp"
#include "platform/service/inbox.hpp"
#include "platform/service/tcp_address.hpp"

using LocalProtocol = asio::local::stream_protocol;
using Clock = std::chrono::steady_clock;

struct mirk_platform_client {
    explicit mirk_platform_client(uint32_t frame_limit) : inbox(frame_limit) {}

    asio::io_context context{1};
    mirk::StreamProtocol::socket socket{context};
    mirk::Inbox inbox;
};

namespace {

struct Outcome {
    asio::error_code error = asio::error::would_block;
    size_t moved = 0;

    mirk_platform_error number() const { return static_cast<mirk_platform_error>(error.value()); }
};

Clock::time_point deadline(uint32_t timeout_ms) { return Clock::now() + std::chrono::milliseconds(timeout_ms); }

// Waits for the pending operation and cancels it at the deadline. It may still complete successfully while it is being
// canceled.
void wait(mirk_platform_client &client, Clock::time_point until, Outcome *outcome) {
    client.context.restart();
    client.context.run_until(until);
    if (outcome->error != asio::error::would_block) return;
    asio::error_code ignored;
    client.socket.cancel(ignored);
    client.context.restart();
    client.context.run();
    if (outcome->error == asio::error::operation_aborted) outcome->error = asio::error::timed_out;
}

using Client = std::unique_ptr<mirk_platform_client>;

Client make_client(uint32_t frame_limit) {
    return std::make_unique<mirk_platform_client>(frame_limit != 0 ? frame_limit : mirk::default_frame_limit);
}

mirk_platform_error connect(mirk_platform_client &client, const mirk::StreamProtocol::endpoint &endpoint,
                            Clock::time_point until) {
    // Connecting to a socket file whose queue is full fails immediately, so it is retried until the deadline. Asio 1.30
    // reports success instead, but the socket has no peer.
    const bool is_local = endpoint.protocol().family() == AF_UNIX;
    for (;;) {
        Outcome outcome;
        client.socket.async_connect(endpoint, [&](const asio::error_code &error) { outcome.error = error; });
        wait(client, until, &outcome);
        asio::error_code no_peer;
        if (!outcome.error && is_local) client.socket.remote_endpoint(no_peer);
        const bool queue_is_full =
            no_peer || outcome.error == asio::error::would_block || outcome.error == asio::error::no_buffer_space;
        if (!queue_is_full) return outcome.number();
        if (Clock::now() >= until) return ETIMEDOUT;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

}  // namespace

extern "C" {

mirk_platform_error mirk_platform_client_open(const char *path, uint32_t frame_limit, uint32_t timeout_ms,
                                              mirk_platform_client **client) {
    if (path == nullptr || *path == 0 || client == nullptr) return EINVAL;
    return mirk::guarded([&]() -> mirk_platform_error {
        if (std::strlen(path) >= sizeof(sockaddr_un::sun_path)) return ENAMETOOLONG;
        Client opened = make_client(frame_limit);
        const mirk_platform_error error = connect(*opened, LocalProtocol::endpoint(path), deadline(timeout_ms));
        if (error == 0) *client = opened.release();
        return error;
    });
}

mirk_platform_error mirk_platform_client_open_tcp(const char *address, uint32_t frame_limit, uint32_t timeout_ms,
                                                  mirk_platform_client **client) {
    if (address == nullptr || client == nullptr) return EINVAL;
    return mirk::guarded([&]() -> mirk_platform_error {
        const Clock::time_point until = deadline(timeout_ms);
        Client opened = make_client(frame_limit);
        std::vector<mirk::StreamProtocol::endpoint> endpoints;
        mirk_platform_error error = mirk::resolve_tcp_address(opened->context, address, &endpoints);
        for (const auto &endpoint : endpoints) {
            asio::error_code ignored;
            opened->socket.close(ignored);
            error = connect(*opened, endpoint, until);
            if (error == 0) break;
        }
        if (error != 0) return error;
        mirk::set_no_delay(opened->socket);
        *client = opened.release();
        return 0;
    });
}

mirk_platform_error mirk_platform_client_send(mirk_platform_client *client, const void *bytes, size_t size,
                                              uint32_t timeout_ms) {
    return mirk::guarded([&]() -> mirk_platform_error {
        const Clock::time_point until = deadline(timeout_ms);
        // A write that starts after the deadline would not be canceled any more.
        const auto next_write_size = [&](const asio::error_code &error, size_t moved) {
            const bool expired = moved != 0 && Clock::now() >= until;
            return error || expired ? 0 : size;
        };
        Outcome outcome;
        asio::async_write(client->socket, asio::buffer(bytes, size), next_write_size,
                          [&](const asio::error_code &error, size_t moved) {
                              outcome = {error, moved};
                          });
        wait(*client, until, &outcome);
        if (!outcome.error && outcome.moved < size) return ETIMEDOUT;
        return outcome.number();
    });
}

mirk_platform_error mirk_platform_client_receive(mirk_platform_client *client, void **frame, uint32_t *size,
                                                 uint32_t timeout_ms) {
    return mirk::guarded([&]() -> mirk_platform_error {
        const Clock::time_point until = deadline(timeout_ms);
        for (;;) {
            switch (client->inbox.next(frame, size)) {
                case mirk::Inbox::Cut::frame:
                    return 0;
                case mirk::Inbox::Cut::bad:
                    return EBADMSG;
                case mirk::Inbox::Cut::too_long:
                    return EMSGSIZE;
                case mirk::Inbox::Cut::more_needed:
                    break;
            }
            // Without a timeout, what has arrived is still read.
            if (timeout_ms != 0 && Clock::now() >= until) return ETIMEDOUT;
            const auto [at, room] = client->inbox.room();
            Outcome outcome;
            client->socket.async_read_some(asio::buffer(at, room), [&](const asio::error_code &error, size_t moved) {
                outcome = {error, moved};
            });
            wait(*client, until, &outcome);
            if (outcome.error == asio::error::eof) return ECONNRESET;
            if (outcome.error) return outcome.number();
            client->inbox.received(outcome.moved);
        }
    });
}

void mirk_platform_client_close(mirk_platform_client *client) { delete client; }

}  // extern "C"
