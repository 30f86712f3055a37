// Finding and clearing modified marks.
#include "value_support.h"

namespace {

using namespace forms;
using reference::Class;

std::uint32_t walk(const Handle &h, const Instance &instance) {
    return instance.record().type_type_backpropagate(h, id, instance.get(), nullptr);
}

void mark(void *object) { mirk_set_instance_modified(object, 1, 0, 1); }
bool marked(void *object) { return mirk_get_instance_modified(object, 1, 0) != 0; }

TEST(Propagate, ANewRecordHasNoMark) {
    const Handle h;
    for (const RecordOperations &record : tarn::reflect::records()) {
        EXPECT_EQ(walk(h, Instance(h, record)), 0u) << record.record->name;
    }
}

TEST(Propagate, TheRecordsOwnMarkIsReportedAndClearedOnce) {
    const Handle h;
    for (const RecordOperations &record : tarn::reflect::records()) {
        const Instance instance(h, record);
        mark(instance.get());
        EXPECT_EQ(walk(h, instance), 1u) << record.record->name;
        EXPECT_FALSE(marked(instance.get()));
        EXPECT_EQ(walk(h, instance), 0u) << record.record->name;
    }
}

// Each member that can have a mark, in table order; elements and characters cannot.
TEST(Propagate, OneCallClearsOneMark) {
    const Handle h;
    for (const RecordOperations &record : tarn::reflect::records()) {
        const reference::RecordTable &table = reference::record_table(record.record->name);
        const Instance instance(h, record);
        std::vector<void *> objects;
        std::size_t marks = 0;
        std::uint32_t err = 0;
        for (std::size_t i = 0; i < table.members.size(); ++i) {
            const Class cls = table.members[i].cls;
            if (cls == Class::array || cls == Class::string) continue;
            void *member = record.members[i].get(h, id, instance.get(), &err);
            ASSERT_NE(member, nullptr);
            ++marks;
            if (cls == Class::integer || cls == Class::count || cls == Class::length) {
                ASSERT_EQ(mirk_platform_testing_mark_integer(h, member, 1), 0u);
                continue;
            }
            mark(member);
            objects.push_back(member);
        }
        mark(instance.get());
        for (std::size_t call = 0; call < marks; ++call) {
            ASSERT_EQ(walk(h, instance), 1u) << record.record->name << " " << call;
            // The record's own mark is cleared by the first call, whatever the walk found.
            ASSERT_FALSE(marked(instance.get()));
        }
        for (void *object : objects) ASSERT_FALSE(marked(object));
        ASSERT_EQ(walk(h, instance), 0u) << record.record->name;
    }
}

TEST(Propagate, TheFirstMarkInTableOrderIsClearedFirst) {
    const Handle h;
    const Instance intf(h, "lumo_tarn_dp_intf_data");
    auto *object = static_cast<lumo_tarn_dp_intf_data *>(intf.get());
    std::uint32_t err = 0;
    auto *deep = lumo_tarn_dp_lumo_wexa_info_out_wexa_is_valid_get(
        h, id, lumo_tarn_dp_intf_data_in_lumo_wexa_get(h, id, object, &err), &err);
    auto *last = lumo_tarn_dp_intf_data_out_lumo_wexa_is_valid_get(h, id, object, &err);
    mark(deep);
    mark(last);
    EXPECT_EQ(walk(h, intf), 1u);
    EXPECT_FALSE(marked(deep));
    EXPECT_TRUE(marked(last));
    EXPECT_EQ(walk(h, intf), 1u);
    EXPECT_FALSE(marked(last));
    EXPECT_EQ(walk(h, intf), 0u);
}

TEST(Propagate, ElementMarksAreNotReportedForTheOwner) {
    const Handle h;
    reference::Record value("lumo_tarn_dp_debug_setting_data");
    value.append("lumo_data");
    const Instance data(h, value);
    mirk_set_instance_modified(data.get(), 1, 0, 0);
    std::uint32_t err = 0;
    auto *element = lumo_tarn_dp_debug_setting_data_lumo_data_get(
        h, id, static_cast<lumo_tarn_dp_debug_setting_data *>(data.get()), 0, &err);
    lumo_tarn_dp_debug_setting_ager_enabled_set_value(h, id, element, 1, &err);
    EXPECT_TRUE(marked(element));
    EXPECT_EQ(walk(h, data), 0u);
    EXPECT_TRUE(marked(element));
}

TEST(Propagate, SettersSetAMarkThatIsFound) {
    const Handle h;
    const Instance info(h, "lumo_tarn_lumo_info");
    auto *object = static_cast<lumo_tarn_lumo_info *>(info.get());
    std::uint32_t err = 0;
    lumo_tarn_lumo_info_ha_state_set_value(h, id, object, 3, &err);
    EXPECT_EQ(err, 0u);
    // The record's mark and that of the enumeration are found by the same walk.
    EXPECT_EQ(walk(h, info), 1u);
    EXPECT_EQ(walk(h, info), 0u);
}

TEST(Propagate, StatesDoNotChange) {
    const Handle h(Tracking::on);
    const reference::Record value = random_value("lumo_tarn_dp_tc", 5);
    const Instance tc(h, value);
    while (walk(h, tc) != 0) {
    }
    EXPECT_TRUE(bridge::same(value, tc.value()));
}

TEST(Propagate, NullIsTracedAndHasNoMark) {
    const Handle h;
    for (const RecordOperations &record : tarn::reflect::records()) {
        const Instance any(h, record);  // so that the trace module is registered
        const Trace trace;
        EXPECT_EQ(record.type_type_backpropagate(h, id, nullptr, nullptr), 0u);
        EXPECT_EQ(trace.lines(),
                  Lines{"type 6 (info): backpropagate: Null pointer to " + std::string(record.record->name) + " type"});
    }
}

}  // namespace
