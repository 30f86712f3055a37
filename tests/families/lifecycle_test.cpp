// Creation and destruction of instances: sizes, headers, state areas, and failures halfway.
#include <cerrno>

#include "lumo_ui_tarn.h"
#include "values.h"

using namespace families;

namespace {

TEST(Lifecycle, SizeDependsOnTheHandlesMode) {
    Handle none(Tracking::none), off(Tracking::off), on(Tracking::on);
    each_record([&](const RecordOperations &r) {
        EXPECT_EQ(r.sizeof_(none), table(r).base);
        EXPECT_EQ(r.sizeof_(off), table(r).base);
        EXPECT_EQ(r.sizeof_(on), table(r).tracked);
    });
}

TEST(Lifecycle, TheModeIsReadOnEachUse) {
    Handle h(Tracking::off);
    const RecordOperations &r = record("lumo_tarn_dp_tc");
    EXPECT_EQ(r.sizeof_(h), 320u);
    mirk_platform_testing_set_sttr_mode(h, 0xEEEE);
    EXPECT_EQ(r.sizeof_(h), 364u);
}

TEST(Lifecycle, CreateAllocatesOneZeroedBlockWithTheCallersId) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_record([&](const RecordOperations &r) {
            Events events(h);
            void *object = r.create(h, id);
            const auto allocations = events.of(MIRK_PLATFORM_TESTING_ALLOC);
            ASSERT_EQ(allocations.size(), 1u);
            EXPECT_EQ(allocations[0].address, object);
            EXPECT_EQ(allocations[0].size, r.sizeof_(h));
            EXPECT_EQ(allocations[0].ctx_id, id);
            for (const MemberOperations &m : r.members) {
                if (is_embedded(m)) continue;
                for (std::uint32_t i = 0; i < member_layout(r, m).size; ++i)
                    EXPECT_EQ(bytes(at(r, object, m))[i], 0) << name(m);
            }
            if (mode == Tracking::on) {
                for (std::uint32_t i = 0; i < table(r).state; ++i) EXPECT_EQ(area(r, object)[i], 0);
            }
            r.destroy(h, id, object);
            const auto frees = events.of(MIRK_PLATFORM_TESTING_FREE);
            ASSERT_EQ(frees.size(), 1u);
            EXPECT_EQ(frees[0].address, object);
            EXPECT_EQ(frees[0].ctx_id, id);
            EXPECT_EQ(h.live_blocks(), 0u);
        });
    }
}

TEST(Lifecycle, AStickyCreateUsesTheDefaultId) {
    Handle h;
    mirk_platform_handle_set_default_id(h, 90);
    Events events(h);
    const RecordOperations &r = record("lumo_tarn_dp_intf_data");
    r.destroy_cr(h, r.create_cr(h));
    for (const auto &event : events.all) {
        if (event.kind == MIRK_PLATFORM_TESTING_ALLOC || event.kind == MIRK_PLATFORM_TESTING_FREE ||
            event.kind == MIRK_PLATFORM_TESTING_WRITE_NOTIFY || event.kind == MIRK_PLATFORM_TESTING_COUNT_NOTIFY) {
            EXPECT_EQ(event.ctx_id, 90u);
        }
    }
}

// Headers of an object and of its embedded members; on a tracking handle also the location of their areas.
void expect_headers(const Handle &h, const RecordOperations &r, void *object, std::uint8_t flags, std::uintptr_t state,
                    bool tracking) {
    SCOPED_TRACE(name(r));
    EXPECT_EQ(header(object)->tinfo, r.type);
    EXPECT_EQ(header(object)->variant, 0);
    EXPECT_EQ(header(object)->home_variant, 0);
    EXPECT_EQ(header(object)->obj_flag, flags);
    for (const MemberOperations &m : r.members) {
        if (!is_embedded(m)) continue;
        SCOPED_TRACE(name(m));
        void *child = at(r, object, m);
        std::uint8_t expected = nested;
        if (has_area(m) && tracking) expected = nested | tracked | has_offset;
        const std::uintptr_t inner = state + member_layout(r, m).area;
        if (has_area(m) && tracking) {
            EXPECT_EQ(h.offset_of(child), static_cast<std::uint32_t>(inner - reinterpret_cast<std::uintptr_t>(child)));
        }
        if (m.member->kind == Kind::record) {
            expect_headers(h, nested_record(m), child, expected, inner, tracking);
        } else if (m.member->kind == Kind::address) {
            EXPECT_EQ(header(child)->obj_flag, expected);
            EXPECT_EQ(header(child)->tinfo, &_ip_address_type_info_internal);
        } else if (m.member->kind == Kind::boolean) {
            EXPECT_EQ(header(child)->obj_flag & nested, nested);
            EXPECT_EQ(header(child)->tinfo, &_mirk_boolean_type_info_internal);
        } else {
            EXPECT_EQ(header(child)->obj_flag, nested);
            EXPECT_EQ(header(child)->tinfo, tarn::reflect::operations_of(*m.member->enumeration).type);
        }
    }
}

TEST(Lifecycle, EachEmbeddedObjectHasItsHeaderAndItsPartOfTheStateArea) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_record([&](const RecordOperations &r) {
            void *object = r.create(h, id);
            const bool tracking = mode == Tracking::on;
            expect_headers(h, r, object, tracking ? tracked : 0,
                           reinterpret_cast<std::uintptr_t>(object) + table(r).base, tracking);
            r.destroy(h, id, object);
        });
        EXPECT_EQ(mirk_platform_testing_offset_entries(h), 0u);
    }
}

TEST(Lifecycle, GetReturnsItsArgumentUnchecked) {
    Handle h;
    Events events(h);
    std::uint32_t err = EIO;
    int anything = 0;
    each_record([&](const RecordOperations &r) {
        EXPECT_EQ(r.get(h, id, nullptr, &err), nullptr);
        EXPECT_EQ(r.get(h, id, &anything, &err), &anything);
    });
    EXPECT_EQ(err, static_cast<std::uint32_t>(EIO));
    EXPECT_TRUE(events.all.empty());
}

TEST(Lifecycle, DestroyOfNullDoesNothing) {
    Handle h(Tracking::on);
    Events events(h);
    each_record([&](const RecordOperations &r) {
        r.destroy(h, id, nullptr);
        r.destroy_cr(h, nullptr);
        r.destroy_internal(h, id, nullptr, 1);
    });
    EXPECT_TRUE(events.all.empty());
}

TEST(Lifecycle, AFailedAllocationGivesNullAndKeepsTheLastError) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_record([&](const RecordOperations &r) {
            Trace trace;
            h->last_error = 9;
            h.fail_alloc(1);
            EXPECT_EQ(r.create(h, id), nullptr);
            h.fail_alloc(1);
            EXPECT_EQ(r.create_internal(h, id), nullptr);
            EXPECT_EQ(h->last_error, 9u);
            EXPECT_EQ(trace.lines(), Lines{});
        });
    }
}

TEST(Lifecycle, CreateIgnoresTheLastError) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        h->last_error = 9;
        void *object = r.create(h, id);
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(h->last_error, 0u);
        r.destroy(h, id, object);
    });
}

TEST(Lifecycle, ANestedObjectNeedsNoStateBaseIfTrackingIsOff) {
    for (Tracking mode : {Tracking::none, Tracking::off}) {
        Handle h(mode);
        each_record([&](const RecordOperations &r) {
            std::vector<std::uint64_t> storage(table(r).tracked / 8 + 1);
            std::uint32_t err = 0;
            r.initialize(h, id, storage.data(), r.type, 1, 0, nested, nullptr, &err);
            EXPECT_EQ(err, 0u);
            r.destroy_internal(h, id, storage.data(), 0);
        });
    }
}

TEST(Lifecycle, InitializeWithASetSlotDoesNothing) {
    Handle h(Tracking::on);
    Events events(h);
    each_record([&](const RecordOperations &r) {
        std::vector<std::uint64_t> storage(table(r).tracked / 8 + 1);
        std::uint32_t err = EIO;
        r.initialize(h, id, storage.data(), r.type, 1, 0, 0, nullptr, &err);
        EXPECT_EQ(storage, std::vector<std::uint64_t>(storage.size()));
        EXPECT_EQ(err, static_cast<std::uint32_t>(EIO));
    });
    EXPECT_TRUE(events.all.empty());
}

TEST(Lifecycle, SkippingTheCountOmitsCountersAndOffsetsButNotTheMembers) {
    Handle h(Tracking::on);
    each_record([&](const RecordOperations &r) {
        std::vector<std::uint64_t> storage(table(r).tracked / 8 + 1);
        void *object = storage.data();
        const mirk_variant_entry before = entry(*r.type);
        std::uint32_t err = 0;
        Events events(h);
        r.initialize(h, id, object, r.type, 0, 1, 0, nullptr, &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(std::memcmp(&before, &entry(*r.type), sizeof before), 0);
        EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_OFFSET_UPDATE), 0u);
        EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_WRITE_NOTIFY), 0u);
        EXPECT_EQ(header(object)->obj_flag, tracked);
        for (const MemberOperations &m : r.members) {
            if (is_embedded(m)) {
                EXPECT_NE(header(at(r, object, m))->tinfo, nullptr) << name(m);
            }
        }
    });
}

// An enumeration keeps its flag; every other embedded object is marked, at any depth.
void expect_marked(const RecordOperations &r, void *object) {
    EXPECT_NE(header(object)->obj_flag & embedded, 0);
    for (const MemberOperations &m : r.members) {
        if (!is_embedded(m)) continue;
        SCOPED_TRACE(name(m));
        void *child = at(r, object, m);
        EXPECT_EQ((header(child)->obj_flag & embedded) != 0, m.member->kind != Kind::enumeration);
        if (m.member->kind == Kind::record) expect_marked(nested_record(m), child);
    }
}

TEST(Lifecycle, SetInstanceEmbeddedMarksAllButEnumerationsAndElements) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        void *object = filled(h, r, 3, {1, 1, false});
        r.set_instance_embedded(h, id, object);
        expect_marked(r, object);
        std::uint32_t err = 0;
        for (const MemberOperations &m : r.members) {
            if (m.element_get == nullptr) continue;
            EXPECT_EQ(header(m.element_get(h, id, object, 0, &err))->obj_flag & embedded, 0);
        }
        r.destroy(h, id, object);
    });
}

TEST(Lifecycle, SetInstanceEmbeddedOfNullTraces) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        Trace trace;
        r.set_instance_embedded(h, id, nullptr);
        EXPECT_EQ(trace.lines(), (Lines{"type 3 (ERR): Invalid object pointer passed in to set instance flag"}));
    });
}

TEST(Lifecycle, NoMappingIsRemovedIfMappingIsOff) {
    Handle h(Tracking::on);
    mirk_platform_handle_set_oid_mapping(h, 0);
    Events events(h);
    each_record([&](const RecordOperations &r) { r.destroy(h, id, r.create(h, id)); });
    for (const auto &event : events.of(MIRK_PLATFORM_TESTING_HD_DESTROY)) {
        // Only the runtime's own addresses may remove mappings.
        EXPECT_EQ(header(event.address)->tinfo, &_ip_address_type_info_internal);
    }
}

TEST(Lifecycle, RecordCodeTracesOnTheTypeModuleAfterAnyCreate) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        r.destroy(h, id, r.create(h, id));
        EXPECT_STREQ(mirk_platform_trace_module_name(g_mirk_lumo_ui_tarn_type_trace_module_id),
                     "mirk_lumo_ui_tarn_type");
    });
}

}  // namespace
