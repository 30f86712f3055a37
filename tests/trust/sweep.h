// Every exported operation with memory taken away: what an operation works on, how it is called, and what is told of
// its failures. The operations come from the list of exports; a driver is what the sweep knows about one of them, for
// all records, members, enumerations or messages that have it.
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

// What an export is an operation of. Of a member, its record is there as well; of a control message, its bundle.
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

// One handle with what a call needs, made while there is memory.
class Scene {
public:
    Scene(const Subject &subject, const kit::Options &options);
    ~Scene();
    Scene(const Scene &) = delete;
    Scene &operator=(const Scene &) = delete;

    void fail(const Failure &failure);
    void end_failures();
    // Requests in the last call.
    std::uint64_t requests(mirk_platform_testing_allocator allocator) const;
    void begin_call();
    void end_call();
    // Frees or destroys what the call made and what the scene holds, and reports blocks that are left.
    void clean_up();
    bool is_live(const void *block) const;

    std::uint32_t *error() { return &err; }
    static char *text();
    static constexpr std::int32_t room = 1 << 15;
    std::int32_t size() const { return room - 1; }

    Subject subject;
    mirk_handle *h = nullptr;
    bool tracks;
    void *object = nullptr, *other = nullptr;  // a rich instance and a fresh one; a message with its payload
    void *element = nullptr;                   // rich, of the type that an array holds
    void *document = nullptr;
    std::vector<std::uint8_t> frame;  // with its slack

    // What came of the call.
    std::uint32_t err = 0, last_error = 0;
    std::uint64_t result = 0;
    void *made = nullptr;      // to be destroyed at the end
    std::size_t may_lose = 0;  // blocks that are told to be lost

private:
    std::uint64_t before_[4] = {}, requests_[4] = {};
};

struct Driver {
    const char *of;      // a record, a single member, a message's payload, ...
    const char *suffix;  // the end of the exported name
    void (*call)(Scene &);
    // Null: the operation asks for no memory.
    void (*judge)(Scene &, const Failure &) = nullptr;
};

const std::vector<Driver> &drivers();
// Whether the driver tells what comes of this failure. Without a type record of its own a handle goes on with the
// module's, so of those only what makes them has something to tell.
bool judges(const Driver &driver, const Failure &failure);

// What an exported function is called, and which operation of what it is.
struct Operation {
    std::string name;
    Subject subject;
    const Driver *driver;
};
// Of every function in the golden list of exports; those that no driver knows have none.
const std::vector<Operation> &operations();

}  // namespace trust
