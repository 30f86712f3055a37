// tarn schema: prints the schema as lists, trees or tables.
#include <algorithm>
#include <functional>
#include <memory>
#include <nlohmann/json.hpp>

#include "tools/tarn/commands/commands.h"
#include "tools/tarn/commands/options.h"
#include "tools/tarn/formats/schema.h"
#include "tools/tarn/formats/schema_documents.h"
#include "tools/tarn/pages/schema_page.h"
#include "tools/tarn/support/failure.h"
#include "tools/tarn/support/files.h"
#include "tools/tarn/support/names.h"
#include "tools/tarn/support/printable.h"
#include "tools/tarn/support/terminal.h"

namespace tarn::tool {

namespace {

using nlohmann::ordered_json;
using schema::Kind;
using schema::Member;
using schema::Record;

struct SchemaOptions {
    std::string name;
    std::string find;
    bool tree = false, dot = false, json = false, html = false, json_schema = false, xsd = false;
};

std::string slot_text(const Member &m, const schema::MemberLayout &location) {
    if (!schema::is_tracked(m)) return "-";
    const std::string slot = std::to_string(location.slot);
    if (m.kind == Kind::array) return slot + ", vector at " + std::to_string(location.inner);
    return schema::has_area(m) ? slot + ", own from " + std::to_string(location.inner) : slot;
}

std::string padded(std::string text, std::size_t width) {
    if (text.size() < width) text.resize(width, ' ');
    return text;
}

// Columns as wide as their widest cell.
std::string table(const std::vector<std::vector<std::string>> &rows) {
    std::vector<std::size_t> widths;
    for (const auto &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
    }
    std::string out;
    for (const auto &row : rows) {
        std::string line = "  ";
        for (std::size_t i = 0; i < row.size(); ++i)
            line += i + 1 < row.size() ? padded(row[i], widths[i] + 2) : row[i];
        const bool heading = &row == &rows.front();
        out += heading ? colored(line, Color::gray) + "\n" : line + "\n";
    }
    return out;
}

std::string list_text() {
    std::string out = "bundles\n";
    std::vector<std::vector<std::string>> rows{{"short name", "name", "message"}};
    for (const auto *b : schema::bundles) {
        rows.push_back({short_name(b->name), std::string(b->name), std::string(b->message.name)});
    }
    out += table(rows) + "\nmessages\n";
    rows = {{"name", "luid", "payload"}};
    for (const auto *m : schema::messages) {
        rows.push_back({std::string(m->name), m->luid.text.data(), std::string(m->payload.name)});
    }
    out += table(rows) + "\nenumerations\n";
    rows = {{"name", "luid", "meaning"}};
    for (const auto *e : schema::enumerations) {
        rows.push_back({std::string(e->name), e->luid.text.data(), std::string(e->meaning)});
    }
    out += table(rows) + "\nrecords\n";
    rows = {{"name", "members", "base size", "state", "wire", "meaning"}};
    for (const auto *r : schema::records) {
        const schema::Layout layout = schema::lay_out(*r);
        rows.push_back({std::string(r->name), std::to_string(r->members.size()), std::to_string(layout.base_size),
                        std::to_string(layout.state_width), wire_text(*r), std::string(r->meaning)});
    }
    return out + table(rows);
}

// A heading and one row for each member.
std::vector<std::vector<std::string>> record_rows(const Record &record) {
    const schema::Layout layout = schema::lay_out(record);
    std::vector<std::vector<std::string>> rows{{"member", "kind", "role", "offset", "size", "slot", "wire", "meaning"}};
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const Member &m = record.members[i];
        const schema::MemberLayout &location = layout.members[i];
        rows.push_back({std::string(m.name), kind_text(m), role_text(m), std::to_string(location.offset),
                        std::to_string(location.size), slot_text(m, location), wire_text(m), std::string(m.meaning)});
    }
    return rows;
}

// Nothing for a record that is no element of a list.
std::string key_text(const schema::Key &key) {
    if (!key.is_stated) return {};
    std::string members;
    for (const std::string_view name : key.members()) members += (members.empty() ? "" : ", ") + std::string(name);
    return "  " + std::string(key.element) + ", key " + (members.empty() ? "none" : members) + "\n";
}

std::string record_text(const Record &record) {
    const schema::Layout layout = schema::lay_out(record);
    std::string out = std::string(record.name) + ": " + std::string(record.meaning) + "\n  luid " +
                      record.luid.text.data() + ", base size " + std::to_string(layout.base_size) + ", state area " +
                      std::to_string(layout.state_width) + ", on the wire " + wire_text(record) + " bytes\n";
    return out + key_text(record.key) + table(record_rows(record));
}

std::string enumeration_text(const schema::Enumeration &e) {
    std::string out = std::string(e.name) + ": " + std::string(e.meaning) + "\n  luid " + e.luid.text.data() + "\n";
    for (std::size_t i = 0; i < e.enumerators.size(); ++i) {
        out += "  " + padded(std::to_string(i), 4) + std::string(e.enumerators[i]) + "\n";
    }
    return out;
}

void add_tree(const Record &record, const std::string &indent, std::string &out) {
    for (const Member &m : record.members) {
        if (m.role != schema::Role::value) continue;
        out += indent + std::string(m.name) + "  " + colored(kind_text(m), Color::blue) + "\n";
        if (m.record != nullptr) add_tree(*m.record, indent + "  ", out);
    }
}

std::string tree_text(const Record &record) {
    std::string out = std::string(record.name) + "\n";
    add_tree(record, "  ", out);
    return out;
}

std::string dot_text(const std::function<bool(const Record &)> &wanted) {
    std::string out = "digraph schema {\n  rankdir=LR;\n  node [shape=box];\n";
    for (const auto *b : schema::bundles) {
        if (!wanted(b->message.payload)) continue;
        out += "  \"" + std::string(b->name) + "\" [shape=ellipse];\n  \"" + std::string(b->name) + "\" -> \"" +
               std::string(b->message.name) + "\";\n";
    }
    for (const auto *m : schema::messages) {
        if (!wanted(m->payload)) continue;
        out += "  \"" + std::string(m->name) + "\" -> \"" + std::string(m->payload.name) + "\";\n";
    }
    for (const auto *r : schema::records) {
        if (!wanted(*r)) continue;
        out += "  \"" + std::string(r->name) + "\";\n";
        for (const Member &m : r->members) {
            if (m.record == nullptr) continue;
            out += "  \"" + std::string(r->name) + "\" -> \"" + std::string(m.record->name) + "\" [label=\"" +
                   std::string(m.name) + (m.kind == Kind::array ? "[]" : "") + "\"];\n";
        }
    }
    return out + "}\n";
}

// Names the first step of the path that is wrong.
[[noreturn]] void unknown_member(const std::string &path) {
    std::size_t end = path.find('.');
    const std::string type = path.substr(0, end);
    if (!target_of(type)) throw unknown_name("type", type, type_names());
    for (Target in = target_of(type);; in = target_of(path.substr(0, end))) {
        const std::size_t from = end + 1;
        end = path.find('.', from);
        if (target_of(path.substr(0, end))) continue;
        const std::string before = path.substr(0, from - 1), name = path.substr(from, end - from);
        if (in.nested() == nullptr) throw Failure(Exit::input, in_quotes(before) + " nests no record");
        std::vector<std::string> candidates;
        for (const Member &m : in.nested()->members) candidates.push_back(before + "." + std::string(m.name));
        throw Failure(Exit::input, std::string(in.nested()->name) + " has no member " + in_quotes(name) +
                                       suggestion(before + "." + name, candidates));
    }
}

bool reaches(const Record &from, const Record &to) {
    if (&from == &to) return true;
    for (const Member &m : from.members) {
        if (m.record != nullptr && reaches(*m.record, to)) return true;
    }
    return false;
}

std::string of_enumeration(const schema::Enumeration &e, const SchemaOptions &options) {
    if (options.tree || options.dot) {
        throw Failure(Exit::input, options.name + " is an enumeration, which has no tree and no graph");
    }
    if (!options.json) return enumeration_text(e);
    return ordered_json{{"name", e.name}, {"luid", e.luid.text.data()}, {"enumerators", e.enumerators}}.dump(2) + "\n";
}

// The member's row, and the type that it nests.
std::string of_member(const Target &target, const SchemaOptions &options) {
    const Member &member = *target.member;
    const bool nests = member.record != nullptr;
    if (options.tree)
        return nests ? tree_text(*member.record) : std::string(member.name) + "  " + kind_text(member) + "\n";
    if (options.dot && nests) return dot_text([&member](const Record &r) { return reaches(*member.record, r); });
    if (options.dot) throw Failure(Exit::input, options.name + " nests no record, so there is no graph");
    const auto at = static_cast<std::size_t>(&member - target.record->members.data());
    if (options.json) return json_of_record(*target.record)["members"][at].dump(2) + "\n";
    const auto rows = record_rows(*target.record);
    std::string out = std::string(target.record->name) + "." + std::string(member.name) + "\n";
    out += table({rows.front(), rows[at + 1]});
    if (nests) out += "\n" + record_text(*member.record);
    if (member.enumeration != nullptr) out += "\n" + enumeration_text(*member.enumeration);
    return out;
}

// Something that a text was found in. A lower rank is printed first.
struct Found {
    int rank;
    std::string kind, name, meaning;
};

std::string lower(std::string_view text) {
    std::string out(text);
    for (char &c : out) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return out;
}

std::vector<Found> found(const std::string &text) {
    std::vector<Found> all;
    const std::string wanted = lower(text);
    // `name` is the end of the path, which counts for the rank.
    const auto look = [&](const char *kind, std::string_view path, std::string_view name, std::string_view meaning) {
        const std::string in_name = lower(name);
        const bool is_named = in_name.find(wanted) != std::string::npos || lower(path) == wanted;
        if (!is_named && lower(meaning).find(wanted) == std::string::npos) return;
        const int rank = in_name == wanted || lower(path) == wanted || short_name(path) == wanted ? 0
                         : is_named && in_name.starts_with(wanted)                                ? 1
                         : is_named                                                               ? 2
                                                                                                  : 3;
        all.push_back({rank, kind, std::string(path), std::string(meaning)});
    };
    for (const auto *b : schema::bundles) look("bundle", b->name, b->name, b->message.payload.meaning);
    for (const auto *m : schema::messages) look("message", m->name, m->name, m->payload.meaning);
    for (const auto *e : schema::enumerations) {
        look("enumeration", e->name, e->name, e->meaning);
        for (const auto &name : e->enumerators)
            look("enumerator", std::string(e->name) + "." + std::string(name), name, {});
    }
    for (const auto *r : schema::records) {
        look("record", r->name, r->name, r->meaning);
        for (const Member &m : r->members) {
            look("member", std::string(r->name) + "." + std::string(m.name), m.name, m.meaning);
        }
    }
    std::stable_sort(all.begin(), all.end(), [](const Found &a, const Found &b) { return a.rank < b.rank; });
    return all;
}

// With the first occurrence of the text in color.
std::string highlighted(const std::string &line, const std::string &text) {
    const std::size_t at = lower(line).find(lower(text));
    if (at == std::string::npos) return line;
    return line.substr(0, at) + colored(line.substr(at, text.size()), Color::yellow) + line.substr(at + text.size());
}

std::string of_search(const SchemaOptions &options) {
    const std::vector<Found> all = found(options.find);
    if (all.empty()) throw Failure(Exit::negative, "nothing in the schema contains " + in_quotes(options.find));
    if (options.json) {
        ordered_json json = ordered_json::array();
        for (const Found &f : all) json.push_back({{"kind", f.kind}, {"name", f.name}, {"meaning", f.meaning}});
        return json.dump(2) + "\n";
    }
    std::size_t width = 0;
    for (const Found &f : all) width = std::max(width, f.name.size());
    std::string out;
    for (const Found &f : all) {
        out += padded(f.kind, 13) + highlighted(f.meaning.empty() ? f.name : padded(f.name, width + 2), options.find) +
               highlighted(f.meaning, options.find) + "\n";
    }
    return out;
}

// The message of this name, or that of a bundle.
const schema::Message &message_of(const std::string &name) {
    if (const auto *bundle = find_bundle_named(name); bundle != nullptr) return bundle->bundle->message;
    if (const auto *message = find_message_named(name); message != nullptr) return *message->message;
    std::vector<Named> known = bundle_names();
    for (const Named &n : message_names()) known.push_back(n);
    throw unknown_name("bundle or message", name, known);
}

std::string of_one(const SchemaOptions &options) {
    if (options.json_schema) return json_schema_of(message_of(options.name)).dump(2) + "\n";
    if (options.xsd) return xsd_of(message_of(options.name));
    if (options.html) throw Failure(Exit::input, "--html shows the whole schema and takes no name");
    for (const auto *e : schema::enumerations) {
        if (is_named(options.name, e->name)) return of_enumeration(*e, options);
    }
    if (options.name.find('.') != std::string::npos) {
        const Target target = target_of(options.name);
        if (!target) unknown_member(options.name);
        return of_member(target, options);
    }
    const Record *record = record_named(options.name);
    if (record == nullptr) throw unknown_name("type", options.name, type_names());
    if (options.tree) return tree_text(*record);
    if (options.dot) return dot_text([record](const Record &r) { return reaches(*record, r); });
    return options.json ? json_of_record(*record).dump(2) + "\n" : record_text(*record);
}

std::string of_all(const SchemaOptions &options) {
    if (options.json_schema || options.xsd) throw Failure(Exit::input, "--json-schema and --xsd require a message");
    if (options.html) return schema_page();
    if (options.dot) return dot_text([](const Record &) { return true; });
    if (options.json) return schema_json().dump(2) + "\n";
    if (!options.tree) return list_text();
    std::string out;
    for (const auto *m : schema::messages) out += std::string(m->name) + ": " + tree_text(m->payload) + "\n";
    return out;
}

}  // namespace

void add_schema(CLI::App &app, Context &) {
    auto options = std::make_shared<SchemaOptions>();
    CLI::App *command = app.add_subcommand("schema", "Print the schema as lists, trees or tables");
    command
        ->add_option("type", options->name,
                     "Record, enumeration, message or bundle (its payload), or the path of a member; default: "
                     "everything")
        ->type_name(words::type);
    CLI::Option_group *form = command->add_option_group("form", "Output format");
    form->add_flag("--tree", options->tree, "Tree of members");
    form->add_flag("--dot", options->dot, "Graph for dot");
    form->add_flag("--json", options->json, "JSON");
    form->add_flag("--html", options->html, "HTML page of the whole schema, with a drawing of its nesting");
    form->add_flag("--json-schema", options->json_schema,
                   "JSON Schema of a message in JSON, for validators and editors");
    form->add_flag("--xsd", options->xsd, "XML Schema of a message in XML");
    form->require_option(0, 1);
    command
        ->add_option("--find", options->find,
                     "Print what contains this text in its name or its meaning, the best matches first")
        ->type_name("TEXT")
        ->excludes(command->get_option("type"));
    command->footer(
        "Offset and size are the location of a member in the record in memory. The base\n"
        "size is the size of the record without per-field state. The state area follows\n"
        "this base; the slot is the index of the member's byte in the state area. Sizes on\n"
        "the wire exclude per-field state; a + means that arrays and strings add to them.\n"
        "All sizes are in bytes. If a record is an element of lists, the third line says what\n"
        "it is called, and which members identify it in its list.\n\n"
        "Examples:\n"
        "  tarn schema\n"
        "  tarn schema lumo_tarn_dp_tc\n"
        "  tarn schema dp-tt-cfg --tree\n"
        "  tarn schema --html > schema.html\n"
        "  tarn schema dp-tt-cfg.lumo_data\n"
        "  tarn schema --find prefix\n"
        "  tarn schema cl-debug --xsd > cl-debug.xsd\n"
        "  tarn schema --dot | dot -Tsvg -o schema.svg");
    command->callback([options] {
        const std::string text = !options->find.empty()  ? of_search(*options)
                                 : options->name.empty() ? of_all(*options)
                                                         : of_one(*options);
        write_file("-", text);
    });
}

}  // namespace tarn::tool
