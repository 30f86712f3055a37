// The frames of a bundle, and a handle that accepts all messages.
#pragma once

#include "damage.h"

namespace trust {

// Messages that were received in a bundle, and messages outside of bundles. All operations were run on each.
struct Received {
    std::size_t in_bundles = 0, alone = 0;
};

// Start, message, message, commit.
Bytes bundle_stream(const reference::BundleTable &table, bool tracked);

// Registers all messages and bundles with a dispatch whose context is a Received.
void enlist(mirk_handle *h);

}  // namespace trust
