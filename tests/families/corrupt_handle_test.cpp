// A handle whose tracking mode is neither of the two valid words aborts the process in each operation that depends on
// the mode.
#include "lumo_ui_tarn.h"
#include "values.h"

using namespace families;

namespace {

constexpr const char *text = "\\(FATAL\\): Corrupted MIRK Handle";

// The handle is valid at first, so that objects can be created.
class CorruptHandleDeathTest : public testing::Test {
protected:
    void SetUp() override { testing::FLAGS_gtest_death_test_style = "fast"; }
    void TearDown() override {
        mirk_platform_testing_set_sttr_mode(h, 0xEEEE);
        for (const auto &[r, object] : objects) r->destroy(h, id, object);
    }
    void *make(const RecordOperations &r) {
        void *object = r.create(h, id);
        objects.emplace_back(&r, object);
        return object;
    }
    void corrupt(std::uint32_t mode = 0) { mirk_platform_testing_set_sttr_mode(h, mode); }
    void expect_abort(const std::function<void()> &operation) {
        EXPECT_EXIT(operation(), testing::KilledBySignal(SIGABRT), text);
    }

    Handle h{Tracking::on};
    std::uint32_t err = 0;
    std::vector<std::pair<const RecordOperations *, void *>> objects;
};

TEST_F(CorruptHandleDeathTest, SizeAndCreationAbort) {
    for (std::uint32_t mode : {0u, 0xDDDEu, 0xEEEEEEEEu}) {
        corrupt(mode);
        expect_abort([&] { record("lumo_tarn_debug_setting").sizeof_(h); });
    }
    expect_abort([&] { record("lumo_tarn_dp_tc").create(h, id); });
    expect_abort([&] {
        alignas(8) std::uint8_t object[400] = {};
        const RecordOperations &r = record("lumo_tarn_dp_tc");
        r.initialize(h, id, object, r.type, 1, 1, 0, nullptr, &err);
    });
    expect_abort([&] { tarn::reflect::messages()[0].create(h, id); });
}

TEST_F(CorruptHandleDeathTest, EveryKindOfMemberWriteAborts) {
    const RecordOperations &flat = record("lumo_tarn_debug_setting"), &ll = record("lumo_tarn_dp_ll_spec"),
                           &tc = record("lumo_tarn_dp_tc"), &text_record = record("lumo_tarn_cl_kesh_appl");
    void *f = make(flat), *l = make(ll), *t = make(tc), *s = make(text_record), *other = make(tc);
    corrupt();
    std::uint32_t value = 1;
    expect_abort([&] { flat.members[0].set(h, id, f, &value, &err); });
    expect_abort([&] { flat.members[0].set_value(h, id, f, 1, &err); });
    expect_abort([&] { member(ll, "display_all").set_value(h, id, l, 1, &err); });
    expect_abort([&] { member(tc, "src_prefix").set(h, id, t, at(tc, other, member(tc, "src_prefix")), &err); });
    expect_abort([&] { member(tc, "exmem_info").set(h, id, t, at(tc, other, member(tc, "exmem_info")), &err); });
    expect_abort([&] { member(text_record, "proto_name").text_set(h, id, s, "a", 1, &err); });
}

TEST_F(CorruptHandleDeathTest, EveryStateOperationAborts) {
    const RecordOperations &r = record("lumo_tarn_dp_tc_list");
    const MemberOperations &m = member(r, "tc_list");
    void *object = make(r), *flat = make(record("lumo_tarn_debug_setting"));
    corrupt();
    std::uint8_t *out = nullptr;
    const std::uint8_t source[1] = {0};
    expect_abort([&] { m.state_flag_get(h, id, object, &err); });
    expect_abort([&] { m.state_flag_set(h, id, object, 1, &err); });
    expect_abort([&] { m.element_state_flag_get(h, id, object, 0, &err); });
    expect_abort([&] { m.element_state_flag_set(h, id, object, 0, 1, &err); });
    expect_abort([&] { m.element_state_flag_get_arr(h, id, object, &out, &err); });
    expect_abort([&] { m.element_state_flag_set_arr(h, id, object, source, 0, &err); });
    expect_abort([&] { record("lumo_tarn_debug_setting").members[0].state_flag_get(h, id, flat, &err); });
    expect_abort([&] { record("lumo_tarn_debug_setting").members[0].state_flag_set(h, id, flat, 1, &err); });
}

TEST_F(CorruptHandleDeathTest, AssignmentArrayGrowthAndEncodingAbort) {
    const RecordOperations &r = record("lumo_tarn_debug_setting"), &list = record("lumo_tarn_dp_tc_list");
    void *object = make(r), *other = make(r), *l = make(list), *element = make(record("lumo_tarn_dp_tc"));
    corrupt();
    char buffer[512] = {};
    expect_abort([&] { r.set(h, id, object, other, &err); });
    expect_abort([&] { member(list, "tc_list").element_set(h, id, l, 0, element, &err); });
    expect_abort([&] { r.len(h, id, object); });
    expect_abort([&] { r.marshal(h, id, buffer, object, sizeof buffer, &err); });
    expect_abort([&] { r.unmarshal(h, id, buffer, object, sizeof buffer, 0, &err); });
    expect_abort([&] { r.to_xml(h, id, "a", buffer, object, sizeof buffer, 0, &err); });
}

TEST_F(CorruptHandleDeathTest, ReadsTextAndDestructionDoNotNotice) {
    const RecordOperations &r = record("lumo_tarn_dp_tc");
    void *object = r.create(h, id);
    corrupt();
    char buffer[4096];
    EXPECT_EQ(member(r, "id").get_value(h, id, object, &err), 0u);
    EXPECT_NE(member(r, "id").get(h, id, object, &err), nullptr);
    EXPECT_NE(r.print(h, id, buffer, 0, "object", object, sizeof buffer, &err), 0u);
    EXPECT_EQ(err, 0u);
    r.offset_remove(h, id, object, &err);
    r.destroy(h, id, object);
    EXPECT_EQ(h.live_blocks(), 0u);
}

TEST_F(CorruptHandleDeathTest, FillingAllStateIgnoresIt) {
    each_record([&](const RecordOperations &r) {
        void *object = r.create(h, id);
        Events events(h);
        for (std::uint32_t mode : {0u, 0xDDDDu, 0xEEEFu}) {
            corrupt(mode);
            r.set_all_state_tracking_flag(h, id, object, 7);
        }
        for (std::uint32_t i = 0; i < table(r).state; ++i) EXPECT_EQ(area(r, object)[i], 0);
        EXPECT_TRUE(events.all.empty());
        corrupt(0xEEEE);
        r.destroy(h, id, object);
    });
}

}  // namespace
