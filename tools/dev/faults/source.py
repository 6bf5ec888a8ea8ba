"""What a small fault is: one place of a source line, written differently."""

import re
from dataclasses import dataclass

OPERATORS = {"<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"),
             "==": ("!=",), "!=": ("==",), "&&": ("||",), "||": ("&&",),
             "+": ("-",), "-": ("+",), "+=": ("-=",), "-=": ("+=",)}
NOT_CODE = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"'
                      r"|(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])+'|^[ \t]*#(?:\\\n|[^\n])*",
                      re.DOTALL | re.MULTILINE)
DECLARATION = re.compile(r"\s*(static_assert|using|template|namespace|friend|class|extern)\b"
                         r"|.*\boperator\b|.*= (default|delete);")
# Start values of records and named constants: each would have half of the library compiled again.
CONSTANT_IN_HEADER = re.compile(r"\s*(?:inline |static |constexpr |const )*"
                                r"[\w:]+(?:<[\w:]+>)?[ *&]+\w+(?:\[\w*\])?(?: : \d+)?"
                                r" = (?:[\w:.~'-]+|\{[^;]*\})(?:, \w+ = [\w.]+)*;\s*")
# No blank before an assignment or a call: a type and a name would be a declaration.
PLACE = r"\*?(?:static_cast<[\w:* ]+>\()?[\w:.\->\[\]()]+"
STATEMENT = re.compile(rf"(?:{PLACE} (?:[-+*/|&^]|<<|>>)?= .*|{PLACE} >> .*"
                       r"|(?:\+\+|--)[\w.\->\[\]]+|[\w.\->\[\]]+(?:\+\+|--)"
                       r"|(?!return|throw)[\w:.\->\[\]<>]+\(.*\));")


@dataclass
class Fault:
    file: str
    line: int  # from 1
    original: str  # the whole line
    changed: str

    def change(self):
        return f"{self.original.strip()} -> {self.changed.strip()}"

    def planted_in(self, text):
        lines = text.split("\n")
        lines[self.line - 1] = self.changed
        return "\n".join(lines)


def blank_out(text):
    """The text with blanks for comments and preprocessor lines, and \x01 for literals."""
    def cover(match):
        filler = "\x01" if match.group()[0] in "R\"'" else " "
        return re.sub(r"[^\n]", filler, match.group())
    return NOT_CODE.sub(cover, text)


def closing(code, start):
    """Where the parenthesis that opens at `start` closes; -1 when not in this line."""
    depth = 0
    for at in range(start, len(code)):
        depth += {"(": 1, ")": -1}.get(code[at], 0)
        if depth == 0:
            return at
    return -1


def changes(code, line):
    """(begin, end, replacement) for each fault that this line of code can hold."""
    for match in re.finditer(r"(?<=\S )([<>]=?|[=!]=|&&|\|\||\+=?|-=?)(?= \S)", code):
        for other in OPERATORS[match.group()]:
            yield *match.span(), other
    for match in re.finditer(r"(?<![\w.'])(0x[0-9A-Fa-f]+|\d+)(?=[uUlL]*(?![\w.']))", code):
        number = int(match.group(), 0)
        for other in (number + 1, number - 1):
            if other >= 0:
                yield *match.span(), hex(other) if "x" in match.group() else str(other)
    for match in re.finditer(r"\+\+|--", code):
        yield *match.span(), "--" if match.group() == "++" else "++"
    for match in re.finditer(r"\b(true|false)\b", code):
        yield *match.span(), "false" if match.group() == "true" else "true"
    for match in re.finditer(r"!(?=[\w(*])", code):
        yield *match.span(), ""
    for match in re.finditer(r"\b(?:if|while) \(", code):
        end = closing(code, match.end() - 1)
        if end > 0 and code[match.end():end] not in ("true", "false"):
            for other in ("true", "false"):
                yield match.end(), end, other
    for match in re.finditer(r"\breturn (?!true;|false;|nullptr;|\*this;|\{\};)([^;]+);", code):
        yield *match.span(1), "{}"
        yield *match.span(1), f"!({line[slice(*match.span(1))]})"


def dropped_statement(code, before):
    statement = code.strip()
    if not STATEMENT.fullmatch(statement) or statement.count("(") != statement.count(")"):
        return
    if before.rstrip().endswith(("{", "}", ";", ")", ":", "else")):
        begin = code.index(statement)
        yield begin, begin + len(statement), ";"


def faults_of(file, text):
    lines, codes = text.split("\n"), blank_out(text).split("\n")
    before, in_assertion, found = "", False, {}
    for number, (line, code) in enumerate(zip(lines, codes), 1):
        in_assertion = in_assertion or "static_assert" in code
        skipped = in_assertion or not code.strip() or DECLARATION.match(code)
        if not skipped and not (file.endswith(".h") and CONSTANT_IN_HEADER.fullmatch(code)):
            for begin, end, other in [*changes(code, line),
                                      *dropped_statement(code, before)]:
                changed = line[:begin] + other + line[end:]
                found[number, changed] = Fault(file, number, line, changed)
        in_assertion = in_assertion and ";" not in code
        before = code if code.strip() else before
    return list(found.values())
