#include "messaging/handlers.h"

#include <array>
#include <string_view>
#include <utility>

#include "core/named_text.h"
#include "messaging/registration.h"

namespace tarn {

namespace {

template <class... Arguments>
void trace_stub(std::uint32_t level, const char *format, Arguments... arguments) {
    skald_wrapper(number_of(g_mirk_lumo_ui_tarn_stub_trace_module_id), level, 0, format, arguments...);
}

// A filler that replaces the name of a function or file by a text of the same length.
template <std::size_t N>
constexpr auto filler = [] {
    std::array<char, N + 1> text{};
    for (std::size_t i = 0; i < N; ++i) text[i] = static_cast<char>('a' + i % 16);
    return text;
}();

void release_token(mirk_handle *h, std::uint32_t ctx_id, void *token) {
    if (token != nullptr) release(h, ctx_id, token);
}

void clear_dispatch(mirk_handle *h) {
    h->recv_bundle_lut = nullptr;
    h->recv_bundle_lut_ref = nullptr;
    h->recv_bundle_commit_lut = nullptr;
}

// The line names an abort for commits, too.
bool is_receiving(mirk_handle *h, std::uint32_t *err) {
    if (mirklib_is_accumulating_bundle(h) != 0) return true;
    trace_message(error_level, "(ERR): Abort message received outside of bundle context");
    fail(h, err, EBADMSG);
    return false;
}

}  // namespace

template <const Message &M>
void MessageHandler<M>::unhandled(mirk_handle *h, std::uint32_t, void *, void *, std::uint32_t *err) {
    fail(h, err, ENOSYS);
    static constexpr auto text = named_text<M>("(info): stub default handler lumo_ui_tarn_", "_message handler called");
    trace_stub(info_level, text.data());
}

// Sets no error: the commit counts as handled, and the messages are discarded.
template <const Bundle &B>
void BundleHandler<B>::unhandled(mirk_handle *, std::uint32_t, void *, std::uint32_t *) {
    constexpr std::size_t own_name =
        std::string_view("lumo_ui_tarn_").size() + B.name.size() + std::string_view("_bundle_handler").size();
    trace_stub(error_level, "(ERR): Call to unimplemented function %s at %s:%d", filler<own_name>.data(),
               filler<58>.data(), 1);
}

template <const Bundle &B>
void BundleHandler<B>::start(mirk_handle *h, std::uint32_t ctx_id, void *, void *message, std::uint32_t *err) {
    if (mirklib_is_accumulating_bundle(h) != 0) {
        fail(h, err, EEXIST);
        static constexpr auto name = named_text<B>("lumo_ui_tarn_", "_bundle_start_message");
        trace_message(error_level, "(ERR): Start message %s received while aready in bundle context", name.data());
    } else {
        h->recv_bundle_open = 1;
        h->recv_bundle_list = {&h->recv_bundle_list, &h->recv_bundle_list};
        void *lut = nullptr;
        mirk_dispatch_info *entry = mirklib_in_dispatch_message_info(h, &lut);
        h->recv_bundle_lut = entry;
        h->recv_bundle_lut_ref = lut;
        h->recv_bundle_commit_lut = nullptr;
        if (entry != nullptr) {
            trace_message(debug_level, "(debug): Bundle starting for %s with LUT %p", entry->name, lut);
        } else {
            static constexpr auto name = named_text<B>("lumo_ui_tarn_", "");
            trace_message(debug_level, "(debug): Bundle %s start message handler with LUT %p", name.data(), lut);
        }
    }
    release_token(h, ctx_id, message);
}

template <const Bundle &B>
void BundleHandler<B>::abort(mirk_handle *h, std::uint32_t ctx_id, void *, void *message, std::uint32_t *err) {
    if (*err != 0) {
        trace_message(error_level, "(ERR): Error set in aborting bundle: %s", error_text(*err));
    } else {
        is_receiving(h, err);
    }
    bundle_receive_message_list_destroy(h, ctx_id, err);
    void *lut = nullptr;
    if (const mirk_dispatch_info *entry = mirklib_in_dispatch_message_info(h, &lut); entry != nullptr) {
        trace_message(debug_level, "(debug): Bundle aborting for %s with LUT %p", entry->name, lut);
    }
    clear_dispatch(h);
    release_token(h, ctx_id, message);
}

namespace {

// At most one handler is called: the first that is registered. The trace line of the third is that of the first.
template <const Bundle &B>
void deliver(mirk_handle *h, std::uint32_t ctx_id, void *dispatch_ctx, const mirk_dispatch_info &entry,
             std::uint32_t *err) {
    const struct {
        mirk_bundle_handler handler;
        const char *line;
    } choices[] = {
        {entry.handler, "(debug): Invoking LUT-registered handler for %s"},
        {h->bundle_handler, "(debug): Invoking MIRK handle-registered handler for %s"},
        {lumo_ui_tarn_bundle_registered_handler, "(debug): Invoking LUT-registered handler for %s"},
        {BundleIdentity<B>::registered_handler, "(debug): Invoking registered bundle handler for %s"},
        {BundleIdentity<B>::handler, "(debug): Invoking linked-in handler for %s"},
    };
    for (const auto &choice : choices) {
        if (choice.handler == nullptr) continue;
        trace_message(debug_level, choice.line, entry.name);
        choice.handler(h, ctx_id, dispatch_ctx, err);
        return;
    }
}

}  // namespace

template <const Bundle &B>
void BundleHandler<B>::commit(mirk_handle *h, std::uint32_t ctx_id, void *dispatch_ctx, void *message,
                              std::uint32_t *err) {
    if (*err != 0) {
        trace_message(error_level, "(ERR): Error set in committing bundle: %s", error_text(*err));
    } else if (is_receiving(h, err)) {
        if (mirk_dispatch_info *entry = mirklib_in_dispatch_message_info(h, nullptr); entry != nullptr) {
            h->recv_bundle_commit_lut = entry;
            deliver<B>(h, ctx_id, dispatch_ctx, *entry, err);
        }
    }
    // A handler that keeps a message has removed it from the list.
    bundle_receive_message_list_destroy(h, ctx_id, err);
    release_token(h, ctx_id, message);
    clear_dispatch(h);
}

template <const Bundle &B>
mirk_bundle_handler BundleHandler<B>::register_handler(mirk_bundle_handler handler) {
    return std::exchange(BundleIdentity<B>::registered_handler, handler);
}

template <const Bundle &B>
mirk_bundle_handler BundleHandler<B>::unregister_handler() {
    return register_handler(nullptr);
}

}  // namespace tarn

#include "exports/handlers.inc"
