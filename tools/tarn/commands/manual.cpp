// The manual page of the tool, from the definitions of its command line.
#include <algorithm>
#include <cctype>
#include <set>
#include <sstream>
#include <utility>

#include "tools/tarn/commands/command_line.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/names.h"

namespace tarn::tool {

namespace {

// Escapes a line of mdoc text.
std::string text_line(const std::string &line) {
    std::string out;
    for (const char c : line) out += c == '\\' ? std::string("\\e") : std::string(1, c);
    if (out.starts_with('.') || out.starts_with('\'')) out.insert(0, "\\&");
    return out;
}

// Running text: mdoc wants each sentence on a line of its own.
std::string text_lines(const std::string &text) {
    std::string out = text_line(text);
    for (std::size_t at = 0; (at = out.find(". ", at)) != std::string::npos;) out.replace(at, 2, ".\n");
    return out;
}

std::string sentence(std::string_view words) {
    std::string text(words);
    if (!text.empty()) text.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(text.front())));
    if (!text.ends_with('.')) text += '.';
    return text_lines(text);
}

// The form of a description in the line of a page's name.
std::string lower_first(std::string text) {
    text.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(text.front())));
    if (text.ends_with('.')) text.pop_back();
    return text;
}

std::string argument(const CLI::Option &option) {
    std::string word = word_of(option);
    const std::vector<std::string> choices = choices_of(option);
    if (!choices.empty()) {
        word.clear();
        for (const std::string &choice : choices) word += (word.empty() ? "" : "|") + choice;
    }
    return word;
}

std::string names(const CLI::Option &option) {
    std::string text;
    for (const std::string &name : option.get_snames()) text += (text.empty() ? "" : " , ") + ("Fl " + name);
    for (const std::string &name : option.get_lnames()) text += (text.empty() ? "" : " , ") + ("Fl \\-" + name);
    return text;
}

// "--text, --xml and --json"
std::string enumeration_of(const std::vector<std::string> &names) {
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i) {
        text += (i == 0 ? "" : i + 1 < names.size() ? ", " : " and ") + names[i];
    }
    return text;
}

std::vector<std::string> names_of(const std::set<CLI::Option *> &options) {
    std::vector<std::string> names;
    for (const CLI::Option *option : options) names.push_back(option->get_name());
    std::sort(names.begin(), names.end());
    return names;
}

// "Fl o Ar FILE"
std::string call(const CLI::Option &option) {
    const std::string name =
        option.get_snames().empty() ? "\\-" + option.get_lnames().front() : option.get_snames().front();
    return "Fl " + name + (takes_value(option) ? " Ar " + argument(option) : "");
}

std::vector<const CLI::Option *> members_of(const CLI::App &group) {
    return group.get_options([&](const CLI::Option *option) { return option != group.get_help_ptr(); });
}

void write_option(const CLI::Option &option, std::ostream &out) {
    out << ".It ";
    if (option.get_positional()) {
        out << "Ar " << argument(option);
    } else {
        out << names(option);
        if (takes_value(option)) out << " Ar " << argument(option);
    }
    out << "\n" << sentence(option.get_description()) << "\n";
    if (!option.get_default_str().empty()) out << "The default is " << text_line(option.get_default_str()) << ".\n";
    if (!option.get_excludes().empty()) out << "Excludes " << enumeration_of(names_of(option.get_excludes())) << ".\n";
    if (!option.get_needs().empty()) out << "Requires " << enumeration_of(names_of(option.get_needs())) << ".\n";
}

// What the groups of options require.
void write_groups(const CLI::App &command, std::ostream &out) {
    for (const CLI::App *group : groups_of(command)) {
        std::vector<std::string> names;
        for (const CLI::Option *option : members_of(*group)) names.push_back(option->get_name());
        const bool required = group->get_require_option_min() != 0;
        out << (required ? "Exactly" : "At most") << " one of " << enumeration_of(names) << " is "
            << (required ? "required" : "allowed") << ".\n";
    }
}

// What only the manual page explains.
std::string_view details_of(const std::string &command) {
    if (command == "answer") {
        return R"(.Pp
If the served messages need more memory than --snapshot-limit, the command ends with exit code 3.
A peer that requests a larger answer than --unread is disconnected.
.Pp
The faults of --fault:
.Bl -tag -width second-start -compact
.It abort
the bundle is aborted instead of committed
.It cut
the connection is closed within the last message
.It foreign
the first message is one that the bundle does not admit
.It garbage
the bytes are not frames
.It no-commit
the commit is missing
.It second-start
the bundle starts twice
.It silent
nothing is sent
.It unknown
the luid of the first message is unknown
.El
)";
    }
    if (command == "show")
        return R"(.Pp
The trace line of a handler for the whole library is the same as that of a handler in the look-up table.
)";
    if (command == "schema")
        return R"(.Pp
The role of a member is
.Dq count
if it counts the elements of the next member, and
.Dq length
if it is the number of bytes of the text in the next member.
In the column slot,
.Dq own from N
marks a member with state bytes of its own, the first of them at slot N;
.Dq vector at N
marks an array: the slots from N contain a pointer to the state bytes of its elements.
)";
    if (command == "record")
        return R"(.Pp
If the recording or --full is standard output, the summary is printed on standard error.
)";
    return {};
}

// The usage of a command: required options, the other options, positionals.
void write_usage(const CLI::App &command, std::ostream &out) {
    out << ".Nm tarn " << command.get_name() << "\n";
    for (const CLI::Option *option : options_of(command)) {
        if (option->get_required()) out << "." << call(*option) << "\n";
    }
    for (const CLI::App *group : groups_of(command)) {
        if (group->get_require_option_min() == 0) continue;
        std::string calls;
        for (const CLI::Option *option : members_of(*group)) calls += (calls.empty() ? "" : " | ") + call(*option);
        out << ".Brq " << calls << "\n";
    }
    out << ".Op Ar options\n";
    for (const CLI::Option *option : positionals_of(command)) {
        out << (option->get_required() ? ".Ar " : ".Op Ar ") << argument(*option);
        out << (option->get_items_expected_max() > 1 ? " ...\n" : "\n");
    }
}

// The footer of a command's help: paragraphs, which blank lines separate, then examples.
void write_footer(const CLI::App &command, std::ostream &out) {
    std::istringstream in(command.get_footer());
    std::string paragraph;
    bool literal = false;
    for (std::string line; std::getline(in, line);) {
        if (line == "Examples:") {
            out << details_of(command.get_name()) << ".Pp\nExamples:\n.Bd -literal -offset indent\n";
            literal = true;
        } else if (literal) {
            out << text_line(line.starts_with("  ") ? line.substr(2) : line) << "\n";
        } else if (!line.empty()) {
            paragraph += (paragraph.empty() ? "" : " ") + line;
        } else {
            out << ".Pp\n" << text_lines(std::exchange(paragraph, {})) << "\n";
        }
    }
    if (literal) out << ".Ed\n";
}

void write_command(const CLI::App &command, std::ostream &out) {
    out << ".Ss " << command.get_name() << "\n" << sentence(command.get_description()) << "\n.Bl -tag -width Ds\n";
    for (const CLI::Option *option : positionals_of(command)) write_option(*option, out);
    for (const CLI::Option *option : options_of(command)) write_option(*option, out);
    out << ".El\n";
    if (!groups_of(command).empty()) out << ".Pp\n";
    write_groups(command, out);
    write_footer(command, out);
}

}  // namespace

std::string manual_page(const CLI::App &app) {
    std::ostringstream out;
    out << ".Dd November 22, 2026\n.Dt TARN 1\n.Os\n.Sh NAME\n.Nm tarn\n.Nd " << lower_first(app.get_description())
        << "\n.Sh SYNOPSIS\n";
    for (const CLI::App *command : commands_of(app)) write_usage(*command, out);
    out << ".Sh DESCRIPTION\n"
        << text_lines(terms) << "\n.Pp\n"
        << text_lines(name_rule) << "\n.Pp\n"
        << text_lines(value_rule) << R"(
The units are KiB (1024 bytes), MiB and GiB; K and KB mean KiB.
Limits in bytes are at least 1KiB and less than 4GiB; the size for generate is from 1 byte to 256MiB.
SECONDS may have a fraction and are at most 86400, one day; a timeout is at least 0.001.
.Sh COMMANDS
)";
    for (const CLI::App *command : commands_of(app)) write_command(*command, out);
    out << R"(.Sh ENVIRONMENT
.Bl -tag -width MIRK_TRACE
.It Ev MIRK_TRACE
Trace levels of the library to print on standard error: comma-separated numbers from 0 to 31, all, or none.
Fatal errors have level 0, errors level 3, debug lines level 7.
--verbose prints all levels and overrides this variable.
Without both, level 0 is printed only, because the commands report errors themselves; if the value is invalid, levels 0
and 3.
.El
.Sh EXIT STATUS
All commands use the same exit codes:
.Bl -tag -width Ds
)";
    for (const ExitCode &e : exit_codes)
        out << ".It " << static_cast<int>(e.code) << "\n" << sentence(e.meaning) << "\n";
    out << R"(.El
.Sh SEE ALSO
.Xr lumo_ui_tarn 3 ,
.Xr tarn_frame 5
)";
    return out.str();
}

}  // namespace tarn::tool
