#include "core/guard.h"
#include "core/named_text.h"
#include "families/value.h"
#include "kinds/kinds.h"

namespace tarn {

// Finds a modified mark in the record's members and clears it together with the record's own. The walk stops at the
// first member that reports one, so later marks are found by later calls. Arrays and strings are not visited.
template <const Record &R>
std::uint32_t Propagate<R>::backpropagate(mirk_handle *h, std::uint32_t ctx_id, mirk_object *instance, void *word) {
    if (instance == nullptr) {
        static constexpr auto text = named_text<R>("(info): backpropagate: Null pointer to ", " type");
        trace(info_level, text.data());
        return 0;
    }
    const std::uint32_t own = mirk_get_instance_modified(instance, 1, 0);
    const bool nothing_found = walk_while<R>(cases{
        [](BlockMember auto) { return true; },
        [&]<SingleMember F>(F) { return Primitive<F>::backpropagate(h, ctx_id, F::at(instance), word) == 0; },
    });
    if (own != 0) mirk_set_instance_modified(instance, 1, 0, 0);
    return own != 0 || !nothing_found ? 1 : 0;
}

}  // namespace tarn

#include "exports/propagate.inc"
