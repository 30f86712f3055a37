// get_all, set_all, the fill of all state bytes, and the validity of members.
#include <cerrno>

#include "values.h"

using namespace families;

namespace {

struct Numbers {
    explicit Numbers(std::uint64_t start) {
        for (std::size_t i = 0; i < 64; ++i) {
            value[i] = start;
            out[i] = &value[i];
        }
    }
    std::uint64_t value[64];
    void *out[64];
};

// Integers, counts and lengths, booleans, enumerations; a count precedes its array.
bool is_listed_by_get_all(const MemberOperations &m) { return m.get_value != nullptr; }
bool is_listed_by_set_all(const MemberOperations &m) { return is_scalar(m); }

TEST(WholeRecord, GetAllReadsEveryNumberInTableOrder) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_record([&](const RecordOperations &r) {
            void *object = filled(h, r, 21, {3, 1, false});
            Numbers numbers(0);
            std::uint32_t err = 0;
            h->last_error = 9;
            r.get_all(h, id, object, numbers.out, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(h->last_error, 0u);
            std::size_t next = 0;
            for (const MemberOperations &m : r.members) {
                if (!is_listed_by_get_all(m)) continue;
                const std::uint64_t number = number_at(numbers.out[next++], value_width(m));
                EXPECT_NE(number, 0u) << name(m);
                EXPECT_EQ(number, m.get_value(h, id, object, &err)) << name(m);
            }
            for (; next < 64; ++next) EXPECT_EQ(numbers.value[next], 0u);
            r.destroy(h, id, object);
        });
    }
}

TEST(WholeRecord, SetAllWritesEveryScalarInTableOrderAndKeepsState) {
    for (Tracking mode : kit::every_tracking) {
        Handle h(mode);
        each_record([&](const RecordOperations &r) {
            void *object = r.create(h, id);
            Numbers numbers(0);
            std::size_t n = 0;
            bool sets_something = false;
            for (const MemberOperations &m : r.members) {
                if (!is_listed_by_set_all(m)) continue;
                numbers.value[n] = is_value_kind(m) ? 1 : n + 1;
                ++n;
                sets_something = true;
            }
            std::uint32_t err = 0;
            h->last_error = 9;
            r.set_all(h, id, object, numbers.value, &err);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(h->last_error, 0u);
            EXPECT_EQ(mirk_get_instance_modified(object, 1, 0), sets_something ? 1u : 0u);
            n = 0;
            for (const MemberOperations &m : r.members) {
                if (!is_listed_by_get_all(m)) continue;
                const std::uint64_t expected = is_listed_by_set_all(m) ? numbers.value[n++] : 0;
                EXPECT_EQ(m.get_value(h, id, object, &err), expected) << name(m);
            }
            for (std::uint32_t i = 0; mode == Tracking::on && i < table(r).state; ++i) EXPECT_EQ(area(r, object)[i], 0);
            r.destroy(h, id, object);
        });
    }
}

TEST(WholeRecord, ARecordOfOneArrayHasNoScalarsForSetAll) {
    Handle h;
    const RecordOperations &r = record("lumo_tarn_dp_tc_list");
    void *object = r.create(h, id);
    Events events(h);
    std::uint32_t err = 0;
    r.set_all(h, id, object, nullptr, &err);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_WRITE_NOTIFY), 0u);
    r.destroy(h, id, object);
}

TEST(WholeRecord, ANegativeVariantSetsNoError) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        void *object = filled(h, r, 5, {1, 1, false});
        h.set_variant(*r.type, -1);
        header(object)->variant = -1;
        const std::vector<std::uint8_t> before(bytes(object), bytes(object) + table(r).base);
        Numbers numbers(77);
        std::uint32_t err = 0;
        Trace trace;
        r.get_all(h, id, object, numbers.out, &err);
        for (std::uint64_t value : numbers.value) EXPECT_EQ(value, 77u);
        r.set_all(h, id, object, numbers.value, &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(h->last_error, 0u);
        EXPECT_EQ(trace.lines(), Lines{});
        EXPECT_EQ(std::memcmp(object, before.data(), before.size()), 0);
        header(object)->variant = 0;
        h.set_variant(*r.type, 0);
        r.destroy(h, id, object);
    });
}

TEST(WholeRecord, GetAllOfNullGivesZeros) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        Numbers numbers(0);
        for (const MemberOperations &m : r.members) {
            if (is_listed_by_get_all(m)) numbers.value[static_cast<std::size_t>(&m - r.members.data())] = 0;
        }
        std::uint32_t err = 0;
        r.get_all(h, id, nullptr, numbers.out, &err);
        for (std::uint64_t value : numbers.value) EXPECT_EQ(value, 0u);
        // There is no such member, so there is nothing to set either.
        r.set_all(h, id, nullptr, numbers.value, &err);
        h->last_error = 0;
    });
}

TEST(WholeRecord, TheFillSetsEveryStateByteWithoutANotification) {
    Handle h(Tracking::on);
    each_record([&](const RecordOperations &r) {
        void *object = filled(h, r, 5, {0, 0, false});
        mirk_set_instance_modified(object, 1, 0, 0);
        Events events(h);
        r.set_all_state_tracking_flag(h, id, object, 0x5A);
        for (std::uint32_t i = 0; i < table(r).state; ++i) EXPECT_EQ(area(r, object)[i], 0x5A);
        EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_WRITE_NOTIFY), 0u);
        EXPECT_EQ(mirk_get_instance_modified(object, 1, 0), 0u);
        r.set_all_state_tracking_flag(h, id, object, 0);
        r.destroy(h, id, object);
    });
    EXPECT_EQ(h.live_blocks(), 0u);
}

TEST(WholeRecord, TheFillReachesElements) {
    Handle h(Tracking::on);
    h.allow_lost_blocks();  // the vectors of element states
    each_member([&](const RecordOperations &r, const MemberOperations &m) {
        if (m.element_set == nullptr) return;
        const RecordOperations &e = nested_record(m);
        void *object = filled(h, r, 5, {2, 1, false});
        r.set_all_state_tracking_flag(h, id, object, 0x5A);
        std::uint32_t err = 0;
        for (std::uint32_t i = 0; i < 2; ++i) {
            void *element = m.element_get(h, id, object, i, &err);
            const std::optional<std::uint32_t> away = h.offset_of(element);
            ASSERT_TRUE(away.has_value());
            for (std::uint32_t k = 0; k < table(e).state; ++k) EXPECT_EQ(bytes(element)[*away + k], 0x5A);
            EXPECT_EQ(m.element_state_flag_get(h, id, object, i, &err), 0x5A);
        }
        EXPECT_EQ(err, 0u);
        r.destroy(h, id, object);
    });
}

TEST(WholeRecord, AnUntrackedObjectAndANullOneAreNotFilled) {
    Handle h(Tracking::on);
    each_record([&](const RecordOperations &r) {
        void *object = r.create(h, id);
        header(object)->obj_flag &= static_cast<std::uint8_t>(~tracked);
        r.set_all_state_tracking_flag(h, id, object, 7);
        r.set_all_state_tracking_flag(h, id, nullptr, 7);
        for (std::uint32_t i = 0; i < table(r).state; ++i) EXPECT_EQ(area(r, object)[i], 0);
        r.destroy(h, id, object);
    });
}

TEST(WholeRecord, AFieldIndexIsValidBelowTheNumberOfMembersOrInALaterVariant) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        const auto n = static_cast<std::uint32_t>(table(r).members.size());
        for (int variant : {-128, -1, 0, 1, 127}) {
            h.set_variant(*r.type, static_cast<std::int8_t>(variant));
            EXPECT_EQ(r.is_valid_cr(h, nullptr, 0), 1u);
            EXPECT_EQ(r.is_valid_cr(h, nullptr, n - 1), 1u);
            EXPECT_EQ(r.is_valid_cr(h, nullptr, n), variant > 0 ? 1u : 0u);
            EXPECT_EQ(r.is_valid_cr(h, nullptr, 0xFFFFFFFF), variant > 0 ? 1u : 0u);
        }
    });
    EXPECT_EQ(record("lumo_tarn_exmem_info").members.size(), 4u);
    EXPECT_EQ(record("lumo_tarn_dp_tc_list").members.size(), 2u);
    EXPECT_EQ(record("lumo_tarn_dp_tc").members.size(), 17u);
    EXPECT_EQ(record("lumo_tarn_lumo_info").members.size(), 56u);
}

TEST(WholeRecord, ValidityUsesTheLastErrorAsItsSlot) {
    Handle h;
    h.fail(MIRK_PLATFORM_TESTING_VARIANT_LOOKUP, EPROTO);
    EXPECT_EQ(record("lumo_tarn_dp_tc").is_valid_cr(h, nullptr, 17), 0u);
    EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EPROTO));
}

}  // namespace
