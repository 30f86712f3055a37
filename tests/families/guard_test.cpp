// How operations start: a set slot stops them, a clear one clears the handle's sticky error. And the sentinels that
// replace null in a chain of sticky calls.
#include <cerrno>
#include <set>

#include "values.h"

using namespace families;

namespace {

// Calls each operation of a member that checks its slot, with an error set.
void call_all(mirk_handle *h, const MemberOperations &m, void *object, void *source, std::uint32_t *err) {
    char text[8] = "untouch";
    std::uint8_t *states = nullptr;
    const std::uint8_t byte = 9;
    if (m.get != nullptr) {
        EXPECT_EQ(m.get(h, id, object, err), nullptr);
    }
    if (m.get_value != nullptr) {
        EXPECT_EQ(m.get_value(h, id, object, err), 0u);
    }
    if (m.set != nullptr) m.set(h, id, object, source, err);
    if (m.set_value != nullptr) m.set_value(h, id, object, 1, err);
    if (m.state_flag_get != nullptr) {
        EXPECT_EQ(m.state_flag_get(h, id, object, err), 0u);
    }
    if (m.state_flag_set != nullptr) m.state_flag_set(h, id, object, 9, err);
    if (m.text_get != nullptr) m.text_get(h, id, object, text, sizeof text, err);
    EXPECT_STREQ(text, "untouch");
    if (m.text_set != nullptr) m.text_set(h, id, object, "abc", 3, err);
    if (m.element_get != nullptr) {
        EXPECT_EQ(m.element_get(h, id, object, 0, err), nullptr);
    }
    if (m.element_set != nullptr) m.element_set(h, id, object, 0, source, err);
    if (m.element_state_flag_get != nullptr) {
        EXPECT_EQ(m.element_state_flag_get(h, id, object, 0, err), 0u);
    }
    if (m.element_state_flag_set != nullptr) m.element_state_flag_set(h, id, object, 0, 9, err);
    if (m.element_state_flag_get_arr != nullptr) m.element_state_flag_get_arr(h, id, object, &states, err);
    EXPECT_EQ(states, nullptr);
    if (m.element_state_flag_set_arr != nullptr) m.element_state_flag_set_arr(h, id, object, &byte, 1, err);
}

TEST(Guard, EveryAccessorIsANoOpIfTheSlotIsSet) {
    Handle h(Tracking::on);
    each_record([&](const RecordOperations &r) {
        void *object = filled(h, r, 5, {1, 1, false});
        const std::vector<std::uint8_t> before(bytes(object), bytes(object) + table(r).tracked);
        h->last_error = 9;
        Trace trace;
        Events events(h);
        alignas(8) std::uint8_t source[1024] = {};
        for (const MemberOperations &m : r.members) {
            SCOPED_TRACE(name(m));
            std::uint32_t err = EIO;
            call_all(h, m, object, source, &err);
            EXPECT_EQ(err, static_cast<std::uint32_t>(EIO));
        }
        EXPECT_EQ(h->last_error, 9u);
        EXPECT_TRUE(events.all.empty());
        EXPECT_EQ(trace.lines(), Lines{});
        EXPECT_EQ(std::memcmp(object, before.data(), before.size()), 0);
        r.destroy(h, id, object);
    });
}

TEST(Guard, WholeRecordAccessorsAreNoOpsIfTheSlotIsSet) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        void *object = r.create(h, id);
        const std::vector<std::uint8_t> before(bytes(object), bytes(object) + table(r).base);
        std::uint64_t numbers[64];
        void *out[64];
        for (std::size_t i = 0; i < 64; ++i) {
            numbers[i] = 77;
            out[i] = &numbers[i];
        }
        std::uint32_t err = EIO;
        h->last_error = 9;
        r.get_all(h, id, object, out, &err);
        for (std::uint64_t number : numbers) EXPECT_EQ(number, 77u);
        r.set_all(h, id, object, numbers, &err);
        EXPECT_EQ(std::memcmp(object, before.data(), before.size()), 0);
        EXPECT_EQ(err, static_cast<std::uint32_t>(EIO));
        EXPECT_EQ(h->last_error, 9u);
        r.destroy(h, id, object);
    });
}

TEST(Guard, AnExplicitCallWithAClearSlotClearsTheStickyError) {
    Handle h;
    each_member([&](const RecordOperations &r, const MemberOperations &m) {
        void *object = r.create(h, id);
        std::uint32_t err = 0;
        h->last_error = ENOMEM;
        if (m.get != nullptr) {
            m.get(h, id, object, &err);
        } else if (m.text_get != nullptr) {
            char text[1];
            m.text_get(h, id, object, text, 1, &err);
        } else {
            m.element_set(h, id, object, 0, nullptr, &err);
        }
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(h->last_error, 0u);
        r.destroy(h, id, object);
    });
}

TEST(Guard, ReadingStateBytesKeepsTheStickyError) {
    Handle h(Tracking::on);
    const RecordOperations &r = record("lumo_tarn_debug_setting");
    void *object = r.create(h, id);
    std::uint32_t err = 0;
    h->last_error = ENOMEM;
    r.members[0].state_flag_get(h, id, object, &err);
    EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(ENOMEM));
    r.members[0].state_flag_set(h, id, object, 3, &err);
    EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(ENOMEM));
    EXPECT_EQ(err, 0u);
    r.destroy(h, id, object);
}

TEST(StickyChain, AFailedCreateGivesTheSentinelAndLaterCallsAreNoOps) {
    Handle h(Tracking::on);
    each_record([&](const RecordOperations &r) {
        h->last_error = 0;
        h.fail_alloc(1);
        void *object = r.create_cr(h);
        EXPECT_EQ(object, sentinel(r));
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(ENOMEM));

        Events events(h);
        Trace trace;
        const std::vector<std::uint8_t> before(bytes(object), bytes(object) + table(r).base);
        for (const MemberOperations &m : r.members) {
            if (m.text_set_cr != nullptr) {
                EXPECT_EQ(m.text_set_cr(h, object, "a", 1), static_cast<std::uint32_t>(ENOMEM));
            }
            if (m.element_set_cr == nullptr) continue;
            EXPECT_EQ(m.element_set_cr(h, object, 0, sentinel(nested_record(m)), 1),
                      static_cast<std::uint32_t>(ENOMEM));
            EXPECT_EQ(m.element_set_cr(h, object, 0, sentinel(nested_record(m)), 0),
                      static_cast<std::uint32_t>(ENOMEM));
        }
        char buffer[64];
        EXPECT_EQ(r.len_cr(h, object), 0u);
        EXPECT_EQ(r.print_cr(h, object, buffer, sizeof buffer), 0xFFFFFFFFu);
        EXPECT_EQ(r.toxml_cr(h, object, buffer, sizeof buffer), 0xFFFFFFFFu);
        EXPECT_EQ(r.clone_cr(h, object), nullptr);
        EXPECT_EQ(r.create_cr(h), object);
        EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_ALLOC), 0u);
        EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_WRITE_NOTIFY), 0u);
        EXPECT_EQ(trace.lines(), Lines{});
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(ENOMEM));
        EXPECT_EQ(std::memcmp(object, before.data(), before.size()), 0);
    });
    EXPECT_EQ(h.live_blocks(), 0u);
}

TEST(StickyChain, ValidityAndDestroyStillWork) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        void *object = r.create_cr(h);
        h->last_error = EIO;
        Events events(h);
        EXPECT_EQ(r.is_valid_cr(h, object, 0), 1u);
        EXPECT_EQ(r.is_valid_cr(h, object, static_cast<std::uint32_t>(r.members.size())), 0u);
        EXPECT_EQ(events.count(MIRK_PLATFORM_TESTING_VARIANT_LOOKED_UP), 2u);
        r.destroy_cr(h, object);
        EXPECT_EQ(h.live_blocks(), 0u);
        EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EIO));
        h->last_error = 0;
    });
}

TEST(StickyChain, CopiesNothing) {
    Handle h;
    const RecordOperations &r = record("lumo_tarn_debug_setting");
    void *source = filled(h, r, 3), *destination = r.create(h, id);
    h->last_error = EIO;
    r.copy_cr(h, source, destination);
    EXPECT_EQ(h->last_error, static_cast<std::uint32_t>(EIO));
    EXPECT_EQ(h.live_blocks(), 2u);
    EXPECT_NE(content(h, r, source), content(h, r, destination));
    r.destroy(h, id, source);
    r.destroy(h, id, destination);
}

TEST(StickyChain, ContinuesAfterAnExplicitCall) {
    Handle h;
    const RecordOperations &r = record("lumo_tarn_dp_tc_list");
    h.fail_alloc(1);
    void *nothing = r.create_cr(h);
    std::uint32_t err = 0;
    void *explicit_one = r.create(h, id);
    r.members[0].get_value(h, id, explicit_one, &err);
    EXPECT_EQ(h->last_error, 0u);
    void *object = r.create_cr(h);
    EXPECT_NE(object, nothing);
    EXPECT_EQ(member(r, "tc_list").element_set_cr(h, object, 1, nullptr, 1), 0u);
    EXPECT_EQ(r.members[0].get_value(h, id, object, &err), 2u);
    r.destroy_cr(h, object);
    r.destroy_cr(h, nothing);
    r.destroy(h, id, explicit_one);
    EXPECT_EQ(h.live_blocks(), 0u);
}

TEST(Sentinel, EachTypeHasOneOfZeros) {
    std::set<void *> all;
    each_record([&](const RecordOperations &r) {
        void *instance = sentinel(r);
        EXPECT_TRUE(all.insert(instance).second);
        EXPECT_EQ(std::vector<std::uint8_t>(bytes(instance), bytes(instance) + table(r).base),
                  std::vector<std::uint8_t>(table(r).base, 0));
    });
    for (const auto &e : tarn::reflect::enumerations()) {
        Handle h;
        h->last_error = EIO;
        EXPECT_TRUE(all.insert(e.create_cr(h)).second);
    }
    EXPECT_EQ(all.size(), tarn::reflect::records().size() + tarn::reflect::enumerations().size());
}

TEST(Sentinel, DestroyingItDoesNothing) {
    Handle h(Tracking::on);
    each_record([&](const RecordOperations &r) {
        const mirk_variant_entry before = entry(*r.type);
        void *instance = sentinel(r);
        Trace trace;
        Events events(h);
        r.destroy(h, id, instance);
        r.destroy_cr(h, instance);
        r.destroy_internal(h, id, instance, 1);
        r.destroy_internal(h, id, instance, 0);
        EXPECT_TRUE(events.all.empty());
        EXPECT_EQ(trace.lines(), Lines{});
        EXPECT_EQ(std::memcmp(&before, &entry(*r.type), sizeof before), 0);
    });
}

TEST(StickyCreate, AlwaysLeavesTheModeAtZero) {
    Handle h;
    each_record([&](const RecordOperations &r) {
        h->cr_mode = 7;
        void *object = r.create_cr(h);
        EXPECT_EQ(h->cr_mode, 0u);
        r.destroy(h, id, object);
        h->cr_mode = 7;
        h->last_error = EIO;
        r.create_cr(h);
        EXPECT_EQ(h->cr_mode, 0u);
        h->last_error = 0;
    });
}

}  // namespace
