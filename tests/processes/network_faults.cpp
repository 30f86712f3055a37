// Requests through a proxy that does what networks do: it delays, splits, cuts, half-closes and reorders connections.
// Each exchange has to end whole, or both sides have to name what happened.
//
//   network_faults [--schedules N] [--seed S]
//
// Each schedule has a seed of its own, from S on. A failed schedule prints its seed; `--seed S --schedules 1` runs it
// again.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <random>
#include <thread>

#include "crowd.h"
#include "tools/tarn/service/client.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/trace.h"

using namespace tool_test;

namespace {

enum class Fault : unsigned { none, half_close, cut };

// What happens to the bytes of one direction.
struct Plan {
    std::size_t piece;  // bytes that are passed on at once
    unsigned delay;     // milliseconds before some of the pieces
    Fault fault;        // at the byte `at`
    std::size_t at;
};

// A seeded choice, the same on every machine.
class Random {
public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}
    std::size_t below(std::size_t limit) { return engine_() % limit; }

    Plan plan(std::size_t size, std::size_t smallest_piece) {
        Plan made{smallest_piece + below(size), static_cast<unsigned>(below(4)), Fault::none, size};
        if (below(2) == 0) {
            made.fault = below(2) == 0 ? Fault::half_close : Fault::cut;
            // The end is as interesting as all other places together.
            made.at = below(2) == 0 ? size : below(size);
        }
        return made;
    }
    template <class Range>
    void shuffle(Range &range) {
        for (std::size_t i = range.size(); i > 1; --i) std::swap(range[i - 1], range[below(i)]);
    }

private:
    std::mt19937_64 engine_;
};

// False if the fault has ended the connection, or one side has closed it.
bool pass_on(const Socket &from, const Socket &to, const Plan &plan, std::size_t size, Random &random) {
    const std::size_t end = plan.fault == Fault::none ? size : plan.at;
    for (std::size_t done = 0; done < end;) {
        if (random.below(8) == 0) std::this_thread::sleep_for(std::chrono::milliseconds(plan.delay));
        const std::string piece = from.receive(std::min(plan.piece, end - done));
        if (piece.empty() || !to.send(piece)) return false;
        done += piece.size();
    }
    if (plan.fault == Fault::half_close) to.end_sending();
    return plan.fault != Fault::cut;
}

struct Exchange {
    Plan request, answer;
    std::uint64_t seed = 0;  // of its delays
    unsigned peer = 0;       // its number in the log of the server
    std::unique_ptr<tarn::tool::Connection> connection;
    std::optional<Socket> client, server;  // what the proxy holds
    std::string frames, failure;           // what the client got

    bool should_be_whole(std::size_t request_size, std::size_t answer_size) const {
        return (request.fault == Fault::none || (request.fault == Fault::half_close && request.at == request_size)) &&
               (answer.fault == Fault::none || answer.at == answer_size);
    }
};

class Network {
public:
    bool is_ready() const { return server_ != nullptr && server_->is_ready(); }

    // The log is read as a whole, so a process serves a limited number of schedules.
    void start_server() {
        server_ = std::make_unique<LimitedServer>(std::vector<std::string>{"--verbose", "--log-rate", "0",
                                                                           "--frame-time", "0", "--idle", "0",
                                                                           "--answer-time", "0", "--unread", "64MiB"});
        peers_ = 0;
    }

    // Returns the number of exchanges that ended whole, or nothing if one failed, which has been printed.
    std::optional<unsigned> run(std::uint64_t seed) {
        Random random(seed);
        std::vector<Exchange> exchanges(1 + random.below(4));
        for (Exchange &exchange : exchanges) {
            exchange.request = random.plan(request_size_, 1);
            exchange.answer = random.plan(server_->answer_size(), 500);
            exchange.seed = random.below(SIZE_MAX);
        }
        connect(exchanges, random);
        std::vector<std::thread> threads;
        for (Exchange &exchange : exchanges) {
            threads.emplace_back([&] { request(exchange); });
            threads.emplace_back([&] { proxy(exchange); });
        }
        for (std::thread &thread : threads) thread.join();
        unsigned whole = 0;
        for (const Exchange &exchange : exchanges) {
            const std::string wrong = check(exchange);
            if (!wrong.empty()) {
                std::printf("seed %llu, peer %u: %s\nrepeat it with --seed %llu --schedules 1\n",
                            static_cast<unsigned long long>(seed), exchange.peer, wrong.c_str(),
                            static_cast<unsigned long long>(seed));
                return std::nullopt;
            }
            whole += exchange.failure.empty() ? 1 : 0;
        }
        return whole;
    }

private:
    // The proxy connects to the server in another order than the clients connected to it.
    void connect(std::vector<Exchange> &exchanges, Random &random) {
        std::vector<Exchange *> order;
        for (Exchange &exchange : exchanges) {
            exchange.connection =
                std::make_unique<tarn::tool::Connection>(tarn::tool::Endpoint{directory_.path("proxy"), {}},
                                                         tarn::tool::Deadline(60), tarn::tool::AnswerLimits{});
            exchange.client.emplace(listener_.accept());
            order.push_back(&exchange);
        }
        random.shuffle(order);
        for (Exchange *exchange : order) {
            exchange->server.emplace(Socket::connect_to(server_->server().socket()));
            exchange->peer = ++peers_;
        }
    }

    void request(Exchange &exchange) const {
        try {
            const auto &bundle = tarn::tool::bundle_named("dp-tt-cfg");
            tarn::tool::Receiver receiver(false, tarn::tool::Via::handle);
            exchange.connection->request(bundle, false);
            receive_answer(*exchange.connection, receiver, bundle, [&](const tarn::tool::Frame &frame) {
                receiver.feed(frame, exchange.connection->name());
                exchange.frames += tarn::tool::chars_of(frame.bytes);
            });
        } catch (const tarn::tool::Failure &failure) {
            exchange.failure = failure.what();
        }
        exchange.connection.reset();
    }

    void proxy(Exchange &exchange) const {
        Random random(exchange.seed);
        if (pass_on(*exchange.client, *exchange.server, exchange.request, request_size_, random)) {
            pass_on(*exchange.server, *exchange.client, exchange.answer, server_->answer_size(), random);
        }
        exchange.client.reset();
        exchange.server.reset();
    }

    // What is wrong, or nothing.
    std::string check(const Exchange &exchange) const {
        const bool whole = exchange.should_be_whole(request_size_, server_->answer_size());
        if (whole && exchange.frames.size() != server_->answer_size()) {
            return "it should be whole, but the client got " + std::to_string(exchange.frames.size()) +
                   " bytes: " + exchange.failure;
        }
        if (whole != exchange.failure.empty()) return "the client says \"" + exchange.failure + "\"";
        if (!whole && exchange.failure.find("(ECONNRESET)") == std::string::npos &&
            exchange.failure.find("(EPIPE)") == std::string::npos) {
            return "the client does not name the lost connection: " + exchange.failure;
        }
        const std::string line = "peer " + std::to_string(exchange.peer) + ": disconnected: ";
        const Process &process = server_->server().process();
        if (!process.wait_for_error(line)) return "the server does not name the lost connection";
        const std::string log = process.err();
        const std::size_t begin = log.find(line) + line.size();
        const std::string reason = log.substr(begin, log.find('\n', begin) - begin);
        for (const char *known : {"it closed the connection", "it closed the connection within a frame", "Broken pipe",
                                  "Connection reset by peer"}) {
            if (reason == known) return {};
        }
        return "the server says \"" + reason + "\"";
    }

    Directory directory_;
    Socket listener_ = Socket::listen_on(directory_.path("proxy"));
    std::unique_ptr<LimitedServer> server_;
    std::size_t request_size_ = table_request().size();
    unsigned peers_ = 0;
};

}  // namespace

int main(int argc, char **argv) {
    std::uint64_t schedules = 200, seed = 1;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::strcmp(argv[i], "--schedules") == 0) schedules = std::strtoull(argv[i + 1], nullptr, 10);
        if (std::strcmp(argv[i], "--seed") == 0) seed = std::strtoull(argv[i + 1], nullptr, 10);
    }
    if (argc % 2 == 0 || schedules == 0) {
        std::fprintf(stderr, "usage: network_faults [--schedules N] [--seed S]\n");
        return 2;
    }
    tarn::tool::set_up_trace(false);
    Network network;
    unsigned long long whole = 0;
    for (std::uint64_t i = 0; i < schedules; ++i) {
        if (i % 100 == 0) network.start_server();
        if (!network.is_ready()) return 3;
        const std::optional<unsigned> ended = network.run(seed + i);
        if (!ended) return 1;
        whole += *ended;
    }
    std::printf("%llu schedules from seed %llu: %llu exchanges ended whole\n",
                static_cast<unsigned long long>(schedules), static_cast<unsigned long long>(seed), whole);
    // All faults at once would also satisfy the checks.
    return whole >= schedules / 4 || schedules < 20 ? 0 : 1;
}
