// Arrays at their limits: counts that wrap, failed growth, counts and blocks that do not match.
#include <cerrno>

#include "arrays.h"

using namespace families;

namespace {

TEST(Arrays, AOneByteCountWraps) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_array([&](const ArraySubject &s) {
            if (width(s.count) != 1) return;
            void *object = s.r.create(h, id), *value = filled(h, s.e, 9, {0, 0, false});
            std::uint32_t err = 0;
            s.m.element_set(h, id, object, 254, value, &err);
            EXPECT_EQ(count(h, s, object), 255u);
            s.m.element_set(h, id, object, 255, value, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(count(h, s, object), 0u);
            EXPECT_EQ(s.m.element_get(h, id, object, 0, &err), nullptr);
            EXPECT_EQ(err, static_cast<std::uint32_t>(ENOENT));
            err = 0;
            s.m.element_set(h, id, object, 257, value, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(count(h, s, object), 2u);
            EXPECT_NE(s.m.element_get(h, id, object, 1, &err), nullptr);
            // Setting the next one grows the array again, and moves the two that are counted.
            s.m.element_set(h, id, object, 2, value, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(count(h, s, object), 3u);
            s.e.destroy(h, id, value);
            s.r.destroy(h, id, object);
        });
    }
}

TEST(Arrays, TheHighestIndexFailsWithEnomem) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_array([&](const ArraySubject &s) {
            void *object = s.r.create(h, id), *value = s.e.create(h, id);
            std::uint32_t err = 0;
            Events events(h);
            s.m.element_set(h, id, object, 0xFFFFFFFF, value, &err);
            EXPECT_EQ(err, static_cast<std::uint32_t>(ENOMEM));
            EXPECT_EQ(events.of(MIRK_PLATFORM_TESTING_ALLOC).at(0).size, (std::uint64_t{1} << 32) * s.e.sizeof_(h));
            EXPECT_EQ(count(h, s, object), 0u);
            s.r.destroy(h, id, object);
            s.e.destroy(h, id, value);
        });
    }
}

TEST(Arrays, AFailedBlockAllocationChangesNothing) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_array([&](const ArraySubject &s) {
            void *object = s.r.create(h, id), *value = filled(h, s.e, 9, {1, 1, false});
            put(h, s, object, 1, 5);
            const Lines before = content(h, s.r, object), kept = content(h, s.e, value);
            std::uint32_t err = 0;
            h.fail_alloc(1);
            s.m.element_set(h, id, object, 4, value, &err);
            EXPECT_EQ(err, static_cast<std::uint32_t>(ENOMEM));
            EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(ENOMEM));
            EXPECT_EQ(content(h, s.r, object), before);
            EXPECT_EQ(content(h, s.e, value), kept);
            EXPECT_EQ(count(h, s, object), 2u);
            s.e.destroy(h, id, value);
            s.r.destroy(h, id, object);
            EXPECT_EQ(h.live_blocks(), 0u);
        });
    }
}

TEST(Arrays, AFailedStateAllocationKeepsTheElementsAndLosesTheOldVector) {
    Handle h(Tracking::on);
    each_array([&](const ArraySubject &s) {
        void *object = s.r.create(h, id), *value = filled(h, s.e, 9, {1, 1, false});
        put(h, s, object, 1, 5);
        const std::size_t leaked = h.live_blocks();
        std::uint32_t err = 0;
        h.fail_alloc(2);
        s.m.element_set(h, id, object, 4, value, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(ENOMEM));
        EXPECT_EQ(h.live_blocks(), leaked);
        EXPECT_EQ(count(h, s, object), 5u);
        err = 0;
        std::uint8_t *states = bytes(object);
        s.m.element_state_flag_get_arr(h, id, object, &states, &err);
        EXPECT_EQ(states, nullptr);
        EXPECT_EQ(s.m.element_state_flag_get(h, id, object, 1, &err), 0);
        s.m.element_state_flag_set(h, id, object, 1, 9, &err);
        EXPECT_EQ(s.m.element_state_flag_get(h, id, object, 1, &err), 0);
        s.m.element_set(h, id, object, 4, value, &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(content(h, s.e, s.m.element_get(h, id, object, 1, &err)), value_of(h, s, 5));
        s.e.destroy(h, id, value);
        s.r.destroy(h, id, object);
        EXPECT_EQ(h.live_blocks(), 1u) << "the vector that was replaced";
        mirk_platform_block block;
        mirk_platform_list_blocks(h, &block, 1);
        h->obj_free(h->mem_ctx, id, block.address);
    });
}

TEST(Arrays, ACountWithoutABlockMeansNoElements) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_array([&](const ArraySubject &s) {
            void *object = s.r.create(h, id), *value = filled(h, s.e, 9, {1, 1, false});
            std::memset(at(s.r, object, s.count), 0x07, width(s.count));
            std::uint32_t err = 0;
            EXPECT_EQ(s.m.element_get(h, id, object, 0, &err), nullptr);
            EXPECT_EQ(err, static_cast<std::uint32_t>(ENOENT));
            err = 0;
            s.r.set_all_state_tracking_flag(h, id, object, 0);
            s.m.element_set(h, id, object, 1, value, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(count(h, s, object), 2u);
            s.e.destroy(h, id, value);
            s.r.destroy(h, id, object);
            EXPECT_EQ(h.live_blocks(), 0u);
        });
    }
}

TEST(Arrays, ABlockWithACountOfZeroIsReleasedUnvisited) {
    Handle h;
    each_array([&](const ArraySubject &s) {
        void *object = s.r.create(h, id);
        std::uint32_t err = 0;
        s.m.element_set(h, id, object, 1, nullptr, &err);
        std::memset(at(s.r, object, s.count), 0, width(s.count));
        const std::uint64_t destroyed = entry(*s.e.type).num_destroyed;
        s.r.destroy(h, id, object);
        EXPECT_EQ(entry(*s.e.type).num_destroyed, destroyed);
        EXPECT_EQ(h.live_blocks(), 0u);
    });
}

}  // namespace
