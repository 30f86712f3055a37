// Plain messages. A message object owns one payload record; its frame is the header, the identity and the payload's
// frame.
//
// The layer messaging/ may know families/, core/, the schema and the contract: it moves payloads and never reads their
// members. Nothing below knows that there are messages, except that core/ describes their objects and types. How frames
// travel between processes is the runtime's concern.
#pragma once

#include "core/named_text.h"
#include "families/lifecycle.h"
#include "messaging/identity.h"
#include "schema/frame.h"

namespace tarn {

using schema::Message;

inline constexpr std::uint32_t header_bytes = schema::message_header_size;
inline constexpr std::uint32_t luid_bytes = schema::luid_size;
inline constexpr std::uint32_t frame_head = schema::message_head_size;

// The header of a new message: marker and fill bytes are set, the rest is 0.
constexpr mirk_message_header new_header() {
    mirk_message_header header{schema::frame_marker, {}, 0, 0, 0};
    for (std::uint8_t &byte : header.fill) byte = schema::frame_fill;
    return header;
}

template <const Message &M>
struct MessageObject {
    static message_object *create_shallow(mirk_handle *h, std::uint32_t ctx_id);
    static message_object *create(mirk_handle *h, std::uint32_t ctx_id);
    static void destroy(mirk_handle *h, std::uint32_t ctx_id, message_object *message);
    static mirk_object *get(mirk_handle *h, std::uint32_t ctx_id, message_object *message, std::uint32_t *err);
    static mirk_object *get_detach(mirk_handle *h, std::uint32_t ctx_id, message_object *message, std::uint32_t *err);
    static void set(mirk_handle *h, std::uint32_t ctx_id, message_object *message, mirk_object *payload,
                    std::uint32_t *err);
    static void free_and_set(mirk_handle *h, std::uint32_t ctx_id, message_object *message, mirk_object *payload,
                             std::uint32_t *err);
    static std::uint32_t is_valid_cr(mirk_handle *h);

private:
    static message_object *sentinel();
    static message_object *set_up(mirk_handle *h, std::uint32_t ctx_id, message_object *message);
};

template <const Message &M>
struct MessageWire {
    static std::uint32_t len(mirk_handle *h, std::uint32_t ctx_id, message_object *message);
    static std::uint32_t marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, message_object *message,
                                 std::uint32_t size, std::uint32_t *err);
    static std::uint32_t unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *dispatch_ctx, message_object **out,
                                   void *buffer, std::uint32_t size, mirk_message_handler handler, std::uint32_t *err);
    static std::uint32_t unmarshal_only(mirk_handle *h, std::uint32_t ctx_id, message_object **out, void *buffer,
                                        std::uint32_t size, std::uint32_t *err);
};

template <const Message &M>
struct MessageRendering {
    static std::uint32_t print(mirk_handle *h, std::uint32_t ctx_id, char *buffer, message_object *message,
                               std::uint32_t size, std::uint32_t *err);
    static std::uint32_t to_xml(mirk_handle *h, std::uint32_t ctx_id, char *buffer, message_object *message,
                                std::uint32_t size, std::uint32_t *err);
    static message_object *from_xml(mirk_handle *h, std::uint32_t ctx_id, void *document, std::uint32_t *err,
                                    char *message_buffer, std::uint32_t message_size);
};

// Writes the message as XML to the recorder's stream, if the recorder is on.
template <const Message &M>
struct Recording {
    static void record(mirk_handle *h, std::uint32_t ctx_id, message_object *message, std::uint32_t *err);
};

}  // namespace tarn
