#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Runs clang-tidy over the sources of the project, two at a time, and passes over those it found clean before.

usage: tidy.py BUILD_FOLDER [FILE...]

A file counts as clean as long as nothing that it is made of has changed: itself, every header it includes, its
compile command, the .clang-tidy files and clang-tidy itself. The marks stand under BUILD_FOLDER/tidy.
"""
import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys

TOP = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = [TOP / "src", TOP / "tests", TOP / "bench"]


@functools.lru_cache(maxsize=None)
def fingerprint(path):
    """Content for files of the project, size and time for those of the system."""
    if path.is_relative_to(TOP):
        return hashlib.sha256(path.read_bytes()).hexdigest()
    status = path.stat()
    return f"{status.st_size}:{status.st_mtime_ns}"


def dependencies(build):
    """Object file -> the files it was made of, as ninja recorded them."""
    text = subprocess.run(["ninja", "-C", build, "-t", "deps"], capture_output=True, text=True, check=True).stdout
    result, current = {}, None
    for line in text.splitlines():
        if line.startswith("    "):
            result[current].append((build / line.strip()).resolve())
        elif line and not line.startswith("ninja:"):
            current = (build / line.split(":")[0]).resolve()
            result[current] = []
    return result


def state_of(entry, made_of, common):
    parts = [common, entry["command"]]
    for path in sorted(made_of):
        parts.append(f"{path} {fingerprint(path)}" if path.exists() else f"{path} gone")
    return hashlib.sha256("\n".join(parts).encode()).hexdigest()


def tidy(build, source):
    result = subprocess.run(["clang-tidy", "-p", build, "--quiet", source], capture_output=True, text=True)
    if result.returncode == 0:
        return ""
    return result.stdout + (result.stderr if "error:" not in result.stdout else "")


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    only = {pathlib.Path(name).resolve() for name in sys.argv[2:]}
    marks = build / "tidy"
    marks.mkdir(exist_ok=True)
    version = subprocess.run(["clang-tidy", "--version"], capture_output=True, text=True, check=True).stdout
    settings = [TOP / ".clang-tidy", *sorted(TOP.glob("[a-z]*/.clang-tidy"))]
    common = version + "".join(path.read_text(encoding="utf-8") for path in settings)
    made_of = dependencies(build)

    waiting = []
    for entry in json.loads((build / "compile_commands.json").read_text(encoding="utf-8")):
        source = pathlib.Path(entry["file"])
        if not any(source.is_relative_to(folder) for folder in FOLDERS) or (only and source not in only):
            continue
        target = (pathlib.Path(entry["directory"]) / re.search(r" -o (\S+)", entry["command"]).group(1)).resolve()
        mark = marks / state_of(entry, made_of.get(target, []) + [source], common)
        if not mark.exists():
            waiting.append((source, mark))

    failed = 0
    with concurrent.futures.ThreadPoolExecutor(max_workers=min(2, os.cpu_count() or 1)) as pool:
        reports = pool.map(lambda task: tidy(build, task[0]), waiting)
        for (source, mark), report in zip(waiting, reports):
            if report:
                failed += 1
                print(f"{source.relative_to(TOP)}:\n{report}", flush=True)
            else:
                mark.touch()
    print(f"clang-tidy: {len(waiting)} files read, {failed} with findings")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
