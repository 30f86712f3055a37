#include "messaging/message.h"

#include <utility>

#include "core/object_header.h"

namespace tarn {

namespace {

template <const Message &M>
constinit message_object sentinel_of{};

const std::uint16_t &module = g_mirk_lumo_ui_tarn_message_trace_module_id;

// A message has one variant, so this only detects a damaged type record.
const mirk_variant_info &checked_variant_info(const mirk_type_info *type) {
    const mirk_variant_info &info = variant_info(type, module);
    if (info.n_variants < 0) {
        trace_message(info_level, "(info): variant %u requested only %u variants present", 0, info.n_variants);
    }
    return info;
}

template <class Text>
bool has_error(const message_object *message, const std::uint32_t *err, const Text &text) {
    if (*err == 0 && message != nullptr) return false;
    trace_message(debug_level, text.data(), error_text(*err));
    return true;
}

}  // namespace

template <const Message &M>
message_object *MessageObject<M>::sentinel() {
    return &sentinel_of<M>;
}

// Initializes all but the payload: type, counter, header, tracking.
template <const Message &M>
message_object *MessageObject<M>::set_up(mirk_handle *h, std::uint32_t ctx_id, message_object *message) {
    message->tinfo = bind_type(h, ctx_id, &TypeInfo<M>::own);
    const mirk_variant_info &info = checked_variant_info(message->tinfo);
    count(h, ctx_id, message->tinfo, &info.entries[0].num_created, 1, is_observed(h));
    message->variant = 0;
    message->header = new_header();
    if (tracking_mode(h, module) == Tracking::on) {
        message->obj_flag |= flag::state_tracked;
        message->header.sttr = 1;
    }
    return message;
}

template <const Message &M>
message_object *MessageObject<M>::create_shallow(mirk_handle *h, std::uint32_t ctx_id) {
    void *storage = allocate(h, ctx_id, sizeof(message_object));
    if (storage == nullptr) return nullptr;
    return set_up(h, ctx_id, static_cast<message_object *>(std::memset(storage, 0, sizeof(message_object))));
}

// The payload is created before the type is bound and before anything is counted.
template <const Message &M>
message_object *MessageObject<M>::create(mirk_handle *h, std::uint32_t ctx_id) {
    void *storage = create_is_off(h) ? sentinel() : new_object(h, ctx_id, sizeof(message_object), sentinel());
    auto *message = static_cast<message_object *>(storage);
    if (message == nullptr) return nullptr;
    mirk_object *payload = Lifecycle<M.payload>::create(h, ctx_id);
    if (message == sentinel()) {
        // Atomic, because all threads share the sentinel: several may store to it while others read it.
        __atomic_store_n(&message->payload, payload, __ATOMIC_RELAXED);
        return message;
    }
    if (payload == nullptr) {
        release(h, ctx_id, message);
        return nullptr;
    }
    message->payload = payload;
    return set_up(h, ctx_id, message);
}

template <const Message &M>
void MessageObject<M>::destroy(mirk_handle *h, std::uint32_t ctx_id, message_object *message) {
    if (message == nullptr || message == sentinel()) return;
    if (message->payload != nullptr) {
        Lifecycle<M.payload>::destroy(h, ctx_id, message->payload);
        message->payload = nullptr;
    }
    check_type(message->tinfo, module);
    const mirk_variant_info &info = checked_variant_info(message->tinfo);
    count(h, ctx_id, message->tinfo, &info.entries[0].num_destroyed, 1, is_observed(h));
    message->tinfo = nullptr;
    release(h, ctx_id, message);
}

template <const Message &M>
mirk_object *MessageObject<M>::get(mirk_handle *, std::uint32_t, message_object *message, std::uint32_t *err) {
    static constexpr auto text = named_text<M.payload>("(debug): Error present when getting value for ", ": %s");
    return has_error(message, err, text) ? nullptr : __atomic_load_n(&message->payload, __ATOMIC_RELAXED);
}

template <const Message &M>
mirk_object *MessageObject<M>::get_detach(mirk_handle *, std::uint32_t, message_object *message, std::uint32_t *err) {
    static constexpr auto text = named_text<M.payload>("(debug): Error present getting detached ",
                                                       named_text<M>(" value for ", ": %s").characters);
    if (has_error(message, err, text)) return nullptr;
    return std::exchange(message->payload, nullptr);
}

// Does not destroy the previous payload, which the caller may still use.
template <const Message &M>
void MessageObject<M>::set(mirk_handle *, std::uint32_t, message_object *message, mirk_object *payload,
                           std::uint32_t *err) {
    static constexpr auto text = named_text<M.payload>("(debug): Error present when setting value for ", ": %s");
    if (!has_error(message, err, text)) message->payload = payload;
}

// The argument must not be the message's own payload, which would be destroyed and then stored: detach it first, with
// get_detach.
template <const Message &M>
void MessageObject<M>::free_and_set(mirk_handle *h, std::uint32_t ctx_id, message_object *message, mirk_object *payload,
                                    std::uint32_t *err) {
    static constexpr auto text =
        named_text<M.payload>("(debug): Error present when freeing and setting value for ", ": %s");
    if (has_error(message, err, text)) return;
    if (message->payload != nullptr) Lifecycle<M.payload>::destroy(h, ctx_id, message->payload);
    message->payload = payload;
}

template <const Message &M>
std::uint32_t MessageObject<M>::is_valid_cr(mirk_handle *h) {
    return mirk_domain_lookup_message_ok(h, &h->domain, &TypeInfo<M>::own, &h->last_error);
}

}  // namespace tarn

#include "exports/message.inc"
