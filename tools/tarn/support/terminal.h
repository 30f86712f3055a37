// Colors on standard output, progress lines on standard error, and what is not written to a terminal.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarn::tool {

enum class Color : std::uint8_t { none, red, green, yellow, blue, gray };

// Automatic: not if NO_COLOR is set; else if CLICOLOR_FORCE is set, or if standard output is a terminal that is not
// dumb.
enum class ColorUse : std::uint8_t { automatic, always, never };
void use_color(ColorUse use);

std::string colored(std::string_view text, Color color);

// Throws a Failure if the output is "-" and standard output is a terminal: bytes of any value could change its
// settings.
void refuse_terminal(const std::string &output);

// A line on standard error that overwrites itself. It first appears after a second.
class Progress {
public:
    explicit Progress(std::string what) : what_(std::move(what)) {}
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;
    ~Progress();

    void at(std::size_t done, std::size_t all);

private:
    std::string what_;
    std::chrono::steady_clock::time_point next_ = std::chrono::steady_clock::now() + std::chrono::seconds(1);
    bool shown_ = false;
};

}  // namespace tarn::tool
