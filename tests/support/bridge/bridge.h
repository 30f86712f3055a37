// Between reference values and instances of the library: handles that watch over their blocks, instances filled from a
// value and read back into one, through exported accessors and the public structs of the runtime alone.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "mirk_platform.h"
#include "reference/codec.h"
#include "reference/value.h"
#include "tools/reflect/operations.h"

namespace bridge {

using tarn::reflect::RecordOperations;

enum class Tracking { none, off, on };  // none: no descriptor at all

const char *name_of(Tracking tracking);
inline constexpr Tracking kEveryTracking[] = {Tracking::none, Tracking::off, Tracking::on};

struct Options {
    Tracking tracking = Tracking::none;
    bool private_types = false;
    bool lenient = false;               // a downgrade leaves the error slot alone
    std::uint64_t request_ceiling = 0;  // 0: the runtime's own
    std::uint64_t total_ceiling = 0;
};

// The ctx_id under which the helpers call. Operations that take none use the handle's default_id, which is 1.
inline constexpr std::uint32_t kId = 7;

// Reports a test failure when it closes and blocks are left, unless told that there may be some.
class Handle {
public:
    explicit Handle(const Options &options = {});
    explicit Handle(Tracking tracking) : Handle(Options{.tracking = tracking}) {}
    ~Handle();
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

    mirk_handle *get() const { return handle_; }
    operator mirk_handle *() const { return handle_; }
    mirk_handle *operator->() const { return handle_; }

    bool tracks() const { return options_.tracking == Tracking::on; }
    std::size_t live_blocks() const { return mirk_platform_live_blocks(handle_); }
    // Exactly so many blocks are left at the end: a loss that belongs to what is tested.
    void expect_lost_blocks(std::size_t blocks) { lost_ = blocks; }
    void allow_lost_blocks() { any_loss_ = true; }

private:
    Options options_;
    mirk_handle *handle_ = nullptr;
    std::size_t lost_ = 0;
    bool any_loss_ = false;
};

const RecordOperations &operations(std::string_view record);
inline const RecordOperations &operations(const reference::Record &value) { return operations(value.table->name); }

// Fills a fresh instance, state bytes (on a handle that tracks), variants and RA data included. Throws
// std::runtime_error if an accessor reports an error.
void fill(mirk_handle *h, const RecordOperations &record, void *instance, const reference::Record &value);
// The reverse. The instance is left as it was; flag bit 32 without RA data of its own reads as empty RA data.
reference::Record extract(mirk_handle *h, const RecordOperations &record, void *instance);

// An instance that is destroyed at the end.
class Instance {
public:
    Instance(mirk_handle *h, const RecordOperations &record);
    Instance(mirk_handle *h, std::string_view record) : Instance(h, operations(record)) {}
    Instance(mirk_handle *h, const reference::Record &value) : Instance(h, operations(value)) {
        fill(h, record(), get(), value);
    }
    // Takes over what somebody else made, which may be null.
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
    reference::Bytes bytes;  // as many as the operation says were written
    std::uint32_t error = 0;
};

// Into a buffer with room to spare, RA data included.
Marshalled marshal(mirk_handle *h, const RecordOperations &record, void *instance);

// A member of a record by its name; throws std::out_of_range for a name that is none.
const tarn::reflect::MemberOperations &member(const RecordOperations &record, std::string_view name);
// The block of an array or the characters of a string, null if there is none; null for other members.
void *block_of(const RecordOperations &record, const void *instance, std::string_view name);
// Whether a record holds an array or a string, at any depth.
bool owns_blocks(const reference::RecordTable &table);

// EXPECT_TRUE(same(expected, actual)) names the first member that differs.
testing::AssertionResult same(const reference::Record &expected, const reference::Record &actual);
testing::AssertionResult same(const reference::Bytes &expected, const reference::Bytes &actual);

}  // namespace bridge
