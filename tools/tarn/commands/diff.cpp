// tarn diff: compares messages member by member.
#include <algorithm>
#include <functional>
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
    std::uint16_t port = MIRK_PLATFORM_TCP_PORT;
    ComparisonOptions comparison;
    bool json = false, quiet = false, summary = false, lenient = false;
};

// The messages of files or connections, one after the other. Frames are not read.
class DiffSource {
public:
    DiffSource(const Handles &handles, std::vector<Opened *> sources, bool lenient)
        : handles_(handles), sources_(std::move(sources)), lenient_(lenient) {}

    // Throws a Failure if there is no message.
    void require_message(const std::string &origin) {
        ahead_ = next();
        if (!ahead_) throw Failure(Exit::input, origin + ": no message");
    }

    std::optional<Version> next() {
        if (ahead_) return std::exchange(ahead_, std::nullopt);
        for (; current_ < sources_.size(); ++current_) {
            if (!frames_ && !entries_) open();
            if (std::optional<Version> version = frames_ ? next_frame() : next_entry()) {
                version->source = current_;
                return version;
            }
            frames_.reset();
            entries_.reset();
        }
        return std::nullopt;
    }

private:
    void open() {
        if (form_of(stream().look(enough_to_detect), stream().name()) == Form::frames) {
            frames_.emplace(stream(), false);
        } else {
            entries_.emplace(handles_, stream(), InputOptions{.paths = {}, .lenient = lenient_});
        }
    }
    ByteStream &stream() { return sources_[current_]->stream; }
    std::optional<Version> next_frame() {
        for (;;) {
            const std::optional<Stretch> stretch = frames_->next();
            if (!stretch) return std::nullopt;
            if (!stretch->fault.empty()) {
                throw Failure(Exit::input, frame_location(stream().name(), stretch->offset) + ": " + stretch->fault);
            }
            // A request for a bundle is no message.
            if (stretch->identity) return version_of(stretch->frame(), stream().name());
        }
    }
    std::optional<Version> next_entry() {
        std::optional<Entry> entry = entries_->next();
        if (!entry) return std::nullopt;
        return Version{.identity = entry->item.identity, .frame = {}, .item = std::move(entry->item), .origin = {}};
    }

    const Handles &handles_;
    std::vector<Opened *> sources_;
    bool lenient_;
    std::size_t current_ = 0;
    std::optional<FrameReader> frames_;
    std::optional<EntryReader> entries_;
    std::optional<Version> ahead_;
};

// Connections that are compared; null if only one capture has it.
struct DiffPair {
    Opened *a = nullptr, *b = nullptr;
};

// Connections correspond if both ends are the same; else if they are the same but for the port of the client, which is
// another one each time; else if both are from the server or both are from a client.
std::vector<DiffPair> pair_connections(std::vector<Opened> &a, std::vector<Opened> &b, std::uint16_t port) {
    const std::string server = ":" + std::to_string(port);
    const auto from_server = [&](const std::string &ends) {
        return ends.substr(0, ends.find(" to ")).ends_with(server);
    };
    const std::function<std::string(const std::string &)> keys[] = {
        [](const std::string &ends) { return ends; },
        [&](const std::string &ends) {
            if (from_server(ends)) return ends.substr(0, ends.rfind(':'));
            const std::size_t to = ends.find(" to ");
            return ends.substr(0, ends.rfind(':', to)) + ends.substr(to);
        },
        [&](const std::string &ends) { return std::string(from_server(ends) ? "server" : "client"); },
    };
    std::vector<DiffPair> pairs;
    for (Opened &source : a) pairs.push_back({&source, nullptr});
    std::vector<Opened *> rest;
    for (Opened &source : b) rest.push_back(&source);
    for (const auto &key : keys) {
        for (DiffPair &pair : pairs) {
            if (pair.b != nullptr) continue;
            const std::string wanted = key(pair.a->connection);
            const auto other = std::find_if(rest.begin(), rest.end(),
                                            [&](const Opened *source) { return key(source->connection) == wanted; });
            if (other == rest.end()) continue;
            pair.b = *other;
            rest.erase(other);
        }
    }
    for (Opened *source : rest) pairs.push_back({nullptr, source});
    return pairs;
}

// Prints changes one after the other.
class ChangePrinter {
public:
    explicit ChangePrinter(const DiffOptions &options) : options_(options) {}

    // The changes that follow are those of two connections, one of which may be null.
    void begin(const DiffPair &connections) {
        connections_ = connections;
        has_heading_ = false;
    }
    void add(Change &change, std::size_t number) {
        is_empty_ = false;
        if (options_.quiet) return;
        if (options_.summary) return counts_.add(change);
        if (options_.json) {
            ordered_json json{{"message", number}};
            if (connections_.a != nullptr || connections_.b != nullptr) {
                for (const Opened *side : {connections_.a, connections_.b}) {
                    json["connections"].push_back(side != nullptr ? ordered_json(side->connection) : nullptr);
                }
            }
            json.update(json_of(change));
            return print(std::exchange(separator_, ",\n ") + json_text(json));
        }
        change.whole = nullptr;
        // Lines of the first message wait until it is known whether there are others.
        if (number == 1 && change.element != "message") return first_.push_back(std::move(change));
        print_first(true);
        name_message(change, number);
        print_line(change);
    }
    void end(std::size_t messages) { print_first(messages > 1); }

    void finish() {
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
            print_line(change);
        }
    }
    void print_line(const Change &change) {
        if (!std::exchange(has_heading_, true)) print(heading());
        print(line_of(change) + "\n");
    }
    std::string heading() const {
        std::vector<std::string> names;
        for (const Opened *side : {connections_.a, connections_.b}) {
            if (side != nullptr) names.push_back(side->connection);
        }
        if (names.size() == 2 && names[0] == names[1]) names.pop_back();
        return "# " + names[0] + (names.size() == 2 ? ", " + names[1] : "") + "\n";
    }
    void print(const std::string &text) {
        constexpr std::size_t most = std::size_t{64} << 10;
        text_ += text;
        if (text_.size() >= most) write_file("-", std::exchange(text_, {}));
    }

    const DiffOptions &options_;
    DiffPair connections_;
    bool is_empty_ = true, has_heading_ = true;
    const char *separator_ = "[";
    std::string text_;
    std::vector<Change> first_;
    ChangeCounts counts_;
};

std::vector<Opened *> all_of(std::vector<Opened> &sources) {
    std::vector<Opened *> all;
    for (Opened &source : sources) all.push_back(&source);
    return all;
}

Exit run_diff(const DiffOptions &options) {
    Comparison comparison(options.comparison.rules());
    const Handles handles(Tracking::as_input);
    Failures failures(false);
    std::vector<Opened> a = open_sources(options.a, options.from, options.port, failures),
                        b = open_sources(options.b, options.from, options.port, failures);
    ChangePrinter printer(options);
    const auto compare = [&](DiffSource &left, DiffSource &right) {
        printer.end(compare_sequences(
            handles, comparison, [&] { return left.next(); }, [&] { return right.next(); },
            [&](Change &change, std::size_t number) { printer.add(change, number); }));
    };
    const auto sources = [&](std::vector<Opened *> list) {
        return DiffSource(handles, std::move(list), options.lenient);
    };
    const auto is_capture = [](const std::vector<Opened> &side) { return !side.front().connection.empty(); };
    if (is_capture(a) && is_capture(b)) {
        for (const DiffPair &pair : pair_connections(a, b, options.port)) {
            const auto only = [](Opened *source) {
                return source != nullptr ? std::vector{source} : std::vector<Opened *>();
            };
            DiffSource left = sources(only(pair.a)), right = sources(only(pair.b));
            printer.begin(pair);
            compare(left, right);
        }
    } else {
        DiffSource left = sources(all_of(a)), right = sources(all_of(b));
        left.require_message(shown_path(options.a));
        right.require_message(shown_path(options.b));
        compare(left, right);
    }
    printer.finish();
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
    add_port(*command, options->port);
    add_lenient(*command, options->lenient);
    command->footer(
        "The exit code is 0 if the messages are equal, and 1 if they differ. If they are\n"
        "equal, nothing is printed, or [] with --json.\n\n"
        "Elements of a list are compared with those that have the same key, which\n"
        "\"tarn schema\" prints for each record; in a list whose elements have none, with\n"
        "those between the same neighbors. A message is compared with the one that has its\n"
        "type and its position in the same bundle. Starts and commits of bundles, stamps, and\n"
        "counts of elements are no differences of their own.\n\n"
        "Of two network captures, connections are compared that have the same ends, then\n"
        "those where only the port of the client differs, then the others in their order.\n"
        "Changes follow the names of their connections. Beside another file, the messages of\n"
        "all connections in a capture are one sequence.\n\n"
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
