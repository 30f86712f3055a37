#include "tools/tarn/formats/schema.h"

#include <nlohmann/json.hpp>

#include "schema/catalogue.h"
#include "schema/named_type.h"
#include "schema/wire_size.h"
#include "tools/tarn/support/names.h"

namespace tarn::tool {

using nlohmann::ordered_json;
using schema::Member;
using schema::Record;

std::string kind_text(const Member &m) {
    const std::string named = schema::named_type(m);
    return named.empty() ? std::string(facts(m.kind).primitive) : named;
}

std::string role_text(const Member &m) {
    return m.role == schema::Role::count ? "count" : m.role == schema::Role::length ? "length" : "";
}

std::string wire_text(const Record &record) { return schema::wire_text(record); }
std::string wire_text(const Member &m) { return schema::wire_text(m); }

ordered_json json_of_record(const Record &record) {
    const schema::Layout layout = schema::lay_out(record);
    ordered_json json{
        {"name", record.name},           {"luid", record.luid.text.data()},   {"meaning", record.meaning},
        {"base_size", layout.base_size}, {"state_width", layout.state_width}, {"members", ordered_json::array()}};
    if (record.key.is_stated) {
        json["element"] = record.key.element;
        json["key"] = record.key.members();
    }
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const Member &m = record.members[i];
        ordered_json one{{"name", m.name}, {"kind", kind_text(m)}};
        if (m.role != schema::Role::value) one["role"] = role_text(m);
        one["offset"] = layout.members[i].offset;
        one["size"] = layout.members[i].size;
        if (schema::is_tracked(m)) one["slot"] = layout.members[i].slot;
        one["wire"] = wire_text(m);
        one["meaning"] = m.meaning;
        json["members"].push_back(one);
    }
    return json;
}

ordered_json schema_json() {
    ordered_json json;
    for (const auto *b : schema::bundles) {
        json["bundles"].push_back({{"name", b->name},
                                   {"short", short_name(b->name)},
                                   {"message", b->message.name},
                                   {"start", b->start.text.data()},
                                   {"abort", b->abort.text.data()},
                                   {"commit", b->commit.text.data()}});
    }
    for (const auto *m : schema::messages) {
        json["messages"].push_back({{"name", m->name}, {"luid", m->luid.text.data()}, {"payload", m->payload.name}});
    }
    for (const auto *e : schema::enumerations) {
        json["enumerations"].push_back(
            {{"name", e->name}, {"luid", e->luid.text.data()}, {"enumerators", e->enumerators}});
    }
    for (const auto *r : schema::records) json["records"].push_back(json_of_record(*r));
    return json;
}

}  // namespace tarn::tool
