#include "runtime/kinds.h"

namespace tarn {

// Each member's hash is the seed of the next. A count or a length enters twice: as a member, and at the head of what it
// counts; all sides of a system have to do so alike.
template <const Record &R>
std::uint32_t Hash<R>::hash(const mirk_object *instance, std::uint32_t seed) {
    if (instance == nullptr) return seed;
    walk<R>([&]<class F>(F) {
        if constexpr (F::kind == Kind::array) {
            seed = Primitive<typename F::Counter>::hash(F::Counter::at(instance), seed);
            const std::uint32_t n = F::count(instance);
            for (std::uint32_t i = 0; i < n; ++i) {
                seed = Hash<F::element>::hash(element_at<F::element>(*F::at(instance), i), seed);
            }
        } else if constexpr (F::kind == Kind::string) {
            seed = Primitive<typename F::Counter>::hash(F::Counter::at(instance), seed);
            seed = SuperFastHash(*F::at(instance), F::count(instance), seed);
        } else {
            seed = Primitive<F>::hash(F::at(instance), seed);
        }
    });
    return seed;
}

}  // namespace tarn

#include "exports/hash.inc"
