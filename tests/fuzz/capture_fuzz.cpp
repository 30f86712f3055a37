// A network capture, or bytes between frames: every byte belongs to a frame or is reported as skipped.
#include <algorithm>

#include "tool_target.h"
#include "tools/tarn/formats/capture.h"
#include "tools/tarn/formats/frame_reader.h"

namespace {

using namespace tarn::tool;
using fuzz::require;

constexpr unsigned capture = 0, hidden_size = 1;
constexpr std::uint16_t port = 28276;

// Also without a size, as a pipe has none, and in small pieces.
ByteStream stream_of_unknown_size(const std::string &bytes) {
    return {"input", [&bytes, at = std::size_t{0}](char *to, std::size_t most) mutable {
                const std::size_t got = bytes.copy(to, std::min<std::size_t>(most, 7), at);
                at += got;
                return got;
            }};
}

// Returns the number of bytes.
std::size_t read_frames(ByteStream &stream) {
    FrameReader reader(stream, true);
    std::size_t sum = 0;
    while (const auto stretch = reader.next()) {
        require(stretch->offset == sum, "the stretches of a stream follow each other");
        const std::size_t size = stretch->fault.empty() ? stretch->bytes.size() : reader.skip();
        require(size != 0, "a stretch has bytes");
        sum += size;
    }
    return sum;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    fuzz::Input input = fuzz::tool_input(data, size);
    const fuzz::Choice choice(input.u8());
    const std::string bytes = input.rest_of_text();
    ByteStream stream = choice.bit(hidden_size) ? stream_of_unknown_size(bytes) : stream_of(bytes, "input");
    if (!choice.bit(capture)) {
        require(read_frames(stream) == bytes.size(), "all bytes are in a frame or skipped");
        return 0;
    }
    fuzz::succeeds([&] {
        std::size_t sum = 0;
        for (Sent &sent : read_capture(stream, port).sent) sum += read_frames(sent.bytes);
        require(sum <= bytes.size(), "connections carry no more than their capture");
    });
    return 0;
}
