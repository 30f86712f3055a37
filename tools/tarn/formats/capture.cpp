#include "tools/tarn/formats/capture.h"

#include <algorithm>
#include <array>

#ifdef TARN_WITH_CAPTURES
#include <pcap/pcap.h>
#include <tins/tins.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <map>
#include <memory>
#include <new>
#include <optional>
#include <type_traits>
#include <utility>
#endif

namespace tarn::tool {

bool is_capture(std::string_view begin) {
    // pcap with microseconds and nanoseconds in both byte orders, and pcapng.
    constexpr std::array<std::string_view, 5> magics{"\xa1\xb2\xc3\xd4", "\xd4\xc3\xb2\xa1", "\xa1\xb2\x3c\x4d",
                                                     "\x4d\x3c\xb2\xa1", "\x0a\x0d\x0d\x0a"};
    return std::find(magics.begin(), magics.end(), begin.substr(0, 4)) != magics.end();
}

#ifndef TARN_WITH_CAPTURES

Capture read_capture(ByteStream &file, std::uint16_t) {
    throw Failure(Exit::environment,
                  file.name() + ": this program was built without libpcap and libtins, which read captures");
}

#else

namespace {

// Segments that wait for an earlier one: of one side of a connection, and of all.
constexpr std::size_t most_waiting = std::size_t{4} << 20, most_waiting_of_all = std::size_t{32} << 20;
// The same before the first byte of a connection is known, since the capture began later.
constexpr std::size_t enough_to_begin = std::size_t{64} << 10;

// The packets of a file, as libpcap reads them.
class Packets {
public:
    explicit Packets(ByteStream &file) : file_(file) {
        std::unique_ptr<FILE, int (*)(FILE *)> opened(fopencookie(this, "r", {read, nullptr, nullptr, nullptr}),
                                                      std::fclose);
        if (opened == nullptr) throw std::bad_alloc();
        char reason[PCAP_ERRBUF_SIZE] = {};
        pcap_ = pcap_fopen_offline(opened.get(), reason);
        rethrow();
        if (pcap_ == nullptr) throw Failure(Exit::input, file.name() + ": " + reason);
        opened.release();
    }
    Packets(const Packets &) = delete;
    Packets &operator=(const Packets &) = delete;
    ~Packets() { pcap_close(pcap_); }

    // The bytes of the next packet that were captured; none at the end. Throws a Failure if the file is broken.
    std::optional<std::string_view> next() {
        pcap_pkthdr *header = nullptr;
        const unsigned char *bytes = nullptr;
        const int result = pcap_next_ex(pcap_, &header, &bytes);
        rethrow();
        if (result == PCAP_ERROR_BREAK) return std::nullopt;
        ++number_;
        if (result != 1) {
            throw Failure(Exit::input,
                          file_.name() + ": packet " + std::to_string(number_) + ": " + pcap_geterr(pcap_));
        }
        return std::string_view(reinterpret_cast<const char *>(bytes), header->caplen);
    }
    int link() const { return pcap_datalink(pcap_); }

private:
    // libpcap is C, so exceptions wait until it has returned.
    static ssize_t read(void *self, char *to, std::size_t most) {
        auto &packets = *static_cast<Packets *>(self);
        try {
            const std::string_view bytes = packets.file_.look(1).substr(0, most);
            std::memcpy(to, bytes.data(), bytes.size());
            packets.file_.take(bytes.size());
            return static_cast<ssize_t>(bytes.size());
        } catch (...) {
            packets.thrown_ = std::current_exception();
            errno = EIO;
            return -1;
        }
    }
    void rethrow() const {
        if (thrown_ != nullptr) std::rethrow_exception(thrown_);
    }

    ByteStream &file_;
    pcap_t *pcap_ = nullptr;
    std::size_t number_ = 0;
    std::exception_ptr thrown_;
};

std::unique_ptr<Tins::PDU> ip_in(std::string_view bytes) {
    if (bytes.empty()) return nullptr;
    const auto *data = reinterpret_cast<const std::uint8_t *>(bytes.data());
    const auto size = static_cast<std::uint32_t>(bytes.size());
    if (data[0] >> 4 == 4) return std::make_unique<Tins::IP>(data, size);
    if (data[0] >> 4 == 6) return std::make_unique<Tins::IPv6>(data, size);
    return nullptr;
}

// Null for a packet of another kind. Throws an exception of libtins if it is malformed.
std::unique_ptr<Tins::PDU> packet_in(std::string_view bytes, int link, const std::string &file) {
    const auto behind = [&](std::size_t header) { return ip_in(bytes.substr(std::min(header, bytes.size()))); };
    switch (link) {
        case DLT_EN10MB:
            return std::make_unique<Tins::EthernetII>(reinterpret_cast<const std::uint8_t *>(bytes.data()),
                                                      static_cast<std::uint32_t>(bytes.size()));
        case DLT_RAW:
        case DLT_IPV4:
        case DLT_IPV6:
            return behind(0);
        case DLT_NULL:
        case DLT_LOOP:
            return behind(4);
        case DLT_LINUX_SLL:
            return behind(16);
        case DLT_LINUX_SLL2:
            return behind(20);
        default:
            const char *const name = pcap_datalink_val_to_name(link);
            throw Failure(Exit::input, file + ": packets of the link type " +
                                           (name != nullptr ? std::string(name) : std::to_string(link)) +
                                           " are not supported");
    }
}

// A file without a name, to which all connections are written.
class Store {
public:
    struct Extent {
        std::uint64_t at, size;
    };
    using Extents = std::vector<Extent>;

    Store() : file_(std::tmpfile(), std::fclose) {
        if (file_ == nullptr) fail();
    }

    void append(Extents &extents, std::string_view bytes) {
        if (extents.empty() || extents.back().at + extents.back().size != size_) extents.push_back({size_, 0});
        while (!bytes.empty()) {
            const ssize_t written =
                ::pwrite(fileno(file_.get()), bytes.data(), bytes.size(), static_cast<off_t>(size_));
            if (written < 0 && errno != EINTR) fail();
            const auto done = static_cast<std::size_t>(std::max<ssize_t>(written, 0));
            bytes.remove_prefix(done);
            extents.back().size += done;
            size_ += done;
        }
    }
    ByteStream stream(Extents extents, std::string name) const {
        std::uint64_t size = 0;
        for (const Extent &extent : extents) size += extent.size;
        std::size_t current = 0;
        std::uint64_t done = 0;  // of the current extent
        const auto read = [file = file_, extents = std::move(extents), current, done](char *to,
                                                                                      std::size_t most) mutable {
            if (current < extents.size() && done == extents[current].size) {
                ++current;
                done = 0;
            }
            if (current == extents.size()) return std::size_t{0};
            const std::uint64_t wanted = std::min<std::uint64_t>(most, extents[current].size - done);
            ssize_t got = 0;
            do {
                got = ::pread(fileno(file.get()), to, wanted, static_cast<off_t>(extents[current].at + done));
            } while (got < 0 && errno == EINTR);
            if (got <= 0) fail();
            done += static_cast<std::uint64_t>(got);
            return static_cast<std::size_t>(got);
        };
        return {std::move(name), read, size};
    }

private:
    [[noreturn]] static void fail() {
        throw Failure(Exit::environment, "temporary file: " + error_text(static_cast<std::uint32_t>(errno)));
    }

    std::shared_ptr<FILE> file_;
    std::uint64_t size_ = 0;
};

// Puts the segments of all connections in order. Positions are sequence numbers that do not wrap around.
class Connections {
public:
    explicit Connections(std::string file) : file_(std::move(file)) {}

    void add(const std::string &from, const std::string &to, const Tins::TCP &segment, std::string_view bytes) {
        const bool begins = segment.get_flag(Tins::TCP::SYN);
        const std::uint32_t number = segment.seq() + (begins ? 1 : 0);
        std::unique_ptr<Side> &side = sides_[{from, to}];
        // The same ports may be used by one connection after the other.
        if (side != nullptr && begins && side->next && static_cast<std::uint32_t>(side->first) != number) finish(*side);
        if (side == nullptr || side->is_finished) side = std::make_unique<Side>(Side{from, to, number});
        if (begins && !side->next) side->next = side->first = side->position(number);
        if (bytes.empty()) return;
        std::string &waiting = side->waiting[side->position(number)];
        if (waiting.size() < bytes.size()) {
            side->size += bytes.size() - waiting.size();
            waiting_ += bytes.size() - waiting.size();
            waiting = bytes;
        }
        put_in_order(*side, most_waiting);
        if (waiting_ <= most_waiting_of_all) return;
        for (const auto &[ends, other] : sides_) put_in_order(*other, 0);
    }

    Capture finish() {
        for (const auto &[ends, side] : sides_) finish(*side);
        for (Run &run : runs_) {
            const std::string name = file_ + " (" + run.name + ")";
            capture_.sent.push_back({run.connection, store_.stream(std::move(run.extents), name)});
        }
        return std::move(capture_);
    }
    void add_failure(const Failure &failure) { capture_.missing.push_back(failure); }

private:
    // One side of a connection.
    struct Side {
        std::string from, to;
        std::int64_t first;                     // the first byte, as far as it is known
        std::optional<std::int64_t> next = {};  // behind what is in order; empty before the first byte is known
        std::map<std::int64_t, std::string> waiting = {};
        std::size_t size = 0;                 // of what waits
        std::optional<std::size_t> run = {};  // that is being written
        bool is_finished = false;

        std::int64_t position(std::uint32_t number) const {
            const std::int64_t near = next.value_or(first);
            return near + static_cast<std::int32_t>(number - static_cast<std::uint32_t>(near));
        }
        std::string connection() const { return from + " to " + to; }
    };
    // Bytes without a gap.
    struct Run {
        std::string connection, name;
        Store::Extents extents;
    };

    void finish(Side &side) {
        put_in_order(side, 0);
        side.is_finished = true;
    }
    // Writes what follows. What is missing is given up if more than `most` bytes wait for it.
    void put_in_order(Side &side, std::size_t most) {
        while (!side.waiting.empty()) {
            const auto segment = side.waiting.begin();
            const std::int64_t at = segment->first;
            if (!side.next) {
                if (side.size <= std::min(most, enough_to_begin)) return;
                side.next = side.first = at;
            }
            if (at > *side.next) {
                if (side.size <= most) return;
                add_failure({Exit::input, file_ + " (" + side.connection() + "): " + std::to_string(at - *side.next) +
                                              " bytes after byte " + std::to_string(*side.next - side.first) +
                                              " are missing"});
                side.next = at;
                side.run.reset();
            }
            const std::string &bytes = segment->second;
            const auto known = static_cast<std::uint64_t>(*side.next - at);
            if (known < bytes.size()) write(side, std::string_view(bytes).substr(known));
            side.size -= bytes.size();
            waiting_ -= bytes.size();
            side.waiting.erase(segment);
        }
    }
    void write(Side &side, std::string_view bytes) {
        if (!side.run) {
            const std::int64_t offset = *side.next - side.first;
            const std::string place = offset == 0 ? "" : ", from byte " + std::to_string(offset);
            side.run = runs_.size();
            runs_.push_back({side.connection(), side.connection() + place, {}});
        }
        store_.append(runs_[*side.run].extents, bytes);
        *side.next += static_cast<std::int64_t>(bytes.size());
    }

    std::string file_;
    Store store_;
    std::map<std::pair<std::string, std::string>, std::unique_ptr<Side> > sides_;
    std::vector<Run> runs_;
    std::size_t waiting_ = 0;
    Capture capture_;
};

template <class Ip>
void add_segment(Connections &connections, const Ip &ip, const Tins::TCP &tcp) {
    constexpr bool is_6 = std::is_same_v<Ip, Tins::IPv6>;
    const auto end = [](const std::string &address, std::uint16_t port) {
        return (is_6 ? "[" + address + "]" : address) + ":" + std::to_string(port);
    };
    const auto *raw = tcp.template find_pdu<Tins::RawPDU>();
    const std::string_view bytes =
        raw == nullptr ? std::string_view()
                       : std::string_view(reinterpret_cast<const char *>(raw->payload().data()), raw->payload().size());
    connections.add(end(ip.src_addr().to_string(), tcp.sport()), end(ip.dst_addr().to_string(), tcp.dport()), tcp,
                    bytes);
}

}  // namespace

Capture read_capture(ByteStream &file, std::uint16_t port) {
    Packets packets(file);
    Connections connections(file.name());
    Tins::IPv4Reassembler fragments;
    try {
        while (const auto bytes = packets.next()) {
            try {
                const std::unique_ptr<Tins::PDU> packet = packet_in(*bytes, packets.link(), file.name());
                if (packet == nullptr || fragments.process(*packet) == Tins::IPv4Reassembler::FRAGMENTED) continue;
                const auto *tcp = packet->find_pdu<Tins::TCP>();
                if (tcp == nullptr || (tcp->sport() != port && tcp->dport() != port)) continue;
                if (const auto *ip = packet->find_pdu<Tins::IP>()) add_segment(connections, *ip, *tcp);
                if (const auto *ip = packet->find_pdu<Tins::IPv6>()) add_segment(connections, *ip, *tcp);
            } catch (const Tins::exception_base &) {
                // Not a packet of TCP as any sender writes it.
            }
        }
    } catch (const Failure &failure) {
        if (failure.exit() != Exit::input) throw;
        connections.add_failure(failure);
    }
    Capture capture = connections.finish();
    if (capture.sent.empty() && capture.missing.empty()) {
        throw Failure(Exit::input, file.name() + ": no TCP connection with port " + std::to_string(port) + " has data");
    }
    return capture;
}

#endif

}  // namespace tarn::tool
