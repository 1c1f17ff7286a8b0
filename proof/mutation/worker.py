"""Makes mutants, one after the other, and runs the tests on them.

What is made is made by the commands of the unchanged build, with the worker's own copies of `src` and `platform` in
the place of the tree's. Objects that do not see the mutated file are those of the unchanged build.

Two things make it bearable. The standard headers that the module includes are compiled once. And a mutant in the body
of an inline function, or in a member's initialiser, is first compiled by itself and linked in front of the unchanged
objects: the linker keeps the first of several equal functions, so all of them call the mutated one. A mutant that
lives through this is built in full like the others.
"""

from __future__ import annotations

import os
import resource
import shutil
import signal
import subprocess
from pathlib import Path

from building import LIBRARY, MUTATED_FOLDERS, SPLIT_PROGRAM, Build, Program
from mutant import Mutant

CPU_SECONDS = 10
WALL_SECONDS = 120
MEMORY_BYTES = 4 << 30

DOES_NOT_COMPILE = "does not compile"
SAME_CODE = "same code"
SURVIVED = "survived"


class Worker:
    """Works in a folder of its own."""

    def __init__(self, build: Build, folder: Path):
        self.build = build
        self.folder = folder
        self.tree = folder / "tree"
        self.library = folder / "lib" / Path(LIBRARY).name
        self.optimised: dict[str, bytes] = {}  #: object of the module -> its bytes without any mutant
        self.killers: dict[str, list[str]] = {}  #: kind of mutant -> programs, the last successful one first
        shutil.rmtree(folder, ignore_errors=True)
        for name in MUTATED_FOLDERS:
            shutil.copytree(build.root / name, self.tree / name)
        self.library.parent.mkdir(parents=True)
        self.library_reader = self.made_library_reader()

    def made_library_reader(self) -> Path:
        """library_tests has the library's path in it."""
        program = next(program for program in self.build.programs if program.name == "library_tests")
        executable = self.folder / program.name
        made = all([self.compiled(name) for name in program.own_objects])
        if not made or not self.linked(program.link, executable, program.own_objects, None):
            raise RuntimeError(f"{program.name} cannot be made")
        return executable

    def failing_unchanged(self) -> list[str]:
        """Programs that fail without any mutant, with a module that is made as those of mutants are."""
        objects = self.build.library_objects
        if not all([self.compiled(name) for name in objects]) or not self.links_library(objects, None):
            raise RuntimeError("the module cannot be made without any mutant")
        return [program.name for program in self.build.programs if not self.lives(program, [])]

    # One mutant.

    def outcome(self, mutant: Mutant) -> str:
        """"killed by ...", or one of the words above."""
        path = self.tree / mutant.file
        unchanged = path.read_bytes()
        path.write_bytes(mutant.applied_to(unchanged))
        self.library.unlink(missing_ok=True)
        try:
            quick = self.quick_outcome(mutant) if path.suffix == ".h" else None
            return quick or FullOutcome(self, mutant).outcome()
        finally:
            path.write_bytes(unchanged)

    def quick_outcome(self, mutant: Mutant) -> str | None:
        """None where it takes more to know."""
        emitted = self.folder / "emitted.o"
        if not self.alone(mutant, mutant.emitter, emitted):
            return None if mutant.emitter and self.alone(mutant, None, emitted) else DOES_NOT_COMPILE
        if mutant.emitter is None:
            return None
        if mutant.in_platform:
            programs = [program for program in self.in_order(mutant) if program.target == SPLIT_PROGRAM]
            in_front = emitted
        else:
            programs = [program for program in self.in_order(mutant) if program.uses_library]
            in_front = None
            if not self.links_library([], emitted):
                return None
        for program in programs:
            executable = self.executable(program, [], in_front)
            if executable is None:
                return None
            if not self.passes(executable):
                return self.killed(mutant, program)
        return None

    def alone(self, mutant: Mutant, emitter: str | None, output: Path) -> bool:
        """Compiles the header and what makes the compiler emit the mutated function; without that, only reads it."""
        source = self.folder / "emitted.cpp"
        source.write_text(f'#include "{self.tree / mutant.file}"\n{emitter or ""}\n')
        name = self.build.library_objects[0]
        command = self.command(name, output)
        command[command.index("-c") + 1] = str(source)
        return self.succeeds([*self.with_standard_headers(command), *([] if emitter else ["-fsyntax-only"])])

    def killed(self, mutant: Mutant, program: Program) -> str:
        killers = self.killers.setdefault(mutant.edit.kind, [])
        if program.name in killers:
            killers.remove(program.name)
        killers.insert(0, program.name)
        return f"killed by {program.name}"

    def in_order(self, mutant: Mutant) -> list[Program]:
        """What is made soonest first, and among equals what last killed a mutant of the kind.

        The platform's own tests come before all others for a mutant of the platform.
        """
        killers = self.killers.get(mutant.edit.kind, [])
        library_cost = len(self.build.dependents(mutant.file, self.build.library_objects))

        def rank(program: Program) -> tuple[bool, int, int]:
            later = mutant.in_platform and program.target != SPLIT_PROGRAM
            cost = len(self.build.dependents(mutant.file, program.objects)) + program.uses_library * library_cost
            place = killers.index(program.name) if program.name in killers else len(killers)
            return later, cost, place
        return sorted(self.build.programs, key=rank)

    # How things are made.

    def translated(self, word: str) -> str:
        """Paths of the mutated folders and of the library are the worker's own."""
        for name in MUTATED_FOLDERS:
            word = word.replace(f"{self.build.root}/{name}/", f"{self.tree}/{name}/")
            if word == f"-I{self.build.root}/{name}":
                word = f"-I{self.tree}/{name}"
        return word.replace(str(self.build.folder / LIBRARY), str(self.library))

    def object_path(self, name: str) -> Path:
        return self.folder / "objects" / name

    def command(self, name: str, output: Path) -> list[str]:
        output.parent.mkdir(parents=True, exist_ok=True)
        words = [self.translated(word) for word in self.build.compile[name]]
        words[words.index("-o") + 1] = str(output)
        return words

    def with_standard_headers(self, command: list[str]) -> list[str]:
        return [command[0], "-include-pch", str(self.build.standard_headers), *command[1:]]

    def compiled(self, name: str) -> bool:
        command = self.command(name, self.object_path(name))
        return self.succeeds(self.with_standard_headers(command) if name in self.build.library_objects else command)

    def linked(self, command: list[str], output: Path, changed: list[str], in_front: Path | None) -> bool:
        words = [str(self.object_path(word)) if word in changed else word for word in command]
        words[words.index("-o") + 1] = str(output)
        words[1:1] = [str(in_front)] if in_front else []
        return self.succeeds(words)

    def links_library(self, changed: list[str], in_front: Path | None) -> bool:
        return self.linked(self.build.library_link, self.library, changed, in_front)

    def succeeds(self, command: list[str]) -> bool:
        done = subprocess.run(command, cwd=self.build.folder, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, check=False)
        return done.returncode == 0

    def lives(self, program: Program, changed: list[str]) -> bool:
        executable = self.executable(program, changed, None)
        return executable is not None and self.passes(executable)

    def executable(self, program: Program, changed: list[str], in_front: Path | None) -> Path | None:
        """The program to run, linked where that is needed; None where it cannot be linked."""
        rebuilt = [name for name in changed if name in program.objects]
        if program.name == "library_tests":
            return self.library_reader
        if not rebuilt and in_front is None and program.target != SPLIT_PROGRAM:
            return self.build.folder / "tests" / program.target
        executable = self.folder / "program"
        return executable if self.linked(program.link, executable, rebuilt, in_front) else None

    def passes(self, program: Path) -> bool:
        """False when a test fails, and when the program crashes, hangs or eats all memory."""
        environment = os.environ | {"LD_LIBRARY_PATH": str(self.library.parent), "MALLOC_PERTURB_": "165"}
        process = subprocess.Popen([str(program), "--gtest_fail_fast", "--gtest_brief=1"], cwd=self.folder,
                                   env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL, start_new_session=True, preexec_fn=limit_resources)
        try:
            return process.wait(WALL_SECONDS) == 0
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()
            return False

    def same_code(self, file: str) -> bool:
        """True when the optimised objects of the module are what they are without the mutant, byte for byte."""
        names = self.build.dependents(file, self.build.library_objects)
        if not names:
            return False
        mutated = (self.tree / file).read_bytes()
        (self.tree / file).write_bytes((self.build.root / file).read_bytes())
        for name in names:
            if name not in self.optimised:
                self.optimised[name] = self.optimised_object(name)
                if not self.optimised[name]:
                    raise RuntimeError(f"{name} cannot be made without any mutant")
        (self.tree / file).write_bytes(mutated)
        return all(self.optimised_object(name) == self.optimised[name] for name in names)

    def optimised_object(self, name: str) -> bytes:
        """Empty where it does not compile."""
        output = self.folder / "optimised.o"
        return output.read_bytes() if self.succeeds([*self.command(name, output), "-O2"]) else b""


class FullOutcome:
    """Of one mutant, with all that depends on its file compiled anew, each object once, when it is needed."""

    def __init__(self, worker: Worker, mutant: Mutant):
        self.worker = worker
        self.mutant = mutant
        self.library_objects = worker.build.dependents(mutant.file, worker.build.library_objects)
        self.compiled: dict[str, bool] = {}
        self.library_is_made = False

    def outcome(self) -> str:
        """Asks every program that the file reaches.

        A declaration of the platform that leaves the module's code as it is stops at the platform's own tests.
        """
        programs = self.worker.in_order(self.mutant)
        if not self.mutant.in_platform:
            return self.outcome_of(programs) or (SAME_CODE if self.same_code() else SURVIVED)
        outcome = self.outcome_of([program for program in programs if program.target == SPLIT_PROGRAM])
        if outcome is None and not self.same_code():
            outcome = self.outcome_of([program for program in programs if program.target != SPLIT_PROGRAM])
        return outcome or SURVIVED

    def outcome_of(self, programs: list[Program]) -> str | None:
        for program in programs:
            changed = self.worker.build.dependents(self.mutant.file, program.objects)
            library_changed = program.uses_library and bool(self.library_objects)
            if library_changed and not self.makes_library():
                return DOES_NOT_COMPILE
            if not all([self.compiles(name) for name in changed]):
                # Tests that refuse to compile kill, as long as the module itself compiles.
                return self.worker.killed(self.mutant, program) if self.module_compiles() else DOES_NOT_COMPILE
            if (changed or library_changed) and not self.worker.lives(program, [*self.compiled]):
                return self.worker.killed(self.mutant, program)
        return None

    def compiles(self, name: str) -> bool:
        if name not in self.compiled:
            self.compiled[name] = self.worker.compiled(name)
        return self.compiled[name]

    def module_compiles(self) -> bool:
        return all([self.compiles(name) for name in self.library_objects])

    def makes_library(self) -> bool:
        if not self.library_is_made:
            self.library_is_made = self.module_compiles() and self.worker.links_library(self.library_objects, None)
        return self.library_is_made

    def same_code(self) -> bool:
        return self.worker.same_code(self.mutant.file)


def limit_resources() -> None:
    resource.setrlimit(resource.RLIMIT_CPU, (CPU_SECONDS, CPU_SECONDS))
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY_BYTES, MEMORY_BYTES))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
