// The schema as tables for the Python package, and type stubs of its classes.
#include <algorithm>
#include <cstdlib>
#include <functional>
#include <iterator>

#include "api.h"
#include "frame_parts.h"
#include "names.h"
#include "schema/layout.h"
#include "writers.h"

namespace tarn::generate {

using namespace schema;

namespace {

// Keywords of Python, and names of all records.
constexpr std::string_view reserved_names[] = {
    "False",          "None",         "True",     "and",         "as",       "assert",
    "async",          "await",        "break",    "class",       "compare",  "continue",
    "copy",           "def",          "del",      "elif",        "else",     "except",
    "finally",        "for",          "from",     "from_frame",  "from_xml", "global",
    "handle",         "hash",         "if",       "import",      "in",       "is",
    "lambda",         "members",      "native",   "nonlocal",    "not",      "or",
    "owns_blocks",    "pass",         "raise",    "record_name", "return",   "set",
    "set_all_states", "set_state_of", "state_of", "text",        "to_dict",  "to_frame",
    "to_json",        "to_xml",       "try",      "while",       "with",     "yield"};

std::string attribute(std::string_view name) {
    const bool is_reserved =
        std::find(std::begin(reserved_names), std::end(reserved_names), name) != std::end(reserved_names);
    return std::string(name) + (is_reserved ? "_" : "");
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

std::string quoted(std::string_view text) {
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') out += '\\';
        out += c;
    }
    return out + "\"";
}

// What a member holds, and the errors of assigning something else. `counter` is the count or the length before it.
std::string documentation(const Member &m, const Member *counter) {
    const std::string meaning(m.meaning);
    const std::string most =
        std::to_string(greatest(m.role == Role::value && counter != nullptr ? counter->kind : m.kind));
    if (m.role != Role::value) return meaning + ": read-only, up to " + most;
    switch (category(m.kind)) {
        case Category::integer:
            return meaning + ": a number from 0 to " + most +
                   (greatest(m.kind) > 0xffffffff ? ", or its digits as text; ValueError for other text" : "") +
                   "; OverflowError for other numbers";
        case Category::boolean:
            return meaning + ": True or False";
        case Category::enumeration:
            return meaning + ": " + class_name(type_name(*m.enumeration)) +
                   ", or a number from a frame that has no name; assigning accepts numbers and names in C; OSError "
                   "(EIDRM) "
                   "for "
                   "an unknown number, ValueError for an unknown name";
        case Category::address:
            return meaning +
                   ": Address; assigning accepts text such as 10.0.0.0/8, and interfaces and networks of the module "
                   "ipaddress; ValueError for anything else";
        case Category::record:
            return meaning + ": " + class_of_record(*m.record) +
                   ", a part of this record; assigning copies another one; TypeError for anything else";
        case Category::string:
            return meaning + ": text of at most " + most +
                   " bytes as UTF-8; OverflowError if it is longer, ValueError if it contains a NUL character";
        case Category::array:
            return meaning + ": Array of at most " + most + " " + class_of_record(*m.record) +
                   "; assigning copies records or mappings; ValueError for fewer than before, OverflowError for too "
                   "many";
    }
    std::abort();
}

// The members of a record with their documentation.
void for_each_documented(const Record &record, const std::function<void(const Member &, const std::string &)> &visit) {
    const Member *counter = nullptr;
    for (const Member &m : record.members) {
        visit(m, documentation(m, m.role == Role::value ? counter : nullptr));
        counter = m.role == Role::value ? nullptr : &m;
    }
}

std::string tables() {
    std::string text =
        "\"\"\"The schema. Generated; do not edit.\"\"\"\n\n"
        "# class, meaning, members: attribute, name, kind, record or enumeration, documentation\nRECORDS = {\n";
    for (const Record *r : records) {
        text += "    " + quoted(r->name) + ": (" + quoted(class_of_record(*r)) + ", " + quoted(r->meaning) + ", [\n";
        for_each_documented(*r, [&](const Member &m, const std::string &documentation) {
            const std::string_view of = m.record != nullptr        ? m.record->name
                                        : m.enumeration != nullptr ? m.enumeration->name
                                                                   : std::string_view();
            text += "        (" + quoted(attribute(m.name)) + ", " + quoted(m.name) + ", " + quoted(kind_of(m)) + ", " +
                    quoted(of) + ", " + quoted(documentation) + "),\n";
        });
        text += "    ]),\n";
    }
    text += "}\n\n# class, meaning, names in C, names in Python\nENUMERATIONS = {\n";
    for (const Enumeration *e : enumerations) {
        std::string names, in_python;
        for (const std::string_view name : e->enumerators) names += quoted(name) + ", ";
        for (const std::string &name : enumerator_names(*e)) in_python += quoted(upper(name)) + ", ";
        text += "    " + quoted(e->name) + ": (" + quoted(class_name(type_name(*e))) + ", " + quoted(e->meaning) +
                ", [" + names + "], [" + in_python + "]),\n";
    }
    text += "}\n\n# class, payload\nMESSAGES = {\n";
    for (const Message *m : messages) {
        text += "    " + quoted(m->name) + ": (" + quoted(class_name(short_name(m->name))) + ", " +
                quoted(m->payload.name) + "),\n";
    }
    text += "}\n\n# the message that the bundle admits\nBUNDLES = {\n";
    for (const Bundle *b : bundles) text += "    " + quoted(b->name) + ": " + quoted(b->message.name) + ",\n";
    text += "}\n\n# parts of each record's frame: kind, states, bytes, record, array or string\nPARTS = {\n";
    for (const Record *r : records_in_frames()) {
        text += "    " + quoted(r->name) + ": [\n";
        for (const FramePart &part : frame_parts(*r)) {
            text += "        (" + quoted(part.kind) + ", " + std::to_string(part.states) + ", " +
                    std::to_string(part.bytes) + ", " + quoted(part.of) + ", " + quoted(part.counted) + "),\n";
        }
        text += "    ],\n";
    }
    text += "}\n\n# of an instance: bytes, and the offset of each member\nLAYOUTS = {\n";
    for (const Record *r : records) {
        const Layout layout = lay_out(*r);
        std::string offsets;
        for (std::size_t i = 0; i < r->members.size(); ++i) {
            offsets += (i == 0 ? "" : ", ") + std::to_string(layout.members[i].offset);
        }
        text += "    " + quoted(r->name) + ": (" + std::to_string(layout.base_size) + ", [" + offsets + "]),\n";
    }
    text +=
        "}\n\n# of elements of arrays: what one is called, and the members that identify it\nKEYS: dict[str, "
        "tuple[str, list[str]]] = {\n";
    for (const Record *r : records) {
        if (!r->key.is_stated) continue;
        std::string members;
        for (const std::string_view name : r->key.members()) members += (members.empty() ? "" : ", ") + quoted(name);
        text += "    " + quoted(r->name) + ": (" + quoted(r->key.element) + ", [" + members + "]),\n";
    }
    text += "}\n\n# of each kind of integer: bytes, and the greatest value\nINTEGERS = {\n";
    for (const KindFacts &kind : kind_facts) {
        if (kind.greatest == 0) continue;
        text += "    " + quoted(kind.name) + ": (" + std::to_string(kind.storage) + ", " +
                std::to_string(kind.greatest) + "),\n";
    }
    return text + "}\n";
}

struct Typed {
    std::string read, written;  // written is empty if the member is read-only
};

Typed typed(const Member &m) {
    if (m.role != Role::value) return {"int", ""};
    switch (category(m.kind)) {
        case Category::integer:
            return {"int", greatest(m.kind) > 0xffffffff ? "int | str" : "int"};
        case Category::boolean:
            return {"bool", "bool"};
        case Category::enumeration: {
            const std::string name = class_name(type_name(*m.enumeration));
            return {name + " | int", name + " | int | str"};
        }
        case Category::address:
            return {"Address", "AddressLike"};
        case Category::record:
            return {class_of_record(*m.record), class_of_record(*m.record)};
        case Category::string:
            return {"str", "str"};
        case Category::array: {
            const std::string name = class_of_record(*m.record);
            return {"Array[" + name + "]", "Sequence[" + name + "] | Sequence[Mapping[str, Any]]"};
        }
    }
    std::abort();
}

std::string stub(const Record &record) {
    std::string text = "class " + class_of_record(record) + "(Record):\n    \"\"\"" + std::string(record.meaning) +
                       "\"\"\"\n\n    def __init__(\n        self,\n        *,\n        on: Handle | None = None,\n";
    std::string properties;
    for_each_documented(record, [&](const Member &m, const std::string &documentation) {
        const Typed type = typed(m);
        const std::string name = attribute(m.name);
        if (!type.written.empty()) {
            const bool nests = m.kind == Kind::record;
            text += "        " + name + ": " + type.written + (nests ? " | Mapping[str, Any]" : "") + " = ...,\n";
        }
        properties += "    @property\n    def " + name + "(self) -> " + type.read + ":\n        \"\"\"" +
                      documentation + "\"\"\"\n";
        if (type.written.empty()) return;
        properties +=
            "    @" + name + ".setter\n    def " + name + "(self, value: " + type.written + ") -> None: ...\n";
    });
    return text + "    ) -> None: ...\n" + properties + "\n";
}

std::string stubs() {
    std::string text =
        "# Types of the schema's classes. Generated; do not edit.\n"
        "from __future__ import annotations\n\nimport enum\nfrom collections.abc import Mapping, Sequence\n"
        "from typing import Any\n\nfrom ._address import Address, AddressLike\nfrom ._base import Array, Message, "
        "Record\n"
        "from ._native import Handle\n\n";
    std::string all;
    const auto list = [&](const std::string &name) { all += "    " + quoted(name) + ",\n"; };
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
