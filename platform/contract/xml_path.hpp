// Finding elements by path without searching the document for each. The library asks for the members of a record one
// after the other, and for the elements of an array by rising positions; a path therefore shares its front with the one
// before it. Each step of the last path is kept with the elements that it led to.
#pragma once

#include <libxml/tree.h>

#include <string>
#include <string_view>
#include <vector>

namespace mirk {

// Belongs to a document, which is not changed while this lives.
class PathMemo {
public:
    // Numbers the elements in document order.
    explicit PathMemo(xmlDoc *document);

    // Elements at a path "//name/child/child[3]" with names without prefix, in document order; valid until the next
    // call. Null for any other path.
    const std::vector<xmlNode *> *find(std::string_view path);

private:
    // A name is as the document's dictionary holds it, so that two are equal if their addresses are; null if no element
    // bears it. A position counts from 1; 0 stands for all.
    struct Step {
        const xmlChar *name;
        size_t position;
        size_t end;  // in the path
    };
    struct Level {
        Step step;
        std::vector<xmlNode *> nodes;
        bool nested;  // one of the nodes lies inside another
    };

    bool split(std::string_view path, size_t from);
    void find_everywhere(Level *level) const;
    static void find_children(const Level &parents, Level *level);
    static void advance(size_t position, Level *level);
    static void sort(Level *level);

    xmlDoc *document_;
    std::string path_;           // the last one
    std::vector<Level> levels_;  // its steps, and room that is kept
    size_t depth_ = 0;           // how many of them are its own
    std::vector<Step> steps_;    // of the path at hand, behind the front that it shares
};

}  // namespace mirk
