#include "tools/tarn/service/server.h"

#include <atomic>
#include <cerrno>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <utility>

#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

// Rounds up, so that only 0 becomes 0, which means no limit.
std::uint32_t milliseconds(double seconds) { return static_cast<std::uint32_t>(std::ceil(seconds * 1000)); }

// Signals are delivered to this thread only, so the handler does not run while the pointer is reset.
std::atomic<mirk_platform_server *> server_to_stop = nullptr;

extern "C" void stop_on_signal(int) {
    if (mirk_platform_server *server = server_to_stop) mirk_platform_server_stop(server);
}

}  // namespace

void Server::log(mirk_platform_peer peer, const std::string &line) {
    const auto now = std::chrono::steady_clock::now();
    if (now >= second_ends_) {
        log_omitted();
        second_ends_ = now + std::chrono::seconds(1);
    }
    const char *origin = mirk_platform_server_origin(server_, peer);
    const unsigned lines = ++lines_[origin != nullptr ? origin : "unknown origin"];
    if (options_.log_rate == 0 || lines <= options_.log_rate) log_.line(line);
}

void Server::log_omitted() {
    for (const auto &[origin, lines] : std::exchange(lines_, {})) {
        if (options_.log_rate == 0 || lines <= options_.log_rate) continue;
        log_.line("tarn: " + std::to_string(lines - options_.log_rate) + " lines about peers of " + origin +
                  " were omitted");
    }
}

// Only with --verbose. Peers that exceed a limit or send invalid bytes are always reported; see log_disconnected().
void Server::log_event(mirk_platform_peer peer, const std::string &event) {
    if (options_.verbose) log(peer, "peer " + std::to_string(peer) + ": " + event);
}

void Server::log_disconnected(mirk_platform_peer peer, const char *reason) {
    if (peer == 0) {
        log_.line(std::string("tarn: ") + reason);
    } else {
        ++disconnected_;
        log(peer, "tarn: peer " + std::to_string(peer) + " disconnected: " + reason);
    }
}

Server::~Server() {
    // Further signals must not reach a server that is gone.
    server_to_stop = nullptr;
    mirk_platform_server_close(server_);
}

void Server::open() {
    mirk_platform_server_options settings;
    mirk_platform_server_options_init(&settings);
    settings.peer_limit = options_.peers;
    settings.frame_limit = static_cast<std::uint32_t>(options_.frame_limit);
    settings.idle_ms = milliseconds(options_.idle);
    settings.pending_limit = options_.unread;
    settings.total_pending_limit = options_.unread_total;
    settings.frame_ms = milliseconds(options_.frame_time);
    settings.answer_ms = milliseconds(options_.answer_time);
    settings.stall_ms = milliseconds(options_.stall);
    settings.origin_share = options_.share;
    settings.user = this;
    settings.on_frame = [](void *user, mirk_platform_server *, mirk_platform_peer peer, void *frame,
                           std::uint32_t size) { static_cast<Server *>(user)->on_frame(peer, frame, size); };
    settings.on_connect = [](void *user, mirk_platform_server *, mirk_platform_peer peer) {
        static_cast<Server *>(user)->log_event(peer, "connected");
    };
    settings.on_disconnect = [](void *user, mirk_platform_server *, mirk_platform_peer peer, const char *reason) {
        static_cast<Server *>(user)->log_event(peer, std::string("disconnected: ") + reason);
    };
    settings.on_refused = [](void *user, mirk_platform_server *, mirk_platform_peer peer, const char *reason) {
        static_cast<Server *>(user)->log_disconnected(peer, reason);
    };
    const bool tcp = !options_.listen.empty();
    const std::string &endpoint = tcp ? options_.listen : options_.socket;
    const auto open = tcp ? mirk_platform_server_open_tcp : mirk_platform_server_open;
    if (const mirk_platform_error error = open(endpoint.c_str(), &settings, &server_); error != 0) {
        throw Failure(tcp && error == EINVAL ? Exit::input : Exit::environment,
                      "cannot listen on " + endpoint + ": " +
                          (tcp && error == EADDRNOTAVAIL ? "the host is unknown or not this machine: " : "") +
                          error_text(error));
    }
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
    log_omitted();
    if (error != 0) throw Failure(Exit::environment, "the server failed: " + error_text(error));
    std::printf("stopped after %u answers, %u peers disconnected\n", answers_, disconnected_);
}

void Server::refuse(mirk_platform_peer peer, std::uint32_t number, const std::string &reason) {
    log_event(peer, "refused: " + reason);
    std::uint8_t frame[MIRK_PLATFORM_REQUEST_SIZE_MAX];
    const std::uint32_t size = mirk_platform_refusal_encode(frame, sizeof frame, 0, number, reason.c_str(), nullptr);
    mirk_platform_server_send(server_, peer, frame, size);
}

void Server::on_frame(mirk_platform_peer peer, const void *frame, std::uint32_t size) {
    mirk_platform_request request;
    const mirk_platform_error error = mirk_platform_request_decode(frame, size, &request);
    if (error != 0 || (request.options & MIRK_PLATFORM_REQUEST_REFUSED) != 0) {
        const char *reason = "it sent a frame that is not a request";
        refuse(peer, error != 0 ? error : EBADMSG, "not a request");
        log_disconnected(peer, reason);
        mirk_platform_server_disconnect(server_, peer, reason);
        return;
    }
    const auto *bundle = reflect::find_bundle(request.bundle);
    if (bundle == nullptr) return refuse(peer, ENOENT, "unknown bundle " + in_quotes(request.bundle));
    if (!answerer_.has(*bundle)) {
        return refuse(peer, ENOENT, std::string(bundle->bundle->name) + " is not served here");
    }
    const bool tracked = (request.options & MIRK_PLATFORM_REQUEST_TRACKED) != 0;
    log_event(peer, "requests " + std::string(request.bundle) + (tracked ? ", tracked" : ""));
    try {
        using Frames = std::shared_ptr<const Bytes>;
        const Frames frames = answerer_.answer(*bundle, tracked, options_.fault);
        mirk_platform_server_send_shared(
            server_, peer, frames->data(), frames->size(), [](void *owner) { delete static_cast<Frames *>(owner); },
            new Frames(frames));
        ++answers_;
        if (options_.fault == Fault::cut) mirk_platform_server_disconnect(server_, peer, "cut on purpose");
    } catch (const std::exception &failure) {
        refuse(peer, EIO, failure.what());
    }
}

}  // namespace tarn::tool
