// Finds elements by path without searching the document each time. The library reads the members of a record in
// sequence and the elements of an array in ascending order, so a path usually shares its first steps with the previous
// one. Each step of the last path is kept with the elements that it matched.
#pragma once

#include <libxml/tree.h>

#include <string>
#include <string_view>
#include <vector>

namespace mirk {

// The document must not change during the lifetime of its memo.
class PathMemo {
public:
    // Numbers the elements in document order.
    explicit PathMemo(xmlDoc *document);

    // The elements at a path like "//name/child/child[3]", with names without prefixes, in document order. Valid until
    // the next call. Null for any other form of path.
    const std::vector<xmlNode *> *find(std::string_view path);

private:
    // The name comes from the document's dictionary, so equal names have equal addresses; null if no element has it.
    // Positions count from 1; 0 means all.
    struct Step {
        const xmlChar *name;
        size_t position;
        size_t end;  // offset in the path
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
    std::string path_;           // the last path
    std::vector<Level> levels_;  // its steps; may have more elements than that
    size_t depth_ = 0;           // number of its steps
    std::vector<Step> steps_;    // steps of the current path after the shared ones
};

}  // namespace mirk
