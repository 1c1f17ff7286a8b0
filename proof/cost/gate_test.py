#!/usr/bin/python3
"""Tests of the gate, without a library."""

import tempfile
import unittest
from pathlib import Path

import gate

SECTIONS = "".join(f"{name:<20}{number:>6} 4096\n" for number, name in enumerate([*gate.SECTIONS, ".init_array"], 8))
RELOCATIONS = "Relocation section:\n0000000000003d90  0000000000000008 R_X86_64_RELATIVE 4b80\n"


class GateTest(unittest.TestCase):
    def dumps(self, *texts: str) -> gate.Costs:
        with tempfile.TemporaryDirectory() as folder:
            for number, text in enumerate(texts, 1):
                (Path(folder) / f"callgrind.out.{number}").write_text(text)
            return gate.instructions(Path(folder))

    def test_instructions_are_those_of_one_run(self) -> None:
        self.assertEqual({"instructions: stopDpd": 12, "instructions: stopDpd, failing last": 34},
                         self.dumps("desc: Trigger: Client Request: stopDpd/module x100\nsummary: 1234\n",
                                    "desc: Trigger: Client Request: stopDpd/failed last x10\ntotals: 340\n",
                                    "desc: Trigger: Client Request: stopDpd/bare x100\nsummary: 99\n",
                                    "desc: Trigger: Program termination\nsummary: 5\n"))

    def test_names_are_those_of_what_is_counted(self) -> None:
        self.assertEqual({"instructions: stopDpd", "instructions: stopDpd, failing"},
                         gate.wanted("stopDpd/module\nstopDpd/failed\nstopDpd/bare\nstart/kel-node/real_time\n"))

    def test_a_name_without_a_count_is_an_objection(self) -> None:
        names = {"instructions: a", "instructions: b"}
        self.assertEqual(["instructions: b: found no count, expected one"],
                         gate.incomplete({"instructions: a": 1, "bytes: file": 1}, names))

    def test_a_count_without_a_name_is_an_objection(self) -> None:
        self.assertEqual(["instructions: b: found a count of something that kel-bench does not tell"],
                         gate.incomplete({"instructions: a": 1, "instructions: b": 1}, {"instructions: a"}))

    def test_no_names_at_all_is_an_objection(self) -> None:
        self.assertEqual(["kel-bench: found no names, expected some"], gate.incomplete({"bytes: file": 1}, set()))

    def test_sizes_are_read(self) -> None:
        sizes = gate.sizes(SECTIONS, RELOCATIONS, 4711)
        self.assertEqual((8, 4711, 1, 2), (sizes["bytes: .text"], sizes["bytes: file"], sizes["relocations"],
                                          sizes["static initialisers"]))

    def test_a_missing_section_is_refused(self) -> None:
        for name in [*gate.SECTIONS, ".init_array"]:
            with self.subTest(name), self.assertRaisesRegex(gate.Unreadable, f"found no {name}, expected"):
                gate.sizes(SECTIONS.replace(f"{name} ", ".other "), RELOCATIONS, 1)

    def test_a_library_without_relocations_is_refused(self) -> None:
        with self.assertRaisesRegex(gate.Unreadable, "found no relocations"):
            gate.sizes(SECTIONS, "There are no relocations in this file.\n", 1)

    def test_what_was_listed_is_read_again(self) -> None:
        costs = {"bytes: file": 10, "instructions: print TiManageXpic": 7}
        self.assertEqual(("g++ 12\nvalgrind 3\n", costs), gate.read_list(gate.list_of("g++ 12\nvalgrind 3\n", costs)))

    def test_ten_in_a_hundred_more_is_no_objection_and_eleven_is_one(self) -> None:
        self.assertEqual([], gate.objections({"a": 110}, {"a": 100}))
        self.assertEqual(["a: found 111, expected at most 110"], gate.objections({"a": 111}, {"a": 100}))

    def test_less_is_no_objection(self) -> None:
        self.assertEqual([], gate.objections({"a": 1}, {"a": 100}))

    def test_what_is_new_or_gone_is_an_objection(self) -> None:
        self.assertEqual(["new: found no such line in proof/cost/baseline.txt, expected one",
                          "gone: found nothing of it, expected 5"], gate.objections({"new": 5}, {"gone": 5}))


if __name__ == "__main__":
    unittest.main()
