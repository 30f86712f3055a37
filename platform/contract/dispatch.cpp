// The dispatcher: finds the message of a received frame by its luid, reads it, and passes it to its handler or adds it
// to the receive list.
#include <cstdio>

#include "platform/contract/frames.hpp"
#include "platform/contract/handle.hpp"

using mirk::DispatchEntry;
using mirk::Handle;
using mirk::own;

namespace {

struct Frame {
    void *bytes;
    uint32_t size;
};

struct Delivery {
    Handle &handle;
    uint32_t ctx_id;
    void *dispatch_ctx;
};

template <class... Arguments>
void report_failure(mirk_platform_report *report, uint32_t number, uint32_t offset, const char *format,
                    Arguments... arguments) {
    mirk_platform_report made{number, offset, 0, {}};
    std::snprintf(made.sentence, sizeof made.sentence, format, arguments...);
    skald_wrapper(mirk::trace_module(), 3, 0, "(ERR): dispatch: frame at offset %u: %s", offset, made.sentence);
    if (report != nullptr) *report = made;
}

extern "C" void destroy_recorded(mirk_handle *h, uint32_t ctx_id, void *, void *message, uint32_t *) {
    own(h)->in_dispatch->message.destroy(h, ctx_id, message);
}

// Only the full unmarshal operation records, so a valid frame is read a second time for the recorder. A message that
// cannot be recorded must not change what is delivered, so the error slot and last_error of this call are discarded.
void record(const Delivery &to, const DispatchEntry &entry, const Frame &frame) {
    const uint32_t last_error = to.handle.last_error;
    uint32_t err = 0;
    errno = 0;
    entry.message.unmarshal(&to.handle, to.ctx_id, to.dispatch_ctx, nullptr, frame.bytes, frame.size, destroy_recorded,
                            &err);
    to.handle.last_error = last_error;
    // The operation ignores failed writes.
    FILE *const stream = mirklib_msg_recorder_get_handle();
    if (err == 0 && stream != nullptr && std::ferror(stream) != 0) {
        err = errno != 0 ? static_cast<uint32_t>(errno) : uint32_t{EIO};
    }
    if (err == 0) return;
    mirk::count_recording_failure(err);
    skald_wrapper(mirk::trace_module(), 3, 0, "(ERR): message %s was not recorded: %s", entry.message.name,
                  std::strerror(static_cast<int>(err)));
}

// Only the full unmarshal operation calls the linked-in handler. The message has been recorded already.
void deliver_to_linked_in(const Delivery &to, const DispatchEntry &entry, const Frame &frame, uint32_t *err) {
    void *message = nullptr;
    mirk::skip_next_recording(true);
    entry.message.unmarshal(&to.handle, to.ctx_id, to.dispatch_ctx, &message, frame.bytes, frame.size, nullptr, err);
    mirk::skip_next_recording(false);
    // ENOSYS: no handler took ownership of the message.
    if (*err == ENOSYS && message != nullptr) entry.message.destroy(&to.handle, to.ctx_id, message);
}

void receive_plain(const Delivery &to, const DispatchEntry &entry, const Frame &frame, uint32_t *err) {
    Handle &handle = to.handle;
    void *message = nullptr;
    entry.message.unmarshal_only(&handle, to.ctx_id, &message, frame.bytes, frame.size, err);
    if (*err != 0 || message == nullptr) {
        // On an error the full operation keeps a partly read message; this one returns it.
        if (message != nullptr) entry.message.destroy(&handle, to.ctx_id, message);
        if (*err == 0) *err = EBADMSG;
        return;
    }
    if (mirklib_msg_recorder_get_state() != 0) record(to, entry, frame);
    if (handle.recv_bundle_open != 0) {
        mirk::file_received(handle, entry, message, to.ctx_id, err);
    } else if (entry.message.handler == nullptr) {
        entry.message.destroy(&handle, to.ctx_id, message);
        deliver_to_linked_in(to, entry, frame, err);
    } else {
        entry.message.handler(&handle, to.ctx_id, to.dispatch_ctx, message, err);
        if (*err == ENOSYS) entry.message.destroy(&handle, to.ctx_id, message);
    }
}

uint32_t receive(const Delivery &to, DispatchEntry &entry, const Frame &frame) {
    uint32_t err = 0;
    DispatchEntry *const outer = std::exchange(to.handle.in_dispatch, &entry);
    if (entry.message.unmarshal_only != nullptr) {
        receive_plain(to, entry, frame, &err);
    } else {
        entry.message.unmarshal(&to.handle, to.ctx_id, to.dispatch_ctx, nullptr, frame.bytes, frame.size, nullptr,
                                &err);
    }
    to.handle.in_dispatch = outer;
    return err;
}

DispatchEntry *find_entry(Handle &handle, const uint8_t *luid) {
    const auto found = handle.dispatch_table.find(mirk::luid_from(luid));
    return found == handle.dispatch_table.end() ? nullptr : found->second.get();
}

}  // namespace

extern "C" {

mirk_dispatch_info *mirklib_in_dispatch_message_info(mirk_handle *h, void **lut) {
    DispatchEntry *entry = own(h)->in_dispatch;
    if (lut != nullptr) *lut = entry != nullptr ? &own(h)->dispatch_table : nullptr;
    return entry != nullptr ? &entry->info : nullptr;
}

mirk_platform_error mirk_platform_dispatch_register(mirk_handle *h, const mirk_platform_message *message) {
    if (message->luid == nullptr || message->name == nullptr || message->unmarshal == nullptr) return EINVAL;
    if (message->unmarshal_only != nullptr && message->destroy == nullptr) return EINVAL;
    return mirk::guarded([&]() -> mirk_platform_error {
        auto &entry = own(h)->dispatch_table[mirk::luid_from(message->luid)];
        if (entry == nullptr) entry = std::make_unique<DispatchEntry>();
        const mirk_bundle_handler handler = entry->info.handler;
        entry->message = *message;
        entry->info = {entry.get(), message->name, nullptr, nullptr, handler};
        return 0;
    });
}

mirk_platform_error mirk_platform_dispatch_set_bundle_handler(mirk_handle *h, const uint8_t *luid,
                                                              mirk_bundle_handler handler) {
    DispatchEntry *entry = find_entry(*own(h), luid);
    if (entry == nullptr) return ENOENT;
    entry->info.handler = handler;
    return 0;
}

mirk_platform_error mirk_platform_dispatch(mirk_handle *h, uint32_t ctx_id, void *buffer, uint32_t size,
                                           void *dispatch_ctx, mirk_platform_report *report) {
    if (report != nullptr) *report = {};
    const Delivery to{*own(h), ctx_id, dispatch_ctx};
    auto *bytes = static_cast<uint8_t *>(buffer);
    // total_length alone decides where the next frame begins; the results of unmarshal operations are ignored.
    for (uint32_t offset = 0; offset < size;) {
        const uint32_t left = size - offset;
        mirk_platform_frame frame;
        const mirk_platform_error error = mirk_platform_frame_look(bytes + offset, left, &frame);
        if (error == EMSGSIZE) {
            report_failure(report, EBADMSG, offset, "%u bytes are too few for a frame", left);
            return EBADMSG;
        }
        if (error != 0) {
            report_failure(report, EBADMSG, offset, "no frame begins here (marker 0x%02x, total length %u)",
                           frame.header.marker, frame.header.total_length);
            return EBADMSG;
        }
        if (frame.header.total_length > left) {
            report_failure(report, EBADMSG, offset, "total length %u exceeds the %u bytes that are left",
                           frame.header.total_length, left);
            return EBADMSG;
        }
        DispatchEntry *entry = find_entry(*own(h), frame.luid);
        if (entry == nullptr) {
            report_failure(report, ENOENT, offset, "%s", "no message is registered for its luid");
            return ENOENT;
        }
        const uint32_t number = receive(to, *entry, {bytes + offset, frame.header.total_length});
        if (number != 0) {
            report_failure(report, number, offset, "%s: %s", entry->message.name,
                           std::strerror(static_cast<int>(number)));
            return number;
        }
        offset += frame.header.total_length;
    }
    return 0;
}

}  // extern "C"
