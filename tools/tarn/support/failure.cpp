#include "tools/tarn/support/failure.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

// More than a path and what is said about it.
constexpr std::size_t longest_line = 8192;

std::string joined(const std::vector<std::string> &lines) {
    std::string text;
    for (const std::string &line : lines) text += (text.empty() ? "" : "\n") + printable(line, longest_line);
    return text;
}

}  // namespace

Failure::Failure(Exit exit, const std::vector<std::string> &lines) : std::runtime_error(joined(lines)), exit_(exit) {}

void print_error(const Failure &failure) {
    std::fflush(stdout);
    std::fprintf(stderr, "tarn: %s\n", failure.what());
}

std::string error_name(std::uint32_t number) {
    const char *name = strerrorname_np(static_cast<int>(number));
    return name != nullptr ? name : std::to_string(number);
}

std::string error_text(std::uint32_t number) {
    return std::string(std::strerror(static_cast<int>(number))) + " (" + error_name(number) + ")";
}

Exit exit_of(std::uint32_t number) { return number == ENOMEM ? Exit::environment : Exit::input; }

}  // namespace tarn::tool
