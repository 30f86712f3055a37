#!/usr/bin/env python3
"""The example configurations of the bus, with servers that read exactly these files, and the options for access to it.

usage: deployment.py TARN NATS_SERVER SOURCES"""
import base64
import json
import os
import pathlib
import re
import shlex
import signal
import socket
import ssl
import subprocess
import sys
import tempfile
import time
import unittest

TARN, NATS_SERVER, SOURCES = map(os.path.abspath, sys.argv[1:4])
EXAMPLES, ANSWER = f"{SOURCES}/fleet/examples", f"{SOURCES}/examples/cl_debug.xml"
SITE_OF = {"core-1": "fra", "core-2": "fra", "edge-1": "ber"}


def openssl(folder, *arguments, **more):
    return subprocess.run(["openssl", *arguments], cwd=folder, check=True, capture_output=True, **more).stdout


class Authority:
    """Signs certificates with its own key."""

    def __init__(self, folder):
        self.folder = folder
        folder.mkdir()
        openssl(folder, "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes", "-keyout", "ca.key",
                "-out", "ca.crt", "-subj", "/CN=authority", "-days", "2")

    def sign(self, folder, file, user, extensions):
        """file.crt and file.key for that user, with ca.crt beside them."""
        folder.mkdir(exist_ok=True)
        (folder / "extensions").write_text(extensions)
        request = openssl(folder, "req", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes", "-keyout",
                          f"{file}.key", "-subj", f"/CN={user}")
        openssl(folder, "x509", "-req", "-CA", self.folder / "ca.crt", "-CAkey", self.folder / "ca.key", "-CAcreateserial",
                "-out", f"{file}.crt", "-days", "2", "-extfile", "extensions", input=request)
        (folder / "ca.crt").write_bytes((self.folder / "ca.crt").read_bytes())


def free_ports(count):
    sockets = [socket.socket() for _ in range(count)]
    for s in sockets:
        s.bind(("127.0.0.1", 0))
    ports = [f"127.0.0.1:{s.getsockname()[1]}" for s in sockets]
    for s in sockets:
        s.close()
    return ports


class Program:
    """A process in the background."""

    def __init__(self, command, folder, name, ready, environment=()):
        self.log_path = folder / f"{name}.log"
        with open(self.log_path, "wb") as log:
            self.process = subprocess.Popen(command, cwd=folder, stdout=log, stderr=log, stdin=subprocess.DEVNULL,
                                            env={**os.environ, **dict(environment)})
        self.wait_for(ready)

    def wait_for(self, text):
        end = time.monotonic() + 60
        while text not in self.log():
            if self.process.poll() is not None or time.monotonic() > end:
                self.stop()
                raise RuntimeError(f"{self.process.args}: {self.log()}")
            time.sleep(0.05)

    def log(self):
        return self.log_path.read_text()

    def stop(self):
        self.process.kill()
        self.process.wait()


def tarn(*arguments):
    return subprocess.run([TARN, *arguments], capture_output=True, text=True, timeout=60)


class Deployment(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.scratch.cleanup)
        cls.folder = folder = pathlib.Path(cls.scratch.name)
        authority = Authority(folder / "authority")
        for server in "hub-1", "hub-2", "fra":
            authority.sign(folder / server, "server", f"bus.{server}",
                           "subjectAltName=IP:127.0.0.1\nextendedKeyUsage=serverAuth,clientAuth\n")
        cls.users = folder / "users"
        for user in "collector", "operator", "operator.fra", "stranger", *SITE_OF:
            authority.sign(cls.users, user, user, "extendedKeyUsage=clientAuth\n")
        hub_1, hub_2, fra, *others = free_ports(7)
        leaves, cluster = others[:2], others[2:]
        for i, clients in enumerate((hub_1, hub_2)):
            cls.start([NATS_SERVER, "-c", f"{EXAMPLES}/hub.conf"], folder / f"hub-{i + 1}", "server", "Server is ready",
                      BUS_NAME=f"hub-{i + 1}", BUS_CLIENTS=clients, BUS_LEAVES=leaves[i], BUS_CLUSTER=cluster[i],
                      BUS_ROUTES=f"[nats://{cluster[1 - i]}]")
        site = cls.start([NATS_SERVER, "-c", f"{EXAMPLES}/site.conf"], folder / "fra", "server", "Server is ready",
                         BUS_NAME="fra-1", BUS_CLIENTS=fra, BUS_HUB=f"[tls://{leaves[0]},tls://{leaves[1]}]")
        site.wait_for("Leafnode connection created")
        cls.hub, cls.fra = f"tls://{hub_1}", f"tls://{fra}"
        for device, site in SITE_OF.items():
            if device == "core-1":
                cls.start_unit("tarn-device@", "device.conf", device, "answering on", BUS=cls.fra,
                               SERVED=f"cl-debug={ANSWER}")
            else:
                cls.answer(device, site, device, f"tls://{hub_2}" if site == "ber" else cls.fra)

    @classmethod
    def start(cls, command, folder, name, ready, **environment):
        program = Program(command, folder, name, ready, environment.items())
        cls.addClassCleanup(program.stop)
        return program

    @classmethod
    def answer(cls, device, site, user, bus):
        return cls.start([TARN, "answer", "--bus", bus, *cls.access(user), "--site", site, "--device", device,
                          f"cl-debug={ANSWER}"], cls.folder, f"{site}-{device}-of-{user}", "answering on")

    @classmethod
    def start_unit(cls, unit, settings, user, ready, **instead):
        """As systemd would, with the settings of the example but for those that are given."""
        folder = cls.folder / f"unit-{user}"
        folder.mkdir()
        for file, source in ("ca.crt", "ca.crt"), ("client.crt", f"{user}.crt"), ("client.key", f"{user}.key"):
            (folder / file).write_bytes((cls.users / source).read_bytes())
        values = dict(line.split("=", 1) for line in pathlib.Path(EXAMPLES, settings).read_text().splitlines()
                      if line and not line.startswith("#"))
        for name in instead:
            assert name in values, name
        values.update(instead)
        text = pathlib.Path(SOURCES, "packaging/systemd", f"{unit}.service").read_text()
        loaded = re.findall(r"^LoadCredential=(.*):/etc/tarn/%i/\1$", text, re.M)
        assert sorted(loaded) == sorted(file.name for file in folder.iterdir()), loaded
        command = []
        for word in re.search("^ExecStart=/usr/bin/tarn (.*)$", text, re.M)[1].replace("%d", str(folder)).split():
            if word.startswith("${"):
                command.append(values[word[2:-1]])
            elif word.startswith("$"):
                command += shlex.split(values.get(word[1:], ""))
            else:
                command.append(word)
        return cls.start([TARN, *command], folder, "unit", ready)

    @classmethod
    def access(cls, user):
        return ("--bus-ca", str(cls.users / "ca.crt"), "--bus-cert", str(cls.users / f"{user}.crt"),
                "--bus-key", str(cls.users / f"{user}.key"))

    def show(self, bus, user, *which):
        done = tarn("show", "cl-debug", "--bus", bus, *self.access(user), *which, "--json", "--timeout", "2")
        replies = {}
        for line in done.stdout.splitlines():
            reply = json.loads(line)
            replies[f"{reply['site']}/{reply['device']}"] = reply["reply"]
        return replies, done

    def speak(self, bus, user, *lines):
        """What a server replies to these lines."""
        host, port = bus.removeprefix("tls://").split(":")
        context = ssl.create_default_context(cafile=self.users / "ca.crt")
        context.load_cert_chain(self.users / f"{user}.crt", self.users / f"{user}.key")
        with socket.create_connection((host, port), timeout=10) as plain:
            plain.recv(65536)  # what the server says of itself
            with context.wrap_socket(plain, server_hostname=host) as connection:
                text = ['CONNECT {"verbose":false,"pedantic":false,"headers":true}', *lines, "PING"]
                connection.sendall("".join(line + "\r\n" for line in text).encode())
                reply = b""
                while b"PONG" not in reply and (more := connection.recv(65536)):
                    reply += more
        return reply.decode()

    def test_operators_ask_all_sites(self):
        replies, done = self.show(self.hub, "operator", "--all")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(replies, {"fra/core-1": "answered", "fra/core-2": "answered", "ber/edge-1": "answered"})

    def test_a_collector_keeps_the_answers_of_all_sites(self):
        store = self.folder / "history.db"
        collector = self.start_unit("tarn-collect@", "collect.conf", "collector", "collecting from", BUS=self.hub,
                                    STORE=str(store))
        end = time.monotonic() + 60
        lines = []
        while len(lines) < 3 and time.monotonic() < end:
            time.sleep(0.2)
            lines = [line for line in tarn("history", "--store", store, "--json").stdout.splitlines()
                     if json.loads(line)["answer"]]
        self.assertEqual(len(lines), 3, collector.log())
        collector.process.send_signal(signal.SIGTERM)
        self.assertEqual(collector.process.wait(60), 0, collector.log())

    def test_a_site_sees_only_itself(self):
        replies, done = self.show(self.fra, "operator.fra", "--all")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(replies, {"fra/core-1": "answered", "fra/core-2": "answered"})
        replies, done = self.show(self.fra, "operator.fra", "--device", "ber/edge-1")
        self.assertEqual(replies, {"ber/edge-1": "silent"})
        self.assertIn('does not permit: Permissions Violation for Publish to "tarn.ask.ber.edge-1"', done.stderr)

    def test_a_server_requires_tls_and_a_certificate_that_it_knows(self):
        for bus in self.hub, self.fra:
            plain = bus.replace("tls:", "nats:")
            ca = ("--bus-ca", str(self.users / "ca.crt"))
            for url, access, reason in ((plain, (), "SSL handshake error"), (bus, (), "SSL handshake error"),
                                        (bus, ca, ""), (plain, self.access("stranger"), "Authorization Violation")):
                done = tarn("show", "cl-debug", "--bus", url, *access, "--all")
                self.assertEqual(done.returncode, 3, f"{url} {access}: {done}")
                self.assertIn(f"{url}: cannot connect: ", done.stderr)
                self.assertIn(reason, done.stderr)
            host, port = bus.removeprefix("tls://").split(":")
            with socket.create_connection((host, port), timeout=10) as connection:
                said = json.loads(connection.recv(65536).split(b"\r\n")[0].removeprefix(b"INFO "))
                self.assertTrue(said["tls_required"] and said["tls_verify"])

    def test_a_device_speaks_only_for_itself(self):
        for bus, user, own, foreign in (
                (self.fra, "core-1", "tarn.answer.fra.core-1.R.1", ("tarn.answer.fra.core-2.R.1", "tarn.ask.fra.core-2",
                                                                    "tarn.answer.%.%.R.0", "$SRV.PING")),
                (self.hub, "edge-1", "tarn.answer.ber.edge-1.R.1", ("tarn.answer.fra.core-1.R.1", "tarn.ask.fra.core-1"))):
            self.assertNotIn("-ERR", self.speak(bus, user, f"PUB {own} 2", "hi"))
            for subject in foreign:
                self.assertIn(f'-ERR \'Permissions Violation for Publish to "{subject}"',
                              self.speak(bus, user, f"PUB {subject} 2", "hi"))
        for subject in "tarn.ask.fra.core-2", "tarn.ask.>", "tarn.answer.>", ">":
            self.assertIn(f'-ERR \'Permissions Violation for Subscription to "{subject}"',
                          self.speak(self.fra, "core-1", f"SUB {subject} 1"))

    def test_a_device_with_the_certificate_of_another_is_refused(self):
        program = self.answer("core-9", "fra", "core-1", self.fra)
        program.wait_for('does not permit: Permissions Violation for Subscription to "tarn.ask.fra.core-9"')
        replies, _ = self.show(self.hub, "operator", "--device", "fra/core-9")
        self.assertEqual(replies, {"fra/core-9": "silent"})
        program.stop()

    def test_a_site_goes_on_without_the_hub(self):
        clients, nobody = free_ports(2)
        self.start([NATS_SERVER, "-c", f"{EXAMPLES}/site.conf"], self.folder / "fra", "alone", "Server is ready",
                   BUS_NAME="fra-2", BUS_CLIENTS=clients, BUS_HUB=f"[tls://{nobody}]")
        self.answer("core-1", "fra", "core-1", f"tls://{clients}")
        replies, done = self.show(f"tls://{clients}", "operator.fra", "--all")
        self.assertEqual((done.returncode, replies), (0, {"fra/core-1": "answered"}), done.stderr)

    def test_wrong_files_are_named(self):
        ca, certificate, key = (str(self.users / name) for name in ("ca.crt", "core-1.crt", "core-1.key"))
        missing, other = str(self.users / "missing"), str(self.users / "core-2.key")
        for options, status, message in (
                (("--bus-ca", missing), 3, f"{missing}: No such file or directory"),
                (("--bus-ca", key), 3, f"{key}: SSL Error"),
                (("--bus-ca", ca, "--bus-cert", missing, "--bus-key", key), 3, f"{missing}: No such file or directory"),
                (("--bus-ca", ca, "--bus-cert", certificate, "--bus-key", missing), 3,
                 f"{missing}: No such file or directory"),
                (("--bus-ca", ca, "--bus-cert", certificate, "--bus-key", other), 3, "key values mismatch"),
                (("--bus-ca", ca, "--bus-cert", certificate), 2, "--bus-key"),
                (("--bus-ca", ca, "--bus-key", key), 2, "--bus-cert"),
                (("--bus-creds", missing), 3, f"{missing}: No such file or directory")):
            done = tarn("show", "cl-debug", "--bus", self.hub, *options, "--all")
            self.assertEqual(done.returncode, status, f"{options}: {done}")
            self.assertIn(message, done.stderr)


class Identity:
    """A key of the bus's kind, and what it signs."""

    PREFIXES = {"O": 14, "A": 0, "U": 20}

    def __init__(self, folder, kind):
        self.folder, self.kind = folder, kind
        self.key = folder / f"{kind}.pem"
        openssl(folder, "genpkey", "-algorithm", "ed25519", "-out", self.key)
        public = openssl(folder, "pkey", "-in", self.key, "-pubout", "-outform", "DER")[-32:]
        seed = openssl(folder, "pkey", "-in", self.key, "-outform", "DER")[-32:]
        prefix = self.PREFIXES[kind]
        self.name = self.text(bytes([prefix << 3]) + public)
        self.seed = self.text(bytes([18 << 3 | prefix << 3 >> 5, (prefix << 3 & 31) << 3]) + seed)

    @staticmethod
    def text(data):
        crc = 0
        for byte in data:
            crc ^= byte << 8
            for _ in range(8):
                crc = (crc << 1 ^ (0x1021 if crc & 0x8000 else 0)) & 0xFFFF
        return base64.b32encode(data + crc.to_bytes(2, "little")).decode().rstrip("=")

    def sign(self, subject, claims):
        def encoded(data):
            return base64.urlsafe_b64encode(data).decode().rstrip("=")
        body = {"jti": "1", "iat": int(time.time()), "iss": self.name, "sub": subject, "name": "test", "nats": claims}
        text = ".".join(encoded(json.dumps(part).encode()) for part in ({"typ": "JWT", "alg": "ed25519-nkey"}, body))
        (self.folder / "text").write_text(text)
        return text + "." + encoded(openssl(self.folder, "pkeyutl", "-sign", "-inkey", self.key, "-rawin", "-in", "text"))


class Credentials(unittest.TestCase):
    def test_a_file_with_credentials_opens_the_bus(self):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            operator, account, user = (Identity(folder, kind) for kind in "OAU")
            limits = {"subs": -1, "data": -1, "payload": -1, "imports": -1, "exports": -1, "wildcards": True, "conn": -1,
                      "leaf": -1}
            port, = free_ports(1)
            (folder / "bus.conf").write_text(
                f"listen: {port}\noperator: {operator.sign(operator.name, {'type': 'operator', 'version': 2})}\n"
                "resolver: MEMORY\nresolver_preload {\n"
                f"{account.name}: {operator.sign(account.name, {'type': 'account', 'version': 2, 'limits': limits})}\n}}\n")
            token = account.sign(user.name, {"type": "user", "version": 2, "subs": -1, "data": -1, "payload": -1})
            credentials = folder / "user.creds"
            credentials.write_text(f"-----BEGIN NATS USER JWT-----\n{token}\n------END NATS USER JWT------\n\n"
                                   f"-----BEGIN USER NKEY SEED-----\n{user.seed}\n------END USER NKEY SEED------\n")
            server = Program([NATS_SERVER, "-c", folder / "bus.conf"], folder, "server", "Server is ready")
            self.addCleanup(server.stop)
            bus = f"nats://{port}"
            device = Program([TARN, "answer", "--bus", bus, "--bus-creds", credentials, "--device", "r1",
                              f"cl-debug={ANSWER}"], folder, "device", "answering on")
            self.addCleanup(device.stop)
            done = tarn("show", "cl-debug", "--bus", bus, "--bus-creds", str(credentials), "--all", "--json")
            self.assertEqual((done.returncode, json.loads(done.stdout)["reply"]), (0, "answered"), done)
            (folder / "garbage").write_text("garbage\n")
            for options in (), ("--bus-creds", str(folder / "garbage")):
                done = tarn("show", "cl-debug", "--bus", bus, *options, "--all")
                self.assertEqual(done.returncode, 3, done)
                self.assertIn(f"{bus}: cannot connect: ", done.stderr)


unittest.main(argv=[sys.argv[0], *sys.argv[4:]])
