// Shared by the tests of text, XML and values: documents, the trace, checked buffers.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "bridge/bridge.h"
#include "kit/document.h"
#include "kit/trace.h"
#include "lumo_ui_tarn.h"
#include "reference/text.h"

namespace forms {

using bridge::id;
using bridge::Instance;
using bridge::operations;
using bridge::RecordOperations;
using kit::Document;
using kit::Handle;
using kit::Lines;
using kit::Trace;
using kit::Tracking;

// Strings as setters accept them: they end at a NUL.
inline void replace_nuls(reference::Record &value) {
    for (reference::Member &member : value.members) {
        for (char &c : member.text) {
            if (c == '\0') c = '\1';
        }
        for (reference::Record &item : member.items) replace_nuls(item);
    }
}

inline reference::Record random_value(std::string_view record, std::uint64_t seed,
                                      reference::GeneratorOptions options = {}) {
    reference::Record value = reference::Generator(seed, options).make(record);
    replace_nuls(value);
    return value;
}

// Together they contain every kind of member, at some depth.
inline std::vector<reference::Record> rich_values() {
    reference::Record processor("lumo_tarn_lumo_info");
    processor["direction"].number = 2;
    processor["ha_state"].number = 77;
    processor.append("static_exmem", 5) = random_value("lumo_tarn_static_exmem_info", 11);
    reference::Record &dyn = processor.append("dyn_exmem", 0);
    dyn.append("exmem", 1);
    dyn.append("exmem", 2).variant = -1;
    return {processor, random_value("lumo_tarn_dp_appl_data", 9, {.min_elements = 1, .max_elements = 1, .min_text = 9}),
            random_value("lumo_tarn_dp_tc", 4)};
}

inline constexpr char blank = '#';

// Result of a rendering into a buffer that was full of blank.
struct Written {
    std::uint32_t result = 0;
    std::uint32_t err = 0;
    std::string buffer;

    std::string text() const { return buffer.substr(0, result); }
    bool untouched_from(std::size_t start) const { return buffer.find_first_not_of(blank, start) == buffer.npos; }
};

inline constexpr std::size_t ample = std::size_t{1} << 17;

template <class Operation>
Written write(std::size_t room, Operation &&operation) {
    Written written;
    written.buffer.assign(room, blank);
    written.result = operation(written.buffer.data(), static_cast<std::int32_t>(room), &written.err);
    return written;
}

inline Written print(const Handle &h, const Instance &instance, std::string_view name, std::uint32_t indent) {
    return write(ample, [&](char *buffer, std::int32_t room, std::uint32_t *err) {
        return instance.record().print(h, id, buffer, indent, std::string(name).c_str(), instance.get(), room, err);
    });
}
inline Written to_xml(const Handle &h, const Instance &instance, std::string_view name, std::uint8_t state = 0) {
    return write(ample, [&](char *buffer, std::int32_t room, std::uint32_t *err) {
        return instance.record().to_xml(h, id, std::string(name).c_str(), buffer, instance.get(), room, state, err);
    });
}

// Reads a document whose root element has the name of the record.
inline std::uint32_t read_document(const Handle &h, const Instance &instance, const std::string &text) {
    const Document document(text);
    std::uint32_t err = 0;
    char message[300] = "";
    const std::string path = "//" + std::string(instance.record().record->name);
    instance.record().from_xml(h, id, path.c_str(), document, instance.get(), &err, message, sizeof message);
    EXPECT_STREQ(message, "");
    return err;
}
inline std::uint32_t read_members(const Handle &h, const Instance &instance, const std::string &members) {
    const std::string name(instance.record().record->name);
    return read_document(h, instance, "<" + name + ">" + members + "</" + name + ">");
}

}  // namespace forms
