"""The mutations of a source: each constant, comparison, operator, rounding and step."""

import dataclasses
import re

TOKEN = re.compile(
    r"""(?P<skip>//[^\n]*|/\*.*?\*/|^[ ]*\#[^\n]*|\s+)
      |(?P<string>(?:u8|u|U|L)?"(?:\\.|[^"\\])*"(?:_qs)?)
      |(?P<char>u?'(?:\\.|[^'\\])')
      |(?P<number>(?:0x[0-9A-Fa-f]+|\d[\d']*(?:\.\d+)?(?:e-?\d+)?)[UuLl]*)
      |(?P<name>[A-Za-z_]\w*)
      |(?P<sign><=>|<<=|>>=|->|\+\+|--|&&|\|\||[-+*/%^&|<>=!]=|<<|>>|::|[^\s\w])""",
    re.VERBOSE | re.MULTILINE | re.DOTALL,
)

# Operators with a space on both sides, as .clang-format writes them between two operands; a sign of a
# template or of a reference has none.
BETWEEN = {
    "<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"),
    "==": ("!=",), "!=": ("==",), "&&": ("||",), "||": ("&&",),
    "+": ("-",), "-": ("+",), "*": ("/",), "/": ("*",), "%": ("*", "/"),
    "+=": ("-=",), "-=": ("+=",), "^": ("|",), "&": ("|",), ">>": ("<<",), "<<": (">>",),
}
BEFORE = {"!": ("",), "-": ("",), "++": ("--",), "--": ("++",)}
NAMES = {
    "true": ("false",), "false": ("true",),
    "llrint": ("llround", "floor", "trunc"),
    "FromDoubleInCents": ("FromDouble",), "FromDouble": ("FromDoubleInCents",),
    "SumOverflows": ("DifferenceOverflows",), "DifferenceOverflows": ("SumOverflows",),
    "ProductOverflows": ("SumOverflows",),
    "stable_sort": ("sort",), "max": ("min",), "min": ("max",), "min_element": ("max_element",),
    "ceil": ("floor",), "expm1": ("exp",), "log1p": ("log",), "clamp": ("max",),
}
ENUMERATORS = {
    "Accrual": ("AfterPayment", "BeforePayment"),
    "DateStep": ("Month", "HalfMonth", "Days"),
    "LeftOut": ("No", "NeverEnds"),
    "PaymentChoice": ("Intended", "Required", "Monthly"),
    "ScheduleEnd": ("InTime", "TooLate", "Unclear"),
    "SortOrder": ("Entry", "Interest", "PayoffDate"),
    "TextNumber": ("FrequencyMonthly", "FrequencyTwiceAMonth", "FrequencyEveryTwoWeeks",
                   "FrequencyEveryFourWeeks"),
}
CONDITION = re.compile(r"(?<=if \()(?P<all>[^\n]+)(?=\) \{$)"
                       r"|(?P<pick>(?:(?<=\()|(?<= = )|(?<=return ))[a-z]\w*)(?= \? )",
                       re.MULTILINE)
# A complete statement on one line: a call, an assignment to an existing variable, an increment or
# decrement, a throw.
STEP = re.compile(r"^ +(?P<step>(?:(?:\w+(?:\.|->|::))*\w+\([^\n]*\)|\*?[\w.>-]+ [-+|]?= [^\n]+"
                  r"|(?:\+\+|--)[\w.]+|throw [^\n]+);)(?: *//[^\n]*)?$", re.MULTILINE)


@dataclasses.dataclass
class Change:
    """One change of a file. The body is that of the enclosing function; None outside functions."""
    file: str
    start: int
    end: int
    old: str
    new: str
    line: str
    body: tuple = None
    number: int = 0

    @property
    def what(self):
        return f"{self.old} -> {self.new or 'nothing'}"


def tokens(text):
    return [(match.lastgroup, match.group(), match.start()) for match in TOKEN.finditer(text)
            if match.lastgroup != "skip"]


def other_numbers(text):
    digits = re.match(r"(0x[0-9A-Fa-f']+|[\d'.]+(?:e-?\d+)?)(.*)", text)
    plain, suffix = digits.group(1).replace("'", ""), digits.group(2)
    if "." in plain or "e" in plain and not plain.startswith("0x"):
        if float(plain) > 1e15:  # adding one would not change the number
            return f"{float(plain) * 2!r}", f"{float(plain) / 2!r}"
        return (f"{float(plain) + 1!r}", f"{float(plain) - 1!r}") if float(plain) else ("1.0",)
    value = int(plain, 0)
    return (f"{value + 1}{suffix}", f"{value - 1}{suffix}") if value else (f"1{suffix}",)


def regions(text, all_tokens):
    """The bodies of functions, and the enumerations, whose numbers are only identifiers."""
    bodies, enumerations = [], []
    stack, statement, parentheses = [], [], 0
    for kind, token, start in all_tokens:
        inside = "body" in stack
        if token in "()":
            parentheses += 1 if token == "(" else -1
        if token == "{" and not parentheses:
            calls = [name for name in statement if name not in ("const", "override", "noexcept")]
            if inside:
                stack.append("block")
            elif calls and calls[-1] == ")":
                stack.append("body")
                bodies.append([start, None])
            elif "enum" in statement:
                stack.append("enum")
                enumerations.append([start, None])
            elif "=" in statement or not {"namespace", "class", "struct"} & set(statement):
                stack.append("values")
            else:
                stack.append("scope")
        elif token == "}" and not parentheses:
            closed = stack.pop()
            if closed == "body":
                bodies[-1][1] = start + 1
            elif closed == "enum":
                enumerations[-1][1] = start
        if "values" not in stack and not parentheses and token in ("{", "}", ";"):
            statement = []
        else:
            statement.append(token)
    return [tuple(body) for body in bodies], [tuple(span) for span in enumerations]


def replacements(text, all_tokens):
    """Start, end and new text of each change of a single token."""
    for at, (kind, token, start) in enumerate(all_tokens):
        end = start + len(token)
        blank_before, blank_after = text[start - 1].isspace(), text[end:end + 1].isspace()
        if kind == "number":
            others = other_numbers(token)
        elif kind == "char":
            others = (token[:-2] + chr(ord(token[-2]) + 1) + "'",)
        elif kind == "name" and at > 1 and all_tokens[at - 1][1] == "::" \
                and all_tokens[at - 2][1] in ENUMERATORS:
            start = all_tokens[at - 2][2]
            others = [f"{all_tokens[at - 2][1]}::{name}"
                      for name in ENUMERATORS[all_tokens[at - 2][1]] if name != token]
        elif kind == "name" and (text[start - 2:start] != "::" or text[start - 5:start] == "std::") \
                or token.startswith("FromDouble"):
            others = () if text.startswith("(double ", end) else NAMES.get(token, ())
        elif kind == "sign" and blank_before and blank_after:
            others = BETWEEN.get(token, ())
        elif kind == "sign" and not blank_after and not text[start - 1].isalnum():
            others = BEFORE.get(token, ())
        else:
            others = ()
        for other in others:
            yield start, end, other


def constants_of(text):
    """The constants of classes: their uses are changed instead, one after the other."""
    return set(re.findall(r"^ +static constexpr [\w:]+ (\w+) = ", text, re.MULTILINE))


def changes_of(file, text, constants=()):
    """Every change of a source, grouped by function body."""
    all_tokens = tokens(text)
    bodies, enumerations = regions(text, all_tokens)
    found = [(start, end, new) for start, end, new in replacements(text, all_tokens)]
    found += [(start, start + len(token), f"({token} + 1)") for _, token, start in all_tokens
              if token in constants]
    code = {start: before for (_, _, start), (_, before, _) in
            zip(all_tokens, [(None, ";", None)] + all_tokens)}
    for match in CONDITION.finditer(text):
        # A single comparison or negation is covered by the change of its operator.
        single = not re.search("&&|[|][|]", match.group())
        if match.start() in code and not (single and re.search("[<>=!]=| [<>] |^!", match.group())):
            found.append((match.start(), match.end(), f"!({match.group()})"))
    for match in STEP.finditer(text):
        start, step = match.span("step")[0], match.group("step")
        if code.get(start) in (";", "{", "}", ":") and not step.startswith(("return", "using", "static_assert")):
            found.append((start, match.end("step"), ";"))
    changes = []
    for start, end, new in sorted(found):
        body = next((body for body in bodies if body[0] < start < body[1]), None)
        if body is None and text[start:end] == "0" and "virtual" in text[text.rfind("\n", 0, start):start]:
            continue  # a function without a body
        line = text[text.rfind("\n", 0, start) + 1:text.find("\n", start)].strip()
        # Outside functions: an operator between constants, a template argument, a class's constant.
        by_the_compiler = not text[start].isalnum() or text[end] == ">" or "static constexpr" in line
        if body is None and by_the_compiler or any(span[0] <= start < span[1] for span in enumerations):
            continue
        changes.append(Change(file, start, end, text[start:end], "" if new == ";" else new, line, body))
    return changes
