// Splits a byte stream into frames by their total_length. The buffer grows with the bytes received, not with the length
// that a peer claims.
#pragma once

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "platform/contract/frames.hpp"

namespace mirk {

class Inbox {
public:
    enum class Cut { more_needed, frame, bad, too_long };

    explicit Inbox(uint32_t limit) : limit_(limit) {}

    // Free space for the next bytes. Call received() after writing to it.
    std::pair<uint8_t *, size_t> room() {
        restore_guard();
        if (begin_ != 0) {
            std::memmove(bytes_.data(), bytes_.data() + begin_, end_ - begin_);
            end_ -= begin_;
            begin_ = 0;
        }
        if (bytes_.size() < end_ + chunk + 1) bytes_.resize(std::max(end_ + chunk + 1, bytes_.size() * 2));
        return {bytes_.data() + end_, bytes_.size() - end_ - 1};
    }
    void received(size_t count) { end_ += count; }

    // The next complete frame, in a writable buffer with a guard byte. Valid until the next call.
    Cut next(void **frame, uint32_t *size) {
        restore_guard();
        mirk_platform_frame seen;
        const mirk_platform_error error = mirk_platform_frame_look(bytes_.data() + begin_, end_ - begin_, &seen);
        // A wrong first byte is an error even if the header is incomplete.
        if (error == EMSGSIZE) return end_ != begin_ && bytes_[begin_] != frame_marker ? Cut::bad : Cut::more_needed;
        if (error != 0) return Cut::bad;
        const uint32_t length = seen.header.total_length;
        if (length > limit_) return Cut::too_long;
        if (length > end_ - begin_) return Cut::more_needed;
        *frame = bytes_.data() + begin_;
        *size = length;
        begin_ += length;
        // The guard byte is the first byte of the next frame, so it is restored before that frame is read.
        guard_ = bytes_[begin_];
        guard_is_lent_ = true;
        return Cut::frame;
    }

    bool empty() const { return begin_ == end_; }

private:
    static constexpr size_t chunk = 65536;

    void restore_guard() {
        if (guard_is_lent_) bytes_[begin_] = guard_;
        guard_is_lent_ = false;
    }

    uint32_t limit_;
    std::vector<uint8_t> bytes_ = std::vector<uint8_t>(1);
    size_t begin_ = 0, end_ = 0;
    uint8_t guard_ = 0;
    bool guard_is_lent_ = false;
};

constexpr uint32_t default_frame_limit = 16u << 20;

}  // namespace mirk
