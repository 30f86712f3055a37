// tarn history: prints what a store contains.
#include <algorithm>
#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "fleet/commands/fleet_commands.h"
#include "fleet/commands/store_options.h"
#include "fleet/store/store.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

namespace {

using nlohmann::ordered_json;
using tool::Exit;
using tool::Failure;

struct HistoryOptions {
    std::string store, device;
    SpanOptions spans;
    bool json = false;
};

// Columns of text, two blanks apart.
class TextTable {
public:
    void add(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }

    std::string text() const {
        std::vector<std::size_t> widths;
        for (const auto &row : rows_) {
            widths.resize(std::max(widths.size(), row.size()));
            for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
        }
        std::string text;
        for (const auto &row : rows_) {
            for (std::size_t i = 0; i < row.size(); ++i) {
                text += row[i];
                if (i + 1 < row.size()) text.append(widths[i] - row[i].size() + 2, ' ');
            }
            text += '\n';
        }
        return text;
    }

private:
    std::vector<std::vector<std::string>> rows_;
};

// An answer or a gap.
struct Event {
    std::optional<StoredAnswer> answer;
    std::optional<Gap> gap;

    Time began() const { return answer ? answer->first_seen : gap->began; }
    const std::string &device() const { return answer ? answer->device : gap->device; }
    const std::string &bundle() const { return answer ? answer->bundle : gap->bundle; }
    // The last time at which it was so; a gap also has an end.
    Time last() const { return answer ? answer->last_seen : gap->ended.value_or(gap->last_asked); }
};

ordered_json json_of(const Event &event) {
    ordered_json json{{"device", event.device()}, {"bundle", event.bundle()}};
    if (event.answer) {
        const StoredAnswer &a = *event.answer;
        json.update({{"kind", "answer"},
                     {"first_seen", time_text(a.first_seen)},
                     {"last_seen", time_text(a.last_seen)},
                     {"asked", time_text(a.asked)},
                     {"last_asked", time_text(a.last_asked)},
                     {"requests", a.times},
                     {"size", a.size},
                     {"digest", a.digest}});
    } else {
        const Gap &g = *event.gap;
        json.update({{"kind", "gap"},
                     {"began", time_text(g.began)},
                     {"ended", g.ended ? ordered_json(time_text(*g.ended)) : ordered_json()},
                     {"last_asked", time_text(g.last_asked)},
                     {"requests", g.requests},
                     {"reason", g.reason}});
    }
    return json;
}

std::vector<std::string> row_of(const Event &event) {
    std::vector<std::string> row{event.device(), tool::short_name(event.bundle()), time_text(event.began()),
                                 time_text(event.last()),
                                 duration_text(std::max<Time>(event.last() - event.began(), 0))};
    if (event.answer) {
        row.push_back(std::to_string(event.answer->times));
        row.push_back(std::to_string(event.answer->size) + " bytes, SHA-256 " + event.answer->digest.substr(0, 12));
    } else {
        row.push_back(std::to_string(event.gap->requests));
        row.push_back("gap: " + event.gap->reason + (event.gap->ended ? "" : " (goes on)"));
    }
    return row;
}

// By device, bundle and time.
std::vector<Event> events_of(Store &store, const Selection &selection) {
    std::vector<Event> events;
    store.for_each_answer(selection, [&](const StoredAnswer &a) { events.push_back({a, {}}); });
    store.for_each_gap(selection, [&](const Gap &g) { events.push_back({{}, g}); });
    std::stable_sort(events.begin(), events.end(), [](const Event &a, const Event &b) {
        return std::tie(a.device(), a.bundle()) != std::tie(b.device(), b.bundle())
                   ? std::tie(a.device(), a.bundle()) < std::tie(b.device(), b.bundle())
                   : a.began() < b.began();
    });
    return events;
}

std::string text_of_events(const std::vector<Event> &events) {
    TextTable table;
    table.add({"DEVICE", "BUNDLE", "FROM", "TO", "TIME", "REQUESTS", "WHAT"});
    for (const Event &event : events) table.add(row_of(event));
    return table.text();
}

std::string text_of_latest(const std::vector<Latest> &all, Time now) {
    TextTable table;
    table.add({"DEVICE", "BUNDLE", "UNCHANGED SINCE", "LAST ANSWER", "AGE", "BYTES", "STATE"});
    for (const Latest &l : all) {
        std::vector<std::string> row{l.device, tool::short_name(l.bundle)};
        if (l.answer) {
            row.insert(row.end(),
                       {time_text(l.answer->first_seen), time_text(l.answer->last_seen),
                        duration_text(std::max<Time>(now - l.answer->last_seen, 0)), std::to_string(l.answer->size)});
        } else {
            row.insert(row.end(), {"-", "-", "-", "-"});
        }
        row.push_back(l.gap ? "gap since " + time_text(l.gap->began) + ": " + l.gap->reason : "answers");
        table.add(row);
    }
    return table.text();
}

std::string json_of_latest(const std::vector<Latest> &all) {
    std::string text;
    for (const Latest &l : all) {
        ordered_json json{{"device", l.device}, {"site", l.site}, {"bundle", l.bundle}};
        json["answer"] = l.answer ? json_of({l.answer, {}}) : ordered_json();
        json["gap"] = l.gap ? json_of({{}, l.gap}) : ordered_json();
        for (const char *const part : {"answer", "gap"}) {
            for (const char *const known : {"device", "bundle", "kind"}) {
                if (json[part].is_object()) json[part].erase(known);
            }
        }
        text += tool::json_text(json) + "\n";
    }
    return text;
}

void run_history(const HistoryOptions &options) {
    const Time now = time_now();
    Selection selection{{}, full_bundle(options.spans.bundle)};
    if (!options.spans.since.empty()) selection.since = time_of(options.spans.since, now);
    if (!options.spans.until.empty()) selection.until = time_of(options.spans.until, now);
    Store store(options.store);
    if (!options.device.empty()) selection.device = store.device_named(options.device);
    if (options.device.empty() && !selection.since && !selection.until) {
        const std::vector<Latest> latest = store.latest(selection);
        return tool::write_file("-", options.json ? json_of_latest(latest) : text_of_latest(latest, now));
    }
    const std::vector<Event> events = events_of(store, selection);
    if (!options.json) return tool::write_file("-", text_of_events(events));
    for (const Event &event : events) tool::write_file("-", tool::json_text(json_of(event)) + "\n");
}

}  // namespace

void add_history(CLI::App &app, tool::Context &) {
    auto options = std::make_shared<HistoryOptions>();
    CLI::App *command = app.add_subcommand("history", "Print what a store of answers contains");
    add_store(*command, options->store)->required();
    command->add_option("--device", options->device, "The history of this device, or SITE/DEVICE")
        ->type_name(words::device);
    add_spans(*command, options->spans);
    command->add_flag("--json", options->json, "JSON, one object per line");
    command->footer(
        "Without --device, --since and --until, there is a line for each device and bundle: since\n"
        "when its answer is the same, when it answered last, and whether it answers. With one of\n"
        "these options, there is a line for each span of time in which a device gave the same\n"
        "answer, and for each gap, in which it did not answer or was not asked.\n\n" +
        std::string(time_rule) +
        "\n\n"
        "Examples:\n"
        "  tarn history --store history.db\n"
        "  tarn history --store history.db --device core-1 --since -1d\n"
        "  tarn diff --store history.db --device core-1 --since -1d");
    command->callback([options] { run_history(*options); });
}

}  // namespace tarn::fleet
