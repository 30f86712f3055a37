#!/usr/bin/env python3
"""How long pages of large frames keep a browser busy.

usage: page.py TARN CHROMIUM [BYTES]

Makes the pages of a frame, and of the difference of two, of 21.6 MB or BYTES each. Prints the time until a page can be
used, and the longest time for which it does not react while keys are typed into the search, and while its tree is
scrolled from end to end.
"""
import os
import pathlib
import subprocess
import sys
import tempfile
import time

sys.path.append(str(pathlib.Path(__file__).parents[1] / "tests" / "pages"))
from accessible import SEARCH, Browser  # pylint: disable=wrong-import-position

TYPE = "dp-tt-cfg"
WORDS = "prefix", "10.12", "tc_list", "424", "no such text"
# Messages to itself arrive when nothing else is done, so the time between two of them is that of what was done.
WATCH = """{const own = new MessageChannel();
let last = performance.now();
globalThis.longest = 0;
own.port2.onmessage = () => {
  const now = performance.now();
  longest = Math.max(longest, now - last);
  last = now;
  own.port1.postMessage(0);
};
own.port1.postMessage(0);}"""
UNFOLD = """{const visit = (node, depth) => {
  if (depth === 0 || !sizeOf(node)) return;
  reveal(node);
  unfold(node);
  for (let i = 0; i < Math.min(sizeOf(node), 20); ++i) visit(childAt(node, i), depth - 1);
};
visit(nodeOf('0:payload'), 5);}"""
SCROLL = """(async () => {
  const tree = document.getElementById('tree'), steps = 100;
  for (let i = 0; i <= steps; ++i) {
    tree.scrollTop = (tree.scrollHeight - tree.clientHeight) * i / steps;
    await new Promise(done => requestAnimationFrame(() => setTimeout(done)));
  }
  return document.querySelectorAll('.row').length;
})()"""


def longest(browser, work):
    """Milliseconds for which the page did not react."""
    browser.run("globalThis.longest = 0")
    work()
    time.sleep(0.1)
    return browser.run("longest")


def type_words(browser):
    for word in WORDS:
        browser.run("{const s = document.getElementById('search'); s.value = ''; s.focus();}")
        for letter in word:
            browser.call("Input.insertText", text=letter)
            time.sleep(0.1)
        while browser.run("scan !== null"):
            time.sleep(0.05)


def measure(browser, path):
    begin = time.monotonic()
    browser.open(path.as_uri(), "light", 1280, 800)
    if browser.run("document.querySelectorAll('.row').length") == 0:
        sys.exit(f"{path}: no rows")
    usable = time.monotonic() - begin
    browser.run(WATCH)
    typing = longest(browser, lambda: type_words(browser))
    browser.run("{" + SEARCH % "" + "}" + UNFOLD)
    return usable, typing, longest(browser, lambda: browser.run(SCROLL))


def main():
    tarn, chromium, size = os.path.abspath(sys.argv[1]), sys.argv[2], sys.argv[3] if len(sys.argv) > 3 else "21600000"
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        for seed in "1", "2":
            subprocess.run([tarn, "generate", TYPE, "--form", "frames", "--size", size, "--seed", seed,
                            "-o", folder / seed], check=True)
        browser = Browser(chromium, folder)
        print(f"{'':27}{'seconds until usable':>21}{'ms for a key':>14}{'ms to scroll':>14}")
        for what, files in ("one frame", ["1"]), ("difference of two", ["1", "2"]):
            page = folder / "page.html"
            with open(page, "wb") as output:
                subprocess.run([tarn, "view", *(folder / file for file in files)], check=True, stdout=output)
            usable, typing, scrolling = measure(browser, page)
            print(f"{what:27}{usable:21.2f}{typing:14.0f}{scrolling:14.0f}", flush=True)
        browser.close()


if __name__ == "__main__":
    main()
