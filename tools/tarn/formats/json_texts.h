// JSON texts one after the other in a file, each as a value.
#pragma once

#include <cstddef>
#include <iterator>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace tarn::tool {

// Messages need about twenty levels.
inline constexpr std::size_t deepest_json = 256;

// Time and memory are proportional to the length of the content.
class JsonTexts {
public:
    JsonTexts(std::string_view content, const std::string &origin);

    // Reads the next text; false at the end. Throws a Failure with its line for a syntax error, for a key that an
    // object has twice, and for arrays and objects inside more than `deepest_json` others.
    bool next();
    const nlohmann::json &value() const { return value_; }
    std::string location() const;  // "FILE:LINE", where the text begins

private:
    class Builder;

    // An iterator that counts lines, for the parser.
    struct Place {
        const char *at;
        std::size_t line = 1;
    };
    struct Reading {
        using iterator_category = std::input_iterator_tag;
        using value_type = char;
        using difference_type = std::ptrdiff_t;
        using pointer = const char *;
        using reference = const char &;

        reference operator*() const { return *place->at; }
        Reading &operator++() {
            if (*place->at++ == '\n') ++place->line;
            return *this;
        }
        bool operator==(const Reading &other) const { return place->at == other.place->at; }

        Place *place;
    };

    Place place_, end_;
    std::string origin_;
    std::size_t line_ = 0;
    nlohmann::json value_;
};

}  // namespace tarn::tool
