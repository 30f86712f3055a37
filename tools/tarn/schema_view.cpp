// tarn schema: the schema as lists, trees and tables.
#include <functional>
#include <memory>
#include <nlohmann/json.hpp>

#include "commands.h"
#include "files.h"
#include "names.h"
#include "page.h"
#include "pictures.h"
#include "schema_body.h"
#include "schema_form.h"
#include "schema_script.h"
#include "terminal.h"

namespace tarn::tool {

namespace {

using nlohmann::ordered_json;
using schema::Kind;
using schema::Member;
using schema::Record;

struct Options {
    std::string name;
    bool tree = false, dot = false, json = false, html = false;
};

std::string slot_text(const Member &m, const schema::Place &place) {
    if (!schema::is_tracked(m)) return "-";
    const std::string slot = std::to_string(place.slot);
    if (m.kind == Kind::array) return slot + ", vector at " + std::to_string(place.inner);
    return schema::has_area(m) ? slot + ", own from " + std::to_string(place.inner) : slot;
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
        out += heading ? painted(line, Colour::grey) + "\n" : line + "\n";
    }
    return out;
}

std::string list_text() {
    std::string out = "bundles\n";
    std::vector<std::vector<std::string>> rows{{"short form", "name", "admits"}};
    for (const auto *b : schema::bundles) {
        rows.push_back({short_form(b->name), std::string(b->name), std::string(b->message.name)});
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

std::string record_text(const Record &record) {
    const schema::Layout layout = schema::lay_out(record);
    std::string out = std::string(record.name) + ": " + std::string(record.meaning) + "\n  luid " +
                      record.luid.text.data() + ", base size " + std::to_string(layout.base_size) + ", state area " +
                      std::to_string(layout.state_width) + ", on the wire " + wire_text(record) + " bytes\n";
    std::vector<std::vector<std::string>> rows{{"member", "kind", "role", "offset", "size", "slot", "wire", "meaning"}};
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const Member &m = record.members[i];
        const schema::Place &place = layout.places[i];
        rows.push_back({std::string(m.name), kind_text(m), role_text(m), std::to_string(place.offset),
                        std::to_string(place.size), slot_text(m, place), wire_text(m), std::string(m.meaning)});
    }
    return out + table(rows);
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
        out += indent + std::string(m.name) + "  " + painted(kind_text(m), Colour::blue) + "\n";
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

bool matches(std::string_view given, std::string_view name) { return given == name || given == short_form(name); }

// A record, or the payload of a message or a bundle.
const Record *record_named(const std::string &name) {
    for (const auto *r : schema::records) {
        if (matches(name, r->name)) return r;
    }
    for (const auto *b : schema::bundles) {
        if (matches(name, b->name)) return &b->message.payload;
    }
    for (const auto *m : schema::messages) {
        if (matches(name, m->name)) return &m->payload;
    }
    return nullptr;
}

[[noreturn]] void unknown(const std::string &name) {
    std::vector<std::string> candidates;
    for (const auto *r : schema::records) candidates.push_back(short_form(r->name));
    for (const auto *r : schema::records) candidates.emplace_back(r->name);
    for (const auto *b : schema::bundles) candidates.push_back(short_form(b->name));
    throw Failure(Exit::input, "the schema has no \"" + name + "\"" + suggestion(name, candidates));
}

bool reaches(const Record &from, const Record &to) {
    if (&from == &to) return true;
    for (const Member &m : from.members) {
        if (m.record != nullptr && reaches(*m.record, to)) return true;
    }
    return false;
}

std::string of_one(const Options &options) {
    if (options.html) throw Failure(Exit::input, "the page holds all of the schema, so no name goes with --html");
    for (const auto *e : schema::enumerations) {
        if (!matches(options.name, e->name)) continue;
        if (!options.json) return enumeration_text(*e);
        return ordered_json{{"name", e->name}, {"luid", e->luid.text.data()}, {"enumerators", e->enumerators}}.dump(2) +
               "\n";
    }
    const Record *record = record_named(options.name);
    if (record == nullptr) unknown(options.name);
    if (options.tree) return tree_text(*record);
    if (options.dot) return dot_text([record](const Record &r) { return reaches(*record, r); });
    return options.json ? json_of_record(*record).dump(2) + "\n" : record_text(*record);
}

std::string page() {
    const ordered_json data{{"schema", schema_json()}, {"drawing", draw::nesting(false)}};
    return page_text({"Schema of tarn", schema_body, schema_script, data});
}

std::string of_all(const Options &options) {
    if (options.html) return page();
    if (options.dot) return dot_text([](const Record &) { return true; });
    if (options.json) return schema_json().dump(2) + "\n";
    if (!options.tree) return list_text();
    std::string out;
    for (const auto *m : schema::messages) out += std::string(m->name) + ": " + tree_text(m->payload) + "\n";
    return out;
}

}  // namespace

void add_schema(CLI::App &app, Context &) {
    auto options = std::make_shared<Options>();
    CLI::App *command = app.add_subcommand("schema", "the schema as lists, trees and tables");
    command->add_option("name", options->name, "a record, enumeration, message or bundle; all of it if left out");
    CLI::Option_group *form = command->add_option_group("form", "how to show it");
    form->add_flag("--tree", options->tree, "as a tree of members");
    form->add_flag("--dot", options->dot, "as a graph for dot");
    form->add_flag("--json", options->json, "as JSON");
    form->add_flag("--html", options->html, "as a page for a browser, with the nesting drawn; of all of it");
    form->require_option(0, 1);
    command->footer(
        "Wire widths are bytes without per-field state; a + says that arrays and strings come on top.\n\n"
        "Examples:\n"
        "  tarn schema\n"
        "  tarn schema lumo_tarn_dp_tc\n"
        "  tarn schema dp-tt-cfg --tree\n"
        "  tarn schema --html > schema.html\n"
        "  tarn schema --dot | dot -Tsvg -o schema.svg");
    command->callback([options] { write_file("-", options->name.empty() ? of_all(*options) : of_one(*options)); });
}

}  // namespace tarn::tool
