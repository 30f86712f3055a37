// A handle of the reference runtime.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "kit/tracking.h"
#include "mirk_platform.h"
#include "mirk_platform_testing.h"

namespace kit {

struct Options;
// Reports a test failure.
void fail_test(std::size_t left, std::size_t expected, const Options &options);

struct Options {
    Tracking tracking = Tracking::none;
    std::uint32_t private_types = 0;
    bool lenient = false;               // a downgrade does not set the error slot
    std::uint64_t request_ceiling = 0;  // 0: the runtime's default
    std::uint64_t total_ceiling = 0;
    std::uint8_t fresh_fill = 0xA5;  // fill of new blocks, so that no test relies on their content; 0: none
    // Called if the handle closes with another number of blocks than expected. Programs without the test framework pass
    // their own function.
    void (*on_leak)(std::size_t left, std::size_t expected, const Options &options) = fail_test;
};

// Checks that no block is left when it closes, unless a loss is expected or allowed.
class Handle {
public:
    explicit Handle(const Options &options = {}) : options_(options) {
        mirk_platform_handle_options o;
        mirk_platform_handle_options_init(&o);
        o.tracking = options.tracking == Tracking::none  ? MIRK_PLATFORM_TRACKING_NONE
                     : options.tracking == Tracking::off ? MIRK_PLATFORM_TRACKING_OFF
                                                         : MIRK_PLATFORM_TRACKING_ON;
        o.private_types = options.private_types;
        o.epoch_policy = options.lenient ? MIRK_PLATFORM_LENIENT_EIDRM : MIRK_PLATFORM_STRICT;
        if (options.request_ceiling != 0) o.request_ceiling = options.request_ceiling;
        if (options.total_ceiling != 0) o.total_ceiling = options.total_ceiling;
        handle_ = mirk_platform_handle_open(&o);
        if (options.fresh_fill != 0) mirk_platform_testing_set_fresh_fill(handle_, options.fresh_fill);
        if (options.tracking == Tracking::corrupt) mirk_platform_testing_set_sttr_mode(handle_, 0xEEED);
    }
    explicit Handle(Tracking tracking) : Handle(Options{.tracking = tracking}) {}
    ~Handle() {
        const std::size_t left = mirk_platform_handle_close(handle_);
        if (!any_loss_ && left != lost_) options_.on_leak(left, lost_, options_);
    }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

    mirk_handle *get() const { return handle_; }
    operator mirk_handle *() const { return handle_; }
    mirk_handle *operator->() const { return handle_; }

    bool tracks() const { return options_.tracking == Tracking::on; }
    std::size_t live_blocks() const { return mirk_platform_live_blocks(handle_); }
    // Exactly this many blocks are left at the end: their loss is part of the tested behavior.
    void expect_lost_blocks(std::size_t blocks) { lost_ = blocks; }
    void allow_lost_blocks() { any_loss_ = true; }

    // The nth allocation from now on fails, or all from the nth on; 0 stops this.
    void fail_alloc(std::uint64_t nth, bool onwards = false) const {
        mirk_platform_testing_fail_allocation(handle_, MIRK_PLATFORM_TESTING_OBJ_ALLOC, nth, onwards ? 1 : 0);
    }
    std::uint64_t allocs() const { return mirk_platform_testing_allocations(handle_, MIRK_PLATFORM_TESTING_OBJ_ALLOC); }
    void fail(mirk_platform_testing_operation operation, std::uint32_t number, std::uint32_t skip = 0,
              std::uint32_t count = 1000000) const {
        mirk_platform_testing_fail_operation(handle_, operation, skip, count, number);
    }
    void set_variant(const mirk_type_info &type, std::int8_t variant) const {
        mirk_platform_domain_set_variant(handle_, type.luid, variant);
    }
    std::optional<std::uint32_t> offset_of(const void *object) const {
        std::uint32_t offset = 0;
        if (mirk_platform_sttr_offset(handle_, object, &offset) != 0) return std::nullopt;
        return offset;
    }

private:
    Options options_;
    mirk_handle *handle_ = nullptr;
    std::size_t lost_ = 0;
    bool any_loss_ = false;
};

}  // namespace kit
