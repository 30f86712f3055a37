// Per-field state in XML. The library shows it as attributes and does not read them back, so the tool puts it in place.
#pragma once

#include "tools/tarn/support/handle.h"

namespace tarn::tool {

// Whether any element bears a state.
bool has_states(void *document);

// Gives the fields of a message that was read from the document the states of their elements, 0 where there is none.
// The form has no place for the states of enumerations, of whole arrays and inside addresses; these stay as they are.
void apply_states(const Message &message, void *document);

}  // namespace tarn::tool
