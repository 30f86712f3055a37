// How operations start and how they fail.
//
// An operation is a no-op if its error slot is set. Otherwise it clears the handle's last error; a writer first adjusts
// the object to the domain's variant; and an object with a negative variant, which has no body, fails with EIDRM.
// Errors are system error numbers, written to the slot and to the handle. Corrupt memory is not an error: it aborts the
// process.
#pragma once

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "core/object.h"

extern "C" {
extern std::uint16_t g_mirk_lumo_ui_tarn_type_trace_module_id;
extern std::uint16_t g_mirk_lumo_ui_tarn_message_trace_module_id;
extern std::uint16_t g_mirk_lumo_ui_tarn_stub_trace_module_id;
}

namespace tarn {

inline constexpr std::uint32_t fatal_level = 0, error_level = 3, info_level = 6, debug_level = 7;

// Atomic, because the runtime assigns the number when the first object of the process is created, and other threads may
// trace at that time.
inline std::uint16_t number_of(const std::uint16_t &module) { return __atomic_load_n(&module, __ATOMIC_RELAXED); }

// For records and enumerations; messages have their own trace module.
template <class... Arguments>
void trace(std::uint32_t level, const char *format, Arguments... arguments) {
    skald_wrapper(number_of(g_mirk_lumo_ui_tarn_type_trace_module_id), level, 0, format, arguments...);
}
template <class... Arguments>
void trace_message(std::uint32_t level, const char *format, Arguments... arguments) {
    skald_wrapper(number_of(g_mirk_lumo_ui_tarn_message_trace_module_id), level, 0, format, arguments...);
}

inline const char *error_text(std::uint32_t number) { return std::strerror(static_cast<int>(number)); }

[[noreturn, gnu::cold, gnu::noinline]] inline void die(const std::uint16_t &module, const char *text) {
    skald_wrapper(number_of(module), fatal_level, 0, text);
    std::abort();
}
[[noreturn]] inline void die(const char *text) { die(g_mirk_lumo_ui_tarn_type_trace_module_id, text); }

// Writes the slot first, then the handle.
inline void fail(mirk_handle *h, std::uint32_t *err, std::uint32_t number) {
    *err = number;
    mirk_store_err(h, number);
}

// False: the slot is set, and the operation must do nothing.
inline bool enter(mirk_handle *h, const std::uint32_t *err) {
    if (*err != 0) return false;
    mirk_clear_last_error(h);
    return true;
}

inline void adjust_variant(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err) {
    mirklib_adjust_variant(h, ctx_id, object, object != nullptr ? object->tinfo : nullptr, 0, err);
}

// False: the object has no body. value_kind is 1 for accessors of booleans and enumerations.
inline bool require_body(mirk_handle *h, mirk_object *object, std::uint32_t value_kind, std::uint32_t *err) {
    if (mirk_get_instance_variant(object, 1, value_kind) >= 0) return true;
    mirk_store_epoch_err(h, EIDRM, err);
    return false;
}

// The errors of a sequence of initializations. Each step clears the handle's last error, which in a sticky call is the
// caller's slot. But all steps have to run, since an object without a header would abort a later destroy. So each step
// returns its error or gets a slot of its own, and the result is an earlier error, or else the first one of the steps.
class StepErrors {
public:
    explicit StepErrors(std::uint32_t earlier) : earlier_(earlier) {}

    void add(std::uint32_t error) {
        if (error != 0 && first_ == 0) first_ = error;
    }
    std::uint32_t *next() {
        if (own_ != 0) add(std::exchange(own_, 0));
        return &own_;
    }
    // Also restores an earlier error in the handle.
    std::uint32_t result(mirk_handle *h) {
        next();
        if (earlier_ == 0) return first_;
        mirk_store_err(h, earlier_);
        return earlier_;
    }

private:
    std::uint32_t earlier_, first_ = 0, own_ = 0;
};

enum class Tracking { no_descriptor, off, on };

// Never cached, since the client may change the mode at any time; costs two loads and two comparisons.
inline Tracking tracking_mode(const mirk_handle *h,
                              const std::uint16_t &module = g_mirk_lumo_ui_tarn_type_trace_module_id) {
    if (h->sttr_desc == nullptr) return Tracking::no_descriptor;
    const std::uint32_t mode = h->sttr_desc->sttr_mode;
    if (mode == 0xEEEE) return Tracking::on;
    if (mode != 0xDDDD) die(module, "(FATAL): Corrupted MIRK Handle");
    return Tracking::off;
}
inline bool tracks(const mirk_handle *h) { return tracking_mode(h) == Tracking::on; }

inline bool is_state_tracked(const mirk_object *object) {
    return object != nullptr && (object->obj_flag & flag::state_tracked) != 0;
}

// True if the handle has an observer of writes and counts. Only a runtime that is compiled together with the library
// answers this; any other is always notified.
#ifdef TARN_RUNTIME_INSIDE
extern "C" bool mirk_inside_is_observed(const mirk_handle *h);
inline constexpr bool runtime_inside = true;
// Inlined only in the archive: in the shared library it is not worth the size.
#define TARN_INLINE_INSIDE [[gnu::always_inline]]
inline bool is_observed(const mirk_handle *h) { return mirk_inside_is_observed(h); }
#else
inline constexpr bool runtime_inside = false;
#define TARN_INLINE_INSIDE
inline constexpr bool is_observed(const mirk_handle *) { return true; }
#endif

template <class T>
[[gnu::always_inline]] inline void notify_write(mirk_handle *h, std::uint32_t ctx_id, T *member,
                                                std::size_t size = sizeof(T)) {
    if (is_observed(h)) h->write_notify(h->mem_ctx, member, size, ctx_id);
}
template <class T>
[[gnu::always_inline]] inline void store(mirk_handle *h, std::uint32_t ctx_id, T *member, T value) {
    notify_write(h, ctx_id, member);
    *member = value;
}

inline void *allocate(mirk_handle *h, std::uint32_t ctx_id, std::size_t size) {
    return h->obj_alloc(h->mem_ctx, ctx_id, size);
}
inline void release(mirk_handle *h, std::uint32_t ctx_id, void *p) { h->obj_free(h->mem_ctx, ctx_id, p); }

}  // namespace tarn
