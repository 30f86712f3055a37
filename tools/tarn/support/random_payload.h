// Random payloads with plausible values. A seed gives the same payload on every machine.
#pragma once

#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <random>
#include <string>

#include "schema/model.h"

namespace tarn::tool {

class RandomPayload {
public:
    // Lists of processors and of complexes always have two elements. Other lists get `elements`, lists inside them a
    // quarter of that plus one; a list is shorter if its count is too narrow.
    RandomPayload(std::uint64_t seed, std::uint32_t elements) : random_(seed), elements_(elements) {}

    nlohmann::ordered_json make(const schema::Record &record);

    // True if the record has a list whose length depends on `elements`.
    static bool can_grow(const schema::Record &record);

private:
    std::uint64_t below(std::uint64_t limit) { return random_() % limit; }
    nlohmann::ordered_json value(const schema::Record &record, const schema::Member &member, std::uint64_t most);
    std::uint64_t number(const schema::Record &record, const schema::Member &member);
    std::string address();
    std::string name(const schema::Member &member);
    std::uint32_t length_of_list(const schema::Member &member, std::uint64_t most);

    std::mt19937_64 random_;
    std::uint32_t elements_;
    std::uint32_t index_ = 0;  // of the innermost element
    std::uint64_t port_min_ = 0, start_ = 0, duration_ = 0;
    // The addresses of a record and of the records in it are of one family.
    bool has_family_ = false, v4_ = true;
    std::string looked_up_;  // the prefix that the records around are about
    unsigned depth_ = 0;     // of nested lists
};

}  // namespace tarn::tool
