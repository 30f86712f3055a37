// The blocks of obj_alloc as cells of slabs. Handles use no cells under a memory checker, so the class is tested
// itself.
#include "platform/contract/blocks.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <random>
#include <vector>

namespace {

using mirk::Block;
using mirk::Blocks;

class Cells : public testing::Test {
protected:
    char *allocate(size_t size) {
        const Blocks::Place place = blocks.allocate(size);
        EXPECT_NE(place.address, nullptr);
        *place.block = {++serial, size, 0, false};
        return static_cast<char *>(place.address);
    }
    bool is_live(void *address) const { return blocks.find(address).block != nullptr; }
    void release(void *address) { blocks.release(blocks.find(address)); }

    Blocks blocks{true};
    uint64_t serial = 0;
};

}  // namespace

TEST_F(Cells, BlocksInRandomOrderAreDistinctAlignedAndRecorded) {
    std::mt19937 random(7);
    std::map<char *, Block> expected;
    std::vector<char *> live;
    for (int round = 0; round < 20000; ++round) {
        // Grows first, then shrinks, so that slabs become full and empty.
        const bool grow = random() % 100 < (round < 10000 ? 70u : 30u);
        if (grow || live.empty()) {
            const size_t size = random() % (random() % 8 == 0 ? 3000 : 200);
            char *const block = allocate(size);
            ASSERT_EQ(mirk::address_of(block) % 16, 0u);
            std::memset(block, static_cast<int>(serial % 251), size);
            const auto next = expected.lower_bound(block);
            ASSERT_TRUE(next == expected.end() || next->first >= block + std::max<size_t>(size, 1));
            ASSERT_TRUE(next == expected.begin() || std::prev(next)->first + std::prev(next)->second.size <= block);
            expected[block] = {serial, size, 0, false};
            live.push_back(block);
        } else {
            const size_t i = random() % live.size();
            const Blocks::Place place = blocks.find(live[i]);
            ASSERT_NE(place.block, nullptr);
            const Block known = expected.at(live[i]);
            ASSERT_EQ(place.block->serial, known.serial);
            ASSERT_EQ(place.block->size, known.size);
            for (size_t at = 0; at < known.size; ++at) {
                ASSERT_EQ(static_cast<uint8_t>(live[i][at]), known.serial % 251);
            }
            blocks.release(place);
            EXPECT_FALSE(is_live(live[i]));
            expected.erase(live[i]);
            live[i] = live.back();
            live.pop_back();
        }
        ASSERT_EQ(blocks.size(), expected.size());
    }
    ASSERT_GT(live.size(), 100u) << "blocks that the destructor releases";
    std::map<char *, uint64_t> listed;
    blocks.for_each([&](void *address, const Block &block) { listed[static_cast<char *>(address)] = block.serial; });
    ASSERT_EQ(listed.size(), expected.size());
    for (const auto &[address, block] : expected) EXPECT_EQ(listed[address], block.serial);
}

TEST_F(Cells, EverySizeFitsItsCell) {
    std::vector<char *> filled;
    for (size_t size = 0; size <= Blocks::largest_cell + 1; ++size) {
        filled.push_back(allocate(size));
        std::memset(filled.back(), static_cast<int>(size % 251), size);
    }
    for (size_t size = 0; size < filled.size(); ++size) {
        for (size_t at = 0; at < size; ++at) ASSERT_EQ(static_cast<uint8_t>(filled[size][at]), size % 251);
        release(filled[size]);
    }
    EXPECT_EQ(blocks.size(), 0u);
}

TEST_F(Cells, OnlyTheStartOfALiveBlockIsFound) {
    char *const first = allocate(40), *const second = allocate(40), *const large = allocate(5000);
    for (ptrdiff_t offset = -20000; offset <= 20000; ++offset) {
        char *const address = reinterpret_cast<char *>(mirk::address_of(first) + static_cast<uintptr_t>(offset));
        EXPECT_EQ(is_live(address), address == first || address == second || address == large) << offset;
    }
    release(first);
    EXPECT_FALSE(is_live(first));
    EXPECT_TRUE(is_live(second));
    char on_stack = 0;
    EXPECT_FALSE(is_live(&on_stack));
}

TEST_F(Cells, AFreedCellIsUsedAgain) {
    char *const first = allocate(100);
    allocate(100);
    release(first);
    EXPECT_EQ(allocate(100), first);
}

TEST_F(Cells, AReleasedCellIsKeptForTheNextBlockOfItsSize) {
    EXPECT_EQ(blocks.reuse(100), nullptr);
    char *const first = allocate(100), *const second = allocate(100);
    EXPECT_EQ(blocks.find_kept(first, 100), nullptr);
    release(first);
    EXPECT_EQ(blocks.find_kept(first, 100), nullptr) << "not live";
    release(second);
    EXPECT_EQ(blocks.reuse(200), nullptr);

    const Blocks::Place *const kept = blocks.reuse(97);
    ASSERT_NE(kept, nullptr);
    EXPECT_EQ(kept->address, first);
    *kept->block = {++serial, 97, 0, false};
    EXPECT_EQ(blocks.size(), 1u);
    EXPECT_EQ(blocks.reuse(97), nullptr) << "in use";
    EXPECT_EQ(blocks.find_kept(first, 100), blocks.find(first).block);
    EXPECT_EQ(blocks.find_kept(first, 200), nullptr);
    EXPECT_EQ(blocks.find_kept(second, 100), nullptr);

    // While the kept cell is in use, another takes its place.
    char *const third = allocate(100);
    release(third);
    blocks.release(blocks.find(first));
    EXPECT_EQ(blocks.size(), 0u);
    EXPECT_EQ(allocate(100), third);
    EXPECT_EQ(blocks.find_kept(third, 100), blocks.find(third).block);
    blocks.release_kept(blocks.find_kept(third, 100));
    EXPECT_FALSE(is_live(third));
    EXPECT_EQ(blocks.size(), 0u);
    EXPECT_EQ(blocks.reuse(Blocks::largest_cell + 1), nullptr);
}

TEST_F(Cells, AnEmptySlabServesAnotherSize) {
    char *const small = allocate(16);
    release(small);
    char *const larger = allocate(1000);
    const uintptr_t distance = mirk::address_of(larger) - mirk::address_of(small);
    EXPECT_LT(distance + 16384, 2 * 16384u);
    EXPECT_FALSE(is_live(small) && small != larger);
}

TEST(BlocksOfMalloc, AreUsedForEverySizeIfCellsAreNot) {
    Blocks blocks(false);
    for (const size_t size : {size_t{0}, size_t{1}, size_t{1024}, size_t{1025}}) {
        const Blocks::Place place = blocks.allocate(size);
        ASSERT_NE(place.block, nullptr);
        EXPECT_EQ(place.slab, nullptr);
        place.block->serial = 1;
        EXPECT_EQ(blocks.find(place.address).block, place.block);
        blocks.release(place);
        EXPECT_EQ(blocks.find(place.address).block, nullptr);
    }
}

TEST_F(Cells, ResizedBlocksKeepTheirContentsAndTheirNeighbors) {
    std::vector<char *> neighbors;
    char *block = allocate(1);
    *block = 'a';
    for (size_t size = 1; size < 5000;) {
        neighbors.push_back(allocate(size));
        std::memset(neighbors.back(), 'n', size);
        const size_t more = size + size / 7 + 1;
        const Blocks::Place place = blocks.resize(blocks.find(block), more);
        ASSERT_NE(place.address, nullptr);
        *place.block = {++serial, more, 0, false};
        char *const moved = static_cast<char *>(place.address);
        ASSERT_TRUE(moved == block || !is_live(block));
        block = moved;
        for (size_t i = 0; i < size; ++i) ASSERT_EQ(block[i], 'a');
        std::memset(block, 'a', more);
        size = more;
    }
    EXPECT_EQ(blocks.size(), neighbors.size() + 1);
    for (char *const neighbor : neighbors) {
        const size_t size = blocks.find(neighbor).block->size;
        for (size_t i = 0; i < size; ++i) ASSERT_EQ(neighbor[i], 'n');
        release(neighbor);
    }
    release(block);
    EXPECT_EQ(blocks.size(), 0u);
}
