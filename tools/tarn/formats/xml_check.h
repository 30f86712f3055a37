// Checks a parsed document against the schema. The library ignores names that it does not know, but the author of a
// document needs an error message.
#pragma once

#include <string>
#include <vector>

#include "schema/model.h"

namespace tarn::tool {

struct Problem {
    long line;
    std::string path;
    std::string reason;
};

struct Problems {
    std::vector<Problem> first;  // at most as many as are printed
    std::size_t more = 0;
};

// The root of the document must be the message.
Problems check_document(void *document, const schema::Message &message);

// Why the text is not an address: "unset", an address with its prefix length, or the seven members in decimal. Empty if
// it is one.
std::string address_problem(const std::string &text);

}  // namespace tarn::tool
