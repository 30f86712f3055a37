// Names that languages other than C give to what the schema names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "schema/model.h"

namespace tarn::generate {

// Without the prefix that all names of the schema share.
std::string short_name(std::string_view name);
// Of an enumeration also without its suffix.
std::string type_name(const schema::Enumeration &enumeration);
// Lower case, without the words that all enumerators of the enumeration begin with.
std::vector<std::string> enumerator_names(const schema::Enumeration &enumeration);

// What the schema says of a thing, as the beginning of a sentence and as a whole one.
std::string capital(std::string_view phrase);
std::string sentence(std::string_view phrase);

}  // namespace tarn::generate
