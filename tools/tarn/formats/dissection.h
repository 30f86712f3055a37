// Describes every byte of a frame from the tables of the schema. For an invalid frame, it reports the offset and the
// reason of the error.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/tarn/formats/frames.h"

namespace tarn::tool {

inline constexpr std::size_t no_index = SIZE_MAX;

// Bytes that belong together: one member, or one part of a frame.
struct Field {
    enum class Kind : std::uint8_t {
        constant,
        number,  // of a header, a request or an integer member
        variant,
        flags,
        opaque,
        jump,
        luid,
        count,
        length,
        boolean,
        enumeration,
        text,
        state,
        skipped,  // bytes of members that this schema does not know
    };

    Kind kind;
    std::string_view name;  // of a state byte: of the member that it belongs to
    std::size_t index = no_index;
    std::string_view type;
    std::size_t offset;
    FrameBytes bytes;
    std::uint64_t number = 0;                // their value if there are no more than 8
    std::string_view words = {};             // what a luid identifies, or what is wrong with a constant
    const schema::Member *member = nullptr;  // null for parts of frames
    const schema::Record *record = nullptr;  // for a variant: which begins there; null for a boolean or an enumeration
};

// The value of a pointer or a handle of another process, which people read in hexadecimal.
bool is_pointer(const Field &field);

// "1000", "3 LUMO_TARN_HA_ACTIVE_SOLO_STATE", "56, ends at 103"
void append_value(const Field &field, std::string &out);

// Text in quotation marks, with escapes such as \x1b for all that is not printable ASCII.
void append_quoted(FrameBytes bytes, std::string &out);

// Fields that belong together, and groups of them.
struct Group {
    enum class Kind : std::uint8_t { header, record, address, boolean, enumeration, array };

    Kind kind;
    std::string_view name;         // of an element: of its array
    std::size_t index = no_index;  // of an element
    std::string_view type;
    std::size_t offset;
    const schema::Member *member = nullptr;
    const schema::Record *record = nullptr;
};

struct Break {
    std::size_t offset;
    std::string path;
    std::string reason;
};

// Receives the fields of a frame in order, without gaps, up to the error if there is one. Open groups are not closed
// then.
class DissectionVisitor {
public:
    DissectionVisitor() = default;
    DissectionVisitor(const DissectionVisitor &) = delete;
    DissectionVisitor &operator=(const DissectionVisitor &) = delete;
    virtual ~DissectionVisitor() = default;

    virtual void open(const Group &) {}
    virtual void field(const Field &) {}
    virtual void close() {}
    // A jump that contradicts the members. True: the walk continues after the members.
    virtual bool ignores_jumps() const { return false; }
};

struct Walked {
    std::optional<Break> broken;  // the first error
    std::size_t size = 0;         // in bytes, up to the error if there is one
};

// The frame at the beginning of the bytes; `base` is added to all offsets.
Walked walk_frame(FrameBytes bytes, std::size_t base, DissectionVisitor &visitor);

// The first error of a frame.
std::optional<Break> error_in(FrameBytes frame, std::size_t base);

// "offset 57, payload.lumo_data[0].id: needs 4 bytes, but 2 are left"
std::string sentence_of(const Break &broken);

// A request is no message of the schema: options, then a text with its length.
struct RequestText {
    bool refused;
    std::string_view name() const { return refused ? "sentence" : "bundle"; }
    std::string_view length_name() const { return refused ? "sentence_len" : "bundle_len"; }
};
inline RequestText request_text(std::uint64_t options) { return {(options & MIRK_PLATFORM_REQUEST_REFUSED) != 0}; }

}  // namespace tarn::tool
