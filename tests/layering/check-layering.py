#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Compares every include, scene import and link list under src/ with floors.toml and names each line that breaks it.

usage: check-layering.py [--root DIR]   (exit status 1 when something is found)
"""
import argparse
import fnmatch
import pathlib
import re
import sys
import tomllib

HERE = pathlib.Path(__file__).resolve().parent
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"([^"]+)"|<([^>]+)>)', re.M)
IMPORT = re.compile(r'^[ \t]*import[ \t]+(?:"([^"]+)"|([\w.]+))', re.M)
LINKING = re.compile(r"\b(versewell_add_library|target_link_libraries)\s*\(([^)]*)\)")
SECTION = re.compile(r"\b(SOURCES|LINK|PRIVATE_LINK|PUBLIC|PRIVATE|INTERFACE)\b")
COMMENT = {".txt": re.compile(r"#.*"), ".qml": re.compile(r"/\*.*?\*/", re.S)}


class Table:
    """The rows of floors.toml, with the questions that the check asks of them."""

    def __init__(self):
        data = tomllib.loads((HERE / "floors.toml").read_text(encoding="utf-8"))
        self.rooms, self.libraries = data["rooms"], data["libraries"]
        self.qt, self.system, self.scene = data["qt"], data["system"], data["scene"]
        for row in self.rooms.values():
            below = [name for name, other in self.rooms.items() if other["floor"] < row["floor"]]
            row["includes"] = below if row["includes"] == ["*"] else row["includes"]

    def room_of(self, relative):
        """The room of a path below src/, or None."""
        folders = [folder.as_posix() for folder in relative.parents]
        return next((folder for folder in folders if folder in self.rooms), None)

    def external(self, room):
        """All that a room may use from outside."""
        allowed = {*self.qt["always"], *self.rooms[room]["external"]}
        for lower in self.rooms[room]["includes"]:
            allowed |= {name for name in self.external(lower) if name.startswith("Qt")}
        return allowed.union(*(self.qt["with"].get(module, []) for module in allowed))

    def contradictions(self):
        for room, row in self.rooms.items():
            for other in row["includes"]:
                if self.rooms[other]["floor"] >= row["floor"]:
                    yield f"floors.toml: {room} may include {other}, which is not on a lower floor"

    def owners(self, header, qt_modules):
        """What an include in angle brackets belongs to: Qt modules, a library or "system"; empty when to nothing."""
        if re.fullmatch(r"[a-z_]+", header) or matches(header, self.system["headers"]):
            return {"system"}
        for name, library in self.libraries.items():
            if matches(header, library["headers"]):
                return {name}
        return {header.split("/")[0]} if re.match("Qt.*/", header) else qt_modules.get(header, set())

    def owner_of_target(self, target):
        owners = [name for name, library in self.libraries.items() if target in library["targets"]]
        return "Qt" + target.removeprefix("Qt5::") if target.startswith("Qt5::") else (owners or [None])[0]


class Check:
    def __init__(self, root, qt_include):
        self.src = root / "src"
        self.table = Table()
        self.qt_modules = {}
        for header in qt_include.glob("Qt*/*"):
            self.qt_modules.setdefault(header.name, set()).add(header.parent.name)
        self.offences = list(self.table.contradictions())

    def run(self):
        rules = {".h": self.includes, ".cpp": self.includes, ".qml": self.imports, ".txt": self.links}
        for path in sorted(self.src.rglob("*")):
            if path.suffix not in rules or path.parent == self.src and path.name == "CMakeLists.txt":
                continue
            room = self.table.room_of(path.relative_to(self.src))
            comment = COMMENT.get(path.suffix, COMMENT[".qml"])
            text = comment.sub(lambda match: re.sub(r"[^\n]", " ", match.group()), path.read_text(encoding="utf-8"))
            found = rules[path.suffix](path, room, text) if room else [(0, "this folder is no room of floors.toml")]
            for position, rule in found:
                line = text.count("\n", 0, position) + 1
                self.offences.append(f"{path.relative_to(self.src.parent)}:{line}: {rule}")
        return self.offences

    def includes(self, path, room, text):
        for match in INCLUDE.finditer(text):
            quoted, angled = match.groups()
            rule = self.judge_quoted(path, room, quoted) if quoted else self.judge_angled(path, room, angled)
            if rule:
                yield match.start(1 if quoted else 2), rule

    def judge_quoted(self, path, room, header):
        if header == path.stem + ".moc" or header == f"ui_{path.stem}.h" and path.with_suffix(".ui").is_file():
            return None
        if not (self.src / header).is_file() or ".." in header:
            return f'"{header}" is not a path written from src/'
        other = self.table.room_of(pathlib.Path(header))
        if other in (None, room, *self.table.rooms[room]["includes"]):
            return None
        ours, theirs = self.table.rooms[room]["floor"], self.table.rooms[other]["floor"]
        why = "it stands above" if theirs > ours else "its row does not name it"
        return f"{room} (floor {ours}) may not include {other} (floor {theirs}): {why}"

    def judge_angled(self, path, room, header):
        if (self.src / header).is_file():
            return f"<{header}> is a file of ours: write it in quotes"
        owners = self.table.owners(header, self.qt_modules)
        if not owners:
            return f"<{header}> belongs to nothing that floors.toml names"
        if path.suffix == ".h" and any(self.table.libraries.get(owner, {}).get("sources_only") for owner in owners):
            return f"<{header}>: {' or '.join(owners)} is included in .cpp files only"
        if "system" in owners or owners & self.table.external(room):
            return None
        return f"<{header}>: {room} may not use {' or '.join(sorted(owners))}"

    def imports(self, path, room, text):
        scene = self.table.scene
        folders = [(self.src / name).resolve() for name in scene["rooms"]]
        if room not in scene["rooms"]:
            yield 0, f"scene documents do not belong in {room}"
        for match in IMPORT.finditer(text):
            local, module = match.groups()
            target = (path.parent / (local or ".")).resolve()
            if local and not any(target.is_relative_to(folder) for folder in folders):
                yield match.start(), f'"{local}" leads out of the scene\'s folders'
            elif module and module not in scene["imports"]:
                yield match.start(), f"scene documents may not import {module}"

    def links(self, _path, room, text):
        for call in LINKING.finditer(text):
            command, arguments = call.groups()
            name, section = arguments.split()[0], "LINK" if command == "target_link_libraries" else "SOURCES"
            if command == "versewell_add_library" and name != room:
                yield call.start(), f"the library of this folder is called {room}, not {name}"
            for word in list(re.finditer(r"\S+", arguments))[1:]:
                section = word.group() if SECTION.fullmatch(word.group()) else section
                rule = self.judge_target(room, word.group()) if section not in ("SOURCES", word.group()) else None
                if rule:
                    yield call.start(2) + word.start(), rule

    def judge_target(self, room, target):
        names = {"versewell_" + name.replace("/", "_"): name for name in self.table.rooms}
        if target in self.table.system["targets"]:
            return None
        if target in names:
            allowed = [*self.table.rooms[room]["includes"], room]
            return None if names[target] in allowed else f"{room} may not link {names[target]}, which its row does not name"
        owner = self.table.owner_of_target(target)
        if owner is None:
            return f"{target} is nothing that floors.toml names"
        return None if owner in self.table.external(room) else f"{room} may not link {owner}"

    def check_packages(self, listed):
        for module, package in self.table.scene["imports"].items():
            if package and package not in listed:
                self.offences.append(f"floors.toml: {module} needs {package}, which script/packages.txt does not name")


def matches(name, patterns):
    return any(fnmatch.fnmatchcase(name, pattern) for pattern in patterns)


def offences(root, qt_include=None):
    """What breaks the table in the tree at root, one text a line of code."""
    check = Check(root, qt_include or next(pathlib.Path("/usr/include").glob("**/qt5")))
    packages = root / "script" / "packages.txt"
    if packages.is_file():
        check.check_packages(packages.read_text(encoding="utf-8").split())
    return check.run()


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--root", type=pathlib.Path, default=HERE.parent.parent)
    found = offences(parser.parse_args().root.resolve())
    for offence in found:
        print(offence)
    print(f"layering: {len(found)} offences" if found else "layering: every include keeps to its floor")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
