// Text and XML forms of values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "reference/value.h"

namespace reference {

// The bytes before the closing brace of an indented record are not written. The first of them is the NUL after the
// previous line, and the rest keeps the content of the buffer: gap.
std::string print(const Record &value, std::string_view name, unsigned indent = 0, char gap = '\0');
std::string print_cr(const Record &value, char gap = '\0');  // named as its type
std::string print_message(std::string_view message, const Record &payload, char gap = '\0');
std::string print_control(std::string_view bundle, std::string_view kind);

// Tracked: state bytes other than 0 become attributes.
std::string to_xml(const Record &value, std::string_view name, bool tracked, std::uint8_t state = 0);
std::string toxml_cr(const Record &value, bool tracked);
std::string message_to_xml(std::string_view message, const Record &payload, bool tracked);
std::string control_to_xml(std::string_view bundle, std::string_view kind);

std::string address_text(const Address &address);
std::string string_text(std::string_view bytes);  // as print shows a string
std::string string_xml(std::string_view bytes);   // as XML shows it; "?" for characters that a document cannot contain

// Sixteen bytes to a line: offset, bytes in hexadecimal, printable characters.
std::string hex_dump(std::span<const std::uint8_t> bytes);

}  // namespace reference
