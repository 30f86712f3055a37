// Serves bundles over a socket file or TCP.
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <string>

#include "mirk_platform.h"
#include "tools/tarn/service/answerer.h"
#include "tools/tarn/support/log.h"

namespace tarn::tool {

struct ServerOptions {
    std::string socket, listen;  // a socket file or a TCP address; the other is empty
    Fault fault = Fault::none;
    unsigned peers = 256;
    unsigned share = 100;                                            // percent of the peers and of unread_total
    unsigned log_rate = 100;                                         // lines per second; 0: no limit
    double idle = 60, frame_time = 10, answer_time = 60, stall = 1;  // seconds; 0: no limit
    std::uint64_t frame_limit = 64 << 10, unread = 64 << 20, unread_total = 256 << 20;
    bool verbose = false;
};

class Server {
public:
    Server(const ServerOptions &options, Answerer &answerer, Log &log)
        : options_(options), answerer_(answerer), log_(log) {}
    ~Server();
    Server(const Server &) = delete;
    Server &operator=(const Server &) = delete;

    void open();
    // Returns after SIGINT or SIGTERM.
    void run();

private:
    void on_frame(mirk_platform_peer peer, const void *frame, std::uint32_t size);
    void refuse(mirk_platform_peer peer, std::uint32_t number, const std::string &reason);
    // A line about a peer. Those of one origin are limited by --log-rate; the number of omitted lines is logged.
    void log(mirk_platform_peer peer, const std::string &line);
    void log_omitted();
    void log_event(mirk_platform_peer peer, const std::string &event);
    void log_disconnected(mirk_platform_peer peer, const char *reason);

    const ServerOptions &options_;
    Answerer &answerer_;
    Log &log_;
    mirk_platform_server *server_ = nullptr;
    std::uint32_t answers_ = 0, disconnected_ = 0;
    std::map<std::string, unsigned> lines_;  // about each origin, since the second began
    std::chrono::steady_clock::time_point second_ends_;
};

}  // namespace tarn::tool
