// Names of schema objects in languages other than C.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "schema/model.h"

namespace tarn::generate {

// Without the common prefix of all names of the schema.
std::string short_name(std::string_view name);
// The short name, without the suffix of enumerations.
std::string type_name(const schema::Enumeration &enumeration);
// In lower case, without the leading words that all enumerators of the enumeration share.
std::vector<std::string> enumerator_names(const schema::Enumeration &enumeration);

// A phrase as the beginning of a sentence, and as a whole sentence.
std::string capital(std::string_view phrase);
std::string sentence(std::string_view phrase);

}  // namespace tarn::generate
