// A handle of the reference runtime, and the ways to set one up that are compared.
#pragma once

#include <cstdint>

#include "bench/board.h"
#include "mirk_platform.h"

namespace tarn::bench {

inline constexpr std::uint32_t context_id = 1;

class Handle {
public:
    enum class Kind { plain, tracking, private_tables };

    explicit Handle(Kind kind = Kind::plain) {
        mirk_platform_handle_options options;
        mirk_platform_handle_options_init(&options);
        options.tracking = kind == Kind::tracking ? MIRK_PLATFORM_TRACKING_ON : MIRK_PLATFORM_TRACKING_OFF;
        options.private_types = kind == Kind::private_tables ? 1 : 0;
        options.request_ceiling = options.total_ceiling = std::uint64_t{8} << 30;
        handle_ = mirk_platform_handle_open(&options);
        require(handle_ != nullptr, "no memory for a handle");
    }
    ~Handle() { mirk_platform_handle_close(handle_); }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

    operator mirk_handle *() const { return handle_; }
    mirk_handle *operator->() const { return handle_; }

private:
    mirk_handle *handle_;
};

}  // namespace tarn::bench
