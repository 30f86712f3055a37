// tarn diff: compares messages member by member.
#include <memory>
#include <nlohmann/json.hpp>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/terminal.h"

namespace tarn::tool {

namespace {

using nlohmann::ordered_json;

struct DiffOptions {
    std::string a, b;
    From from = From::detect;
    bool json = false, quiet = false, no_state = false, lenient = false;
};

struct Difference {
    std::string path;
    const ordered_json *a, *b;  // null: only the other side has it
};

class Comparison {
public:
    explicit Comparison(bool with_state) : with_state_(with_state) {}

    void compare(const std::string &path, const ordered_json &a, const ordered_json &b) {
        if (a.is_object() && b.is_object()) {
            compare_objects(path, a, b);
        } else if (a.is_array() && b.is_array()) {
            for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
                const std::string below = path + "[" + std::to_string(i) + "]";
                if (i < a.size() && i < b.size()) {
                    compare(below, a[i], b[i]);
                } else {
                    add(below, i < a.size() ? &a[i] : nullptr, i < b.size() ? &b[i] : nullptr);
                }
            }
        } else if (a != b) {
            add(path, &a, &b);
        }
    }

    std::vector<Difference> differences;

private:
    void add(const std::string &path, const ordered_json *a, const ordered_json *b) {
        differences.push_back({path, a, b});
    }

    bool is_ignored(const std::string &name) const {
        return !with_state_ && (name == "@state" || name == "@members" || name == "tracked");
    }

    void compare_objects(const std::string &path, const ordered_json &a, const ordered_json &b) {
        for (const auto &item : a.items()) {
            if (is_ignored(item.key())) continue;
            const auto other = b.find(item.key());
            const std::string below = path + "." + item.key();
            if (other == b.end()) {
                add(below, &item.value(), nullptr);
            } else {
                compare(below, item.value(), *other);
            }
        }
        for (const auto &item : b.items()) {
            if (!is_ignored(item.key()) && !a.contains(item.key()))
                add(path + "." + item.key(), nullptr, &item.value());
        }
    }

    bool with_state_;
};

ordered_json load(const std::string &path, const DiffOptions &options) {
    const Handles handles(Tracking::as_input);
    ordered_json all = ordered_json::array();
    for (const Item &item : read_items(handles, path, options.lenient, options.from)) all.push_back(json_of(item));
    return all;
}

std::string shown(const ordered_json *json) { return json->is_structured() ? "{...}" : json_text(*json); }

void print(const std::vector<Difference> &differences) {
    std::string out;
    for (const Difference &d : differences) {
        if (d.a != nullptr && d.b != nullptr) {
            out += d.path + ": " + colored(json_text(*d.a), Color::red) + " -> " +
                   colored(json_text(*d.b), Color::green) + "\n";
        } else if (d.a != nullptr) {
            out += d.path + ": " + colored("only in A: " + shown(d.a), Color::red) + "\n";
        } else {
            out += d.path + ": " + colored("only in B: " + shown(d.b), Color::green) + "\n";
        }
    }
    write_file("-", out);
}

void print_json(const std::vector<Difference> &differences) {
    ordered_json all = ordered_json::array();
    for (const Difference &d : differences) {
        ordered_json one{{"path", d.path}};
        if (d.a != nullptr) one["a"] = *d.a;
        if (d.b != nullptr) one["b"] = *d.b;
        all.push_back(one);
    }
    write_file("-", json_text(all, 2) + "\n");
}

Exit run_diff(const DiffOptions &options) {
    const ordered_json a = load(options.a, options), b = load(options.b, options);
    Comparison comparison(!options.no_state);
    // The paths of a single message have no index.
    for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
        const std::string path = std::max(a.size(), b.size()) == 1 ? "" : "[" + std::to_string(i) + "]";
        if (i < a.size() && i < b.size()) {
            comparison.compare(path, a[i], b[i]);
        } else {
            comparison.differences.push_back({path, i < a.size() ? &a[i] : nullptr, i < b.size() ? &b[i] : nullptr});
        }
    }
    for (Difference &d : comparison.differences) {
        if (!d.path.empty() && d.path[0] == '.') d.path.erase(0, 1);
    }
    if (!options.quiet) (options.json ? print_json : print)(comparison.differences);
    return comparison.differences.empty() ? Exit::success : Exit::negative;
}

}  // namespace

void add_diff(CLI::App &app, Context &context) {
    auto options = std::make_shared<DiffOptions>();
    CLI::App *command = app.add_subcommand("diff", "Compare two files of messages member by member");
    command->add_option("a", options->a, "Frames, XML or JSON")->type_name(words::file_a)->required();
    command->add_option("b", options->b, "Frames, XML or JSON; the formats may differ")
        ->type_name(words::file_b)
        ->required();
    command->add_flag("--json", options->json, "Print the differences as JSON");
    command->add_flag("-q,--quiet", options->quiet, "Print nothing; only set the exit code");
    command->add_flag("--no-state", options->no_state, "Ignore per-field state");
    add_from(*command, options->from);
    add_lenient(*command, options->lenient);
    command->footer(
        "The exit code is 0 if the messages are equal, and 1 if they differ. If they are\n"
        "equal, nothing is printed, or [] with --json.\n\n"
        "Frames are read as the library reads them, which does not detect every broken\n"
        "frame; \"tarn dissect\" does.\n\n"
        "Examples:\n"
        "  tarn diff before.bin after.bin\n"
        "  tarn diff examples/cl_debug.xml answer.json --json");
    command->callback([options, &context] { context.exit = run_diff(*options); });
}

}  // namespace tarn::tool
