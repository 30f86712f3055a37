// Options of the commands that use the bus.
#pragma once

#include <CLI/CLI.hpp>

#include "fleet/bus/connection.h"

namespace tarn::fleet {

namespace words {
inline constexpr const char *url = "URL";
inline constexpr const char *device = "DEVICE";
inline constexpr const char *site = "SITE";
}  // namespace words

// --bus in the group or the command, and the options with the files that secure the connection.
CLI::Option *add_bus(CLI::App &command, CLI::App &group, BusOptions &options);

// A check for names of devices and sites: what is wrong with the name, or nothing.
std::string name_problem(const std::string &name);

}  // namespace tarn::fleet
