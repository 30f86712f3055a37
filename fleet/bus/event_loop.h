// One thread for the sockets of any number of connections to the bus.
#pragma once

#include <nats/nats.h>

#include <memory>
#include <thread>

struct event_base;

namespace tarn::fleet {

class EventLoop {
public:
    EventLoop();
    EventLoop(const EventLoop &) = delete;
    EventLoop &operator=(const EventLoop &) = delete;
    // Its connections must be closed before.
    ~EventLoop();

    // Connections with these settings have no threads of their own.
    void use_for(natsOptions *settings) const;

private:
    struct Free {
        void operator()(event_base *base) const;
    };
    std::unique_ptr<event_base, Free> base_;
    std::thread thread_;
};

}  // namespace tarn::fleet
