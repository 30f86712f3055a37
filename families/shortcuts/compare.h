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
    if constexpr (Size == 0) {
        return 0;
    } else {
        using Word = std::conditional_t<
            Size >= 8, std::uint64_t,
            std::conditional_t<Size >= 4, std::uint32_t, std::conditional_t<Size >= 2, std::uint16_t, std::uint8_t>>>;
        constexpr std::size_t size = sizeof(Word);
        return difference_at<Word>(a, b) | difference_of_bytes<Size - size>(a + size, b + size);
    }
}

template <const Record &R>
[[gnu::always_inline]] inline std::uint64_t difference_of(const mirk_object *a, const mirk_object *b);

// 0 if a closed member is equal in two instances. Booleans that are true may differ in their bytes.
template <class F>
[[gnu::always_inline]] inline std::uint64_t difference_of_member(const mirk_object *a, const mirk_object *b) {
    if constexpr (RecordMember<F>) {
        return difference_of<*F::of>(F::at(a), F::at(b));
    } else if constexpr (AddressMember<F>) {
        const ip_address &x = *F::at(a), &y = *F::at(b);
        return static_cast<std::uint64_t>((x.af ^ y.af) | (x.prefix_len ^ y.prefix_len) | (x.scope ^ y.scope)) |
               difference_of_bytes<sizeof x.word>(x.word, y.word);
    } else if constexpr (EmbeddedMember<F>) {
        return static_cast<std::uint64_t>(F::at(a)->value ^ F::at(b)->value);
    } else if constexpr (!continues_run<F::owner>(F::index)) {
        return difference_of_bytes<size_of_run<F>()>(F::at(a), F::at(b));
    } else {
        return 0;
    }
}

template <const Record &R>
[[gnu::always_inline]] inline std::uint64_t difference_of(const mirk_object *a, const mirk_object *b) {
    std::uint64_t difference = 0;
    walk<R>([&]<class F>(F) TARN_INLINE { difference |= difference_of_member<F>(a, b); });
    return difference;
}

}  // namespace tarn::shortcut
