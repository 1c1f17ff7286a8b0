"""The list of mutants that may live, and the judgement of a run by it.

A paragraph of the list names a mutant as the result list does, then its line of the source, then why no test can tell
it from the original:

    src/x.cpp: number: 15 -> 16
    std::array<char, 15> text{};
    because: no number is longer than 13 characters
"""

from __future__ import annotations

from dataclasses import dataclass
from pathlib import Path

from mutant import Mutant

LEAST_KILLED = 97.0  #: percent

Key = tuple[str, str]


class ListError(Exception):
    """The list cannot be read."""


@dataclass(frozen=True)
class Result:
    mutant: Mutant
    outcome: str

    @property
    def counts(self) -> bool:
        return self.killed or self.survived

    @property
    def killed(self) -> bool:
        return self.outcome.startswith("killed")

    @property
    def survived(self) -> bool:
        return self.outcome == "survived"


def read_list(path: Path) -> dict[Key, str]:
    """Key -> reason."""
    listed: dict[Key, str] = {}
    lines = [line for line in path.read_text().splitlines() if not line.startswith("#")]
    for paragraph in "\n".join(lines).split("\n\n"):
        entry = [line.strip() for line in paragraph.strip().splitlines()]
        if not entry:
            continue
        if len(entry) < 3 or not entry[2].startswith("because: "):
            raise ListError(f"{path}: found {entry}, expected a mutant, its line and 'because: ...'")
        key = entry[0], entry[1]
        if key in listed:
            raise ListError(f"{path}: found {entry[0]!r} twice for the line {entry[1]!r}, expected it once")
        listed[key] = " ".join(entry[2:]).removeprefix("because: ")
    return listed


def percentage(results: list[Result]) -> float:
    counted = [result for result in results if result.counts]
    return 100.0 * sum(result.killed for result in counted) / len(counted) if counted else 0.0


def figure(results: list[Result]) -> str:
    def number(outcome: str) -> int:
        return sum(result.outcome == outcome for result in results)
    killed = sum(result.killed for result in results)
    counted = sum(result.counts for result in results)
    return (f"{killed} of {counted} mutants killed ({percentage(results):.1f} %); besides, "
            f"{number('same code')} compile to the same code and {number('does not compile')} do not compile")


def unlisted(results: list[Result], listed: dict[Key, str]) -> list[str]:
    """The survivors that have no reason to survive."""
    return [f"{result.mutant.file}:{result.mutant.line}:{result.mutant.column}: found a survivor that is not listed, "
            f"expected a test that fails:\n    {result.mutant.key[0]}\n    {result.mutant.key[1]}"
            for result in results if result.survived and result.mutant.key not in listed]


def stale(results: list[Result], listed: dict[Key, str], files: list[str]) -> list[str]:
    """What is listed of the files and does not survive, and what is listed of files that are gone."""
    outcomes = {result.mutant.key: result.outcome for result in results}
    found = []
    for key in listed:
        file = key[0].split(": ")[0]
        outcome = outcomes.get(key, "gone")
        if outcome != "survived" and (file in files or not Path(file).exists()):
            found.append(f"listed as a survivor, and is {outcome}:\n    {key[0]}\n    {key[1]}")
    return found


def too_few_killed(results: list[Result], least: float = LEAST_KILLED) -> list[str]:
    if not any(result.counts for result in results):
        return ["found no mutant that compiles, expected some"]
    if percentage(results) < least:
        return [f"found {percentage(results):.1f} % killed, expected at least {least} %"]
    return []
