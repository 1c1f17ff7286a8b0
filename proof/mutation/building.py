"""Builds the tests once, unchanged, and learns from CMake and ninja how everything is made and what depends on what."""

from __future__ import annotations

import json
import re
import shlex
import subprocess
from dataclasses import dataclass, field
from pathlib import Path

#: Where the mutants are made.
MUTATED_FOLDERS = ["src", "platform"]
LIBRARY = "src/Device/KelDebugCmd/libKelKelDebugCmd.so"
#: Programs that look at the module and the platform. Those of the first list load or read the library.
LIBRARY_PROGRAMS = ["module_tests", "module_errno_tests", "module_memory_tests", "library_tests"]
OTHER_PROGRAMS = ["module_internals_tests", "platform_tests"]
#: Each source of it is a program of its own here: one is enough to kill, and the others need not be compiled.
SPLIT_PROGRAM = "platform_tests"

# Warnings stop nobody here: a mutant that only earns a warning counts. Variables without a value hold a pattern, and
# the standard library stops at an index out of bounds, so that a mutant does not live by what happens to be in memory.
COMPILER_FLAGS = "-O0 -w -ftrivial-auto-var-init=pattern -D_GLIBCXX_ASSERTIONS"


@dataclass
class Program:
    name: str
    target: str
    objects: list[str]  #: all that it is linked of, from the build folder
    own_objects: list[str]  #: of its own sources
    link: list[str]
    uses_library: bool


@dataclass
class Build:
    """The unchanged build: how everything is made, and what depends on what."""

    root: Path
    folder: Path
    compile: dict[str, list[str]] = field(default_factory=dict)  #: object -> command
    needs: dict[str, set[str]] = field(default_factory=dict)  #: object -> files of the tree, from its root
    programs: list[Program] = field(default_factory=list)
    library_objects: list[str] = field(default_factory=list)
    library_link: list[str] = field(default_factory=list)
    standard_headers: Path = Path()

    def dependents(self, file: str, objects: list[str]) -> list[str]:
        return [name for name in objects if file in self.needs.get(name, set())]


def run_tool(command: list[str], folder: Path) -> str:
    done = subprocess.run(command, cwd=folder, text=True, capture_output=True, check=False)
    if done.returncode != 0:
        raise RuntimeError(f"{shlex.join(command)}\n{done.stdout}{done.stderr}")
    return done.stdout


def make_build(root: Path, folder: Path, jobs: int) -> Build:
    """Configures and builds the unchanged tree, and learns how it is done."""
    run_tool(["cmake", "-S", str(root), "-B", str(folder), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=",
              "-DCMAKE_CXX_COMPILER=clang++", f"-DCMAKE_CXX_FLAGS={COMPILER_FLAGS}",
              "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=gold -Wl,--enable-new-dtags",
              "-DCMAKE_SHARED_LINKER_FLAGS=-fuse-ld=gold",
              # One name for the library, without the links that lead to the one with its version.
              "-DCMAKE_PLATFORM_NO_VERSIONED_SONAME=ON"], root)
    targets = ["KelKelDebugCmd", *LIBRARY_PROGRAMS, *OTHER_PROGRAMS]
    run_tool(["ninja", "-C", str(folder), "-j", str(jobs), *targets, "test_locales"], root)

    build = Build(root, folder)
    for entry in json.loads((folder / "compile_commands.json").read_text()):
        command = without_dependency_file(shlex.split(entry["command"]))
        build.compile[command[command.index("-o") + 1]] = command
    read_dependencies(build)
    build.library_link = link_command(folder, "KelKelDebugCmd", LIBRARY)
    build.library_objects = [word for word in build.library_link if word in build.compile]
    for target in LIBRARY_PROGRAMS + OTHER_PROGRAMS:
        build.programs += programs_of(build, target)
    precompile_standard_headers(build)
    return build


def without_dependency_file(command: list[str]) -> list[str]:
    kept = []
    words = iter(command)
    for word in words:
        if word in ("-MT", "-MF"):
            next(words)
        elif word != "-MD":
            kept.append(word)
    return kept


def read_dependencies(build: Build) -> None:
    root = str(build.root) + "/"
    current: set[str] = set()
    for line in run_tool(["ninja", "-C", str(build.folder), "-t", "deps"], build.root).splitlines():
        if line and not line[0].isspace() and ": #deps" in line:
            current = build.needs.setdefault(line.split(": #deps")[0], set())
        elif line.strip().startswith(root):
            current.add(line.strip().removeprefix(root))


def link_command(folder: Path, target: str, output: str) -> list[str]:
    last = run_tool(["ninja", "-C", str(folder), "-t", "commands", target], folder).splitlines()[-1]
    for part in last.split(" && "):
        words = shlex.split(part)
        if "-o" in words and words[words.index("-o") + 1] == output:
            return words
    raise RuntimeError(f"{target}: no link command makes {output}")


def programs_of(build: Build, target: str) -> list[Program]:
    link = link_command(build.folder, target, f"tests/{target}")
    objects = [word for word in link if word in build.compile]
    own = [name for name in objects if f"/{target}.dir/" in name]
    uses_library = target in LIBRARY_PROGRAMS
    if target != SPLIT_PROGRAM:
        return [Program(target, target, objects, own, link, uses_library)]
    programs = []
    for name in own:
        others = set(own) - {name}
        programs.append(Program(f"{target} ({Path(name).name.removesuffix('.cpp.o')})", target,
                                [one for one in objects if one not in others], [name],
                                [word for word in link if word not in others], uses_library))
    return programs


def precompile_standard_headers(build: Build) -> None:
    names = set()
    for folder in MUTATED_FOLDERS:
        for path in sorted((build.root / folder).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                names |= set(re.findall(r"^#include (<.*>)", path.read_text(), re.MULTILINE))
    header = build.folder / "standard.h"
    header.write_text("".join(f"#include {name}\n" for name in sorted(names)))
    build.standard_headers = header.with_suffix(".pch")
    words = build.compile[build.library_objects[0]]
    flags = [word for word in words if word.startswith(("-std", "-D", "-O", "-f", "-w"))]
    run_tool([words[0], *flags, "-Xclang", "-fpch-instantiate-templates", "-x", "c++-header", str(header),
              "-o", str(build.standard_headers)], build.folder)
