#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Checks that the documents name only what exists, that sources carry the licence line, and that no file holds a
path of somebody's machine or points to a text that is not in the repository.

usage: check-documents.py [ROOT]   (exit status 1 when something is found)
"""
import json
import pathlib
import re
import subprocess
import sys

DOCUMENTS = ["README.md", "ARCHITECTURE.md", "CONTRIBUTING.md", "CHANGELOG.md", "docs/performance.md"]
LICENCE = "SPDX-License-Identifier: MIT"
SOURCES = {".h", ".cpp", ".qml", ".js", ".py", ".cmake", ".toml", ".sh"}

CODE = re.compile(r"```.*?\n(.*?)```|`([^`\n]+)`", re.S)
LINK = re.compile(r"\]\(([^)#\s]+)\)")
PATH = re.compile(r"(?<![\w/$~-])(?:\./)?((?:[\w.+*-]+/)+[\w.+*-]*)(?![\w<])")
PRESET = re.compile(r"(?:script/(?:build|test)|--preset)[ =](\w+)")
TEST = re.compile(r"\btst_\w+")

# What no tracked file may hold, and how to say so.
FORBIDDEN = [
    (re.compile(r"(?<![\w.>}])/(?:home|root|work|Users)/\w"), "a path of somebody's machine"),
    (re.compile(r"\bParts? \d+\.\d"), "a numbered part of a text that is not here"),
]
DOCUMENT_NAME = re.compile(r"(?<![\w*])[\w-]+\.md\b")


class Tree:
    """The files of the project: what git tracks and what it would, or all when there is no git."""

    def __init__(self, root):
        self.root = root
        self.files = {name for name in self.listed() if (root / name).is_file()}
        self.folders = {parent.as_posix() for name in self.files for parent in pathlib.PurePath(name).parents}
        self.names = {pathlib.PurePath(name).name for name in self.files}
        self.presets = self.read_presets()

    def listed(self):
        command = ["git", "-C", str(self.root), "ls-files", "-z", "--cached", "--others", "--exclude-standard"]
        try:
            return subprocess.run(command, capture_output=True, check=True, text=True).stdout.split("\0")
        except (OSError, subprocess.CalledProcessError):
            every = (path.relative_to(self.root) for path in self.root.rglob("*"))
            return [path.as_posix() for path in every if path.parts[0] not in (".git", "build")]

    def read_presets(self):
        path = self.root / "CMakePresets.json"
        rows = json.loads(path.read_text(encoding="utf-8"))["configurePresets"] if path.is_file() else []
        return {row["name"] for row in rows if not row.get("hidden")}

    def has(self, path):
        if "*" in path:
            return any(pathlib.PurePath(name).match(path) for name in self.files)
        return path.rstrip("/") in self.files | self.folders

    def text(self, name):
        try:
            return (self.root / name).read_text(encoding="utf-8")
        except UnicodeDecodeError:
            return ""


def line_of(text, position):
    return text.count("\n", 0, position) + 1


def document_offences(tree, name):
    """What a document names and the tree does not have."""
    text = tree.text(name)
    for link in LINK.finditer(text):
        if "://" not in link.group(1) and not tree.has(link.group(1).removeprefix("./")):
            yield f"{name}:{line_of(text, link.start())}: links to {link.group(1)}, which does not exist"
    for code in CODE.finditer(text):
        words = code.group(1) or code.group(2)
        start = line_of(text, code.start(1 if code.group(1) else 2))
        for missing, position in missing_in(tree, words):
            yield f"{name}:{start + line_of(words, position) - 1}: {missing}"


def missing_in(tree, words):
    for match in PATH.finditer(words):
        if is_ours(tree, match.group(1)) and not tree.has(match.group(1)):
            yield f"names {match.group(1)}, which does not exist", match.start()
    for match in PRESET.finditer(words):
        if match.group(1) not in tree.presets:
            yield f"names the preset {match.group(1)}, which does not exist", match.start()
    for match in TEST.finditer(words):
        if match.group() + ".cpp" not in tree.names:
            yield f"names the test {match.group()}, which does not exist", match.start()


def is_ours(tree, path):
    """Only paths that begin with a folder of the tree, or with what is under src/, can be judged."""
    return path.split("/")[0] in tree.folders or path.startswith("script/")


def licence_offences(tree, name):
    path = pathlib.PurePath(name)
    if path.suffix in SOURCES or path.name == "CMakeLists.txt" or path.parts[0] == "script" and not path.suffix:
        lines = tree.text(name).splitlines()[:2]
        if lines and lines[0].startswith("#!"):
            lines = lines[1:]
        if not lines or LICENCE not in lines[0]:
            yield f"{name}:1: the first line is not the licence line"


def word_offences(tree, name):
    text = tree.text(name)
    for pattern, what in FORBIDDEN:
        for match in pattern.finditer(text):
            yield f"{name}:{line_of(text, match.start())}: holds {what}"
    for match in DOCUMENT_NAME.finditer(text):
        if match.group() not in tree.names:
            yield f"{name}:{line_of(text, match.start())}: names {match.group()}, which is not in the repository"


def offences(root):
    tree = Tree(root)
    for name in DOCUMENTS:
        if name in tree.files:
            yield from document_offences(tree, name)
        else:
            yield f"{name} is missing"
    for name in sorted(tree.files):
        yield from licence_offences(tree, name)
        yield from word_offences(tree, name)


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parents[2]).resolve()
    found = list(offences(root))
    for offence in found:
        print(offence)
    print(f"documents: {len(found)} offences" if found else "documents: all in order")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
