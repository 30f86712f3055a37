// Arrays, strings and nested records in a frame.
#include <gtest/gtest.h>

#include "reference/lengths.h"
#include "wire_support.h"

namespace {

using namespace wire;

Record tc_list(std::size_t elements) {
    Record list("lumo_tarn_dp_tc_list");
    for (std::size_t i = 0; i < elements; ++i) {
        Record &element = list.append("tc_list", static_cast<std::uint8_t>(0x40 + i));
        element = Generator(100 + i).make("lumo_tarn_dp_tc");
    }
    list["tc_list"].state = 0x31;
    return list;
}

Bytes cut(const Bytes &bytes, std::size_t behind) {
    return Bytes(bytes.begin(), bytes.end() - static_cast<std::ptrdiff_t>(behind));
}

TEST(WireBlocks, AnEmptyArrayIsOnlyItsCount) {
    for (const Tracking tracking : kit::every_tracking) {
        const Handle handle(tracking);
        for (const RecordTable &table : reference::records()) {
            const Record value = Generator(1, {.max_elements = 0, .max_text = 0}).make(table.name);
            const Instance instance(handle, value);
            const Bytes frame = bridge::marshal(handle, instance.record(), instance.get()).bytes;
            EXPECT_TRUE(bridge::same(reference::encode(value, handle.tracks()), frame));
            // len counts one byte more for each empty array or string of a tracked frame.
            EXPECT_EQ(instance.record().len(handle, id, instance.get()), reference::length(value, handle.tracks()));
            EXPECT_EQ(instance.record().len(handle, id, instance.get()) > frame.size(),
                      handle.tracks() && bridge::owns_blocks(table));
        }
    }
}

TEST(WireBlocks, AStringIsLengthCharactersAndOneState) {
    const Handle handle(Tracking::on);
    Record value("lumo_tarn_cl_kesh_appl");
    value["proto_name"].text = "abc";
    value["proto_name"].state = 0x51;
    value["sub_proto_name"].state = 0x52;
    value["protocol_id"].number = 0x0102;
    value["protocol_id"].state = 0x53;
    value["tarn_id"].number = 0x0304;
    value["tarn_id"].state = 0x54;
    const Instance instance(handle, value);
    const Bytes expected = {0, 8, 0, 0, 0, 18, 0, 3, 'a', 'b', 'c', 0x51, 0, 0, 1, 2, 0x53, 3, 4, 0x54};
    EXPECT_TRUE(bridge::same(expected, bridge::marshal(handle, instance.record(), instance.get()).bytes));
    EXPECT_EQ(instance.record().len(handle, id, instance.get()), 24U);
}

TEST(WireBlocks, AStringThatDoesNotFitIsTruncated) {
    for (const Tracking tracking : {Tracking::none, Tracking::on}) {
        const Handle handle(tracking);
        Record value("lumo_tarn_cl_kesh_appl");
        value["proto_name"].text = "abcdefgh";
        value["proto_name"].state = 0x61;
        value["protocol_id"].number = 0x0102;
        const Instance instance(handle, value);
        const Written written = write(handle, instance, 11);
        EXPECT_EQ(written.error, 90U);
        EXPECT_EQ(handle->last_error, 90U);
        EXPECT_EQ(written.size, 11U);
        // The length still says eight characters, three of which are there.
        EXPECT_EQ(Bytes(written.buffer.begin() + 6, written.buffer.end()), (Bytes{0, 8, 'a', 'b', 'c'}));
        EXPECT_EQ(written.guard_byte,
                  handle.tracks() ? 0 : 0xA5);  // states are still written; the record's last one is 0
    }
}

TEST(WireBlocks, AnArrayThatDoesNotFitFailsWithEnomem) {
    const Handle handle(Tracking::none);
    const Record value = tc_list(2);
    const Instance instance(handle, value);
    const std::size_t first = reference::encode(value["tc_list"].items[0], false).size();
    const Written written = write(handle, instance, 10 + first);
    EXPECT_EQ(written.error, 12U);
    EXPECT_EQ(written.size, 10 + first);
}

TEST(WireBlocks, AVectorThatDoesNotFitIsTruncatedWithoutAnError) {
    const Handle handle(Tracking::on);
    const Instance instance(handle, tc_list(3));
    const Bytes whole = reference::encode(tc_list(3), true);
    for (const std::size_t missing : {1U, 2U, 3U, 4U}) {
        const Written written = write(handle, instance, whole.size() - missing);
        EXPECT_EQ(written.error, 0U);
        EXPECT_EQ(written.size, whole.size() - missing);
        // Only if four bytes are missing, the state of the whole is the guard byte.
        EXPECT_EQ(written.guard_byte, missing == 4 ? 0x31 : 0xA5);
    }
}

TEST(WireBlocks, AFrameThatEndsInAVectorGivesThePresentStates) {
    const Handle handle(Tracking::on);
    const Bytes whole = reference::encode(tc_list(3), true);
    for (std::size_t missing = 1; missing <= 4; ++missing) {
        const Instance instance(handle, "lumo_tarn_dp_tc_list");
        const Outcome outcome = read(handle, instance, cut(whole, missing), 0, 0x99);
        EXPECT_EQ(outcome.error, 0U);
        Record expected = reference::as_received(tc_list(3), true);
        for (std::size_t i = 0; i < std::min<std::size_t>(missing, 3); ++i) {
            expected["tc_list"].element_state[2 - i] = 0;
        }
        // The state of the whole is read from the guard byte if the frame ends just before it.
        if (missing == 4) expected["tc_list"].state = 0x99;
        EXPECT_TRUE(bridge::same(expected, instance.value()));
    }
}

TEST(WireBlocks, ElementsPastTheEndHaveNoStates) {
    const Handle handle(Tracking::on);
    Bytes frame = reference::encode(tc_list(1), true);
    // The element's jump, after the list's head, the count with its state, and the element's variant and flag.
    const std::size_t jump = 6 + 4 + 1 + 2;
    frame[jump] = frame[jump + 1] = 0;
    frame[jump + 2] = frame[jump + 3] = 0xFF;
    const Instance instance(handle, "lumo_tarn_dp_tc_list");
    EXPECT_EQ(read(handle, instance, frame, 0, 0x99).error, 0U);
    const Record got = instance.value();
    ASSERT_EQ(got["tc_list"].element_state.size(), 1U);
    EXPECT_EQ(got["tc_list"].state, 0);
    EXPECT_EQ(got["tc_list"].element_state[0], 0);
}

TEST(WireBlocks, AStringStateCanBeReadFromTheGuardByte) {
    const Handle handle(Tracking::on);
    Record value("lumo_tarn_cl_kesh_appl");
    value["proto_name"].text = "abc";
    const Bytes whole = reference::encode(value, true);
    const Instance instance(handle, "lumo_tarn_cl_kesh_appl");
    read(handle, instance, Bytes(whole.begin(), whole.begin() + 11), 0, 0x99);
    EXPECT_EQ(instance.value()["proto_name"].text, "abc");
    EXPECT_EQ(instance.value()["proto_name"].state, 0x99);
}

TEST(WireBlocks, ReadingIntoNullFailsWithEinval) {
    for (const Tracking tracking : kit::every_tracking) {
        const Handle handle(tracking);
        for (const auto &record : tarn::reflect::records()) {
            std::uint8_t frame[7] = {0, 0, 0, 0, 0, 4, 0};
            std::uint32_t err = 0;
            EXPECT_EQ(record.unmarshal(handle, id, frame, nullptr, 6, 0, &err), 0U);
            EXPECT_EQ(err, 22U);
            EXPECT_EQ(handle->last_error, 22U);
            handle->last_error = 0;
        }
    }
}

TEST(WireBlocks, MissingCharactersOfAStringAreZeros) {
    const Handle handle;
    mirk_platform_testing_set_fresh_fill(handle, 0xA5);
    Record value("lumo_tarn_cl_kesh_appl");
    value["proto_name"].text = "abcdefgh";
    const Bytes whole = reference::encode(value, false);
    const Instance instance(handle, "lumo_tarn_cl_kesh_appl");
    read(handle, instance, Bytes(whole.begin(), whole.begin() + 11), 0, 0);
    const auto *body = static_cast<const char *>(bridge::block_of(instance.record(), instance.get(), "proto_name"));
    EXPECT_EQ(std::string(body, 8), std::string("abc\0\0\0\0\0", 8));
}

TEST(WireBlocks, ACountWithoutDataCostsOneBlock) {
    for (const Tracking tracking : kit::every_tracking) {
        const Handle handle(tracking);
        Bytes frame = reference::encode(tc_list(1), handle.tracks());
        frame[9] = 200;
        const Instance instance(handle, "lumo_tarn_dp_tc_list");
        const std::size_t before = handle.live_blocks();
        const Outcome outcome = read(handle, instance, frame);
        EXPECT_NE(outcome.error, 0U);
        EXPECT_EQ(handle.live_blocks(), before + (handle.tracks() ? 2 : 1));
        const Record seen = instance.value();
        ASSERT_EQ(seen["tc_list"].items.size(), 200U);
        for (std::size_t i = 2; i < 200; ++i) {
            EXPECT_TRUE(bridge::same(Record("lumo_tarn_dp_tc"), seen["tc_list"].items[i]));
        }
    }
}

TEST(WireBlocks, ACountAboveTheCeilingStopsTheRead) {
    const Handle handle(Tracking::on);
    Bytes frame = reference::encode(tc_list(1), true);
    std::fill_n(frame.begin() + 6, 4, std::uint8_t{0xFF});
    const Instance instance(handle, "lumo_tarn_dp_tc_list");
    const Outcome outcome = read(handle, instance, frame);
    EXPECT_EQ(outcome.error, 12U);
    EXPECT_EQ(handle->last_error, 12U);
    EXPECT_EQ(outcome.consumed, 0U);
    use(handle, instance);
}

TEST(WireBlocks, ACopyIgnoresTheDomainForTheOutermostFrameOnly) {
    const Handle handle(Tracking::none);
    const Instance list(handle, tc_list(1));
    const Instance wrapper(handle, rich_value(reference::record_table("lumo_tarn_exmem_info_wrapper")));
    mirk_platform_domain_set_variant(handle, list.record().type->luid, -1);
    EXPECT_EQ(write(handle, list, 4096, true).error, 0U);
    mirk_platform_domain_set_variant(handle, bridge::operations("lumo_tarn_dp_tc").type->luid, -1);
    EXPECT_EQ(write(handle, list, 4096, true).error, 43U);
    EXPECT_EQ(write(handle, wrapper, 4096, true).error, 0U);
    mirk_platform_domain_set_variant(handle, bridge::operations("lumo_tarn_exmem_info").type->luid, -1);
    EXPECT_EQ(write(handle, wrapper, 4096, true).error, 43U);
}

TEST(WireBlocks, ALenientDowngradeOfElementsKeepsTheFrameComplete) {
    const Handle handle({.tracking = Tracking::on, .lenient = true});
    const Instance list(handle, tc_list(2));
    mirk_platform_domain_set_variant(handle, bridge::operations("lumo_tarn_dp_tc").type->luid, -1);
    const bridge::Marshalled frame = bridge::marshal(handle, list.record(), list.get());
    EXPECT_EQ(frame.error, 0U);
    Record expected = tc_list(2);
    for (Record &element : expected["tc_list"].items) {
        element = Record("lumo_tarn_dp_tc");
        element.variant = -1;
    }
    EXPECT_TRUE(bridge::same(reference::encode(expected, true), frame.bytes));
}

TEST(WireBlocks, ACountOrLengthWithoutABlockIsWrittenAlone) {
    const Handle handle(Tracking::on);
    const Instance list(handle, "lumo_tarn_dp_tc_list");
    const Instance appl(handle, "lumo_tarn_cl_kesh_appl");
    Bytes cut_list = reference::encode(tc_list(3), true);
    mirk_platform_testing_fail_allocation(handle, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 1, 1);
    read(handle, list, cut_list);
    read(handle, appl, Bytes{0, 8, 0, 0, 0, 18, 0, 3, 'a'});
    mirk_platform_testing_fail_allocation(handle, MIRK_PLATFORM_TESTING_OBJ_ALLOC, 0, 0);
    EXPECT_TRUE(
        bridge::same(Bytes{0, 8, 0, 0, 0, 8, 0, 0, 0, 3}, bridge::marshal(handle, list.record(), list.get()).bytes));
    EXPECT_EQ(list.record().len(handle, id, list.get()), 11U);
    EXPECT_TRUE(bridge::same(Bytes{0, 8, 0, 0, 0, 14, 0, 3, 0, 0, 0, 0, 0, 0, 0, 0},
                             bridge::marshal(handle, appl.record(), appl.get()).bytes));
}

// Filling the whole state area also overwrites the vector's address; then each element's state is that byte.
TEST(WireBlocks, AFilledStateAreaIsWrittenAsItsByte) {
    Handle handle(Tracking::on);
    const Instance instance(handle, tc_list(2));
    instance.record().set_all_state_tracking_flag(handle, id, instance.get(), 0x21);
    const Bytes frame = bridge::marshal(handle, instance.record(), instance.get()).bytes;
    EXPECT_EQ(Bytes(frame.end() - 3, frame.end()), (Bytes{0x21, 0x21, 0x21}));
    handle.expect_lost_blocks(1);  // the vector
}

// Calls of the runtime, which a walk may make only so often per element.
struct Calls {
    std::size_t count = 0, allocations = 0;

    static void hook(void *user, mirk_handle *, const mirk_platform_testing_event *event) {
        auto &calls = *static_cast<Calls *>(user);
        ++calls.count;
        if (event->kind == MIRK_PLATFORM_TESTING_ALLOC) ++calls.allocations;
    }
};

struct Cost {
    Calls reading, writing;
};

Cost cost_of(Tracking tracking, std::uint32_t elements) {
    const Handle handle(tracking);
    const Record element = rich_value(reference::record_table("lumo_tarn_dp_appl"));
    const Bytes one = reference::encode(element, handle.tracks());
    const auto count_byte = [&](unsigned shift) { return static_cast<std::uint8_t>(elements >> shift); };
    const std::uint8_t flag = handle.tracks() ? tracked_flag : 0;
    Bytes frame = {0, flag, 0, 0, 0, 0, count_byte(24), count_byte(16), count_byte(8), count_byte(0)};
    for (std::uint32_t i = 0; i < elements; ++i) frame.insert(frame.end(), one.begin(), one.end());
    if (handle.tracks()) frame.insert(frame.end(), 1 + elements, 0x11);
    const auto jump = static_cast<std::uint32_t>(frame.size() - 2);
    for (unsigned i = 0; i < 4; ++i) frame[2 + i] = static_cast<std::uint8_t>(jump >> (24 - 8 * i));
    frame.push_back(0);

    Cost cost;
    const Instance instance(handle, "lumo_tarn_dp_appl_list");
    std::uint32_t err = 0;
    mirk_platform_testing_set_hook(handle, Calls::hook, &cost.reading);
    instance.record().unmarshal(handle, id, frame.data(), instance.get(), jump + 2, 0, &err);
    Bytes again(frame.size());
    mirk_platform_testing_set_hook(handle, Calls::hook, &cost.writing);
    instance.record().marshal(handle, id, again.data(), instance.get(), static_cast<std::int32_t>(jump + 2), &err);
    mirk_platform_testing_set_hook(handle, nullptr, nullptr);
    EXPECT_EQ(err, 0U);
    EXPECT_TRUE(bridge::same(frame, again));
    return cost;
}

TEST(WireBlocks, TheCostOfAnArrayIsLinearInItsElements) {
    for (const Tracking tracking : {Tracking::none, Tracking::on}) {
        const Cost few = cost_of(tracking, 1000), more = cost_of(tracking, 2000), many = cost_of(tracking, 100000);
        const auto expect_linear = [](std::size_t a, std::size_t b, std::size_t c) { EXPECT_EQ(c, a + (b - a) * 99); };
        expect_linear(few.reading.count, more.reading.count, many.reading.count);
        expect_linear(few.writing.count, more.writing.count, many.writing.count);
        // One block and one vector.
        EXPECT_EQ(many.reading.allocations, tracking == Tracking::on ? 2U : 1U);
        EXPECT_EQ(many.writing.allocations, 0U);
    }
}

}  // namespace
