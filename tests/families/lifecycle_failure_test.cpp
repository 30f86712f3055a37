// What remains when creation or destruction fails halfway.
#include <cerrno>

#include "lumo_ui_tarn.h"
#include "values.h"

using namespace families;

namespace {

// True if a member of this kind is embedded at any depth.
bool holds(const RecordOperations &r, Kind kind) {
    for (const MemberOperations &m : r.members) {
        if (m.member->kind == kind) return true;
        if (m.member->kind == Kind::record && holds(nested_record(m), kind)) return true;
    }
    return false;
}

TEST(Lifecycle, AFailedLookUpIsClearedForRecordsAndFailsForEmbeddedEnumerations) {
    Handle h;
    std::uint32_t failed = 0, made = 0;
    each_record([&](const RecordOperations &r) {
        if (holds(r, Kind::boolean) || holds(r, Kind::address)) return;  // their results are up to the runtime
        h.fail(MIRK_PLATFORM_TESTING_VARIANT_LOOKUP, EPROTO);
        Trace trace;
        void *object = r.create(h, id);
        h.fail(MIRK_PLATFORM_TESTING_VARIANT_LOOKUP, 0, 0, 0);
        if (holds(r, Kind::enumeration)) {
            ++failed;
            EXPECT_EQ(object, nullptr);
            EXPECT_EQ(trace.lines(),
                      (Lines{"type 3 (ERR): error in " + name(r) + " create: " + std::strerror(EPROTO)}));
        } else {
            ++made;
            EXPECT_NE(object, nullptr);
            EXPECT_EQ(trace.lines(), Lines{});
        }
        r.destroy(h, id, object);
        EXPECT_EQ(h.live_blocks(), 0u);
    });
    EXPECT_GT(failed, 1u);
    EXPECT_GT(made, 10u);
}

TEST(Lifecycle, AFailedInitializeGivesNullEvenInAStickyCreate) {
    Handle h;
    const RecordOperations &r = record("lumo_tarn_static_exmem_info");
    h.fail(MIRK_PLATFORM_TESTING_VARIANT_LOOKUP, EPROTO);
    Trace trace;
    EXPECT_EQ(r.create_cr(h), nullptr);
    EXPECT_EQ(trace.lines(), (Lines{std::string("type 3 (ERR): error in lumo_tarn_static_exmem_info create: ") +
                                    std::strerror(EPROTO)}));
    EXPECT_EQ(h->cr_mode, 0u);
    EXPECT_EQ(h.live_blocks(), 0u);
}

TEST(Lifecycle, AllMembersAreInitializedEvenIfOneFails) {
    Handle h;
    const RecordOperations &r = record("lumo_tarn_static_exmem_info");
    alignas(8) std::uint8_t object[256] = {};
    std::uint32_t err = 0;
    h.fail(MIRK_PLATFORM_TESTING_VARIANT_LOOKUP, EPROTO, 1, 1);  // the enumeration's, which is the first
    r.initialize(h, id, object, r.type, 1, 0, 0, nullptr, &err);
    EXPECT_EQ(err, static_cast<std::uint32_t>(EPROTO));
    const RecordOperations &last = record("lumo_tarn_exmem_info");
    EXPECT_EQ(header(at(r, object, member(r, "exmem")))->tinfo, last.type);
    r.destroy_internal(h, id, object, 0);
}

TEST(Lifecycle, AMembersErrorReachesAStickySlotToo) {
    Handle h;
    const RecordOperations &r = record("lumo_tarn_static_exmem_info");
    alignas(8) std::uint8_t object[256] = {};
    h.fail(MIRK_PLATFORM_TESTING_VARIANT_LOOKUP, EPROTO, 1, 1);
    r.initialize(h, id, object, r.type, 1, 0, 0, nullptr, &h->last_error);
    EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EPROTO));
    EXPECT_NE(header(at(r, object, member(r, "exmem")))->tinfo, nullptr);
    r.destroy_internal(h, id, object, 0);
}

TEST(Lifecycle, ANestedObjectNeedsItsStateBase) {
    Handle h(Tracking::on);
    each_record([&](const RecordOperations &r) {
        std::vector<std::uint64_t> storage(table(r).tracked / 8 + 1);
        void *object = storage.data();
        const std::uint64_t created = entry(*r.type).num_created;
        std::uint32_t err = 0;
        Trace trace;
        Events events(h);
        r.initialize(h, id, object, r.type, 1, 0, nested, nullptr, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(trace.lines(),
                  (Lines{"type 3 (ERR): sttr_base can not be NULL in NESTED case. Please check the parent object and "
                         "provide the correct state tracking base pointer"}));
        EXPECT_EQ(header(object)->tinfo, r.type);
        EXPECT_EQ(header(object)->obj_flag, nested | tracked);
        EXPECT_EQ(entry(*r.type).num_created, created + 1);
        EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_OFFSET_UPDATE), 0u);
        for (const MemberOperations &m : r.members) {
            if (is_embedded(m)) {
                EXPECT_EQ(header(at(r, object, m))->tinfo, nullptr) << name(m);
            }
        }
    });
}

TEST(Lifecycle, AFailedMappingRemovalKeepsTheBlockButCountsIt) {
    Handle h(Tracking::on);
    each_record([&](const RecordOperations &r) {
        void *object = r.create(h, id);
        mirk_platform_set_ra_data(h, object, nullptr, 1);
        const std::uint64_t destroyed = entry(*r.type).num_destroyed;
        // Members with areas have mappings of their own, whose removal succeeds.
        Events events(h);
        std::uint32_t mappings = 0;
        std::function<void(const RecordOperations &)> tally = [&](const RecordOperations &inner) {
            for (const MemberOperations &m : inner.members) {
                if (m.member->kind == Kind::record) tally(nested_record(m));
                if (has_area(m)) ++mappings;
            }
        };
        tally(r);
        h.fail(MIRK_PLATFORM_TESTING_HD_MAPPING_DESTROY, EPROTO, mappings, 1);
        Trace trace;
        r.destroy(h, id, object);
        EXPECT_EQ(trace.lines(),
                  (Lines{"type 3 (ERR): " + name(r) + " destroy: Failed to remove oid mapping for object. Error " +
                         std::strerror(EPROTO)}));
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EPROTO));
        EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_FREE), 0u);
        EXPECT_EQ(header(object)->tinfo, r.type);
        EXPECT_EQ(entry(*r.type).num_destroyed, destroyed + 1);
        h->obj_free(h->mem_ctx, id, object);
    });
}

using LifecycleDeathTest = testing::Test;

TEST(LifecycleDeathTest, DestroyingAnObjectWithADamagedTypeAborts) {
    Handle h;
    for (const char *which : {"lumo_tarn_debug_setting", "lumo_tarn_dp_tc", "lumo_tarn_cl_kesh_appl"}) {
        const RecordOperations &r = record(which);
        void *object = r.create(h, id);
        EXPECT_EXIT(
            {
                header(object)->tinfo = nullptr;
                r.destroy(h, id, object);
            },
            testing::KilledBySignal(SIGABRT), "\\(FATAL\\): tinfo is null or corrupted");
        EXPECT_EXIT(
            {
                r.type->magic = 0xbeeff00c;
                r.destroy(h, id, object);
            },
            testing::KilledBySignal(SIGABRT), "\\(FATAL\\): tinfo is null or corrupted");
        EXPECT_EXIT(
            {
                r.type->variant_info = nullptr;
                r.destroy(h, id, object);
            },
            testing::KilledBySignal(SIGABRT), "\\(FATAL\\): varinfo is NULL");
        EXPECT_EXIT(
            {
                r.type->variant_info = nullptr;
                r.create(h, id);
            },
            testing::KilledBySignal(SIGABRT), "\\(FATAL\\): varinfo is NULL");
        r.destroy(h, id, object);
    }
}

}  // namespace
