// The pieces of frames without their values, each form listed once. An array of a million elements of one form takes
// one form and a list of numbers, so the size of a page follows from the bytes that it shows.
//
// A shape is text for one piece: its kind, its size, and what of its value the bytes do not say ("variant 1, begins
// lumo_tarn_dp_tc"). Or it is a list, of names and shapes in turn, of what follows on another in the frame: the name ""
// for a piece of its own, i for an element [i], -1-i for the state of that element, which travels behind all elements.
#pragma once

#include <map>
#include <nlohmann/json.hpp>

#include "tools/tarn/formats/dissection.h"

namespace tarn::tool {

class Shapes {
public:
    // What is all of a frame; the number of its shape.
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
    std::vector<Open> open_;  // the frame, and what is within what at this piece
};

}  // namespace tarn::tool
