// The rules that a table must satisfy before anything is computed from it. The catalogue does not compile if a table
// has a finding. A test runs the same functions to report the finding in a sentence.
#pragma once

#include <algorithm>
#include <type_traits>

#include "schema/layout.h"

namespace tarn::schema {

struct Finding {
    std::string_view record, member, sentence;  // an empty sentence: no finding
    constexpr explicit operator bool() const { return !sentence.empty(); }
};

constexpr bool is_name(std::string_view name) {
    if (name.empty() || name.front() == '_' || (name.front() >= '0' && name.front() <= '9')) return false;
    for (const char c : name) {
        if (!(c >= 'a' && c <= 'z') && !(c >= '0' && c <= '9') && c != '_') return false;
    }
    return true;
}

constexpr bool is_length_name(std::string_view length, std::string_view string) {
    return length.size() == string.size() + 4 && length.starts_with(string) && length.ends_with("_len");
}

constexpr bool is_word_of(std::string_view word, std::string_view name) {
    while (!name.empty()) {
        const std::string_view part = name.substr(0, name.find('_'));
        if (word == part) return true;
        name.remove_prefix(std::min(part.size() + 1, name.size()));
    }
    return false;
}

// Whether the meaning has a word that the name has not.
constexpr bool is_more_than_name(std::string_view meaning, std::string_view name) {
    constexpr std::string_view fillers[] = {"a", "an", "of", "the"};
    while (!meaning.empty()) {
        const std::string_view word = meaning.substr(0, meaning.find_first_of(" ,:"));
        const bool filler = std::find(std::begin(fillers), std::end(fillers), word) != std::end(fillers);
        if (!word.empty() && !filler && !is_word_of(word, name)) return true;
        meaning.remove_prefix(std::min(word.size() + 1, meaning.size()));
    }
    return false;
}

constexpr Finding lint_key(const Record &record) {
    for (const std::string_view name : record.key.members()) {
        const auto found = [&](std::string_view sentence) { return Finding{record.name, name, sentence}; };
        // Not a pointer that may be null: with sanitizers, g++ 12 compares none to null in a constant expression.
        const auto member =
            std::find_if(record.members.begin(), record.members.end(), [&](const Member &m) { return m.name == name; });
        if (member == record.members.end()) return found("a key names members of its record");
        if (member->role != Role::value || member->kind == Kind::record || member->kind == Kind::array) {
            return found("a key consists of single values");
        }
    }
    return {};
}

constexpr Finding lint(const Record &record) {
    const auto found = [&](const Member &m, std::string_view sentence) {
        return Finding{record.name, m.name, sentence};
    };
    if (!is_name(record.name))
        return {record.name, {}, "a record's name is lower-case letters, digits and underscores"};
    if (record.name.size() > 63) return {record.name, {}, "a record's name has at most 63 characters"};
    if (record.meaning.empty()) return {record.name, {}, "a record has a meaning"};
    if (record.members.empty()) return {record.name, {}, "a record has at least one member"};
    if (record.members.size() > most_members) return {record.name, {}, "a record has at most 64 members"};
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const Member &m = record.members[i];
        const auto follows = [&](Kind kind) {
            return i + 1 < record.members.size() && record.members[i + 1].kind == kind;
        };
        const auto is_preceded_by = [&](Role role) { return i > 0 && record.members[i - 1].role == role; };
        if (!is_name(m.name)) return found(m, "a member's name is lower-case letters, digits and underscores");
        if (m.meaning.empty()) return found(m, "a member has a meaning");
        if (!is_more_than_name(m.meaning, m.name)) return found(m, "a meaning says more than the name of its member");
        for (std::size_t j = 0; j < i; ++j) {
            if (record.members[j].name == m.name) return found(m, "two members of one record have the same name");
        }
        // With checks for null pointers, g++ does not accept this comparison in a constant expression. The builders do
        // not allow a member without its type, and a layout of one does not compile.
        if (!std::is_constant_evaluated()) {
            if ((m.kind == Kind::record || m.kind == Kind::array) != (m.record != nullptr)) {
                return found(m, "a nested record or an array, and nothing else, names a record");
            }
            if ((m.kind == Kind::enumeration) != (m.enumeration != nullptr)) {
                return found(m, "an enumerated member, and no other, names an enumeration");
            }
        }
        if (m.role == Role::count && !follows(Kind::array)) {
            return found(m, "a count directly precedes its array");
        }
        if (m.role == Role::count && m.kind != Kind::u8 && m.kind != Kind::u32) {
            return found(m, "a count has one or four bytes");
        }
        if (m.role == Role::length && !follows(Kind::string)) {
            return found(m, "a length directly precedes its string");
        }
        if (m.role == Role::length && m.kind != Kind::u16) return found(m, "a length has two bytes");
        if (m.role == Role::length && !is_length_name(m.name, record.members[i + 1].name)) {
            return found(m, "a length has the name of its string and _len");
        }
        if (m.kind == Kind::array && !is_preceded_by(Role::count)) {
            return found(m, "an array directly follows its count");
        }
        if (m.kind == Kind::string && !is_preceded_by(Role::length)) {
            return found(m, "a string directly follows its length");
        }
        if (m.kind == Kind::array && !m.record->key.is_stated) {
            return found(m, "the record of an array's elements states its key, or no_key");
        }
        if (m.kind == Kind::array && m.record->key.element.empty()) {
            return found(m, "the record of an array's elements states what an element is called");
        }
    }
    return lint_key(record);
}

constexpr Finding lint(const Enumeration &enumeration) {
    if (!is_name(enumeration.name)) {
        return {enumeration.name, {}, "an enumeration's name is lower-case letters, digits and underscores"};
    }
    if (enumeration.meaning.empty()) return {enumeration.name, {}, "an enumeration has a meaning"};
    if (enumeration.enumerators.empty()) return {enumeration.name, {}, "an enumeration has at least one enumerator"};
    for (std::size_t i = 0; i < enumeration.enumerators.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (enumeration.enumerators[i] == enumeration.enumerators[j]) {
                return {enumeration.name, enumeration.enumerators[i], "two enumerators have the same name"};
            }
        }
    }
    return {};
}

// Names and identities of all types in the list are unique.
template <class List>
constexpr Finding lint_identities(const List &list) {
    for (std::size_t i = 0; i < list.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (list[i]->name == list[j]->name) return {list[i]->name, {}, "two types have the same name"};
            if (list[i]->luid.bytes == list[j]->luid.bytes)
                return {list[i]->name, {}, "two types have the same identity"};
        }
    }
    return {};
}

template <class List>
constexpr Finding lint_each(const List &list) {
    for (const auto *type : list) {
        if (const Finding finding = lint(*type)) return finding;
    }
    return {};
}

}  // namespace tarn::schema
