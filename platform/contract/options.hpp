// Structures of options begin with their size. A program that was compiled with another header has fewer or more
// members: only those that both sides know are written and read.
#pragma once

#include <algorithm>
#include <cstring>

namespace mirk {

template <typename Options>
void initialize_options(Options *options, size_t size, Options defaults) {
    defaults.size = size;
    std::memset(static_cast<void *>(options), 0, size);
    std::memcpy(static_cast<void *>(options), &defaults, std::min(size, sizeof defaults));
}

// What the program does not know has its default.
template <typename Options>
Options read_options(const Options *options, Options defaults) {
    std::memcpy(&defaults, options, std::min(options->size, sizeof defaults));
    return defaults;
}

}  // namespace mirk
