#include "reference/tables.h"

#include <map>
#include <sstream>
#include <stdexcept>

namespace reference {
namespace {

const std::map<std::string, Class, std::less<>> classes = {
    {"integer", Class::integer}, {"boolean", Class::boolean}, {"enumeration", Class::enumeration},
    {"address", Class::address}, {"nested", Class::nested},   {"length", Class::length},
    {"string", Class::string},   {"count", Class::count},     {"array", Class::array}};

unsigned width_of(std::string_view type) {
    if (type == "u_int8") return 1;
    if (type == "u_int16") return 2;
    if (type == "u_int32") return 4;
    if (type == "u_int64") return 8;
    return 0;
}

Luid parse_luid(const std::string &text) {
    if (text.size() != 32) throw std::invalid_argument("luid: " + text);
    Luid luid{};
    for (std::size_t i = 0; i < luid.size(); ++i)
        luid[i] = static_cast<std::uint8_t>(std::stoul(text.substr(2 * i, 2), nullptr, 16));
    return luid;
}

MemberTable parse_member(const std::string &name, std::istream &words) {
    MemberTable member;
    std::string cls, form;
    words >> cls >> member.type >> member.counted_by >> form;
    member.name = name;
    member.cls = classes.at(cls);
    member.width = width_of(member.type);
    member.product = form == "product";
    return member;
}

std::vector<RecordTable> parse_records() {
    std::vector<RecordTable> tables;
    std::istringstream text(record_tables);
    for (std::string line; std::getline(text, line);) {
        std::istringstream words(line);
        std::string first;
        if (!(words >> first)) continue;
        if (first != "record") {
            tables.back().members.push_back(parse_member(first, words));
            continue;
        }
        RecordTable &t = tables.emplace_back();
        std::string luid;
        words >> t.name >> luid >> t.used >> t.rounded >> t.slop >> t.base >> t.state >> t.tracked;
        t.luid = parse_luid(luid);
    }
    return tables;
}

struct Catalogue {
    std::vector<EnumerationTable> enumerations;
    std::vector<MessageTable> messages;
    std::vector<BundleTable> bundles;
};

Catalogue parse_catalogue() {
    Catalogue c;
    std::istringstream text(catalogue_tables);
    for (std::string line; std::getline(text, line);) {
        std::istringstream words(line);
        std::string first, second, third, fourth;
        if (!(words >> first)) continue;
        words >> second >> third >> fourth;
        if (first == "enumeration") {
            c.enumerations.push_back({second, parse_luid(third), {}});
        } else if (first == "message") {
            c.messages.push_back({second, parse_luid(third), fourth, {}});
        } else if (first == "bundle") {
            c.bundles.push_back({second, third, {}, {}, {}});
            for (MessageTable &message : c.messages)
                if (message.name == third) message.bundles.push_back(second);
        } else if (first == "start") {
            c.bundles.back().start = parse_luid(second);
        } else if (first == "abort") {
            c.bundles.back().abort = parse_luid(second);
        } else if (first == "commit") {
            c.bundles.back().commit = parse_luid(second);
        } else {
            c.enumerations.back().enumerators.push_back(first);
        }
    }
    return c;
}

const Catalogue &catalogue() {
    static const Catalogue instance = parse_catalogue();
    return instance;
}

RecordTable make_address_table() {
    RecordTable t;
    t.name = "ip_address";
    const auto add = [&t](const char *name, const char *type) {
        MemberTable member;
        member.name = name;
        member.type = type;
        member.width = width_of(type);
        t.members.push_back(member);
    };
    add("af", "u_int8");
    add("prefix_len", "u_int8");
    add("scope", "u_int16");
    for (const char *word : {"word[0]", "word[1]", "word[2]", "word[3]"}) add(word, "u_int32");
    t.used = t.rounded = 32;
    t.slop = 8;
    t.base = 40;
    t.state = 7;
    t.tracked = 47;
    return t;
}

template <typename Table>
const Table &named(const std::vector<Table> &tables, std::string_view name) {
    for (const Table &table : tables)
        if (table.name == name) return table;
    throw std::out_of_range("no such type: " + std::string(name));
}

}  // namespace

const RecordTable &MemberTable::element() const { return record_table(type); }

std::size_t RecordTable::index_of(std::string_view member) const {
    for (std::size_t i = 0; i < members.size(); ++i)
        if (members[i].name == member) return i;
    throw std::out_of_range(name + " has no member " + std::string(member));
}

const Luid &BundleTable::luid(std::string_view kind) const {
    if (kind == "start") return start;
    if (kind == "abort") return abort;
    if (kind == "commit") return commit;
    throw std::out_of_range("no such control message: " + std::string(kind));
}

const std::vector<RecordTable> &records() {
    static const std::vector<RecordTable> tables = parse_records();
    return tables;
}

const RecordTable &address_table() {
    static const RecordTable table = make_address_table();
    return table;
}

const std::vector<EnumerationTable> &enumerations() { return catalogue().enumerations; }
const std::vector<MessageTable> &messages() { return catalogue().messages; }
const std::vector<BundleTable> &bundles() { return catalogue().bundles; }

const RecordTable &record_table(std::string_view name) {
    return name == "ip_address" ? address_table() : named(records(), name);
}
const EnumerationTable &enumeration_table(std::string_view name) { return named(enumerations(), name); }
const MessageTable &message_table(std::string_view name) { return named(messages(), name); }
const BundleTable &bundle_table(std::string_view name) { return named(bundles(), name); }

std::size_t members_of(Class cls) {
    std::size_t count = 0;
    for (const RecordTable &table : records()) {
        for (const MemberTable &member : table.members) count += member.cls == cls ? 1 : 0;
    }
    return count;
}

std::string luid_text(const Luid &luid) {
    static const char digits[] = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : luid) {
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}

}  // namespace reference
