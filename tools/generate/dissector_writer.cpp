// The dissector for network captures: the schema as Lua tables, followed by the code that reads frames with them.
#include "dissector.h"

#include <algorithm>
#include <cstdlib>

#include "api.h"
#include "mirk_platform.h"
#include "schema/frame.h"
#include "writers.h"

namespace tarn::generate {

using namespace schema;

namespace {

std::string quoted(std::string_view text) {
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') out += '\\';
        out += c;
    }
    return out + "\"";
}

std::string line_of(const Member &m, const Key &key) {
    std::string line = "        { " + quoted(m.name) + ", " + quoted(facts(m.kind).name);
    if (!m.meaning.empty()) line += ", " + quoted(m.meaning);
    if (m.record != nullptr) line += ", of = " + quoted(m.record->name);
    if (m.enumeration != nullptr) line += ", of = " + quoted(m.enumeration->name);
    if (m.role != Role::value) line += ", counts = true";
    const auto names = key.members();
    if (std::find(names.begin(), names.end(), m.name) != names.end()) line += ", key = true";
    return line + " },\n";
}

std::string table_of(const Record &record) {
    std::string text = "    " + std::string(record.name) + " = {\n";
    for (const Member &m : record.members) text += line_of(m, record.key);
    if (!record.key.element.empty()) text += "        element = " + quoted(record.key.element) + ",\n";
    return text + "    },\n";
}

std::string record_tables() {
    std::string text = "local records = {\n";
    for (const Record *r : records) text += table_of(*r);
    text += table_of(address_record) + "}\n\nlocal integer_sizes = { ";
    for (const KindFacts &kind : kind_facts) {
        if (kind.category == Category::integer)
            text += std::string(kind.name) + " = " + std::to_string(kind.wire) + ", ";
    }
    return text + "}\n\n";
}

std::string_view word(Content content) {
    switch (content) {
        case Content::constant:
            return "constant";
        case Content::number:
            return "number";
        case Content::signed_number:
            return "signed";
        case Content::flags:
            return "flags";
        case Content::opaque:
            return "opaque";
        case Content::identity:
            return "identity";
        case Content::parts:
        case Content::record:
        case Content::members:
            break;
    }
    std::abort();  // of variable size, or consists of other parts
}

// The parts of fixed size. A part that consists of others is replaced by them, each under its condition.
std::string tables_of_parts(std::span<const Part> frame, std::uint8_t flag = 0) {
    std::string text;
    for (const Part &part : frame) {
        const std::uint8_t its_flag = part.flag != 0 ? part.flag : flag;
        if (part.content == Content::parts) text += tables_of_parts(part.parts, its_flag);
        if (part.content == Content::parts || part.size == varies) continue;
        text += "    { name = " + quoted(part.name) + ", size = " + std::to_string(part.size) +
                ", content = " + quoted(word(part.content)) + ", meaning = " + quoted(part.meaning);
        if (part.content == Content::constant) text += ", value = " + std::to_string(part.value);
        if (its_flag != 0) text += ", flag = " + std::to_string(its_flag);
        text += " },\n";
    }
    return text;
}

std::string frame_tables() {
    return "local message_parts = {\n" + tables_of_parts(message_frame) + "}\n\nlocal record_parts = {\n" +
           tables_of_parts(record_frame) + "}\n\nlocal flags = { tracked = " + std::to_string(wire_flag::tracked) +
           ", ra_data = " + std::to_string(wire_flag::ra_data) + " }\n\n";
}

std::string enumeration_tables() {
    std::string text = "local enumerations = {\n";
    for (const Enumeration *e : enumerations) {
        text += "    " + std::string(e->name) + " = {\n";
        for (std::size_t i = 0; i < e->enumerators.size(); ++i) {
            text += "        [" + std::to_string(i) + "] = " + quoted(e->enumerators[i]) + ",\n";
        }
        text += "    },\n";
    }
    return text + "}\n\n";
}

std::string entry(const Luid &luid, const std::string &content) {
    return "    [\"" + std::string(luid.text.data()) + "\"] = { " + content + " },\n";
}

std::string message_tables() {
    std::string text = "local messages = {\n";
    for (const Message *m : messages) {
        text += entry(m->luid, "name = " + quoted(m->name) + ", record = " + quoted(m->payload.name));
    }
    text += "}\n\nlocal controls = {\n";
    for (const CatalogueEntry &c : catalogue()) {
        if (c.subject.message != nullptr) continue;
        text +=
            entry(*c.luid, "bundle = " + quoted(c.subject.bundle->name) + ", control = " + quoted(c.subject.control));
    }
    return text + "}\n\n";
}

std::string transport_tables() {
    std::string luid;
    for (const std::uint8_t byte : message_ui_req_msg_luid) {
        luid += {"0123456789abcdef"[byte >> 4], "0123456789abcdef"[byte & 15]};
    }
    return "local request = { luid = " + quoted(luid) + ", tracked = " + std::to_string(MIRK_PLATFORM_REQUEST_TRACKED) +
           ", refused = " + std::to_string(MIRK_PLATFORM_REQUEST_REFUSED) + " }\n" +
           "local frame = { marker = " + std::to_string(frame_marker) +
           ", least = " + std::to_string(message_head_size) + ", luid_at = " + std::to_string(message_header_size) +
           ", length_at = " + std::to_string(offset_of(message_frame, "total_length")) +
           ", most = 16777216, port = " + std::to_string(MIRK_PLATFORM_TCP_PORT) + " }\n";
}

}  // namespace

Files write_dissector() {
    return {
        {"tarn.lua", "-- Wireshark reads tarn frames with this file. Generated from the schema; not to be edited.\n\n" +
                         record_tables() + frame_tables() + enumeration_tables() + message_tables() +
                         transport_tables() + dissector}};
}

}  // namespace tarn::generate
