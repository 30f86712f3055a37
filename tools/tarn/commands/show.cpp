// tarn show: asks a process for a bundle and prints what it answers.
#include <memory>
#include <nlohmann/json.hpp>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/writer.h"
#include "tools/tarn/service/client.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/trace.h"

namespace tarn::tool {

namespace {

enum class Print : std::uint8_t { text, xml, json, hex };

struct ShowOptions {
    std::string what, save;
    Endpoint endpoint;
    AnswerLimits limits;
    bool text = false, xml = false, json = false, hex = false, tracked = false, verbose = false;
    double timeout = 10;
    std::string via = "handle";
};

void print(const Answer &answer, const reflect::BundleOperations &bundle, Print form) {
    std::string out;
    if (form == Print::hex) {
        out = hex_dump(answer.frames);
    } else if (form == Print::json) {
        nlohmann::ordered_json all{{"bundle", bundle.bundle->name}, {"messages", nlohmann::ordered_json::array()}};
        for (const Item &item : answer.messages) all["messages"].push_back(json_of(item));
        out = all.dump(2) + "\n";
    } else {
        for (const Item &item : answer.messages) out += rendered(item, form == Print::xml ? Style::xml : Style::text);
    }
    write_file("-", out);
}

void run_show(const ShowOptions &options) {
    set_up_trace(options.verbose);
    const reflect::BundleOperations &bundle = bundle_named(options.what);
    const Deadline deadline(options.timeout);
    Receiver receiver(options.tracked, via_named(options.via));
    Connection connection(options.endpoint, deadline, options.limits);
    connection.ask(bundle, options.tracked);
    const Answer answer = receive_answer(connection, receiver, bundle);
    if (!options.save.empty()) write_file(options.save, answer.frames);
    if (receiver.committed() == 0) {
        throw Failure(Exit::different, options.endpoint.text() + ": nobody took " + std::string(bundle.bundle->name));
    }
    const Print form = options.xml ? Print::xml : options.json ? Print::json : options.hex ? Print::hex : Print::text;
    print(answer, bundle, form);
}

}  // namespace

void add_show(CLI::App &app, Context &) {
    auto options = std::make_shared<ShowOptions>();
    CLI::App *command = app.add_subcommand("show", "ask a process for a bundle and print its answer");
    command->add_option("what", options->what, "bundle by name or short form, such as cl-debug")
        ->type_name(words::bundle)
        ->required();
    CLI::Option_group *place = command->add_option_group("place", "where the answering process is");
    place->add_option("--socket", options->endpoint.socket, "its socket file")->type_name(words::file);
    place->add_option("--connect", options->endpoint.tcp, tcp_words("its TCP address"))->type_name(words::address);
    place->require_option(1);
    CLI::Option_group *form = command->add_option_group("form", "how to print the answer");
    form->add_flag("--text", options->text, "as indented text, which is the default");
    form->add_flag("--xml", options->xml, "as XML");
    form->add_flag("--json", options->json, "as JSON");
    form->add_flag("--hex", options->hex, "as a dump of the frames");
    form->require_option(0, 1);
    command->add_flag("--tracked", options->tracked, "ask for per-field state, and receive with it");
    add_timeout(*command, options->timeout, "seconds to wait for the whole answer");
    add_limits(*command, options->limits);
    command->add_option("--save", options->save, "keep the frames of the answer in this file, too")
        ->type_name(words::file);
    add_via(*command, options->via, "which link of the handler chain takes the bundle");
    add_verbose(*command, options->verbose);
    command->footer(
        "Exit codes: 0 answered, 1 refused, aborted or not taken, 2 the answer is broken, 3 no connection or no "
        "time.\n\n"
        "Examples:\n"
        "  tarn show cl-debug --socket /tmp/tarn.sock\n"
        "  tarn show dp-tt-cfg --socket /tmp/tarn.sock --json | jq .messages[0].payload\n"
        "  tarn show cl-debug --connect 127.0.0.1:28276\n"
        "  tarn show lumo_tarn_dp_intf_rsp --socket /tmp/tarn.sock --tracked --xml\n"
        "  tarn show cl-debug --socket /tmp/tarn.sock --via module --verbose");
    command->callback([options] { run_show(*options); });
}

}  // namespace tarn::tool
