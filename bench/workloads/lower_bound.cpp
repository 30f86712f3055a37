// Compiled twice, once for each lower bound.
#include "bench/workloads/lower_bound.h"

#include <cstdlib>
#include <cstring>

namespace tarn::bench {

#include "lower_bound.inc"

#ifdef TARN_INLINED_LOWER_BOUND
[[gnu::visibility("default")]] const LowerBound &inlined_lower_bound(std::string_view record) {
#else
const LowerBound &contract_lower_bound(std::string_view record) {
#endif
    for (const LowerBound &bound : lower_bounds) {
        if (record == bound.record) return bound;
    }
    std::abort();
}

}  // namespace tarn::bench
