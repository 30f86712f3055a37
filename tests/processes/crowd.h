// Clients of an answering process of which few behave: what a hostile network may send to it.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "../tools/process.h"

namespace tool_test {

// The answering process that they come to, with limits that are soon reached. It serves dp-tt-cfg with a message of
// some tens of kilobytes, so that few answers fill what a socket takes.
class Besieged {
public:
    explicit Besieged(const std::vector<std::string> &more = {});

    Server &server() { return server_; }
    const Server &server() const { return server_; }
    bool is_ready() const { return server_.is_ready(); }
    // The bytes of one answer.
    std::size_t answer_size() const { return answer_size_; }

private:
    Directory directory_;
    Server server_;
    std::size_t answer_size_;
};

// A hundred connections at once hold some ten MiB, which the allocator of the process gives back or keeps, as it falls
// out. More than that, and it has grown.
inline constexpr std::size_t allocator_play_kib = 16384;

// What the clients ask for.
std::string table_request();

// Rounds of clients, in one thread and with nothing random: each round does the same.
class Crowd {
public:
    Crowd(std::string socket, std::size_t answer_size) : socket_(std::move(socket)), answer_size_(answer_size) {}

    // Clients that ask and read; counted as answered if the whole answer comes.
    void ask(std::size_t clients);
    void send_rubbish(std::size_t clients);
    void vanish_within_a_frame(std::size_t clients);
    void send_too_long_a_frame(std::size_t clients);
    // Begin a frame and keep still.
    void stall(std::size_t clients);
    // Ask until the process has enough of them, and read nothing.
    void never_read(std::size_t clients);

    // Lets go of the oldest that still hang on, until no more than so many are left.
    void let_go(std::size_t left);
    // Waits until the process has closed every connection that hangs on.
    void wait_until_turned_out();

    std::uint64_t asked() const { return asked_; }
    std::uint64_t answered() const { return answered_; }
    std::uint64_t clients() const { return clients_; }

private:
    Socket connect();

    std::string socket_;
    std::size_t answer_size_;
    std::deque<Socket> hanging_on_;
    std::uint64_t asked_ = 0, answered_ = 0, clients_ = 0;
};

}  // namespace tool_test
