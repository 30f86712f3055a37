// The pieces of frames without their values, each distinct shape stored once. An array of a million elements of the
// same shape takes one shape and a list of numbers, so the size of a page is proportional to the bytes that it shows.
//
// The shape of a piece is a string: its kind, its size, and the part of its value that the bytes do not contain
// ("variant 1, begins lumo_tarn_dp_tc"). The shape of an array has the shapes of its elements; the number of its
// states, which are that of the array and those of the elements; and their shape. The shape of any other sequence of
// pieces is a list that alternates names and shapes; the name "" is that of the piece of the parent itself.
#pragma once

#include <map>
#include <nlohmann/json.hpp>

#include "tools/tarn/formats/dissection.h"

namespace tarn::tool {

class Shapes {
public:
    // Adds all pieces of a frame and returns the number of its shape.
    std::size_t add(const std::vector<Piece> &pieces);
    const nlohmann::ordered_json &json() const { return shapes_; }

private:
    struct Open {
        std::string name;
        nlohmann::ordered_json shape = nlohmann::ordered_json::array();
    };
    void add(const Piece &piece);
    std::size_t number_of(nlohmann::ordered_json shape);
    void close(std::size_t depth);

    nlohmann::ordered_json shapes_ = nlohmann::ordered_json::array();
    std::map<std::string, std::size_t, std::less<>> numbers_;
    std::vector<Open> open_;  // the frame, and the nested pieces that contain the current one
};

}  // namespace tarn::tool
