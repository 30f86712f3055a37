// Network capture files from given bytes.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace captures {

class Capture {
public:
    Capture() {
        put<std::uint32_t>(0xa1b2c3d4);
        put<std::uint16_t>(2);
        put<std::uint16_t>(4);
        put<std::uint32_t>(0);
        put<std::uint32_t>(0);
        put<std::uint32_t>(262144);  // the longest packet
        put<std::uint32_t>(228);     // packets begin with their IPv4 header
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

private:
    void add_segment(std::uint16_t from, std::uint16_t to, std::uint32_t sequence, std::string_view bytes) {
        const auto size = static_cast<std::uint32_t>(40 + bytes.size());
        put<std::uint32_t>(packets_++);  // seconds
        put<std::uint32_t>(0);
        put(size);
        put(size);
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
        put<std::uint16_t>(0x5018);  // a header of 20 bytes; acknowledges, pushes
        put<std::uint16_t>(0xffff);
        put<std::uint32_t>(0);
        file_ += bytes;
    }

    template <typename T>
    void put(T value) {
        for (std::size_t i = sizeof value; i-- > 0;) file_ += static_cast<char>(value >> (8 * i) & 0xff);
    }

    std::string file_;
    std::uint32_t packets_ = 0;
};

}  // namespace captures
