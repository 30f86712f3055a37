#include "fleet/http/browser_data.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <span>
#include <utility>
#include <vector>

#include "fleet/http/series.h"
#include "tools/reflect/operations.h"
#include "tools/tarn/formats/comparison.h"
#include "tools/tarn/formats/frames.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/formats/message_changes.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/pages/view_page.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

namespace {

using nlohmann::ordered_json;
using tool::Exit;
using tool::Failure;

ordered_json json_of(const StoredAnswer &a) {
    return {{"id", a.id},           {"number", a.number}, {"size", a.size},
            {"from", a.first_seen}, {"to", a.last_seen},  {"requests", a.times}};
}

ordered_json json_of(const Gap &g) {
    ordered_json json{{"from", g.began}, {"to", nullptr}, {"requests", g.requests}, {"reason", g.reason}};
    if (g.ended) json["to"] = *g.ended;
    return json;
}

std::string text_of(const ordered_json &json) {
    return json.dump(-1, ' ', true, ordered_json::error_handler_t::replace);
}

std::string name_of(const StoredAnswer &a) {
    return tool::printable(a.device + "/" + tool::short_name(a.bundle) + "@" + time_text(a.first_seen));
}

// The answer, which must be small enough for a page.
tool::ViewedFile viewed(Store &store, std::int64_t id) {
    const StoredAnswer a = store.answer(id);
    if (a.size > BrowserData::most_viewed) {
        throw Failure(Exit::input, "answer " + std::to_string(id) + " has " + std::to_string(a.size) +
                                       " bytes, more than a page of the collector shows; use \"tarn view --store\"");
    }
    return {name_of(a), store.frames(id), {}};
}

// A place among the requests for a store.
class Turn {
public:
    explicit Turn(std::counting_semaphore<BrowserData::most_waiting> &turns) : turns_(turns) {
        if (!turns_.try_acquire()) throw Failure(Exit::environment, "too many requests for the store at once");
    }
    Turn(const Turn &) = delete;
    Turn &operator=(const Turn &) = delete;
    ~Turn() { turns_.release(); }

private:
    std::counting_semaphore<BrowserData::most_waiting> &turns_;
};

// What a plot needs of an answer, of which there may be hundreds of thousands.
struct Span {
    std::int64_t id, size;
    Time first_seen, last_seen;
};

// Lines for the values of a member over time, which may end in between.
class Plot {
public:
    explicit Plot(const PlotRequest &request) : request_(request), member_(NumericMember::named(request.member)) {}

    void add(const Span &answer, std::string_view frames) {
        const tool::Handles handles(tool::Tracking::as_input);
        std::map<std::size_t, std::uint64_t> values;  // by series
        std::size_t number = 0;
        for (tool::Item &item : tool::items_of(handles, frames, request_.device, false)) {
            if (!item.message) continue;
            const tool::Entry entry{std::move(item), "", ++number, nullptr};
            member_.visit(entry, [&](std::span<const std::string> labels, std::uint64_t value) {
                if (const auto series = series_of(labels)) values[*series] = value;
            });
        }
        add_point(answer.first_seen, values);
        if (answer.last_seen != answer.first_seen) add_point(answer.last_seen, values);
    }

    // Between the last answer and the next one.
    void add_gap(Time time) { add_point(time, {}); }

    ordered_json json() const {
        ordered_json points = ordered_json::array();
        for (const auto &[time, values] : points_) {
            ordered_json point{time};
            for (std::size_t i = 0; i < names_.size(); ++i) {
                const auto found = values.find(i);
                point.push_back(found != values.end() ? ordered_json(found->second) : ordered_json());
            }
            points.push_back(std::move(point));
        }
        return {{"series", names_}, {"more", others_.size()}, {"points", std::move(points)}};
    }

private:
    std::optional<std::size_t> series_of(std::span<const std::string> labels) {
        std::string name;
        for (std::size_t i = 0; i < labels.size(); ++i) {
            if (!labels[i].empty()) name += (name.empty() ? "" : ", ") + member_.labels()[i] + " " + labels[i];
        }
        if (name.find(request_.filter) == std::string::npos) return {};
        if (const auto known = known_.find(name); known != known_.end()) return known->second;
        if (names_.size() == BrowserData::most_series) {
            others_.insert(name);
            return {};
        }
        names_.push_back(name);
        return known_[name] = names_.size() - 1;
    }

    void add_point(Time time, const std::map<std::size_t, std::uint64_t> &values) {
        points_.emplace_back(time, values);
    }

    const PlotRequest &request_;
    const NumericMember member_;
    std::vector<std::string> names_;
    std::map<std::string, std::size_t> known_;
    std::set<std::string> others_;  // that are not shown
    std::vector<std::pair<Time, std::map<std::size_t, std::uint64_t>>> points_;
};

// Leaves every second answer, every third one and so on, and the last one.
std::vector<Span> thinned(const std::vector<Span> &all) {
    constexpr std::int64_t most_bytes = std::int64_t{64} << 20;
    std::int64_t bytes = 0;
    for (const Span &a : all) bytes += a.size;
    const auto step =
        static_cast<std::size_t>(std::max<std::int64_t>((static_cast<std::int64_t>(all.size()) - 1) /
                                                            static_cast<std::int64_t>(BrowserData::most_plotted),
                                                        bytes / most_bytes) +
                                 1);
    std::vector<Span> some;
    for (std::size_t i = (all.size() + step - 1) % step; i < all.size(); i += step) some.push_back(all[i]);
    return some;
}

}  // namespace

BrowserData::BrowserData(std::string store) : where_(std::move(store)) {}

BrowserData::~BrowserData() = default;

std::string BrowserData::with_store(const std::function<std::string(Store &)> &work) {
    const Turn turn(turns_);
    const std::lock_guard<std::mutex> hold(lock_);
    try {
        if (store_ == nullptr) store_ = std::make_unique<Store>(where_);
        return work(*store_);
    } catch (const Failure &failure) {
        // A lost connection is of no use for the next request.
        if (failure.exit() == Exit::environment) store_.reset();
        throw;
    }
}

std::string BrowserData::devices(Time now) {
    return with_store([&](Store &store) {
        ordered_json devices = ordered_json::array();
        for (const Latest &l : store.latest({})) {
            devices.push_back({{"device", l.device},
                               {"bundle", tool::short_name(l.bundle)},
                               {"answer", l.answer ? json_of(*l.answer) : ordered_json()},
                               {"gap", l.gap ? json_of(*l.gap) : ordered_json()}});
        }
        return text_of({{"now", now}, {"store", store.shown()}, {"devices", std::move(devices)}});
    });
}

std::string BrowserData::members() {
    ordered_json all = ordered_json::object();
    for (const reflect::BundleOperations &b : reflect::bundles()) {
        ordered_json &members = all[tool::short_name(b.bundle->name)] = ordered_json::array();
        for (const auto &[name, meaning] : numeric_members(b.bundle->message)) members.push_back({name, meaning});
    }
    return text_of(all);
}

std::string BrowserData::history(const std::string &device, Time since, Time until) {
    return with_store([&](Store &store) {
        const Selection selection{store.device_named(device), {}, since, until};
        std::multimap<Time, ordered_json> newest;
        std::size_t total = 0;
        const auto add = [&](Time time, std::string_view bundle, const char *kind, const ordered_json &json) {
            ordered_json event{{"bundle", tool::short_name(bundle)}, {"kind", kind}};
            event.update(json);
            newest.emplace(time, std::move(event));
            if (++total > most_events) newest.erase(newest.begin());
        };
        store.for_each_answer(selection,
                              [&](const StoredAnswer &a) { add(a.first_seen, a.bundle, "answer", json_of(a)); });
        store.for_each_gap(selection, [&](const Gap &g) { add(g.began, g.bundle, "gap", json_of(g)); });
        ordered_json shown = ordered_json::array();
        for (auto event = newest.rbegin(); event != newest.rend(); ++event) shown.push_back(std::move(event->second));
        return text_of({{"device", selection.device}, {"total", total}, {"events", std::move(shown)}});
    });
}

std::string BrowserData::changes(std::int64_t a, std::int64_t b) {
    return with_store([&](Store &store) {
        const tool::ViewedFile files[] = {viewed(store, a), viewed(store, b)};
        const tool::Handles handles(tool::Tracking::as_input);
        std::vector<std::vector<tool::Frame>> frames;
        for (const tool::ViewedFile &file : files) {
            frames.push_back(tool::split_frames(tool::bytes_of(file.frames), file.name));
        }
        const auto versions = [&](std::size_t side) {
            return [&, side, i = std::size_t{0}]() mutable -> std::optional<tool::Version> {
                if (i == frames[side].size()) return {};
                return tool::version_of(frames[side][i++], files[side].name);
            };
        };
        tool::Comparison comparison(tool::ComparisonRules{});
        tool::ChangeCounts counts;
        std::size_t total = 0;
        tool::compare_sequences(handles, comparison, versions(0), versions(1), [&](tool::Change &change, std::size_t) {
            counts.add(change);
            ++total;
        });
        return text_of({{"total", total}, {"text", counts.text()}});
    });
}

std::string BrowserData::values(const PlotRequest &request) {
    return with_store([&](Store &store) {
        const auto &bundle = tool::bundle_named(request.bundle);
        const Selection selection{store.device_named(request.device), std::string(bundle.bundle->name), request.since,
                                  request.until};
        Plot plot(request);
        std::vector<Span> answers;
        std::size_t total = 0;
        store.for_each_answer(selection, [&](const StoredAnswer &a) {
            ++total;
            if (a.size <= most_viewed) answers.push_back({a.id, a.size, a.first_seen, a.last_seen});
        });
        std::vector<Gap> gaps;
        ordered_json gap_times = ordered_json::array();
        store.for_each_gap(selection, [&](const Gap &g) {
            gaps.push_back(g);
            gap_times.push_back({g.began, g.ended.value_or(request.until)});
        });
        auto gap = gaps.begin();
        const std::vector<Span> plotted = thinned(answers);
        Time before = 0;
        for (const Span &a : plotted) {
            // Of the gaps since the answer before this one, one is enough to end the lines.
            bool is_gap = false;
            for (; gap != gaps.end() && gap->began < a.first_seen; ++gap) is_gap = gap->began >= before;
            if (is_gap && before != 0) plot.add_gap(before + (a.first_seen - before) / 2);
            plot.add(a, store.frames(a.id));
            before = a.last_seen;
        }
        ordered_json json = plot.json();
        json["answers"] = total;
        json["plotted"] = plotted.size();
        json["gaps"] = std::move(gap_times);
        return text_of(json);
    });
}

std::string BrowserData::view(std::int64_t a, std::optional<std::int64_t> b) {
    return with_store([&](Store &store) {
        std::vector<tool::ViewedFile> files{viewed(store, a)};
        if (b) files.push_back(viewed(store, *b));
        return tool::view_page(files);
    });
}

}  // namespace tarn::fleet
