// A digest of types: the same in every build, different for types that differ in a member, a kind or a name.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

#include "schema/catalogue.h"
#include "schema/model.h"

namespace tarn::schema {

inline std::string describe(const Record &record) {
    std::string text = "record " + std::string(record.name);
    for (const Member &m : record.members) {
        text += ";" + std::string(m.name) + ":" + std::to_string(static_cast<int>(m.kind)) +
                std::to_string(static_cast<int>(m.role));
        if (m.record != nullptr) text += "<" + describe(*m.record) + ">";
        if (m.enumeration != nullptr) text += "<" + std::string(m.enumeration->name) + ">";
    }
    return text;
}
inline std::string describe(const Enumeration &enumeration) {
    std::string text = "enumeration " + std::string(enumeration.name);
    for (const std::string_view name : enumeration.enumerators) text += ";" + std::string(name);
    return text;
}
inline std::string describe(const Message &message) {
    return "message " + std::string(message.name) + "<" + describe(message.payload) + ">";
}

// Two 64-bit FNV-1a hashes from different starting points, in hexadecimal.
inline std::string digest(const std::string &text) {
    std::string digits;
    for (std::uint64_t hash : {0xcbf29ce484222325ULL, 0x6c62272e07bb0142ULL}) {
        for (const char c : text) hash = (hash ^ static_cast<std::uint8_t>(c)) * 0x100000001b3ULL;
        char half[17];
        std::snprintf(half, sizeof half, "%016llx", static_cast<unsigned long long>(hash));
        digits += half;
    }
    return digits;
}

// Of everything that decides what a frame contains.
inline std::string schema_digest() {
    std::string text;
    for (const Record *r : records) text += r->luid.text.data() + describe(*r) + "\n";
    for (const Enumeration *e : enumerations) text += e->luid.text.data() + describe(*e) + "\n";
    for (const Message *m : messages) text += m->luid.text.data() + describe(*m) + "\n";
    for (const Bundle *b : bundles) {
        text += "bundle " + std::string(b->name) + "<" + std::string(b->message.name) + ">";
        for (const Luid *luid : {&b->start, &b->abort, &b->commit}) text += std::string(" ") + luid->text.data();
        text += "\n";
    }
    return digest(text);
}

}  // namespace tarn::schema
