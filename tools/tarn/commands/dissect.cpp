// tarn dissect: prints an annotated dump of frames.
#include <memory>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/dump.h"
#include "tools/tarn/formats/input.h"
#include "tools/tarn/formats/source.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"

namespace tarn::tool {

namespace {

struct DissectOptions {
    InputOptions input;
    bool json = false, source = false;
};

void print(std::string_view text) { write_file("-", text); }

Exit print_dump(const DissectOptions &options) {
    const auto dump = (options.json ? json_dump : text_dump)(print);
    // One file that is no network capture needs no name.
    const std::vector<std::string> &paths = options.input.paths;
    const std::string only = paths.empty() ? shown_path("-") : paths.size() == 1 ? shown_path(paths.front()) : "";
    return for_each_stretch(options.input, [&](Stretch &stretch, const std::string &file) {
        dump->begin(file == only ? "" : file, stretch.offset);
        const Walked walked = walk_frame(stretch.bytes, stretch.offset, *dump);
        dump->end(walked);
        if (!walked.broken) return;
        const std::string fault = "broken at " + sentence_of(*walked.broken);
        // The next frame follows one whose length is right.
        if (stretch.fault.empty()) throw Failure(Exit::input, file + ": " + fault);
        stretch.fault = fault;
    });
}

void print_source(const InputOptions &input) {
    const std::vector<InputFile> files = files_of(input.paths);
    for (const InputFile &file : files) {
        ByteStream bytes = open_bytes(file.path, input.from);
        if (files.size() > 1) print("# " + shown_path(file.path) + "\n");
        write_source(bytes, print);
    }
}

Exit run_dissect(const DissectOptions &options) {
    if (!options.source) return print_dump(options);
    print_source(options.input);
    return Exit::success;
}

}  // namespace

void add_dissect(CLI::App &app, Context &context) {
    auto options = std::make_shared<DissectOptions>();
    CLI::App *command = app.add_subcommand("dissect", "Print an annotated dump of frames, byte by byte");
    add_files(*command, options->input, "Frames");
    CLI::Option_group *form = command->add_option_group("form", "Output format");
    form->add_flag("--json", options->json, "JSON, one object per frame and line");
    form->add_flag("--source", options->source, "Text for editors, which \"tarn assemble\" turns into the same bytes");
    form->require_option(0, 1);
    add_keep_going(*command, options->input.keep_going);
    add_port(*command, options->input.port);
    add_from(*command, options->input.from);
    command->footer(
        "A line begins with an offset and at most eight bytes, a line that continues it has\n"
        "at most sixteen. The head of a record, an address, a boolean, an enumeration and\n"
        "the state of a member share a line. If a frame is broken, the dump stops at the\n"
        "error, which is printed on standard error with its offset and reason. With\n"
        "--keep-going, it continues at the next frame, and the error says how many bytes\n"
        "are skipped.\n\n"
        "With --json, each frame is one line: an object with its file if there are\n"
        "several, its offset, its parts, their size, and \"broken\" if it is broken. A part\n"
        "has name, offset, size, kind and value; a group, such as a record or a list, has\n"
        "name, kind and parts; an element of a list also has its index. A pointer also has\n"
        "its value in hexadecimal, and an address its text, as \"text\".\n\n"
        "With --source, all bytes are printed, also those of broken frames and between\n"
        "frames. docs/assemble.md describes the language.\n\n"
        "Examples:\n"
        "  tarn dissect answer.bin\n"
        "  tarn dissect answer.bin --source > answer.txt\n"
        "  tarn encode examples/cl_debug.xml | tarn dissect");
    command->callback([options, &context] { context.exit = run_dissect(*options); });
}

}  // namespace tarn::tool
