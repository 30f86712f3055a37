// The identity and the name of each message, and its linked-in handler. Each is an exported symbol; the generated list
// below specializes the traits that refer to them.
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
