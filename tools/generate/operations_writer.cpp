#include <map>
#include <set>

#include "api.h"
#include "fill_in.h"
#include "reflection.h"
#include "writers.h"

namespace tarn::generate {

using namespace schema;

namespace {

// The part of an operation's name after its placeholders.
std::string suffix_of(const Operation &operation) { return operation.name.substr(operation.name.rfind('}') + 2); }

// The field of an operations structure that an operation fills.
std::string field_of(const Operation &operation) {
    const Row &row = *operation.row;
    std::string suffix = suffix_of(operation);
    if (suffix.starts_with("message_")) suffix = suffix.substr(8);
    if (operation.name.find("_message_{r}") != std::string::npos) {
        suffix = "payload_" + suffix;
    }
    if (row.weak) return "handler";
    if (suffix == "bundle_handler_register") return "register_handler";
    if (suffix == "bundle_handler_unregister") return "unregister_handler";
    if (suffix == "sizeof") return "sizeof_";
    if (includes(row.applies, Applies::string) && !suffix.starts_with("state")) return "text_" + suffix;
    if (includes(row.applies, Applies::array)) {
        if (suffix.starts_with("state_flag_whole")) return "state_flag" + suffix.substr(16);
        return "element_" + suffix;
    }
    return suffix;
}

bool passes_as_void(const std::string &type) {
    return type.find("lumo_tarn_") != std::string::npos || type.find("ip_address") != std::string::npos ||
           type.find("mirk_boolean") != std::string::npos;
}

// A wrapped operation: pointers to objects become void pointers and values of members 64-bit numbers.
struct Reflected {
    std::string result, parameters, call;
};
Reflected reflected(const Export &e) {
    const bool of_member = e.row->family.empty();
    const bool whole = e.entry.ends_with("::get_all") || e.entry.ends_with("::set_all");
    std::string parameters, arguments;
    std::size_t listed = 0;
    for (std::size_t i = 0; i < e.parameters.size(); ++i) {
        const Parameter &p = e.parameters[i];
        std::string type = p.type, argument = p.name;
        const bool is_value = whole && i >= 3 && p.name != "err";
        if (is_value) {
            const std::string at = "all[" + std::to_string(listed++) + "]";
            argument = "static_cast<" + p.type + ">(" + at + ")";
            type.clear();
        } else if (p.type.ends_with("**") && passes_as_void(p.type)) {
            type = "void **";
            argument = "reinterpret_cast<" + p.type + ">(" + p.name + ")";
        } else if (passes_as_void(p.type) ||
                   (of_member && p.name == "source" && !includes(e.row->applies, Applies::array))) {
            type = p.type.starts_with("const") && !of_member ? "const void *" : "void *";
            argument = "static_cast<" + p.type + ">(" + p.name + ")";
        } else if (of_member && p.name == "value" &&
                   e.operation->prototype.find("set_value") != std::string_view::npos) {
            type = "uint64_t";
            argument = "static_cast<" + p.type + ">(value)";
        }
        if (whole && i == 3) {
            const bool out = e.entry.ends_with("::get_all");
            parameters += out ? ", [[maybe_unused]] void *const *all" : ", [[maybe_unused]] const uint64_t *all";
        }
        if (!type.empty()) parameters += (parameters.empty() ? "" : ", ") + Parameter{type, p.name}.declaration();
        arguments += (arguments.empty() ? "" : ", ") + argument;
    }
    std::string result = e.result;
    if (result.ends_with('*')) result = "void *";
    if (of_member && e.operation->prototype.find("get_value") != std::string_view::npos) result = "uint64_t";
    return {result, parameters, e.name + "(" + arguments + ")"};
}

// True for operations that are not wrapped.
bool keeps_its_type(const Export &e) { return e.row->weak || includes(e.row->applies, Applies::bundle); }

std::string value_of(const Export &e) {
    if (keeps_its_type(e)) return e.name;
    const Reflected r = reflected(e);
    return "[](" + r.parameters + ") -> " + r.result + " { return " + r.call + "; }";
}

// The fields of the structure for these rows. Rows with the same field differ only in types that the wrapper hides.
std::string declared_fields(Applies applies) {
    std::string text;
    std::set<std::string> declared;
    for (const Operation &o : operations()) {
        if (!includes(applies, o.row->applies)) continue;
        const std::string field = field_of(o);
        if (!declared.insert(field).second) continue;
        const Reflected r = reflected(expand(o, subjects(o.row->applies).front()));
        text += "    " + r.result + (r.result.ends_with('*') ? "(*" : " (*") + field + ")(" + r.parameters + ");\n";
    }
    return text;
}

std::string fields(const Subject &subject, Applies applies, const std::string &indent) {
    std::string text;
    for (const Export &e : exports_of(subject, applies)) {
        text += indent + "o." + field_of(*e.operation) + " = " + value_of(e) + ";\n";
    }
    return text;
}

std::string catalogue_fields(const std::string &name) {
    return "    o.name = \"" + name + "\";\n    o.luid = message_" + name + "_luid;\n    o.luid_text = message_" +
           name + "_luid_text;\n    o.catalogue_name = message_" + name + "_name;\n";
}

// Created on first use, so that other static objects may be initialized from the tables.
std::string table_of(const std::string &type, const std::string &name, const std::string &rows) {
    return "std::span<const " + type + "> " + name + "() {\n    static const " + type + " all[] = {\n" + rows +
           "    };\n    return all;\n}\n\n";
}

// ---- drivers for the allocation failure sweep: calls of operations whose arguments follow from their names

// The argument taken from a scene, or empty. Operations that move, allocate or destroy have drivers written by hand, in
// tests/trust/drivers.cpp.
std::string argument_of_scene(const Parameter &p) {
    static const std::map<std::string_view, const char *> by_name = {{"h", "s.h"},
                                                                     {"ctx_id", "id"},
                                                                     {"err", "s.error()"},
                                                                     {"object", "s.object"},
                                                                     {"instance", "s.object"},
                                                                     {"source", "s.object"},
                                                                     {"token", "s.object"},
                                                                     {"a", "s.object"},
                                                                     {"b", "s.other"},
                                                                     {"buffer", "s.text()"},
                                                                     {"word", "s.text()"},
                                                                     {"name", "\"o\""},
                                                                     {"indent", "0"},
                                                                     {"state", "0"},
                                                                     {"index", "0"},
                                                                     {"field_index", "0"},
                                                                     {"value", "1"},
                                                                     {"variant", "1"},
                                                                     {"seed", "5"},
                                                                     {"remaining", "s.size()"},
                                                                     {"size", "s.room - 1"},
                                                                     {"not_used_1", "nullptr"},
                                                                     {"not_used_2", "0"}};
    if (p.name == "destination") return p.type == "char *" ? "s.text()" : "s.other";
    if (p.name == "value" && p.type.ends_with('*')) return "s.element";
    if (p.name == "message") return p.type == "char *" ? "" : "s.object";
    const auto found = by_name.find(p.name);
    return found != by_name.end() ? found->second : "";
}

struct Sweep {
    Applies applies;
    const char *of, *table;  // name in the sweep, and expression for its operations
};
constexpr Sweep sweeps[] = {
    {Applies::record, "record", "rec(s)."},
    {Applies::integer | Applies::boolean | Applies::enumerated | Applies::address | Applies::nested | Applies::length |
         Applies::count,
     "single", "mem(s)."},
    {Applies::string, "string", "mem(s)."},
    {Applies::array, "array", "mem(s)."},
    {Applies::enumeration, "enumeration", "en(s)."},
    {Applies::message, "message", "msg(s)."},
    {Applies::control, "control", "msg(s)."},
    {Applies::module, "module", ""},
};

std::string driver(const Operation &o, const Sweep &sweep) {
    const bool of_module = sweep.applies == Applies::module;
    const Export e = expand(o, subjects(o.row->applies).front());
    std::string arguments;
    for (const Parameter &p : e.parameters) {
        const std::string one = argument_of_scene(p);
        if (one.empty()) return {};
        arguments += (arguments.empty() ? "" : ", ") + one;
    }
    std::string of = sweep.of, suffix = of_module ? e.name : suffix_of(o);
    if (suffix.starts_with("message_")) suffix = suffix.substr(8);
    if (o.name.find("_message_{r}") != std::string::npos) of = "payload";
    const std::string call = sweep.table + (of_module ? e.name : field_of(o)) + "(" + arguments + ")";
    const std::string body = e.result == "void"        ? call
                             : e.result.ends_with('*') ? "s.result = " + call + " != nullptr"
                                                       : "s.result = static_cast<std::uint64_t>(" + call + ")";
    return "{\"" + of + "\", \"" + suffix + "\", []([[maybe_unused]] Scene &s) { " + body + "; }},\n";
}

std::string drivers() {
    std::string text;
    std::set<std::string> printed;
    for (const Operation &o : operations()) {
        const bool whole = o.row->entry.ends_with("::get_all") || o.row->entry.ends_with("::set_all");
        if (whole || o.row->weak || o.prototype.starts_with("mirk_bundle_handler")) continue;
        for (const Sweep &sweep : sweeps) {
            if (!includes(o.row->applies, sweep.applies)) continue;
            if (const std::string one = driver(o, sweep); printed.insert(one).second) text += one;
        }
    }
    return text;
}

}  // namespace

Files write_operations() {
    std::string text =
        "// Generated from the schema and the table of operations; not to be edited.\n"
        "namespace tarn::reflect {\n\nnamespace {\n\n";
    std::string record_rows, enumeration_rows, message_rows, bundle_rows;
    for (const Record *r : records) {
        const std::string name(r->name);
        text += "std::array<MemberOperations, " + std::to_string(r->members.size()) + "> members_of_" + name +
                "() {\n    std::array<MemberOperations, " + std::to_string(r->members.size()) + "> all{};\n";
        for (std::size_t i = 0; i < r->members.size(); ++i) {
            text += "    {\n        MemberOperations &o = all[" + std::to_string(i) +
                    "];\n        o.member = &schema::" + name + ".members[" + std::to_string(i) + "];\n" +
                    fields({.record = r, .member = i}, class_of(r->members[i]), "        ") + "    }\n";
        }
        text += "    return all;\n}\n\n";
        text += "RecordOperations record_" + name + "() {\n    RecordOperations o{};\n    o.record = &schema::" + name +
                ";\n    o.type = &_" + name + "_type_info_internal;\n    static const auto members = members_of_" +
                name + "();\n    o.members = members;\n    o.parts = lumo_ui_tarn::frame_parts::" + name + ";\n" +
                fields({.record = r}, Applies::record, "    ") + "    return o;\n}\n\n";
        record_rows += "    record_" + name + "(),\n";
    }
    for (const Enumeration *e : enumerations) {
        const std::string name(e->name);
        text += "EnumerationOperations enumeration_" + name +
                "() {\n    EnumerationOperations o{};\n    o.enumeration = &schema::" + name + ";\n    o.type = &_" +
                name + "_type_info_internal;\n" + fields({.enumeration = e}, Applies::enumeration, "    ") +
                "    return o;\n}\n\n";
        enumeration_rows += "    enumeration_" + name + "(),\n";
    }
    for (const CatalogueEntry &c : catalogue()) {
        const bool plain = c.subject.message != nullptr;
        text += "MessageOperations message_" + c.name + "() {\n    MessageOperations o{};\n" + catalogue_fields(c.name);
        if (plain) {
            text += "    o.message = &schema::" + c.name + ";\n    o.type = &_" + c.name +
                    "_message_type_info_internal;\n    o.payload_parts = lumo_ui_tarn::frame_parts::" +
                    std::string(c.subject.message->payload.name) + ";\n";
            message_rows += "    message_" + c.name + "(),\n";
        }
        text += fields(c.subject, plain ? Applies::message : Applies::control, "    ") + "    return o;\n}\n\n";
    }
    for (const Bundle *b : bundles) {
        const std::string name(b->name);
        text += "BundleOperations bundle_" + name + "() {\n    BundleOperations o{};\n    o.bundle = &schema::" + name +
                ";\n    o.registered_handler = &lumo_ui_tarn_" + name + "_bundle_registered_handler;\n";
        for (const std::string kind : {"start", "abort", "commit"}) {
            text += "    o." + kind + " = message_" + name + "_bundle_" + kind + "();\n";
        }
        text += fields({.bundle = b}, Applies::bundle, "    ") + "    return o;\n}\n\n";
        bundle_rows += "    bundle_" + name + "(),\n";
    }
    text += table_of("RecordOperations", "all_records", record_rows) +
            table_of("EnumerationOperations", "all_enumerations", enumeration_rows) +
            table_of("MessageOperations", "all_messages", message_rows) +
            table_of("BundleOperations", "all_bundles", bundle_rows);
    using enum Applies;
    constexpr Applies member = integer | boolean | enumerated | address | nested | string | length | count | array;
    const std::string header = fill_in(reflection, {{"    // $member\n", declared_fields(member)},
                                                    {"    // $record\n", declared_fields(Applies::record)},
                                                    {"    // $enumeration\n", declared_fields(enumeration)},
                                                    {"    // $message\n", declared_fields(message | control)},
                                                    {"    // $bundle\n", declared_fields(bundle)}});
    return {{"tools/reflect/operations.h", header},
            {"drivers.inc", drivers()},
            {"operations.inc", text + "}  // namespace\n\n}  // namespace tarn::reflect\n"}};
}

}  // namespace tarn::generate
