// The manual page of the tool, from the definitions of its command line.
#include <sstream>

#include "tools/tarn/commands/command_line.h"

namespace tarn::tool {

namespace {

// Text that a line of mdoc may begin with.
std::string text_line(const std::string &line) {
    std::string out;
    for (const char c : line) out += c == '\\' ? std::string("\\e") : std::string(1, c);
    if (out.starts_with('.') || out.starts_with('\'')) out.insert(0, "\\&");
    return out;
}

// Running text, in which a sentence begins a line of its own.
std::string text_lines(const std::string &text) {
    std::string out = text_line(text);
    for (std::size_t at = 0; (at = out.find(". ", at)) != std::string::npos;) out.replace(at, 2, ".\n");
    return out;
}

std::string sentence(std::string text) {
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z') {
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    }
    if (!text.ends_with('.')) text += '.';
    return text_lines(text);
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

// The usage of a command: its positionals, behind whatever options.
void write_usage(const CLI::App &command, std::ostream &out) {
    out << ".Nm tarn " << command.get_name() << "\n.Op Ar options\n";
    for (const CLI::Option *option : positionals_of(command)) {
        out << (option->get_required() ? ".Ar " : ".Op Ar ") << argument(*option);
        out << (option->get_items_expected_max() > 1 ? " ...\n" : "\n");
    }
}

// What stands below a command's options in its help: paragraphs, then examples.
void write_footer(const std::string &footer, std::ostream &out) {
    std::istringstream in(footer);
    bool literal = false;
    for (std::string line; std::getline(in, line);) {
        if (line == "Examples:") {
            out << ".Bd -literal -offset indent\n";
            literal = true;
        } else if (literal) {
            out << text_line(line.starts_with("  ") ? line.substr(2) : line) << "\n";
        } else if (!line.empty()) {
            out << ".Pp\n" << text_lines(line) << "\n";
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
    out << ".Dd November 21, 2026\n.Dt TARN 1\n.Os\n.Sh NAME\n.Nm tarn\n.Nd show, read, write and take apart answers "
           "of "
           "the tarn feature\n.Sh SYNOPSIS\n";
    for (const CLI::App *command : commands_of(app)) write_usage(*command, out);
    out << R"(.Sh DESCRIPTION
Processes tell what the feature tarn knows in records, which travel as frames inside messages, and messages inside
bundles.
.Nm
asks a process for a bundle and prints the answer, plays such a process with answers from files, and turns frames,
XML and JSON into each other.
.Pp
Bundles, messages and records are named in full, such as lumo_tarn_dp_tt_cfg_rsp, or in short, such as dp-tt-cfg:
without the first two words and the last, and with hyphens.
.Pp
A file named - is standard input or standard output.
.Sh COMMANDS
)";
    for (const CLI::App *command : commands_of(app)) write_command(*command, out);
    out << R"(.Sh ENVIRONMENT
.Bl -tag -width MIRK_TRACE
.It Ev MIRK_TRACE
Levels of trace lines that are printed on standard error: numbers from 0 to 31 with commas between them, all, or none.
.El
.Sh EXIT STATUS
.Bl -tag -width Ds
.It 0
Done.
.It 1
Different or not found.
.It 2
Wrong usage, or broken input.
.It 3
The environment is in the way: no memory, no file, no connection.
.El
.Sh SEE ALSO
.Xr lumo_ui_tarn 3 ,
.Xr tarn_frame 5
)";
    return out.str();
}

}  // namespace tarn::tool
