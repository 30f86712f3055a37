// The dissector for network captures: the schema as tables, in front of code that reads frames by them.
#include "dissector.h"
#include "mirk_platform.h"
#include "surface.h"
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

std::string line_of(const Member &m) {
    constexpr const char *kinds[] = {"u8",      "u16",         "u32",    "u64",    "boolean",
                                     "address", "enumeration", "record", "string", "array"};
    std::string line = "        { " + quoted(m.name) + ", " + quoted(kinds[static_cast<std::size_t>(m.kind)]) + ", " +
                       quoted(m.meaning);
    if (m.record != nullptr) line += ", of = " + quoted(m.record->name);
    if (m.enumeration != nullptr) line += ", of = " + quoted(m.enumeration->name);
    if (m.role != Role::value) line += ", counts = true";
    return line + " },\n";
}

std::string record_tables() {
    std::string text = "local records = {\n";
    for (const Record *r : records) {
        text += "    " + std::string(r->name) + " = {\n";
        for (const Member &m : r->members) text += line_of(m);
        text += "    },\n";
    }
    return text + "}\n\n";
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
           "local frame = { marker = 0xbc, least = " + std::to_string(MIRK_PLATFORM_FRAME_SIZE) +
           ", most = 16777216, port = " + std::to_string(MIRK_PLATFORM_TCP_PORT) + " }\n";
}

}  // namespace

Files write_dissector() {
    return {
        {"tarn.lua", "-- Wireshark reads tarn frames with this file. Generated from the schema; not to be edited.\n\n" +
                         record_tables() + enumeration_tables() + message_tables() + transport_tables() + dissector}};
}

}  // namespace tarn::generate
