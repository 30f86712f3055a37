// The names of the schema: in full, in the short form that people write, and members by a path that begins at a
// record: "dp-tt-cfg.tables".
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "schema/model.h"
#include "tools/reflect/operations.h"

namespace tarn::tool {

struct Named {
    std::string_view name, meaning;
};

std::vector<Named> bundle_names();
std::vector<Named> message_names();
std::vector<Named> type_names();  // records, enumerations, messages, bundles

// "lumo_tarn_dp_tt_cfg_rsp" gives "dp-tt-cfg".
std::string short_form(std::string_view name);
bool is_named(std::string_view given, std::string_view name);  // in full or in short

// Throws a Failure with the nearest name if there is no such bundle.
const reflect::BundleOperations &bundle_named(std::string_view name);

// A record, or the payload of a message or a bundle; null if there is none.
const schema::Record *record_named(std::string_view name);

// What a path leads to. A member that nests records leads on to theirs.
struct Target {
    const schema::Record *record = nullptr;  // the record that is named, or the one that holds the member
    const schema::Member *member = nullptr;  // of a path with members
    const schema::Record *nested() const { return member != nullptr ? member->record : record; }
    explicit operator bool() const { return record != nullptr; }
};
Target target_of(std::string_view path);

// "; did you mean X?", or nothing if no candidate is close.
std::string suggestion(std::string_view word, const std::vector<std::string> &candidates);

}  // namespace tarn::tool
