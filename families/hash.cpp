#include "families/value.h"
#include "kinds/kinds.h"

namespace tarn {

// Each member's hash is the seed of the next. Counts and lengths are hashed twice, as members and before what they
// count: all peers have to compute the same hash.
template <const Record &R>
std::uint32_t Hash<R>::hash(const mirk_object *instance, std::uint32_t seed) {
    if (instance == nullptr) return seed;
    const auto counter = [&]<BlockMember B>(B) {
        seed = Primitive<typename B::Counter>::hash(B::Counter::at(instance), seed);
    };
    walk<R>(cases{
        [&]<ArrayMember A>(A a) {
            counter(a);
            const std::uint32_t n = A::count(instance);
            for (std::uint32_t i = 0; i < n; ++i) seed = Hash<A::element>::hash(A::element_of(instance, i), seed);
        },
        [&]<StringMember S>(S s) {
            counter(s);
            seed = SuperFastHash(*S::at(instance), S::count(instance), seed);
        },
        [&]<SingleMember F>(F) { seed = Primitive<F>::hash(F::at(instance), seed); },
    });
    return seed;
}

}  // namespace tarn

#include "exports/hash.inc"
