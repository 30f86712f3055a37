#include "crowd.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <utility>

#include "../tools/samples.h"

namespace tool_test {

namespace {

const char *const bundle = "lumo_tarn_dp_tt_cfg_rsp";

// The quarantine of the address sanitizer must not count as memory growth.
void limit_quarantine() {
    const char *set = std::getenv("ASAN_OPTIONS");
    setenv("ASAN_OPTIONS", ((set != nullptr ? std::string(set) + ":" : "") + "quarantine_size_mb=1").c_str(), 1);
}

std::vector<std::string> arguments_of(const Directory &directory, std::vector<std::string> more) {
    limit_quarantine();
    const Outcome tables = tarn({"generate", "dp-tt-cfg", "--elements", "10", "--form", "frames", "--seed", "1"});
    if (tables.exit != 0) throw std::runtime_error(tables.err);
    more.push_back("dp-tt-cfg=" + directory.write("tables.bin", tables.out));
    const std::vector<std::pair<const char *, const char *>> limits = {
        {"--frame-limit", "4KiB"}, {"--frame-time", "0.5"}, {"--unread", "512KiB"}, {"--answer-time", "5"}};
    for (const auto &[flag, value] : limits) {
        if (std::find(more.begin(), more.end(), flag) == more.end()) more.insert(more.end(), {flag, value});
    }
    return more;
}

}  // namespace

std::string table_request() { return request(bundle); }

LimitedServer::LimitedServer(const std::vector<std::string> &more)
    : server_(arguments_of(directory_, more)),
      answer_size_(directory_.read("tables.bin").size() +
                   2 * control(reference::bundle_table(bundle), "start").size()) {}

Socket Crowd::connect() {
    ++clients_;
    return Socket::connect_to(socket_);
}

void Crowd::request(std::size_t clients) {
    std::vector<Socket> sockets;
    for (std::size_t i = 0; i < clients; ++i) {
        sockets.push_back(connect());
        sockets.back().send(table_request());
    }
    for (const Socket &socket : sockets) answered_ += socket.receive(answer_size_).size() == answer_size_ ? 1 : 0;
    requests_ += clients;
}

void Crowd::send_garbage(std::size_t clients) {
    for (std::size_t i = 0; i < clients; ++i) connect().send(std::string(1 + 997 * i, static_cast<char>('a' + i % 26)));
}

void Crowd::disconnect_within_a_frame(std::size_t clients) {
    const std::string whole = table_request();
    for (std::size_t i = 0; i < clients; ++i)
        connect().send(std::string_view(whole).substr(0, 1 + i % (whole.size() - 1)));
}

void Crowd::send_a_long_frame(std::size_t clients) {
    std::string head = table_request();
    head[13] = 1;  // 64 KiB more than the frame has
    for (std::size_t i = 0; i < clients; ++i) {
        open_.push_back(connect());
        open_.back().send(head);
    }
}

void Crowd::stall(std::size_t clients) {
    const std::string whole = table_request();
    for (std::size_t i = 0; i < clients; ++i) {
        open_.push_back(connect());
        open_.back().send(std::string_view(whole).substr(0, 1 + i % (whole.size() - 1)));
    }
}

void Crowd::never_read(std::size_t clients) {
    // Twice the buffer of a socket and the limit on unread bytes.
    const std::size_t enough = (std::size_t{2} << 20) / answer_size_ + 1;
    std::string requests;
    for (std::size_t i = 0; i < enough; ++i) requests += table_request();
    for (std::size_t i = 0; i < clients; ++i) {
        open_.push_back(connect());
        open_.back().send(requests);
    }
}

void Crowd::never_read_refusals(std::size_t clients) {
    std::string requests;
    for (int i = 0; i < 3000; ++i) requests += tool_test::request("lumo_tarn_no_such_rsp");
    for (std::size_t i = 0; i < clients; ++i) {
        open_.push_back(connect());
        open_.back().send(requests);
    }
}

void Crowd::wait_for_answers() const {
    for (const Socket &socket : open_) socket.receive(1);
}

void Crowd::close_oldest(std::size_t left) {
    while (open_.size() > left) open_.pop_front();
}

void Crowd::wait_until_disconnected() {
    for (const Socket &socket : open_) socket.receive();
    open_.clear();
}

}  // namespace tool_test
