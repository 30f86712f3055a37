// From items to frames, one behind the other.
#pragma once

#include <string>
#include <vector>

#include "tools/tarn/formats/items.h"

namespace tarn::tool {

// With a bundle, its start and its commit go around them. Throws a Failure that names the place of the item.
std::string encoded(const Handles &handles, const std::vector<Item> &items, const std::string &origin,
                    const reflect::BundleOperations *bundle = nullptr, std::uint32_t stamp = 0);

}  // namespace tarn::tool
