// Replaces each "$name" in a text by its value. A name must come before the names that are prefixes of it.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace tarn {

inline std::string fill_in(std::string text, std::initializer_list<std::pair<std::string_view, std::string>> values) {
    for (const auto &[name, value] : values) {
        for (std::size_t at = 0; (at = text.find(name, at)) != std::string::npos; at += value.size()) {
            text.replace(at, name.size(), value);
        }
    }
    return text;
}

}  // namespace tarn
