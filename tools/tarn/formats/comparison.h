// Compares two versions of a message member by member. The elements of a list are aligned by the members that identify
// them, or by their content if none do.
#pragma once

#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "tools/tarn/formats/item.h"

namespace tarn::tool {

// What to compare. Names are those of members, "flags", or paths that end with them, "appl.id"; in those to ignore and
// those to compare, * and ? stand for any characters, and [...] for one of several.
struct ComparisonRules {
    std::vector<std::string> ignored;
    std::vector<std::string> compared;  // empty: all. Elements that only one side has are always reported.
    std::vector<std::string> by;        // members that identify elements, instead of the keys in the schema
    bool with_state = true;

    // Reads names to ignore, one a line; empty lines and those that begin with # are skipped. Throws a Failure with the
    // line for a name that no member has.
    void add_ignored(std::string_view text, const std::string &origin);
    // Throws a Failure for a name that no member has, with the option that gave it.
    void check() const;
};

struct Change {
    enum class Kind : std::uint8_t { added, removed, changed, reordered };

    Kind kind;
    std::string list;             // "processor 0, agg_tc_list", without the element; empty for the payload itself
    std::string place;            // "processor 0, agg_tc_list, class 1003"; empty for the payload itself
    std::string member;           // "appl.id"; empty for an element that one side does not have
    std::string path;             // "payload.lumo_data[lumo_num=0].agg_tc_list.tc_list[id=1003].appl.id"
    std::string_view element;     // "class", of the innermost element; empty for the payload
    nlohmann::ordered_json a, b;  // of a changed member
    std::string text_a, text_b;   // the same, as people read them
    std::function<nlohmann::ordered_json()> whole;  // an added or removed element; valid while the change is reported
};
std::string_view word(Change::Kind kind);

// "class 1003: flags 5 -> 7"
std::string line_of(const Change &change);
nlohmann::ordered_json json_of(const Change &change);

namespace comparison {
struct Plan;
}

class Comparison {
public:
    explicit Comparison(ComparisonRules rules);
    ~Comparison();

    // Reports each difference between two messages of the same type.
    void compare(const Message &a, const Message &b, const std::function<void(Change &)> &report);

private:
    ComparisonRules rules_;
    std::vector<std::pair<const schema::Record *, std::unique_ptr<comparison::Plan>>> plans_;  // of payloads
};

// How often something was added, removed and changed, by what it is.
class ChangeCounts {
public:
    void add(const Change &change);
    // "class: 1 removed, 1 changed (flags 1)"
    std::string text() const;
    nlohmann::ordered_json json() const;

private:
    struct Row {
        explicit Row(std::string_view what) : name(what) {}

        std::string name;
        std::size_t added = 0, removed = 0, changed = 0, reordered = 0;
        std::vector<std::pair<std::string, std::size_t>> members;
        std::string last_changed;  // the path of the element
    };
    Row &row(std::string_view name);

    std::vector<Row> rows_;  // in the order of their first change
};

// The number of elements in all lists of a message, those in elements included.
std::size_t count_elements(const Message &message);

}  // namespace tarn::tool
