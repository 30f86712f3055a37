// The manual page of the tool, from the definitions of its command line.
#include <cctype>
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
}

// The usage of a command: its positionals after the options.
void write_usage(const CLI::App &command, std::ostream &out) {
    out << ".Nm tarn " << command.get_name() << "\n.Op Ar options\n";
    for (const CLI::Option *option : positionals_of(command)) {
        out << (option->get_required() ? ".Ar " : ".Op Ar ") << argument(*option);
        out << (option->get_items_expected_max() > 1 ? " ...\n" : "\n");
    }
}

// The footer of a command's help: paragraphs, which blank lines separate, then examples.
void write_footer(const std::string &footer, std::ostream &out) {
    std::istringstream in(footer);
    std::string paragraph;
    bool literal = false;
    for (std::string line; std::getline(in, line);) {
        if (line == "Examples:") {
            out << ".Pp\nExamples:\n.Bd -literal -offset indent\n";
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
    write_footer(command.get_footer(), out);
}

}  // namespace

std::string manual_page(const CLI::App &app) {
    std::ostringstream out;
    out << ".Dd November 22, 2026\n.Dt TARN 1\n.Os\n.Sh NAME\n.Nm tarn\n.Nd " << lower_first(app.get_description())
        << "\n.Sh SYNOPSIS\n";
    for (const CLI::App *command : commands_of(app)) write_usage(*command, out);
    out << ".Sh DESCRIPTION\n"
        << text_lines(terms) << "\n.Pp\n"
        << text_lines(name_rule) << R"(
.Pp
The file name - stands for standard input or standard output.
.Sh COMMANDS
)";
    for (const CLI::App *command : commands_of(app)) write_command(*command, out);
    out << R"(.Sh ENVIRONMENT
.Bl -tag -width MIRK_TRACE
.It Ev MIRK_TRACE
Trace levels to print on standard error: comma-separated numbers from 0 to 31, all, or none.
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
