#include "api.h"

#include <cstdlib>

namespace tarn::generate {

using namespace schema;

namespace {

void replace_all(std::string &text, std::string_view what, std::string_view by) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size()) {
        text.replace(at, what.size(), by);
    }
}

std::string listed_values(const Record &record, bool out) {
    std::string list;
    for (const Member &m : record.members) {
        if (!is_scalar(m) && !(out && m.role != Role::value)) continue;
        list += value_type(m) + (out ? " *" : " ") + std::string(m.name) + ", ";
    }
    return list;
}

// Splits "uint32_t indent, const char *name" at commas, and each piece into type and name.
std::vector<Parameter> parse_parameters(std::string_view text) {
    std::vector<Parameter> parameters;
    while (!text.empty()) {
        const std::size_t comma = text.find(", ");
        const std::string_view piece = text.substr(0, comma);
        text = comma == std::string_view::npos ? std::string_view() : text.substr(comma + 2);
        if (piece == "void") continue;
        if (piece == "H") {
            parameters.push_back({"mirk_handle *", "h"});
        } else if (piece == "I") {
            parameters.push_back({"uint32_t", "ctx_id"});
        } else if (piece == "E") {
            parameters.push_back({"uint32_t *", "err"});
        } else {
            const std::size_t name = piece.find_last_of(" *") + 1;
            std::string type(piece.substr(0, name));
            if (type.ends_with(' ')) type.pop_back();
            parameters.push_back({type, std::string(piece.substr(name))});
        }
    }
    return parameters;
}

std::string_view parameters_in(std::string_view prototype) {
    const std::size_t open = prototype.find('(');
    return prototype.substr(open + 1, prototype.size() - open - 2);
}

std::string_view name_in(std::string_view prototype) {
    const std::size_t open = prototype.find('(');
    const std::size_t begin = prototype.find_last_of(" *", open) + 1;
    return prototype.substr(begin, open - begin);
}

Operation explicit_form(const Row &row) {
    return {&row, Sticky::none, std::string(name_in(row.prototype)), std::string(row.prototype), std::string(row.text)};
}

Operation other_name(const Row &row) {
    Operation o = explicit_form(row);
    o.text = "Another name of " + o.name + "().";
    replace_all(o.prototype, o.name + "(", o.name + std::string(row.alias) + "(");
    o.name += row.alias;
    return o;
}

std::string text_of_sticky(const Row &row, const std::string &name) {
    const std::string text = "Sticky form of " + name + "()";
    switch (row.sticky) {
        case Sticky::as_is:
            return text + ": works under the handle's default_id, also while last_error is set.";
        case Sticky::create: {
            const std::string more = includes(row.applies, Applies::message)
                                         ? " A message whose payload alone cannot be allocated holds the payload's "
                                           "sentinel; NULL if the payload cannot be initialized."
                                         : "";
            return text + ": returns a sentinel instead of NULL if allocation fails or last_error is set already." +
                   more + " Only destroy operations, and sticky forms while last_error is set, accept the sentinel.";
        }
        case Sticky::zero:
            return text + ". Returns 0 while last_error is set.";
        case Sticky::error:
            return text + ". Returns the handle's last_error.";
        default:
            const bool named = row.prototype.find("const char *name") != std::string_view::npos;
            return text + (named ? ", under the type's own name. " : ". ") + "Returns 0xFFFFFFFF after an error.";
    }
}

Operation sticky_form(const Row &row) {
    Operation o = explicit_form(row);
    const std::string_view result = row.prototype.substr(0, row.prototype.find(o.name));
    std::string object, others;
    for (const Parameter &p : parse_parameters(parameters_in(row.prototype))) {
        const bool fixed = p.name == "ctx_id" || p.name == "err" || p.name == "name" || p.name == "indent" ||
                           p.name == "state" || p.name == "h";
        if (fixed) continue;
        const bool is_object = p.name == "object" || p.name == "instance" || p.name == "message" || p.name == "token";
        (is_object ? object : others) += ", " + p.declaration();
    }
    o.sticky = row.sticky;
    o.text = text_of_sticky(row, o.name);
    replace_all(o.name, "to_xml", "toxml");
    o.name += "_cr";
    o.prototype =
        (row.sticky == Sticky::error ? "uint32_t " : std::string(result)) + o.name + "(H" + object + others + ")";
    return o;
}

}  // namespace

Applies class_of(const Member &m) {
    if (m.role == Role::count) return Applies::count;
    if (m.role == Role::length) return Applies::length;
    switch (category(m.kind)) {
        case Category::integer:
            return Applies::integer;
        case Category::boolean:
            return Applies::boolean;
        case Category::address:
            return Applies::address;
        case Category::enumeration:
            return Applies::enumerated;
        case Category::record:
            return Applies::nested;
        case Category::string:
            return Applies::string;
        case Category::array:
            return Applies::array;
    }
    std::abort();
}

std::string value_type(const Member &m) { return std::string(facts(m.kind).value_type); }

std::string memory_type(const Member &m) {
    if (m.enumeration != nullptr) return std::string(m.enumeration->name);
    if (m.record != nullptr) return std::string(m.record->name);
    return is_integer(m.kind) ? value_type(m) : std::string(facts(m.kind).primitive);
}

void keep_part(std::string &text, std::string_view opening, bool keep) {
    for (std::size_t at = 0; (at = text.find(opening, at)) != std::string::npos;) {
        const std::size_t end = text.find('}', at);
        text.replace(at, end + 1 - at, keep ? text.substr(at + opening.size(), end - at - opening.size()) : "");
    }
}

std::string fill(std::string_view pattern, const Subject &s) {
    std::string text(pattern);
    keep_part(text, start_part, s.control == "start");
    keep_part(text, end_part, s.control != "start");
    const auto put = [&](std::string_view what, std::string_view by) { replace_all(text, what, by); };
    const auto put_object = [&](std::string_view what, std::string_view name) {
        put(what, "schema::" + std::string(name));
    };
    const Record *record = s.message != nullptr ? &s.message->payload : s.record;
    if (record != nullptr) {
        if (s.message == nullptr && s.member < record->members.size()) {
            const Member &m = record->members[s.member];
            put("{F}", "FieldOf<{R}, " + std::to_string(s.member) + ">");
            put("{f}", m.name);
            put("{meaning}", m.meaning);
            if (m.kind != Kind::string && m.kind != Kind::array) put("{A}", memory_type(m));
            put("{V}", value_type(m));
            if (m.record != nullptr) put("{n}", m.record->name);
            if (m.enumeration != nullptr) put("{n}", m.enumeration->name);
        }
        put("{get_all}", listed_values(*record, true));
        put("{set_all}", listed_values(*record, false));
        put("{r}", record->name);
        put_object("{R}", record->name);
    }
    if (s.enumeration != nullptr) {
        put("{e}", s.enumeration->name);
        put_object("{E}", s.enumeration->name);
    }
    if (s.message != nullptr) {
        put("{m}", s.message->name);
        put_object("{M}", s.message->name);
    }
    if (s.bundle != nullptr) {
        put("{b}", s.bundle->name);
        put_object("{B}", s.bundle->name);
        put("{k}", s.control);
        put("{K}", "Control::" + std::string(s.control));
    }
    return text;
}

std::string Export::declaration() const {
    std::string list;
    for (const Parameter &p : parameters) list += (list.empty() ? "" : ", ") + p.declaration();
    return result + (result.ends_with('*') ? "" : " ") + name + "(" + (list.empty() ? "void" : list) + ")";
}

std::vector<Subject> subjects(Applies applies) {
    std::vector<Subject> all;
    const auto wants = [&](Applies one) { return includes(applies, one); };
    for (const Record *r : records) {
        if (wants(Applies::record)) all.push_back({.record = r});
        for (std::size_t i = 0; i < r->members.size(); ++i) {
            if (wants(class_of(r->members[i]))) all.push_back({.record = r, .member = i});
        }
    }
    for (const Enumeration *e : enumerations) {
        if (wants(Applies::enumeration)) all.push_back({.enumeration = e});
    }
    for (const Message *m : messages) {
        if (wants(Applies::message)) all.push_back({.message = m});
    }
    for (const Bundle *b : bundles) {
        if (wants(Applies::bundle)) all.push_back({.bundle = b});
        for (const char *kind : {"start", "abort", "commit"}) {
            if (wants(Applies::control)) all.push_back({.bundle = b, .control = kind});
        }
    }
    if (wants(Applies::module)) all.push_back({});
    return all;
}

const std::vector<Operation> &operations() {
    static const std::vector<Operation> all = [] {
        std::vector<Operation> forms;
        for (const Row &row : rows()) {
            forms.push_back(explicit_form(row));
            if (row.sticky != Sticky::none) forms.push_back(sticky_form(row));
            if (!row.alias.empty()) forms.push_back(other_name(row));
        }
        return forms;
    }();
    return all;
}

Export expand(const Operation &operation, const Subject &subject) {
    const Row &row = *operation.row;
    Export e{&operation, &row, subject, {}, {}, fill(row.entry, subject), {}, {}};
    const std::string prototype = fill(operation.prototype, subject);
    e.name = name_in(prototype);
    e.result = prototype.substr(0, prototype.find(e.name + "("));
    if (e.result.ends_with(' ')) e.result.pop_back();
    e.parameters = parse_parameters(parameters_in(prototype));
    e.called_with = parse_parameters(parameters_in(fill(row.prototype, subject)));
    return e;
}

std::vector<Export> exports_of(const Subject &subject, Applies applies) {
    std::vector<Export> found;
    for (const Operation &o : operations()) {
        if (includes(o.row->applies, applies)) found.push_back(expand(o, subject));
    }
    return found;
}

std::vector<Export> all_functions() {
    std::vector<Export> all;
    for (const Operation &o : operations()) {
        for (const Subject &subject : subjects(o.row->applies)) all.push_back(expand(o, subject));
    }
    return all;
}

std::vector<CatalogueEntry> catalogue() {
    std::vector<CatalogueEntry> all;
    for (const Message *m : messages) all.push_back({std::string(m->name), &m->luid, {.message = m}});
    for (const Bundle *b : bundles) {
        const auto add = [&](const char *kind, const Luid &luid) {
            all.push_back({std::string(b->name) + "_bundle_" + kind, &luid, {.bundle = b, .control = kind}});
        };
        add("start", b->start);
        add("abort", b->abort);
        add("commit", b->commit);
    }
    return all;
}

std::vector<TypeEntry> types() {
    std::vector<TypeEntry> all;
    const auto add = [&](std::string_view name, std::string_view suffix, const Subject &subject) {
        all.push_back({std::string(name) + std::string(suffix), std::string(name), subject});
    };
    for (const Record *r : records) add(r->name, "", {.record = r});
    for (const Enumeration *e : enumerations) add(e->name, "", {.enumeration = e});
    for (const Message *m : messages) add(m->name, "_message", {.message = m});
    return all;
}

std::vector<Datum> all_data() {
    std::vector<Datum> all;
    const auto add = [&](std::string before, std::string name, std::string after, const Subject &subject,
                         std::string text) {
        all.push_back({before + " " + name + after, name, subject, std::move(text)});
    };
    for (const TypeEntry &t : types()) {
        add("mirk_type_info", "_" + t.name + "_type_info_internal", "", t.subject,
            "The module's own type record of " + t.name + ": identity, variants, usage counters" +
                (t.subject.message != nullptr ? "; num_live stays 0." : "."));
    }
    for (const CatalogueEntry &c : catalogue()) {
        add("const uint8_t", "message_" + c.name + "_luid", "[16]", c.subject, "Identity of " + c.name + " in frames.");
        add("const char", "message_" + c.name + "_luid_text", "[33]", c.subject,
            "Identity of " + c.name + " in hexadecimal digits.");
        add("const char", "message_" + c.name + "_name", "[64]", c.subject, "Name of " + c.name + ", for trace lines.");
    }
    const auto add_trace_module = [&](const std::string &trace, const std::string &text) {
        add("uint16_t", "g_mirk_lumo_ui_tarn_" + trace + "_trace_module_id", "", {}, "Trace module number " + text);
    };
    add_trace_module("type", "of records and enumerations; 0 until mirk_lumo_ui_tarn_type_trace_init() registers it.");
    add_trace_module("message", "of messages; 0 until mirk_lumo_ui_tarn_message_trace_init() registers it.");
    add_trace_module("queue", "that is not used; always 0.");
    add_trace_module("stub", "of default handlers; never registered, so always 0.");
    add("mirk_bundle_handler", "lumo_ui_tarn_bundle_registered_handler", "", {},
        "The handler that is registered for all bundles of the module, or NULL. Not synchronized.");
    for (const Bundle *b : bundles) {
        add("mirk_bundle_handler", "lumo_ui_tarn_" + std::string(b->name) + "_bundle_registered_handler", "",
            {.bundle = b}, "The handler that is registered for this bundle, or NULL. Not synchronized.");
    }
    return all;
}

}  // namespace tarn::generate
