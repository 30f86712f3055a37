// The test that a frame contains what it claims: what it admits, what it refuses, and what reading costs afterwards.
#include <gtest/gtest.h>

#include <random>

#include "wire_support.h"

namespace {

using namespace wire;

// Of a read on a tracking handle: the largest element that six bytes claim, its state and its state offset.
constexpr std::uint64_t bytes_per_byte = 208;
constexpr std::uint64_t bytes_per_frame = 8192;

lumo_ui_tarn::frame_excess excess_of(const bridge::RecordOperations &record, const Bytes &frame, bool tracks) {
    return lumo_ui_tarn::excess_of_record(record.parts, frame.data(), frame.size(), tracks);
}

// A frame of lumo_tarn_dp_tc_list: a head, a count, and this many bytes.
Bytes list_of(std::uint32_t count, std::size_t bytes, std::uint8_t flags = 0) {
    Bytes frame{0, flags, 0, 0, 0, 4};
    for (int shift = 24; shift >= 0; shift -= 8) frame.push_back(static_cast<std::uint8_t>(count >> shift));
    frame.resize(frame.size() + bytes);
    return frame;
}

TEST(Admission, WrittenFramesAreAdmittedOnEveryHandle) {
    for (const RecordTable &table : reference::records()) {
        for (std::uint64_t seed = 1; seed <= 10; ++seed) {
            for (const bool with_state : {false, true}) {
                const Bytes frame =
                    reference::encode(Generator(seed, {.max_elements = 5}).make(table.name), with_state);
                for (const bool tracks : {false, true}) {
                    EXPECT_FALSE(excess_of(bridge::operations(table.name), frame, tracks)) << table.name << " " << seed;
                }
            }
        }
    }
}

TEST(Admission, ElementsNeedSixBytesEach) {
    const auto &list = bridge::operations("lumo_tarn_dp_tc_list");
    for (const std::uint32_t count : {1U, 2U, 1000U}) {
        const std::size_t needed = std::size_t{6} * count;
        EXPECT_FALSE(excess_of(list, list_of(count, needed), false));
        const auto excess = excess_of(list, list_of(count, needed - 1), false);
        ASSERT_TRUE(excess);
        EXPECT_EQ(excess.text(), "lumo_tarn_dp_tc_list.tc_list claims " + std::to_string(count) +
                                     " elements of at least 6 bytes, but " + std::to_string(needed - 1) +
                                     " bytes are left");
    }
    for (const std::uint32_t count : {0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU, 0x2AAAAAABU}) {
        EXPECT_TRUE(excess_of(list, list_of(count, 600), false)) << count;
    }
}

TEST(Admission, CharactersNeedAByteEach) {
    const auto &names = bridge::operations("lumo_tarn_cl_kesh_appl");
    Record value = rich_value(reference::record_table("lumo_tarn_cl_kesh_appl"));
    Bytes frame = reference::encode(value, false);
    while (!excess_of(names, frame, false)) frame.pop_back();
    const auto excess = excess_of(names, frame, false);
    EXPECT_EQ(excess.member, std::string("lumo_tarn_cl_kesh_appl.sub_proto_name"));
    EXPECT_EQ(excess.least, 1U);
    EXPECT_EQ(excess.left, excess.claimed - 1);
}

TEST(Admission, NestedArraysClaimTogetherNoMoreThanTheFrameHas) {
    Record value("lumo_tarn_dp_mp_tc_prefix_data");
    Record &entry = value.append("prefix_data").append("lumo_data");
    for (int i = 0; i < 3; ++i) entry.nested("tc_list").append("tc_list");
    constexpr std::size_t count = 12, inner = 4;
    Bytes frame = reference::encode(value, false);
    ASSERT_EQ(frame[count], 1);
    // As many as the outer array could claim without the inner ones.
    const std::size_t most = (frame.size() - count - 1) / 6;
    ASSERT_LT(most, 256U);
    frame[count] = static_cast<std::uint8_t>(most);
    const auto excess = excess_of(bridge::operations(value), frame, false);
    EXPECT_EQ(excess.member, std::string_view("lumo_tarn_dp_tc_list.tc_list"));
    frame[count] = static_cast<std::uint8_t>(most - inner);
    EXPECT_FALSE(excess_of(bridge::operations(value), frame, false));
}

TEST(Admission, ElementsWithoutABodyCostTheMost) {
    constexpr std::uint32_t elements = 10000;
    Bytes frame = list_of(elements, 0);
    for (std::uint32_t i = 0; i < elements; ++i) frame.insert(frame.end(), {0x80, 0, 0, 0, 0, 4});
    const auto refusals = [&](std::uint64_t factor) {
        const Handle handle({.tracking = Tracking::on, .total_ceiling = factor * frame.size(), .fresh_fill = 0});
        const Instance instance(handle, "lumo_tarn_lumo_info_list");
        EXPECT_FALSE(excess_of(instance.record(), frame, true));
        read(handle, instance, frame);
        return mirk_platform_ceiling_refusals(handle);
    };
    EXPECT_EQ(refusals(bytes_per_byte), 0U);
    EXPECT_NE(refusals(bytes_per_byte - bytes_per_byte / 10), 0U);
}

// Replaces some bytes, preferably by counts and jumps that matter.
Bytes damaged(const Bytes &frame, std::mt19937_64 &random) {
    static constexpr std::uint32_t words[] = {0,          1,          2,          4,          6,          0xFF,
                                              0xFFFF,     0x7FFFFFFF, 0x7FFFFFF8, 0x80000000, 0xFFFFFFFE, 0xFFFFFFFF,
                                              0x7FFFFFF0, 0x0000FFFF, 0x00FFFFFF, 0x00001000};
    Bytes changed = frame;
    for (auto edits = 1 + random() % 6; edits > 0; --edits) {
        const std::size_t at = random() % changed.size();
        switch (random() % 4) {
            case 0:
                changed[at] = static_cast<std::uint8_t>(random());
                break;
            case 1:
                changed[at] = random() % 2 == 0 ? 0x28 : 0x80;
                break;
            case 2:
                changed.resize(std::max<std::size_t>(at, 6));
                break;
            default:
                std::uint32_t word = words[random() % std::size(words)];
                if (random() % 2 == 0) word = static_cast<std::uint32_t>(random() % (changed.size() + 8));
                for (std::size_t i = 0; i < 4 && at + i < changed.size(); ++i) {
                    changed[at + i] = static_cast<std::uint8_t>(word >> (24 - 8 * i));
                }
        }
    }
    return changed;
}

TEST(Admission, AdmittedFramesAreReadInProportionToTheirLength) {
    mirk_platform_trace_set_levels(1);
    std::mt19937_64 random(5);
    std::uint64_t admitted = 0, refused = 0, stopped = 0;
    for (const RecordTable &table : reference::records()) {
        if (!bridge::owns_blocks(table)) continue;
        const auto &record = bridge::operations(table.name);
        for (int i = 0; i < 400; ++i) {
            const bool with_state = random() % 2 == 0;
            const Bytes whole = reference::encode(
                Generator(random(), {.min_elements = 1, .max_elements = 4, .max_text = 30}).make(table.name),
                with_state);
            const Bytes frame = damaged(whole, random);
            if (frame.size() > 4096) continue;
            const Tracking tracking = random() % 2 == 0 ? Tracking::on : Tracking::off;
            const Handle handle({.tracking = tracking,
                                 .total_ceiling = bytes_per_frame + bytes_per_byte * frame.size(),
                                 .fresh_fill = 0});
            const auto excess = excess_of(record, frame, handle.tracks());
            const Instance instance(handle, table.name);
            const Outcome outcome = read(handle, instance, frame);
            const bool too_much = mirk_platform_ceiling_refusals(handle) != 0;
            if (excess) {
                ++refused;
                stopped += too_much;
                // Characters that are missing at the end of a frame are no error of the library.
                EXPECT_TRUE(outcome.error != 0 || excess.least == 1) << table.name << ": " << excess.text();
            } else {
                ++admitted;
                EXPECT_FALSE(too_much) << table.name << ", " << frame.size() << " bytes";
            }
        }
    }
    EXPECT_GT(admitted, 1000U);
    EXPECT_GT(refused, 1000U);
    EXPECT_GT(stopped, 20U) << "frames that would exceed the limit";
}

}  // namespace
