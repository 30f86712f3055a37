// What the program tarn-fleet adds to the command line: commands, and options of commands that both programs have.
#pragma once

#include <CLI/CLI.hpp>

#include "tools/tarn/commands/commands.h"

namespace tarn::tool {

struct AnswerOptions;
struct ShowOptions;

struct Extension {
    void (*add_commands)(CLI::App &app, Context &context);
    // Each gets the group of options that select an endpoint, which it can extend by another kind of endpoint.
    void (*extend_answer)(CLI::App &command, CLI::Option_group &endpoint, AnswerOptions &options);
    void (*extend_show)(CLI::App &command, CLI::Option_group &endpoint, ShowOptions &options);
};

// Null in the program tarn. Set before the command line is defined.
inline const Extension *extension = nullptr;

// What only tarn-fleet has, for the error that names its package.
inline constexpr std::string_view fleet_commands[] = {"collect", "history", "simulate"};
inline constexpr std::string_view fleet_options[] = {"--all",      "--at",        "--bundle",  "--bus",    "--bus-ca",
                                                     "--bus-cert", "--bus-creds", "--bus-key", "--device", "--since",
                                                     "--site",     "--store",     "--until"};
inline constexpr char fleet_package[] = "lumo-ui-tarn-fleet";

}  // namespace tarn::tool
