#include "messaging/control.h"

#include "messaging/message.h"

namespace tarn {

namespace {

template <const Bundle &B, Control K>
constinit char sentinel_of = 0;

// The messages that the bundle may contain, for look-ups by the runtime. The null row terminates the table.
template <const Bundle &B>
constinit const mirk_allowed_row allowed_messages[] = {
    {Identity<B.message>::luid, Identity<B.message>::name, 0},
    {message_ui_req_msg_luid, message_ui_req_msg_name, 0},
    {nullptr, nullptr, 0},
};

// Writes zeros for the header, then the identity. Returns the bytes written; sets EMSGSIZE if the buffer is too small.
std::uint32_t begin_frame(mirk_handle *h, void *buffer, std::uint32_t size, const std::uint8_t *luid,
                          std::uint32_t *err) {
    const auto room = static_cast<std::int32_t>(size);
    if (room < static_cast<std::int32_t>(header_bytes)) {
        fail(h, err, EMSGSIZE);
        return 0;
    }
    std::memset(buffer, 0, header_bytes);
    if (room < static_cast<std::int32_t>(frame_head)) {
        fail(h, err, EMSGSIZE);
        return header_bytes;
    }
    std::memcpy(static_cast<std::uint8_t *>(buffer) + header_bytes, luid, luid_bytes);
    return frame_head;
}

void end_frame(mirk_handle *h, std::uint32_t ctx_id, void *buffer, std::uint32_t *err) {
    mirk_message_header header = new_header();
    header.total_length = frame_head;
    header.stamp = h->message_stamp;
    _mirk_message_header_marshal(h, ctx_id, buffer, &header, header_bytes, err);
}

[[gnu::noinline]] void *create_token_cr(mirk_handle *h, void *sentinel) {
    if (h->last_error != 0) return sentinel;
    if (void *token = allocate(h, h->default_id, 0); token != nullptr) return token;
    if (h->last_error == 0) mirk_store_err(h, ENOMEM);
    return sentinel;
}

// Opens the bundle, but only if the frame fits.
[[gnu::noinline]] std::uint32_t marshal_start(mirk_handle *h, std::uint32_t ctx_id, void *buffer, std::uint32_t size,
                                              const std::uint8_t *luid, const mirk_allowed_row *allowed,
                                              std::uint32_t *err) {
    if (!enter(h, err)) return 0;
    if (h->send_bundle_open != 0) {
        fail(h, err, EEXIST);
        return 0;
    }
    const std::uint32_t written = begin_frame(h, buffer, size, luid, err);
    if (written != frame_head) return written;
    h->send_bundle_open = 1;
    h->bundle_table = allowed;
    h->send_bundle_list = {&h->send_bundle_list, &h->send_bundle_list};
    end_frame(h, ctx_id, buffer, err);
    return written;
}

// An abort or a commit closes the open bundle, whichever bundle it belongs to, and even if the frame does not fit: then
// no frame was written, and the caller has to handle that.
[[gnu::noinline]] std::uint32_t marshal_end(mirk_handle *h, std::uint32_t ctx_id, void *buffer, std::uint32_t size,
                                            const std::uint8_t *luid, std::uint32_t *err) {
    if (!enter(h, err)) return 0;
    if (h->send_bundle_open == 0) {
        fail(h, err, ENOENT);
        return 0;
    }
    const std::uint32_t written = begin_frame(h, buffer, size, luid, err);
    if (written == frame_head) end_frame(h, ctx_id, buffer, err);
    bundle_send_message_list_destroy(h, ctx_id, err);
    return written;
}

// Unlike other operations, this one and those below do not check the slot on entry.
[[gnu::noinline]] std::uint32_t print_line(mirk_handle *h, std::uint32_t ctx_id, char *buffer, std::uint32_t size,
                                           const char *format, const char *bundle, std::uint32_t *err) {
    const auto room = static_cast<std::int32_t>(size);
    const std::uint32_t position = mirk_print_space(h, ctx_id, buffer, 0, room, err);
    return position +
           mirk_snprintf(h, ctx_id, buffer + position, room - static_cast<std::int32_t>(position), err, format, bundle);
}

[[gnu::noinline]] std::uint32_t write_element(mirk_handle *h, std::uint32_t ctx_id, char *buffer, std::uint32_t size,
                                              const char *opening, const char *closing, std::uint32_t *err) {
    const auto room = static_cast<std::int32_t>(size);
    const std::uint32_t position = start_tag(h, ctx_id, buffer, opening, room, 0, err);
    return position + end_tag(h, ctx_id, buffer + position, closing, room - static_cast<std::int32_t>(position), err);
}

}  // namespace

template <const Bundle &B, Control K>
void *ControlMessage<B, K>::sentinel() {
    return &sentinel_of<B, K>;
}

template <const Bundle &B, Control K>
void *ControlMessage<B, K>::create(mirk_handle *h, std::uint32_t ctx_id) {
    return allocate(h, ctx_id, 0);
}

template <const Bundle &B, Control K>
void *ControlMessage<B, K>::create_cr(mirk_handle *h) {
    return create_token_cr(h, sentinel());
}

// Unlike the sticky form, does not recognize the sentinel, so a token from create_cr must be released by destroy_cr.
template <const Bundle &B, Control K>
void ControlMessage<B, K>::destroy(mirk_handle *h, std::uint32_t ctx_id, void *token) {
    if (token != nullptr) release(h, ctx_id, token);
}

template <const Bundle &B, Control K>
void ControlMessage<B, K>::destroy_cr(mirk_handle *h, void *token) {
    if (token != sentinel()) destroy(h, h->default_id, token);
}

template <const Bundle &B, Control K>
std::uint32_t ControlMessage<B, K>::len(mirk_handle *, std::uint32_t, void *) {
    return frame_head;
}

template <const Bundle &B, Control K>
std::uint32_t ControlMessage<B, K>::marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, void *,
                                            std::uint32_t size, std::uint32_t *err) {
    const std::uint8_t *luid = ControlIdentity<B, K>::luid;
    if constexpr (K == Control::start) {
        return marshal_start(h, ctx_id, buffer, size, luid, allowed_messages<B>, err);
    } else {
        return marshal_end(h, ctx_id, buffer, size, luid, err);
    }
}

// The frame is not read: the dispatcher has identified it, and it has no content. The result does not indicate success.
template <const Bundle &B, Control K>
std::uint32_t ControlMessage<B, K>::unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *dispatch_ctx, void **out,
                                              void *, std::uint32_t, mirk_message_handler handler, std::uint32_t *err) {
    if (*err != 0) return frame_head;
    if (out != nullptr) *out = nullptr;
    const mirk_message_handler deliver = handler != nullptr ? handler : ControlIdentity<B, K>::handler;
    deliver(h, ctx_id, dispatch_ctx, nullptr, err);
    return frame_head;
}

template <const Bundle &B, Control K>
std::uint32_t ControlMessage<B, K>::unmarshal_only(mirk_handle *, std::uint32_t, void **, void *, std::uint32_t,
                                                   std::uint32_t *) {
    return 0;
}

template <const Bundle &B, Control K>
std::uint32_t ControlMessage<B, K>::print(mirk_handle *h, std::uint32_t ctx_id, char *buffer, void *,
                                          std::uint32_t size, std::uint32_t *err) {
    static constexpr const char *format = K == Control::start   ? "bundle start@%s: <<<<<<<<\n"
                                          : K == Control::abort ? "bundle abort@%s: <<<<<<<<\n"
                                                                : "bundle commit@%s: <<<<<<<<\n";
    return print_line(h, ctx_id, buffer, size, format, B.name.data(), err);
}

// An empty element. The name is an attribute, so opening and closing tag differ.
template <const Bundle &B, Control K>
std::uint32_t ControlMessage<B, K>::to_xml(mirk_handle *h, std::uint32_t ctx_id, char *buffer, void *,
                                           std::uint32_t size, std::uint32_t *err) {
    static constexpr const char *word = K == Control::start   ? "bundle_start"
                                        : K == Control::abort ? "bundle_abort"
                                                              : "bundle_commit";
    static constexpr auto tag = [] {
        if constexpr (K == Control::start) return named_text<B>("bundle_start name=\"", "\"");
        if constexpr (K == Control::abort) return named_text<B>("bundle_abort name=\"", "\"");
        if constexpr (K == Control::commit) return named_text<B>("bundle_commit name=\"", "\"");
    }();
    return write_element(h, ctx_id, buffer, size, tag.data(), word, err);
}

// Accepts any document, since a control message has no content.
template <const Bundle &B, Control K>
void *ControlMessage<B, K>::from_xml(mirk_handle *h, std::uint32_t ctx_id, void *, std::uint32_t *, char *,
                                     std::uint32_t) {
    return create(h, ctx_id);
}

template <const Bundle &B, Control K>
std::uint32_t ControlMessage<B, K>::valid_cr(mirk_handle *) {
    return 1;
}

}  // namespace tarn

#include "exports/control.inc"
