#include "tools/tarn/formats/xml_check.h"

#include <libxml/tree.h>
#include <sys/socket.h>

#include <algorithm>
#include <charconv>
#include <span>
#include <string>
#include <vector>

#include "mirk_platform.h"
#include "schema/model.h"
#include "tools/tarn/formats/xml_state.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"

namespace tarn::tool {

namespace {

using namespace schema;

std::string_view name_of(const xmlNode *node) { return reinterpret_cast<const char *>(node->name); }

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
    while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
    return text;
}

// The text of a node and of what is in it.
class Text {
public:
    explicit Text(xmlNode *node) {
        const xmlNode *child = node->type == XML_ELEMENT_NODE ? node->children : node;
        if (child == nullptr) return;
        const bool is_in_place = child->type == XML_TEXT_NODE && (child == node || child->next == nullptr);
        if (!is_in_place) owned_ = xmlNodeGetContent(node);
        const xmlChar *text = is_in_place ? child->content : owned_;
        if (text != nullptr) view_ = reinterpret_cast<const char *>(text);
    }
    Text(const Text &) = delete;
    Text &operator=(const Text &) = delete;
    ~Text() { xmlFree(owned_); }

    std::string_view view() const { return view_; }
    std::string_view value() const { return trimmed(view_); }

private:
    xmlChar *owned_ = nullptr;
    std::string_view view_;
};

bool is_number(std::string_view text, std::uint64_t limit) {
    std::uint64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return !text.empty() && error == std::errc() && end == text.data() + text.size() && value <= limit;
}

std::vector<std::string> names_of(const Record &record) {
    std::vector<std::string> names;
    for (const Member &m : record.members) names.emplace_back(m.name);
    return names;
}

// The number of an element in the order of the document.
std::size_t ordinal_of(const xmlNode *element) {
    std::size_t number = 0;
    for (xmlNode *node = xmlDocGetRootElement(element->doc); node != nullptr; node = following(node)) {
        if (node->type == XML_ELEMENT_NODE) ++number;
        if (node == element) break;
    }
    return number;
}

// Where the element with this number begins in a well-formed text.
std::size_t offset_of(std::size_t ordinal, std::string_view text) {
    std::size_t at = 0;
    const auto skip = [&](std::string_view end) { at = std::min(text.find(end, at), text.size()); };
    for (;;) {
        at = text.find('<', at);
        if (at == std::string_view::npos) return text.size();
        const std::string_view rest = text.substr(at);
        if (rest.starts_with("<!--")) {
            skip("-->");
        } else if (rest.starts_with("<![CDATA[")) {
            skip("]]>");
        } else if (rest.starts_with("<?")) {
            skip("?>");
        } else if (!rest.starts_with("</") && --ordinal == 0) {
            return at;
        }
        ++at;
    }
}

class Checker {
public:
    Checker(const Fragment &fragment, ProblemList &problems) : fragment_(fragment), problems_(problems) {}

    void check_message(xmlNode *root, const schema::Message &message);
    bool has_states() const { return has_states_; }

private:
    // The elements of a member.
    struct Found {
        xmlNode *first = nullptr;
        std::size_t count = 0;
    };

    // The reason is a function that returns it.
    template <class Reason>
    void add(const xmlNode *node, const Path &path, const Reason &reason) {
        problems_.add([&] {
            const std::size_t at = node != nullptr ? offset_of(ordinal_of(node), fragment_.text) : 0;
            return Problem{fragment_.begin.after(fragment_.text.substr(0, at)), "/" + path.text(), reason(), {}};
        });
    }

    void check_record(xmlNode *node, const Record &record, const Path &path);
    void check_member(xmlNode *node, const Member &member, const Path &path);
    void check_value(xmlNode *node, const Member &member, const Path &path);
    void check_attributes(const xmlNode *node, const Path &path);
    void check_blank(xmlNode *node, const Path &path);
    void check_enumeration(xmlNode *node, const Member &member, const Path &path);
    void check_counts(xmlNode *node, const Record &record, std::span<const Found> found, const Path &path);
    void check_skipped(const Record &record, std::span<const Found> found, const Path &path);

    const Fragment &fragment_;
    ProblemList &problems_;
    bool has_states_ = false;
};

void Checker::check_attributes(const xmlNode *node, const Path &path) {
    for (const xmlAttr *a = node->properties; a != nullptr; a = a->next) {
        const std::string_view name = reinterpret_cast<const char *>(a->name);
        if (name == "state") has_states_ = true;
        if (name != "state") {
            add(node, path, [&] { return "unknown attribute " + in_quotes(name); });
        } else if (a->children == nullptr || !is_number(Text(a->children).view(), 255)) {
            add(node, path, [&] {
                const std::string state = a->children != nullptr ? in_quotes(Text(a->children).view()) : "\"\"";
                return "state " + state + " is not a number from 0 to 255";
            });
        }
    }
}

void Checker::check_enumeration(xmlNode *node, const Member &member, const Path &path) {
    const auto &enumerators = member.enumeration->enumerators;
    std::size_t chosen = 0;
    for (xmlNode *child = node->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            ++chosen;
            check_attributes(child, path);
            const std::string_view name = name_of(child);
            if (std::find(enumerators.begin(), enumerators.end(), name) == enumerators.end()) {
                add(child, path, [&] {
                    return "unknown enumerator " + in_quotes(name) +
                           suggestion(name, std::vector<std::string>(enumerators.begin(), enumerators.end()));
                });
            }
        } else if (child->type == XML_TEXT_NODE && !Text(child).value().empty()) {
            return add(node, path, [] { return std::string("an enumerator is an empty element, not text"); });
        }
    }
    if (chosen != 1) {
        add(node, path, [&] { return "expected exactly one enumerator, not " + std::to_string(chosen); });
    }
}

void Checker::check_member(xmlNode *node, const Member &member, const Path &path) {
    check_attributes(node, path);
    if (member.record != nullptr) return check_record(node, *member.record, path);
    if (member.kind == Kind::enumeration) return check_enumeration(node, member, path);
    for (xmlNode *child = node->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            return add(child, path, [&] { return "unexpected element " + in_quotes(name_of(child)) + " in a value"; });
        }
    }
    check_value(node, member, path);
}

void Checker::check_value(xmlNode *node, const Member &member, const Path &path) {
    const Text text(node);
    const std::string_view value = text.value();
    switch (category(member.kind)) {
        case Category::boolean:
            if (value != "true" && value != "false" && value != "1" && value != "0") {
                add(node, path, [&] { return in_quotes(value) + " is neither true nor false"; });
            }
            break;
        case Category::address:
            if (const std::string problem = address_problem(value); !problem.empty()) {
                add(node, path, [&] { return problem; });
            }
            break;
        case Category::string:
            if (text.view().size() > 65535) add(node, path, [] { return std::string("more than 65535 bytes"); });
            break;
        case Category::integer:
            if (!is_number(value, greatest(member.kind))) {
                add(node, path, [&] {
                    return in_quotes(value) + " is not a number from 0 to " + std::to_string(greatest(member.kind));
                });
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
void Checker::check_counts(xmlNode *node, const Record &record, std::span<const Found> found, const Path &path) {
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const Member &count = record.members[i];
        if (count.role == Role::value) continue;
        const Member &counted = record.members[i + 1];
        std::uint64_t actual = found[i + 1].count;
        if (counted.kind == Kind::array && actual > greatest(count.kind)) {
            add(node, path, [&] {
                return std::to_string(actual) + " " + std::string(counted.name) + " exceed the range of " +
                       std::string(count.name);
            });
        }
        if (found[i].count == 0) continue;
        if (counted.kind == Kind::string && actual != 0) actual = Text(found[i + 1].first).view().size();
        const Text given(found[i].first);
        if (is_number(given.value(), greatest(count.kind)) && given.value() != std::to_string(actual)) {
            add(found[i].first, path / count.name, [&] {
                return "is " + std::string(given.value()) + ", but " + std::string(counted.name) + " has " +
                       std::to_string(actual);
            });
        }
    }
}

// The library does not read the member after an absent string, unless that member is a string too.
void Checker::check_skipped(const Record &record, std::span<const Found> found, const Path &path) {
    const Member *absent = nullptr;
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const Member &m = record.members[i];
        if (m.role != Role::value) continue;
        if (m.kind == Kind::string) {
            absent = found[i].count == 0 ? &m : nullptr;
        } else if (absent != nullptr) {
            if (found[i].count != 0) {
                add(found[i].first, path / m.name, [&] {
                    return "would not be read, because " + std::string(absent->name) +
                           ", the preceding string, is absent";
                });
            }
            absent = nullptr;
        }
    }
}

// What is between elements.
void Checker::check_blank(xmlNode *node, const Path &path) {
    const Text text(node);
    if (text.value().empty()) return;
    add(node->parent, path, [&] { return "text " + in_quotes(text.value()) + " between the members"; });
}

void Checker::check_record(xmlNode *node, const Record &record, const Path &path) {
    const std::span<const Member> members = record.members;
    std::vector<Found> found(members.size());
    std::size_t last = 0;
    for (xmlNode *child = node->children; child != nullptr; child = child->next) {
        if (child->type == XML_TEXT_NODE) check_blank(child, path);
        if (child->type != XML_ELEMENT_NODE) continue;
        const std::string_view name = name_of(child);
        // Usually the same member again or the next one.
        std::size_t steps = 0;
        while (steps < members.size() && members[(last + steps) % members.size()].name != name) ++steps;
        if (steps == members.size()) {
            add(child, path, [&] {
                return std::string(record.name) + " has no member " + in_quotes(name) +
                       suggestion(name, names_of(record));
            });
            continue;
        }
        last = (last + steps) % members.size();
        Found &all = found[last];
        if (all.count++ == 0) all.first = child;
        const Path below = path / members[last].name;
        if (members[last].kind == Kind::array) {
            check_member(child, members[last], below[all.count]);
            continue;
        }
        if (all.count > 1) add(child, below, [] { return std::string("duplicate element"); });
        check_member(child, members[last], below);
    }
    check_counts(node, record, found, path);
    check_skipped(record, found, path);
}

void Checker::check_message(xmlNode *root, const schema::Message &message) {
    const Path document, path = document / message.name;
    if (root == nullptr || name_of(root) != message.name) {
        return add(root, document, [&] { return "the root element must be \"" + std::string(message.name) + "\""; });
    }
    check_attributes(root, path);
    std::size_t payloads = 0;
    const Path below = path / message.payload.name;
    for (xmlNode *child = root->children; child != nullptr; child = child->next) {
        if (child->type == XML_TEXT_NODE) check_blank(child, path);
        if (child->type != XML_ELEMENT_NODE) continue;
        const std::string_view name = name_of(child);
        if (name != message.payload.name) {
            add(child, path, [&] {
                return "unknown element " + in_quotes(name) + ", the payload is \"" +
                       std::string(message.payload.name) + "\"";
            });
            continue;
        }
        if (++payloads == 2) add(child, path, [] { return std::string("a message has only one payload"); });
        check_attributes(child, below);
        check_record(child, message.payload, below);
    }
    if (payloads == 0) {
        add(root, path, [&] { return "the payload \"" + std::string(message.payload.name) + "\" is missing"; });
    }
}

}  // namespace

std::string address_problem(std::string_view text) {
    ip_address address{};
    if (mirk_platform_address_parse(text.data(), text.size(), &address) != 0) {
        return in_quotes(text) + " is not an address with a prefix length";
    }
    // All members are given as they are.
    if (text.find(',') != std::string_view::npos) return {};
    const unsigned longest = address.af == AF_INET ? 32 : 128;
    if (address.prefix_len <= longest) return {};
    return "the prefix length of " + in_quotes(text) + " is greater than " + std::to_string(longest);
}

bool check_document(void *document, const schema::Message &message, const Fragment &fragment, ProblemList &problems) {
    Checker checker(fragment, problems);
    checker.check_message(xmlDocGetRootElement(static_cast<xmlDoc *>(document)), message);
    return checker.has_states();
}

}  // namespace tarn::tool
