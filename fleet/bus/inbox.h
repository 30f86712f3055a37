// Messages that a thread of the bus delivers, until the thread that handles them takes them.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>

#include "fleet/bus/connection.h"

namespace tarn::fleet {

class Inbox {
public:
    // Subscribes to the subject.
    Inbox(natsConnection *connection, const std::string &subject);
    Inbox(const Inbox &) = delete;
    Inbox &operator=(const Inbox &) = delete;
    ~Inbox();

    // The next message; nothing if there is none until then.
    std::optional<BusMessage> take(std::chrono::steady_clock::time_point until);
    // Messages that were lost since the last call, because too many were waiting.
    std::int64_t take_lost();

private:
    static void on_message(natsConnection *, natsSubscription *, natsMsg *message, void *self);
    static void on_complete(void *self);

    std::mutex lock_;
    std::condition_variable changed_;
    std::deque<BusMessage> arrived_;
    bool is_closed_ = false, is_complete_ = false;
    std::deque<BusMessage> taken_;  // by take(), and not returned yet
    BusSubscription subscription_;
    std::int64_t lost_ = 0;
};

}  // namespace tarn::fleet
