// The parts of a frame that are not members: variant, flag, jump and RA data of a record frame, and the message header.
//
//   offset  size  message header
//   0       1     marker, 0xBC
//   1       6     fill
//   7       1     sttr
//   8       4     stamp
//   12      4     total_length
//   16      11    zero
//   27      16    luid, follows the header
#include "platform/contract/frames.hpp"

#include "platform/contract/coding.hpp"
#include "platform/contract/handle.hpp"

namespace mirk {

void put_header(void *frame, const mirk_message_header &header) {
    auto *bytes = static_cast<uint8_t *>(frame);
    bytes[0] = header.marker;
    std::memcpy(bytes + 1, header.fill, sizeof header.fill);
    bytes[7] = header.sttr;
    put_big_endian<uint32_t>(bytes + 8, header.stamp);
    put_big_endian<uint32_t>(bytes + 12, header.total_length);
    std::memset(bytes + 16, 0, MIRK_PLATFORM_HEADER_SIZE - 16);
}

mirk_message_header get_header(const void *frame) {
    const auto *bytes = static_cast<const uint8_t *>(frame);
    mirk_message_header header;
    header.marker = bytes[0];
    std::memcpy(header.fill, bytes + 1, sizeof header.fill);
    header.sttr = bytes[7];
    header.stamp = get_big_endian<uint32_t>(bytes + 8);
    header.total_length = get_big_endian<uint32_t>(bytes + 12);
    return header;
}

}  // namespace mirk

extern "C" {

uint32_t _mirk_instance_variant_marshal(mirk_handle *, uint32_t, void *buffer, int8_t *variant, int32_t remaining,
                                        uint32_t *err) {
    return mirk::marshal_number<int8_t>(buffer, variant, remaining, err);
}

uint32_t _mirk_instance_variant_unmarshal(mirk_handle *, uint32_t, void *buffer, int8_t *variant, int32_t remaining,
                                          uint32_t *err) {
    return mirk::unmarshal_number<int8_t>(buffer, variant, remaining, err);
}

uint32_t _mirk_instance_obj_flag_marshal(mirk_handle *, uint32_t, void *buffer, uint8_t *flag, int32_t remaining,
                                         uint32_t *err) {
    return mirk::marshal_number<uint8_t>(buffer, flag, remaining, err);
}

uint32_t _mirk_instance_obj_flag_unmarshal(mirk_handle *, uint32_t, void *buffer, uint8_t *flag, int32_t remaining,
                                           uint32_t *err) {
    return mirk::unmarshal_number<uint8_t>(buffer, flag, remaining, err);
}

uint32_t _mirk_variant_jump_marshal(mirk_handle *, uint32_t, void *buffer, uint32_t *jump, int32_t remaining,
                                    uint32_t *err) {
    return mirk::marshal_number<uint32_t>(buffer, jump, remaining, err);
}

uint32_t _mirk_variant_jump_unmarshal(mirk_handle *, uint32_t, void *buffer, uint32_t *jump, int32_t remaining,
                                      uint32_t *err) {
    return mirk::unmarshal_number<uint32_t>(buffer, jump, remaining, err);
}

uint32_t _mirk_instance_ra_data_marshal(mirk_handle *, uint32_t, void *buffer, void **ra_value, uint8_t *ra_byte,
                                        int32_t remaining, uint32_t *err) {
    if (!mirk::can_move(buffer, ra_byte, 9, remaining, err)) return 0;
    if (ra_value == nullptr) {
        *err = EINVAL;
        return 0;
    }
    mirk::put_big_endian<uint64_t>(buffer, mirk::address_of(*ra_value));
    static_cast<uint8_t *>(buffer)[8] = *ra_byte;
    return 9;
}

uint32_t _mirk_instance_ra_data_unmarshal(mirk_handle *, uint32_t, void *buffer, void **ra_value, uint8_t *ra_byte,
                                          int32_t remaining, uint32_t *err) {
    if (!mirk::can_move(buffer, ra_byte, 9, remaining, err)) return 0;
    if (ra_value == nullptr) {
        *err = EINVAL;
        return 0;
    }
    // The sender chose this word; it is stored and never dereferenced.
    *ra_value = reinterpret_cast<void *>(mirk::get_big_endian<uint64_t>(buffer));
    *ra_byte = static_cast<const uint8_t *>(buffer)[8];
    return 9;
}

void _mirk_message_header_marshal(mirk_handle *h, uint32_t, void *frame, mirk_message_header *header, uint32_t size,
                                  uint32_t *err) {
    if (*err != 0) return;
    *err = mirk::own(h)->failure(MIRK_PLATFORM_TESTING_HEADER_MARSHAL);
    if (*err != 0) return;
    if (frame == nullptr || header == nullptr) {
        *err = EINVAL;
    } else if (static_cast<int32_t>(size) < MIRK_PLATFORM_HEADER_SIZE) {
        // Sizes of messages are compared as signed numbers: a size with the top bit set is too small.
        *err = EMSGSIZE;
    } else {
        mirk::put_header(frame, *header);
    }
}

uint32_t _mirk_message_header_unmarshal(mirk_handle *, uint32_t, void *frame, mirk_message_header *header,
                                        uint32_t size, uint32_t *err) {
    if (*err != 0) return 0;
    if (frame == nullptr || header == nullptr) {
        *err = EINVAL;
    } else if (static_cast<int32_t>(size) < MIRK_PLATFORM_HEADER_SIZE) {
        // Sizes of messages are compared as signed numbers: a size with the top bit set is too small.
        *err = EMSGSIZE;
    } else if (*static_cast<const uint8_t *>(frame) != mirk::frame_marker) {
        *err = EBADMSG;
    } else {
        *header = mirk::get_header(frame);
        return MIRK_PLATFORM_HEADER_SIZE;
    }
    return 0;
}

mirk_platform_error mirk_platform_frame_look(const void *buffer, size_t size, mirk_platform_frame *frame) {
    if (size < MIRK_PLATFORM_FRAME_SIZE) return EMSGSIZE;
    const auto *bytes = static_cast<const uint8_t *>(buffer);
    frame->header = mirk::get_header(bytes);
    std::memcpy(frame->luid, bytes + MIRK_PLATFORM_HEADER_SIZE, sizeof frame->luid);
    const bool good = bytes[0] == mirk::frame_marker && frame->header.total_length >= MIRK_PLATFORM_FRAME_SIZE;
    return good ? 0 : EBADMSG;
}

}  // extern "C"
