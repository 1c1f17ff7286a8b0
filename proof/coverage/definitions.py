"""The functions that C++ sources and headers define, read from the text itself.

The compiler keeps counters for what it emits. A template that nothing instantiates is not emitted, and so is missing
from its figures instead of lowering them: only the text tells that it is there.
"""

from dataclasses import dataclass
from pathlib import Path
from typing import Iterator

from clang.cindex import Cursor, CursorKind, Index, TranslationUnit

DEFINING = {
    CursorKind.FUNCTION_DECL,
    CursorKind.FUNCTION_TEMPLATE,
    CursorKind.CXX_METHOD,
    CursorKind.CONSTRUCTOR,
    CursorKind.DESTRUCTOR,
    CursorKind.CONVERSION_FUNCTION,
    CursorKind.LAMBDA_EXPR,
}


@dataclass(frozen=True, order=True)
class Definition:
    """A function with a body: its file, where the body's opening brace stands, its name (a lambda has none)."""

    file: str
    body: tuple[int, int]
    name: str


class Unreadable(Exception):
    """A source that does not compile."""


def definitions_in(folders: list[Path], include_folders: list[Path]) -> list[Definition]:
    """The functions that the sources and headers below `folders` define."""
    sources = sorted(path for folder in folders for path in folder.rglob("*.cpp"))
    headers = sorted(path for folder in folders for path in folder.rglob("*.h"))
    found: set[Definition] = set()
    for unit in [*(_parse(source, include_folders) for source in sources), _parse_together(headers, include_folders)]:
        found.update(_definitions(unit.cursor, tuple(f"{folder}/" for folder in folders)))
    return sorted(found)


def _parse_together(headers: list[Path], include_folders: list[Path]) -> TranslationUnit:
    name = "every-header.cpp"
    return _parse(Path(name), include_folders, [(name, "".join(f'#include "{header}"\n' for header in headers))])


def _parse(source: Path, include_folders: list[Path], unsaved: list[tuple[str, str]] | None = None) -> TranslationUnit:
    arguments = ["-x", "c++", "-std=c++20", *(f"-I{folder}" for folder in include_folders)]
    unit = Index.create().parse(str(source), arguments, unsaved)
    errors = [str(found) for found in unit.diagnostics if found.severity >= found.Error]
    if errors:
        raise Unreadable(errors[0])
    return unit


def _definitions(parent: Cursor, folders: tuple[str, ...]) -> Iterator[Definition]:
    for cursor in parent.get_children():
        file = cursor.location.file
        if file is None or not file.name.startswith(folders):
            continue
        body = _body(cursor) if cursor.kind in DEFINING else None
        if body:
            yield Definition(file.name, body, cursor.spelling)
        yield from _definitions(cursor, folders)


def _body(function: Cursor) -> tuple[int, int] | None:
    for child in function.get_children():
        if child.kind == CursorKind.COMPOUND_STMT:
            return child.extent.start.line, child.extent.start.column
    return None
