#!/usr/bin/python3
"""Prints what kel-bench measured as a table of ratios, and holds the bars.

Usage: bench/table.py FILE, which kel-bench wrote with --benchmark_out=FILE and several repetitions. Figures are those
of the fastest repetition. The exit status is 1 when a bar is missed, or something was not measured.
"""

import json
import sys
from dataclasses import dataclass
from pathlib import Path

DPD = ["startDpd", "stopDpd", "setDpdCoefficients", "getDpdCoefficients"]
PPS = ["calibratePps", "setPpsSource", "setPpsOutputMode"]
XPIC = ["setXpicSlaveMute", "xpicAcquireStart", "getXpicPreamble", "setXpicPreamble"]
REPORTS = ["getXpicStatus", "getPpsCalibrationStatus", "getPpsHopLengthTime"]
RECORDS = ["print StandardResponse", "print CriGetHopLengthTimeDspPps", "print TiManageXpic",
           "print CriGetRadioChannelStatus", "print CriGetRadioChannelCapability:0",
           "print CriGetRadioChannelCapability:42"]
OPERATIONS = ["getCtStatus:42", "getBcmModemStatus", *REPORTS, *PPS, *DPD, *XPIC]

# Operation, its way, the way that it is compared with, how many times as much it may cost.
BARS = (
    [("getCtStatus:42", "module", "floor", 2.5)]
    + [(name, "module", "floor", 3.0) for name in REPORTS + RECORDS]
    + [(name, "module", "bare", 1.5) for name in DPD]
    + [(name, "module", "bare", 1.3) for name in PPS + XPIC]
    # There is no report to compose. With its last service failing, most of one was composed: the same, to a few lines.
    + [(name, "failed", "module", 1.0) for name in ["getCtStatus:42", *REPORTS]]
    + [("getCtStatus:42", "failed last", "module", 1.05)]
    # The message-buffer style formats nothing for a silent trace, but has to ask it; the other styles do format.
    + [(name, "failed", "module", 1.3) for name in PPS]
    + [("start", "kel-node getCtStatus 1", "empty program", 2.0),
       ("startDpd lines", "kel-node", "sqlite3", 1.0)]
)
LINES_A_SECOND = {"startDpd lines": 100_000, "getCtStatus lines": 20_000}
MEMORY_KIB = 16 * 1024 - 1
LINEAR = 0.10  # how far a line of a report of 1000 may be from a line of one of 42, in parts of it


@dataclass
class Figure:
    time_ns: float
    counters: dict[str, float]


Figures = dict[tuple[str, str], Figure]  #: (operation, way)


def read(path: Path) -> Figures:
    units = {"ns": 1, "us": 1e3, "ms": 1e6}
    figures: Figures = {}
    for entry in json.loads(path.read_text())["benchmarks"]:
        if entry.get("aggregate_name") != "least":
            continue
        operation, way = entry["run_name"].split("/")[:2]  # behind them, how it was measured
        # Programs are other processes: their time is the wall's.
        time = entry["real_time" if entry["run_name"].endswith("/real_time") else "cpu_time"]
        counters = {name: entry[name]
                    for name in ("allocations", "bytes", "memory_KiB", "lines") if name in entry}
        figures[operation, way] = Figure(time * units[entry["time_unit"]], counters)
    return figures


def lines_a_second(figure: Figure) -> float:
    return figure.counters["lines"] / figure.time_ns * 1e9


def by_number(operation: str) -> tuple[str, int]:
    """Orders "getCtStatus:14" before "getCtStatus:1000"."""
    name, _, lines = operation.partition(":")
    return name, int(lines or 0)


def shown(time_ns: float) -> str:
    if abs(time_ns) < 1e3:
        return f"{time_ns:.1f} ns"
    return f"{time_ns / 1e3:.1f} us" if time_ns < 1e6 else f"{time_ns / 1e6:.1f} ms"


class Table:
    """What is printed, and what was missed."""

    def __init__(self, figures: Figures) -> None:
        self._figures = figures
        self.missed: list[str] = []

    def costs(self) -> None:
        ways = ["module", "bare", "floor", "failed"]
        print(f"{'operation':<39}" + "".join(f"{way:>11}" for way in [*ways, "adds"])
              + f"{'allocations':>13}{'bytes':>9}{'of which bare':>19}")
        for operation in sorted((operation for operation, way in self._figures if way == "module"), key=by_number):
            figures = {way: self._figures.get((operation, way)) for way in ways}
            times = "".join(f"{shown(figure.time_ns) if figure else '':>11}" for figure in figures.values())
            module, bare = figures["module"], figures["bare"]
            adds = shown(module.time_ns - bare.time_ns) if bare else ""
            counts = f"{module.counters['allocations']:>13.0f}{module.counters['bytes']:>9.0f}"
            bares = f"{bare.counters['allocations']:>10.0f}{bare.counters['bytes']:>9.0f}" if bare else ""
            print(f"{operation:<39}{times}{adds:>11}{counts}{bares}".rstrip())

    def programs(self) -> None:
        print(f"\n{'programs':<51}{'time':>11}{'lines a second':>17}{'memory':>13}")
        for (operation, way), figure in sorted(self._figures.items()):
            if operation in ("start", "load", *LINES_A_SECOND):
                rate = lines_a_second(figure) if operation in LINES_A_SECOND else None
                memory = figure.counters.get("memory_KiB")
                print(f"{operation + ': ' + way:<51}{shown(figure.time_ns):>11}"
                      f"{f'{rate:,.0f}' if rate else '':>17}{f'{memory:,.0f} KiB' if memory else '':>13}".rstrip())
        load = self._figures["load", "with the library"].time_ns - self._figures["load", "without"].time_ns
        print(f"{'load: the library alone, the difference':<51}{shown(load):>11}")

    def bars(self) -> None:
        print(f"\n{'bars':<73}{'found':>9}{'at most':>9}")
        for operation, way, other, bar in BARS:
            ratio = self._figures[operation, way].time_ns / self._figures[operation, other].time_ns
            self._line(f"{operation}: {way} / {other}", f"{ratio:.2f}", f"{bar:.2f}", ratio <= bar)
        for operation in DPD:
            allocations = self._figures[operation, "module"].counters["allocations"]
            self._line(f"{operation}: allocations", f"{allocations:.0f}", "0", allocations == 0)
        self._growth()
        for operation in LINES_A_SECOND:
            memory = self._figures[operation, "kel-node"].counters["memory_KiB"]
            self._line(f"{operation}: kel-node: memory (KiB)", f"{memory:.0f}", f"{MEMORY_KIB}", memory <= MEMORY_KIB)
        print(f"\n{'':<73}{'found':>9}{'at least':>9}")
        for operation, least in LINES_A_SECOND.items():
            rate = lines_a_second(self._figures[operation, "kel-node"])
            self._line(f"{operation}: kel-node, a second", f"{rate:.0f}", f"{least}", rate >= least)
        # Were nothing counted, no operation would allocate.
        allocations = self._figures["getCtStatus:42", "module"].counters["allocations"]
        self._line("getCtStatus:42: allocations", f"{allocations:.0f}", "1", allocations >= 1)

    def _growth(self) -> None:
        nothing, few, many = (self._figures[f"getCtStatus:{lines}", "module"].time_ns for lines in (0, 42, 1000))
        growth = abs(((many - nothing) / 1000) / ((few - nothing) / 42) - 1)
        self._line("getCtStatus: a line of 1000 against a line of 42, difference", f"{growth:.2f}", f"{LINEAR:.2f}",
                   growth <= LINEAR)

    def _line(self, what: str, found: str, bar: str, holds: bool) -> None:
        print(f"{what:<73}{found:>9}{bar:>9}  {'holds' if holds else 'MISSED'}")
        if not holds:
            self.missed.append(f"{what}: found {found}, expected {bar}")


def unmeasured(figures: Figures) -> list[str]:
    """What the table needs and the run has not measured."""
    wanted = [(operation, way) for operation in OPERATIONS for way in ("module", "bare", "failed")]
    wanted += [(operation, way) for operation, one, other, _ in BARS for way in (one, other)]
    wanted += [(operation, way) for operation in LINES_A_SECOND for way in ("kel-node", "sqlite3")]
    wanted += [("getCtStatus:0", "module"), ("getCtStatus:14", "module"), ("getCtStatus:1000", "module"),
               ("load", "with the library"), ("load", "without")]
    return sorted({f"{operation}: {way}" for operation, way in wanted if (operation, way) not in figures})


def main(path: Path) -> int:
    figures = read(path)
    said = [f"{what}: found no figure, expected one" for what in unmeasured(figures)]
    if not said:
        table = Table(figures)
        table.costs()
        table.programs()
        table.bars()
        said = table.missed
    for objection in said:
        print(f"bench: {objection}", file=sys.stderr)
    return 1 if said else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1])))
