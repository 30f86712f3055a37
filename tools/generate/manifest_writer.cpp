// The manifest of the library file: blocks of (length, kind, text, padding to 4), integers little-endian. It is not
// mapped at run time; tools read it from the file.
#include <algorithm>
#include <cstdio>

#include "api.h"
#include "writers.h"

namespace tarn::generate {

using namespace schema;

namespace {

constexpr std::uint32_t schema_list = 2, build_stamp = 1;

void append_number(std::string &out, std::uint32_t n) {
    for (int shift = 0; shift < 32; shift += 8) out += static_cast<char>(n >> shift & 0xff);
}

void append_block(std::string &out, std::uint32_t kind, const std::string &text) {
    const auto length = static_cast<std::uint32_t>(text.size() + 1);
    append_number(out, length);
    append_number(out, kind);
    out += text;
    out.append(round_up(length, 4) - text.size(), '\0');
}

// The description of a type from which its digest is made: the same in every build, different for every type.
std::string describe(const Record &record) {
    std::string text = "record " + std::string(record.name);
    for (const Member &m : record.members) {
        text += ";" + std::string(m.name) + ":" + std::to_string(static_cast<int>(m.kind)) +
                std::to_string(static_cast<int>(m.role));
        if (m.record != nullptr) text += "<" + describe(*m.record) + ">";
        if (m.enumeration != nullptr) text += "<" + std::string(m.enumeration->name) + ">";
    }
    return text;
}
std::string describe(const Enumeration &enumeration) {
    std::string text = "enumeration " + std::string(enumeration.name);
    for (const std::string_view name : enumeration.enumerators) text += ";" + std::string(name);
    return text;
}
std::string describe(const Message &message) {
    return "message " + std::string(message.name) + "<" + describe(message.payload) + ">";
}

// Two 64-bit FNV-1a hashes from different starting points.
std::string digest(const std::string &text) {
    std::string digits;
    for (std::uint64_t hash : {0xcbf29ce484222325ULL, 0x6c62272e07bb0142ULL}) {
        for (const char c : text) hash = (hash ^ static_cast<std::uint8_t>(c)) * 0x100000001b3ULL;
        char half[17];
        std::snprintf(half, sizeof half, "%016llx", static_cast<unsigned long long>(hash));
        digits += half;
    }
    return digits;
}

std::string line(const Luid &luid, const std::string &description, const char *kind, std::uint32_t size) {
    char tail[16];
    std::snprintf(tail, sizeof tail, "%s000:%05uN", kind, size);
    return std::string(luid.text.data()) + ":" + digest(description) + tail + "\n";
}

std::string types_by_name() {
    std::vector<std::pair<std::string_view, std::string>> lines;
    for (const Record *r : records) {
        lines.emplace_back(r->name, line(r->luid, describe(*r), "type", lay_out(*r).rounded));
    }
    for (const Enumeration *e : enumerations) {
        lines.emplace_back(e->name, line(e->luid, describe(*e), "enum", enumeration_size));
    }
    std::sort(lines.begin(), lines.end());
    std::string text;
    for (const auto &[name, content] : lines) text += content;
    return text;
}

std::string messages_by_luid() {
    std::vector<std::string> lines;
    for (const Message *m : messages) lines.push_back(line(m->luid, describe(*m), "mess", 0));
    std::sort(lines.begin(), lines.end());
    std::string text;
    for (const std::string &content : lines) text += content;
    return text;
}

}  // namespace

Files write_manifest(const BuildStamp &stamp) {
    std::string content;
    append_block(content, schema_list, "# lumo_ui_tarn.minime\n" + types_by_name() + messages_by_luid());
    append_block(content, build_stamp,
                 std::string(module_name) + "\nbuilt by: " + stamp.built_by + "\non host: " + stamp.on_host +
                     "\npid: " + stamp.pid + "\nat: " + stamp.at + "\ncomment: " + stamp.comment + "\n");
    return {{"orrin.bin", content}};
}

}  // namespace tarn::generate
