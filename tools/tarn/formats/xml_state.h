// Per-field state in XML. The library writes it as attributes but does not read them, so the tool does.
#pragma once

#include <libxml/tree.h>

#include "tools/tarn/support/handle.h"

namespace tarn::tool {

// The next node in the order of the document; null after the last.
xmlNode *following(xmlNode *node);

// True if any element has a state attribute.
bool has_states(void *document);

// Sets the state of each field of a message to the state attribute of its element in the document, or to 0.
// Enumerations, whole arrays and members of addresses have no such attribute in XML and keep their state.
void apply_states(const Message &message, void *document);

}  // namespace tarn::tool
