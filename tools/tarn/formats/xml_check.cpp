#include "tools/tarn/formats/xml_check.h"

#include <arpa/inet.h>
#include <libxml/tree.h>

#include <algorithm>
#include <charconv>
#include <map>

#include "schema/model.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

using schema::Category;
using schema::Kind;
using schema::Member;
using schema::Record;
using schema::Role;

std::string_view name_of(const xmlNode *node) { return reinterpret_cast<const char *>(node->name); }

bool is_blank(std::string_view text) { return text.find_first_not_of(" \t\r\n") == std::string_view::npos; }

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

std::string text_in(xmlNode *node) {
    xmlChar *content = xmlNodeGetContent(node);
    std::string text(content != nullptr ? reinterpret_cast<const char *>(content) : "");
    xmlFree(content);
    return text;
}

template <typename Number>
bool is_number(std::string_view text, Number limit) {
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return !text.empty() && error == std::errc() && end == text.data() + text.size() && value <= limit;
}

std::vector<std::string> names_of(const Record &record) {
    std::vector<std::string> names;
    for (const Member &m : record.members) names.emplace_back(m.name);
    return names;
}

class Checker {
public:
    void check_record(xmlNode *node, const Record &record, const std::string &path);
    void add(const xmlNode *node, const std::string &path, std::string reason) {
        if (problems.first.size() == most_complaints) {
            ++problems.more;
        } else {
            problems.first.push_back({xmlGetLineNo(node), path, std::move(reason)});
        }
    }
    void check_attributes(const xmlNode *node, const std::string &path);

    Problems problems;

private:
    using Found = std::map<std::string_view, std::vector<xmlNode *>>;

    void check_member(xmlNode *node, const Member &member, const std::string &path);
    void check_counts(xmlNode *node, const Record &record, const Found &found, const std::string &path);
    void check_skipped(const Record &record, const Found &found, const std::string &path);
    void check_enumeration(xmlNode *node, const Member &member, const std::string &path);
};

void Checker::check_attributes(const xmlNode *node, const std::string &path) {
    for (const xmlAttr *a = node->properties; a != nullptr; a = a->next) {
        const std::string name(reinterpret_cast<const char *>(a->name));
        if (name != "state") {
            add(node, path, "unknown attribute " + in_quotes(name));
        } else if (const std::string value = text_in(a->children); !is_number<std::uint64_t>(value, 255)) {
            add(node, path, "state " + in_quotes(value) + " is not a number from 0 to 255");
        }
    }
}

void Checker::check_enumeration(xmlNode *node, const Member &member, const std::string &path) {
    const auto &enumerators = member.enumeration->enumerators;
    std::vector<std::string> candidates(enumerators.begin(), enumerators.end());
    std::size_t chosen = 0;
    for (xmlNode *child = node->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            ++chosen;
            const std::string name(name_of(child));
            if (std::find(candidates.begin(), candidates.end(), name) == candidates.end()) {
                add(child, path, "unknown enumerator " + in_quotes(name) + suggestion(name, candidates));
            }
        } else if (child->type == XML_TEXT_NODE && !is_blank(text_in(child))) {
            add(node, path, "an enumerator is an empty element, not text");
            return;
        }
    }
    if (chosen != 1) add(node, path, "expected exactly one enumerator, not " + std::to_string(chosen));
}

void Checker::check_member(xmlNode *node, const Member &member, const std::string &path) {
    check_attributes(node, path);
    if (member.record != nullptr) return check_record(node, *member.record, path);
    if (member.kind == Kind::enumeration) return check_enumeration(node, member, path);
    for (xmlNode *child = node->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            return add(child, path, "unexpected element " + in_quotes(name_of(child)) + " in a value");
        }
    }
    const std::string text = text_in(node);
    const std::string value(trimmed(text));
    switch (category(member.kind)) {
        case Category::boolean:
            if (value != "true" && value != "false" && value != "1" && value != "0") {
                add(node, path, in_quotes(value) + " is neither true nor false");
            }
            break;
        case Category::address:
            if (const std::string problem = address_problem(value); !problem.empty()) add(node, path, problem);
            break;
        case Category::string:
            if (text.size() > 65535) add(node, path, "more than 65535 bytes");
            break;
        case Category::integer:
            if (!is_number<std::uint64_t>(value, greatest(member.kind))) {
                add(node, path,
                    in_quotes(value) + " is not a number from 0 to " + std::to_string(greatest(member.kind)));
            }
            break;
        case Category::enumeration:
        case Category::record:
        case Category::array:
            break;  // checked above
    }
}

// The library computes counts and lengths from the elements. A different one in the document means that data is
// missing.
void Checker::check_counts(xmlNode *node, const Record &record, const Found &found, const std::string &path) {
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const Member &count = record.members[i];
        if (count.role == Role::value) continue;
        const Member &counted = record.members[i + 1];
        const auto items = found.find(counted.name);
        std::uint64_t actual = items == found.end() ? 0 : items->second.size();
        if (counted.kind == Kind::array && actual > greatest(count.kind)) {
            add(node, path,
                std::to_string(actual) + " " + std::string(counted.name) + " exceed the range of " +
                    std::string(count.name));
        }
        if (counted.kind == Kind::string && actual != 0) actual = text_in(items->second.front()).size();
        const auto given = found.find(count.name);
        if (given == found.end()) continue;
        const std::string value(trimmed(text_in(given->second.front())));
        if (is_number<std::uint64_t>(value, greatest(count.kind)) && value != std::to_string(actual)) {
            add(given->second.front(), path + "/" + std::string(count.name),
                "is " + value + ", but " + std::string(counted.name) + " has " + std::to_string(actual));
        }
    }
}

// The library does not read the member after an absent string, unless that member is a string too.
void Checker::check_skipped(const Record &record, const Found &found, const std::string &path) {
    const Member *absent = nullptr;
    for (const Member &m : record.members) {
        if (m.role != Role::value) continue;
        const auto here = found.find(m.name);
        if (m.kind == Kind::string) {
            absent = here == found.end() ? &m : nullptr;
        } else if (absent != nullptr) {
            if (here != found.end()) {
                add(here->second.front(), path + "/" + std::string(m.name),
                    "would not be read, because " + std::string(absent->name) + ", the preceding string, is absent");
            }
            absent = nullptr;
        }
    }
}

void Checker::check_record(xmlNode *node, const Record &record, const std::string &path) {
    Found found;
    for (xmlNode *child = node->children; child != nullptr; child = child->next) {
        if (child->type == XML_TEXT_NODE && !is_blank(text_in(child))) {
            add(node, path, "text " + in_quotes(trimmed(text_in(child))) + " between the members");
        }
        if (child->type != XML_ELEMENT_NODE) continue;
        const std::string name(name_of(child));
        const auto member =
            std::find_if(record.members.begin(), record.members.end(), [&](const Member &m) { return m.name == name; });
        if (member == record.members.end()) {
            add(child, path,
                std::string(record.name) + " has no member " + in_quotes(name) + suggestion(name, names_of(record)));
            continue;
        }
        auto &nodes = found[member->name];
        nodes.push_back(child);
        std::string below = path + "/" + name;
        if (member->kind == Kind::array) {
            below += "[" + std::to_string(nodes.size()) + "]";
        } else if (nodes.size() > 1) {
            add(child, below, "duplicate element");
        }
        check_member(child, *member, below);
    }
    check_counts(node, record, found, path);
    check_skipped(record, found, path);
}

bool is_list_of_members(const std::string &text) {
    constexpr std::uint64_t limits[] = {255, 65535, 0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff, 255};
    std::string_view rest(text);
    for (std::size_t i = 0; i < std::size(limits); ++i) {
        const char separator = i == 5 ? '/' : ',';
        const std::size_t end = i == 6 ? rest.size() : rest.find(separator);
        if (end == std::string_view::npos || !is_number<std::uint64_t>(rest.substr(0, end), limits[i])) return false;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return true;
}

}  // namespace

std::string address_problem(const std::string &text) {
    if (text == "unset" || is_list_of_members(text)) return {};
    const std::string not_one = in_quotes(text) + " is not an address with a prefix length";
    const std::size_t slash = text.find('/');
    if (slash == std::string::npos || !is_number<std::uint64_t>(text.substr(slash + 1), 255)) return not_one;
    std::string address = text.substr(0, slash);
    if (const std::size_t percent = address.find('%'); percent != std::string::npos) {
        if (!is_number<std::uint64_t>(address.substr(percent + 1), 65535)) return not_one;
        address.resize(percent);
    }
    unsigned char bytes[16];
    const bool v4 = inet_pton(AF_INET, address.c_str(), bytes) == 1;
    if (!v4 && inet_pton(AF_INET6, address.c_str(), bytes) != 1) return not_one;
    const std::uint64_t longest = v4 ? 32 : 128;
    if (is_number(text.substr(slash + 1), longest)) return {};
    return "the prefix length of " + in_quotes(text) + " is greater than " + std::to_string(longest);
}

Problems check_document(void *document, const schema::Message &message) {
    Checker checker;
    xmlNode *root = xmlDocGetRootElement(static_cast<xmlDoc *>(document));
    const std::string path = "/" + std::string(message.name);
    if (root == nullptr || name_of(root) != message.name) {
        checker.add(root, "/", "the root element must be \"" + std::string(message.name) + "\"");
        return checker.problems;
    }
    checker.check_attributes(root, path);
    std::size_t payloads = 0;
    for (xmlNode *child = root->children; child != nullptr; child = child->next) {
        if (child->type != XML_ELEMENT_NODE) continue;
        const std::string name(name_of(child));
        if (name != message.payload.name) {
            checker.add(child, path,
                        "unknown element " + in_quotes(name) + ", the payload is \"" +
                            std::string(message.payload.name) + "\"");
            continue;
        }
        if (++payloads == 2) checker.add(child, path, "a message has only one payload");
        checker.check_attributes(child, path + "/" + name);
        checker.check_record(child, message.payload, path + "/" + name);
    }
    if (payloads == 0) {
        checker.add(root, path, "the payload \"" + std::string(message.payload.name) + "\" is missing");
    }
    return checker.problems;
}

}  // namespace tarn::tool
