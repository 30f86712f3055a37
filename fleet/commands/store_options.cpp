#include "fleet/commands/store_options.h"

#include "tools/tarn/commands/options.h"
#include "tools/tarn/support/names.h"

namespace tarn::fleet {

CLI::Option *add_store(CLI::App &group, std::string &where) {
    return group
        .add_option("--store", where,
                    "Answers that \"tarn collect\" keeps: a SQLite file, or postgresql://USER@HOST/DATABASE")
        ->type_name(words::store)
        ->check([](const std::string &text) { return text.empty() ? "must not be empty" : std::string(); });
}

void add_bundle_of_store(CLI::App &group, std::string &bundle) {
    group.add_option("--bundle", bundle, "Only this bundle")->type_name(tool::words::bundle);
}

void add_spans(CLI::App &group, SpanOptions &options) {
    add_bundle_of_store(group, options.bundle);
    group.add_option("--since", options.since, "Only what had not ended at this time")->type_name(words::time);
    group.add_option("--until", options.until, "Only what had begun at this time")->type_name(words::time);
}

std::string full_bundle(const std::string &name) {
    return name.empty() ? name : std::string(tool::bundle_named(name).bundle->name);
}

}  // namespace tarn::fleet
