// The manual page of the tool, from the definitions of its command line.
#include <algorithm>
#include <cctype>
#include <set>
#include <sstream>
#include <utility>

#include "tools/tarn/commands/command_line.h"
#include "tools/tarn/commands/extension.h"
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

// A paragraph of a help text: running text, or lines that stay as they are, such as a table.
void write_paragraph(const std::vector<std::string> &lines, std::ostream &out) {
    if (lines.empty()) return;
    const bool is_literal = lines.front().starts_with("  ");
    std::string text;
    for (const std::string &line : lines) {
        text += is_literal ? text_line(line.substr(std::min<std::size_t>(2, line.size()))) + "\n" : line + " ";
    }
    if (is_literal) {
        out << ".Bd -literal -offset indent\n" << text << ".Ed\n";
    } else {
        text.pop_back();
        out << ".Pp\n" << text_lines(text) << "\n";
    }
}

// The footer of a command's help: paragraphs, which blank lines separate, then examples.
struct Footer {
    std::vector<std::vector<std::string>> paragraphs;
    std::vector<std::string> examples;
};
Footer footer_of(const CLI::App &command) {
    Footer footer;
    std::istringstream in(command.get_footer());
    bool in_examples = false, is_new = true;
    for (std::string line; std::getline(in, line);) {
        if (line == "Examples:") {
            in_examples = true;
        } else if (in_examples) {
            footer.examples.push_back(line.starts_with("  ") ? line.substr(2) : line);
        } else if (line.empty()) {
            is_new = true;
        } else {
            if (std::exchange(is_new, false)) footer.paragraphs.emplace_back();
            footer.paragraphs.back().push_back(line);
        }
    }
    return footer;
}

void write_examples(const std::vector<std::string> &examples, std::ostream &out) {
    out << ".Sh EXAMPLES\n.Bd -literal\n";
    for (const std::string &line : examples) out << text_line(line) << "\n";
    out << ".Ed\n";
}

void write_head(const std::string &name, const std::string &description, std::ostream &out) {
    std::string title = name;
    for (char &c : title) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    out << ".Dd November 23, 2026\n.Dt " << title << " 1\n.Os\n.Sh NAME\n.Nm " << name << "\n.Nd "
        << lower_first(description) << "\n.Sh SYNOPSIS\n";
}

}  // namespace

std::string manual_page_of(const CLI::App &command) {
    std::ostringstream out;
    const Footer footer = footer_of(command);
    write_head("tarn-" + command.get_name(), command.get_description(), out);
    write_usage(command, out);
    out << ".Sh DESCRIPTION\n" << sentence(command.get_description()) << "\n";
    for (const auto &paragraph : footer.paragraphs) write_paragraph(paragraph, out);
    out << details_of(command.get_name()) << ".Sh OPTIONS\n.Bl -tag -width Ds\n";
    for (const CLI::Option *option : positionals_of(command)) write_option(*option, out);
    for (const CLI::Option *option : options_of(command)) write_option(*option, out);
    out << ".El\n";
    if (!groups_of(command).empty()) out << ".Pp\n";
    write_groups(command, out);
    out << R"(.Sh ENVIRONMENT
The variables
.Ev MIRK_TRACE ,
.Ev NO_COLOR
and
.Ev CLICOLOR_FORCE
are described in
.Xr tarn 1 .
.Sh EXIT STATUS
0 is success; the other codes are described in
.Xr tarn 1 .
)";
    write_examples(footer.examples, out);
    out << ".Sh SEE ALSO\n.Xr tarn 1 ,\n.Xr tarn_frame 5\n";
    return out.str();
}

std::string manual_page_of_extension(const CLI::App &app) {
    const auto is_added = [](const auto &names, const std::string &name) {
        return std::find(std::begin(names), std::end(names), name) != std::end(names);
    };
    std::ostringstream out;
    write_head("tarn-fleet", "tarn with a bus and stores", out);
    out << ".Nm tarn\n.Ar COMMAND\n.Op Ar options\n.Sh DESCRIPTION\nThe package\n.Li " << fleet_package
        << "\nadds commands to\n.Xr tarn 1 ,\nand options to other commands.\n.Sh COMMANDS\n.Bl -tag -width Ds\n";
    for (const std::string_view name : fleet_commands) {
        const CLI::App &command = *app.get_subcommand(std::string(name));
        out << ".It Xr tarn-" << name << " 1\n" << sentence(command.get_description()) << "\n";
    }
    out << ".El\n.Sh OPTIONS\n";
    for (const CLI::App *command : commands_of(app)) {
        // Without them, an option of the same name is another one.
        const bool is_extended =
            command->get_option_no_throw("--bus") != nullptr || command->get_option_no_throw("--store") != nullptr;
        if (!is_extended || is_added(fleet_commands, command->get_name())) continue;
        out << ".Ss tarn " << command->get_name() << "\n.Bl -tag -width Ds\n";
        for (const CLI::Option *option : options_of(*command)) {
            if (is_added(fleet_options, option->get_name())) write_option(*option, out);
        }
        out << ".El\n";
    }
    out << ".Sh SEE ALSO\n.Xr tarn 1";
    for (const std::string_view name : fleet_commands) out << " ,\n.Xr tarn-" << name << " 1";
    out << "\n";
    return out.str();
}

std::string manual_page(const CLI::App &app) {
    std::ostringstream out;
    write_head("tarn", app.get_description(), out);
    out << R"(.Nm
.Ar COMMAND
.Op Ar options
.Op Ar FILE ...
.Nm
.Fl \-help | \-version
.Sh DESCRIPTION
)" << text_lines(terms)
        << "\n.Pp\n"
        << text_lines(name_rule) << "\n.Pp\n"
        << text_lines(value_rule) << R"(
The units are KiB (1024 bytes), MiB and GiB; K and KB mean KiB.
Limits in bytes are at least 1KiB and less than 4GiB; the size for generate is from 1 byte to 256MiB.
SECONDS may have a fraction and are at most 86400, one day; a timeout is at least 0.001.
.Sh COMMANDS
Each command has a page of its own, with its options and examples.
.Bl -tag -width Ds
)";
    for (const CLI::App *command : commands_of(app)) {
        out << ".It Xr tarn-" << command->get_name() << " 1\n" << sentence(command->get_description()) << "\n";
    }
    out << ".El\n";
    out << R"(.Sh ENVIRONMENT
.Bl -tag -width CLICOLOR_FORCE
.It Ev MIRK_TRACE
Trace levels of the library to print on standard error: comma-separated numbers from 0 to 31, all, or none.
Fatal errors have level 0, errors level 3, debug lines level 7.
--verbose prints all levels and overrides this variable.
Without both, only level 0 is printed, because the commands report errors themselves; if the value is invalid, levels 0
and 3.
.It Ev NO_COLOR
Text has no colors if this is set and not empty.
.It Ev CLICOLOR_FORCE
If this is set and neither empty nor 0, and
.Ev NO_COLOR
is not, text has colors also if standard output is not a terminal.
--color overrides both.
.El
.Sh FILES
.Bl -tag -width Ds
.It Pa .tarn-PID-NUMBER
An output file before it gets its name, in the folder of that name.
A process that is killed leaves it there; it can be removed when process PID no longer runs.
.El
.Sh EXIT STATUS
All commands use the same exit codes:
.Bl -tag -width Ds
)";
    for (const ExitCode &e : exit_codes)
        out << ".It " << static_cast<int>(e.code) << "\n" << sentence(e.meaning) << "\n";
    out << ".El\n";
    write_examples({"tarn answer --socket /tmp/tarn.sock cl-debug=examples/cl_debug.xml &",
                    "tarn show cl-debug --socket /tmp/tarn.sock --save answer.bin", "tarn decode answer.bin --json",
                    "tarn view answer.bin -o answer.html"},
                   out);
    out << ".Sh SEE ALSO\n";
    std::set<std::string> sorted;
    for (const CLI::App *command : commands_of(app)) sorted.insert(command->get_name());
    for (const std::string &name : sorted) out << ".Xr tarn-" << name << " 1 ,\n";
    out << ".Xr lumo_ui_tarn 3 ,\n.Xr tarn_frame 5\n";
    return out.str();
}

}  // namespace tarn::tool
