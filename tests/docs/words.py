#!/usr/bin/env python3
"""Checks wording that can be decided without judgment:  words.py FILE...

Paths are relative to the root of the source tree. Each finding is printed as FILE:LINE: REASON. Spelling and terms are
checked in whole files, so names and texts of programs count as well. `./check tidy` checks how names are formed."""

import re
import sys

# One term for each thing, as README and families.h use it.
TERMS = {
    "turned out": "disconnected",
    "rubbish": "garbage",
    "stand-in": "reference runtime",
    "provider": "runtime",
    "providers": "runtimes",
    "observing": "recording",
    "spare byte": "guard byte",
    "byte of slack": "guard byte",
    "without memory": "if allocation fails",
    "want of memory": "failed allocation",
    "looked after": "supported",
    "announce": "notify",
    "announces": "notifies",
    "announced": "notified",
    "announcement": "notification",
    "announcements": "notifications",
    "heard": "observed, received",
    "hears": "observes, receives",
    "told": "documented, reported",
    "one behind the other": "one after the other",
    "quietly": "unobserved, without an error",
    "complain": "report",
    "complains": "reports",
    "passed over": "ignored",
    "takes leave": "frees",
    "what came of": "results",
    "in front of": "before",
    "surface": "symbols, API",
    "rivals": "competitors",
    "contract floor": "lower bound",
    "choice(": "enumerated(",
    "lenient_43": "LENIENT_EIDRM",
}
# British stems and what follows them.
BRITISH = [
    r"(?:behavi|col|hon|fav|neighb|lab)our(?:s|ed|ing|able|al|ite|less|hood)?",
    r"(?:un|re|de|pre)?(?:author|capital|categor|custom|emphas|equal|final|general|initial|local|maxim|minim|modern|"
    r"normal|optim|organ|penal|prior[a-z]*|random|real|recogn|serial|special|standard|summar|symbol|synchron|util|"
    r"visual)is(?:e|es|ed|er|ers|ing|ation|ations|able)",
    r"(?:analys|paralys|catalys)(?:e|ed|ing)",
    r"(?:cancel|label|level|model|signal|travel|tunnel)l(?:ed|ing|er)",
    r"centre[ds]?|metres?|fibres?|grey|licence|defence|artefacts?|judgement|catalogued|whilst|amongst|learnt|spelt",
]
# What cannot be written otherwise: (file, words, reason), each a regular expression but the reason.
EXCEPTIONS = [(r"^CHANGELOG\.md$", r"lenient_43|rubbish", "says what was renamed")]

HEADER = re.compile(r"^(?:include|platform/include)/.*\.h(?:pp)?$")
HELP_TEXT = re.compile(r"^tools/tarn/commands/.*\.(?:cpp|h)$")
LONGEST = 35

# Between the words of a term: a line end with the marks of a comment or of a text in quotes, or blanks.
GAP = r"(?:[ \t]*\"?[ \t]*\n[ \t]*(?:///?|//!|\*|#|>|\")?[ \t]*|[ \t]+)"


def one_of(patterns):
    return re.compile(rf"(?<![A-Za-z])(?:{'|'.join(patterns)})(?![A-Za-z])", re.I)


TERM = one_of(GAP.join(map(re.escape, term.split())) for term in TERMS)
SPELLING = one_of(BRITISH)

# Numbers that stand for an error. A number with a unit, a bound, and the number after an error's name are others; 2 is
# an error only where the reason follows.
ERROR = re.compile(r"(?<![\w.#+])(?<!E[A-Z]{3} \()(?<!E[A-Z]{4} \()(?<!E[A-Z]{5} \()(?<!E[A-Z]{6} \()(?<!E[A-Z]{7} \()"
                   r"(?<!below )(?<!above )(?<!least )(?<!most )(?<!than )(?<!= )(?<!bytes: )(?<!Returns )"
                   r"(?:(?:12|17|22|28|38|43|52|74|84|90|98|99|104|105|107|110|111)(?![\w-])(?!\.\d)(?!, \d{4})"
                   r"(?! (?:bytes?|bits?|characters?|digits?|records?|messages?|bundles?|KiB|MiB|GiB|seconds)\b)"
                   r"|2(?=:| (?:if|absent|when|for (?:an?|no|null))\b))")


def comments(text):
    """Pairs of offset and comment, its marks replaced by blanks; `//` comments in adjacent lines are one."""
    for match in re.finditer(r"/\*.*?\*/|(?:^|(?<=[\s;{}]))//[^\n]*(?:\n[ \t]*//[^\n]*)*", text, re.S):
        blank = lambda marks: " " * len(marks[0])
        yield match.start(), re.sub(r"^[ \t]*\*(?!/)|/\*\*?<?|\*/|//[/!]?<?", blank, match[0], flags=re.M)


def sentences(comment):
    """Pairs of offset and sentence. Empty lines, items of lists, rows, headings and commands of Doxygen end one."""
    for block in re.finditer(r"(?:(?!\n[ \t]*(?:\n|- |\||-{4}|={4}|@|[A-Z][\w ]*\n *-{4})).)+", comment, re.S):
        for part in re.finditer(r"\S(?:(?![.!?][)\"]?\s).)*[.!?]?", block[0], re.S):
            yield block.start() + part.start(), part[0]


def strings(text):
    for match in re.finditer(r'"((?:[^"\\\n]|\\.)*)"|R"(\w*)\((.*?)\)\2"', text, re.S):
        yield match.start(), match[0]


def findings(path, text):
    for match in TERM.finditer(text):
        term = re.sub(GAP, " ", match[0]).lower()
        yield match.start(), f'{term}: write "{TERMS[term]}"'
    for match in SPELLING.finditer(text):
        yield match.start(), f"{match[0]}: American spelling"
    numbered = []
    if HEADER.match(path):
        numbered = list(comments(text))
        for start, comment in numbered:
            for offset, sentence in sentences(comment):
                words = len(re.findall(r"\S*\w\S*", sentence))
                if words > LONGEST:
                    yield start + offset, f"a sentence of {words} words; at most {LONGEST} are read once"
    elif HELP_TEXT.match(path):
        numbered = strings(text)
    for start, part in numbered:
        for match in ERROR.finditer(part):
            yield start + match.start(), f"{match[0]}: name the error"


def excepted(path, reason):
    return any(re.search(file, path) and re.match(words, reason) for file, words, _ in EXCEPTIONS)


def main(paths):
    found = 0
    for path in paths:
        try:
            with open(path, encoding="utf-8") as file:
                text = file.read()
        except UnicodeDecodeError:
            continue
        for offset, reason in sorted(findings(path, text)):
            if not excepted(path, reason):
                print(f"{path}:{text.count(chr(10), 0, offset) + 1}: {reason}")
                found += 1
    return found


if __name__ == "__main__":
    sys.exit(1 if main(sys.argv[1:]) else 0)
