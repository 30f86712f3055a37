// Each allocation fails in turn, once and for good: nothing breaks, and everything can be released.
#include <cerrno>

#include "values.h"

using namespace families;

namespace {

// Creates, fills and destroys with failing allocations until a run meets no failure.
void sweep(const Handle &h, const std::function<void()> &run) {
    for (bool onwards : {false, true}) {
        for (std::uint64_t nth = 1;; ++nth) {
            SCOPED_TRACE(std::to_string(nth) + (onwards ? " onwards" : " alone"));
            const std::uint64_t before = h.allocs();
            h.fail_alloc(nth, onwards);
            run();
            h.fail_alloc(0);
            EXPECT_EQ(h.live_blocks(), 0u);
            if (h.live_blocks() != 0 || h.allocs() - before < nth) break;
        }
    }
}

TEST(Allocation, CreatingAndSettingSurvivesEachFailure) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_record([&](const RecordOperations &r) {
            std::uint64_t failures = 0;
            sweep(h, [&] {
                void *object = r.create(h, id);
                if (object == nullptr) {
                    ++failures;
                    return;
                }
                const std::uint32_t err = fill(h, r, object, 3, {2, 2, true});
                EXPECT_TRUE(err == 0 || err == ENOMEM || (err == EINVAL && mode != Tracking::on)) << err;
                if (err == ENOMEM) ++failures;
                content(h, r, object);
                char text[16];
                r.print_cr(h, object, text, sizeof text);
                h->last_error = 0;
                r.len(h, id, object);
                r.compare(object, object);
                r.hash(object, 1);
                r.destroy(h, id, object);
            });
            EXPECT_GT(failures, 0u);
        });
    }
}

TEST(Allocation, DeepCopiesIntoElementsSurviveEachFailure) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_member([&](const RecordOperations &r, const MemberOperations &m) {
            if (m.element_set == nullptr) return;
            const RecordOperations &e = nested_record(m);
            sweep(h, [&] {
                h->last_error = 0;
                void *object = r.create(h, id), *value = e.create(h, id);
                if (object != nullptr && value != nullptr) {
                    fill(h, e, value, 3, {2, 2, false});
                    h->last_error = 0;
                    m.element_set_cr(h, object, 1, value, 0);
                    h->last_error = 0;
                    content(h, r, object);
                }
                h->last_error = 0;
                e.destroy(h, id, value);
                r.destroy(h, id, object);
            });
        });
    }
}

TEST(Allocation, AssignmentAllocatesNothing) {
    Handle h(Tracking::on);
    each_record([&](const RecordOperations &r) {
        void *source = filled(h, r, 3), *destination = r.create(h, id);
        const std::uint64_t before = h.allocs();
        std::uint32_t err = 0;
        r.set(h, id, destination, source, &err);
        EXPECT_EQ(h.allocs(), before);
        r.destroy(h, id, source);
        r.destroy(h, id, destination);
    });
}

TEST(Allocation, FailedPrivateTypesFallBackToTheModulesRecords) {
    Handle h({.tracking = Tracking::none, .private_types = 1});
    mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_SYS_ALLOC, 1, 1);
    each_record([&](const RecordOperations &r) {
        void *object = r.create(h, id);
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(header(object)->tinfo, r.type);
        r.destroy(h, id, object);
    });
    EXPECT_EQ(h.live_blocks(), 0u);
}

}  // namespace
