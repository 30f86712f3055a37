// The command line as data, for errors, completion and the manual pages. It comes from the definitions that parse the
// command line, so there is no second list to keep in step.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace tarn::tool {

// The terms that the help and the manual page use.
inline constexpr char terms[] =
    "Routers with traffic-aware routing, a feature that is also called tarn, report its\n"
    "configuration and state as records. The program tarn works on these records, with\n"
    "the library lumo_ui_tarn. A message carries one record and travels as a binary\n"
    "frame, which begins with a header and the 16-byte identifier of its type, the luid.\n"
    "With per-field state, the frame also has one state byte for each member, which\n"
    "programs use to mark it as set or changed; XML and JSON contain only the nonzero\n"
    "state bytes. A bundle is a sequence of messages between two control frames: a start,\n"
    "and a commit or an abort, which discards the bundle. One process requests a bundle\n"
    "by name, and another answers with the frames of that bundle.";

// The forms of values that several commands take.
inline constexpr char value_rule[] =
    "The name - of an input or output file stands for standard input or output; use it\n"
    "at most once for each of the two. A SIZE is in bytes or has a unit, such as 64KiB\n"
    "or 1MiB. SECONDS may have a unit, too: 500ms, 5s, 2m, 1h.";

std::vector<const CLI::App *> commands_of(const CLI::App &app);
std::vector<const CLI::App *> groups_of(const CLI::App &command);
std::vector<const CLI::Option *> options_of(const CLI::App &command);  // including those of its groups
std::vector<const CLI::Option *> positionals_of(const CLI::App &command);

bool takes_value(const CLI::Option &option);
std::string word_of(const CLI::Option &option);                  // the type of its value, such as FILE
std::vector<std::string> choices_of(const CLI::Option &option);  // the values of an enumerated option

// What is wrong with the arguments, with the word that was probably meant.
std::string usage_error(const CLI::App &app, const CLI::ParseError &error);

// Candidates for the last word, one per line, each followed by a tab and its description if it has one. The line
// ":files" tells the shell to complete file names.
std::string completions(const CLI::App &app, const std::vector<std::string> &words);

// For mandoc and groff: tarn(1), and the page of a command, such as tarn-decode(1).
std::string manual_page(const CLI::App &app);
std::string manual_page_of(const CLI::App &command);
// What the extension adds to the command line.
std::string manual_page_of_extension(const CLI::App &app);

}  // namespace tarn::tool
