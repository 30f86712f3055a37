// Serves bundles over a socket file or TCP.
#pragma once

#include <cstdint>
#include <string>

#include "mirk_platform.h"
#include "tools/tarn/service/answerer.h"
#include "tools/tarn/support/log.h"

namespace tarn::tool {

struct ServerOptions {
    std::string socket, listen;  // a socket file or a TCP address; the other is empty
    Fault fault = Fault::none;
    unsigned peers = 256;
    double idle = 60, frame_time = 10, answer_time = 60;  // seconds; 0: no limit
    std::uint64_t frame_limit = 64 << 10, unread = 64 << 20, unread_total = 256 << 20;
    bool verbose = false;
};

class Server {
public:
    Server(const ServerOptions &options, Answerer &answerer, Log &log)
        : options_(options), answerer_(answerer), log_(log) {}
    ~Server() { mirk_platform_server_close(server_); }
    Server(const Server &) = delete;
    Server &operator=(const Server &) = delete;

    void open();
    // Returns after SIGINT or SIGTERM.
    void run();

private:
    void on_frame(mirk_platform_peer peer, const void *frame, std::uint32_t size);
    void refuse(mirk_platform_peer peer, std::uint32_t number, const std::string &reason);
    void log_event(mirk_platform_peer peer, const std::string &event);
    void log_disconnected(mirk_platform_peer peer, const char *reason);

    const ServerOptions &options_;
    Answerer &answerer_;
    Log &log_;
    mirk_platform_server *server_ = nullptr;
    std::uint32_t answers_ = 0, disconnected_ = 0;
};

}  // namespace tarn::tool
