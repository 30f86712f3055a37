// The schema as tables for the Python package, and its classes as stubs for type checkers.
#include <algorithm>
#include <iterator>

#include "names.h"
#include "api.h"
#include "writers.h"

namespace tarn::generate {

using namespace schema;

namespace {

// Words that Python keeps for itself, and names that all records have.
constexpr std::string_view taken_in_python[] = {
    "False",          "None",         "True",     "and",         "as",       "assert",
    "async",          "await",        "break",    "class",       "compare",  "continue",
    "copy",           "def",          "del",      "elif",        "else",     "except",
    "finally",        "for",          "from",     "from_frame",  "from_xml", "global",
    "handle",         "hash",         "if",       "import",      "in",       "is",
    "lambda",         "members",      "native",   "nonlocal",    "not",      "or",
    "owns_blocks",    "pass",         "raise",    "record_name", "return",   "set",
    "set_all_states", "set_state_of", "state_of", "text",        "to_dict",  "to_frame",
    "to_xml",         "try",          "while",    "with",        "yield"};

std::string attribute(std::string_view name) {
    const bool is_taken =
        std::find(std::begin(taken_in_python), std::end(taken_in_python), name) != std::end(taken_in_python);
    return std::string(name) + (is_taken ? "_" : "");
}

// lumo_tarn_dp_tc becomes DpTc.
std::string class_name(std::string_view snake) {
    std::string name;
    bool first = true;
    for (const char c : snake) {
        if (c != '_') name += first && c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        first = c == '_';
    }
    return name;
}
std::string class_of_record(const Record &record) { return class_name(short_name(record.name)); }

std::string upper(std::string text) {
    for (char &c : text) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return text;
}

std::string kind_of(const Member &m) {
    const std::string kind(facts(m.kind).name);
    return m.role == Role::count ? "count " + kind : m.role == Role::length ? "length " + kind : kind;
}

std::string in_quotes(std::string_view text) {
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') out += '\\';
        out += c;
    }
    return out + "\"";
}

std::string tables() {
    std::string text =
        "\"\"\"The schema. Printed by the generator; not to be edited.\"\"\"\n\n"
        "# class, meaning, members: attribute, name, kind, what of, meaning\nRECORDS = {\n";
    for (const Record *r : records) {
        text += "    " + in_quotes(r->name) + ": (" + in_quotes(class_of_record(*r)) + ", " + in_quotes(r->meaning) +
                ", [\n";
        for (const Member &m : r->members) {
            const std::string_view of = m.record != nullptr        ? m.record->name
                                        : m.enumeration != nullptr ? m.enumeration->name
                                                                   : std::string_view();
            text += "        (" + in_quotes(attribute(m.name)) + ", " + in_quotes(m.name) + ", " +
                    in_quotes(kind_of(m)) + ", " + in_quotes(of) + ", " + in_quotes(m.meaning) + "),\n";
        }
        text += "    ]),\n";
    }
    text += "}\n\n# class, meaning, names, names in Python\nENUMERATIONS = {\n";
    for (const Enumeration *e : enumerations) {
        std::string names, in_python;
        for (const std::string_view name : e->enumerators) names += in_quotes(name) + ", ";
        for (const std::string &name : enumerator_names(*e)) in_python += in_quotes(upper(name)) + ", ";
        text += "    " + in_quotes(e->name) + ": (" + in_quotes(class_name(type_name(*e))) + ", " +
                in_quotes(e->meaning) + ", [" + names + "], [" + in_python + "]),\n";
    }
    text += "}\n\n# class, payload\nMESSAGES = {\n";
    for (const Message *m : messages) {
        text += "    " + in_quotes(m->name) + ": (" + in_quotes(class_name(short_name(m->name))) + ", " +
                in_quotes(m->payload.name) + "),\n";
    }
    text += "}\n\n# the message that each admits\nBUNDLES = {\n";
    for (const Bundle *b : bundles) text += "    " + in_quotes(b->name) + ": " + in_quotes(b->message.name) + ",\n";
    text += "}\n\n# the greatest value of each kind of integer\nGREATEST = {\n";
    for (const KindFacts &kind : kind_facts) {
        if (kind.greatest == 0) continue;
        text += "    " + in_quotes(kind.name) + ": " + std::to_string(kind.greatest) + ",\n";
    }
    return text + "}\n";
}

struct Typed {
    std::string read, written;  // nothing can be written to a count
};

Typed typed(const Member &m) {
    switch (class_of(m)) {
        case Applies::boolean:
            return {"bool", "bool"};
        case Applies::enumerated: {
            const std::string name = class_name(type_name(*m.enumeration));
            return {name + " | int", name + " | int | str"};
        }
        case Applies::address:
            return {"Address", "AddressLike"};
        case Applies::nested:
            return {class_of_record(*m.record), class_of_record(*m.record)};
        case Applies::string:
            return {"str", "str"};
        case Applies::array: {
            const std::string name = class_of_record(*m.record);
            return {"Array[" + name + "]", "Sequence[" + name + "] | Sequence[Mapping[str, Any]]"};
        }
        case Applies::count:
        case Applies::length:
            return {"int", ""};
        default:
            return {"int", "int"};
    }
}

std::string stub(const Record &record) {
    std::string text = "class " + class_of_record(record) + "(Record):\n    \"\"\"" + std::string(record.meaning) +
                       "\"\"\"\n\n    def __init__(\n        self,\n        *,\n        on: Handle | None = None,\n";
    std::string properties;
    for (const Member &m : record.members) {
        const Typed type = typed(m);
        const std::string name = attribute(m.name);
        if (!type.written.empty()) {
            const bool nests = m.kind == Kind::record;
            text += "        " + name + ": " + type.written + (nests ? " | Mapping[str, Any]" : "") + " = ...,\n";
        }
        properties +=
            "    @property\n    def " + name + "(self) -> " + type.read + ": ...  # " + std::string(m.meaning) + "\n";
        if (type.written.empty()) continue;
        properties +=
            "    @" + name + ".setter\n    def " + name + "(self, value: " + type.written + ") -> None: ...\n";
    }
    return text + "    ) -> None: ...\n" + properties + "\n";
}

std::string stubs() {
    std::string text =
        "# The classes of the schema. Printed by the generator; not to be edited.\n"
        "from __future__ import annotations\n\nimport enum\nfrom collections.abc import Mapping, Sequence\n"
        "from typing import Any\n\nfrom ._base import Address, AddressLike, Array, Message, Record\n"
        "from ._native import Handle\n\n";
    std::string all;
    const auto list = [&](const std::string &name) { all += "    " + in_quotes(name) + ",\n"; };
    for (const Enumeration *e : enumerations) {
        const std::string name = class_name(type_name(*e));
        list(name);
        text += "class " + name + "(enum.IntEnum):\n    \"\"\"" + std::string(e->meaning) + "\"\"\"\n\n";
        std::size_t value = 0;
        for (const std::string &enumerator : enumerator_names(*e)) {
            text += "    " + upper(enumerator) + " = " + std::to_string(value++) + "\n";
        }
        text += "\n";
    }
    for (const Record *r : records) {
        list(class_of_record(*r));
        text += stub(*r);
    }
    for (const Message *m : messages) {
        const std::string name = class_name(short_name(m->name)), payload = class_of_record(m->payload);
        list(name);
        text += "class " + name + "(Message):\n    def __init__(self, payload: " + payload +
                " | None = None, *, on: Handle | None = None) -> None: ...\n    @property\n    def payload(self) -> " +
                payload + ": ...\n    @payload.setter\n    def payload(self, value: " + payload + ") -> None: ...\n\n";
    }
    return text + "MESSAGES: dict[bytes, type[Message]]\n__all__ = [\n" + all + "]\n";
}

}  // namespace

Files write_python() { return {{"_schema.py", tables()}, {"records.pyi", stubs()}}; }

}  // namespace tarn::generate
