"""One-line faults of the kind that people make, generated from C++ sources laid out by clang-format.

Each pattern gets one line of code and yields lines that replace it; "" drops the line. What stands in comments is no
code, what stands in strings is touched by the pattern of strings alone.
"""

import re
from collections import namedtuple

# line: counted from 1; old, new: the lines before and after, usually one, two where entries of two rows change places.
Fault = namedtuple("Fault", "path line pattern old new")


def masked(text):
    """The text with comments and the insides of literals blanked, every character in its place."""
    def blank(match):
        found = match.group(0)
        if found.startswith("/"):
            return re.sub(r"[^\n]", " ", found)
        return found[0] + "_" * (len(found) - 2) + found[-1]
    return re.sub(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'', blank, text, flags=re.S)


def _replacements(line, code, expression, words):
    for match in re.finditer(expression, code):
        new = words(match) if callable(words) else words[match.group(0)]
        if new is not None:
            yield line[:match.start()] + new + line[match.end():]


def _arguments(code, at):
    """Start and end of each argument of the call whose bracket opens at AT; none when it ends on another line."""
    depth, start, found = 0, at + 1, []
    for i in range(at, len(code)):
        if code[i] in "([{":
            depth += 1
        elif code[i] in ")]}":
            depth -= 1
        if (code[i] == "," and depth == 1) or depth == 0:
            found.append((start, i))
            start = i + 1
            if depth == 0:
                return found
    return []


def number(line, code):
    def changed(match):
        digits = match.group(0)
        value = int(digits, 0) if not re.fullmatch("0[0-9]+", digits) else None
        if value is None:
            return None
        new = value + (-1 if value % 2 else 1)
        return "0x%0*X" % (len(digits) - 2, new) if digits[1:2] in "xX" and len(digits) > 2 else str(new)
    return _replacements(line, code, r"(?<![\w.])(?:0x[0-9A-Fa-f]+|[0-9]+)(?![\w.])", changed)


def comparison(line, code):
    yield from _replacements(line, code, r"(?<= )(?:==|!=|<=|>=|<|>)(?= )",
                             {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">"})


def logic(line, code):
    yield from _replacements(line, code, r"&&(?= )|\|\|", {"&&": "||", "||": "&&"})
    yield from _replacements(line, code, r"(?<=[( ])!(?=[\w(])", lambda match: "")


def truth(line, code):
    yield from _replacements(line, code, r"\b(?:true|false)\b", {"true": "false", "false": "true"})


def arithmetic(line, code):
    yield from _replacements(line, code, r"(?<=[\w)\]] )[-+&|](?= )", {"+": "-", "-": "+", "&": "|", "|": "&"})
    yield from _replacements(line, code, r"(?<= )(?:<<|>>)(?= [0-9])", {"<<": ">>", ">>": "<<"})
    yield from _replacements(line, code, r"[-+|]=|\|=", {"+=": "-=", "-=": "+=", "|=": "&="})


def byte_order(line, code):
    yield from _replacements(line, code, r"\b(?:[us]16|u32)(?:le|be)\b",
                             lambda match: match.group(0)[:-2] + ("be" if match.group(0).endswith("le") else "le"))
    yield from _replacements(line, code, r"\bqint(?:8|16)(?=\()", lambda match: "qu" + match.group(0)[1:])


def bound(line, code):
    yield from _replacements(line, code, r"\bq(?:Min|Max)\b", {"qMin": "qMax", "qMax": "qMin"})
    for match in re.finditer(r"\bqBound\(", code):
        parts = _arguments(code, match.end() - 1)
        if len(parts) == 3:
            low, value, high = (line[a:b].strip() for a, b in parts)
            for new in ("qMax(%s, %s)" % (low, value), "qMin(%s, %s)" % (value, high)):
                yield line[:match.start()] + new + line[parts[2][1] + 1:]


def text(line, code):
    if re.search(r"\bqWarning\b", code):
        return  # read by people alone
    for match in re.finditer(r'"_+"', code):
        inside = line[match.start() + 1:match.end() - 1]
        plain = [m.start() for m in re.finditer(r"(?<![\\%])[A-Za-z0-9]", inside)]
        if plain:
            at = match.start() + 1 + plain[-1]
            yield line[:at] + ("Z" if line[at] != "Z" else "Y") + line[at + 1:]


def statement(line, code):
    if re.match(r"\s+(?:Q_EMIT )?[\w:]+(?:(?:\.|->)\w+|\([^()]*\))*\(.*\);$", code):
        if not re.match(r"\s+(?:return|qWarning|Q_UNUSED|static_assert|connect\(this, SIGNAL\(destroyed)\b", code):
            yield ""
    elif re.match(r"\s+(?:m_\w+|\w+(?:\.|->)\w+)(?:\[[^=]*\])? [-+|&^]?= .*;$", code):
        yield ""
    elif re.match(r"\s+(?:break|continue);$", code):
        yield ""


def guard(line, code):
    match = re.match(r"(\s+(?:\} else )?if \()(.*)(\) \{)$", code)
    if match:
        inside = line[match.end(1):match.start(3)]
        yield line[:match.end(1)] + "false && (" + inside + ")" + line[match.start(3):]


LAST_COLUMN = r"(\s*\{.*[,{] ?)([^,{}]+(?:\{[^{}]*\})?)(\},?\s*)"


def _exchanged(lines, codes):
    """Two table rows with their last columns exchanged, so that both are wrong wherever they stand; None if it is
    the same."""
    last = [re.fullmatch(LAST_COLUMN, code) for code in codes]
    if not all(last):
        return None
    ends = [line[match.start(2):match.end(2)] for line, match in zip(lines, last)]
    if ends[0] == ends[1]:
        return None
    return [line[:match.start(2)] + end + line[match.end(2):] for line, match, end in zip(lines, last, ends[::-1])]


def entries(line, code):
    """Two neighbours of a list change places."""
    code = code.rstrip()
    if not re.match(r"\s+[^\s;:,][^;]*,[^;]*$", code):
        return
    parts = [(a - 1, b - 1) for a, b in _arguments("(" + code.rstrip(",") + ")", 0)]
    for (a, b), (c, d) in zip(parts, parts[1:]):
        both = [line[a:b], line[c:d]]
        if "{" in code[a:b]:
            changed = _exchanged(both, [code[a:b], code[c:d]])
        else:
            blank = [text[:len(text) - len(text.lstrip())] for text in both]
            changed = [blank[0] + both[1].strip(), blank[1] + both[0].strip()]
        if changed and both[0].strip():
            yield line[:a] + changed[0] + line[b:c] + changed[1] + line[d:]


def rows(lines, codes):
    """The same with two lines of a table."""
    changed = _exchanged(lines, codes)
    if changed:
        yield "\n".join(changed)


PATTERNS = [number, comparison, logic, truth, arithmetic, byte_order, bound, text, statement, guard, entries]


def faults_of(path, source):
    """All faults of one file, in the order of its lines."""
    lines, codes = source.split("\n"), masked(source).split("\n")
    in_directive = False
    for i, (line, code) in enumerate(zip(lines, codes)):
        # Macros are code elsewhere, and assertions are checks themselves.
        in_directive = in_directive or code.startswith("#")
        skip = in_directive or "static_assert" in code or not code.strip()
        in_directive = in_directive and code.endswith("\\")
        if skip:
            continue
        for pattern in PATTERNS:
            # Declarations look like calls.
            if pattern is statement and path.endswith(".h") and "m_" not in code and "->" not in code:
                continue
            for new in pattern(line, code):
                if new != line:
                    yield Fault(path, i + 1, pattern.__name__, line, new)
        if i + 1 < len(lines):
            for new in rows(lines[i:i + 2], codes[i:i + 2]):
                yield Fault(path, i + 1, "rows", "\n".join(lines[i:i + 2]), new)
