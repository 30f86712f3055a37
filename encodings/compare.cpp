#include <algorithm>
#include <cstring>

#include "runtime/kinds.h"

namespace tarn {

// The sign is the order and the size means nothing: a string's is memcmp's, an enumeration's the distance.
template <const Record &R>
std::int32_t Compare<R>::compare(const mirk_object *a, const mirk_object *b) {
    if (a == nullptr) return b == nullptr ? 0 : -1;
    if (b == nullptr) return 1;
    std::int32_t order = 0;
    walk_while<R>([&]<class F>(F) {
        if constexpr (F::kind == Kind::array) {
            // Counts are equal here, as members of their own; a null block counts as nothing.
            const std::uint32_t n = std::min(F::count(a), F::count(b));
            for (std::uint32_t i = 0; i < n && order == 0; ++i) {
                order = Compare<F::element>::compare(element_at<F::element>(*F::at(a), i),
                                                     element_at<F::element>(*F::at(b), i));
            }
        } else if constexpr (F::kind == Kind::string) {
            const std::uint32_t n = std::min(F::count(a), F::count(b));
            if (n != 0) order = std::memcmp(*F::at(a), *F::at(b), n);
        } else {
            order = Primitive<F>::compare(F::at(a), F::at(b));
        }
        return order == 0;
    });
    return order;
}

}  // namespace tarn

#include "exports/compare.inc"
