// Files that a generator prints.
#pragma once

#include <map>
#include <string>

namespace tarn::generate {

// File name, relative to a directory of the product's own, and content.
using Files = std::map<std::string, std::string>;

// A file whose content is unchanged is left alone, so that nothing is rebuilt for it.
void write_files(const std::string &directory, const Files &files);

}  // namespace tarn::generate
