// Messages from XML: single documents, and runs of fragments such as a recorder leaves behind.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/tarn/formats/item.h"

namespace tarn::tool {

// One element of the outermost level with its content, not yet parsed.
struct Fragment {
    std::string name;
    std::string text;
    long line;  // of its first character, from 1
};

// Cuts at the end tag of each outermost element, so that a fragment which is not well-formed does not spoil the others.
std::vector<Fragment> split_fragments(std::string_view text, const std::string &origin);

// A control message is <bundle_start name="..."></bundle_start>. A message whose document has states has per-field
// state. Strict: what the schema does not know, or what would be lost, is a Failure that lists every line concerned.
Item item_of(const Handles &handles, const Fragment &fragment, const std::string &origin, bool lenient);

}  // namespace tarn::tool
