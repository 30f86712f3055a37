// How operations begin and how they fail.
//
// An operation that finds its error slot set does nothing. Otherwise it clears the handle's last error; a writer brings
// the object to the domain's variant; and a negative variant, which has no body, refuses the operation with EIDRM.
// Failures are system error numbers, written to the slot and to the handle. Corrupt memory is no failure but the end of
// the process.
#pragma once

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "core/object.h"

extern "C" {
extern std::uint16_t g_mirk_lumo_ui_tarn_type_trace_module_id;
extern std::uint16_t g_mirk_lumo_ui_tarn_message_trace_module_id;
extern std::uint16_t g_mirk_lumo_ui_tarn_stub_trace_module_id;
}

namespace tarn {

inline constexpr std::uint32_t fatal_level = 0, error_level = 3, info_level = 6, debug_level = 7;

// The runtime gives a module its number when the first object of the process is made, which may be on another thread
// than the one that has something to tell.
inline std::uint16_t number_of(const std::uint16_t &module) { return __atomic_load_n(&module, __ATOMIC_RELAXED); }

// Record and enumeration code traces here; messages have a module of their own.
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

// False: the slot was set and the operation must not begin.
inline bool enter(mirk_handle *h, const std::uint32_t *err) {
    if (*err != 0) return false;
    mirk_clear_last_error(h);
    return true;
}

inline void adjust_variant(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err) {
    mirklib_adjust_variant(h, ctx_id, object, object != nullptr ? object->tinfo : nullptr, 0, err);
}

// False: the object has no body. The pair of words names the kind of member that asks.
inline bool require_body(mirk_handle *h, mirk_object *object, std::uint32_t value_kind, std::uint32_t *err) {
    if (mirk_get_instance_variant(object, 1, value_kind) >= 0) return true;
    mirk_store_epoch_err(h, EIDRM, err);
    return false;
}

// A sequence of initialisations clears the last error each time, and in a sticky call that is the caller's own slot.
// The sequence has to run to its end all the same, since an object without a header would abort a later destroy. So an
// error that was there is put aside, each step works on a word of its own, and the first error is back in the slot at
// the end.
class StepErrors {
public:
    StepErrors(mirk_handle *h, std::uint32_t *slot) : h_(h), slot_(slot), before_(*slot) {}
    StepErrors(const StepErrors &) = delete;
    StepErrors &operator=(const StepErrors &) = delete;
    ~StepErrors() {
        take();
        if (before_ != 0) {
            fail(h_, slot_, before_);
        } else if (first_ != 0) {
            *slot_ = first_;
        }
    }
    std::uint32_t *next() {
        take();
        return &own_;
    }

private:
    void take() {
        if (first_ == 0) first_ = own_;
        own_ = 0;
    }

    mirk_handle *h_;
    std::uint32_t *slot_;
    std::uint32_t before_, first_ = 0, own_ = 0;
};

enum class Tracking { no_descriptor, off, on };

// Read afresh on every use: two loads and two comparisons.
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

// Whether anybody hears what is announced and counted. Only a runtime that is compiled as one with the library can say
// so; any other is told.
#ifdef TARN_RUNTIME_INSIDE
extern "C" bool mirk_inside_is_observed(const mirk_handle *h);
inline constexpr bool runtime_inside = true;
// Inlined in the archive alone: elsewhere it is not worth the size.
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
