"""The measurement of the tool runs on a small input and prints time and memory of each command.  tool_test.py TARN"""

import pathlib
import re
import subprocess
import sys
import unittest

BENCH = pathlib.Path(__file__).parents[2] / "bench" / "tool"
COMMANDS = ("decode --text", "decode --xml", "decode --json", "encode JSON", "encode XML", "dissect", "dissect --json",
            "diff of equal files", "rows", "export", "validate", "frames() in Python", "generate",
            "one frame: dissect --json", "one frame: view")
TARN = sys.argv.pop()


def measured(*words):
    return subprocess.run([BENCH, TARN, "--bundles", "2", "--bundle-size", "20000", "--rounds", "1", *words], check=True,
                          capture_output=True, text=True).stdout


class Tool(unittest.TestCase):
    def test_each_command_has_time_and_memory(self):
        table = measured()
        for name in COMMANDS:
            self.assertRegex(table, rf"(?m)^{re.escape(name)} +\d+\.\d\d +\d+( |$)")

    def test_other_programs_have_time_and_memory_and_a_ratio(self):
        self.assertRegex(measured("decode --json"),
                         r"(?m)^decode --json +\d+\.\d\d +\d+ +python3 json +\d+\.\d\d +\d+ +\d+\.\d\d$")

    def test_rows_are_chosen_by_how_their_names_begin(self):
        self.assertEqual(re.findall(r"(?m)^(\w.*?)  +\d", measured("diff", "gener")), ["diff of equal files", "generate"])

    def test_commands_can_be_measured_alone(self):
        self.assertRegex(measured("--alone", "decode --json"), r"(?m)^decode --json +\d+\.\d\d +\d+$")


unittest.main()
