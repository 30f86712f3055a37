// How long it takes to ask a fleet, beside what the bus alone takes to carry as many bytes:  bus_bench [DEVICES...]
//
// Everything runs on this machine: a server, the devices in one process, and the asking process. The bus alone is a
// process with as many connections, each of which answers a request with as many bytes as an answer has on average, and
// a client that counts the answers to one request; neither looks at any byte.
#include <nats/nats.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

#include "bus.h"
#include "fleet/bus/event_loop.h"
#include "fleet/commands/signals.h"

namespace {

using fleet_test::BusServer;
using tool_test::Process;

constexpr int rounds = 5;
const std::string tool = TARN_TOOL;

double seconds_since(std::chrono::steady_clock::time_point begin) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

double median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void require(natsStatus status, const char *what) {
    if (status == NATS_OK) return;
    std::fprintf(stderr, "bus_bench: %s: %s\n", what, natsStatus_GetText(status));
    std::exit(3);
}

// The process of the bus's own devices.
int be_devices(const std::string &url, int devices, std::size_t size) {
    const tarn::fleet::BlockedSignals signals;
    const tarn::fleet::EventLoop loop;
    std::string payload(size, 'x');
    const auto open = [&](int count) {
        for (int i = 0; i < count; ++i) {
            natsOptions *options = nullptr;
            natsConnection *connection = nullptr;
            natsSubscription *subscription = nullptr;
            require(natsOptions_Create(&options), "options");
            require(natsOptions_SetURL(options, url.c_str()), "options");
            require(natsOptions_UseGlobalMessageDelivery(options, true), "options");
            require(natsOptions_SetPingInterval(options, 0), "options");
            loop.use_for(options);
            require(natsConnection_Connect(&connection, options), "connect");
            natsOptions_Destroy(options);
            const auto on_request = [](natsConnection *nc, natsSubscription *, natsMsg *request, void *text) {
                const auto &bytes = *static_cast<const std::string *>(text);
                natsConnection_Publish(nc, natsMsg_GetReply(request), bytes.data(), static_cast<int>(bytes.size()));
                natsMsg_Destroy(request);
            };
            require(natsConnection_Subscribe(&subscription, connection, "bare.ask", on_request, &payload), "subscribe");
        }
    };
    // Opening a connection waits for the server.
    std::vector<std::thread> workers;
    for (int i = 0; i < 4; ++i) workers.emplace_back(open, devices / 4);
    open(devices % 4);
    for (std::thread &worker : workers) worker.join();
    std::printf("ready\n");
    std::fflush(stdout);
    signals.wait();
    std::_Exit(0);
}

double time_of_bus_alone(const BusServer &bus, int devices) {
    const fleet_test::RawClient client(bus.url());
    natsSubscription *subscription = nullptr;
    require(natsConnection_SubscribeSync(&subscription, client.get(), "bare.answer"), "subscribe");
    require(natsSubscription_SetPendingLimits(subscription, -1, -1), "limits");
    require(natsConnection_Flush(client.get()), "flush");
    const auto begin = std::chrono::steady_clock::now();
    require(natsConnection_PublishRequestString(client.get(), "bare.ask", "bare.answer", ""), "request");
    for (int i = 0; i < devices; ++i) {
        natsMsg *answer = nullptr;
        require(natsSubscription_NextMsg(&answer, subscription, 60000), "answer");
        natsMsg_Destroy(answer);
    }
    const double seconds = seconds_since(begin);
    natsSubscription_Destroy(subscription);
    return seconds;
}

struct Result {
    double seconds;
    bool is_complete;
};

Result time_of_show(const BusServer &bus, const std::vector<std::string> &more) {
    std::vector<std::string> words{
        "-c", "exec \"$@\" >/dev/null", "sh", tool, "show", "dp-tt-cfg", "--bus", bus.url(), "--all", "--timeout",
        "60"};
    words.insert(words.end(), more.begin(), more.end());
    const auto begin = std::chrono::steady_clock::now();
    const tool_test::Outcome outcome = tool_test::run("/bin/sh", words);
    return {seconds_since(begin), outcome.exit == 0};
}

void measure(const BusServer &bus, const std::string &self, int devices, double limit) {
    std::size_t size = 0;
    std::vector<double> ours, alone;
    const std::string number = std::to_string(devices);
    double opening = 0;
    std::size_t memory = 0;
    bool are_complete = true;
    {
        const auto begin = std::chrono::steady_clock::now();
        Process simulated({"simulate", "--bus", bus.url(), "--devices", number, "--elements", "1", "--change", "0"},
                          tool);
        require(simulated.wait_for("devices on ") ? NATS_OK : NATS_TIMEOUT, "connections of devices");
        opening = seconds_since(begin);
        memory = simulated.resident_kib() >> 10;
        const tool_test::Directory directory;
        are_complete = time_of_show(bus, {"--save", directory.path("all")}).is_complete;
        size = directory.read("all").size() / static_cast<std::size_t>(devices);
        for (int i = 0; i < rounds; ++i) {
            const Result result = time_of_show(bus, {});
            are_complete = are_complete && result.is_complete;
            ours.push_back(result.seconds);
        }
    }
    {
        Process bare({"devices", bus.url(), number, std::to_string(size)}, self);
        require(bare.wait_for("ready") ? NATS_OK : NATS_TIMEOUT, "connections of the bus alone");
        for (int i = 0; i < rounds; ++i) alone.push_back(time_of_bus_alone(bus, devices));
    }
    std::printf("%7d %7zu %9.2f %9.2f %9.2f %9.2f %8.1f %9.1f %8zu  %s\n", devices, size, median(ours),
                *std::min_element(ours.begin(), ours.end()), limit, median(alone), median(ours) / median(alone),
                opening, memory, are_complete ? "" : "some devices did not answer");
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char **argv) {
    if (argc == 5 && std::string(argv[1]) == "devices") {
        return be_devices(argv[2], std::atoi(argv[3]), static_cast<std::size_t>(std::atoi(argv[4])));
    }
    std::vector<int> counts;
    for (int i = 1; i < argc; ++i) counts.push_back(std::atoi(argv[i]));
    if (counts.empty()) counts = {1000, 10000};
    double load[1] = {0};
    [[maybe_unused]] const int known = getloadavg(load, 1);
    std::printf(
        "tarn show dp-tt-cfg --all, printing included, and the bus alone; %u processors, load %.1f, median and\n"
        "least of %d runs, in seconds; at most 2.5 times the bus alone\n\n",
        std::thread::hardware_concurrency(), load[0], rounds);
    std::printf("%7s %7s %9s %9s %9s %9s %8s %9s %8s\n", "DEVICES", "BYTES", "SHOW", "LEAST", "AT MOST", "BUS ALONE",
                "TIMES", "OPEN (s)", "MiB");
    const BusServer bus;
    for (const int devices : counts) measure(bus, argv[0], devices, devices > 1000 ? 3 : 0.5);
}
