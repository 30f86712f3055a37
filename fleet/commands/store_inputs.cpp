// --store of the commands that read files: answers of a store take the place of files.
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "fleet/commands/fleet_commands.h"
#include "fleet/commands/store_options.h"
#include "fleet/store/store.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

namespace {

using tool::Exit;
using tool::Failure;

struct StoreInputOptions {
    std::string store, bundle, at, since, until;
    std::vector<std::string> devices;
};

// Inputs with the bytes of answers in a store.
class StoreInputs {
public:
    explicit StoreInputs(const StoreInputOptions &options)
        : options_(options), bundle_(full_bundle(options.bundle)), store_(std::make_shared<Shared>(options.store)) {
        for (const std::string &device : options.devices) devices_.push_back(store_->store.device_named(device));
    }

    // Of each device, the answers that it had given by that time.
    void add_at(Time time, bool names_time) {
        for (const std::string &wanted : wanted_devices()) {
            std::map<std::string, std::vector<std::int64_t>> ids;  // by device
            for (const StoredAnswer &a : store_->store.answers_at(wanted, bundle_, time)) {
                ids[a.device].push_back(a.id);
            }
            if (ids.empty()) {
                throw Failure(Exit::input, store_->store.shown() + ": no answer" +
                                               (wanted.empty() ? "" : " of " + tool::in_quotes(wanted)) + " by " +
                                               time_text(time));
            }
            for (auto &[device, all] : ids) add(names_time ? device + "@" + time_text(time) : device, std::move(all));
        }
    }

    // Each answer for itself.
    void add_spans(const Selection &times) {
        for (const std::string &device : wanted_devices()) {
            const Selection selection{device, bundle_, times.since, times.until};
            store_->store.for_each_answer(selection, [&](const StoredAnswer &a) {
                const std::string bundle = tool::short_name(a.bundle);
                add(a.device + "/" + bundle + "@" + time_text(a.first_seen), {a.id});
            });
        }
    }

    // The names of the inputs.
    std::vector<std::string> finish() {
        if (names_.empty()) throw Failure(Exit::input, store_->store.shown() + ": no answers are selected");
        return std::move(names_);
    }

private:
    // Commands read several inputs at once.
    struct Shared {
        explicit Shared(const std::string &where) : store(where) {}
        Store store;
        std::mutex lock;
    };

    // An empty name stands for all devices.
    std::vector<std::string> wanted_devices() const {
        return devices_.empty() ? std::vector<std::string>{""} : devices_;
    }

    void add(std::string name, std::vector<std::int64_t> ids) {
        const auto read = [store = store_, ids = std::move(ids)] {
            const std::lock_guard<std::mutex> hold(store->lock);
            std::string bytes;
            for (const std::int64_t id : ids) bytes += store->store.frames(id);
            return bytes;
        };
        names_.push_back(tool::printable(name));
        tool::offer_input(names_.back(), read);
    }

    const StoreInputOptions &options_;
    const std::string bundle_;
    std::shared_ptr<Shared> store_;
    std::vector<std::string> devices_, names_;
};

std::vector<std::string> inputs_of(const StoreInputOptions &options, bool compares) {
    const Time now = time_now();
    if (!options.at.empty() && !(options.since + options.until).empty()) {
        throw Failure(Exit::input, "--at excludes --since and --until");
    }
    if (options.since.empty() && !options.until.empty()) throw Failure(Exit::input, "--until requires --since");
    StoreInputs inputs(options);
    if (options.since.empty()) {
        inputs.add_at(options.at.empty() ? now : time_of(options.at, now), !options.at.empty());
        return inputs.finish();
    }
    const Time since = time_of(options.since, now);
    const Time until = options.until.empty() ? now : time_of(options.until, now);
    if (until < since) throw Failure(Exit::input, "--until is before --since");
    if (compares) {
        inputs.add_at(since, true);
        inputs.add_at(until, true);
    } else {
        inputs.add_spans({.since = since, .until = until});
    }
    return inputs.finish();
}

// The command reads one or two files, `a` and `b`, or any number.
void extend(CLI::App &command, const std::vector<CLI::Option *> &positionals) {
    auto options = std::make_shared<StoreInputOptions>();
    const bool compares = positionals.size() == 2;
    CLI::Option_group *group = command.add_option_group("store", "Answers of a store instead of files");
    // The last one reads the others.
    std::vector<CLI::Option *> others;
    others.push_back(
        group->add_option("--device", options->devices, "This device, or SITE/DEVICE; repeatable; default: all devices")
            ->type_name(words::device)
            ->allow_extra_args(false));
    add_bundle_of_store(*group, options->bundle);
    others.push_back(group->get_option("--bundle"));
    others.push_back(
        group->add_option("--at", options->at, "The last answers by this time; default: now")->type_name(words::time));
    others.push_back(group
                         ->add_option("--since", options->since,
                                      compares ? "Compare the last answers by this time with those by --until"
                                               : "All answers that were given from this time on, each for itself")
                         ->type_name(words::time));
    others.push_back(
        group->add_option("--until", options->until, "End of the time that begins with --since; default: now")
            ->type_name(words::time));
    CLI::Option *store = add_store(*group, options->store);
    for (CLI::Option *other : others) other->needs(store);
    store->each([options, positionals, compares, &command](const std::string &where) {
        if (command.get_help_ptr()->count() != 0) return;
        options->store = where;
        for (const CLI::Option *positional : positionals) {
            if (positional->count() != 0) throw Failure(Exit::input, "--store excludes " + positional->get_name(true));
        }
        const std::vector<std::string> names = inputs_of(*options, compares);
        if (compares && names.size() > 2) {
            throw Failure(Exit::input, "--store: two answers can be compared, not " + std::to_string(names.size()) +
                                           "; --device selects");
        }
        for (std::size_t i = 0; i < names.size(); ++i) positionals[compares ? i : 0]->add_result(names[i]);
        for (CLI::Option *positional : positionals) {
            if (positional->count() != 0) positional->run_callback();
        }
    });
}

}  // namespace

void extend_inputs(CLI::App &app) {
    for (const char *const name : {"decode", "dissect", "rows", "export", "validate"}) {
        CLI::App &command = *app.get_subcommand(name);
        extend(command, {command.get_option("files")});
    }
    for (const char *const name : {"diff", "view"}) {
        CLI::App &command = *app.get_subcommand(name);
        extend(command, {command.get_option("a"), command.get_option("b")});
    }
}

}  // namespace tarn::fleet
