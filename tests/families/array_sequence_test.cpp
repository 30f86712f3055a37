// The calls of array growth and of element states.
#include <algorithm>
#include <cerrno>

#include "recorded.h"

using namespace families;

namespace {

class ArraySequence : public Sequence {
protected:
    struct Subject {
        const RecordOperations &r;
        const MemberOperations &m;
        const RecordOperations &e;
    };
    // Each array of each owner, with an object and a value on a handle.
    void each(Tracking tracking, const std::function<void(const Handle &, const Subject &)> &visit) {
        each_member([&](const RecordOperations &r, const MemberOperations &m) {
            if (m.element_set == nullptr) return;
            Handle h({tracking});
            reset();
            err = 0;
            value = make_object(h, nested_record(m), "value");
            object = make_object(h, r);
            visit(h, {r, m, nested_record(m)});
        });
    }
    static Lines begin(const Subject &s) {
        return {"mirk_clear_last_error", "mirklib_adjust_variant object " + name(s.r) + " 0",
                "mirk_get_instance_variant object 1 0"};
    }
    static std::string block_text(const Subject &s) { return plus("object", offset(s.r, s.m)); }
    static std::string count_notification(const Subject &s) {
        const MemberOperations &counter = s.r.members[index_of(s.r, s.m) - 1];
        return "write_notify " + plus("object", offset(s.r, counter)) + " " + std::to_string(width(counter));
    }
    static std::string state_text(const Subject &s, std::uint32_t slot) {
        return plus("object", table(s.r).base + slot);
    }
    static Location element(const Subject &s, const std::string &region, std::uint32_t n, std::uint32_t k) {
        return {region, k * table(s.e).base, n * table(s.e).base + k * table(s.e).state};
    }
    static std::string update(const Location &spot) {
        return "mirklib_update_sttr_offset " + spot.text() + " " + std::to_string(spot.area - spot.at);
    }
    static Lines fresh(const Subject &s, const std::string &region, std::uint32_t n, std::uint32_t from, bool on) {
        Lines lines;
        for (std::uint32_t k = from; on && k < n; ++k) lines.push_back(update(element(s, region, n, k)));
        for (std::uint32_t k = from; k < n; ++k) {
            Creation creation;
            creation.on = on;
            creation.is_nested = true;
            creation.has_entry = on;
            // Without tracking the area is where it would be, which for the last element is past the block.
            creation.base = element(s, region, n, k).state(0);
            append(lines, initialize_lines(s.e, element(s, region, n, k), creation));
        }
        return lines;
    }
    // Addresses past an untracked block do not matter, since nothing is stored there.
    static Lines without_bases(Lines lines) {
        for (std::string &line : lines) {
            if (line.find("_initialize ") != line.npos) line.resize(line.rfind(' '));
        }
        return lines;
    }

    static Lines without_traces(Lines lines) {
        std::erase_if(lines, [](const std::string &line) { return line.starts_with("skald_wrapper"); });
        return lines;
    }
    // The calls of assignment and clean-up are tested elsewhere; this checks where they happen.
    Lines assignment(const Subject &s, const Handle &h, const Location &to) const {
        return set_lines(s.e, {to, top_level(s.e, "value")}, {h->sttr_desc != nullptr, h->sttr_desc != nullptr, false});
    }
    static Lines cleaned_up(const Subject &s, const Handle &h, const Location &to, const Location &from) {
        return cleanup_lines(s.e, {to, from}, h->sttr_desc != nullptr);
    }

    void *object = nullptr, *value = nullptr;
};

// The object and the value are the first two blocks.
TEST_F(ArraySequence, TheFirstSetAllocatesAndInitializesWithoutTracking) {
    for (Tracking tracking : {Tracking::none, Tracking::off}) {
        each(tracking, [&](const Handle &h, const Subject &s) {
            Lines expected = begin(s);
            append(expected, {"obj_alloc " + std::to_string(3 * table(s.e).base),
                              "write_notify " + block_text(s) + " 8", count_notification(s)});
            append(expected, fresh(s, "block3", 3, 0, false));
            EXPECT_EQ(without_bases(lines_of([&] { s.m.element_set(h, id, object, 2, nullptr, &err); })),
                      without_bases(expected));
            EXPECT_EQ(err, 0u);
        });
    }
}

TEST_F(ArraySequence, TheFirstSetAllocatesStatesAfterTheElementsWithTracking) {
    each(Tracking::on, [&](const Handle &h, const Subject &s) {
        Lines expected = begin(s);
        append(expected, {"obj_alloc " + std::to_string(3 * table(s.e).tracked), "write_notify " + block_text(s) + " 8",
                          count_notification(s)});
        append(expected, fresh(s, "block3", 3, 0, true));
        append(expected, {"write_notify " + state_text(s, member_layout(s.r, s.m).area) + " 8", "obj_alloc 3"});
        append(expected, assignment(s, h, element(s, "block3", 3, 2)));
        append(expected,
               {"write_notify " + state_text(s, member_layout(s.r, s.m).slot) + " 1", "write_notify block4+2 1"});
        EXPECT_EQ(lines_of([&] { s.m.element_set(h, id, object, 2, value, &err); }), expected);
        EXPECT_EQ(err, 0u);
    });
}

TEST_F(ArraySequence, GrowthCleansUpEachOldElementWithoutTracking) {
    each(Tracking::none, [&](const Handle &h, const Subject &s) {
        s.m.element_set(h, id, object, 1, nullptr, &err);
        s.m.element_set(h, id, object, 0, value, &err);
        const Lines lines = without_traces(lines_of([&] { s.m.element_set(h, id, object, 2, nullptr, &err); }));
        Lines expected = begin(s);
        append(expected, {"obj_alloc " + std::to_string(3 * table(s.e).base), "write_notify " + block_text(s) + " 8"});
        for (std::uint32_t k = 0; k < 2; ++k) {
            append(expected, cleaned_up(s, h, element(s, "block4", 3, k), element(s, "block3", 2, k)));
        }
        append(expected, {"obj_free block3", count_notification(s)});
        append(expected, fresh(s, "block4", 3, 2, false));
        EXPECT_EQ(without_bases(lines), without_bases(expected));
        EXPECT_EQ(err, 0u);
    });
}

TEST_F(ArraySequence, GrowthMovesOffsetsBeforeItCleansUpWithTracking) {
    each(Tracking::on, [&](const Handle &h, const Subject &s) {
        s.m.element_set(h, id, object, 1, value, &err);
        const Lines lines = without_traces(lines_of([&] { s.m.element_set(h, id, object, 2, value, &err); }));
        Lines expected = begin(s);
        append(expected,
               {"obj_alloc " + std::to_string(3 * table(s.e).tracked), "write_notify " + block_text(s) + " 8"});
        // Old areas are found by each element's own offset.
        for (std::uint32_t k = 0; k < 2; ++k) {
            expected.push_back("mirklib_get_sttr_offset " + element(s, "block3", 2, k).text());
        }
        for (std::uint32_t k = 0; k < 2; ++k) {
            const Location moved = element(s, "block5", 3, k);
            expected.push_back(update(moved));
            append(expected, offset_update_lines(s.e, moved));
        }
        for (std::uint32_t k = 0; k < 2; ++k) {
            const Location old = element(s, "block3", 2, k);
            append(expected, cleaned_up(s, h, element(s, "block5", 3, k), old));
            expected.push_back("mirk_hd_mapping_destroy " + old.text());
            append(expected, offset_remove_lines(s.e, old));
        }
        append(expected, {"obj_free block3", count_notification(s)});
        append(expected, fresh(s, "block5", 3, 2, true));
        append(expected, {"write_notify " + state_text(s, member_layout(s.r, s.m).area) + " 8", "obj_alloc 3",
                          "obj_free block4"});
        append(expected, assignment(s, h, element(s, "block5", 3, 2)));
        append(expected,
               {"write_notify " + state_text(s, member_layout(s.r, s.m).slot) + " 1", "write_notify block6+2 1"});
        EXPECT_EQ(lines, expected);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(read<void *>(at(s.r, object, s.m)) != nullptr, true);
    });
}

TEST_F(ArraySequence, AFailedAllocationStopsAtOnce) {
    each(Tracking::on, [&](const Handle &h, const Subject &s) {
        auto &handle = const_cast<Handle &>(h);
        handle.fail_obj_alloc(1);
        Lines expected = begin(s);
        append(expected, {"obj_alloc " + std::to_string(table(s.e).tracked), "mirk_store_err 12"});
        EXPECT_EQ(lines_of([&] { s.m.element_set(h, id, object, 0, value, &err); }), expected);
        EXPECT_EQ(err, static_cast<std::uint32_t>(ENOMEM));
        err = 0;
        handle.fail_obj_alloc(2);
        const Lines lines = lines_of([&] { s.m.element_set(h, id, object, 0, value, &err); });
        ASSERT_GT(lines.size(), 3u);
        EXPECT_EQ(lines[lines.size() - 3], "write_notify " + state_text(s, member_layout(s.r, s.m).area) + " 8");
        EXPECT_EQ(lines[lines.size() - 2], "obj_alloc 1");
        EXPECT_EQ(lines[lines.size() - 1], "mirk_store_err 12");
    });
}

TEST_F(ArraySequence, ElementAccessNotifiesBeforeEachStateWrite) {
    each(Tracking::on, [&](const Handle &h, const Subject &s) {
        s.m.element_set(h, id, object, 1, value, &err);
        recording::name_region("vector", read<void *>(bytes(object) + table(s.r).base + member_layout(s.r, s.m).area),
                               2);
        const Lines read_begin{"mirk_clear_last_error", "mirk_get_instance_variant object 1 0"};
        const std::string adjusted = "mirklib_adjust_variant object " + name(s.r) + " 0";
        const std::string variant = "mirk_get_instance_variant object 1 0";
        const std::string marked = "mirk_set_instance_modified object 1 0 1";
        EXPECT_EQ(lines_of([&] { s.m.element_get(h, id, object, 1, &err); }), read_begin);
        Lines refused = read_begin;
        refused.push_back("mirk_store_err 2");
        EXPECT_EQ(lines_of([&] { s.m.element_get(h, id, object, 2, &err); }), refused);
        err = 0;
        EXPECT_EQ(lines_of([&] { s.m.element_state_flag_get(h, id, object, 1, &err); }), Lines{});
        EXPECT_EQ(lines_of([&] { s.m.element_state_flag_set(h, id, object, 1, 9, &err); }),
                  (Lines{adjusted, variant, "write_notify vector+1 1", marked}));
        std::uint8_t *states = nullptr;
        EXPECT_EQ(lines_of([&] { s.m.element_state_flag_get_arr(h, id, object, &states, &err); }), Lines{});
        const std::uint8_t source[2] = {1, 2};
        EXPECT_EQ(lines_of([&] { s.m.element_state_flag_set_arr(h, id, object, source, 2, &err); }),
                  (Lines{adjusted, variant, marked}));
        EXPECT_EQ(err, 0u);
    });
}

TEST_F(ArraySequence, AFailedDeepCopyKeepsTheElementsOffset) {
    each(Tracking::on, [&](const Handle &h, const Subject &s) {
        const_cast<Handle &>(h).set_workspace(1);
        s.m.element_set(h, id, object, 1, value, &err);
        void *element = s.m.element_get(h, id, object, 1, &err);
        const auto before = h.state_offset(element);
        ASSERT_TRUE(before.has_value());
        h.knobs().errors["_mirk_instance_variant_unmarshal"] = EPROTO;
        const_cast<Handle &>(h).set_workspace(48 * 1024);
        EXPECT_EQ(s.m.element_set_cr(h, object, 1, value, 0), static_cast<std::uint32_t>(EPROTO));
        h.knobs().errors.clear();
        EXPECT_EQ(h.state_offset(element), before);
        recording::pause();
        s.r.destroy(h, id, object);
        s.e.destroy(h, id, value);
        recording::pause(false);
        EXPECT_EQ(h.live_blocks(), 0u);
    });
}

// Without object mapping no offset is removed, so none is looked up or recorded again.
TEST_F(ArraySequence, AFailedDeepCopyLooksUpNoOffsetWithoutMapping) {
    each(Tracking::on, [&](const Handle &h, const Subject &s) {
        s.m.element_set(h, id, object, 1, value, &err);
        mirk_object *element = static_cast<mirk_object *>(s.m.element_get(h, id, object, 1, &err));
        const auto before = h.state_offset(element);
        const auto failed_copy = [&](std::uint32_t oid_mapping) {
            h->oid_mapping = oid_mapping;
            mirk_clear_last_error(h);
            h.knobs().errors["_mirk_instance_variant_unmarshal"] = EPROTO;
            const Lines lines = lines_of([&] { s.m.element_set_cr(h, object, 1, value, 0); });
            h.knobs().errors.clear();
            EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EPROTO));
            EXPECT_EQ(h.state_offset(element), before);
            const auto count = [&](std::string_view function) {
                return std::count_if(lines.begin(), lines.end(),
                                     [&](const std::string &line) { return line.starts_with(function); });
            };
            return std::pair{count("mirklib_get_sttr_offset"), count("mirklib_update_sttr_offset")};
        };
        const auto [look_ups, updates] = failed_copy(0);
        const auto [look_ups_with_mapping, updates_with_mapping] = failed_copy(1);
        EXPECT_EQ(look_ups + 1, look_ups_with_mapping);
        EXPECT_EQ(updates, 0);
        EXPECT_GT(updates_with_mapping, 0);
        mirk_clear_last_error(h);
        recording::pause();
        s.r.destroy(h, id, object);
        s.e.destroy(h, id, value);
        recording::pause(false);
    });
}

}  // namespace
