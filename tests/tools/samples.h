// Payloads from the reference generator, and their encoding by the reference.
#pragma once

#include <string>
#include <vector>

#include "reference/codec.h"
#include "reference/tables.h"
#include "reference/text.h"
#include "reference/value.h"

namespace tool_test {

inline std::string text_of(const reference::Bytes &bytes) { return {bytes.begin(), bytes.end()}; }

// Without negative variants and other unusual values, and with strings that survive XML.
inline reference::Record plain_payload(const reference::MessageTable &message, std::uint64_t seed) {
    reference::GeneratorOptions options;
    options.printable = true;
    options.states = false;
    options.min_text = 1;
    options.budget = 4000;
    return reference::Generator(seed, options).make(message.payload);
}

// With everything that a frame may contain, such as unknown variants.
inline reference::Record strange_payload(const reference::MessageTable &message, std::uint64_t seed) {
    reference::GeneratorOptions options;
    options.strange = true;
    options.budget = 4000;
    return reference::Generator(seed, options).make(message.payload);
}

inline std::string frame(const reference::MessageTable &message, const reference::Record &payload, bool tracked,
                         std::uint32_t stamp = 0) {
    return text_of(reference::message_frame(message.name, payload, tracked, stamp));
}

// The tool fills the gaps before nested closing lines with blanks.
inline std::string shown(const reference::MessageTable &message, const reference::Record &payload) {
    std::string text = reference::print_message(message.name, payload, ' ');
    for (char &c : text) c = c == '\0' ? ' ' : c;
    return text;
}

// The tool writes control characters in strings, which XML may contain, as references.
inline std::string shown_xml(const reference::MessageTable &message, const reference::Record &payload, bool tracked) {
    std::string text;
    for (const char c : reference::message_to_xml(message.name, payload, tracked)) {
        const auto byte = static_cast<unsigned char>(c);
        const bool second_half = text.ends_with('\xc2') && byte < 0xa0;
        if (second_half) text.pop_back();
        text += second_half || byte < ' ' || byte == 0x7f ? "&#" + std::to_string(byte) + ";" : std::string(1, c);
    }
    return text;
}

inline std::string control(const reference::BundleTable &bundle, const std::string &kind) {
    return text_of(reference::control_frame(bundle.name, kind, 0));
}

// A complete answer: start, message, commit.
inline std::string answer(const reference::BundleTable &bundle, const reference::Record &payload, bool tracked) {
    return control(bundle, "start") + frame(reference::message_table(bundle.message), payload, tracked) +
           control(bundle, "commit");
}

// A file with the messages of cl-debug.
inline const std::string debug_xml =
    "<lumo_tarn_debug_setting_msg><lumo_tarn_debug_setting><info_enabled>1</info_enabled>"
    "</lumo_tarn_debug_setting></lumo_tarn_debug_setting_msg>";

// A request for a bundle; `options` is the byte in the frame.
inline std::string request(const std::string &name, char options = 0) {
    std::string bytes = text_of(reference::control_frame("lumo_tarn_cl_debug_rsp", "start", 0)).substr(0, 27);
    bytes += std::string("\xb7\x3e\x91\x0c\x5a\xd4\x46\x2f\x88\xe1\x6c\x0f\x93\x2b\x7d\xa5", 16);
    bytes += options;
    bytes += static_cast<char>(name.size());
    bytes += name;
    bytes[15] = static_cast<char>(bytes.size());
    return bytes;
}

// Without the prefix "lumo_tarn_" and, if it has one, the suffix "_rsp" or "_msg".
inline std::string short_name(const std::string &name) {
    std::string text = name.substr(10);
    if (text.ends_with("_rsp") || text.ends_with("_msg")) text.resize(text.size() - 4);
    for (char &c : text) c = c == '_' ? '-' : c;
    return text;
}

}  // namespace tool_test
