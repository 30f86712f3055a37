// Finds elements by path without searching the document each time. The library reads the members of a record in
// sequence and the elements of an array in ascending order, so a path usually shares its first steps with the previous
// one: each step of the last path is kept with the elements that it matched. Where a search would pass many elements,
// it is made once and its result is kept by name.
#pragma once

#include <libxml/tree.h>

#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace mirk {

// The document must not change during the lifetime of its memo.
class PathMemo {
public:
    // Numbers the elements in document order.
    explicit PathMemo(xmlDoc *document);

    // The elements at a path like "//name/child/child[3]", with names without prefixes, in document order. Valid until
    // the next call. Null for any other form of path.
    const std::span<xmlNode *const> *find(std::string_view path);

private:
    // The name comes from the document's dictionary, so equal names have equal addresses; null if no element has it.
    // Positions count from 1; 0 means all.
    struct Step {
        const xmlChar *name;
        size_t position;
        size_t end;  // offset in the path
    };
    using Found = std::vector<xmlNode *>;
    using Children = std::unordered_map<const xmlChar *, Found>;  // of one element, by name
    struct Everywhere {
        Found nodes;
        bool nested = false;
    };
    struct Level {
        Step step;
        std::span<xmlNode *const> nodes;  // in `found` or in one of the tables below
        Found found;
        bool nested;               // one of the nodes is inside another
        const Children *children;  // of the only node, if it has many
        Found few;                 // its children otherwise
        bool children_known;
    };

    bool split(std::string_view path, size_t from);
    void find_everywhere(Level *level);
    void find_children(Level *parents, Level *level);
    void find_in_one(Level *parents, Level *level);
    const Children *many_children(const xmlNode *parent, Found *few);
    static void sort(Level *level);

    xmlDoc *document_;
    std::string path_;           // the last path
    std::vector<Level> levels_;  // its steps; may have more elements than that
    size_t depth_ = 0;           // number of its steps
    std::unordered_map<const xmlChar *, Everywhere> everywhere_;
    std::unordered_map<const xmlNode *, Children> many_children_;
    std::vector<Step> steps_;  // steps of the current path after the shared ones
};

}  // namespace mirk
