// The calls of destruction, for every record.
#include <algorithm>
#include <cerrno>

#include "recorded.h"

using namespace families;

namespace {

using DestroySequence = Sequence;

TEST_F(DestroySequence, ANewObjectIsCountedThenReleased) {
    for (Tracking tracking : {Tracking::none, Tracking::off, Tracking::on}) {
        Handle h({tracking});
        each_record([&](const RecordOperations &r) {
            reset();
            void *object = make_object(h, r);
            EXPECT_EQ(lines_of([&] { r.destroy(h, id, object); }),
                      destroy_lines(r, top_level(r), {tracking == Tracking::on}));
        });
        EXPECT_EQ(h.live_blocks(), 0u);
        EXPECT_EQ(h.mappings(), 0u);
    }
}

TEST_F(DestroySequence, ARecordedOffsetIsRemoved) {
    for (std::uint32_t mapping : {0u, 1u}) {
        Handle h({Tracking::on, 0, mapping});
        each_record([&](const RecordOperations &r) {
            for (bool frees : {false, true}) {
                reset();
                void *object = make_object(h, r);
                h.set_state_offset(object, table(r).base);
                EXPECT_EQ(lines_of([&] { r.destroy_internal(h, id, object, frees ? 1 : 0); }),
                          destroy_lines(r, top_level(r), {true, true, mapping != 0, frees}));
            }
        });
    }
}

TEST_F(DestroySequence, RaDataAloneIsRemovedToo) {
    Handle h;
    const RecordOperations &r = record("lumo_tarn_debug_setting");
    void *object = make_object(h, r);
    header(object)->obj_flag |= ra_data;
    EXPECT_EQ(lines_of([&] { r.destroy(h, id, object); }),
              (Lines{"count_notify lumo_tarn_debug_setting.num_destroyed 1",
                     "count_notify lumo_tarn_debug_setting.num_live -1", "mirk_hd_mapping_destroy object",
                     "write_notify object 8", "obj_free object"}));
}

TEST_F(DestroySequence, AMappedObjectFailsStaysOrIsDestroyed) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        reset();
        void *object = make_object(h, r);
        header(object)->obj_flag |= mapped;
        const std::string request = "mirk_request_oid_mapping_destroy object", of = name(r) + " destroy: ";

        h.knobs().oid_destroy_error = EPROTO;
        EXPECT_EQ(lines_of([&] { r.destroy(h, id, object); }),
                  (Lines{request,
                         "skald_wrapper type 3 (ERR): " + of + "Failed to remove oid mapping for object. Error " +
                             std::strerror(EPROTO),
                         "mirk_store_err 71"}));
        h.knobs().oid_destroy_error = 0;
        h.knobs().oid_destroy_result = 0;
        EXPECT_EQ(lines_of([&] { r.destroy(h, id, object); }),
                  (Lines{request, "skald_wrapper type 6 (info): " + of +
                                      "Object has references and will be cleaned up when all of them are released"}));
        h.knobs().oid_destroy_result = 1;
        Lines expected{request, "skald_wrapper type 7 (debug): " + of + "Successfully removed OID mapping"};
        append(expected, destroy_lines(r, top_level(r), {}));
        EXPECT_EQ(lines_of([&] { r.destroy(h, id, object); }), expected);
    });
}

TEST_F(DestroySequence, AFailedRemovalKeepsTheBlock) {
    Handle h;
    const RecordOperations &r = record("lumo_tarn_debug_setting");
    void *object = make_object(h, r);
    header(object)->obj_flag |= ra_data;
    h.knobs().hd_destroy_error = EPROTO;
    EXPECT_EQ(lines_of([&] { r.destroy(h, id, object); }),
              (Lines{"count_notify lumo_tarn_debug_setting.num_destroyed 1",
                     "count_notify lumo_tarn_debug_setting.num_live -1", "mirk_hd_mapping_destroy object",
                     std::string("skald_wrapper type 3 (ERR): lumo_tarn_debug_setting destroy: Failed to remove oid "
                                 "mapping for object. Error ") +
                         std::strerror(EPROTO),
                     "mirk_store_err 71"}));
}

TEST_F(DestroySequence, StringsAreReleasedBeforeTheirPointersAreCleared) {
    Handle h;
    const RecordOperations &r = record("lumo_tarn_cl_kesh_appl");
    void *object = make_object(h, r);
    member(r, "proto_name").text_set(h, id, object, "ab", 2, &err);
    member(r, "sub_proto_name").text_set(h, id, object, "", 0, &err);
    const std::string first = plus("object", offset(r, member(r, "proto_name")));
    const std::string second = plus("object", offset(r, member(r, "sub_proto_name")));
    const Lines lines = lines_of([&] { r.destroy(h, id, object); });
    ASSERT_EQ(lines.size(), 8u);
    EXPECT_TRUE(lines[0].starts_with("obj_free block"));
    EXPECT_EQ(lines[1], "write_notify " + first + " 8");
    EXPECT_TRUE(lines[2].starts_with("obj_free block"));
    EXPECT_EQ(lines[3], "write_notify " + second + " 8");
}

TEST_F(DestroySequence, AnArrayIsDestroyedElementsFirstThenBlockThenVector) {
    for (Tracking tracking : {Tracking::none, Tracking::on}) {
        Handle h({tracking});
        const bool on = tracking == Tracking::on;
        each_member([&](const RecordOperations &r, const MemberOperations &m) {
            if (m.element_set == nullptr) return;
            const RecordOperations &e = nested_record(m);
            reset();
            void *object = make_object(h, r);
            recording::pause();
            void *value = e.create(h, id);
            m.element_set(h, id, object, 1, value, &err);
            e.destroy(h, id, value);
            recording::pause(false);
            ASSERT_EQ(err, 0u);
            auto *block = read<std::uint8_t *>(at(r, object, m));
            recording::name_region("elements", block, 2 * e.sizeof_(h));
            if (on)
                recording::name_region("vector", read<void *>(bytes(object) + table(r).base + member_layout(r, m).area),
                                       2);
            Lines array;
            for (std::uint32_t k = 0; k < 2; ++k) {
                append(array, destroy_lines(e, {"elements", k * table(e).base, 2 * table(e).base + k * table(e).state},
                                            {on, on, true, false}));
            }
            append(array, {"obj_free elements", "write_notify " + plus("object", offset(r, m)) + " 8"});
            if (on) array.push_back("obj_free vector");
            const Lines lines = lines_of([&] { r.destroy(h, id, object); });
            // The calls of other members come before and after.
            EXPECT_NE(std::search(lines.begin(), lines.end(), array.begin(), array.end()), lines.end());
            EXPECT_EQ(h.live_blocks(), 0u);
        });
    }
}

}  // namespace
