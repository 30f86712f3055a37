// From a message object to a frame.
#include "messaging.h"

namespace {

using namespace messaging;
using tarn::reflect::messages;

constexpr std::uint32_t top_bit = 0x80000000;

std::string failed(const MessageOperations &m, std::uint32_t number) {
    return "message 3 (ERR): Message " + std::string(m.name) + " failed to marshal: " + error_text(number);
}
std::string failed_at_debug_level(const MessageOperations &m, std::uint32_t number) {
    return "message 7 (debug): Message " + std::string(m.name) + " failed to marshal: " + error_text(number);
}

// The lines of messages; records trace on a module of their own.
Lines of_messages(const Lines &lines) {
    Lines found;
    for (const std::string &line : lines) {
        if (line.starts_with("message ")) found.push_back(line);
    }
    return found;
}

void open_bundle_of(mirk_handle *h, const MessageOperations &m) {
    for (const BundleOperations &b : tarn::reflect::bundles()) {
        if (&b.bundle->message != m.message) continue;
        Buffer buffer(frame_head);
        std::uint32_t err = 0;
        ASSERT_EQ(b.start.marshal(h, id, buffer.data(), nullptr, buffer.size(), &err), frame_head);
        return;
    }
    FAIL() << "no bundle admits " << m.name;
}

std::vector<mirk_platform_sent> sent(mirk_handle *h) {
    std::vector<mirk_platform_sent> all(mirk_platform_list_sent(h, nullptr, 0));
    mirk_platform_list_sent(h, all.data(), all.size());
    return all;
}

struct Marshal : Messaging {};

TEST_F(Marshal, LenIsThePayloadsPlusTheHead) {
    for (const Tracking tracking : every_tracking) {
        for (const MessageOperations &m : messages()) {
            SCOPED_TRACE(std::string(m.name) + ", " + kit::name_of(tracking));
            Handle h(tracking);
            const reference::Record value = sample(m, 3, {.max_elements = 3});
            void *message = make(h, m, value);
            const std::uint32_t expected = reference::message_length(value, h.tracks());
            EXPECT_EQ(m.len(h, id, message), expected);
            EXPECT_EQ(m.len_unsafe(h, id, message), expected);
            EXPECT_EQ(m.len_cr(h, message), expected);
            h->last_error = EINVAL;
            EXPECT_EQ(m.len_cr(h, message), 0u);
            EXPECT_EQ(h->last_error, std::uint32_t{EINVAL});
            m.destroy(h, id, message);
        }
    }
}

TEST_F(Marshal, LenWithoutAPayloadIsThatOfANullRecord) {
    for (const MessageOperations &m : messages()) {
        Handle h(Tracking::on);
        void *message = m.create_shallow(h, id);
        EXPECT_EQ(m.len(h, id, message), 43 + reference::length_of_null(reference::record_table(payload_name(m))));
        m.destroy(h, id, message);
    }
}

TEST_F(Marshal, WritesTheFrameOfTheReference) {
    for (const Tracking tracking : every_tracking) {
        Handle h(tracking);
        mirk_platform_handle_set_message_stamp(h, 0xA0B0C0D0);
        for (const MessageOperations &m : messages()) {
            SCOPED_TRACE(std::string(m.name) + ", " + kit::name_of(tracking));
            for (std::uint64_t seed = 1; seed <= 4; ++seed) {
                const reference::Record value = sample(m, seed, {.max_elements = 3, .budget = 4000});
                const Bytes expected = frame_of(m, value, h.tracks(), 0xA0B0C0D0);
                void *message = make(h, m, value);
                const auto check = [&](std::uint32_t written, const Buffer &buffer) {
                    ASSERT_EQ(written, expected.size());
                    EXPECT_TRUE(bridge::same(expected, buffer.first(written)));
                    EXPECT_TRUE(buffer.untouched(written + 1));
                };
                const std::size_t room = expected.size() + 20;
                Buffer plain(room), unsafe(room), sticky(room);
                check(m.marshal(h, id, plain.data(), message, plain.size(), &err), plain);
                check(m.marshal_unsafe(h, id, unsafe.data(), message, unsafe.size(), &err), unsafe);
                check(m.marshal_cr(h, message, sticky.data(), sticky.size()), sticky);
                EXPECT_EQ(err, 0u);
                EXPECT_EQ(object(message)->header.total_length, expected.size());
                EXPECT_EQ(object(message)->header.stamp, 0xA0B0C0D0u);
                m.destroy(h, id, message);
            }
        }
    }
    EXPECT_EQ(of_messages(traced()), Lines{});
}

TEST_F(Marshal, OnlyTracesIfTheErrorIsSet) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        void *message = m.create(h, id);
        Buffer buffer(1000);
        err = EPERM;
        h->last_error = ENOSPC;
        EXPECT_EQ(m.marshal(h, id, buffer.data(), message, buffer.size(), &err), 0u);
        EXPECT_EQ(m.marshal_unsafe(h, id, buffer.data(), message, buffer.size(), &err), 0u);
        EXPECT_EQ(m.marshal_cr(h, message, buffer.data(), buffer.size()), 0xFFFFFFFFu);
        EXPECT_TRUE(buffer.untouched());
        EXPECT_EQ(err, std::uint32_t{EPERM});
        EXPECT_EQ(h->last_error, std::uint32_t{ENOSPC});
        const std::string text = "(debug): Error present in call to message marshal: ";
        EXPECT_EQ(traced(), (Lines{"message 7 " + text + error_text(EPERM), "message 7 " + text + error_text(EPERM),
                                   "message 7 " + text + error_text(ENOSPC)}));
        m.destroy(h, id, message);
    }
}

TEST_F(Marshal, AMessageThatTheDomainDoesNotAllowFails) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        mirk_platform_handle_set_domain_name(h, "the other side");
        mirk_platform_domain_set_message(h, m.luid, 0);
        void *message = m.create(h, id);
        Buffer buffer(1000);
        err = 0;
        EXPECT_EQ(m.marshal(h, id, buffer.data(), message, buffer.size(), &err), 0u);
        EXPECT_EQ(err, std::uint32_t{EBADE});
        EXPECT_EQ(h->last_error, std::uint32_t{EBADE});
        EXPECT_TRUE(buffer.untouched());
        EXPECT_EQ(traced(), (Lines{"message 3 (ERR): domainfail: Message " + std::string(m.name) + " (" + m.luid_text +
                                   ") is not allowed for the current domain (the other side)"}));
        h->last_error = 0;
        EXPECT_EQ(m.marshal_cr(h, message, buffer.data(), buffer.size()), 0xFFFFFFFFu);
        EXPECT_EQ(h->last_error, std::uint32_t{EBADE});
        EXPECT_EQ(traced().size(), 1u);
        m.destroy(h, id, message);
    }
}

TEST_F(Marshal, ABufferTooSmallForTheHeaderIsNotWritten) {
    for (const MessageOperations &m : messages()) {
        for (const std::uint32_t size : {0u, 26u, top_bit, 0xFFFFFFFFu}) {
            SCOPED_TRACE(std::string(m.name) + ", size " + std::to_string(size));
            Handle h;
            void *message = m.create(h, id);
            Buffer buffer(100);
            err = 0;
            EXPECT_EQ(m.marshal(h, id, buffer.data(), message, size, &err), 0u);
            EXPECT_EQ(err, std::uint32_t{EMSGSIZE});
            EXPECT_EQ(h->last_error, std::uint32_t{EMSGSIZE});
            EXPECT_TRUE(buffer.untouched());
            EXPECT_EQ(traced(), (Lines{failed(m, EMSGSIZE)}));
            m.destroy(h, id, message);
        }
    }
}

TEST_F(Marshal, ABufferTooSmallForTheIdentityGetsAZeroedHeader) {
    for (const MessageOperations &m : messages()) {
        for (const std::uint32_t size : {27u, 42u}) {
            SCOPED_TRACE(std::string(m.name) + ", size " + std::to_string(size));
            Handle h;
            open_bundle_of(h, m);
            void *message = make(h, m, sample(m));
            Buffer buffer(100);
            err = 0;
            EXPECT_EQ(m.marshal(h, id, buffer.data(), message, size, &err), header_size);
            EXPECT_EQ(err, std::uint32_t{EMSGSIZE});
            EXPECT_EQ(buffer.first(header_size), Bytes(header_size, 0));
            EXPECT_TRUE(buffer.untouched(header_size));
            EXPECT_EQ(traced(), (Lines{failed(m, EMSGSIZE)}));
            EXPECT_EQ(object(message)->header.total_length, 0u);
            ASSERT_EQ(sent(h).size(), 1u);    // admitted
            EXPECT_EQ(sent(h)[0].count, 0u);  // but not sent
            m.destroy(h, id, message);
        }
    }
}

TEST_F(Marshal, ABufferForTheHeadAloneFailsInThePayload) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        void *message = make(h, m, sample(m));
        Buffer buffer(100);
        err = 0;
        EXPECT_EQ(m.marshal(h, id, buffer.data(), message, frame_head, &err), frame_head);
        EXPECT_EQ(err, std::uint32_t{ENOMEM});  // the payload's marshal fails in an empty buffer
        EXPECT_EQ(buffer.first(header_size), Bytes(header_size, 0));
        EXPECT_EQ(std::memcmp(buffer.data() + header_size, m.luid, 16), 0);
        EXPECT_TRUE(buffer.untouched(frame_head));
        EXPECT_EQ(of_messages(traced()), (Lines{failed(m, ENOMEM)}));
        m.destroy(h, id, message);
    }
}

TEST_F(Marshal, APayloadThatDoesNotFitLeavesTheHeaderZero) {
    for (const Tracking tracking : {Tracking::off, Tracking::on}) {
        for (const MessageOperations &m : messages()) {
            Handle h(tracking);
            open_bundle_of(h, m);
            const reference::Record value = sample(m);
            const std::size_t whole = frame_of(m, value, h.tracks()).size();
            void *message = make(h, m, value);
            std::uint64_t counted = 0;
            for (std::size_t size = frame_head + 1; size < whole; ++size) {
                SCOPED_TRACE(std::string(m.name) + ", size " + std::to_string(size));
                Buffer buffer(size);
                err = 0;
                const std::uint32_t written = m.marshal(h, id, buffer.data(), message, buffer.size(), &err);
                ASSERT_TRUE(buffer.guards_are_intact());
                if (tracking == Tracking::on && err == 0) {
                    // State at the very end is truncated without an error: the frame looks complete.
                    EXPECT_GT(size + 60, whole);
                    ++counted;
                    continue;
                }
                EXPECT_NE(err, 0u);
                EXPECT_GE(written, frame_head);
                EXPECT_EQ(buffer.first(header_size), Bytes(header_size, 0));
                EXPECT_EQ(of_messages(traced()), (Lines{failed(m, err)}));
            }
            // Frames that looked complete were counted, the others were not.
            EXPECT_EQ(sent(h).at(0).count, counted);
            m.destroy(h, id, message);
        }
    }
}

TEST_F(Marshal, FailuresAreTracedAtDebugLevelIfTheRuntimeSuppressesThem) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        void *message = make(h, m, sample(m));
        Buffer buffer(60);
        for (const std::uint32_t size : {26u, 42u, 50u}) {
            mirk_platform_handle_set_suppress_messages(h, 0);
            std::uint32_t traced_error = 0, suppressed_error = 0;
            m.marshal(h, id, buffer.data(), message, size, &traced_error);
            ASSERT_NE(traced_error, 0u);
            EXPECT_EQ(of_messages(traced()), (Lines{failed(m, traced_error)}));
            mirk_platform_handle_set_suppress_messages(h, 1);
            m.marshal(h, id, buffer.data(), message, size, &suppressed_error);
            EXPECT_EQ(suppressed_error, traced_error);
            EXPECT_EQ(of_messages(traced()), (Lines{failed_at_debug_level(m, traced_error)}));
        }
        m.destroy(h, id, message);
    }
}

TEST_F(Marshal, AMessageThatTheBundleDoesNotAdmitFails) {
    for (const MessageOperations &m : messages()) {
        for (const BundleOperations &b : tarn::reflect::bundles()) {
            if (&b.bundle->message == m.message) continue;
            SCOPED_TRACE(std::string(m.name) + " in " + std::string(b.bundle->name));
            Handle h;
            Buffer buffer(1000);
            err = 0;
            b.start.marshal(h, id, buffer.data(), nullptr, buffer.size(), &err);
            void *message = m.create(h, id);
            Buffer room(1000);
            EXPECT_EQ(m.marshal(h, id, room.data(), message, room.size(), &err), 0u);
            EXPECT_EQ(err, std::uint32_t{ENOENT});
            EXPECT_TRUE(room.untouched());
            EXPECT_EQ(traced(), (Lines{"message 3 (ERR): Message " + std::string(m.name) +
                                       " is not valid for bundle: " + error_text(ENOENT)}));
            EXPECT_EQ(h->send_bundle_open, 1u);
            EXPECT_TRUE(sent(h).empty());
            m.destroy(h, id, message);
        }
    }
}

TEST_F(Marshal, EachFrameInABundleIsCounted) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        open_bundle_of(h, m);
        void *message = m.create(h, id);
        Buffer buffer(m.len(h, id, message));
        for (std::uint64_t count = 1; count <= 3; ++count) {
            m.marshal(h, id, buffer.data(), message, buffer.size(), &err);
            ASSERT_EQ(err, 0u);
            const auto all = sent(h);
            ASSERT_EQ(all.size(), 1u);
            EXPECT_EQ(all[0].luid, m.luid);
            EXPECT_EQ(all[0].name, m.catalogue_name);
            EXPECT_EQ(all[0].count, count);
        }
        m.destroy(h, id, message);
    }
}

TEST_F(Marshal, NothingIsCountedOutsideABundle) {
    for (const MessageOperations &m : messages()) {
        Handle h;
        void *message = m.create(h, id);
        Buffer buffer(m.len(h, id, message));
        EXPECT_GT(m.marshal(h, id, buffer.data(), message, buffer.size(), &err), frame_head);
        EXPECT_TRUE(sent(h).empty());
        EXPECT_EQ(mirk_platform_testing_calls(h, MIRK_PLATFORM_TESTING_VALIDATE_ADD), 0u);
        m.destroy(h, id, message);
    }
    EXPECT_EQ(err, 0u);
}

TEST_F(Marshal, AHeaderThatFailsStaysZero) {
    for (const MessageOperations &m : messages()) {
        SCOPED_TRACE(m.name);
        Handle h;
        void *message = m.create(h, id);
        Buffer buffer(m.len(h, id, message));
        mirk_platform_testing_fail_operation(h, MIRK_PLATFORM_TESTING_HEADER_MARSHAL, 0, 1, EMSGSIZE);
        err = 0;
        EXPECT_GT(m.marshal(h, id, buffer.data(), message, buffer.size(), &err), frame_head);
        EXPECT_EQ(err, std::uint32_t{EMSGSIZE});
        EXPECT_EQ(buffer.first(header_size), Bytes(header_size, 0));
        m.destroy(h, id, message);
    }
}

TEST_F(Marshal, AnExplicitCallClearsTheStickyError) {
    const MessageOperations &m = messages()[0];
    Handle h;
    void *message = m.create(h, id);
    Buffer buffer(m.len(h, id, message));
    h->last_error = EPERM;
    EXPECT_EQ(m.marshal_cr(h, message, buffer.data(), buffer.size()), 0xFFFFFFFFu);
    EXPECT_EQ(m.marshal(h, id, buffer.data(), message, buffer.size(), &err), buffer.size());
    EXPECT_EQ(m.marshal_cr(h, message, buffer.data(), buffer.size()), buffer.size());
    m.destroy(h, id, message);
}

}  // namespace
