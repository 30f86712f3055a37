// Straight-line code that makes exactly the runtime calls which the contract demands for one record, printed from the
// schema.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "lumo_ui_tarn.h"

namespace tarn::bench {

struct LowerBound {
    const char *record;
    void *(*create)(mirk_handle *h, std::uint32_t id);
    std::uint32_t (*marshal)(mirk_handle *h, std::uint32_t id, std::uint8_t *buffer, std::uint8_t *object,
                             std::int32_t remaining, std::uint32_t *err);
    std::uint32_t (*unmarshal)(mirk_handle *h, std::uint32_t id, std::uint8_t *buffer, std::uint8_t *object,
                               std::uint32_t size, std::uint32_t reuse, std::uint32_t *err);
    void (*destroy)(mirk_handle *h, std::uint32_t id, std::uint8_t *object, bool free_it);
};

// One for each record. The first calls the runtime as the library does, from outside. The second is linked together
// with the reference runtime's own code, so that whatever can be inlined is.
const LowerBound &contract_lower_bound(std::string_view record);
const LowerBound &inlined_lower_bound(std::string_view record);

}  // namespace tarn::bench
