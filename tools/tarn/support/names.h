// The names of the schema: full names, short names, and members by a path that begins at a record or its message or
// bundle: "dp-tt-cfg.lumo_data".
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "schema/model.h"
#include "tools/reflect/operations.h"
#include "tools/tarn/support/failure.h"

namespace tarn::tool {

struct Named {
    std::string_view name, meaning;
};

std::vector<Named> bundle_names();
std::vector<Named> message_names();
std::vector<Named> record_names();
std::vector<Named> type_names();  // records, enumerations, messages, bundles

// The rule for short names is the same for all types and commands. The help and the manual page print it.
inline constexpr char name_rule[] =
    "Types (records, enumerations, messages, bundles) have full names, such as\n"
    "lumo_tarn_dp_tt_cfg_rsp, and short names, such as dp-tt-cfg: without the prefix\n"
    "lumo_tarn_, without the suffix _rsp or _msg, and with hyphens for underscores. If\n"
    "several types share a short name, a command takes the kind that it expects;\n"
    "\"tarn schema\" prefers the record, then the bundle.";
std::string short_name(std::string_view name);
bool is_named(std::string_view given, std::string_view name);  // by its full or its short name

// A Failure for an unknown name, which suggests the nearest known one.
Failure unknown_name(const std::string &kind, std::string_view name, const std::vector<Named> &known);

// Null if there is no such bundle or message.
const reflect::BundleOperations *find_bundle_named(std::string_view name);
const reflect::MessageOperations *find_message_named(std::string_view name);
// Throws a Failure if there is no such bundle.
const reflect::BundleOperations &bundle_named(std::string_view name);

// A record, or the payload of a bundle or a message; null if there is none.
const schema::Record *record_named(std::string_view name);

// The record or member at the end of a path. A path continues from a member into the record that it nests.
struct Target {
    const schema::Record *record = nullptr;  // the named record, or the record that contains the member
    const schema::Member *member = nullptr;  // null if the path has no members
    const schema::Record *nested() const { return member != nullptr ? member->record : record; }
    explicit operator bool() const { return record != nullptr; }
};
Target target_of(std::string_view path);

// "; did you mean X?", or an empty string if no candidate is close.
std::string suggestion(std::string_view word, const std::vector<std::string> &candidates);
std::string suggestion(std::string_view word, const std::vector<Named> &full_names);

}  // namespace tarn::tool
