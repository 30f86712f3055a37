// From a frame to a message object and its handler.
#include "messaging.h"

namespace {

using namespace messaging;
using tarn::reflect::messages;

struct Unmarshal : Messaging {
    void SetUp() override {
        Messaging::SetUp();
        handler_calls.clear();
    }
};

TEST_F(Unmarshal, PeersOfEveryTrackingModeReadWhatWasSent) {
    for (const bool sender_tracks : {false, true}) {
        for (const Tracking receiver : every_tracking) {
            Handle h(receiver);
            mirk_platform_testing_set_fresh_fill(h, 0xEE);
            for (const MessageOperations &m : messages()) {
                for (std::uint64_t seed = 1; seed <= 4; ++seed) {
                    SCOPED_TRACE(std::string(m.name) + (sender_tracks ? " tracked to " : " untracked to ") +
                                 kit::name_of(receiver) + ", seed " + std::to_string(seed));
                    const reference::Record value = sample(m, seed, {.max_elements = 3, .budget = 4000});
                    Buffer frame(frame_of(m, value, sender_tracks, 77));
                    const std::uint64_t created = counters(m).num_created;
                    void *message = nullptr;
                    EXPECT_EQ(m.unmarshal_only(h, id, &message, frame.data(), frame.size(), &err), frame.size());
                    ASSERT_EQ(err, 0u);
                    ASSERT_NE(message, nullptr);
                    EXPECT_EQ(counters(m).num_created, created + 1);
                    EXPECT_EQ(object(message)->header.stamp, 77u);
                    EXPECT_EQ(object(message)->header.total_length, frame.size());
                    EXPECT_EQ(object(message)->header.sttr, sender_tracks ? 1 : 0);
                    EXPECT_EQ(object(message)->obj_flag, h.tracks() ? state_tracked : 0);
                    const bool states = sender_tracks && h.tracks();
                    EXPECT_TRUE(bridge::same(reference::as_received(value, states),
                                             bridge::extract(h, payload_of(m), object(message)->payload)));
                    m.destroy(h, id, message);
                }
            }
        }
    }
}

TEST_F(Unmarshal, DeliversToTheHandlerThatItWasGiven) {
    int context = 0;
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        Buffer frame(frame_of(m, sample(m), false));
        for (const bool takes_message : {true, false}) {
            handler_calls.clear();
            void *message = &context;
            EXPECT_EQ(m.unmarshal(h, id, &context, takes_message ? &message : nullptr, frame.data(), frame.size(),
                                  on_message, &err),
                      frame.size());
            ASSERT_EQ(handler_calls.size(), 1u);
            const HandlerCall &call = handler_calls[0];
            EXPECT_EQ(call.h, h.get());
            EXPECT_EQ(call.ctx_id, id);
            EXPECT_EQ(call.dispatch_ctx, &context);
            EXPECT_EQ(call.slot, &err);
            EXPECT_EQ(call.err, 0u);
            ASSERT_NE(call.message, nullptr);
            EXPECT_EQ(message, takes_message ? call.message : &context);
            m.destroy(h, id, call.message);
        }
    }
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(traced(), Lines{});
}

TEST_F(Unmarshal, TheStubFailsIfThereIsNoHandler) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        Buffer frame(frame_of(m, sample(m), false));
        void *message = nullptr;
        err = 0;
        EXPECT_EQ(m.unmarshal(h, id, nullptr, &message, frame.data(), frame.size(), nullptr, &err), frame.size());
        EXPECT_EQ(err, std::uint32_t{ENOSYS});
        EXPECT_EQ(h->last_error, std::uint32_t{ENOSYS});
        EXPECT_EQ(traced(), (Lines{"stub 6 (info): stub default handler lumo_ui_tarn_" + std::string(m.name) +
                                   "_message handler called"}));
        ASSERT_NE(message, nullptr);
        m.destroy(h, id, message);
    }
}

TEST_F(Unmarshal, OnlyTracesIfTheErrorIsSet) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        Buffer frame(frame_of(m, sample(m), false));
        void *message = &frame;
        err = EPERM;
        h->last_error = ENOSPC;
        EXPECT_EQ(m.unmarshal(h, id, nullptr, &message, frame.data(), frame.size(), on_message, &err), 0u);
        EXPECT_EQ(message, &frame);
        EXPECT_EQ(m.unmarshal_only(h, id, &message, frame.data(), frame.size(), &err), 0u);
        EXPECT_EQ(message, &frame);
        EXPECT_TRUE(handler_calls.empty());
        EXPECT_EQ(h->last_error, std::uint32_t{ENOSPC});
        const std::string name = m.name, why = error_text(EPERM);
        EXPECT_EQ(traced(), (Lines{"message 7 (debug): Error present in call to " + name + " message unmarshal: " + why,
                                   "message 7 (debug): Error present in call to " + name + " unmarshal: " + why}));
    }
}

TEST_F(Unmarshal, EveryTruncationOfAFrameFailsAndLeavesADestroyableObject) {
    for (const bool receiver_tracks : {false, true}) {
        for (const MessageOperations &m : messages()) {
            const Bytes whole = frame_of(m, sample(m), false);
            Handle h(receiver_tracks ? Tracking::on : Tracking::off);
            for (std::size_t size = 0; size < whole.size(); ++size) {
                SCOPED_TRACE(std::string(m.name) + ", size " + std::to_string(size));
                Buffer frame(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
                err = 0;
                void *message = nullptr;
                m.unmarshal_only(h, id, &message, frame.data(), frame.size(), &err);
                ASSERT_NE(err, 0u);
                ASSERT_NE(message, nullptr);
                EXPECT_NE(object(message)->payload, nullptr);
                m.destroy(h, id, message);
            }
            EXPECT_EQ(h.live_blocks(), 0u);
        }
    }
}

// State bytes at the end of a tracked frame may be missing without an error; all other truncations must be detected.
TEST_F(Unmarshal, EveryTruncationOfATrackedFrameIsHarmless) {
    for (const bool receiver_tracks : {false, true}) {
        for (const MessageOperations &m : messages()) {
            const Bytes whole = frame_of(m, sample(m), true);
            Handle h(receiver_tracks ? Tracking::on : Tracking::off);
            std::size_t unnoticed = 0;
            for (std::size_t size = 0; size < whole.size(); ++size) {
                Buffer frame(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
                err = 0;
                void *message = nullptr;
                m.unmarshal_only(h, id, &message, frame.data(), frame.size(), &err);
                ASSERT_NE(message, nullptr);
                unnoticed += err == 0 ? 1 : 0;
                m.destroy(h, id, message);
            }
            EXPECT_LT(unnoticed, 12u) << m.name;
            EXPECT_EQ(h.live_blocks(), 0u);
        }
    }
}

TEST_F(Unmarshal, ATruncatedFrameCallsNoHandlerAndReturnsNoMessage) {
    for (const MessageOperations &m : messages()) {
        const Bytes whole = frame_of(m, sample(m), false);
        for (const std::size_t size : {std::size_t{0}, std::size_t{26}, std::size_t{43}, whole.size() - 1}) {
            SCOPED_TRACE(std::string(m.name) + ", size " + std::to_string(size));
            Handle h;
            h.allow_lost_blocks();  // the created message is not returned
            Buffer frame(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
            void *message = &frame;
            err = 0;
            m.unmarshal(h, id, nullptr, &message, frame.data(), frame.size(), on_message, &err);
            EXPECT_NE(err, 0u);
            EXPECT_EQ(message, nullptr);
            EXPECT_GE(h.live_blocks(), 2u);
        }
    }
    EXPECT_TRUE(handler_calls.empty());
}

TEST_F(Unmarshal, ASizeWithTheTopBitIsTooSmall) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        Buffer frame(frame_of(m, sample(m), false));
        for (const std::uint32_t size : {0x80000000u, 0xFFFFFFFFu}) {
            err = 0;
            void *message = nullptr;
            m.unmarshal_only(h, id, &message, frame.data(), size, &err);
            EXPECT_EQ(err, std::uint32_t{EMSGSIZE}) << m.name << ' ' << size;
            m.destroy(h, id, message);
        }
    }
}

TEST_F(Unmarshal, AWrongMarkerFails) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        Bytes bytes = frame_of(m, sample(m), false);
        bytes[0] = 0xBD;
        Buffer frame(bytes);
        err = 0;
        void *message = nullptr;
        EXPECT_EQ(m.unmarshal_only(h, id, &message, frame.data(), frame.size(), &err), 16u);
        EXPECT_EQ(err, std::uint32_t{EBADMSG});
        ASSERT_NE(message, nullptr);
        EXPECT_NE(object(message)->payload, nullptr);
        m.destroy(h, id, message);
    }
}

TEST_F(Unmarshal, AFailedObjectAllocationGivesEnomem) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        Buffer frame(frame_of(m, sample(m), false));
        void *message = &frame;
        h.fail_alloc(1);
        err = 0;
        EXPECT_EQ(m.unmarshal_only(h, id, &message, frame.data(), frame.size(), &err), 0u);
        EXPECT_EQ(err, std::uint32_t{ENOMEM});
        EXPECT_EQ(h->last_error, std::uint32_t{ENOMEM});
        EXPECT_EQ(message, &frame);
    }
}

TEST_F(Unmarshal, AFailedPayloadAllocationComesAfterTheHeader) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        Buffer frame(frame_of(m, sample(m), false, 5));
        void *message = nullptr;
        h.fail_alloc(2);
        err = 0;
        EXPECT_EQ(m.unmarshal_only(h, id, &message, frame.data(), frame.size(), &err), frame_head);
        EXPECT_EQ(err, std::uint32_t{ENOMEM});
        EXPECT_EQ(h->last_error, std::uint32_t{ENOMEM});
        ASSERT_NE(message, nullptr);
        EXPECT_EQ(object(message)->payload, nullptr);
        EXPECT_EQ(object(message)->header.stamp, 5u);
        m.destroy(h, id, message);
    }
}

TEST_F(Unmarshal, EachFailedAllocationIsSurvived) {
    for (const Tracking tracking : {Tracking::off, Tracking::on}) {
        for (const MessageOperations &m : messages()) {
            SCOPED_TRACE(m.name);
            Handle h(tracking);
            Buffer frame(frame_of(m, sample(m, 2, {.min_elements = 1, .max_elements = 2, .min_text = 1, .max_text = 9}),
                                  h.tracks()));
            for (std::uint64_t nth = 1;; ++nth) {
                ASSERT_LT(nth, 10000u);
                const std::uint64_t before = mirk_platform_testing_allocations(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC);
                h.fail_alloc(nth);
                void *message = nullptr;
                err = 0;
                m.unmarshal_only(h, id, &message, frame.data(), frame.size(), &err);
                const std::uint64_t made =
                    mirk_platform_testing_allocations(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC) - before;
                if (message != nullptr) m.destroy(h, id, message);
                ASSERT_EQ(h.live_blocks(), 0u) << "after failure of allocation " << nth;
                if (made < nth) break;
                EXPECT_EQ(err, std::uint32_t{ENOMEM}) << "after failure of allocation " << nth;
            }
            EXPECT_EQ(err, 0u);
            h.fail_alloc(0);
        }
    }
}

TEST_F(Unmarshal, AFrameOfAnotherMessageDoesNoHarm) {
    int pairs = 0;
    for (const Tracking tracking : {Tracking::off, Tracking::on}) {
        for (const MessageOperations &wrong : messages()) {
            for (const MessageOperations &right : messages()) {
                if (&wrong == &right) continue;
                SCOPED_TRACE(std::string(right.name) + " read as " + wrong.name);
                for (const bool sender_tracks : {false, true}) {
                    Handle h(tracking);
                    Buffer frame(frame_of(right, sample(right), sender_tracks));
                    void *message = nullptr;
                    err = 0;
                    wrong.unmarshal_only(h, id, &message, frame.data(), frame.size(), &err);
                    ASSERT_NE(message, nullptr);
                    Buffer text(20000);
                    std::uint32_t ignored = 0;
                    wrong.print(h, id, text.text(), message, text.size(), &ignored);
                    EXPECT_TRUE(frame.guards_are_intact());
                    wrong.destroy(h, id, message);
                }
                ++pairs;
            }
        }
    }
    EXPECT_EQ(pairs, 2 * 90);
}

}  // namespace
