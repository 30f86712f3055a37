// The name of the type that a member has besides its kind.
#pragma once

#include <string>

#include "schema/model.h"

namespace tarn::schema {

// An enumeration, a record, or "RECORD[]" for the elements of an array; empty for other kinds.
inline std::string named_type(const Member &m) {
    switch (category(m.kind)) {
        case Category::enumeration:
            return std::string(m.enumeration->name);
        case Category::record:
            return std::string(m.record->name);
        case Category::array:
            return std::string(m.record->name) + "[]";
        case Category::integer:
        case Category::boolean:
        case Category::address:
        case Category::string:
            break;
    }
    return {};
}

}  // namespace tarn::schema
