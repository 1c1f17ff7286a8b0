"""A mutant: what it changes, and the name that it keeps while the file around it changes."""

from __future__ import annotations

import re
from dataclasses import dataclass


@dataclass(frozen=True)
class Edit:
    """Bytes start to end of a file become `after`."""

    start: int
    end: int
    kind: str
    after: str


@dataclass(frozen=True)
class Mutant:
    file: str  #: from the project's root
    edit: Edit
    line: int
    column: int
    before: str
    after: str
    line_text: str
    occurrence: int  #: 1 for the first of several mutants that read alike
    emitter: str | None  #: C++ that makes a compiler emit the mutated function; none where users compile it themselves

    def applied_to(self, source: bytes) -> bytes:
        return source[: self.edit.start] + self.edit.after.encode() + source[self.edit.end :]

    @property
    def in_platform(self) -> bool:
        return self.file.startswith("platform/")

    @property
    def key(self) -> tuple[str, str]:
        """Names the mutant as long as its line reads the same, wherever that line stands."""
        number = f" [{self.occurrence}]" if self.occurrence > 1 else ""
        return f"{self.file}: {self.edit.kind}: {self.before} -> {self.after}", self.line_text + number


def one_line(text: str) -> str:
    """Without comments, too."""
    return re.sub(r"\s+", " ", re.sub(r"//[/<]* .*", "", text)).strip()
