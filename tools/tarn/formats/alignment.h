// Aligns two sequences by a longest common subsequence.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace tarn::tool {

// Positions of equal numbers in both, increasing in both. As many as possible, unless thousands differ: the time is
// limited. Memory is proportional to the length.
std::vector<std::pair<std::size_t, std::size_t>> align(std::span<const std::uint32_t> a,
                                                       std::span<const std::uint32_t> b);

}  // namespace tarn::tool
