// Per-field state in XML. The library writes it as attributes and does not read them back, so the tool applies it.
#pragma once

#include "tools/tarn/support/handle.h"

namespace tarn::tool {

// True if any element has a state attribute.
bool has_states(void *document);

// Gives the fields of a message that was read from the document the states of their elements, 0 where there is none.
// XML has no states for enumerations, whole arrays and members of addresses; these keep theirs.
void apply_states(const Message &message, void *document);

}  // namespace tarn::tool
