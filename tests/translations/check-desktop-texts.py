#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Checks that the launcher entry and the description of the program have every text in every language of the program,
and that none was left in English or lost its ellipsis.

usage: check-desktop-texts.py ENTRY DESCRIPTION   (as they are installed; exit status 1 when something is found)
"""
import collections
import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

TRANSLATIONS = pathlib.Path(__file__).resolve().parents[2] / "translations"
LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"
NAMES = {"Versewell", "Quillmarsh"}
KEY = re.compile(r"(Name|GenericName|Comment|Keywords)(?:\[(\w+)\])?=(.*)")
TEXTS = ("name", "developer_name", "summary", "p", "li", "caption", "keyword")


def texts_of_entry(path):
    """(where, language, text) of each text that people see; the language of the source is none."""
    group = ""
    for line in path.read_text(encoding="utf-8").splitlines():
        match = KEY.fullmatch(line)
        group = line if line.startswith("[") else group
        if match:
            yield f"{group} {match[1]}", match[2], match[3]


def texts_of_description(path):
    for parent in ElementTree.parse(path).iter():
        for element in parent:
            if element.tag in TEXTS:
                yield f"{parent.tag}/{element.tag}", element.get(LANGUAGE), "".join(element.itertext()).strip()


def faults_of(sources, texts, where):
    """What is wrong with the translations of the texts of one kind, which come in the same order."""
    if len(sources) != len(texts):
        yield f"lacks {len(sources) - len(texts)}"
    for source, text in zip(sources, texts):
        if source.endswith("...") != text.endswith("..."):
            yield f"\"{text}\" differs in an ellipsis at the end"
        if source == text and not where.lower().endswith(("keyword", "keywords")):
            yield f"\"{text}\" is still English"


def offences(path, texts, languages):
    found = collections.defaultdict(list)
    for where, language, text in texts:
        if text not in NAMES:
            found[where, language].append(text)
        if where.endswith("Keywords") and not text.endswith(";"):
            yield f"{path.name}: {where}[{language}] does not end in a semicolon"
    for where in [where for where, language in found if language is None]:
        for language in languages:
            yield from (f"{path.name}: {where} {fault} in {language}"
                        for fault in faults_of(found[where, None], found[where, language], where))
    if not found:
        yield f"{path.name}: there are no texts"


def main():
    entry, description = map(pathlib.Path, sys.argv[1:])
    languages = sorted(path.stem.split("_", 1)[1] for path in TRANSLATIONS.glob("*.ts"))
    found = [*offences(entry, texts_of_entry(entry), languages), *offences(description, texts_of_description(description), languages)]
    print("\n".join(found) or f"desktop texts: {len(languages)} languages, all in order")
    return 1 if found or not languages else 0


if __name__ == "__main__":
    sys.exit(main())
