#!/usr/bin/env python3
"""Pages in a browser: what axe-core finds, and whether their controls are inside the window.

usage: accessible.py TARN CHROMIUM AXE SOURCE

AXE is the script axe.min.js. Each page is looked at in light and dark colors, and in a narrow and a wide window.
Violations that axe-core calls serious or critical are errors.
"""
import json
import os
import subprocess
import sys
import tempfile

WINDOWS = (("light", 1280, 800), ("dark", 1280, 800), ("narrow", 390, 844), ("wide", 2560, 1440))
FRAMES = 'document.getElementById("framing").click();'
SEARCH = 'const s = document.getElementById("search"); s.value = "%s"; s.dispatchEvent(new Event("input"));'
# What is done before a look, so that everything that a page can show is looked at.
VIEW = ("", FRAMES, SEARCH % "prefix", SEARCH % "not in there")
DIFFERENCE = VIEW + ('document.getElementById("changes").click();',)
SCHEMA = ("", SEARCH % "address", 'location.hash = "lumo_tarn_dp_tc"', 'location.hash = "lumo_tarn_ha_state_e"',
          'location.hash = "lumo_tarn_dp_tt_msg"', 'location.hash = "lumo_tarn_dp_tt_cfg_rsp"')
AXE = "axe.run(document, {resultTypes: ['violations']}).then(found => JSON.stringify(found.violations))"
OUTSIDE = """JSON.stringify([...document.querySelectorAll('nav button, nav input')]
  .filter(control => !control.closest('[hidden]')).map(control => [control.id, control.getBoundingClientRect()])
  .filter(([, box]) => box.left < 0 || box.right > innerWidth || box.top < 0 || box.bottom > innerHeight)
  .concat(document.documentElement.scrollWidth > innerWidth ? [['page', null]] : []).map(([id]) => id))"""
# Values of which less than three characters are visible although there are more.
SQUEEZED = """JSON.stringify([...document.querySelectorAll('.row .value')]
  .filter(value => value.clientWidth < Math.min(24, value.scrollWidth)).map(value => value.textContent))"""
# How much of the width of the tree its rows use, at least in one of them.
FILLED = """(() => {
  const tree = document.getElementById('tree');
  if (!tree) return 1;
  const ends = [...tree.querySelectorAll('.row')].map(row => row.dataset.meaning
    && getComputedStyle(row, '::after').content !== 'none' ? row.getBoundingClientRect().right
    : row.lastElementChild.getBoundingClientRect().right);
  return (Math.max(...ends) - tree.getBoundingClientRect().left) / tree.clientWidth;
})()"""


class Browser:
    """Chromium, by messages on two pipes: a JSON object each, which a zero byte ends."""

    def __init__(self, program, folder):
        requests, self.requests = os.pipe()
        self.answers, answers = os.pipe()
        flags = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run",
                 "--disable-background-networking",
                 "--user-data-dir=" + os.path.join(folder, "profile"), "--remote-debugging-pipe", "about:blank"]
        # The browser reads from 3 and writes to 4.
        wrapped = ["bash", "-c", f'exec "$@" 3<&{requests} 4>&{answers}', "browser", program, *flags]
        self.process = subprocess.Popen(wrapped, pass_fds=(requests, answers), stderr=subprocess.DEVNULL)
        os.close(requests)
        os.close(answers)
        self.number, self.session, self.rest = 0, {}, b""
        target = self.call("Target.createTarget", url="about:blank")["targetId"]
        self.session = {"sessionId": self.call("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]}
        self.call("Page.enable")

    def message(self):
        while b"\0" not in self.rest:
            more = os.read(self.answers, 1 << 20)
            if not more:
                sys.exit("the browser has ended")
            self.rest += more
        text, self.rest = self.rest.split(b"\0", 1)
        return json.loads(text)

    def call(self, method, **parameters):
        self.number += 1
        request = {"id": self.number, "method": method, "params": parameters, **self.session}
        data = json.dumps(request).encode() + b"\0"
        while data:
            data = data[os.write(self.requests, data):]
        while True:
            answer = self.message()
            if answer.get("id") != self.number:
                continue
            if "error" in answer:
                sys.exit(f"{method}: {answer['error']}")
            return answer["result"]

    def open(self, url, look, width, height):
        scheme = {"name": "prefers-color-scheme", "value": "dark" if look == "dark" else "light"}
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=False)
        self.call("Emulation.setEmulatedMedia", features=[scheme])
        self.call("Page.navigate", url=url)
        while self.message().get("method") != "Page.loadEventFired":
            pass

    def run(self, script):
        result = self.call("Runtime.evaluate", expression=script, awaitPromise=True, returnByValue=True)
        if "exceptionDetails" in result:
            sys.exit(f"{script[:80]}: {result['exceptionDetails']}")
        return result["result"].get("value")

    def close(self):
        self.call("Browser.close")
        self.process.wait()


def pages(tarn, source, folder):
    """Names, files and actions."""
    def made(*words, code=0):
        result = subprocess.run([tarn, *words], cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
        if result.returncode != code:
            sys.exit(result.stderr.decode())
        return result.stdout

    def page(name, text):
        path = os.path.join(folder, name + ".html")
        with open(path, "wb") as file:
            file.write(text)
        return path

    made("encode", os.path.join(source, "examples/dp_tt_cfg.xml"), "-o", "tables.bin")
    message = json.loads(made("decode", "--json", "tables.bin"))
    classes = message["payload"]["lumo_data"][0]["agg_tc_list"]["tc_list"]
    classes[0]["src_prefix"], classes[1]["proto"] = "10.12.0.0/17", classes[1]["proto"] + 1
    classes.pop()
    with open(os.path.join(folder, "changed.json"), "w", encoding="utf-8") as file:
        json.dump(message, file)
    made("encode", "changed.json", "-o", "changed.bin")
    with open(os.path.join(folder, "tables.bin"), "rb") as file, open(os.path.join(folder, "cut.bin"), "wb") as cut:
        cut.write(file.read(1000))
    yield "view", page("view", made("view", "tables.bin")), VIEW
    yield "broken", page("broken", made("view", "cut.bin", code=2)), VIEW
    yield "difference", page("difference", made("view", "tables.bin", "changed.bin")), DIFFERENCE
    yield "schema", page("schema", made("schema", "--html")), SCHEMA


def main():
    tarn, chromium, axe, source = os.path.abspath(sys.argv[1]), sys.argv[2], sys.argv[3], os.path.abspath(sys.argv[4])
    with open(axe, encoding="utf-8") as file:
        rules = file.read()
    looks, wrong = 0, []
    with tempfile.TemporaryDirectory() as folder:
        browser = Browser(chromium, folder)
        for name, path, actions in pages(tarn, source, folder):
            for look, width, height in WINDOWS:
                browser.open("file://" + path, look, width, height)
                browser.run(rules + "; 0")
                for action in actions if look in ("light", "dark") else actions[:1]:
                    browser.run("{" + action + "} new Promise(requestAnimationFrame)")
                    looks += 1
                    where = f"{name}, {look}" + (f", after {action}" if action else "")
                    for violation in json.loads(browser.run(AXE)):
                        if violation["impact"] in ("serious", "critical"):
                            places = ["    " + " ".join(map(str, node["target"])) + ": "
                                      + node["failureSummary"].replace("\n", " ") for node in violation["nodes"][:5]]
                            wrong.append("\n".join([f"{where}: {violation['id']}: {violation['help']}, "
                                                    f"{len(violation['nodes'])} times", *places]))
                    outside = json.loads(browser.run(OUTSIDE))
                    if outside:
                        wrong.append(f"{where}: not inside the window: {', '.join(outside)}")
                    squeezed = json.loads(browser.run(SQUEEZED))
                    if squeezed:
                        wrong.append(f"{where}: no place for values: {', '.join(squeezed[:5])}")
                if look == "wide" and browser.run(FILLED) < 0.9:
                    wrong.append(f"{name}: the tree leaves more than a tenth of its width empty")
        browser.close()
    print("\n".join(wrong))
    print(f"{looks} looks, {len(wrong)} errors")
    sys.exit(1 if wrong else 0)


if __name__ == "__main__":
    main()
