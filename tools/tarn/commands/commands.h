// The subcommands. Each adds itself to the command line, and sets the exit code when it has run.
#pragma once

#include <CLI/CLI.hpp>

#include "tools/tarn/support/failure.h"

namespace tarn::tool {

struct Context {
    Exit exit = Exit::done;
};

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
