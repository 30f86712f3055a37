#include "tools/tarn/formats/frame_reader.h"

#include <algorithm>
#include <utility>

#include "tools/tarn/formats/dissection.h"

namespace tarn::tool {

namespace {

constexpr std::size_t head_size = schema::message_head_size;
constexpr std::size_t most_examined = std::size_t{64} << 20;

bool is_request(const std::uint8_t *luid) {
    return std::equal(luid, luid + schema::luid_size, message_ui_req_msg_luid);
}

bool begins_known_frame(FrameBytes bytes) {
    if (claimed_size(bytes) == 0) return false;
    const std::uint8_t *luid = bytes.data() + schema::message_header_size;
    return identify(luid).has_value() || is_request(luid);
}

}  // namespace

bool FrameReader::is_followed(std::size_t size) {
    const std::string_view behind = stream_.look(size + head_size).substr(size);
    return behind.empty() || begins_known_frame(bytes_of(behind));
}

std::optional<Stretch> FrameReader::next() {
    if (is_broken_) skip();
    stream_.take(std::exchange(size_, 0));
    FrameBytes bytes = bytes_of(stream_.look(head_size));
    if (bytes.empty()) return std::nullopt;
    Stretch stretch{bytes.first(std::min(bytes.size(), head_size)), stream_.offset(), std::nullopt, {}};
    const std::size_t size = std::max(claimed_size(bytes), stretch.bytes.size());
    const std::uint64_t left = stream_.left(size);
    if (size <= left && keep_going_ && !is_followed(size)) {
        // Either the bytes behind it are broken, or its length.
        const std::optional<Break> broken = error_in(bytes_of(stream_.look(size)).first(size), stretch.offset);
        if (broken) stretch.fault = "broken at " + sentence_of(*broken);
    }
    // Of what is cut, no more than can be examined.
    const std::uint64_t wanted = size <= left ? size : std::min<std::uint64_t>(left, most_examined);
    bytes = bytes_of(stream_.look(wanted));
    stretch.bytes = bytes.first(std::min<std::uint64_t>(wanted, bytes.size()));
    const bool has_shrunk = stretch.bytes.size() < wanted;
    if (std::string fault = fault_of(stretch.bytes, has_shrunk ? stretch.bytes.size() : left); !fault.empty()) {
        stretch.fault = std::move(fault);
    }
    if (stretch.fault.empty()) {
        const std::uint8_t *luid = stretch.bytes.data() + schema::message_header_size;
        stretch.identity = identify(luid);
        if (!stretch.identity && !is_request(luid)) stretch.fault = unknown_luid(stretch.bytes);
    }
    is_broken_ = !stretch.fault.empty();
    if (!is_broken_) size_ = size;
    return stretch;
}

std::size_t FrameReader::skip() {
    const std::uint64_t begin = stream_.offset();
    is_broken_ = false;
    stream_.take(1);
    for (;;) {
        const std::string_view bytes = stream_.look(head_size);
        const std::size_t marker = bytes.find(static_cast<char>(schema::frame_marker));
        stream_.take(std::min(marker, bytes.size()));
        if (bytes.empty()) break;
        if (marker == std::string_view::npos) continue;
        if (begins_known_frame(bytes_of(stream_.look(head_size)))) break;
        stream_.take(1);
    }
    return stream_.offset() - begin;
}

std::string skipped(std::size_t size) { return "; " + std::to_string(size) + " bytes are skipped"; }

}  // namespace tarn::tool
