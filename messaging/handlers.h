// The default handlers of received messages, each of which a process may replace by linking its own, and the
// registration of handlers for whole bundles.
#pragma once

#include "messaging/identity.h"

namespace tarn {

template <const Message &M>
struct MessageHandler {
    static void unhandled(mirk_handle *h, std::uint32_t ctx_id, void *dispatch_ctx, void *message, std::uint32_t *err);
};

template <const Bundle &B>
struct BundleHandler {
    static void start(mirk_handle *h, std::uint32_t ctx_id, void *dispatch_ctx, void *message, std::uint32_t *err);
    static void abort(mirk_handle *h, std::uint32_t ctx_id, void *dispatch_ctx, void *message, std::uint32_t *err);
    static void commit(mirk_handle *h, std::uint32_t ctx_id, void *dispatch_ctx, void *message, std::uint32_t *err);
    static void unhandled(mirk_handle *h, std::uint32_t ctx_id, void *dispatch_ctx, std::uint32_t *err);
    static mirk_bundle_handler register_handler(mirk_bundle_handler handler);
    static mirk_bundle_handler unregister_handler();
};

}  // namespace tarn
