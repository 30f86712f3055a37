// tarn show: requests a bundle from a process and prints the answer.
#include "tools/tarn/commands/show.h"

#include <memory>
#include <nlohmann/json.hpp>
#include <utility>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/extension.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/writer.h"
#include "tools/tarn/service/client.h"
#include "tools/tarn/service/spool.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/terminal.h"
#include "tools/tarn/support/trace.h"

namespace tarn::tool {

namespace {

enum class Print : std::uint8_t { text, xml, json, hex };

// Prints the frames of an answer one after the other, so that only one is in memory.
class Printer {
public:
    Printer(const Receiver &receiver, const reflect::BundleOperations &bundle, Print form)
        : receiver_(receiver), form_(form) {
        if (form_ != Print::json) return;
        const nlohmann::ordered_json name(bundle.bundle->name);
        out_.append("{\n  \"bundle\": " + json_text(name, 2) + ",\n  \"messages\": [");
    }

    void add(FrameBytes bytes, const std::string &origin) {
        const Frame frame = identified(bytes, offset_, origin);
        if (form_ == Print::hex) return add_hex(chars_of(bytes));
        offset_ += bytes.size();
        if (frame.identity.is_control()) return;
        const Item item = receiver_.read(frame, origin);
        if (form_ == Print::json) return add_json(item);
        out_.append(rendered(item, form_ == Print::xml ? Style::xml : Style::text));
    }
    void finish() {
        if (form_ == Print::hex) out_.append(hex_dump(rest_, offset_));
        if (form_ == Print::json) out_.append(is_empty_ ? "]\n}\n" : "\n  ]\n}\n");
        out_.finish();
    }

private:
    void add_json(const Item &item) {
        out_.append(std::exchange(is_empty_, false) ? "\n    " : ",\n    ");
        std::string text;
        for (const char c : json_text(json_of(item), 2)) text += c == '\n' ? "\n    " : std::string(1, c);
        out_.append(text);
    }
    // Lines of the dump contain the end of one frame and the begin of the next.
    void add_hex(std::string_view bytes) {
        rest_ += bytes;
        const std::size_t whole = rest_.size() / 16 * 16;
        out_.append(hex_dump(std::string_view(rest_).substr(0, whole), offset_));
        rest_.erase(0, whole);
        offset_ += whole;
    }

    const Receiver &receiver_;
    Print form_;
    OutputFile out_{"-"};
    std::size_t offset_ = 0;
    std::string rest_;
    bool is_empty_ = true;
};

void save(Spool &frames, const std::string &path) {
    OutputFile file(path);
    frames.for_each([&](FrameBytes frame) { file.append(chars_of(frame)); });
    file.finish();
}

// Nothing is printed before the bundle is committed, so the frames are kept until then.
void run_show(const ShowOptions &options) {
    set_up_trace(options.verbose);
    const reflect::BundleOperations &bundle = bundle_named(options.bundle);
    if (!options.force) refuse_terminal(options.save);
    const Deadline deadline(options.timeout);
    Receiver receiver(options.tracked, via_named(options.via));
    Connection connection(options.endpoint, deadline, options.limits);
    connection.request(bundle, options.tracked);
    Spool frames;
    receive_answer(connection, receiver, bundle, [&](const Frame &frame) {
        receiver.feed(frame, connection.name());
        receiver.release();
        frames.append(frame.bytes);
    });
    if (!options.save.empty()) save(frames, options.save);
    if (receiver.handled() == 0) {
        throw Failure(Exit::negative,
                      options.endpoint.text() + ": no handler took " + std::string(bundle.bundle->name));
    }
    if (options.save == "-") return;
    const Print form = options.xml ? Print::xml : options.json ? Print::json : options.hex ? Print::hex : Print::text;
    Printer printer(receiver, bundle, form);
    frames.for_each([&](FrameBytes frame) { printer.add(frame, connection.name()); });
    printer.finish();
}

}  // namespace

void add_show(CLI::App &app, Context &context) {
    auto options = std::make_shared<ShowOptions>();
    CLI::App *command = app.add_subcommand("show", "Request a bundle from a process and print the answer");
    command->add_option("bundle", options->bundle, "The requested bundle")->type_name(words::bundle)->required();
    CLI::Option_group &endpoint = add_endpoint(*command, options->endpoint);
    CLI::Option_group *form = command->add_option_group("form", "Output format");
    form->add_flag("--text", options->text, "Indented text (default)");
    form->add_flag("--xml", options->xml, "XML");
    form->add_flag("--json", options->json, "JSON");
    form->add_flag("--hex", options->hex, "Hexadecimal dump of the frames");
    form->require_option(0, 1);
    command->add_flag("--tracked", options->tracked, "Request and receive per-field state");
    add_timeout(*command, options->timeout, "Timeout for the whole answer");
    add_limits(*command, options->limits);
    command
        ->add_option("--save", options->save,
                     "Also write the frames of the answer to this file; - prints them instead of text")
        ->type_name(words::file);
    add_force(*command, options->force);
    add_via(*command, options->via, "Where to register the handler of the bundle");
    add_verbose(*command, options->verbose);
    command->footer(
        "When a bundle is committed, the library calls a handler, a function of the\n"
        "program; lumo_ui_tarn(3) explains handlers and handles. The library searches\n"
        "four levels in this order and calls the first handler that it finds: in the look-up\n"
        "table of messages (lut), on the receiving handle (handle), for the whole library\n"
        "(module), and for this bundle (bundle). --via selects the level at which tarn\n"
        "registers its handler, to test that level; the output does not depend on it. With\n"
        "\"--via linked\", none is registered, and the handler that is linked into the\n"
        "library discards the bundle: exit code 1.\n\n"
        "Examples:\n"
        "  tarn show cl-debug --socket /tmp/tarn.sock\n"
        "  tarn show dp-tt-cfg --socket /tmp/tarn.sock --json | jq \".messages[0].payload\"\n"
        "  tarn show cl-debug --connect 127.0.0.1:28276\n"
        "  tarn show lumo_tarn_dp_intf_rsp --socket /tmp/tarn.sock --tracked --xml\n"
        "  tarn show cl-debug --socket /tmp/tarn.sock --via module --verbose");
    if (extension != nullptr) extension->extend_show(*command, endpoint, *options);
    command->callback([options, &context] {
        if (options->ask)
            context.exit = options->ask();
        else
            run_show(*options);
    });
}

}  // namespace tarn::tool
