// Colors and progress lines, on terminals only.
#pragma once

#include <chrono>
#include <cstdio>
#include <string>
#include <string_view>

#include <unistd.h>

namespace tarn::tool {

enum class Color : std::uint8_t { none, red, green, yellow, blue, gray };

inline std::string colored(std::string_view text, Color color) {
    static const bool terminal = isatty(STDOUT_FILENO) != 0;
    constexpr const char *codes[] = {"", "\x1b[31m", "\x1b[32m", "\x1b[33m", "\x1b[34m", "\x1b[90m"};
    if (!terminal || color == Color::none) return std::string(text);
    return std::string(codes[static_cast<std::size_t>(color)]) + std::string(text) + "\x1b[0m";
}

// A line on standard error that overwrites itself. It first appears after a second.
class Progress {
public:
    explicit Progress(std::string what) : what_(std::move(what)) {}
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;
    ~Progress() {
        if (shown_) std::fprintf(stderr, "\r\x1b[K");
    }

    void at(std::size_t done, std::size_t all) {
        static const bool terminal = isatty(STDERR_FILENO) != 0;
        const auto now = std::chrono::steady_clock::now();
        if (!terminal || now < next_) return;
        next_ = now + std::chrono::milliseconds(200);
        shown_ = true;
        std::fprintf(stderr, "\r\x1b[K%s: %zu of %zu", what_.c_str(), done, all);
    }

private:
    std::string what_;
    std::chrono::steady_clock::time_point next_ = std::chrono::steady_clock::now() + std::chrono::seconds(1);
    bool shown_ = false;
};

}  // namespace tarn::tool
