// tarn dissect: prints an annotated dump of frames.
#include <memory>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/dump.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/formats/source.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"

namespace tarn::tool {

namespace {

struct DissectOptions {
    std::string file = "-";
    From from = From::detect;
    bool json = false, source = false;
};

Exit run_dissect(const DissectOptions &options) {
    const std::string content = read_input(options.file, options.from);
    const FrameBytes all = bytes_of(content);
    if (all.empty()) throw Failure(Exit::input, shown_path(options.file) + ": empty");
    const Write write = [](std::string_view text) { write_file("-", text); };
    if (options.source) {
        write_source(all, write);
        return Exit::success;
    }
    const auto dump = (options.json ? json_dump : text_dump)(write);
    for (std::size_t offset = 0; offset < all.size();) {
        dump->begin(offset);
        const Walked walked = walk_frame(all.subspan(offset), offset, *dump);
        dump->end(walked);
        if (walked.broken) {
            throw Failure(Exit::input, shown_path(options.file) + ": broken at " + sentence_of(*walked.broken));
        }
        offset += walked.size;
    }
    return Exit::success;
}

}  // namespace

void add_dissect(CLI::App &app, Context &context) {
    auto options = std::make_shared<DissectOptions>();
    CLI::App *command = app.add_subcommand("dissect", "Print an annotated dump of frames, byte by byte");
    add_input(*command, options->file, "Frames");
    CLI::Option_group *form = command->add_option_group("form", "Output format");
    form->add_flag("--json", options->json, "JSON, one object per frame and line");
    form->add_flag("--source", options->source, "Text for editors, which \"tarn assemble\" turns into the same bytes");
    form->require_option(0, 1);
    add_from(*command, options->from);
    command->footer(
        "A line begins with an offset and at most eight bytes, a line that continues it has\n"
        "at most sixteen. The head of a record, an address, a boolean, an enumeration and\n"
        "the state of a member share a line. If a frame is broken, the dump stops at the\n"
        "error, which is printed on standard error with its offset and reason.\n\n"
        "With --json, each frame is one line: an object with its offset, its parts, its\n"
        "size, and \"broken\" if it is broken. A part has name, offset, size, kind and value;\n"
        "a group, such as a record or a list, has name, kind and parts; an element of a list\n"
        "also has its index.\n\n"
        "With --source, all bytes are printed, also those of broken frames and between\n"
        "frames. docs/assemble.md describes the language.\n\n"
        "Examples:\n"
        "  tarn dissect answer.bin\n"
        "  tarn dissect answer.bin --source > answer.txt\n"
        "  tarn encode examples/cl_debug.xml | tarn dissect");
    command->callback([options, &context] { context.exit = run_dissect(*options); });
}

}  // namespace tarn::tool
