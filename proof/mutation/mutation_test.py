"""Tests of the mutation testing itself: what is found, and how it is judged."""

from __future__ import annotations

import tempfile
import unittest
from pathlib import Path

from mutant import Mutant
from mutants import find_mutants
from survivors import ListError, Result, figure, read_list, stale, too_few_killed, unlisted

SOURCE = """
enum class Mode { Slow = 0, Fast = 1 };
struct Record { int first = 7; bool second{}; };
inline const char* name(Mode mode, int count)
{
    if (count > 2)
    {
        return "ten\\n";
    }
    return mode == Mode::Fast ? "a" :
        "b";
}
"""


class FileCase(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)

    def mutants(self, source: str) -> list[Mutant]:
        (self.root / "x.h").write_text(source)
        return find_mutants(self.root, "x.h", ["-std=c++20"])


class FindingTest(FileCase):
    def edits(self, kind: str) -> set[tuple[str, str]]:
        return {(mutant.before, mutant.after) for mutant in self.mutants(SOURCE) if mutant.edit.kind == kind}

    def test_every_kind_is_found_where_it_stands(self) -> None:
        self.assertEqual(self.edits("number"), {("7", "8"), ("7", "6"), ("2", "3"), ("2", "1"), ("0", "1"), ("0", "-1"),
                                                ("1", "2"), ("1", "0")})
        self.assertEqual(self.edits("operator"), {(">", ">="), (">", "<="), ("==", "!=")})
        self.assertEqual(self.edits("text"), {('"ten\\n"', '"teo\\n"'), ('"ten\\n"', '""'), ('"a"', '"b"'),
                                              ('"a"', '""'), ('"b"', '"c"'), ('"b"', '""')})
        self.assertEqual(self.edits("enumerator"), {("Fast", "Slow")})
        self.assertEqual(self.edits("enumerators swapped"), {("Slow = 0, Fast", "Fast = 0, Slow")})
        self.assertEqual(self.edits("members swapped"),
                         {("int first = 7; bool second{};", "bool second{}; int first = 7;")})
        self.assertEqual(self.edits("initialiser"), {("= 7", ""), ("{}", ""), ("{}", "{1}")})
        self.assertEqual(self.edits("return removed"), {('return "ten\\n"', "")})
        self.assertIn(("count > 2", "!(count > 2)"), self.edits("condition"))

    def test_swapped_functions_keep_their_bodies(self) -> None:
        source = "struct Base { virtual ~Base() = default; virtual int first() { return 1; } };\n"
        swapped = [mutant for mutant in self.mutants(source) if mutant.edit.kind == "virtual functions swapped"]
        self.assertEqual([mutant.applied_to(source.encode()).decode() for mutant in swapped],
                         ["struct Base { virtual int first() { return 1; } virtual ~Base() = default; };\n"])

    def test_alignment_is_removed_whole(self) -> None:
        mutants = self.mutants("struct alignas(int) Record { char first[4]; };\n")
        self.assertIn(("alignas(int)", ""), [(mutant.before, mutant.after) for mutant in mutants])

    def test_no_mutant_changes_the_number_of_lines(self) -> None:
        for mutant in self.mutants(SOURCE):
            self.assertEqual(mutant.applied_to(SOURCE.encode()).count(b"\n"), SOURCE.count("\n"), mutant.key)

    def test_key_stays_when_the_line_moves(self) -> None:
        before = [mutant.key for mutant in self.mutants(SOURCE)]
        self.assertEqual(before, [mutant.key for mutant in self.mutants("\nint other;\n" + SOURCE)])
        self.assertEqual(before, [mutant.key for mutant in self.mutants(SOURCE.replace(";\n", "; // why\n"))])

    def test_mutants_that_read_alike_have_keys_of_their_own(self) -> None:
        keys = [mutant.key for mutant in self.mutants("inline int sum() { return 1 + 1; }\n")]
        self.assertEqual(len(keys), len(set(keys)))

    def test_only_bodies_and_initialisers_are_emitted(self) -> None:
        emitters = {mutant.edit.kind: mutant.emitter for mutant in self.mutants(SOURCE)}
        self.assertEqual(emitters["text"], "auto* emitted = &::name;")
        self.assertEqual(emitters["initialiser"], "void emitted() { (void)::Record(); }")
        self.assertIsNone(emitters["members swapped"])

    def test_size_of_a_member_is_no_initialiser(self) -> None:
        mutants = self.mutants("struct Record { int numbers[5]{}; };\n")
        self.assertEqual({mutant.emitter for mutant in mutants if mutant.edit.kind == "number"}, {None})


class JudgementTest(FileCase):
    def results(self, outcomes: list[str]) -> list[Result]:
        mutants = self.mutants("".join(f"inline bool no{number}() {{ return 1 > 2; }}\n" for number in range(20)))
        return [Result(mutant, outcome) for mutant, outcome in zip(mutants, outcomes)]

    def test_killed_ones_are_no_objection(self) -> None:
        results = self.results(["killed by a test"] * 40)
        self.assertEqual(unlisted(results, {}) + stale(results, {}, ["x.h"]) + too_few_killed(results), [])

    def test_survivor_has_to_be_listed(self) -> None:
        results = self.results(["killed by a test"] * 40 + ["survived"])
        self.assertIn("found a survivor that is not listed", "".join(unlisted(results, {})))
        self.assertEqual(unlisted(results, {results[-1].mutant.key: "why"}), [])

    def test_listed_one_has_to_survive(self) -> None:
        results = self.results(["killed by a test"] * 40)
        self.assertIn("is killed by a test", "".join(stale(results, {results[0].mutant.key: "why"}, ["x.h"])))
        for file in ("x.h", "no such file"):
            self.assertIn("is gone", "".join(stale(results, {(f"{file}: number: 8 -> 9", "a line"): "why"}, ["x.h"])))

    def test_listed_one_of_another_file_is_not_looked_at(self) -> None:
        other = (f"{Path(__file__)}: number: 8 -> 9", "a line")
        self.assertEqual(stale(self.results(["killed by a test"]), {other: "why"}, ["x.h"]), [])

    def test_too_many_survivors_fail_though_listed(self) -> None:
        self.assertEqual(too_few_killed(self.results(["killed by a test"] * 30 + ["survived"])),
                         ["found 96.8 % killed, expected at least 97.0 %"])

    def test_mutants_that_nobody_could_kill_prove_nothing(self) -> None:
        for results in ([], self.results(["does not compile"] * 40)):
            for least in (0.0, 97.0):
                self.assertEqual(too_few_killed(results, least), ["found no mutant that compiles, expected some"])

    def test_what_does_not_compile_counts_for_nobody(self) -> None:
        results = self.results(["killed by a test", "does not compile", "same code"])
        self.assertEqual(figure(results), "1 of 1 mutants killed (100.0 %); besides, 1 compile to the same code and "
                                          "1 do not compile")


class ListTest(FileCase):
    def read(self, text: str) -> dict[tuple[str, str], str]:
        (self.root / "list.txt").write_text(text)
        return read_list(self.root / "list.txt")

    def test_paragraph_is_a_mutant(self) -> None:
        self.assertEqual(self.read("# a remark\n\nx.h: number: 1 -> 2\nint a = 1;\nbecause: nobody\nlooks\n"),
                         {("x.h: number: 1 -> 2", "int a = 1;"): "nobody looks"})

    def test_entry_without_a_reason_is_refused(self) -> None:
        self.assertRaises(ListError, self.read, "x.h: number: 1 -> 2\nint a = 1;\n")

    def test_entry_that_stands_twice_is_refused(self) -> None:
        self.assertRaises(ListError, self.read, "x.h: a -> b\nline\nbecause: x\n\nx.h: a -> b\nline\nbecause: y\n")


if __name__ == "__main__":
    unittest.main()
