// The command line as data, for completion and the manual page. It comes from the definitions that parse the command
// line, so there is no second list to keep in step.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace tarn::tool {

// The terms that the help and the manual page use.
inline constexpr char terms[] =
    "The traffic-aware routing feature tarn reports its configuration and its state in\n"
    "records. A message carries one record and travels as a binary frame, which begins\n"
    "with a header and the 16-byte identifier of its type, the luid. With per-field\n"
    "state, the frame also has one byte for each member, which programs use to mark it\n"
    "as set or changed; XML and JSON show the bytes that are not 0. A bundle is a\n"
    "sequence of messages between two control frames, a start and a commit. One process\n"
    "requests a bundle by name, and another answers with the frames of that bundle.";

// The forms of values that several commands take.
inline constexpr char value_rule[] =
    "The file name - stands for standard input or standard output. A SIZE is in bytes\n"
    "or has a unit, such as 64KiB or 1MiB.";

std::vector<const CLI::App *> commands_of(const CLI::App &app);
std::vector<const CLI::App *> groups_of(const CLI::App &command);
std::vector<const CLI::Option *> options_of(const CLI::App &command);  // including those of its groups
std::vector<const CLI::Option *> positionals_of(const CLI::App &command);

bool takes_value(const CLI::Option &option);
std::string word_of(const CLI::Option &option);                  // the type of its value, such as FILE
std::vector<std::string> choices_of(const CLI::Option &option);  // the values of an enumerated option

// Candidates for the last word, one per line, each followed by a tab and its description if it has one. The line
// ":files" tells the shell to complete file names.
std::string completions(const CLI::App &app, const std::vector<std::string> &words);

// tarn(1) for mandoc and groff.
std::string manual_page(const CLI::App &app);

}  // namespace tarn::tool
