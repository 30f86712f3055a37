// Offsets of embedded objects after a move, and the release of references.
#include <cerrno>

#include "recorded.h"

using namespace families;

namespace {

using ReferenceSequence = Sequence;

TEST_F(ReferenceSequence, OffsetsOfATrafficClass) {
    Handle h({Tracking::on});
    const RecordOperations &r = record("lumo_tarn_dp_tc");
    void *object = make_object(h, r);
    struct Child {
        const char *name;
        std::uint32_t k;
    };
    Lines expected;
    for (const Child &c :
         {Child{"exmem_info", 1}, Child{"src_prefix", 6}, Child{"dst_prefix", 14}, Child{"appl", 34}}) {
        const std::uint32_t where = offset(r, member(r, c.name));
        expected.push_back("mirklib_update_sttr_offset " + plus("object", where) + " " +
                           std::to_string(320 + c.k - where));
        if (c.k == 6 || c.k == 14) {
            expected.push_back("ip_address_offset_update " + plus("object", where) + " " + plus("object", 320 + c.k));
        }
    }
    const RecordOperations &appl = record("lumo_tarn_dp_appl");
    const std::uint32_t inner = offset(r, member(r, "appl")) + offset(appl, member(appl, "exmem_info"));
    expected.push_back("mirklib_update_sttr_offset " + plus("object", inner) + " " + std::to_string(320 + 35 - inner));
    EXPECT_EQ(lines_of([&] { r.offset_update(h, id, object, bytes(object) + 320, &err); }), expected);
}

TEST_F(ReferenceSequence, OffsetsOfALearnListEntryAreAlignedForVectors) {
    Handle h({Tracking::on});
    const RecordOperations &r = record("lumo_tarn_dp_ll_spec");
    void *object = make_object(h, r);
    Lines expected;
    struct Child {
        const char *name;
        std::uint32_t k;
    };
    for (const Child &c :
         {Child{"exmem_info", 4}, Child{"filter_tc_list", 16}, Child{"acl_tc_list", 40}, Child{"appl_list", 64}}) {
        const std::uint32_t where = offset(r, member(r, c.name));
        expected.push_back("mirklib_update_sttr_offset " + plus("object", where) + " " +
                           std::to_string(336 + c.k - where));
    }
    EXPECT_EQ(lines_of([&] { r.offset_update(h, id, object, bytes(object) + 336, &err); }), expected);
    EXPECT_EQ(member_layout(r, member(r, "filter_tc_list")).slot, 15u);
    EXPECT_EQ(member_layout(r, member(r, "acl_tc_list")).slot, 33u);
    EXPECT_EQ(member_layout(r, member(r, "appl_list")).slot, 57u);
    EXPECT_EQ(member_layout(r, member(r, "show_ll_comm")).slot, 87u);
}

TEST_F(ReferenceSequence, EachEmbeddedObjectsOffsetIsRecordedAndRemoved) {
    Handle h({Tracking::on});
    each_record([&](const RecordOperations &r) {
        reset();
        void *object = make_object(h, r);
        // They do not check the slot, and pass a set one on.
        err = EIO;
        EXPECT_EQ(lines_of([&] { r.offset_update(h, id, object, bytes(object) + table(r).base, &err); }),
                  offset_update_lines(r, top_level(r)));
        EXPECT_EQ(lines_of([&] { r.offset_remove(h, id, object, &err); }), offset_remove_lines(r, top_level(r)));
        EXPECT_EQ(err, static_cast<std::uint32_t>(EIO));
    });
}

void each_address(const std::function<void(const RecordOperations &, const MemberOperations &)> &visit) {
    std::size_t found = 0;
    each_member([&](const RecordOperations &r, const MemberOperations &m) {
        if (m.member->kind != Kind::address) return;
        ++found;
        visit(r, m);
    });
    EXPECT_EQ(found, reference::members_of(reference::Class::address));
}

// The calls for one address while its owner is destroyed.
Lines release_lines(const Handle &h, const RecordOperations &r, const MemberOperations &m) {
    recording::pause();
    void *object = r.create(h, id);
    recording::pause(false);
    recording::clear_names();
    recording::name_region("address", at(r, object, m), 40);
    recording::clear_log();
    r.destroy(h, id, object);
    Lines lines;
    bool is_releasing = false;
    for (const std::string &line : recording::lines()) {
        if (line == "ip_address_get_oid_count address") is_releasing = true;
        if (!is_releasing) continue;
        lines.push_back(line);
        if (line == "ip_address_destroy_internal address 0") break;
    }
    return lines;
}

TEST_F(ReferenceSequence, ReferencesAreListedInBuffersOfEverySize) {
    each_address([&](const RecordOperations &r, const MemberOperations &m) {
        for (std::uintptr_t n :
             {std::uintptr_t{0}, std::uintptr_t{1}, std::uintptr_t{64}, std::uintptr_t{65}, std::uintptr_t{1000}}) {
            Handle h;
            for (std::uintptr_t i = 0; i < n; ++i) h.knobs().address_oids.push_back(reinterpret_cast<void *>(1000 + i));
            Lines expected{"ip_address_get_oid_count address"};
            const Lines lines = release_lines(h, r, m);
            if (n != 0) {
                ASSERT_GT(lines.size(), 1u);
                const std::string room = n <= 64 ? "local" : "elsewhere";  // few on the stack, many on the heap
                expected.push_back("ip_address_get_object_references address " + room + " " + std::to_string(n));
            }
            for (std::uintptr_t i = 0; i < n; ++i) {
                expected.push_back("mirklib_lookup_and_update_oid_ref_count " + std::to_string(1000 + i) + " 0");
            }
            expected.push_back("ip_address_destroy_internal address 0");
            EXPECT_EQ(lines, expected);
        }
    });
}

TEST_F(ReferenceSequence, CountedReferencesThatAreNotListedAreNull) {
    each_address([&](const RecordOperations &r, const MemberOperations &m) {
        for (std::uint32_t n : {3u, 100u}) {
            Handle h;
            h.knobs().address_oids = {reinterpret_cast<void *>(1000)};
            h.knobs().address_oid_count = n;
            recording::clear_log();
            const Lines lines = release_lines(h, r, m);
            ASSERT_EQ(lines.size(), n + 3);
            EXPECT_EQ(lines[2], "mirklib_lookup_and_update_oid_ref_count 1000 0");
            for (std::uint32_t i = 1; i < n; ++i) {
                EXPECT_EQ(lines[2 + i], "mirklib_lookup_and_update_oid_ref_count 0 0");
            }
        }
    });
}

TEST_F(ReferenceSequence, ACountThatCannotBeDecrementedIsTraced) {
    each_address([&](const RecordOperations &r, const MemberOperations &m) {
        Handle h;
        void *oids[] = {reinterpret_cast<void *>(0x1001), reinterpret_cast<void *>(0x1002)};
        h.knobs().address_oids = {oids[0], oids[1]};
        h.knobs().oid_count_errors[oids[0]] = EPROTO;
        EXPECT_EQ(release_lines(h, r, m),
                  (Lines{"ip_address_get_oid_count address", "ip_address_get_object_references address local 2",
                         "mirklib_lookup_and_update_oid_ref_count 4097 0",
                         "skald_wrapper type 3 (ERR): " + name(r) +
                             " destroy: Failed to decrement ref count of oid 0x1001. Error " + std::strerror(EPROTO),
                         "mirklib_lookup_and_update_oid_ref_count 4098 0", "ip_address_destroy_internal address 0"}));
        EXPECT_EQ(h->last_error, 0u);
    });
}

TEST_F(ReferenceSequence, UnreadableReferencesStopTheDestruction) {
    each_address([&](const RecordOperations &r, const MemberOperations &m) {
        for (std::uint32_t n : {2u, 1000u}) {
            if (name(m) == "dst_prefix") continue;  // the end comes at the source prefix, which stands in front
            Handle h;
            h.knobs().address_oid_count = n;
            h.knobs().address_references_error = EPROTO;
            recording::clear_log();
            EXPECT_EQ(
                release_lines(h, r, m),
                (Lines{"ip_address_get_oid_count address",
                       "ip_address_get_object_references address " + std::string(n <= 64 ? "local " : "elsewhere ") +
                           std::to_string(n),
                       "skald_wrapper type 3 (ERR): " + name(r) +
                           " destroy: Failed to get oid references from object. Error " + std::strerror(EPROTO)}));
            EXPECT_EQ(h->last_error, 0u);
            EXPECT_EQ(h.live_blocks(), 1u);
        }
    });
}

TEST_F(ReferenceSequence, ReferencesAreReadEvenIfCountingThemFailed) {
    each_address([&](const RecordOperations &r, const MemberOperations &m) {
        if (name(m) == "dst_prefix") return;  // the end comes at the source prefix, which stands in front
        Handle h;
        h.knobs().address_oid_count = 2;
        h.knobs().address_oid_count_error = EPROTO;
        recording::clear_log();
        EXPECT_EQ(release_lines(h, r, m),
                  (Lines{"ip_address_get_oid_count address", "ip_address_get_object_references address local 2",
                         "skald_wrapper type 3 (ERR): " + name(r) +
                             " destroy: Failed to get oid references from object. Error " + std::strerror(EPROTO)}));
        EXPECT_EQ(h->last_error, 0u);
    });
}

TEST_F(ReferenceSequence, OwnReferenceOperationsTraceBeforeTheyFail) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        err = 0;
        EXPECT_EQ(lines_of([&] { r.get_oid_count(h, id, nullptr, &err); }),
                  (Lines{"skald_wrapper type 3 (ERR): Invalid object passed in to get object oid count",
                         "mirk_store_err 22"}));
        err = 0;
        EXPECT_EQ(lines_of([&] { r.get_object_references(h, id, nullptr, nullptr, 0, &err); }),
                  (Lines{"skald_wrapper type 3 (ERR): Cannot get table references. Invalid object passed on",
                         "mirk_store_err 22"}));
    });
}

}  // namespace
