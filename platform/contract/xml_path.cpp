#include "platform/contract/xml_path.hpp"

#include <libxml/dict.h>

#include <algorithm>
#include <cstdint>

#include "platform/contract/text.hpp"

namespace mirk {
namespace {

bool is_name(std::string_view text) {
    const auto letter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; };
    const auto inner = [&](char c) { return letter(c) || (c >= '0' && c <= '9') || c == '-' || c == '.'; };
    return !text.empty() && letter(text[0]) && std::all_of(text.begin(), text.end(), inner);
}

bool matches(const xmlNode *node, const xmlChar *name) {
    // A name without a prefix matches only elements without a namespace.
    return node->type == XML_ELEMENT_NODE && node->name == name && node->ns == nullptr;
}

xmlNode *next_match(xmlNode *from, const xmlChar *name) {
    while (from != nullptr && !matches(from, name)) from = from->next;
    return from;
}

uintptr_t number_of(const xmlNode *node) { return reinterpret_cast<uintptr_t>(node->_private); }

// The next node of a walk through the whole tree. Not recursive, since the sender controls the depth.
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

PathMemo::PathMemo(xmlDoc *document) : document_(document) {
    uintptr_t number = 0;
    for (xmlNode *node = document->children; node != nullptr; node = following(node)) {
        if (node->type == XML_ELEMENT_NODE) node->_private = reinterpret_cast<void *>(++number);
    }
}

// Splits the path from the offset `from`, which is the end of a step or, initially, the offset of the second slash.
bool PathMemo::split(std::string_view path, size_t from) {
    steps_.clear();
    while (from != path.size()) {
        const size_t begin = from + 1;
        const size_t end = std::min(path.find('/', begin), path.size());
        std::string_view name = path.substr(begin, end - begin);
        Step step{nullptr, 0, end};
        if (!name.empty() && name.back() == ']') {
            const size_t open = name.find('[');
            // A position after the first name counts among siblings, not in the document.
            if (open == std::string_view::npos || begin == 2) return false;
            const std::string_view digits = name.substr(open + 1, name.size() - open - 2);
            if (!parse_decimal(digits, &step.position) || step.position == 0) return false;
            name = name.substr(0, open);
        }
        if (!is_name(name)) return false;
        const auto *letters = reinterpret_cast<const xmlChar *>(name.data());
        step.name = xmlDictExists(document_->dict, letters, static_cast<int>(name.size()));
        steps_.push_back(step);
        from = end;
    }
    return true;
}

const std::vector<xmlNode *> *PathMemo::find(std::string_view path) {
    if (path.size() < 3 || path.substr(0, 2) != "//" || document_->dict == nullptr) return nullptr;
    const auto differs = std::mismatch(path.begin(), path.end(), path_.begin(), path_.end()).first;
    const auto common = static_cast<size_t>(differs - path.begin());
    size_t kept = 0;
    for (; kept < depth_; ++kept) {
        const size_t end = levels_[kept].step.end;
        if (end > common || (end != path.size() && path[end] != '/')) break;
    }
    if (!split(path, kept == 0 ? 1 : levels_[kept - 1].step.end)) return nullptr;

    const size_t known = depth_;
    path_ = path;
    depth_ = kept;
    if (levels_.size() < kept + steps_.size()) levels_.resize(kept + steps_.size());
    for (const Step &step : steps_) {
        Level &level = levels_[depth_];
        // A later position of the same array continues from the previous one.
        const bool same_array = depth_ == kept && depth_ < known && level.step.name == step.name &&
                                level.step.position != 0 && level.step.position <= step.position;
        if (same_array) {
            advance(step.position, &level);
        } else {
            level.nodes.clear();
            level.nested = false;
            level.step = step;
            if (depth_ == 0) {
                find_everywhere(&level);
            } else {
                find_children(levels_[depth_ - 1], &level);
            }
        }
        level.step = step;
        ++depth_;
    }
    return &levels_[depth_ - 1].nodes;
}

void PathMemo::find_everywhere(Level *level) const {
    if (level->step.name == nullptr) return;
    for (xmlNode *node = document_->children; node != nullptr; node = following(node)) {
        if (!matches(node, level->step.name)) continue;
        // While no node is nested, a node inside an earlier one can only be inside the last one.
        if (!level->nested && !level->nodes.empty() && inside(node, level->nodes.back())) level->nested = true;
        level->nodes.push_back(node);
    }
}

void PathMemo::find_children(const Level &parents, Level *level) {
    level->nested = parents.nested;
    const auto &[name, position, end] = level->step;
    if (name == nullptr) return;
    for (xmlNode *parent : parents.nodes) {
        xmlNode *node = next_match(parent->children, name);
        if (position == 0) {
            for (; node != nullptr; node = next_match(node->next, name)) level->nodes.push_back(node);
        } else {
            for (size_t i = 1; i < position && node != nullptr; ++i) node = next_match(node->next, name);
            if (node != nullptr) level->nodes.push_back(node);
        }
    }
    sort(level);
}

void PathMemo::advance(size_t position, Level *level) {
    for (size_t at = level->step.position; at < position; ++at) {
        for (xmlNode *&node : level->nodes) node = next_match(node->next, level->step.name);
        std::erase(level->nodes, nullptr);
    }
    sort(level);
}

void PathMemo::sort(Level *level) {
    // Without nested parents the children are already in document order.
    if (!level->nested) return;
    std::sort(level->nodes.begin(), level->nodes.end(),
              [](const xmlNode *a, const xmlNode *b) { return number_of(a) < number_of(b); });
}

}  // namespace mirk
