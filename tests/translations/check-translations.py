#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Checks that every text of the program is translated into every language, that none was left in English, and that the
translations have the source's placeholders, markup, ellipses and accelerators.

usage: check-translations.py [ROOT]   (exit status 1 when something is found)
"""
import collections
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

LUPDATE = "/usr/lib/qt5/bin/lupdate"
PLACEHOLDER = re.compile(r"%(?:\d|n|[A-Za-z]{3,})")
MARKUP = re.compile(r"</?(?:b|i|br|ul|li)/?>")
ACCELERATOR = re.compile(r"&(\w)")
BLANKS = re.compile(r"^(\s*).*?(\s*)$", re.S)
# Texts that are as in English: names, keys of a keyboard and units wherever they stand so, and the words of a language.
SAME = {"Facebook", "Twitter", "OpenGL ES 2.0", "Ctrl", "Shift", "Alt", "Meta", "Del", "Esc", "%1 MB", "OK", "&OK"}
SAME_WORDS = {
    "de": {"Version %1", "Pause", "Website", "Name", "Computer", "Software", "Desktop", "Proxy:", "Port:", "Songs"},
    "es": {"No", "&No", "General", "Proxy:"},
    "fr": {"Version %1", "Pause", "Options", "Sites", "Type"},
    "it": {"No", "&No", "File", "&File", "Password:", "Computer", "Software", "Desktop", "Proxy:"},
    "pl": {"Port:", "Proxy:"},
    "pt_BR": {"Sites", "Proxy:"},
    "pt_PT": {"Sites", "Proxy:"},
}


def updated(root, folder):
    """Copies of the translations in which whatever the sources have anew stands unfinished."""
    copies = [pathlib.Path(shutil.copy(path, folder)) for path in sorted((root / "translations").glob("*.ts"))]
    subprocess.run([LUPDATE, "-silent", "-no-obsolete", "-locations", "none", root / "src",
                    root / "translations/qt-texts.h", "-ts", *copies], check=True, capture_output=True)
    return copies


def faults_of(source, text):
    """What a translation has that its source has not, or the other way round."""
    for what, of in (("placeholders", lambda words: sorted(PLACEHOLDER.findall(words))),
                     ("markup", lambda words: sorted(MARKUP.findall(words))),
                     ("an ellipsis at the end", lambda words: words.endswith("...")),
                     ("blanks at its ends", lambda words: BLANKS.match(words).groups()),
                     ("an accelerator", lambda words: bool(ACCELERATOR.search(words)))):
        if of(source) != of(text):
            yield f"differs in {what}"
    if not text.strip():
        yield "is empty"


def is_left(source, text, language):
    """Whether words stand as in English that are others in that language."""
    words = re.search(r"[^\W\d_]", PLACEHOLDER.sub("", source))
    return words and text == source and source not in SAME | SAME_WORDS.get(language, set())


def offences(path):
    language = path.stem.split("_", 1)[1]
    for context in ElementTree.parse(path).getroot().findall("context"):
        name = context.findtext("name")
        letters = collections.Counter()
        for message in context.findall("message"):
            source = message.findtext("source")
            translation = message.find("translation")
            where = f"{path.name}: {name}: \"{source}\""
            if translation.get("type"):
                yield f"{where} is not translated"
                continue
            forms = [form.text or "" for form in translation.findall("numerusform")] or [translation.text or ""]
            if any(is_left(source, text, language) for text in forms):
                yield f"{where} is still English"
            for text in forms:
                yield from (f"{where}: \"{text}\" {fault}" for fault in faults_of(source, text))
            letters.update(letter.lower() for letter in ACCELERATOR.findall(forms[0]))
        # Qt's own groups hold texts that are never shown together.
        if not name.startswith("Q"):
            yield from (f"{path.name}: {name}: {count} texts have the accelerator {letter}"
                        for letter, count in letters.items() if count > 1)


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parents[2]).resolve()
    with tempfile.TemporaryDirectory() as folder:
        files = updated(root, folder)
        found = [offence for path in files for offence in offences(path)]
    for offence in found:
        print(offence)
    print(f"translations: {len(found)} offences" if found else f"translations: {len(files)} languages, all in order")
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main())
