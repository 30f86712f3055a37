// What a kind of single-valued member is in memory and does in each family: one specialization of StorageOf and one of
// PrimitiveOf per kind, each kind in a file of its own. Arrays and strings have none, since each family handles their
// elements and characters itself.
//
// The layer kinds/ may know core/, the schema and the contract, and of the families only their names.
#pragma once

#include "core/walk.h"

namespace tarn {

// Of is the member's enumeration or record; null for other kinds.
template <Kind K, auto Of>
struct PrimitiveOf;

// F is a Field.
template <class F>
using Primitive = PrimitiveOf<F::kind, F::of>;

}  // namespace tarn
