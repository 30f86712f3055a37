#include "xml_path.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "text.hpp"

namespace mirk {
namespace {

bool is_name(std::string_view text) {
    const auto letter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; };
    const auto inner = [&](char c) { return letter(c) || (c >= '0' && c <= '9') || c == '-' || c == '.'; };
    return !text.empty() && letter(text[0]) && std::all_of(text.begin(), text.end(), inner);
}

bool matches(const xmlNode *node, std::string_view name) {
    // A name without prefix stands for an element in no namespace.
    if (node->type != XML_ELEMENT_NODE || node->ns != nullptr) return false;
    const char *own = reinterpret_cast<const char *>(node->name);
    return std::strncmp(own, name.data(), name.size()) == 0 && own[name.size()] == 0;
}

xmlNode *next_match(xmlNode *from, std::string_view name) {
    while (from != nullptr && !matches(from, name)) from = from->next;
    return from;
}

uintptr_t number_of(const xmlNode *node) { return reinterpret_cast<uintptr_t>(node->_private); }

// Next node of a walk through the whole tree, without recursion: depth is the sender's choice.
xmlNode *following(xmlNode *node) {
    if (node->type == XML_ELEMENT_NODE && node->children != nullptr) return node->children;
    while (node != nullptr && node->next == nullptr) {
        node = node->parent;
        if (node == nullptr || node->type == XML_DOCUMENT_NODE) return nullptr;
    }
    return node != nullptr ? node->next : nullptr;
}

bool inside(const xmlNode *node, const xmlNode *ancestor) {
    for (; node != nullptr; node = node->parent) {
        if (node == ancestor) return true;
    }
    return false;
}

}  // namespace

bool split_path(std::string_view path, std::vector<PathStep> *steps) {
    if (path.substr(0, 2) != "//") return false;
    path.remove_prefix(1);
    while (!path.empty()) {
        path.remove_prefix(1);
        const size_t end = std::min(path.find('/'), path.size());
        std::string_view text = path.substr(0, end);
        path.remove_prefix(end);
        if (path == "/") return false;
        PathStep step;
        if (!text.empty() && text.back() == ']') {
            const size_t open = text.find('[');
            // A position behind the first name counts among siblings and not in the document.
            if (open == std::string_view::npos || steps->empty()) return false;
            const std::string_view digits = text.substr(open + 1, text.size() - open - 2);
            if (!parse_decimal(digits, &step.position) || step.position == 0) return false;
            text = text.substr(0, open);
        }
        if (!is_name(text)) return false;
        step.name = text;
        steps->push_back(step);
    }
    return !steps->empty();
}

PathMemo::PathMemo(xmlDoc *document) : document_(document) {
    uintptr_t number = 0;
    for (xmlNode *node = document->children; node != nullptr; node = following(node)) {
        if (node->type == XML_ELEMENT_NODE) node->_private = reinterpret_cast<void *>(++number);
    }
}

const std::vector<xmlNode *> &PathMemo::resolve(const std::vector<PathStep> &steps) {
    size_t depth = 0;
    for (; depth < steps.size() && depth < levels_.size(); ++depth) {
        Level &level = levels_[depth];
        const PathStep &step = steps[depth];
        if (level.name != step.name) break;
        if (level.position != step.position) {
            // The next position of the same array goes on from where the last one stood.
            if (advance(step, &level)) ++depth;
            break;
        }
    }
    levels_.resize(depth);
    for (; depth < steps.size(); ++depth) {
        Level level;
        level.name = steps[depth].name;
        level.position = steps[depth].position;
        if (depth == 0) {
            find_everywhere(steps[depth].name, &level);
        } else {
            find_children(levels_[depth - 1], steps[depth], &level);
        }
        levels_.push_back(std::move(level));
    }
    return levels_.back().nodes;
}

void PathMemo::find_everywhere(std::string_view name, Level *level) const {
    for (xmlNode *node = document_->children; node != nullptr; node = following(node)) {
        if (!matches(node, name)) continue;
        // As long as none is nested, a node that lies in an earlier one must lie in the last.
        if (!level->nested && !level->nodes.empty() && inside(node, level->nodes.back())) level->nested = true;
        level->nodes.push_back(node);
    }
}

void PathMemo::find_children(const Level &parents, const PathStep &step, Level *level) {
    level->nested = parents.nested;
    for (xmlNode *parent : parents.nodes) {
        xmlNode *node = next_match(parent->children, step.name);
        if (step.position == 0) {
            for (; node != nullptr; node = next_match(node->next, step.name)) level->nodes.push_back(node);
        } else {
            for (size_t i = 1; i < step.position && node != nullptr; ++i) node = next_match(node->next, step.name);
            if (node != nullptr) level->nodes.push_back(node);
        }
    }
    sort(level);
}

bool PathMemo::advance(const PathStep &step, Level *level) {
    if (level->position == 0 || step.position < level->position) return false;
    for (; level->position < step.position; ++level->position) {
        for (xmlNode *&node : level->nodes) node = next_match(node->next, step.name);
        std::erase(level->nodes, nullptr);
    }
    sort(level);
    return true;
}

void PathMemo::sort(Level *level) {
    // Without nested parents the children come out in order by themselves.
    if (!level->nested) return;
    std::sort(level->nodes.begin(), level->nodes.end(),
              [](const xmlNode *a, const xmlNode *b) { return number_of(a) < number_of(b); });
}

}  // namespace mirk
