// A handle of the reference runtime, and the ways to set one up that are compared.
#pragma once

#include "bench/results.h"
#include "tests/support/kit/handle.h"

namespace tarn::bench {

inline constexpr std::uint32_t context_id = 1;

using kit::Handle;

enum class Setup { plain, tracking, private_tables };

inline kit::Options options(Setup setup) {
    constexpr std::uint64_t ceiling = std::uint64_t{8} << 30;
    return {.tracking = setup == Setup::tracking ? kit::Tracking::on : kit::Tracking::off,
            .private_types = setup == Setup::private_tables ? 1U : 0U,
            .request_ceiling = ceiling,
            .total_ceiling = ceiling,
            .fresh_fill = 0,
            .on_leak = [](std::size_t, std::size_t, const kit::Options &) {}};
}

}  // namespace tarn::bench
