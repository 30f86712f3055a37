// Converts messages to and from JSON. Each message is one object:
//
//   {"bundle": NAME, "control": "start"}
//   {"message": NAME, "tracked": true, "payload": {MEMBER: VALUE, ...}}
//
// "tracked" is present if the message has per-field state. Integers are numbers, those of 64 bits decimal text, since
// many readers round numbers beyond 2^53; both forms are read. Booleans are true or false, enumerators and addresses
// text, strings text or {"bytes": HEX} if they are not UTF-8, nested records objects, arrays arrays. Counts and lengths
// are omitted, since their members imply them. Names with an "@" are not members: "@state" contains the state bytes
// except those that are 0; "@variant" replaces the members of a record without a body, and accompanies "@value" in a
// boolean or an enumeration; "@ra" contains RA data.
#pragma once

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "tools/tarn/formats/item.h"

namespace tarn::tool {

// Written as text.
constexpr bool is_wide(std::uint64_t greatest) { return greatest > 0xffffffff; }

nlohmann::ordered_json json_of(const Handle &handle, const reflect::RecordOperations &operations, void *instance);
// A member that is neither a record nor an array.
nlohmann::ordered_json json_of_member(const Handle &handle, const reflect::RecordOperations &operations,
                                      std::size_t index, void *instance);
nlohmann::ordered_json json_of(const Item &item);
// Text, or {"bytes": HEX} if it is not UTF-8.
nlohmann::ordered_json json_of_string(const std::string &text);

// The same as one line.
std::string json_line(const Item &item);

// For output: printable; readers get the same values. A negative indent writes one line.
std::string json_text(const nlohmann::ordered_json &json, int indent = -1);

std::vector<Item> from_json(const Handles &handles, std::string_view content, const std::string &origin, bool lenient);

}  // namespace tarn::tool
