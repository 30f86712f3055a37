// tarn answer: serves bundles from files over a Unix domain socket or TCP.
#include "tools/tarn/commands/answer.h"

#include <map>
#include <memory>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/extension.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"
#include "tools/tarn/support/privileges.h"
#include "tools/tarn/support/trace.h"

namespace tarn::tool {

namespace {

void load(Answerer &answerer, const AnswerOptions &options) {
    for (const std::string &served : options.served) {
        const std::size_t equals = served.find('=');
        if (equals == std::string::npos || equals + 1 == served.size()) {
            throw Failure(Exit::input, in_quotes(served) + " is not of the form BUNDLE=FILE");
        }
        answerer.add(bundle_named(served.substr(0, equals)), served.substr(equals + 1), options.lenient);
    }
}

const std::map<std::string, Fault> fault_names = {
    {"abort", Fault::abort},         {"second-start", Fault::second_start},
    {"foreign", Fault::foreign},     {"cut", Fault::cut},
    {"unknown", Fault::unknown},     {"garbage", Fault::garbage},
    {"no-commit", Fault::no_commit}, {"silent", Fault::silent}};

}  // namespace

void add_answer(CLI::App &app, Context &) {
    auto options = std::make_shared<AnswerOptions>();
    CLI::App *command = app.add_subcommand("answer", "Serve bundles from files over a Unix domain socket or TCP");
    CLI::Option_group *endpoint = command->add_option_group("endpoint", "Where to listen");
    endpoint->add_option("--socket", options->socket, "Unix domain socket; only its owner may connect")
        ->type_name(words::file);
    endpoint
        ->add_option("--listen", options->listen,
                     tcp_words() + "; no authentication: anyone who can reach it may connect")
        ->type_name(words::address);
    endpoint->require_option(1);
    command->add_option("served", options->served, "A bundle, and the file with its messages as frames, XML or JSON")
        ->type_name(words::bundle_file)
        ->required();
    command
        ->add_option("--peers", options->peers,
                     "Maximum number of peers; an additional peer takes the place of a silent one, or is refused")
        ->check(CLI::Range(1U, 1U << 20).description(""))
        ->capture_default_str();
    add_seconds(*command, "--idle", options->idle, "Disconnect a peer that is silent for longer; 0: never");
    add_seconds(*command, "--frame-time", options->frame_time,
                "Disconnect a peer that takes longer to send a frame; 0: never");
    add_seconds(*command, "--answer-time", options->answer_time,
                "Disconnect a peer that takes longer to read an answer; 0: never");
    add_size(*command, "--frame-limit", options->frame_limit, "Largest frame that a peer may send", 1 << 10);
    add_size(*command, "--unread", options->unread,
             "Maximum size of the answers that one peer has not read yet, and thus of one answer", 1 << 10);
    add_size(*command, "--unread-total", options->unread_total,
             "Maximum memory for all answers that have not been read yet, at least --unread; beyond it the peer that "
             "reads slowest is disconnected",
             1 << 10);
    command
        ->add_option("--share", options->share,
                     "Maximum share of one origin in --peers and --unread-total, in percent; an origin is a user of a "
                     "socket, or an address")
        ->check(CLI::Range(1U, 100U).description(""))
        ->type_name("PERCENT")
        ->capture_default_str();
    add_seconds(*command, "--stall", options->stall,
                "A peer that reads nothing for this long gives way to others that need its place or its memory; 0: "
                "never");
    command
        ->add_option("--log-rate", options->log_rate,
                     "Maximum number of lines per second on standard error about the peers of one origin; 0: no limit")
        ->check(CLI::Range(0U, 1U << 20).description(""))
        ->type_name("LINES")
        ->capture_default_str();
    add_size(*command, "--snapshot-limit", options->snapshot_limit,
             "Maximum memory for the served messages, each kept with and without per-field state", 1 << 10);
    add_lenient(*command, options->lenient);
    command->add_flag("-v,--verbose", options->verbose,
                      "Log connections and requests on standard error, with all trace lines");
    command->add_option("--fault", options->fault, "Send a deliberately broken answer, to test the requesting side")
        ->transform(CLI::CheckedTransformer(fault_names)
                        .description("{abort,cut,foreign,garbage,no-commit,second-start,silent,unknown}"));
    command->footer(
        "Prints one line when it is ready to accept connections, and a summary when it\n"
        "stops. SIGINT and SIGTERM stop it with exit code 0. A peer that exceeds a limit,\n"
        "or sends anything but requests, is disconnected and reported on standard error\n"
        "with the reason; other peers are not affected.\n\n"
        "Once the socket is open, the process has no capabilities, also as root. The unit\n"
        "tarn-answer@.service runs it for systemd, as a user of its own.\n\n"
        "Examples:\n"
        "  tarn answer --socket /tmp/tarn.sock cl-debug=examples/cl_debug.xml\n"
        "  tarn answer --socket /tmp/tarn.sock dp-tt-cfg=tables.json dp-intf=intf.xml\n"
        "  tarn answer --listen 127.0.0.1:28276 cl-debug=examples/cl_debug.xml\n"
        "  tarn answer --socket /tmp/tarn.sock --fault abort cl-debug=examples/cl_debug.xml");
    if (extension != nullptr) extension->extend_answer(*command, *endpoint, *options);
    command->callback([options] {
        if (options->unread_total < options->unread) {
            throw Failure(Exit::input,
                          "--unread-total is less than --unread, " + std::to_string(options->unread) + " bytes");
        }
        Log log;
        set_up_trace(options->verbose);
        const TraceToLog trace(log);
        Answerer answerer(options->snapshot_limit);
        load(answerer, *options);
        if (options->serve) return options->serve(answerer, log);
        Server server(*options, answerer, log);
        server.open();
        // Files have been read and the socket is open: what peers send is handled without the privileges of root.
        drop_capabilities();
        server.run();
    });
}

}  // namespace tarn::tool
