// The subcommands. Each function adds one to the command line. A command that runs to its end leaves its exit code in
// the context.
//
// What each folder of the tool may know (tests/layers checks it):
//   support/   files, names, handles, exit codes: no format and no other folder of the tool
//   formats/   frames, text, XML and JSON of messages: support/
//   pages/     HTML pages: formats/ and support/
//   service/   sockets, requests and answers: formats/ and support/
//   commands/  the command line: all of the above
#pragma once

#include <CLI/CLI.hpp>

#include "tools/tarn/support/failure.h"

namespace tarn::tool {

struct Context {
    Exit exit = Exit::success;
};

void add_answer(CLI::App &app, Context &context);
void add_show(CLI::App &app, Context &context);
void add_decode(CLI::App &app, Context &context);
void add_encode(CLI::App &app, Context &context);
void add_assemble(CLI::App &app, Context &context);
void add_dissect(CLI::App &app, Context &context);
void add_diff(CLI::App &app, Context &context);
void add_validate(CLI::App &app, Context &context);
void add_view(CLI::App &app, Context &context);
void add_schema(CLI::App &app, Context &context);
void add_manifest(CLI::App &app, Context &context);
void add_generate(CLI::App &app, Context &context);
void add_record(CLI::App &app, Context &context);
void add_export(CLI::App &app, Context &context);
void add_rows(CLI::App &app, Context &context);
void add_watch(CLI::App &app, Context &context);
void add_probe(CLI::App &app, Context &context);

}  // namespace tarn::tool
