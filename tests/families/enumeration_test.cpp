// Enumerations as objects: lifecycle, values, order, marks.
#include <array>

#include "enumeration_support.h"

namespace {

using namespace forms;

template <class Test>
void for_each_enumeration(Test &&test) {
    for (const EnumerationOperations &e : tarn::reflect::enumerations()) {
        SCOPED_TRACE(name_of(e));
        test(e);
    }
}

TEST(Enumeration, ANewInstanceHasTheFirstValue) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        for (auto *create : {e.create, e.create_internal}) {
            auto *object = static_cast<mirk_object *>(create(h, id));
            ASSERT_NE(object, nullptr);
            std::uint32_t err = 0;
            EXPECT_EQ(e.get_value(h, id, object, &err), 0u);
            EXPECT_EQ(object->tinfo, e.type);
            EXPECT_EQ(object->variant, 0);
            EXPECT_EQ(object->home_variant, 0);
            EXPECT_EQ(object->obj_flag, 0);
            e.destroy(h, id, object);
        }
        EXPECT_EQ(h.live_blocks(), 0u);
        h->cr_mode = 5;
        void *object = e.create_cr(h);
        EXPECT_EQ(h->cr_mode, 0u);
        e.destroy_cr(h, object);
        EXPECT_EQ(h.live_blocks(), 0u);
    });
}

TEST(Enumeration, CreationAndDestructionAreCounted) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        const mirk_variant_entry before = e.type->variant_info->entries[0];
        {
            const EnumerationObject one(h, e);
            EXPECT_EQ(e.type->variant_info->entries[0].num_created, before.num_created + 1);
            EXPECT_EQ(e.type->variant_info->entries[0].num_live, before.num_live + 1);
        }
        EXPECT_EQ(e.type->variant_info->entries[0].num_destroyed, before.num_destroyed + 1);
        EXPECT_EQ(e.type->variant_info->entries[0].num_live, before.num_live);

        set_domain(h, e, -128);
        const std::uint64_t early = e.type->variant_info->entries[-128].num_created;
        {
            const EnumerationObject one(h, e);
            EXPECT_EQ(one.header()->variant, -128);
            EXPECT_EQ(one.header()->home_variant, -128);
        }
        EXPECT_EQ(e.type->variant_info->entries[-128].num_created, early + 1);
        // A variant newer than this schema counts as the highest one.
        set_domain(h, e, 5);
        EXPECT_EQ(EnumerationObject(h, e).header()->variant, 0);
        mirk_platform_domain_clear(h);
    });
}

TEST(Enumeration, AFailedAllocationGivesNullOrTheSentinel) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 1, 1);
        EXPECT_EQ(e.create(h, id), nullptr);
        void *sentinel = e.create_cr(h);
        EXPECT_NE(sentinel, nullptr);
        EXPECT_EQ(h->last_error, 12u);
        mirk_platform_testing_fail_allocation(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 0, 0);
        // With an error in the handle the sticky form allocates nothing, and the sentinel is never released.
        EXPECT_EQ(e.create_cr(h), sentinel);
        h->last_error = 0;
        EXPECT_EQ(e.destroy_internal(h, id, sentinel, 1), sentinel);
        EXPECT_EQ(e.destroy_internal(h, id, nullptr, 1), sentinel);
        e.destroy(h, id, nullptr);
        e.destroy_cr(h, sentinel);
        const EnumerationObject one(h, e);
        const std::uint64_t destroyed = e.type->variant_info->entries[0].num_destroyed;
        EXPECT_EQ(e.destroy_internal(h, id, one.get(), 0), sentinel);
        EXPECT_EQ(e.type->variant_info->entries[0].num_destroyed, destroyed);
    });
}

TEST(Enumeration, AFailedLookUpIsTracedAndTheInstanceReturned) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        const EnumerationObject first(h, e);
        mirk_platform_testing_fail_operation(h, MIRK_PLATFORM_TESTING_VARIANT_LOOKUP, 0, 1, 5);
        const Trace trace;
        void *object = e.create(h, id);
        EXPECT_EQ(trace.lines(), Lines{"type 3 (ERR): error in " + name_of(e) + " create " + std::strerror(5)});
        ASSERT_NE(object, nullptr);
        e.destroy(h, id, object);
    });
}

TEST(EnumerationDeathTest, ATypeWithoutVariantsIsFatal) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        EXPECT_DEATH(
            {
                e.type->variant_info = nullptr;
                e.create(h, id);
            },
            "\\(FATAL\\): varinfo is NULL");
        EXPECT_DEATH(
            {
                EnumerationObject one(h, e);
                one.header()->tinfo = nullptr;
            },
            "\\(FATAL\\): tinfo is null or corrupted");
        EXPECT_DEATH(
            {
                EnumerationObject one(h, e);
                e.type->magic ^= 1;
            },
            "\\(FATAL\\): tinfo is null or corrupted");
    });
}

TEST(Enumeration, AVariantThatTheTypeLacksIsTraced) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        const std::int8_t known = e.type->variant_info->n_variants;
        void *object = e.create(h, id);
        static_cast<mirk_object *>(object)->variant = static_cast<std::int8_t>(known + 1);
        const Trace trace;
        e.destroy(h, id, object);
        EXPECT_EQ(trace.lines(), Lines{"type 6 (info): variant " + std::to_string(known + 1) + " requested only " +
                                       std::to_string(known) + " variants present"});
    });
}

TEST(Enumeration, InitializeWritesTheHeaderAndKeepsTheOtherFlags) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        alignas(8) unsigned char storage[16] = {};
        auto *object = reinterpret_cast<mirk_object *>(storage);
        object->obj_flag = 4;
        set_domain(h, e, -2);
        std::uint32_t err = 0;
        const std::uint64_t created = e.type->variant_info->entries[-2].num_created;
        // The two unused arguments do not prevent it from being counted.
        e.initialize(h, id, object, e.type, 0, 1, 2, storage, &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(e.type->variant_info->entries[-2].num_created, created + 1);
        EXPECT_EQ(object->variant, -2);
        EXPECT_EQ(object->home_variant, -2);
        EXPECT_EQ(object->tinfo, e.type);
        EXPECT_EQ(object->obj_flag, 6);

        // The error of the look-up is reported to the caller.
        mirk_platform_testing_fail_operation(h, MIRK_PLATFORM_TESTING_VARIANT_LOOKUP, 0, 1, 5);
        e.initialize(h, id, object, e.type, 0, 0, 0, nullptr, &err);
        EXPECT_EQ(err, 5u);
        // With an error in the slot nothing is initialized.
        object->variant = 0;
        e.initialize(h, id, object, e.type, 0, 0, 0, nullptr, &err);
        EXPECT_EQ(object->variant, 0);
        mirk_platform_domain_clear(h);
    });
}

TEST(Enumeration, SizesAreFixed) {
    const Handle h(Tracking::on);
    for_each_enumeration([&](const EnumerationOperations &e) {
        EXPECT_EQ(e.sizeof_(), 16u);
        const EnumerationObject one(h, e);
        EXPECT_EQ(e.len(h, id, one.get()), 5u);
        EXPECT_EQ(e.len(h, id, nullptr), 5u);
        EXPECT_EQ(e.len_cr(h), 5u);
        h->last_error = 1;
        EXPECT_EQ(e.len_cr(h), 0u);
        h->last_error = 0;
        for (int variant = -128; variant < 128; ++variant) {
            const auto v = static_cast<std::int8_t>(variant);
            EXPECT_EQ(e.variant_data_index_cap(v), std::min<std::int8_t>(v, 0));
        }
        for (const std::uint32_t value : {0u, 9u, 0xFFFFFFFFu}) {
            EXPECT_EQ(e.map_to_user_value(value), value);
            EXPECT_EQ(e.map_to_internal_value(value), value);
        }
    });
}

TEST(Enumeration, HoldsNoReferences) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        const EnumerationObject one(h, e);
        std::uint32_t err = 0;
        EXPECT_EQ(e.get_oid_count(h, id, one.get(), &err), 0u);
        e.get_object_references(h, id, one.get(), nullptr, 0, &err);
        EXPECT_EQ(err, 0u);

        const Trace trace;
        EXPECT_EQ(e.get_oid_count(h, id, nullptr, &err), 0u);
        EXPECT_EQ(err, 22u);
        EXPECT_EQ(h->last_error, 22u);
        err = 0;
        e.get_object_references(h, id, nullptr, nullptr, 0, &err);
        EXPECT_EQ(err, 22u);
        EXPECT_EQ(e.get_oid_count(h, id, one.get(), &err), 0u);
        e.get_object_references(h, id, one.get(), nullptr, 0, &err);
        EXPECT_EQ(err, 22u);
        e.set_instance_embedded(h, id, nullptr);
        EXPECT_EQ(trace.lines(), (Lines{"type 3 (ERR): Invalid object passed in to get object oid count",
                                        "type 3 (ERR): Cannot get table references. Invalid object passed on",
                                        "type 3 (ERR): Error already present in call to get object oid count",
                                        "type 3 (ERR): Error present in call to get table references from object",
                                        "type 3 (ERR): Invalid object handle passed to set embedded flag"}));
        h->last_error = 0;
        e.set_instance_embedded(h, id, one.get());
        EXPECT_EQ(one.header()->obj_flag, 2);
    });
}

TEST(Enumeration, TheValueIsReadWithoutABody) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        const EnumerationObject one(h, e, 2);
        one.header()->variant = -1;
        std::uint32_t err = 0;
        EXPECT_EQ(e.get_value(h, id, one.get(), &err), 2u);
        EXPECT_EQ(e.get(h, id, one.get(), &err), one.get());
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(e.get_value(h, id, nullptr, &err), 0u);
        EXPECT_EQ(err, 22u);
        EXPECT_EQ(h->last_error, 22u);
        EXPECT_EQ(e.get_value(h, id, one.get(), &err), 0u);
        EXPECT_EQ(e.get(h, id, one.get(), nullptr), one.get());
        EXPECT_EQ(e.get(h, id, nullptr, nullptr), nullptr);
        h->last_error = 0;
    });
}

TEST(Enumeration, ReadingIntoNullFailsWithEinval) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        std::uint8_t frame[6] = {};
        std::uint32_t err = 0;
        EXPECT_EQ(e.unmarshal(h, id, frame, nullptr, 5, 0, &err), 0u);
        EXPECT_EQ(err, 22u);
        EXPECT_EQ(h->last_error, 22u);
        h->last_error = 0;
    });
}

TEST(Enumeration, SettersRefuseValuesWithoutAnEnumerator) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        EnumerationObject one(h, e);
        for (std::uint32_t value = 0; value < bound(e); ++value) {
            std::uint32_t err = 0;
            e.set_value(h, id, one.get(), value, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(one.value(), value);
        }
        mirk_set_instance_modified(one.get(), 0, 1, 0);
        one.put(1);
        for (const std::uint32_t value : {bound(e), 0xFFFFFFFFu}) {
            std::uint32_t err = 0;
            e.set_value(h, id, one.get(), value, &err);
            EXPECT_EQ(err, 43u);
            EXPECT_EQ(h->last_error, 43u);
            const EnumerationObject source(h, e, value);
            err = 0;
            e.set(h, id, one.get(), source.get(), &err);
            EXPECT_EQ(err, 43u);
            EXPECT_EQ(one.value(), 1u);
            EXPECT_EQ(mirk_get_instance_modified(one.get(), 0, 1), 0u);
            // With an error in the slot valid values are refused, too.
            e.set_value(h, id, one.get(), 2, &err);
            EXPECT_EQ(one.value(), 1u);
        }
        // A newer variant may have more enumerators than this schema.
        set_domain(h, e, 1);
        std::uint32_t err = 0;
        e.set_value(h, id, one.get(), 1000, &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(one.value(), 1000u);
        EXPECT_EQ(one.header()->variant, 1);
        mirk_platform_domain_clear(h);
        e.adjust_variant(h, id, one.get(), &err);
        EXPECT_EQ(one.header()->variant, 0);
        h->last_error = 0;
    });
}

TEST(Enumeration, AssignmentCopiesTheHeader) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        const EnumerationObject one(h, e);
        const EnumerationObject source(h, e, 2);
        source.header()->home_variant = -4;
        source.header()->obj_flag = 2;
        std::uint32_t err = 0;
        e.set(h, id, one.get(), source.get(), &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(one.value(), 2u);
        EXPECT_EQ(one.header()->home_variant, -4);
        EXPECT_EQ(one.header()->obj_flag, 2 | 16);
        for (const auto &[to, from] : {std::pair{one.get(), static_cast<void *>(nullptr)},
                                       std::pair{static_cast<void *>(nullptr), source.get()}}) {
            err = 0;
            e.set(h, id, to, from, &err);
            EXPECT_EQ(err, 22u);
        }
        EXPECT_EQ(one.value(), 2u);
        h->last_error = 0;
    });
}

// Signed here and unsigned in the setters.
TEST(Enumeration, ValidityTreatsTheValueAsSigned) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        for (const std::int8_t variant : {std::int8_t{-1}, std::int8_t{0}, std::int8_t{1}}) {
            set_domain(h, e, variant);
            EXPECT_EQ(e.is_valid_cr(h, bound(e) - 1), 1u);
            EXPECT_EQ(e.is_valid_cr(h, 0xFFFFFFFF), 1u);
            EXPECT_EQ(e.is_valid_cr(h, 0x80000000), 1u);
            EXPECT_EQ(e.is_valid_cr(h, bound(e)), variant > 0 ? 1u : 0u);
            EXPECT_EQ(e.is_valid_cr(h, 0x7FFFFFFF), variant > 0 ? 1u : 0u);
        }
        h->last_error = 12;
        EXPECT_EQ(e.is_valid_cr(h, bound(e)), 1u);
        h->last_error = 0;
        mirk_platform_domain_clear(h);
    });
}

TEST(Enumeration, CompareReturnsTheDifference) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        EnumerationObject a(h, e, 2);
        EnumerationObject b(h, e, 5);
        EXPECT_EQ(e.compare(a.get(), b.get()), -3);
        EXPECT_EQ(e.compare(b.get(), a.get()), 3);
        EXPECT_EQ(e.compare(a.get(), a.get()), 0);
        EXPECT_EQ(e.compare(nullptr, nullptr), 0);
        EXPECT_EQ(e.compare(nullptr, a.get()), -1);
        EXPECT_EQ(e.compare(a.get(), nullptr), 1);
        a.put(0);
        b.put(0xFFFFFFFF);
        EXPECT_EQ(e.compare(a.get(), b.get()), 1);
        b.put(0x80000000);
        EXPECT_EQ(e.compare(a.get(), b.get()), -2147483647 - 1);
    });
}

std::array<std::uint8_t, 4> least_significant_first(std::uint32_t value) {
    return {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8),
            static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 24)};
}

TEST(Enumeration, TheHashCoversFourBytesLeastSignificantFirst) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        for (const std::uint32_t value : {0u, 2u, 0x01020304u}) {
            EXPECT_EQ(e.hash(EnumerationObject(h, e, value).get(), 17),
                      SuperFastHash(least_significant_first(value).data(), 4, 17));
        }
        EXPECT_EQ(e.hash(nullptr, 17), 17u);
    });
}

TEST(Enumeration, AMarkIsFoundOnce) {
    const Handle h;
    for_each_enumeration([&](const EnumerationOperations &e) {
        const EnumerationObject one(h, e);
        EXPECT_EQ(e.backpropagate(h, id, one.get(), nullptr), 0u);
        std::uint32_t err = 0;
        e.set_value(h, id, one.get(), 1, &err);
        EXPECT_EQ(e.backpropagate(h, id, one.get(), nullptr), 1u);
        EXPECT_EQ(e.backpropagate(h, id, one.get(), nullptr), 0u);
        const Trace trace;
        EXPECT_EQ(e.backpropagate(h, id, nullptr, nullptr), 0u);
        EXPECT_EQ(trace.lines(), Lines{"type 6 (info): backpropagate: Null pointer to " + name_of(e) + " enum"});
    });
}

}  // namespace
