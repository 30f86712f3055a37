// The binary form. A record is a frame of the parts listed in schema/frame.h. Frames nest: the body consists of the
// members in table order, each followed by its state byte if the frame is tracked.
//
// An array is its count, the frames of its elements and, if tracked and not empty, the state of the whole and one byte
// per element. A string is its length, its characters and, if tracked and not empty, one state byte. The jump lets a
// reader skip members that a newer sender has appended.
#pragma once

#include "core/walk.h"
#include "schema/frame.h"

namespace tarn {

inline constexpr std::uint32_t record_head = schema::record_head_size;

template <const Record &R>
struct WireWrite {
    static std::uint32_t len(mirk_handle *h, std::uint32_t ctx_id, mirk_object *instance);
    static std::uint32_t marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                 std::int32_t remaining, std::uint32_t *err);
    static std::uint32_t marshal_for_clone(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                           std::int32_t remaining, std::uint32_t *err);
    // Writes a member of another record.
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
    // Reads a member of another record.
    static std::uint32_t unmarshal_nested(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                          std::uint32_t length, std::uint32_t reuse, std::uint32_t *err);
};

// Bytes left after an offset; 0 once the offset has passed the end, as after a jump that a damaged frame contains.
constexpr std::int32_t bytes_left(std::uint32_t length, std::uint32_t offset) {
    return offset < length ? static_cast<std::int32_t>(length - offset) : 0;
}

}  // namespace tarn
