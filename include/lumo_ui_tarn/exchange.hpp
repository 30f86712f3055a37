/// @file
/// exchange.hpp - requests bundles from other processes, and serves them.
///
///     handle h;
///     context c(h);
///     for (const dp_tt_msg &message : ask<dp_tt_cfg_rsp>(c, "/run/tarn.sock")) ...
///
///     answers known;
///     known.add<cl_debug_rsp>([](bundle_writer<cl_debug_rsp> &answer) { answer.add(...); });
///     serve("/run/tarn.sock", known);
///
/// An address with a slash is the path of a socket file, such as "/run/tarn.sock" or "./tarn.sock". Any other is a TCP
/// address as mirk_platform_server_open_tcp() takes it: "HOST:PORT", "HOST", ":PORT" or "".
///
/// These functions use the transport of the reference runtime, whose limits apply: link mirklib as well. The rest of
/// the C++ interface works with any runtime. mirk_platform.h describes the options and the errors of the transport.
#ifndef LUMO_UI_TARN_EXCHANGE_HPP
#define LUMO_UI_TARN_EXCHANGE_HPP

#include <mirk_platform.h>
#include <lumo_ui_tarn.hpp>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <functional>
#include <limits>
#include <map>
#include <new>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace lumo_ui_tarn {

/// A handle of the reference runtime. It must outlive the contexts and objects that use it.
class handle {
public:
    /// Opens a handle with default options. Throws std::bad_alloc if allocation fails; calls std::abort() in programs
    /// without exceptions.
    explicit handle(mirk_platform_tracking tracking = MIRK_PLATFORM_TRACKING_NONE) : handle(with(tracking)) {}
    /// Opens a handle with these options. Errors as above.
    explicit handle(const mirk_platform_handle_options &options) : native_(mirk_platform_handle_open(&options)) {
        if (native_ != nullptr) return;
#if defined(__cpp_exceptions)
        throw std::bad_alloc();
#else
        std::abort();
#endif
    }
    /// A handle has one owner.
    handle(const handle &) = delete;
    /// A handle has one owner.
    handle &operator=(const handle &) = delete;
    /// Closes the handle and frees its blocks.
    ~handle() { mirk_platform_handle_close(native_); }
    /// The C object.
    operator mirk_handle *() const noexcept { return native_; }

private:
    static mirk_platform_handle_options with(mirk_platform_tracking tracking) noexcept {
        mirk_platform_handle_options options;
        mirk_platform_handle_options_init(&options);
        options.tracking = tracking;
        return options;
    }

    mirk_handle *native_;
};

/// Options of ask().
struct ask_options {
    std::chrono::milliseconds timeout = std::chrono::seconds(10);  ///< from the call to the end of the bundle
    bundle_limits limits;                                          ///< on what the peer sends
};

namespace detail {

/// @cond helpers
/// Opens a client or a server at an address. The C functions would take the text up to a NUL for the address.
template <class Open, class... Arguments>
std::uint32_t open_at(const std::string &address, Open at_path, Open at_tcp, Arguments... arguments) {
    if (address.find('\0') != std::string::npos) return EINVAL;
    const bool is_path = address.find('/') != std::string::npos;
    return (is_path ? at_path : at_tcp)(address.c_str(), arguments...);
}

/// A connection of ask(). Errors are reported in the context.
class connection {
public:
    connection(lumo_ui_tarn::context &c, const std::string &address, const ask_options &options)
        : context_(&c), address_(address), end_(std::chrono::steady_clock::now() + options.timeout) {
        const auto limit = (std::min)(options.limits.frame, std::size_t{std::numeric_limits<std::uint32_t>::max()});
        check(open_at(address, mirk_platform_client_open, mirk_platform_client_open_tcp,
                      static_cast<std::uint32_t>(limit), left_ms(), &client_),
              "cannot connect");
    }
    connection(const connection &) = delete;
    connection &operator=(const connection &) = delete;
    ~connection() { mirk_platform_client_close(client_); }

    void request(const char *bundle) {
        std::uint8_t frame[MIRK_PLATFORM_REQUEST_SIZE_MAX];
        const std::uint8_t options = context_->tracks() ? MIRK_PLATFORM_REQUEST_TRACKED : 0;
        const std::uint32_t size = mirk_platform_request_encode(frame, sizeof frame, 0, bundle, options, nullptr);
        const mirk_platform_error error = mirk_platform_client_send(client_, frame, size, left_ms());
        // A peer that has no room refuses without waiting for the request.
        if (error == EPIPE || error == ECONNRESET) receive();
        check(error, "cannot send the request");
    }

    /// Returns the next frame, or nothing after an error or a refusal, which are reported.
    std::string_view receive() {
        void *bytes = nullptr;
        std::uint32_t size = 0;
        const std::uint32_t left = left_ms();
        check(left == 0 ? ETIMEDOUT : mirk_platform_client_receive(client_, &bytes, &size, left), "no complete answer");
        if (!context_->ok()) return {};
        mirk_platform_request reply;
        if (mirk_platform_request_decode(bytes, size, &reply) != 0) return {static_cast<const char *>(bytes), size};
        if ((reply.options & MIRK_PLATFORM_REQUEST_REFUSED) == 0) check(EBADMSG, "the answer is a request");
        std::string refusal = "refused: ";
        print(refusal, std::string(reply.sentence));
        check(reply.number != 0 ? reply.number : EBADMSG, refusal);
        return {};
    }

private:
    std::uint32_t left_ms() const {
        using std::chrono::milliseconds;
        const auto left = std::chrono::duration_cast<milliseconds>(end_ - std::chrono::steady_clock::now());
        constexpr milliseconds longest(std::numeric_limits<std::uint32_t>::max());
        return static_cast<std::uint32_t>((std::clamp)(left, milliseconds(0), longest).count());
    }
    void check(std::uint32_t error, const std::string &what) const {
        if (error != 0 && context_->ok()) context_->fail(error, (address_ + ": " + what).c_str());
    }

    lumo_ui_tarn::context *context_;
    std::string address_;
    std::chrono::steady_clock::time_point end_;
    mirk_platform_client *client_ = nullptr;
};
/// @endcond

}  // namespace detail

/// Requests a bundle from the process that listens on the address, and returns its messages. They have state bytes if
/// the handle tracks state.
/// - Errors of connecting, such as ENOENT, ECONNREFUSED and EADDRNOTAVAIL: see mirk_platform_client_open() and
///   mirk_platform_client_open_tcp().
/// - EINVAL: the address contains a NUL character.
/// - ETIMEDOUT: the bundle is not complete within the timeout.
/// - ECONNRESET, EPIPE: the peer closed the connection before the end of the bundle.
/// - ECANCELED: the peer aborted the bundle.
/// - The number that the peer chose: it refused the request.
/// - Other errors are those of bundle_reader.
template <class B>
[[nodiscard]] typename bundle_reader<B>::bundle ask(context &c, const std::string &address,
                                                    const ask_options &options = {}) {
    bundle_reader<B> reader(c, options.limits);
    if (!c.ok()) return {};
    detail::connection peer(c, address, options);
    if (c.ok()) peer.request(B::name);
    while (c.ok()) {
        const std::string_view frame = peer.receive();
        reader.feed(frame.data(), frame.size());
        if (auto bundle = reader.next()) return std::move(*bundle);
    }
    return {};
}

/// The bundles that a server answers with, and the callbacks that write them.
class answers {
public:
    /// Calls answer(bundle_writer<B> &) for each request for this bundle, to add its messages. Each answer has a handle
    /// of its own, with state bytes if the request demands them; bundle.context() is its context. The bundle is
    /// committed afterwards, unless the callback has called abort() or commit().
    ///
    /// An exception, or an error that the context keeps, refuses the request: the peer gets the error number and the
    /// text of std::system_error, or EIO and the text of any other std::exception.
    template <class B, class Answer>
    answers &add(Answer answer) {
        callbacks_[B::name] = [write = std::move(answer)](context &c) mutable {
            bundle_writer<B> bundle(c);
            if (c.ok()) write(bundle);
            if (c.ok() && bundle.is_open()) bundle.commit();
            return bundle.frames();
        };
        return *this;
    }

private:
    friend class server;
    std::map<std::string, std::function<frame(context &)>> callbacks_;
};

/// Options of a server. Initially those of mirk_platform_server_options_init() and mirk_platform_handle_options_init(),
/// except that peers may send no frame that is longer than a request.
struct server_options {
    mirk_platform_server_options transport;  ///< limits on peers; its callbacks and user are not used
    mirk_platform_handle_options handle;     ///< of each answer; its tracking follows from the request
    errors mode = usual_errors;              ///< of the server and of the contexts of answers

    /// Sets the defaults.
    server_options() {
        mirk_platform_server_options_init(&transport);
        mirk_platform_handle_options_init(&handle);
        transport.frame_limit = MIRK_PLATFORM_REQUEST_SIZE_MAX;
    }
};

/// Answers requests for bundles. Requests for others are refused with ENOENT; a peer that sends something other than a
/// request is disconnected.
class server {
public:
    /// Listens on the address. Errors are those of mirk_platform_server_open() and mirk_platform_server_open_tcp().
    server(const std::string &address, answers known, const server_options &options = {})
        : answers_(std::move(known)), options_(options) {
        options_.transport.user = this;
        options_.transport.on_connect = nullptr;
        options_.transport.on_disconnect = nullptr;
        options_.transport.on_refused = nullptr;
        options_.transport.on_frame = [](void *user, mirk_platform_server *, mirk_platform_peer peer, void *bytes,
                                         std::uint32_t size) {
            static_cast<server *>(user)->on_frame(peer, bytes, size);
        };
        const mirk_platform_server_options *transport = &options_.transport;
        check(detail::open_at(address, mirk_platform_server_open, mirk_platform_server_open_tcp, transport, &native_),
              address);
    }
    /// The transport keeps a pointer to the server.
    server(const server &) = delete;
    /// The transport keeps a pointer to the server.
    server &operator=(const server &) = delete;
    /// Disconnects all peers and removes the socket file.
    ~server() { mirk_platform_server_close(native_); }

    /// Serves until stop() is called. All callbacks run on the calling thread. Call it once.
    void run() {
        if (native_ != nullptr) check(mirk_platform_server_run(native_), "the server failed");
    }
    /// Ends run(). May be called from any thread and from a signal handler.
    void stop() noexcept {
        if (native_ != nullptr) mirk_platform_server_stop(native_);
    }
    /// From now on, SIGINT and SIGTERM end run(). They have their default action again when the server is destroyed.
    void stop_on_signals() {
        if (native_ != nullptr) check(mirk_platform_server_stop_on_signals(native_), "cannot wait for signals");
    }
    /// Where the server listens: the path of its socket file, or address and port such as "127.0.0.1:28276".
    [[nodiscard]] std::string address() const {
        return native_ != nullptr ? mirk_platform_server_place(native_) : std::string();
    }
    /// The error of listening or of run() if options.mode is errors::kept.
    [[nodiscard]] std::error_code error() const noexcept { return error_; }

private:
    void check(std::uint32_t error, const std::string &what) {
        if (error == 0) return;
        error_ = {static_cast<int>(error), std::generic_category()};
#if defined(__cpp_exceptions)
        if (options_.mode == errors::thrown) throw std::system_error(error_, what);
#else
        (void)what;
#endif
    }

    void refuse(mirk_platform_peer peer, std::uint32_t number, const char *sentence) {
        mirk_platform_server_refuse(native_, peer, number, sentence);
    }
    void answer(mirk_platform_peer peer, const mirk_platform_request &request) {
        const auto found = answers_.callbacks_.find(request.bundle);
        if (found == answers_.callbacks_.end()) return refuse(peer, ENOENT, "this bundle is not served here");
        mirk_platform_handle_options options = options_.handle;
        const bool tracked = (request.options & MIRK_PLATFORM_REQUEST_TRACKED) != 0;
        options.tracking = tracked ? MIRK_PLATFORM_TRACKING_ON : MIRK_PLATFORM_TRACKING_NONE;
        const handle h(options);
        context c(h, options_.mode);
        frame written = found->second(c);
        if (!c.ok()) {
            return refuse(peer, static_cast<std::uint32_t>(c.error().value()), "the answer could not be written");
        }
        auto *sent = new frame(std::move(written));
        mirk_platform_server_send_shared(
            native_, peer, sent->data(), sent->size(), [](void *owner) { delete static_cast<frame *>(owner); }, sent);
    }
    // No exception may reach the transport.
    void on_frame(mirk_platform_peer peer, const void *bytes, std::uint32_t size) noexcept {
        mirk_platform_request request;
        if (mirk_platform_request_decode(bytes, size, &request) != 0 ||
            (request.options & MIRK_PLATFORM_REQUEST_REFUSED) != 0) {
            return mirk_platform_server_disconnect(native_, peer, "it sent a frame that is not a request");
        }
#if defined(__cpp_exceptions)
        try {
            answer(peer, request);
        } catch (const std::system_error &failure) {
            const bool has_number = failure.code().default_error_condition().category() == std::generic_category();
            refuse(peer, has_number ? static_cast<std::uint32_t>(failure.code().value()) : EIO, failure.what());
        } catch (const std::bad_alloc &) {
            refuse(peer, ENOMEM, "out of memory");
        } catch (const std::exception &failure) {
            refuse(peer, EIO, failure.what());
        } catch (...) {
            refuse(peer, EIO, "the answer could not be written");
        }
#else
        answer(peer, request);
#endif
    }

    answers answers_;
    server_options options_;
    std::error_code error_;
    mirk_platform_server *native_ = nullptr;
};

/// Serves until SIGINT or SIGTERM. Errors are those of server. Returns the error that is kept if options.mode is
/// errors::kept.
inline std::error_code serve(const std::string &address, answers known, const server_options &options = {}) {
    server one(address, std::move(known), options);
    one.stop_on_signals();
    one.run();
    return one.error();
}

}  // namespace lumo_ui_tarn

#endif
