#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Compares every include, scene import and link list under src/ with floors.toml and names each line that breaks it.

usage: check-layering.py [--root DIR] [--qt-include DIR]...   (exit status 1 when something is found)
"""
import argparse
import fnmatch
import pathlib
import re
import sys
import tomllib

HERE = pathlib.Path(__file__).resolve().parent
SYSTEM_INCLUDES = [pathlib.Path("/usr/include"), pathlib.Path("/usr/local/include")]
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"([^"]+)"|<([^>]+)>)', re.M)
IMPORT = re.compile(r'^[ \t]*import[ \t]+(?:"([^"]+)"|([\w.]+))', re.M)
LINKING = re.compile(r"\b(versewell_add_library|target_link_libraries)\s*\(([^)]*)\)")
LINK_WORDS = {"SOURCES", "LINK", "PRIVATE_LINK", "PUBLIC", "PRIVATE", "INTERFACE"}


class Table:
    """The rows of floors.toml, with the questions that the check asks of them."""

    def __init__(self, data):
        self.rooms = data["rooms"]
        self.qt = data["qt"]
        self.libraries = data["libraries"]
        self.system = data["system"]
        self.scene = data["scene"]

    def room_of(self, relative):
        """The room of a path below src/, or None."""
        folder = relative.parent
        while folder != pathlib.Path("."):
            if folder.as_posix() in self.rooms:
                return folder.as_posix()
            folder = folder.parent
        return None

    def external(self, room):
        """All that a room may use from outside."""
        allowed = set(self.qt["always"]) | set(self.rooms[room]["external"])
        for lower in self.rooms[room]["includes"]:
            allowed |= {name for name in self.external(lower) if name.startswith("Qt")}
        for module in list(allowed):
            allowed |= set(self.qt["with"].get(module, []))
        return allowed

    def contradictions(self):
        for room, row in self.rooms.items():
            for other in row["includes"]:
                if other not in self.rooms:
                    yield f"floors.toml: {room} may include {other}, which is no room"
                elif self.rooms[other]["floor"] >= row["floor"]:
                    yield f"floors.toml: {room} may include {other}, which is not on a lower floor"


class Headers:
    """Tells what an include in angle brackets belongs to: a Qt module, a library, "system", or None."""

    def __init__(self, table, qt_includes):
        self.table = table
        self.modules = {}
        for base in qt_includes:
            for header in pathlib.Path(base).glob("Qt*/*"):
                self.modules.setdefault(header.name, set()).add(header.parent.name)
        self.bare = {}
        for name, library in table.libraries.items():
            for base in SYSTEM_INCLUDES:
                if "folder" in library and (base / library["folder"]).is_dir():
                    self.bare.update({header.name: name for header in (base / library["folder"]).iterdir()})

    def owners(self, header):
        if re.fullmatch(r"[a-z_]+", header) or matches(header, self.table.system["headers"]):
            return {"system"}
        for name, library in self.table.libraries.items():
            if matches(header, library["headers"]):
                return {name}
        first, _, rest = header.partition("/")
        if first.startswith("Qt") and rest:
            return {first}
        if header in self.modules:
            return self.modules[header]
        return {self.bare[header]} if header in self.bare else set()


class Check:
    def __init__(self, root, table, headers):
        self.root = root
        self.src = root / "src"
        self.table = table
        self.headers = headers
        self.offences = list(table.contradictions())
        self.edges = {}

    def run(self):
        for path in sorted(self.src.rglob("*")):
            if path.suffix in (".h", ".cpp"):
                self.check_source(path)
            elif path.suffix == ".qml":
                self.check_scene(path)
            elif path.name == "CMakeLists.txt" and path.parent != self.src:
                self.check_links(path)
        self.check_pairs()
        return self.offences

    def offend(self, path, text, position, rule):
        line = text.count("\n", 0, position) + 1
        self.offences.append(f"{path.relative_to(self.root)}:{line}: {rule}")

    def room_or_offend(self, path):
        room = self.table.room_of(path.relative_to(self.src))
        if room is None:
            self.offend(path, "", 0, "this folder is no room of floors.toml")
        return room

    def check_source(self, path):
        room = self.room_or_offend(path)
        if room is None:
            return
        text = without_comments(path.read_text(encoding="utf-8"))
        for match in INCLUDE.finditer(text):
            quoted, angled = match.groups()
            position = match.start(1 if quoted else 2)
            rule = self.judge_quoted(path, room, quoted, text, position) if quoted else self.judge_angled(path, room, angled)
            if rule:
                self.offend(path, text, position, rule)

    def judge_quoted(self, path, room, header, text, position):
        if header == path.stem + ".moc" or header == f"ui_{path.stem}.h" and path.with_suffix(".ui").is_file():
            return None
        if not (self.src / header).is_file() or ".." in header:
            return f'"{header}" is not a path written from src/'
        other = self.table.room_of(pathlib.Path(header))
        if other is None or other == room:
            return None
        line = text.count("\n", 0, position) + 1
        self.edges.setdefault((room, other), f"{path.relative_to(self.root)}:{line}")
        if other in self.table.rooms[room]["includes"]:
            return None
        ours, theirs = self.table.rooms[room]["floor"], self.table.rooms[other]["floor"]
        if theirs > ours:
            return f"{room} (floor {ours}) may not include {other} (floor {theirs}): it stands above"
        return f"{room} may not include {other}: its row does not name it"

    def judge_angled(self, path, room, header):
        if (self.src / header).is_file():
            return f"<{header}> is a file of ours: write it in quotes"
        owners = self.headers.owners(header)
        if not owners:
            return f"<{header}> belongs to nothing that floors.toml names"
        for owner in owners:
            if self.table.libraries.get(owner, {}).get("sources_only") and path.suffix == ".h":
                return f"<{header}>: {owner} is included in .cpp files only"
        if "system" in owners or owners & self.table.external(room):
            return None
        return f"<{header}>: {room} may not use {' or '.join(sorted(owners))}"

    def check_scene(self, path):
        room = self.room_or_offend(path)
        if room is None:
            return
        text = without_comments(path.read_text(encoding="utf-8"))
        if room not in self.table.scene["rooms"]:
            self.offend(path, text, 0, f"scene documents do not belong in {room}")
        for match in IMPORT.finditer(text):
            local, module = match.groups()
            if local is not None:
                rule = None if self.is_scene_path(path.parent / local) else f'"{local}" leads out of the scene\'s folders'
            else:
                rule = None if module in self.table.scene["imports"] else f"scene documents may not import {module}"
            if rule:
                self.offend(path, text, match.start(), rule)

    def is_scene_path(self, target):
        folders = [(self.src / room).resolve() for room in self.table.scene["rooms"]]
        return any(target.resolve().is_relative_to(folder) for folder in folders)

    def check_links(self, path):
        room = self.room_or_offend(path)
        if room is None:
            return
        text = re.sub(r"#.*", lambda match: " " * len(match.group()), path.read_text(encoding="utf-8"))
        for call in LINKING.finditer(text):
            first, *words = [(word.group(), call.start(2) + word.start()) for word in re.finditer(r"\S+", call.group(2))]
            if call.group(1) == "versewell_add_library" and first[0] != room:
                self.offend(path, text, first[1], f"the library of this folder is called {room}, not {first[0]}")
            for word, position in linked(call.group(1), words):
                rule = self.judge_target(room, word)
                if rule:
                    self.offend(path, text, position, rule)

    def judge_target(self, room, target):
        names = {"versewell_" + name.replace("/", "_"): name for name in self.table.rooms}
        if target in names:
            allowed = self.table.rooms[room]["includes"] + [room]
            return None if names[target] in allowed else f"{room} may not link {names[target]}: its row does not name it"
        if target in self.table.system["targets"]:
            return None
        owner = "Qt" + target.removeprefix("Qt5::") if target.startswith("Qt5::") else None
        for name, library in self.table.libraries.items():
            owner = name if target in library["targets"] else owner
        if owner is None:
            return f"{target} is nothing that floors.toml names"
        return None if owner in self.table.external(room) else f"{room} may not link {owner}"

    def check_pairs(self):
        for (room, other), where in sorted(self.edges.items()):
            if room < other and (other, room) in self.edges:
                self.offences.append(f"{where}: {room} and {other} include each other ({self.edges[(other, room)]})")

    def check_packages(self, listed):
        for module, package in self.table.scene["imports"].items():
            if package and package not in listed:
                self.offences.append(f"floors.toml: {module} needs {package}, which script/packages.txt does not name")


def linked(command, words):
    """The words of a CMake call that are linked: all of target_link_libraries, those behind LINK of ours."""
    linking = command == "target_link_libraries"
    for word, position in words:
        if word in LINK_WORDS:
            linking = word != "SOURCES"
        elif linking:
            yield word, position


def matches(name, patterns):
    return any(fnmatch.fnmatchcase(name, pattern) for pattern in patterns)


def without_comments(text):
    """The text with block comments blanked, lines kept."""
    return re.sub(r"/\*.*?\*/", lambda match: re.sub(r"[^\n]", " ", match.group()), text, flags=re.S)


def default_qt_includes():
    return [path for base in SYSTEM_INCLUDES for path in (*base.glob("qt5"), *base.glob("*/qt5"))]


def offences(root, qt_includes=None):
    """What breaks the table in the tree at root, one text a line of code."""
    table = Table(tomllib.loads((HERE / "floors.toml").read_text(encoding="utf-8")))
    check = Check(root, table, Headers(table, qt_includes or default_qt_includes()))
    packages = root / "script" / "packages.txt"
    if packages.is_file():
        check.check_packages(packages.read_text(encoding="utf-8").split())
    return check.run()


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--root", type=pathlib.Path, default=HERE.parent.parent)
    parser.add_argument("--qt-include", type=pathlib.Path, action="append")
    arguments = parser.parse_args()
    found = offences(arguments.root.resolve(), arguments.qt_include)
    for offence in found:
        print(offence)
    print(f"layering: {len(found)} offences" if found else "layering: every include keeps to its floor")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
