#include <algorithm>
#include <iterator>
#include <set>

#include "surface.h"
#include "writers.h"

namespace tarn::generate {

namespace {

constexpr std::string_view banner = "// Generated from the schema and the family table; not to be edited.\n";

bool is_opaque(const std::string &type) { return type.find("lumo_tarn_") != std::string::npos; }

// Opaque pointers become what the algorithms work on: a header, an enumeration, a message.
std::string argument(const Parameter &p) {
    if (!is_opaque(p.type)) return p.name;
    if (p.type.ends_with("**")) return "objects_of(" + p.name + ")";
    return "object_of(" + p.name + ")";
}

std::string call(const Export &e) {
    std::string list;
    const bool err_in_front = e.entry.ends_with("::get_all") || e.entry.ends_with("::set_all");
    const auto add = [&](const std::string &text) { list += (list.empty() ? "" : ", ") + text; };
    // The values of a whole record are a parameter pack, which has to stand last.
    for (std::size_t i = 0; i < e.parameters.size(); ++i) {
        if (err_in_front && i == 3) add("err");
        if (err_in_front && i + 1 == e.parameters.size()) continue;
        add(argument(e.parameters[i]));
    }
    return e.entry + "(" + list + ")";
}

std::string stub(const Export &e) {
    const std::string prefix = e.row->weak ? "[[gnu::weak]] " : "";
    std::string body = call(e);
    if (is_opaque(e.result)) {
        body = "return handle_for<" + e.result.substr(0, e.result.find(' ')) + ">(" + body + ")";
    } else if (e.result != "void") {
        body = "return " + body;
    }
    return prefix + e.declaration() + " {\n    " + body + ";\n}\n";
}

std::string type_tag(const Subject &s) {
    return s.record != nullptr        ? std::string(s.record->name)
           : s.enumeration != nullptr ? std::string(s.enumeration->name)
                                      : std::string(s.message->name);
}

std::string type_info() {
    std::string text(banner);
    text += "extern \"C\" {\n";
    for (const TypeEntry &t : types()) text += "extern mirk_type_info _" + t.name + "_type_info_internal;\n";
    text += "}\n\nnamespace tarn {\n\n";
    for (const TypeEntry &t : types()) {
        text += "template <>\nstruct TypeInfo<schema::" + type_tag(t.subject) +
                "> {\n    static constexpr mirk_type_info &own = _" + t.name + "_type_info_internal;\n};\n";
    }
    return text + "\n}  // namespace tarn\n";
}

std::string type_table() {
    std::string text(banner);
    text += "#include \"lumo_ui_tarn.h\"\n\nextern \"C\" {\n";
    for (const TypeEntry &t : types()) {
        text += "constinit mirk_type_info _" + t.name +
                "_type_info_internal = tarn::type_record<tarn::schema::" + type_tag(t.subject) + ">();\n";
    }
    text += "}\n\nextern mirk_type_info *lumo_ui_tarn_type_table[];\nmirk_type_info *lumo_ui_tarn_type_table[] = {\n";
    for (const TypeEntry &t : types()) text += "    &_" + t.name + "_type_info_internal,\n";
    return text + "    nullptr,\n};\n";
}

std::string identity() {
    std::string text(banner);
    text += "extern \"C\" {\n";
    for (const CatalogueEntry &c : catalogue()) {
        text += "extern const std::uint8_t message_" + c.name + "_luid[16];\nextern const char message_" + c.name +
                "_name[64];\n";
        text +=
            "void lumo_ui_tarn_" + c.name +
            "_message_handler(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx, void *message, uint32_t *err);\n";
    }
    for (const Subject &s : subjects(Applies::bundle)) {
        const std::string name(s.bundle->name);
        text += "extern mirk_bundle_handler lumo_ui_tarn_" + name + "_bundle_registered_handler;\n";
        text += "void lumo_ui_tarn_" + name +
                "_bundle_handler(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx, uint32_t *err);\n";
    }
    text += "}\n\nnamespace tarn {\n\n";
    for (const CatalogueEntry &c : catalogue()) {
        text += c.subject.message != nullptr ? fill("template <>\nstruct Identity<{M}> {\n", c.subject)
                                             : fill("template <>\nstruct ControlIdentity<{B}, {K}> {\n", c.subject);
        text += "    static constexpr const std::uint8_t *luid = message_" + c.name + "_luid;\n";
        text += "    static constexpr const char *name = message_" + c.name + "_name;\n";
        text +=
            "    static constexpr mirk_message_handler handler = lumo_ui_tarn_" + c.name + "_message_handler;\n};\n";
    }
    for (const Subject &s : subjects(Applies::bundle)) {
        text += fill(
            "template <>\nstruct BundleIdentity<{B}> {\n"
            "    static constexpr mirk_bundle_handler handler = lumo_ui_tarn_{b}_bundle_handler;\n"
            "    static constexpr mirk_bundle_handler &registered_handler = "
            "lumo_ui_tarn_{b}_bundle_registered_handler;\n};\n",
            s);
    }
    return text + "\n}  // namespace tarn\n";
}

std::string catalogue_objects() {
    std::string text(banner);
    text += "#include \"lumo_ui_tarn.h\"\n\nextern \"C\" {\n";
    for (const CatalogueEntry &c : catalogue()) {
        std::string bytes;
        for (const std::uint8_t byte : c.luid->bytes) bytes += (bytes.empty() ? "" : ", ") + std::to_string(byte);
        text += "constinit const uint8_t message_" + c.name + "_luid[16] = {" + bytes + "};\n";
        text += "constinit const char message_" + c.name + "_luid_text[33] = \"" + c.luid->text.data() + "\";\n";
        text += "constinit const char message_" + c.name + "_name[64] = \"message " + c.name + "\";\n";
    }
    return text + "}\n";
}

std::string opaque() {
    std::string text(banner);
    text += "#include \"lumo_ui_tarn.h\"\n\nnamespace tarn {\n\n";
    for (const Subject &s : subjects(Applies::enumeration)) {
        text += fill("template <>\nstruct ObjectOf<::{e}> {\n    using type = enumeration_object;\n};\n", s);
    }
    for (const Subject &s : subjects(Applies::message)) {
        text += fill("template <>\nstruct ObjectOf<::{m}> {\n    using type = message_object;\n};\n", s);
    }
    return text + "\n}  // namespace tarn\n";
}

std::string variables() {
    std::string text(banner);
    text += "#include \"lumo_ui_tarn.h\"\n\nextern \"C\" {\n";
    for (const Datum &d : all_data()) {
        if (d.declaration.starts_with("mirk_bundle_handler")) text += "constinit " + d.declaration + " = nullptr;\n";
        if (d.declaration.starts_with("uint16_t")) text += "constinit " + d.declaration + " = 0;\n";
    }
    return text + "}\n";
}

}  // namespace

namespace {

// One record of each shape, an enumeration, a message and a bundle: enough to see every line of every family.
bool is_in_sample(const Subject &s) {
    constexpr std::string_view names[] = {"lumo_tarn_lumo_info",  "lumo_tarn_dp_tc",     "lumo_tarn_cl_kesh_appl",
                                          "lumo_tarn_ha_state_e", "lumo_tarn_dp_tt_msg", "lumo_tarn_dp_tt_cfg_rsp"};
    const std::string_view name = s.record != nullptr        ? s.record->name
                                  : s.enumeration != nullptr ? s.enumeration->name
                                  : s.message != nullptr     ? s.message->name
                                  : s.bundle != nullptr      ? s.bundle->name
                                                             : names[0];
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

}  // namespace

Files write_exports(bool sample_only) {
    Files files;
    std::set<std::string_view> units;
    for (const Row &row : rows()) units.insert(row.unit);
    for (const Instantiation &i : instantiations()) units.insert(i.unit);
    const std::vector<Export> functions = all_functions();
    for (const std::string_view unit : units) {
        std::string text(banner);
        text += "#include \"lumo_ui_tarn.h\"\n#include \"core/opaque.h\"\n\nnamespace tarn {\n\n";
        for (const Instantiation &i : instantiations()) {
            if (i.unit != unit) continue;
            for (const Subject &s : subjects(i.applies)) {
                if (!sample_only || is_in_sample(s)) text += "template struct " + fill(i.type, s) + ";\n";
            }
        }
        text += "\n}  // namespace tarn\n\nusing namespace tarn;\n\nextern \"C\" {\n\n";
        for (const Export &e : functions) {
            if (e.row->unit != unit || (sample_only && !is_in_sample(e.subject))) continue;
            text += stub(e) + "\n";
        }
        files[std::string(unit) + ".inc"] = text + "}\n";
    }
    files["type_info.inc"] = type_info();
    files["type_table.inc"] = type_table();
    files["identity.inc"] = identity();
    files["catalogue.inc"] = catalogue_objects();
    files["opaque.inc"] = opaque();
    files["variables.inc"] = variables();
    return files;
}

}  // namespace tarn::generate
