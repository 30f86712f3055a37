// Every exported operation with failing allocations: its objects, how it is called, and the expected result. The
// operations come from the list of exports; a driver describes one of them for all records, members, enumerations or
// messages that have it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bridge/bridge.h"
#include "lumo_ui_tarn.h"
#include "mirk_platform_testing.h"

namespace trust {

using bridge::id;
using bridge::RecordOperations;
using tarn::reflect::BundleOperations;
using tarn::reflect::EnumerationOperations;
using tarn::reflect::MemberOperations;
using tarn::reflect::MessageOperations;

// The type that an export belongs to. For a member, its record is set as well; for a control message, its bundle.
struct Subject {
    const RecordOperations *record = nullptr;
    const MemberOperations *member = nullptr;
    const EnumerationOperations *enumeration = nullptr;
    const MessageOperations *message = nullptr;
    const BundleOperations *bundle = nullptr;

    bool operator==(const Subject &) const = default;
};

// Which allocator fails, at which request, and whether from then on.
struct Failure {
    mirk_platform_testing_allocator allocator;
    std::uint64_t nth;
    bool onwards;
};
std::ostream &operator<<(std::ostream &out, const Failure &failure);

// A handle with the arguments of a call, created before allocations fail.
class Scene {
public:
    Scene(const Subject &subject, const kit::Options &options);
    ~Scene();
    Scene(const Scene &) = delete;
    Scene &operator=(const Scene &) = delete;

    void fail(const Failure &failure);
    void end_failures();
    // Allocations in the last call.
    std::uint64_t requests(mirk_platform_testing_allocator allocator) const;
    void begin_call();
    void end_call();
    // Frees or destroys the objects of the call and of the scene, and reports blocks that are left.
    void clean_up();
    bool is_live(const void *block) const;

    std::uint32_t *error() { return &err; }
    static char *text();
    static constexpr std::int32_t room = 1 << 15;
    std::int32_t size() const { return room - 1; }

    Subject subject;
    mirk_handle *h = nullptr;
    bool tracks;
    void *object = nullptr,
         *other = nullptr;    // an instance with all members set and a new one; a message with its payload
    void *element = nullptr;  // with all members set, of an array's element type
    void *document = nullptr;
    std::vector<std::uint8_t> frame;  // with its guard byte

    // Result of the call.
    std::uint32_t err = 0, last_error = 0;
    std::uint64_t result = 0;
    void *made = nullptr;      // to be destroyed at the end
    std::size_t may_lose = 0;  // blocks that are documented to be lost

private:
    std::uint64_t before_[4] = {}, requests_[4] = {};
};

struct Driver {
    const char *of;      // a record, a single member, a message's payload, ...
    const char *suffix;  // the end of the exported name
    void (*call)(Scene &);
    // Null: the operation allocates nothing.
    void (*judge)(Scene &, const Failure &) = nullptr;
};

const std::vector<Driver> &drivers();
// True if the driver describes this failure. Without a private type record a handle continues with the module's, so
// only operations that create such records describe that failure.
bool judges(const Driver &driver, const Failure &failure);

// The name of an exported function, and the operation and type that it belongs to.
struct Operation {
    std::string name;
    Subject subject;
    const Driver *driver;
};
// One for each function in the golden list of exports; driver is null if none matches.
const std::vector<Operation> &operations();

}  // namespace trust
