"""The check of wording reports each fault where it is, and nothing else.  words_test.py WORDS_PY SCRATCH"""

import pathlib
import re
import runpy
import shutil
import subprocess
import sys

script, scratch = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2])
terms = list(runpy.run_path(str(script))["TERMS"])
shutil.rmtree(scratch, ignore_errors=True)
expected = set()


def write(name, lines):
    """Lines are pairs of text and the words that have to be reported in it."""
    path = scratch / name
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text("".join(text + "\n" for text, _ in lines))
    expected.update((name, number, words) for number, (_, found) in enumerate(lines, 1) for words in found)


short = " ".join(["word"] * 35) + "."
longer = " ".join(["word"] * 36) + "."

write("page.md", [(f"Text with {term}) in it.", [term]) for term in terms])
write("names.cpp", [("int turned_outwards, stands_in, untold;", []),
                    ("// A term over the end of a spare", ["spare byte"]),
                    ("// byte.", []),
                    ('"a text that was passed "', ["passed over"]),
                    ('    "over here"', []),
                    ("int told_once;", ["told"]),
                    ("#define OBSERVING Honour", ["observing", "Honour"])])
write("spelling.md", [("The behaviour, initialised in a neighbouring colour.",
                       ["behaviour", "initialised", "neighbouring", "colour"]),
                      ("It was analysed, cancelled and unrecognised; the centre is grey.",
                       ["analysed", "cancelled", "unrecognised", "centre", "grey"]),
                      ("The behavior is precise; analysis promises four hours of canceled, realistic exercise.", [])])
write("CHANGELOG.md", [("`rubbish` is now `garbage`.", []), ("They told it.", ["told"])])
numbers = [("/** Fails with 12, or (43) at times. 2 if there is none. */", ["12", "43", "2"]),
           ("/** 110: too late. Gives 22. */", ["110", "22"]),
           ("/** Fails with EINVAL (22) or EIDRM. Returns 43; 12 bytes, at most 43, 43 records. */", []),
           ("/** A 28-bit number, 0x12, 1.12, 112, C++17; state 2 for set, May 22, 2026. */", []),
           ("int number = 22; // of 22", ["22"])]
for header in "include/one.h", "include/mirk/two.h", "platform/include/three.hpp":
    write(header, numbers + [
        ("/** " + longer, ["a sentence of 36 words"]),
        ("    " + short + " " + short + " */", []),
        ("// " + " ".join(["word"] * 20), ["a sentence of 36 words"]),
        ("// " + " ".join(["word"] * 16) + ".", []),
        ("", []),
        ("/** " + " ".join(["word"] * 20), []),
        (" *", []),
        (" *  - " + " ".join(["word"] * 20), []),
        (" * | " + " ".join(["word"] * 20) + " |", []),
        (" * @name " + " ".join(["word"] * 20), []),
        (" */", [])])
write("core/inside.h", [(text, []) for text, _ in numbers] + [("// " + longer, [])])
write("tools/tarn/commands/help.cpp", [("add(\"fails with 110\"); // 110", ["110"]), ("sleep(110);", [])])

files = sorted({str(path.relative_to(scratch)) for path in scratch.rglob("*") if path.is_file()})
result = subprocess.run([script, *files], cwd=scratch, capture_output=True, text=True)
found = {(file, int(line), words) for file, line, words in
         re.findall(r"^(.*?):(\d+): (.*?)(?:; at most .*|: [^:]*)$", result.stdout, re.M)}
errors = [f"not reported: {one}" for one in sorted(expected - found)]
errors += [f"reported: {one}" for one in sorted(found - expected)]
if result.returncode != 1 or result.stderr:
    errors.append(f"exit status {result.returncode}\n{result.stderr}")
clean = [file for file in files if not any(name == file for name, _, _ in expected)]
if not clean or subprocess.run([script, *clean], cwd=scratch).returncode != 0:
    errors.append(f"not accepted: {clean}")
print("\n".join(errors))
sys.exit(1 if errors else 0)
