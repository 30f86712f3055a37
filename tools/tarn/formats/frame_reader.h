// Reads the frames of a stream one after the other, and finds the next one behind bytes that are none.
#pragma once

#include <optional>
#include <string>

#include "tools/tarn/formats/frames.h"
#include "tools/tarn/support/byte_stream.h"

namespace tarn::tool {

// A frame, or bytes that are not a frame of a known type.
struct Stretch {
    FrameBytes bytes;    // if it is no frame, those that can be examined; valid until the next call of the reader
    std::size_t offset;  // in the stream
    std::optional<Identity> identity;  // of a message or a control message; a request for a bundle has none
    std::string fault;                 // why it is no frame; empty for a frame

    Frame frame() const { return {bytes, offset, *identity}; }
};

// At most one frame is in memory.
class FrameReader {
public:
    // To go on behind what is broken, the reader also examines a frame that is not followed by another.
    FrameReader(ByteStream &stream, bool keep_going) : stream_(stream), keep_going_(keep_going) {}

    // The next stretch; none at the end.
    std::optional<Stretch> next();

    // After a stretch with a fault: skips its bytes and those behind it, up to the next header of a known type
    // with a possible length, and returns their number.
    std::size_t skip();

private:
    bool is_followed(std::size_t size);

    ByteStream &stream_;
    bool keep_going_;
    std::size_t size_ = 0;    // of the frame that next() has returned
    bool is_broken_ = false;  // what next() has returned
};

// "; 43 bytes are skipped"
std::string skipped(std::size_t size);

}  // namespace tarn::tool
