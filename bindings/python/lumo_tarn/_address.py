"""Addresses and their text."""

from __future__ import annotations

import dataclasses
import ipaddress
import socket
import struct
from typing import Sequence, Union

from ._native import ffi, lib

AddressLike = Union[
    "Address", str, ipaddress.IPv4Interface, ipaddress.IPv6Interface, ipaddress.IPv4Network, ipaddress.IPv6Network
]

_pack_word, _pack_words = struct.Struct(">I").pack, struct.Struct(">4I").pack


def text_of(af: int, prefix_len: int, scope: int, word: Sequence[int]) -> str:
    """The text of an address with these members."""
    if af == socket.AF_INET and not (word[1] or word[2] or word[3]):
        text = socket.inet_ntop(socket.AF_INET, _pack_word(word[0]))
    elif af == socket.AF_INET6:
        text = socket.inet_ntop(socket.AF_INET6, _pack_words(*word))
    elif not (af or prefix_len or scope or any(word)):
        return "unset"
    else:
        return f"{af},{scope},{word[0]},{word[1]},{word[2]},{word[3]}/{prefix_len}"
    return f"{text}%{scope}/{prefix_len}" if scope else f"{text}/{prefix_len}"


@dataclasses.dataclass(frozen=True)
class Address:
    """An address or prefix: af is the address family of the operating system, and word the address as four 32-bit
    numbers, the most significant first.

    Its text is "unset", "10.0.0.0/8" or "fe80::1%3/64". Other families are "af,scope,word,word,word,word/length"."""

    af: int = 0
    prefix_len: int = 0
    scope: int = 0
    word: tuple[int, int, int, int] = (0, 0, 0, 0)

    @classmethod
    def of(cls, value: AddressLike) -> Address:
        """Converts text, or an interface or network of the module ipaddress. Raises ValueError for anything else, also for
        an address without a prefix length."""
        if isinstance(value, Address):
            return value
        text = str(value)
        parsed, encoded = ffi.new("ip_address *"), text.encode(errors="replace")
        if lib.mirk_platform_address_parse(encoded, len(encoded), parsed) != 0:
            raise ValueError(f"{text} is not an address with a prefix length")
        word = parsed.word
        return cls(parsed.af, parsed.prefix_len, parsed.scope, (word[0], word[1], word[2], word[3]))

    def __str__(self) -> str:
        return text_of(self.af, self.prefix_len, self.scope, self.word)

    def __repr__(self) -> str:
        return f"Address.of({str(self)!r})"
