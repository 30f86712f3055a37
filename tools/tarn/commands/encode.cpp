// tarn encode: converts XML and JSON to frames.
#include <memory>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/many_files.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/frame_writer.h"
#include "tools/tarn/formats/input.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/terminal.h"
#include "tools/tarn/support/trace.h"

namespace tarn::tool {

namespace {

struct EncodeOptions {
    InputOptions input;
    OutputOptions outputs;
    std::string output = "-", bundle;
    std::uint32_t stamp = 0;
    bool tracked = false, verbose = false, force = false;
};

Exit encode(const InputOptions &input, const EncodeOptions &options,
            const std::function<void(std::string_view)> &write) {
    const auto *bundle = options.bundle.empty() ? nullptr : &bundle_named(options.bundle);
    const Handles handles(options.tracked ? Tracking::on : Tracking::as_input);
    FrameWriter writer(handles, bundle, options.stamp, write);
    std::string last;
    const Exit exit = for_each_item(input, handles, [&](Entry &entry) {
        writer.add(entry.item);
        last = entry.file;
    });
    if (exit != Exit::success && (!input.keep_going || last.empty())) return exit;
    if (last.empty()) {
        throw Failure(Exit::input, shown_path(input.paths.empty() ? "-" : input.paths.back()) + ": no message");
    }
    writer.finish(last);
    return exit;
}

Exit run_encode(const EncodeOptions &options) {
    set_up_trace(options.verbose);
    const bool has_directory = !options.outputs.directory.empty();
    if (!options.force && !has_directory) refuse_terminal(options.output);
    if (has_directory || options.output == "-") {
        return convert_files(options.input, options.outputs, ".bin", [&](const InputOptions &input, const auto &write) {
            return encode(input, options, write);
        });
    }
    OutputFile file(options.output);
    const Exit exit = encode(options.input, options, [&](std::string_view frame) { file.append(frame); });
    if (exit == Exit::success || options.input.keep_going) file.finish();
    return exit;
}

}  // namespace

void add_encode(CLI::App &app, Context &context) {
    auto options = std::make_shared<EncodeOptions>();
    CLI::App *command = app.add_subcommand("encode", "Convert XML and JSON to frames");
    add_inputs(*command, options->input);
    add_output(*command, options->output, "Output file");
    add_output_directory(*command, options->outputs);
    command->get_option("--output-directory")->excludes(command->get_option("--output"));
    add_force(*command, options->force);
    command->add_option("--bundle", options->bundle, "Put the start and the commit of this bundle around the messages")
        ->type_name(words::bundle);
    command
        ->add_option("--stamp", options->stamp,
                     "Message stamp: a number of the sender's choice, in the header of each frame")
        ->capture_default_str();
    command->add_flag("--tracked", options->tracked, "Write per-field state");
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
