// tarn simulate: many devices in one process, for tests and measurements of what asks them.
#include <sys/resource.h>

#include <atomic>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <random>
#include <thread>
#include <vector>

#include "fleet/bus/changing_tables.h"
#include "fleet/bus/event_loop.h"
#include "fleet/bus/responder.h"
#include "fleet/commands/bus_options.h"
#include "fleet/commands/fleet_commands.h"
#include "fleet/commands/signals.h"
#include "fleet/support/sha256.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/service/server.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/log.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"
#include "tools/tarn/support/terminal.h"

namespace tarn::fleet {

namespace {

using tool::Exit;
using tool::Failure;
using Clock = std::chrono::steady_clock;

enum class DeviceFault : std::uint8_t { none, silent, slow, torn, schema };

struct SimulateOptions {
    BusOptions bus;
    std::uint32_t devices = 100, first = 1, sites = 1, elements = 3;
    std::uint64_t seed = 1;
    double change = 10, slow = 5;
    std::vector<std::string> faults;
    std::string log;
};

const std::map<std::string, DeviceFault> fault_names = {{"silent", DeviceFault::silent},
                                                        {"slow", DeviceFault::slow},
                                                        {"torn", DeviceFault::torn},
                                                        {"schema", DeviceFault::schema}};

struct FaultShare {
    DeviceFault fault;
    double percent;
};

// "silent=2.5"
FaultShare share_of(const std::string &text) {
    const std::size_t equals = text.find('=');
    const auto fault = fault_names.find(text.substr(0, equals));
    double percent = 0;
    if (fault == fault_names.end() || equals == std::string::npos ||
        !CLI::detail::lexical_cast(text.substr(equals + 1), percent) || !(percent >= 0 && percent <= 100)) {
        throw Failure(Exit::input, tool::in_quotes(text) +
                                       " is not of the form FAULT=PERCENT, with one of the faults "
                                       "silent, slow, torn, schema");
    }
    return {fault->second, percent};
}

// What devices sent, a line for each answer, before it is sent. A store can be compared with it.
class SentLog {
public:
    explicit SentLog(const std::string &path) : file_(std::fopen(path.c_str(), "ae")) {
        if (file_ == nullptr) {
            throw Failure(Exit::environment, path + ": " + tool::error_text(static_cast<std::uint32_t>(errno)));
        }
        std::setvbuf(file_.get(), nullptr, _IOLBF, 1 << 16);
    }

    void add(const DeviceName &device, const reflect::BundleOperations &bundle, tool::FrameBytes frames) {
        const auto now =
            std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::system_clock::now().time_since_epoch());
        std::fprintf(file_.get(), "%lld %s %s %s %zu\n", static_cast<long long>(now.count()), device.text().c_str(),
                     std::string(bundle.bundle->name).c_str(), sha256(tool::chars_of(frames)).c_str(), frames.size());
    }

private:
    struct Close {
        void operator()(std::FILE *file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Close> file_;
};

class Simulation {
public:
    explicit Simulation(const SimulateOptions &options)
        : options_(options), tables_(options.seed, options.elements), random_(options.seed) {
        for (const std::string &text : options.faults) shares_.push_back(share_of(text));
        if (!options.log.empty()) sent_.emplace(options.log);
        for (const reflect::BundleOperations &b : reflect::bundles()) {
            bundles_.push_back(tool::short_name(b.bundle->name));
        }
    }

    void run() {
        raise_file_limit();
        const BlockedSignals signals;
        EventLoop loop;
        open_all(loop);
        std::printf("%u devices on %s\n", options_.devices, options_.bus.shown().c_str());
        std::fflush(stdout);
        while (!signals.wait_for(0.01)) send_late();
        devices_.clear();
        std::printf("stopped after %zu answers\n", answers_.load());
    }

private:
    struct Simulated {
        std::uint64_t number = 0;
        DeviceFault fault = DeviceFault::none;
        std::unique_ptr<Responder> responder;
    };
    struct Late {
        const Simulated *device;
        Responder::Request request;
        const reflect::BundleOperations *bundle;
        tool::Bytes frames;
    };

    // Each connection needs a descriptor.
    void raise_file_limit() const {
        rlimit limit{};
        getrlimit(RLIMIT_NOFILE, &limit);
        limit.rlim_cur = limit.rlim_max;
        setrlimit(RLIMIT_NOFILE, &limit);
        if (limit.rlim_max < options_.devices + 100) {
            throw Failure(Exit::environment, "the limit on open files, " + std::to_string(limit.rlim_max) +
                                                 ", is too low for " + std::to_string(options_.devices) + " devices");
        }
    }

    DeviceFault choose_fault() {
        double at = static_cast<double>(random_() % 100000) / 1000;
        for (const FaultShare &share : shares_) {
            if (at < share.percent) return share.fault;
            at -= share.percent;
        }
        return DeviceFault::none;
    }

    // Opening a connection waits for the server, so several are opened at the same time.
    void open_all(const EventLoop &loop) {
        devices_.resize(options_.devices);
        for (std::uint32_t i = 0; i < options_.devices; ++i) {
            devices_[i].number = options_.first - 1 + i;
            devices_[i].fault = choose_fault();
        }
        std::atomic<std::uint32_t> next = 0, open = 0;
        std::mutex lock;
        std::string failure;
        const auto work = [&] {
            try {
                for (std::uint32_t i = next++; i < options_.devices; i = next++, ++open) open_one(devices_[i], loop);
            } catch (const std::exception &error) {
                const std::lock_guard<std::mutex> hold(lock);
                failure = error.what();
                next = options_.devices;
            }
        };
        std::vector<std::thread> workers;
        for (int i = 0; i < 4; ++i) workers.emplace_back(work);
        {
            tool::Progress progress("opening connections");
            while (open < options_.devices && next < options_.devices) {
                progress.at(open, options_.devices);
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
            }
        }
        for (std::thread &worker : workers) worker.join();
        if (!failure.empty()) throw Failure(Exit::environment, failure);
    }

    void open_one(Simulated &device, const EventLoop &loop) {
        const DeviceName name{"site-" + std::to_string(device.number % options_.sites + 1),
                              "device-" + std::to_string(device.number + 1)};
        const BusSettings settings = bus_settings(options_.bus, "tarn " + name.text());
        check_bus(natsOptions_UseGlobalMessageDelivery(settings.get(), true), "bus");
        // The server notices a lost connection, and so do those who ask. Timers of thousands of connections take long.
        check_bus(natsOptions_SetPingInterval(settings.get(), 0), "bus");
        loop.use_for(settings.get());
        device.responder = std::make_unique<Responder>(
            connect_bus(options_.bus, settings.get()), this_device(name, bundles_),
            Responder::Events{[this, &device](Responder &responder, const Responder::Request &request) {
                                  handle(device, responder, request);
                              },
                              [this](const std::string &line, bool is_problem) {
                                  if (is_problem) log_.line("tarn: " + line);
                              }},
            tool::ServerOptions().frame_limit);
    }

    // In the one thread in which requests arrive.
    void handle(const Simulated &device, Responder &responder, const Responder::Request &request) {
        const auto *bundle = reflect::find_bundle(request.bundle.c_str());
        if (bundle == nullptr) {
            return responder.refuse(request, ENOENT, "unknown bundle " + tool::in_quotes(request.bundle));
        }
        if (device.fault == DeviceFault::silent) return;
        tool::Bytes frames = tables_.answer(*bundle, request.tracked, device.number, changes_of(device));
        if (device.fault == DeviceFault::slow) {
            const auto due = Clock::now() +
                             std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(options_.slow));
            const std::lock_guard<std::mutex> hold(lock_);
            late_.emplace(due, Late{&device, request, bundle, std::move(frames)});
        } else {
            send(device, responder, request, *bundle, frames);
        }
    }

    // Devices change at different times.
    std::uint64_t changes_of(const Simulated &device) const {
        if (options_.change == 0) return 0;
        const std::chrono::duration<double> passed = Clock::now() - begin_;
        const double phase = static_cast<double>(device.number * 7919 % 1000) / 1000;
        return static_cast<std::uint64_t>(passed.count() / options_.change + phase);
    }

    void send(const Simulated &device, const Responder &responder, const Responder::Request &request,
              const reflect::BundleOperations &bundle, const tool::Bytes &frames) {
        const bool is_torn = device.fault == DeviceFault::torn, is_other = device.fault == DeviceFault::schema;
        if (!is_torn && !is_other && sent_) sent_->add(responder.device().name, bundle, frames);
        responder.answer(request, frames, {.schema = is_other ? std::string(32, '0') : "", .is_torn = is_torn});
        ++answers_;
    }

    void send_late() {
        const auto now = Clock::now();
        const std::lock_guard<std::mutex> hold(lock_);
        for (; !late_.empty() && late_.begin()->first <= now; late_.erase(late_.begin())) {
            const Late &late = late_.begin()->second;
            try {
                send(*late.device, *late.device->responder, late.request, *late.bundle, late.frames);
            } catch (const Failure &failure) {
                log_.line(std::string("tarn: ") + failure.what());
            }
        }
    }

    const SimulateOptions &options_;
    tool::Log log_;
    ChangingTables tables_;
    std::mt19937_64 random_;
    std::vector<FaultShare> shares_;
    std::vector<std::string> bundles_;
    std::optional<SentLog> sent_;
    std::vector<Simulated> devices_;
    Clock::time_point begin_ = Clock::now();
    std::mutex lock_;
    std::multimap<Clock::time_point, Late> late_;
    std::atomic<std::size_t> answers_ = 0;
};

}  // namespace

void add_simulate(CLI::App &app, tool::Context &) {
    auto options = std::make_shared<SimulateOptions>();
    CLI::App *command = app.add_subcommand("simulate", "Be many devices on a bus, with plausible tables that change");
    add_bus(*command, *command, options->bus)->required();
    command->add_option("--devices", options->devices, "Number of devices, each with a connection")
        ->check(CLI::Range(1U, 1000000U).description(""))
        ->capture_default_str();
    command->add_option("--first", options->first, "Number of the first device, for several processes on one bus")
        ->check(CLI::Range(1U, 1000000U).description(""))
        ->capture_default_str();
    command->add_option("--sites", options->sites, "Number of sites, which get the devices in turn")
        ->check(CLI::Range(1U, 1000000U).description(""))
        ->capture_default_str();
    command->add_option("--seed", options->seed, "Seed; the same seed gives the same tables and the same faults")
        ->capture_default_str();
    command->add_option("--elements", options->elements, "Number of elements in each list, as for generate")
        ->check(CLI::Range(0U, 1000000U).description(""))
        ->capture_default_str();
    tool::add_seconds(*command, "--change", options->change, "Time from one change of a device to the next; 0: none");
    command
        ->add_option("--fault", options->faults,
                     "Devices with a fault, in percent: silent devices do not answer, slow ones answer late, torn ones "
                     "omit the last part, and schema is that of another version; repeatable")
        ->type_name("FAULT=PERCENT")
        ->allow_extra_args(false);
    tool::add_seconds(*command, "--slow", options->slow, "Time after which slow devices answer");
    command
        ->add_option("--log", options->log,
                     "Append a line for each correct answer: time in milliseconds, device, bundle, SHA-256 of the "
                     "frames and their size")
        ->type_name(tool::words::file);
    command->footer(
        "The devices are named site-1/device-1 and so on, and answer all bundles. Prints one\n"
        "line when all are connected. SIGINT and SIGTERM end it with a summary and exit code\n"
        "0. Each device needs an open file, here and in the server.\n\n"
        "Examples:\n"
        "  tarn simulate --bus nats://127.0.0.1:4222 --devices 1000 --sites 4\n"
        "  tarn simulate --bus nats://127.0.0.1:4222 --fault silent=1 --fault slow=2 --slow 20s");
    command->callback([options] { Simulation(*options).run(); });
}

}  // namespace tarn::fleet
