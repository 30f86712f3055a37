// What tarn-fleet adds to the command line of tarn.
//
// What each folder may know (tests/layers checks it):
//   bus/       requests and answers between machines: the tool's service/, formats/ and support/
//   store/     answers that are kept: the tool's formats/ and support/
//   http/      metrics and a page of a collector: both, and the tool's service/, pages/, formats/ and support/
//   commands/  the command line: all of them, and the tool
#pragma once

#include <CLI/CLI.hpp>

#include "tools/tarn/commands/extension.h"

namespace tarn::fleet {

void add_simulate(CLI::App &app, tool::Context &context);
void extend_answer(CLI::App &command, CLI::Option_group &endpoint, tool::AnswerOptions &options);
void extend_show(CLI::App &command, CLI::Option_group &endpoint, tool::ShowOptions &options);

void add_collect(CLI::App &app, tool::Context &context);
void add_history(CLI::App &app, tool::Context &context);
// --store of the commands that read files.
void extend_inputs(CLI::App &app);

// The one place where commands and options are added.
extern const tool::Extension fleet_extension;

}  // namespace tarn::fleet
