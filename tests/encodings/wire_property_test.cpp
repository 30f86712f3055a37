// Frames of random instances of every record, held against the reference codec byte for byte, and read back.
#include <gtest/gtest.h>

#include "bridge/bridge.h"
#include "reference/lengths.h"

namespace {

using bridge::Handle;
using bridge::Instance;
using bridge::Tracking;
using reference::Bytes;
using reference::Generator;
using reference::GeneratorOptions;
using reference::Record;
using reference::RecordTable;

// Reads a frame, from a buffer with a byte behind its end, into the instance.
std::uint32_t read(mirk_handle *h, const Instance &into, const Bytes &frame, std::uint32_t reuse, std::uint32_t *err) {
    Bytes buffer = frame;
    buffer.push_back(0xEE);
    return into.record().unmarshal(h, bridge::kId, buffer.data(), into.get(), static_cast<std::uint32_t>(frame.size()),
                                   reuse, err);
}

// For every record, under every kind of tracking, some values of each kind of instance.
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

TEST(WireProperties, FramesAreThoseOfTheReferenceCodec) {
    for (const Tracking tracking : bridge::kEveryTracking) {
        const Handle handle(tracking);
        for_each_value(4, [&](const Record &value) {
            const Instance instance(handle, value);
            const bridge::Marshalled frame = bridge::marshal(handle, instance.record(), instance.get());
            EXPECT_EQ(frame.error, 0U);
            EXPECT_TRUE(bridge::same(reference::encode(value, handle.tracks()), frame.bytes));
        });
    }
}

TEST(WireProperties, AFrameReadIntoAFreshInstanceGivesTheValue) {
    for (const Tracking tracking : bridge::kEveryTracking) {
        const Handle handle(tracking);
        for_each_value(4, [&](const Record &value) {
            const Bytes frame = reference::encode(value, handle.tracks());
            const Instance instance(handle, value.table->name);
            std::uint32_t err = 0;
            EXPECT_EQ(read(handle, instance, frame, 0, &err), frame.size());
            EXPECT_EQ(err, 0U);
            EXPECT_TRUE(bridge::same(reference::as_received(value, handle.tracks()), instance.value()));
        });
    }
}

TEST(WireProperties, FillingAndReadingBackGivesTheValue) {
    for (const Tracking tracking : bridge::kEveryTracking) {
        const Handle handle(tracking);
        for_each_value(2, [&](const Record &value) {
            const Instance instance(handle, value);
            const Record seen = instance.value();
            // Without tracking there are no states to be seen.
            EXPECT_TRUE(handle.tracks() ? bridge::same(value, seen)
                                        : bridge::same(reference::as_received(value, false), seen));
        });
    }
}

}  // namespace
