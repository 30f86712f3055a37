#include "tools/tarn/formats/xml_state.h"

#include <cstdlib>
#include <map>

namespace tarn::tool {

namespace {

using reflect::MemberOperations;
using reflect::RecordOperations;
using schema::Kind;

const auto *const attribute = reinterpret_cast<const xmlChar *>("state");

std::uint8_t state_of(xmlNode *node) {
    xmlChar *text = xmlGetProp(node, attribute);
    const unsigned long value = text != nullptr ? std::strtoul(reinterpret_cast<const char *>(text), nullptr, 10) : 0;
    xmlFree(text);
    return static_cast<std::uint8_t>(value);
}

xmlNode *child_named(xmlNode *node, std::string_view name) {
    for (xmlNode *child = node->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE && name == reinterpret_cast<const char *>(child->name)) return child;
    }
    return nullptr;
}

class Walk {
public:
    explicit Walk(const Handle &handle) : h_(handle.get()) {}

    void apply(xmlNode *node, const RecordOperations &record, void *instance) {
        std::map<std::string_view, const MemberOperations *> members;
        for (const MemberOperations &m : record.members) members[m.member->name] = &m;
        std::map<const MemberOperations *, std::uint32_t> seen;
        for (xmlNode *child = node->children; child != nullptr; child = child->next) {
            if (child->type != XML_ELEMENT_NODE) continue;
            const auto found = members.find(reinterpret_cast<const char *>(child->name));
            if (found == members.end()) continue;
            const MemberOperations &m = *found->second;
            if (m.member->role != schema::Role::value || m.member->kind == Kind::enumeration) continue;
            apply(child, m, instance, seen[&m]++);
        }
    }

private:
    void apply(xmlNode *node, const MemberOperations &m, void *instance, std::uint32_t index) {
        err_ = 0;
        if (m.member->kind == Kind::array) {
            m.element_state_flag_set(h_, context_id, instance, index, state_of(node), &err_);
        } else {
            m.state_flag_set(h_, context_id, instance, state_of(node), &err_);
        }
        if (m.member->record == nullptr) return;
        void *inner = m.member->kind == Kind::array ? m.element_get(h_, context_id, instance, index, &err_)
                                                    : m.get(h_, context_id, instance, &err_);
        if (inner != nullptr) apply(node, reflect::operations_of(*m.member->record), inner);
    }

    mirk_handle *h_;
    std::uint32_t err_ = 0;
};

}  // namespace

// Without recursion, since the input determines the depth.
xmlNode *following(xmlNode *node) {
    if (node->type == XML_ELEMENT_NODE && node->children != nullptr) return node->children;
    while (node != nullptr && node->next == nullptr) node = node->parent;
    return node != nullptr ? node->next : nullptr;
}

bool has_states(void *document) {
    for (xmlNode *node = xmlDocGetRootElement(static_cast<xmlDoc *>(document)); node != nullptr;
         node = following(node)) {
        if (node->type == XML_ELEMENT_NODE && node->properties != nullptr && xmlHasProp(node, attribute) != nullptr) {
            return true;
        }
    }
    return false;
}

void apply_states(const Message &message, void *document) {
    xmlNode *root = xmlDocGetRootElement(static_cast<xmlDoc *>(document));
    xmlNode *payload = child_named(root, message.operations().message->payload.name);
    if (payload != nullptr) Walk(message.handle()).apply(payload, message.record(), message.payload());
}

}  // namespace tarn::tool
