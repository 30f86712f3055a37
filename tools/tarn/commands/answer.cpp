// tarn answer: serves snapshots of bundles to whoever asks over a socket.
#include <map>
#include <memory>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/service/server.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/trace.h"

namespace tarn::tool {

namespace {

struct AnswerOptions : ServerOptions {
    std::vector<std::string> served;
    bool lenient = false;
};

void load(Answerer &answerer, const AnswerOptions &options) {
    for (const std::string &served : options.served) {
        const std::size_t equals = served.find('=');
        if (equals == std::string::npos || equals + 1 == served.size()) {
            throw Failure(Exit::input, "\"" + served + "\" is not of the form BUNDLE=FILE");
        }
        answerer.add(bundle_named(served.substr(0, equals)), served.substr(equals + 1), options.lenient);
    }
}

const std::map<std::string, Fault> fault_names = {
    {"abort", Fault::abort},         {"second-start", Fault::second_start},
    {"foreign", Fault::foreign},     {"cut", Fault::cut},
    {"unknown", Fault::unknown},     {"rubbish", Fault::rubbish},
    {"no-commit", Fault::no_commit}, {"silent", Fault::silent}};

}  // namespace

void add_answer(CLI::App &app, Context &) {
    auto options = std::make_shared<AnswerOptions>();
    CLI::App *command = app.add_subcommand("answer", "serve snapshots of bundles over a socket or TCP");
    CLI::Option_group *place = command->add_option_group("place", "where to listen");
    place->add_option("--socket", options->socket, "a socket file, which only its owner may use")
        ->type_name(words::file);
    place->add_option("--listen", options->listen, tcp_words("a TCP address, which whoever reaches it may use"))
        ->type_name(words::address);
    place->require_option(1);
    command
        ->add_option("served", options->served,
                     "BUNDLE=FILE: a bundle by name or short form, and its messages as XML, JSON or frames")
        ->type_name(words::bundle_file)
        ->required();
    command->add_option("--peers", options->peers, "how many peers are served at once; more are turned away")
        ->check(CLI::Range(1U, 1U << 20).description(""))
        ->capture_default_str();
    add_seconds(*command, "--idle", options->idle, "seconds after which a silent peer is turned out; 0: never");
    add_seconds(*command, "--frame-time", options->frame_time,
                "seconds within which a request that has begun must be whole; 0: any time");
    add_seconds(*command, "--answer-time", options->answer_time,
                "seconds within which a peer must have read an answer; 0: any time");
    add_size(*command, "--frame-limit", options->frame_limit, "longest frame that a peer may send", 1 << 10);
    add_size(*command, "--unread", options->unread, "most that may wait for a peer to read it", 1 << 10);
    add_size(*command, "--unread-total", options->unread_total,
             "most that may wait for all peers together; beyond it the one with the most is turned out", 1 << 10);
    add_lenient(*command, options->lenient);
    command->add_flag("-v,--verbose", options->verbose, "tell of every peer, and print every trace line");
    command->add_option("--fault", options->fault, "answer wrongly on purpose, to see how the asking side copes")
        ->transform(CLI::CheckedTransformer(fault_names)
                        .description("{abort,cut,foreign,no-commit,rubbish,second-start,silent,unknown}"));
    command->footer(
        "Prints one line when it is ready. SIGINT or SIGTERM ends it with exit code 0. A peer that passes a limit, or\n"
        "sends anything but requests, is named on standard error, with the reason, and disconnected; the others are\n"
        "served on. Sizes are bytes, or take a unit: 64KiB, 16MiB.\n\n"
        "Examples:\n"
        "  tarn answer --socket /tmp/tarn.sock cl-debug=examples/cl_debug.xml\n"
        "  tarn answer --socket /tmp/tarn.sock lumo_tarn_dp_tt_cfg_rsp=tables.json dp-intf=intf.xml\n"
        "  tarn answer --listen 127.0.0.1:28276 cl-debug=examples/cl_debug.xml\n"
        "  tarn answer --socket /tmp/tarn.sock --fault abort cl-debug=examples/cl_debug.xml");
    command->callback([options] {
        set_up_trace(options->verbose);
        Answerer answerer;
        load(answerer, *options);
        Server server(*options, answerer);
        server.open();
        server.run();
    });
}

}  // namespace tarn::tool
