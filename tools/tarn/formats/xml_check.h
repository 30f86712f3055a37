// Checks a parsed document against the schema. The library ignores names that it does not know, but the author of a
// document needs an error message.
#pragma once

#include <string>
#include <string_view>

#include "schema/model.h"
#include "tools/tarn/formats/problems.h"
#include "tools/tarn/formats/xml.h"

namespace tarn::tool {

// The root of the document must be the message. Returns true if an element of the message has a state.
bool check_document(void *document, const schema::Message &message, const Fragment &fragment, ProblemList &problems);

// Why the text is not an address: "unset", an address with its prefix length, or the seven members in decimal. Empty if
// it is one.
std::string address_problem(std::string_view text);

}  // namespace tarn::tool
