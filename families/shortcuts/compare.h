// The archive's comparison of trees: equal ones are recognized without a branch per member.
#pragma once

#include "core/runs.h"
#include "families/shortcuts/shape.h"
#include "kinds/kinds.h"

namespace tarn::shortcut {

template <class T>
[[gnu::always_inline]] inline std::uint64_t difference_at(const std::uint8_t *a, const std::uint8_t *b) {
    T x, y;
    std::memcpy(&x, a, sizeof x);
    std::memcpy(&y, b, sizeof y);
    return static_cast<std::uint64_t>(x ^ y);
}

// 0 if the bytes are equal.
template <std::size_t Size>
[[gnu::always_inline]] inline std::uint64_t difference_of_bytes(const void *left, const void *right) {
    const auto *a = static_cast<const std::uint8_t *>(left), *b = static_cast<const std::uint8_t *>(right);
    constexpr std::size_t words = Size / sizeof(std::uint64_t) * sizeof(std::uint64_t);
    std::uint64_t difference = 0;
    for (std::size_t i = 0; i < words; i += sizeof(std::uint64_t)) {
        difference |= difference_at<std::uint64_t>(a + i, b + i);
    }
    if constexpr ((Size & 4) != 0) difference |= difference_at<std::uint32_t>(a + words, b + words);
    if constexpr ((Size & 2) != 0) {
        difference |= difference_at<std::uint16_t>(a + words + (Size & 4), b + words + (Size & 4));
    }
    if constexpr ((Size & 1) != 0) difference |= difference_at<std::uint8_t>(a + Size - 1, b + Size - 1);
    return difference;
}

// 0 if the members of two instances of a closed record are equal.
template <const Record &R>
[[gnu::always_inline]] inline std::uint64_t difference_of(const mirk_object *a, const mirk_object *b) {
    std::uint64_t difference = 0;
    walk<R>(cases{
        [&]<IntegerMember F>(F) TARN_INLINE {
            if constexpr (!continues_run<R>(F::index)) {
                difference |= difference_of_bytes<size_of_run<F>()>(F::at(a), F::at(b));
            }
        },
        [&]<RecordMember F>(F) TARN_INLINE { difference |= difference_of<*F::of>(F::at(a), F::at(b)); },
        [&]<AddressMember F>(F) TARN_INLINE {
            const ip_address &x = *F::at(a), &y = *F::at(b);
            difference |=
                static_cast<std::uint64_t>((x.af ^ y.af) | (x.prefix_len ^ y.prefix_len) | (x.scope ^ y.scope));
            difference |= difference_of_bytes<sizeof x.word>(x.word, y.word);
        },
        [&]<EnumerationMember F>(F) TARN_INLINE { difference |= F::at(a)->value ^ F::at(b)->value; },
        [&]<BooleanMember F>(F) TARN_INLINE { difference |= (F::at(a)->value != 0) != (F::at(b)->value != 0) ? 1 : 0; },
    });
    return difference;
}

}  // namespace tarn::shortcut
