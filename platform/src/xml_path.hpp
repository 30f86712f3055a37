// Finding elements by path without searching the document for each. The library asks for the members of a record one
// after the other, and for the elements of an array by rising positions; a path therefore shares its front with the one
// before it. Each step of the last path is kept with the elements that it led to.
#pragma once

#include <libxml/tree.h>

#include <string>
#include <string_view>
#include <vector>

namespace mirk {

// "//name/child/child[3]", names without prefix. False for any other path.
struct PathStep {
    std::string_view name;
    size_t position = 0;  // counted from 1; 0: all
};
bool split_path(std::string_view path, std::vector<PathStep> *steps);

// Belongs to a document, which is not changed while this lives.
class PathMemo {
public:
    // Numbers the elements in document order.
    explicit PathMemo(xmlDoc *document);

    // Elements at the path, in document order; valid until the next call.
    const std::vector<xmlNode *> &resolve(const std::vector<PathStep> &steps);

private:
    struct Level {
        std::string name;
        size_t position = 0;
        std::vector<xmlNode *> nodes;
        bool nested = false;  // one of the nodes lies inside another
    };

    void find_everywhere(std::string_view name, Level *level) const;
    static void find_children(const Level &parents, const PathStep &step, Level *level);
    static bool advance(const PathStep &step, Level *level);
    static void sort(Level *level);

    xmlDoc *document_;
    std::vector<Level> levels_;
};

}  // namespace mirk
