// The bytes of an input in order. Only those that are being looked at are in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tarn::tool {

class ByteStream {
public:
    // Reads at most `most` bytes; 0 at the end. May throw a Failure.
    using Read = std::function<std::size_t(char *to, std::size_t most)>;

    // The name is for messages. The size is that of the whole input, if it is known.
    ByteStream(std::string name, Read read, std::optional<std::uint64_t> size = std::nullopt)
        : name_(std::move(name)), read_(std::move(read)), size_(size) {}

    const std::string &name() const { return name_; }
    std::optional<std::uint64_t> size() const { return size_; }
    std::uint64_t offset() const { return offset_; }  // of the next byte

    // The next bytes, which stay in the stream: at least `least` of them unless the input ends before. Valid until the
    // next call of look().
    std::string_view look(std::size_t least);
    // Removes bytes that look() has returned. They stay valid until the next call of look().
    void take(std::size_t size);

    // The number of bytes from here to the end if it is known or small enough to look at, else at least `least`.
    std::uint64_t left(std::size_t least);

    // All bytes from here to the end.
    std::string take_rest();

private:
    std::string name_;
    Read read_;
    std::optional<std::uint64_t> size_;
    std::uint64_t offset_ = 0;
    std::string buffer_;
    std::size_t begin_ = 0, end_ = 0;  // of the bytes in the buffer
    bool has_ended_ = false;
};

// Owns the bytes.
ByteStream stream_of(std::string bytes, std::string name);

}  // namespace tarn::tool
