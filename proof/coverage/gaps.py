"""Lines that no test runs, and the list of those that cannot be run."""

from collections import Counter
from dataclasses import dataclass
from pathlib import Path
from typing import Iterator


@dataclass(frozen=True)
class Gap:
    """Lines that stand together and did not run: their file, and their text without indentation and lone brackets."""

    file: str
    text: tuple[str, ...]
    line: int

    def key(self) -> tuple[str, tuple[str, ...]]:
        """What the gap is known by in the list: line numbers change with every edit."""
        return self.file, self.text

    def __str__(self) -> str:
        return f"{self.file}:{self.line}: {' '.join(self.text)}"


class Unreadable(Exception):
    """A list of gaps that is not written as its head says."""


def gaps_in(file: str, source: str, lines: dict[int, int]) -> list[Gap]:
    """The gaps of a file, from how often each of its lines with code ran."""
    texts = source.splitlines()
    return [
        Gap(file, said, run[0])
        for run in _runs(lines)
        if (said := tuple(text for number in run if _says_something(text := texts[number - 1].strip())))
    ]


def _runs(lines: dict[int, int]) -> Iterator[list[int]]:
    run: list[int] = []
    for number in sorted(lines):
        if lines[number] == 0:
            run.append(number)
        elif run:
            yield run
            run = []
    if run:
        yield run


def _says_something(text: str) -> bool:
    return any(letter.isalnum() for letter in text) and not text.startswith("//")


def read_listed(path: Path) -> list[Gap]:
    """The listed gaps. A gap is its file, its lines after "> ", and its reason; an empty line ends it."""
    listed = []
    number = 1
    for block in path.read_text().split("\n\n"):
        lines = block.split("\n")
        listed += _listed_gap(f"{path}:{number}", number, [line for line in lines if not line.startswith("#")])
        number += len(lines) + 1
    return listed


def _listed_gap(place: str, number: int, lines: list[str]) -> list[Gap]:
    lines = [line for line in lines if line]
    if not lines:
        return []
    text = [line[2:] for line in lines[1:] if line.startswith("> ")]
    reason = lines[1 + len(text) :]
    if not text or not reason or any(line.startswith("> ") for line in [lines[0], *reason]):
        raise Unreadable(f'{place}: found "{lines[0]}", expected a file, then its lines after "> ", then a reason')
    return [Gap(lines[0], tuple(text), number)]


def complaints(found: list[Gap], listed: list[Gap], list_name: str) -> list[str]:
    """What is wrong: gaps that are not listed, and entries that are no gaps."""
    unlisted = Counter(gap.key() for gap in found)
    unlisted.subtract(gap.key() for gap in listed)
    said = []
    for gap in reversed(found):
        if unlisted[gap.key()] > 0:
            unlisted[gap.key()] -= 1
            said.insert(0, f"{gap.file}:{gap.line}: no test runs: {' '.join(gap.text)}")
    for gap in reversed(listed):
        if unlisted[gap.key()] < 0:
            unlisted[gap.key()] += 1
            said.append(f"{list_name}:{gap.line}: no longer a gap of {gap.file}: {' '.join(gap.text)}")
    return said
