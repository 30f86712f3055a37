// tarn: shows, reads, writes and takes apart what the tarn feature says about itself.
#include <csignal>
#include <cstdio>
#include <exception>

#include "tools/tarn/commands/command_line.h"
#include "tools/tarn/commands/commands.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"

namespace {

using namespace tarn::tool;

int print_error(const char *sentence, Exit exit) {
    std::fflush(stdout);
    std::fprintf(stderr, "tarn: %s\n", sentence);
    return static_cast<int>(exit);
}

int run(int argc, char **argv) {
    CLI::App app("Shows, reads, writes and takes apart the answers of the tarn feature.", "tarn");
    Context context;
    app.require_subcommand(1);
    app.footer(
        "Exit codes: 0 done, 1 different or not found, 2 usage or input, 3 environment.\n"
        "\"tarn COMMAND --help\" tells about one command and gives examples.");
    add_answer(app, context);
    add_show(app, context);
    add_decode(app, context);
    add_encode(app, context);
    add_dissect(app, context);
    add_diff(app, context);
    add_view(app, context);
    add_schema(app, context);
    add_manifest(app, context);
    add_generate(app, context);
    add_record(app, context);
    // These two describe the command line and are not part of it: for the shells, and for the manual.
    if (argc > 1 && std::string_view(argv[1]) == "complete") {
        write_file("-", completions(app, {argv + 2, argv + argc}));
        return 0;
    }
    if (argc == 2 && std::string_view(argv[1]) == "manual") {
        write_file("-", manual_page(app));
        return 0;
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? 0 : static_cast<int>(Exit::input);
    }
    flush_output();
    return static_cast<int>(context.exit);
}

}  // namespace

int main(int argc, char **argv) {
    // Exceeding the limit on file sizes is an error like a full disk, and must not kill the process.
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        return run(argc, argv);
    } catch (const Failure &failure) {
        return print_error(failure.what(), failure.exit());
    } catch (const std::bad_alloc &) {
        return print_error("out of memory", Exit::environment);
    } catch (const std::exception &error) {
        return print_error(error.what(), Exit::environment);
    }
}
