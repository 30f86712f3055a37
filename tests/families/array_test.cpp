// Arrays: elements by index, and growth.
#include <cerrno>

#include "arrays.h"

using namespace families;

namespace {

// In a process of its own, since the line is traced once per process.
[[noreturn]] void grow_every_array_and_exit() {
    Handle h;
    bool good = true;
    each_array([&](const ArraySubject &s) {
        void *object = s.r.create(h, id), *other = s.r.create(h, id);
        std::uint32_t err = 0;
        Trace trace;
        s.m.element_set(h, id, object, 5, nullptr, &err);
        good = good && trace.lines().empty();
        for (std::uint32_t i : {6u, 7u, 8u}) s.m.element_set(h, id, object, i, nullptr, &err);
        s.m.element_set(h, id, other, 0, nullptr, &err);
        s.m.element_set(h, id, other, 1, nullptr, &err);
        const Lines expected{"type 3 (ERR): Reallocating resource for " + name(s.r)};
        good = good && err == 0 && trace.lines() == expected;
        s.r.destroy(h, id, object);
        s.r.destroy(h, id, other);
    });
    std::exit(good && !testing::Test::HasFailure() ? 0 : 1);
}

TEST(ArrayGrowthDeathTest, IsReportedOncePerArrayInAProcess) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(grow_every_array_and_exit(), testing::ExitedWithCode(0), "");
}

TEST(Arrays, ANewOneIsEmpty) {
    Handle h;
    each_array([&](const ArraySubject &s) {
        void *object = s.r.create(h, id);
        std::uint32_t err = 0;
        Trace trace;
        EXPECT_EQ(count(h, s, object), 0u);
        EXPECT_EQ(s.m.element_get(h, id, object, 0, &err), nullptr);
        EXPECT_EQ(err, static_cast<std::uint32_t>(ENOENT));
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(ENOENT));
        EXPECT_EQ(trace.lines(), Lines{});
        EXPECT_EQ(s.count.set, nullptr);
        EXPECT_EQ(s.count.set_value, nullptr);
        s.r.destroy(h, id, object);
    });
}

TEST(Arrays, ANullObjectIsRefused) {
    Handle h;
    each_array([&](const ArraySubject &s) {
        std::uint32_t err = 0;
        s.m.element_set(h, id, nullptr, 0, nullptr, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EINVAL));
        h->last_error = 0;
        EXPECT_EQ(s.m.element_set_cr(h, nullptr, 0, nullptr, 1), static_cast<std::uint32_t>(EINVAL));
        h->last_error = 0;
    });
}

TEST(Arrays, SettingAnIndexPastTheEndInitializesTheGap) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_array([&](const ArraySubject &s) {
            void *object = s.r.create(h, id);
            Trace trace;
            put(h, s, object, 5, 7);
            EXPECT_EQ(trace.lines(), Lines{});
            EXPECT_EQ(count(h, s, object), 6u);
            void *fresh = s.e.create(h, id);
            const Lines empty = content(h, s.e, fresh);
            s.e.destroy(h, id, fresh);
            auto *block = read<std::uint8_t *>(at(s.r, object, s.m));
            std::uint32_t err = 0;
            for (std::uint32_t i = 0; i < 6; ++i) {
                void *element = s.m.element_get(h, id, object, i, &err);
                EXPECT_EQ(element, block + i * table(s.e).base);
                EXPECT_EQ(content(h, s.e, element), i < 5 ? empty : value_of(h, s, 7));
                EXPECT_EQ(header(element)->tinfo, s.e.type);
                // Assignment copies the flags of the value, which was an object of its own.
                EXPECT_EQ(header(element)->obj_flag & nested, i < 5 ? nested : 0);
            }
            EXPECT_EQ(s.m.element_get(h, id, object, 6, &err), nullptr);
            EXPECT_EQ(err, static_cast<std::uint32_t>(ENOENT));
            s.r.destroy(h, id, object);
            EXPECT_EQ(h.live_blocks(), 0u);
        });
    }
}

TEST(Arrays, StateAreasFollowTheLastElement) {
    Handle h(Tracking::on);
    each_array([&](const ArraySubject &s) {
        void *object = s.r.create(h, id);
        for (std::uint32_t n : {1u, 2u, 5u}) {
            put(h, s, object, n - 1, 7);
            auto *block = read<std::uint8_t *>(at(s.r, object, s.m));
            for (std::uint32_t k = 0; k < n; ++k) {
                std::uint8_t *element = block + k * table(s.e).base;
                std::uint8_t *expected = block + n * table(s.e).base + k * table(s.e).state;
                EXPECT_EQ(h.offset_of(element), static_cast<std::uint32_t>(expected - element));
            }
        }
        s.r.destroy(h, id, object);
    });
}

TEST(Arrays, GrowthKeepsElementsWithTheirBlocksAndStates) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_array([&](const ArraySubject &s) {
            void *object = s.r.create(h, id);
            std::vector<Lines> expected;
            std::uint32_t err = 0;
            for (std::uint32_t i = 0; i < 4; ++i) {
                put(h, s, object, i, 100 + i);
                void *element = s.m.element_get(h, id, object, i, &err);
                for (const MemberOperations &inner : s.e.members) {
                    if (mode != Tracking::on || inner.state_flag_set == nullptr) continue;
                    inner.state_flag_set(h, id, element, static_cast<std::uint8_t>(40 + i), &err);
                }
                if (mode == Tracking::on)
                    s.m.element_state_flag_set(h, id, object, i, static_cast<std::uint8_t>(60 + i), &err);
                expected.push_back(content(h, s.e, element));
            }
            for (std::uint32_t i = 0; i < 4; ++i) {
                EXPECT_EQ(content(h, s.e, s.m.element_get(h, id, object, i, &err)), expected[i]) << i;
                if (mode == Tracking::on) {
                    EXPECT_EQ(s.m.element_state_flag_get(h, id, object, i, &err), 60 + i);
                }
            }
            EXPECT_EQ(err, 0u);
            s.r.destroy(h, id, object);
            EXPECT_EQ(h.live_blocks(), 0u);
            EXPECT_EQ(mirk_platform_testing_offset_entries(h), 0u);
        });
    }
}

TEST(Arrays, SettingAnExistingElementAllocatesNothingAndMovesTheBlocks) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_array([&](const ArraySubject &s) {
            void *object = s.r.create(h, id);
            void *fresh = s.e.create(h, id);
            std::uint32_t err = 0;
            s.m.element_set(h, id, object, 1, fresh, &err);
            s.e.destroy(h, id, fresh);
            void *value = filled(h, s.e, 9, {1, 2, false});
            const Lines expected = content(h, s.e, value);
            mirk_set_instance_modified(object, 1, 0, 0);
            Events events(h);
            s.m.element_set(h, id, object, 0, value, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_ALLOC), 0u);
            EXPECT_EQ(count(h, s, object), 2u);
            EXPECT_EQ(content(h, s.e, s.m.element_get(h, id, object, 0, &err)), expected);
            EXPECT_EQ(mirk_get_instance_modified(object, 1, 0), 0u) << "unlike other setters";
            for (const MemberOperations &inner : s.e.members) {
                if (inner.member->kind != Kind::array && inner.member->kind != Kind::string) continue;
                EXPECT_EQ(read<void *>(at(s.e, value, inner)), nullptr);
            }
            s.e.destroy(h, id, value);
            s.r.destroy(h, id, object);
            EXPECT_EQ(h.live_blocks(), 0u);
        });
    }
}

TEST(Arrays, ANullValueGrowsAndChangesNothingElse) {
    for (Tracking mode : {Tracking::none, Tracking::off}) {
        Handle h(mode);
        each_array([&](const ArraySubject &s) {
            void *object = s.r.create(h, id);
            std::uint32_t err = 0;
            s.m.element_set(h, id, object, 2, nullptr, &err);
            put(h, s, object, 1, 5);
            const Lines before = content(h, s.r, object);
            Events events(h);
            s.m.element_set(h, id, object, 1, nullptr, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(content(h, s.r, object), before);
            EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_WRITE_NOTIFY), 0u);
            s.r.destroy(h, id, object);
        });
    }
}

TEST(Arrays, ObjectAndValueMustBeTrackedOnATrackingHandle) {
    Handle h(Tracking::on);
    each_array([&](const ArraySubject &s) {
        void *object = s.r.create(h, id), *value = s.e.create(h, id);
        Trace trace;
        std::uint32_t err = 0;
        s.m.element_set(h, id, object, 0, nullptr, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EINVAL));
        err = 0;
        header(value)->obj_flag &= static_cast<std::uint8_t>(~tracked);
        s.m.element_set(h, id, object, 0, value, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        header(object)->obj_flag &= static_cast<std::uint8_t>(~tracked);
        err = 0;
        s.m.element_set(h, id, object, 0, value, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(trace.lines(), (Lines{"type 3 (ERR): The val object is not state tracked",
                                        "type 3 (ERR): The val object is not state tracked",
                                        "type 3 (ERR): The object is not state tracked"}));
        EXPECT_EQ(count(h, s, object), 0u);
        s.r.destroy(h, id, object);
        s.e.destroy(h, id, value);
        EXPECT_EQ(h.live_blocks(), 0u);
    });
}

TEST(Arrays, AValueFromTheOldBlockIsFoundAfterGrowth) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_array([&](const ArraySubject &s) {
            void *object = s.r.create(h, id);
            put(h, s, object, 0, 5);
            put(h, s, object, 1, 6);
            std::uint32_t err = 0;
            void *inside = s.m.element_get(h, id, object, 1, &err);
            const Lines expected = value_of(h, s, 6), other = value_of(h, s, 5);
            s.m.element_set(h, id, object, 2, inside, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(content(h, s.e, s.m.element_get(h, id, object, 2, &err)), expected);
            EXPECT_EQ(content(h, s.e, s.m.element_get(h, id, object, 0, &err)), other);
            s.r.destroy(h, id, object);
            EXPECT_EQ(h.live_blocks(), 0u);
        });
    }
}

TEST(Arrays, ADeepCopyDoesNotChangeTheValue) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_array([&](const ArraySubject &s) {
            void *object = s.r.create(h, id), *value = filled(h, s.e, 9, {1, 2, false});
            const Lines expected = content(h, s.e, value);
            EXPECT_EQ(s.m.element_set_cr(h, object, 1, value, 0), 0u);
            EXPECT_EQ(content(h, s.e, value), expected);
            std::uint32_t err = 0;
            EXPECT_EQ(content(h, s.e, s.m.element_get(h, id, object, 1, &err)), expected);
            s.e.destroy(h, id, value);
            EXPECT_EQ(content(h, s.e, s.m.element_get(h, id, object, 1, &err)), expected);
            s.r.destroy(h, id, object);
            EXPECT_EQ(h.live_blocks(), 0u);
        });
    }
}

TEST(Arrays, TheStickySetMovesWithTheDefaultIdInAnyOtherCopyMode) {
    Handle h;
    mirk_platform_handle_set_default_id(h, 90);
    each_array([&](const ArraySubject &s) {
        void *object = s.r.create_cr(h), *value = filled(h, s.e, 9, {1, 2, false});
        Events events(h);
        EXPECT_EQ(s.m.element_set_cr(h, object, 0, value, 2), 0u);
        EXPECT_EQ(events.of(MIRK_PLATFORM_TESTING_ALLOC).at(0).ctx_id, 90u);
        h->last_error = EIO;
        EXPECT_EQ(s.m.element_set_cr(h, object, 3, value, 2), static_cast<std::uint32_t>(EIO));
        EXPECT_EQ(count(h, s, object), 1u);
        h->last_error = 0;
        s.e.destroy(h, id, value);
        s.r.destroy_cr(h, object);
        EXPECT_EQ(h.live_blocks(), 0u);
    });
}

}  // namespace
