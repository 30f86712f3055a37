// Results of the len operations, which size buffers and can exceed the size of the frame:
#pragma once

#include <cstdint>

#include "reference/value.h"

namespace reference {

// One byte more than the frame for an empty array or string of a tracked frame, one per character of a string's state,
// none for RA data. Some arrays use the length of their first element.
std::uint32_t length(const Record &value, bool tracked);
// For a null instance: no element, no character, no tracking.
std::uint32_t length_of_null(const RecordTable &table);
inline std::uint32_t message_length(const Record &payload, bool tracked) { return 43 + length(payload, tracked); }
constexpr std::uint32_t enumeration_length = 5;
constexpr std::uint32_t control_length = 43;

}  // namespace reference
