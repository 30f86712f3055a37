#include "frame_parts.h"

#include "schema/catalogue.h"
#include "writers.h"

namespace tarn::generate {

using namespace schema;

namespace {

constexpr std::string_view parts_introduction = R"(/// @file
/// frame_parts.hpp - the parts of each record's frame, for the tests of admission.hpp.
// Generated from the schema; edit the tables there and run tools/regenerate.
#ifndef LUMO_UI_TARN_FRAME_PARTS_HPP
#define LUMO_UI_TARN_FRAME_PARTS_HPP

#include <lumo_ui_tarn/admission.hpp>

/// A table for each record, with the name of the record.
namespace lumo_ui_tarn::frame_parts {

/// @cond tables
)";

std::string parts_table(const Record &record) {
    const std::string name(record.name);
    std::string rows;
    for (const FramePart &part : frame_parts(record)) {
        rows += "    {frame_part::" + part.kind + ", " + std::to_string(part.states) + ", " +
                std::to_string(part.bytes) + ", " + (part.of.empty() ? "nullptr" : std::string(part.of)) + ", " +
                (part.counted.empty() ? "nullptr" : "\"" + name + "." + std::string(part.counted) + "\"") + "},\n";
    }
    return "inline constexpr frame_part " + name + "[] = {\n" + rows +
           "    {frame_part::end, 0, 0, nullptr, nullptr},\n};\n";
}

}  // namespace

std::vector<FramePart> frame_parts(const Record &record) {
    std::vector<FramePart> parts;
    unsigned counted = 0;
    for (const Member &m : record.members) {
        const unsigned wire = facts(m.kind).wire;
        if (m.role != Role::value) {
            counted = wire;
        } else if (m.kind == Kind::array) {
            parts.push_back({"array", 0, counted, m.record->name, m.name});
        } else if (m.kind == Kind::string) {
            parts.push_back({"string", 0, counted, "", m.name});
        } else if (has_area(m)) {
            parts.push_back({"record", 0, 0, m.record != nullptr ? m.record->name : address_record.name, ""});
        } else if (!parts.empty() && parts.back().kind == "values") {
            ++parts.back().states;
            parts.back().bytes += wire;
        } else {
            parts.push_back({"values", 1, wire, "", ""});
        }
    }
    return parts;
}

std::vector<const Record *> records_in_frames() {
    std::vector<const Record *> all{&address_record};
    all.insert(all.end(), records.begin(), records.end());
    return all;
}

std::string parts_page() {
    std::string text(parts_introduction);
    for (const Record *r : records_in_frames()) text += parts_table(*r);
    return text + "/// @endcond\n\n}  // namespace lumo_ui_tarn::frame_parts\n\n#endif\n";
}

}  // namespace tarn::generate
