// tarn answer --bus: serves bundles from files as a device on a bus.
#include <csignal>
#include <cstdio>
#include <map>
#include <memory>

#include "fleet/bus/responder.h"
#include "fleet/commands/bus_options.h"
#include "fleet/commands/fleet_commands.h"
#include "fleet/commands/signals.h"
#include "tools/tarn/commands/answer.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"
#include "tools/tarn/support/privileges.h"

namespace tarn::fleet {

namespace {

struct DeviceOptions {
    BusOptions bus;
    DeviceName name{default_site, {}};
};

// Answers as a server on a socket does. Its functions run in the one thread in which requests arrive.
class AnswersOnBus {
public:
    AnswersOnBus(const tool::AnswerOptions &options, tool::Answerer &answerer, tool::Log &log)
        : options_(options), answerer_(answerer), log_(log) {}

    Responder::Events events() {
        return {[this](Responder &responder, const Responder::Request &request) { handle(responder, request); },
                [this](const std::string &line, bool is_problem) { event(line, is_problem); }};
    }
    unsigned answers() const { return answers_; }

private:
    void handle(Responder &responder, const Responder::Request &request) {
        const auto *bundle = reflect::find_bundle(request.bundle.c_str());
        if (bundle == nullptr) {
            return responder.refuse(request, ENOENT, "unknown bundle " + tool::in_quotes(request.bundle));
        }
        if (!answerer_.has(*bundle)) {
            return responder.refuse(request, ENOENT, std::string(bundle->bundle->name) + " is not served here");
        }
        event("requests " + request.bundle + (request.tracked ? ", tracked" : ""), false);
        const auto frames = answerer_.answer(*bundle, request.tracked, options_.fault);
        if (options_.fault == tool::Fault::silent) return;
        if (frames->size() > options_.unread) {
            return responder.refuse(request, EMSGSIZE, "the answer is longer than --unread");
        }
        responder.answer(request, *frames, {.schema = {}, .is_torn = options_.fault == tool::Fault::cut});
        // While it is held, the next answer has the same bytes, also the same stamp.
        held_[{bundle, request.tracked}] = frames;
        ++answers_;
    }

    void event(const std::string &line, bool is_problem) {
        if (!is_problem && !options_.verbose) return;
        const auto now = std::chrono::steady_clock::now();
        if (now >= second_ends_) {
            if (omitted_ != 0) log_.line("tarn: " + std::to_string(omitted_) + " lines were omitted");
            second_ends_ = now + std::chrono::seconds(1);
            lines_ = omitted_ = 0;
        }
        if (options_.log_rate != 0 && ++lines_ > options_.log_rate) {
            ++omitted_;
        } else {
            log_.line((is_problem ? "tarn: " : "bus: ") + line);
        }
    }

    const tool::AnswerOptions &options_;
    tool::Answerer &answerer_;
    tool::Log &log_;
    std::map<std::pair<const reflect::BundleOperations *, bool>, std::shared_ptr<const tool::Bytes>> held_;
    std::chrono::steady_clock::time_point second_ends_;
    unsigned lines_ = 0, omitted_ = 0, answers_ = 0;
};

void serve(const tool::AnswerOptions &options, const DeviceOptions &device, tool::Answerer &answerer, tool::Log &log) {
    if (device.name.device.empty()) throw tool::Failure(tool::Exit::input, "--bus requires --device");
    const BlockedSignals signals;
    AnswersOnBus answers(options, answerer, log);
    const BusSettings settings = bus_settings(device.bus, "tarn " + device.name.text());
    check_bus(natsOptions_UseGlobalMessageDelivery(settings.get(), true), "bus");
    {
        const Responder responder(connect_bus(device.bus, settings.get()), this_device(device.name, answerer.names()),
                                  answers.events(), options.frame_limit);
        // Files have been read and the connection is open, as for a socket.
        tool::drop_capabilities();
        std::string names;
        for (const std::string &name : answerer.names()) names += (names.empty() ? "" : ", ") + name;
        std::printf("answering on %s as %s: %s\n", device.bus.shown().c_str(), device.name.text().c_str(),
                    names.c_str());
        std::fflush(stdout);
        while (!signals.wait_for(0.5)) require_open(device.bus, responder.connection());
    }
    std::printf("stopped after %u answers\n", answers.answers());
}

}  // namespace

void extend_answer(CLI::App &command, CLI::Option_group &endpoint, tool::AnswerOptions &options) {
    auto device = std::make_shared<DeviceOptions>();
    CLI::Option *bus = add_bus(command, endpoint, device->bus);
    command.add_option("--device", device->name.device, "Name of this device on the bus")
        ->type_name(words::device)
        ->check(name_problem)
        ->needs(bus);
    command.add_option("--site", device->name.site, "Site of this device on the bus")
        ->type_name(words::site)
        ->check(name_problem)
        ->needs(bus)
        ->capture_default_str();
    // The bus has no peers; its own limits apply to them.
    for (const char *name :
         {"--peers", "--idle", "--frame-time", "--answer-time", "--unread-total", "--share", "--stall"}) {
        bus->excludes(command.get_option(name));
    }
    bus->each([device, &options](const std::string &) {
        options.serve = [device, &options](tool::Answerer &answerer, tool::Log &log) {
            serve(options, *device, answerer, log);
        };
    });
}

}  // namespace tarn::fleet
