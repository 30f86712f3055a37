// The four accessors of a message's payload, and damage that aborts the process.
#include "messaging.h"

namespace {

using namespace messaging;
using tarn::reflect::messages;

struct PayloadAccessors : Messaging {};

TEST_F(PayloadAccessors, GetKeepsThePayloadInTheMessage) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        void *message = m.create(h, id);
        void *payload = object(message)->payload;
        EXPECT_EQ(m.payload_get(h, id, message, &err), payload);
        EXPECT_EQ(object(message)->payload, payload);
        m.destroy(h, id, message);
    }
    EXPECT_EQ(traced(), Lines{});
    EXPECT_EQ(err, 0u);
}

TEST_F(PayloadAccessors, ADetachedPayloadOutlivesItsMessage) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        const reference::Record value = sample(m);
        void *message = make(h, m, value);
        void *payload = m.payload_get_detach(h, id, message, &err);
        ASSERT_NE(payload, nullptr);
        EXPECT_EQ(object(message)->payload, nullptr);
        EXPECT_EQ(m.payload_get(h, id, message, &err), nullptr);
        m.destroy(h, id, message);
        EXPECT_TRUE(bridge::same(reference::as_received(value, false), bridge::extract(h, payload_of(m), payload)));
        payload_of(m).destroy(h, id, payload);
    }
    EXPECT_EQ(err, 0u);
}

TEST_F(PayloadAccessors, SetDoesNotDestroyTheOldPayload) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        void *message = m.create(h, id);
        void *before = object(message)->payload, *other = payload_of(m).create(h, id);
        m.payload_set(h, id, message, other, &err);
        EXPECT_EQ(object(message)->payload, other);
        payload_of(m).destroy(h, id, before);
        m.destroy(h, id, message);
    }
    EXPECT_EQ(err, 0u);
}

TEST_F(PayloadAccessors, FreeAndSetDestroysTheOldPayload) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        void *message = m.create(h, id);
        const std::size_t blocks = h.live_blocks();
        m.payload_free_and_set(h, id, message, payload_of(m).create(h, id), &err);
        EXPECT_EQ(h.live_blocks(), blocks);
        m.payload_free_and_set(h, id, message, nullptr, &err);
        EXPECT_EQ(h.live_blocks(), 1u);
        void *payload = payload_of(m).create(h, id);
        m.payload_free_and_set(h, id, message, payload, &err);
        EXPECT_EQ(object(message)->payload, payload);
        m.destroy(h, id, message);
    }
    EXPECT_EQ(err, 0u);
}

TEST_F(PayloadAccessors, FreeAndSetWithTheOwnPayloadStoresTheDestroyedOne) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        void *message = m.create(h, id);
        void *payload = object(message)->payload;
        m.payload_free_and_set(h, id, message, payload, &err);
        EXPECT_EQ(h.live_blocks(), 1u);
        EXPECT_EQ(object(message)->payload, payload);
        object(message)->payload = nullptr;  // destroyed above
        m.destroy(h, id, message);
    }
    EXPECT_EQ(err, 0u);
}

TEST_F(PayloadAccessors, ASetErrorAndANullMessageAreTraced) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        void *message = m.create(h, id), *payload = object(message)->payload;
        void *other = payload_of(m).create(h, id);
        for (const std::uint32_t number : {std::uint32_t{EINVAL}, 0u}) {
            void *subject = number != 0 ? message : nullptr;
            err = number;
            EXPECT_EQ(m.payload_get(h, id, subject, &err), nullptr);
            EXPECT_EQ(m.payload_get_detach(h, id, subject, &err), nullptr);
            m.payload_set(h, id, subject, other, &err);
            m.payload_free_and_set(h, id, subject, other, &err);
            EXPECT_EQ(err, number);
            EXPECT_EQ(h->last_error, 0u);
            EXPECT_EQ(object(message)->payload, payload);
            const std::string record = payload_name(m), why = ": " + error_text(number);
            EXPECT_EQ(
                traced(),
                (Lines{"message 7 (debug): Error present when getting value for " + record + why,
                       "message 7 (debug): Error present getting detached " + record + " value for " + m.name + why,
                       "message 7 (debug): Error present when setting value for " + record + why,
                       "message 7 (debug): Error present when freeing and setting value for " + record + why}));
        }
        m.destroy(h, id, message);
        payload_of(m).destroy(h, id, other);
    }
}

struct FatalMessages : Messaging {};

TEST_F(FatalMessages, ACorruptTrackingModeAborts) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        h.allow_lost_blocks();
        mirk_platform_testing_set_sttr_mode(h, 0);
        EXPECT_DEATH(m.create_shallow(h, id), "message: \\(FATAL\\): Corrupted MIRK Handle");
    }
    Handle h;
    mirk_platform_testing_set_sttr_mode(h, 0x1234);
    EXPECT_DEATH(messages()[0].create(h, id), "\\(FATAL\\): Corrupted MIRK Handle");
}

TEST_F(FatalMessages, ADamagedTypeAbortsAtDestruction) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        void *message = m.create(h, id);
        object(message)->tinfo = nullptr;
        EXPECT_DEATH(m.destroy(h, id, message), "message: \\(FATAL\\): tinfo is null or corrupted");
        mirk_type_info damaged = *m.type;
        damaged.magic = 0xDEADBEEF;
        object(message)->tinfo = &damaged;
        EXPECT_DEATH(m.destroy_cr(h, message), "message: \\(FATAL\\): tinfo is null or corrupted");
        object(message)->tinfo = m.type;
        m.destroy(h, id, message);
    }
}

TEST_F(FatalMessages, AMissingVariantBlockAborts) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        void *message = m.create(h, id);
        mirk_variant_info *block = std::exchange(m.type->variant_info, nullptr);
        EXPECT_DEATH(m.create_shallow(h, id), "message: \\(FATAL\\): varinfo is NULL");
        EXPECT_DEATH(m.create(h, id), "message: \\(FATAL\\): varinfo is NULL");
        EXPECT_DEATH(m.destroy_unsafe(h, id, message), "message: \\(FATAL\\): varinfo is NULL");
        m.type->variant_info = block;
        m.destroy(h, id, message);
    }
}

TEST_F(FatalMessages, ADamagedNumberOfVariantsIsOnlyTraced) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        const std::string line{"message 6 (info): variant 0 requested only 4294967295 variants present"};
        m.type->variant_info->n_variants = -1;
        void *message = m.create(h, id), *shallow = m.create_shallow(h, id);
        EXPECT_EQ(traced(), (Lines{line, line}));
        m.destroy(h, id, message);
        EXPECT_EQ(traced(), (Lines{line}));
        m.type->variant_info->n_variants = 0;  // not negative
        m.destroy(h, id, shallow);
        EXPECT_EQ(traced(), Lines{});
        m.type->variant_info->n_variants = 1;
    }
}

}  // namespace
