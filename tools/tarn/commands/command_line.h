// The command line as data, for completion and the manual page. It comes from the definitions that parse the command
// line, so there is no second list to keep in step.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace tarn::tool {

// The terms that the help and the manual page use.
inline constexpr char terms[] =
    "The feature tarn reports its configuration and state in records. A message\n"
    "carries one record and travels as a binary frame; with per-field state, the frame\n"
    "also has a byte for each member that shows whether it was written. A bundle is a\n"
    "sequence of messages between a start and a commit. A process requests a bundle by\n"
    "its name, and another process answers with its frames.";

std::vector<const CLI::App *> commands_of(const CLI::App &app);
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
