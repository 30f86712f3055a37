#include "tools/tarn/support/terminal.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "tools/tarn/support/failure.h"

namespace tarn::tool {

namespace {

std::string_view environment(const char *name) {
    const char *value = std::getenv(name);
    return value != nullptr ? value : "";
}

bool is_color_expected() {
    if (!environment("NO_COLOR").empty()) return false;
    const std::string_view force = environment("CLICOLOR_FORCE");
    if (!force.empty() && force != "0") return true;
    return isatty(STDOUT_FILENO) != 0 && environment("TERM") != "dumb";
}

bool has_color = is_color_expected();

}  // namespace

void use_color(ColorUse use) { has_color = use == ColorUse::automatic ? is_color_expected() : use == ColorUse::always; }

std::string colored(std::string_view text, Color color) {
    constexpr const char *codes[] = {"", "\x1b[31m", "\x1b[32m", "\x1b[33m", "\x1b[34m", "\x1b[90m"};
    if (!has_color || color == Color::none) return std::string(text);
    return codes[static_cast<std::size_t>(color)] + std::string(text) + "\x1b[0m";
}

void refuse_terminal(const std::string &output) {
    if (output != "-" || isatty(STDOUT_FILENO) == 0) return;
    throw Failure(Exit::input, "frames are not written to a terminal: use -o FILE, a pipe or --force");
}

Progress::~Progress() {
    if (shown_) std::fprintf(stderr, "\r\x1b[K");
}

void Progress::at(std::size_t done, std::size_t all) {
    static const bool terminal = isatty(STDERR_FILENO) != 0;
    const auto now = std::chrono::steady_clock::now();
    if (!terminal || now < next_) return;
    next_ = now + std::chrono::milliseconds(200);
    shown_ = true;
    std::fprintf(stderr, "\r\x1b[K%s: %zu of %zu", what_.c_str(), done, all);
}

}  // namespace tarn::tool
