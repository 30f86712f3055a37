#include "kit/handle.h"

#include <gtest/gtest.h>

namespace kit {

void fail_test(std::size_t left, std::size_t expected, const Options &options) {
    ADD_FAILURE() << left << " blocks were left on a handle (" << name_of(options.tracking) << "), expected were "
                  << expected;
}

}  // namespace kit
