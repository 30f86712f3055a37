// By what a message is known: its identity and name in the catalogue, and the handler that is linked in for it. Each is
// an exported symbol, reached through the traits that the generated list below fills in.
#pragma once

#include "core/guard.h"
#include "schema/catalogue.h"

namespace tarn {

using schema::Bundle;
using schema::Message;

enum class Control { start, abort, commit };

template <const Message &M>
struct Identity;
template <const Bundle &B, Control K>
struct ControlIdentity;
template <const Bundle &B>
struct BundleIdentity;

}  // namespace tarn

#include "exports/identity.inc"
