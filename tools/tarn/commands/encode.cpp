// tarn encode: converts XML and JSON to frames.
#include <memory>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/frame_writer.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/terminal.h"
#include "tools/tarn/support/trace.h"

namespace tarn::tool {

namespace {

struct EncodeOptions {
    std::string file = "-", output = "-", bundle;
    std::uint32_t stamp = 0;
    From from = From::detect;
    bool tracked = false, lenient = false, verbose = false, force = false;
};

Exit run_encode(const EncodeOptions &options) {
    set_up_trace(options.verbose);
    if (!options.force) refuse_terminal(options.output);
    const std::string origin = shown_path(options.file);
    const Handles handles(options.tracked ? Tracking::on : Tracking::as_input);
    const std::vector<Item> items = read_items(handles, options.file, options.lenient, options.from);
    const auto *bundle = options.bundle.empty() ? nullptr : &bundle_named(options.bundle);
    write_file(options.output, frames_of(handles, items, origin, bundle, options.stamp));
    return Exit::success;
}

}  // namespace

void add_encode(CLI::App &app, Context &context) {
    auto options = std::make_shared<EncodeOptions>();
    CLI::App *command = app.add_subcommand("encode", "Convert XML and JSON to frames");
    add_input(*command, options->file, "Frames, XML or JSON");
    add_output(*command, options->output, "Output file");
    add_force(*command, options->force);
    command->add_option("--bundle", options->bundle, "Put the start and the commit of this bundle around the messages")
        ->type_name(words::bundle);
    command
        ->add_option("--stamp", options->stamp,
                     "Message stamp: a number of the sender's choice, in the header of each frame")
        ->capture_default_str();
    command->add_flag("--tracked", options->tracked, "Write per-field state");
    add_from(*command, options->from);
    add_lenient(*command, options->lenient);
    add_verbose(*command, options->verbose);
    command->footer(
        "The input is checked against the schema: a misspelled member, an unknown\n"
        "enumerator, a value out of range or a missing payload is an error, reported with\n"
        "its line or path. A missing member is zero; this is not an error, except for a\n"
        "string in XML whose next member is present and no string. --lenient skips most\n"
        "of these checks; for XML, a member after an omitted string may then be ignored.\n\n"
        "Examples:\n"
        "  tarn encode examples/cl_debug.xml -o debug.bin\n"
        "  tarn encode tables.json --bundle dp-tt-cfg --tracked | tarn dissect\n"
        "  tarn decode debug.bin --json | tarn encode -o same.bin");
    command->callback([options, &context] { context.exit = run_encode(*options); });
}

}  // namespace tarn::tool
