// Clients of an answering process, most of them hostile or faulty.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "../tools/process.h"

namespace tool_test {

// An answering process with low limits. It serves dp-tt-cfg with a message of some tens of kilobytes, so that few
// answers fill the buffer of a socket.
class LimitedServer {
public:
    explicit LimitedServer(const std::vector<std::string> &more = {});

    Server &server() { return server_; }
    const Server &server() const { return server_; }
    bool is_ready() const { return server_.is_ready(); }
    // The size of one answer in bytes.
    std::size_t answer_size() const { return answer_size_; }

private:
    Directory directory_;
    Server server_;
    std::size_t answer_size_;
};

// A hundred concurrent connections use about ten MiB, which the allocator of the process may keep or return to the
// system. More than this is memory growth.
inline constexpr std::size_t allocator_tolerance_kib = 16384;

// The request that the clients send.
std::string table_request();

// Rounds of clients, in one thread and without randomness, so all rounds are the same.
class Crowd {
public:
    Crowd(std::string socket, std::size_t answer_size) : socket_(std::move(socket)), answer_size_(answer_size) {}

    // Clients that send a request and read the answer. They count as answered if it is complete.
    void request(std::size_t clients);
    void send_garbage(std::size_t clients);
    void disconnect_within_a_frame(std::size_t clients);
    void send_a_long_frame(std::size_t clients);
    // Send a part of a frame and stay connected.
    void stall(std::size_t clients);
    // Send requests until the answers exceed the limit, and read nothing.
    void never_read(std::size_t clients);
    // Request unknown bundles, and read none of the refusals. Unlike answers, these take memory for each peer: in all
    // about half a megabyte.
    void never_read_refusals(std::size_t clients);
    // Waits until the server has begun to answer each open connection. None of them may read otherwise.
    void wait_for_answers() const;

    // Closes the oldest open connections until at most `left` are open.
    void close_oldest(std::size_t left);
    // Waits until the process has closed every open connection.
    void wait_until_disconnected();

    std::uint64_t requests() const { return requests_; }
    std::uint64_t answered() const { return answered_; }
    std::uint64_t clients() const { return clients_; }

private:
    Socket connect();

    std::string socket_;
    std::size_t answer_size_;
    std::deque<Socket> open_;
    std::uint64_t requests_ = 0, answered_ = 0, clients_ = 0;
};

}  // namespace tool_test
