#pragma once

#include <string>
#include <vector>

#include "schema/catalogue.h"

namespace tarn::bench {

// Members that a form with arrays and strings of its own has: counts and lengths are part of those.
inline std::vector<std::size_t> plain_members(const schema::Record &record) {
    std::vector<std::size_t> all;
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        if (record.members[i].role == schema::Role::value) all.push_back(i);
    }
    return all;
}

inline std::string value_type(const schema::Member &member) { return std::string(facts(member.kind).value_type); }

}  // namespace tarn::bench
