#include "tools/tarn/formats/schema_documents.h"

#include <algorithm>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <set>
#include <string_view>
#include <vector>

#include "tools/tarn/formats/json.h"

namespace tarn::tool {

namespace {

using nlohmann::ordered_json;
using schema::Category;
using schema::Member;
using schema::Record;
using schema::Role;

// A record after those that it nests, each once.
void add_nested(const Record &record, std::vector<const Record *> &all) {
    for (const Member &m : record.members) {
        if (m.record != nullptr) add_nested(*m.record, all);
    }
    if (std::find(all.begin(), all.end(), &record) == all.end()) all.push_back(&record);
}

std::vector<const Record *> records_of(const schema::Message &message) {
    std::vector<const Record *> all;
    add_nested(message.payload, all);
    return all;
}

// ---- JSON Schema

ordered_json reference(std::string_view name) { return {{"$ref", "#/$defs/" + std::string(name)}}; }

ordered_json integer(std::uint64_t greatest) { return {{"type", "integer"}, {"minimum", 0}, {"maximum", greatest}}; }

ordered_json object(ordered_json properties, const std::vector<std::string> &required) {
    ordered_json json{{"type", "object"}, {"properties", std::move(properties)}, {"additionalProperties", false}};
    if (!required.empty()) json["required"] = required;
    return json;
}

ordered_json any_of(const std::vector<ordered_json> &choices) { return {{"anyOf", choices}}; }

// A value, or a value with a negative variant.
ordered_json with_variant(const ordered_json &value) {
    return any_of({value, object({{"@variant", reference("@variant")}, {"@value", value}, {"@ra", reference("@ra")}},
                                 {"@variant", "@value"})});
}

ordered_json json_schema_of(const Member &m, std::uint64_t longest) {
    switch (category(m.kind)) {
        case Category::integer:
            return is_wide(greatest(m.kind)) ? reference("@wide") : integer(greatest(m.kind));
        case Category::boolean:
            return with_variant(any_of({{{"type", "boolean"}}, integer(255)}));
        case Category::enumeration: {
            const std::size_t count = m.enumeration->enumerators.size();
            return with_variant(any_of({{{"enum", m.enumeration->enumerators}}, integer(count - 1)}));
        }
        case Category::address:
            return reference("@address");
        case Category::string:
            return reference("@string");
        case Category::record:
            return reference(m.record->name);
        case Category::array:
            return {{"type", "array"}, {"maxItems", longest}, {"items", reference(m.record->name)}};
    }
    return {};
}

ordered_json json_schema_of(const Record &record) {
    ordered_json properties = ordered_json::object();
    std::uint64_t longest = 0;
    for (const Member &m : record.members) {
        ordered_json one = m.role == Role::value ? json_schema_of(m, longest) : integer(greatest(m.kind));
        if (m.role != Role::value) longest = greatest(m.kind);
        one["description"] = m.meaning;
        properties[std::string(m.name)] = std::move(one);
    }
    properties["@state"] = {{"type", "object"}};
    properties["@variant"] = reference("@variant");
    properties["@ra"] = reference("@ra");
    ordered_json json = object(std::move(properties), {});
    json["description"] = record.meaning;
    return json;
}

// The values that are not records.
ordered_json common_definitions() {
    const ordered_json text{{"type", "string"}, {"pattern", "^(unset|[0-9A-Fa-f:.,%]+/[0-9]+)$"}};
    const ordered_json hex{{"type", "string"}, {"pattern", "^([0-9A-Fa-f]{2})*$"}};
    const ordered_json state = integer(255);
    return {{"@wide", any_of({{{"type", "string"}, {"pattern", "^[0-9]+$"}}, integer(UINT64_MAX)})},
            {"@variant", {{"type", "integer"}, {"minimum", -128}, {"maximum", -1}}},
            {"@ra", object({{"value", reference("@wide")}, {"byte", state}}, {"value", "byte"})},
            {"@string", any_of({{{"type", "string"}}, object({{"bytes", hex}}, {"bytes"})})},
            {"@address",
             any_of({text,
                     object({{"@address", text},
                             {"@members", {{"type", "array"}, {"items", state}, {"minItems", 7}, {"maxItems", 7}}},
                             {"@ra", reference("@ra")}},
                            {"@address"}),
                     object({{"@variant", reference("@variant")}, {"@ra", reference("@ra")}}, {"@variant"})})}};
}

// ---- XML Schema

std::string escaped(std::string_view text) {
    std::string out;
    for (const char c : text) {
        out += c == '&' ? "&amp;" : c == '<' ? "&lt;" : c == '"' ? "&quot;" : std::string(1, c);
    }
    return out;
}

std::string in_markup(std::string_view text) { return "\"" + escaped(text) + "\""; }

std::string type_of(const Member &m) {
    if (m.record != nullptr) return std::string(m.record->name);
    if (m.enumeration != nullptr) return std::string(m.enumeration->name);
    return facts(m.kind).name;
}

// Editors show it.
std::string documented(std::string_view meaning) {
    return "<xs:annotation><xs:documentation>" + escaped(meaning) + "</xs:documentation></xs:annotation>";
}

constexpr std::string_view state_attribute = "<xs:attribute name=\"state\" type=\"xs:unsignedByte\"/>";

// Of a value without elements.
std::string simple_type(std::string_view name, std::string_view base, const std::string &facets) {
    const std::string plain = std::string(name) + ".value";
    return "  <xs:simpleType name=" + in_markup(plain) + "><xs:restriction base=" + in_markup(base) + ">" + facets +
           "</xs:restriction></xs:simpleType>\n  <xs:complexType name=" + in_markup(name) +
           "><xs:simpleContent><xs:extension base=" + in_markup(plain) + ">" + std::string(state_attribute) +
           "</xs:extension></xs:simpleContent></xs:complexType>\n";
}

std::string simple_types() {
    std::string out = simple_type("boolean", "xs:boolean", "") +
                      simple_type("address", "xs:token", "<xs:pattern value=\"unset|[0-9A-Fa-f:.,%]+/[0-9]+\"/>") +
                      simple_type("string", "xs:string", "<xs:maxLength value=\"65535\"/>");
    for (const schema::KindFacts &kind : schema::kind_facts) {
        if (kind.category != Category::integer) continue;
        out += simple_type(kind.name, "xs:nonNegativeInteger",
                           "<xs:maxInclusive value=\"" + std::to_string(kind.greatest) + "\"/>");
    }
    return out;
}

std::string xsd_of(const schema::Enumeration &enumeration) {
    std::string out = "  <xs:complexType name=" + in_markup(enumeration.name) + ">\n    <xs:choice>\n";
    for (const auto &name : enumeration.enumerators) {
        out += "      <xs:element name=" + in_markup(name) + "><xs:complexType/></xs:element>\n";
    }
    return out + "    </xs:choice>\n    " + std::string(state_attribute) + "\n  </xs:complexType>\n";
}

// The members of a record can be in any order. Where one may be repeated, XML Schema cannot limit the others.
std::string xsd_of(const Record &record) {
    const bool repeats = std::any_of(record.members.begin(), record.members.end(),
                                     [](const Member &m) { return category(m.kind) == Category::array; });
    const std::string model = repeats ? "choice" : "all";
    std::string out = "  <xs:complexType name=" + in_markup(record.name) + ">\n    " + documented(record.meaning) +
                      "\n    <xs:" + model + (repeats ? " minOccurs=\"0\" maxOccurs=\"unbounded\"" : "") + ">\n";
    for (const Member &m : record.members) {
        out += "      <xs:element name=" + in_markup(m.name) + " type=" + in_markup(type_of(m)) +
               (repeats ? ">" : " minOccurs=\"0\">") + documented(m.meaning) + "</xs:element>\n";
    }
    return out + "    </xs:" + model + ">\n    " + std::string(state_attribute) + "\n  </xs:complexType>\n";
}

}  // namespace

ordered_json json_schema_of(const schema::Message &message) {
    ordered_json definitions = common_definitions();
    for (const Record *record : records_of(message)) definitions[std::string(record->name)] = json_schema_of(*record);
    ordered_json json{{"$schema", "https://json-schema.org/draft/2020-12/schema"}, {"title", message.name}};
    json.update(object({{"message", {{"const", message.name}}},
                        {"tracked", {{"type", "boolean"}}},
                        {"payload", reference(message.payload.name)}},
                       {"message", "payload"}));
    json["$defs"] = std::move(definitions);
    return json;
}

std::string xsd_of(const schema::Message &message) {
    std::set<const schema::Enumeration *> enumerations;
    std::string out =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\">\n"
        "  <xs:element name=" +
        in_markup(message.name) +
        ">\n    <xs:complexType>\n      <xs:sequence>\n"
        "        <xs:element name=" +
        in_markup(message.payload.name) + " type=" + in_markup(message.payload.name) +
        "/>\n      </xs:sequence>\n      " + std::string(state_attribute) +
        "\n    </xs:complexType>\n  </xs:element>\n" + simple_types();
    for (const Record *record : records_of(message)) {
        out += xsd_of(*record);
        for (const Member &m : record->members) {
            if (m.enumeration != nullptr && enumerations.insert(m.enumeration).second) out += xsd_of(*m.enumeration);
        }
    }
    return out + "</xs:schema>\n";
}

}  // namespace tarn::tool
