// Encodes and decodes requests and refusals, which are frames of ui_req_msg:
//
//   offset  size  request                       refusal
//   0       27    header                        header
//   27      16    luid                          luid
//   43      1     options                       options, 0x80
//   44      1     length of the bundle's name   44: error number, 4 bytes
//   45      ...   the name                      48: length of a sentence, 1 byte; 49: the sentence
#include <cstring>
#include <string_view>

#include "platform/contract/coding.hpp"
#include "platform/contract/frames.hpp"
#include "platform/contract/handle.hpp"

namespace {

constexpr uint32_t options_at = MIRK_PLATFORM_FRAME_SIZE;
constexpr uint32_t request_text_at = options_at + 1;
constexpr uint32_t refusal_text_at = options_at + 5;

void put_frame(uint8_t *frame, uint32_t stamp, uint32_t total_length, uint8_t options) {
    mirk_message_header header{};
    header.marker = mirk::frame_marker;
    std::memset(header.fill, 0xff, sizeof header.fill);
    header.stamp = stamp;
    header.total_length = total_length;
    mirk::put_header(frame, header);
    std::memcpy(frame + MIRK_PLATFORM_HEADER_SIZE, message_ui_req_msg_luid, sizeof message_ui_req_msg_luid);
    frame[options_at] = options;
}

void put_text(uint8_t *to, std::string_view text) {
    *to = static_cast<uint8_t>(text.size());
    std::memcpy(to + 1, text.data(), text.size());
}

// The text must end at the end of the frame.
bool get_text(const uint8_t *frame, uint32_t total_length, uint32_t at, char *text) {
    if (total_length <= at) return false;
    const uint32_t length = frame[at];
    if (total_length != at + 1 + length) return false;
    std::memcpy(text, frame + at + 1, length);
    text[length] = 0;
    return std::strlen(text) == length;
}

uint32_t fail(uint32_t *number, uint32_t error) {
    if (number != nullptr) *number = error;
    return 0;
}

}  // namespace

extern "C" {

uint32_t mirk_platform_request_encode(void *buffer, uint32_t size, uint32_t stamp, const char *bundle, uint8_t options,
                                      uint32_t *number) {
    const std::string_view name = bundle != nullptr ? bundle : "";
    if (name.size() > 255) return fail(number, EINVAL);
    const auto length = static_cast<uint32_t>(request_text_at + 1 + name.size());
    if (size < length) return fail(number, EMSGSIZE);
    auto *frame = static_cast<uint8_t *>(buffer);
    put_frame(frame, stamp, length, options & static_cast<uint8_t>(~MIRK_PLATFORM_REQUEST_REFUSED));
    put_text(frame + request_text_at, name);
    return length;
}

uint32_t mirk_platform_refusal_encode(void *buffer, uint32_t size, uint32_t stamp, uint32_t error, const char *sentence,
                                      uint32_t *number) {
    const std::string_view text = std::string_view(sentence != nullptr ? sentence : "").substr(0, 255);
    const auto length = static_cast<uint32_t>(refusal_text_at + 1 + text.size());
    if (size < length) return fail(number, EMSGSIZE);
    auto *frame = static_cast<uint8_t *>(buffer);
    put_frame(frame, stamp, length, MIRK_PLATFORM_REQUEST_REFUSED);
    mirk::put_big_endian<uint32_t>(frame + options_at + 1, error);
    put_text(frame + refusal_text_at, text);
    return length;
}

mirk_platform_error mirk_platform_request_decode(const void *buffer, size_t size, mirk_platform_request *request) {
    mirk_platform_frame frame;
    if (mirk_platform_frame_look(buffer, size, &frame) != 0) return EBADMSG;
    const uint32_t total_length = frame.header.total_length;
    if (std::memcmp(frame.luid, message_ui_req_msg_luid, sizeof frame.luid) != 0) return ENOENT;
    if (total_length > size || total_length <= options_at) return EBADMSG;
    const auto *bytes = static_cast<const uint8_t *>(buffer);
    mirk_platform_request read{};
    read.options = bytes[options_at];
    bool valid = false;
    if ((read.options & MIRK_PLATFORM_REQUEST_REFUSED) == 0) {
        valid = get_text(bytes, total_length, request_text_at, read.bundle);
    } else if (total_length > refusal_text_at) {
        read.number = mirk::get_big_endian<uint32_t>(bytes + options_at + 1);
        valid = get_text(bytes, total_length, refusal_text_at, read.sentence);
    }
    if (!valid) return EBADMSG;
    *request = read;
    return 0;
}

}  // extern "C"
