// What the test of a frame needs to know of each record: where its counts and lengths are.
#pragma once

#include <string>
#include <vector>

#include "schema/frame.h"

namespace tarn::generate {

struct FramePart {
    std::string kind;          // values, record, array or string
    unsigned states;           // of values: their number
    unsigned bytes;            // of values, or of the count or length
    std::string_view of;       // record of a nested record or of elements; otherwise empty
    std::string_view counted;  // name of an array or string; otherwise empty
};

// Adjacent members of fixed size become one part.
std::vector<FramePart> frame_parts(const schema::Record &record);

// The records of the schema, after the address.
std::vector<const schema::Record *> records_in_frames();

}  // namespace tarn::generate
