#include "platform/contract/xml_path.hpp"

#include <libxml/dict.h>

#include <algorithm>
#include <cstdint>
#include <utility>

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

const std::span<xmlNode *const> *PathMemo::find(std::string_view path) {
    if (path.size() < 3 || path.substr(0, 2) != "//" || document_->dict == nullptr) return nullptr;
    // The steps that both paths begin with.
    const std::string_view last = path_;
    const auto is_shared = [&](size_t end) {
        return end <= path.size() && (end == path.size() || path[end] == '/') &&
               path.substr(0, end) == last.substr(0, end);
    };
    size_t kept = depth_;
    while (kept != 0 && !is_shared(levels_[kept - 1].step.end)) --kept;
    if (!split(path, kept == 0 ? 1 : levels_[kept - 1].step.end)) return nullptr;

    path_ = path;
    depth_ = kept;
    if (levels_.size() < kept + steps_.size()) levels_.resize(kept + steps_.size());
    for (const Step &step : steps_) {
        Level &level = levels_[depth_];
        level.step = step;
        level.nodes = {};
        level.found.clear();
        level.nested = level.children_known = false;
        if (step.name != nullptr) {
            if (depth_ == 0) {
                find_everywhere(&level);
            } else {
                find_children(&levels_[depth_ - 1], &level);
            }
        }
        ++depth_;
    }
    return &levels_[depth_ - 1].nodes;
}

void PathMemo::find_everywhere(Level *level) {
    const xmlChar *const name = level->step.name;
    auto known = everywhere_.find(name);
    if (known == everywhere_.end()) {
        Everywhere all;
        for (xmlNode *node = document_->children; node != nullptr; node = following(node)) {
            if (!matches(node, name)) continue;
            // While no node is nested, a node inside an earlier one can only be inside the last one.
            if (!all.nested && !all.nodes.empty() && inside(node, all.nodes.back())) all.nested = true;
            all.nodes.push_back(node);
        }
        known = everywhere_.emplace(name, std::move(all)).first;
    }
    level->nodes = known->second.nodes;
    level->nested = known->second.nested;
}

void PathMemo::find_children(Level *parents, Level *level) {
    if (parents->nodes.size() == 1) return find_in_one(parents, level);
    const auto &[name, position, end] = level->step;
    Found &found = level->found;
    for (const xmlNode *parent : parents->nodes) {
        if (const Children *const children = many_children(parent, nullptr); children != nullptr) {
            const auto known = children->find(name);
            if (known == children->end()) continue;
            const Found &all = known->second;
            if (position == 0) {
                found.insert(found.end(), all.begin(), all.end());
            } else if (position <= all.size()) {
                found.push_back(all[position - 1]);
            }
            continue;
        }
        size_t at = 0;
        for (xmlNode *node = parent->children; node != nullptr; node = node->next) {
            if (matches(node, name) && (++at == position || position == 0)) found.push_back(node);
        }
    }
    level->nested = parents->nested;
    sort(level);
    level->nodes = found;
}

// A record is read member by member, so the children of its element are listed once.
void PathMemo::find_in_one(Level *parents, Level *level) {
    if (!parents->children_known) {
        parents->children = many_children(parents->nodes[0], &parents->few);
        parents->children_known = true;
    }
    const auto &[name, position, end] = level->step;
    if (parents->children == nullptr) {
        size_t at = 0;
        for (xmlNode *node : parents->few) {
            if (node->name == name && (++at == position || position == 0)) level->found.push_back(node);
        }
        level->nodes = level->found;
    } else if (const auto known = parents->children->find(name); known != parents->children->end()) {
        const std::span<xmlNode *const> all = known->second;
        if (position <= all.size()) level->nodes = position == 0 ? all : all.subspan(position - 1, 1);
    }
    level->nested = false;
}

// Null if the element has few children, which are searched faster than a table.
const PathMemo::Children *PathMemo::many_children(const xmlNode *parent, Found *few) {
    if (!many_children_.empty()) {
        if (const auto known = many_children_.find(parent); known != many_children_.end()) return &known->second;
    }
    constexpr size_t most = 200;
    size_t count = 0;
    if (few != nullptr) few->clear();
    for (xmlNode *node = parent->children; node != nullptr && count <= most; node = node->next) {
        ++count;
        if (few != nullptr && node->type == XML_ELEMENT_NODE && node->ns == nullptr) few->push_back(node);
    }
    if (count <= most) return nullptr;
    Children children;
    for (xmlNode *node = parent->children; node != nullptr; node = node->next) {
        if (node->type == XML_ELEMENT_NODE && node->ns == nullptr) children[node->name].push_back(node);
    }
    return &many_children_.emplace(parent, std::move(children)).first->second;
}

void PathMemo::sort(Level *level) {
    // Without nested parents the children are already in document order.
    if (!level->nested) return;
    std::sort(level->found.begin(), level->found.end(),
              [](const xmlNode *a, const xmlNode *b) { return number_of(a) < number_of(b); });
}

}  // namespace mirk
