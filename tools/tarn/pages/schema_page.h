// A page that shows the schema, with a drawing of the nesting of its records.
#pragma once

#include <string>

namespace tarn::tool {

std::string schema_page();

}  // namespace tarn::tool
