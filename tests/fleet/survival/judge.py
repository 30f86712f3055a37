"""Compares what a store contains with what devices sent, with what was seen in the store meanwhile, and with the times in
which devices were away. All times are milliseconds since 1970, of one clock."""
import bisect
import collections
import dataclasses

Span = collections.namedtuple("Span", "id device bundle number digest size asked first_seen last_asked last_seen times "
                                      "stored_size stored_digest previous is_last")
Gap = collections.namedtuple("Gap", "device bundle number began ended requests")

SPANS = """SELECT coalesce(a.answer_id, c.answer_id), d.device, a.bundle, a.number, a.digest, a.size, a.asked, a.first_seen,
  a.last_asked, a.last_seen, a.times, length(c.frames), encode(sha256(c.frames), 'hex'),
  coalesce(a.previous, 0), CASE WHEN p.answer_id IS NULL THEN 0 ELSE 1 END
  FROM answers a FULL JOIN contents c ON c.answer_id = a.answer_id LEFT JOIN devices d ON d.device_id = a.device_id
  LEFT JOIN device_bundles p ON p.answer_id = a.answer_id
  ORDER BY d.device, a.bundle, a.number"""
GAPS = """SELECT d.device, g.bundle, g.number, g.began, g.ended, g.requests
  FROM gaps g JOIN devices d ON d.device_id = g.device_id ORDER BY d.device, g.bundle, g.number"""
# What is seen while the store is written: the last answer of each device.
LATEST = "SELECT device, answer_id, digest, first_seen, last_asked, times FROM latest_answers"


def rows_of(text, kind):
    """Rows of psql, with | between the columns. Names of devices do not contain it."""
    rows = []
    for line in text.splitlines():
        cells = line.split("|")
        rows.append(kind(*(None if cell == "" else cell if name in ("digest", "stored_digest", "device", "bundle")
                           else int(cell) for name, cell in zip(kind._fields, cells))))
    return rows


@dataclasses.dataclass
class Away:
    """A time in which no process was these devices."""
    what: str
    devices: list
    began: int
    ended: int


@dataclasses.dataclass
class Event:
    """Something after which each device has to be collected again."""
    what: str
    at: int
    devices: set  # that have not been collected since
    after: float | None = None  # seconds until the last one was


class Sent:
    """What devices sent, from the logs of tarn simulate."""

    def __init__(self):
        self.times = collections.defaultdict(list)  # by device, bundle, digest and size
        self.count = 0

    def add(self, line):
        time, device, bundle, digest, size = line.split()
        self.times[device, bundle, digest, int(size)].append(int(time))
        self.count += 1

    def finish(self):
        for times in self.times.values():
            times.sort()

    def within(self, span):
        times = self.times.get((span.device, span.bundle, span.digest, span.size), [])
        return bisect.bisect_right(times, span.last_seen) - bisect.bisect_left(times, span.asked)


class Seen:
    """What has been read from the store while it was written, so it had been committed."""

    def __init__(self):
        self.answers = {}  # by answer: device, digest, first seen, times

    def add(self, text):
        """Returns the time of the last request that each device answered."""
        asked = {}
        for line in text.splitlines():
            device, answer, digest, first_seen, last_asked, times = line.split("|")
            self.answers[int(answer)] = device, digest, int(first_seen), int(times)
            asked[device] = int(last_asked)
        return asked


def problems(spans, gaps, sent, seen, away, faulty, events, patience, within):
    """All that is wrong, a line for each."""
    found = []
    # Whole, and as a device sent it.
    for s in spans:
        name = f"answer {s.id} of {s.device}"
        if s.device is None or s.stored_digest is None:
            found.append(f"{name}: is not whole")
        elif (s.stored_digest, s.stored_size) != (s.digest, s.size):
            found.append(f"{name}: its frames are not those of its digest")
        elif (s.device, s.bundle, s.digest, s.size) not in sent.times:
            found.append(f"{name}: was never sent")
        # Once.
        elif sent.within(s) < s.times:
            found.append(f"{name}: was kept {s.times} times and sent {sent.within(s)} times")
    # All that had been committed.
    there = {s.id: s for s in spans if s.device is not None}
    for answer, (device, digest, first_seen, times) in seen.answers.items():
        s = there.get(answer)
        if s is None or (s.device, s.digest, s.first_seen) != (device, digest, first_seen) or s.times < times:
            found.append(f"answer {answer} of {device}: had been committed and is not there any more")
    by_device = collections.defaultdict(lambda: ([], []))  # all are of one bundle
    for s in there.values():
        by_device[s.device][0].append(s)
    for g in gaps:
        by_device[g.device][1].append(g)
    for device, (own, own_gaps) in by_device.items():
        found += order_problems(device, own, own_gaps, patience)
    # Gaps.
    for a in away:
        for device in a.devices:
            own, own_gaps = by_device[device]
            if any(s.first_seen < a.began and s.last_seen > a.ended for s in own):
                found.append(f"{device}: an answer reaches over the time when it was {a.what}")
            if not any(g.began <= a.ended and (g.ended is None or g.ended >= a.began) for g in own_gaps):
                found.append(f"{device}: no gap for the time when it was {a.what}")
    for device in faulty:
        own, own_gaps = by_device[device]
        if own or [g.ended for g in own_gaps] != [None]:
            found.append(f"{device}: never gave a whole answer and has no gap without end")
    for e in events:
        if e.after is None:
            found.append(f"{e.what}: {len(e.devices)} devices were not collected again, such as {min(e.devices)}")
        elif e.after > within:
            found.append(f"{e.what}: the last device was collected again after {e.after:.1f} s")
    return found


def order_problems(device, spans, gaps, patience):
    """One after the other, and nothing unknown between them."""
    found = []
    ends = {g.number: g for g in gaps}
    for s, after in zip(spans, spans[1:] + [None]):
        gap = ends.get(s.number)
        if not s.asked <= s.first_seen <= s.last_seen or not s.asked <= s.last_asked <= s.last_seen:
            found.append(f"{device}: the times of answer {s.number} are not in order")
        if gap is not None and gap.began < s.last_seen:
            found.append(f"{device}: a gap begins within answer {s.number}")
        if s.is_last != (after is None) or after is not None and after.previous != s.id:
            found.append(f"{device}: answer {s.number} cannot be found from the last one")
        if after is None:
            continue
        if after.number != s.number + 1:
            found.append(f"{device}: answer {after.number} follows answer {s.number}")
        elif after.first_seen < s.last_seen:
            found.append(f"{device}: answer {after.number} begins within answer {s.number}")
        elif gap is None and after.digest == s.digest:
            found.append(f"{device}: answers {s.number} and {after.number} are the same")
        elif gap is None and after.asked - s.last_seen > patience:
            found.append(f"{device}: no gap between answers {s.number} and {after.number}")
        elif gap is not None and (gap.ended is None or gap.ended > after.first_seen):
            found.append(f"{device}: answer {after.number} begins within a gap")
    return found


# Changes of a store that have to be found: what is changed, the statement, and a part of what has to be reported. $AWAY
# is a device that was away.
ONE = "(SELECT previous FROM answers WHERE previous IS NOT NULL ORDER BY answer_id LIMIT 1)"
TAMPERED = (
    ("a byte of an answer", f"UPDATE contents SET frames = set_byte(frames, 30, 255 - get_byte(frames, 30)) "
                            f"WHERE answer_id = {ONE}", "not those of its digest"),
    ("a byte and the digest", f"UPDATE contents SET frames = set_byte(frames, 30, 255 - get_byte(frames, 30)) "
                              f"WHERE answer_id = {ONE}; UPDATE answers a SET digest = encode(sha256(frames), 'hex') "
                              f"FROM contents c WHERE c.answer_id = a.answer_id AND a.answer_id = {ONE}", "never sent"),
    ("an answer without frames", f"DELETE FROM contents WHERE answer_id = {ONE}", "is not whole"),
    ("frames without an answer", f"DELETE FROM answers WHERE answer_id = {ONE}", "is not whole"),
    ("an answer less", f"DELETE FROM contents WHERE answer_id = {ONE}; DELETE FROM answers WHERE answer_id = {ONE}",
     "had been committed"),
    ("fewer requests", f"UPDATE answers SET times = 0 WHERE answer_id = {ONE}", "had been committed"),
    ("an answer that is counted twice", f"UPDATE answers SET times = 2 * times + 1000 WHERE answer_id = {ONE}", "was kept"),
    ("an answer that is stored twice",
     f"INSERT INTO contents SELECT -1, frames FROM contents WHERE answer_id = {ONE}; "
     "INSERT INTO answers SELECT -1, device_id, bundle, (SELECT max(number) + 1 FROM answers m WHERE m.device_id = "
     "a.device_id AND m.bundle = a.bundle), previous, digest, size, asked, first_seen, last_asked, last_seen, times "
     f"FROM answers a WHERE answer_id = {ONE}", "begins within answer"),
    ("an answer that no other one leads to", f"UPDATE answers SET previous = NULL WHERE previous = {ONE}",
     "cannot be found"),
    ("no gap", "DELETE FROM gaps WHERE device_id = (SELECT device_id FROM devices WHERE device = '$AWAY')", "no gap for"),
    ("an answer that reaches over a gap",
     "UPDATE answers SET first_seen = 1000, asked = 1000 WHERE answer_id = (SELECT max(answer_id) FROM latest_answers "
     "WHERE device = '$AWAY')", "reaches over"),
    ("answers of a faulty device",
     "UPDATE gaps SET ended = began WHERE device_id = (SELECT device_id FROM devices WHERE device = '$FAULTY')",
     "never gave a whole answer"),
)
