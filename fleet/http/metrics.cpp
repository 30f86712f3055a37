#include "fleet/http/metrics.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <span>

#include "schema/digest.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"

namespace tarn::fleet {

namespace {

constexpr Reply all_replies[] = {Reply::answered, Reply::refused, Reply::silent, Reply::broken};

// As the value of a label, and as the text of a description.
std::string escaped(std::string_view text) {
    std::string out;
    for (const char c : text) {
        if (c == '\\' || c == '"') out += '\\';
        out += c == '\n' ? "\\n" : std::string(1, c);
    }
    return out;
}

std::string label(std::string_view name, std::string_view value) {
    std::string text(name);
    std::replace(text.begin(), text.end(), '.', '_');
    // Readers refuse the whole text if a value is not UTF-8.
    return text + "=\"" + escaped(tool::printable(value, SIZE_MAX)) + "\"";
}

std::string seconds_text(Time time) {
    char text[32];
    std::snprintf(text, sizeof text, "%lld.%03lld", static_cast<long long>(time / 1000),
                  static_cast<long long>(time % 1000));
    return text;
}

class Exposition {
public:
    // The samples that follow belong to it. A name that ends with _total or _info is that of its samples.
    void family(const std::string &name, std::string_view type, std::string_view meaning) {
        sample_name_ = name;
        std::string family = name;
        for (const std::string_view suffix : {"_total", "_info"}) {
            if (name.ends_with(suffix)) family.resize(name.size() - suffix.size());
        }
        text_ += "# TYPE " + family + " " + std::string(type) + "\n";
        for (const std::string_view unit : {"seconds", "bytes"}) {
            if (name.ends_with("_" + std::string(unit))) text_ += "# UNIT " + family + " " + std::string(unit) + "\n";
        }
        text_ += "# HELP " + family + " " + escaped(meaning) + "\n";
    }

    void sample(std::string_view labels, std::string_view value, Time time = 0) {
        text_ += sample_name_;
        if (!labels.empty()) text_.append("{").append(labels).append("}");
        text_.append(" ").append(value);
        if (time != 0) text_ += " " + seconds_text(time);
        text_ += '\n';
    }
    void sample(std::string_view labels, std::uint64_t value) { sample(labels, std::to_string(value)); }

    std::string finish() { return std::move(text_ += "# EOF\n"); }

private:
    std::string sample_name_, text_;
};

std::string metric_name(const NumericMember &member) {
    std::string name = "tarn_" + member.name();
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

std::string labels_of(std::string_view bundle, Reply reply) {
    return label("bundle", tool::short_name(bundle)) + "," + label("outcome", word(reply));
}

}  // namespace

Metrics::Metrics(const MetricsOptions &options, const std::set<const reflect::BundleOperations *> &bundles)
    : options_(options) {
    std::set<std::string> known;
    for (const std::string &name : options.members) {
        NumericMember member = NumericMember::named(name);
        if (std::none_of(bundles.begin(), bundles.end(), [&](Bundle b) { return member.is_in(b->bundle->message); })) {
            throw tool::Failure(tool::Exit::input, "the requested bundles do not contain " + member.name());
        }
        if (known.insert(member.name()).second) members_.push_back(std::move(member));
    }
    for (const Bundle bundle : bundles) requests_[bundle] = {};
}

std::vector<std::string> Metrics::read_values(Answer &answer, std::vector<Values> &values) const {
    values.assign(members_.size(), {});
    std::set<std::string> excessive;
    std::size_t number = 0;
    for (tool::Item &item : answer.messages) {
        if (!item.message) continue;
        const tool::Entry entry{std::move(item), "", ++number, answer.bundle};
        for (std::size_t i = 0; i < members_.size(); ++i) {
            const NumericMember &member = members_[i];
            member.visit(entry, [&](std::span<const std::string> texts, std::uint64_t value) {
                std::string labels;
                for (std::size_t k = 0; k < texts.size(); ++k) {
                    if (!texts[k].empty()) labels += "," + label(member.labels()[k], texts[k]);
                }
                if (values[i].size() < most_values || values[i].contains(labels)) {
                    values[i][labels] = value;
                } else {
                    excessive.insert(member.name());
                }
            });
        }
    }
    return {excessive.begin(), excessive.end()};
}

std::vector<std::string> Metrics::add(Answer &answer) {
    const bool has_answered = answer.reply == Reply::answered;
    std::vector<Values> values;
    std::vector<std::string> excessive;
    if (has_answered) excessive = read_values(answer, values);
    const std::lock_guard<std::mutex> hold(lock_);
    ++requests_[answer.bundle][static_cast<std::size_t>(answer.reply)];
    Asked &asked = asked_[{answer.device.text(), answer.bundle}];
    if (asked.labels.empty()) {
        asked.labels = label("site", answer.device.site) + "," + label("device", answer.device.device) + "," +
                       label("bundle", tool::short_name(answer.bundle->bundle->name));
    }
    asked.reply = answer.reply;
    if (!has_answered) return {};
    asked.answered = std::chrono::duration_cast<std::chrono::milliseconds>(answer.ended.time_since_epoch()).count();
    asked.size = answer.frames.size();
    asked.values = std::move(values);
    if (!excessive.empty() && std::exchange(asked.is_reported, true)) excessive.clear();
    return excessive;
}

void Metrics::keep_only(const std::set<std::string> &devices) {
    const std::lock_guard<std::mutex> hold(lock_);
    std::erase_if(asked_, [&](const auto &entry) { return !devices.contains(entry.first.first); });
}

std::string Metrics::text(Time now, const Recorder::Counts &kept) const {
    Exposition out;
    out.family("tarn_collector_info", "info", "the program and the schema of the collector");
    out.sample(label("version", TARN_VERSION) + "," + label("schema", schema::schema_digest()), 1);
    out.family("tarn_kept_answers_total", "counter", "answers that the store has committed");
    out.sample("", kept.answers);
    out.family("tarn_kept_silences_total", "counter", "requests without an answer that the store has committed");
    out.sample("", kept.silences);
    out.family("tarn_commits_total", "counter", "transactions that the store has committed");
    out.sample("", kept.commits);

    const std::lock_guard<std::mutex> hold(lock_);
    out.family("tarn_requests_total", "counter", "requests that have ended, by their outcome");
    for (const auto &[bundle, counts] : requests_) {
        for (const Reply reply : all_replies) {
            out.sample(labels_of(bundle->bundle->name, reply), counts[static_cast<std::size_t>(reply)]);
        }
    }
    out.family("tarn_devices", "gauge", "devices of this collector, by the outcome of the last request");
    for (const auto &[bundle, counts] : requests_) {
        for (const Reply reply : all_replies) {
            const auto is_it = [&, b = bundle](const auto &entry) {
                return entry.first.second == b && entry.second.reply == reply;
            };
            out.sample(labels_of(bundle->bundle->name, reply),
                       static_cast<std::uint64_t>(std::count_if(asked_.begin(), asked_.end(), is_it)));
        }
    }
    out.family("tarn_device_up", "gauge", "1 if the device has answered the last request, else 0");
    for (const auto &[which, asked] : asked_) out.sample(asked.labels, asked.reply == Reply::answered ? 1 : 0);
    out.family("tarn_answer_age_seconds", "gauge", "time since the last answer");
    for (const auto &[which, asked] : asked_) {
        if (asked.answered != 0) out.sample(asked.labels, seconds_text(std::max<Time>(now - asked.answered, 0)));
    }
    out.family("tarn_answer_size_bytes", "gauge", "size of the frames of the last answer");
    for (const auto &[which, asked] : asked_) {
        if (asked.answered != 0) out.sample(asked.labels, asked.size);
    }
    for (std::size_t i = 0; i < members_.size(); ++i) {
        // Whether a number counts events or measures something, the schema does not say.
        out.family(metric_name(members_[i]), "unknown", members_[i].meaning());
        for (const auto &[which, asked] : asked_) {
            if (asked.answered == 0 || now - asked.answered > options_.expire) continue;
            const Time time = options_.has_times ? asked.answered : 0;
            for (const auto &[labels, value] : asked.values[i]) {
                out.sample(asked.labels + labels, std::to_string(value), time);
            }
        }
    }
    return out.finish();
}

}  // namespace tarn::fleet
