// Describes every byte of a frame from the tables of the schema. For an invalid frame, it reports the offset and the
// reason of the error.
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
    std::vector<Piece> pieces;  // in order, without gaps, up to the error
    std::optional<Break> broken;
    std::size_t size = 0;  // in bytes, up to the error if there is one
};

// The frame at the beginning of the bytes; `base` is added to all offsets.
Dissection dissect_frame(FrameBytes bytes, std::size_t base);

// "offset 57, payload.lumo_data[0].id: needs 4 bytes, but 2 are left"
std::string sentence_of(const Break &broken);

}  // namespace tarn::tool
