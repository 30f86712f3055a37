// The frame of a record: header, jump, state bytes, and how a reader handles frames that differ from its own.
#include <gtest/gtest.h>

#include "reference/layout.h"
#include "reference/lengths.h"
#include "wire_support.h"

namespace {

using namespace wire;

constexpr const char *flat = "lumo_tarn_exmem_info";  // four integers; 34 bytes, or 38 with their states

Record flat_value() {
    Record value(flat);
    const char *names[] = {"cl_addr", "exmem_addr", "ppe_addr", "size"};
    std::uint8_t n = 1;
    for (const char *name : names) {
        value[name].number = 0x1000U + n;
        value[name].state = static_cast<std::uint8_t>(0x20 + n++);
    }
    return value;
}

void put_jump(Bytes &frame, std::uint32_t jump, std::size_t at = 2) {
    for (std::size_t i = 0; i < 4; ++i) frame[at + i] = static_cast<std::uint8_t>(jump >> (24 - 8 * i));
}

// As written by a sender with more members than this schema.
Bytes longer(Bytes frame, std::size_t extra) {
    frame.insert(frame.end(), extra, 0xC3);
    put_jump(frame, static_cast<std::uint32_t>(frame.size() - 2));
    return frame;
}

TEST(Wire, AFrameWithoutABodyIsItsHeader) {
    for (const Tracking tracking : kit::every_tracking) {
        const Handle handle(tracking);
        for (const RecordTable &table : reference::records()) {
            const Instance instance(handle, table.name);
            instance.header()->variant = -3;
            EXPECT_EQ(instance.record().len(handle, id, instance.get()), 6U);
            const bridge::Marshalled frame = bridge::marshal(handle, instance.record(), instance.get());
            const std::uint8_t flag = handle.tracks() ? tracked_flag : 0;
            EXPECT_TRUE(bridge::same(Bytes{0xFD, flag, 0, 0, 0, 4}, frame.bytes)) << table.name;
        }
    }
}

TEST(Wire, AnInstanceWithoutStateIsWrittenWithZeros) {
    const Handle handle(Tracking::on);
    for (const RecordTable &table : reference::records()) {
        const Record value = rich_value(table);
        const Instance instance(handle, value);
        instance.header()->obj_flag &= static_cast<std::uint8_t>(~tracked_flag);
        // Embedded records and elements have their own flags, and keep their states.
        Record expected = value;
        for (reference::Member &member : expected.members) {
            member.state = 0;
            member.element_state.assign(member.element_state.size(), 0);
        }
        EXPECT_TRUE(bridge::same(reference::encode(expected, true),
                                 bridge::marshal(handle, instance.record(), instance.get()).bytes));
        instance.header()->obj_flag |= tracked_flag;
    }
}

TEST(Wire, TheLastStateByteMayBeTheGuardByte) {
    const Handle handle(Tracking::on);
    const Instance instance(handle, flat_value());
    const Written written = write(handle, instance, 37);
    EXPECT_EQ(written.error, 0U);
    EXPECT_EQ(written.size, 37U);
    Bytes expected = reference::encode(flat_value(), true);
    expected.resize(37);
    put_jump(expected, 35);  // agrees with the size
    EXPECT_TRUE(bridge::same(expected, written.buffer));
    EXPECT_EQ(written.guard_byte, 0x24);

    // A reader of those bytes neither reads the state past the end nor skips it.
    const Instance target(handle, flat_value());
    std::uint32_t err = 0;
    bridge::member(target.record(), "size").state_flag_set(handle, id, target.get(), 0x77, &err);
    const Outcome outcome = read(handle, target, written.buffer);
    EXPECT_EQ(outcome.consumed, 37U);
    EXPECT_EQ(outcome.error, 0U);
    EXPECT_EQ(target.value()["size"].state, 0x77);
}

TEST(Wire, MembersOfANewerSenderAreSkipped) {
    for (const Tracking tracking : kit::every_tracking) {
        const Handle handle(tracking);
        for (const RecordTable &table : reference::records()) {
            const Record value = rich_value(table);
            const Bytes known = reference::encode(value, handle.tracks());
            const Bytes frame = longer(known, 5);
            const Instance instance(handle, table.name);
            const Trace trace;
            const Outcome outcome = read(handle, instance, frame);
            EXPECT_EQ(outcome.error, 0U);
            EXPECT_EQ(outcome.consumed, frame.size());
            EXPECT_TRUE(bridge::same(reference::as_received(value, handle.tracks()), instance.value()));
            // The jump says where the frame ends; only a trace line reports the skipped bytes.
            const std::string skipped = "type 6 (info): offset_jump read_len " + std::to_string(known.size()) +
                                        " offset_jump_base 2 _mirk_variant_jump " + std::to_string(frame.size() - 2);
            EXPECT_EQ(trace.lines(), Lines{skipped}) << table.name;
        }
    }
}

TEST(Wire, ANewerElementDoesNotShiftTheNextOne) {
    const Handle handle(Tracking::none);
    const Record value = rich_value(reference::record_table("lumo_tarn_dp_debug_setting_data"));
    const auto &elements = value["lumo_data"].items;
    ASSERT_EQ(elements.size(), 2U);
    Bytes frame = {0, 0, 0, 0, 0, 0, 2};
    const Bytes first = longer(reference::encode(elements[0], false), 7);
    const Bytes second = reference::encode(elements[1], false);
    frame.insert(frame.end(), first.begin(), first.end());
    frame.insert(frame.end(), second.begin(), second.end());
    put_jump(frame, static_cast<std::uint32_t>(frame.size() - 2));
    const Instance instance(handle, value.table->name);
    const Outcome outcome = read(handle, instance, frame);
    EXPECT_EQ(outcome.error, 0U);
    EXPECT_EQ(outcome.consumed, frame.size());
    EXPECT_TRUE(bridge::same(reference::as_received(value, false), instance.value()));
}

TEST(Wire, AShorterBodyIsNotDetected) {
    const Handle handle(Tracking::none);
    Bytes frame = reference::encode(flat_value(), false);
    put_jump(frame, 4);
    const Instance instance(handle, flat);
    EXPECT_EQ(read(handle, instance, frame).consumed, frame.size());
    EXPECT_TRUE(bridge::same(reference::as_received(flat_value(), false), instance.value()));
}

TEST(Wire, AVariantAbove0IsReadAndWrittenAs0) {
    for (const RecordTable &table : reference::records()) {
        const Handle handle(Tracking::none);
        const Record value = rich_value(table);
        Bytes frame = reference::encode(value, false);
        frame[0] = 3;
        const Instance instance(handle, table.name);
        EXPECT_EQ(read(handle, instance, frame).consumed, frame.size());
        EXPECT_EQ(instance.header()->variant, 0);
        frame[0] = 0;
        instance.header()->variant = 5;
        mirk_platform_domain_set_variant(handle, instance.record().type->luid, 9);
        EXPECT_TRUE(bridge::same(frame, bridge::marshal(handle, instance.record(), instance.get()).bytes));
    }
}

TEST(Wire, ReadingAFlatRecordMakesNoNotification) {
    const Handle handle(Tracking::on);
    const Instance instance(handle, flat);
    std::vector<mirk_platform_testing_event_kind> seen;
    mirk_platform_testing_set_hook(
        handle,
        [](void *user, mirk_handle *, const mirk_platform_testing_event *event) {
            static_cast<std::vector<mirk_platform_testing_event_kind> *>(user)->push_back(event->kind);
        },
        &seen);
    EXPECT_EQ(read(handle, instance, reference::encode(flat_value(), true)).error, 0U);
    mirk_platform_testing_set_hook(handle, nullptr, nullptr);
    EXPECT_EQ(seen, std::vector{MIRK_PLATFORM_TESTING_CLEAR_ERROR});
}

TEST(Wire, AReadBindsTheTypeAgain) {
    for (const bool private_types : {false, true}) {
        const Handle handle({.private_types = private_types});
        const Instance instance(handle, flat);
        mirk_type_info *type = instance.header()->tinfo;
        EXPECT_EQ(type == instance.record().type, !private_types);
        instance.header()->tinfo = nullptr;
        read(handle, instance, reference::encode(flat_value(), false));
        EXPECT_EQ(instance.header()->tinfo, type);
    }
}

TEST(Wire, FlagsFromAFrameAreMergedWithoutEffect) {
    for (const Tracking tracking : kit::every_tracking) {
        const Handle handle(tracking);
        for (const RecordTable &table : reference::records()) {
            Record value = rich_value(table);
            value.ra = reference::ReferenceData{0xABCDEF0123456789, 0x11};
            Bytes frame = reference::encode(value, true);
            frame[1] = 0xFF;
            const Instance instance(handle, table.name);
            const std::uint8_t before = instance.header()->obj_flag;
            EXPECT_EQ(read(handle, instance, frame).error, 0U);
            const auto merged = static_cast<std::uint8_t>(handle.tracks() ? 0xFF : 0xF7);
            EXPECT_EQ(instance.header()->obj_flag, before | merged);
            use(handle, instance);
            EXPECT_TRUE(bridge::same(reference::as_received(value, handle.tracks()), instance.value()));
        }
    }
}

TEST(Wire, OnlyTwoBitsOfAFlagDetermineWhatFollows) {
    for (const Tracking tracking : {Tracking::none, Tracking::off}) {
        const Handle handle(tracking);
        for (const RecordTable &table : reference::records()) {
            const Record value = rich_value(table);
            const Bytes frame = reference::encode(value, false);
            for (const unsigned bit : {1U, 2U, 4U, 16U, 64U, 128U}) {
                Bytes flagged = frame;
                flagged[1] = static_cast<std::uint8_t>(bit);
                const Instance instance(handle, table.name);
                const Outcome outcome = read(handle, instance, flagged);
                EXPECT_EQ(outcome.error, 0U);
                EXPECT_EQ(outcome.consumed, frame.size()) << table.name << ' ' << bit;
                EXPECT_TRUE(bridge::same(reference::as_received(value, false), instance.value()));
                use(handle, instance);
            }
        }
    }
}

TEST(Wire, OnlyTwoBitsOfTheFlagAreWritten) {
    const Handle handle(Tracking::off);
    const Instance instance(handle, flat);
    instance.header()->obj_flag = 0xFF;
    const Written written = write(handle, instance, 64);
    instance.header()->obj_flag = 0;
    EXPECT_EQ(written.buffer[1], ra_data_flag);
}

TEST(Wire, UnreadableRaDataReplaceTheError) {
    const Handle handle(Tracking::none);
    Record value = flat_value();
    value.ra = reference::ReferenceData{5, 6};
    const Instance instance(handle, value);
    mirk_platform_testing_fail_operation(handle, MIRK_PLATFORM_TESTING_RA_DATA, 0, 1, 71);
    EXPECT_EQ(write(handle, instance, 64).error, 71U);
    // The successful look-up clears a pending downgrade.
    mirk_platform_domain_set_variant(handle, instance.record().type->luid, -1);
    EXPECT_EQ(write(handle, instance, 64).error, 0U);
    EXPECT_EQ(handle->last_error, 43U);
}

TEST(Wire, ADowngradeFailsOrOmitsTheBody) {
    for (const RecordTable &table : reference::records()) {
        const Handle strict(Tracking::none);
        const Handle lenient({.lenient = true});
        for (const Handle *handle : {&strict, &lenient}) {
            const Instance instance(*handle, rich_value(table));
            mirk_platform_domain_set_variant(*handle, instance.record().type->luid, -2);
            const bridge::Marshalled frame = bridge::marshal(*handle, instance.record(), instance.get());
            EXPECT_EQ(frame.error, handle == &strict ? 43U : 0U);
            if (handle == &lenient) {
                EXPECT_TRUE(bridge::same(Bytes{0xFE, 0, 0, 0, 0, 4}, frame.bytes));
            }
            EXPECT_EQ(instance.header()->variant, 0);
            // A copy stays on the handle, so it ignores the domain.
            const std::size_t size = reference::encode(rich_value(table), false).size();
            const Written copied = write(*handle, instance, size, true);
            EXPECT_EQ(copied.error, 0U);
            EXPECT_TRUE(bridge::same(reference::encode(rich_value(table), false), copied.buffer));
        }
    }
}

TEST(Wire, NothingIsDoneIfTheErrorIsSet) {
    for (const RecordTable &table : reference::records()) {
        const Handle handle(Tracking::on);
        const Instance instance(handle, rich_value(table));
        const Record before = instance.value();
        std::uint8_t buffer[16] = {};
        std::size_t events = 0;
        mirk_platform_testing_set_hook(
            handle,
            [](void *user, mirk_handle *, const mirk_platform_testing_event *) { ++*static_cast<std::size_t *>(user); },
            &events);
        std::uint32_t err = 5;
        EXPECT_EQ(instance.record().marshal(handle, id, buffer, instance.get(), 16, &err), 0U);
        EXPECT_EQ(instance.record().marshal_for_clone(handle, id, buffer, instance.get(), 16, &err), 0U);
        EXPECT_EQ(instance.record().unmarshal(handle, id, buffer, instance.get(), 16, 0, &err), 0U);
        handle->last_error = 6;
        EXPECT_EQ(instance.record().len_cr(handle, instance.get()), 0U);
        EXPECT_EQ(handle->last_error, 6U);
        mirk_platform_testing_set_hook(handle, nullptr, nullptr);
        EXPECT_EQ(err, 5U);
        EXPECT_EQ(events, 0U);
        EXPECT_TRUE(bridge::same(before, instance.value()));
    }
}

TEST(Wire, ABufferOfZeroBytesFailsWithEnomem) {
    for (const RecordTable &table : reference::records()) {
        const Handle handle(Tracking::none);
        const Instance instance(handle, rich_value(table));
        std::uint8_t buffer[2] = {0x5A, 0x5A};
        for (const std::int32_t size : {0, -1, INT32_MIN}) {
            std::uint32_t err = 0;
            EXPECT_EQ(instance.record().marshal(handle, id, buffer, instance.get(), size, &err), 0U);
            EXPECT_EQ(err, 12U);
            EXPECT_EQ(handle->last_error, 12U);
            err = handle->last_error = 0;
            EXPECT_EQ(instance.record().unmarshal(handle, id, buffer, instance.get(), static_cast<std::uint32_t>(size),
                                                  0, &err),
                      0U);
            EXPECT_EQ(err, 12U);
            EXPECT_EQ(handle->last_error, 12U);
        }
        EXPECT_EQ(buffer[0], 0x5A);
        EXPECT_TRUE(bridge::same(reference::as_received(rich_value(table), false), instance.value()));
    }
}

TEST(Wire, ABufferThatIsTooSmallFailsAtEverySize) {
    for (const Tracking tracking : {Tracking::none, Tracking::on}) {
        const Handle handle(tracking);
        for (const RecordTable &table : reference::records()) {
            const Instance instance(handle, Generator(4, {.max_elements = 1, .max_text = 3}).make(table.name));
            const Bytes whole = bridge::marshal(handle, instance.record(), instance.get()).bytes;
            for (std::size_t size = 1; size < whole.size(); ++size) {
                const Written written = write(handle, instance, size);
                EXPECT_LE(written.size, size);
                // Only states at the end may be missing without an error.
                if (!handle.tracks()) {
                    EXPECT_TRUE(written.error == 90 || written.error == 12) << table.name << " in " << size;
                }
            }
        }
    }
}

TEST(Wire, ANullInstanceHasTheLengthOfAnEmptyOne) {
    for (const Tracking tracking : kit::every_tracking) {
        const Handle handle(tracking);
        for (const RecordTable &table : reference::records()) {
            const bridge::RecordOperations &record = bridge::operations(table.name);
            EXPECT_EQ(record.len(handle, id, nullptr), reference::length_of_null(table)) << table.name;
            EXPECT_EQ(record.len_cr(handle, nullptr), reference::length_of_null(table)) << table.name;
        }
    }
}

TEST(Wire, ANullInstanceFailsAtItsFirstMember) {
    for (const Tracking tracking : kit::every_tracking) {
        const Handle handle(tracking);
        for (const RecordTable &table : reference::records()) {
            const Instance nothing(handle, bridge::operations(table.name), nullptr);
            const Written written = write(handle, nothing, 4096);
            EXPECT_EQ(written.error, 22U) << table.name;
            EXPECT_EQ(written.buffer[1], handle.tracks() ? tracked_flag : 0);
        }
    }
}

TEST(Wire, ANullInstanceIsWrittenWithStatesOnATrackingHandleOnly) {
    const Handle plain(Tracking::none), tracking(Tracking::on);
    const auto size = [](const Handle &handle) {
        return write(handle, Instance(handle, bridge::operations(flat), nullptr), 4096).size;
    };
    EXPECT_EQ(size(plain), 6U);      // the header alone, since the first member fails
    EXPECT_EQ(size(tracking), 10U);  // and the states of four members
}

class WireDeathTest : public testing::TestWithParam<const RecordTable *> {
protected:
    // While lines are captured, only those of level 0 go to standard error.
    const Trace trace;

    static std::string fatal(const char *text) {
        return std::string(mirk_platform_trace_module_name(g_mirk_lumo_ui_tarn_type_trace_module_id)) +
               ": \\(FATAL\\): " + text;
    }
};

TEST_P(WireDeathTest, ACorruptModeAborts) {
    const Handle handle(Tracking::on);
    const Instance instance(handle, GetParam()->name);
    std::vector<std::uint8_t> buffer(8192);
    std::uint32_t err = 0;
    handle->sttr_desc->sttr_mode = 0x1234;
    const std::string line = fatal("Corrupted MIRK Handle");
    EXPECT_DEATH(instance.record().len(handle, id, instance.get()), line);
    EXPECT_DEATH(instance.record().marshal(handle, id, buffer.data(), instance.get(), 8000, &err), line);
    EXPECT_DEATH(instance.record().unmarshal(handle, id, buffer.data(), instance.get(), 8000, 0, &err), line);
    handle->sttr_desc->sttr_mode = 0xEEEE;
}

TEST_P(WireDeathTest, ATargetWithoutStateOnATrackingHandleAborts) {
    const Handle handle(Tracking::on);
    const Instance instance(handle, GetParam()->name);
    instance.header()->obj_flag &= static_cast<std::uint8_t>(~tracked_flag);
    EXPECT_DEATH(read(handle, instance, Bytes{0, 0, 0, 0, 0, 4}),
                 fatal("MIRK handle and object state tracking mis-match"));
    instance.header()->obj_flag |= tracked_flag;
}

INSTANTIATE_TEST_SUITE_P(SomeRecords, WireDeathTest,
                         testing::Values(&reference::record_table(flat),
                                         &reference::record_table("lumo_tarn_dp_tc_list"),
                                         &reference::record_table("lumo_tarn_cl_kesh_appl")),
                         name_of);

}  // namespace
