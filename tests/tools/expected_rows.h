// The instances of records in the output of `tarn decode --json`, as rows: what `tarn rows` and `tarn export` are
// compared with.
#pragma once

#include <cstdlib>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

#include "reference/tables.h"

namespace tool_test {

using nlohmann::json;

// Values by column, as text; "null" if there is none.
using ExpectedRow = std::map<std::string, std::string>;

inline std::string text_of(const json &value) { return value.is_string() ? value.get<std::string>() : value.dump(); }

// In decimal, whatever notation a number has.
inline std::string decimal(const std::string &number) {
    return number.starts_with("0x") ? std::to_string(std::strtoull(number.c_str(), nullptr, 16)) : number;
}

// The value of a member that is neither a record nor an array.
inline std::string single_value(const json &value) {
    if (value.contains("@value")) return text_of(value["@value"]);
    if (value.contains("@address")) return text_of(value["@address"]);
    if (value.contains("@variant")) return "null";
    return text_of(value);
}

// The columns of a record; the value is null if the record or one around it has no body.
inline void add_columns(const reference::RecordTable &table, const json &value, const std::string &prefix,
                        ExpectedRow &row) {
    const bool has_body = value.is_object() && !value.contains("@variant");
    for (const reference::MemberTable &m : table.members) {
        const std::string name = prefix + m.name;
        const json inner = has_body && value.contains(m.name) ? value[m.name] : json();
        switch (m.cls) {
            case reference::Class::nested:
                add_columns(m.element(), inner, name + ".", row);
                break;
            case reference::Class::array:
                row[prefix + m.counted_by] = has_body ? std::to_string(inner.size()) : "null";
                break;
            case reference::Class::count:
            case reference::Class::length:
                break;
            case reference::Class::integer:
            case reference::Class::boolean:
            case reference::Class::enumeration:
            case reference::Class::address:
            case reference::Class::string:
                row[name] = has_body ? single_value(inner) : "null";
        }
    }
}

// The instances of a record in a value of another. A row is a payload or an element of a list.
inline void add_instances(const reference::RecordTable &table, const json &value, const std::string &path, bool is_row,
                          const std::string &record, std::multiset<ExpectedRow> &rows, bool with_nested) {
    if (table.name == record && (is_row || with_nested)) {
        ExpectedRow row;
        add_columns(table, value, "", row);
        row["path"] = path;
        rows.insert(row);
    }
    if (value.contains("@variant")) return;
    const std::string prefix = path.empty() ? "" : path + ".";
    for (const reference::MemberTable &m : table.members) {
        if (m.cls == reference::Class::nested) {
            add_instances(m.element(), value[m.name], prefix + m.name, false, record, rows, with_nested);
        } else if (m.cls == reference::Class::array) {
            for (std::size_t i = 0; i < value[m.name].size(); ++i) {
                add_instances(m.element(), value[m.name][i], prefix + m.name + "[" + std::to_string(i) + "]", true,
                              record, rows, with_nested);
            }
        }
    }
}

// In all messages of the output. Without nested ones, only payloads and elements of lists.
inline std::multiset<ExpectedRow> expected_rows(const std::string &decoded, const std::string &record,
                                                bool with_nested) {
    std::multiset<ExpectedRow> rows;
    for (std::size_t at = 0; at < decoded.size(); at = decoded.find('\n', at) + 1) {
        const json message = json::parse(decoded.substr(at, decoded.find('\n', at) - at));
        if (!message.contains("message")) continue;
        const auto &payload = reference::record_table(reference::message_table(text_of(message["message"])).payload);
        add_instances(payload, message["payload"], "", true, record, rows, with_nested);
    }
    return rows;
}

}  // namespace tool_test
