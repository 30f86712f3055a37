// Writes items as consecutive frames.
#pragma once

#include <string>
#include <vector>

#include "tools/tarn/formats/item.h"

namespace tarn::tool {

// With a bundle, its start and commit enclose them. Throws a Failure that names the location of the item.
std::string frames_of(const Handles &handles, const std::vector<Item> &items, const std::string &origin,
                      const reflect::BundleOperations *bundle = nullptr, std::uint32_t stamp = 0);

}  // namespace tarn::tool
