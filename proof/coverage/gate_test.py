#!/usr/bin/python3
"""Tests of the gate, without a compiler's figures."""

import json
import tempfile
import unittest
from pathlib import Path

import definitions
import figures
import gate
import gaps


class Folder(unittest.TestCase):
    def setUp(self) -> None:
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)

    def write(self, name: str, text: str) -> Path:
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        return path


class GapsTest(Folder):
    def gaps(self, source: str, counts: dict[int, int]) -> list[str]:
        return [str(gap) for gap in gaps.gaps_in("a.cpp", source, counts)]

    def test_lines_that_stand_together_are_one_gap(self) -> None:
        source = "if (a)\n{\n  // why\n  one();\n  two();\n}\nthree();\n"
        self.assertEqual(["a.cpp:2: one(); two();"], self.gaps(source, {1: 5, 2: 0, 3: 0, 4: 0, 5: 0, 6: 0, 7: 5}))

    def test_a_line_that_ran_parts_two_gaps(self) -> None:
        self.assertEqual(["a.cpp:1: one();", "a.cpp:3: three();"],
                         self.gaps("one();\ntwo();\nthree();\n", {1: 0, 2: 1, 3: 0}))

    def test_brackets_alone_are_no_gap(self) -> None:
        self.assertEqual([], self.gaps("}\n", {1: 0}))

    def test_list_is_read_as_its_head_says(self) -> None:
        path = self.write("gaps.txt", "# head\n\na.cpp\n> one();\n> two();\nno machine\ndoes\n\nb.cpp\n> c();\nso\n")
        self.assertEqual(["a.cpp:3: one(); two();", "b.cpp:9: c();"], [str(gap) for gap in gaps.read_listed(path)])

    def test_entry_without_a_reason_is_refused(self) -> None:
        path = self.write("gaps.txt", "a.cpp\n> one();\n")
        with self.assertRaisesRegex(gaps.Unreadable, 'found "a.cpp", expected a file, .* then a reason'):
            gaps.read_listed(path)

    def test_entry_without_lines_is_refused(self) -> None:
        with self.assertRaises(gaps.Unreadable):
            gaps.read_listed(self.write("gaps.txt", "a.cpp\nbecause\n"))

    def test_listed_gap_is_no_complaint_wherever_it_stands(self) -> None:
        self.assertEqual([], gaps.complaints([gaps.Gap("a.cpp", ("b();",), 7)], [gaps.Gap("a.cpp", ("b();",), 1)], "l"))

    def test_every_gap_wants_an_entry_of_its_own(self) -> None:
        found = [gaps.Gap("a.cpp", ("b();",), 7), gaps.Gap("a.cpp", ("b();",), 9)]
        self.assertEqual(["a.cpp:9: no test runs: b();"],
                         gaps.complaints(found, [gaps.Gap("a.cpp", ("b();",), 1)], "l"))

    def test_entry_that_is_no_gap_is_a_complaint(self) -> None:
        self.assertEqual(["l:4: no longer a gap of a.cpp: b();"],
                         gaps.complaints([], [gaps.Gap("a.cpp", ("b();",), 4)], "l"))

    def test_gap_that_grew_is_another_gap(self) -> None:
        self.assertEqual(["a.cpp:7: no test runs: b(); c();", "l:1: no longer a gap of a.cpp: b();"],
                         gaps.complaints([gaps.Gap("a.cpp", ("b();", "c();"), 7)],
                                         [gaps.Gap("a.cpp", ("b();",), 1)], "l"))


class FiguresTest(Folder):
    @staticmethod
    def function(count: int, taken: list[int], decided: list[bool]) -> dict:
        """One of "return a && b;" in line 2."""
        return {
            "filenames": ["/p/a.h"],
            "count": count,
            "regions": [[1, 8, 3, 2, count, 0, 0, 0]],
            "branches": [[2, 8, 2, 9, taken[0], taken[1], 0, 0, 6], [2, 13, 2, 14, taken[2], taken[3], 0, 0, 6]],
            "mcdc_records": [[2, 8, 2, 14, 0, 5, decided]],
        }

    def read(self, *functions: dict) -> figures.FunctionFigures:
        export = {"data": [{"functions": list(functions)}]}
        return figures.read_functions(self.write("module.json", json.dumps(export)))["/p/a.h"]

    def test_instantiations_lie_over_each_other(self) -> None:
        both = self.read(self.function(0, [0, 0, 0, 0], [False, False]), self.function(2, [1, 1, 1, 0], [True, False]))
        self.assertEqual({(1, 8, 3, 2): 2}, both.calls)
        self.assertEqual(figures.Branch(1, 0), both.branches[(2, 13, 2, 14)])
        self.assertEqual([True, False], both.decided_alone[(2, 8, 2, 14)])

    def missing(self, function: dict) -> list[str]:
        file = str(self.write("a.h", "bool f()\n{ return a && b; }\n"))
        function["filenames"] = [file]
        function["regions"] = [[2, 1, 2, 20, function["count"], 0, 0, 0]]
        function["branches"] = [[2, 10, 2, 11, 1, 1, 0, 0, 6], [2, 15, 2, 16, *function["branches"][1][4:]],
                                *function["branches"][2:]]
        function["mcdc_records"] = [[2, 10, 2, 16, *function["mcdc_records"][0][4:]]]
        read = figures.read_functions(self.write("m.json", json.dumps({"data": [{"functions": [function]}]})))[file]
        sources = gate.Sources(self.folder)
        return [*gate.missing_functions(sources, file, read), *gate.missing_branches(sources, file, read),
                *gate.missing_decisions(sources, file, read)]

    def test_covered_function_lacks_nothing(self) -> None:
        self.assertEqual([], self.missing(self.function(3, [2, 1, 1, 1], [True, True])))

    def test_function_that_nobody_called_is_named(self) -> None:
        self.assertEqual(["a.h:2: function never called"], self.missing(self.function(0, [2, 1, 1, 1], [True, True])))

    def test_branch_is_named_by_its_condition(self) -> None:
        self.assertEqual(['a.h:2: branch: never false: "b"'],
                         self.missing(self.function(3, [2, 1, 2, 0], [True, True])))

    def test_condition_that_never_decided_is_named(self) -> None:
        self.assertEqual(['a.h:2: MC/DC: not shown to decide by itself: "b" in "a && b"'],
                         self.missing(self.function(3, [2, 1, 1, 1], [True, False])))

    def test_choice_within_a_decision_is_named(self) -> None:
        function = self.function(3, [2, 1, 1, 1], [True, True])
        function["branches"].append([2, 15, 2, 16, 1, 1, 0, 0, 4])
        self.assertEqual(['a.h:2: MC/DC: not measured, a choice within a decision: "b" in "a && b"'],
                         self.missing(function))


class DefinitionsTest(Folder):
    def definitions(self) -> list[str]:
        found = definitions.definitions_in([self.folder], [self.folder])
        return [f"{Path(one.file).name}:{one.body[0]} {one.name}" for one in found]

    def test_templates_count_without_an_instance(self) -> None:
        self.write("a.h", "template <typename T> T twice(T a)\n{\n  return a + a;\n}\n"
                          "template <typename T> struct S { T once(T a) { return a; } };\n")
        self.assertEqual(["a.h:2 twice", "a.h:5 once"], self.definitions())

    def test_bodies_count_and_declarations_do_not(self) -> None:
        self.write("a.h", "int f();\nstruct S\n{\n  S() = default;\n  S(int) {}\n};\n")
        self.write("a.cpp", '#include "a.h"\nint f() { return [] { return 1; }(); }\n')
        self.assertEqual(["a.cpp:2 f", "a.cpp:2 ", "a.h:5 S"], self.definitions())

    def test_source_that_does_not_compile_is_refused(self) -> None:
        self.write("a.cpp", "int f( {\n")
        with self.assertRaises(definitions.Unreadable):
            self.definitions()

    def test_function_without_counters_is_named(self) -> None:
        file = self.write("src/a.h", "template <typename T> T twice(T a) { return a + a; }\n")
        said = gate.missing_definitions(gate.Sources(self.folder), {}, [file.parent, self.folder / "platform"])
        self.assertEqual(["src/a.h:1: function that no test program has: twice"], said)


if __name__ == "__main__":
    unittest.main()
