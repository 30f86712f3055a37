// The linked-in handlers of control messages and bundles, and the choice of the handler that gets a committed bundle.
#include <cstdio>

#include "messaging.h"

namespace {

using namespace messaging;
using tarn::reflect::bundles;

struct Handlers : Messaging {
    void SetUp() override {
        Messaging::SetUp();
        handler_calls.clear();
    }
    void TearDown() override {
        lumo_ui_tarn_bundle_handler_unregister();
        for (const BundleOperations &b : bundles()) b.unregister_handler();
        Messaging::TearDown();
    }
    // Passes the frame through the dispatcher, so that there is an entry to look up.
    mirk_platform_error dispatch(mirk_handle *h, const BundleOperations &b, std::string_view kind,
                                 void *context = nullptr) {
        Buffer frame(reference::control_frame(b.bundle->name, kind, 0));
        return mirk_platform_dispatch(h, id, frame.data(), frame.size(), context, nullptr);
    }
    static std::string name_of(const BundleOperations &b, const char *kind) {
        return std::string(b.bundle->name) + "_bundle_" + kind;
    }
    static std::string pointer(const void *p) {
        char text[32];
        std::snprintf(text, sizeof text, "%p", p);
        return text;
    }
};

// The dispatch entry in the handle's members.
void expect_no_dispatch(mirk_handle *h) {
    EXPECT_EQ(h->recv_bundle_lut, nullptr);
    EXPECT_EQ(h->recv_bundle_lut_ref, nullptr);
    EXPECT_EQ(h->recv_bundle_commit_lut, nullptr);
}

TEST_F(Handlers, AStartOpensTheReceivedBundle) {
    for (const BundleOperations &b : bundles()) {
        SCOPED_TRACE(std::string(b.bundle->name));
        Handle h;
        register_all(h);
        EXPECT_EQ(dispatch(h, b, "start"), 0u);
        EXPECT_EQ(h->recv_bundle_open, 1u);
        EXPECT_EQ(h->recv_bundle_list.next, &h->recv_bundle_list);
        EXPECT_EQ(h->recv_bundle_list.prev, &h->recv_bundle_list);
        ASSERT_NE(h->recv_bundle_lut, nullptr);
        EXPECT_STREQ(h->recv_bundle_lut->name, name_of(b, "start").c_str());
        EXPECT_NE(h->recv_bundle_lut_ref, nullptr);
        EXPECT_EQ(h->recv_bundle_commit_lut, nullptr);
        EXPECT_EQ(traced(), (Lines{"message 7 (debug): Bundle starting for " + name_of(b, "start") + " with LUT " +
                                   pointer(h->recv_bundle_lut_ref)}));
    }
}

TEST_F(Handlers, AStartOutsideTheDispatcherHasNoEntry) {
    for (const BundleOperations &b : bundles()) {
        Handle h;
        b.start.handler(h, id, nullptr, nullptr, &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(h->recv_bundle_open, 1u);
        expect_no_dispatch(h);
        EXPECT_EQ(traced(), (Lines{"message 7 (debug): Bundle lumo_ui_tarn_" + std::string(b.bundle->name) +
                                   " start message handler with LUT " + pointer(nullptr)}));
    }
}

TEST_F(Handlers, AStartInsideABundleChangesNothing) {
    for (const BundleOperations &b : bundles()) {
        SCOPED_TRACE(std::string(b.bundle->name));
        Handle h;
        register_all(h);
        ASSERT_EQ(dispatch(h, bundles()[3], "start"), 0u);
        const mirk_dispatch_info *first = h->recv_bundle_lut;
        traced();
        EXPECT_EQ(dispatch(h, b, "start"), std::uint32_t{EEXIST});
        EXPECT_EQ(h->last_error, std::uint32_t{EEXIST});
        EXPECT_EQ(h->recv_bundle_lut, first);
        EXPECT_EQ(h->recv_bundle_open, 1u);
        EXPECT_EQ(traced(), (Lines{"message 3 (ERR): Start message lumo_ui_tarn_" + std::string(b.bundle->name) +
                                   "_bundle_start_message received while aready in bundle context"}));
    }
}

TEST_F(Handlers, AStartIgnoresTheError) {
    for (const BundleOperations &b : bundles()) {
        Handle h;
        err = EPERM;
        b.start.handler(h, id, nullptr, nullptr, &err);
        EXPECT_EQ(h->recv_bundle_open, 1u);
        EXPECT_EQ(err, std::uint32_t{EPERM});
    }
}

TEST_F(Handlers, AnAbortDestroysTheBundle) {
    for (const BundleOperations &b : bundles()) {
        SCOPED_TRACE(std::string(b.bundle->name));
        Handle h;
        register_all(h);
        ASSERT_EQ(dispatch(h, b, "start"), 0u);
        void *lut = h->recv_bundle_lut_ref;
        traced();
        EXPECT_EQ(dispatch(h, b, "abort"), 0u);
        EXPECT_EQ(h->recv_bundle_open, 0u);
        expect_no_dispatch(h);
        EXPECT_EQ(traced(), (Lines{"message 7 (debug): Bundle aborting for " + name_of(b, "abort") + " with LUT " +
                                   pointer(lut)}));
        // Without an entry nothing is traced.
        h->recv_bundle_open = 1;
        err = 0;
        b.abort.handler(h, id, nullptr, nullptr, &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(h->recv_bundle_open, 0u);
        EXPECT_EQ(traced(), Lines{});
    }
}

TEST_F(Handlers, AnEndOutsideABundleTracesAnAbort) {
    for (const BundleOperations &b : bundles()) {
        for (const MessageOperations *m : {&b.abort, &b.commit}) {
            SCOPED_TRACE(m->name);
            Handle h;
            mirk_dispatch_info entry{};
            h->recv_bundle_lut = h->recv_bundle_commit_lut = &entry;
            h->recv_bundle_lut_ref = &entry;
            err = 0;
            m->handler(h, id, nullptr, nullptr, &err);
            EXPECT_EQ(err, std::uint32_t{EBADMSG});
            EXPECT_EQ(h->last_error, std::uint32_t{EBADMSG});
            expect_no_dispatch(h);
            EXPECT_EQ(traced(), (Lines{"message 3 (ERR): Abort message received outside of bundle context"}));
        }
    }
}

TEST_F(Handlers, AnEndWithAnErrorDestroysTheBundleUndelivered) {
    for (const BundleOperations &b : bundles()) {
        b.register_handler(on_bundle<'b'>);
        for (const bool abort : {true, false}) {
            const MessageOperations &m = abort ? b.abort : b.commit;
            SCOPED_TRACE(m.name);
            Handle h;
            h->recv_bundle_open = 1;
            err = EPERM;
            m.handler(h, id, nullptr, nullptr, &err);
            EXPECT_EQ(err, std::uint32_t{EPERM});
            EXPECT_EQ(h->recv_bundle_open, 0u);
            expect_no_dispatch(h);
            EXPECT_EQ(traced(), (Lines{std::string("message 3 (ERR): Error set in ") +
                                       (abort ? "aborting" : "committing") + " bundle: " + error_text(EPERM)}));
        }
    }
    EXPECT_TRUE(handler_calls.empty());
}

TEST_F(Handlers, ACommitWithoutADispatchEntryRunsNoHandler) {
    for (const BundleOperations &b : bundles()) {
        b.register_handler(on_bundle<'b'>);
        Handle h;
        mirk_platform_handle_set_bundle_handler(h, on_bundle<'h'>);
        h->recv_bundle_open = 1;
        b.commit.handler(h, id, nullptr, nullptr, &err);
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(h->recv_bundle_open, 0u);
    }
    EXPECT_TRUE(handler_calls.empty());
    EXPECT_EQ(traced(), Lines{});
}

TEST_F(Handlers, TheirTokenIsAlwaysReleased) {
    for (const BundleOperations &b : bundles()) {
        for (const MessageOperations *m : {&b.start, &b.abort, &b.commit}) {
            for (const std::uint32_t open : {0u, 1u}) {
                for (const std::uint32_t before : {0u, std::uint32_t{EPERM}}) {
                    Handle h;
                    h->recv_bundle_open = open;
                    void *token = m->create(h, id);
                    err = before;
                    m->handler(h, id, nullptr, token, &err);
                    EXPECT_EQ(h.live_blocks(), 0u) << m->name << ' ' << open << ' ' << before;
                }
            }
        }
    }
}

// One handler for each position in the chain: whenever one is removed, the next one runs.
TEST_F(Handlers, ExactlyOneOfFiveRunsInAFixedOrder) {
    int context = 0;
    for (const BundleOperations &b : bundles()) {
        SCOPED_TRACE(std::string(b.bundle->name));
        Handle h;
        register_all(h);
        const std::string entry = name_of(b, "commit");
        mirk_platform_dispatch_set_bundle_handler(h, b.commit.luid, on_bundle<'e'>);
        mirk_platform_handle_set_bundle_handler(h, on_bundle<'h'>);
        lumo_ui_tarn_bundle_handler_register(on_bundle<'m'>);
        b.register_handler(on_bundle<'b'>);

        const auto commit = [&] {
            ASSERT_EQ(dispatch(h, b, "start"), 0u);
            traced();
            handler_calls.clear();
            ASSERT_EQ(dispatch(h, b, "commit", &context), 0u);
            expect_no_dispatch(h);
            EXPECT_EQ(h->recv_bundle_open, 0u);
        };
        const auto expect_runs = [&](const std::string &handler, const std::string &line) {
            commit();
            ASSERT_EQ(handler_calls.size(), 1u);
            EXPECT_EQ(handler_calls[0].handler, handler);
            EXPECT_EQ(handler_calls[0].h, h.get());
            EXPECT_EQ(handler_calls[0].ctx_id, id);
            EXPECT_EQ(handler_calls[0].dispatch_ctx, &context);
            EXPECT_EQ(handler_calls[0].err, 0u);
            EXPECT_EQ(traced(), (Lines{"message 7 " + line + entry}));
        };
        expect_runs("e", "(debug): Invoking LUT-registered handler for ");
        mirk_platform_dispatch_set_bundle_handler(h, b.commit.luid, nullptr);
        expect_runs("h", "(debug): Invoking MIRK handle-registered handler for ");
        mirk_platform_handle_set_bundle_handler(h, nullptr);
        expect_runs("m", "(debug): Invoking LUT-registered handler for ");  // the line says look-up table
        lumo_ui_tarn_bundle_handler_unregister();
        expect_runs("b", "(debug): Invoking registered bundle handler for ");
        b.unregister_handler();
        commit();
        EXPECT_TRUE(handler_calls.empty());
        const Lines lines = traced();
        ASSERT_EQ(lines.size(), 2u);
        EXPECT_EQ(lines[0], "message 7 (debug): Invoking linked-in handler for " + entry);
        EXPECT_TRUE(lines[1].starts_with("stub ")) << lines[1];
    }
}

TEST_F(Handlers, TheStubOfABundleTracesFillersAndSetsNoError) {
    for (const BundleOperations &b : bundles()) {
        SCOPED_TRACE(std::string(b.bundle->name));
        Handle h;
        h->last_error = ENOSPC;
        err = EPERM;
        b.handler(h, id, nullptr, &err);
        EXPECT_EQ(err, std::uint32_t{EPERM});
        EXPECT_EQ(h->last_error, std::uint32_t{ENOSPC});
        const auto filler = [](std::size_t length) {
            std::string text;
            while (text.size() < length) text += "abcdefghijklmnop";
            return text.substr(0, length);
        };
        const std::size_t own = ("lumo_ui_tarn_" + std::string(b.bundle->name) + "_bundle_handler").size();
        EXPECT_EQ(traced(),
                  (Lines{"stub 3 (ERR): Call to unimplemented function " + filler(own) + " at " + filler(58) + ":1"}));
    }
}

// The module numbers before the first test ran.
const std::uint16_t message_module_at_start = g_mirk_lumo_ui_tarn_message_trace_module_id;
const std::uint16_t stub_module_at_start = g_mirk_lumo_ui_tarn_stub_trace_module_id;
const std::uint16_t queue_module_at_start = g_mirk_lumo_ui_tarn_queue_trace_module_id;

// The process registers the trace module of messages itself; the library never uses the other two.
TEST_F(Handlers, MessageTraceModulesHaveNoNumberUntilTheyAreRegistered) {
    EXPECT_EQ(message_module_at_start, 0);
    EXPECT_EQ(stub_module_at_start, 0);
    EXPECT_EQ(queue_module_at_start, 0);
    EXPECT_NE(g_mirk_lumo_ui_tarn_message_trace_module_id, 0);
    EXPECT_EQ(g_mirk_lumo_ui_tarn_queue_trace_module_id, 0);
}

TEST_F(Handlers, ABundlesVariableIsExchanged) {
    for (const BundleOperations &b : bundles()) {
        EXPECT_EQ(*b.registered_handler, nullptr);
        EXPECT_EQ(b.register_handler(on_bundle<'1'>), nullptr);
        EXPECT_EQ(*b.registered_handler, on_bundle<'1'>);
        EXPECT_EQ(b.register_handler(on_bundle<'2'>), on_bundle<'1'>);
        EXPECT_EQ(b.unregister_handler(), on_bundle<'2'>);
        EXPECT_EQ(*b.registered_handler, nullptr);
        EXPECT_EQ(b.unregister_handler(), nullptr);
        EXPECT_EQ(lumo_ui_tarn_bundle_registered_handler, nullptr);
    }
    EXPECT_EQ(veld_comm_bundle_handler_unregister(), nullptr);
}

TEST_F(Handlers, TheModulesHandlerReachesTheSiblings) {
    veld_defs_bundle_handler_register(on_bundle<'d'>);
    EXPECT_EQ(lumo_ui_tarn_bundle_handler_register(on_bundle<'1'>), nullptr);  // not the sibling's previous handler
    EXPECT_EQ(lumo_ui_tarn_bundle_registered_handler, on_bundle<'1'>);
    for (const BundleOperations &b : bundles()) EXPECT_EQ(*b.registered_handler, nullptr);
    for (const auto exchange :
         {veld_comm_bundle_handler_register, veld_defs_bundle_handler_register, veld_shared_bundle_handler_register,
          veld_stats_bundle_handler_register, veld_intf_bundle_handler_register, veld_cond_bundle_handler_register,
          veld_view_bundle_handler_register}) {
        EXPECT_EQ(exchange(on_bundle<'s'>), on_bundle<'1'>);
    }
    EXPECT_EQ(lumo_ui_tarn_bundle_handler_register(on_bundle<'2'>), on_bundle<'1'>);
    EXPECT_EQ(lumo_ui_tarn_bundle_handler_unregister(), on_bundle<'2'>);
    EXPECT_EQ(lumo_ui_tarn_bundle_registered_handler, nullptr);
    for (const auto exchange : {veld_comm_bundle_handler_unregister, veld_defs_bundle_handler_unregister,
                                veld_shared_bundle_handler_unregister, veld_stats_bundle_handler_unregister,
                                veld_intf_bundle_handler_unregister, veld_cond_bundle_handler_unregister,
                                veld_view_bundle_handler_unregister}) {
        EXPECT_EQ(exchange(), nullptr);
    }
    EXPECT_EQ(lumo_ui_tarn_bundle_handler_unregister(), nullptr);
}

}  // namespace
