// tarn export: writes messages to a SQLite database.
#include <memory>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/database.h"
#include "tools/tarn/formats/database_layout.h"
#include "tools/tarn/formats/input.h"
#include "tools/tarn/support/files.h"

namespace tarn::tool {

namespace {

struct ExportOptions {
    std::string database;
    bool layout = false;
    InputOptions input;
};

Exit run_export(const ExportOptions &options) {
    if (options.layout) {
        write_file("-", layout_text());
        return Exit::success;
    }
    Database database(options.database);
    const Exit exit = for_each_item(options.input, [&](Entry &entry) {
        if (entry.item.message) database.add(entry);
    });
    // Nothing replaces an existing database if nothing could be read.
    if (exit == Exit::success || !database.is_empty()) database.finish();
    return exit;
}

}  // namespace

void add_export(CLI::App &app, Context &context) {
    auto options = std::make_shared<ExportOptions>();
    CLI::App *command = app.add_subcommand("export", "Write messages to a SQLite database");
    add_inputs(*command, options->input);
    CLI::Option_group *what = command->add_option_group("what");
    what->add_option("--sqlite", options->database, "Database to write; an existing file is replaced")
        ->type_name(words::file);
    what->add_flag("--layout", options->layout, "Print the layout of the databases as Markdown");
    what->require_option(1);
    command->footer(
        "There is a table for each record that is a payload or an element of a list, and a view\n"
        "for each record with the rows that \"tarn rows\" prints. The database gets its name when\n"
        "it is complete. If a part of the input cannot be read, the database contains the rest;\n"
        "if nothing can be read, no database is written.\n\n"
        "Examples:\n"
        "  tarn export answer.bin --sqlite answer.db\n"
        "  sqlite3 answer.db 'SELECT id, src_prefix FROM dp_tc_rows WHERE dp_tt_table_lumo_num = 0'");
    command->callback([options, &context] { context.exit = run_export(*options); });
}

}  // namespace tarn::tool
