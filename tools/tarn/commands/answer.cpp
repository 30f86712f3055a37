// tarn answer: serves snapshots of bundles to whoever asks over a socket.
#include <cmath>
#include <csignal>
#include <cstdio>
#include <memory>

#include "mirk_platform.h"
#include "tools/tarn/commands/command_line.h"
#include "tools/tarn/commands/commands.h"
#include "tools/tarn/service/answerer.h"

namespace tarn::tool {

namespace {

struct AnswerOptions {
    std::string socket, listen;
    std::vector<std::string> served;
    Fault fault = Fault::none;
    unsigned peers = 256;
    double idle = 60, frame_time = 10, answer_time = 60;
    std::uint64_t frame_limit = 64 << 10, unread = 64 << 20, unread_total = 256 << 20;
    bool lenient = false, verbose = false;
};

class Server {
public:
    explicit Server(const AnswerOptions &options) : options_(options) {}
    ~Server() { mirk_platform_server_close(server_); }
    Server(const Server &) = delete;
    Server &operator=(const Server &) = delete;

    void load() {
        for (const std::string &served : options_.served) {
            const std::size_t equals = served.find('=');
            if (equals == std::string::npos || equals + 1 == served.size()) {
                throw Failure(Exit::input, "\"" + served + "\" is not of the form BUNDLE=FILE");
            }
            answerer_.add(bundle_named(served.substr(0, equals)), served.substr(equals + 1), options_.lenient);
        }
    }
    void open();
    void run();

private:
    void on_frame(mirk_platform_peer peer, const void *frame, std::uint32_t size);
    void refuse(mirk_platform_peer peer, std::uint32_t number, const std::string &sentence);
    void note(mirk_platform_peer peer, const std::string &sentence) const {
        if (options_.verbose)
            std::fprintf(stderr, "peer %llu: %s\n", static_cast<unsigned long long>(peer), sentence.c_str());
    }
    // A limit that was passed is told whether or not somebody wants to hear of peers.
    void tell_refused(mirk_platform_peer peer, const char *reason) {
        if (peer == 0) {
            std::fprintf(stderr, "tarn: %s\n", reason);
        } else {
            ++refused_;
            std::fprintf(stderr, "tarn: peer %llu is turned out: %s\n", static_cast<unsigned long long>(peer), reason);
        }
    }

    const AnswerOptions &options_;
    Answerer answerer_;
    mirk_platform_server *server_ = nullptr;
    std::uint32_t answers_ = 0, refused_ = 0;
};

// 0 stays 0, which means no limit, and nothing else becomes it.
std::uint32_t milliseconds(double seconds) { return static_cast<std::uint32_t>(std::ceil(seconds * 1000)); }

mirk_platform_server *server_to_stop = nullptr;

extern "C" void stop_on_signal(int) { mirk_platform_server_stop(server_to_stop); }

void Server::open() {
    mirk_platform_server_options settings;
    mirk_platform_server_options_init(&settings);
    settings.peer_limit = options_.peers;
    settings.frame_limit = static_cast<std::uint32_t>(options_.frame_limit);
    settings.idle_ms = milliseconds(options_.idle);
    settings.pending_limit = options_.unread;
    settings.user = this;
    settings.on_frame = [](void *user, mirk_platform_server *, mirk_platform_peer peer, void *frame,
                           std::uint32_t size) { static_cast<Server *>(user)->on_frame(peer, frame, size); };
    settings.on_connect = [](void *user, mirk_platform_server *, mirk_platform_peer peer) {
        static_cast<Server *>(user)->note(peer, "connected");
    };
    settings.on_disconnect = [](void *user, mirk_platform_server *, mirk_platform_peer peer, const char *reason) {
        static_cast<Server *>(user)->note(peer, std::string("gone: ") + reason);
    };
    const bool tcp = !options_.listen.empty();
    const std::string &place = tcp ? options_.listen : options_.socket;
    const auto open = tcp ? mirk_platform_server_open_tcp : mirk_platform_server_open;
    if (const mirk_platform_error error = open(place.c_str(), &settings, &server_); error != 0) {
        throw Failure(tcp && error == EINVAL ? Exit::input : Exit::environment,
                      "cannot listen on " + place + ": " + error_text(error));
    }
    mirk_platform_server_limits limits;
    mirk_platform_server_limits_init(&limits);
    limits.frame_ms = milliseconds(options_.frame_time);
    limits.answer_ms = milliseconds(options_.answer_time);
    limits.total_pending_limit = options_.unread_total;
    limits.on_refused = [](void *user, mirk_platform_server *, mirk_platform_peer peer, const char *reason) {
        static_cast<Server *>(user)->tell_refused(peer, reason);
    };
    mirk_platform_server_limit(server_, &limits);
}

void Server::run() {
    server_to_stop = server_;
    struct sigaction action {};
    action.sa_handler = stop_on_signal;
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
    std::string names;
    for (const std::string &name : answerer_.names()) names += (names.empty() ? "" : ", ") + name;
    std::printf("answering on %s: %s\n", mirk_platform_server_place(server_), names.c_str());
    std::fflush(stdout);
    const mirk_platform_error error = mirk_platform_server_run(server_);
    if (error != 0) throw Failure(Exit::environment, "serving ended: " + error_text(error));
    std::printf("stopped after %u answers, %u peers turned out\n", answers_, refused_);
}

void Server::refuse(mirk_platform_peer peer, std::uint32_t number, const std::string &sentence) {
    note(peer, "refused: " + sentence);
    std::uint8_t frame[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    const std::uint32_t size = mirk_platform_refusal_encode(frame, sizeof frame, 0, number, sentence.c_str(), nullptr);
    mirk_platform_server_send(server_, peer, frame, size);
}

void Server::on_frame(mirk_platform_peer peer, const void *frame, std::uint32_t size) {
    mirk_platform_request request;
    const mirk_platform_error error = mirk_platform_request_decode(frame, size, &request);
    if (error != 0 || (request.options & MIRK_PLATFORM_REQUEST_REFUSED) != 0) {
        refuse(peer, error != 0 ? error : EBADMSG, "this is no request");
        mirk_platform_server_disconnect(server_, peer, "sent a frame that is no request");
        return;
    }
    const auto *bundle = reflect::find_bundle(request.bundle);
    if (bundle == nullptr) return refuse(peer, ENOENT, "there is no bundle \"" + std::string(request.bundle) + "\"");
    if (!answerer_.has(*bundle)) {
        return refuse(peer, ENOENT, std::string(bundle->bundle->name) + " is not served here");
    }
    const bool tracked = (request.options & MIRK_PLATFORM_REQUEST_TRACKED) != 0;
    note(peer, "asks for " + std::string(request.bundle) + (tracked ? ", tracked" : ""));
    try {
        const Bytes frames = answerer_.answer(*bundle, tracked, ++answers_, options_.fault);
        mirk_platform_server_send(server_, peer, frames.data(), frames.size());
        if (options_.fault == Fault::cut) mirk_platform_server_disconnect(server_, peer, "cut on purpose");
    } catch (const std::exception &failure) {
        refuse(peer, EIO, failure.what());
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
    command->add_flag("--lenient", options->lenient, "pass over what the schema does not know");
    command->add_flag("-v,--verbose", options->verbose, "tell of every peer, and print every trace line");
    command->add_option("--fault", options->fault, "answer wrongly on purpose, to see how the asking side copes")
        ->transform(CLI::CheckedTransformer(fault_names)
                        .description("{abort,cut,foreign,no-commit,rubbish,second-start,silent,unknown}"));
    command->footer(
        "Prints one line when it is ready. SIGINT or SIGTERM ends it with exit code 0. A peer that passes a limit is\n"
        "named on standard error, with the limit, and disconnected; the others are served on. Sizes are bytes, or "
        "take\n"
        "a unit: 64KiB, 16MiB.\n\n"
        "Examples:\n"
        "  tarn answer --socket /tmp/tarn.sock cl-debug=examples/cl_debug.xml\n"
        "  tarn answer --socket /tmp/tarn.sock lumo_tarn_dp_tt_cfg_rsp=tables.json dp-intf=intf.xml\n"
        "  tarn answer --listen 127.0.0.1:28276 cl-debug=examples/cl_debug.xml\n"
        "  tarn answer --socket /tmp/tarn.sock --fault abort cl-debug=examples/cl_debug.xml");
    command->callback([options] {
        set_up_trace(options->verbose);
        Server server(*options);
        server.load();
        server.open();
        server.run();
    });
}

}  // namespace tarn::tool
