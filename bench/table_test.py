#!/usr/bin/python3
"""Tests of the table, without a benchmark's figures."""

import contextlib
import io
import json
import tempfile
import unittest
from pathlib import Path

import table


def entries() -> dict[tuple[str, str], dict]:
    """A run in which every bar is just held."""
    found: dict[tuple[str, str], dict] = {}

    def put(operation: str, way: str, time_ns: float, **counters: float) -> None:
        real = operation in ("start", "load", *table.LINES_A_SECOND)
        found[operation, way] = {"run_name": f"{operation}/{way}" + ("/repeats:300/real_time" if real else ""),
                                 "aggregate_name": "least", "time_unit": "ns",
                                 "real_time": time_ns if real else -1, "cpu_time": -1 if real else time_ns, **counters}

    for operation in table.OPERATIONS:
        for way in ("module", "bare", "failed"):
            put(operation, way, 1000, allocations=0, bytes=0)
    for lines in (0, 14, 42, 1000):
        put(f"getCtStatus:{lines}", "module", 100 + 10 * lines, allocations=3, bytes=90)
    put("load", "with the library", 700)
    put("load", "without", 500)
    for name, least in table.LINES_A_SECOND.items():
        put(name, "kel-node", 1e9, lines=least, memory_KiB=table.MEMORY_KIB)
        put(name, "sqlite3", 1e9, lines=least, memory_KiB=1)
    for operation, way, other, bar in table.BARS:
        if (operation, way) not in found:
            put(operation, way, 1000, allocations=0, bytes=0)
        if (operation, other) not in found:
            put(operation, other, 1000)
    for operation, way, other, bar in table.BARS:
        one, base = found[operation, way], found[operation, other]
        key = "real_time" if one["real_time"] >= 0 else "cpu_time"
        if other == "module":
            one[key] = base[key] * bar
        else:
            base[key] = one[key] / bar
    return found


class TableTest(unittest.TestCase):
    def said(self, found: dict[tuple[str, str], dict]) -> list[str]:
        """What goes to standard error; the exit status has to agree."""
        with tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "result.json"
            path.write_text(json.dumps({"benchmarks": list(found.values())}))
            said, self.shown = io.StringIO(), io.StringIO()
            with contextlib.redirect_stderr(said), contextlib.redirect_stdout(self.shown):
                status = table.main(path)
        self.assertEqual(1 if said.getvalue() else 0, status)
        return said.getvalue().splitlines()

    def test_bars_that_are_just_held_are_no_objection(self) -> None:
        self.assertEqual([], self.said(entries()))
        self.assertNotIn("MISSED", self.shown.getvalue())

    def test_each_bar_is_missed_by_itself(self) -> None:
        for operation, way, other, bar in table.BARS:
            found = entries()
            key = "real_time" if found[operation, other]["real_time"] >= 0 else "cpu_time"
            found[operation, way][key] = found[operation, other][key] * bar * 1.02
            with self.subTest(operation=operation, way=way):
                self.assertIn(f"bench: {operation}: {way} / {other}: found {bar * 1.02:.2f}, expected {bar:.2f}",
                              self.said(found))

    def test_each_figure_that_is_missing_is_told(self) -> None:
        for operation, way in entries():
            found = entries()
            del found[operation, way]
            with self.subTest(operation=operation, way=way):
                self.assertEqual([f"bench: {operation}: {way}: found no figure, expected one"], self.said(found))

    def test_an_allocation_of_the_predistortion_is_missed(self) -> None:
        found = entries()
        found["stopDpd", "module"]["allocations"] = 1
        self.assertEqual(["bench: stopDpd: allocations: found 1, expected 0"], self.said(found))

    def test_counting_nothing_at_all_is_missed(self) -> None:
        found = entries()
        found["getCtStatus:42", "module"]["allocations"] = 0
        self.assertEqual(["bench: getCtStatus:42: allocations: found 0, expected 1"], self.said(found))

    def test_lines_that_grow_dearer_are_missed(self) -> None:
        found = entries()
        found["getCtStatus:1000", "module"]["cpu_time"] = 100 + 11.2 * 1000
        self.assertEqual(["bench: getCtStatus: a line of 1000 against a line of 42, difference: found 0.12, "
                          "expected 0.10"], self.said(found))

    def test_a_slow_node_and_a_large_one_are_missed(self) -> None:
        found = entries()
        found["getCtStatus lines", "kel-node"].update(lines=19_999, memory_KiB=16 * 1024)
        self.assertEqual(["bench: getCtStatus lines: kel-node: memory (KiB): found 16384, expected 16383",
                          "bench: getCtStatus lines: kel-node, a second: found 19999, expected 20000"],
                         self.said(found))

    def test_load_time_is_the_difference(self) -> None:
        self.said(entries())
        self.assertRegex(self.shown.getvalue(), r"load: the library alone, the difference +200\.0 ns\n")

    def test_figures_of_all_repetitions_are_left_out(self) -> None:
        found = entries()
        found["stopDpd", "module"]["aggregate_name"] = "mean"
        self.assertEqual(["bench: stopDpd: module: found no figure, expected one"], self.said(found))


if __name__ == "__main__":
    unittest.main()
