// What a kind of single-valued member is in memory and does in each family: one specialization of StorageOf and one of
// PrimitiveOf a kind, in a file of its own. Arrays and strings are not here, since each family treats their elements
// and characters itself.
//
// May know: core/, and the families by name alone.
#pragma once

#include "core/walk.h"

namespace tarn {

// Of is the type that a kind has besides: the enumeration, the record.
template <Kind K, auto Of>
struct PrimitiveOf;

// F is a Field.
template <class F>
using Primitive = PrimitiveOf<F::kind, F::of>;

}  // namespace tarn
