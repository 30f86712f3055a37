#include "tools/tarn/commands/options.h"

#include <map>

#include "mirk_platform.h"
#include "schema/digest.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/printable.h"
#include "tools/tarn/support/terminal.h"

namespace tarn::tool {

namespace {

// Of the elements of lists in XML: the sum of the squares of their numbers, for each byte of the document.
constexpr std::uint32_t list_limit = 256;

// What is wrong with a TCP address; empty if nothing is.
std::string address_problem(const std::string &text) {
    if (text.empty()) return "must not be empty";
    const std::size_t host_end = text.front() == '[' ? text.find(']') : text.find(':');
    if (text.front() == '[' && host_end == std::string::npos) return in_quotes(text) + " has no closing bracket";
    if (host_end == std::string::npos) return {};
    const std::string rest = text.substr(host_end + (text.front() == '[' ? 1 : 0));
    if (rest.empty()) return {};
    const std::string port = rest.substr(1);
    if (rest.front() != ':' || port.empty()) return in_quotes(text) + " is not of the form HOST:PORT";
    const bool is_number = port.find_first_not_of("0123456789") == std::string::npos;
    if (is_number && port.size() <= 5 && std::stoul(port) <= 65535) return {};
    return "the port " + in_quotes(port) + " is not a number from 0 to 65535" +
           (port.find(':') != std::string::npos ? "; an IPv6 address is written in brackets" : "");
}

std::string empty_path_problem(const std::string &text) { return text.empty() ? "must not be empty" : ""; }

std::string version_text() {
#ifdef __clang__
    const std::string compiler = "clang " __clang_version__;
#else
    const std::string compiler = "g++ " __VERSION__;
#endif
    return "tarn " TARN_VERSION "\nschema " + schema::schema_digest() + ", " + std::to_string(schema::records.size()) +
           " records, " + std::to_string(schema::enumerations.size()) + " enumerations, " +
           std::to_string(schema::messages.size()) + " messages, " + std::to_string(schema::bundles.size()) +
           " bundles\ncompiler " + compiler;
}

const std::map<std::string, ColorUse> color_uses = {
    {"auto", ColorUse::automatic}, {"always", ColorUse::always}, {"never", ColorUse::never}};

}  // namespace

std::string tcp_words() {
    return "TCP address HOST:PORT; default host 127.0.0.1, default port " + std::to_string(MIRK_PLATFORM_TCP_PORT);
}

void check_places(CLI::App &app) {
    for (CLI::Option *option : app.get_options()) {
        const std::string &type = option->get_type_name();
        if (type.starts_with(words::file)) option->check(empty_path_problem);
        if (type == words::address) option->check(address_problem);
    }
    for (CLI::App *command : app.get_subcommands({})) check_places(*command);
}

void add_to_all_commands(CLI::App &app) {
    app.set_version_flag("--version", version_text, "Print the version, the digest of the schema, and the compiler");
    for (CLI::App *command : app.get_subcommands({})) {
        command
            ->add_option_function<ColorUse>("--color", use_color,
                                            "Colors in text: auto is on a terminal, unless NO_COLOR is set")
            ->transform(CLI::CheckedTransformer(color_uses).description("{auto,always,never}"))
            ->default_str("auto");
        command->set_version_flag("--version", version_text, "Print the version and exit");
    }
}

void add_seconds(CLI::App &command, const std::string &name, double &seconds, const std::string &what, double least) {
    const auto read = [least](std::string &text) {
        static const std::map<std::string, double> units = {{"", 1}, {"ms", 0.001}, {"s", 1}, {"m", 60}, {"h", 3600}};
        const std::size_t number_end = text.find_last_not_of("msh") + 1;
        const auto unit = units.find(text.substr(number_end));
        double value = 0;
        const bool is_number = CLI::detail::lexical_cast(text.substr(0, number_end), value) && unit != units.end();
        // Not a number is in no range.
        if (!is_number || !(value * unit->second >= least && value * unit->second <= 86400)) {
            return "Value " + text + " not in range " + std::to_string(least) + " to " + std::to_string(86400);
        }
        text = std::to_string(value * unit->second);
        return std::string();
    };
    command.add_option(name, seconds, what)
        ->transform(CLI::Validator(read, ""))
        ->type_name("SECONDS")
        ->capture_default_str();
}

CLI::Option *add_size(CLI::App &command, const std::string &name, std::uint64_t &size, const std::string &what,
                      std::uint64_t least, std::uint64_t most) {
    CLI::Option *option = command.add_option(name, size, what)
                              ->check(CLI::Range(least, most).description(""))
                              ->transform(CLI::AsSizeValue(false).description(""))
                              ->type_name("SIZE");
    if (size == 0) return option;
    const char *units[] = {"B", "KiB", "MiB", "GiB"};
    std::size_t unit = 0;
    std::uint64_t number = size;
    for (; unit < 3 && number % 1024 == 0; ++unit) number /= 1024;
    option->default_str(std::to_string(number) + units[unit]);
    return option;
}

void add_input(CLI::App &command, std::string &path, const std::string &what) {
    command.add_option("file", path, what + "; default: standard input")->type_name(words::file);
}

void add_files(CLI::App &command, InputOptions &options, const std::string &what) {
    command.add_option("files", options.paths, what + "; of a folder, all files; default: standard input")
        ->type_name(words::file);
}

void add_keep_going(CLI::App &command, bool &keep_going) {
    command.add_flag("-k,--keep-going", keep_going,
                     "Print errors and continue behind them, also within a file: with the next frame or fragment");
}

void add_port(CLI::App &command, std::uint16_t &port) {
    command.add_option("--port", port, "TCP port of the connections to read from a network capture (pcap, pcapng)")
        ->type_name("PORT")
        ->capture_default_str();
}

void add_inputs(CLI::App &command, InputOptions &options) {
    add_files(command, options, "Frames, XML or JSON");
    add_keep_going(command, options.keep_going);
    add_port(command, options.port);
    add_from(command, options.from);
    add_lenient(command, options.lenient);
}

void add_output(CLI::App &command, std::string &path, const std::string &what) {
    command.add_option("-o,--output", path, what + "; default: standard output")->type_name(words::file);
}

void add_force(CLI::App &command, bool &force) { command.add_flag("--force", force, "Write frames to a terminal"); }

void add_from(CLI::App &command, From &from) {
    const std::map<std::string, From> forms{{"detect", From::detect}, {"hex", From::hex}};
    command.add_option("--from", from, "How the input is written: hex is hexadecimal text, as dumps and C arrays are")
        ->transform(CLI::CheckedTransformer(forms).description(""))
        ->type_name("FORM")
        ->default_str("detect");
}

void add_lenient(CLI::App &command, bool &lenient) {
    command.add_flag(
        "--lenient", lenient,
        "Accept incomplete XML and JSON: ignore unknown members, read an unknown enumerator as the first one of its "
        "type and a missing payload as zeros");
    // All commands that read XML have both.
    mirk_platform_document_limit_lists(list_limit);
    command.add_flag_callback(
        "--long-lists", [] { mirk_platform_document_limit_lists(0); },
        "Accept XML with lists of very many elements, which take time with the square of their number");
}

void add_verbose(CLI::App &command, bool &verbose) {
    command.add_flag("-v,--verbose", verbose, "Print all trace lines of the library on standard error");
}

ComparisonRules ComparisonOptions::rules() const {
    ComparisonRules rules;
    for (const std::string &path : ignore_files) rules.add_ignored(read_file(path), shown_path(path));
    rules.ignored.insert(rules.ignored.end(), ignored.begin(), ignored.end());
    rules.by = by;
    rules.with_state = !no_state;
    return rules;
}

void add_comparison(CLI::App &command, ComparisonOptions &options) {
    command
        .add_option("--ignore", options.ignored,
                    "Ignore members with this name, such as next_ptr, *_ptr or exmem.size; repeatable")
        ->type_name("NAME")
        ->allow_extra_args(false);
    command
        .add_option("--ignore-file", options.ignore_files,
                    "Ignore the names in this file, one a line; # begins a comment")
        ->type_name(words::file)
        ->allow_extra_args(false);
    command
        .add_option("--by", options.by,
                    "Align elements that have this member, or these, by it instead of their key, such as id or "
                    "type,id; repeatable")
        ->type_name("MEMBER[,...]")
        ->allow_extra_args(false);
}

CLI::Option_group &add_endpoint(CLI::App &command, Endpoint &endpoint) {
    CLI::Option_group *group = command.add_option_group("endpoint", "Where the answering process listens");
    group->add_option("--socket", endpoint.socket, "Unix domain socket")->type_name(words::file);
    group->add_option("--connect", endpoint.tcp, tcp_words())->type_name(words::address);
    group->require_option(1);
    return *group;
}

void add_timeout(CLI::App &command, double &seconds, const std::string &what) {
    add_seconds(command, "--timeout", seconds, what, 0.001);
}

void add_limits(CLI::App &command, AnswerLimits &limits) {
    add_size(command, "--frame-limit", limits.frame, "Largest frame to accept", 1 << 10);
    add_size(command, "--answer-limit", limits.answer, "Largest answer to accept, all frames together", 1 << 10);
}

CLI::Option *add_via(CLI::App &command, std::string &via, const std::string &what) {
    return command.add_option("--via", via, what)->check(CLI::IsMember(via_words()))->capture_default_str();
}

}  // namespace tarn::tool
