// Parses and resolves TCP addresses of the frame transport: HOST:PORT, [HOST]:PORT, HOST, :PORT.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

// The only include of asio. Its choice of allocator depends on whether a standard header was included before it, and
// two choices in one library would allocate with one allocator and free with the other.
#include <asio.hpp>

#include "platform/contract/contract.hpp"

namespace mirk {

using StreamProtocol = asio::generic::stream_protocol;

struct TcpAddress {
    std::string host = "127.0.0.1";
    std::string port = std::to_string(MIRK_PLATFORM_TCP_PORT);
};

// False if the text is not an address.
inline bool parse_tcp_address(std::string_view text, TcpAddress *address) {
    const bool bracketed = text.starts_with('[');
    const std::size_t host_end = bracketed ? text.find(']') : text.find(':');
    if (bracketed && host_end == std::string_view::npos) return false;
    const std::string_view host = text.substr(bracketed ? 1 : 0, host_end - (bracketed ? 1 : 0));
    std::string_view rest = host_end == std::string_view::npos ? "" : text.substr(host_end + (bracketed ? 1 : 0));
    if (bracketed && host.empty()) return false;
    if (!host.empty()) address->host = host;
    if (rest.empty()) return true;
    if (!rest.starts_with(':')) return false;
    rest.remove_prefix(1);
    const bool digits = std::all_of(rest.begin(), rest.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (rest.empty() || rest.size() > 5 || !digits || std::stoul(std::string(rest)) > 65535) return false;
    address->port = rest;
    return true;
}

// All endpoints of an address. EADDRNOTAVAIL if the host cannot be resolved.
inline mirk_platform_error resolve_tcp_address(asio::io_context &context, const char *text,
                                               std::vector<StreamProtocol::endpoint> *endpoints) {
    TcpAddress address;
    if (!parse_tcp_address(text, &address)) return EINVAL;
    asio::error_code error;
    asio::ip::tcp::resolver resolver(context);
    for (const auto &found :
         resolver.resolve(address.host, address.port, asio::ip::tcp::resolver::numeric_service, error)) {
        endpoints->emplace_back(found.endpoint());
    }
    return endpoints->empty() ? EADDRNOTAVAIL : 0;
}

// Frames are written in one piece, so waiting for more data would only delay them.
inline void set_no_delay(StreamProtocol::socket &socket) {
    asio::error_code ignored;
    socket.set_option(asio::ip::tcp::no_delay(true), ignored);
}

}  // namespace mirk
