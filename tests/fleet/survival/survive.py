#!/usr/bin/env python3
"""A fleet while its servers, collectors and devices are killed, and whether the store then has what it must have.

usage: survive.py TARN [--minutes M] [--devices N] [--every S] ...

Starts three servers of the bus in a cluster, PostgreSQL, two collectors and simulated devices, all on this machine. At
regular intervals one of them is killed with SIGKILL and started again; some devices stall, some vanish, some never give
a whole answer. Prints the time until all devices are collected again after each of these events, then compares the store
with the logs of the devices, and at last changes the store to see that the comparison notices it. The exit status is 0
if nothing was lost or doubled, each gap is there, and each device was collected again in time."""
import argparse
import ctypes
import glob
import os
import pathlib
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time

sys.dont_write_bytecode = True  # beside the sources
import judge

BUNDLE = "dp-tt-cfg"
# So small that each answer goes in parts.
MOST_BYTES = 4096


def now():
    return int(time.time() * 1000)


def end_with_parent():
    ctypes.CDLL(None).prctl(1, signal.SIGKILL)


class Program:
    """A process that is started again and again."""

    def __init__(self, name, command, folder):
        self.name, self.command = name, command
        self.log_path = folder / (name.replace(" ", "-") + ".log")
        self.process = None
        self.most_memory = 0  # of all its starts, in MiB
        self.is_expected = True
        self.start()

    def start(self):
        self.log_begin = self.log_path.stat().st_size if self.log_path.exists() else 0
        with open(self.log_path, "ab") as log:
            self.process = subprocess.Popen(self.command, stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                                            preexec_fn=end_with_parent)
        self.is_expected = True

    def kill(self):
        self.note_memory()
        self.is_expected = False
        self.process.kill()
        self.process.wait()

    def note_memory(self):
        status = pathlib.Path(f"/proc/{self.process.pid}/status").read_text() if self.process.poll() is None else ""
        for line in status.splitlines():
            if line.startswith("VmHWM:"):
                self.most_memory = max(self.most_memory, int(line.split()[1]) / 1024)

    def signal(self, number):
        self.process.send_signal(number)

    def stop(self):
        """Its exit status after SIGTERM."""
        self.note_memory()
        self.is_expected = False
        self.process.terminate()
        try:
            return self.process.wait(60)
        except subprocess.TimeoutExpired:
            self.kill()
            return None

    def log(self):
        """Of this start."""
        return self.log_path.read_bytes()[self.log_begin:].decode(errors="replace")

    def wait_for(self, text):
        end = time.monotonic() + 120
        while text not in self.log():
            if self.process.poll() is not None or time.monotonic() > end:
                sys.exit(f"{self.name} does not start:\n{self.log()}")
            time.sleep(0.05)


class PostgreSQL(Program):
    def __init__(self, folder):
        programs = max(glob.glob("/usr/lib/postgresql/*/bin"), key=lambda path: int(path.split("/")[4]))
        self.folder = folder / "postgresql"
        self.folder.mkdir()
        self.as_user = []
        if os.geteuid() == 0:  # whom the server refuses
            folder.chmod(0o711)
            shutil.chown(self.folder, "nobody", "nogroup")
            self.as_user = ["setpriv", "--reuid", "nobody", "--regid", "nogroup", "--clear-groups", "--pdeathsig", "KILL",
                            "--"]
        self.psql = f"{programs}/psql"
        data = self.folder / "data"
        subprocess.run([*self.as_user, f"{programs}/initdb", "-D", data, "-U", "tarn", "-A", "trust", "-E", "UTF8",
                        "--no-sync", "--no-instructions"], check=True, stdout=subprocess.DEVNULL)
        self.url = f"postgresql://tarn@/postgres?host={self.folder}"
        super().__init__("PostgreSQL", [*self.as_user, f"{programs}/postgres", "-D", data, "-c", "listen_addresses=",
                                        "-c", f"unix_socket_directories={self.folder}"], folder)
        while self.query("SELECT 1") is None:
            if self.process.poll() is not None:
                sys.exit(f"PostgreSQL does not start:\n{self.log()}")
            time.sleep(0.1)

    def kill(self):
        """With its children, at once."""
        if self.process.poll() is not None:
            return
        children = pathlib.Path(f"/proc/{self.process.pid}/task/{self.process.pid}/children").read_text().split()
        super().kill()
        for child in map(int, children):
            try:
                os.kill(child, signal.SIGKILL)
            except ProcessLookupError:
                pass
        # They hold what the next one needs.
        while any(pathlib.Path(f"/proc/{child}").exists() for child in children):
            time.sleep(0.01)

    def query(self, *statements):
        """What the statements print; None if the server is not there."""
        command = [self.psql, "-d", self.url, "-AtXq", "-v", "ON_ERROR_STOP=1"]
        for statement in statements:
            command += ["-c", statement]
        done = subprocess.run(command, text=True, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        if done.returncode == 0:
            return done.stdout
        if done.returncode == 2:  # the connection
            return None
        raise RuntimeError(done.stderr)


def free_ports(count):
    sockets = [socket.socket() for _ in range(count)]
    for s in sockets:
        s.bind(("127.0.0.1", 0))
    ports = [s.getsockname()[1] for s in sockets]
    for s in sockets:
        s.close()
    return ports


def start_bus(folder):
    nats_server = shutil.which("nats-server", path=os.environ["PATH"] + ":/usr/sbin")
    ports = free_ports(6)
    routes = ", ".join(f"nats://127.0.0.1:{port}" for port in ports[3:])
    servers = []
    for i in range(3):
        path = folder / f"bus-{i + 1}.conf"
        path.write_text(f"listen: 127.0.0.1:{ports[i]}\nserver_name: bus-{i + 1}\nmax_payload: {MOST_BYTES}\n"
                        f"cluster {{ name: tarn, listen: 127.0.0.1:{ports[3 + i]}, routes: [{routes}] }}\n")
        servers.append(Program(f"server {i + 1}", [nats_server, "-c", path], folder))
    for server in servers:
        server.wait_for("Server is ready")
    return servers, ",".join(f"nats://127.0.0.1:{port}" for port in ports[:3])


class Devices(Program):
    """A process with devices, and their names."""

    def __init__(self, name, count, first, url, arguments, folder):
        self.sent_path = folder / f"{name}.sent"
        self.names = [f"site-1/device-{number}" for number in range(first, first + count)]
        super().__init__(name, [arguments.tarn, "simulate", "--bus", url, "--devices", str(count), "--first", str(first),
                                "--change", str(arguments.change), "--log", self.sent_path,
                                *(["--fault", "silent=40", "--fault", "torn=30", "--fault", "schema=30"]
                                  if name == "faulty" else [])], folder)
        self.wait_for(f"{count} devices on ")


class Run:
    def __init__(self, arguments, folder):
        self.arguments, self.folder = arguments, folder
        self.servers, url = start_bus(folder)
        self.store = PostgreSQL(folder)
        few = max(1, arguments.devices // 20)
        self.groups, first = {}, 1
        for name, count in (("steady", arguments.devices - 3 * few), ("stalled", few), ("vanished", few),
                            ("faulty", few)):
            self.groups[name] = Devices(name, count, first, url, arguments, folder)
            first += count
        self.collectors = [
            Program(f"collector {i + 1}", [arguments.tarn, "collect", "--bus", url, "--bundle", BUNDLE, "--every",
                                           f"{arguments.every}s", "--timeout", f"{arguments.timeout}s", "--store",
                                           self.store.url], folder) for i in range(2)]
        for collector in self.collectors:
            collector.wait_for("collecting from")
        self.seen, self.sent = judge.Seen(), judge.Sent()
        self.away, self.events, self.early_ends = [], [], []
        self.kills = 0

    def say(self, text):
        print(f"{time.monotonic() - self.began:6.1f} s  {text}", flush=True)

    def expect(self, what, names):
        self.events.append(judge.Event(what, now(), set(names)))

    def look(self):
        """Reads what has been committed."""
        rows = self.store.query(judge.LATEST)
        if rows is None:
            return
        asked = self.seen.add(rows)
        for event in self.events:
            if event.after is not None:
                continue
            event.devices -= {device for device in event.devices if asked.get(device, 0) > event.at}
            if not event.devices:
                event.after = (now() - event.at) / 1000
                self.say(f"{event.what}: all devices were collected again after {event.after:.1f} s")

    def notice_ends(self):
        for program in self.programs():
            if not program.is_expected or program.process.poll() is None:
                continue
            program.is_expected = False
            # A collector ends if the bus or the store is not there when it starts; it is started until they are.
            if program not in self.collectors or "collecting from" in program.log():
                self.early_ends.append(f"{program.name} ended by itself with status {program.process.returncode}: "
                                       f"{program.log()[-500:]}")
            self.at(1, program.start)

    def programs(self):
        return [*self.servers, self.store, *self.collectors, *self.groups.values()]

    def kill(self, program):
        """And starts it again after a moment, as a supervisor does."""
        if not program.is_expected:  # it is about to be started
            return
        self.look()
        program.kill()
        self.kills += 1
        self.say(f"{program.name} killed")
        self.expect(f"{program.name} killed", self.groups["steady"].names)
        self.at(1, program.start)

    def leave(self, group, how):
        if how == "stalled":
            group.signal(signal.SIGSTOP)
        else:
            group.kill()
        began = now()
        self.say(f"{len(group.names)} devices are {how}")
        self.at(self.arguments.away, lambda: self.come_back(group, how, began))

    def come_back(self, group, how, began):
        self.away.append(judge.Away(how, group.names, began, now()))
        if how == "stalled":
            group.signal(signal.SIGCONT)
        else:
            group.start()
        self.expect(f"{len(group.names)} devices were {how}", group.names)

    def at(self, seconds, what):
        """Does it after that time."""
        self.due.append((time.monotonic() + seconds, what))

    def every(self, seconds, what, number=0):
        def again():
            if time.monotonic() + self.arguments.settle < self.end:
                what(number)
                self.every(seconds, what, number + 1)
        self.at(seconds, again)

    def work(self):
        """Until the end, or until nothing is expected any more."""
        while time.monotonic() < self.end and (self.due or any(e.after is None for e in self.events)):
            for when, what in [d for d in self.due if d[0] <= time.monotonic()]:
                self.due.remove((when, what))
                what()
            self.look()
            self.notice_ends()
            time.sleep(0.2)

    def run(self):
        a = self.arguments
        self.due = []
        self.began = time.monotonic()
        self.end = self.began + 120
        answering = [*self.groups["steady"].names, *self.groups["stalled"].names, *self.groups["vanished"].names]
        self.events = [judge.Event("start", now(), set(answering))]
        self.work()
        if self.events[0].after is None:
            sys.exit("not all devices were collected:\n" + "".join(c.log() for c in self.collectors))
        self.events.clear()

        self.began = time.monotonic()
        self.end = self.began + a.minutes * 60 + a.settle
        self.every(a.servers, lambda number: self.kill(self.servers[number % 3]))
        self.every(a.collectors, lambda number: self.kill(self.collectors[number % 2]))
        self.every(a.store, lambda number: self.kill(self.store))
        period = 2 * a.away + 10
        self.every(period, lambda number: self.leave(self.groups["stalled"], "stalled"))
        self.at(period / 2, lambda: self.every(period, lambda number: self.leave(self.groups["vanished"], "vanished")))
        self.work()
        for server in self.servers:
            server.note_memory()
        for program in self.collectors:
            status = program.stop()
            if status != 0:
                self.early_ends.append(f"{program.name} ended with status {status}: {program.log()[-500:]}")
        for group in self.groups.values():
            group.stop()
            if group.sent_path.exists():
                with open(group.sent_path) as lines:
                    for line in lines:
                        self.sent.add(line)
        self.sent.finish()
        return self.verdict()

    def problems(self, change="", events=()):
        text = self.store.query(f"BEGIN; {change}", judge.SPANS, "SELECT '--'", judge.GAPS, "ROLLBACK")
        spans, gaps = text.split("--\n")
        self.spans = judge.rows_of(spans, judge.Span)
        self.gaps = judge.rows_of(gaps, judge.Gap)
        patience = 3 * max(self.arguments.every, self.arguments.timeout) * 1000
        return judge.problems(self.spans, self.gaps, self.sent, self.seen, self.away, self.groups["faulty"].names,
                              [*self.events, *events], patience, self.arguments.within)

    def verdict(self):
        found = self.early_ends + self.problems()
        kept = sum(s.times for s in self.spans if s.times)
        times = [e.after for e in self.events if e.after is not None]
        print(f"answers sent {self.sent.count}, kept {kept}, of which {len(self.spans)} differ from the one before; "
              f"{len(self.seen.answers)} of these were read before the end")
        print(f"kills {self.kills}, devices away {sum(len(a.devices) for a in self.away)} times, gaps {len(self.gaps)}")
        size = int(self.store.query("SELECT pg_database_size(current_database())"))
        print(f"size of the database: {size / 2**20:.0f} MiB, {size / max(1, len(self.spans)):.0f} bytes for each answer "
              "that differs")
        print("most memory: " + ", ".join(f"{what} {max(p.most_memory for p in programs):.0f} MiB" for what, programs in (
            ("a server", self.servers), ("a collector", self.collectors),
            (f"the process with {len(self.groups['steady'].names)} devices", [self.groups["steady"]]))))
        print(f"longest time until all devices were collected again: {max(times, default=0):.1f} s")
        if not found:
            found = self.unnoticed()
        for line in found[:20]:
            print(f"WRONG: {line}")
        if len(found) > 20:
            print(f"and {len(found) - 20} more")
        print("nothing was lost or doubled, each gap is there, each device was collected again in time"
              if not found else f"{len(found)} problems")
        return found

    def unnoticed(self):
        """Changes of the store that the comparison does not report."""
        found = []
        for what, statement, report in judge.TAMPERED:
            change = statement.replace("$AWAY", self.away[0].devices[0]).replace("$FAULTY", self.groups["faulty"].names[0])
            if not any(report in line for line in self.problems(change)):
                found.append(f"a store with {what} is not noticed")
        silent = judge.Event("nothing", 0, {"x"})
        if not any("not collected again" in line for line in self.problems(events=[silent])):
            found.append("a device that is not collected again is not noticed")
        if not found:
            print(f"noticed: {len(judge.TAMPERED) + 1} of as many faults that were put into what is compared")
        return found


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("tarn")
    parser.add_argument("--minutes", type=float, default=10)
    parser.add_argument("--devices", type=int, default=1000)
    parser.add_argument("--every", type=float, default=2, help="seconds between two requests to a device")
    parser.add_argument("--timeout", type=float, default=2, help="seconds for an answer")
    parser.add_argument("--change", type=float, default=10, help="seconds between two changes of a device")
    parser.add_argument("--away", type=float, help="seconds that devices are away; default: so long that it is a gap")
    parser.add_argument("--within", type=float, default=10, help="seconds until each device must be collected again")
    for what, default in ("servers", 30), ("collectors", 45), ("store", 120):
        parser.add_argument(f"--{what}", type=float, help=f"seconds between two kills; default: {default}, or less in a "
                                                          "short run")
    parser.add_argument("--keep", action="store_true", help="keep the folder with logs and data")
    arguments = parser.parse_args()
    for what, default in ("servers", 30), ("collectors", 45), ("store", 120):
        if getattr(arguments, what) is None:
            setattr(arguments, what, min(default, arguments.minutes * {"servers": 20, "collectors": 30, "store": 45}[what]))
    patience = 3 * max(arguments.every, arguments.timeout)
    arguments.away = arguments.away or patience + 4
    arguments.settle = arguments.within + 5
    folder = pathlib.Path(tempfile.mkdtemp(prefix="tarn-fleet-"))
    run = None
    try:
        run = Run(arguments, folder)
        found = run.run()
    finally:
        if run is not None:
            for program in run.programs():
                program.kill()
        if arguments.keep:
            print(f"logs and data: {folder}")
        else:
            shutil.rmtree(folder)
    sys.exit(1 if found else 0)


main()
