#!/usr/bin/python3
"""Writes a copy of the library's sources that contains a sample of mutants, each inactive until selected by its number.

    mutate.py ROOT EXPORTS OUT COUNT SEED

A mutant is one small error: a negated condition, a removed statement, or a constant that is increased by one, except that
a 1 is decreased, since most code treats all numbers but 0 alike. Mutants are found in the syntax tree, in the bodies of
functions that run. Code that the compiler evaluates (constexpr, consteval, if constexpr, template arguments, static
assertions) cannot be changed at run time and has none; errors there are detected by the tests of the schema and of the
API. Code that only the archive compiles has none either, since the tests run on the shared library.

OUT gets the sources, core/mutant_switch.cpp with the switch, and mutants.json with a description of each mutant."""
import json
import pathlib
import random
import re
import sys

import clang.cindex
from clang.cindex import CursorKind as Kind

FOLDERS = ("core", "kinds", "families", "messaging")
FUNCTIONS = {Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.FUNCTION_TEMPLATE, Kind.CONSTRUCTOR, Kind.DESTRUCTOR}
LOOPS = {Kind.WHILE_STMT, Kind.FOR_STMT}
EXPRESSIONS = {Kind.CALL_EXPR, Kind.BINARY_OPERATOR, Kind.COMPOUND_ASSIGNMENT_OPERATOR, Kind.UNARY_OPERATOR,
               Kind.UNEXPOSED_EXPR}
COMPARISONS = {"==", "!=", "<", ">", "<=", ">="}
# Code that only the archive compiles: branches with this word, and a folder.
ARCHIVE_WORD = re.compile(r"(!?)\bruntime_inside\b")
ARCHIVE_FOLDER = pathlib.PurePath("families/shortcuts")
INTEGERS = re.compile(r"(const )?(unsigned |signed )?(char|short|int|long|long long|bool)$")

SWITCH_HEADER = """#pragma once
namespace tarn_mutants {
extern int chosen;
extern unsigned char *reached;
inline bool on(int id) {
    reached[id] = 1;
    return chosen == id;
}
template <class T>
T shifted(int id, T value) {
    return on(id) ? static_cast<T>(value == 1 ? 0 : value + 1) : value;
}
template <>
inline bool shifted<bool>(int id, bool value) {
    return on(id) != value;
}
}  // namespace tarn_mutants
"""

# Reached mutants are recorded in a file, which all processes of a test share and which survives a process that aborts.
SWITCH_SOURCE = """#include "mutant_switch.h"
#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>
namespace tarn_mutants {
static unsigned char unshared[COUNT];
int chosen = -1;
unsigned char *reached = unshared;
[[gnu::constructor(101)]] static void choose() {
    if (const char *number = std::getenv("TARN_MUTANT")) chosen = std::atoi(number);
    const char *path = std::getenv("TARN_MUTANTS_REACHED");
    if (path == nullptr) return;
    const int file = open(path, O_RDWR);
    if (file < 0) return;
    void *shared = mmap(nullptr, COUNT, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (shared != MAP_FAILED) reached = static_cast<unsigned char *>(shared);
    close(file);
}
}  // namespace tarn_mutants
"""


class Finder:
    def __init__(self, root):
        self.root = root
        self.sources = {}
        self.found = {}  # (file, start, end, kind) -> mutant

    def text(self, file):
        if file not in self.sources:
            self.sources[file] = (self.root / file).read_bytes()
        return self.sources[file]

    def file_of(self, cursor):
        place = cursor.location.file
        if place is None:
            return None
        try:
            file = pathlib.Path(place.name).resolve().relative_to(self.root)
        except ValueError:
            return None
        return file if file.parts[0] in FOLDERS and file.parent != ARCHIVE_FOLDER else None

    def add(self, kind, start, end):
        if start >= end:
            return
        source = self.text(self.file)
        begin = source.rfind(b"\n", 0, start) + 1
        line = source[begin:source.find(b"\n", begin)].decode().strip()
        self.found[(str(self.file), start, end, kind)] = {
            "file": str(self.file), "line": source.count(b"\n", 0, start) + 1, "kind": kind, "start": start, "end": end,
            "part": " ".join(source[start:end].decode().split()), "text": line}

    def span(self, cursor):
        return cursor.extent.start.offset, cursor.extent.end.offset

    def words_before(self, cursor, stop):
        """The words of the declaration, up to its body or initial value."""
        start, end = self.span(cursor)
        head = re.split(stop, self.text(self.file)[start:end].decode(), maxsplit=1)[0]
        return set(re.findall(r"\w+", head))

    def evaluated_by_compiler(self, cursor, stop):
        return self.words_before(cursor, stop) & {"constexpr", "consteval", "constinit"}

    def visit(self, cursor):
        if cursor.kind in FUNCTIONS and cursor.is_definition():
            self.file = self.file_of(cursor)
            if self.file is None or self.evaluated_by_compiler(cursor, r"[{]"):
                return
            for child in cursor.get_children():
                # The expansion of a macro has no source text.
                if child.kind == Kind.COMPOUND_STMT and self.text(self.file)[child.extent.start.offset:][:1] == b"{":
                    self.body(child, [cursor])
            return
        for child in cursor.get_children():
            if child.kind in (Kind.NAMESPACE, Kind.LINKAGE_SPEC, Kind.UNEXPOSED_DECL, Kind.STRUCT_DECL, Kind.CLASS_DECL,
                              Kind.CLASS_TEMPLATE, Kind.CLASS_TEMPLATE_PARTIAL_SPECIALIZATION) or child.kind in FUNCTIONS:
                self.visit(child)

    def body(self, cursor, above):
        kind = cursor.kind
        if kind == Kind.VAR_DECL and self.evaluated_by_compiler(cursor, r"[={]"):
            return
        if kind in (Kind.STATIC_ASSERT, Kind.CXX_UNARY_EXPR, Kind.TYPE_REF, Kind.TEMPLATE_REF):
            return
        children = list(cursor.get_children())
        if kind == Kind.COMPOUND_STMT:
            for child in children:
                self.statement(child, cursor, above)
        elif kind in LOOPS:
            self.condition(cursor)
            self.statement(children[-1], cursor, above)
        elif kind == Kind.CXX_FOR_RANGE_STMT:
            self.statement(children[-1], cursor, above)
        elif kind == Kind.IF_STMT:
            condition, *branches = (c for c in children if c.kind not in (Kind.DECL_STMT, Kind.VAR_DECL))
            signs = self.archive_words(condition)
            if signs:
                # Only one branch is compiled: the second, unless the condition is negated.
                children = branches = branches[:1] if set(signs) == {"!"} else branches[1:]
            elif self.is_constexpr_if(cursor):
                children = children[1:]
            else:
                self.condition(cursor)
            for child in branches:
                self.statement(child, cursor, above)
        elif self.archive_words(cursor) and kind in (Kind.CONDITIONAL_OPERATOR, Kind.BINARY_OPERATOR):
            return
        elif kind == Kind.CONDITIONAL_OPERATOR:
            self.add("negate", *self.span(children[0]))
        elif kind == Kind.BINARY_OPERATOR and len(children) == 2:
            operator = self.between(*children)
            if operator in COMPARISONS:
                self.add("negate", *self.span(cursor))
            elif operator in ("&&", "||"):
                for child in children:
                    inner = list(child.get_children())
                    nested = child.kind == Kind.BINARY_OPERATOR and self.between(*inner) in ("&&", "||")
                    if not nested:
                        self.add("negate", *self.span(child))
        elif kind in (Kind.INTEGER_LITERAL, Kind.CXX_BOOL_LITERAL_EXPR):
            self.constant(cursor, above[-1])
        elif kind == Kind.DECL_REF_EXPR and self.is_named_constant(cursor):
            self.constant(cursor, above[-1])
        for child in children:
            self.body(child, above + [cursor])

    def between(self, left, right):
        return self.text(self.file)[left.extent.end.offset:right.extent.start.offset].decode().strip()

    def archive_words(self, cursor):
        start, end = self.span(cursor)
        return ARCHIVE_WORD.findall(self.text(self.file)[start:end].decode())

    def is_constexpr_if(self, cursor):
        start, end = self.span(cursor)
        return re.match(rb"if\s+constexpr\b", self.text(self.file)[start:end]) is not None

    def condition(self, cursor):
        """Negates the condition in the parentheses: all of them, the part after a declaration, or the second of three."""
        start, _ = self.span(cursor)
        source = self.text(self.file)
        at = source.index(b"(", start)
        depth, parts, position = 0, [at + 1], at
        while True:
            c = source[position:position + 1]
            depth += c in b"([{"
            depth -= c in b")]}"
            if depth == 1 and c == b";":
                parts.append(position + 1)
            if depth == 0:
                break
            position += 1
        if cursor.kind == Kind.FOR_STMT:
            begin, end = parts[1], parts[2] - 1
        else:
            begin, end = parts[-1], position
            if len(parts) == 1 and any(c.kind in (Kind.VAR_DECL, Kind.DECL_STMT) for c in cursor.get_children()):
                return
        text = source[begin:end]
        begin += len(text) - len(text.lstrip())
        self.add("negate", begin, begin + len(text.strip()))

    def statement(self, cursor, parent, above):
        if cursor.kind in EXPRESSIONS or cursor.kind in (Kind.BREAK_STMT, Kind.CONTINUE_STMT):
            pass
        elif cursor.kind != Kind.RETURN_STMT or not self.may_go_on(cursor, parent, above):
            return
        start, end = self.span(cursor)
        source = self.text(self.file)
        while source[end:end + 1].isspace():
            end += 1
        if source[end:end + 1] == b";":
            self.add("drop", start, end + 1)

    def may_go_on(self, cursor, parent, above):
        """A return may be removed if code follows: at the end of an `if` that is not the last statement."""
        chain = above + [parent]
        if parent.kind == Kind.COMPOUND_STMT:
            if list(parent.get_children())[-1] != cursor:
                return False
            chain = above
        if len(chain) < 2 or chain[-1].kind != Kind.IF_STMT or chain[-2].kind != Kind.COMPOUND_STMT:
            return False
        branch = chain[-1]
        return not self.is_constexpr_if(branch) and list(chain[-2].get_children())[-1] != branch

    def is_named_constant(self, cursor):
        target = cursor.referenced
        if target is None or target.kind != Kind.VAR_DECL or target.location.file is None:
            return False
        if target.semantic_parent.kind not in (Kind.NAMESPACE, Kind.TRANSLATION_UNIT):
            return False
        return target.type.is_const_qualified() and INTEGERS.match(target.type.get_canonical().spelling) is not None

    def constant(self, cursor, parent):
        start, end = self.span(cursor)
        source = self.text(self.file)
        before, after = source[:start].rstrip()[-1:], source[end:].lstrip()[:1]
        if after == b">" and before in b"<,":
            return  # a template argument
        if parent.kind == Kind.VAR_DECL and before == b"[":
            return  # a size
        self.add("shift", start, end)


def find(root, exports):
    finder = Finder(root)
    index = clang.cindex.Index.create()
    arguments = ["-std=c++20", "-xc++", f"-I{root}/include", f"-I{root}", f"-I{exports}", f"-I{root}/platform/include"]
    for folder in FOLDERS:
        for unit in sorted((root / folder).glob("*.cpp")):
            parsed = index.parse(str(unit), arguments)
            errors = [d for d in parsed.diagnostics if d.severity >= clang.cindex.Diagnostic.Error]
            if errors:
                sys.exit(f"{unit}: {errors[0]}")
            finder.visit(parsed.cursor)
    if not (root / ARCHIVE_FOLDER).is_dir():
        sys.exit(f"there is no folder {ARCHIVE_FOLDER}")
    return finder, [finder.found[key] for key in sorted(finder.found)]


def number_alike(mutants):
    """Numbers equal mutants, so that one can be identified after its line has moved."""
    seen = {}
    for m in mutants:
        key = (m["file"], m["kind"], m["text"], m["part"])
        m["nth"] = seen[key] = seen.get(key, 0) + 1


OPEN = {"drop": "{{ if (!::tarn_mutants::on({id})) ", "negate": "((", "shift": "::tarn_mutants::shifted({id}, "}
CLOSE = {"drop": " }}", "negate": ") ? !::tarn_mutants::on({id}) : ::tarn_mutants::on({id}))", "shift": ")"}
OUTER_FIRST = {"drop": 0, "negate": 1, "shift": 2}


def write(source, mutants):
    """Mutants nest like the tree: an outer one opens earlier and closes later."""
    insertions = []
    for m in mutants:
        length, order = m["end"] - m["start"], OUTER_FIRST[m["kind"]]
        insertions.append((m["start"], 1, -length, order, OPEN[m["kind"]].format(id=m["id"])))
        insertions.append((m["end"], 0, length, -order, CLOSE[m["kind"]].format(id=m["id"])))
    out, at = [], 0
    for position, _, _, _, text in sorted(insertions):
        out += [source[at:position], text.encode()]
        at = position
    return b'#include "core/mutant_switch.h"\n#line 1\n' + b"".join(out) + source[at:]


def put(path, content):
    path.parent.mkdir(parents=True, exist_ok=True)
    if not path.exists() or path.read_bytes() != content:
        path.write_bytes(content)


def main():
    root, exports, out = (pathlib.Path(a).resolve() for a in sys.argv[1:4])
    count, seed = int(sys.argv[4]), int(sys.argv[5])
    finder, every = find(root, exports)
    number_alike(every)
    sample = random.Random(seed).sample(every, min(count, len(every)))
    sample.sort(key=lambda m: (m["file"], m["start"], -m["end"]))
    for number, mutant in enumerate(sample):
        mutant["id"] = number
    expected = {out / "core/mutant_switch.h", out / "core/mutant_switch.cpp"}
    for folder in FOLDERS:
        for path in sorted(p for p in (root / folder).rglob("*") if p.is_file()):
            file = path.relative_to(root)
            mine = [m for m in sample if m["file"] == str(file)]
            put(out / file, write(path.read_bytes(), mine) if mine else path.read_bytes())
            expected.add(out / file)
    put(out / "core/mutant_switch.h", SWITCH_HEADER.encode())
    put(out / "core/mutant_switch.cpp", SWITCH_SOURCE.replace("COUNT", str(max(len(sample), 1))).encode())
    for folder in FOLDERS:
        for path in (out / folder).rglob("*"):
            if path.is_file() and path not in expected:
                path.unlink()
    put(out / "mutants.json", json.dumps({"possible": len(every), "seed": seed, "mutants": sample}, indent=1).encode())
    print(f"{len(sample)} of {len(every)} possible mutants, seed {seed}")


main()
