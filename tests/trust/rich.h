// The values that failures are tested with.
#pragma once

#include <string_view>

#include "reference/codec.h"

namespace trust {

// No array and no string is empty, and small arrays have two elements.
reference::Record rich(std::string_view type, bool printable = false);

}  // namespace trust
