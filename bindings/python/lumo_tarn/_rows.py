"""The instances of a record, wherever messages contain it, as rows of a table."""

from __future__ import annotations

from typing import Any, Callable, Iterator, Mapping, NamedTuple, Sequence, Union

from . import _schema
from ._base import Message, Record
from ._captures import Control, Source, are_frames, items_of
from ._names import record_named, short
from ._values import Plan

Path = tuple[str, ...]
# A value, or what decides about one.
Condition = Union[Callable[[Any], object], Any]


class _Place(NamedTuple):
    """Where an instance was found."""

    message: int
    bundle: str | None
    path: str
    keys: dict[str, Any]  # of the records around it


class _Column(NamedTuple):
    name: str
    read: Callable[[_Place, Any], Any]
    path: Path = ()  # of a member, from the record
    is_count: bool = False  # the path is that of the array


def _occurrences(table: str, record: str, path: Path = ()) -> list[Path]:
    """The paths of the record in a row of the table: the row itself, or records that it nests."""
    found = [path] if table == record else []
    for _, name, kind, of, _ in _schema.RECORDS[table][2]:
        if kind == "record":
            found += _occurrences(of, record, (*path, name))
    return found


def _lists(table: str, path: Path = ()) -> Iterator[tuple[Path, str]]:
    """The lists in a row of the table, with the record of their elements."""
    for _, name, kind, of, _ in _schema.RECORDS[table][2]:
        if kind == "array":
            yield (*path, name), of
        elif kind == "record":
            yield from _lists(of, (*path, name))


class _Table:
    """A payload or the elements of a list as rows, as far as they contain the record."""

    def __init__(self, name: str, record: str, is_element: bool = False) -> None:
        self.name, self.here = name, _occurrences(name, record)
        key = _schema.KEYS[name][1] if is_element else []
        self.keys = [(f"{short(name)}.{member}", member) for member in key]
        below = [(path, _Table(of, record, True)) for path, of in _lists(name)]
        self.lists = [(path, table) for path, table in below if table.contains_it()]

    def contains_it(self) -> bool:
        return bool(self.here or self.lists)

    def around(self, outer: Sequence[str] = ()) -> Iterator[str]:
        """The keys of the records around the record, outermost first; some occur more than once."""
        own = [*outer, *(name for name, _ in self.keys)]
        if self.here:
            yield from own if self.here[0] else outer
        for _, table in self.lists:
            yield from table.around(own)

    def wanted(self, columns: Sequence[_Column]) -> dict[str, Any]:
        """What a plan has to read for the columns."""
        tree: dict[str, Any] = {}

        def add(path: Path, below: Mapping[str, Any] | None) -> None:
            inner = tree
            for name in path[:-1]:
                inner = inner.setdefault(name, {})
            inner.setdefault(path[-1], below)

        for path, table in self.lists:
            add(path, table.wanted(columns))
        for name, key in self.keys:
            if any(column.name == name for column in columns):
                add((key,), None)
        for here in self.here:
            for column in columns:
                if column.path:
                    add((*here, *column.path), {} if column.is_count else None)
            if here:
                add(here, {})  # also without any of its members
        return tree

    def visit(self, row: Any, place: _Place) -> Iterator[tuple[_Place, Any]]:
        """Yields the instances of the record, and where they are."""
        inside = place.keys
        if self.keys and row is not None:
            inside = {**inside, **{name: row[key] for name, key in self.keys if key in row}}
        for path in self.here:
            owner = _follow(row, path[:-1])
            if not path:
                yield place, row
            elif owner is not None:
                at = ".".join(path)
                yield place._replace(path=f"{place.path}.{at}" if place.path else at, keys=inside), owner[path[-1]]
        for path, table in self.lists:
            owner = _follow(row, path[:-1])
            if owner is None:
                continue
            at = ".".join((place.path, *path) if place.path else path)
            for position, element in enumerate(owner[path[-1]]):
                yield from table.visit(element, _Place(place.message, place.bundle, f"{at}[{position}]", inside))


def _follow(value: Any, path: Path) -> Any:
    for name in path:
        if value is None:
            return None
        value = value[name]
    return value


def _members(record: str, path: Path = ()) -> Iterator[_Column]:
    counted = ""
    for _, name, kind, of, _ in _schema.RECORDS[record][2]:
        if kind == "record":
            yield from _members(of, (*path, name))
        elif kind == "array":
            yield _Column(".".join((*path, counted)), _reader((*path, name), len), (*path, name), True)
        elif " " not in kind:
            yield _Column(".".join((*path, name)), _reader((*path, name)), (*path, name))
        counted = name


def _reader(path: Path, finish: Callable[[Any], Any] | None = None) -> Callable[[_Place, Any], Any]:
    if len(path) == 1 and finish is None:
        (name,) = path
        return lambda _, value: None if value is None else value[name]

    def read(_: _Place, value: Any) -> Any:
        found = _follow(value, path)
        return finish(found) if finish is not None and found is not None else found

    return read


def _key_reader(name: str) -> Callable[[_Place, Any], Any]:
    return lambda place, _: place.keys.get(name)


def _test(condition: Condition) -> Callable[[Any], object]:
    if callable(condition):
        decide: Callable[[Any], object] = condition
        return lambda value: value is not None and decide(value)
    return lambda value: value == condition


def rows(
    source: Source,
    record: type[Record] | type[Message] | str,
    columns: Sequence[str] | None = None,
    where: Mapping[str, Condition] | None = None,
) -> Iterator[dict[str, Any]]:
    """Yields a dictionary for each instance of a record, wherever messages contain it, ready for a data frame:

        pandas.DataFrame(lumo_tarn.rows("answer.bin", "tc", columns=["id", "src_prefix", "appl.id"]))

    source is what frames() takes, a message, or an iterable of messages and control messages. record is a class, such as
    DpTc, or a name, such as "dp-tc" or "tc"; a message stands for its payload. columns are all columns by default, in this
    order:

    - message: the number of the message in the source, from 1
    - bundle: the name of the bundle that contains it, or None
    - path: the path of the record in the message, such as "lumo_data[0].agg_tc_list.tc_list[3]"
    - the keys of the records around it, such as "dp_tt_table.lumo_num"
    - the members; those of nested records have names such as "appl.id". Elements of arrays have rows of their own.

    Values are those of Record.to_dict(); None: what contains the member has no body. where maps columns, also others, to
    a value that must be equal or to a function that returns true for the values of the rows to yield. The function is
    not called for None. One message of a file is in memory.

    Raises ValueError for an unknown record or column, and the errors of frames()."""
    if isinstance(record, str):
        name = record_named(record)
    else:
        name = record.payload_type.record_name if issubclass(record, Message) else record.record_name
    tables = {message: _Table(payload, name) for message, (_, payload) in _schema.MESSAGES.items()}
    around = dict.fromkeys(key for table in tables.values() for key in table.around())
    known = {
        "message": _Column("message", lambda place, _: place.message),
        "bundle": _Column("bundle", lambda place, _: place.bundle),
        "path": _Column("path", lambda place, _: place.path),
        **{key: _Column(key, _key_reader(key)) for key in around},
        **{column.name: column for column in _members(name)},
    }
    if isinstance(columns, str):
        raise TypeError("columns are a sequence of names, not a text")

    def column(name: str) -> _Column:
        if name not in known:
            raise ValueError(f"unknown column {name!r}; there are {', '.join(known)}")
        return known[name]

    shown = [column(name) for name in (known if columns is None else columns)]
    tests = [(column(name), _test(condition)) for name, condition in (where or {}).items()]
    read = [*shown, *(column for column, _ in tests)]
    plans = {
        message: (table, Plan(table.name, table.wanted(read), is_lazy=True))
        for message, table in tables.items()
        if table.contains_it()
    }
    return _rows(source, plans, [(one.name, one.read) for one in shown], [(one.read, test) for one, test in tests])


def _rows(
    source: Source,
    plans: Mapping[str, tuple[_Table, Plan]],
    shown: Sequence[tuple[str, Callable[[_Place, Any], Any]]],
    tests: Sequence[tuple[Callable[[_Place, Any], Any], Callable[[Any], object]]],
) -> Iterator[dict[str, Any]]:
    number, bundle = 0, None
    for item in items_of(source):
        if isinstance(item, Control):
            bundle = item.bundle if item.kind == "start" else None
            continue
        number += 1
        if item.message_name not in plans:
            continue
        table, plan = plans[item.message_name]
        instances = table.visit(plan.read(item.payload.native), _Place(number, bundle, "", {}))
        found = (
            {name: read(place, value) for name, read in shown}
            for place, value in instances
            if not tests or all(test(read(place, value)) for read, test in tests)
        )
        # Whoever gets a row may change a message of his own, so all rows are read before. Nobody has a message that was
        # read from a frame, but its handle can be closed.
        for row in found if are_frames(source) else list(found):
            yield row
            item.handle.require_open()
