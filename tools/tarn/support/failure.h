// The exit codes of the tool, and the exception that ends a command with one of them.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tarn::tool {

enum class Exit : int { success = 0, negative = 1, input = 2, environment = 3 };

// The one table of exit codes: all commands keep to it, and the help and the manual page print it.
struct ExitCode {
    Exit code;
    std::string_view meaning;
};
inline constexpr ExitCode exit_codes[] = {
    {Exit::success, "success"},
    {Exit::negative, "files differ; no manifest; bundle refused, aborted or not handled; recording incomplete"},
    {Exit::input, "usage error, unknown name, or invalid input"},
    {Exit::environment, "file, connection, timeout or memory error"},
};

// Its words are printable, whatever text from outside the message quotes, and have as many lines as it was given.
class Failure : public std::runtime_error {
public:
    Failure(Exit exit, const std::string &message) : Failure(exit, std::vector{message}) {}
    Failure(Exit exit, const std::vector<std::string> &lines);
    Exit exit() const { return exit_; }

private:
    Exit exit_;
};

// "EMSGSIZE"; the number itself if it has no name.
std::string error_name(std::uint32_t number);
// "Message too long (EMSGSIZE)"
std::string error_text(std::uint32_t number);

// Prints on standard error, after what is waiting for standard output.
void print_error(const Failure &failure);

// ENOMEM is an error of the environment, every other number one of the input.
Exit exit_of(std::uint32_t number);

}  // namespace tarn::tool
