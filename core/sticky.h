// Results of sticky forms. Each calls the explicit form with the handle's default_id and with the handle's last error
// as the slot, which stays set until an explicit form clears it.
#pragma once

#include "mirk/mirk.h"

namespace tarn {

// In create mode, a sentinel is returned instead of null.
template <class Call>
auto sticky_create(mirk_handle *h, Call &&call) {
    h->cr_mode = 1;
    auto *object = call();
    h->cr_mode = 0;
    return object;
}

template <class Call>
std::uint32_t sticky_zero(const mirk_handle *h, Call &&call) {
    return h->last_error != 0 ? 0 : call();
}

template <class Call>
std::uint32_t sticky_size(const mirk_handle *h, Call &&call) {
    const std::uint32_t written = call();
    return h->last_error != 0 ? 0xFFFFFFFFU : written;
}

// For operations that do not check the slot on entry.
template <class Call>
std::uint32_t sticky_checked_size(const mirk_handle *h, Call &&call) {
    return h->last_error != 0 ? 0xFFFFFFFFU : sticky_size(h, call);
}

template <class Call>
std::uint32_t sticky_error(const mirk_handle *h, Call &&call) {
    call();
    return h->last_error;
}

}  // namespace tarn
