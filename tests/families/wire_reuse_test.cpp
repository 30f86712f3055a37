// Reading into an instance that already has arrays and strings, with reuse and without.
#include <gtest/gtest.h>

#include "reference/lengths.h"
#include "wire_support.h"

namespace {

using namespace wire;

Record tc_list(std::size_t elements, std::uint8_t state = 5) {
    Record list("lumo_tarn_dp_tc_list");
    for (std::size_t i = 0; i < elements; ++i) {
        Record &element = list.append("tc_list", static_cast<std::uint8_t>(0x40 + i));
        element = Generator(100 + i).make("lumo_tarn_dp_tc");
    }
    if (elements != 0) list["tc_list"].state = state;
    return list;
}

Record appl(const std::string &proto, const std::string &sub_proto = "") {
    Record value("lumo_tarn_cl_kesh_appl");
    value["proto_name"].text = proto;
    value["sub_proto_name"].text = sub_proto;
    value["proto_name"].state = 3;
    value["protocol_id"].state = 4;
    return value;
}

void *array_of(const Instance &instance) { return bridge::block_of(instance.record(), instance.get(), "tc_list"); }
void *string_of(const Instance &instance) { return bridge::block_of(instance.record(), instance.get(), "proto_name"); }

std::uint8_t *vector_of(mirk_handle *h, const Instance &instance) {
    std::uint8_t *vector = nullptr;
    std::uint32_t err = 0;
    bridge::member(instance.record(), "tc_list").element_state_flag_get_arr(h, id, instance.get(), &vector, &err);
    EXPECT_EQ(err, 0U);
    return vector;
}

void expect_good(const Outcome &outcome, const Bytes &frame) {
    EXPECT_EQ(outcome.error, 0U);
    EXPECT_EQ(outcome.consumed, frame.size());
}

TEST(WireReuse, ACountOf0KeepsTheOldBlock) {
    for (const std::uint32_t reuse : {0U, 1U}) {
        const Handle handle(Tracking::none);
        const Instance instance(handle, tc_list(3));
        const void *block = array_of(instance);
        const Bytes empty = reference::encode(tc_list(0), false);
        expect_good(read(handle, instance, empty, reuse), empty);
        EXPECT_EQ(array_of(instance), block);
        EXPECT_TRUE(bridge::same(tc_list(0), instance.value()));
    }
}

TEST(WireReuse, AnUnchangedCountKeepsTheBlockAndReplacesTheVector) {
    Handle handle(Tracking::on);
    const Instance instance(handle, tc_list(3));
    const void *block = array_of(instance);
    const std::uint8_t *vector = vector_of(handle, instance);
    const std::size_t blocks = handle.live_blocks();
    Record other = tc_list(3, 9);
    other["tc_list"].element_state = {7, 8, 9};
    const Bytes frame = reference::encode(other, true);
    expect_good(read(handle, instance, frame, 1), frame);
    EXPECT_EQ(array_of(instance), block);
    EXPECT_NE(vector_of(handle, instance), vector);
    EXPECT_TRUE(bridge::same(other, instance.value()));
    // The old vector is not released.
    EXPECT_EQ(handle.live_blocks(), blocks + 1);
    handle.expect_lost_blocks(1);
}

TEST(WireReuse, AReusedBlockIsClearedBeforeItIsRead) {
    const Handle handle(Tracking::none);
    const Instance instance(handle, tc_list(2));
    // A frame that ends after the count: the elements are as new.
    const Bytes whole = reference::encode(tc_list(2), false);
    const Outcome outcome = read(handle, instance, Bytes(whole.begin(), whole.begin() + 10), 1);
    EXPECT_EQ(outcome.error, 12U);
    Record cleared("lumo_tarn_dp_tc_list");
    cleared.append("tc_list");
    cleared.append("tc_list");
    EXPECT_TRUE(bridge::same(cleared, instance.value()));
}

TEST(WireReuse, AChangedCountReleasesTheBlockAndTheVector) {
    for (const Tracking tracking : {Tracking::none, Tracking::on}) {
        for (const std::size_t count : {1U, 4U}) {
            const Handle handle(tracking);
            const Instance instance(handle, tc_list(3));
            const std::size_t blocks = handle.live_blocks();
            const Bytes frame = reference::encode(tc_list(count, 6), handle.tracks());
            expect_good(read(handle, instance, frame, 1), frame);
            EXPECT_TRUE(bridge::same(reference::as_received(tc_list(count, 6), handle.tracks()), instance.value()));
            EXPECT_EQ(handle.live_blocks(), blocks);
        }
    }
}

TEST(WireReuse, TheOldBlockIsNeitherUsedNorReleasedWithoutReuse) {
    for (const Tracking tracking : {Tracking::none, Tracking::on}) {
        Handle handle(tracking);
        const Instance instance(handle, tc_list(3));
        const void *block = array_of(instance);
        const std::size_t blocks = handle.live_blocks();
        const Bytes frame = reference::encode(tc_list(3), handle.tracks());
        expect_good(read(handle, instance, frame, 0), frame);
        EXPECT_NE(array_of(instance), block);
        // The block and, with tracking, its vector.
        const std::size_t lost = handle.tracks() ? 2 : 1;
        EXPECT_EQ(handle.live_blocks(), blocks + lost);
        handle.expect_lost_blocks(lost);
    }
}

TEST(WireReuse, AStringOfTheSameLengthKeepsItsBlock) {
    const Handle handle(Tracking::none);
    const Instance instance(handle, appl("abc"));
    const void *body = string_of(instance);
    const Bytes frame = reference::encode(appl("xyz"), false);
    expect_good(read(handle, instance, frame, 1), frame);
    EXPECT_EQ(string_of(instance), body);
    EXPECT_EQ(instance.value()["proto_name"].text, "xyz");
}

TEST(WireReuse, AStringOfAnotherLengthIsReplaced) {
    const Handle handle(Tracking::none);
    const Instance instance(handle, appl("abc"));
    const std::size_t blocks = handle.live_blocks();
    const Bytes frame = reference::encode(appl("longer"), false);
    expect_good(read(handle, instance, frame, 1), frame);
    EXPECT_EQ(instance.value()["proto_name"].text, "longer");
    EXPECT_EQ(handle.live_blocks(), blocks);
}

TEST(WireReuse, AStringLosesItsOldBlockWithoutReuse) {
    Handle handle(Tracking::none);
    const Instance instance(handle, appl("abc"));
    const Bytes frame = reference::encode(appl("xyz"), false);
    expect_good(read(handle, instance, frame, 0), frame);
    EXPECT_EQ(instance.value()["proto_name"].text, "xyz");
    handle.expect_lost_blocks(1);
}

TEST(WireReuse, AnEmptyStringKeepsTheOldBlockAndState) {
    for (const std::uint32_t reuse : {0U, 1U}) {
        const Handle handle(Tracking::on);
        const Instance instance(handle, appl("abc"));
        const void *body = string_of(instance);
        Record empty = appl("");
        empty["proto_name"].state = 77;
        const Bytes frame = reference::encode(empty, true);
        expect_good(read(handle, instance, frame, reuse), frame);
        EXPECT_EQ(string_of(instance), body);
        EXPECT_EQ(instance.value()["proto_name"].text, "");
        // The frame has no byte for it, so the old one stays.
        EXPECT_EQ(instance.value()["proto_name"].state, 3);
    }
}

TEST(WireReuse, AFrameWithoutStatesKeepsTheStates) {
    const Handle handle(Tracking::on);
    const Instance instance(handle, tc_list(3, 9));
    const std::uint8_t *vector = vector_of(handle, instance);
    const Bytes frame = reference::encode(tc_list(3, 5), false);
    expect_good(read(handle, instance, frame, 1), frame);
    EXPECT_EQ(vector_of(handle, instance), vector);
    EXPECT_EQ(instance.value()["tc_list"].state, 9);
    EXPECT_EQ(instance.value()["tc_list"].element_state, tc_list(3)["tc_list"].element_state);
}

// A vector that is too short for the elements would be read past its end.
TEST(WireReuse, AVectorOfAnotherCountIsReleasedByAFrameWithoutStates) {
    const Handle handle(Tracking::on);
    const Instance instance(handle, tc_list(3));
    for (const std::size_t count : {5U, 0U, 300U}) {
        const Bytes frame = reference::encode(tc_list(count), false);
        expect_good(read(handle, instance, frame, 1), frame);
        const Record seen = instance.value();
        EXPECT_EQ(seen["tc_list"].element_state, std::vector<std::uint8_t>(count, 0));
    }
}

TEST(WireReuse, AVectorOfACountOf0IsReleasedToo) {
    const Handle handle(Tracking::on);
    const Instance instance(handle, tc_list(3));
    const Bytes empty = reference::encode(tc_list(0), true), frame = reference::encode(tc_list(300), false);
    expect_good(read(handle, instance, empty, 1), empty);
    expect_good(read(handle, instance, frame, 1), frame);
    EXPECT_EQ(instance.value()["tc_list"].element_state, std::vector<std::uint8_t>(300, 0));
}

TEST(WireReuse, AVectorLeftByAFailedReadIsReleasedToo) {
    Handle handle(Tracking::on);
    const Instance instance(handle, tc_list(3));
    mirk_platform_testing_fail_allocation(handle, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 1, 0);
    EXPECT_EQ(read(handle, instance, reference::encode(tc_list(300), true), 0).error, 12U);
    mirk_platform_testing_fail_allocation(handle, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 0, 0);
    const Bytes frame = reference::encode(tc_list(300), false);
    expect_good(read(handle, instance, frame, 1), frame);
    EXPECT_EQ(instance.value()["tc_list"].element_state, std::vector<std::uint8_t>(300, 0));
    handle.expect_lost_blocks(1);  // the block of the three elements
}

TEST(WireReuse, AFilledStateAreaHasNoVectorToRelease) {
    for (const std::size_t count : {2U, 3U, 4U}) {
        Handle handle(Tracking::on);
        const Instance instance(handle, tc_list(3));
        instance.record().set_all_state_tracking_flag(handle, id, instance.get(), 0x21);
        const Bytes frame = reference::encode(tc_list(count, 6), true);
        expect_good(read(handle, instance, frame, 1), frame);
        EXPECT_TRUE(bridge::same(tc_list(count, 6), instance.value()));
        handle.expect_lost_blocks(1);  // the vector whose address was overwritten
    }
}

}  // namespace
