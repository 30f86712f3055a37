// The subcommands. Each adds itself to the command line, and sets the exit code when it has run.
#pragma once

#include <CLI/CLI.hpp>

#include "mirk_platform.h"
#include "tools/tarn/support/failure.h"

namespace tarn::tool {

struct Context {
    Exit exit = Exit::done;
};

// What an option that takes a TCP address says of itself.
inline std::string tcp_words(const std::string &what) {
    return "HOST:PORT, " + what + "; without a host 127.0.0.1, without a port " +
           std::to_string(MIRK_PLATFORM_TCP_PORT);
}

// An option that is a time in seconds, at most a day; 0 is for those that mean no limit by it. The value before is the
// default.
void add_seconds(CLI::App &command, const std::string &name, double &seconds, const std::string &what);
// An option that is a number of bytes below 4 GiB, with a unit if somebody likes.
void add_size(CLI::App &command, const std::string &name, std::uint64_t &size, const std::string &what,
              std::uint64_t least);

void add_answer(CLI::App &app, Context &context);
void add_show(CLI::App &app, Context &context);
void add_decode(CLI::App &app, Context &context);
void add_encode(CLI::App &app, Context &context);
void add_dissect(CLI::App &app, Context &context);
void add_diff(CLI::App &app, Context &context);
void add_view(CLI::App &app, Context &context);
void add_schema(CLI::App &app, Context &context);
void add_manifest(CLI::App &app, Context &context);
void add_generate(CLI::App &app, Context &context);
void add_record(CLI::App &app, Context &context);

}  // namespace tarn::tool
