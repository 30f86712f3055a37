#include "tools/tarn/commands/program.h"

#include <csignal>
#include <cstdio>
#include <exception>
#include <sstream>

#include "tools/tarn/commands/command_line.h"
#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/extension.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/privileges.h"
#include "tools/tarn/support/trace.h"

namespace tarn::tool {

namespace {

int report_failure(const Failure &failure) {
    print_error(failure);
    return static_cast<int>(failure.exit());
}

std::string exit_code_list() {
    std::string text;
    for (const ExitCode &e : exit_codes) {
        text += "\n  " + std::to_string(static_cast<int>(e.code)) + "  " + std::string(e.meaning);
    }
    return text;
}

int run_command(int argc, char **argv) {
    CLI::App app("Inspect, convert, serve and record messages of the library lumo_ui_tarn.", "tarn");
    Context context;
    app.require_subcommand(1);
    app.footer(std::string(terms) + "\n\n" + name_rule + "\n\n" + value_rule +
               "\n\nExit codes of all commands:" + exit_code_list() +
               "\n\nRun \"tarn COMMAND --help\" for the options of a command and examples. tarn(1) explains\nmore.");
    add_answer(app, context);
    add_show(app, context);
    add_decode(app, context);
    add_encode(app, context);
    add_dissect(app, context);
    add_rows(app, context);
    add_export(app, context);
    add_assemble(app, context);
    add_diff(app, context);
    add_validate(app, context);
    add_view(app, context);
    add_schema(app, context);
    add_manifest(app, context);
    add_generate(app, context);
    add_record(app, context);
    add_watch(app, context);
    add_probe(app, context);
    if (extension != nullptr) extension->add_commands(app, context);
    add_to_all_commands(app);
    check_places(app);
    // "complete" and "manual" describe the command line to the shells and to the build, and are not listed in the help.
    if (argc > 1 && std::string_view(argv[1]) == "complete") {
        write_file("-", completions(app, {argv + 2, argv + argc}));
        return 0;
    }
    if (argc == 2 && std::string_view(argv[1]) == "manual") {
        write_file("-", manual_page(app));
        return 0;
    }
    if (argc == 3 && std::string_view(argv[1]) == "manual") {
        const std::string folder = argv[2];
        write_file(folder + "/tarn.1", manual_page(app));
        if (extension != nullptr) write_file(folder + "/tarn-fleet.1", manual_page_of_extension(app));
        for (const CLI::App *command : commands_of(app)) {
            write_file(folder + "/tarn-" + command->get_name() + ".1", manual_page_of(*command));
        }
        return 0;
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() != 0) {
            // Without arguments the help is what a person wants, but a script that lost them has to fail.
            if (argc == 1)
                write_file("-", app.help());
            else
                std::fputs(usage_error(app, error).c_str(), stderr);
            return static_cast<int>(Exit::input);
        }
        std::ostringstream help;
        app.exit(error, help, help);
        write_file("-", help.str());
        return 0;
    }
    flush_output();
    return static_cast<int>(context.exit);
}

}  // namespace

int run_program(int argc, char **argv) {
    // A write beyond the limit on file sizes must fail with EFBIG, not kill the process.
    std::signal(SIGXFSZ, SIG_IGN);
    // Likewise a write to a pipe or connection without a reader: EPIPE.
    std::signal(SIGPIPE, SIG_IGN);
    reserve_standard_streams();
    try {
        set_no_new_privileges();
        set_up_trace(false);
        return run_command(argc, argv);
    } catch (const Failure &failure) {
        return report_failure(failure);
    } catch (const std::bad_alloc &) {
        return report_failure({Exit::environment, "out of memory"});
    } catch (const std::exception &error) {
        return report_failure({Exit::environment, error.what()});
    }
}

}  // namespace tarn::tool
