// The reference runtime as these tests use it.
#pragma once

#include "kit/events.h"
#include "kit/handle.h"
#include "kit/trace.h"
#include "lumo_ui_tarn.h"
#include "records.h"

namespace families {

using kit::Events;
using kit::Handle;
using kit::Lines;
using kit::Trace;
using kit::Tracking;

// Errors are what most of these tests provoke, and they need not be shown.
inline const bool quiet = (mirk_platform_trace_set_levels(1), true);

// The sticky create of a failed chain hands out the sentinel.
inline void *sentinel(const RecordOperations &r) {
    Handle h;
    h->last_error = ENOMEM;
    return r.create_cr(h);
}

// A top-level object's area stands directly behind it.
inline std::uint8_t *area(const RecordOperations &r, void *object) { return bytes(object) + table(r).base; }

inline mirk_variant_entry &entry(const mirk_type_info &type, int variant = 0) {
    return type.variant_info->entries[variant];
}

}  // namespace families
