"""What llvm-cov exports, with the instantiations of a function laid over each other: the text stands once, and is
covered where any of them is."""

import json
from collections import defaultdict
from dataclasses import dataclass, field
from pathlib import Path

Place = tuple[int, int, int, int]  # line and column of the first character, line and column after the last one

MCDC_CONDITION = 6  # the kind of a branch that is a condition of a decision


@dataclass
class Branch:
    """How often a condition was true, and how often false."""

    times_true: int = 0
    times_false: int = 0


@dataclass
class FunctionFigures:
    """The functions, branches and decisions of one file, by where they stand."""

    calls: dict[Place, int] = field(default_factory=lambda: defaultdict(int))
    measured: set[tuple[int, int]] = field(default_factory=set)  # where a counted stretch of text begins
    branches: dict[Place, Branch] = field(default_factory=lambda: defaultdict(Branch))
    conditions: dict[Place, set[Place]] = field(default_factory=lambda: defaultdict(set))
    inner_choices: dict[Place, set[Place]] = field(default_factory=lambda: defaultdict(set))  # as in a && (b ? c : d)
    decided_alone: dict[Place, list[bool]] = field(default_factory=dict)

    def conditions_of(self, decision: Place) -> list[Place]:
        """The conditions of a decision from left to right, which is how `decided_alone` counts them."""
        return sorted(self.conditions[decision])


def read_functions(path: Path) -> dict[str, FunctionFigures]:
    """The functions of `llvm-cov export`, by file."""
    files: dict[str, FunctionFigures] = defaultdict(FunctionFigures)
    for function in json.loads(path.read_text())["data"][0]["functions"]:
        names = function["filenames"]
        first = function["regions"][0]
        file = names[first[5]]
        files[file].calls[tuple(first[:4])] += function["count"]
        for region in function["regions"]:
            files[names[region[5]]].measured.add(tuple(region[:2]))
        for branch in function["branches"]:
            _add_branch(files[names[branch[6]]], branch)
        for decision in function["mcdc_records"]:
            _add_decision(files[file], decision, function["branches"])
    return files


def _add_branch(figures: FunctionFigures, branch: list[int]) -> None:
    counted = figures.branches[tuple(branch[:4])]
    counted.times_true += branch[4]
    counted.times_false += branch[5]


def _add_decision(figures: FunctionFigures, decision: list, branches: list[list[int]]) -> None:
    place: Place = tuple(decision[:4])
    before = figures.decided_alone.get(place, [False] * len(decision[6]))
    figures.decided_alone[place] = [one or other for one, other in zip(before, decision[6])]
    for branch in branches:
        if place[:2] <= tuple(branch[:2]) and tuple(branch[2:4]) <= place[2:]:
            kind = figures.conditions if branch[8] == MCDC_CONDITION else figures.inner_choices
            kind[place].add(tuple(branch[:4]))


def read_lines(path: Path) -> dict[str, dict[int, int]]:
    """How often each line with code ran, by file, from `llvm-cov export -format=lcov`."""
    files: dict[str, dict[int, int]] = {}
    for record in path.read_text().splitlines():
        key, _, value = record.partition(":")
        if key == "SF":
            lines = files.setdefault(value, {})
        elif key == "DA":
            number, count = value.split(",")[:2]
            lines[int(number)] = int(count)
    return files
