#include "tools/tarn/support/type_names.h"

#include "schema/catalogue.h"
#include "tools/tarn/support/names.h"

namespace tarn::tool {

std::vector<Named> bundle_names() {
    std::vector<Named> names;
    for (const auto *b : schema::bundles) names.push_back({b->name, b->message.payload.meaning});
    return names;
}

std::vector<Named> message_names() {
    std::vector<Named> names;
    for (const auto *m : schema::messages) names.push_back({m->name, m->payload.meaning});
    return names;
}

std::vector<Named> type_names() {
    std::vector<Named> names;
    for (const auto *r : schema::records) names.push_back({r->name, r->meaning});
    for (const auto *e : schema::enumerations) names.push_back({e->name, e->meaning});
    for (const Named &m : message_names()) names.push_back(m);
    for (const Named &b : bundle_names()) names.push_back(b);
    return names;
}

bool is_named(std::string_view given, std::string_view name) { return given == name || given == short_form(name); }

const schema::Record *record_named(std::string_view name) {
    for (const auto *r : schema::records) {
        if (is_named(name, r->name)) return r;
    }
    for (const auto *b : schema::bundles) {
        if (is_named(name, b->name)) return &b->message.payload;
    }
    for (const auto *m : schema::messages) {
        if (is_named(name, m->name)) return &m->payload;
    }
    return nullptr;
}

Target target_of(std::string_view path) {
    std::size_t dot = path.find('.');
    Target target{record_named(path.substr(0, dot))};
    while (target && dot != std::string_view::npos) {
        path.remove_prefix(dot + 1);
        dot = path.find('.');
        const schema::Record *in = target.nested();
        target = {};
        if (in == nullptr) break;
        for (const schema::Member &m : in->members) {
            if (m.name == path.substr(0, dot)) target = {in, &m};
        }
    }
    return target;
}

}  // namespace tarn::tool
