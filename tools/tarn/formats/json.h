// Messages as JSON, and back. One object for each message:
//
//   {"bundle": NAME, "control": "start"}
//   {"message": NAME, "tracked": true, "payload": {MEMBER: VALUE, ...}}
//
// "tracked" says that there is per-field state, and is left out if there is none. Integers are numbers, booleans true
// or false, enumerators and addresses their text, strings text or {"bytes": HEX} if they are no UTF-8, nested records
// objects, arrays arrays. Counts and lengths follow from what they count and are left out. What has no form of its own
// in JSON is written under a name with an "@": "@state" holds the state bytes, of which those that are 0 are left out;
// "@variant" stands in place of the members of a record that has no body, and beside "@value" in a boolean or an
// enumeration; "@ra" holds RA data.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "tools/tarn/formats/item.h"

namespace tarn::tool {

nlohmann::ordered_json json_of(const Handle &handle, const reflect::RecordOperations &operations, void *instance);
nlohmann::ordered_json json_of(const Item &item);

std::vector<Item> from_json(const Handles &handles, std::string_view content, const std::string &origin, bool lenient);

}  // namespace tarn::tool
