#include "tools/tarn/support/failure.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

// More than a path and what is said about it.
constexpr std::size_t longest_line = 8192;

std::string others(std::size_t number) {
    return "and " + std::to_string(number) + (number == 1 ? " more error" : " more errors");
}

std::string joined(const std::vector<std::string> &lines, std::size_t more) {
    const std::size_t shown = std::min(lines.size(), most_complaints);
    std::string text;
    for (std::size_t i = 0; i < shown; ++i) text += (i == 0 ? "" : "\n") + printable(lines[i], longest_line);
    more += lines.size() - shown;
    return more == 0 ? text : text + "\n" + others(more);
}

}  // namespace

Failure::Failure(Exit exit, const std::vector<std::string> &lines, std::size_t more)
    : std::runtime_error(joined(lines, more)), exit_(exit) {}

void print_error(const Failure &failure) {
    std::fflush(stdout);
    std::fprintf(stderr, "tarn: %s\n", failure.what());
}

Failures::~Failures() {
    if (!report_ && count_ > most_complaints) print_error({exit_, others(count_ - most_complaints)});
}

void Failures::add(const Failure &failure) {
    if (!keep_going_) throw failure;
    ++count_;
    if (report_) {
        report_(failure);
    } else if (count_ <= most_complaints) {
        print_error(failure);
    }
    exit_ = std::max(exit_, failure.exit());
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
