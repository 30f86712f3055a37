// The manifest of the library file: blocks of (length, kind, text, padding to 4), integers little-endian. It is not
// mapped at run time; tools read it from the file.
#include <algorithm>
#include <cstdio>

#include "api.h"
#include "schema/digest.h"
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
