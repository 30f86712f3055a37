#include "tools/tarn/formats/comparison.h"

#include <fnmatch.h>

#include <algorithm>
#include <cstring>
#include <unordered_map>

#include "tools/tarn/formats/alignment.h"
#include "tools/tarn/formats/json.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/hex.h"
#include "tools/tarn/support/instance.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"
#include "tools/tarn/support/terminal.h"

namespace tarn::tool {

// Not unnamed, since a member of Comparison is declared in the header.
namespace comparison {

using nlohmann::ordered_json;
using reflect::MemberOperations;
using reflect::RecordOperations;
using schema::Category;

constexpr std::size_t absent = SIZE_MAX;

bool is_value(const schema::Member &m) { return m.role == schema::Role::value; }

// Also if it matches only the end of the path.
bool matches(const std::string &pattern, const std::string &path) {
    for (std::size_t begin = 0;; ++begin) {
        if (fnmatch(pattern.c_str(), path.c_str() + begin, 0) == 0) return true;
        begin = path.find('.', begin);
        if (begin == path.npos) return false;
    }
}

bool matches_any(const std::vector<std::string> &patterns, const std::string &path) {
    return std::any_of(patterns.begin(), patterns.end(), [&](const auto &pattern) { return matches(pattern, path); });
}

void add_paths(const schema::Record &record, const std::string &path, std::vector<std::string> &paths) {
    for (const schema::Member &m : record.members) {
        if (!is_value(m)) continue;
        const std::string below = path + "." + std::string(m.name);
        paths.push_back(below);
        if (m.record != nullptr) add_paths(*m.record, below, paths);
    }
}

// Of all members of all messages.
const std::vector<std::string> &all_paths() {
    static const std::vector<std::string> all = [] {
        std::vector<std::string> paths;
        for (const auto *message : schema::messages) add_paths(message->payload, "payload", paths);
        return paths;
    }();
    return all;
}

std::string last_name(std::string_view path) { return std::string(path.substr(path.rfind('.') + 1)); }

void require_member(const std::string &pattern, const std::string &what) {
    const std::vector<std::string> &paths = all_paths();
    if (std::any_of(paths.begin(), paths.end(), [&](const auto &path) { return matches(pattern, path); })) return;
    std::vector<std::string> names;
    for (const std::string &path : paths) names.push_back(last_name(path));
    throw Failure(Exit::input, what + ": no member matches " + in_quotes(pattern) + suggestion(pattern, names));
}

std::vector<std::string> split(std::string_view text, char at) {
    std::vector<std::string> parts;
    for (;;) {
        const std::size_t end = std::min(text.find(at), text.size());
        parts.emplace_back(text.substr(0, end));
        if (end == text.size()) return parts;
        text.remove_prefix(end + 1);
    }
}

// The members that lead to a value inside a record, as indexes; empty if there is no such value.
using Way = std::vector<std::size_t>;

Way way_to(const schema::Record &from, std::string_view path) {
    Way way;
    const schema::Record *record = &from;
    for (const std::string &name : split(path, '.')) {
        if (record == nullptr) return {};
        const auto member = std::find_if(record->members.begin(), record->members.end(),
                                         [&](const schema::Member &m) { return m.name == name && is_value(m); });
        if (member == record->members.end() || member->kind == schema::Kind::array) return {};
        way.push_back(static_cast<std::size_t>(member - record->members.begin()));
        record = member->record;
    }
    return record == nullptr ? way : Way{};
}

struct ElementKeyPart {
    std::string name;
    Way way;
};

// Empty if the record lacks one of the members.
std::vector<ElementKeyPart> key_of(const schema::Record &record, const auto &names) {
    std::vector<ElementKeyPart> key;
    for (const auto &name : names) key.push_back({std::string(name), way_to(record, name)});
    const bool lacks_one =
        std::any_of(key.begin(), key.end(), [](const ElementKeyPart &part) { return part.way.empty(); });
    return lacks_one ? std::vector<ElementKeyPart>{} : key;
}

std::vector<ElementKeyPart> key_of(const schema::Record &record, const ComparisonRules &rules) {
    for (const std::string &by : rules.by) {
        if (auto key = key_of(record, split(by, ',')); !key.empty()) return key;
    }
    return key_of(record, record.key.members());
}

// As people read it.
std::string text_of(const schema::Member &m, const ordered_json &value) {
    if (m.notation == schema::Notation::hexadecimal && (value.is_number() || value.is_string())) {
        const std::uint64_t number =
            value.is_string() ? std::stoull(value.get<std::string>()) : value.get<std::uint64_t>();
        return hex_number(number);
    }
    if (value.is_string() && m.kind != schema::Kind::string) return printable(value.get<std::string>());
    return json_text(value);
}

struct Side {
    const Handle *handle;
    void *object;

    Side part(void *inner) const { return {handle, inner}; }
    Side member(const MemberOperations &m) const {
        std::uint32_t err = 0;
        return part(m.get(handle->get(), context_id, object, &err));
    }
    std::uint64_t number(const MemberOperations &m) const {
        std::uint32_t err = 0;
        return m.get_value(handle->get(), context_id, object, &err);
    }
    Side element(const MemberOperations &m, std::size_t index) const {
        std::uint32_t err = 0;
        return part(m.element_get(handle->get(), context_id, object, static_cast<std::uint32_t>(index), &err));
    }
    std::uint8_t state(const MemberOperations &m) const {
        std::uint32_t err = 0;
        return handle->tracked() ? m.state_flag_get(handle->get(), context_id, object, &err) : std::uint8_t{0};
    }
    std::uint8_t element_state(const MemberOperations &m, std::size_t index) const {
        std::uint32_t err = 0;
        const auto at = static_cast<std::uint32_t>(index);
        return handle->tracked() ? m.element_state_flag_get(handle->get(), context_id, object, at, &err)
                                 : std::uint8_t{0};
    }
    // What the header of a record says that is not in its members.
    ordered_json ra_data() const {
        const auto ra = ra_data_of(*handle, object);
        return ra ? ordered_json{{"value", ra->value}, {"byte", ra->byte}} : ordered_json();
    }
    ordered_json variant() const { return variant_of(object) < 0 ? ordered_json(variant_of(object)) : ordered_json(); }
};

struct MemberValue {
    const schema::Member *member;
    ordered_json json;
};

MemberValue value_at(const RecordOperations &operations, Side side, const Way &way) {
    const RecordOperations *record = &operations;
    for (std::size_t i = 0; i + 1 < way.size(); ++i) {
        const MemberOperations &m = record->members[way[i]];
        side = side.member(m);
        record = &reflect::operations_of(*m.member->record);
    }
    return {record->members[way.back()].member, json_of_member(*side.handle, *record, way.back(), side.object)};
}

// What to compare in a record at one place in a message.
struct Plan {
    struct Step {
        std::size_t index;
        const MemberOperations *member;
        std::unique_ptr<Plan> nested;  // of a record or of an array's elements
    };

    // `all`: a record that contains it was selected with all its members.
    Plan(const RecordOperations &record_, const std::string &path, const ComparisonRules &rules, bool all)
        : record(record_), key(key_of(*record_.record, rules)) {
        for (std::size_t i = 0; i < record.members.size(); ++i) {
            const schema::Member &m = *record.members[i].member;
            const std::string below = path + "." + std::string(m.name);
            if (!is_value(m) || matches_any(rules.ignored, below)) continue;
            const bool selected = all || matches_any(rules.compared, below);
            Step step{i, &record.members[i], nullptr};
            if (m.record != nullptr) {
                step.nested = std::make_unique<Plan>(reflect::operations_of(*m.record), below, rules, selected);
                if (m.kind != schema::Kind::array && step.nested->steps.empty()) continue;
            } else if (!selected) {
                continue;
            }
            steps.push_back(std::move(step));
        }
        compares_header = all;
    }

    const RecordOperations &record;
    std::vector<Step> steps;
    std::vector<ElementKeyPart> key;  // of an element; empty if its content identifies it
    bool compares_header;
};

// One comparison of two messages.
class Walk {
public:
    Walk(bool with_state, const std::function<void(Change &)> &report) : with_state_(with_state), report_(report) {}

    void records(const Plan &plan, const Side &a, const Side &b) {
        if (plan.compares_header) {
            values("@ra", a.ra_data(), b.ra_data());
            values("@variant", a.variant(), b.variant());
        }
        // A record with a negative variant has no body.
        if (variant_of(a.object) < 0 || variant_of(b.object) < 0) return;
        for (const Plan::Step &step : plan.steps) {
            const MemberOperations &m = *step.member;
            switch (schema::category(m.member->kind)) {
                case Category::record:
                    levels_.push_back({&m, nullptr, {}, 0, 0});
                    records(*step.nested, a.member(m), b.member(m));
                    levels_.pop_back();
                    break;
                case Category::array:
                    lists(plan, step, a, b);
                    break;
                case Category::integer:
                    if (a.number(m) != b.number(m)) leaves(plan, step, a, b);
                    break;
                case Category::boolean:
                case Category::enumeration:
                case Category::address:
                    if (!same_bytes(a.member(m), b.member(m), m.member->kind)) leaves(plan, step, a, b);
                    break;
                case Category::string:
                    leaves(plan, step, a, b);
                    break;
            }
            if (with_state_) states(m, a.state(m), b.state(m));
        }
    }

    void values(const std::string &name, const ordered_json &a, const ordered_json &b) {
        if (a == b) return;
        Change change = change_here(Change::Kind::changed, name);
        change.a = a;
        change.b = b;
        change.text_a = json_text(a);
        change.text_b = json_text(b);
        report_(change);
    }

private:
    // A member on the way from the payload to what is compared.
    struct Level {
        const MemberOperations *member;
        const Plan *element;  // of an array: which element
        Side side;
        std::size_t index;       // in its list
        std::size_t occurrence;  // among those with the same key
    };

    // What identifies each element of two lists, as numbers that are equal if it is equal.
    struct Identities {
        std::vector<std::uint32_t> a, b;
        std::size_t different = 0;
    };

    // A quick test that is true only if the values are equal.
    static bool same_bytes(const Side &a, const Side &b, schema::Kind kind) {
        return !a.handle->tracked() && !b.handle->tracked() &&
               std::memcmp(a.object, b.object, schema::facts(kind).storage) == 0 && !ra_data_of(*a.handle, a.object);
    }

    // The JSON of an address contains its state bytes.
    ordered_json without_state(ordered_json value) const {
        if (with_state_ || !value.is_object() || value.erase("@members") == 0) return value;
        return value.size() == 1 && value.contains("@address") ? value["@address"] : value;
    }

    ordered_json leaf(const Plan &plan, const Plan::Step &step, const Side &side) const {
        return without_state(json_of_member(*side.handle, plan.record, step.index, side.object));
    }

    void leaves(const Plan &plan, const Plan::Step &step, const Side &a, const Side &b) {
        ordered_json left = leaf(plan, step, a), right = leaf(plan, step, b);
        if (left == right) return;
        const schema::Member &m = *step.member->member;
        Change change = change_here(Change::Kind::changed, std::string(m.name));
        change.text_a = text_of(m, left);
        change.text_b = text_of(m, right);
        change.a = std::move(left);
        change.b = std::move(right);
        report_(change);
    }

    void states(const MemberOperations &m, std::uint8_t a, std::uint8_t b) {
        if (a != b) values("@state." + std::string(m.member->name), a, b);
    }

    void lists(const Plan &plan, const Plan::Step &step, const Side &a, const Side &b) {
        const MemberOperations &counter = plan.record.members[step.index - 1];
        const auto count_a = static_cast<std::size_t>(a.number(counter));
        const auto count_b = static_cast<std::size_t>(b.number(counter));
        const Plan &element = *step.nested;
        const Identities identities = identify(step, a, count_a, b, count_b);
        const std::vector<std::size_t> occurrence_a = occurrences(identities.a, identities.different);
        const std::vector<std::size_t> occurrence_b = occurrences(identities.b, identities.different);
        const auto only = [&](Change::Kind kind, const Side &side, std::size_t index, std::size_t occurrence) {
            const Side object = side.element(*step.member, index);
            levels_.push_back({step.member, &element, object, index, occurrence});
            Change change = change_here(kind, "");
            change.whole = [&] { return tool::json_of(*object.handle, element.record, object.object); };
            report_(change);
            levels_.pop_back();
        };
        std::size_t last = 0;
        bool reordered = false;
        for (const auto &[i, j] : element.key.empty() ? by_content(identities) : by_key(identities)) {
            if (j == absent) {
                only(Change::Kind::removed, a, i, occurrence_a[i]);
            } else if (i == absent) {
                only(Change::Kind::added, b, j, occurrence_b[j]);
            } else {
                reordered = reordered || j < last;
                last = j;
                const Side left = a.element(*step.member, i);
                levels_.push_back({step.member, &element, left, i, occurrence_a[i]});
                if (with_state_) {
                    const std::uint8_t state_a = a.element_state(*step.member, i);
                    const std::uint8_t state_b = b.element_state(*step.member, j);
                    if (state_a != state_b) values("@state", state_a, state_b);
                }
                records(element, left, b.element(*step.member, j));
                levels_.pop_back();
            }
        }
        if (!reordered) return;
        Change change = change_here(Change::Kind::reordered, std::string(step.member->member->name));
        report_(change);
    }

    Identities identify(const Plan::Step &step, const Side &a, std::size_t count_a, const Side &b,
                        std::size_t count_b) const {
        std::unordered_map<std::string, std::uint32_t> known;
        std::string text;
        const auto numbers = [&](const Side &side, std::size_t count) {
            std::vector<std::uint32_t> all;
            all.reserve(count);
            for (std::size_t i = 0; i < count; ++i) {
                text.clear();
                add_identity(*step.nested, side.element(*step.member, i), text);
                all.push_back(known.try_emplace(text, static_cast<std::uint32_t>(known.size())).first->second);
            }
            return all;
        };
        Identities identities{numbers(a, count_a), numbers(b, count_b)};
        identities.different = known.size();
        return identities;
    }

    void add_identity(const Plan &plan, const Side &element, std::string &text) const {
        if (plan.key.empty()) return add_content(plan, element, text);
        for (const ElementKeyPart &part : plan.key) {
            const MemberOperations &m = plan.record.members[part.way.back()];
            const bool is_number = part.way.size() == 1 && schema::is_integer(m.member->kind);
            text +=
                is_number ? std::to_string(element.number(m)) : value_at(plan.record, element, part.way).json.dump();
            text += ',';
        }
    }

    // All that is compared.
    void add_content(const Plan &plan, const Side &side, std::string &text) const {
        text += '{';
        for (const Plan::Step &step : plan.steps) {
            const MemberOperations &m = *step.member;
            if (m.member->kind == schema::Kind::array) {
                const auto count = static_cast<std::size_t>(side.number(plan.record.members[step.index - 1]));
                for (std::size_t i = 0; i < count; ++i) add_content(*step.nested, side.element(m, i), text);
            } else if (step.nested != nullptr) {
                add_content(*step.nested, side.member(m), text);
            } else if (schema::is_integer(m.member->kind)) {
                text += std::to_string(side.number(m));
            } else {
                text += leaf(plan, step, side).dump(-1, ' ', false, ordered_json::error_handler_t::replace);
            }
            text += ',';
        }
    }

    static std::vector<std::size_t> occurrences(const std::vector<std::uint32_t> &all, std::size_t different) {
        std::vector<std::size_t> counts(different), result;
        result.reserve(all.size());
        for (const std::uint32_t identity : all) result.push_back(++counts[identity]);
        return result;
    }

    // Positions in both lists; `absent` if an element is in one of them only.
    using Pairs = std::vector<std::pair<std::size_t, std::size_t>>;

    // The first element with a key belongs to the first one with this key in the other list, and so on.
    static Pairs by_key(const Identities &identities) {
        Pairs pairs;
        std::vector<std::size_t> first(identities.different, absent), next(identities.b.size());
        std::vector<bool> is_taken(identities.b.size());
        pairs.reserve(identities.a.size());
        for (std::size_t j = identities.b.size(); j-- != 0;) next[j] = std::exchange(first[identities.b[j]], j);
        for (std::size_t i = 0; i < identities.a.size(); ++i) {
            const std::size_t j = first[identities.a[i]];
            pairs.emplace_back(i, j);
            if (j == absent) continue;
            first[identities.a[i]] = next[j];
            is_taken[j] = true;
        }
        for (std::size_t j = 0; j < identities.b.size(); ++j) {
            if (!is_taken[j]) pairs.emplace_back(absent, j);
        }
        return pairs;
    }

    // What is between equal elements has been changed, one after the other.
    static Pairs by_content(const Identities &identities) {
        Pairs pairs;
        std::size_t i = 0, j = 0;
        const auto up_to = [&](std::size_t end_i, std::size_t end_j) {
            while (i < end_i && j < end_j) pairs.emplace_back(i++, j++);
            while (i < end_i) pairs.emplace_back(i++, absent);
            while (j < end_j) pairs.emplace_back(absent, j++);
        };
        for (const auto &[same_i, same_j] : align(identities.a, identities.b)) {
            up_to(same_i, same_j);
            pairs.emplace_back(i++, j++);
        }
        up_to(identities.a.size(), identities.b.size());
        return pairs;
    }

    // "id=1003" and "1003", or the index.
    struct ElementName {
        std::string with_members, text;
    };
    static ElementName name_of(const Level &level) {
        const std::vector<ElementKeyPart> &key = level.element->key;
        if (key.empty()) return {std::to_string(level.index), "[" + std::to_string(level.index) + "]"};
        ElementName name;
        for (const ElementKeyPart &part : key) {
            const MemberValue value = value_at(level.element->record, level.side, part.way);
            const std::string text = text_of(*value.member, value.json), comma = &part == &key.front() ? "" : ",";
            name.with_members += comma + part.name + "=" + text;
            name.text += comma + text;
        }
        if (level.occurrence == 1) return name;
        const std::string occurrence = "#" + std::to_string(level.occurrence);
        return {name.with_members + occurrence, name.text + " " + occurrence};
    }

    Change change_here(Change::Kind kind, const std::string &member) const {
        Change change;
        change.kind = kind;
        change.path = "payload";
        std::string records;
        for (const Level &level : levels_) {
            const std::string member_name(level.member->member->name);
            change.path += "." + member_name;
            if (level.element == nullptr) {
                records += member_name + ".";
                continue;
            }
            const ElementName name = name_of(level);
            change.path += "[" + name.with_members + "]";
            change.element = level.element->record.record->key.element;
            if (!records.empty()) records.pop_back();
            const auto joined = [](const std::string &a, const std::string &b) {
                return a + (a.empty() || b.empty() ? "" : ", ") + b;
            };
            change.list = joined(change.place, records);
            change.place = joined(change.list, std::string(change.element) + " " + name.text);
            records.clear();
        }
        change.member = records + member;
        if (!member.empty()) change.path += "." + member;
        return change;
    }

    bool with_state_;
    const std::function<void(Change &)> &report_;
    std::vector<Level> levels_;
};

std::size_t elements_in(const RecordOperations &record, const Side &side) {
    if (variant_of(side.object) < 0) return 0;
    std::size_t sum = 0;
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const MemberOperations &m = record.members[i];
        if (m.member->record == nullptr) continue;
        const RecordOperations &nested = reflect::operations_of(*m.member->record);
        if (m.member->kind != schema::Kind::array) {
            sum += elements_in(nested, side.member(m));
            continue;
        }
        const auto count = static_cast<std::size_t>(side.number(record.members[i - 1]));
        sum += count;
        for (std::size_t j = 0; j < count; ++j) sum += elements_in(nested, side.element(m, j));
    }
    return sum;
}

}  // namespace comparison

void ComparisonRules::add_ignored(std::string_view text, const std::string &origin) {
    std::size_t number = 0;
    for (std::string line : comparison::split(text, '\n')) {
        ++number;
        constexpr const char *blanks = " \t\r";
        line.erase(line.find_last_not_of(blanks) + 1);
        line.erase(0, line.find_first_not_of(blanks));
        if (line.empty() || line.front() == '#') continue;
        comparison::require_member(line, origin + ":" + std::to_string(number));
        ignored.push_back(line);
    }
}

void ComparisonRules::check() const {
    for (const std::string &pattern : ignored) comparison::require_member(pattern, "--ignore");
    for (const std::string &pattern : compared) comparison::require_member(pattern, "--columns");
    for (const std::string &names : by) {
        const auto has_them = [&](const schema::Record *record) {
            return record->key.is_stated && !comparison::key_of(*record, comparison::split(names, ',')).empty();
        };
        if (std::any_of(schema::records.begin(), schema::records.end(), has_them)) continue;
        for (const std::string &name : comparison::split(names, ',')) comparison::require_member(name, "--by");
        throw Failure(Exit::input, "--by: the elements of no list have the single value" +
                                       std::string(comparison::split(names, ',').size() == 1 ? " " : "s ") +
                                       in_quotes(names));
    }
}

Comparison::Comparison(ComparisonRules rules) : rules_(std::move(rules)) { rules_.check(); }
Comparison::~Comparison() = default;

void Comparison::compare(const Message &a, const Message &b, const std::function<void(Change &)> &report) {
    const reflect::RecordOperations &record = a.record();
    auto plan = std::find_if(plans_.begin(), plans_.end(), [&](const auto &p) { return p.first == record.record; });
    if (plan == plans_.end()) {
        plan = plans_.emplace(plan, record.record,
                              std::make_unique<comparison::Plan>(record, "payload", rules_, rules_.compared.empty()));
    }
    comparison::Walk walk(rules_.with_state, report);
    if (rules_.with_state) walk.values("tracked", a.handle().tracked(), b.handle().tracked());
    walk.records(*plan->second, {&a.handle(), a.payload()}, {&b.handle(), b.payload()});
}

std::string_view word(Change::Kind kind) {
    constexpr std::string_view words[] = {"added", "removed", "changed", "reordered"};
    return words[static_cast<std::size_t>(kind)];
}

std::string line_of(const Change &change) {
    const std::string place = change.place + (change.place.empty() || change.member.empty() ? "" : ": ");
    switch (change.kind) {
        case Change::Kind::added:
            return place + " " + colored("added", Color::green);
        case Change::Kind::removed:
            return place + " " + colored("removed", Color::red);
        case Change::Kind::reordered:
            return place + change.member + " is in another order";
        case Change::Kind::changed:
            break;
    }
    return place + change.member + " " + colored(change.text_a, Color::red) + " -> " +
           colored(change.text_b, Color::green);
}

nlohmann::ordered_json json_of(const Change &change) {
    nlohmann::ordered_json json{{"change", word(change.kind)}, {"path", change.path}};
    if (change.kind == Change::Kind::changed) {
        json["a"] = change.a;
        json["b"] = change.b;
    } else if (change.whole) {
        json[change.kind == Change::Kind::removed ? "a" : "b"] = change.whole();
    }
    return json;
}

ChangeCounts::Row &ChangeCounts::row(std::string_view name) {
    for (Row &r : rows_) {
        if (r.name == name) return r;
    }
    return rows_.emplace_back(name);
}

void ChangeCounts::add(const Change &change) {
    Row &r = row(change.element.empty() ? "message" : change.element);
    switch (change.kind) {
        case Change::Kind::added:
            ++r.added;
            return;
        case Change::Kind::removed:
            ++r.removed;
            return;
        case Change::Kind::reordered:
            ++r.reordered;
            return;
        case Change::Kind::changed:
            break;
    }
    // The changes of one element are reported one after the other.
    if (r.changed == 0 || r.last_changed != change.place) ++r.changed;
    r.last_changed = change.place;
    const auto is_it = [&](const auto &m) { return m.first == change.member; };
    const auto member = std::find_if(r.members.begin(), r.members.end(), is_it);
    if (member == r.members.end()) {
        r.members.emplace_back(change.member, 1);
    } else {
        ++member->second;
    }
}

std::string ChangeCounts::text() const {
    std::string text;
    for (const Row &r : rows_) {
        std::string counts;
        const auto count = [&](std::size_t number, const char *what) {
            if (number != 0) counts += (counts.empty() ? "" : ", ") + std::to_string(number) + " " + what;
        };
        count(r.added, "added");
        count(r.removed, "removed");
        count(r.reordered, "reordered");
        count(r.changed, "changed");
        std::string members;
        for (const auto &[name, number] : r.members) {
            members += (members.empty() ? "" : ", ") + name + " " + std::to_string(number);
        }
        text += r.name + ": " + counts + (members.empty() ? "" : " (" + members + ")") + "\n";
    }
    return text;
}

nlohmann::ordered_json ChangeCounts::json() const {
    nlohmann::ordered_json json = nlohmann::ordered_json::object();
    for (const Row &r : rows_) {
        nlohmann::ordered_json &one = json[r.name];
        one = {{"added", r.added}, {"removed", r.removed}, {"reordered", r.reordered}, {"changed", r.changed}};
        one["members"] = nlohmann::ordered_json::object();
        for (const auto &[name, number] : r.members) one["members"][name] = number;
    }
    return json;
}

std::size_t count_elements(const Message &message) {
    return comparison::elements_in(message.record(), {&message.handle(), message.payload()});
}

}  // namespace tarn::tool
