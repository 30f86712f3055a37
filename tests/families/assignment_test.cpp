// Assignment of whole records: a raw copy that is then corrected, so that one object owns the blocks that both pointed
// to.
#include <cerrno>

#include "values.h"

using namespace families;

namespace {

void expect_no_blocks(const RecordOperations &r, void *object) {
    for (const MemberOperations &m : r.members) {
        if (m.member->kind == Kind::record) expect_no_blocks(nested_record(m), at(r, object, m));
        if (m.member->kind != Kind::array && m.member->kind != Kind::string) continue;
        EXPECT_EQ(read<void *>(at(r, object, m)), nullptr) << name(m);
        const MemberOperations &counter = r.members[index_of(r, m) - 1];
        std::uint64_t count = 0;
        std::memcpy(&count, at(r, object, counter), width(counter));
        EXPECT_EQ(count, 0u) << name(counter);
    }
}

// The area of each embedded object is within that of its owner.
void expect_own_areas(const Handle &h, const RecordOperations &r, void *object, std::uintptr_t state) {
    for (const MemberOperations &m : r.members) {
        if (!has_area(m)) continue;
        void *child = at(r, object, m);
        const std::uintptr_t inner = state + member_layout(r, m).area;
        EXPECT_EQ(h.offset_of(child), static_cast<std::uint32_t>(inner - reinterpret_cast<std::uintptr_t>(child)))
            << name(m);
        if (m.member->kind == Kind::record) expect_own_areas(h, nested_record(m), child, inner);
    }
}

TEST(Assignment, MovesValuesStatesAndBlocks) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_record([&](const RecordOperations &r) {
            const bool on = mode == Tracking::on;
            void *source = r.create(h, id), *destination = r.create(h, id);
            fill(h, r, source, 31, {2, 3, on});
            const Lines before = content(h, r, source);
            const std::size_t blocks = h.live_blocks();
            std::uint32_t err = 0;
            r.set(h, id, destination, source, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(content(h, r, destination), before);
            expect_no_blocks(r, source);
            EXPECT_EQ(h.live_blocks(), blocks);
            if (on) expect_own_areas(h, r, destination, reinterpret_cast<std::uintptr_t>(area(r, destination)));
            r.destroy(h, id, source);
            EXPECT_EQ(content(h, r, destination), before) << "nothing is shared any more";
            r.destroy(h, id, destination);
            EXPECT_EQ(h.live_blocks(), 0u);
        });
    }
}

TEST(Assignment, AssigningAnObjectToItselfOnlyAdjustsIt) {
    Handle h(Tracking::on);
    each_record([&](const RecordOperations &r) {
        void *object = filled(h, r, 3);
        const Lines before = content(h, r, object);
        std::uint32_t err = EIO;
        h->last_error = 9;
        Events events(h);
        r.set(h, id, object, object, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EIO));
        EXPECT_EQ(h->last_error, 9u);
        ASSERT_EQ(events.all.size(), 1u);
        EXPECT_EQ(events.all[0].kind, MIRK_PLATFORM_TESTING_ADJUST_VARIANT);
        EXPECT_EQ(content(h, r, object), before);
        r.destroy(h, id, object);
        h->last_error = 0;
    });
}

TEST(Assignment, RunsEvenIfTheSlotIsSet) {
    Handle h;
    const RecordOperations &r = record("lumo_tarn_debug_setting");
    void *source = filled(h, r, 3), *destination = r.create(h, id);
    std::uint32_t err = EIO;
    h->last_error = 9;
    r.set(h, id, destination, source, &err);
    EXPECT_EQ(err, static_cast<std::uint32_t>(EIO));
    EXPECT_EQ(h->last_error, 9u);
    err = 0;
    EXPECT_EQ(content(h, r, destination), content(h, r, source));
    r.destroy(h, id, source);
    r.destroy(h, id, destination);
}

TEST(Assignment, NullIsRefusedAndChangesNothing) {
    Handle h(Tracking::on);
    each_record([&](const RecordOperations &r) {
        void *object = filled(h, r, 3);
        const Lines before = content(h, r, object);
        std::uint32_t err = 0;
        r.set(h, id, object, nullptr, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(content(h, r, object), before);
        r.destroy(h, id, object);
    });
    for (const auto &e : tarn::reflect::enumerations()) {
        void *object = e.create(h, id);
        std::uint32_t err = 0;
        e.set(h, id, object, nullptr, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EINVAL));
        e.destroy(h, id, object);
    }
}

TEST(Assignment, CopiesTheHeaderAsWell) {
    Handle h;
    const RecordOperations &r = record("lumo_tarn_debug_setting");
    void *source = r.create(h, id), *destination = r.create(h, id);
    header(source)->variant = -3;
    header(source)->home_variant = -4;
    std::uint32_t err = 0;
    r.set(h, id, destination, source, &err);
    EXPECT_EQ(header(destination)->variant, -3);
    EXPECT_EQ(header(destination)->home_variant, -4);
    header(source)->variant = header(destination)->variant = 0;
    r.destroy(h, id, source);
    r.destroy(h, id, destination);
}

TEST(Assignment, TheOffsetBitIsKeptUnlessThereIsNoDescriptor) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        const RecordOperations &r = record("lumo_tarn_debug_setting");
        for (int own : {0, 1}) {
            for (int others : {0, 1}) {
                void *source = r.create(h, id), *destination = r.create(h, id);
                // An offset equal to the default.
                if (own) mirklib_update_sttr_offset(h, id, destination, table(r).base);
                if (others) mirklib_update_sttr_offset(h, id, source, table(r).base);
                std::uint32_t err = 0;
                r.set(h, id, destination, source, &err);
                EXPECT_EQ((header(destination)->obj_flag & has_offset) != 0, mode == Tracking::none ? others : own);
                EXPECT_EQ(err, 0u);
                r.destroy(h, id, source);
                r.destroy(h, id, destination);
            }
        }
    }
}

TEST(Assignment, AnUntrackedSourceOnATrackingHandleLosesItsBlocksAndFails) {
    Handle h(Tracking::on), off(Tracking::off);
    each_record([&](const RecordOperations &r) {
        // The source is like one created without tracking, in the same memory.
        mirk_platform_testing_set_sttr_mode(h, 0xDDDD);
        void *source = filled(h, r, 8);
        mirk_platform_testing_set_sttr_mode(h, 0xEEEE);
        void *destination = r.create(h, id);
        std::uint32_t err = 0;
        Trace trace;
        r.set(h, id, destination, source, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(trace.lines(), (Lines{"type 3 (ERR): The object is not state tracked"}));
        EXPECT_EQ(header(destination)->obj_flag & tracked, 0);
        expect_no_blocks(r, source);
        r.destroy(h, id, source);
        r.destroy(h, id, destination);
        EXPECT_EQ(h.live_blocks(), 0u);
    });
}

// True if neither the object nor a record or an address in it has an offset, at any depth.
void expect_untracked(const RecordOperations &r, void *object) {
    EXPECT_EQ(header(object)->obj_flag & tracked, 0) << name(r);
    for (const MemberOperations &m : r.members) {
        void *field = at(r, object, m);
        if (m.member->kind == Kind::record) expect_untracked(nested_record(m), field);
        if (m.member->kind == Kind::address) {
            EXPECT_EQ(header(field)->obj_flag & tracked, 0) << name(r) << '.' << m.member->name;
        }
    }
}

TEST(Assignment, ADestinationWithoutAStateAreaFailsAndStaysUntracked) {
    Handle h(Tracking::on);
    each_record([&](const RecordOperations &r) {
        mirk_platform_testing_set_sttr_mode(h, 0xDDDD);
        void *destination = r.create(h, id);
        mirk_platform_testing_set_sttr_mode(h, 0xEEEE);
        void *source = filled(h, r, 8);
        std::uint32_t err = 0;
        Trace trace;
        header(destination)->obj_flag |= 1;  // this flag only concerns references
        r.set(h, id, destination, source, &err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(trace.lines(), (Lines{"type 3 (ERR): The object is not state tracked"}));
        expect_untracked(r, destination);
        expect_no_blocks(r, source);
        // The source keeps its vectors of element states, since the destination has no room for them.
        r.destroy(h, id, source);
        r.destroy(h, id, destination);
        EXPECT_EQ(h.live_blocks(), 0u);
    });
}

TEST(Assignment, TheDestinationsOldBlocksAreLost) {
    Handle h;
    const RecordOperations &r = record("lumo_tarn_cl_kesh_appl");
    void *source = filled(h, r, 8), *destination = filled(h, r, 9);
    ASSERT_EQ(h.live_blocks(), 6u);
    std::uint32_t err = 0;
    r.set(h, id, destination, source, &err);
    r.destroy(h, id, source);
    r.destroy(h, id, destination);
    h.expect_lost_blocks(2);
}

TEST(Assignment, ANestedRecordDoesNotOverwriteTheNextMember) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_member([&](const RecordOperations &r, const MemberOperations &m) {
            if (m.member->kind != Kind::record) return;
            const RecordOperations &n = nested_record(m);
            void *object = filled(h, r, 5, {0, 0, false}), *value = filled(h, n, 6, {1, 1, false});
            std::uint32_t err = 0;
            const std::vector<std::uint8_t> before(bytes(object), bytes(object) + table(r).base);
            m.set(h, id, object, value, &err);
            EXPECT_EQ(err, 0u);
            const std::uint32_t end = offset(r, m) + table(n).base;
            EXPECT_EQ(std::memcmp(bytes(object) + end, before.data() + end, before.size() - end), 0);
            n.destroy(h, id, value);
            r.destroy(h, id, object);
            EXPECT_EQ(h.live_blocks(), 0u);
        });
    }
}

TEST(CopyoutCleanup, TheOldLocationLosesItsBlocksAndTheNewOneKeepsThem) {
    for (Tracking mode : {Tracking::none, Tracking::off}) {
        Handle h(mode);
        each_record([&](const RecordOperations &r) {
            void *old_location = filled(h, r, 5), *new_location = r.create(h, id);
            const Lines before = content(h, r, old_location);
            std::memcpy(new_location, old_location, table(r).base);
            std::uint32_t err = 0;
            r.post_copyout_cleanup(h, id, new_location, old_location, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(content(h, r, new_location), before);
            expect_no_blocks(r, old_location);
            r.destroy(h, id, old_location);
            r.destroy(h, id, new_location);
            EXPECT_EQ(h.live_blocks(), 0u);
        });
    }
}

}  // namespace
