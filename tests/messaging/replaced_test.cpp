// A process that defines all handlers itself: its functions run instead of the linked-in ones.
#include <set>

#include "messaging.h"

namespace {

std::vector<std::string> called;

}  // namespace

#define MESSAGE_HANDLER(name)                                                                                   \
    void lumo_ui_tarn_##name##_message_handler(mirk_handle *, std::uint32_t, void *, void *, std::uint32_t *) { \
        called.push_back("lumo_ui_tarn_" #name "_message_handler");                                             \
    }
#define BUNDLE_HANDLERS(name)                                                                          \
    MESSAGE_HANDLER(name##_bundle_start)                                                               \
    MESSAGE_HANDLER(name##_bundle_abort)                                                               \
    MESSAGE_HANDLER(name##_bundle_commit)                                                              \
    void lumo_ui_tarn_##name##_bundle_handler(mirk_handle *, std::uint32_t, void *, std::uint32_t *) { \
        called.push_back("lumo_ui_tarn_" #name "_bundle_handler");                                     \
    }

extern "C" {

MESSAGE_HANDLER(lumo_tarn_debug_setting_msg)
MESSAGE_HANDLER(lumo_tarn_dp_debug_setting_msg)
MESSAGE_HANDLER(lumo_tarn_cl_appl_msg)
MESSAGE_HANDLER(lumo_tarn_cl_cfg_msg)
MESSAGE_HANDLER(lumo_tarn_dp_intf_msg)
MESSAGE_HANDLER(lumo_tarn_dp_appl_msg)
MESSAGE_HANDLER(lumo_tarn_dp_tt_msg)
MESSAGE_HANDLER(lumo_tarn_dp_mp_tc_msg)
MESSAGE_HANDLER(lumo_tarn_dp_mp_prefix_msg)
MESSAGE_HANDLER(lumo_tarn_pal_mp_prefix_msg)

BUNDLE_HANDLERS(lumo_tarn_pal_debug_rsp)
BUNDLE_HANDLERS(lumo_tarn_cl_debug_rsp)
BUNDLE_HANDLERS(lumo_tarn_dp_debug_rsp)
BUNDLE_HANDLERS(lumo_tarn_cl_appl_cfg_rsp)
BUNDLE_HANDLERS(lumo_tarn_cl_cfg_rsp)
BUNDLE_HANDLERS(lumo_tarn_dp_intf_rsp)
BUNDLE_HANDLERS(lumo_tarn_dp_appl_cfg_rsp)
BUNDLE_HANDLERS(lumo_tarn_dp_tt_cfg_rsp)
BUNDLE_HANDLERS(lumo_tarn_dp_mp_tc_cfg_rsp)
BUNDLE_HANDLERS(lumo_tarn_dp_mp_prefix_cfg_rsp)
BUNDLE_HANDLERS(lumo_tarn_pal_mp_prefix_cfg_rsp)

}  // extern "C"

namespace {

using namespace messaging;

struct ReplacedHandlers : testing::Test {
    void SetUp() override { called.clear(); }
    std::uint32_t err = 0;
};

TEST_F(ReplacedHandlers, HandlersOfPlainMessagesRun) {
    for (const MessageOperations &m : tarn::reflect::messages()) {
        called.clear();
        Handle h;
        Buffer frame(frame_of(m, sample(m), false));
        void *message = nullptr;
        EXPECT_EQ(m.unmarshal(h, id, nullptr, &message, frame.data(), frame.size(), nullptr, &err), frame.size());
        EXPECT_EQ(err, 0u);
        EXPECT_EQ(called, (std::vector<std::string>{"lumo_ui_tarn_" + std::string(m.name) + "_message_handler"}));
        m.destroy(h, id, message);
    }
}

TEST_F(ReplacedHandlers, HandlersOfControlMessagesRun) {
    for (const Control &c : controls()) {
        called.clear();
        Handle h;
        EXPECT_EQ(c->unmarshal(h, id, nullptr, nullptr, nullptr, 0, nullptr, &err), 43u);
        EXPECT_EQ(called, (std::vector<std::string>{"lumo_ui_tarn_" + std::string(c->name) + "_message_handler"}));
        EXPECT_EQ(h->recv_bundle_open, 0u);  // the process keeps the state now
    }
}

// Whichever handlers of a bundle are replaced, the process's own are called.
TEST_F(ReplacedHandlers, TheProcessFindsThemByName) {
    std::set<std::string> names;
    for (const BundleOperations &b : tarn::reflect::bundles()) {
        called.clear();
        Handle h;
        b.handler(h, id, nullptr, &err);
        b.start.handler(h, id, nullptr, nullptr, &err);
        ASSERT_EQ(called.size(), 2u);
        EXPECT_EQ(called[0], "lumo_ui_tarn_" + std::string(b.bundle->name) + "_bundle_handler");
        names.insert(called.begin(), called.end());
    }
    EXPECT_EQ(names.size(), 2 * tarn::reflect::bundles().size());
}

}  // namespace
