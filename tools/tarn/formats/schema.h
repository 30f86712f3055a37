// The schema as text and as JSON.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "schema/layout.h"

namespace tarn::tool {

std::string kind_text(const schema::Member &m);
std::string role_text(const schema::Member &m);  // "count", "length", or nothing

// Bytes on the wire without per-field state; "N+" if arrays or strings can make it longer.
std::string wire_text(const schema::Record &record);
std::string wire_text(const schema::Member &m);

nlohmann::ordered_json json_of_record(const schema::Record &record);
nlohmann::ordered_json schema_json();

}  // namespace tarn::tool
