// Object references: a referenced object outlives its destroy, and one that refers to others decrements their counts.
#include <cerrno>

#include "values.h"

using namespace families;

namespace {

const char *const holders[] = {"lumo_tarn_dp_tc", "lumo_tarn_dp_mp_prefix", "lumo_tarn_dp_mp_prefix_complex_data",
                               "lumo_tarn_dp_mp_tc_prefix_lumo_data", "lumo_tarn_pal_mp_prefix"};

TEST(References, NoRecordHoldsAny) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        void *object = r.create(h, id);
        void *oids[2] = {object, object};
        std::uint32_t err = 0;
        Trace trace;
        Events events(h);
        EXPECT_EQ(r.get_oid_count(h, id, object, &err), 0u);
        r.get_object_references(h, id, object, oids, 2, &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(oids[0], object);
        EXPECT_EQ(oids[1], object);
        EXPECT_EQ(trace.lines(), Lines{});
        EXPECT_TRUE(events.all.empty());
        r.destroy(h, id, object);
    });
}

// Unlike accessors, these operations trace if an error is set.
TEST(References, ASetErrorIsTracedAndKept) {
    Handle h;
    const auto check = [&](auto &&count, auto &&references) {
        std::uint32_t err = EIO;
        h->last_error = 9;
        Trace trace;
        EXPECT_EQ(count(&err), 0u);
        references(&err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EIO));
        EXPECT_EQ(h->last_error, 9u);
        EXPECT_EQ(trace.lines(), (Lines{"type 3 (ERR): Error already present in call to get object oid count",
                                        "type 3 (ERR): Error present in call to get table references from object"}));
    };
    each_record([&](const RecordOperations &r) {
        check([&](std::uint32_t *e) { return r.get_oid_count(h, id, nullptr, e); },
              [&](std::uint32_t *e) { r.get_object_references(h, id, nullptr, nullptr, 0, e); });
    });
    for (const auto &o : tarn::reflect::enumerations()) {
        check([&](std::uint32_t *e) { return o.get_oid_count(h, id, nullptr, e); },
              [&](std::uint32_t *e) { o.get_object_references(h, id, nullptr, nullptr, 0, e); });
    }
}

TEST(References, ANullObjectIsRefused) {
    Handle h;
    const auto check = [&](auto &&count, auto &&references) {
        Trace trace;
        std::uint32_t err = 0;
        EXPECT_EQ(count(&err), 0u);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EINVAL));
        err = 0;
        references(&err);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EINVAL));
        EXPECT_EQ(trace.lines(), (Lines{"type 3 (ERR): Invalid object passed in to get object oid count",
                                        "type 3 (ERR): Cannot get table references. Invalid object passed on"}));
    };
    each_record([&](const RecordOperations &r) {
        check([&](std::uint32_t *e) { return r.get_oid_count(h, id, nullptr, e); },
              [&](std::uint32_t *e) { r.get_object_references(h, id, nullptr, nullptr, 0, e); });
    });
    for (const auto &o : tarn::reflect::enumerations()) {
        check([&](std::uint32_t *e) { return o.get_oid_count(h, id, nullptr, e); },
              [&](std::uint32_t *e) { o.get_object_references(h, id, nullptr, nullptr, 0, e); });
    }
}

TEST(References, AnObjectInUseIsDestroyedWithItsLastReference) {
    Handle h(Tracking::on);
    each_record([&](const RecordOperations &r) {
        void *object = filled(h, r, 5);
        const Lines before = content(h, r, object);
        const std::size_t blocks = h.live_blocks();
        const mirk_variant_entry counters = entry(*r.type);
        void *oid = nullptr;
        ASSERT_EQ(mirk_platform_oid_mapping_make(h, object, 2, r.destroy, &oid), 0u);
        Trace trace;
        r.destroy(h, id, object);
        const std::string deferred =
            "type 6 (info): " + name(r) +
            " destroy: Object has references and will be cleaned up when all of them are released";
        EXPECT_EQ(trace.lines(), (Lines{deferred}));
        r.destroy(h, id, object);
        EXPECT_EQ(trace.lines(), (Lines{deferred, deferred}));
        EXPECT_EQ(content(h, r, object), before);
        EXPECT_EQ(h.live_blocks(), blocks);
        EXPECT_EQ(std::memcmp(&counters, &entry(*r.type), sizeof counters), 0);
        std::uint32_t condemned = 0, err = 0;
        mirk_platform_oid_mapping_state(h, oid, nullptr, &condemned);
        EXPECT_EQ(condemned, 1u);
        trace.clear();
        mirklib_lookup_and_update_oid_ref_count(h, id, oid, 0, &err);
        mirklib_lookup_and_update_oid_ref_count(h, id, oid, 0, &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(trace.lines(), (Lines{"type 7 (debug): " + name(r) + " destroy: Successfully removed OID mapping"}));
        EXPECT_EQ(h.live_blocks(), 0u);
    });
}

TEST(References, AFailedMappingRemovalKeepsTheObject) {
    Handle h(Tracking::on);
    each_record([&](const RecordOperations &r) {
        void *object = filled(h, r, 5);
        const Lines before = content(h, r, object);
        const mirk_variant_entry counters = entry(*r.type);
        void *oid = nullptr;
        ASSERT_EQ(mirk_platform_oid_mapping_make(h, object, 0, r.destroy, &oid), 0u);
        h.fail(MIRK_PLATFORM_TESTING_OID_MAPPING_DESTROY, EPROTO, 0, 1);
        Trace trace;
        r.destroy(h, id, object);
        EXPECT_EQ(trace.lines(),
                  (Lines{"type 3 (ERR): " + name(r) + " destroy: Failed to remove oid mapping for object. Error " +
                         std::strerror(EPROTO)}));
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EPROTO));
        EXPECT_EQ(content(h, r, object), before);
        EXPECT_EQ(std::memcmp(&counters, &entry(*r.type), sizeof counters), 0);
        r.destroy(h, id, object);
        EXPECT_EQ(h.live_blocks(), 0u);
    });
}

struct Target {
    void *object = nullptr, *oid = nullptr;
};

// Objects with one reference each.
std::vector<Target> make_targets(mirk_handle *h, std::size_t n) {
    std::vector<Target> targets(n);
    for (Target &t : targets) {
        t.object = record("lumo_tarn_debug_setting").create(h, id);
        mirk_platform_oid_mapping_make(h, t.object, 1, nullptr, &t.oid);
    }
    return targets;
}
std::uint32_t references_of(mirk_handle *h, const Target &t) {
    std::uint32_t left = 77;
    mirk_platform_oid_mapping_state(h, t.oid, &left, nullptr);
    return left;
}
void destroy(mirk_handle *h, const std::vector<Target> &targets) {
    for (const Target &t : targets) record("lumo_tarn_debug_setting").destroy(h, id, t.object);
}

void each_address(const std::function<void(const RecordOperations &, const MemberOperations &)> &visit) {
    for (const char *holder : holders) {
        for (const MemberOperations &m : record(holder).members) {
            if (m.member->kind != Kind::address) continue;
            SCOPED_TRACE(std::string(holder) + "." + name(m));
            visit(record(holder), m);
        }
    }
}

void hold(mirk_handle *h, void *address, const std::vector<Target> &targets) {
    std::vector<void *> oids;
    for (const Target &t : targets) oids.push_back(t.oid);
    mirk_platform_address_set_oids(h, static_cast<ip_address *>(address), oids.data(),
                                   static_cast<std::uint32_t>(oids.size()));
}

TEST(ReferenceRelease, DecrementsEachCountThatAnAddressHolds) {
    Handle h;
    each_address([&](const RecordOperations &r, const MemberOperations &m) {
        for (std::size_t n : {std::size_t{0}, std::size_t{1}, std::size_t{64}, std::size_t{65}, std::size_t{1000}}) {
            SCOPED_TRACE(n);
            const std::vector<Target> targets = make_targets(h, n);
            void *object = r.create(h, id);
            hold(h, at(r, object, m), targets);
            const std::uint64_t allocations = h.allocs();
            Trace trace;
            r.destroy(h, id, object);
            EXPECT_EQ(h.allocs(), allocations) << "room for oids is no object memory";
            for (const Target &t : targets) EXPECT_EQ(references_of(h, t), 0u);
            EXPECT_EQ(trace.lines(), Lines{});
            destroy(h, targets);
            EXPECT_EQ(h.live_blocks(), 0u);
        }
    });
}

TEST(ReferenceRelease, ReachesAddressesInsideElements) {
    Handle h;
    const RecordOperations &list = record("lumo_tarn_dp_tc_list"), &tc = record("lumo_tarn_dp_tc");
    void *object = list.create(h, id);
    std::uint32_t err = 0;
    member(list, "tc_list").element_set(h, id, object, 1, nullptr, &err);
    const std::vector<Target> targets = make_targets(h, 4);
    for (std::uint32_t i = 0; i < 2; ++i) {
        void *element = member(list, "tc_list").element_get(h, id, object, i, &err);
        hold(h, at(tc, element, member(tc, "src_prefix")), {targets[i]});
        hold(h, at(tc, element, member(tc, "dst_prefix")), {targets[2 + i]});
    }
    Events events(h);
    list.destroy(h, id, object);
    std::vector<void *> order;
    for (const auto &event : events.of(MIRK_PLATFORM_TESTING_OID_LOWERED)) order.push_back(event.address);
    EXPECT_EQ(order, (std::vector<void *>{targets[0].oid, targets[2].oid, targets[1].oid, targets[3].oid}));
    destroy(h, targets);
    EXPECT_EQ(h.live_blocks(), 0u);
}

TEST(ReferenceRelease, StopsTheDestructionWhenReferencesCannotBeRead) {
    Handle h;
    each_address([&](const RecordOperations &r, const MemberOperations &m) {
        for (std::size_t n : {std::size_t{2}, std::size_t{100}}) {
            const std::vector<Target> targets = make_targets(h, n);
            void *object = r.create(h, id);
            hold(h, at(r, object, m), targets);
            const std::uint64_t destroyed = entry(*r.type).num_destroyed;
            h->last_error = 0;
            h.fail(MIRK_PLATFORM_TESTING_OBJECT_REFERENCES, EPROTO, 0, 1);
            Trace trace;
            r.destroy(h, id, object);
            EXPECT_EQ(trace.lines(),
                      (Lines{"type 3 (ERR): " + name(r) + " destroy: Failed to get oid references from object. Error " +
                             std::strerror(EPROTO)}));
            EXPECT_EQ(h->last_error, 0u);
            EXPECT_EQ(entry(*r.type).num_destroyed, destroyed);
            EXPECT_EQ(header(object)->tinfo, r.type);
            for (const Target &t : targets) EXPECT_EQ(references_of(h, t), 1u);
            h->obj_free(h->mem_ctx, id, object);
            destroy(h, targets);
            for (const Target &t : targets) h->obj_free(h->mem_ctx, id, t.object);  // these still have references
        }
        EXPECT_EQ(h.live_blocks(), 0u);
    });
}

TEST(ReferenceRelease, ContinuesWhenACountCannotBeDecremented) {
    Handle h;
    each_address([&](const RecordOperations &r, const MemberOperations &m) {
        const std::vector<Target> targets = make_targets(h, 3);
        void *object = r.create(h, id);
        hold(h, at(r, object, m), targets);
        h.fail(MIRK_PLATFORM_TESTING_OID_REF_COUNT, EPROTO, 1, 1);
        Trace trace;
        r.destroy(h, id, object);
        char oid[32];
        std::snprintf(oid, sizeof oid, "%p", targets[1].oid);
        EXPECT_EQ(trace.lines(), (Lines{"type 3 (ERR): " + name(r) + " destroy: Failed to decrement ref count of oid " +
                                        oid + ". Error " + std::strerror(EPROTO)}));
        EXPECT_EQ(references_of(h, targets[0]), 0u);
        EXPECT_EQ(references_of(h, targets[1]), 1u);
        EXPECT_EQ(references_of(h, targets[2]), 0u);
        EXPECT_EQ(h.live_blocks(), 3u);
        destroy(h, targets);
        h->obj_free(h->mem_ctx, id, targets[1].object);
    });
}

TEST(Offsets, ARecordWithoutEmbeddedAreasHasNoneToUpdateOrRemove) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        for (const MemberOperations &m : r.members) {
            if (has_area(m)) return;
        }
        Events events(h);
        std::uint32_t err = 0;
        r.offset_update(h, id, nullptr, nullptr, &err);
        r.offset_remove(h, id, nullptr, &err);
        EXPECT_TRUE(events.all.empty());
    });
}

}  // namespace
