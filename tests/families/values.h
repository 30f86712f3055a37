// Fills a record and reads it back, through exported operations alone.
#pragma once

#include "platform.h"

namespace families {

struct Extent {
    std::uint32_t elements = 2;  // of every array
    int depth = 3;               // arrays farther down stay empty
    bool states = false;         // state bytes too, on a tracking handle
};

// Everything that can be set gets a value that follows from the seed. Errors are put up with, so that a fill can be
// tried under failing allocations; the first one is the result.
std::uint32_t fill(mirk_handle *h, const RecordOperations &r, void *object, std::uint32_t seed, Extent extent = {});

void *filled(mirk_handle *h, const RecordOperations &r, std::uint32_t seed, Extent extent = {});

// One line for each value, and for each state byte if the handle tracks.
std::vector<std::string> content(mirk_handle *h, const RecordOperations &r, void *object);

}  // namespace families
