// Any bytes, of any length, into any instance: nothing outside the frame and its guard byte is accessed, and the result
// can be used and destroyed.
#include <gtest/gtest.h>

#include "wire_support.h"

namespace {

using namespace wire;

// Low enough that a count from a frame costs little, high enough for the values.
constexpr std::uint64_t request_ceiling = 16384, total_ceiling = 131072;

struct Peer {
    Tracking tracking;
    std::uint32_t reuse;
};
constexpr Peer peers[] = {{Tracking::none, 0}, {Tracking::off, 0}, {Tracking::on, 0},
                          {Tracking::none, 1}, {Tracking::off, 1}, {Tracking::on, 1}};

// A record, a frame of it with all members set, with and without states, and one to fill an instance with.
class HostileFrames : public testing::TestWithParam<const RecordTable *> {
protected:
    void SetUp() override { mirk_platform_trace_set_levels(1); }

    const RecordTable &table() const { return *GetParam(); }
    Bytes frame(bool tracked) const { return reference::encode(rich_value(table()), tracked); }
    Bytes other_frame(bool tracked) const { return reference::encode(rich_value(table(), 12), tracked); }

    // Reads arbitrary bytes, then uses and destroys the instance.
    void read_and_use(const Handle &handle, const Bytes &bytes, std::uint32_t reuse, bool look_at_all) {
        {
            const Instance instance(handle, table().name);
            if (reuse != 0) read(handle, instance, other_frame_of(handle.tracks()));
            read(handle, instance, bytes, reuse);
            // Text takes most of the time, so most texts end early.
            use(handle, instance, look_at_all ? 2048 : 256);
            if (look_at_all) instance.value();
        }
        // A filled instance loses blocks when it is read into; a new one must release everything.
        if (reuse == 0) {
            ASSERT_EQ(handle.live_blocks(), 0U);
        }
    }

    // A handle is used for several reads: blocks that are lost on it are released when it is closed.
    template <class Next>
    void read_many(const Peer &peer, std::size_t reads, Next &&next) {
        constexpr std::size_t reads_per_handle = 64;
        for (std::size_t i = 0; i < reads;) {
            Handle handle({.tracking = peer.tracking,
                           .private_types = i % 128 == 0,
                           .request_ceiling = request_ceiling,
                           .total_ceiling = total_ceiling});
            if (peer.reuse != 0) handle.allow_lost_blocks();
            for (std::size_t j = 0; j < reads_per_handle && i < reads; ++i, ++j) {
                const Bytes bytes = next(i);
                if (bytes.empty()) continue;
                read_and_use(handle, bytes, peer.reuse, i % 8 == 0);
                if (HasFatalFailure()) FAIL() << "read " << i << ", " << kit::name_of(peer.tracking);
            }
        }
    }

private:
    const Bytes &other_frame_of(bool tracked) {
        if (other_[tracked].empty()) other_[tracked] = other_frame(tracked);
        return other_[tracked];
    }
    Bytes other_[2];
};

TEST_P(HostileFrames, CutAtEveryByte) {
    for (const Peer &peer : peers) {
        for (const bool tracked : {false, true}) {
            // Frames without states cover the same code in fewer steps.
            if (!tracked && (peer.reuse != 0 || peer.tracking == Tracking::off)) continue;
            const Bytes whole = frame(tracked);
            read_many(peer, whole.size(), [&](std::size_t size) {
                return Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
            });
        }
    }
}

// A few edits of the kinds that change counts, lengths, jumps, flags and variants.
Bytes mutate(const Bytes &from, Generator &random) {
    Bytes bytes = from;
    const auto position = [&] { return static_cast<std::size_t>(random.below(bytes.size())); };
    const auto spread = [](std::size_t at) { return static_cast<std::ptrdiff_t>(at); };
    for (std::uint64_t edits = 1 + random.below(3); edits > 0 && !bytes.empty(); --edits) {
        const std::size_t at = position();
        switch (random.below(6)) {
            case 0:
                bytes[at] = static_cast<std::uint8_t>(random.below(256));
                break;
            case 1:
                bytes[at] = static_cast<std::uint8_t>(bytes[at] ^ (1U << random.below(8)));
                break;
            case 2: {
                constexpr std::uint8_t boundary_values[] = {0, 1, 0x7F, 0x80, 0xFE, 0xFF};
                bytes[at] = boundary_values[random.below(sizeof boundary_values)];
                break;
            }
            case 3: {
                constexpr std::uint32_t boundary_values[] = {0,          3,          4,          5,         200,
                                                             0x7FFFFFFF, 0x80000000, 0xFFFFFFFB, 0xFFFFFFFF};
                const std::uint32_t word = boundary_values[random.below(std::size(boundary_values))];
                for (std::size_t i = 0; i < 4 && at + i < bytes.size(); ++i) {
                    bytes[at + i] = static_cast<std::uint8_t>(word >> (24 - 8 * i));
                }
                break;
            }
            case 4:
                bytes.erase(bytes.begin() + spread(at),
                            bytes.begin() + spread(std::min(bytes.size(), at + 1 + random.below(8))));
                break;
            default:
                bytes.insert(bytes.begin() + spread(at), 1 + random.below(8),
                             static_cast<std::uint8_t>(random.below(256)));
                break;
        }
    }
    return bytes;
}

TEST_P(HostileFrames, TenThousandMutations) {
    constexpr std::size_t mutations_per_frame = 840;  // of two frames, for six kinds of peer
    static_assert(mutations_per_frame * 2 * std::size(peers) >= 10000);
    Generator random(2024);
    for (const bool tracked : {false, true}) {
        const Bytes whole = frame(tracked);
        for (const Peer &peer : peers) {
            read_many(peer, mutations_per_frame, [&](std::size_t) { return mutate(whole, random); });
        }
    }
}

INSTANTIATE_TEST_SUITE_P(EveryRecord, HostileFrames, testing::ValuesIn(all_records()), name_of);

}  // namespace
