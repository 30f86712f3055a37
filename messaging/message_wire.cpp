#include <cstring>

#include "families/wire.h"
#include "messaging/message.h"

namespace tarn {

template <const Message &M>
std::uint32_t MessageWire<M>::len(mirk_handle *h, std::uint32_t ctx_id, message_object *message) {
    return WireWrite<M.payload>::len(h, ctx_id, message->payload) + frame_head;
}

// The header is written last, since it contains the total length. Until then its bytes are zeros, and they stay zeros
// if the frame fails.
template <const Message &M>
std::uint32_t MessageWire<M>::marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, message_object *message,
                                      std::uint32_t size, std::uint32_t *err) {
    if (*err != 0) {
        trace_message(debug_level, "(debug): Error present in call to message marshal: %s", error_text(*err));
        return 0;
    }
    mirk_clear_last_error(h);
    const char *name = M.name.data();
    if (mirk_domain_lookup_message_ok(h, &h->domain, message->tinfo, err) == 0) {
        trace_message(error_level, "(ERR): domainfail: Message %s (%s) is not allowed for the current domain (%s)",
                      name, M.luid.text.data(), h->domain_name);
        mirk_store_epoch_err(h, EBADE, err);
        return 0;
    }
    if (h->send_bundle_open != 0) {
        bundle_message_validate_add(h, ctx_id, Identity<M>::luid, Identity<M>::name, err);
        if (*err != 0) {
            trace_message(error_level, "(ERR): Message %s is not valid for bundle: %s", name, error_text(*err));
            return 0;
        }
    }
    if (*err != 0) return 0;

    auto *bytes = static_cast<std::uint8_t *>(buffer);
    const auto room = static_cast<std::int32_t>(size);
    std::uint32_t position = 0;
    const auto left = [&] { return room - static_cast<std::int32_t>(position); };
    std::uint8_t *frame = nullptr;
    if (left() < static_cast<std::int32_t>(header_bytes)) {
        fail(h, err, EMSGSIZE);
    } else {
        frame = bytes;
        std::memset(frame, 0, header_bytes);
        position = header_bytes;
        if (left() < static_cast<std::int32_t>(luid_bytes)) {
            fail(h, err, EMSGSIZE);
        } else {
            std::memcpy(bytes + position, Identity<M>::luid, luid_bytes);
            position += luid_bytes;
        }
    }
    position += WireWrite<M.payload>::marshal(h, ctx_id, bytes + position, message->payload, left(), err);
    if (*err != 0) {
        if (mirklib_suppress_messages_enabled(h) != 0) {
            trace_message(debug_level, "(debug): Message %s failed to marshal: %s", name, error_text(*err));
        } else {
            trace_message(error_level, "(ERR): Message %s failed to marshal: %s", name, error_text(*err));
        }
        return position;
    }
    if (h->send_bundle_open != 0) {
        bundle_message_increment_count(h, Identity<M>::luid, err);
        if (*err != 0) {
            trace_message(error_level, "(ERR): Message %s instance is not present in bundle %s", name,
                          error_text(*err));
        }
    }
    if (frame != nullptr && *err == 0) {
        message->header.total_length = position;
        message->header.stamp = h->message_stamp;
        _mirk_message_header_marshal(h, ctx_id, frame, &message->header, header_bytes, err);
    }
    return position;
}

// Skips the identity and does not check the length: a dispatcher has identified the message before.
template <const Message &M>
std::uint32_t MessageWire<M>::unmarshal_only(mirk_handle *h, std::uint32_t ctx_id, message_object **out, void *buffer,
                                             std::uint32_t size, std::uint32_t *err) {
    if (*err != 0) {
        trace_message(debug_level, "(debug): Error present in call to %s unmarshal: %s", M.name.data(),
                      error_text(*err));
        return 0;
    }
    mirk_clear_last_error(h);
    message_object *message = MessageObject<M>::create_shallow(h, ctx_id);
    if (message == nullptr) {
        fail(h, err, ENOMEM);
        return 0;
    }
    std::uint32_t position = luid_bytes;
    if (*err == 0) position += _mirk_message_header_unmarshal(h, ctx_id, buffer, &message->header, size, err);
    message->payload = Lifecycle<M.payload>::create_internal(h, ctx_id);
    if (message->payload == nullptr) fail(h, err, ENOMEM);
    if (*err == 0) {
        position += WireRead<M.payload>::unmarshal(h, ctx_id, static_cast<std::uint8_t *>(buffer) + position,
                                                   message->payload, size - position, 0, err);
    }
    *out = message;
    return position;
}

// After an error the partly read message is neither returned nor destroyed. A process that reads untrusted input for
// long calls unmarshal_only instead, which returns it.
template <const Message &M>
std::uint32_t MessageWire<M>::unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *dispatch_ctx, message_object **out,
                                        void *buffer, std::uint32_t size, mirk_message_handler handler,
                                        std::uint32_t *err) {
    if (*err != 0) {
        trace_message(debug_level, "(debug): Error present in call to %s message unmarshal: %s", M.name.data(),
                      error_text(*err));
        return 0;
    }
    mirk_clear_last_error(h);
    if (out != nullptr) *out = nullptr;
    message_object *message = nullptr;
    const std::uint32_t consumed = unmarshal_only(h, ctx_id, &message, buffer, size, err);
    if (*err != 0) return consumed;
    if (out != nullptr) *out = message;
    Recording<M>::record(h, ctx_id, message, err);
    const mirk_message_handler deliver = handler != nullptr ? handler : Identity<M>::handler;
    deliver(h, ctx_id, dispatch_ctx, message, err);
    return consumed;
}

}  // namespace tarn

#include "exports/message_wire.inc"
