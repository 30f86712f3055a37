// Pictures of what the schema describes, drawn from its tables.
#pragma once

#include <string>

namespace tarn::draw {

// Who holds whom: bundles, messages and records, from left to right. Each node has its name in data-name, each line its
// ends in data-from and data-to.
std::string nesting(bool alone);

std::string frame();       // a frame down to its bytes
std::string state_area();  // an instance in memory, with the bytes that follow its members
std::string bundle();      // from a request to the handler

}  // namespace tarn::draw
