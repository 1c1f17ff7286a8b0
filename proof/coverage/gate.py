#!/usr/bin/python3
"""Holds what the tests cover against what they have to cover.

Usage: proof/coverage/gate.py FOLDER, from the project's root folder. FOLDER has module.json, module.lcov and node.lcov,
as llvm-cov exports them. Prints the figure; what is missing goes to standard error, a line each, and the status is 1.
"""

import sys
from pathlib import Path

import definitions
import gaps
from figures import FunctionFigures, Place, read_functions, read_lines

LIST = "proof/coverage/gaps.txt"
NODE_PERCENT = 95.0


class Sources:
    """The project's texts, to quote from."""

    def __init__(self, root: Path) -> None:
        self._root = root

    def name(self, file: str) -> str:
        return str(Path(file).relative_to(self._root))

    def quote(self, file: str, place: Place) -> str:
        """The text of a place in one line."""
        first_line, first_column, last_line, last_column = place
        lines = Path(file).read_text().splitlines()[first_line - 1 : last_line]
        lines[-1] = lines[-1][: last_column - 1]
        lines[0] = lines[0][first_column - 1 :]
        return " ".join(" ".join(lines).split())


def missing_functions(sources: Sources, file: str, figures: FunctionFigures) -> list[str]:
    return [
        f"{sources.name(file)}:{place[0]}: function never called"
        for place, count in sorted(figures.calls.items())
        if count == 0
    ]


def missing_branches(sources: Sources, file: str, figures: FunctionFigures) -> list[str]:
    said = []
    for place, branch in sorted(figures.branches.items()):
        for times, value in ((branch.times_true, "true"), (branch.times_false, "false")):
            if times == 0:
                said.append(f'{sources.name(file)}:{place[0]}: branch: never {value}: "{sources.quote(file, place)}"')
    return said


def missing_decisions(sources: Sources, file: str, figures: FunctionFigures) -> list[str]:
    said = []
    for decision, decided in sorted(figures.decided_alone.items()):
        for condition, alone in zip(figures.conditions_of(decision), decided, strict=True):
            if not alone:
                said.append(
                    f'{sources.name(file)}:{condition[0]}: MC/DC: not shown to decide by itself: '
                    f'"{sources.quote(file, condition)}" in "{sources.quote(file, decision)}"'
                )
    for decision, choices in sorted(figures.inner_choices.items()):
        said += [
            f'{sources.name(file)}:{choice[0]}: MC/DC: not measured, a choice within a decision: '
            f'"{sources.quote(file, choice)}" in "{sources.quote(file, decision)}"'
            for choice in sorted(choices)
        ]
    return said


def missing_definitions(sources: Sources, functions: dict[str, FunctionFigures], folders: list[Path]) -> list[str]:
    """Functions that no counter was made for."""
    found = definitions.definitions_in(folders, [folders[0] / "Device/KelDebugCmd", folders[1]])
    return [
        f"{sources.name(one.file)}:{one.body[0]}: function that no test program has: {one.name or 'lambda'}"
        for one in found
        if one.file not in functions or one.body not in functions[one.file].measured
    ]


def gaps_of(sources: Sources, lines: dict[str, dict[int, int]]) -> list[gaps.Gap]:
    return [
        gap
        for file in sorted(lines)
        for gap in gaps.gaps_in(sources.name(file), Path(file).read_text(), lines[file])
    ]


def below(files: dict, folders: list[Path]) -> dict:
    return {file: files[file] for file in sorted(files) if file.startswith(tuple(f"{folder}/" for folder in folders))}


def check_module(root: Path, folder: Path) -> tuple[str, list[str]]:
    """The figure of module and records, and what is missing from 100 %."""
    sources = Sources(root)
    folders = [root / "src", root / "platform"]
    functions: dict[str, FunctionFigures] = below(read_functions(folder / "module.json"), folders)
    lines = below(read_lines(folder / "module.lcov"), folders)

    missing = [f"{gap.file}:{gap.line}: no test runs: {' '.join(gap.text)}" for gap in gaps_of(sources, lines)]
    for file, figures in functions.items():
        missing += missing_functions(sources, file, figures)
        missing += missing_branches(sources, file, figures)
        missing += missing_decisions(sources, file, figures)
    missing += missing_definitions(sources, functions, folders)

    figure = (
        f"module and records 100 % of {sum(map(len, lines.values()))} lines, "
        f"{sum(len(each.calls) for each in functions.values())} functions, "
        f"{sum(2 * len(each.branches) for each in functions.values())} branches, "
        f"{sum(len(one) for each in functions.values() for one in each.decided_alone.values())} conditions (MC/DC)"
    )
    return figure, missing


def check_node(root: Path, folder: Path) -> tuple[str, list[str]]:
    """The figure of the simulated node, and what is wrong with it."""
    sources = Sources(root)
    lines = below(read_lines(folder / "node.lcov"), [root / "node"])
    counts = [count for file in lines.values() for count in file.values()]
    percent = 100 * sum(count > 0 for count in counts) / len(counts)
    found = gaps_of(sources, lines)

    wrong = gaps.complaints(found, gaps.read_listed(root / LIST), LIST)
    wrong += [
        f"{sources.name(str(source))}:1: a source that no test program has"
        for source in sorted((root / "node").rglob("*.cpp"))
        if str(source) not in lines
    ]
    if percent < NODE_PERCENT:
        wrong.append(f"node: found {percent:.1f} % of lines run by tests, expected {NODE_PERCENT:.0f} % or more")
    return f"node {percent:.1f} % of {len(counts)} lines, {len(found)} gaps listed", wrong


def main(folder: Path) -> int:
    root = Path.cwd()
    module_figure, missing = check_module(root, folder)
    node_figure, wrong = check_node(root, folder)
    if missing or wrong:
        print(*missing, *wrong, sep="\n", file=sys.stderr)
        print(
            f"Found {len(missing)} gaps in module and records, expected none; found {len(wrong)} faults in the node, "
            f"expected each gap with its reason in {LIST}.",
            file=sys.stderr,
        )
        return 1
    print(f"{module_figure}; {node_figure}")
    return 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1])))
