// Plausible answers of many devices that change as real ones do: counters grow, states change seldom, and now and then
// a row appears or disappears; most values never change. Everything follows from a seed, the device and the time.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <tuple>
#include <vector>

#include "tools/tarn/support/handle.h"

namespace tarn::fleet {

class ChangingTables {
public:
    // Lists have `elements` elements; see tool::RandomPayload.
    ChangingTables(std::uint64_t seed, std::uint32_t elements) : seed_(seed), elements_(elements) {}

    // All frames of the answer of a device after a number of changes.
    tool::Bytes answer(const reflect::BundleOperations &bundle, bool tracked, std::uint64_t device,
                       std::uint64_t changes);

private:
    // A value that changes: where it is in the frames, and how.
    struct Place {
        std::size_t offset, size;
        bool is_counter;
    };
    struct Frames {
        tool::Bytes bytes;
        std::vector<Place> places;
    };
    // What devices have in common. A row more or less is another one.
    const Frames &frames(const reflect::BundleOperations &bundle, bool tracked, std::uint64_t kind, bool has_row);
    Frames make(const reflect::BundleOperations &bundle, bool tracked, std::uint64_t kind, bool has_row) const;
    std::uint64_t mixed(std::uint64_t a, std::uint64_t b) const;

    std::uint64_t seed_;
    std::uint32_t elements_;
    std::map<std::tuple<const reflect::BundleOperations *, bool, std::uint64_t, bool>, std::unique_ptr<Frames>> frames_;
};

}  // namespace tarn::fleet
