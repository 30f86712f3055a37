// Where a peer comes from: limits hold for all peers of one origin together, since each may connect many times.
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstring>
#include <string>

#include "platform/service/queue.hpp"
#include "platform/service/tcp_address.hpp"

namespace mirk {

struct Origin {
    std::string name;
    size_t peers = 0;
    Held held;
};

// "user 1000" on a socket file, "address 192.0.2.1" over TCP. One IPv6 host usually has a whole network of 64 bits:
// "network 2001:db8:0:1::/64".
inline std::string origin_name(StreamProtocol::socket &socket, bool is_tcp) {
    if (!is_tcp) {
        ucred peer{};
        socklen_t size = sizeof peer;
        const bool known = ::getsockopt(socket.native_handle(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0;
        return known ? "user " + std::to_string(peer.uid) : "unknown user";
    }
    asio::error_code error;
    const StreamProtocol::endpoint peer = socket.remote_endpoint(error);
    char text[INET6_ADDRSTRLEN] = "unknown";
    if (error || peer.protocol().family() == AF_INET) {
        sockaddr_in address{};
        std::memcpy(&address, peer.data(), std::min(sizeof address, peer.size()));
        if (!error) ::inet_ntop(AF_INET, &address.sin_addr, text, sizeof text);
        return std::string("address ") + text;
    }
    sockaddr_in6 address{};
    std::memcpy(&address, peer.data(), std::min(sizeof address, peer.size()));
    if (IN6_IS_ADDR_V4MAPPED(&address.sin6_addr)) {
        ::inet_ntop(AF_INET, address.sin6_addr.s6_addr + 12, text, sizeof text);
        return std::string("address ") + text;
    }
    std::memset(address.sin6_addr.s6_addr + 8, 0, 8);
    ::inet_ntop(AF_INET6, &address.sin6_addr, text, sizeof text);
    return std::string("network ") + text + "/64";
}

}  // namespace mirk
