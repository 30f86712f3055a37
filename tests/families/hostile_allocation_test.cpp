// Each allocation of a read and of a copy fails in turn, once and from then on.
#include <gtest/gtest.h>

#include "wire_support.h"

namespace {

using namespace wire;

class FailingAllocations : public testing::TestWithParam<const RecordTable *> {
protected:
    void SetUp() override { mirk_platform_trace_set_levels(1); }

    const RecordTable &table() const { return *GetParam(); }

    static std::uint64_t allocations(mirk_handle *h) {
        return mirk_platform_testing_allocations(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC);
    }
    static void fail(mirk_handle *h, std::uint64_t nth, std::uint32_t onwards) {
        mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, nth, onwards);
    }
};

TEST_P(FailingAllocations, APartlyReadInstanceIsCompleteAfterAnotherRead) {
    const Record value = rich_value(table());
    for (const Tracking tracking : kit::every_tracking) {
        for (const bool sender_tracks : {false, true}) {
            const Bytes frame = reference::encode(value, sender_tracks);
            std::uint64_t total = 0;
            {
                const Handle handle(tracking);
                const Instance instance(handle, table().name);
                const std::uint64_t before = allocations(handle);
                ASSERT_EQ(read(handle, instance, frame).error, 0U);
                total = allocations(handle) - before;
            }
            EXPECT_EQ(total != 0, bridge::owns_blocks(table()));
            for (std::uint64_t nth = 1; nth <= total; ++nth) {
                for (const std::uint32_t onwards : {0U, 1U}) {
                    Handle handle(tracking);
                    mirk_platform_testing_set_fresh_fill(handle, 0xDB);
                    {
                        const Instance instance(handle, table().name);
                        fail(handle, nth, onwards);
                        EXPECT_EQ(read(handle, instance, frame).error, 12U);
                        EXPECT_EQ(handle->last_error, 12U);
                        fail(handle, 0, 0);
                        use(handle, instance);
                        instance.value();
                    }
                    ASSERT_EQ(handle.live_blocks(), 0U) << "allocation " << nth;

                    // Clearing a reused block loses what its elements owned.
                    handle.allow_lost_blocks();
                    const Instance instance(handle, table().name);
                    fail(handle, nth, onwards);
                    read(handle, instance, frame);
                    fail(handle, 0, 0);
                    EXPECT_EQ(read(handle, instance, frame, 1).error, 0U);
                    EXPECT_TRUE(bridge::same(reference::as_received(value, handle.tracks() && sender_tracks),
                                             instance.value()));
                }
            }
        }
    }
}

TEST_P(FailingAllocations, ACopyThatFailsLeavesNothing) {
    for (const Tracking tracking : kit::every_tracking) {
        for (const bool private_types : {false, true}) {
            const Handle handle({.tracking = tracking, .private_types = private_types});
            const Instance source(handle, rich_value(table()));
            const auto &record = source.record();
            std::vector<std::uint8_t> buffer(16384);
            const auto clone = [&](std::uint32_t *err) {
                void *result = nullptr;
                record.clone(handle, id, source.get(), &result, buffer.data(), 16000, err);
                return result;
            };
            std::uint32_t err = 0;
            const std::uint64_t before = allocations(handle);
            record.destroy(handle, id, clone(&err));
            const std::uint64_t total = allocations(handle) - before;
            ASSERT_GE(total, 1U);
            const std::size_t blocks = handle.live_blocks();
            for (std::uint64_t nth = 1; nth <= total; ++nth) {
                for (const std::uint32_t onwards : {0U, 1U}) {
                    err = 0;
                    fail(handle, nth, onwards);
                    EXPECT_EQ(clone(&err), nullptr);
                    EXPECT_EQ(err, 12U);
                    EXPECT_EQ(handle->last_error, 12U);
                    fail(handle, nth, onwards);
                    mirk_clear_last_error(handle);
                    EXPECT_EQ(record.clone_cr(handle, source.get()), nullptr);
                    EXPECT_EQ(handle->last_error, 12U);
                    fail(handle, 0, 0);
                    mirk_clear_last_error(handle);
                    ASSERT_EQ(handle.live_blocks(), blocks) << "allocation " << nth;
                }
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(EveryRecord, FailingAllocations, testing::ValuesIn(all_records()), name_of);

}  // namespace
