// tarn encode: XML and JSON into frames.
#include <memory>

#include "commands.h"
#include "files.h"
#include "items.h"

namespace tarn::tool {

namespace {

struct Options {
    std::string file = "-", output = "-", bundle;
    std::uint32_t stamp = 0;
    bool tracked = false, lenient = false, verbose = false;
};

// Frames of one bundle come from one handle, so control messages must go with the messages that they enclose.
class Encoder {
public:
    Encoder(const Handles &handles, std::uint32_t stamp) : handles_(handles), stamp_(stamp) {}

    void add(const Item &item, bool tracked) {
        const Handle &handle = handles_.choose(tracked);
        mirk_platform_handle_set_message_stamp(handle.get(), stamp_);
        try {
            const Bytes frame = frame_of(handle, *item.identity.operations, item.object());
            frames_.append(reinterpret_cast<const char *>(frame.data()), frame.size());
        } catch (const Failure &failure) {
            close();
            throw Failure(failure.exit(), item.place + ": " + failure.what());
        }
    }
    const std::string &finish(const std::string &origin) {
        if (close()) throw Failure(Exit::input, origin + ": ends inside a bundle");
        return frames_;
    }

private:
    bool close() {
        bool was_open = false;
        for (const bool tracked : {false, true}) {
            mirk_handle *h = handles_.choose(tracked).get();
            std::uint32_t err = 0;
            if (h->send_bundle_open == 0) continue;
            bundle_send_message_list_destroy(h, context_id, &err);
            was_open = true;
        }
        return was_open;
    }

    const Handles &handles_;
    std::uint32_t stamp_;
    std::string frames_;
};

bool is_tracked(const Item &item) { return item.message && item.message->handle().tracked(); }

Exit run(const Options &options) {
    set_up_trace(options.verbose);
    const std::string origin = shown_path(options.file);
    const Handles handles(options.tracked ? Tracking::on : Tracking::as_given);
    const std::vector<Item> items = read_items(handles, options.file, options.lenient);
    // Mixed input goes by its first message, since a bundle is open on one handle only.
    bool tracked = false;
    for (const Item &item : items) tracked = tracked || is_tracked(item);
    for (const Item &item : items) {
        if (item.message && is_tracked(item) != tracked) {
            throw Failure(Exit::input,
                          item.place + ": messages with and without per-field state do not mix; use --tracked");
        }
    }
    Encoder encoder(handles, options.stamp);
    const auto *bundle = options.bundle.empty() ? nullptr : &bundle_named(options.bundle);
    const auto control = [&](Control c) {
        encoder.add({{&operations_of(*bundle, c), bundle, c}, std::nullopt, origin}, tracked);
    };
    if (bundle != nullptr) control(Control::start);
    for (const Item &item : items) encoder.add(item, tracked);
    if (bundle != nullptr) control(Control::commit);
    write_file(options.output, encoder.finish(origin));
    return Exit::done;
}

}  // namespace

void add_encode(CLI::App &app, Context &context) {
    auto options = std::make_shared<Options>();
    CLI::App *command = app.add_subcommand("encode", "XML and JSON into frames");
    command->add_option("file", options->file, "XML, JSON, or frames; - is standard input")->capture_default_str();
    command->add_option("-o,--output", options->output, "where the frames go; - is standard output")
        ->capture_default_str();
    command->add_option("--bundle", options->bundle, "put a start and a commit of this bundle around them");
    command->add_option("--stamp", options->stamp, "stamp in every header")->capture_default_str();
    command->add_flag("--tracked", options->tracked, "write per-field state");
    command->add_flag("--lenient", options->lenient, "pass over what the schema does not know");
    command->add_flag("-v,--verbose", options->verbose, "print every trace line on standard error");
    command->footer(
        "Input is held against the schema: a misspelt member, an unknown enumerator, a value too wide or a missing "
        "payload\n"
        "is an error with its line or path.\n\n"
        "Examples:\n"
        "  tarn encode examples/cl_debug.xml -o debug.bin\n"
        "  tarn encode tables.json --bundle dp-tt-cfg --tracked | tarn dissect\n"
        "  tarn decode debug.bin --json | tarn encode -o same.bin");
    command->callback([options, &context] { context.exit = run(*options); });
}

}  // namespace tarn::tool
