#include <set>

#include "api.h"
#include "names.h"
#include "schema/named_type.h"
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

// Breaks a prototype between parameters; continuation lines are indented by four blanks.
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

// A Doxygen comment, broken between words.
std::string comment(std::string text) {
    std::string out, line = "/**";
    text += " */";
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = std::min(text.find(' ', at), text.size());
        if (text.substr(end) == " */") end = text.size();  // the end of a comment is never alone on a line
        if (line.size() + 1 + end - at > line_width) {
            out += line + "\n";
            line = " *";
        }
        line += " " + text.substr(at, end - at);
        at = end + 1;
    }
    return out + line + "\n";
}

std::string group(const std::string &heading, const std::string &content) {
    return "/** @name " + heading + "\n *  @{ */\n" + content + "/** @} */\n";
}

std::string declaration(const Export &e) {
    return comment(fill(e.operation->text, e.subject)) + prototype(e.declaration());
}

constexpr const char *generated = "/* Generated from the schema; edit the tables there and run tools/regenerate. */\n";

std::string page(const std::string &file, const std::string &purpose, const std::set<std::string> &includes,
                 const std::string &body) {
    const std::string guard = "LUMO_UI_TARN_" + upper(file);
    std::string text = generated + ("/** @file\n * " + purpose + " */\n");
    text += "#ifndef " + guard + "\n#define " + guard + "\n\n#include <lumo_ui_tarn/base.h>\n";
    for (const std::string &include : includes) text += "#include <lumo_ui_tarn/" + include + ">\n";
    return text + "\nLUMO_UI_TARN_BEGIN\n\n" + body + "\nLUMO_UI_TARN_END\n\n#endif\n";
}

std::string by_family(const Subject &subject, Applies applies) {
    std::string text, content;
    std::string_view family;
    const auto close = [&] {
        if (!content.empty()) text += "\n" + group(std::string(family), content);
        content.clear();
    };
    for (const Export &e : exports_of(subject, applies)) {
        if (e.row->family != family) close();
        family = e.row->family;
        content += declaration(e);
    }
    close();
    return text;
}

std::string data_of(const Subject &subject) {
    std::string text;
    for (const Datum &d : all_data()) {
        const bool same = d.subject.record == subject.record && d.subject.enumeration == subject.enumeration &&
                          d.subject.message == subject.message && d.subject.bundle == subject.bundle &&
                          d.subject.control == subject.control;
        if (same) text += comment(d.text) + "extern LUMO_UI_TARN_API " + d.declaration + ";\n";
    }
    return text;
}

std::string type_of(const Member &m) {
    if (schema::is_integer(m.kind)) {
        return value_type(m) + (m.role == Role::count ? " count" : m.role == Role::length ? " length" : "");
    }
    const std::string named = named_type(m);
    return named.empty() ? std::string(facts(m.kind).name) : named;
}

// Name, kind and meaning of each member in aligned columns.
std::string members_table(const Record &record) {
    std::size_t name_width = 6, type_width = 4;  // those of the headings
    for (const Member &m : record.members) {
        name_width = std::max(name_width, m.name.size());
        type_width = std::max(type_width, type_of(m).size());
    }
    const auto row = [&](const std::string &name, const std::string &type, const std::string &meaning) {
        return " * | " + name + std::string(name_width - name.size(), ' ') + " | " + type +
               std::string(type_width - type.size(), ' ') + " | " + meaning + " |\n";
    };
    std::string text = row("member", "type", "meaning") + " * |" + std::string(name_width + 2, '-') + "|" +
                       std::string(type_width + 2, '-') + "|---|\n";
    for (const Member &m : record.members) text += row(std::string(m.name), type_of(m), std::string(m.meaning));
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
    std::string body = "/** " + sentence(record.meaning) + "\n *\n" + members_table(record) +
                       " *\n * lumo_ui_tarn/families.h describes the operations. */\n";
    body += "typedef struct " + name + " " + name + ";\n" + data_of(subject) + by_family(subject, Applies::record);
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const Member &m = record.members[i];
        std::string accessors;
        for (const Export &e : exports_of({.record = &record, .member = i}, class_of(m))) accessors += declaration(e);
        body += "\n" + group(std::string(m.name) + ": " + std::string(m.meaning), accessors);
    }
    return page("records/" + name + ".h", std::string(record.name) + ".h - " + std::string(record.meaning) + ".",
                includes, body);
}

std::string enumeration_page(const Enumeration &enumeration) {
    const std::string name(enumeration.name);
    const Subject subject{.enumeration = &enumeration};
    std::string body = comment("Values of " + name + ": " + std::string(enumeration.meaning) + ".") + "enum {\n";
    for (std::size_t i = 0; i < enumeration.enumerators.size(); ++i) {
        const bool last = i + 1 == enumeration.enumerators.size();
        body += "    " + std::string(enumeration.enumerators[i]) + " = " + std::to_string(i) + (last ? "\n" : ",\n");
    }
    body += "};\n\n" + comment("An object with one of these values.") + "typedef struct " + name + " " + name + ";\n" +
            data_of(subject) + by_family(subject, Applies::enumeration);
    return page("enumerations/" + name + ".h", name + ".h - " + std::string(enumeration.meaning) + ".", {}, body);
}

std::string message_page(const Message &message) {
    const std::string name(message.name), payload(message.payload.name);
    const Subject subject{.message = &message};
    std::string body = comment("A message that carries one " + payload + " and owns it.");
    body += "typedef struct " + name + " " + name + ";\n" + data_of(subject) + by_family(subject, Applies::message);
    return page("messages/" + name + ".h", name + ".h - the message that carries a " + payload + ".",
                {"records/" + payload + ".h"}, body);
}

std::string bundle_page(const Bundle &bundle) {
    const std::string name(bundle.name);
    const Subject subject{.bundle = &bundle};
    std::string body = data_of(subject) + by_family(subject, Applies::bundle);
    for (const char *kind : {"start", "abort", "commit"}) {
        const Subject control{.bundle = &bundle, .control = kind};
        body +=
            "\n/* ---- " + std::string(kind) + " ---- */\n" + data_of(control) + by_family(control, Applies::control);
    }
    return page("bundles/" + name + ".h",
                name + ".h - the bundle that answers with a " + std::string(bundle.message.name) +
                    ".\n *\n * Between its start and its commit or abort it admits that message and the request "
                    "message of the\n"
                    " * user interface.",
                {"messages/" + std::string(bundle.message.name) + ".h"}, body);
}

std::string umbrella(const Files &files) {
    std::string text =
        generated +
        std::string(
            "/** @file\n"
            " * lumo_ui_tarn.h - umbrella header: records, enumerations, messages and bundles of the traffic-aware\n"
            " * routing feature tarn. Start with lumo_ui_tarn/families.h, which describes the operations; the other\n"
            " * headers list names. The library runs on a runtime, which mirk/mirk.h declares. */\n") +
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
    files[base + "module.h"] =
        page("module.h", "module.h - operations of the whole module: types, trace, registration.", {},
             data_of({}) + by_family({}, Applies::module));
    files["lumo_ui_tarn.h"] = umbrella(files);
    files["lumo_ui_tarn.hpp"] = interface_page();
    files[base + "frame_parts.hpp"] = parts_page();
    return files;
}

}  // namespace tarn::generate
