// tarn watch: requests a bundle again and again and prints what changes.
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <deque>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>
#include <vector>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/message_changes.h"
#include "tools/tarn/service/client.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"
#include "tools/tarn/support/terminal.h"
#include "tools/tarn/support/trace.h"

namespace tarn::tool {

namespace {

using nlohmann::ordered_json;

struct WatchOptions {
    std::string bundle;
    Endpoint endpoint;
    AnswerLimits limits;
    double every = 5, timeout = 10;
    ComparisonOptions comparison;
    std::vector<std::string> columns;
    bool tracked = false, json = false, verbose = false;
};

struct Stopped {};

// SIGINT and SIGTERM, which wait until somebody looks.
class StopSignals {
public:
    StopSignals() {
        sigemptyset(&signals_);
        sigaddset(&signals_, SIGINT);
        sigaddset(&signals_, SIGTERM);
        sigprocmask(SIG_BLOCK, &signals_, nullptr);
    }

    // Throws Stopped if a signal has arrived, or arrives before that time.
    void wait(std::chrono::steady_clock::time_point until) const {
        for (;;) {
            const auto left = std::max(until - std::chrono::steady_clock::now(), std::chrono::nanoseconds(0));
            const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(left);
            const timespec time{seconds.count(), static_cast<long>((left - seconds) / std::chrono::nanoseconds(1))};
            if (sigtimedwait(&signals_, nullptr, &time) > 0) throw Stopped();
            if (left.count() == 0) return;
        }
    }
    void look() const { wait({}); }

private:
    sigset_t signals_{};
};

std::string time_text(const char *form, bool local) {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    local ? localtime_r(&now, &parts) : gmtime_r(&now, &parts);
    char text[32];
    return {text, std::strftime(text, sizeof text, form, &parts)};
}

std::string plural(std::size_t number, const std::string &what) {
    return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
}

// The first characters of a line, whose colors take no room.
std::string cut(const std::string &line, std::size_t columns) {
    std::string text;
    for (std::size_t i = 0; i < line.size();) {
        std::size_t size = 1;
        if (line[i] == '\x1b') {
            size = line.find('m', i) - i + 1;
        } else {
            if (columns-- == 0) return text + "\x1b[0m";
            while (i + size < line.size() && (line[i + size] & '\xc0') == '\x80') ++size;
        }
        text += line.substr(i, size);
        i += size;
    }
    return text;
}

// What has happened, one line or JSON object each; or on a terminal a picture that is drawn again: the latest line of
// each member or element, below the list that contains it.
class WatchOutput {
public:
    WatchOutput(std::string title, bool json) : title_(std::move(title)), json_(json) {
        const char *terminal = std::getenv("TERM");
        in_place_ = !json && isatty(STDOUT_FILENO) != 0 && terminal != nullptr && terminal != std::string_view("dumb");
    }

    void answered() { last_answer_ = time_text("%T", true); }

    void change(Change &change) {
        if (json_) return print_json(tool::json_of(change));
        if (!in_place_) return print_line(line_of(change));
        const std::string place = change.place + ": " + change.member;
        if (!change.list.empty() && change.place.starts_with(change.list + ", ")) {
            change.place.erase(0, change.list.size() + 2);
        }
        add_row(change.list, place, line_of(change));
    }
    // Apart from changes of the messages.
    void event(const char *name, const std::string &text) {
        if (json_) return print_json({{"event", name}, {"text", text}});
        if (!in_place_) return print_line(text);
        add_row("", name, text);
    }
    void draw() {
        if (!in_place_) return;
        winsize size{};
        if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_row == 0) size = {24, 80, 0, 0};
        std::vector<std::string> lines{title_ + "; last answer at " + last_answer_};
        for (const Table &table : tables_) {
            if (!table.list.empty()) lines.push_back(table.list);
            for (const Row &row : table.rows) {
                const std::string times = row.times == 1 ? "" : " (" + std::to_string(row.times) + " times)";
                lines.push_back("  " + colored(row.time, Color::gray) + "  " + row.text + times);
            }
        }
        lines.resize(std::min<std::size_t>(lines.size(), std::max<std::size_t>(size.ws_row, 3) - 1));
        std::string picture = drawn_ == 0 ? "" : "\x1b[" + std::to_string(drawn_) + "A\r";
        for (const std::string &line : lines) picture += cut(line, size.ws_col) + "\x1b[K\n";
        drawn_ = lines.size();
        write_file("-", picture + "\x1b[J");
    }
    void summary(const std::string &text, const ChangeCounts &counts) {
        if (json_) return print_json({{"event", "end"}, {"text", text}, {"counts", counts.json()}});
        write_file("-", text + "\n" + counts.text());
    }

private:
    struct Row {
        std::string place, time, text;
        std::size_t times;
    };
    struct Table {
        std::string list;  // empty for events
        std::deque<Row> rows;
    };
    static constexpr std::size_t most = 1000;  // more lines than terminals have

    void print_json(const ordered_json &json) {
        ordered_json whole{{"time", time_text("%FT%TZ", false)}};
        whole.update(json);
        write_file("-", json_text(whole) + "\n");
    }
    static void print_line(const std::string &text) { write_file("-", time_text("%F %T", true) + "  " + text + "\n"); }

    // Moves what matches to the front, and removes the last one if there are too many.
    template <class T>
    static T &to_front(std::deque<T> &all, const auto &matches, T otherwise) {
        const auto old = std::find_if(all.begin(), all.end(), matches);
        if (old != all.end()) {
            otherwise = std::move(*old);
            all.erase(old);
        } else if (all.size() == most) {
            all.pop_back();
        }
        return all.emplace_front(std::move(otherwise));
    }
    void add_row(const std::string &list, const std::string &place, const std::string &text) {
        Table &table = to_front(
            tables_, [&](const Table &t) { return t.list == list; }, Table{list, {}});
        Row &row = to_front(
            table.rows, [&](const Row &r) { return r.place == place; }, Row{place, {}, {}, 0});
        row.time = time_text("%T", true);
        row.text = text;
        ++row.times;
    }

    std::string title_, last_answer_;
    bool json_, in_place_ = false;
    std::deque<Table> tables_;  // the latest first
    std::size_t drawn_ = 0;     // lines
};

class Watch {
public:
    explicit Watch(const WatchOptions &options)
        : options_(options),
          bundle_(bundle_named(options.bundle)),
          comparison_(rules_of(options)),
          output_(std::string(bundle_.bundle->name) + " at " + printable(options.endpoint.text()), options.json) {}

    void run() {
        try {
            for (auto next = std::chrono::steady_clock::now();; signals_.wait(next)) {
                next = std::chrono::steady_clock::now() + std::chrono::milliseconds(std::lround(options_.every * 1000));
                ask_and_compare();
                output_.draw();
            }
        } catch (const Stopped &) {
            output_.summary("stopped after " + plural(answers_, "answer") + ", " + plural(changes_, "change"), counts_);
        }
    }

private:
    using Answer = std::vector<Version>;

    static ComparisonRules rules_of(const WatchOptions &options) {
        ComparisonRules rules = options.comparison.rules();
        rules.compared = options.columns;
        return rules;
    }

    // The connection stays open, so that a restart of the process is noticed even if it takes less time than the pause
    // between two requests.
    Answer ask() {
        const Deadline deadline(options_.timeout);
        if (connection_) {
            connection_->renew(deadline);
        } else {
            connection_.emplace(options_.endpoint, deadline, options_.limits, [this] { signals_.look(); });
        }
        Answer answer;
        Receiver receiver(options_.tracked, Via::handle);
        connection_->request(bundle_, options_.tracked);
        receive_answer(*connection_, receiver, bundle_, [&](const Frame &frame) {
            receiver.feed(frame, connection_->name());
            receiver.release();
            if (answers_ == 0 && !frame.identity.is_control()) {
                elements_ += count_elements(*receiver.read(frame, connection_->name()).message);
            }
            answer.push_back(version_of(frame, connection_->name()));
        });
        return answer;
    }

    // The first answer has to arrive. Later ones may fail, each reason is reported once.
    void ask_and_compare() {
        Answer answer;
        const bool was_open = connection_.has_value();
        try {
            answer = ask();
        } catch (const Failure &failure) {
            connection_.reset();
            if (answers_ == 0) throw;
            const bool is_lost = was_open && failure.exit() == Exit::environment;
            if (problem_ != failure.what()) {
                output_.event("lost", (is_lost ? "connection lost: " : "") + std::string(failure.what()));
            }
            problem_ = failure.what();
            // A process that has been restarted answers at once.
            if (is_lost) ask_and_compare();
            return;
        }
        if (!problem_.empty()) output_.event("answered", "answered again");
        problem_.clear();
        output_.answered();
        if (answers_++ == 0) {
            const auto messages =
                std::count_if(answer.begin(), answer.end(), [](const Version &v) { return !v.identity.is_control(); });
            output_.event("start", "first answer: " + plural(static_cast<std::size_t>(messages), "message") + ", " +
                                       plural(elements_, "element"));
        } else {
            compare(answer);
        }
        last_ = std::move(answer);
    }

    void compare(const Answer &answer) {
        const auto next_of = [](const Answer &all, std::size_t &at) {
            return [&]() -> std::optional<Version> {
                if (at == all.size()) return std::nullopt;
                const Version &version = all[at++];
                return version_of({bytes_of(version.frame), version.offset, version.identity}, version.origin);
            };
        };
        std::size_t a = 0, b = 0;
        constexpr std::size_t frames_of_one_message = 3;  // with the start and the commit
        const bool is_one = last_.size() == frames_of_one_message && answer.size() == frames_of_one_message;
        const auto report = [&](Change &change, std::size_t number) {
            ++changes_;
            if (!is_one) name_message(change, number);
            counts_.add(change);
            output_.change(change);
        };
        compare_sequences(handles_, comparison_, next_of(last_, a), next_of(answer, b), report);
    }

    const WatchOptions &options_;
    const reflect::BundleOperations &bundle_;
    Comparison comparison_;
    WatchOutput output_;
    StopSignals signals_;
    Handles handles_{Tracking::as_input};
    std::optional<Connection> connection_;
    Answer last_;
    std::string problem_;
    std::size_t answers_ = 0, changes_ = 0, elements_ = 0;  // elements of the first answer
    ChangeCounts counts_;
};

}  // namespace

void add_watch(CLI::App &app, Context &) {
    auto options = std::make_shared<WatchOptions>();
    CLI::App *command = app.add_subcommand("watch", "Request a bundle again and again, and print what changes");
    command->add_option("bundle", options->bundle, "The requested bundle")->type_name(words::bundle)->required();
    add_endpoint(*command, options->endpoint);
    add_seconds(*command, "--every", options->every, "Time from one request to the next", 0.001);
    command
        ->add_option("--columns", options->columns,
                     "Compare only members with these names, which may contain *; elements that are added or removed "
                     "are always printed")
        ->type_name("NAME[,...]")
        ->delimiter(',')
        ->allow_extra_args(false);
    add_comparison(*command, options->comparison);
    command->add_flag("--tracked", options->tracked, "Request and compare per-field state");
    command->add_flag("--json", options->json, "Print a JSON object for each change");
    add_timeout(*command, options->timeout, "Timeout for each answer");
    add_limits(*command, options->limits);
    add_verbose(*command, options->verbose);
    command->footer(
        "On a terminal, the latest changes are drawn in place, one line for each member or\n"
        "element. Otherwise each change is a line, or with --json an object, with the time of\n"
        "the answer; \"tarn diff --help\" explains how elements are aligned. Both answers are\n"
        "in memory.\n\n"
        "If the first request fails, so does the command. If a later one fails, for example\n"
        "because the process is restarted, a line says so, and requests go on. SIGINT and\n"
        "SIGTERM end it with a summary and exit code 0; while it is connecting, only when that\n"
        "succeeds or fails, or at the timeout.\n\n"
        "Examples:\n"
        "  tarn watch dp-tt-cfg --socket /tmp/tarn.sock --every 5s --ignore \"*_ptr\"\n"
        "  tarn watch dp-tt-cfg --socket /tmp/tarn.sock --columns flags,state\n"
        "  tarn watch cl-debug --connect :28276 --json | jq .path");
    command->callback([options] {
        set_up_trace(options->verbose);
        Watch(*options).run();
    });
}

}  // namespace tarn::tool
