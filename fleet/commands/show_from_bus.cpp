// tarn show --bus: asks many devices at once and prints their answers as they arrive.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <vector>

#include "fleet/bus/asker.h"
#include "fleet/commands/bus_options.h"
#include "fleet/commands/fleet_commands.h"
#include "tools/tarn/commands/show.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/writer.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"
#include "tools/tarn/support/terminal.h"
#include "tools/tarn/support/trace.h"

namespace tarn::fleet {

using tool::Exit;
using tool::Failure;

namespace {

struct ShowFleetOptions {
    BusOptions bus;
    std::vector<std::string> devices;
    std::string site;
    bool all = false;
};

class ShowFleet {
public:
    ShowFleet(const tool::ShowOptions &options, const ShowFleetOptions &fleet)
        : options_(options),
          fleet_(fleet),
          bundle_(tool::bundle_named(options.bundle)),
          asker_({fleet.bus, options.limits, options.tracked},
                 {.on_device = [this](const Device &device) { found(device); },
                  .on_answer = [this](Answer &&answer) { ended(answer); },
                  .on_problem = [this](const std::string &device,
                                       const std::string &text) { print_problem(device, text); }}) {
        if (!options.save.empty()) saved_.emplace(options.save);
        if (options.save != "-") out_.emplace("-");
    }

    Exit run() {
        bool needs_discovery = fleet_.devices.empty();
        for (const std::string &name : fleet_.devices) {
            const std::size_t slash = name.find('/');
            if (slash == std::string::npos) {
                needs_discovery = true;
                wanted_.insert(name);
            } else {
                ask({name.substr(0, slash), name.substr(slash + 1)});
            }
        }
        if (needs_discovery) asker_.discover();
        while (asker_.open() != 0 || (needs_discovery && !is_discovery_complete())) {
            asker_.wait(std::min(deadline_, Asker::Clock::now() + std::chrono::milliseconds(10)));
            progress_->at(ended_, asked_.size());
            if (Asker::Clock::now() >= deadline_ && asker_.open() == 0) break;
        }
        return finish();
    }

private:
    // Ends the line of progress; the next one appears after a second.
    void print_problem(const std::string &device, const std::string &text) {
        progress_.emplace("devices");
        std::fprintf(stderr, "tarn: %s%s\n", device.empty() ? "" : (device + ": ").c_str(), text.c_str());
    }

    // The first device replies within a second. No more are expected when none has replied for twice the time that the
    // last one needed, and for a while.
    bool is_discovery_complete() const {
        const auto now = Asker::Clock::now();
        if (now >= deadline_) return true;
        if (!fleet_.devices.empty() && wanted_.empty()) return true;
        if (ids_.empty()) return now - begin_ > std::chrono::seconds(1);
        const auto quiet = std::max<Asker::Clock::duration>(std::chrono::milliseconds(150), 2 * (last_found_ - begin_));
        return now - last_found_ > quiet;
    }

    void ask(const DeviceName &device) {
        if (!asked_.insert(device).second) return;
        asker_.ask(device, bundle_, deadline_);
    }

    void found(const Device &device) {
        last_found_ = Asker::Clock::now();
        const bool is_wanted =
            fleet_.all || device.name.site == fleet_.site ||
            std::find(fleet_.devices.begin(), fleet_.devices.end(), device.name.device) != fleet_.devices.end();
        const std::string &first = ids_.emplace(device.name, device.id).first->second;
        if (!is_wanted) return;
        wanted_.erase(device.name.device);
        if (first != device.id) {
            print_problem(device.name.text(), "several processes answer for this device");
            is_complete_ = false;
        }
        ask(device.name);
    }

    void ended(const Answer &answer) {
        ++ended_;
        const std::string name = answer.device.text();
        if (answer.reply != Reply::answered) {
            is_complete_ = false;
            print_problem(name, std::string(word(answer.reply)) + ": " + answer.reason);
        } else {
            if (saved_) saved_->append(tool::chars_of(answer.frames));
        }
        if (!out_) return;
        if (is_terminal_) progress_.emplace("devices");
        if (options_.json) return out_->append(json_of(answer) + "\n");
        if (answer.reply != Reply::answered) return;
        text_.clear();
        if (options_.hex) {
            text_ = heading(name) + tool::hex_dump(tool::chars_of(answer.frames));
        } else {
            text_ = options_.xml ? "<!-- " + name + " -->\n" : heading(name);
            for (const tool::Item &item : answer.messages) {
                text_ += tool::rendered(item, options_.xml ? tool::Style::xml : tool::Style::text);
            }
        }
        out_->append(text_);
    }

    static std::string heading(const std::string &name) { return "== " + name + "\n"; }

    nlohmann::ordered_json json_of(const std::string &device, const nlohmann::ordered_json &site, Reply reply) const {
        return {{"device", device}, {"site", site}, {"reply", word(reply)}, {"bundle", bundle_.bundle->name}};
    }

    // The messages are written as they are, without a tree of their values.
    std::string json_of(const Answer &answer) const {
        nlohmann::ordered_json json = json_of(answer.device.device, answer.device.site, answer.reply);
        if (answer.reply != Reply::answered) {
            json["reason"] = answer.reason;
            return tool::json_text(json);
        }
        std::string text = tool::json_text(json);
        text.back() = ',';
        text += "\"messages\":[";
        for (const tool::Item &item : answer.messages) {
            if (text.back() != '[') text += ',';
            text += tool::json_line(item);
            if (text.back() == '\n') text.pop_back();
        }
        return text + "]}";
    }

    Exit finish() {
        for (const std::string &name : wanted_) {
            constexpr char reason[] = "no such device replies to the discovery";
            is_complete_ = false;
            print_problem(name, std::string(word(Reply::silent)) + ": " + reason);
            if (!out_ || !options_.json) continue;
            nlohmann::ordered_json json = json_of(name, nullptr, Reply::silent);
            json["reason"] = reason;
            out_->append(tool::json_text(json) + "\n");
        }
        if (saved_) saved_->finish();
        if (out_) out_->finish();
        if (asked_.empty() && wanted_.empty()) {
            is_complete_ = false;
            print_problem(fleet_.bus.shown(), std::string("no device ") +
                                                  (fleet_.site.empty() ? "" : "of the site " + fleet_.site + " ") +
                                                  "replies to the discovery");
        }
        return is_complete_ ? Exit::success : Exit::negative;
    }

    const tool::ShowOptions &options_;
    const ShowFleetOptions &fleet_;
    const reflect::BundleOperations &bundle_;
    Asker asker_;
    std::optional<tool::OutputFile> saved_, out_;
    Asker::Clock::time_point begin_ = Asker::Clock::now(), last_found_ = begin_;
    Asker::Clock::time_point deadline_ =
        begin_ + std::chrono::duration_cast<Asker::Clock::duration>(std::chrono::duration<double>(options_.timeout));
    std::set<std::string> wanted_;  // names without a site that have not been found
    std::set<DeviceName> asked_;
    std::map<DeviceName, std::string> ids_;
    std::size_t ended_ = 0;
    bool is_complete_ = true;
    const bool is_terminal_ = ::isatty(STDOUT_FILENO) != 0;
    std::optional<tool::Progress> progress_{"devices"};
    std::string text_;
};

Exit show_fleet(const tool::ShowOptions &options, const ShowFleetOptions &fleet) {
    if (fleet.devices.empty() && fleet.site.empty() && !fleet.all) {
        throw Failure(Exit::input, "--bus requires one of --device, --site, --all");
    }
    tool::set_up_trace(options.verbose);
    if (!options.force) tool::refuse_terminal(options.save);
    return ShowFleet(options, fleet).run();
}

std::string device_problem(const std::string &text) {
    const std::size_t slash = text.find('/');
    if (slash == std::string::npos) return name_problem(text);
    const std::string site = name_problem(text.substr(0, slash));
    return site.empty() ? name_problem(text.substr(slash + 1)) : site;
}

}  // namespace

void extend_show(CLI::App &command, CLI::Option_group &endpoint, tool::ShowOptions &options) {
    auto fleet = std::make_shared<ShowFleetOptions>();
    CLI::Option *bus = add_bus(command, endpoint, fleet->bus);
    CLI::Option_group *which = command.add_option_group("devices", "Which devices to ask on the bus");
    which->add_option("--device", fleet->devices, "This device, or SITE/DEVICE; repeatable")
        ->type_name(words::device)
        ->check(device_problem)
        ->allow_extra_args(false)
        ->needs(bus);
    which->add_option("--site", fleet->site, "All devices of this site")
        ->type_name(words::site)
        ->check(name_problem)
        ->needs(bus);
    which->add_flag("--all", fleet->all, "All devices")->needs(bus);
    which->require_option(0, 1);
    bus->excludes(command.get_option("--via"));
    bus->each([fleet, &options](const std::string &) {
        options.ask = [fleet, &options] { return show_fleet(options, *fleet); };
    });
}

}  // namespace tarn::fleet
