// Fills a record and reads it back, through exported operations alone.
#pragma once

#include "platform.h"

namespace families {

struct Extent {
    std::uint32_t elements = 2;  // of every array
    int depth = 3;               // deeper arrays stay empty
    bool states = false;         // state bytes too, on a tracking handle
};

// Sets all members to values that follow from the seed. Continues after errors, so that filling can be tested with
// failing allocations; returns the first one.
std::uint32_t fill(mirk_handle *h, const RecordOperations &r, void *object, std::uint32_t seed, Extent extent = {});

void *filled(mirk_handle *h, const RecordOperations &r, std::uint32_t seed, Extent extent = {});

// One line for each value, and for each state byte if the handle tracks.
std::vector<std::string> content(mirk_handle *h, const RecordOperations &r, void *object);

}  // namespace families
