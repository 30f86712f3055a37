// Text from outside, such as a name in a file or the words of a peer, on its way to a person. It must not control the
// terminal, begin a line of its own, or change the direction of the text around it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarn::tool {

// One line. Control characters, characters that change the direction of text, and bytes that are not UTF-8 become
// \x1b or \u202e. Of longer text, the first `most` bytes and the size are left.
std::string printable(std::string_view text, std::size_t most = 160);

// The same in quotation marks.
std::string in_quotes(std::string_view text);

bool is_utf8(std::string_view text);

// Output of several lines, with the same characters escaped in its own notation, so that readers of JSON and XML get
// the same values. Line ends stay, except in XML, where only a string can contain one.
enum class Notation : std::uint8_t { text, json, xml };
std::string printable_output(std::string output, Notation notation);

}  // namespace tarn::tool
