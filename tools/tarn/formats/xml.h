// Reads messages from XML: a document, or a sequence of fragments such as a recording.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/tarn/formats/item.h"

namespace tarn::tool {

// One top-level element with its content, not parsed yet. Refers to the text that it is a part of.
struct Fragment {
    std::string_view name, text;
    std::string_view declaration;  // the XML declaration before it, which may name its encoding
    long line;                     // of its first character, from 1
};

// Splits at the end tag of each top-level element, so that a malformed fragment does not affect the others.
std::vector<Fragment> split_fragments(std::string_view text, const std::string &origin);

// A control message is <bundle_start name="..."></bundle_start>. A message has per-field state if an element has a
// state attribute. Unless lenient, names that the schema does not define and values that the library would not read are
// a Failure that lists all lines concerned.
Item item_of(const Handles &handles, const Fragment &fragment, const std::string &origin, bool lenient);

}  // namespace tarn::tool
