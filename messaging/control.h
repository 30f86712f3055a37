// Control messages: start, abort and commit of a bundle. Their object is a token without content; their frame is the
// header and the identity.
#pragma once

#include "messaging/identity.h"

namespace tarn {

template <const Bundle &B, Control K>
struct ControlMessage {
    static void *create(mirk_handle *h, std::uint32_t ctx_id);
    static void *create_cr(mirk_handle *h);
    static void destroy(mirk_handle *h, std::uint32_t ctx_id, void *token);
    static void destroy_cr(mirk_handle *h, void *token);
    static std::uint32_t len(mirk_handle *, std::uint32_t, void *);
    static std::uint32_t marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, void *token, std::uint32_t size,
                                 std::uint32_t *err);
    static std::uint32_t unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *dispatch_ctx, void **out, void *buffer,
                                   std::uint32_t size, mirk_message_handler handler, std::uint32_t *err);
    static std::uint32_t unmarshal_only(mirk_handle *, std::uint32_t, void **, void *, std::uint32_t, std::uint32_t *);
    static std::uint32_t print(mirk_handle *h, std::uint32_t ctx_id, char *buffer, void *token, std::uint32_t size,
                               std::uint32_t *err);
    static std::uint32_t to_xml(mirk_handle *h, std::uint32_t ctx_id, char *buffer, void *token, std::uint32_t size,
                                std::uint32_t *err);
    static void *from_xml(mirk_handle *h, std::uint32_t ctx_id, void *document, std::uint32_t *err,
                          char *message_buffer, std::uint32_t message_size);
    static std::uint32_t valid_cr(mirk_handle *);

private:
    static void *sentinel();
};

}  // namespace tarn
