// Options of the commands that read a store.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "fleet/commands/bus_options.h"

namespace tarn::fleet {

namespace words {
inline constexpr const char *store = "STORE";
inline constexpr const char *time = "TIME";
}  // namespace words

// --store in the group.
CLI::Option *add_store(CLI::App &group, std::string &where);

// Of history, which prints the spans of time that overlap [since, until].
struct SpanOptions {
    std::string bundle, since, until;
};
void add_bundle_of_store(CLI::App &group, std::string &bundle);
void add_spans(CLI::App &group, SpanOptions &options);

// The full name of a bundle; empty for empty text. Throws a Failure if there is no such bundle.
std::string full_bundle(const std::string &name);

}  // namespace tarn::fleet
