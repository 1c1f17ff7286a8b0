"""Finds the mutants of a C++ file: small edits, each of which ought to make a test fail.

libclang says what stands where; an edit replaces a range of bytes. No edit changes the number of lines, for the trace
names lines of the source.
"""

from __future__ import annotations

import re
from collections.abc import Callable, Iterator
from pathlib import Path

from clang.cindex import Cursor, CursorKind, Index, Token, TokenKind, TranslationUnit

from mutant import Edit, Mutant, one_line

OTHER_OPERATORS = {
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"],
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"], "==": ["!="], "!=": ["=="],
    "&&": ["||"], "||": ["&&"], "&": ["|"], "|": ["&"], "+=": ["-=", "="], "-=": ["+=", "="],
}
#: What `a == b` and `a += b` may become where a and b are objects with operators of their own.
OTHER_OVERLOADED_OPERATORS = {"==": ["!="], "!=": ["=="], "+=": ["="]}

FUNCTIONS = {CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR}
TEMPLATES = {
    CursorKind.FUNCTION_TEMPLATE, CursorKind.CLASS_TEMPLATE, CursorKind.CLASS_TEMPLATE_PARTIAL_SPECIALIZATION
}
CLASSES = {CursorKind.CLASS_DECL, CursorKind.STRUCT_DECL, CursorKind.CLASS_TEMPLATE}
BRANCHES = {CursorKind.IF_STMT, CursorKind.CASE_STMT, CursorKind.FOR_STMT, CursorKind.CXX_FOR_RANGE_STMT}


class Finder:
    """The edits of one file. A method for each kind of cursor; `edits` holds what was found, in no order."""

    def __init__(self, path: Path, unit: TranslationUnit):
        self.source = path.read_bytes()
        self.path = str(path)
        self.edits: dict[Edit, str | None] = {}
        self.emitter: str | None = None
        self.field: tuple[int, str] | None = None  #: where a member's initialiser starts, and what emits it
        self.by_kind: dict[CursorKind, Callable[[Cursor], None]] = {
            CursorKind.BINARY_OPERATOR: self.operator,
            CursorKind.COMPOUND_ASSIGNMENT_OPERATOR: self.operator,
            CursorKind.CALL_EXPR: self.call,
            CursorKind.UNARY_OPERATOR: self.unary_operator,
            CursorKind.IF_STMT: self.branch,
            CursorKind.CONDITIONAL_OPERATOR: self.branch,
            CursorKind.CASE_STMT: self.case_row,
            CursorKind.INTEGER_LITERAL: self.integer,
            CursorKind.FLOATING_LITERAL: self.floating,
            CursorKind.CHARACTER_LITERAL: self.strings,
            CursorKind.STRING_LITERAL: self.strings,
            CursorKind.CXX_BOOL_LITERAL_EXPR: self.boolean,
            CursorKind.DECL_REF_EXPR: self.enumerator,
            CursorKind.COMPOUND_STMT: self.statements,
            CursorKind.INIT_LIST_EXPR: self.rows,
            CursorKind.FIELD_DECL: self.member,
            CursorKind.CONSTRUCTOR: self.constructor,
            CursorKind.DESTRUCTOR: self.destructor,
            CursorKind.ENUM_DECL: self.enumeration,
        }
        self.walk(unit.cursor, [])

    # What the methods below stand on.

    def text(self, start: int, end: int) -> str:
        return self.source[start:end].decode()

    def text_of(self, cursor: Cursor) -> str:
        return self.text(cursor.extent.start.offset, cursor.extent.end.offset)

    def add(self, kind: str, start: int, end: int, after: str) -> None:
        lost = self.text(start, end).count("\n") - after.count("\n")
        emitter = self.emitter
        if emitter is None and self.field is not None and start >= self.field[0]:
            emitter = self.field[1]
        self.edits.setdefault(Edit(start, end, kind, after + "\n" * lost), emitter)

    def replace(self, kind: str, place: Cursor | Token, after: str) -> None:
        self.add(kind, place.extent.start.offset, place.extent.end.offset, after)

    def swap(self, kind: str, first: Cursor | Token, second: Cursor | Token) -> None:
        """With their semicolons, where they have any."""
        start, end = first.extent.start.offset, self.whole_end(first)
        second_start, second_end = second.extent.start.offset, self.whole_end(second)
        after = self.text(second_start, second_end) + self.text(end, second_start) + self.text(start, end)
        self.add(kind, start, second_end, after)

    def whole_end(self, place: Cursor | Token) -> int:
        end = place.extent.end.offset
        return end + 1 if self.source[end : end + 1] == b";" else end

    def here(self, cursor: Cursor) -> bool:
        file = cursor.extent.start.file
        return file is not None and file.name == self.path

    @staticmethod
    def tokens(cursor: Cursor, spelling: str | None = None) -> list[Token]:
        found = [token for token in cursor.get_tokens() if token.kind != TokenKind.COMMENT]
        return [token for token in found if spelling in (None, token.spelling)]

    def between(self, cursor: Cursor, left: Cursor, right: Cursor) -> Token | None:
        """The one token between two operands."""
        start, end = left.extent.end.offset, right.extent.start.offset
        inside = [token for token in self.tokens(cursor) if start <= token.extent.start.offset < end]
        return inside[0] if len(inside) == 1 else None

    # The walk.

    def walk(self, cursor: Cursor, parents: list[Cursor]) -> None:
        outer = self.emitter, self.field
        plain = not any(parent.kind in TEMPLATES for parent in parents)
        if cursor.kind in FUNCTIONS and plain:
            self.emitter = emitter_of(cursor)
        elif cursor.kind == CursorKind.FIELD_DECL and plain:
            self.field = self.initialiser_start(cursor), construction_of(cursor.semantic_parent)
        if cursor.kind in self.by_kind:
            self.by_kind[cursor.kind](cursor)
        if cursor.kind in CLASSES:
            self.class_body(cursor)
        if cursor.kind == CursorKind.RETURN_STMT:
            self.return_statement(cursor, parents)
        for child in cursor.get_children():
            if cursor.kind != CursorKind.TRANSLATION_UNIT or self.here(child):
                self.walk(child, [*parents, cursor])
        self.emitter, self.field = outer

    # Expressions.

    def operator(self, cursor: Cursor) -> None:
        left, right = cursor.get_children()
        token = self.between(cursor, left, right)
        if token is not None:
            for other in OTHER_OPERATORS.get(token.spelling, []):
                self.replace("operator", token, other)
            self.dropped_operand(cursor, token.spelling, left, right)

    def dropped_operand(self, cursor: Cursor, operator: str, left: Cursor, right: Cursor) -> None:
        if self.text_of(right).startswith('"'):
            return  # the same as an emptied text
        if operator == "+" and "basic_string" in cursor.type.get_canonical().spelling:
            self.replace("operand dropped", right, "std::string()")
        elif operator in ("<<", "+"):
            self.add("operand dropped", left.extent.end.offset, right.extent.end.offset, "")

    def call(self, cursor: Cursor) -> None:
        children = list(cursor.get_children())
        name = cursor.spelling
        if name.startswith("operator") and len(children) == 3:
            self.overloaded_operator(cursor, name.removeprefix("operator"))
        elif children and children[0].kind == CursorKind.MEMBER_REF_EXPR:
            self.chained_call(cursor, children[0])

    def overloaded_operator(self, cursor: Cursor, operator: str) -> None:
        left, *_, right = sorted(cursor.get_children(), key=lambda child: child.extent.start.offset)
        token = self.between(cursor, left, right)
        if token is not None and token.spelling == operator:
            for other in OTHER_OVERLOADED_OPERATORS.get(operator, []):
                self.replace("operator", token, other)
            self.dropped_operand(cursor, operator, left, right)

    def chained_call(self, cursor: Cursor, function: Cursor) -> None:
        """text.append(a).append(b): a call that returns its object can be left out."""
        objects = list(function.get_children())
        if objects and objects[0].type.get_canonical().spelling == cursor.type.get_canonical().spelling:
            self.replace("call dropped", cursor, self.text_of(objects[0]))

    def unary_operator(self, cursor: Cursor) -> None:
        tokens = self.tokens(cursor)  # none inside of a macro
        for token in tokens[:1] + tokens[-1:]:
            if token.spelling in ("!", "-"):
                self.replace("operator", token, "")
            elif token.spelling in ("++", "--"):
                self.replace("operator", token, "--" if token.spelling == "++" else "++")

    def branch(self, cursor: Cursor) -> None:
        condition, *ways = cursor.get_children()
        text = self.text_of(condition)
        for after in (f"!({text})", "true", "false"):
            self.replace("condition", condition, after)
        if cursor.kind == CursorKind.IF_STMT and len(ways) == 2:
            self.add("else removed", ways[0].extent.end.offset, ways[1].extent.end.offset, "")

    def integer(self, cursor: Cursor) -> None:
        token = self.tokens(cursor)[0]
        match = re.fullmatch(r"(0[xX])?([0-9a-fA-F]+?)([uUlLzZ]*)", token.spelling.replace("'", ""))
        if match is None:
            return
        prefix, digits, suffix = match[1] or "", match[2], match[3]
        number = int(digits, 16 if prefix else 10)
        for other in (number + 1, number - 1):
            written = hex(other) if prefix else str(other)
            self.replace("number", token, written + suffix)

    def floating(self, cursor: Cursor) -> None:
        token = self.tokens(cursor)[0]
        match = re.fullmatch(r"(\d+)(\.\d*[fFlL]?)", token.spelling)
        if match is not None:
            for other in (int(match[1]) + 1, int(match[1]) - 1):
                self.replace("number", token, str(other) + match[2])

    def boolean(self, cursor: Cursor) -> None:
        self.replace("boolean", cursor, "false" if self.text_of(cursor) == "true" else "true")

    def strings(self, cursor: Cursor) -> None:
        """Each piece of a text that is written in pieces."""
        for token in self.tokens(cursor):
            match = re.fullmatch(r"""(["'])(.*)\1""", token.spelling, re.DOTALL)
            if match is None or not match[2]:
                continue
            quote, content = match[1], match[2]
            letters = re.findall(r"\\.|[^\\]", content)
            middle = len(letters) // 2
            letters[middle] = other_letter(letters[middle])
            self.replace("text", token, quote + "".join(letters) + quote)
            if quote == '"':
                self.replace("text", token, '""')

    def enumerator(self, cursor: Cursor) -> None:
        referenced = cursor.referenced
        if referenced is not None and referenced.kind == CursorKind.ENUM_CONSTANT_DECL:
            names = [constant.spelling for constant in referenced.semantic_parent.get_children()]
            after = names[(names.index(referenced.spelling) + 1) % len(names)]
            self.replace("enumerator", self.tokens(cursor)[-1], after)

    def rows(self, cursor: Cursor) -> None:
        """A row of a table, with the comma behind it. Values of different kinds are no table."""
        children = list(cursor.get_children())
        if len(children) > 3 and len({child.kind for child in children}) == 1:
            for child, following in zip(children, children[1:]):
                self.add("row removed", child.extent.start.offset, following.extent.start.offset, "")
            self.add("row removed", children[-2].extent.end.offset, children[-1].extent.end.offset, "")

    # Statements.

    def statements(self, cursor: Cursor) -> None:
        for statement in cursor.get_children():
            if statement.kind.is_expression():
                self.replace("statement removed", statement, "")

    def return_statement(self, cursor: Cursor, parents: list[Cursor]) -> None:
        value = list(cursor.get_children())
        early = any(parent.kind in BRANCHES for parent in parents)
        if early:
            self.replace("return removed", cursor, "")
        if value and self.text_of(value[0]) != "{}":
            self.replace("returned value", value[0], "{}")

    def case_row(self, cursor: Cursor) -> None:
        self.add("case removed", cursor.extent.start.offset, cursor.extent.end.offset, "")

    # Declarations: places of members and of virtual functions are contracts.

    def class_body(self, cursor: Cursor) -> None:
        children = list(cursor.get_children())
        members = [child for child in children if child.kind == CursorKind.FIELD_DECL]
        operations = [child for child in children if is_virtual(child)]
        bases = [child for child in children if child.kind == CursorKind.CXX_BASE_SPECIFIER]
        for kind, neighbours in (("members swapped", members), ("virtual functions swapped", operations),
                                 ("bases swapped", bases)):
            for first, second in zip(neighbours, neighbours[1:]):
                self.swap(kind, first, second)
        for base in bases:
            self.not_virtual(base)
        for child in children:
            if child.kind == CursorKind.ALIGNED_ATTR:
                self.alignment(child.extent.start.offset)

    def alignment(self, start: int) -> None:
        match = re.compile(rb"alignas\([^()]*\)").match(self.source, start)
        if match is not None:
            self.add("alignment removed", start, match.end(), "")

    def member(self, cursor: Cursor) -> None:
        start, end = self.initialiser_start(cursor), cursor.extent.end.offset
        if start < end:
            self.add("initialiser", start, end, "")
        if self.text(start, end) == "{}":
            self.add("initialiser", start, end, "{1}")

    def initialiser_start(self, member: Cursor) -> int:
        """Behind the member where there is none."""
        for token in self.tokens(member):
            if token.extent.start.offset > member.location.offset and token.spelling in ("=", "{"):
                return token.extent.start.offset
        return member.extent.end.offset

    def constructor(self, cursor: Cursor) -> None:
        children = list(cursor.get_children())
        for member, value in zip(children, children[1:]):
            if member.kind == CursorKind.MEMBER_REF:
                self.replace("initialiser", value, "")

    def destructor(self, cursor: Cursor) -> None:
        self.not_virtual(cursor)

    def not_virtual(self, cursor: Cursor) -> None:
        for token in self.tokens(cursor, "virtual"):
            self.replace("not virtual", token, "")

    def enumeration(self, cursor: Cursor) -> None:
        constants = [child for child in cursor.get_children() if child.kind == CursorKind.ENUM_CONSTANT_DECL]
        for first, second in zip(constants, constants[1:]):
            self.swap("enumerators swapped", self.tokens(first)[0], self.tokens(second)[0])


def qualified_name(cursor: Cursor) -> str:
    parent = cursor.semantic_parent
    outer = "" if parent.kind == CursorKind.TRANSLATION_UNIT else qualified_name(parent)
    return f"{outer}::{cursor.spelling}"


def construction_of(record: Cursor) -> str:
    """Makes a compiler emit the constructor, with the members' initialisers, and the virtual functions."""
    return f"void emitted() {{ (void){qualified_name(record)}(); }}"


def emitter_of(function: Cursor) -> str | None:
    if function.kind == CursorKind.CXX_METHOD:
        return construction_of(function.semantic_parent)
    if function.kind == CursorKind.FUNCTION_DECL:
        return f"auto* emitted = &{qualified_name(function)};"
    return None


def is_virtual(cursor: Cursor) -> bool:
    if cursor.kind == CursorKind.DESTRUCTOR:
        words = {token.spelling for token in cursor.get_tokens()}
        return bool(words & {"virtual", "override"})
    return cursor.kind == CursorKind.CXX_METHOD and cursor.is_virtual_method()


def other_letter(letter: str) -> str:
    """A letter for a letter, a digit for a digit, and a letter for everything else."""
    if letter.isalpha():
        return chr(ord(letter) - 1) if letter in "zZ" else chr(ord(letter) + 1)
    if letter.isdigit():
        return "0" if letter == "9" else str(int(letter) + 1)
    return "_" if letter != "_" else "-"


def find_mutants(root: Path, file: str, flags: list[str]) -> list[Mutant]:
    """The mutants of `file` (a path from `root`), in the order of their places."""
    path = root / file
    unit = Index.create().parse(str(path), args=["-x", "c++", *flags])
    errors = [str(diagnostic) for diagnostic in unit.diagnostics if diagnostic.severity >= 3]
    if errors:
        raise RuntimeError(f"{file}: libclang cannot read it: {errors[0]}")
    return list(described(file, Finder(path, unit)))


def described(file: str, finder: Finder) -> Iterator[Mutant]:
    seen: dict[tuple[str, ...], int] = {}
    for edit in sorted(finder.edits, key=lambda edit: (edit.start, edit.end, edit.kind, edit.after)):
        before = one_line(finder.text(edit.start, edit.end))
        line_start = finder.source.rfind(b"\n", 0, edit.start) + 1
        line_end = finder.source.find(b"\n", edit.start)
        line_text = one_line(finder.text(line_start, line_end))
        after = one_line(edit.after)
        alike = (edit.kind, before, after, line_text)
        seen[alike] = seen.get(alike, 0) + 1
        yield Mutant(file=file, edit=edit, line=finder.source.count(b"\n", 0, edit.start) + 1,
                     column=edit.start - line_start + 1, before=before, after=after, line_text=line_text,
                     occurrence=seen[alike], emitter=finder.edits[edit])
