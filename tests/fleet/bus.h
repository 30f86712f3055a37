// A server of the bus for tests, on a free port of this machine.
#pragma once

#include <nats/nats.h>

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "process.h"

namespace fleet_test {

// Whether the condition becomes true within that time.
bool happens(const std::function<bool()> &condition, std::chrono::seconds within);

// Of this machine, for a server that cannot choose one itself.
int free_port();

class BusServer {
public:
    // `settings` are lines of its configuration file.
    explicit BusServer(const std::string &settings = {});

    const std::string &url() const { return url_; }
    std::string url_of(const std::string &user, const std::string &password) const;
    tool_test::Process &process() { return *process_; }
    // From the next start on.
    void configure(const std::string &settings);
    // Ends it with SIGKILL and starts it again on the same port.
    void restart();

private:
    void start();
    int port_;
    tool_test::Directory directory_;
    std::string url_;
    std::unique_ptr<tool_test::Process> process_;
};

// tarn answer --bus in the background; the constructor waits until it is ready.
class DeviceProcess {
public:
    DeviceProcess(const BusServer &bus, const std::string &device, std::vector<std::string> more = {});

    tool_test::Process &process() { return process_; }
    bool is_ready() const { return ready_; }

private:
    tool_test::Process process_;
    bool ready_;
};

// A client of the bus that does what no program of this project does.
class RawClient {
public:
    explicit RawClient(const std::string &url);
    RawClient(const RawClient &) = delete;
    RawClient &operator=(const RawClient &) = delete;
    ~RawClient();

    natsConnection *get() const { return connection_; }
    // The reply; empty if there is none within two seconds.
    std::string request(const std::string &subject, const std::string &payload = {}) const;

private:
    natsConnection *connection_ = nullptr;
};

}  // namespace fleet_test
