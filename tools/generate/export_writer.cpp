#include <algorithm>
#include <iterator>
#include <set>
#include <stdexcept>

#include "api.h"
#include "writers.h"

namespace tarn::generate {

namespace {

constexpr std::string_view banner = "// Generated from the schema and the table of operations; not to be edited.\n";

bool is_opaque(const std::string &type) { return type.find("lumo_tarn_") != std::string::npos; }

// Casts opaque pointers to the type that the algorithms work on: a header, an enumeration, a message.
std::string argument(const Parameter &p) {
    if (!is_opaque(p.type)) return p.name;
    if (p.type.ends_with("**")) return "objects_of(" + p.name + ")";
    return "object_of(" + p.name + ")";
}

// The argument that a sticky form passes for a parameter that it does not have.
std::string sticky_argument(const Parameter &p, const Subject &s) {
    if (p.name == "ctx_id") return "h->default_id";
    if (p.name == "err") return "&h->last_error";
    if (p.name == "name") return fill(s.record != nullptr ? "\"{r}\"" : "\"{e}\"", s);
    if (p.name == "indent" || p.name == "state") return "0";
    return argument(p);
}

// The function of core/sticky.h; empty if the call alone is enough.
std::string_view policy_of(Sticky sticky) {
    switch (sticky) {
        case Sticky::create:
            return "sticky_create";
        case Sticky::zero:
            return "sticky_zero";
        case Sticky::size:
            return "sticky_size";
        case Sticky::checked_size:
            return "sticky_checked_size";
        case Sticky::error:
            return "sticky_error";
        default:
            return {};
    }
}

std::string call(const Export &e) {
    std::string list;
    const bool err_in_front = e.entry.ends_with("::get_all") || e.entry.ends_with("::set_all");
    const auto add = [&](const std::string &text) { list += (list.empty() ? "" : ", ") + text; };
    const bool sticky = e.operation->sticky != Sticky::none;
    // The values of a whole record are a parameter pack, which must come last.
    for (std::size_t i = 0; i < e.called_with.size(); ++i) {
        const Parameter &p = e.called_with[i];
        if (err_in_front && i == 3) add("err");
        if (err_in_front && i + 1 == e.called_with.size()) continue;
        add(sticky ? sticky_argument(p, e.subject) : argument(p));
    }
    const std::string text = e.entry + "(" + list + ")";
    const std::string_view policy = policy_of(e.operation->sticky);
    return policy.empty() ? text : std::string(policy) + "(h, [&] { return " + text + "; })";
}

std::string stub(const Export &e) {
    const std::string prefix = e.row->weak ? "[[gnu::weak]] " : "";
    std::string body = call(e);
    if (is_opaque(e.result)) {
        body = "return handle_for<" + e.result.substr(0, e.result.find(' ')) + ">(" + body + ")";
    } else if (e.result != "void") {
        body = "return " + body;
    }
    return prefix + "LUMO_UI_TARN_API " + e.declaration() + " {\n    " + body + ";\n}\n";
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
    text += "#include \"lumo_ui_tarn/base.h\"\n\nextern \"C\" {\n";
    for (const TypeEntry &t : types()) {
        text += "LUMO_UI_TARN_API constinit mirk_type_info _" + t.name +
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

// Constants are declared before they are defined; otherwise they would not be visible outside.
std::string constant(const std::string &declaration, const std::string &value) {
    return "extern LUMO_UI_TARN_API const " + declaration + ";\nconstinit const " + declaration + " = " + value + ";\n";
}

std::string catalogue_objects() {
    std::string text(banner);
    text += "#include \"lumo_ui_tarn/base.h\"\n\nextern \"C\" {\n";
    for (const CatalogueEntry &c : catalogue()) {
        std::string bytes;
        for (const std::uint8_t byte : c.luid->bytes) bytes += (bytes.empty() ? "" : ", ") + std::to_string(byte);
        text += constant("uint8_t message_" + c.name + "_luid[16]", "{" + bytes + "}");
        text += constant("char message_" + c.name + "_luid_text[33]", "\"" + std::string(c.luid->text.data()) + "\"");
        text += constant("char message_" + c.name + "_name[64]", "\"message " + c.name + "\"");
    }
    return text + "}\n";
}

// Declares only the types of the public headers, so that a unit is rebuilt when its own operations change and not when
// those of other units do.
std::string opaque() {
    std::string text(banner);
    for (const Applies applies : {Applies::record, Applies::enumeration, Applies::message}) {
        const char *name = applies == Applies::record ? "{r}" : applies == Applies::enumeration ? "{e}" : "{m}";
        for (const Subject &s : subjects(applies)) text += "struct " + fill(name, s) + ";\n";
    }
    text += "\nnamespace tarn {\n\n";
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
    text += "#include \"lumo_ui_tarn/base.h\"\n\nextern \"C\" {\n";
    for (const Datum &d : all_data()) {
        const std::string definition = "LUMO_UI_TARN_API constinit " + d.declaration;
        if (d.declaration.starts_with("mirk_bundle_handler")) text += definition + " = nullptr;\n";
        if (d.declaration.starts_with("uint16_t")) text += definition + " = 0;\n";
    }
    return text + "}\n";
}

}  // namespace

namespace {

// One record of each shape, an enumeration, a message and a bundle: enough to instantiate every line of every family.
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

Files write_exports(const std::vector<std::string> &sources, bool sample_only) {
    Files files;
    files["type_info.inc"] = type_info();
    files["type_table.inc"] = type_table();
    files["identity.inc"] = identity();
    files["catalogue.inc"] = catalogue_objects();
    files["opaque.inc"] = opaque();
    files["variables.inc"] = variables();
    std::set<std::string_view> units;
    for (const Row &row : rows()) units.insert(row.unit);
    for (const Instantiation &i : instantiations()) units.insert(i.unit);
    const std::vector<Export> functions = all_functions();
    for (const std::string_view unit : units) {
        if (!sources.empty() && std::find(sources.begin(), sources.end(), unit) == sources.end()) {
            throw std::runtime_error("the library has no " + std::string(unit) + ".cpp, which operations.cpp names");
        }
        std::string text(banner);
        text +=
            "#include \"core/sticky.h\"\n#include \"lumo_ui_tarn/base.h\"\n#include \"core/opaque.h\"\n\n"
            "namespace tarn {\n\n";
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
    // One file for each source, so that the build knows the names of the files before it knows the table.
    for (const std::string &source : sources) files.try_emplace(source + ".inc", banner);
    return files;
}

}  // namespace tarn::generate
