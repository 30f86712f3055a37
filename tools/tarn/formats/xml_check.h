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

// The root of the document must be the message. Returns at most `limit` problems.
std::vector<Problem> check_document(void *document, const schema::Message &message, std::size_t limit = 20);

// "unset", an address with its prefix length, or the seven members in decimal.
bool is_address(const std::string &text);

}  // namespace tarn::tool
