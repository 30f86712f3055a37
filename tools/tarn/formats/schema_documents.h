// The schema for validators and editors: JSON Schema (draft 2020-12) for a message in JSON, and XML Schema for one in
// XML. They accept what tarn accepts without --lenient, except that they cannot compare counts with the number of
// elements.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "schema/model.h"

namespace tarn::tool {

nlohmann::ordered_json json_schema_of(const schema::Message &message);
std::string xsd_of(const schema::Message &message);

}  // namespace tarn::tool
