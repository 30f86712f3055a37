"""The evaluation of instruction counts: profiles are read as callgrind writes them, and dearer operations are reported."""

import importlib.machinery
import importlib.util
import pathlib
import unittest

loader = importlib.machinery.SourceFileLoader("cost", str(pathlib.Path(__file__).parents[2] / "bench" / "cost"))
cost = importlib.util.module_from_spec(importlib.util.spec_from_loader("cost", loader))
loader.exec_module(cost)

PROFILE = """# callgrind format
desc: Trigger: Client Request: encode/deep/library

positions: line
events: Ir
summary: 1200

fn=main
cfn=malloc
calls=3 0
0 100
cfn=work
calls=7 0
0 900
fn=work
cfn=operator new(unsigned long)
calls=5 0
0 50
fn=operator new(unsigned long)
cfn=malloc
calls=5 0
0 40
"""

GOLDEN = {"encode/deep/library": [1000, 2.0]}


class Profile(unittest.TestCase):
    def test_instructions_and_direct_calls_of_allocating_functions_are_read(self):
        self.assertEqual(cost.read_profile(PROFILE), ("encode/deep/library", 1200, 8))

    def test_the_profile_of_the_whole_program_is_ignored(self):
        self.assertIsNone(cost.read_profile("desc: Trigger: Program termination\nsummary: 5\n"))

    def test_a_profile_without_a_total_is_an_error(self):
        with self.assertRaises(cost.CostError):
            cost.read_profile("desc: Trigger: Client Request: encode/deep/library\n")

    def test_misses_of_the_last_cache_are_reads_and_writes(self):
        text = "events: Ir Dr Dw I1mr D1mr D1mw ILmr DLmr DLmw\nsummary: 90 20 10 9 8 7 6 5 4\n"
        self.assertEqual(cost.read_misses(text), 9)
        self.assertEqual(cost.read_misses(text[:-2]), 5)


class Tables(unittest.TestCase):
    def test_workloads_are_in_their_order_and_numbers_of_elements_in_that_of_numbers(self):
        costs = {"encode/flat/library": [1, 0], "encode/deep/library": [2, 0],
                 "look-ups/10000 in all/library": [4, 0], "look-ups/3000 in all/library": [3, 0]}
        rows = cost.rows_of(costs, ["deep", "flat", "wide"])
        self.assertEqual(rows["encode"], (["deep", "flat", "wide"], {"library": [[2, 0], [1, 0], None]}))
        self.assertEqual(rows["look-ups"], (["3000 in all", "10000 in all"], {"library": [[3, 0], [4, 0]]}))


class Comparison(unittest.TestCase):
    def worse(self, name, *costs):
        return cost.compare({name: list(costs)}, GOLDEN)[0]

    def test_two_percent_more_are_accepted_and_another_instruction_is_not(self):
        self.assertEqual(self.worse("encode/deep/library", 1020, 2.0), [])
        self.assertEqual(len(self.worse("encode/deep/library", 1021, 2.0)), 1)

    def test_another_allocation_is_reported(self):
        self.assertEqual(len(self.worse("encode/deep/library", 1000, 3.0)), 1)

    def test_allocations_of_a_handle_that_tracks_are_not_compared(self):
        golden = {"encode/deep/library, tracking": [1000, 2.0]}
        worse, _ = cost.compare({"encode/deep/library, tracking": [1000, 3.0]}, golden)
        self.assertEqual(worse, [])

    def test_what_is_missing_on_either_side_is_reported(self):
        self.assertEqual(len(self.worse("decode/deep/library", 1000, 2.0)), 2)

    def test_other_serializers_are_not_compared(self):
        worse, better = cost.compare({"encode/deep/protobuf": [9999, 1.0], "encode/deep/library": [900, 2.0]}, GOLDEN)
        self.assertEqual((len(worse), len(better)), (0, 1))


if __name__ == "__main__":
    unittest.main()
