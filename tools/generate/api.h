// The rows of the table expanded over the schema: every exported name, its signature and the entry that it calls. Names
// are formed here only.
#pragma once

#include <string>
#include <vector>

#include "operations.h"
#include "schema/catalogue.h"

namespace tarn::generate {

// The object that a row is applied to. Members that do not apply are null.
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

// One name of a row: the explicit form, its sticky form, or its second name. Placeholders are not yet filled in.
struct Operation {
    const Row *row;
    Sticky sticky;  // none unless this is the sticky form
    std::string name, prototype, text;
};
const std::vector<Operation> &operations();

struct Export {
    const Operation *operation = nullptr;
    const Row *row = nullptr;
    Subject subject;
    std::string result, name, entry;
    std::vector<Parameter> parameters;
    std::vector<Parameter> called_with;  // parameters of the entry, which are those of the explicit form
    std::string declaration() const;     // without a semicolon
};

Applies class_of(const schema::Member &member);
std::string value_type(const schema::Member &member);
std::string memory_type(const schema::Member &member);
std::string fill(std::string_view pattern, const Subject &subject);

// The text of a control message's row may have parts "{start:...}" and "{end:...}", for a start and for an abort or a
// commit. Keeps the content of such parts, or removes them.
inline constexpr std::string_view start_part = "{start:", end_part = "{end:";
void keep_part(std::string &text, std::string_view opening, bool keep);

std::vector<Subject> subjects(Applies applies);
Export expand(const Operation &operation, const Subject &subject);
std::vector<Export> exports_of(const Subject &subject, Applies applies);
std::vector<Export> all_functions();

struct Datum {
    std::string declaration, name;  // the declaration as in a header, without extern
    Subject subject;
    std::string text;  // a sentence for its comment
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
