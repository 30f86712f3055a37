#include "families/text.h"
#include "families/xml.h"
#include "messaging/message.h"

namespace tarn {

template <const Message &M>
std::uint32_t MessageRendering<M>::print(mirk_handle *h, std::uint32_t ctx_id, char *buffer, message_object *message,
                                         std::uint32_t size, std::uint32_t *err) {
    if (*err != 0) {
        static constexpr auto text = named_text<M>("(debug): Already have error when printing ", ": %s");
        trace_message(debug_level, text.data(), error_text(*err));
        return 0;
    }
    mirk_clear_last_error(h);
    const auto room = static_cast<std::int32_t>(size);
    std::uint32_t position = 0;
    const auto left = [&] { return room - static_cast<std::int32_t>(position); };
    position += mirk_print_space(h, ctx_id, buffer, 0, left(), err);
    position += mirk_snprintf(h, ctx_id, buffer + position, left(), err, "message@%s: {\n", M.name.data());
    if (*err != 0) {
        fail(h, err, EMSGSIZE);
    } else {
        position += Text<M.payload>::print(h, ctx_id, buffer + position, 2, M.payload.name.data(), message->payload,
                                           left(), err);
    }
    position += mirk_print_space(h, ctx_id, buffer, 0, left(), err);
    position += mirk_snprintf(h, ctx_id, buffer + position, left(), err, "}\n");
    return position;
}

template <const Message &M>
std::uint32_t MessageRendering<M>::to_xml(mirk_handle *h, std::uint32_t ctx_id, char *buffer, message_object *message,
                                          std::uint32_t size, std::uint32_t *err) {
    if (*err != 0) {
        static constexpr auto text = named_text<M>("(debug): Already have error when rendering XML for ", ": %s");
        trace_message(debug_level, text.data(), error_text(*err));
        return 0;
    }
    mirk_clear_last_error(h);
    const auto room = static_cast<std::int32_t>(size);
    std::uint32_t position = start_tag(h, ctx_id, buffer, M.name.data(), room, 0, err);
    const auto left = [&] { return room - static_cast<std::int32_t>(position); };
    if (*err == 0) {
        position += XmlWrite<M.payload>::to_xml(h, ctx_id, M.payload.name.data(), buffer + position, message->payload,
                                                left(), 0, err);
    }
    position += end_tag(h, ctx_id, buffer + position, M.name.data(), left(), err);
    return position;
}

// A document without the payload's element gives a message with a new payload and no error.
template <const Message &M>
message_object *MessageRendering<M>::from_xml(mirk_handle *h, std::uint32_t ctx_id, void *document, std::uint32_t *err,
                                              char *message_buffer, std::uint32_t message_size) {
    if (*err != 0) {
        static constexpr auto text = named_text<M>("(debug): Already have error when rendering ", " to XML: %s");
        trace_message(debug_level, text.data(), error_text(*err));
        return nullptr;
    }
    mirk_clear_last_error(h);
    message_object *message = MessageObject<M>::create(h, ctx_id);
    if (message == nullptr) {
        fail(h, err, ENOMEM);
        return nullptr;
    }
    static constexpr auto path = named_text<M.payload>("//", "");
    XmlRead<M.payload>::from_xml(h, ctx_id, path.data(), document, message->payload, err, message_buffer, message_size);
    if (*err == ENOENT) *err = 0;
    return *err == 0 ? message : nullptr;
}

}  // namespace tarn

#include "exports/message_rendering.inc"
