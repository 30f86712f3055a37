// Rows crossed with the schema: every exported name, its signature and what it calls. The only place where names are
// formed.
#pragma once

#include <string>
#include <vector>

#include "operations.h"
#include "schema/catalogue.h"

namespace tarn::generate {

// What a row was applied to. Members that do not matter are null.
struct Subject {
    const schema::Record *record = nullptr;
    std::size_t member = 0;
    const schema::Enumeration *enumeration = nullptr;
    const schema::Message *message = nullptr;
    const schema::Bundle *bundle = nullptr;
    std::string_view control = {};
};

struct Parameter {
    std::string type, name;
    std::string declaration() const { return type.ends_with('*') ? type + name : type + " " + name; }
};

// One name of a row: the explicit form, its sticky form, or its other name. Placeholders are still in place.
struct Operation {
    const Row *row;
    Sticky sticky;  // of the sticky form alone
    std::string name, prototype, text;
};
const std::vector<Operation> &operations();

struct Export {
    const Operation *operation = nullptr;
    const Row *row = nullptr;
    Subject subject;
    std::string result, name, entry;
    std::vector<Parameter> parameters;
    std::vector<Parameter> called_with;  // what the entry takes: the parameters of the explicit form
    std::string declaration() const;     // without a semicolon
};

Applies class_of(const schema::Member &member);
std::string value_type(const schema::Member &member);
std::string memory_type(const schema::Member &member);
std::string fill(std::string_view pattern, const Subject &subject);

std::vector<Subject> subjects(Applies applies);
Export expand(const Operation &operation, const Subject &subject);
std::vector<Export> exports_of(const Subject &subject, Applies applies);
std::vector<Export> all_functions();

struct Datum {
    std::string declaration, name;  // the declaration as in a header, without extern
    Subject subject;
    std::string text;  // what it is, in a sentence
};
std::vector<Datum> all_data();

// The catalogue: the plain messages, then the control messages by bundle.
struct CatalogueEntry {
    std::string name;
    const schema::Luid *luid;
    Subject subject;
};
std::vector<CatalogueEntry> catalogue();

// The types in the order of the type table, with the name of the exported type record.
struct TypeEntry {
    std::string name, schema_name;
    Subject subject;
};
std::vector<TypeEntry> types();

}  // namespace tarn::generate
