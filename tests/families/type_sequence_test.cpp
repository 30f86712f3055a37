// The calls that private types and bundle handlers make.
#include <cerrno>

#include "lumo_ui_tarn.h"
#include "recorded.h"

using namespace families;

namespace {

using TypeSequence = Sequence;

struct Type {
    std::string luid, name;
};
std::vector<Type> types() {
    std::vector<Type> all;
    for (const auto &r : reference::records()) all.push_back({reference::luid_text(r.luid), r.name});
    for (const auto &e : reference::enumerations()) all.push_back({reference::luid_text(e.luid), e.name});
    for (const auto &m : reference::messages()) all.push_back({reference::luid_text(m.luid), m.name});
    return all;
}

TEST_F(TypeSequence, TheFirstInitializationCopiesAndTheSecondOnlyUpdates) {
    Handle h({Tracking::none, 1});
    Lines first, second;
    for (const Type &type : types()) {
        append(first,
               {"type_store_get " + type.luid, "sys_alloc 4294967295 288",
                "type_store_put " + type.luid + " " + type.name, "mirk_update_variant_info " + type.name + " 1"});
        append(second, {"type_store_get " + type.luid, "mirk_update_variant_info " + type.name + " 0"});
    }
    EXPECT_EQ(lines_of([&] { lumo_ui_tarn_typeinfo_initialize(h, id, &err); }), first);
    EXPECT_EQ(lines_of([&] { lumo_ui_tarn_typeinfo_initialize(h, id, &err); }), second);
    EXPECT_EQ(err, 0u);
    EXPECT_EQ(h.private_copies(), types().size());
}

TEST_F(TypeSequence, AFailedAllocationStopsTheInitialization) {
    Handle h({Tracking::none, 1});
    h.fail_sys_alloc(10);
    const Lines lines = lines_of([&] { lumo_ui_tarn_typeinfo_initialize(h, id, &err); });
    EXPECT_EQ(err, static_cast<std::uint32_t>(ENOMEM));
    EXPECT_EQ(h.private_copies(), 9u);
    ASSERT_EQ(lines.size(), 9u * 4 + 3);
    EXPECT_EQ(lines.back(), "mirk_store_err 12");
    EXPECT_EQ(lines[lines.size() - 2], "sys_alloc 4294967295 288");
}

void some_handler(mirk_handle *, std::uint32_t, void *, std::uint32_t *) {}

TEST_F(TypeSequence, RegistrationReachesTheSiblingModulesInOrder) {
    const char *const siblings[] = {"comm", "defs", "shared", "stats", "intf", "cond", "view"};
    Lines names;
    recording::clear_log();
    EXPECT_EQ(lumo_ui_tarn_bundle_handler_register(some_handler), nullptr);
    for (const recording::Call &call : recording::log()) names.push_back(call.function);
    Lines expected;
    for (const char *s : siblings) {
        expected.push_back("veld_" + std::string(s) + "_bundle_handler_register");
        EXPECT_EQ(recording::sibling_handler(s), some_handler);
    }
    EXPECT_EQ(names, expected);
    names.clear();
    recording::clear_log();
    EXPECT_EQ(lumo_ui_tarn_bundle_handler_unregister(), some_handler);
    for (const recording::Call &call : recording::log()) names.push_back(call.function);
    expected.clear();
    for (const char *s : siblings) {
        expected.push_back("veld_" + std::string(s) + "_bundle_handler_unregister");
        EXPECT_EQ(recording::sibling_handler(s), nullptr);
    }
    EXPECT_EQ(names, expected);
}

TEST_F(TypeSequence, TraceModulesAreRegisteredByName) {
    EXPECT_EQ(lines_of([] { mirk_lumo_ui_tarn_type_trace_init(); }),
              (Lines{"skald_module_init_fn mirk_lumo_ui_tarn_type"}));
    EXPECT_EQ(lines_of([] { mirk_lumo_ui_tarn_message_trace_init(); }),
              (Lines{"skald_module_init_fn mirk_lumo_ui_tarn_message"}));
    EXPECT_NE(g_mirk_lumo_ui_tarn_type_trace_module_id, g_mirk_lumo_ui_tarn_message_trace_module_id);
}

}  // namespace
