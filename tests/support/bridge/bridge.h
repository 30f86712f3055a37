// Conversions between reference values and instances of the library: fills instances from a value and reads them back,
// through exported accessors and the public structs of the runtime alone.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "kit/handle.h"
#include "reference/codec.h"
#include "reference/value.h"
#include "tools/reflect/operations.h"

namespace bridge {

using tarn::reflect::RecordOperations;

// The ctx_id of the helpers' calls. Operations without one use the handle's default_id, which is 1.
inline constexpr std::uint32_t id = 7;

const RecordOperations &operations(std::string_view record);
inline const RecordOperations &operations(const reference::Record &value) { return operations(value.table->name); }

// Fills a new instance, including state bytes (on a handle that tracks), variants and RA data. Throws
// std::runtime_error if an accessor reports an error.
void fill(mirk_handle *h, const RecordOperations &record, void *instance, const reference::Record &value);
// The reverse. Does not change the instance; flag bit 32 without RA data reads as empty RA data.
reference::Record extract(mirk_handle *h, const RecordOperations &record, void *instance);

// An instance that is destroyed at the end.
class Instance {
public:
    Instance(mirk_handle *h, const RecordOperations &record);
    Instance(mirk_handle *h, std::string_view record) : Instance(h, operations(record)) {}
    Instance(mirk_handle *h, const reference::Record &value) : Instance(h, operations(value)) {
        fill(h, record(), get(), value);
    }
    // Takes ownership of an existing object, which may be null.
    Instance(mirk_handle *h, const RecordOperations &record, void *instance)
        : handle_(h), record_(&record), instance_(instance) {}
    ~Instance() { reset(); }
    Instance(Instance &&other) noexcept : handle_(other.handle_), record_(other.record_), instance_(other.release()) {}
    Instance(const Instance &) = delete;
    Instance &operator=(const Instance &) = delete;

    void *get() const { return instance_; }
    mirk_object *header() const { return static_cast<mirk_object *>(instance_); }
    const RecordOperations &record() const { return *record_; }
    reference::Record value() const { return extract(handle_, *record_, instance_); }
    void *release();
    void reset();

private:
    mirk_handle *handle_;
    const RecordOperations *record_;
    void *instance_;
};

struct Marshalled {
    reference::Bytes bytes;  // as many as the operation reports
    std::uint32_t error = 0;
};

// Into a buffer of ample size, including RA data.
Marshalled marshal(mirk_handle *h, const RecordOperations &record, void *instance);

// A member of a record by its name; throws std::out_of_range if there is none.
const tarn::reflect::MemberOperations &member(const RecordOperations &record, std::string_view name);
// The block of an array or the characters of a string, or null; null for other members.
void *block_of(const RecordOperations &record, const void *instance, std::string_view name);
// True if a record contains an array or a string, at any depth.
bool owns_blocks(const reference::RecordTable &table);

// EXPECT_TRUE(same(expected, actual)) names the first member that differs.
testing::AssertionResult same(const reference::Record &expected, const reference::Record &actual);
testing::AssertionResult same(const reference::Bytes &expected, const reference::Bytes &actual);

}  // namespace bridge
