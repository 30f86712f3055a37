// The binary form. A record is a frame, and frames nest:
//
//   variant   1   never above 0; negative: no body follows
//   flag      1   bits 8 (state bytes are interleaved) and 32 (RA data follows) of the object's flag
//   RA data   -   if bit 32 is set, as the runtime writes it
//   jump      4   bytes from here to the end of the frame, these four included
//   body          members in table order, each followed by its state byte if bit 8 is set
//
// An array is its count, the frames of its elements and, if tracked and not empty, the state of the whole and one byte
// for each element. A string is its length, its characters and, if tracked and not empty, one state byte. A reader
// steps over what a newer sender wrote behind the members known here, by the jump.
#pragma once

#include "core/walk.h"

namespace tarn {

constexpr std::uint32_t record_head = 1 + 1 + 4;  // variant, flag and jump

template <const Record &R>
struct WireWrite {
    static std::uint32_t len(mirk_handle *h, std::uint32_t ctx_id, mirk_object *instance);
    static std::uint32_t len_cr(mirk_handle *h, mirk_object *instance);
    static std::uint32_t marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                 std::int32_t remaining, std::uint32_t *err);
    static std::uint32_t marshal_for_clone(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                           std::int32_t remaining, std::uint32_t *err);
    // As a member of its owner.
    static std::uint32_t marshal_nested(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                        std::int32_t remaining, std::uint32_t *err);

private:
    static std::uint32_t write(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                               std::int32_t remaining, std::uint32_t *err, bool follow_domain);
};

template <const Record &R>
struct WireRead {
    static std::uint32_t unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                   std::uint32_t length, std::uint32_t reuse, std::uint32_t *err);
    // As a member of its owner.
    static std::uint32_t unmarshal_nested(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                          std::uint32_t length, std::uint32_t reuse, std::uint32_t *err);
};

// What is left behind an offset; 0 once the offset has passed the end, so that a jump from outside leads nowhere.
constexpr std::int32_t bytes_left(std::uint32_t length, std::uint32_t offset) {
    return offset < length ? static_cast<std::int32_t>(length - offset) : 0;
}

}  // namespace tarn
