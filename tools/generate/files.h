// The files that a generator prints.
#pragma once

#include <map>
#include <string>

namespace tarn::generate {

// Path, relative to the output directory, and content.
using Files = std::map<std::string, std::string>;

// Does not touch a file whose content is unchanged, so that nothing is rebuilt.
void write_files(const std::string &directory, const Files &files);

}  // namespace tarn::generate
