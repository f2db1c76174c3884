"""Finds the small changes to try in a source: each makes one mutant."""

import re
from dataclasses import dataclass
from pathlib import Path

from clang.cindex import Cursor, CursorKind, Index, TypeKind

OPERATORS = {
    "==": ["!="], "!=": ["=="], "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "&&": ["||"], "||": ["&&"], "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "&": ["|"], "|": ["&"],
    "<<": [">>"], ">>": ["<<"], "+=": ["-="], "-=": ["+="], "|=": ["&="], "&=": ["|="],
}
CONDITIONALS = (CursorKind.IF_STMT, CursorKind.WHILE_STMT, CursorKind.CONDITIONAL_OPERATOR)
LOOPS = (CursorKind.CXX_FOR_RANGE_STMT, CursorKind.FOR_STMT, CursorKind.WHILE_STMT)
FUNCTIONS = (CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR,
             CursorKind.FUNCTION_TEMPLATE, CursorKind.CONVERSION_FUNCTION)
# What a statement may be that is left out; a declaration only matters when it has effects of its own.
REMOVABLE = (CursorKind.CALL_EXPR, CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR,
             CursorKind.UNARY_OPERATOR, CursorKind.DECL_STMT, CursorKind.BREAK_STMT, CursorKind.CONTINUE_STMT,
             CursorKind.CXX_DELETE_EXPR, CursorKind.UNEXPOSED_EXPR, *LOOPS)


# Neighbours of these kinds are tried in the other order.
SWAPPABLE = (CursorKind.CALL_EXPR, CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR,
             CursorKind.UNEXPOSED_EXPR)


@dataclass(frozen=True)
class Change:
    """One change to a file, which has that text in between these offsets afterwards."""
    file: str
    function: str
    start: int
    end: int
    text: str

    def apply(self, source: bytes) -> bytes:
        return source[:self.start] + self.text.encode() + source[self.end:]

    def lines(self, source: bytes) -> tuple[str, str]:
        """The lines that the change is in, before and after it, on one line each."""
        first = source.rfind(b"\n", 0, self.start) + 1
        last = source.find(b"\n", self.end)
        after = source[first:self.start] + self.text.encode() + source[self.end:last]
        return tuple(" ".join(text.decode().split()) for text in (source[first:last], after))


class Finder:
    """Goes over a source's syntax and collects the changes."""

    def __init__(self, root: Path, file: str):
        self.file = file
        self.path = root / file
        self.source = self.path.read_bytes()
        self.changes: list[Change] = []
        arguments = ["-x", "c++", "-std=c++20", f"-I{root / 'src'}"]
        self.unit = Index.create().parse(str(self.path), args=arguments)

    def find(self) -> list[Change]:
        errors = [str(each) for each in self.unit.diagnostics if each.severity >= 3]
        if errors:
            raise RuntimeError(f"{self.file} could not be parsed: {errors[0]}")
        for cursor in self.unit.cursor.get_children():
            if cursor.location.file and cursor.location.file.name == str(self.path):
                self._visit(cursor, "")
        return sorted(set(self.changes), key=lambda change: (change.start, change.end, change.text))

    def _visit(self, cursor: Cursor, function: str) -> None:
        if cursor.kind in FUNCTIONS:
            function = cursor.spelling
        # An assertion at compile time is a test itself.
        if cursor.kind == CursorKind.STATIC_ASSERT:
            return
        for old, texts in self._replacements(cursor):
            start, end = old
            for text in texts:
                if self.source[start:end].decode() != text:
                    self.changes.append(Change(self.file, function, start, end, text))
        for child in cursor.get_children():
            self._visit(child, function)

    def _replacements(self, cursor: Cursor):
        """Parts of the source, as pairs of offsets, with what each may become."""
        kind = cursor.kind
        children = list(cursor.get_children())
        if kind in (CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR) and len(children) == 2:
            yield from self._operator(self._end(children[0]), self._start(children[1]))
        elif kind == CursorKind.CALL_EXPR and cursor.spelling.startswith("operator"):
            yield from self._overloaded(cursor, children)
        elif kind == CursorKind.UNARY_OPERATOR and re.match(r"!(?!=)", self._text(cursor)):
            yield (self._start(cursor), self._start(cursor) + 1), [""]
        elif kind == CursorKind.CXX_BOOL_LITERAL_EXPR:
            yield self._span(cursor), ["false" if self._text(cursor) == "true" else "true"]
        elif kind in (CursorKind.INTEGER_LITERAL, CursorKind.FLOATING_LITERAL):
            yield self._span(cursor), self._numbers(cursor)
        elif kind == CursorKind.STRING_LITERAL and self._text(cursor).startswith('"'):
            yield self._span(cursor), ['""' if self._text(cursor) != '""' else '"another"']
        elif kind == CursorKind.DECL_REF_EXPR:
            yield from self._enumerator(cursor)
        elif kind in CONDITIONALS:
            yield from self._condition(cursor, children)
        elif kind == CursorKind.RETURN_STMT and children:
            yield from self._returned(children[0])
        if kind == CursorKind.COMPOUND_STMT:
            yield from self._statements(children)
        elif kind in (CursorKind.IF_STMT, CursorKind.CASE_STMT, *LOOPS):
            for child in children[1:]:
                yield from self._statements([child])

    def _operator(self, start: int, end: int):
        found = re.search(rb"[-+*/&|<>=!]+", self.source[start:end])
        if found:
            yield (start + found.start(), start + found.end()), OPERATORS.get(found.group().decode(), [])

    def _overloaded(self, cursor: Cursor, children: list[Cursor]):
        # The compiler may call another operator than the one that is written: == for !=, <=> for <.
        for child in children:
            text = self._text(child)
            if child.spelling == cursor.spelling and len(children) == (2 if text == "!" else 3):
                yield self._span(child), [""] if text == "!" else OPERATORS.get(text, [])

    def _numbers(self, cursor: Cursor) -> list[str]:
        text = self._text(cursor)
        return [f"({text} + 1)", "0"] if text not in ("0", "0.0") else ["1"]

    def _enumerator(self, cursor: Cursor):
        target = cursor.referenced
        if not target or target.kind != CursorKind.ENUM_CONSTANT_DECL:
            return
        names = [each.spelling for each in target.semantic_parent.get_children()]
        start, end = self._span(cursor)
        last = end - len(target.spelling)
        if self.source[last:end].decode() == target.spelling:
            yield (last, end), [name for name in names if name != target.spelling]

    def _condition(self, cursor: Cursor, children: list[Cursor]):
        condition = children[0]
        start, end = self._span(condition)
        if condition.kind == CursorKind.VAR_DECL:
            yield (end, end), ["; false"]
        elif condition.kind != CursorKind.DECL_STMT:
            yield (start, end), self._negations(self._text(condition))
        if cursor.kind == CursorKind.IF_STMT and len(children) == 2:
            yield self._span(cursor), ["{}"]

    def _returned(self, value: Cursor):
        kind = value.type.get_canonical().kind
        text = self._text(value)
        if kind == TypeKind.BOOL:
            yield self._span(value), self._negations(text)
        elif kind in (TypeKind.INT, TypeKind.UINT, TypeKind.LONG, TypeKind.ULONG, TypeKind.DOUBLE, TypeKind.USHORT):
            yield self._span(value), [f"({text}) + 1"]
        elif text not in ("{}", "nullptr", "std::nullopt"):
            yield self._span(value), ["{}"]

    def _negations(self, condition: str) -> list[str]:
        # A change of the operator negates these already.
        is_negated = re.fullmatch(r"!(?!=)[^&|?]*|[^&|?]* [!=]= [^&|?]*|true|false", condition)
        return [] if is_negated else [f"!({condition})"]

    def _statements(self, statements: list[Cursor]):
        for statement in statements:
            if statement.kind in REMOVABLE and not self._is_used(statement, self._end(statements[-1])):
                yield from self._removal(statement)
        for first, second in zip(statements, statements[1:]):
            if first.kind in SWAPPABLE and second.kind in SWAPPABLE:
                between = self.source[self._end(first):self._start(second)].decode()
                yield (self._start(first), self._end(second)), [self._text(second) + between + self._text(first)]

    def _is_used(self, statement: Cursor, end: int) -> bool:
        """Whether what the statement declares is used before that place, so that nothing compiles without it."""
        rest = self.source[self._end(statement):end].decode()
        return statement.kind == CursorKind.DECL_STMT and any(
            re.search(rf"\b{re.escape(each.spelling)}\b", rest) for each in statement.get_children() if each.spelling)

    def _removal(self, statement: Cursor):
        nothing = "{}" if statement.kind in LOOPS else "(void)0"
        # A declaration includes its semicolon.
        yield self._span(statement), [nothing + (";" if statement.kind == CursorKind.DECL_STMT else "")]

    def _start(self, cursor: Cursor) -> int:
        return cursor.extent.start.offset

    def _end(self, cursor: Cursor) -> int:
        return cursor.extent.end.offset

    def _span(self, cursor: Cursor) -> tuple[int, int]:
        return self._start(cursor), self._end(cursor)

    def _text(self, cursor: Cursor) -> str:
        return self.source[self._start(cursor):self._end(cursor)].decode()


def changes_of(root: Path, file: str) -> list[Change]:
    """The changes to try in that file of the project."""
    return Finder(root, file).find()
