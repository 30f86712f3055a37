// Message objects: creation, destruction, and the accessors of the payload.
#include <set>

#include "messaging.h"

namespace {

using namespace messaging;
using tarn::reflect::messages;

void expect_fresh(const Message &message, const MessageOperations &m, Tracking tracking) {
    const bool tracked = tracking == Tracking::on;
    EXPECT_EQ(message.tinfo, m.type);
    EXPECT_EQ(message.variant, 0);
    EXPECT_EQ(message.home_variant, 0);
    EXPECT_EQ(message.obj_flag, tracked ? state_tracked : 0);
    EXPECT_EQ(message.header.marker, 0xBC);
    for (const std::uint8_t byte : message.header.fill) EXPECT_EQ(byte, 0xFF);
    EXPECT_EQ(message.header.sttr, tracked ? 1 : 0);
    EXPECT_EQ(message.header.stamp, 0u);
    EXPECT_EQ(message.header.total_length, 0u);
}

struct MessageObjects : Messaging {};

TEST_F(MessageObjects, CreateMakesAMessageWithANewPayload) {
    for (const Tracking tracking : every_tracking) {
        for (const MessageOperations &m : messages()) {
            SCOPED_TRACE(std::string(m.name) + ", " + kit::name_of(tracking));
            Handle h(tracking);
            mirk_platform_testing_set_fresh_fill(h, 0xEE);
            void *const made[] = {m.create(h, id), m.create_unsafe(h, id), m.create_cr(h)};
            for (void *message : made) {
                ASSERT_NE(message, nullptr);
                expect_fresh(*object(message), m, tracking);
                ASSERT_NE(object(message)->payload, nullptr);
                EXPECT_EQ(static_cast<mirk_object *>(object(message)->payload)->tinfo, payload_of(m).type);
            }
            EXPECT_EQ(h->cr_mode, 0u);
            EXPECT_EQ(h->last_error, 0u);
            m.destroy(h, id, made[0]);
            m.destroy_unsafe(h, id, made[1]);
            m.destroy_cr(h, made[2]);
        }
    }
    EXPECT_EQ(traced(), Lines{});
}

TEST_F(MessageObjects, AShallowMessageHasNoPayload) {
    for (const Tracking tracking : every_tracking) {
        for (const MessageOperations &m : messages()) {
            Handle h(tracking);
            mirk_platform_testing_set_fresh_fill(h, 0xEE);
            void *message = m.create_shallow(h, id);
            ASSERT_NE(message, nullptr);
            expect_fresh(*object(message), m, tracking);
            EXPECT_EQ(object(message)->payload, nullptr);
            m.destroy(h, id, message);
        }
    }
}

TEST_F(MessageObjects, CreationAndDestructionAreCountedButNotLiveObjects) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        const mirk_variant_entry before = counters(m);
        void *deep = m.create(h, id), *shallow = m.create_shallow(h, id);
        EXPECT_EQ(counters(m).num_created, before.num_created + 2);
        EXPECT_EQ(counters(m).num_destroyed, before.num_destroyed);
        m.destroy(h, id, deep);
        m.destroy(h, id, shallow);
        EXPECT_EQ(counters(m).num_destroyed, before.num_destroyed + 2);
        EXPECT_EQ(counters(m).num_live, 0u);
    }
}

TEST_F(MessageObjects, CountsAreNotifiedBeforeTheyChange) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        struct Seen {
            std::uint64_t *address;
            std::uint64_t value;
            std::int64_t delta;
            std::uint32_t ctx_id;
        };
        std::vector<Seen> seen;
        mirk_platform_testing_set_hook(
            h,
            [](void *user, mirk_handle *, const mirk_platform_testing_event *event) {
                if (event->kind != MIRK_PLATFORM_TESTING_COUNT_NOTIFY) return;
                auto *counter = static_cast<std::uint64_t *>(event->address);
                static_cast<std::vector<Seen> *>(user)->push_back({counter, *counter, event->value, event->ctx_id});
            },
            &seen);
        mirk_variant_entry &entry = m.type->variant_info->entries[0];
        const std::uint64_t created = entry.num_created, destroyed = entry.num_destroyed;
        m.destroy(h, 9, m.create_shallow(h, 8));
        mirk_platform_testing_set_hook(h, nullptr, nullptr);
        ASSERT_EQ(seen.size(), 2u);
        EXPECT_EQ(seen[0].address, &entry.num_created);
        EXPECT_EQ(seen[0].value, created);
        EXPECT_EQ(seen[0].delta, 1);
        EXPECT_EQ(seen[0].ctx_id, 8u);
        EXPECT_EQ(seen[1].address, &entry.num_destroyed);
        EXPECT_EQ(seen[1].value, destroyed);
        EXPECT_EQ(seen[1].delta, 1);
        EXPECT_EQ(seen[1].ctx_id, 9u);
    }
}

TEST_F(MessageObjects, PrivateTypesAreUsedAndCounted) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h({.private_types = true});
        const mirk_variant_entry before = counters(m);
        void *message = m.create(h, id);
        const mirk_type_info *copy = object(message)->tinfo;
        EXPECT_NE(copy, m.type);
        EXPECT_STREQ(copy->luid_text, m.luid_text);
        EXPECT_NE(copy->plain_counters, 0u);
        EXPECT_EQ(copy->variant_info->entries[0].num_created, 1u);
        m.destroy(h, id, message);
        EXPECT_EQ(copy->variant_info->entries[0].num_destroyed, 1u);
        EXPECT_EQ(copy->variant_info->entries[0].num_live, 0u);
        EXPECT_EQ(counters(m).num_created, before.num_created);
        EXPECT_EQ(counters(m).num_destroyed, before.num_destroyed);
    }
}

TEST_F(MessageObjects, DestroyOfNullAndOfTheSentinelDoesNothing) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        void *sentinel = sentinel_of(m);
        const mirk_variant_entry before = counters(m);
        Handle h;
        Events events(h);
        for (void *nothing : {static_cast<void *>(nullptr), sentinel}) {
            m.destroy(h, id, nothing);
            m.destroy_unsafe(h, id, nothing);
            m.destroy_cr(h, nothing);
        }
        EXPECT_TRUE(events.all.empty());
        EXPECT_EQ(counters(m).num_destroyed, before.num_destroyed);
    }
    EXPECT_EQ(traced(), Lines{});
}

TEST_F(MessageObjects, EveryMessageHasASentinelOfItsOwn) {
    std::set<void *> sentinels;
    for (const MessageOperations &m : messages()) {
        void *sentinel = sentinel_of(m);
        sentinels.insert(sentinel);
        EXPECT_EQ(object(sentinel)->tinfo, nullptr);
        EXPECT_EQ(object(sentinel)->obj_flag, 0);
        EXPECT_EQ(object(sentinel)->header.marker, 0);
    }
    EXPECT_EQ(sentinels.size(), messages().size());
}

TEST_F(MessageObjects, AStickyCreateAfterAnErrorAllocatesNothing) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        const mirk_variant_entry before = counters(m);
        h->last_error = ENOSPC;
        void *message = m.create_cr(h);
        EXPECT_EQ(message, sentinel_of(m));
        EXPECT_EQ(h->last_error, std::uint32_t{ENOSPC});
        EXPECT_EQ(h->cr_mode, 0u);
        EXPECT_EQ(mirk_platform_testing_allocations(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC), 0u);
        EXPECT_EQ(counters(m).num_created, before.num_created);
        // The payload of the sentinel is the record's own sentinel.
        EXPECT_EQ(object(message)->payload, payload_of(m).create_cr(h));
    }
}

TEST_F(MessageObjects, AFailedAllocationInAStickyCreateGivesTheSentinel) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        const mirk_variant_entry before = counters(m);
        h.fail_alloc(1);
        void *message = m.create_cr(h);
        EXPECT_EQ(message, sentinel_of(m));
        EXPECT_EQ(h->last_error, std::uint32_t{ENOMEM});
        EXPECT_EQ(h->cr_mode, 0u);
        EXPECT_EQ(counters(m).num_created, before.num_created);
        EXPECT_EQ(object(message)->tinfo, nullptr);
    }
}

TEST_F(MessageObjects, AFailedPayloadAllocationInAStickyCreateGivesTheRecordsSentinel) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        const mirk_variant_entry before = counters(m);
        h.fail_alloc(2);
        void *message = m.create_cr(h);
        EXPECT_NE(message, sentinel_of(m));
        ASSERT_NE(message, nullptr);
        EXPECT_EQ(h->last_error, std::uint32_t{ENOMEM});
        EXPECT_EQ(counters(m).num_created, before.num_created + 1);
        EXPECT_EQ(object(message)->tinfo, m.type);
        EXPECT_EQ(object(message)->payload, payload_of(m).create_cr(h));
        m.destroy_cr(h, message);
        EXPECT_EQ(counters(m).num_destroyed, before.num_destroyed + 1);
    }
}

TEST_F(MessageObjects, AFailedAllocationGivesNullAndCountsNothing) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        const mirk_variant_entry before = counters(m);
        for (const std::uint64_t nth : {std::uint64_t{1}, std::uint64_t{2}}) {
            Handle h;
            h.fail_alloc(nth);
            EXPECT_EQ(m.create(h, id), nullptr);
            h.fail_alloc(nth);
            EXPECT_EQ(m.create_unsafe(h, id), nullptr);
            EXPECT_EQ(h.live_blocks(), 0u);
        }
        Handle h;
        h.fail_alloc(1);
        EXPECT_EQ(m.create_shallow(h, id), nullptr);
        EXPECT_EQ(h->last_error, 0u);
        EXPECT_EQ(counters(m).num_created, before.num_created);
    }
}

TEST_F(MessageObjects, CreateIgnoresTheLastErrorOutsideAStickyCall) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        h->last_error = EINVAL;
        void *message = m.create(h, id);
        EXPECT_NE(message, sentinel_of(m));
        ASSERT_NE(message, nullptr);
        m.destroy(h, id, message);
    }
}

TEST_F(MessageObjects, AllCallsGetTheIdOfTheCall) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        mirk_platform_handle_set_default_id(h, 77);
        Events events(h);
        m.destroy(h, 5, m.create(h, 5));
        for (const auto kind :
             {MIRK_PLATFORM_TESTING_ALLOC, MIRK_PLATFORM_TESTING_FREE, MIRK_PLATFORM_TESTING_COUNT_NOTIFY}) {
            ASSERT_FALSE(events.of(kind).empty());
            for (const auto &event : events.of(kind)) EXPECT_EQ(event.ctx_id, 5u);
        }
        events.all.clear();
        m.destroy_cr(h, m.create_cr(h));
        for (const auto kind :
             {MIRK_PLATFORM_TESTING_ALLOC, MIRK_PLATFORM_TESTING_FREE, MIRK_PLATFORM_TESTING_COUNT_NOTIFY}) {
            for (const auto &event : events.of(kind)) EXPECT_EQ(event.ctx_id, 77u);
        }
    }
}

TEST_F(MessageObjects, IsValidChecksTheDomain) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        Events events(h);
        EXPECT_NE(m.is_valid_cr(h), 0u);
        const auto look_ups = events.of(MIRK_PLATFORM_TESTING_MESSAGE_LOOKED_UP);
        ASSERT_EQ(look_ups.size(), 1u);
        EXPECT_EQ(look_ups[0].address, m.type);
        mirk_platform_domain_set_message(h, m.luid, 0);
        EXPECT_EQ(m.is_valid_cr(h), 0u);
        EXPECT_EQ(h->last_error, 0u);
        mirk_platform_testing_fail_operation(h, MIRK_PLATFORM_TESTING_MESSAGE_LOOKUP, 0, 1, EINVAL);
        EXPECT_EQ(m.is_valid_cr(h), 0u);
        EXPECT_EQ(h->last_error, std::uint32_t{EINVAL});
    }
}

}  // namespace
