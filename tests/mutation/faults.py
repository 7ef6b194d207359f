"""Finds the faults that scripts/mutate can put into a C++ source, one at a time."""

import re
from dataclasses import dataclass

COMMENTS_AND_TEXTS = re.compile(
    r"""//[^\n]* | /\*.*?\*/ | R"(\w*)\(.*?\)\1" | "(?:\\.|[^"\\\n])*" | (?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])+' """,
    re.VERBOSE | re.DOTALL)
DIRECTIVES = re.compile(r"^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", re.MULTILINE)
NOT_RUN = re.compile(r"\[\[.*?\]\] | \bstatic_assert\b.*?; | \btemplate <[^>]*> | \b(?:operator|requires)\b[^;{]*",
                     re.VERBOSE | re.DOTALL)

SWAPS = {
    "==": ["!="], "!=": ["=="], "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "&&": ["||"], "||": ["&&"], "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"],
    "+=": ["-="], "-=": ["+="], "*=": ["/="], "/=": ["*="],
}
OPERATORS = re.compile(r"(?<= )(" + "|".join(re.escape(o) for o in sorted(SWAPS, key=len, reverse=True)) + r")(?=\s)")
NUMBERS = re.compile(r"(?<![\w.'])(0[xX][0-9a-fA-F']+|(?:\d[\d']*)?\.\d+(?:e-?\d+)?|\d[\d']*(?:\.(?!\d)|(?:e-?\d+))?)"
                     r"(?=[a-zA-Z_]{0,3}\b|\W)")
CONDITIONS = re.compile(r"\b(?:if|while) \(")
FUNCTIONS = re.compile(r"\bvoid (?:\w+::)*\w+\([^;{}]*\)[ \w]*\{(?!\s*\})")
CALLS = re.compile(r"(?<=[;{})])(\s+)((?:\w+::)*\w+(?:(?:\.|->)\w+|\([^()]*\)(?:\.|->)\w+)*)\(")
KEYWORDS = {"if", "while", "for", "switch", "return", "catch", "sizeof", "static_assert", "defined"}


@dataclass(frozen=True)
class Fault:
    file: str  # from the top of the tree
    start: int
    end: int
    new: str
    kind: str
    line: int
    text: str  # the source line, trimmed
    name: str  # says what changes, such as "60 -> 66"; unique in its line


def blank(match):
    return re.sub(r"[^\n]", " ", match.group())


def code_only(source):
    """The source with all that is never run replaced by spaces; strings and characters become underscores."""
    def text(match):
        keep = match.group()[0] in "\"'R"
        return re.sub(r"[^\n]", "_", match.group()) if keep else blank(match)
    return NOT_RUN.sub(blank, DIRECTIVES.sub(blank, COMMENTS_AND_TEXTS.sub(text, source)))


def closing(code, opening):
    """Index of the bracket that closes the one at `opening`, or -1."""
    depth = 0
    for i in range(opening, len(code)):
        depth += (code[i] in "([{") - (code[i] in ")]}")
        if depth == 0:
            return i
    return -1


def other_number(text):
    """About a tenth more, and at least one more for an integer."""
    digits = text.replace("'", "")
    if digits[:2].lower() == "0x":
        return f"0x{int(digits, 16) + 1:0{len(digits) - 2}x}"
    if re.fullmatch(r"\d+", digits):
        return str(int(digits) + max(1, int(digits) // 10))
    value = float(digits)
    return repr(round(value * 1.1, 9) if value else 0.1)


def operator_faults(code):
    for match in OPERATORS.finditer(code):
        for new in SWAPS[match.group()]:
            yield match.start(), match.end(), new, "operator"


def constant_faults(code):
    for match in NUMBERS.finditer(code):
        yield match.start(1), match.end(1), other_number(match.group(1)), "constant"
    for match in re.finditer(r"\b(true|false)\b", code):
        yield match.start(), match.end(), "false" if match.group() == "true" else "true", "constant"


def condition_faults(code, source):
    for match in CONDITIONS.finditer(code):
        start, end = match.end(), closing(code, match.end() - 1)
        if end < 0:
            continue
        start = code.rfind(";", start, end) + 1 or start
        yield start, end, f"!({source[start:end].strip()})", "condition"


def early_returns(code):
    for match in FUNCTIONS.finditer(code):
        yield match.end(), match.end(), " return;", "return"


def removed_calls(code):
    for match in CALLS.finditer(code):
        end = closing(code, match.end() - 1)
        while code[end + 1:end + 3] == "->" or code[end + 1:end + 2] == ".":
            if not (more := re.compile(r"(?:\.|->)\w+\(").match(code, end + 1)):
                break
            end = closing(code, more.end() - 1)
        name = match.group(2)
        constructor = re.fullmatch(r"[A-Z]\w*", name) or name.split("::")[-1].isupper()
        if end > 0 and code[end + 1:end + 2] == ";" and name not in KEYWORDS and not constructor:
            yield match.start(2), end + 1, "", "call"


def describe(source, start, end, new, kind):
    old = " ".join(source[start:end].split())
    if kind == "condition":
        return f"negated: {old}"
    if kind == "return":
        return "returns at once"
    return f"removed: {old}" if kind == "call" else f"{old} -> {new}"


def faults(file, source):
    """All faults of a file, in its order."""
    code = code_only(source)
    found = [*operator_faults(code), *constant_faults(code), *condition_faults(code, source), *early_returns(code)]
    if file.endswith(".cpp"): # what looks like a call in a header is mostly a declaration
        found += removed_calls(code)
    result, seen = [], {}
    for start, end, new, kind in sorted(found):
        line = source.count("\n", 0, start) + 1
        text = source.splitlines()[line - 1].strip()
        name = describe(source, start, end, new, kind)
        seen[line, name] = seen.get((line, name), 0) + 1
        if seen[line, name] > 1:
            name += f" ({seen[line, name]})"
        result.append(Fault(file, start, end, new, kind, line, text, name))
    return result
