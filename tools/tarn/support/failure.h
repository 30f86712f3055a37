// The exit codes of the tool, and the exception that ends a command with one of them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
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

// Of more complaints about one input, only the number is printed.
inline constexpr std::size_t most_complaints = 20;

// Its words are printable, whatever text from outside the message quotes. It has a line for each of the first
// complaints, and one for the number of the others.
class Failure : public std::runtime_error {
public:
    Failure(Exit exit, const std::string &message) : Failure(exit, std::vector{message}) {}
    // `more` complaints are not among the lines.
    Failure(Exit exit, const std::vector<std::string> &lines, std::size_t more = 0);
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

// Throws the first failure or, to keep going, prints the first ones and finally the number of the others. With
// `report`, that gets all instead.
class Failures {
public:
    explicit Failures(bool keep_going, std::function<void(const Failure &)> report = {})
        : keep_going_(keep_going), report_(std::move(report)) {}
    Failures(const Failures &) = delete;
    Failures &operator=(const Failures &) = delete;
    ~Failures();

    void add(const Failure &failure);
    void add(Exit exit) { exit_ = std::max(exit_, exit); }  // of what has been printed
    std::size_t count() const { return count_; }
    Exit exit() const { return exit_; }  // the highest exit code

private:
    bool keep_going_;
    std::function<void(const Failure &)> report_;
    std::size_t count_ = 0;
    Exit exit_ = Exit::success;
};

// ENOMEM is an error of the environment, every other number one of the input.
Exit exit_of(std::uint32_t number);

}  // namespace tarn::tool
