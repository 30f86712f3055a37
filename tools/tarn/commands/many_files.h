// Commands that convert each file of their input to a file.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <string>
#include <string_view>

#include "tools/tarn/formats/input.h"

namespace tarn::tool {

struct OutputOptions {
    std::string directory;  // empty: all goes to standard output
    unsigned jobs = 1;
};

void add_output_directory(CLI::App &command, OutputOptions &options);

// Converts one file, and passes the result to the function piece by piece.
using Convert = std::function<Exit(const InputOptions &file, const std::function<void(std::string_view)> &write)>;

// Converts each file of the input. In the directory, an output has the name of its input, with `suffix` appended. An
// input with an error has no output, unless the command keeps going.
Exit convert_files(const InputOptions &input, const OutputOptions &output, std::string_view suffix,
                   const Convert &convert);

}  // namespace tarn::tool
