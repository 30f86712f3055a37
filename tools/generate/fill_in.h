// Text with places to fill in: each "$name" is replaced by its value. Longer names are to stand in front of shorter
// ones that they begin with.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace tarn {

inline std::string fill_in(std::string text, std::initializer_list<std::pair<std::string_view, std::string>> places) {
    for (const auto &[name, value] : places) {
        for (std::size_t at = 0; (at = text.find(name, at)) != std::string::npos; at += value.size()) {
            text.replace(at, name.size(), value);
        }
    }
    return text;
}

}  // namespace tarn
