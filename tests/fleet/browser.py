#!/usr/bin/env python3
"""The page of a collector in a browser, with simulated devices on the bus whose address is $BUS.

usage: browser.py TARN CHROMIUM [FOLDER [AXE]]

FOLDER gets a picture of each look. With the script axe.min.js, what it calls serious or critical is an error, too.
"""
import base64
import json
import os
import pathlib
import re
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import time

sys.path.append(str(pathlib.Path(__file__).parents[1] / "pages"))
from accessible import AXE, OUTSIDE, WINDOWS, Browser  # pylint: disable=wrong-import-position

HOSTILE = "<img src=x onerror=\"document.title='changed'\">/</script><script>document.title='changed'</script>"
TABLES = pathlib.Path(__file__).parents[2] / "examples" / "dp_tt_cfg.xml"
ROWS = "document.querySelectorAll('#devices tbody tr').length"
ROW_HEIGHT = "Math.max(...[...document.querySelectorAll('#devices tbody tr')].map(row => row.offsetHeight))"
READY = "document.querySelectorAll('#legend li').length > 0 && document.querySelectorAll('#history tbody tr').length > 0"


class Page(Browser):
    """Notes what the browser reports and which addresses it asks."""

    def __init__(self, program, folder):
        self.errors, self.urls = [], []
        super().__init__(program, folder)
        for domain in ("Log", "Runtime", "Network"):
            self.call(domain + ".enable")

    def message(self):
        message = super().message()
        method, parameters = message.get("method"), message.get("params", {})
        if method == "Log.entryAdded":
            self.errors.append(parameters["entry"]["text"])
        elif method == "Runtime.exceptionThrown":
            self.errors.append(json.dumps(parameters["exceptionDetails"]))
        elif method == "Network.requestWillBeSent":
            self.urls.append(parameters["request"]["url"])
        return message

    def wait(self, condition, seconds=60):
        end = time.monotonic() + seconds
        while not self.run(condition):
            if time.monotonic() > end:
                sys.exit(f"never true: {condition}\n{self.run('document.body.innerText')[:2000]}\n{self.errors}")
            time.sleep(0.1)

    def key(self, key):
        self.run("document.activeElement.dispatchEvent(new KeyboardEvent('keydown', "
                 f"{{key: {json.dumps(key)}, bubbles: true}})); 0")

    def picture(self, path):
        data = self.call("Page.captureScreenshot")["data"]
        pathlib.Path(path).write_bytes(base64.b64decode(data))


class Programs:
    """Programs in the background, which end with the test."""

    def __init__(self, tarn, folder):
        self.tarn, self.folder, self.running = tarn, folder, []

    def start(self, expected, *words):
        """Starts the tool, waits for the text and returns the process and its output so far."""
        path = os.path.join(self.folder, f"output-{len(self.running)}")
        with open(path, "wb") as output:
            process = subprocess.Popen([self.tarn, *words], stdout=output, stderr=subprocess.STDOUT)
        self.running.append(process)
        end = time.monotonic() + 60
        while True:
            text = pathlib.Path(path).read_text(encoding="utf-8")
            if expected in text:
                return process, text
            if process.poll() is not None or time.monotonic() > end:
                sys.exit(f"{words}: {text}")
            time.sleep(0.05)

    def end(self, process):
        process.terminate()
        process.wait()

    def end_all(self):
        for process in self.running:
            process.kill()
            process.wait()


def check(condition, what):
    if not condition:
        sys.exit(f"error: {what}")


class Test:
    def __init__(self, programs, page, pictures, rules):
        self.programs, self.page, self.pictures, self.rules = programs, page, pictures, rules
        self.bus, self.looks = os.environ["BUS"], 0

    def collect(self, store):
        process, text = self.programs.start(
            "serving ", "collect", "--bus", self.bus, "--bundle", "dp-tt-cfg", "--bundle", "dp-intf", "--store", store,
            "--every", "1s", "--timeout", "1s", "--http", "127.0.0.1:0")
        return process, re.search(r"serving (\S+)", text)[1]

    def device(self):
        return self.programs.start("answering on", "answer", "--bus", self.bus, "--device", "edge-1", "--site", "ber",
                                   f"dp-tt-cfg={TABLES}")[0]

    def open(self, url, look="light", width=1280, height=800):
        self.page.open("about:blank", look, width, height)
        self.page.open(url, look, width, height)

    def look_at(self, name):
        """What every look must hold."""
        outside = json.loads(self.page.run(OUTSIDE))
        check(not outside, f"{name}: not inside the window: {outside}")
        if self.pictures:
            self.page.picture(os.path.join(self.pictures, name + ".png"))
        if self.rules:
            self.page.run(self.rules + "; 0")
            for violation in json.loads(self.page.run(AXE)):
                places = [node["target"] for node in violation["nodes"][:3]]
                check(violation["impact"] not in ("serious", "critical"), f"{name}: {violation['help']}: {places}")
        self.looks += 1

    def all_devices(self, url):
        page = self.page
        self.open(url)
        page.wait("state.devices.filter(d => d.answer).length >= 30")
        silent = page.run("new Set(state.devices.filter(d => d.gap).map(d => d.device)).size")
        check(silent > 1, "some devices are silent")
        page.wait(f"document.getElementById('summary').textContent.startsWith('21 devices, {silent} do not answer, ')")
        page.run("document.getElementById('silent').click(); 0")
        check(page.run(ROWS) == 2 * silent, "two bundles of each silent device")
        page.run("document.getElementById('silent').click(); 0")
        page.run("document.getElementById('search').value = 'EDGE';"
                 "document.getElementById('search').dispatchEvent(new Event('input')); 0")
        check(page.run(ROWS) == 1, "the search finds one device")
        page.key("/")
        check(page.run("document.activeElement.id") == "search", "/ goes to the search")
        page.key("Escape")
        check(page.run(ROWS) > 40, "Escape empties the search")
        page.run("document.querySelector('th.device button').click(); 0")
        check(page.run("document.querySelector('#devices tbody a').textContent") == "ber/edge-1", "sorted by name")
        check(page.run("document.querySelector('th.device').ariaSort") == "ascending", "the heading says so")
        names = page.run("[...document.querySelectorAll('#devices tbody a')].map(a => a.textContent)")
        check(names.index("site-1/device-3") < names.index("site-1/device-11"), "numbers in names are numbers")

    def one_device(self):
        page = self.page
        page.run("document.activeElement.blur(); 0")
        page.key("n")
        page.wait(READY)
        check(page.run("document.getElementById('name').textContent") == "ber/edge-1", "n opens the first device")
        check(page.run("document.activeElement.id") == "device", "the focus goes to the device")
        page.key("n")
        page.wait("document.getElementById('name').textContent === 'site-1/device-1' && "
                  "!document.querySelector('#legend li')")
        page.key("n")
        name = "site-1/device-3"
        page.wait(f"document.getElementById('name').textContent === '{name}' && "
                  "document.querySelector('#history .what a') !== null")
        page.run("document.querySelector('#history .what a').focus(); drawHistory(); 0")
        check(page.run("document.activeElement.matches('#history .what a')"), "drawing again leaves the focus")
        page.key("Escape")
        check(page.run("document.getElementById('device').hidden"), "Escape closes the device")
        check(page.run("document.activeElement.textContent") == name, "and the focus goes back to its row")
        page.run("document.querySelectorAll('#devices tbody a')[5].focus(); drawDevices(); 0")
        check(page.run("document.activeElement === document.querySelectorAll('#devices tbody a')[5]"), "or stays there")

        # What is still on its way then must not be drawn where it has no size.
        page.key("n")
        page.key("Escape")
        time.sleep(1)

        # One that was away for a while.
        page.run("[...document.querySelectorAll('#devices a')].find(a => a.textContent === 'ber/edge-1').click(); 0")
        page.run("document.getElementById('member').value = 'dp-tt-cfg dp_tc.proto';"
                 "document.getElementById('member').dispatchEvent(new Event('change')); 0")
        page.wait("state.values.gaps.length > 0 && state.values.series.length === 50 && state.values.more === 78 && " + READY)
        check(page.run("state.values.points.some(p => p.slice(1).every(v => v === null))"), "lines end before a gap")
        check(page.run("state.values.points.some(p => p.slice(1).every(v => v !== null))"), "and begin behind it")
        check(page.run("document.querySelector('#plot canvas').clientWidth === document.getElementById('legend').clientWidth"),
              "the plot is as wide as its place")
        check(page.run("[...document.querySelectorAll('#history .what')].some(cell => cell.textContent === "
                       "'gap: silent: no such device is on the bus')"), "the history names the gap")
        note = page.run("document.getElementById('plot-note').textContent")
        check(note.startswith("The first 50 of 128 rows"), note)
        page.run("document.getElementById('plot').focus(); 0")
        page.key("ArrowLeft")
        page.key("ArrowLeft")
        check(page.run("document.getElementById('plot-note').textContent === timeText(state.values.points.at(-2)[0])"),
              "the arrow keys choose a time")
        page.run("drawLegend(null); 0")
        check(page.run("document.getElementById('plot-note').textContent") == note, "then the note is there again")
        self.look_at("gap")
        page.run("document.getElementById('filter').value = 'dp_tc.id 1001';"
                 "document.getElementById('filter').dispatchEvent(new Event('change')); 0")
        page.wait("state.values.series.length === 36 && state.values.more === 0")
        check("dp_tc.id 1001" in page.run("document.querySelector('#legend li').textContent"), "the legend names rows")

        # A part of the time has its own answers.
        page.run("state.plot.updateOptions({dateWindow: [state.values.until - 5000, state.values.until]});"
                 "state.plot.getFunctionOption('zoomCallback')(state.values.until - 5000, state.values.until); 0")
        page.wait("state.values.until - state.values.since === 5000")
        page.run("document.getElementById('whole').click(); 0")
        page.wait("state.values.until - state.values.since === 86400000")

    def differences(self, url):
        page = self.page
        self.open(url + "#device=site-1%2Fdevice-3")
        page.wait(READY)
        page.wait("state.events.filter(e => e.link).length >= 2")
        page.wait("[...document.querySelectorAll('#history .changes a')].some(a => /[0-9] changed|added/.test(a.textContent))")
        shown = page.run("document.querySelector('#history .changes a').href")
        # An answer that is too large to be compared.
        page.run("window.real = get; get = path => Promise.reject(Error('too large')); ++latest;"
                 "compare(() => true).finally(() => get = real)")
        check(page.run("document.querySelector('#history .changes a').textContent") == "too large", "the row says why")
        check(page.run("document.getElementById('device-error').textContent") == "", "and the others stay")
        page.run("[...document.querySelectorAll('#history input')].pop().click(); 0")
        page.wait("document.querySelector('#history .changes a').textContent.startsWith('difference from answer 1')")
        self.open(shown)
        page.wait("document.getElementById('summary').textContent.includes(' differences')")

    def looks_well(self, url):
        for look, width, height in WINDOWS:
            self.open(url, look, width, height)
            self.page.wait(ROWS + " > 20")
            self.page.wait(ROW_HEIGHT + " < 60")
            self.look_at(f"devices-{look}")
            self.open(url + "#device=site-1%2Fdevice-3", look, width, height)
            self.page.wait(READY)
            self.page.wait("[...document.querySelectorAll('#history .changes a')].every(a => a.textContent !== 'difference')"
                           " || state.events.length > 20")
            check(self.page.run(ROW_HEIGHT) < 60, f"{look}: rows of devices are low")
            self.look_at(f"device-{look}")
            if look == "narrow":
                self.page.run("document.getElementById('device').scrollTop = 1e6; 0")
                self.look_at(f"history-{look}")

    def hostile(self, store):
        """Names and reasons that only another program could have written."""
        with sqlite3.connect(store) as database:
            database.execute("UPDATE devices SET device = ? WHERE device = 'site-1/device-3'", (HOSTILE,))
            database.execute("UPDATE gaps SET reason = ? WHERE ended IS NULL", (HOSTILE,))
        process, url = self.collect(store)
        self.open(url)
        self.page.wait(ROWS + " > 20")
        literal = json.dumps(HOSTILE)
        check(self.page.run(f"[...document.querySelectorAll('#devices a')].some(a => a.textContent === {literal})"),
              "the name is text")
        self.page.run(f"[...document.querySelectorAll('#devices a')].find(a => a.textContent === {literal}).click(); 0")
        self.page.wait(READY)
        check(self.page.run("document.getElementById('name').textContent") == HOSTILE, "the heading is text")
        check(self.page.run("document.querySelectorAll('img, body script').length") == 0, "nothing is injected")
        check(self.page.run("document.title") == "Fleet - tarn", "no script of another runs")
        # Even a script that is in the page does not run, and no other host is asked.
        self.page.run("document.body.insertAdjacentHTML('beforeend', \"<img src='http://127.0.0.2:1/'>"
                      "<img src='data:,' onerror='document.title=1'>\"); 0")
        time.sleep(0.5)
        check(self.page.run("document.title") == "Fleet - tarn", "no handler in an attribute runs")
        self.programs.end(process)
        return url


def main():
    tarn, chromium = os.path.abspath(sys.argv[1]), sys.argv[2]
    pictures = sys.argv[3] if len(sys.argv) > 3 else None
    rules = pathlib.Path(sys.argv[4]).read_text(encoding="utf-8") if len(sys.argv) > 4 else None
    with tempfile.TemporaryDirectory() as folder:
        programs, page = Programs(tarn, folder), Page(chromium, folder)
        try:
            test = Test(programs, page, pictures, rules)
            programs.start("20 devices", "simulate", "--bus", test.bus, "--devices", "20", "--sites", "2", "--fault",
                           "silent=10", "--fault", "schema=10", "--change", "3s", "--elements", "6")
            store = os.path.join(folder, "history.db")
            edge = test.device()
            collector, url = test.collect(store)
            page.open(url, "light", 1280, 800)
            page.wait("state.devices.some(d => d.device === 'ber/edge-1' && d.answer && d.answer.requests > 2)")
            programs.end(edge)
            page.wait("state.devices.some(d => d.device === 'ber/edge-1' && d.gap)")
            test.device()
            page.wait("state.devices.some(d => d.device === 'ber/edge-1' && d.answer && !d.gap)")
            test.all_devices(url)
            test.one_device()
            test.differences(url)
            test.looks_well(url)
            page.open("about:blank", "light", 1280, 800)
            programs.end(collector)
            check(not page.errors, page.errors)
            strangers = [u for u in page.urls if not u.startswith((url, "data:", "about:"))]
            check(not strangers, f"other addresses: {strangers}")
            changed = os.path.join(folder, "changed.db")
            shutil.copy(store, changed)
            url = test.hostile(changed)
            refused = [error for error in page.errors if "Content Security Policy" in error]
            check(refused and len(refused) == len(page.errors), page.errors)
        finally:
            page.close()
            programs.end_all()
    print(f"{test.looks} looks, 0 errors")


if __name__ == "__main__":
    main()
