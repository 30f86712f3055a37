// The calls of whole-record assignment, and of the clean-up after a move.
#include <cerrno>

#include "recorded.h"

using namespace families;

namespace {

using AssignmentSequence = Sequence;

TEST_F(AssignmentSequence, EveryRecordNotifiesCopiesAndReleases) {
    for (Tracking tracking : {Tracking::none, Tracking::off, Tracking::on}) {
        Handle h({tracking});
        each_record([&](const RecordOperations &r) {
            reset();
            void *from = make_object(h, r, "from"), *to = make_object(h, r, "to");
            const Pair pair{top_level(r, "to"), top_level(r, "from")};
            EXPECT_EQ(lines_of([&] { r.set(h, id, to, from, &err); }), set_lines(r, pair, {tracking == Tracking::on}));
            EXPECT_EQ(err, 0u);
        });
    }
}

TEST_F(AssignmentSequence, RecordedOffsetsAreLookedUpOnBothSides) {
    Handle h({Tracking::on});
    each_record([&](const RecordOperations &r) {
        reset();
        void *from = make_object(h, r, "from"), *to = make_object(h, r, "to");
        h.set_state_offset(from, table(r).base);
        h.set_state_offset(to, table(r).base);
        const Pair pair{top_level(r, "to"), top_level(r, "from")};
        EXPECT_EQ(lines_of([&] { r.set(h, id, to, from, &err); }), set_lines(r, pair, {true, true, true}));
    });
}

TEST_F(AssignmentSequence, NullFailsAndTheObjectItselfIsOnlyAdjusted) {
    Handle h({Tracking::on});
    each_record([&](const RecordOperations &r) {
        reset();
        void *object = make_object(h, r);
        const std::string adjusted = "mirklib_adjust_variant object " + name(r) + " 0";
        EXPECT_EQ(lines_of([&] { r.set(h, id, object, object, &err); }), (Lines{adjusted}));
        EXPECT_EQ(lines_of([&] { r.set(h, id, object, nullptr, &err); }), (Lines{adjusted, "mirk_store_err 22"}));
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        err = 0;
    });
}

// Blocks in nested records are released as well, since the raw copy has copied their pointers.
Lines clear_all_blocks_lines(const RecordOperations &r, const Location &from) {
    Lines lines;
    for (const MemberOperations &m : r.members) {
        if (m.member->kind == Kind::record) append(lines, clear_all_blocks_lines(nested_record(m), from.member(r, m)));
        if (owns_block(m)) append(lines, clear_block_lines(r, m, from));
    }
    return lines;
}

TEST_F(AssignmentSequence, BlocksMoveEvenIfOneSideIsNotTracked) {
    Handle h({Tracking::on});
    each_record([&](const RecordOperations &r) {
        for (bool source_lacks_it : {false, true}) {
            reset();
            void *from = make_object(h, r, "from"), *to = make_object(h, r, "to");
            header(source_lacks_it ? from : to)->obj_flag = 0;
            Lines expected{"mirklib_adjust_variant to " + name(r) + " 0",
                           "write_notify to " + std::to_string(table(r).base)};
            append(expected, clear_all_blocks_lines(r, top_level(r, "from")));
            append(expected, {"mirk_store_err 22", "skald_wrapper type 3 (ERR): The object is not state tracked"});
            EXPECT_EQ(lines_of([&] { r.set(h, id, to, from, &err); }), expected);
            EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
            EXPECT_EQ(header(to)->obj_flag & tracked, 0);
            err = 0;
        }
    });
}

TEST_F(AssignmentSequence, CleanUpAfterAMoveReleasesTheOldLocation) {
    for (Tracking tracking : {Tracking::none, Tracking::on}) {
        Handle h({tracking});
        const bool on = tracking == Tracking::on;
        each_record([&](const RecordOperations &r) {
            reset();
            void *from = make_object(h, r, "from"), *to = make_object(h, r, "to");
            const Pair pair{top_level(r, "to"), top_level(r, "from")};
            EXPECT_EQ(lines_of([&] { r.post_copyout_cleanup(h, id, to, from, &err); }), cleanup_lines(r, pair, on));
            EXPECT_EQ(err, 0u);
        });
    }
}

}  // namespace
