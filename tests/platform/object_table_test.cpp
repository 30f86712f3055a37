// The table of state offsets: values by object, which disappear with the block that holds the object.
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

#include "platform/contract/address_table.hpp"

namespace {

using Table = mirk::ObjectTable<uint32_t>;

constexpr size_t bucket_bytes = 136, stretch = 256;

// Addresses are never dereferenced.
const char *at(uintptr_t address) { return reinterpret_cast<const char *>(address); }

}  // namespace

TEST(ObjectTable, ReservationsCountEachBlockThatTouchesAStretch) {
    Table table;
    ASSERT_TRUE(table.reserve(at(0x10000), 16));
    ASSERT_TRUE(table.reserve(at(0x10010), 16));
    ASSERT_TRUE(table.reserve(at(0x100f0), 300));
    EXPECT_EQ(table.bytes(), 5 * bucket_bytes);
    EXPECT_EQ(table.bytes_with(1), 6 * bucket_bytes);
    EXPECT_EQ(table.bytes_with(2), 7 * bucket_bytes);
    table.erase_block(0x10000, 16, true);
    table.erase_block(0x100f0, 300, true);
    EXPECT_EQ(table.bytes(), bucket_bytes);
    table.erase_block(0x10010, 16, true);
    EXPECT_EQ(table.bytes(), 0u);
}

TEST(ObjectTable, StretchesWithTheSameLowBitsDoNotHideEachOther) {
    Table table;
    constexpr uintptr_t distance = 128 * stretch;
    for (uintptr_t i = 1; i <= 20; ++i) ASSERT_TRUE(table.put(at(i * distance), static_cast<uint32_t>(i)));
    for (int round = 0; round < 2; ++round) {
        for (uintptr_t i = 1; i <= 20; ++i) ASSERT_EQ(*table.find(at(i * distance)), i);
    }
    EXPECT_EQ(table.find_recent(at(19 * distance)), nullptr);
    EXPECT_EQ(*table.find_recent(at(20 * distance)), 20u);
    table.erase(at(20 * distance));
    EXPECT_EQ(table.find(at(20 * distance)), nullptr);
    EXPECT_EQ(table.find_recent(at(20 * distance)), nullptr);
    EXPECT_EQ(table.size(), 19u);
}

TEST(ObjectTable, AgreesWithAMapInRandomUse) {
    struct Extent {
        uintptr_t begin;
        size_t size;
        bool reserved;
    };
    Table table;
    std::map<uintptr_t, uint32_t> expected;
    std::vector<Extent> blocks;
    std::mt19937 random(11);
    uintptr_t next = 0x40000;
    for (int round = 0; round < 30000; ++round) {
        const auto action = random() % 10;
        if (action == 0 || blocks.empty()) {
            const size_t size = 8 + random() % 800;
            blocks.push_back({next, size, random() % 4 != 0});
            ASSERT_TRUE(!blocks.back().reserved || table.reserve(at(next), size));
            next += (size + 15) / 16 * 16;
        } else if (action == 1 && blocks.size() > 50) {
            const size_t i = random() % blocks.size();
            const Extent block = blocks[i];
            table.erase_block(block.begin, block.size, block.reserved);
            expected.erase(expected.lower_bound(block.begin), expected.lower_bound(block.begin + block.size));
            blocks[i] = blocks.back();
            blocks.pop_back();
        } else {
            const Extent &block = blocks[random() % blocks.size()];
            const uintptr_t object = block.begin + random() % block.size / 8 * 8;
            if (action < 7) {
                const auto value = static_cast<uint32_t>(random());
                ASSERT_TRUE(table.put(at(object), value));
                expected[object] = value;
            } else {
                table.erase(at(object));
                expected.erase(object);
            }
        }
        ASSERT_EQ(table.size(), expected.size());
        const uintptr_t object = 0x40000 + random() % (next - 0x40000) / 8 * 8;
        const uint32_t *const found = table.find(at(object));
        const auto known = expected.find(object);
        ASSERT_EQ(found != nullptr, known != expected.end());
        ASSERT_TRUE(found == nullptr || *found == known->second);
    }
    for (const Extent &block : blocks) table.erase_block(block.begin, block.size, block.reserved);
    EXPECT_EQ(table.size(), 0u);
    EXPECT_EQ(table.bytes(), 0u);
}
