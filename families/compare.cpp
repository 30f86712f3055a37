#include <algorithm>
#include <cstring>
#include <utility>

#include "core/runs.h"
#include "families/shortcuts/shortcuts.h"
#include "families/value.h"
#include "kinds/kinds.h"

namespace tarn {

namespace {

template <class T>
bool same_at(const std::uint8_t *a, const std::uint8_t *b) {
    T x, y;
    std::memcpy(&x, a, sizeof x);
    std::memcpy(&y, b, sizeof y);
    return x == y;
}

// For constant sizes: no call and no loop.
template <std::size_t Size>
[[gnu::always_inline]] inline bool same_bytes(const void *left, const void *right) {
    const auto *a = static_cast<const std::uint8_t *>(left), *b = static_cast<const std::uint8_t *>(right);
    constexpr std::size_t word = sizeof(std::uint64_t), words = Size / word * word;
    const auto same_words = [&]<std::size_t... I>(std::index_sequence<I...>) TARN_INLINE {
        return (same_at<std::uint64_t>(a + word * I, b + word * I) && ...);
    };
    return same_words(std::make_index_sequence<Size / word>{}) &&
           ((Size & 4) == 0 || same_at<std::uint32_t>(a + words, b + words)) &&
           ((Size & 2) == 0 || same_at<std::uint16_t>(a + words + (Size & 4), b + words + (Size & 4))) &&
           ((Size & 1) == 0 || a[Size - 1] == b[Size - 1]);
}

// Equal runs have equal bytes; members are compared one by one only if the bytes differ.
template <const Record &R, std::size_t First>
[[gnu::always_inline]] inline std::int32_t order_of_run(const mirk_object *a, const mirk_object *b) {
    using Head = FieldOf<R, First>;
    if (same_bytes<size_of_run<Head>()>(Head::at(a), Head::at(b))) return 0;
    std::int32_t order = 0;
    walk_run<Head>([&]<class F>(F) {
        order = Primitive<F>::compare(F::at(a), F::at(b));
        return order == 0;
    });
    return order;
}

template <const Record &R>
[[gnu::always_inline]] inline std::int32_t order_of_members(const mirk_object *a, const mirk_object *b);

// a and b are not null. Records of integers alone are compared inline, in the archive all records.
template <const Record &R>
[[gnu::always_inline]] inline std::int32_t order_of(const mirk_object *a, const mirk_object *b) {
    if constexpr (runtime_inside && shortcut::is_closed(R)) {
        return shortcut::difference_of<R>(a, b) == 0 ? 0 : Compare<R>::compare(a, b);
    } else if constexpr (runtime_inside || schema::has_fixed_wire_size(R)) {
        return order_of_members<R>(a, b);
    } else {
        return Compare<R>::compare(a, b);
    }
}

template <const Record &R>
[[gnu::always_inline]] inline std::int32_t order_of_elements(const mirk_object *a, const mirk_object *b,
                                                             std::uint32_t n) {
    for (; n != 0; --n) {
        if (const std::int32_t order = order_of<R>(a, b); order != 0) return order;
        a = element_at<R>(a, 1);
        b = element_at<R>(b, 1);
    }
    return 0;
}

// Only the sign of the result has a meaning: strings return memcmp's result, enumerations the difference.
template <const Record &R>
[[gnu::always_inline]] inline std::int32_t order_of_members(const mirk_object *a, const mirk_object *b) {
    std::int32_t order = 0;
    walk_while<R>(cases{
        [&]<ArrayMember A>(A) TARN_INLINE {
            // The counts were compared before, as members; a null block has no elements.
            const std::uint32_t n = std::min(A::count(a), A::count(b));
            order = order_of_elements<A::element>(*A::at(a), *A::at(b), n);
            return order == 0;
        },
        [&]<StringMember S>(S) TARN_INLINE {
            const std::uint32_t n = std::min(S::count(a), S::count(b));
            if (n != 0) order = std::memcmp(*S::at(a), *S::at(b), n);
            return order == 0;
        },
        [&]<IntegerMember F>(F) TARN_INLINE {
            if constexpr (!continues_run<R>(F::index)) order = order_of_run<R, F::index>(a, b);
            return order == 0;
        },
        [&]<RecordMember F>(F) TARN_INLINE {
            order = order_of<*F::of>(F::at(a), F::at(b));
            return order == 0;
        },
        [&]<SingleMember F>(F) TARN_INLINE {
            if constexpr (runtime_inside) {
                if (shortcut::difference_of_member<F>(a, b) == 0) return true;
            }
            order = Primitive<F>::compare(F::at(a), F::at(b));
            return order == 0;
        },
    });
    return order;
}

}  // namespace

template <const Record &R>
std::int32_t Compare<R>::compare(const mirk_object *a, const mirk_object *b) {
    if (a == nullptr) return b == nullptr ? 0 : -1;
    if (b == nullptr) return 1;
    if constexpr (runtime_inside && shortcut::is_closed(R)) {
        if (shortcut::difference_of<R>(a, b) == 0) return 0;
    }
    return order_of_members<R>(a, b);
}

}  // namespace tarn

#include "exports/compare.inc"
