"""Compares messages member by member."""

from __future__ import annotations

import collections
import dataclasses
import difflib
import fnmatch
import functools
import itertools
from typing import Any, Callable, Hashable, Iterator, Literal, Sequence, Union

from . import _schema
from ._base import Message, Record
from ._captures import Control, Source, items_of

Kind = Literal["added", "removed", "changed", "reordered"]
_Pair = tuple[int, int]  # positions in both lists; _ABSENT if an element is in one of them only
_ABSENT = -1


@dataclasses.dataclass(frozen=True)
class Change:
    """A difference: kind is added, removed, changed or reordered. path leads to a member, a list or an element, such as
    "payload.lumo_data[lumo_num=0].agg_tc_list.tc_list[id=1003].appl.id". a and b are the values of both sides in the form
    of Record.to_dict(); None: the side has none. message is the number of the message, from 1; 0: records were
    compared."""

    kind: Kind
    path: str
    a: Any = None
    b: Any = None
    message: int = 0

    def __str__(self) -> str:
        place = f"message {self.message}, {self.path}" if self.message else self.path
        return f"{place}: {self.a} -> {self.b}" if self.kind == "changed" else f"{place}: {self.kind}"


def _matches(pattern: str, path: str) -> bool:
    """Also if it matches only the end of the path."""
    names = path.split(".")
    return any(fnmatch.fnmatchcase(".".join(names[begin:]), pattern) for begin in range(len(names)))


@functools.lru_cache(maxsize=None)
def _paths(record: str) -> list[str]:
    """Of all members at any depth."""
    return [
        path
        for _, name, kind, of, _ in _schema.RECORDS[record][2]
        if " " not in kind
        for path in (name, *(f"{name}.{below}" for below in (_paths(of) if kind in ("array", "record") else [])))
    ]


def _value(element: Any, path: str) -> Any:
    for name in path.split("."):
        element = None if element is None else element[name]
    return element


class _Rules:
    def __init__(self, ignore: Sequence[str], by: Sequence[str]) -> None:
        if isinstance(ignore, str) or isinstance(by, str):
            raise TypeError("ignore and by are sequences of names, not a text")
        self.ignore, self.by = ignore, [names.split(",") for names in by]
        for pattern in ignore:
            paths = itertools.chain.from_iterable(_paths(payload) for _, payload in _schema.MESSAGES.values())
            if not any(_matches(pattern, f"payload.{path}") for path in paths):
                raise ValueError(f"no member matches {pattern!r}")
        for names in self.by:
            if not any(set(names) <= set(_paths(record)) for record in _schema.KEYS):
                raise ValueError(f"the elements of no list have {','.join(names)!r}")

    def ignores(self, path: str) -> bool:
        return any(_matches(pattern, path) for pattern in self.ignore)

    def key(self, record: str) -> list[str]:
        own = _schema.KEYS[record][1] if record in _schema.KEYS else []
        return next((names for names in self.by if set(names) <= set(_paths(record))), own)


class _Comparison:
    """What to compare in a record at one place in a message."""

    def __init__(self, record: str, path: str, rules: _Rules) -> None:
        self._key = rules.key(record)
        self._steps: list[tuple[str, str, _Comparison | None]] = []
        for _, name, kind, of, _ in _schema.RECORDS[record][2]:
            below = f"{path}.{name}"
            if " " not in kind and not rules.ignores(below):
                nested = _Comparison(of, below, rules) if kind in ("array", "record") else None
                self._steps.append((name, kind, nested))

    def records(self, a: Any, b: Any, at: str) -> Iterator[Change]:
        if a is None or b is None:
            if a is not b:
                yield Change("changed", at, a, b)
            return
        for name, kind, nested in self._steps:
            left, right, place = a[name], b[name], f"{at}.{name}" if at else name
            if left == right:
                continue
            if nested is None:
                yield Change("changed", place, left, right)
            elif kind == "record":
                yield from nested.records(left, right, place)
            else:
                yield from nested._lists(left, right, place)

    def _lists(self, a: list[Any], b: list[Any], at: str) -> Iterator[Change]:
        identities_a, identities_b = ([self._identity(element) for element in side] for side in (a, b))
        place_a, place_b = self._places(identities_a, at), self._places(identities_b, at)
        last, is_reordered = 0, False
        pairs = _by_key if self._key else _by_content
        for i, j in pairs(identities_a, identities_b):
            if j == _ABSENT:
                yield Change("removed", place_a(i), a[i], None)
            elif i == _ABSENT:
                yield Change("added", place_b(j), None, b[j])
            else:
                is_reordered, last = is_reordered or j < last, j
                if a[i] != b[j]:
                    yield from self.records(a[i], b[j], place_a(i))
        if is_reordered:
            yield Change("reordered", at)

    def _identity(self, element: Any) -> Hashable:
        return tuple(_value(element, name) for name in self._key) if self._key else self._content(element)

    def _content(self, element: Any) -> Hashable:
        """All that is compared."""
        if element is None:
            return None
        content: list[Hashable] = []
        for name, kind, nested in self._steps:
            value = element[name]
            if nested is None:
                content.append(value)
            else:
                content += [nested._content(one) for one in (value if kind == "array" else [value])]
        return tuple(content)

    def _places(self, identities: Sequence[Hashable], at: str) -> Callable[[int], str]:
        """Names elements by their key, and by their number among those with the same key; or by their position."""
        if not self._key:
            return lambda index: f"{at}[{index}]"
        counts: collections.Counter[Hashable] = collections.Counter()
        numbers = []
        for identity in identities:
            counts[identity] += 1
            numbers.append(counts[identity])

        def place(index: int) -> str:
            values: Any = identities[index]
            named = ",".join(f"{name}={_shown(value)}" for name, value in zip(self._key, values))
            return f"{at}[{named}{f'#{numbers[index]}' if numbers[index] > 1 else ''}]"

        return place


def _shown(value: Any) -> str:
    return str(value).lower() if isinstance(value, bool) else str(value)


def _by_key(a: Sequence[Hashable], b: Sequence[Hashable]) -> Iterator[_Pair]:
    """The first element with a key belongs to the first one with this key in the other list, and so on."""
    others: dict[Hashable, collections.deque[int]] = {}
    for j, identity in enumerate(b):
        others.setdefault(identity, collections.deque()).append(j)
    for i, identity in enumerate(a):
        left = others.get(identity)
        yield i, left.popleft() if left else _ABSENT
    yield from ((_ABSENT, j) for j in sorted(itertools.chain.from_iterable(others.values())))


def _by_content(a: Sequence[Hashable], b: Sequence[Hashable]) -> Iterator[_Pair]:
    """What is between equal elements has been changed, one after the other."""
    for _, begin_a, end_a, begin_b, end_b in difflib.SequenceMatcher(None, a, b, autojunk=False).get_opcodes():
        yield from itertools.zip_longest(range(begin_a, end_a), range(begin_b, end_b), fillvalue=_ABSENT)


_Item = Union[Message, Control]
# Type, bundle, which bundle of its type, which message of its type in it.
_Position = tuple[str, Union[str, None], int, int]


class _Sequence:
    """The messages of one side with their positions. Starts and commits are left out; an abort counts as a message."""

    def __init__(self, source: Source) -> None:
        self._items = items_of(source)
        self._ahead = next(self._items, None)
        self.begins_with_bundle = not isinstance(self._ahead, Message)
        self.waiting: dict[_Position, tuple[int, _Item]] = {}

    def messages(self, by_bundle: bool) -> Iterator[tuple[_Position, int, _Item]]:
        bundle, number = None, 0
        bundles: collections.Counter[str | None] = collections.Counter()
        seen: collections.Counter[str] = collections.Counter()
        for item in itertools.chain([] if self._ahead is None else [self._ahead], self._items):
            is_control = isinstance(item, Control)
            name = f"{item.bundle} {item.kind}" if isinstance(item, Control) else item.message_name
            if by_bundle and isinstance(item, Control) and item.kind == "start":
                bundle = item.bundle
                bundles[bundle] += 1
                seen.clear()
            position = name, bundle, bundles[bundle], seen[name]
            if by_bundle and is_control and not name.endswith("start"):
                bundle = None
            if not is_control or name.endswith("abort"):
                seen[name] += 1
                number += 1
                yield position, number, item


def _content(item: _Item) -> tuple[str, Any]:
    if isinstance(item, Control):
        return "control", {"bundle": item.bundle, "control": item.kind}
    return "payload", item.payload.to_dict()


def diff(
    a: Source | Record, b: Source | Record, *, ignore: Sequence[str] = (), by: Sequence[str] = ()
) -> Iterator[Change]:
    """Yields the differences between two captures, sequences of messages, messages, or records of the same type, as
    "tarn diff --no-state" prints them:

        for change in lumo_tarn.diff("before.bin", "after.bin", ignore=["*_ptr"]):
            print(change)

    Elements of a list are compared with those that have the same key, which "tarn schema" prints for each record; in a
    list whose elements have none, with those between the same neighbors. A message is compared with the one that has its
    type and its position in the same bundle. Starts and commits of bundles, stamps, state bytes and counts of elements
    are no differences of their own.

    ignore has the names of members that are not compared, or the ends of their paths, such as "appl.id"; * and ? stand
    for any characters. by has names of members that identify elements instead of their key; several of them, with commas
    between, identify together. Of each side, messages are in memory until the other side has had its own.

    Raises ValueError for a name that no member has, TypeError for records of different types, and the errors of
    frames()."""
    rules = _Rules(ignore, by)
    if isinstance(a, Record) or isinstance(b, Record):
        if not (isinstance(a, Record) and isinstance(b, Record) and type(a) is type(b)):
            raise TypeError(f"cannot compare {type(a).__name__} with {type(b).__name__}")
        return _Comparison(a.record_name, "payload", rules).records(a.to_dict(), b.to_dict(), "")
    return _sequences(a, b, rules)


def _sequences(a: Source, b: Source, rules: _Rules) -> Iterator[Change]:
    sides = _Sequence(a), _Sequence(b)
    by_bundle = sides[0].begins_with_bundle and sides[1].begins_with_bundle
    comparisons: dict[str, _Comparison] = {}
    for both in itertools.zip_longest(*(side.messages(by_bundle) for side in sides)):
        for side, found in enumerate(both):
            if found is None:
                continue
            position, number, item = found
            other = sides[1 - side].waiting.pop(position, None)
            if other is None:
                sides[side].waiting[position] = number, item
                continue
            (number_a, left), (_, right) = ((number, item), other) if side == 0 else (other, (number, item))
            if isinstance(left, Control) or isinstance(right, Control):
                continue
            name = left.payload_type.record_name
            if name not in comparisons:
                comparisons[name] = _Comparison(name, "payload", rules)
            for change in comparisons[name].records(left.payload.to_dict(), right.payload.to_dict(), "payload"):
                yield dataclasses.replace(change, message=number_a)
    for number, item in sorted(sides[0].waiting.values(), key=lambda waiting: waiting[0]):
        path, content = _content(item)
        yield Change("removed", path, content, None, number)
    for number, item in sorted(sides[1].waiting.values(), key=lambda waiting: waiting[0]):
        path, content = _content(item)
        yield Change("added", path, None, content, number)
