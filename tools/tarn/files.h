// Whole files, standard input and standard output.
#pragma once

#include <string>
#include <string_view>

namespace tarn::tool {

// "-" is standard input. Throws a Failure with the path and the reason.
std::string read_file(const std::string &path);

// "-" is standard output.
void write_file(const std::string &path, std::string_view bytes);

// What a path is called in messages for people.
std::string shown_path(const std::string &path);

// Makes sure that everything printed has arrived.
void flush_output();

}  // namespace tarn::tool
