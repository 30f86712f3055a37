#include "names.h"

namespace tarn::generate {

std::string short_name(std::string_view name) {
    constexpr std::string_view prefix = "lumo_tarn_";
    if (name.starts_with(prefix)) name.remove_prefix(prefix.size());
    return std::string(name);
}

std::string type_name(const schema::Enumeration &enumeration) {
    std::string name = short_name(enumeration.name);
    if (name.ends_with("_e")) name.resize(name.size() - 2);
    return name;
}

std::vector<std::string> enumerator_names(const schema::Enumeration &enumeration) {
    const auto &all = enumeration.enumerators;
    std::size_t shared = all.empty() ? 0 : all.front().size();
    for (const std::string_view name : all) {
        std::size_t same = 0;
        while (same < shared && same < name.size() && name[same] == all.front()[same]) ++same;
        shared = same;
    }
    const std::size_t word = all.empty() ? 0 : all.front().substr(0, shared).rfind('_') + 1;
    std::vector<std::string> names;
    for (std::string_view name : all) {
        std::string lower;
        for (const char c : name.substr(word)) lower += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        names.push_back(lower);
    }
    return names;
}

std::string capital(std::string_view phrase) {
    std::string text(phrase);
    if (text.front() >= 'a' && text.front() <= 'z') text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text;
}

std::string sentence(std::string_view phrase) { return capital(phrase) + "."; }

}  // namespace tarn::generate
