// Start, abort and commit: tokens, frames, and the send state of a handle.
#include <set>

#include "messaging.h"

namespace {

using namespace messaging;

constexpr std::uint32_t top_bit = 0x80000000;

// No operation of a control message traces, which each test checks at its end.
struct ControlMessages : Messaging {
    void SetUp() override {
        Messaging::SetUp();
        handler_calls.clear();
    }
    void TearDown() override {
        EXPECT_EQ(traced(), Lines{});
        Messaging::TearDown();
    }
    static bool is_start(const Control &c) { return c.kind == "start"; }
    // Opens a bundle for sending and admits a message to it.
    void open(mirk_handle *h, const Control &c) {
        Buffer buffer(frame_head);
        std::uint32_t error = 0;
        ASSERT_EQ(c.bundle->start.marshal(h, id, buffer.data(), nullptr, frame_head, &error), frame_head);
        const MessageOperations &m = tarn::reflect::operations_of(c.bundle->bundle->message);
        bundle_message_validate_add(h, id, m.luid, m.catalogue_name, &error);
        ASSERT_EQ(error, 0u);
        ASSERT_EQ(mirk_platform_list_sent(h, nullptr, 0), 1u);
    }
};

TEST_F(ControlMessages, ObjectsAreTokensOfZeroBytes) {
    for (const Control &c : controls()) {
        SCOPED_TRACE(c->name);
        Handle h;
        mirk_platform_handle_set_default_id(h, 31);
        Events events(h);
        void *const made[] = {c->create(h, id), c->create_unsafe(h, id), c->create_cr(h),
                              c->from_xml(h, id, nullptr, nullptr, nullptr, 0),
                              c->from_xml_unsafe(h, id, nullptr, nullptr, nullptr, 0)};
        const auto allocations = events.of(MIRK_PLATFORM_TESTING_ALLOC);
        ASSERT_EQ(allocations.size(), 5u);
        for (std::size_t i = 0; i < 5; ++i) {
            EXPECT_EQ(allocations[i].address, made[i]);
            EXPECT_EQ(allocations[i].size, 0u);
            EXPECT_EQ(allocations[i].ctx_id, i == 2 ? 31u : id);
        }
        c->destroy(h, id, made[0]);
        c->destroy_unsafe(h, id, made[1]);
        c->destroy_cr(h, made[2]);
        c->destroy(h, id, made[3]);
        c->destroy(h, id, made[4]);
        const auto frees = events.of(MIRK_PLATFORM_TESTING_FREE);
        ASSERT_EQ(frees.size(), 5u);
        EXPECT_EQ(frees[2].ctx_id, 31u);
        EXPECT_EQ(events.all.size(), 10u);  // no other event: no counter, no error
    }
}

TEST_F(ControlMessages, AFailedAllocationGivesNullWithoutAnError) {
    for (const Control &c : controls()) {
        Handle h;
        h.fail_alloc(1, true);
        EXPECT_EQ(c->create(h, id), nullptr);
        EXPECT_EQ(c->create_unsafe(h, id), nullptr);
        EXPECT_EQ(c->from_xml(h, id, nullptr, &err, nullptr, 0), nullptr);
        EXPECT_EQ(c->from_xml_unsafe(h, id, nullptr, &err, nullptr, 0), nullptr);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(h->last_error, 0u);
    }
}

TEST_F(ControlMessages, AFailedAllocationInAStickyCreateGivesTheSentinelAndTheError) {
    for (const Control &c : controls()) {
        Handle h;
        h.fail_alloc(1);
        EXPECT_EQ(c->create_cr(h), sentinel_of(*c.operations));
        EXPECT_EQ(h->last_error, std::uint32_t{ENOMEM});
    }
}

TEST_F(ControlMessages, StickyCreateOnlyChecksTheLastError) {
    for (const Control &c : controls()) {
        Handle h;
        h->cr_mode = 1;  // ignored and unchanged
        h->last_error = ENOSPC;
        EXPECT_EQ(c->create_cr(h), sentinel_of(*c.operations));
        EXPECT_EQ(h->last_error, std::uint32_t{ENOSPC});
        EXPECT_EQ(h->cr_mode, 1u);
        EXPECT_EQ(mirk_platform_testing_allocations(h, MIRK_PLATFORM_TESTING_OBJ_ALLOC), 0u);
        h->last_error = 0;
        void *token = c->create_cr(h);
        EXPECT_NE(token, sentinel_of(*c.operations));
        c->destroy_cr(h, token);
    }
}

TEST_F(ControlMessages, EachHasASentinelOfItsOwn) {
    std::set<void *> sentinels;
    for (const Control &c : controls()) sentinels.insert(sentinel_of(*c.operations));
    EXPECT_EQ(sentinels.size(), controls().size());
}

TEST_F(ControlMessages, OnlyTheStickyDestroyRecognizesTheSentinel) {
    void *const another = sentinel_of(tarn::reflect::bundles().back().commit);
    for (const Control &c : controls()) {
        SCOPED_TRACE(c->name);
        void *sentinel = sentinel_of(*c.operations);
        Handle h;
        Events events(h);
        c->destroy_cr(h, nullptr);
        c->destroy_cr(h, sentinel);
        c->destroy(h, id, nullptr);
        c->destroy_unsafe(h, id, nullptr);
        EXPECT_TRUE(events.all.empty());
        c->destroy(h, id, sentinel);
        c->destroy_unsafe(h, id, sentinel);
        const auto frees = events.of(MIRK_PLATFORM_TESTING_FREE);
        ASSERT_EQ(frees.size(), 2u);
        EXPECT_EQ(frees[0].address, sentinel);
        if (another == sentinel) continue;
        c->destroy_cr(h, another);
        EXPECT_EQ(events.of(MIRK_PLATFORM_TESTING_FREE).size(), 3u);
    }
}

TEST_F(ControlMessages, LenIsAlways43) {
    for (const Control &c : controls()) {
        Handle h;
        EXPECT_EQ(c->len(nullptr, 0, nullptr), 43u);
        EXPECT_EQ(c->len_unsafe(nullptr, 0, nullptr), 43u);
        EXPECT_EQ(c->len_cr(h, nullptr), 43u);
        h->last_error = EINVAL;
        EXPECT_EQ(c->len_cr(h, nullptr), 0u);
        EXPECT_EQ(c->len(h, id, nullptr), 43u);
        EXPECT_EQ(c->valid_cr(h), 1u);
        EXPECT_EQ(c->valid_cr(nullptr), 1u);
    }
}

TEST_F(ControlMessages, AllFormsOfMarshalWriteTheSameFrame) {
    for (const Control &c : controls()) {
        SCOPED_TRACE(c->name);
        const Bytes expected = reference::control_frame(c.bundle_name(), c.kind, 9);
        for (int form = 0; form < 3; ++form) {
            Handle h(Tracking::on);  // the header says untracked nevertheless
            mirk_platform_handle_set_message_stamp(h, 9);
            if (!is_start(c)) open(h, c);
            Buffer buffer(frame_head);
            const std::uint32_t written = form == 0 ? c->marshal(h, id, buffer.data(), nullptr, frame_head, &err)
                                          : form == 1
                                              ? c->marshal_unsafe(h, id, buffer.data(), nullptr, frame_head, &err)
                                              : c->marshal_cr(h, nullptr, buffer.data(), frame_head);
            EXPECT_EQ(written, 43u);
            EXPECT_EQ(buffer.first(43), expected);
            EXPECT_TRUE(buffer.untouched(43));
            EXPECT_EQ(h->last_error, 0u);
        }
    }
    EXPECT_EQ(err, 0u);
}

TEST_F(ControlMessages, AStartOpensTheBundle) {
    for (const Control &c : controls()) {
        if (!is_start(c)) continue;
        Handle h;
        EXPECT_EQ(h->send_bundle_open, 0u);
        h->send_bundle_list = {nullptr, nullptr};  // the previous content is ignored
        Buffer buffer(frame_head);
        EXPECT_EQ(c->marshal(h, id, buffer.data(), nullptr, frame_head, &err), 43u);
        EXPECT_EQ(h->send_bundle_open, 1u);
        EXPECT_NE(h->bundle_table, nullptr);
        EXPECT_EQ(h->send_bundle_list.next, &h->send_bundle_list);
        EXPECT_EQ(h->send_bundle_list.prev, &h->send_bundle_list);
    }
    EXPECT_EQ(err, 0u);
}

TEST_F(ControlMessages, AStartInAnOpenBundleChangesNothing) {
    for (const Control &c : controls()) {
        for (const Control &second : controls()) {
            if (!is_start(c) || !is_start(second)) continue;
            Handle h;
            open(h, c);
            const mirk_allowed_row *table = h->bundle_table;
            const mirk_list_head list = h->send_bundle_list;
            Buffer buffer(frame_head);
            err = 0;
            EXPECT_EQ(second->marshal(h, id, buffer.data(), nullptr, frame_head, &err), 0u);
            EXPECT_EQ(err, std::uint32_t{EEXIST});
            EXPECT_EQ(h->last_error, std::uint32_t{EEXIST});
            EXPECT_TRUE(buffer.untouched());
            EXPECT_EQ(h->bundle_table, table);
            EXPECT_EQ(h->send_bundle_list.next, list.next);
            EXPECT_EQ(h->send_bundle_list.prev, list.prev);
            EXPECT_EQ(h->send_bundle_open, 1u);
        }
    }
}

TEST_F(ControlMessages, AbortAndCommitFailWithoutABundle) {
    for (const Control &c : controls()) {
        if (is_start(c)) continue;
        Handle h;
        Buffer buffer(frame_head);
        err = 0;
        EXPECT_EQ(c->marshal(h, id, buffer.data(), nullptr, frame_head, &err), 0u);
        EXPECT_EQ(err, std::uint32_t{ENOENT});
        EXPECT_EQ(h->last_error, std::uint32_t{ENOENT});
        EXPECT_TRUE(buffer.untouched());
        EXPECT_EQ(h->send_bundle_open, 0u);
    }
}

TEST_F(ControlMessages, AbortOrCommitOfAnyBundleClosesTheOpenOne) {
    for (const Control &opened : controls()) {
        for (const Control &end : controls()) {
            if (!is_start(opened) || is_start(end)) continue;
            Handle h;
            open(h, opened);
            Buffer buffer(frame_head);
            err = 0;
            EXPECT_EQ(end->marshal(h, id, buffer.data(), nullptr, frame_head, &err), 43u);
            EXPECT_EQ(err, 0u);
            EXPECT_EQ(h->send_bundle_open, 0u);
            EXPECT_EQ(mirk_platform_list_sent(h, nullptr, 0), 0u);
        }
    }
}

TEST_F(ControlMessages, ABufferThatIsTooSmallClosesABundleButDoesNotOpenOne) {
    const struct {
        std::uint32_t size, written;
    } cases[] = {{0, 0}, {26, 0}, {27, 27}, {30, 27}, {42, 27}, {top_bit, 0}, {0xFFFFFFFF, 0}};
    for (const Control &c : controls()) {
        for (const auto &[size, written] : cases) {
            SCOPED_TRACE(std::string(c->name) + ", size " + std::to_string(size));
            Handle h;
            if (!is_start(c)) open(h, c);
            Buffer buffer(60);
            err = 0;
            EXPECT_EQ(c->marshal(h, id, buffer.data(), nullptr, size, &err), written);
            EXPECT_EQ(err, std::uint32_t{EMSGSIZE});
            EXPECT_EQ(h->last_error, std::uint32_t{EMSGSIZE});
            EXPECT_EQ(buffer.first(written), Bytes(written, 0));
            EXPECT_TRUE(buffer.untouched(written));
            EXPECT_EQ(h->send_bundle_open, 0u);
            EXPECT_EQ(mirk_platform_list_sent(h, nullptr, 0), 0u);
        }
    }
}

TEST_F(ControlMessages, MarshalDoesNothingWhenTheErrorIsSet) {
    for (const Control &c : controls()) {
        SCOPED_TRACE(c->name);
        Handle h;
        if (!is_start(c)) open(h, c);
        const std::uint32_t before = h->send_bundle_open;
        Buffer buffer(frame_head);
        err = EPERM;
        h->last_error = ENOSPC;
        EXPECT_EQ(c->marshal(h, id, buffer.data(), nullptr, frame_head, &err), 0u);
        EXPECT_EQ(c->marshal_cr(h, nullptr, buffer.data(), frame_head), 0xFFFFFFFFu);
        EXPECT_EQ(err, std::uint32_t{EPERM});
        EXPECT_EQ(h->last_error, std::uint32_t{ENOSPC});
        EXPECT_TRUE(buffer.untouched());
        EXPECT_EQ(h->send_bundle_open, before);
    }
}

TEST_F(ControlMessages, ABundleIsOpenEvenIfTheHeaderOfItsStartFails) {
    for (const Control &c : controls()) {
        Handle h;
        if (!is_start(c)) open(h, c);
        mirk_platform_testing_fail_operation(h, MIRK_PLATFORM_TESTING_HEADER_MARSHAL, 0, 1, EMSGSIZE);
        Buffer buffer(frame_head);
        err = 0;
        EXPECT_EQ(c->marshal(h, id, buffer.data(), nullptr, frame_head, &err), 43u);
        EXPECT_EQ(err, std::uint32_t{EMSGSIZE});
        EXPECT_EQ(buffer.first(header_size), Bytes(header_size, 0));
        EXPECT_EQ(h->send_bundle_open, is_start(c) ? 1u : 0u);
    }
}

TEST_F(ControlMessages, UnmarshalReadsNothingAndCallsTheHandler) {
    int context = 0;
    for (const Control &c : controls()) {
        SCOPED_TRACE(c->name);
        Handle h;
        for (const bool has_out : {true, false}) {
            handler_calls.clear();
            void *message = &context;
            EXPECT_EQ(c->unmarshal(h, id, &context, has_out ? &message : nullptr, nullptr, 0, on_message, &err), 43u);
            EXPECT_EQ(message, has_out ? nullptr : &context);
            ASSERT_EQ(handler_calls.size(), 1u);
            EXPECT_EQ(handler_calls[0].h, h.get());
            EXPECT_EQ(handler_calls[0].ctx_id, id);
            EXPECT_EQ(handler_calls[0].dispatch_ctx, &context);
            EXPECT_EQ(handler_calls[0].message, nullptr);
            EXPECT_EQ(handler_calls[0].slot, &err);
        }
    }
    EXPECT_EQ(err, 0u);
}

TEST_F(ControlMessages, UnmarshalReturnsTheSizeEvenIfItFails) {
    for (const Control &c : controls()) {
        Handle h;
        void *message = &h;
        err = EPERM;
        EXPECT_EQ(c->unmarshal(h, id, nullptr, &message, nullptr, 0, on_message, &err), 43u);
        EXPECT_EQ(message, &h);
        EXPECT_EQ(c->unmarshal_only(nullptr, 0, &message, nullptr, 0, nullptr), 0u);
        EXPECT_EQ(message, &h);
        EXPECT_EQ(err, std::uint32_t{EPERM});
    }
    EXPECT_TRUE(handler_calls.empty());
}

TEST_F(ControlMessages, PrintIsOneLine) {
    for (const Control &c : controls()) {
        SCOPED_TRACE(c->name);
        Handle h;
        const std::string expected = "bundle " + std::string(c.kind) + "@" + c.bundle_name() + ": <<<<<<<<\n";
        EXPECT_EQ(reference::print_control(c.bundle_name(), c.kind), expected);
        Buffer plain(200), unsafe(200), sticky(200);
        EXPECT_EQ(c->print(h, id, plain.text(), nullptr, 200, &err), expected.size());
        EXPECT_EQ(c->print_unsafe(h, id, unsafe.text(), nullptr, 200, &err), expected.size());
        EXPECT_EQ(c->print_cr(h, nullptr, sticky.text(), 200), expected.size());
        for (Buffer *b : {&plain, &unsafe, &sticky}) EXPECT_STREQ(b->text(), expected.c_str());
        h->last_error = EINVAL;
        EXPECT_EQ(c->print_cr(h, nullptr, sticky.text(), 200), 0xFFFFFFFFu);
        h->last_error = 0;
        EXPECT_EQ(c->print_cr(h, nullptr, sticky.text(), 10), 0xFFFFFFFFu);
        EXPECT_NE(h->last_error, 0u);
    }
    EXPECT_EQ(err, 0u);
}

TEST_F(ControlMessages, XmlIsAnEmptyElement) {
    for (const Control &c : controls()) {
        SCOPED_TRACE(c->name);
        Handle h;
        const std::string word = "bundle_" + std::string(c.kind);
        const std::string expected = "<" + word + " name=\"" + c.bundle_name() + "\"></" + word + ">";
        EXPECT_EQ(reference::control_to_xml(c.bundle_name(), c.kind), expected);
        Buffer plain(200), unsafe(200), sticky(200);
        EXPECT_EQ(c->to_xml(h, id, plain.text(), nullptr, 200, &err), expected.size());
        EXPECT_EQ(c->to_xml_unsafe(h, id, unsafe.text(), nullptr, 200, &err), expected.size());
        EXPECT_EQ(c->toxml_cr(h, nullptr, sticky.text(), 200), expected.size());
        for (Buffer *b : {&plain, &unsafe, &sticky}) EXPECT_STREQ(b->text(), expected.c_str());
        h->last_error = EINVAL;
        EXPECT_EQ(c->toxml_cr(h, nullptr, sticky.text(), 200), 0xFFFFFFFFu);
        h->last_error = 0;
        EXPECT_EQ(c->toxml_cr(h, nullptr, sticky.text(), static_cast<std::uint32_t>(expected.size()) - 3), 0xFFFFFFFFu);
        EXPECT_NE(h->last_error, 0u);
    }
    EXPECT_EQ(err, 0u);
}

TEST_F(ControlMessages, AnyDocumentGivesAToken) {
    const char text[] = "<bundle_start name=\"somebody else's\"/>";
    void *document = mirk_platform_document_load_memory(text, sizeof text - 1, nullptr);
    ASSERT_NE(document, nullptr);
    for (const Control &c : controls()) {
        Handle h;
        err = EPERM;  // not checked
        void *token = c->from_xml(h, id, document, &err, nullptr, 0);
        EXPECT_NE(token, nullptr);
        EXPECT_EQ(err, std::uint32_t{EPERM});
        c->destroy(h, id, token);
    }
    mirk_platform_document_free(document);
}

}  // namespace
