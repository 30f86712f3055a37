// Texts that contain a type's name, concatenated at compile time.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

namespace tarn {

template <const auto &Type, std::size_t Before, std::size_t After>
struct NamedText {
    std::array<char, Before + Type.name.size() + After - 1> characters{};

    constexpr const char *data() const { return characters.data(); }
};

// before and after are literals; after may also be the characters of another such text.
template <const auto &Type, std::size_t Before, std::size_t After>
consteval auto named_text(const char (&before)[Before], const std::array<char, After> &after) {
    NamedText<Type, Before, After> text;
    auto end = std::copy_n(before, Before - 1, text.characters.begin());
    end = std::copy(Type.name.begin(), Type.name.end(), end);
    std::copy(after.begin(), after.end(), end);
    return text;
}
template <const auto &Type, std::size_t Before, std::size_t After>
consteval auto named_text(const char (&before)[Before], const char (&after)[After]) {
    return named_text<Type>(before, std::to_array(after));
}

}  // namespace tarn
