"""Joins the units that the static checks read, so that the headers they share are read once.

    lint_batches.py FOLDER SIZE <UNITS

Units with the same flags, of which none declares for itself a name that another one or a header
declares, are written one after the other into FOLDER/batch_N.cpp, at most SIZE of them; the batch
becomes a unit of FOLDER/compile_commands.json. Prints "BATCH UNIT UNIT..." a line, or "UNIT" for
one alone. Names are guessed by the look of formatted lines: a wrong guess makes a batch that does
not compile, and the caller then has to check its units one by one.
"""

import json
import re
import sys
from collections import defaultdict
from pathlib import Path

TYPE = re.compile(r"(?:class|struct|union|enum class|enum|concept|using|namespace) (?:\[\[\w+\]\] )?(\w+)")
VALUE = re.compile(r"(\w+)(?:\[.*\])?(?:\(| =|\{|;|$)")
CONSTANT = re.compile(r"\b(k[A-Z]\w*)\b(?:\[\w*\])? ?[={]")
# These reach into the rest of a batch, or a use there would hide that they are of none.
ASKED_OF_ALL = re.compile(r"^ *using (?:namespace )?[\w:]+::\w+;|^using (?:namespace|enum) ", re.M)


def declared_by(line):
    found = set(CONSTANT.findall(line))
    if line[0] in " /}#*":
        return found
    first = TYPE.match(line) or VALUE.search(re.sub(r"^template <.*?> (?=\w)", "", line))
    return found | ({first.group(1)} if first else set())


def own_names(text):
    """What a unit declares for itself: in unnamed namespaces, as static, or as another name."""
    names, unnamed = set(), False
    for line in text.splitlines():
        if line.startswith("namespace {"):
            unnamed = True
        elif line.startswith("}  // namespace"):
            unnamed = False
        elif line and (unnamed or re.match(r"static |using |namespace \w+ =", line)):
            names |= declared_by(line)
    return names


def types_of_headers():
    """The types that headers declare outside of other types."""
    headers = [path for top in ("src", "sim") for path in Path(top).rglob("*.h")]
    lines = (line for path in headers for line in path.read_text().splitlines())
    return {match.group(1) for match in map(TYPE.match, lines) if match}


def main(folder, size):
    database = json.loads((folder / "compile_commands.json").read_text())
    flags = defaultdict(set)
    for entry in database:
        flags[entry["file"]].add(re.sub(r" -o \S+ -c \S+", "", entry["command"]))

    shared = types_of_headers()
    alone, batches = [], defaultdict(list)  # by flags: units, texts and names of each batch
    for unit in sys.stdin.read().split():
        text, known = Path(unit).read_text(), flags[str(Path(unit).resolve())]
        names = own_names(text)
        if len(known) != 1 or names & shared or ASKED_OF_ALL.search(text):
            alone.append(unit)
            continue
        same = batches[min(known)]
        batch = next((b for b in same if len(b[0]) < size and not b[2] & names), ([], [], set()))
        if not batch[0]:
            same.append(batch)
        batch[0].append(unit)
        batch[1].append(text)
        batch[2].update(names)

    found = [(command, *batch) for command, some in batches.items() for batch in some]
    for number, (command, units, texts, _) in enumerate(found):
        if len(units) == 1:
            alone += units
            continue
        file = (folder / f"batch_{number}.cpp").resolve()
        file.write_text("\n".join(texts))
        database.append({"directory": database[0]["directory"], "file": str(file),
                         "command": f"{command} -o {file}.o -c {file}"})
        print(file, *units)
    (folder / "compile_commands.json").write_text(json.dumps(database, indent=1))
    print("\n".join(alone))


main(Path(sys.argv[1]), int(sys.argv[2]))
