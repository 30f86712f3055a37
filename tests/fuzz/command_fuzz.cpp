// Command lines of the commands that read files, with the content of a file: options, names of types, paths of members,
// numbers; and completion of such a line.
//
// The first byte chooses the command. Words follow, each ended by a line end, up to an empty one; the rest is the file,
// whose name is "input". A word is only passed on if it cannot name a file elsewhere.
#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <vector>

#include "tool_target.h"
#include "tools/tarn/commands/command_line.h"
#include "tools/tarn/commands/commands.h"

namespace {

using namespace tarn::tool;
using fuzz::require;

constexpr void (*commands[])(CLI::App &, Context &) = {add_decode, add_encode, add_dissect,  add_diff,
                                                       add_view,   add_schema, add_manifest, add_generate,
                                                       add_rows,   add_export, add_assemble};
constexpr std::uint8_t completes = 0x80;

// Leaves the process in the scratch folder, with nothing to read from standard input.
void enter_scratch() {
    const int nothing = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    require(::dup2(nothing, STDIN_FILENO) == STDIN_FILENO, "standard input can be replaced");
    require(::chdir(fuzz::scratch_folder().c_str()) == 0, "the folder exists");
}

std::vector<std::string> take_words(std::string_view &rest) {
    std::vector<std::string> words;
    for (;;) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        const std::string_view word = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (word.empty()) return words;
        const bool stays_here = word.find('/') == std::string_view::npos && word.find('\0') == std::string_view::npos;
        if (stays_here) words.emplace_back(word);
    }
}

// Removes files that a command has written.
void clean_up() {
    for (const auto &entry : std::filesystem::directory_iterator(".")) std::filesystem::remove_all(entry.path());
}

void run(CLI::App &app, Context &context, const std::vector<std::string> &words) {
    std::vector<const char *> arguments{"tarn"};
    for (const std::string &word : words) arguments.push_back(word.c_str());
    try {
        app.parse(static_cast<int>(arguments.size()), arguments.data());
        const int exit = static_cast<int>(context.exit);
        require(exit == 0 || exit == 1 || exit == 2, "a command that ends has a documented exit code");
    } catch (const CLI::ParseError &error) {
        app.exit(error);
    } catch (const Failure &failure) {
        require(failure.what()[0] != 0, "a failure has a sentence");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    fuzz::Input input = fuzz::tool_input(data, size, enter_scratch);
    const std::uint8_t byte = input.u8();
    const std::string text = input.rest_of_text();
    std::string_view rest = text;
    std::vector<std::string> words = take_words(rest);
    CLI::App app("Commands.", "tarn");
    Context context;
    app.require_subcommand(1);
    commands[(byte & ~completes) % std::size(commands)](app, context);
    words.insert(words.begin(), commands_of(app).front()->get_name());
    if ((byte & completes) != 0) {
        completions(app, words);
        return 0;
    }
    std::ofstream("input", std::ios::binary) << rest;
    run(app, context, words);
    mirk_platform_trace_set_levels(1);
    clean_up();
    return 0;
}
