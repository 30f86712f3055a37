// The calls of create and initialize, for every record.
#include <cerrno>

#include "recorded.h"

using namespace families;

namespace {

using InitializeSequence = Sequence;

TEST_F(InitializeSequence, CreateAllocatesThenInitializesDepthFirst) {
    for (Tracking tracking : {Tracking::none, Tracking::off, Tracking::on}) {
        each_record([&](const RecordOperations &r) {
            Handle h({tracking});
            reset();
            const bool on = tracking == Tracking::on;
            Lines expected{"skald_module_init_fn mirk_lumo_ui_tarn_type",
                           "obj_alloc " + std::to_string(on ? table(r).tracked : table(r).base)};
            append(expected, initialize_lines(r, top_level(r, "block1"), {on}));
            EXPECT_EQ(lines_of([&] { r.create(h, id); }), expected);
            reset();
            EXPECT_EQ(lines_of([&] { r.create_cr(h); }), expected);
            reset();
            expected.erase(expected.begin());
            EXPECT_EQ(lines_of([&] { r.create_internal(h, id); }), expected);
        });
    }
}

TEST_F(InitializeSequence, AllCallsGetTheIdOfTheCall) {
    Handle h({Tracking::on});
    each_record([&](const RecordOperations &r) {
        for (bool sticky : {false, true}) {
            recording::clear_log();
            sticky ? r.create_cr(h) : r.create(h, id);
            for (const recording::Call &call : recording::log()) {
                if (call.ctx_id) {
                    EXPECT_EQ(*call.ctx_id, sticky ? 77u : id) << recording::line(call);
                }
            }
        }
    });
}

TEST_F(InitializeSequence, PrivateTypesAreBoundAfterTheVariant) {
    each_record([&](const RecordOperations &r) {
        Handle h({Tracking::on, 1});
        recording::pause();
        r.create(h, id);
        recording::pause(false);
        reset();
        Lines expected{"skald_module_init_fn mirk_lumo_ui_tarn_type", "obj_alloc " + std::to_string(table(r).tracked)};
        append(expected, initialize_lines(r, top_level(r, "block1"), {true, true}));
        EXPECT_EQ(lines_of([&] { r.create(h, id); }), expected);
    });
}

// In the test's own storage, with the area after the object.
TEST_F(InitializeSequence, NotificationsAndCountsCanBeSkipped) {
    for (Tracking tracking : {Tracking::none, Tracking::off, Tracking::on}) {
        Handle h({tracking});
        each_record([&](const RecordOperations &r) {
            for (std::uint32_t notify : {0u, 1u}) {
                for (std::uint32_t skip : {0u, 1u}) {
                    std::vector<std::uint64_t> storage(table(r).tracked / 8 + 1);
                    reset();
                    recording::name_region("object", storage.data(), table(r).tracked);
                    Creation s;
                    s.on = tracking == Tracking::on;
                    s.notify = notify;
                    s.skip = skip;
                    EXPECT_EQ(
                        lines_of([&] { r.initialize(h, id, storage.data(), r.type, notify, skip, 0, nullptr, &err); }),
                        initialize_lines(r, top_level(r), s));
                    EXPECT_EQ(err, 0u);
                }
            }
        });
    }
}

TEST_F(InitializeSequence, NestedObjectsRecordOffsetsIfTheyHaveOne) {
    for (Tracking tracking : {Tracking::none, Tracking::on}) {
        Handle h({tracking});
        each_record([&](const RecordOperations &r) {
            for (bool has_entry : {false, true}) {
                for (bool is_nested : {false, true}) {
                    std::vector<std::uint64_t> storage(table(r).tracked / 8 + 1);
                    reset();
                    recording::name_region("object", storage.data(), table(r).tracked);
                    Creation s;
                    s.on = tracking == Tracking::on;
                    s.is_nested = is_nested;
                    s.has_entry = has_entry;
                    s.base = plus("object", table(r).base);
                    if (has_entry) h.set_state_offset(storage.data(), table(r).base);
                    EXPECT_EQ(lines_of([&] {
                                  r.initialize(h, id, storage.data(), r.type, 1, 0, is_nested ? nested : 0,
                                               bytes(storage.data()) + table(r).base, &err);
                              }),
                              initialize_lines(r, top_level(r), s));
                    EXPECT_EQ(err, 0u);
                }
            }
        });
    }
}

TEST_F(InitializeSequence, AMissingStateBaseStopsBeforeTheMembers) {
    Handle h({Tracking::on});
    each_record([&](const RecordOperations &r) {
        std::vector<std::uint64_t> storage(table(r).tracked / 8 + 1);
        reset();
        recording::name_region("object", storage.data(), table(r).tracked);
        Lines expected = header_lines(name(r), top_level(r), {true});
        expected.push_back("write_notify object+10 1");
        append_count(expected, name(r), {true});
        append(expected, {"mirk_store_err 22",
                          "skald_wrapper type 3 (ERR): sttr_base can not be NULL in NESTED case. Please check the "
                          "parent object and provide the correct state tracking base pointer"});
        EXPECT_EQ(lines_of([&] { r.initialize(h, id, storage.data(), r.type, 1, 0, nested, nullptr, &err); }),
                  expected);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        err = 0;
    });
}

TEST_F(InitializeSequence, AFailedAllocationStopsAtOnce) {
    each_record([&](const RecordOperations &r) {
        Handle h({Tracking::none});
        const std::string request = "obj_alloc " + std::to_string(table(r).base);
        h.fail_obj_alloc(1);
        EXPECT_EQ(lines_of([&] { r.create(h, id); }), (Lines{"skald_module_init_fn mirk_lumo_ui_tarn_type", request}));
        h.fail_obj_alloc(1);
        EXPECT_EQ(lines_of([&] { r.create_cr(h); }),
                  (Lines{"skald_module_init_fn mirk_lumo_ui_tarn_type", request, "mirk_store_err 12"}));
        EXPECT_EQ(lines_of([&] { r.create_cr(h); }), (Lines{"skald_module_init_fn mirk_lumo_ui_tarn_type"}));
    });
}

TEST_F(InitializeSequence, AFailedCreateReleasesTheBlock) {
    Handle h({Tracking::on});
    const RecordOperations &r = record("lumo_tarn_static_exmem_info");
    h.knobs().variants["lumo_tarn_mem_desc_e"] = {0, EPROTO};
    const Lines lines = lines_of([&] { EXPECT_EQ(r.create(h, id), nullptr); });
    ASSERT_GT(lines.size(), 2u);
    EXPECT_EQ(lines[lines.size() - 2],
              std::string("skald_wrapper type 3 (ERR): error in lumo_tarn_static_exmem_info create: ") +
                  std::strerror(EPROTO));
    EXPECT_TRUE(lines.back().starts_with("obj_free "));
    EXPECT_EQ(h.live_blocks(), 0u);
}

TEST_F(InitializeSequence, AFailedMemberFailsAStickyCreate) {
    Handle h;
    const RecordOperations &r = record("lumo_tarn_dyn_exmem_info");
    h.knobs().variants["lumo_tarn_mem_desc_e"] = {0, EPROTO};
    h->last_error = 0;
    EXPECT_EQ(r.create_cr(h), nullptr);
    EXPECT_EQ(h->cr_mode, 0u);
}

// Without a type record there are no counters.
TEST_F(InitializeSequence, AMissingPrivateTypeAborts) {
    Handle h({Tracking::none, 1});
    h.knobs().no_type_info = true;
    EXPECT_EXIT(record("lumo_tarn_debug_setting").create(h, id), testing::KilledBySignal(SIGABRT),
                "\\(FATAL\\): varinfo is NULL");
}

Lines marked(const RecordOperations &r, const Location &spot) {
    Lines lines;
    for (const MemberOperations &m : r.members) {
        if (!is_embedded(m) || m.member->kind == Kind::enumeration) continue;
        const Location child = spot.member(r, m);
        if (m.member->kind == Kind::record) {
            append(lines, marked(nested_record(m), child));
        } else {
            lines.push_back(type_name(m) + "_set_instance_embedded " + child.text());
        }
    }
    lines.push_back("write_notify " + spot.text(10) + " 1");
    return lines;
}

TEST_F(InitializeSequence, SetInstanceEmbeddedGoesDepthFirst) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        reset();
        void *object = make_object(h, r);
        EXPECT_EQ(lines_of([&] { r.set_instance_embedded(h, id, object); }), marked(r, top_level(r)));
    });
}

}  // namespace
