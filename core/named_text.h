// Texts that bear a type's name, put together while compiling.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace tarn {

template <const auto &Type, std::size_t Before, std::size_t Behind>
struct NamedText {
    std::array<char, Before + Type.name.size() + Behind - 1> characters{};

    constexpr const char *data() const { return characters.data(); }
};

// before and behind are literals, or behind is another such text.
template <const auto &Type, std::size_t Before, std::size_t Behind>
consteval auto named_text(const char (&before)[Before], const std::array<char, Behind> &behind) {
    NamedText<Type, Before, Behind> text;
    auto at = std::copy_n(before, Before - 1, text.characters.begin());
    at = std::copy(Type.name.begin(), Type.name.end(), at);
    std::copy(behind.begin(), behind.end(), at);
    return text;
}
template <const auto &Type, std::size_t Before, std::size_t Behind>
consteval auto named_text(const char (&before)[Before], const char (&behind)[Behind]) {
    return named_text<Type>(before, std::to_array(behind));
}

}  // namespace tarn
