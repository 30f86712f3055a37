// Frames of every root and of every bundle: truncated, with each byte replaced, and with neighboring bits flipped.
#include "bundle_stream.h"
#include "damage.h"

namespace {

using namespace trust;

class FrameDamage : public testing::TestWithParam<const Root *> {
protected:
    void SetUp() override { mirk_platform_trace_set_levels(1); }
    void TearDown() override { RecordProperty("reads", static_cast<int>(reads_)); }

    const Root &root() const { return *GetParam(); }

    // A new instance must release everything when it is destroyed. A filled one may lose blocks, so its handle is
    // closed early.
    void read(const Bytes &bytes, Tracking tracking, std::uint32_t reuse) {
        constexpr std::uint64_t reads_per_handle = 64;
        auto &handle = handles_[static_cast<int>(tracking)][reuse];
        if (handle == nullptr || ++uses_[static_cast<int>(tracking)][reuse] % reads_per_handle == 0) {
            handle = small_handle(tracking);
            if (reuse != 0) handle->allow_lost_blocks();
        }
        {
            Specimen specimen(*handle, root());
            if (reuse != 0) specimen.read(good_[static_cast<int>(handle->tracks())]);
            specimen.read(bytes, reuse);
            // Text takes most of the time, so most texts end early.
            constexpr int whole = 16384;
            specimen.use(reads_ % 8 != 0 ? 256 : Share::is_whole() ? whole : 2048);
        }
        ++reads_;
        if (reuse == 0) {
            ASSERT_EQ(handle->live_blocks(), 0U);
        }
    }

    template <class Damage>
    void read_each(std::uint64_t one_in, Damage &&damage) {
        Share share(one_in);
        for (const bool tracked : {false, true}) {
            const Bytes whole = good_[tracked];
            damage(whole, [&](const Bytes &bytes) {
                for (const Tracking tracking : kit::every_tracking) {
                    for (const std::uint32_t reuse : {0U, 1U}) {
                        // A message reuses no blocks.
                        if (reuse != 0 && root().message != nullptr) continue;
                        if (share.takes()) read(bytes, tracking, reuse);
                        if (HasFatalFailure()) return;
                    }
                }
            });
            if (HasFatalFailure()) return;
        }
    }

    std::uint64_t reads_ = 0;

private:
    const Bytes good_[2] = {frame_of(*GetParam(), false), frame_of(*GetParam(), true)};
    std::unique_ptr<kit::Handle> handles_[3][2];
    std::uint64_t uses_[3][2] = {};
};

TEST_P(FrameDamage, CutAtEveryByte) {
    // Records are truncated at every byte by the tests of their frames, so a share is enough here. Messages are only
    // truncated here.
    read_each(root().message != nullptr ? 1 : 16, [](const Bytes &whole, auto &&next) {
        for (std::size_t size = 0; size <= whole.size(); ++size) {
            next(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
        }
    });
}

TEST_P(FrameDamage, EachByteReplacedByAllOthers) {
    read_each(2048, [](const Bytes &whole, auto &&next) {
        Bytes bytes = whole;
        for (std::size_t at = 0; at < whole.size(); ++at) {
            for (unsigned other = 1; other < 256; ++other) {
                bytes[at] = static_cast<std::uint8_t>(whole[at] ^ other);
                next(bytes);
            }
            bytes[at] = whole[at];
        }
    });
}

// All bits, so those of heads, counts, lengths and jumps are among them.
TEST_P(FrameDamage, EachPairOfNeighboringBitsFlipped) {
    read_each(64, [](const Bytes &whole, auto &&next) {
        Bytes bytes = whole;
        const auto flip = [&](std::size_t bit) {
            bytes[bit / 8] = static_cast<std::uint8_t>(bytes[bit / 8] ^ (0x80U >> bit % 8));
        };
        for (std::size_t bit = 0; bit + 1 < 8 * whole.size(); ++bit) {
            flip(bit);
            flip(bit + 1);
            next(bytes);
            flip(bit);
            flip(bit + 1);
        }
    });
}

std::string name_of_root(const testing::TestParamInfo<const Root *> &info) { return info.param->name; }
std::vector<const Root *> each_root() {
    std::vector<const Root *> all;
    for (const Root &root : roots()) all.push_back(&root);
    return all;
}
INSTANTIATE_TEST_SUITE_P(EveryRoot, FrameDamage, testing::ValuesIn(each_root()), name_of_root);

// ---- bundles, through the dispatcher

class BundleDamage : public testing::TestWithParam<const reference::BundleTable *> {
protected:
    void SetUp() override { mirk_platform_trace_set_levels(1); }

    Bytes stream(bool tracked) const { return bundle_stream(*GetParam(), tracked); }

    struct Outcome {
        std::uint32_t error = 0;
        Received received;
        bool open = false;
    };
    Outcome dispatch(const Bytes &bytes, Tracking tracking, bool recorded = false) {
        static FILE *const nowhere = std::fopen("/dev/null", "w");
        const auto handle = small_handle(tracking);
        enlist(*handle);
        mirk_platform_recorder_set(recorded ? 1 : 0, nowhere);
        Outcome outcome;
        mirk_platform_report report;
        outcome.error = mirk_platform_dispatch(*handle, id, guarded(bytes), static_cast<std::uint32_t>(bytes.size()),
                                               &outcome.received, &report);
        EXPECT_EQ(outcome.error, report.number);
        mirk_platform_recorder_set(0, nullptr);
        outcome.open = (*handle)->recv_bundle_open != 0;
        return outcome;
    }
};

TEST_P(BundleDamage, CutAtEveryByteDeliversNothing) {
    for (const Tracking tracking : kit::every_tracking) {
        const Bytes whole = stream(tracking == Tracking::on);
        const std::size_t message = (whole.size() - 86) / 2;
        const Outcome all = dispatch(whole, tracking);
        EXPECT_EQ(all.error, 0U);
        EXPECT_EQ(all.received.in_bundles, 2U);
        for (std::size_t size = 0; size < whole.size(); ++size) {
            const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
            const Outcome outcome = dispatch(cut, tracking, size % 2 != 0);
            const bool between = size == 0 || size == 43 || size == 43 + message || size == 43 + 2 * message;
            EXPECT_EQ(outcome.error == 0, between) << size;
            EXPECT_EQ(outcome.received.in_bundles, 0U) << size;
            EXPECT_EQ(outcome.received.alone, 0U) << size;
            EXPECT_EQ(outcome.open, size >= 43) << size;
        }
    }
}

TEST_P(BundleDamage, EachByteReplacedByAllOthers) {
    Share share(1024);
    for (const bool tracked : {false, true}) {
        const Bytes whole = stream(tracked);
        Bytes bytes = whole;
        for (std::size_t at = 0; at < whole.size(); ++at) {
            for (unsigned other = 1; other < 256; ++other) {
                bytes[at] = static_cast<std::uint8_t>(whole[at] ^ other);
                for (const Tracking tracking : kit::every_tracking) {
                    if (share.takes()) dispatch(bytes, tracking, other % 2 != 0);
                }
            }
            bytes[at] = whole[at];
        }
    }
}

std::string name_of_bundle(const testing::TestParamInfo<const reference::BundleTable *> &info) {
    return info.param->name;
}
std::vector<const reference::BundleTable *> each_bundle() {
    std::vector<const reference::BundleTable *> all;
    for (const auto &table : reference::bundles()) all.push_back(&table);
    return all;
}
INSTANTIATE_TEST_SUITE_P(EveryBundle, BundleDamage, testing::ValuesIn(each_bundle()), name_of_bundle);

}  // namespace
