"""Statements reduced to what their grammar is about, so that a parser need not read the same sentence twice."""

import re

LITERAL = re.compile(r"'(?:[^']|'')*'|(?<![\w.])\d+(?:\.\d+)?")
TOKEN = re.compile(r"'x'|\[[^\]]*\]|(?P<glued>\d+)?(?P<word>[A-Za-z_@#][\w@#$]*)|.", re.S)

# Words of the language that the statements use, which stay; every other word is a name.
WORDS = set(
    """abs add all alter and as asc avg between bit by case cast convert count create cross datediff datepart datetime
    day default delete desc distinct drop else end exists float from full getdate group having identity identity_insert
    if in index inner insert int into is isnull join key left len like lower ltrim max min month not null numeric off on
    or order outer persisted primary replace right rtrim select set str substring sum table then top union unique update
    upper values varchar view when where year""".split()
)

VALUE = r"(?:c\.c|c|'x'|1|null)"
# A run of what repeats in a list; two of them are as good as ten.
RUNS = [
    re.compile(r"(c varchar\(1\)|c c|" + VALUE + r")(?:,\1){2,}(?![\w.'(=])"),
    re.compile(r"(c=" + VALUE + r")(?:,c=" + VALUE + r"){2,}(?![\w.'])"),
    re.compile(r"(\([^()]*\))(?:,\([^()]*\)){2,}"),
]
CONDITION = re.compile(r" ?and (?:c\.)?c(?:=| like )(?:'x'|1|(?:c\.)?c)(?= and| order| group|\)|$)")


def shape(statement):
    """The statement with every text 'x' and every number 1, and one blank where there are several."""
    text = LITERAL.sub(lambda match: "'x'" if match[0][0] == "'" else "1", statement)
    return re.sub(r"\s+", " ", text).strip()


def structure(text, names):
    """A shape with every name c; the names are added to the set. Equal conditions stand once."""
    written = []
    behind_point = False
    for token in TOKEN.finditer(text):
        word = token["word"]
        if word and (behind_point or word.lower() not in WORDS):
            names.add(word.lower())
            written.append((token["glued"] or "") + "c")
        else:
            written.append(token[0].lower() if word else token[0])
        behind_point = token[0] == "."
    reduced = re.sub(r" ?([,=()<>+]) ?", r"\1", "".join(written))
    for run in RUNS * 2:
        reduced = run.sub(r"\1,\1", reduced)
    seen = set()

    def once(match):
        condition = match[0].strip().replace("c.c", "c")
        return match[0] if condition not in seen and not seen.add(condition) else ""

    return CONDITION.sub(once, reduced)
