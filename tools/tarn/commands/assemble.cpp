// tarn assemble: turns text into frames.
#include <memory>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/source.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/terminal.h"

namespace tarn::tool {

namespace {

struct AssembleOptions {
    std::string file = "-", output = "-";
    bool force = false;
};

void run_assemble(const AssembleOptions &options) {
    if (!options.force) refuse_terminal(options.output);
    ByteStream text = open_input(options.file);
    OutputFile file(options.output);
    assemble(text, [&](std::string_view bytes) { file.append(bytes); });
    file.finish();
}

}  // namespace

void add_assemble(CLI::App &app, Context &) {
    auto options = std::make_shared<AssembleOptions>();
    CLI::App *command = app.add_subcommand("assemble", "Turn the text of \"dissect --source\" into frames");
    add_input(*command, options->file, "Text");
    add_output(*command, options->output, "Output file");
    add_force(*command, options->force);
    command->footer(
        "The text describes frames member by member, also frames that no library writes:\n"
        "with wrong lengths, jumps and counts, members left out or repeated, and raw bytes\n"
        "anywhere. Text that was not edited gives the bytes that it was printed from.\n"
        "Jumps, counts and lengths are computed unless the text gives them.\n\n"
        "  # a wrong jump, and raw bytes after the last member\n"
        "  frame debug-setting (stamp 7) {\n"
        "    payload {\n"
        "      warn_enabled 1\n"
        "      ...         # the remaining members are zero\n"
        "      <00 ff>\n"
        "    } (jump 19)\n"
        "  }\n\n"
        "An error is reported with its line and column. docs/assemble.md describes the\n"
        "language.\n\n"
        "Examples:\n"
        "  tarn dissect answer.bin --source > answer.txt\n"
        "  tarn assemble answer.txt -o changed.bin");
    command->callback([options] { run_assemble(*options); });
}

}  // namespace tarn::tool
