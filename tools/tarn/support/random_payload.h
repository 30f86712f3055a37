// Random payloads with plausible values. A seed gives the same payload on every machine.
#pragma once

#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "tools/tarn/support/handle.h"

namespace tarn::tool {

class RandomPayload {
public:
    // Lists of processors and of complexes always have two elements. Other lists get `elements`, lists inside them a
    // quarter of that plus one; a list is shorter if its count is too narrow.
    RandomPayload(const Handle &handle, std::uint64_t seed, std::uint32_t elements)
        : handle_(handle), random_(seed), elements_(elements) {}

    // Fills an initialized payload of this record, without state if its handle tracks it. Returns its size in a frame;
    // for a null payload, only that.
    std::uint64_t fill(const schema::Record &record, void *payload) { return fill(plan_of(record), payload); }

    // True if the record has a list whose length depends on `elements`.
    static bool can_grow(const schema::Record &record);

private:
    struct Plan;
    using Draw = std::uint64_t (*)(RandomPayload &, std::uint64_t limit);
    // A member with what its name and its record decide, since comparing names takes longer than everything else.
    struct Step {
        const reflect::MemberOperations *operations;
        std::uint64_t limit = 0;       // of an integer, or of the count before an array
        Draw draw = nullptr;           // of an integer
        const Plan *nested = nullptr;  // of a record or of the elements of an array
        bool is_fixed = false;         // an array of two elements
    };
    struct Plan {
        const schema::Record *record;
        std::vector<Step> steps;
        std::uint64_t size = 0, states = 0;  // in a frame, without what is in records, strings and arrays
        bool has_address = false;
    };
    struct Network {
        bool is_v4;
        unsigned length;
        std::uint64_t groups[4];

        std::string text() const;
    };

    static std::vector<Plan> make_plans();
    static const Plan &plan_of(const schema::Record &record);
    static Draw draw_of(const schema::Record &record, const schema::Member &member);

    std::uint64_t fill(const Plan &plan, void *instance);
    std::uint64_t fill(const Step &step, void *instance);
    void fill_address(const Step &step, void *instance);
    std::uint64_t fill_array(const Step &step, void *instance);
    void set_value(const Step &step, void *instance, std::uint64_t value);
    void *embedded(const Step &step, void *instance);
    std::uint64_t below(std::uint64_t limit) { return random_() % limit; }
    Network network();
    std::string name(const schema::Member &member);

    const Handle &handle_;
    std::mt19937_64 random_;
    std::uint32_t elements_;
    std::uint32_t index_ = 0;  // of the innermost element
    std::uint64_t port_min_ = 0, start_ = 0, duration_ = 0;
    // The addresses of a record and of the records in it are of one family.
    bool has_family_ = false, v4_ = true;
    std::optional<Network> looked_up_;  // the prefix that the records around are about
    unsigned depth_ = 0;                // of nested lists
};

}  // namespace tarn::tool
