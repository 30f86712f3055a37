// A page that shows the schema, with the nesting of its records drawn.
#pragma once

#include <string>

namespace tarn::tool {

std::string schema_page();

}  // namespace tarn::tool
