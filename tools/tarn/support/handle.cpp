#include "tools/tarn/support/handle.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "lumo_ui_tarn.h"

namespace tarn::tool {

namespace {

constexpr std::size_t most_bytes = std::size_t{1} << 30;

// Writers report a lack of room with one of three numbers, so the buffer grows until they are content.
template <class Buffer, class Write>
Buffer grow_and_write(std::size_t first_guess, typename Buffer::value_type filler, const char *what,
                      const reflect::MessageOperations &operations, const Write &write) {
    for (std::size_t size = first_guess;; size *= 4) {
        Buffer buffer(size + 1, filler);
        std::uint32_t err = 0;
        const std::uint32_t written = write(buffer.data(), static_cast<std::uint32_t>(size), &err);
        const bool lacks_room = err == EMSGSIZE || err == ENOSPC || err == ENOMEM;
        if (lacks_room && size < most_bytes) continue;
        if (err != 0) {
            throw Failure(exit_of(err), std::string(operations.name) + " cannot be " + what + ": " + error_text(err));
        }
        buffer.resize(written);
        return buffer;
    }
}

std::size_t guess(const Handle &handle, const reflect::MessageOperations &operations, void *object) {
    return std::size_t{operations.len(handle.get(), context_id, object)} * 3 + 4096;
}

extern "C" void trace_to_standard_error(void *, std::uint16_t module_id, std::uint32_t level, const char *line) {
    std::fprintf(stderr, "trace %s %u: %s\n", mirk_platform_trace_module_name(module_id), level, line);
}

}  // namespace

Handle::Handle(bool tracked) : tracked_(tracked) {
    mirk_platform_handle_options options;
    mirk_platform_handle_options_init(&options);
    options.tracking = tracked ? MIRK_PLATFORM_TRACKING_ON : MIRK_PLATFORM_TRACKING_NONE;
    handle_ = mirk_platform_handle_open(&options);
    if (handle_ == nullptr) throw Failure(Exit::environment, "no memory for a handle");
}

Message Message::make(const Handle &handle, const reflect::MessageOperations &operations) {
    void *object = operations.create(handle.get(), context_id);
    if (object == nullptr) throw Failure(Exit::environment, "no memory for a message");
    return {handle, operations, object};
}

void *Message::payload() const {
    std::uint32_t err = 0;
    return operations_->payload_get(handle_->get(), context_id, object_, &err);
}

Bytes frame_of(const Handle &handle, const reflect::MessageOperations &operations, void *object) {
    return grow_and_write<Bytes>(guess(handle, operations, object), 0, "written as a frame", operations,
                                 [&](std::uint8_t *buffer, std::uint32_t size, std::uint32_t *err) {
                                     return operations.marshal(handle.get(), context_id, buffer, object, size, err);
                                 });
}

std::string text_of(const Handle &handle, const reflect::MessageOperations &operations, void *object) {
    std::string text =
        grow_and_write<std::string>(guess(handle, operations, object), ' ', "written as text", operations,
                                    [&](char *buffer, std::uint32_t size, std::uint32_t *err) {
                                        return operations.print(handle.get(), context_id, buffer, object, size, err);
                                    });
    // The first byte of a gap is the terminator of the line before it.
    std::replace(text.begin(), text.end(), '\0', ' ');
    return text;
}

std::string xml_of(const Handle &handle, const reflect::MessageOperations &operations, void *object) {
    return grow_and_write<std::string>(guess(handle, operations, object), ' ', "written as XML", operations,
                                       [&](char *buffer, std::uint32_t size, std::uint32_t *err) {
                                           return operations.to_xml(handle.get(), context_id, buffer, object, size,
                                                                    err);
                                       });
}

Message message_from_frame(const Handle &handle, const reflect::MessageOperations &operations,
                           std::span<const std::uint8_t> frame) {
    Bytes buffer(frame.begin(), frame.end());
    buffer.push_back(0);
    void *object = nullptr;
    std::uint32_t err = 0;
    operations.unmarshal_only(handle.get(), context_id, &object, buffer.data(),
                              static_cast<std::uint32_t>(frame.size()), &err);
    if (object == nullptr) throw Failure(Exit::environment, "no memory for a message");
    Message message(handle, operations, object);
    // A count that no memory could satisfy, or a frame that ends too early, is reported as a lack of memory, too.
    if (err != 0) throw Failure(Exit::input, std::string(operations.name) + " cannot be read: " + error_text(err));
    return message;
}

void set_up_trace(bool verbose) {
    mirk_lumo_ui_tarn_type_trace_init();
    mirk_lumo_ui_tarn_message_trace_init();
    static std::uint64_t stub_state;
    skald_module_init_fn("mirk_lumo_ui_tarn_stub", &g_mirk_lumo_ui_tarn_stub_trace_module_id, &stub_state);
    if (verbose) {
        mirk_platform_trace_set_levels(~std::uint32_t{0});
        mirk_platform_trace_set_sink(trace_to_standard_error, nullptr);
    } else if (std::getenv("MIRK_TRACE") == nullptr) {
        // Errors are told by the tool itself, with their place.
        mirk_platform_trace_set_levels(1);
    }
}

}  // namespace tarn::tool
