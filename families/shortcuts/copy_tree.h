// The archive's copying of closed records into new objects. The frame is written, as in the general way, but not read.
#pragma once

#include "families/shortcuts/coding.h"

namespace tarn::shortcut {

// 0 if reading the frame of a usual tree gives the tree's values. A boolean with another variant has none.
template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t unusual_to_copy(const mirk_object *object) {
    std::uint32_t unusual = 0;
    walk<R>(cases{
        [&]<RecordMember F>(F) TARN_INLINE { unusual |= unusual_to_copy<*F::of>(F::at(object)); },
        [&]<BooleanMember F>(F) TARN_INLINE { unusual |= header_bits(F::at(object)) & unusual_bits(0); },
        nothing,
    });
    return unusual;
}

template <const Record &R>
[[gnu::always_inline]] inline void copy_values(mirk_object *to, const mirk_object *from) {
    walk<R>(cases{
        [&]<IntegerMember F>(F) TARN_INLINE { *F::at(to) = *F::at(from); },
        [&]<RecordMember F>(F) TARN_INLINE { copy_values<*F::of>(F::at(to), F::at(from)); },
        [&]<AddressMember F>(F) TARN_INLINE {
            ip_address &x = *F::at(to);
            const ip_address &y = *F::at(from);
            x.af = y.af;
            x.prefix_len = y.prefix_len;
            x.scope = y.scope;
            std::memcpy(x.word, y.word, sizeof x.word);
        },
        [&]<SingleMember F>(F) TARN_INLINE { F::at(to)->value = F::at(from)->value; },
    });
}

// False: the shortcut does not apply, and nothing was changed. Otherwise result is the copy, or null if there is no
// memory.
template <const Record &R>
[[gnu::always_inline]] inline bool clone(mirk_handle *h, std::uint32_t ctx_id, mirk_object *source,
                                         mirk_object *&result, void *buffer, std::uint32_t size) {
    Types types;
    if (static_cast<std::int32_t>(size) < static_cast<std::int32_t>(frame_size<R>)) return false;
    if (!can_make<R>(h, ctx_id, types)) return false;
    if ((unusual_record_to_write<R>(source) | unusual_to_copy<R>(source)) != 0) return false;
    put_closed_record<R>(static_cast<std::uint8_t *>(buffer), source);
    mirk_inside_count_lookups(h, n_checked<R>);
    result = make<R>(h, ctx_id, types);
    if (result != nullptr) copy_values<R>(result, source);
    return true;
}

}  // namespace tarn::shortcut
