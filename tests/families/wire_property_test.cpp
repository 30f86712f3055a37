// Frames of random instances of every record, compared with the reference codec byte for byte, and read back.
#include <gtest/gtest.h>

#include "reference/lengths.h"
#include "wire_support.h"

namespace {

using namespace wire;

// For every record, in each tracking mode, some values of each kind of instance.
template <class Check>
void for_each_value(int values, Check &&check) {
    const GeneratorOptions kinds[] = {
        {},
        {.min_elements = 0, .max_elements = 0, .min_text = 0, .max_text = 0},
        {.min_elements = 1, .max_elements = 12, .min_text = 1, .max_text = 300},
        {.strange = true},
    };
    std::uint64_t seed = 1;
    for (const RecordTable &table : reference::records()) {
        for (const GeneratorOptions &kind : kinds) {
            Generator generator(seed++, kind);
            for (int i = 0; i < values; ++i) {
                const Record value = generator.make(table.name);
                SCOPED_TRACE(table.name + " of seed " + std::to_string(seed - 1) + ", value " + std::to_string(i));
                check(value);
                if (testing::Test::HasFatalFailure()) return;
            }
        }
    }
}

TEST(WireProperties, FramesEqualThoseOfTheReferenceCodec) {
    for (const Tracking tracking : kit::every_tracking) {
        const Handle handle(tracking);
        for_each_value(4, [&](const Record &value) {
            const Instance instance(handle, value);
            const bridge::Marshalled frame = bridge::marshal(handle, instance.record(), instance.get());
            EXPECT_EQ(frame.error, 0U);
            EXPECT_TRUE(bridge::same(reference::encode(value, handle.tracks()), frame.bytes));
        });
    }
}

TEST(WireProperties, LengthsEqualThoseOfTheReference) {
    for (const Tracking tracking : kit::every_tracking) {
        const Handle handle(tracking);
        for_each_value(2, [&](const Record &value) {
            const Instance instance(handle, value);
            const std::uint32_t length = reference::length(value, handle.tracks());
            EXPECT_EQ(instance.record().len(handle, id, instance.get()), length);
            EXPECT_EQ(instance.record().len_cr(handle, instance.get()), length);
        });
    }
}

// Any two peers can read each other, whether they track states or not; states arrive if both do.
TEST(WireProperties, AFrameReadIntoANewInstanceGivesTheValue) {
    for (const Tracking tracking : kit::every_tracking) {
        const Handle handle(tracking);
        for_each_value(3, [&](const Record &value) {
            for (const bool sender_tracks : {false, true}) {
                const Bytes frame = reference::encode(value, sender_tracks);
                const Instance instance(handle, value.table->name);
                const Outcome outcome = read(handle, instance, frame);
                EXPECT_EQ(outcome.consumed, frame.size());
                EXPECT_EQ(outcome.error, 0U);
                EXPECT_TRUE(
                    bridge::same(reference::as_received(value, handle.tracks() && sender_tracks), instance.value()));
                EXPECT_EQ((instance.header()->obj_flag & tracked_flag) != 0, handle.tracks());
            }
        });
    }
}

TEST(WireProperties, AFrameReadOverAnotherGivesTheValue) {
    for (const Tracking tracking : kit::every_tracking) {
        Handle handle(tracking);
        handle.allow_lost_blocks();  // what the elements of a reused block owned
        const GeneratorOptions filled{.min_elements = 1, .max_elements = 3, .min_text = 1, .max_text = 9};
        for (const RecordTable &table : reference::records()) {
            Generator generator(7, filled);
            const Instance instance(handle, table.name);
            for (int i = 0; i < 6; ++i) {
                const Record value = generator.make(table.name);
                const Bytes frame = reference::encode(value, handle.tracks());
                EXPECT_EQ(read(handle, instance, frame, 1).consumed, frame.size());
                const Record seen = instance.value();
                // Arrays and strings left empty by the budget have no state in the frame.
                EXPECT_TRUE(bridge::same(frame, reference::encode(seen, handle.tracks())));
            }
        }
    }
}

// Through the library alone, without the reference codec.
TEST(WireProperties, PeersReadWhatPeersWrote) {
    for (const Tracking writer : kit::every_tracking) {
        for (const Tracking reader : kit::every_tracking) {
            const Handle from(writer), to({.tracking = reader, .private_types = true});
            for (const RecordTable &table : reference::records()) {
                const Record value = Generator(91, {.max_elements = 2, .strange = true}).make(table.name);
                const Instance source(from, value), target(to, table.name);
                EXPECT_EQ(read(to, target, bridge::marshal(from, source.record(), source.get()).bytes).error, 0U);
                EXPECT_TRUE(bridge::same(reference::as_received(value, from.tracks() && to.tracks()), target.value()));
            }
        }
    }
}

void expect_round_trip(mirk_handle *h, bool tracked, const Record &value) {
    const Bytes frame = reference::encode(value, tracked);
    const Instance instance(h, value);
    EXPECT_TRUE(bridge::same(frame, bridge::marshal(h, instance.record(), instance.get()).bytes));
    EXPECT_EQ(instance.record().len(h, id, instance.get()), reference::length(value, tracked));
    const Instance target(h, value.table->name);
    EXPECT_EQ(read(h, target, frame).consumed, frame.size());
    EXPECT_TRUE(bridge::same(reference::as_received(value, tracked), target.value()));
}

TEST(WireProperties, OneByteCountsWorkAtTheirLimits) {
    for (const Tracking tracking : {Tracking::off, Tracking::on}) {
        const Handle handle(tracking);
        for (const RecordTable &table : reference::records()) {
            for (const reference::MemberTable &row : table.members) {
                if (row.cls != reference::Class::array || table.member(row.counted_by).width != 1) continue;
                for (const int count : {0, 1, 254, 255}) {
                    SCOPED_TRACE(table.name + "." + row.name + " of " + std::to_string(count));
                    Record value(table);
                    Generator generator(static_cast<std::uint64_t>(count), {.max_elements = 0, .max_text = 2});
                    for (int i = 0; i < count; ++i) {
                        value.append(row.name, static_cast<std::uint8_t>(i)) = generator.make(row.type);
                    }
                    if (count != 0) value[row.name].state = 0x19;
                    expect_round_trip(handle, handle.tracks(), value);
                }
            }
        }
    }
}

TEST(WireProperties, StringsWorkUpToTheirLimit) {
    for (const Tracking tracking : {Tracking::off, Tracking::on}) {
        const Handle handle(tracking);
        for (const RecordTable &table : reference::records()) {
            for (const reference::MemberTable &row : table.members) {
                if (row.cls != reference::Class::string) continue;
                for (const std::size_t length : {0U, 1U, 255U, 256U, 65534U, 65535U}) {
                    SCOPED_TRACE(table.name + "." + row.name + " of " + std::to_string(length));
                    Record value(table);
                    for (std::size_t i = 0; i < length; ++i) value[row.name].text += static_cast<char>(i * 7);
                    if (length != 0) value[row.name].state = 0x1A;
                    expect_round_trip(handle, handle.tracks(), value);
                }
            }
        }
    }
}

TEST(WireProperties, LargeArraysWorkInEveryRecord) {
    for (const Tracking tracking : {Tracking::off, Tracking::on}) {
        const Handle handle(tracking);
        for (const RecordTable &table : reference::records()) {
            if (!bridge::owns_blocks(table)) continue;
            SCOPED_TRACE(table.name);
            Generator generator(5, {.min_elements = 20, .max_elements = 60, .max_text = 300, .budget = 100000});
            const Record value = generator.make(table.name);
            expect_round_trip(handle, handle.tracks(), reference::as_received(value, true));
        }
    }
}

TEST(WireProperties, FillingAndReadingBackGivesTheValue) {
    for (const Tracking tracking : kit::every_tracking) {
        const Handle handle(tracking);
        for_each_value(2, [&](const Record &value) {
            const Instance instance(handle, value);
            const Record seen = instance.value();
            // Without tracking there are no states.
            EXPECT_TRUE(handle.tracks() ? bridge::same(value, seen)
                                        : bridge::same(reference::as_received(value, false), seen));
        });
    }
}

}  // namespace
