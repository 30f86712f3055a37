// The command line as data: what completion and the manual page are made of. It is read from the definitions that the
// command line itself is parsed with, so that there is nothing to keep in step.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace tarn::tool {

std::vector<const CLI::App *> commands_of(const CLI::App &app);
std::vector<const CLI::Option *> options_of(const CLI::App &command);  // those of its groups included
std::vector<const CLI::Option *> positionals_of(const CLI::App &command);

bool takes_value(const CLI::Option &option);
std::string word_of(const CLI::Option &option);                  // what it takes, such as FILE
std::vector<std::string> choices_of(const CLI::Option &option);  // if it takes one of a few words

// Candidates for the last word, one a line, with a tab and an explanation if there is one. A line ":files" asks the
// shell for file names.
std::string completions(const CLI::App &app, const std::vector<std::string> &words);

// tarn(1) for mandoc and groff.
std::string manual_page(const CLI::App &app);

}  // namespace tarn::tool
