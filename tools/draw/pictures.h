// Pictures of the schema, drawn from its tables.
#pragma once

#include <string>

namespace tarn::draw {

// The nesting of bundles, messages and records, from left to right. Nodes have their name in data-name, lines the names
// of their ends in data-from and data-to. `alone`: with its own style, otherwise for a page that has one.
std::string nesting(bool alone);

std::string frame();       // a frame down to its bytes
std::string state_area();  // an instance in memory and its state area
std::string bundle();      // from a request to the handler

}  // namespace tarn::draw
