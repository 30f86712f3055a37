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

private:
    // Fits one register, so that all arguments do.
    struct Room {
        std::int32_t remaining;
        std::uint32_t keeps_variant;  // 0: the frame follows the domain
    };
    static std::uint32_t write(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance, Room room,
                               std::uint32_t *err);
};

template <const Record &R>
struct WireRead {
    static std::uint32_t unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                                   std::uint32_t length, std::uint32_t reuse, std::uint32_t *err);
};

// WireRead<R>::unmarshal without the shortcut, in the archive only.
template <const Record &R>
std::uint32_t unmarshal_any(mirk_handle *h, std::uint32_t ctx_id, void *buffer, mirk_object *instance,
                            std::uint32_t length, std::uint32_t reuse, std::uint32_t *err);

}  // namespace tarn
