#include "tools/tarn/commands/command_line.h"

namespace tarn::tool {

namespace {

// Each option group has its own copy of the help flag; list the flag once.
void add_options(const CLI::App &command, bool is_group, std::vector<const CLI::Option *> &options) {
    for (const CLI::Option *option : command.get_options()) {
        if (is_group && option == command.get_help_ptr()) continue;
        if (option->nonpositional() && !option->get_group().empty()) options.push_back(option);
    }
    for (const CLI::App *group : groups_of(command)) add_options(*group, true, options);
}

}  // namespace

std::vector<const CLI::App *> commands_of(const CLI::App &app) {
    return app.get_subcommands(
        [](const CLI::App *command) { return !command->get_name().empty() && !command->get_group().empty(); });
}

std::vector<const CLI::App *> groups_of(const CLI::App &command) {
    return command.get_subcommands([](const CLI::App *app) { return app->get_name().empty(); });
}

std::vector<const CLI::Option *> options_of(const CLI::App &command) {
    std::vector<const CLI::Option *> options;
    add_options(command, false, options);
    return options;
}

std::vector<const CLI::Option *> positionals_of(const CLI::App &command) {
    return command.get_options([](const CLI::Option *option) { return option->get_positional(); });
}

bool takes_value(const CLI::Option &option) { return option.get_items_expected_max() > 0; }

std::string word_of(const CLI::Option &option) {
    const std::string type = option.get_type_name();
    return type.substr(0, type.find(':'));
}

std::vector<std::string> choices_of(const CLI::Option &option) {
    const std::string type = option.get_type_name();
    const std::size_t begin = type.find('{'), end = type.find('}');
    if (begin == std::string::npos || end == std::string::npos) return {};
    return CLI::detail::split(type.substr(begin + 1, end - begin - 1), ',');
}

}  // namespace tarn::tool
