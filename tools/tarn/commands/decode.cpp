// tarn decode: converts frames and recordings to text, XML or JSON.
#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <deque>
#include <functional>
#include <memory>
#include <utility>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/many_files.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/input.h"
#include "tools/tarn/formats/writer.h"
#include "tools/tarn/service/receiver.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/trace.h"

namespace tarn::tool {

namespace {

struct DecodeOptions {
    InputOptions input;
    OutputOptions output;
    std::string via = "handle";
    bool text = false, xml = false, json = false, bundles = false, verbose = false;

    Style style() const { return xml ? Style::xml : json ? Style::json : Style::text; }
    std::string_view suffix() const { return xml ? ".xml" : json ? ".json" : ".txt"; }
};

using Write = std::function<void(std::string_view)>;

// The library receives a message even if the open bundle does not admit it, so the tool checks that itself.
void require_admitted(const Frame &frame, const reflect::BundleOperations *open, const std::string &origin) {
    if (open == nullptr || frame.identity.is_control() || admits(*open, *frame.identity.operations)) return;
    throw Failure(Exit::input, not_admitted(frame_location(origin, frame.offset), *open, *frame.identity.operations));
}

// Receives bundles from one file. Each is complete in memory before it is received, since only all of its messages tell
// whether it has per-field state.
class Delivery {
public:
    Delivery(const DecodeOptions &options, bool keep_going, const Write &write)
        : options_(options), failures_(keep_going), write_(write) {}

    void add(const Frame &frame, const std::string &origin) {
        origin_ = origin;
        if (frame.identity.is_control()) in_bundle_ = frame.identity.control == Control::start;
        const Bytes &bytes = held_.emplace_back(frame.bytes.begin(), frame.bytes.end());
        frames_.push_back({bytes, frame.offset, frame.identity});
        if (!in_bundle_) receive();
    }
    Exit finish() {
        receive();
        if (receiver_ && receiver_->in_bundle()) {
            failures_.add({Exit::input, origin_ + ": ends inside " + std::string(open_->bundle->name)});
        }
        const unsigned handled = handled_ + (receiver_ ? receiver_->handled() : 0);
        if (handled < committed_) {
            failures_.add({Exit::negative, origin_ + ": no handler took " + std::to_string(committed_ - handled) +
                                               " of " + std::to_string(committed_) + " bundles"});
        }
        if (options_.verbose) std::fprintf(stderr, "%u bundles were handled\n", handled);
        return failures_.exit();
    }

private:
    void receive() {
        const bool tracked = std::any_of(frames_.begin(), frames_.end(), [](const Frame &f) { return f.is_tracked(); });
        if (!receiver_ || (!receiver_->in_bundle() && receiver_->handle().tracked() != tracked)) {
            if (receiver_) handled_ += receiver_->handled();
            receiver_.emplace(tracked, via_named(options_.via));
        }
        for (const Frame &frame : std::exchange(frames_, {})) receive(frame);
        held_.clear();
    }
    void receive(const Frame &frame) {
        const Identity &identity = frame.identity;
        try {
            require_admitted(frame, open_, origin_);
            receiver_->feed(frame, origin_);
            if (identity.is_control()) open_ = receiver_->in_bundle() ? identity.bundle : nullptr;
            if (identity.is_control() && identity.control == Control::commit) ++committed_;
        } catch (const Failure &failure) {
            failures_.add(with_cause(failure, frame));
        }
        for (const Item &item : receiver_->take()) write_(rendered(item, options_.style()));
        if (identity.is_control() && identity.control == Control::abort) {
            failures_.add({Exit::negative, frame_location(origin_, frame.offset) + ": aborts " +
                                               std::string(identity.bundle->bundle->name)});
        }
    }

    const DecodeOptions &options_;
    Failures failures_;
    const Write &write_;
    std::string origin_;
    std::deque<Bytes> held_;
    std::vector<Frame> frames_;  // in held_
    bool in_bundle_ = false;
    std::optional<Receiver> receiver_;
    const reflect::BundleOperations *open_ = nullptr;
    unsigned handled_ = 0, committed_ = 0;
};

Exit deliver(const InputOptions &input, const DecodeOptions &options, const Write &write) {
    Exit exit = Exit::success;
    std::optional<Delivery> delivery;
    std::string origin;
    const Exit read = for_each_stretch(input, [&](const Stretch &stretch, const std::string &file) {
        if (stretch.offset == 0 && form_of(chars_of(stretch.bytes), file) != Form::frames) {
            throw Failure(Exit::input, file + ": --bundles requires frames");
        }
        // A network capture has several connections, and a bundle does not continue in another.
        if (!delivery || origin != file) {
            if (delivery) exit = std::max(exit, delivery->finish());
            delivery.emplace(options, input.keep_going, write);
            origin = file;
        }
        if (stretch.identity) delivery->add(stretch.frame(), file);
    });
    const bool stopped = read != Exit::success && !input.keep_going;
    if (delivery && !stopped) exit = std::max(exit, delivery->finish());
    return std::max(exit, read);
}

// Names the connection of the messages that follow. Readers of XML ignore it.
std::string heading(const std::string &connection, Style style) {
    return style == Style::xml ? "<!-- " + connection + " -->\n" : "# " + connection + "\n";
}

Exit decode(const InputOptions &input, const DecodeOptions &options, const Write &write) {
    if (!options.bundles) {
        std::string connection;
        Failures warnings(true);
        InputOptions checked = input;
        checked.checks_frames = true;
        return for_each_item(checked, [&](Entry &entry) {
            std::string text = rendered(entry.item, options.style());
            if (entry.broken) {
                warnings.add({Exit::success, entry.item.location + ": warning: it can be read, but is broken at " +
                                                 sentence_of(*entry.broken)});
            }
            if (entry.connection != connection) {
                connection = entry.connection;
                if (options.style() != Style::json) text = heading(connection, options.style()) + text;
            }
            write(text);
        });
    }
    Failures failures(true);
    for (const InputFile &file : files_of(input.paths)) {
        InputOptions one = input;
        one.paths = {file.path};
        try {
            failures.add(deliver(one, options, write));
        } catch (const Failure &failure) {
            if (failure.exit() == Exit::environment) throw;
            failures.add(failure);
        }
    }
    return failures.exit();
}

Exit run_decode(const DecodeOptions &options) {
    // Each message and its text are freed before the next; without this, their pages return to the system each time.
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
    mallopt(M_TRIM_THRESHOLD, 32 << 20);
    set_up_trace(options.verbose);
    return convert_files(options.input, options.output, options.suffix(),
                         [&](const InputOptions &input, const Write &write) { return decode(input, options, write); });
}

}  // namespace

void add_decode(CLI::App &app, Context &context) {
    auto options = std::make_shared<DecodeOptions>();
    CLI::App *command = app.add_subcommand("decode", "Convert frames and recordings to text, XML or JSON");
    add_inputs(*command, options->input);
    add_output_directory(*command, options->output);
    CLI::Option_group *form = command->add_option_group("form", "Output format");
    form->add_flag("--text", options->text, "Indented text (default)");
    form->add_flag("--xml", options->xml, "XML, one message per line");
    form->add_flag("--json", options->json, "JSON, one object per line");
    form->require_option(0, 1);
    CLI::Option *bundles =
        command->add_flag("--bundles", options->bundles,
                          "Receive bundles (the input must be frames): print messages when their bundle is committed");
    add_via(*command, options->via, "Where to register the handler of the bundles")->needs(bundles);
    add_verbose(*command, options->verbose);
    command->footer(
        "With --bundles, a message outside any bundle is printed at once; \"tarn show\n"
        "--help\" explains --via.\n\n"
        "After an error, the next file is read; the exit code is the highest of all errors.\n"
        "With --keep-going, the rest of the file is read, too: bytes that are not a frame\n"
        "are skipped up to the next header of a known message, and their offset,\n"
        "their number and the reason are printed. A syntax error in JSON, and an element\n"
        "of XML without an end, always end their file.\n\n"
        "The library reads some frames that are broken, such as one with bytes after its\n"
        "message. They are decoded with a warning, which does not change the exit code.\n\n"
        "Of a network capture, text and XML name the connection before its messages, and\n"
        "--port chooses the connections. \"tarn rows\" prints the connection in each row.\n\n"
        "Examples:\n"
        "  tarn decode answer.bin --json\n"
        "  tarn encode examples/cl_debug.xml --bundle cl-debug | tarn decode --bundles -v\n"
        "  tarn decode recording.xml\n"
        "  tarn decode --json captures --output-directory decoded --jobs 4");
    command->callback([options, &context] { context.exit = run_decode(*options); });
}

}  // namespace tarn::tool
