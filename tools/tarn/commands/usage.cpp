// What is wrong with a command line, in words that name the command, the option or the value that was meant.
#include <algorithm>
#include <span>

#include "tools/tarn/commands/command_line.h"
#include "tools/tarn/commands/extension.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

const CLI::App *chosen_command(const CLI::App &app) {
    for (const CLI::App *command : commands_of(app)) {
        if (command->parsed()) return command;
    }
    return nullptr;
}

// Empty unless the word is one of those that only tarn-fleet knows, and it is not installed.
std::string fleet_problem(std::span<const std::string_view> known, const std::string &word) {
    if (extension != nullptr || std::find(known.begin(), known.end(), word) == known.end()) return {};
    return in_quotes(word) + " requires the package " + fleet_package + ", which is not installed";
}

std::string unknown_option(const CLI::App &command, const std::string &word) {
    std::vector<std::string> names;
    for (const CLI::Option *option : options_of(command)) {
        for (const std::string &name : option->get_lnames()) names.push_back("--" + name);
    }
    const std::string name = word.substr(0, word.find('='));
    if (const std::string problem = fleet_problem(fleet_options, name); !problem.empty()) return problem;
    return "unknown option " + in_quotes(name) + suggestion(name, names);
}

// Empty if all values of enumerated options are among their choices.
std::string unknown_value(const CLI::App &command) {
    for (const CLI::Option *option : options_of(command)) {
        const std::vector<std::string> choices = choices_of(*option);
        for (const std::string &value : option->results()) {
            if (choices.empty() || std::find(choices.begin(), choices.end(), value) != choices.end()) continue;
            return option->get_name() + ": " + in_quotes(value) + " is none of " + CLI::detail::join(choices, ", ") +
                   suggestion(value, choices);
        }
    }
    return {};
}

// Empty if each group of options has as many as it requires and allows.
std::string wrong_number(const CLI::App &command) {
    for (const CLI::App *group : groups_of(command)) {
        std::size_t given = 0;
        std::string names;
        for (const CLI::Option *option : group->get_options()) {
            if (option == group->get_help_ptr()) continue;
            given += option->count() != 0 ? 1 : 0;
            names += (names.empty() ? "" : ", ") + option->get_name();
        }
        if (group->get_require_option_max() != 1) continue;
        if (given > 1) return "only one of " + names + " is allowed";
        if (given < group->get_require_option_min()) return "one of " + names + " is required";
    }
    return {};
}

std::string problem_of(const CLI::App &app, const CLI::App *command, const CLI::ParseError &error) {
    const CLI::App &here = command != nullptr ? *command : app;
    const std::vector<std::string> rest = here.remaining();
    if (dynamic_cast<const CLI::ValidationError *>(&error) != nullptr) {
        if (const std::string problem = unknown_value(here); !problem.empty()) return problem;
    }
    if (rest.empty()) {
        const bool required = dynamic_cast<const CLI::RequiredError *>(&error) != nullptr;
        const std::string problem = required ? wrong_number(here) : std::string();
        return problem.empty() ? error.what() : problem;
    }
    const bool options_end = std::find(rest.begin(), rest.end(), "--") != rest.end();
    const auto option = std::find_if(rest.begin(), rest.end(), [&](const std::string &word) {
        return !options_end && word.size() > 1 && word.front() == '-';
    });
    // The value of an unknown option is also left over.
    if (option != rest.end()) return unknown_option(here, *option);
    if (command != nullptr) return "unexpected argument " + in_quotes(rest.front());
    if (const std::string problem = fleet_problem(fleet_commands, rest.front()); !problem.empty()) return problem;
    std::vector<std::string> names;
    for (const CLI::App *known : commands_of(app)) names.push_back(known->get_name());
    return "unknown command " + in_quotes(rest.front()) + suggestion(rest.front(), names);
}

}  // namespace

std::string usage_error(const CLI::App &app, const CLI::ParseError &error) {
    const CLI::App *command = chosen_command(app);
    const std::string name = "tarn" + (command != nullptr ? " " + command->get_name() : std::string());
    return name + ": " + printable(problem_of(app, command, error), 4096) + "\nRun \"" + name +
           " --help\" for more information.\n";
}

}  // namespace tarn::tool
