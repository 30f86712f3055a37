// Holds a parsed document against the schema. The library forgives what it does not know; a person who wrote the
// document wants to hear of it.
#pragma once

#include <string>
#include <vector>

#include "schema/model.h"

namespace tarn::tool {

struct Problem {
    long line;
    std::string path;
    std::string sentence;
};

// The document's root is to be the message. At most `limit` problems are listed.
std::vector<Problem> check_document(void *document, const schema::Message &message, std::size_t limit = 20);

// "unset", an address with its prefix length, or the seven members in decimal.
bool is_address(const std::string &text);

}  // namespace tarn::tool
