// The calls that control messages and handlers make of the runtime, in their order.
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

#include "lumo_ui_tarn.h"
#include "recording.h"
#include "tools/reflect/operations.h"

namespace {

using recording::Detail;
using recording::Handle;
using tarn::reflect::BundleOperations;
using tarn::reflect::bundles;
using tarn::reflect::MessageOperations;
using Strings = std::vector<std::string>;

constexpr std::uint32_t id = 7, room = 100;
constexpr const char *header = "_mirk_message_header_marshal buffer 188 0 16909060 43 27 ctx=7 err=slot";

struct ControlSequence : testing::Test {
    void SetUp() override {
        mirk_lumo_ui_tarn_message_trace_init();
        recording::name_region("buffer", buffer.data(), room);
        recording::name_region("slot", &err, sizeof err);
        recording::clear_log();
    }
    void TearDown() override {
        lumo_ui_tarn_bundle_handler_unregister();
        recording::clear_names();
    }
    static Strings calls() {
        Strings lines = recording::lines(Detail::full);
        recording::clear_log();
        return lines;
    }

    std::array<std::uint8_t, room> buffer{};
    std::uint32_t err = 0;
};

TEST_F(ControlSequence, AStartWritesItsHeaderAndNothingElse) {
    for (const BundleOperations &b : bundles()) {
        Handle h;
        EXPECT_EQ(b.start.marshal(h, id, buffer.data(), nullptr, room, &err), 43u);
        EXPECT_EQ(calls(), (Strings{"mirk_clear_last_error", header}));
    }
}

TEST_F(ControlSequence, AbortAndCommitAlwaysDestroyTheSendList) {
    for (const BundleOperations &b : bundles()) {
        for (const MessageOperations *m : {&b.abort, &b.commit}) {
            SCOPED_TRACE(m->name);
            Handle h;
            h->send_bundle_open = 1;
            EXPECT_EQ(m->marshal(h, id, buffer.data(), nullptr, room, &err), 43u);
            EXPECT_EQ(calls(),
                      (Strings{"mirk_clear_last_error", header, "bundle_send_message_list_destroy 0 ctx=7 err=slot"}));
            for (const std::uint32_t size : {26u, 30u}) {
                h->send_bundle_open = 1;
                m->marshal(h, id, buffer.data(), nullptr, size, &err);
                EXPECT_EQ(calls(), (Strings{"mirk_clear_last_error", "mirk_store_err 90",
                                            "bundle_send_message_list_destroy 90 ctx=7 err=slot"}));
                err = 0;
            }
        }
    }
}

TEST_F(ControlSequence, ARefusedMessageCallsNothing) {
    for (const BundleOperations &b : bundles()) {
        Handle h;
        b.commit.marshal(h, id, buffer.data(), nullptr, room, &err);
        EXPECT_EQ(calls(), (Strings{"mirk_clear_last_error", "mirk_store_err 2"}));
        h->send_bundle_open = 1;
        err = 0;
        b.start.marshal(h, id, buffer.data(), nullptr, room, &err);
        EXPECT_EQ(calls(), (Strings{"mirk_clear_last_error", "mirk_store_err 17"}));
        b.start.marshal(h, id, buffer.data(), nullptr, room, &err);
        b.commit.marshal(h, id, buffer.data(), nullptr, room, &err);
        EXPECT_EQ(calls(), Strings{});
        err = 0;
    }
}

TEST_F(ControlSequence, PrintAndXmlIgnoreTheError) {
    for (const BundleOperations &b : bundles()) {
        const std::pair<const MessageOperations *, std::string> all[] = {
            {&b.start, "start"}, {&b.abort, "abort"}, {&b.commit, "commit"}};
        for (const auto &[m, kind] : all) {
            Handle h;
            const std::string bundle(b.bundle->name);
            err = EPERM;
            m->print(h, id, reinterpret_cast<char *>(buffer.data()), nullptr, 90, &err);
            EXPECT_EQ(calls(), (Strings{"mirk_print_space buffer 0 90 ctx=7 err=slot",
                                        "mirk_snprintf buffer 90 bundle " + kind + "@" + bundle +
                                            ": <<<<<<<<\\n ctx=7 err=slot"}));
            m->to_xml(h, id, reinterpret_cast<char *>(buffer.data()), nullptr, 90, &err);
            EXPECT_EQ(calls(),
                      (Strings{"start_tag buffer bundle_" + kind + " name=\"" + bundle + "\" 90 0 ctx=7 err=slot",
                               "end_tag buffer bundle_" + kind + " 90 ctx=7 err=slot"}));
        }
    }
}

mirk_dispatch_info entry_with(mirk_bundle_handler handler) { return {nullptr, "the entry", nullptr, nullptr, handler}; }

// Traces a line of its own.
void handle(mirk_handle *h, std::uint32_t ctx_id, void *, std::uint32_t *err) {
    EXPECT_NE(h->recv_bundle_commit_lut, nullptr);
    skald_wrapper(g_mirk_lumo_ui_tarn_message_trace_module_id, 7, 0, "handled under %u", ctx_id);
    *err = EPERM;  // does not stop the rest of the commit
}

TEST_F(ControlSequence, ACommitRunsItsHandlerThenDestroysTheListThenTheToken) {
    for (const BundleOperations &b : bundles()) {
        SCOPED_TRACE(std::string(b.bundle->name));
        Handle h;
        recording::clear_names();
        recording::name_region("slot", &err, sizeof err);
        mirk_dispatch_info entry = entry_with(handle);
        h.knobs().dispatch_info = &entry;
        h->recv_bundle_open = 1;
        h->recv_bundle_list = {&h->recv_bundle_list, &h->recv_bundle_list};
        h.file_received("first");
        h.file_received("second");
        void *token = b.commit.create(h, id);
        calls();
        err = 0;
        b.commit.handler(h, id, nullptr, token, &err);
        const Strings lines = calls();
        EXPECT_EQ(
            lines,
            (Strings{"mirklib_is_accumulating_bundle", "mirklib_in_dispatch_message_info null",
                     "skald_wrapper message 7 (debug): Invoking LUT-registered handler for the entry",
                     "skald_wrapper message 7 handled under 7", "bundle_receive_message_list_destroy 1 ctx=7 err=slot",
                     "destroy_received first ctx=7", "destroy_received second ctx=7", "obj_free block1 ctx=7"}));
        EXPECT_EQ(h->recv_bundle_commit_lut, nullptr);
        EXPECT_EQ(err, std::uint32_t{EPERM});
    }
}

TEST_F(ControlSequence, AFailedCommitLooksUpNoEntry) {
    for (const BundleOperations &b : bundles()) {
        Handle h;
        err = EPERM;
        b.commit.handler(h, id, nullptr, nullptr, &err);
        EXPECT_EQ(calls(), (Strings{"skald_wrapper message 3 (ERR): Error set in committing bundle: " +
                                        std::string(std::strerror(EPERM)),
                                    "bundle_receive_message_list_destroy 1 ctx=7 err=slot"}));
        err = 0;
        b.commit.handler(h, id, nullptr, nullptr, &err);
        const Strings lines = calls();
        ASSERT_EQ(lines.size(), 4u);
        EXPECT_EQ(lines[0], "mirklib_is_accumulating_bundle");
        EXPECT_EQ(lines[3], "bundle_receive_message_list_destroy 74 ctx=7 err=slot");
    }
}

TEST_F(ControlSequence, AnAbortDestroysTheListBeforeItLooksUpTheEntry) {
    for (const BundleOperations &b : bundles()) {
        Handle h;
        recording::clear_names();
        recording::name_region("slot", &err, sizeof err);
        mirk_dispatch_info entry = entry_with(nullptr);
        h.knobs().dispatch_info = &entry;
        h->recv_bundle_open = 1;
        void *token = b.abort.create(h, id);
        calls();
        err = 0;
        b.abort.handler(h, id, nullptr, token, &err);
        EXPECT_EQ(calls(),
                  (Strings{"mirklib_is_accumulating_bundle", "bundle_receive_message_list_destroy 0 ctx=7 err=slot",
                           "mirklib_in_dispatch_message_info local",
                           "skald_wrapper message 7 (debug): Bundle aborting for the entry with LUT (nil)",
                           "obj_free block1 ctx=7"}));
    }
}

TEST_F(ControlSequence, AStartRecordsTheEntryAndTheTable) {
    for (const BundleOperations &b : bundles()) {
        Handle h;
        mirk_dispatch_info entry = entry_with(nullptr);
        h.knobs().dispatch_info = &entry;
        h.knobs().dispatch_lut = &buffer;
        h->recv_bundle_commit_lut = &entry;
        b.start.handler(h, id, nullptr, nullptr, &err);
        EXPECT_EQ(h->recv_bundle_lut, &entry);
        EXPECT_EQ(h->recv_bundle_lut_ref, &buffer);
        EXPECT_EQ(h->recv_bundle_commit_lut, nullptr);
        const Strings lines = calls();
        ASSERT_EQ(lines.size(), 3u);
        EXPECT_EQ(lines[0], "mirklib_is_accumulating_bundle");
        EXPECT_EQ(lines[1], "mirklib_in_dispatch_message_info local");
        // The table is recorded even if there is no entry.
        h->recv_bundle_open = 0;
        h.knobs().dispatch_info = nullptr;
        b.start.handler(h, id, nullptr, nullptr, &err);
        EXPECT_EQ(h->recv_bundle_lut, nullptr);
        EXPECT_EQ(h->recv_bundle_lut_ref, &buffer);
        calls();
    }
    EXPECT_EQ(err, 0u);
}

TEST_F(ControlSequence, RegistrationForTheModuleReachesTheSiblingsInOrder) {
    const char *const order[] = {"comm", "defs", "shared", "stats", "intf", "cond", "view"};
    EXPECT_EQ(lumo_ui_tarn_bundle_handler_register(handle), nullptr);
    Strings expected;
    for (const char *m : order) expected.push_back("veld_" + std::string(m) + "_bundle_handler_register handler");
    EXPECT_EQ(calls(), expected);
    for (const char *m : order) EXPECT_EQ(recording::sibling_handler(m), handle);
    EXPECT_EQ(lumo_ui_tarn_bundle_handler_unregister(), handle);
    const Strings lines = calls();
    ASSERT_EQ(lines.size(), 7u);
    for (std::size_t i = 0; i < 7; ++i) {
        EXPECT_TRUE(lines[i].starts_with("veld_" + std::string(order[i]) + "_bundle_handler_unregister")) << lines[i];
        EXPECT_EQ(recording::sibling_handler(order[i]), nullptr);
    }
}

TEST_F(ControlSequence, RegistrationForABundleCallsNothing) {
    for (const BundleOperations &b : bundles()) {
        b.register_handler(handle);
        b.unregister_handler();
    }
    EXPECT_EQ(calls(), Strings{});
}

}  // namespace
