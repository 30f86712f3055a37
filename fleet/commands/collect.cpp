// tarn collect: asks the devices on a bus again and again, and keeps their answers.
#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "fleet/bus/asker.h"
#include "fleet/commands/bus_options.h"
#include "fleet/commands/fleet_commands.h"
#include "fleet/commands/signals.h"
#include "fleet/commands/store_options.h"
#include "fleet/http/metrics.h"
#include "fleet/http/server.h"
#include "fleet/store/recorder.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/support/log.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"
#include "tools/tarn/support/trace.h"

namespace tarn::fleet {

namespace {

using tool::Exit;
using tool::Failure;
using Clock = Asker::Clock;
using std::chrono::milliseconds;

struct CollectOptions {
    BusOptions bus;
    std::string store, keep;
    std::vector<std::string> bundles;
    double every = 30, timeout = 10;
    tool::AnswerLimits limits;
    bool rows = false, tracked = false, verbose = false;
    std::string http;  // address; empty: nothing is served
    MetricsOptions metrics;
    double expire = 300;
};

milliseconds milliseconds_of(double seconds) { return milliseconds(static_cast<std::int64_t>(seconds * 1000)); }

Time time_of(std::chrono::system_clock::time_point point) {
    return std::chrono::duration_cast<milliseconds>(point.time_since_epoch()).count();
}

std::set<const reflect::BundleOperations *> bundles_named(const std::vector<std::string> &names) {
    std::set<const reflect::BundleOperations *> bundles;
    for (const std::string &name : names) bundles.insert(&tool::bundle_named(name));
    return bundles;
}

MetricsOptions metrics_of(const CollectOptions &options) {
    MetricsOptions metrics = options.metrics;
    // No more time passes between two answers of a device that answers.
    metrics.expire = milliseconds_of(std::max(options.expire, options.every + options.timeout)).count();
    return metrics;
}

class Collector {
public:
    Collector(const CollectOptions &options, tool::Log &log)
        : log_(log),
          every_(milliseconds_of(options.every)),
          // A device that comes back is asked soon.
          retry_(std::min<milliseconds>(every_, milliseconds(5000))),
          discovery_(std::clamp<milliseconds>(every_, milliseconds(1000), milliseconds(10'000))),
          timeout_(milliseconds_of(options.timeout)),
          bundles_(bundles_named(options.bundles)),
          metrics_(metrics_of(options), bundles_),
          recorder_({options.store, 3 * std::max(every_, timeout_).count(), keep_of(options), options.rows,
                     [this](std::string_view line) { log_.line("tarn: " + std::string(line)); }}),
          asker_({options.bus, options.limits, options.tracked},
                 {.on_device = [this](const Device &device) { found(device); },
                  .on_answer = [this](Answer &&answer) { ended(std::move(answer)); },
                  .on_problem =
                      [this](const std::string &device, const std::string &text) {
                          log_.line("tarn: " + device + (device.empty() ? "" : ": ") + text);
                      }}) {
        if (options.http.empty()) return;
        http_.emplace(options.http, options.store, [this] { return metrics_.text(time_now(), recorder_.counts()); });
    }

    // Empty if nothing is served.
    std::string url() const { return http_ ? http_->url() : std::string(); }

    // Does what is due, and waits for at most so long.
    void step(milliseconds most) {
        recorder_.check();
        const auto now = Clock::now();
        if (is_discovery_due(now)) {
            asker_.discover();
            next_discovery_ = now + discovery_;
        }
        if (!found_.empty()) recorder_.add_devices(std::exchange(found_, {}));
        if (const auto devices = recorder_.take_devices()) take_over(*devices);
        ask_due(now);
        asker_.wait(now + most);
    }

    // What has been received is kept.
    void finish() { recorder_.finish(); }

    std::string summary() const {
        const Recorder::Counts counts = recorder_.counts();
        return std::to_string(counts.answers) + " answers kept, " + std::to_string(counts.silences) +
               " requests without an answer, " + std::to_string(devices_.size()) + " devices";
    }

private:
    struct Asked {
        Clock::time_point due;
        bool is_open = false, has_answered = false;
    };
    struct OwnDevice {
        DeviceName name;
        std::map<const reflect::BundleOperations *, Asked> bundles;
    };
    using Due = std::pair<Clock::time_point, std::pair<std::string, const reflect::BundleOperations *>>;

    static std::optional<Time> keep_of(const CollectOptions &options) {
        return options.keep.empty() ? std::nullopt : std::optional(duration_of(options.keep));
    }

    // Not while devices still reply to the last one: replies that a slow machine does not keep up with would delay the
    // answers more and more.
    bool is_discovery_due(Clock::time_point now) const {
        constexpr milliseconds silence(200), most(10'000);
        return now >= next_discovery_ && (now - last_reply_ >= silence || now - next_discovery_ >= most);
    }

    void found(const Device &device) {
        last_reply_ = Clock::now();
        const std::string name = device.name.text();
        std::set<const reflect::BundleOperations *> bundles;
        for (const std::string &bundle : device.bundles) {
            if (const auto *const known = tool::find_bundle_named(bundle)) bundles.insert(known);
        }
        if (offered_.find(name) == offered_.end()) found_.emplace_back(name, device.name.site);
        offered_[name] = std::move(bundles);
    }

    // A device is asked for the bundles that it offers. One that has not been discovered may come back.
    bool offers(const std::string &device, const reflect::BundleOperations *bundle) const {
        const auto found = offered_.find(device);
        return found == offered_.end() || found->second.empty() || found->second.count(bundle) != 0;
    }

    void take_over(const std::vector<std::string> &names) {
        metrics_.keep_only({names.begin(), names.end()});
        std::map<std::string, OwnDevice> before = std::exchange(devices_, {});
        const auto now = Clock::now();
        for (const std::string &name : names) {
            if (const auto found = before.find(name); found != before.end()) {
                devices_.insert(before.extract(found));
                continue;
            }
            const std::size_t slash = name.find('/');
            if (slash == std::string::npos || !is_name(name.substr(0, slash)) || !is_name(name.substr(slash + 1))) {
                continue;  // of a store that another program has written
            }
            OwnDevice &device = devices_[name];
            device.name = {name.substr(0, slash), name.substr(slash + 1)};
            for (const auto *const bundle : bundles_) {
                device.bundles[bundle].due = now;
                due_.insert({now, {name, bundle}});
            }
        }
    }

    void ask_due(Clock::time_point now) {
        // Requests wait here rather than in the asker, where their time runs.
        constexpr std::size_t most_open = 4096;
        while (!due_.empty() && due_.begin()->first <= now && asker_.open() < most_open && !recorder_.is_full()) {
            const auto [time, which] = *due_.begin();
            due_.erase(due_.begin());
            const auto device = devices_.find(which.first);
            if (device == devices_.end()) continue;
            Asked &asked = device->second.bundles[which.second];
            if (asked.is_open || asked.due != time) continue;
            // What it offered before is asked for once more, so that a gap begins.
            if (!asked.has_answered && !offers(which.first, which.second)) {
                reschedule(which.first, which.second, asked, now + every_);
                continue;
            }
            asked.is_open = true;
            asker_.ask(device->second.name, *which.second, now + timeout_);
        }
    }

    void reschedule(const std::string &device, const reflect::BundleOperations *bundle, Asked &asked,
                    Clock::time_point due) {
        asked.due = due;
        due_.insert({due, {device, bundle}});
    }

    void ended(Answer &&answer) {
        const std::string name = answer.device.text();
        const auto device = devices_.find(name);
        if (device == devices_.end()) return;  // another collector has taken it over
        Asked &asked = device->second.bundles[answer.bundle];
        asked.is_open = false;
        const bool has_answered = answer.reply == Reply::answered;
        asked.has_answered = has_answered;
        const auto now = Clock::now();
        // At equal distances from the first request, whatever the answer took.
        auto due = asked.due + (has_answered ? every_ : retry_);
        if (due < now) due = now + (has_answered ? milliseconds(0) : retry_);
        reschedule(name, answer.bundle, asked, due);

        if (http_) {
            for (const std::string &member : metrics_.add(answer)) {
                log_.line("tarn: " + name + ": more than " + std::to_string(Metrics::most_values) + " values of " +
                          member + "; the others are not served");
            }
        }
        const Time ended = time_of(answer.ended);
        // A request that could not be sent before its time was over has no time of its own.
        const bool was_sent = answer.asked != std::chrono::system_clock::time_point();
        const std::string reason =
            has_answered ? std::string() : std::string(word(answer.reply)) + ": " + answer.reason;
        recorder_.add({name, answer.bundle->bundle->name, was_sent ? time_of(answer.asked) : ended, ended,
                       std::string(tool::chars_of(answer.frames)), reason});
    }

    tool::Log &log_;
    const milliseconds every_, retry_, discovery_, timeout_;
    const std::set<const reflect::BundleOperations *> bundles_;
    Metrics metrics_;
    std::map<std::string, OwnDevice> devices_;
    std::set<Due> due_;  // also of devices that this collector does not have any more
    std::map<std::string, std::set<const reflect::BundleOperations *>> offered_;
    std::vector<std::pair<std::string, std::string>> found_;
    Clock::time_point next_discovery_, last_reply_;
    Recorder recorder_;
    Asker asker_;
    std::optional<HttpServer> http_;
};

void run_collect(const CollectOptions &options) {
    tool::set_up_trace(options.verbose);
    const BlockedSignals signals;
    tool::Log log;
    Collector collector(options, log);
    std::printf("collecting from %s\n", options.bus.shown().c_str());
    if (!collector.url().empty()) std::printf("serving %s\n", collector.url().c_str());
    std::fflush(stdout);
    while (!signals.wait_for(0)) {
        for (int i = 0; i < 100; ++i) collector.step(milliseconds(10));
    }
    collector.finish();
    std::printf("%s\n", collector.summary().c_str());
}

}  // namespace

void add_collect(CLI::App &app, tool::Context &) {
    auto options = std::make_shared<CollectOptions>();
    CLI::App *command = app.add_subcommand("collect", "Ask the devices on a bus again and again and keep the answers");
    add_bus(*command, *command, options->bus)->required();
    add_store(*command, options->store)->required();
    command->add_option("--bundle", options->bundles, "Bundle to request; repeatable")
        ->type_name(tool::words::bundle)
        ->allow_extra_args(false)
        ->required();
    tool::add_seconds(*command, "--every", options->every, "Time between two requests for a bundle of a device", 0.01);
    command->add_option("--keep", options->keep, "Forget what is older, such as 30d; default: keep all")
        ->type_name("DURATION");
    command->add_flag("--rows", options->rows,
                      "Create the store with the records of its answers as rows, for queries in SQL");
    tool::add_timeout(*command, options->timeout, "Timeout for each answer");
    tool::add_limits(*command, options->limits);
    CLI::Option *http = command
                            ->add_option("--http", options->http,
                                         "Serve metrics at /metrics and a page of the devices at /, at this address, "
                                         "HOST:PORT; with port 0, the system chooses one")
                            ->type_name(tool::words::address);
    command
        ->add_option("--metric", options->metrics.members,
                     "Serve the values of this numeric member as a metric, such as tc.proto; repeatable")
        ->type_name("RECORD.MEMBER")
        ->allow_extra_args(false)
        ->needs(http);
    tool::add_seconds(*command, "--expire", options->expire,
                      "Serve no values of a device that has not answered for that time, at least --every + --timeout");
    command->get_option("--expire")->needs(http);
    command->add_flag("--timestamps", options->metrics.has_times, "Serve values with the times of their answers")
        ->needs(http);
    command->add_flag("--tracked", options->tracked, "Request per-field state");
    tool::add_verbose(*command, options->verbose);
    command->footer(
        "A store is a SQLite file or a PostgreSQL database; its tables are created. All devices\n"
        "that are on the bus, or in the store, are asked. Several collectors with the same store\n"
        "share the devices, and take over those of a collector that ends.\n\n"
        "An answer is kept when the store has committed it. A device that does not answer has a\n"
        "gap in the store and is asked again after 5 seconds, or after --every if that is less.\n"
        "While the store is not available, no more devices are asked than fit into 64 MiB. A\n"
        "full disk ends the collector with exit code 3; what was committed stays.\n\n"
        "With --rows, the store has the tables and views of \"tarn export\", for all answers and,\n"
        "with the prefix latest_, for the last ones.\n\n"
        "With --http, the collector serves metrics in the format of OpenMetrics, for Prometheus,\n"
        "and a page for browsers with all devices of the store, their answers, what changed in\n"
        "them and their values over time. Everyone who can reach the address can read all of that,\n"
        "but only under that HOST, localhost, or an IP address.\n\n"
        "Examples:\n"
        "  tarn collect --bus nats://bus:4222 --bundle dp-intf --store history.db\n"
        "  tarn collect --bus nats://bus:4222 --bundle dp-intf --bundle dp-tt-cfg \\\n"
        "    --every 1m --store postgresql://tarn@db.example/fleet --keep 30d\n"
        "  tarn collect --bus nats://bus:4222 --bundle dp-tt-cfg --store history.db \\\n"
        "    --http 127.0.0.1:9464 --metric tc.proto --metric tc.appl.id");
    command->callback([options] { run_collect(*options); });
}

}  // namespace tarn::fleet
