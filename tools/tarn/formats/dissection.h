// Describes every byte of a frame, using the tables of the schema alone. For a broken frame it reports where it breaks
// and why.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tools/tarn/formats/frames.h"

namespace tarn::tool {

struct Piece {
    std::size_t offset;
    std::size_t size;
    unsigned depth;
    std::string path;
    std::string kind;
    std::string value;
};

struct Break {
    std::size_t offset;
    std::string path;
    std::string reason;
};

struct Dissection {
    std::vector<Piece> pieces;  // in order, without gaps, up to the break
    std::optional<Break> broken;
    std::size_t size = 0;  // bytes that belong to the frame
};

// The frame at the front of the bytes; offsets in the result count from `base`.
Dissection dissect_frame(FrameBytes bytes, std::size_t base);

// "offset 57, payload.lumo_data[0].id: 2 bytes are left of 4"
std::string sentence_of(const Break &broken);

}  // namespace tarn::tool
