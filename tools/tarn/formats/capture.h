// Network captures, pcap and pcapng: what the TCP connections in them carried.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tools/tarn/support/byte_stream.h"
#include "tools/tarn/support/failure.h"

namespace tarn::tool {

// What one side of a connection sent, without gaps: segments are in order, and those sent again are there once.
struct Sent {
    std::string connection;  // "10.0.0.1:28276 to 10.0.0.2:40000"
    ByteStream bytes;
};

struct Capture {
    std::vector<Sent> sent;        // in the order of the first packets
    std::vector<Failure> missing;  // segments that the capture lacks, and why it ends early
};

// True if a file that begins like this is a capture.
bool is_capture(std::string_view begin);

// Reads the connections from and to the port. What they carried goes to a temporary file, so that memory is bounded.
// Throws a Failure if the file is not a capture that can be read.
Capture read_capture(ByteStream &file, std::uint16_t port);

}  // namespace tarn::tool
