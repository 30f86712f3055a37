#include <set>

#include "surface.h"
#include "writers.h"

namespace tarn::generate {

using namespace schema;

namespace {

constexpr std::size_t line_width = 120;

std::string upper(std::string_view text) {
    std::string out;
    for (const char c : text)
        out += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c == '/' || c == '.' ? '_' : c;
    return out;
}

// Breaks a prototype between parameters; continued lines stand four blanks in.
std::string prototype(const std::string &declaration) {
    std::string text = "LUMO_UI_TARN_API " + declaration + ";";
    std::string out;
    while (text.size() > line_width) {
        const std::size_t cut = text.rfind(", ", line_width - 1);
        if (cut == std::string::npos || cut < 8) break;
        out += text.substr(0, cut + 1) + "\n";
        text = "    " + text.substr(cut + 2);
    }
    return out + text + "\n";
}

std::string page(const std::string &file, const std::string &purpose, const std::set<std::string> &includes,
                 const std::string &body) {
    const std::string guard = "LUMO_UI_TARN_" + upper(file);
    std::string text =
        "/* " + purpose + "\n * Generated from the schema; edit the tables there and run tools/regenerate. */\n";
    text += "#ifndef " + guard + "\n#define " + guard + "\n\n#include <lumo_ui_tarn/base.h>\n";
    for (const std::string &include : includes) text += "#include <lumo_ui_tarn/" + include + ">\n";
    return text + "\nLUMO_UI_TARN_BEGIN\n\n" + body + "\nLUMO_UI_TARN_END\n\n#endif\n";
}

std::string by_family(const Subject &subject, Applies applies) {
    std::string text;
    std::string_view family;
    for (const Export &e : exports_of(subject, applies)) {
        if (e.row->family != family) {
            family = e.row->family;
            text += "\n/* " + std::string(family) + " */\n";
        }
        text += prototype(e.declaration());
    }
    return text;
}

std::string data_of(const Subject &subject) {
    std::string text;
    for (const Datum &d : all_data()) {
        const bool same = d.subject.record == subject.record && d.subject.enumeration == subject.enumeration &&
                          d.subject.message == subject.message && d.subject.bundle == subject.bundle &&
                          d.subject.control == subject.control;
        if (same) text += "extern LUMO_UI_TARN_API " + d.declaration + ";\n";
    }
    return text;
}

std::string type_of(const Member &m) {
    switch (m.kind) {
        case Kind::boolean:
            return "boolean";
        case Kind::address:
            return "address";
        case Kind::enumeration:
            return std::string(m.enumeration->name);
        case Kind::record:
            return std::string(m.record->name);
        case Kind::string:
            return "string";
        case Kind::array:
            return std::string(m.record->name) + "[]";
        default:
            return value_type(m) + (m.role == Role::count ? " count" : m.role == Role::length ? " length" : "");
    }
}

// Name, kind and meaning of each member in aligned columns.
std::string members_table(const Record &record) {
    std::size_t name_width = 0, type_width = 0;
    for (const Member &m : record.members) {
        name_width = std::max(name_width, m.name.size());
        type_width = std::max(type_width, type_of(m).size());
    }
    std::string text;
    for (const Member &m : record.members) {
        const std::string type = type_of(m);
        text += " *   " + std::string(m.name) + std::string(name_width - m.name.size() + 2, ' ') + type +
                std::string(type_width - type.size() + 2, ' ') + std::string(m.meaning) + "\n";
    }
    return text;
}

std::string record_page(const Record &record) {
    const std::string name(record.name);
    std::set<std::string> includes;
    for (const Member &m : record.members) {
        if (m.record != nullptr) includes.insert("records/" + std::string(m.record->name) + ".h");
        if (m.enumeration != nullptr) includes.insert("enumerations/" + std::string(m.enumeration->name) + ".h");
    }
    const Subject subject{.record = &record};
    std::string body =
        "/* " + name + ": " + std::string(record.meaning) + ".\n *\n" + members_table(record) +
        " *\n * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */\n";
    body += "typedef struct " + name + " " + name + ";\n" + data_of(subject) + by_family(subject, Applies::record);
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const Member &m = record.members[i];
        body += "\n/* " + std::string(m.name) + ": " + std::string(m.meaning) + " */\n";
        for (const Export &e : exports_of({.record = &record, .member = i}, class_of(m))) {
            body += prototype(e.declaration());
        }
    }
    return page("records/" + name + ".h", std::string(record.name) + ".h - " + std::string(record.meaning) + ".",
                includes, body);
}

std::string enumeration_page(const Enumeration &enumeration) {
    const std::string name(enumeration.name);
    const Subject subject{.enumeration = &enumeration};
    std::string body = "/* " + std::string(enumeration.meaning) + "; an object holds one of these values. */\nenum {\n";
    for (std::size_t i = 0; i < enumeration.enumerators.size(); ++i) {
        body += "    " + std::string(enumeration.enumerators[i]) + " = " + std::to_string(i) + ",\n";
    }
    body.erase(body.size() - 2, 1);
    body += "};\n\ntypedef struct " + name + " " + name + ";\n" + data_of(subject) +
            by_family(subject, Applies::enumeration);
    return page("enumerations/" + name + ".h", name + ".h - " + std::string(enumeration.meaning) + ".", {}, body);
}

std::string message_page(const Message &message) {
    const std::string name(message.name), payload(message.payload.name);
    const Subject subject{.message = &message};
    std::string body = "/* Carries one " + payload + ", which it owns. */\n";
    body += "typedef struct " + name + " " + name + ";\n" + data_of(subject) + by_family(subject, Applies::message);
    return page("messages/" + name + ".h", name + ".h - the message that carries a " + payload + ".",
                {"records/" + payload + ".h"}, body);
}

std::string bundle_page(const Bundle &bundle) {
    const std::string name(bundle.name);
    const Subject subject{.bundle = &bundle};
    std::string body = "/* Admits " + std::string(bundle.message.name) +
                       " and the requests of the user interface. */\n" + data_of(subject) +
                       by_family(subject, Applies::bundle);
    for (const char *kind : {"start", "abort", "commit"}) {
        const Subject control{.bundle = &bundle, .control = kind};
        body +=
            "\n/* ---- " + std::string(kind) + " ---- */\n" + data_of(control) + by_family(control, Applies::control);
    }
    return page("bundles/" + name + ".h",
                name + ".h - the bundle that answers with a " + std::string(bundle.message.name) + ".",
                {"messages/" + std::string(bundle.message.name) + ".h"}, body);
}

std::string chief(const Files &files) {
    std::string text =
        "/* lumo_ui_tarn.h - the whole library: records, enumerations, messages and bundles of the traffic-aware "
        "routing\n"
        " * feature tarn, on the runtime contract of mirk/mirk.h. Start with lumo_ui_tarn/families.h, which explains "
        "each\n"
        " * family of operations once; the other headers list names.\n"
        " * Generated from the schema; edit the tables there and run tools/regenerate. */\n"
        "#ifndef LUMO_UI_TARN_H\n#define LUMO_UI_TARN_H\n\n#include <lumo_ui_tarn/base.h>\n"
        "#include <lumo_ui_tarn/families.h>\n";
    std::string_view folder;
    for (const auto &[name, content] : files) {
        const std::string_view its = std::string_view(name).substr(0, name.find('/', 13));
        if (its != folder) text += "\n";
        folder = its;
        text += "#include <" + name + ">\n";
    }
    return text + "\n#endif\n";
}

}  // namespace

Files write_headers() {
    Files files;
    const std::string base = "lumo_ui_tarn/";
    for (const Record *r : records) files[base + "records/" + std::string(r->name) + ".h"] = record_page(*r);
    for (const Enumeration *e : enumerations) {
        files[base + "enumerations/" + std::string(e->name) + ".h"] = enumeration_page(*e);
    }
    for (const Message *m : messages) files[base + "messages/" + std::string(m->name) + ".h"] = message_page(*m);
    for (const Bundle *b : bundles) files[base + "bundles/" + std::string(b->name) + ".h"] = bundle_page(*b);
    files[base + "module.h"] = page("module.h", "module.h - the module as a whole: types, trace, registration.", {},
                                    data_of({}) + by_family({}, Applies::module));
    files["lumo_ui_tarn.h"] = chief(files);
    files["lumo_ui_tarn.hpp"] = interface_page();
    return files;
}

}  // namespace tarn::generate
