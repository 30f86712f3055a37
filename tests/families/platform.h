// The reference runtime as these tests use it.
#pragma once

#include <optional>

#include "lumo_ui_tarn.h"
#include "mirk_platform.h"
#include "mirk_platform_testing.h"
#include "records.h"

namespace families {

enum class Mode { none, off, on };
inline constexpr Mode modes[] = {Mode::none, Mode::off, Mode::on};

class Handle {
public:
    explicit Handle(Mode mode = Mode::none, uint32_t private_types = 0) {
        mirk_platform_handle_options options;
        mirk_platform_handle_options_init(&options);
        options.tracking = mode == Mode::on    ? MIRK_PLATFORM_TRACKING_ON
                           : mode == Mode::off ? MIRK_PLATFORM_TRACKING_OFF
                                               : MIRK_PLATFORM_TRACKING_NONE;
        options.private_types = private_types;
        h_ = mirk_platform_handle_open(&options);
        mirk_lumo_ui_tarn_type_trace_init();  // not every test creates an instance first
        mirk_platform_trace_set_levels(1);    // errors are what most of this is about
        // Nothing may rely on what a fresh block holds.
        mirk_platform_testing_set_fresh_fill(h_, 0xA5);
    }
    ~Handle() { mirk_platform_handle_close(h_); }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

    operator mirk_handle *() const { return h_; }
    mirk_handle *operator->() const { return h_; }

    size_t live_blocks() const { return mirk_platform_live_blocks(h_); }
    void fail_alloc(uint64_t nth, bool onwards = false) const {
        mirk_platform_testing_fail_allocation(h_, MIRK_PLATFORM_TESTING_OBJ_ALLOC, nth, onwards ? 1 : 0);
    }
    uint64_t allocs() const { return mirk_platform_testing_allocations(h_, MIRK_PLATFORM_TESTING_OBJ_ALLOC); }
    void fail(mirk_platform_testing_operation operation, uint32_t number, uint32_t skip = 0,
              uint32_t count = 1000000) const {
        mirk_platform_testing_fail_operation(h_, operation, skip, count, number);
    }
    void set_variant(const mirk_type_info &type, int8_t variant) const {
        mirk_platform_domain_set_variant(h_, type.luid, variant);
    }
    std::optional<uint32_t> offset_of(const void *object) const {
        uint32_t offset = 0;
        if (mirk_platform_sttr_offset(h_, object, &offset) != 0) return std::nullopt;
        return offset;
    }

private:
    mirk_handle *h_;
};

// Everything that happens on a handle while this lives.
class Events {
public:
    explicit Events(mirk_handle *h) : h_(h) {
        mirk_platform_testing_set_hook(
            h,
            [](void *user, mirk_handle *, const mirk_platform_testing_event *event) {
                static_cast<Events *>(user)->all.push_back(*event);
            },
            this);
    }
    ~Events() { mirk_platform_testing_set_hook(h_, nullptr, nullptr); }
    Events(const Events &) = delete;
    Events &operator=(const Events &) = delete;

    std::vector<mirk_platform_testing_event> of(mirk_platform_testing_event_kind kind) const {
        std::vector<mirk_platform_testing_event> some;
        for (const auto &event : all) {
            if (event.kind == kind) some.push_back(event);
        }
        return some;
    }
    size_t count(mirk_platform_testing_event_kind kind) const { return of(kind).size(); }

    std::vector<mirk_platform_testing_event> all;

private:
    mirk_handle *h_;
};

// The trace while this lives, each line as "<module> <level> <text>" without what all module names share.
class Trace {
public:
    Trace() { mirk_platform_testing_capture_start(); }
    ~Trace() { mirk_platform_testing_capture_stop(); }
    Trace(const Trace &) = delete;
    Trace &operator=(const Trace &) = delete;

    std::vector<std::string> lines() const {
        std::vector<std::string> result;
        for (size_t i = 0; i < mirk_platform_testing_captured(); ++i) {
            uint16_t module = 0;
            uint32_t level = 0;
            const char *text = mirk_platform_testing_captured_line(i, &module, &level);
            const std::string from = mirk_platform_trace_module_name(module);
            result.push_back(from.substr(from.rfind('_') + 1) + " " + std::to_string(level) + " " + text);
        }
        return result;
    }
    void clear() const { mirk_platform_testing_capture_clear(); }
};

using Lines = std::vector<std::string>;

// The sticky create of a failed chain hands out the sentinel.
inline void *sentinel(const RecordOperations &r) {
    Handle h;
    h->last_error = ENOMEM;
    return r.create_cr(h);
}

// A top-level object's area stands directly behind it.
inline uint8_t *area(const RecordOperations &r, void *object) { return bytes(object) + table(r).base; }

inline mirk_variant_entry &entry(const mirk_type_info &type, int variant = 0) {
    return type.variant_info->entries[variant];
}

}  // namespace families
