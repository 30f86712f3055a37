#include <algorithm>
#include <cstring>

#include "runtime/kinds.h"

namespace tarn {

namespace {

template <class T>
bool same_at(const std::uint8_t *a, const std::uint8_t *b) {
    T x, y;
    std::memcpy(&x, a, sizeof x);
    std::memcpy(&y, b, sizeof y);
    return x == y;
}

// For sizes that are known, without a call or a loop.
template <std::size_t Size>
[[gnu::always_inline]] inline bool same_bytes(const void *left, const void *right) {
    const auto *a = static_cast<const std::uint8_t *>(left), *b = static_cast<const std::uint8_t *>(right);
    constexpr std::size_t word = sizeof(std::uint64_t), words = Size / word * word;
    const auto same_words = [&]<std::size_t... I>(std::index_sequence<I...>) __attribute__((always_inline)) {
        return (same_at<std::uint64_t>(a + word * I, b + word * I) && ...);
    };
    return same_words(std::make_index_sequence<Size / word>{}) &&
           ((Size & 4) == 0 || same_at<std::uint32_t>(a + words, b + words)) &&
           ((Size & 2) == 0 || same_at<std::uint16_t>(a + words + (Size & 4), b + words + (Size & 4))) &&
           ((Size & 1) == 0 || a[Size - 1] == b[Size - 1]);
}

// Equal runs are equal bytes. Only of those that differ is it asked where.
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

// Of two that are there. What consists of integers alone is compared in place.
template <const Record &R>
[[gnu::always_inline]] inline std::int32_t order_of(const mirk_object *a, const mirk_object *b) {
    if constexpr (all_integers(R)) {
        return order_of_members<R>(a, b);
    } else {
        return Compare<R>::compare(a, b);
    }
}

// The sign is the order and the size means nothing: a string's is memcmp's, an enumeration's the distance.
template <const Record &R>
[[gnu::always_inline]] inline std::int32_t order_of_members(const mirk_object *a, const mirk_object *b) {
    std::int32_t order = 0;
    walk_while<R>([&]<class F>(F) __attribute__((always_inline)) {
        if constexpr (F::kind == Kind::array) {
            // Counts are equal here, as members of their own; a null block counts as nothing.
            const std::uint32_t n = std::min(F::count(a), F::count(b));
            for (std::uint32_t i = 0; i < n && order == 0; ++i) {
                order =
                    order_of<F::element>(element_at<F::element>(*F::at(a), i), element_at<F::element>(*F::at(b), i));
            }
        } else if constexpr (F::kind == Kind::string) {
            const std::uint32_t n = std::min(F::count(a), F::count(b));
            if (n != 0) order = std::memcmp(*F::at(a), *F::at(b), n);
        } else if constexpr (F::kind == Kind::record) {
            order = order_of<*F::member.record>(F::at(a), F::at(b));
        } else if constexpr (!schema::is_integer(F::kind)) {
            order = Primitive<F>::compare(F::at(a), F::at(b));
        } else if constexpr (!continues_run<R>(F::index)) {
            order = order_of_run<R, F::index>(a, b);
        }
        return order == 0;
    });
    return order;
}

}  // namespace

template <const Record &R>
std::int32_t Compare<R>::compare(const mirk_object *a, const mirk_object *b) {
    if (a == nullptr) return b == nullptr ? 0 : -1;
    if (b == nullptr) return 1;
    return order_of_members<R>(a, b);
}

}  // namespace tarn

#include "exports/compare.inc"
