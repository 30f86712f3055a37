#include "reference/text.h"

#include <arpa/inet.h>

#include <cstdio>

namespace reference {
namespace {

bool all_zero(const Address &a) {
    return a.af == 0 && a.prefix_len == 0 && a.scope == 0 && a.word == std::array<std::uint32_t, 4>{};
}

const std::string *enumerator(const MemberTable &row, std::uint64_t number) {
    const EnumerationTable &table = enumeration_table(row.type);
    return number < table.enumerators.size() ? &table.enumerators[static_cast<std::size_t>(number)] : nullptr;
}

std::string number_text(const Record &owner, std::size_t index) { return std::to_string(owner.number(index)); }

std::string open_tag(std::string_view name, std::uint8_t state) {
    std::string tag = "<" + std::string(name);
    if (state != 0) tag += " state=\"" + std::to_string(state) + "\"";
    return tag + ">";
}

std::string close_tag(std::string_view name) { return "</" + std::string(name) + ">"; }

std::string enumeration_xml(const MemberTable &row, std::uint64_t number) {
    const std::string *name = enumerator(row, number);
    return "<" + (name != nullptr ? *name : row.type + " value out of range") + "/>";
}

// Bytes of the UTF-8 character at the start that an XML document may hold, 0 if there is none.
std::size_t character_size(std::string_view bytes) {
    const auto at = [bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned first = at(0);
    if (first < 0x80) return first >= 0x20 || first == 9 || first == 10 || first == 13 ? 1 : 0;
    const std::size_t size = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || bytes.size() < size) return 0;
    std::uint32_t code = first & (0xFFu >> (size + 1));
    for (std::size_t i = 1; i < size; ++i) {
        if ((at(i) & 0xC0u) != 0x80) return 0;
        code = code << 6 | (at(i) & 0x3Fu);
    }
    const std::uint32_t least = size == 2 ? 0x80 : size == 3 ? 0x800 : 0x10000;
    if (code < least || code > 0x10FFFF) return 0;
    return (code >= 0xD800 && code < 0xE000) || code == 0xFFFE || code == 0xFFFF ? 0 : size;
}

std::string member_text(const Record &owner, std::size_t index, unsigned indent, char gap) {
    const MemberTable &row = owner.table->members[index];
    const Member &member = owner.members[index];
    const std::string head = std::string(indent, ' ') + row.name + "@" + row.type + ":";
    switch (row.cls) {
        case Class::integer:
        case Class::count:
        case Class::length:
            return head + number_text(owner, index) + "\n";
        case Class::boolean:
            return head + (member.number != 0 ? "true\n" : "false\n");
        case Class::enumeration: {
            // A value out of range has no line end, so the next text follows on the same line.
            const std::string *name = enumerator(row, member.number);
            return head + (name != nullptr ? *name + "\n" : "Enum value out of range");
        }
        case Class::address:
            return head + address_text(get_address(member.items[0])) + "\n";
        case Class::string:
            return head + string_text(member.text) + "\n";
        case Class::nested:
            return print(member.items[0], row.name, indent, gap);
        case Class::array:
            break;
    }
    std::string text;
    for (std::size_t i = 0; i < member.items.size(); ++i)
        text += print(member.items[i], row.name + "[" + std::to_string(i) + "]", indent, gap);
    return text;
}

std::string member_xml(const Record &owner, std::size_t index, bool tracked) {
    const MemberTable &row = owner.table->members[index];
    const Member &member = owner.members[index];
    const std::uint8_t state = tracked && row.tracked() ? member.state : std::uint8_t{0};
    const auto element = [&row](std::uint8_t shown, const std::string &content) {
        return open_tag(row.name, shown) + content + close_tag(row.name);
    };
    switch (row.cls) {
        case Class::integer:
        case Class::count:
        case Class::length:
            return element(state, number_text(owner, index));
        case Class::boolean:
            return element(state, member.number != 0 ? "true" : "false");
        case Class::enumeration:
            // An enumeration never shows the state of its member.
            return element(0, enumeration_xml(row, member.number));
        case Class::address:
            return element(state, address_text(get_address(member.items[0])));
        case Class::string:
            return element(state, string_xml(member.text));
        case Class::nested:
            return to_xml(member.items[0], row.name, tracked, state);
        case Class::array:
            break;
    }
    std::string text;
    for (std::size_t i = 0; i < member.items.size(); ++i) {
        const bool shown = tracked && i < member.element_state.size();
        text += to_xml(member.items[i], row.name, tracked, shown ? member.element_state[i] : std::uint8_t{0});
    }
    return text;
}

}  // namespace

std::string print(const Record &value, std::string_view name, unsigned indent, char gap) {
    std::string text = std::string(indent, ' ') + std::string(name) + "@" + value.table->name + ": {\n";
    // The brace of a record without a body is not closed.
    if (value.variant < 0) return text;
    for (std::size_t i = 0; i < value.members.size(); ++i) text += member_text(value, i, indent + 2, gap);
    if (indent > 0) text += '\0' + std::string(indent - 1, gap);
    return text + "}\n";
}

std::string print_cr(const Record &value, char gap) { return print(value, value.table->name, 0, gap); }

std::string print_message(std::string_view message, const Record &payload, char gap) {
    return "message@" + std::string(message) + ": {\n" + print(payload, payload.table->name, 2, gap) + "}\n";
}

std::string print_control(std::string_view bundle, std::string_view kind) {
    return "bundle " + std::string(kind) + "@" + std::string(bundle) + ": <<<<<<<<\n";
}

std::string to_xml(const Record &value, std::string_view name, bool tracked, std::uint8_t state) {
    std::string text = open_tag(name, state);
    if (value.variant >= 0)
        for (std::size_t i = 0; i < value.members.size(); ++i) text += member_xml(value, i, tracked);
    return text + close_tag(name);
}

std::string toxml_cr(const Record &value, bool tracked) { return to_xml(value, value.table->name, tracked); }

std::string message_to_xml(std::string_view message, const Record &payload, bool tracked) {
    return open_tag(message, 0) + toxml_cr(payload, tracked) + close_tag(message);
}

std::string control_to_xml(std::string_view bundle, std::string_view kind) {
    const std::string tag = "bundle_" + std::string(kind);
    return "<" + tag + " name=\"" + std::string(bundle) + "\">" + close_tag(tag);
}

std::string address_text(const Address &address) {
    if (all_zero(address)) return "unset";
    const bool v4 = address.af == AF_INET && address.word[1] == 0 && address.word[2] == 0 && address.word[3] == 0;
    if (!v4 && address.af != AF_INET6) {
        std::string text = std::to_string(address.af) + "," + std::to_string(address.scope);
        for (const std::uint32_t word : address.word) text += "," + std::to_string(word);
        return text + "/" + std::to_string(address.prefix_len);
    }
    std::uint32_t words[4];
    for (std::size_t i = 0; i < 4; ++i) words[i] = htonl(address.word[i]);
    char shown[INET6_ADDRSTRLEN] = "";
    inet_ntop(address.af, words, shown, sizeof shown);
    std::string text = shown;
    if (address.scope != 0) text += "%" + std::to_string(address.scope);
    return text + "/" + std::to_string(address.prefix_len);
}

std::string string_text(std::string_view bytes) {
    static const char digits[] = "0123456789abcdef";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\\') {
            text += "\\\\";
        } else if (byte >= 32 && byte < 127) {
            text += c;
        } else {
            text += "\\x";
            text += digits[byte >> 4];
            text += digits[byte & 15];
        }
    }
    return text;
}

std::string string_xml(std::string_view bytes) {
    std::string text;
    while (!bytes.empty()) {
        const std::size_t size = character_size(bytes);
        const std::string_view character = bytes.substr(0, size);
        if (size == 0) {
            text += '?';
        } else if (character == "&") {
            text += "&amp;";
        } else if (character == "<") {
            text += "&lt;";
        } else if (character == ">") {
            text += "&gt;";
        } else if (character == "\"") {
            text += "&quot;";
        } else if (character == "\r") {
            text += "&#13;";
        } else {
            text += character;
        }
        bytes.remove_prefix(size == 0 ? 1 : size);
    }
    return text;
}

std::string hex_dump(std::span<const std::uint8_t> bytes) {
    std::string text;
    char piece[32];
    for (std::size_t line = 0; line < bytes.size(); line += 16) {
        std::snprintf(piece, sizeof piece, "%06zx ", line);
        text += piece;
        std::string shown;
        for (std::size_t i = line; i < line + 16; ++i) {
            if (i >= bytes.size()) {
                text += "   ";
                continue;
            }
            std::snprintf(piece, sizeof piece, " %02x", bytes[i]);
            text += piece;
            shown += bytes[i] >= 32 && bytes[i] < 127 ? static_cast<char>(bytes[i]) : '.';
        }
        text += "  " + shown + "\n";
    }
    return text;
}

}  // namespace reference
