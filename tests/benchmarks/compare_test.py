#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""usage: compare_test.py TOOLS: tests the comparison of two revisions in that folder."""
import json
import sys
import unittest

sys.path.insert(0, sys.argv.pop(1))
sys.dont_write_bytecode = True
import bench_compare  # noqa: E402, found by the path above


def results(*runs):
    """runs: (name, wall, processor[, unit])"""
    return json.dumps({"benchmarks": [
        {"name": name, "run_type": "iteration", "real_time": wall, "cpu_time": processor, "time_unit": (*unit, "ms")[0]}
        for name, wall, processor, *unit in runs]})


class Reading(unittest.TestCase):
    def test_leaves_out_how_it_was_measured(self):
        read = bench_compare.read_round(results(("Open/bare/10/0/iterations:1/repeats:1/process_time", 3, 2)))
        self.assertEqual(read, {"Open/bare/10/0": (3, 2)})

    def test_takes_the_median_of_repetitions(self):
        read = bench_compare.read_round(results(("a", 1, 10), ("a", 9, 30), ("a", 2, 20)))
        self.assertEqual(read, {"a": (2, 20)})

    def test_knows_the_units(self):
        self.assertEqual(bench_compare.read_round(results(("a", 2, 1, "s"))), {"a": (2000, 1000)})

    def test_leaves_out_means_and_failures(self):
        text = json.dumps({"benchmarks": [
            {"name": "a_mean", "run_type": "aggregate", "real_time": 1, "cpu_time": 1, "time_unit": "ms"},
            {"name": "b", "run_type": "iteration", "error_occurred": True, "time_unit": "ms"}]})
        self.assertEqual(bench_compare.read_round(text), {})


class Comparing(unittest.TestCase):
    def rows(self, before, here):
        return [" ".join(row.split()) for row in bench_compare.table(before, here)[1:]]

    def test_compares_the_rounds_one_by_one(self):
        before = [{"a": (10, 1)}, {"a": (20, 1)}, {"a": (40, 1)}]
        here = [{"a": (5, 2)}, {"a": (10, 2)}, {"a": (20, 2)}]
        self.assertEqual(self.rows(before, here), [
            "a 20.000 10.000 x 0.50 [0.50 - 0.50] 1.000 2.000 x 2.00 [2.00 - 2.00]"])

    def test_shows_how_much_the_rounds_differ(self):
        before = [{"a": (10, 10)}] * 3
        here = [{"a": (5, 10)}, {"a": (10, 10)}, {"a": (20, 10)}]
        self.assertIn("x 1.00 [0.75 - 1.50]", self.rows(before, here)[0])

    def test_names_what_only_one_side_has(self):
        rows = self.rows([{"a": (1, 1), "old": (1, 1)}], [{"a": (1, 1), "new": (1, 1)}])
        self.assertEqual(rows[1:], ["old only before", "new only here"])

    def test_says_what_no_round_has_on_both_sides(self):
        rows = self.rows([{"a": (1, 1)}, {}], [{}, {"a": (1, 1)}])
        self.assertEqual(rows, ["a cannot be compared"])


unittest.main()
