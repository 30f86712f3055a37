// A place in a text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarn::tool {

// Lines count from 1. Columns are bytes from the beginning of the line, and count from 1.
struct Position {
    std::size_t line = 1, column = 1;

    // "3:14", or "3" if the column is 0, which means that it is not known.
    std::string text() const { return std::to_string(line) + (column == 0 ? "" : ":" + std::to_string(column)); }

    // After this text, which begins here.
    Position after(std::string_view text) const {
        Position end{line, column + text.size()};
        for (std::size_t at = 0; (at = text.find('\n', at)) != std::string_view::npos;) {
            ++end.line;
            end.column = text.size() - at++;
        }
        return end;
    }
};

}  // namespace tarn::tool
