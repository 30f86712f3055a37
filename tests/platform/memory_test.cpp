#include "support.hpp"

using kit::Tracking;
using test::Handle;

TEST(Memory, RequestsOfZeroBytesReturnDistinctBlocks) {
    Handle h;
    void *a = h.alloc(0), *b = h.alloc(0);
    EXPECT_NE(a, nullptr);
    EXPECT_NE(b, nullptr);
    EXPECT_NE(a, b);
    EXPECT_EQ(mirk_platform_live_blocks(h), 2u);
    h.free(a);
    h.free(b);
}

TEST(Memory, ListsLiveBlocksInTheOrderOfAllocation) {
    Handle h;
    void *a = h.alloc(10, 3), *b = h.alloc(20, 4), *c = h.alloc(30, 5);
    h.free(b);
    EXPECT_EQ(mirk_platform_live_bytes(h), 40u);
    mirk_platform_block blocks[3] = {};
    EXPECT_EQ(mirk_platform_list_blocks(h, nullptr, 0), 2u);
    EXPECT_EQ(mirk_platform_list_blocks(h, blocks, 3), 2u);
    EXPECT_EQ(blocks[0].address, a);
    EXPECT_EQ(blocks[0].size, 10u);
    EXPECT_EQ(blocks[0].ctx_id, 3u);
    EXPECT_EQ(blocks[1].address, c);
    EXPECT_EQ(blocks[1].serial, 3u);
    h.free(a);
    h.free(c);
}

TEST(Memory, CloseReturnsTheNumberOfLiveBlocks) {
    Handle h;
    EXPECT_NE(h.alloc(8), nullptr);
    h.expect_lost_blocks(1);
}

TEST(Memory, RequestsBeyondACeilingReturnNull) {
    Handle h({.request_ceiling = 100, .total_ceiling = 150});
    EXPECT_EQ(h.alloc(101), nullptr);
    void *a = h.alloc(100);
    EXPECT_NE(a, nullptr);
    EXPECT_EQ(h.alloc(51), nullptr);
    void *b = h.alloc(50);
    EXPECT_NE(b, nullptr);
    h.free(a);
    a = h.alloc(100);
    EXPECT_NE(a, nullptr);
    h.free(a);
    h.free(b);
    mirk_platform_testing_set_ceilings(h, 10, 10);
    EXPECT_EQ(h.alloc(11), nullptr);
}

TEST(Memory, GrowthCanBeLimitedForAWhile) {
    Handle h({.request_ceiling = 1000, .total_ceiling = 1000});
    void *a = h.alloc(100);
    EXPECT_EQ(mirk_platform_handle_limit_growth(h, 50), 1000u);
    EXPECT_EQ(h.alloc(51), nullptr);
    void *b = h.alloc(50);
    EXPECT_NE(b, nullptr);
    EXPECT_EQ(mirk_platform_handle_limit_growth(h, 50), 150u) << "limits are lowered only";
    EXPECT_EQ(h.alloc(1), nullptr);
    mirk_platform_handle_set_total_ceiling(h, 1000);
    EXPECT_EQ(mirk_platform_handle_limit_growth(h, UINT64_MAX), 1000u);
    void *c = h.alloc(850);
    EXPECT_NE(c, nullptr);
    for (void *block : {a, b, c}) h.free(block);
}

TEST(Memory, LimitedGrowthCountsStateOffsets) {
    Handle h({.tracking = Tracking::on});
    void *a = h.alloc(1);
    mirk_platform_handle_limit_growth(h, 137);
    void *b = h.alloc(1);
    EXPECT_NE(b, nullptr) << "a byte, and the offsets of one stretch of addresses";
    EXPECT_EQ(h.alloc(1), nullptr);
    h.free(a);
    h.free(b);
}

TEST(Memory, TotalCeilingCountsTheStateOffsetsOfTheRequestedBlock) {
    constexpr uint64_t ceiling = uint64_t{260} << 20;
    Handle h({.tracking = Tracking::on, .total_ceiling = ceiling, .fresh_fill = 0});
    EXPECT_EQ(h.alloc(size_t{256} << 20), nullptr);
    EXPECT_EQ(mirk_platform_live_bytes(h), 0u);
    void *a = h.alloc(size_t{128} << 20);
    EXPECT_NE(a, nullptr) << "128 MiB and 68 MiB for state offsets fit";
    EXPECT_EQ(h.alloc(size_t{64} << 20), nullptr) << "it would need another 34 MiB for state offsets";
    h.free(a);

    Handle untracked({.tracking = Tracking::off, .total_ceiling = ceiling, .fresh_fill = 0});
    void *b = untracked.alloc(size_t{256} << 20);
    EXPECT_NE(b, nullptr);
    untracked.free(b);
}

TEST(Memory, StateOffsetsNeverExceedWhatTheCeilingAllowed) {
    constexpr uint64_t ceiling = 100000;
    Handle h({.tracking = Tracking::on, .total_ceiling = ceiling});
    std::vector<void *> blocks;
    while (void *block = h.alloc(1)) blocks.push_back(block);
    EXPECT_EQ(blocks.size(), ceiling / 137) << "a byte, and the offsets of one stretch of addresses";
    for (void *block : blocks) h.free(block);
}

TEST(Memory, DefaultCeilingStopsHostileCounts) {
    Handle h;
    EXPECT_EQ(h.alloc((size_t{256} << 20) + 1), nullptr);
    EXPECT_EQ(h.alloc(SIZE_MAX), nullptr);
}

TEST(Memory, CountsRequestsRefusedBecauseOfACeilingOnly) {
    Handle h({.request_ceiling = 100, .total_ceiling = 150});
    EXPECT_EQ(mirk_platform_ceiling_refusals(h), 0u);
    EXPECT_EQ(h.alloc(101), nullptr);
    EXPECT_EQ(mirk_platform_ceiling_refusals(h), 1u);
    h.fail_alloc(1);
    EXPECT_EQ(h.alloc(1), nullptr);
    EXPECT_EQ(mirk_platform_ceiling_refusals(h), 1u) << "memory ran out below the ceilings";
    void *a = h.alloc(100);
    EXPECT_EQ(h.alloc(51), nullptr);
    EXPECT_EQ(mirk_platform_ceiling_refusals(h), 2u);
    h.free(a);
}

TEST(Memory, FreeOfAnUnknownAddressIsTracedAndIgnored) {
    Handle h;
    test::Trace trace;
    static char sentinel;
    h.free(&sentinel);
    EXPECT_TRUE(trace.has(3, "no live block"));
    void *a = h.alloc(16);
    h.free(static_cast<char *>(a) + 8);
    EXPECT_EQ(trace.lines(), 2u);
    EXPECT_EQ(mirk_platform_live_blocks(h), 1u);
    h.free(a);
    h.free(nullptr);
    EXPECT_EQ(trace.lines(), 2u);
}

TEST(Memory, NthAllocationFailsOnce) {
    Handle h;
    mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 2, 0);
    void *a = h.alloc(8);
    EXPECT_NE(a, nullptr);
    EXPECT_EQ(h.alloc(8), nullptr);
    void *b = h.alloc(8);
    EXPECT_NE(b, nullptr);
    EXPECT_EQ(mirk_platform_testing_allocations(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC), 3u);
    h.free(a);
    h.free(b);
}

TEST(Memory, AllocationsFailFromTheNthOn) {
    Handle h;
    mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 2, 1);
    void *a = h.alloc(8);
    EXPECT_NE(a, nullptr);
    EXPECT_EQ(h.alloc(8), nullptr);
    EXPECT_EQ(h.alloc(8), nullptr);
    mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 0, 0);
    void *b = h.alloc(8);
    EXPECT_NE(b, nullptr);
    h.free(a);
    h.free(b);
}

TEST(Memory, OtherAllocatorsFailOnRequest) {
    Handle h;
    mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_SYS_ALLOC, 1, 0);
    EXPECT_EQ(h->sys_alloc(h->sys_ctx, 0xffffffffu, 8), nullptr);
    EXPECT_NE(h->sys_alloc(h->sys_ctx, 0xffffffffu, 8), nullptr);
    mirk_platform_testing_fail_allocation(nullptr, MIRK_PLATFORM_TESTING_MIRKLIB_MALLOC, 1, 0);
    EXPECT_EQ(mirklib_malloc(nullptr, 1, 8), nullptr);
    void *p = mirklib_malloc(nullptr, 1, 8);
    EXPECT_NE(p, nullptr);
    mirklib_free(nullptr, 1, p);
}

TEST(Memory, FreshBlocksAreFilledOnRequest) {
    Handle h;
    mirk_platform_testing_set_fresh_fill(h, 0x5c);
    auto *a = static_cast<uint8_t *>(h.alloc(4));
    EXPECT_EQ(a[0], 0x5c);
    EXPECT_EQ(a[3], 0x5c);
    h.free(a);
}

TEST(Memory, NotificationsReachTheHook) {
    Handle h;
    kit::Events log(h);
    uint64_t counter = 0;
    h->write_notify(h->mem_ctx, &counter, 8, 5);
    h->count_notify(h->mem_ctx, &counter, -1, 6);
    ASSERT_EQ(log.all.size(), 2u);
    EXPECT_EQ(log.all[0].kind, MIRK_PLATFORM_TESTING_WRITE_NOTIFY);
    EXPECT_EQ(log.all[0].address, &counter);
    EXPECT_EQ(log.all[0].size, 8u);
    EXPECT_EQ(log.all[0].ctx_id, 5u);
    EXPECT_EQ(log.all[1].kind, MIRK_PLATFORM_TESTING_COUNT_NOTIFY);
    EXPECT_EQ(log.all[1].value, -1);
    EXPECT_EQ(log.all[1].ctx_id, 6u);
}

TEST(Memory, SurvivesManyBlocksInAnyOrder) {
    Handle h;
    std::vector<void *> blocks;
    for (size_t i = 0; i < 5000; ++i) blocks.push_back(h.alloc(i % 97));
    for (size_t i = 0; i < blocks.size(); i += 2) h.free(blocks[i]);
    EXPECT_EQ(mirk_platform_live_blocks(h), 2500u);
    for (size_t i = 1; i < blocks.size(); i += 2) h.free(blocks[i]);
    EXPECT_EQ(mirk_platform_live_bytes(h), 0u);
}
