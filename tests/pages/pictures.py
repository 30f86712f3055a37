#!/usr/bin/env python3
"""The pictures of README.md: a page and a terminal, both from the program itself.

usage: pictures.py TARN CHROMIUM SOURCE [--renew]

Each picture contains the text that it shows. Without --renew, compares this text with what the program shows now;
pixels depend on fonts and browsers.
"""
import html
import html.parser
import os
import re
import struct
import subprocess
import sys
import tempfile
import zlib

COLORS = {"31": "#f08d86", "32": "#7ccf9c", "33": "#dfb566", "34": "#7db4f5", "90": "#93a0ac"}
TERMINAL = """<!DOCTYPE html><meta charset="utf-8"><title>terminal</title>
<style>body { margin: 0; padding: 14px 18px; background: #14181c; color: #dde3e8; }
pre { margin: 0; font: 13px/18px "DejaVu Sans Mono", monospace; } b { color: #ffffff; }</style><pre>"""
# What a user types. The first column of a dump is enough to see what it is.
COMMANDS = [
    "tarn rows tc tables.bin --columns path,id,src_prefix,dst_prefix,proto --limit 4",
    "tarn diff tables.bin changed.bin",
    "tarn dissect debug.bin | head -n 16",
]


class Visible(html.parser.HTMLParser):
    """The text of a page, a line for each element that has some."""

    def __init__(self):
        super().__init__()
        self.hidden, self.lines = 0, []

    def handle_starttag(self, tag, attributes):
        self.hidden += tag in ("script", "style")

    def handle_endtag(self, tag):
        self.hidden -= tag in ("script", "style")

    def handle_data(self, data):
        if not self.hidden and data.strip():
            self.lines.append(data.strip())


def text_of(page):
    visible = Visible()
    visible.feed(page)
    return "\n".join(visible.lines)


def colored(text):
    """Escape sequences of a terminal as elements."""
    parts = re.split("\x1b\\[(\\d+)m", text)
    page = html.escape(parts[0])
    for code, words in zip(parts[1::2], parts[2::2]):
        color = COLORS.get(code)
        page += f'<span style="color:{color}">{html.escape(words)}</span>' if color else html.escape(words)
    return page


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def chunks_of(png):
    at = 8
    while at < len(png):
        size = struct.unpack(">I", png[at:at + 4])[0]
        yield png[at + 4:at + 8], png[at + 8:at + 8 + size]
        at += 12 + size


def with_text(png, text):
    """The picture with its text, before the end."""
    chunks = [chunk(kind, data) for kind, data in chunks_of(png)]
    comment = chunk(b"zTXt", b"Comment\0\0" + zlib.compress(text.encode(), 9))
    return png[:8] + b"".join(chunks[:-1] + [comment] + chunks[-1:])


def text_in(path):
    if not os.path.exists(path):
        return None
    with open(path, "rb") as file:
        for kind, data in chunks_of(file.read()):
            if kind == b"zTXt" and data.startswith(b"Comment\0\0"):
                return zlib.decompress(data[9:]).decode()
    return None


def main():
    tarn, chromium, source = os.path.abspath(sys.argv[1]), sys.argv[2], os.path.abspath(sys.argv[3])
    renew = "--renew" in sys.argv[4:]
    with tempfile.TemporaryDirectory() as folder:
        os.symlink(tarn, os.path.join(folder, "tarn"))
        environment = dict(os.environ, PATH=folder + ":" + os.environ["PATH"], CLICOLOR_FORCE="1")
        environment.pop("NO_COLOR", None)

        def shell(command):
            return subprocess.run(["bash", "-c", command], cwd=folder, env=environment, stdout=subprocess.PIPE,
                                  text=True, check=False).stdout

        def browser(*words):
            flags = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run",
                     "--hide-scrollbars", "--user-data-dir=" + os.path.join(folder, "profile")]
            return subprocess.run([chromium, *flags, *words], cwd=folder, stdout=subprocess.PIPE,
                                  stderr=subprocess.DEVNULL, text=True, check=True).stdout

        with open(os.path.join(source, "examples/dp_tt_cfg.xml"), encoding="utf-8") as file:
            tables = file.read()
        with open(os.path.join(folder, "tables.xml"), "w", encoding="utf-8") as file:
            file.write(tables)
        with open(os.path.join(folder, "changed.xml"), "w", encoding="utf-8") as file:
            file.write(re.sub("<proto>6</proto>", "<proto>17</proto>", tables, count=1))
        shell("tarn encode tables.xml --bundle dp-tt-cfg -o tables.bin; tarn encode changed.xml --bundle dp-tt-cfg -o "
              f"changed.bin; tarn encode {source}/examples/cl_debug.xml -o debug.bin; tarn view tables.bin -o view.html")
        terminal = TERMINAL
        for command in COMMANDS:
            terminal += f"<b>$ {html.escape(command)}</b>\n{colored(shell(command))}\n"
        with open(os.path.join(folder, "terminal.html"), "w", encoding="utf-8") as file:
            file.write(terminal.rstrip() + "</pre>\n")

        selected = "#1:payload.lumo_data[0].agg_tc_list.tc_list[0].src_prefix"
        failed = False
        pictures = (("view", "view.html" + selected, "1120,500"), ("terminal", "terminal.html", "1040,492"))
        for name, address, size in pictures:
            url = "file://" + os.path.join(folder, address)
            # How many lines of bytes are drawn depends on the height of fonts.
            text = text_of(browser("--window-size=" + size, "--dump-dom", url).split('<section id="bytes"')[0])
            path = os.path.join(source, "docs/pictures", name + ".png")
            if renew:
                browser("--window-size=" + size, "--screenshot=" + os.path.join(folder, "picture.png"), url)
                with open(os.path.join(folder, "picture.png"), "rb") as file:
                    picture = with_text(file.read(), text)
                with open(path, "wb") as file:
                    file.write(picture)
                print(f"{path}: {len(picture)} bytes")
            elif text_in(path) != text:
                print(f"{path} does not show what the program shows now: ./check pictures")
                failed = True
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
