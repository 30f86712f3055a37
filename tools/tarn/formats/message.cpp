#include "tools/tarn/formats/message.h"

#include <algorithm>
#include <cerrno>

#include "schema/frame.h"
#include "tools/tarn/support/failure.h"

namespace tarn::tool {

namespace {

constexpr std::size_t most_bytes = std::size_t{1} << 30, most_first = UINT32_MAX - 1;

// Writers report a buffer that is too small as EMSGSIZE, ENOSPC or ENOMEM, so it grows until the message fits.
template <class Buffer, class Write>
Buffer grow_and_write(std::size_t first_guess, typename Buffer::value_type filler, const char *what,
                      const reflect::MessageOperations &operations, const Write &write) {
    for (std::size_t size = std::min(first_guess, most_first);; size *= 4) {
        Buffer buffer(size + 1, filler);
        std::uint32_t err = 0;
        const std::uint32_t written = write(buffer.data(), static_cast<std::uint32_t>(size), &err);
        const bool too_small = err == EMSGSIZE || err == ENOSPC || err == ENOMEM;
        if (too_small && size < most_bytes) continue;
        if (err != 0) {
            throw Failure(exit_of(err), std::string(operations.name) + " cannot be " + what + ": " + error_text(err));
        }
        buffer.resize(written);
        return buffer;
    }
}

// The length of its frame, apart from the header. RA data is not part of it.
std::size_t length_of(const Handle &handle, const reflect::MessageOperations &operations, void *object) {
    return operations.len(handle.get(), context_id, object);
}

// More than most messages take, since a second attempt costs as much again: names repeat in each element.
constexpr std::size_t text_for_a_byte = 9, xml_for_a_byte = 7, spare = 4096;

}  // namespace

Bytes frame_of(const Handle &handle, const reflect::MessageOperations &operations, void *object) {
    return grow_and_write<Bytes>(length_of(handle, operations, object) + spare, 0, "written as a frame", operations,
                                 [&](std::uint8_t *buffer, std::uint32_t size, std::uint32_t *err) {
                                     return operations.marshal(handle.get(), context_id, buffer, object, size, err);
                                 });
}

std::string text_of(const Handle &handle, const reflect::MessageOperations &operations, void *object) {
    std::string text = grow_and_write<std::string>(
        length_of(handle, operations, object) * text_for_a_byte + spare, ' ', "written as text", operations,
        [&](char *buffer, std::uint32_t size, std::uint32_t *err) {
            return operations.print(handle.get(), context_id, buffer, object, size, err);
        });
    // The library leaves gaps before nested closing lines; their first byte is the terminator of the
    // previous line.
    std::replace(text.begin(), text.end(), '\0', ' ');
    return text;
}

std::string xml_of(const Handle &handle, const reflect::MessageOperations &operations, void *object) {
    return grow_and_write<std::string>(
        length_of(handle, operations, object) * xml_for_a_byte + spare, ' ', "written as XML", operations,
        [&](char *buffer, std::uint32_t size, std::uint32_t *err) {
            return operations.to_xml(handle.get(), context_id, buffer, object, size, err);
        });
}

void require_admitted(const Handle &handle, const reflect::MessageOperations &operations,
                      std::span<const std::uint8_t> frame) {
    if (operations.payload_parts == nullptr) return;
    const lumo_ui_tarn::frame_excess excess =
        lumo_ui_tarn::excess_of_message(operations.payload_parts, frame.data(), frame.size(), handle.tracked());
    if (excess) throw Failure(Exit::input, std::string(operations.name) + " cannot be read: " + excess.text());
}

Message message_from_frame(const Handle &handle, const reflect::MessageOperations &operations,
                           std::span<const std::uint8_t> frame) {
    require_admitted(handle, operations, frame);
    Bytes buffer(frame.begin(), frame.end());
    buffer.push_back(0);
    // The message keeps the header of its frame, but the handle decides whether it has per-field state.
    std::uint8_t &sttr = buffer[offset_of(schema::message_frame, "sttr")];
    if ((sttr != 0) != handle.tracked()) sttr = handle.tracked() ? 1 : 0;
    void *object = nullptr;
    std::uint32_t err = 0;
    operations.unmarshal_only(handle.get(), context_id, &object, buffer.data(),
                              static_cast<std::uint32_t>(frame.size()), &err);
    if (object == nullptr) throw Failure(Exit::environment, "out of memory for a message");
    Message message(handle, operations, object);
    // The library also reports ENOMEM for a frame that ends too early.
    if (err != 0) throw Failure(Exit::input, std::string(operations.name) + " cannot be read: " + error_text(err));
    return message;
}

}  // namespace tarn::tool
