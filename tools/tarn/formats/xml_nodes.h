// A walk through the nodes of a parsed document.
#pragma once

#include <libxml/tree.h>

namespace tarn::tool {

// The next node below the root, in document order; null after the last one. Not recursive, since the input determines
// the depth.
inline const xmlNode *following(const xmlNode *node, const xmlNode *root) {
    if (node->type == XML_ELEMENT_NODE && node->children != nullptr) return node->children;
    while (node != root && node->next == nullptr) node = node->parent;
    return node == root ? nullptr : node->next;
}

}  // namespace tarn::tool
