#include "tools/tarn/formats/frames.h"

#include "tools/tarn/formats/message.h"
#include "tools/tarn/support/failure.h"

namespace tarn::tool {

std::string frame_location(const std::string &origin, std::size_t offset) {
    return origin + ": frame at offset " + std::to_string(offset);
}

std::string fault_of(FrameBytes bytes, std::uint64_t left) {
    mirk_platform_frame head;
    const mirk_platform_error error = mirk_platform_frame_look(bytes.data(), bytes.size(), &head);
    if (bytes.size() < MIRK_PLATFORM_FRAME_SIZE) {
        return std::to_string(bytes.size()) + " bytes are left, but a frame has at least " +
               std::to_string(MIRK_PLATFORM_FRAME_SIZE);
    }
    if (error != 0) {
        return "not a frame (marker " + std::to_string(head.header.marker) + ", total length " +
               std::to_string(head.header.total_length) + ")";
    }
    if (head.header.total_length > left) {
        return "truncated: its total length is " + std::to_string(head.header.total_length) + ", but " +
               std::to_string(left) + " bytes are left";
    }
    return {};
}

std::size_t claimed_size(FrameBytes bytes) {
    mirk_platform_frame head;
    return mirk_platform_frame_look(bytes.data(), bytes.size(), &head) == 0 ? head.header.total_length : 0;
}

std::string unknown_luid(FrameBytes frame) {
    return "unknown luid " + luid_text(frame.data() + schema::message_header_size);
}

FrameBytes frame_bytes_at(FrameBytes bytes, std::size_t offset, const std::string &origin) {
    const FrameBytes rest = bytes.subspan(offset);
    const std::string fault = fault_of(rest, rest.size());
    if (!fault.empty()) throw Failure(Exit::input, frame_location(origin, offset) + ": " + fault);
    return rest.first(claimed_size(rest));
}

Frame identified(FrameBytes frame, std::size_t offset, const std::string &origin) {
    const std::optional<Identity> identity = identify(frame.data() + schema::message_header_size);
    if (!identity) throw Failure(Exit::input, frame_location(origin, offset) + ": " + unknown_luid(frame));
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
