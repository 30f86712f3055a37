// Code for the benchmarks that is printed from the schema: one function for each product.
#pragma once

#include "tools/generate/files.h"

namespace tarn::bench {

using generate::Files;

Files write_lower_bound();  // straight-line code that the library is measured against
Files write_plain();        // records as plain structs, from which the measured objects are made
Files write_competitors();  // the schema in the languages of other serializers

}  // namespace tarn::bench
