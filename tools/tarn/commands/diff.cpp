// tarn diff: compares messages member by member.
#include <memory>
#include <nlohmann/json.hpp>
#include <utility>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/message_changes.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/support/files.h"

namespace tarn::tool {

namespace {

using nlohmann::ordered_json;

struct DiffOptions {
    std::string a, b;
    From from = From::detect;
    ComparisonOptions comparison;
    bool json = false, quiet = false, summary = false, lenient = false;
};

// The messages of a file.
class DiffSource {
public:
    DiffSource(const Handles &handles, const std::string &path, const DiffOptions &options)
        : origin_(shown_path(path)), content_(read_input(path, options.from)) {
        if (form_of(content_, origin_) == Form::frames) return;
        items_ = items_of(handles, content_, origin_, options.lenient);
        if (items_.empty()) throw Failure(Exit::input, origin_ + ": no message");
        offset_ = content_.size();
    }

    std::optional<Version> next() {
        if (offset_ < content_.size()) {
            const Frame frame = frame_at(bytes_of(content_), offset_, origin_);
            offset_ += frame.bytes.size();
            return Version{frame.identity, std::string(chars_of(frame.bytes)), std::nullopt,
                           frame_location(origin_, frame.offset)};
        }
        if (item_ == items_.size()) return std::nullopt;
        Item &item = items_[item_++];
        const Identity identity = item.identity;
        return Version{identity, {}, std::move(item), {}};
    }

private:
    std::string origin_, content_;
    std::size_t offset_ = 0, item_ = 0;
    std::vector<Item> items_;
};

// Prints changes one after the other.
class ChangePrinter {
public:
    explicit ChangePrinter(const DiffOptions &options) : options_(options) {}

    void add(Change &change, std::size_t number) {
        is_empty_ = false;
        if (options_.quiet) return;
        if (options_.summary) return counts_.add(change);
        if (options_.json) {
            ordered_json json{{"message", number}};
            json.update(json_of(change));
            return print(std::exchange(separator_, ",\n ") + json_text(json));
        }
        change.whole = nullptr;
        // Lines of the first message wait until it is known whether there are others.
        if (number == 1 && change.element != "message") return first_.push_back(std::move(change));
        print_first(true);
        name_message(change, number);
        print(line_of(change) + "\n");
    }

    void finish(std::size_t messages) {
        print_first(messages > 1);
        if (options_.summary) {
            print(options_.json ? json_text(counts_.json()) + "\n" : counts_.text());
        } else if (options_.json) {
            print(is_empty_ ? "[]\n" : "]\n");
        }
        if (!options_.quiet) write_file("-", text_);
    }
    bool is_empty() const { return is_empty_; }

private:
    void print_first(bool with_number) {
        for (Change &change : std::exchange(first_, {})) {
            if (with_number) name_message(change, 1);
            print(line_of(change) + "\n");
        }
    }
    void print(const std::string &text) {
        constexpr std::size_t most = std::size_t{64} << 10;
        text_ += text;
        if (text_.size() >= most) write_file("-", std::exchange(text_, {}));
    }

    const DiffOptions &options_;
    bool is_empty_ = true;
    const char *separator_ = "[";
    std::string text_;
    std::vector<Change> first_;
    ChangeCounts counts_;
};

Exit run_diff(const DiffOptions &options) {
    Comparison comparison(options.comparison.rules());
    const Handles handles(Tracking::as_input);
    DiffSource a(handles, options.a, options), b(handles, options.b, options);
    ChangePrinter printer(options);
    const std::size_t messages = compare_sequences(
        handles, comparison, [&] { return a.next(); }, [&] { return b.next(); },
        [&](Change &change, std::size_t number) { printer.add(change, number); });
    printer.finish(messages);
    return printer.is_empty() ? Exit::success : Exit::negative;
}

}  // namespace

void add_diff(CLI::App &app, Context &context) {
    auto options = std::make_shared<DiffOptions>();
    CLI::App *command = app.add_subcommand("diff", "Compare two files of messages member by member");
    command->add_option("a", options->a, "Frames, XML or JSON")->type_name(words::file_a)->required();
    command->add_option("b", options->b, "Frames, XML or JSON; the formats may differ")
        ->type_name(words::file_b)
        ->required();
    command->add_flag("--summary", options->summary, "Print how often something was added, removed and changed");
    command->add_flag("--json", options->json, "Print the differences as JSON");
    command->add_flag("-q,--quiet", options->quiet, "Print nothing; only set the exit code");
    add_comparison(*command, options->comparison);
    command->add_flag("--no-state", options->comparison.no_state, "Ignore per-field state");
    add_from(*command, options->from);
    add_lenient(*command, options->lenient);
    command->footer(
        "The exit code is 0 if the messages are equal, and 1 if they differ. If they are\n"
        "equal, nothing is printed, or [] with --json.\n\n"
        "Elements of a list are compared with those that have the same key, which\n"
        "\"tarn schema\" prints for each record; in a list whose elements have none, with\n"
        "those between the same neighbors. A message is compared with the one that has its\n"
        "type and its position in the same bundle. Starts and commits of bundles, stamps, and\n"
        "counts of elements are no differences of their own.\n\n"
        "Frames are read as the library reads them, which does not detect every broken\n"
        "frame; \"tarn dissect\" does. Of frames with the same bytes, only the counts are\n"
        "checked.\n\n"
        "Examples:\n"
        "  tarn diff before.bin after.bin\n"
        "  tarn diff before.bin after.bin --ignore \"*_ptr\" --ignore \"*_addr\"\n"
        "  tarn diff before.bin after.bin --summary\n"
        "  tarn diff examples/cl_debug.xml answer.json --json");
    command->callback([options, &context] { context.exit = run_diff(*options); });
}

}  // namespace tarn::tool
