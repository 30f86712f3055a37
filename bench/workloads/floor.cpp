// Compiled once for each of the two floors.
#include "bench/workloads/floor.h"

#include <cstdlib>
#include <cstring>

namespace tarn::bench {

#include "floor.inc"

#ifdef TARN_INLINED_FLOOR
[[gnu::visibility("default")]] const Floor &inlined_floor(std::string_view record) {
#else
const Floor &contract_floor(std::string_view record) {
#endif
    for (const Floor &floor : floors) {
        if (record == floor.record) return floor;
    }
    std::abort();
}

}  // namespace tarn::bench
