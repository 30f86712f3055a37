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

// Most of these tests cause errors, which should not be printed.
inline const bool only_fatal_lines = (mirk_platform_trace_set_levels(1), true);

// The sticky create of a failed chain returns the sentinel.
inline void *sentinel(const RecordOperations &r) {
    Handle h;
    h->last_error = ENOMEM;
    return r.create_cr(h);
}

// The state area of a top-level object directly follows it.
inline std::uint8_t *area(const RecordOperations &r, void *object) { return bytes(object) + table(r).base; }

inline mirk_variant_entry &entry(const mirk_type_info &type, int variant = 0) {
    return type.variant_info->entries[variant];
}

}  // namespace families
