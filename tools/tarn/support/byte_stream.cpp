#include "tools/tarn/support/byte_stream.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

namespace tarn::tool {

namespace {

constexpr std::size_t piece = 64 * 1024;

}  // namespace

std::string_view ByteStream::look(std::size_t least) {
    if (end_ - begin_ < least && begin_ != 0 && !has_ended_) {
        std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
        end_ -= std::exchange(begin_, 0);
    }
    while (end_ < least && !has_ended_) {
        // Not at once for what a damaged length claims.
        if (buffer_.size() - end_ < piece) buffer_.resize(std::max(end_ + piece, std::min(least, 2 * end_)));
        const std::size_t got = read_(buffer_.data() + end_, buffer_.size() - end_);
        end_ += got;
        has_ended_ = got == 0;
    }
    return std::string_view(buffer_).substr(begin_, end_ - begin_);
}

void ByteStream::take(std::size_t size) {
    begin_ += size;
    offset_ += size;
}

std::uint64_t ByteStream::left(std::size_t least) {
    if (size_ && *size_ >= offset_) return *size_ - offset_;
    return look(least).size();
}

std::string ByteStream::take_rest() {
    std::string rest(look(SIZE_MAX));
    take(rest.size());
    return rest;
}

ByteStream stream_of(std::string bytes, std::string name) {
    const std::size_t size = bytes.size();
    auto content = std::make_shared<const std::string>(std::move(bytes));
    std::size_t at = 0;
    return {std::move(name),
            [content, at](char *to, std::size_t most) mutable {
                const std::size_t got = content->copy(to, most, at);
                at += got;
                return got;
            },
            size};
}

}  // namespace tarn::tool
