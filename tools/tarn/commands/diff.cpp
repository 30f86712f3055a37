// tarn diff: compares messages member by member.
#include <memory>
#include <nlohmann/json.hpp>
#include <utility>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/input.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/message_changes.h"
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

// The messages of a file, one after the other. Frames are not read.
class DiffSource {
public:
    DiffSource(const Handles &handles, const std::string &path, const DiffOptions &options)
        : stream_(open_bytes(path, options.from)) {
        constexpr std::size_t enough_to_detect = std::size_t{64} << 10;
        if (form_of(stream_.look(enough_to_detect), stream_.name()) == Form::frames) {
            frames_.emplace(stream_, false);
        } else {
            entries_.emplace(handles, stream_, InputOptions{.paths = {}, .lenient = options.lenient});
        }
    }

    std::optional<Version> next() {
        std::optional<Version> version = frames_ ? next_frame() : next_entry();
        if (!version && is_first_) throw Failure(Exit::input, stream_.name() + ": no message");
        is_first_ = false;
        return version;
    }

private:
    std::optional<Version> next_frame() {
        for (;;) {
            const std::optional<Stretch> stretch = frames_->next();
            if (!stretch) return std::nullopt;
            if (!stretch->fault.empty()) {
                throw Failure(Exit::input, frame_location(stream_.name(), stretch->offset) + ": " + stretch->fault);
            }
            // A request for a bundle is no message.
            if (stretch->identity) return version_of(stretch->frame(), stream_.name());
        }
    }
    std::optional<Version> next_entry() {
        std::optional<Entry> entry = entries_->next();
        if (!entry) return std::nullopt;
        return Version{.identity = entry->item.identity, .frame = {}, .item = std::move(entry->item), .origin = {}};
    }

    ByteStream stream_;
    std::optional<FrameReader> frames_;
    std::optional<EntryReader> entries_;
    bool is_first_ = true;
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
