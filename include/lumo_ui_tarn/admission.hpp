/// @file
/// admission.hpp - the test that a frame contains the elements and characters that it claims, before it is read.
///
/// A count of four bytes makes T_unmarshal allocate memory for all of its elements before it finds that the frame ends.
/// The C function leaves the limit to the runtime; from_frame() of lumo_ui_tarn.hpp and the tool call this test first.
/// An element takes at least six bytes of its frame, and a character one, so whatever passes can be read with memory
/// and time in proportion to the length of the frame. A frame that does not pass is truncated or invalid.
///
/// How numbers lie in a frame is up to the runtime. The test reads those of the reference runtime: big-endian.
///
/// Include lumo_ui_tarn/frame_parts.hpp, which has the parts of each record.
#ifndef LUMO_UI_TARN_ADMISSION_HPP
#define LUMO_UI_TARN_ADMISSION_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

namespace lumo_ui_tarn {

/// One or more members of a record, as they follow each other in its frame.
struct frame_part {
    /// What it is.
    enum what : std::uint8_t {
        end,     ///< no more members
        values,  ///< members of fixed size
        record,  ///< a nested record or an address
        array,   ///< a count and an array
        string   ///< a length and a string
    };
    what kind;             ///< what it is
    std::uint8_t states;   ///< of values: their number, each with a state byte
    std::uint16_t bytes;   ///< size of the values, or of the count or length
    const frame_part *of;  ///< of a nested record, or of each element: its parts
    const char *name;      ///< of an array or string: record and member
};

/// What a frame claims but cannot contain.
struct frame_excess {
    const char *member =
        nullptr;                ///< record and member, for example "lumo_tarn_dp_tc_list.tc_list"; nullptr if nothing
    std::uint32_t claimed = 0;  ///< number of elements or characters
    std::uint32_t least = 0;    ///< bytes that each of them takes at least
    std::uint32_t left = 0;     ///< bytes that are left for them

    /// True if the frame claims too much.
    explicit operator bool() const { return member != nullptr; }
    /// Describes it in a sentence.
    std::string text() const {
        return std::string(member) + " claims " + std::to_string(claimed) +
               (least == 1 ? " characters" : " elements of at least " + std::to_string(least) + " bytes") + ", but " +
               std::to_string(left) + " bytes are left";
    }
};

namespace detail {

/// @cond helpers
inline constexpr std::size_t message_head_size = 43;  // of the frame of a message: header and identity

// The C functions read frames from at most so many bytes. A cast would take a larger buffer for a small one.
inline constexpr std::uint32_t max_readable_size = 0x7FFFFFFF;
inline std::uint32_t readable_size(std::size_t size) {
    return size < max_readable_size ? static_cast<std::uint32_t>(size) : max_readable_size;
}

// Follows a frame as T_unmarshal does, also where jumps lead out of a record or back, so that both see the same counts.
// Where the C function sets an error, it reads no further count: the walk ends.
class frame_walk {
public:
    frame_walk(std::uint32_t size, bool tracks) : room_(size), tracks_(tracks) {}

    const frame_excess &excess() const { return excess_; }

    // Returns the number of bytes that the record takes, which may be more than there are.
    std::uint32_t record(const frame_part *part, const std::uint8_t *at, std::uint32_t size) {
        if (size < 2 || size > max_readable_size) return end();
        std::uint32_t offset = 2;
        if ((at[1] & has_ra_data) != 0) offset += ra_data_size;
        const std::uint32_t jump_base = offset;
        if (size < offset + 4) return end();
        const std::uint32_t jump_end = jump_base + number(at + offset, 4);
        offset += 4;
        const bool states = (at[1] & has_states) != 0;
        const bool body = at[0] <= 0x7F;
        for (; body && part->kind != frame_part::end; ++part) {
            const std::uint32_t left = offset < size ? size - offset : 0;
            if (part->kind == frame_part::values) {
                offset += (std::min)(left, std::uint32_t{part->bytes} + (states ? part->states : 0));
            } else if (part->kind == frame_part::record) {
                offset += record(part->of, at + (size - left), left);
                if (states && offset != size) ++offset;
            } else if (left < part->bytes) {
                return end();
            } else {
                const std::uint32_t count = number(at + offset, part->bytes);
                offset += part->bytes;
                if (count != 0) offset = block(*part, count, states, at, size, offset);
            }
            if (ended_) return 0;
        }
        return is_less(offset, jump_end) ? jump_end : offset;
    }

private:
    static constexpr std::uint8_t has_states = 8, has_ra_data = 32;
    static constexpr std::uint32_t ra_data_size = 9, least_record = 6;

    // The C functions compare offsets as signed numbers.
    static bool is_less(std::uint32_t a, std::uint32_t b) {
        return static_cast<std::int32_t>(a) < static_cast<std::int32_t>(b);
    }
    static std::uint32_t number(const std::uint8_t *at, std::uint32_t bytes) {
        std::uint32_t value = 0;
        for (std::uint32_t i = 0; i < bytes; ++i) value = value << 8 | at[i];
        return value;
    }
    std::uint32_t end() {
        ended_ = true;
        return 0;
    }

    // An array or a string that is not empty. Returns the offset after it.
    std::uint32_t block(const frame_part &part, std::uint32_t count, bool states, const std::uint8_t *at,
                        std::uint32_t size, std::uint32_t offset) {
        const bool is_array = part.kind == frame_part::array;
        const std::uint32_t least = is_array ? least_record : 1, left = (std::min)(size - offset, room_);
        if (count > left / least) {
            excess_ = {part.name, count, least, left};
            return end();
        }
        // Jumps can lead several arrays to the same bytes, but together they claim no more than the frame has.
        room_ -= count * least;
        if (!is_array) {
            offset += count;
            if (states && offset != size && (tracks_ || size - offset > 1)) ++offset;
            return offset;
        }
        for (std::uint32_t i = 0; i < count && !ended_; ++i) {
            const std::uint32_t there = offset < size ? size - offset : 0;
            offset += record(part.of, at + (size - there), there);
        }
        if (states && offset != size) ++offset;
        if (states && offset < size) offset += (std::min)(count, size - offset);
        return offset;
    }

    frame_excess excess_;
    std::uint32_t room_;
    bool tracks_, ended_ = false;
};
/// @endcond

}  // namespace detail

/// Tests the frame of a record, which need not have a guard byte. tracks is true if the handle that will read it tracks
/// state.
inline frame_excess excess_of_record(const frame_part *parts, const void *frame, std::size_t size, bool tracks) {
    const std::uint32_t length = detail::readable_size(size);
    detail::frame_walk walk(length, tracks);
    walk.record(parts, static_cast<const std::uint8_t *>(frame), length);
    return walk.excess();
}

/// Tests the frame of a message with a payload of these parts. See excess_of_record().
inline frame_excess excess_of_message(const frame_part *parts, const void *frame, std::size_t size, bool tracks) {
    using detail::message_head_size;
    if (size <= message_head_size) return {};
    return excess_of_record(parts, static_cast<const std::uint8_t *>(frame) + message_head_size,
                            size - message_head_size, tracks);
}

}  // namespace lumo_ui_tarn

#endif
