// The calls of every accessor of every record.
#include <cerrno>

#include "recorded.h"

using namespace families;

namespace {

using AccessorSequence = Sequence;

std::string kind_word(const MemberOperations &m) { return is_value_kind(m) ? "1" : "0"; }
std::string variant_line(const MemberOperations &m) { return "mirk_get_instance_variant object 1 " + kind_word(m); }
std::string member_text(const RecordOperations &r, const MemberOperations &m) { return plus("object", offset(r, m)); }
std::string state_text(const RecordOperations &r, const MemberOperations &m) {
    return plus("object", table(r).base + member_layout(r, m).slot);
}
std::string modified_line(const MemberOperations &m) {
    return "mirk_set_instance_modified object 1 " + kind_word(m) + " 1";
}
std::string adjust_line(const RecordOperations &r) { return "mirklib_adjust_variant object " + name(r) + " 0"; }

// The calls that find the pointer to a member: nested records and enumerations need none.
Lines pointer_lines(const RecordOperations &r, const MemberOperations &m) {
    if (m.member->kind == Kind::record || m.member->kind == Kind::enumeration) return {};
    return {type_name(m) + "_get " + member_text(r, m)};
}
Lines value_lines(const RecordOperations &r, const MemberOperations &m) {
    if (m.member->kind == Kind::enumeration) return {"mirk_clear_last_error"};
    return {type_name(m) + "_get_value " + member_text(r, m)};
}
Lines store_value_lines(const RecordOperations &r, const MemberOperations &m) {
    if (m.member->kind != Kind::enumeration) return {type_name(m) + "_set_value " + member_text(r, m) + " 1"};
    return {"mirk_clear_last_error", "mirklib_adjust_variant " + member_text(r, m) + " " + type_name(m) + " 0",
            "mirk_get_instance_variant " + member_text(r, m) + " 0 1",
            "write_notify " + plus("object", offset(r, m) + 12) + " 4",
            "mirk_set_instance_modified " + member_text(r, m) + " 0 1 1"};
}
Lines mark_lines(const RecordOperations &r, const MemberOperations &m, bool on) {
    Lines lines;
    if (on) lines.push_back("write_notify " + state_text(r, m) + " 1");
    lines.push_back(modified_line(m));
    return lines;
}

TEST_F(AccessorSequence, ReadsClearTheErrorAndCheckTheVariant) {
    Handle h({Tracking::on});
    each_member([&](const RecordOperations &r, const MemberOperations &m) {
        if (m.get == nullptr) return;
        reset();
        void *object = make_object(h, r);
        Lines expected{"mirk_clear_last_error", variant_line(m)};
        append(expected, pointer_lines(r, m));
        EXPECT_EQ(lines_of([&] { m.get(h, id, object, &err); }), expected);
        if (m.get_value == nullptr) return;
        append(expected, value_lines(r, m));
        EXPECT_EQ(lines_of([&] { m.get_value(h, id, object, &err); }), expected);
    });
}

TEST_F(AccessorSequence, SetValueChecksTheVariantTwiceBeforeItStores) {
    for (Tracking tracking : {Tracking::none, Tracking::off, Tracking::on}) {
        Handle h({tracking});
        each_member([&](const RecordOperations &r, const MemberOperations &m) {
            if (m.set_value == nullptr) return;
            reset();
            void *object = make_object(h, r);
            Lines expected{"mirk_clear_last_error", adjust_line(r), variant_line(m), variant_line(m)};
            append(expected, pointer_lines(r, m));
            append(expected, store_value_lines(r, m));
            append(expected, mark_lines(r, m, tracking == Tracking::on));
            EXPECT_EQ(lines_of([&] { m.set_value(h, id, object, 1, &err); }), expected);
            EXPECT_EQ(err, 0u);
        });
    }
}

TEST_F(AccessorSequence, SetStoresBeforeItMarks) {
    for (Tracking tracking : {Tracking::none, Tracking::on}) {
        Handle h({tracking});
        each_member([&](const RecordOperations &r, const MemberOperations &m) {
            if (m.set == nullptr || m.member->kind == Kind::record) return;
            reset();
            void *source = make_object(h, r, "source"), *object = make_object(h, r);
            Lines expected{"mirk_clear_last_error", adjust_line(r), variant_line(m)};
            if (m.member->kind == Kind::enumeration) {
                append(expected, {"mirk_clear_last_error",
                                  "mirklib_adjust_variant " + member_text(r, m) + " " + type_name(m) + " 0",
                                  "mirk_get_instance_variant " + member_text(r, m) + " 0 1",
                                  "write_notify " + member_text(r, m) + " 16",
                                  "mirk_set_instance_modified " + member_text(r, m) + " 0 1 1"});
            } else {
                expected.push_back(type_name(m) + "_set " + member_text(r, m) + " " + plus("source", offset(r, m)));
            }
            append(expected, mark_lines(r, m, tracking == Tracking::on));
            EXPECT_EQ(lines_of([&] { m.set(h, id, object, at(r, source, m), &err); }), expected);
            EXPECT_EQ(err, 0u);
        });
    }
}

TEST_F(AccessorSequence, StateBytesAreFoundAtTheRecordedOffset) {
    Handle h({Tracking::on});
    each_member([&](const RecordOperations &r, const MemberOperations &m) {
        if (m.state_flag_get == nullptr) return;
        reset();
        void *object = make_object(h, r);
        EXPECT_EQ(lines_of([&] { m.state_flag_get(h, id, object, &err); }), Lines{});
        EXPECT_EQ(
            lines_of([&] { m.state_flag_set(h, id, object, 9, &err); }),
            (Lines{adjust_line(r), variant_line(m), "write_notify " + state_text(r, m) + " 1", modified_line(m)}));
        // With a recorded offset, it is looked up each time.
        h.set_state_offset(object, table(r).base);
        EXPECT_EQ(lines_of([&] { EXPECT_EQ(m.state_flag_get(h, id, object, &err), 9); }),
                  (Lines{"mirklib_get_sttr_offset object"}));
        EXPECT_EQ(lines_of([&] { m.state_flag_set(h, id, object, 9, &err); }),
                  (Lines{adjust_line(r), variant_line(m), "mirklib_get_sttr_offset object",
                         "write_notify " + state_text(r, m) + " 1", modified_line(m)}));
    });
}

// The runtime is only asked for an offset if the object's flag says that it has one.
TEST_F(AccessorSequence, AMappedObjectWithoutAnOffsetIsNotLookedUp) {
    Handle h({Tracking::on});
    const RecordOperations &r = record("lumo_tarn_dp_appl_list");
    void *object = make_object(h, r);
    header(object)->obj_flag |= mapped;
    EXPECT_EQ(lines_of([&] { r.set_all_state_tracking_flag(h, id, object, 5); }), Lines{});
    EXPECT_EQ(bytes(object)[table(r).base], 5);
    r.set_all_state_tracking_flag(h, id, object, 0);
    header(object)->obj_flag &= static_cast<std::uint8_t>(~mapped);
    r.destroy(h, id, object);
}

TEST_F(AccessorSequence, RefusalsTraceAndStoreTheError) {
    Handle h({Tracking::on});
    const RecordOperations &r = record("lumo_tarn_debug_setting");
    const MemberOperations &m = r.members[0];
    void *object = make_object(h, r);
    header(object)->obj_flag = 0;
    // Setters store first, then report. State operations trace before the error or after it, and reads say "non".
    EXPECT_EQ(lines_of([&] { m.set_value(h, id, object, 1, &err); }),
              (Lines{"mirk_clear_last_error", adjust_line(r), variant_line(m), variant_line(m), "u_int32_get object+12",
                     "u_int32_set_value object+12 1", "mirk_store_err 22",
                     "skald_wrapper type 3 (ERR): The object is not state tracked"}));
    err = 0;
    EXPECT_EQ(lines_of([&] { m.state_flag_get(h, id, object, &err); }),
              (Lines{"mirk_store_err 22", "skald_wrapper type 3 (ERR): The object is non state tracked"}));
    err = 0;
    EXPECT_EQ(lines_of([&] { m.state_flag_set(h, id, object, 1, &err); }),
              (Lines{"skald_wrapper type 3 (ERR): The object is not state tracked", "mirk_store_err 22"}));
    err = 0;
    EXPECT_EQ(
        lines_of([&] { m.set_value(h, id, nullptr, 1, &err); }),
        (Lines{"mirk_clear_last_error", "mirklib_adjust_variant null null 0", "mirk_get_instance_variant null 1 0",
               "mirk_get_instance_variant null 1 0", "u_int32_get null", "mirk_store_err 2"}));
    err = 0;
    h.knobs().adjust_variant = false;
    header(object)->variant = -1;
    EXPECT_EQ(lines_of([&] { m.get(h, id, object, &err); }),
              (Lines{"mirk_clear_last_error", variant_line(m), "mirk_store_epoch_err 43 slot"}));
}

TEST_F(AccessorSequence, GetAllAndSetAllAccessEachMemberInTableOrder) {
    Handle h({Tracking::on});
    each_record([&](const RecordOperations &r) {
        reset();
        void *object = make_object(h, r);
        std::uint64_t numbers[64];
        void *out[64];
        for (std::size_t i = 0; i < 64; ++i) {
            numbers[i] = 1;
            out[i] = &numbers[i];
        }
        Lines reads{"mirk_clear_last_error", "mirk_get_instance_variant object 1 0"};
        Lines writes{"mirk_clear_last_error", adjust_line(r), "mirk_get_instance_variant object 1 0"};
        for (const MemberOperations &m : r.members) {
            if (m.get_value == nullptr) continue;
            append(reads, pointer_lines(r, m));
            append(reads, value_lines(r, m));
            if (!is_scalar(m)) continue;
            append(writes, store_value_lines(r, m));
            writes.push_back(modified_line(m));
        }
        EXPECT_EQ(lines_of([&] { r.set_all(h, id, object, numbers, &err); }), writes);
        EXPECT_EQ(lines_of([&] { r.get_all(h, id, object, out, &err); }), reads);
        EXPECT_EQ(err, 0u);
    });
}

TEST_F(AccessorSequence, FillGetAndAdjustMakeNoNotification) {
    Handle h({Tracking::on});
    each_record([&](const RecordOperations &r) {
        reset();
        void *object = make_object(h, r);
        EXPECT_EQ(lines_of([&] { r.set_all_state_tracking_flag(h, id, object, 0); }), Lines{});
        EXPECT_EQ(lines_of([&] { r.get(h, id, object, &err); }), Lines{});
        EXPECT_EQ(lines_of([&] { r.adjust_variant(h, id, object, &err); }), (Lines{adjust_line(r)}));
        EXPECT_EQ(lines_of([&] { r.adjust_variant(h, id, nullptr, &err); }),
                  (Lines{"mirklib_adjust_variant null null 0"}));
        recording::clear_log();
        r.is_valid_cr(h, object, 0);
        EXPECT_EQ(recording::lines(recording::Detail::full),
                  (Lines{"mirk_domain_lookup_variant " + name(r) + " err=last_error"}));
    });
}

}  // namespace
