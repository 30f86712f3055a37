// The answering side: one device on the bus.
#pragma once

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "fleet/bus/connection.h"
#include "fleet/bus/discovery.h"

namespace tarn::fleet {

// A description of this process.
Device this_device(const DeviceName &name, std::vector<std::string> bundles);

// How an answer differs from a correct one, for tests of the asking side.
struct Distortion {
    std::string schema;  // of the header, unless empty
    bool is_torn = false;
};

// Subscribes to the requests for one device and to those of the discovery.
class Responder {
public:
    struct Request {
        std::string bundle;
        bool tracked;
        std::string reply;  // subject of the answer
        std::string id;     // the part of it that the asking process chose
    };

    struct Events {
        // Calls answer() or refuse(), at once or later, or neither.
        std::function<void(Responder &, const Request &)> on_request;
        // A line for the log; `is_problem` unless it is about regular work.
        std::function<void(const std::string &line, bool is_problem)> on_event;
    };

    // Requests arrive in a thread of the bus, which all responders share.
    Responder(BusConnection connection, Device device, Events events, std::uint64_t frame_limit);
    Responder(const Responder &) = delete;
    Responder &operator=(const Responder &) = delete;
    ~Responder();

    const Device &device() const { return device_; }
    natsConnection *connection() const { return connection_.get(); }
    // Sends all frames of an answer, in as many parts as the server's limit requires. Throws a Failure.
    void answer(const Request &request, tool::FrameBytes frames, const Distortion &distortion = {}) const;
    void refuse(const Request &request, std::uint32_t number, const std::string &sentence);

private:
    void subscribe(const std::string &subject, natsMsgHandler handler);
    static void on_request(natsConnection *, natsSubscription *, natsMsg *message, void *self);
    static void on_service_request(natsConnection *, natsSubscription *, natsMsg *message, void *self);
    static void on_complete(void *self);
    void handle(const BusMessage &message);
    void send(const Request &request, tool::FrameBytes bytes, const char *status, const Distortion &distortion) const;

    BusConnection connection_;
    Device device_;
    Events events_;
    std::uint64_t frame_limit_;
    DeviceStatistics statistics_;
    std::vector<BusSubscription> subscriptions_;
    // Subscriptions that may still deliver a message.
    std::mutex lock_;
    std::condition_variable completed_;
    std::size_t live_ = 0;
};

}  // namespace tarn::fleet
