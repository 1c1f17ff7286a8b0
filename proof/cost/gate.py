"""Reads what the operations and the library cost, and holds it against the list.

Usage: proof/cost/gate.py FOLDER [--update], from the project's root. FOLDER has callgrind's dumps of kel-bench, in
"names" what kel-bench measures, in "made-with" the tools, and the library without its symbols. Prints the figure; what
has grown goes to standard error, a line each, and the status is 1.
"""

import re
import subprocess
import sys
from pathlib import Path

LIST = Path("proof/cost/baseline.txt")
LIBRARY = "libKelKelDebugCmd.so"
GROWTH = 1.10
SECTIONS = [".text", ".rodata", ".data.rel.ro", ".data", ".bss", ".eh_frame", ".gcc_except_table", ".dynsym", ".dynstr"]
WAYS = {"module": "", "failed": ", failing", "failed last": ", failing last"}

Costs = dict[str, int]  #: what -> how much


class Unreadable(Exception):
    """What is there cannot be a measurement."""


def instructions(folder: Path) -> Costs:
    """Of one run of everything that the module and the records do."""
    costs = {}
    for dump in folder.glob("callgrind.out*"):
        text = dump.read_text()
        named = re.search(r"^desc: Trigger: Client Request: (.*)/(.*) x(\d+)$", text, re.MULTILINE)
        total = re.search(r"^(?:summary|totals): (\d+)", text, re.MULTILINE)
        if named and total and named[2] in WAYS:
            costs[f"instructions: {named[1]}{WAYS[named[2]]}"] = round(int(total[1]) / int(named[3]))
    return costs


def wanted(names: str) -> set[str]:
    """What there have to be instructions of: the names that kel-bench tells."""
    parted = [name.rsplit("/", 1) for name in names.splitlines()]
    return {f"instructions: {name[0]}{WAYS[name[1]]}" for name in parted if len(name) == 2 and name[1] in WAYS}


def tool(*command: str) -> str:
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def sizes(sections: str, relocations: str, file: int) -> Costs:
    """Of the library: what "size -A" and "readelf -rW" say of it, and the bytes of its file."""
    found = {line.split()[0]: int(line.split()[1]) for line in sections.splitlines() if line.startswith(".")}
    missing = [name for name in [*SECTIONS, ".init_array"] if name not in found]
    if missing:
        raise Unreadable(f"{LIBRARY}: found no {', '.join(missing)}, expected such sections")
    costs = {f"bytes: {name}": found[name] for name in SECTIONS}
    costs["bytes: file"] = file
    costs["relocations"] = len(re.findall(r"^[0-9a-f]{8,} ", relocations, re.MULTILINE))
    if costs["relocations"] == 0:
        raise Unreadable(f"{LIBRARY}: found no relocations, expected some")
    word = 8
    costs["static initialisers"] = found[".init_array"] // word
    return costs


def read_list(text: str) -> tuple[str, Costs]:
    """The tools, and the costs."""
    lines = text.splitlines()
    tools = "".join(line.removeprefix("# made with ") + "\n" for line in lines if line.startswith("# made with "))
    costs = [line.rsplit(maxsplit=1) for line in lines if line and not line.startswith("#")]
    return tools, {what: int(number) for what, number in costs}


def list_of(tools: str, costs: Costs) -> str:
    width = max(map(len, costs))
    return ("# What proof/cost/run found when it was last told to --update.\n"
            + "".join(f"# made with {tool}\n" for tool in tools.splitlines())
            + "".join(f"{what:<{width}} {number:>9}\n" for what, number in sorted(costs.items())))


def incomplete(found: Costs, names: set[str]) -> list[str]:
    """What kel-bench measures and has no instructions, or the other way round."""
    counted = {what for what in found if what.startswith("instructions: ")}
    return ([f"{what}: found no count, expected one" for what in sorted(names - counted)]
            + [f"{what}: found a count of something that kel-bench does not tell" for what in sorted(counted - names)]
            + (["kel-bench: found no names, expected some"] if not names else []))


def objections(found: Costs, listed: Costs) -> list[str]:
    said = [f"{what}: found {found[what]}, expected at most {listed[what] * GROWTH:.0f}"
            for what in sorted(found.keys() & listed.keys()) if found[what] > listed[what] * GROWTH]
    said += [f"{what}: found no such line in {LIST}, expected one" for what in sorted(found.keys() - listed.keys())]
    said += [f"{what}: found nothing of it, expected {listed[what]}" for what in sorted(listed.keys() - found.keys())]
    return said


def main(folder: Path, update: bool) -> int:
    library = folder / LIBRARY
    found = instructions(folder) | sizes(tool("size", "-A", str(library)), tool("readelf", "-rW", str(library)),
                                         library.stat().st_size)
    tools = (folder / "made-with").read_text()
    said = incomplete(found, wanted((folder / "names").read_text()))
    if update and not said:
        LIST.write_text(list_of(tools, found))
        print(f"{len(found)} costs written to {LIST}")
        return 0
    listed_tools, listed = read_list(LIST.read_text())
    if tools != listed_tools:
        said.append(f"found the tools {tools!r}, expected those of {LIST}: {listed_tools!r}; other tools, other counts")
    said += objections(found, listed)
    for objection in said:
        print(f"cost: {objection}", file=sys.stderr)
    for what in sorted(found.keys() & listed.keys()):
        if found[what] * GROWTH < listed[what]:
            print(f"cost: {what}: {found[what]} instead of {listed[what]}: proof/cost/run --update keeps that",
                  file=sys.stderr)
    print(f"{len(found)} costs, none grown by more than 10 %; getCtStatus with 42 powers "
          f"{found.get('instructions: getCtStatus:42', 0):,} instructions, library {found['bytes: file']:,} bytes")
    return 1 if said else 0


if __name__ == "__main__":
    try:
        sys.exit(main(Path(sys.argv[1]), sys.argv[2:] == ["--update"]))
    except Unreadable as unreadable:
        sys.exit(f"cost: {unreadable}")
