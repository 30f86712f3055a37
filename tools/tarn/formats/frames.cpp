#include "tools/tarn/formats/frames.h"

#include "tools/tarn/formats/message.h"
#include "tools/tarn/support/failure.h"

namespace tarn::tool {

std::string frame_location(const std::string &origin, std::size_t offset) {
    return origin + ": frame at offset " + std::to_string(offset);
}

FrameBytes frame_bytes_at(FrameBytes bytes, std::size_t offset, const std::string &origin) {
    const auto fail = [&](const std::string &reason) -> Failure {
        return {Exit::input, frame_location(origin, offset) + ": " + reason};
    };
    const FrameBytes rest = bytes.subspan(offset);
    mirk_platform_frame head;
    const mirk_platform_error error = mirk_platform_frame_look(rest.data(), rest.size(), &head);
    if (rest.size() < MIRK_PLATFORM_FRAME_SIZE) {
        throw fail(std::to_string(rest.size()) + " bytes are left, but a frame has at least " +
                   std::to_string(MIRK_PLATFORM_FRAME_SIZE));
    }
    if (error != 0) {
        throw fail("not a frame (marker " + std::to_string(head.header.marker) + ", total length " +
                   std::to_string(head.header.total_length) + ")");
    }
    if (head.header.total_length > rest.size()) {
        throw fail("truncated: its total length is " + std::to_string(head.header.total_length) + ", but " +
                   std::to_string(rest.size()) + " bytes are left");
    }
    return rest.first(head.header.total_length);
}

Frame identified(FrameBytes frame, std::size_t offset, const std::string &origin) {
    const std::uint8_t *luid = frame.data() + schema::message_header_size;
    const std::optional<Identity> identity = identify(luid);
    if (!identity) throw Failure(Exit::input, frame_location(origin, offset) + ": unknown luid " + luid_text(luid));
    return {frame, offset, *identity};
}

Frame frame_at(FrameBytes bytes, std::size_t offset, const std::string &origin) {
    return identified(frame_bytes_at(bytes, offset, origin), offset, origin);
}

std::vector<Frame> split_frames(FrameBytes bytes, const std::string &origin) {
    std::vector<Frame> frames;
    for (std::size_t offset = 0; offset < bytes.size(); offset += frames.back().bytes.size()) {
        frames.push_back(frame_at(bytes, offset, origin));
    }
    return frames;
}

Item item_of(const Handles &handles, const Frame &frame, const std::string &origin) {
    Item item{frame.identity, std::nullopt, frame_location(origin, frame.offset)};
    if (frame.identity.is_control()) return item;
    try {
        item.message.emplace(
            message_from_frame(handles.choose(frame.is_tracked()), *frame.identity.operations, frame.bytes));
    } catch (const Failure &failure) {
        throw Failure(failure.exit(), item.location + ": " + failure.what());
    }
    return item;
}

}  // namespace tarn::tool
