// The calls of string operations: a setter releases, notifies, allocates, stores and notifies the length.
#include <cerrno>

#include "recorded.h"

using namespace families;

namespace {

class StringSequence : public Sequence {
protected:
    void each(Tracking tracking, const std::function<void()> &visit) {
        each_member([&](const RecordOperations &record_, const MemberOperations &m_) {
            if (m_.text_set == nullptr) return;
            Handle made({tracking});
            reset();
            h = &made;
            r = &record_;
            m = &m_;
            object = make_object(made, record_);
            body = plus("object", offset(record_, m_));
            length = plus("object", member_layout(record_, record_.members[index_of(record_, m_) - 1]).offset);
            begin = {"mirk_clear_last_error", "mirklib_adjust_variant object " + name(record_) + " 0",
                     "mirk_get_instance_variant object 1 0"};
            err = 0;
            visit();
        });
    }
    const Handle *h = nullptr;
    const RecordOperations *r = nullptr;
    const MemberOperations *m = nullptr;
    void *object = nullptr;
    std::string body, length;
    Lines begin;
};

TEST_F(StringSequence, SetReleasesNotifiesAllocatesAndStoresTheLength) {
    for (Tracking tracking : {Tracking::none, Tracking::on}) {
        each(tracking, [&] {
            Lines end{"write_notify " + length + " 2"};
            if (tracking == Tracking::on) {
                end.push_back("write_notify " + plus("object", table(*r).base + member_layout(*r, *m).slot) + " 1");
            }
            end.push_back("mirk_set_instance_modified object 1 0 1");
            Lines first = begin;
            append(first, {"write_notify " + body + " 8", "obj_alloc 4"});
            append(first, end);
            EXPECT_EQ(lines_of([&] { m->text_set(*h, id, object, "abcd", 4, &err); }), first);
            recording::name_region("old", read<void *>(at(*r, object, *m)), 4);
            Lines second = begin;
            append(second, {"obj_free old", "write_notify " + body + " 8", "obj_alloc 0"});
            append(second, end);
            EXPECT_EQ(lines_of([&] { m->text_set(*h, id, object, "abcd", 0x10000, &err); }), second);
            EXPECT_EQ(err, 0u);
        });
    }
}

TEST_F(StringSequence, AFailedAllocationKeepsTheLength) {
    each(Tracking::on, [&] {
        const_cast<Handle *>(h)->fail_obj_alloc(1);
        Lines expected = begin;
        append(expected, {"write_notify " + body + " 8", "obj_alloc 4", "mirk_store_err 12"});
        EXPECT_EQ(lines_of([&] { m->text_set(*h, id, object, "abcd", 4, &err); }), expected);
        EXPECT_EQ(err, static_cast<std::uint32_t>(ENOMEM));
    });
}

TEST_F(StringSequence, AnEmptyTextMayHaveANullBlock) {
    each(Tracking::none, [&] {
        h->knobs().null_for_size_0 = true;
        Lines expected = begin;
        append(expected, {"write_notify " + body + " 8", "obj_alloc 0", "write_notify " + length + " 2",
                          "mirk_set_instance_modified object 1 0 1"});
        EXPECT_EQ(lines_of([&] { m->text_set(*h, id, object, "", 0, &err); }), expected);
        EXPECT_EQ(err, 0u);
        char text[2] = "x";
        EXPECT_EQ(lines_of([&] { m->text_get(*h, id, object, text, 1, &err); }),
                  (Lines{"mirk_clear_last_error", "mirk_get_instance_variant object 1 0"}));
        EXPECT_STREQ(text, "");
    });
}

TEST_F(StringSequence, GetOnlyChecksTheVariant) {
    each(Tracking::on, [&] {
        char text[8];
        m->text_set(*h, id, object, "abcd", 4, &err);
        EXPECT_EQ(lines_of([&] { m->text_get(*h, id, object, text, 5, &err); }),
                  (Lines{"mirk_clear_last_error", "mirk_get_instance_variant object 1 0"}));
        EXPECT_EQ(lines_of([&] { m->text_get(*h, id, object, text, 4, &err); }),
                  (Lines{"mirk_clear_last_error", "mirk_get_instance_variant object 1 0", "mirk_store_err 28"}));
        err = 0;
        EXPECT_EQ(lines_of([&] { m->text_get(*h, id, object, text, 0, &err); }),
                  (Lines{"mirk_clear_last_error", "mirk_store_err 22"}));
    });
}

TEST_F(StringSequence, TheStickySetUsesTheDefaultIdAndTheLastError) {
    each(Tracking::none, [&] {
        recording::clear_log();
        EXPECT_EQ(m->text_set_cr(*h, object, "a", 1), 0u);
        for (const recording::Call &call : recording::log()) {
            if (call.ctx_id) {
                EXPECT_EQ(*call.ctx_id, 77u) << recording::line(call);
            }
            if (!call.slot.empty()) {
                EXPECT_EQ(call.slot, "last_error") << recording::line(call);
            }
        }
        h->get()->last_error = EIO;
        EXPECT_EQ(lines_of([&] { m->text_set_cr(*h, object, "a", 1); }), Lines{});
    });
}

}  // namespace
