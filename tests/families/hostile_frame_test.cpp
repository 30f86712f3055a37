// Single hostile frames with a known effect, in addition to the random ones.
#include <gtest/gtest.h>

#include "wire_support.h"

namespace {

using namespace wire;

void put_word(Bytes &frame, std::size_t at, std::uint32_t word) {
    for (std::size_t i = 0; i < 4; ++i) frame[at + i] = static_cast<std::uint8_t>(word >> (24 - 8 * i));
}

constexpr std::uint32_t jumps[] = {0, 1, 3, 4, 5, 100, 0x7FFFFFF0, 0x7FFFFFFF, 0x80000000, 0xFFFFFFF8, 0xFFFFFFFF};

TEST(HostileFrame, AnyJumpOfTheOutermostFrameIsSafe) {
    for (const Tracking tracking : kit::every_tracking) {
        const Handle handle(tracking);
        for (const RecordTable &table : reference::records()) {
            const Record value = rich_value(table);
            Bytes frame = reference::encode(value, handle.tracks());
            for (const std::uint32_t jump : jumps) {
                put_word(frame, 2, jump);
                const Instance instance(handle, table.name);
                const Outcome outcome = read(handle, instance, frame);
                EXPECT_EQ(outcome.error, 0U);
                // Only forward jumps have an effect; as signed numbers, those with the top bit set go back.
                const auto end = static_cast<std::int32_t>(2 + jump);
                const auto size = static_cast<std::int32_t>(frame.size());
                EXPECT_EQ(outcome.consumed, static_cast<std::uint32_t>(std::max(end, size))) << jump;
                EXPECT_TRUE(bridge::same(reference::as_received(value, handle.tracks()), instance.value()));
            }
        }
    }
}

TEST(HostileFrame, ANestedJumpPastTheEndLeavesNothingToRead) {
    const Handle handle(Tracking::on);
    const Record value = rich_value(reference::record_table("lumo_tarn_exmem_info_wrapper"));
    for (const std::uint32_t jump : jumps) {
        Bytes frame = reference::encode(value, true);
        put_word(frame, 8, jump);
        const Instance instance(handle, value);
        const Outcome outcome = read(handle, instance, frame);
        EXPECT_EQ(outcome.error, 0U);
        Record expected = value;
        const auto end = static_cast<std::int32_t>(8 + jump);
        const auto nested_end = static_cast<std::int32_t>(frame.size() - 1);
        // The state byte past the end counts as 0, and is stored.
        if (end > nested_end) expected.members[0].state = 0;
        EXPECT_TRUE(bridge::same(expected, instance.value())) << jump;
    }
}

TEST(HostileFrame, AnElementThatJumpsPastTheEndLeavesNothingForTheNext) {
    for (const Tracking tracking : kit::every_tracking) {
        const Handle handle(tracking);
        const Record value = rich_value(reference::record_table("lumo_tarn_dp_debug_setting_data"));
        ASSERT_EQ(value["lumo_data"].items.size(), 2U);
        Bytes frame = reference::encode(value, handle.tracks());
        put_word(frame, 9, 0x7FFFFF00);
        const Instance instance(handle, value.table->name);
        EXPECT_EQ(read(handle, instance, frame).error, 12U);
        const Record seen = instance.value();
        EXPECT_TRUE(bridge::same(reference::as_received(value, handle.tracks())["lumo_data"].items[0],
                                 seen["lumo_data"].items[0]));
        EXPECT_TRUE(bridge::same(Record("lumo_tarn_dp_debug_setting"), seen["lumo_data"].items[1]));
    }
}

TEST(HostileFrame, AFrameOfAnyOtherRecordFailsOrFillsMembers) {
    mirk_platform_trace_set_levels(1);
    for (const Tracking tracking : kit::every_tracking) {
        for (const RecordTable &sent : reference::records()) {
            const Bytes frame = reference::encode(rich_value(sent), tracking == Tracking::on);
            const Handle handle({.tracking = tracking, .request_ceiling = 65536, .total_ceiling = 1U << 20});
            for (const RecordTable &table : reference::records()) {
                {
                    const Instance instance(handle, table.name);
                    read(handle, instance, frame);
                    use(handle, instance);
                }
                ASSERT_EQ(handle.live_blocks(), 0U) << sent.name << " as " << table.name;
            }
        }
    }
}

TEST(HostileFrame, ANegativeVariantAtAnyDepthHasACounterEntry) {
    for (const Tracking tracking : kit::every_tracking) {
        for (const bool private_types : {false, true}) {
            const Handle handle({.tracking = tracking, .private_types = private_types});
            for (const RecordTable &table : reference::records()) {
                for (const std::int8_t variant : {std::int8_t{-128}, std::int8_t{-1}}) {
                    Record value = rich_value(table);
                    for (reference::Member &member : value.members) {
                        for (Record &item : member.items) {
                            item = Record(*item.table);
                            item.variant = variant;
                        }
                    }
                    const Instance instance(handle, table.name);
                    EXPECT_EQ(read(handle, instance, reference::encode(value, handle.tracks())).error, 0U);
                    EXPECT_TRUE(bridge::same(reference::as_received(value, handle.tracks()), instance.value()));
                    use(handle, instance);
                }
            }
        }
    }
}

TEST(HostileFrame, MembersMissingInTheFrameKeepTheirValues) {
    const Handle handle(Tracking::on);
    const Record before = rich_value(reference::record_table("lumo_tarn_exmem_info"), 1);
    const Record sent = rich_value(reference::record_table("lumo_tarn_exmem_info"), 2);
    const Bytes frame = reference::encode(sent, true);
    const Instance instance(handle, before);
    EXPECT_EQ(read(handle, instance, Bytes(frame.begin(), frame.begin() + 20)).error, 90U);
    Record expected = before;
    expected["cl_addr"] = sent["cl_addr"];
    const Record seen = instance.value();
    for (const char *member : {"cl_addr", "exmem_addr", "ppe_addr", "size"}) {
        EXPECT_EQ(seen[member].number, expected[member].number) << member;
    }
}

TEST(HostileFrame, StatesWithoutAVectorReadAs0AndIgnoreWrites) {
    const Handle handle(Tracking::on);
    const Record value = rich_value(reference::record_table("lumo_tarn_dp_appl_list"));
    ASSERT_EQ(value["appl_list"].items.size(), 2U);
    const Instance instance(handle, "lumo_tarn_dp_appl_list");
    EXPECT_EQ(read(handle, instance, reference::encode(value, false)).error, 0U);
    const auto &array = bridge::member(instance.record(), "appl_list");
    std::uint32_t err = 0;
    std::uint8_t *vector = nullptr;
    array.element_state_flag_get_arr(handle, id, instance.get(), &vector, &err);
    EXPECT_EQ(vector, nullptr);
    array.element_state_flag_set(handle, id, instance.get(), 1, 0x44, &err);
    EXPECT_EQ(array.element_state_flag_get(handle, id, instance.get(), 1, &err), 0);
    EXPECT_EQ(err, 0U);
    // They are written as zeros.
    EXPECT_TRUE(bridge::same(reference::encode(reference::as_received(value, false), true),
                             bridge::marshal(handle, instance.record(), instance.get()).bytes));
}

// If an element's states were read directly after it, they would be those of the next element.
TEST(HostileFrame, ElementStatesDoNotOverlapWhateverTheFlagsInTheirFrames) {
    const Handle handle(Tracking::on);
    const Record value = rich_value(reference::record_table("lumo_tarn_dp_debug_setting_data"));
    const auto &elements = value["lumo_data"].items;
    // A frame without states that contains elements with states, whose flags claim offsets and more.
    Bytes frame = {0, 0, 0, 0, 0, 0, 2};
    for (const Record &element : elements) {
        Bytes one = reference::encode(element, true);
        one[1] = 0xDF;
        frame.insert(frame.end(), one.begin(), one.end());
    }
    put_word(frame, 2, static_cast<std::uint32_t>(frame.size() - 2));
    const Instance instance(handle, "lumo_tarn_dp_debug_setting_data");
    EXPECT_EQ(read(handle, instance, frame).error, 0U);
    const Record seen = instance.value();
    for (std::size_t i = 0; i < elements.size(); ++i) {
        EXPECT_TRUE(bridge::same(elements[i], seen["lumo_data"].items[i]));
    }
}

TEST(HostileFrame, CountsAreOnlyLimitedByTheCeiling) {
    for (const Tracking tracking : kit::every_tracking) {
        const Handle handle({.tracking = tracking, .request_ceiling = 65536, .total_ceiling = 1U << 20});
        for (const RecordTable &table : reference::records()) {
            if (table.members[0].cls != reference::Class::count || table.members[0].width != 4) continue;
            Bytes frame = reference::encode(rich_value(table), handle.tracks());
            for (const std::uint32_t count : {0x10000U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
                put_word(frame, 6, count);
                const Instance instance(handle, table.name);
                const Outcome outcome = read(handle, instance, frame);
                EXPECT_EQ(outcome.error, 12U);
                EXPECT_EQ(outcome.consumed, 0U);
                use(handle, instance);
            }
        }
    }
}

TEST(HostileFrame, DestroyedInstancesLeaveNoRuntimeEntries) {
    const Handle handle(Tracking::on);
    for (const RecordTable &table : reference::records()) {
        Record value = rich_value(table);
        value.ra = reference::ReferenceData{1, 2};
        { const Instance instance(handle, value); }
        EXPECT_EQ(mirk_platform_testing_offset_entries(handle), 0U) << table.name;
        EXPECT_EQ(mirk_platform_testing_ra_entries(handle), 0U) << table.name;
    }
}

}  // namespace
