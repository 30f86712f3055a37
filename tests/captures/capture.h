// Network capture files from given bytes.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace captures {

class Capture {
public:
    // The link type says how packets begin: `front` precedes the IPv4 header.
    explicit Capture(std::uint32_t link = 228, std::string_view front = {}) : front_(front) {
        put<std::uint32_t>(0xa1b2c3d4);
        put<std::uint16_t>(2);
        put<std::uint16_t>(4);
        put<std::uint32_t>(0);
        put<std::uint32_t>(0);
        put<std::uint32_t>(262144);  // the longest packet
        put(link);
    }

    // One TCP connection for each client port, in segments of the given size.
    void add(std::uint16_t client_port, std::uint16_t server_port, std::string_view bytes, std::size_t segment = 1400) {
        std::uint32_t sequence = 1;
        while (!bytes.empty()) {
            const std::size_t size = std::min(segment, bytes.size());
            add_segment(client_port, server_port, sequence, bytes.substr(0, size));
            sequence += static_cast<std::uint32_t>(size);
            bytes.remove_prefix(size);
        }
    }

    const std::string &file() const { return file_; }

    static constexpr std::uint16_t begins = 0x02, ends = 0x01, carries = 0x18;  // flags of a segment

    void add_segment(std::uint16_t from, std::uint16_t to, std::uint32_t sequence, std::string_view bytes,
                     std::uint16_t flags = carries) {
        const auto size = static_cast<std::uint32_t>(40 + bytes.size());
        put<std::uint32_t>(packets_++);  // seconds
        put<std::uint32_t>(0);
        put(static_cast<std::uint32_t>(front_.size()) + size);
        put(static_cast<std::uint32_t>(front_.size()) + size);
        file_ += front_;
        put<std::uint16_t>(0x4500);
        put(static_cast<std::uint16_t>(size));
        put<std::uint32_t>(0);
        put<std::uint16_t>(0x4006);  // time to live, TCP
        put<std::uint16_t>(0);
        put<std::uint32_t>(0x7f000001);
        put<std::uint32_t>(0x7f000001);
        put(from);
        put(to);
        put(sequence);
        put<std::uint32_t>(1);
        put(static_cast<std::uint16_t>(0x5000 | flags));  // a header of 20 bytes
        put<std::uint16_t>(0xffff);
        put<std::uint32_t>(0);
        file_ += bytes;
    }

private:
    template <typename T>
    void put(T value) {
        for (std::size_t i = sizeof value; i-- > 0;) file_ += static_cast<char>(value >> (8 * i) & 0xff);
    }

    std::string front_, file_;
    std::uint32_t packets_ = 0;
};

}  // namespace captures
