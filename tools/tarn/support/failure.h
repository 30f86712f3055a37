// How a command ends: one set of exit codes for the whole tool, and the exception that carries them.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace tarn::tool {

enum class Exit : int {
    done = 0,
    different = 1,    // compared and found different, asked for and not found
    input = 2,        // the command line, or something that was read, is wrong
    environment = 3,  // files, sockets, memory
};

class Failure : public std::runtime_error {
public:
    Failure(Exit exit, const std::string &sentence) : std::runtime_error(sentence), exit_(exit) {}
    Exit exit() const { return exit_; }

private:
    Exit exit_;
};

// "Message too long (EMSGSIZE, 90)"
std::string error_text(std::uint32_t number);

// Lack of memory is not an error of the input.
Exit exit_of(std::uint32_t number);

}  // namespace tarn::tool
