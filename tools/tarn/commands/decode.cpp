// tarn decode: converts frames and recordings to text, XML or JSON.
#include <algorithm>
#include <cstdio>
#include <memory>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/dissection.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/formats/writer.h"
#include "tools/tarn/formats/xml.h"
#include "tools/tarn/service/receiver.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/terminal.h"
#include "tools/tarn/support/trace.h"

namespace tarn::tool {

namespace {

struct DecodeOptions {
    std::string file = "-", via = "handle";
    From from = From::detect;
    bool text = false, xml = false, json = false, bundles = false, keep_going = false, lenient = false, verbose = false;

    Style style() const { return xml ? Style::xml : json ? Style::json : Style::text; }
};

// The library reports only that a frame is invalid; the dissection finds the offset.
Failure with_location(const Failure &failure, FrameBytes frame, std::size_t offset, const std::string &origin) {
    const Dissection dissection = dissect_frame(frame, offset);
    const std::string where = dissection.broken ? "; broken at " + sentence_of(*dissection.broken) : std::string();
    const std::string message = failure.what();
    const std::string location = frame_location(origin, offset) + ": ";
    return {failure.exit(), (message.starts_with(location) ? message : location + message) + where};
}

void decode_each(FrameBytes bytes, const std::string &origin, const DecodeOptions &options, Failures &failures) {
    const Handles handles(Tracking::as_input);
    Progress progress("decoding " + origin);
    for (std::size_t offset = 0; offset < bytes.size();) {
        const std::size_t at = offset;
        const FrameBytes frame = frame_bytes_at(bytes, at, origin);
        offset += frame.size();
        progress.at(offset, bytes.size());
        std::string out;
        try {
            out = rendered(item_of(handles, identified(frame, at, origin), origin), options.style());
        } catch (const Failure &failure) {
            failures.add(with_location(failure, frame, at, origin));
        }
        write_file("-", out);
    }
}

// Adds a failure for each frame with an unknown luid, which no bundle can contain.
std::vector<Frame> known_frames(FrameBytes bytes, const std::string &origin, Failures &failures) {
    std::vector<Frame> frames;
    for (std::size_t offset = 0; offset < bytes.size();) {
        const FrameBytes frame = frame_bytes_at(bytes, offset, origin);
        try {
            frames.push_back(identified(frame, offset, origin));
        } catch (const Failure &failure) {
            failures.add(failure);
        }
        offset += frame.size();
    }
    return frames;
}

// The library receives a message even if the open bundle does not admit it, so the tool checks that itself.
void require_admitted(const Frame &frame, const reflect::BundleOperations *open, const std::string &origin) {
    if (open == nullptr || frame.identity.is_control() || admits(*open, *frame.identity.operations)) return;
    throw Failure(Exit::input, not_admitted(frame_location(origin, frame.offset), *open, *frame.identity.operations));
}

void deliver(FrameBytes bytes, const std::string &origin, const DecodeOptions &options, Failures &failures) {
    const std::vector<Frame> frames = known_frames(bytes, origin, failures);
    const bool tracked = std::any_of(frames.begin(), frames.end(), [](const Frame &f) { return f.is_tracked(); });
    Receiver receiver(tracked, via_named(options.via));
    const reflect::BundleOperations *open = nullptr;
    unsigned committed = 0;
    for (const Frame &frame : frames) {
        try {
            require_admitted(frame, open, origin);
            receiver.feed(frame, origin);
            if (frame.identity.is_control()) open = receiver.in_bundle() ? frame.identity.bundle : nullptr;
            if (frame.identity.is_control() && frame.identity.control == Control::commit) ++committed;
        } catch (const Failure &failure) {
            failures.add(with_location(failure, frame.bytes, frame.offset, origin));
        }
        for (const Item &item : receiver.take()) write_file("-", rendered(item, options.style()));
        if (frame.identity.is_control() && frame.identity.control == Control::abort) {
            failures.add({Exit::negative, frame_location(origin, frame.offset) + ": aborts " +
                                              std::string(frame.identity.bundle->bundle->name)});
        }
    }
    if (receiver.in_bundle()) {
        failures.add({Exit::input, origin + ": ends inside " + std::string(open->bundle->name)});
    }
    if (receiver.handled() < committed) {
        failures.add({Exit::negative, origin + ": no handler took " + std::to_string(committed - receiver.handled()) +
                                          " of " + std::to_string(committed) + " bundles"});
    }
    if (options.verbose) std::fprintf(stderr, "%u bundles were handled\n", receiver.handled());
}

void decode_fragments(std::string_view content, const std::string &origin, const DecodeOptions &options,
                      Failures &failures) {
    const Handles handles(Tracking::as_input);
    for (const Fragment &fragment : split_fragments(content, origin)) {
        std::string out;
        try {
            out = rendered(item_of(handles, fragment, origin, options.lenient), options.style());
        } catch (const Failure &failure) {
            failures.add(failure);
        }
        write_file("-", out);
    }
}

Exit run_decode(const DecodeOptions &options) {
    set_up_trace(options.verbose);
    const std::string content = read_input(options.file, options.from);
    const std::string origin = shown_path(options.file);
    Failures failures(options.keep_going);
    const Form form = form_of(content, origin);
    if (options.bundles && form != Form::frames) {
        throw Failure(Exit::input, origin + ": --bundles requires frames");
    }
    switch (form) {
        case Form::frames:
            (options.bundles ? deliver : decode_each)(bytes_of(content), origin, options, failures);
            break;
        case Form::xml:
            decode_fragments(content, origin, options, failures);
            break;
        case Form::json: {
            const Handles handles(Tracking::as_input);
            for (const Item &item : items_of(handles, content, origin, options.lenient)) {
                write_file("-", rendered(item, options.style()));
            }
        }
    }
    return failures.exit();
}

}  // namespace

void add_decode(CLI::App &app, Context &context) {
    auto options = std::make_shared<DecodeOptions>();
    CLI::App *command = app.add_subcommand("decode", "Convert frames and recordings to text, XML or JSON");
    add_input(*command, options->file, "Frames, XML or JSON");
    CLI::Option_group *form = command->add_option_group("form", "Output format");
    form->add_flag("--text", options->text, "Indented text (default)");
    form->add_flag("--xml", options->xml, "XML, one message per line");
    form->add_flag("--json", options->json, "JSON, one object per line");
    form->require_option(0, 1);
    CLI::Option *bundles =
        command->add_flag("--bundles", options->bundles,
                          "Receive bundles (the input must be frames): print messages when their bundle is committed");
    add_via(*command, options->via, "Where to register the handler of the bundles")->needs(bundles);
    command->add_flag("-k,--keep-going", options->keep_going,
                      "Print errors and continue with the next frame or fragment");
    add_from(*command, options->from);
    add_lenient(*command, options->lenient);
    add_verbose(*command, options->verbose);
    command->footer(
        "With --bundles, a message outside any bundle is printed at once; \"tarn show\n"
        "--help\" explains --via. With --keep-going, the exit code is the highest of all\n"
        "errors. Bytes that are not a frame, and an error in JSON, always stop decoding.\n"
        "Malformed XML, such as an element without an end, prevents all output.\n\n"
        "Frames are read as the library reads them, which does not detect every broken\n"
        "frame; \"tarn dissect\" does.\n\n"
        "Examples:\n"
        "  tarn decode answer.bin --json\n"
        "  tarn encode examples/cl_debug.xml --bundle cl-debug | tarn decode --bundles -v\n"
        "  tarn decode recording.xml");
    command->callback([options, &context] { context.exit = run_decode(*options); });
}

}  // namespace tarn::tool
