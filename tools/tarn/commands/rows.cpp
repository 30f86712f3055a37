// tarn rows: prints the instances of a record as a table.
#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <utility>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/condition.h"
#include "tools/tarn/formats/input.h"
#include "tools/tarn/formats/row_writer.h"
#include "tools/tarn/support/files.h"

namespace tarn::tool {

namespace {

struct RowsOptions {
    std::string record, output = "-";
    std::vector<std::string> columns, where, sort;
    std::string format = "table";
    std::size_t limit = 0;
    InputOptions input;
};

const std::map<std::string, RowStyle> row_styles = {
    {"table", RowStyle::table}, {"csv", RowStyle::csv}, {"tsv", RowStyle::tsv}, {"jsonl", RowStyle::jsonl}};

// Keeps the lines that come first, all of them without a limit.
class Sorter {
public:
    Sorter(const Instances &instances, const std::vector<std::string> &names, std::size_t limit) : limit_(limit) {
        for (const std::string &name : names) {
            const bool descends = name.starts_with('-');
            keys_.push_back({instances.column(descends ? name.substr(1) : name, "--sort"), descends});
        }
    }

    bool is_used() const { return !keys_.empty(); }

    void add(const Instance &instance, std::string line) {
        Sorted sorted{{}, lines_.size(), std::move(line)};
        for (const Key &key : keys_) sorted.values.push_back(sortable(instance.value(key.column)));
        lines_.push_back(std::move(sorted));
        // Removing them seldom costs less than a heap.
        if (limit_ != 0 && lines_.size() > 2 * limit_ + 1024) keep_first();
    }

    const auto &finish() {
        keep_first();
        return lines_;
    }

private:
    struct Key {
        RowColumn column;
        bool descends;
    };
    struct Sorted {
        std::vector<Sortable> values;
        std::size_t number;  // among those that are kept
        std::string line;
    };

    bool precedes(const Sorted &a, const Sorted &b) const {
        for (std::size_t i = 0; i < keys_.size(); ++i) {
            if (a.values[i] != b.values[i]) return (a.values[i] < b.values[i]) != keys_[i].descends;
        }
        return a.number < b.number;
    }

    void keep_first() {
        std::sort(lines_.begin(), lines_.end(), [&](const Sorted &a, const Sorted &b) { return precedes(a, b); });
        if (limit_ != 0 && lines_.size() > limit_) lines_.resize(limit_);
        for (std::size_t i = 0; i < lines_.size(); ++i) lines_[i].number = i;
    }

    std::vector<Key> keys_;
    std::size_t limit_;
    std::vector<Sorted> lines_;
};

std::vector<RowColumn> chosen(const Instances &instances, const std::vector<std::string> &names) {
    if (names.empty()) return instances.columns();
    std::vector<RowColumn> columns;
    for (const std::string &name : names) columns.push_back(instances.column(name, "--columns"));
    return columns;
}

Exit run_rows(const RowsOptions &options) {
    const Instances instances(*table_named(options.record).record);
    const RowStyle style = row_styles.at(options.format);
    const std::vector<RowColumn> columns = chosen(instances, options.columns);
    std::vector<Condition> conditions;
    for (const std::string &text : options.where) conditions.push_back(condition(text, instances));
    Sorter sorter(instances, options.sort, options.limit);
    OutputFile file(options.output);
    RowWriter writer(style, columns, [&](std::string_view piece) { file.append(piece); });

    std::size_t rows = 0;
    const auto add = [&](const Instance &instance) {
        const auto holds = [&](const Condition &c) { return c(instance); };
        if (!std::all_of(conditions.begin(), conditions.end(), holds)) return;
        std::string line = line_of(style, columns, instance);
        if (sorter.is_used()) {
            sorter.add(instance, std::move(line));
        } else {
            writer.add(line);
            if (++rows == options.limit) throw StopReading();
        }
    };
    const Exit exit = for_each_item(options.input, [&](Entry &entry) {
        if (entry.item.message) instances.visit(entry, add);
    });
    for (const auto &sorted : sorter.finish()) writer.add(sorted.line);
    writer.finish();
    file.finish();
    return exit;
}

}  // namespace

void add_rows(CLI::App &app, Context &context) {
    auto options = std::make_shared<RowsOptions>();
    CLI::App *command = app.add_subcommand("rows", "Print the instances of a record in messages as a table");
    command->add_option("record", options->record, "Record, such as dp-tc or tc; a bundle or message means its payload")
        ->type_name(words::record)
        ->required();
    add_inputs(*command, options->input);
    const auto add_list = [&](const char *name, std::vector<std::string> &list, const char *what) {
        command->add_option(name, list, what)->delimiter(',')->allow_extra_args(false)->type_name(words::columns);
    };
    add_list("--columns", options->columns, "Columns to print; default: all");
    command->add_option("--where", options->where, "Print only rows that meet the condition; may be repeated")
        ->type_name("CONDITION")
        ->allow_extra_args(false);
    add_list("--sort", options->sort, "Sort by these columns; -COLUMN sorts in descending order");
    command->add_option("--limit", options->limit, "Print at most this number of rows")
        ->check(CLI::Range(std::size_t{1}, SIZE_MAX).description(""))
        ->type_name("N");
    command->add_option("--format", options->format, "Output format")
        ->check(CLI::IsMember({"table", "csv", "tsv", "jsonl"}))
        ->capture_default_str();
    add_output(*command, options->output, "Output file");
    command->footer(
        "There is a row for each instance of the record, wherever messages contain it. The\n"
        "first columns say where that is: file, number of the message in it, bundle, path in\n"
        "the message, and the keys of the records around it, such as dp_tt_table.lumo_num.\n"
        "The others are its members; those of a nested record have names such as appl.id. The\n"
        "elements of a list are no columns; they have rows of their own: \"tarn rows\" with the\n"
        "record of the list.\n\n" +
        std::string(condition_rule) +
        "\n\n"
        "A table and CSV write control characters as \\x1b, and so do tab-separated values.\n"
        "JSON has the exact text; its numbers of 64 bits are text. With --sort, the rows are\n"
        "kept in memory, with --limit only that number of them.\n\n"
        "Examples:\n"
        "  tarn rows tc answer.bin --where 'id>=1000' --where 'src_prefix in 10.0.0.0/8'\n"
        "  tarn rows appl *.bin --columns file,dp_tc.id,id,type --format csv -o appl.csv\n"
        "  tarn rows lumo-info answer.bin --sort -epoch --limit 1 --format jsonl");
    command->callback([options, &context] { context.exit = run_rows(*options); });
}

}  // namespace tarn::tool
