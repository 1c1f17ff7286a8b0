"""Sends commands with random faults through one process of the node and holds every answer against a prediction.

The commands are tours, each from the start of a node. Each tour is made twice: its answers must be the same to the
byte. Meanwhile neither the memory nor the open files of the process may grow.

Usage: soak.py PROGRAM COMMANDS
"""

import hashlib
import itertools
import json
import os
import random
import re
import subprocess
import sys
import threading
from collections.abc import Iterator
from dataclasses import dataclass
from pathlib import Path

from prediction import CALLS, Answer, Fault, Prediction

TOUR = 20_000  # commands; more than the program keeps of a session
BATCH = 500  # commands that are sent at once: they fit into a pipe
PATIENCE_S = 300  # with the answers to a batch, which take a fraction of a second
GROWTH_KIB = 1024  # of the second half over the first half: less than 2.1 bytes a command in a million


class Unexpected(Exception):
    """An answer, or the process, is not as predicted."""


@dataclass
class Expectation:
    line: str
    answer: Answer


def arguments_of(command: str, dice: random.Random) -> list[str]:
    """Behind the channel: values that the services take."""
    match command:
        case "calibratePps":
            return ["3", str(dice.randint(0, 65535))]
        case "setPpsSource":
            return [str(dice.randint(0, 2)), str(dice.randint(-(2**31), 2**31 - 1))]
        case "setPpsOutputMode":
            return [str(dice.randint(0, 2))]
        case "setDpdCoefficients":
            return [dice.randbytes(20).hex()]
        case "setXpicSlaveMute":
            return [dice.choice(["0", "1"])]
        case "xpicAcquireStart":
            return [str(dice.randint(0, 2)), str(dice.randint(0, 3))]
        case "setXpicPreamble":
            return [str(dice.randint(0, 3))]
    return []


def operation(prediction: Prediction, dice: random.Random) -> Expectation:
    command = dice.choice(list(CALLS))
    channel = dice.randint(1, 2)
    arguments = arguments_of(command, dice)
    line = " ".join([command, str(channel), *arguments])
    return Expectation(line, prediction.answer(command, channel, arguments))


def new_fault(prediction: Prediction, dice: random.Random) -> Expectation:
    calls = sorted({call for calls in CALLS.values() for call in calls})
    fault = Fault(
        call=dice.choice(calls),
        channel=dice.choice([None, 1, 2]),
        text=f"fault {dice.randint(0, 9999)}",
        throws=dice.random() < 0.3,
        first=dice.randint(1, 5),
        calls=dice.randint(1, 8),
    )
    prediction.plan.faults.append(fault)
    return Expectation(f"addFault {fault.words()}", Answer())


def tour(seed: int, commands: int) -> Iterator[Expectation]:
    """Commands to a node that was just started, with what is known of their answers."""
    dice = random.Random(seed)
    prediction = Prediction()
    for number in range(commands):
        chance = dice.random()
        if number % 1000 == 998:
            report = "".join(fault.line() for fault in prediction.plan.faults)
            yield Expectation("listFaults", Answer(report=report))
        elif number % 1000 == 999:
            prediction.plan.faults.clear()
            yield Expectation("clearFaults", Answer())
        elif chance < 0.05:
            yield new_fault(prediction, dice)
        elif chance < 0.06:
            yield Expectation(f"advance {dice.randint(1, 600) / 10}s", Answer())
        else:
            yield operation(prediction, dice)


def compare(expectation: Expectation, document: dict) -> None:
    expected = expectation.answer
    found = Answer(
        document["result"],
        document["report"],
        [message["text"] for message in document["trace"]],
        document["error"],
    )
    if expected.report is None and found.report != "":
        expected = Answer(expected.result, found.report, expected.traced, expected.error)
    if found != expected:
        raise Unexpected(f'"{expectation.line}" ({document["place"]}): found {found}, expected {expected}')


class Node:
    """The process, and what it uses. One that does not answer a batch in time is ended."""

    def __init__(self, program: str) -> None:
        self._process = subprocess.Popen(
            [program, "--json", "--keep-going"], stdin=subprocess.PIPE, stdout=subprocess.PIPE
        )
        self._folder = Path(f"/proc/{self._process.pid}")
        self.answered = 0
        self.memory_KiB: list[int] = []
        self.files: set[int] = set()

    def answers(self, lines: list[str]) -> list[bytes]:
        stdin, stdout = self._process.stdin, self._process.stdout
        assert stdin and stdout
        stdin.write("".join(line + "\n" for line in lines).encode())
        stdin.flush()
        patience = threading.Timer(PATIENCE_S, self._process.kill)
        patience.start()
        answers = [stdout.readline() for _ in lines]
        patience.cancel()
        if not answers[-1]:
            raise Unexpected(f"the node has gone, after {self.answered} commands: status {self._process.wait()}")
        self.answered += len(answers)
        self._measure()
        return answers

    def end(self) -> None:
        assert self._process.stdin
        self._process.stdin.close()
        if (status := self._process.wait()) != 1:
            raise Unexpected(f"exit status: found {status}, expected 1, for there were failures")

    def _measure(self) -> None:
        pages = int((self._folder / "statm").read_text().split()[1])
        self.memory_KiB.append(pages * os.sysconf("SC_PAGESIZE") // 1024)
        self.files.add(len(list((self._folder / "fd").iterdir())))


def make_tour(node: Node, seed: int, commands: int) -> list[bytes]:
    """@return the answers' digests, without the places of their commands"""
    node.answers(["loadScenario clear-sky"])
    digests = []
    expectations = tour(seed, commands)
    while batch := list(itertools.islice(expectations, BATCH)):
        for expectation, answer in zip(batch, node.answers([e.line for e in batch])):
            compare(expectation, json.loads(answer))
            digests.append(hashlib.sha1(re.sub(rb'"place":"[^"]*"', b"", answer, count=1)).digest())
    return digests


def soak(program: str, commands: int) -> str:
    node = Node(program)
    length = min(TOUR, commands // 2)
    for seed in range(commands // (2 * length)):
        if make_tour(node, seed, length) != make_tour(node, seed, length):
            raise Unexpected(f"tour {seed}: the second time its answers differ from the first")
        print(f"{node.answered} commands, {node.memory_KiB[-1]} KiB", file=sys.stderr)
    half = len(node.memory_KiB) // 2
    first, second = max(node.memory_KiB[:half]), max(node.memory_KiB[half:])
    if second > first + GROWTH_KIB:
        raise Unexpected(f"memory: found {second} KiB in the second half, expected {first} KiB as in the first")
    if len(node.files) > 1:
        raise Unexpected(f"open files: found from {min(node.files)} to {max(node.files)}, expected as many always")
    node.end()
    return (
        f"{node.answered} commands, results and traces as predicted, reports twice the same; "
        f"memory {first} KiB at most in the first half, {second} KiB in the second; {node.files.pop()} files open"
    )


if __name__ == "__main__":
    try:
        print(soak(sys.argv[1], int(sys.argv[2])))
    except Unexpected as error:
        print(f"soak: {error}", file=sys.stderr)
        sys.exit(1)
