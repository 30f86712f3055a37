// Options structures begin with their size. A program compiled with another version of the header has fewer or more
// members: only members that both sides have are written and read.
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

// Members that the program does not have get their defaults.
template <typename Options>
Options read_options(const Options *options, Options defaults) {
    std::memcpy(&defaults, options, std::min(options->size, sizeof defaults));
    return defaults;
}

}  // namespace mirk
