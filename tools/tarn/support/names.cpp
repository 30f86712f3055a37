#include "tools/tarn/support/names.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "schema/catalogue.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

std::size_t distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i);
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

}  // namespace

std::vector<Named> bundle_names() {
    std::vector<Named> names;
    for (const auto *b : schema::bundles) names.push_back({b->name, b->message.payload.meaning});
    return names;
}

std::vector<Named> message_names() {
    std::vector<Named> names;
    for (const auto *m : schema::messages) names.push_back({m->name, m->payload.meaning});
    return names;
}

std::vector<Named> record_names() {
    std::vector<Named> names;
    for (const auto *r : schema::records) names.push_back({r->name, r->meaning});
    return names;
}

std::vector<Named> type_names() {
    std::vector<Named> names = record_names();
    for (const auto *e : schema::enumerations) names.push_back({e->name, e->meaning});
    for (const Named &m : message_names()) names.push_back(m);
    for (const Named &b : bundle_names()) names.push_back(b);
    return names;
}

std::string short_name(std::string_view name) {
    constexpr std::string_view prefix = "lumo_tarn_";
    if (name.starts_with(prefix)) name.remove_prefix(prefix.size());
    for (const std::string_view suffix : {"_rsp", "_msg"}) {
        if (name.ends_with(suffix)) name.remove_suffix(suffix.size());
    }
    std::string text(name);
    std::replace(text.begin(), text.end(), '_', '-');
    return text;
}

bool is_named(std::string_view given, std::string_view name) { return given == name || given == short_name(name); }

Failure unknown_name(const std::string &kind, std::string_view name, const std::vector<Named> &known) {
    std::vector<std::string> candidates;
    for (const Named &n : known) candidates.push_back(short_name(n.name));
    for (const Named &n : known) candidates.emplace_back(n.name);
    return {Exit::input, "unknown " + kind + " " + in_quotes(name) + suggestion(name, candidates)};
}

const reflect::BundleOperations *find_bundle_named(std::string_view name) {
    for (const reflect::BundleOperations &b : reflect::bundles()) {
        if (is_named(name, b.bundle->name)) return &b;
    }
    return nullptr;
}

const reflect::MessageOperations *find_message_named(std::string_view name) {
    for (const reflect::MessageOperations &o : reflect::messages()) {
        if (is_named(name, o.name)) return &o;
    }
    return nullptr;
}

const reflect::BundleOperations &bundle_named(std::string_view name) {
    const auto *bundle = find_bundle_named(name);
    if (bundle == nullptr) throw unknown_name("bundle", name, bundle_names());
    return *bundle;
}

const schema::Record *record_named(std::string_view name) {
    for (const auto *r : schema::records) {
        if (is_named(name, r->name)) return r;
    }
    for (const auto *b : schema::bundles) {
        if (is_named(name, b->name)) return &b->message.payload;
    }
    for (const auto *m : schema::messages) {
        if (is_named(name, m->name)) return &m->payload;
    }
    return nullptr;
}

Target target_of(std::string_view path) {
    std::size_t dot = path.find('.');
    Target target{record_named(path.substr(0, dot))};
    while (target && dot != std::string_view::npos) {
        path.remove_prefix(dot + 1);
        dot = path.find('.');
        const schema::Record *in = target.nested();
        target = {};
        if (in == nullptr) break;
        for (const schema::Member &m : in->members) {
            if (m.name == path.substr(0, dot)) target = {in, &m};
        }
    }
    return target;
}

std::string suggestion(std::string_view word, const std::vector<std::string> &candidates) {
    const std::string *nearest = nullptr;
    std::size_t least = word.size() / 3 + 2;
    for (const std::string &candidate : candidates) {
        // A word from outside may have megabytes.
        if (word.size() >= candidate.size() + least) continue;
        const std::size_t steps = distance(word, candidate);
        if (steps < least) {
            least = steps;
            nearest = &candidate;
        }
    }
    return nearest != nullptr ? "; did you mean " + *nearest + "?" : std::string();
}

std::string suggestion(std::string_view word, const std::vector<Named> &full_names) {
    std::vector<std::string> candidates;
    for (const Named &n : full_names) candidates.emplace_back(n.name);
    return suggestion(word, candidates);
}

}  // namespace tarn::tool
