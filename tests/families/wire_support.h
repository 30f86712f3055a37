// Shared by the tests of frames.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "bridge/bridge.h"
#include "kit/guarded.h"
#include "kit/trace.h"
#include "lumo_ui_tarn.h"

namespace wire {

using bridge::id;
using bridge::Instance;
using kit::GuardedMemory;
using kit::Handle;
using kit::Lines;
using kit::Options;
using kit::Trace;
using kit::Tracking;
using reference::Bytes;
using reference::Generator;
using reference::GeneratorOptions;
using reference::Record;
using reference::RecordTable;

inline constexpr std::uint8_t tracked_flag = 8, ra_data_flag = 32, offset_flag = 64;
inline constexpr std::size_t most_bytes = std::size_t{1} << 20;

inline GuardedMemory &guarded_input() {
    static GuardedMemory memory(most_bytes);
    return memory;
}

struct Outcome {
    std::uint32_t consumed = 0, error = 0;
};

// Reads from a buffer with a guard byte after its end.
inline Outcome read(mirk_handle *h, const Instance &into, const Bytes &frame, std::uint32_t reuse = 0,
                    std::uint8_t guard_byte = 0xEE) {
    Outcome outcome;
    std::uint8_t *at = guarded_input().put(frame.data(), frame.size(), guard_byte);
    outcome.consumed =
        into.record().unmarshal(h, id, at, into.get(), static_cast<std::uint32_t>(frame.size()), reuse, &outcome.error);
    return outcome;
}

// Writes into a buffer of exactly this size, with a guard byte after its end.
struct Written {
    std::uint32_t size = 0, error = 0;
    Bytes buffer;
    std::uint8_t guard_byte = 0;
};
inline Written write(mirk_handle *h, const Instance &from, std::size_t size, bool for_clone = false) {
    static GuardedMemory memory(most_bytes);
    std::uint8_t *at = memory.room(size);
    std::memset(at, 0xA5, size + 1);
    Written written;
    const auto operation = for_clone ? from.record().marshal_for_clone : from.record().marshal;
    written.size = operation(h, id, at, from.get(), static_cast<std::int32_t>(size), &written.error);
    written.buffer.assign(at, at + size);
    written.guard_byte = at[size];
    return written;
}

// No array and no string is empty; arrays have two elements if the frame stays small.
inline Record rich_value(const RecordTable &table, std::uint64_t seed = 11) {
    const Record value =
        Generator(seed, {.min_elements = 2, .max_elements = 2, .min_text = 1, .max_text = 5}).make(table.name);
    constexpr std::size_t small = 400;
    if (reference::encode(value, true).size() <= small) return value;
    return Generator(seed, {.min_elements = 1, .max_elements = 1, .min_text = 1, .max_text = 5}).make(table.name);
}

inline std::string name_of(const testing::TestParamInfo<const RecordTable *> &info) { return info.param->name; }
inline std::vector<const RecordTable *> all_records() {
    std::vector<const RecordTable *> all;
    for (const RecordTable &table : reference::records()) all.push_back(&table);
    return all;
}

// Runs all operations on an instance that a hostile peer has filled, with a buffer of that many bytes.
void use(mirk_handle *h, const Instance &instance, std::int32_t size = 2048);

}  // namespace wire
