// A bundle as it travels, and a handle that takes whatever comes.
#pragma once

#include "damage.h"

namespace trust {

// Messages that a bundle brought, and messages that came alone. Each was looked at from all sides.
struct Received {
    std::size_t in_bundles = 0, alone = 0;
};

// Start, message, message, commit.
Bytes bundle_stream(const reference::BundleTable &table, bool tracked);

// Registers all messages and bundles with a dispatch whose context is a Received.
void enlist(mirk_handle *h);

}  // namespace trust
