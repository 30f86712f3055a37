// The pieces of frames without their values, each distinct shape stored once. An array of a million elements of the
// same shape takes one shape and a list of numbers, so the size of a page is proportional to the bytes that it shows.
//
// The shape of a piece is a string: its kind, its size, and the part of its value that the bytes do not contain
// ("variant 1, begins lumo_tarn_dp_tc") or how people read it ("u_int64 8 hex"). The shape of an array has the shapes
// of its elements; the number of its states, which are that of the array and those of the elements; and their shape.
// The shape of any other sequence of pieces is a list that alternates names and shapes; the name "" is that of the
// piece of the parent itself. Pieces that are not members get an "@", since a member may be called "state".
#pragma once

#include <nlohmann/json.hpp>
#include <unordered_map>

#include "tools/tarn/formats/dissection.h"

namespace tarn::tool {

class Shapes : public DissectionVisitor {
public:
    Shapes() { slots_.emplace_back(); }

    // Begins a frame, whose fields follow.
    void begin();
    // Ends it and returns the number of its shape.
    std::uint32_t end();

    void open(const Group &group) override;
    void field(const Field &field) override;
    void close() override;

    const nlohmann::ordered_json &json() const { return shapes_; }
    // What the luids of the frames identify.
    const nlohmann::ordered_json &luids() const { return luids_; }

private:
    using Numbers = std::vector<std::uint32_t>;

    // A sequence of pieces.
    struct Slot {
        std::uint32_t name = 0;
        bool is_array = false, is_element = false;
        bool is_small = false;                // a variant, and the piece of the parent itself
        Numbers parts;                        // names and shapes; of an array: shapes of elements
        std::uint32_t states = 0, state = 0;  // of an array

        void start(std::uint32_t new_name);
    };

    std::uint32_t name_number(std::string_view name, bool is_member);
    std::uint32_t leaf(const Field &field);
    std::uint32_t number_of(const Slot &slot);
    std::uint32_t add_shape(nlohmann::ordered_json shape);
    void settle();

    nlohmann::ordered_json shapes_ = nlohmann::ordered_json::array(), luids_ = nlohmann::ordered_json::object();
    std::vector<std::string> names_{""};
    std::unordered_map<const char *, std::uint32_t> member_names_, other_names_;  // by their constants in the schema
    std::unordered_map<std::string, std::uint32_t> numbers_;                      // of shapes, by what they contain
    // The frame, the groups around the current piece and, while it may still get a state, the piece or group before it.
    std::vector<Slot> slots_;
    std::size_t depth_ = 0;
    bool has_last_ = false;
};

}  // namespace tarn::tool
