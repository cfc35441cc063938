#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Checks that no text that the scene binds, or that C++ hands to a widget, stands there without qsTr() or tr(): what is not
marked is in no translation, and nothing else would miss it there.

usage: check-bare-texts.py [ROOT]   (exit status 1 when something is found)
"""
import pathlib
import re
import sys

NAMES = {"Versewell"}
LITERAL = r'"((?:[^"\\\n]|\\.)*)"'
COMMENT = re.compile(r"(?<![:\"])//.*")
# Calls that translate, and words that are only compared with.
HARMLESS = re.compile(rf"qsTr\(\s*{LITERAL}(?:[\s+,]+{LITERAL})*|[=!]==?\s*{LITERAL}", re.S)
# A binding, an assignment or a result of the scene, with the lines that go on with an operator.
BINDING = re.compile(r"(?:\b(?:[tT]ext|title|label|line|word|tooltip|toolTip|shownText|errorString|spoken\w+|"
                     r"placeholder(?:Text)?|Accessible\.(?:name|description))\s*[:=](?!=)|\breturn\b)(.*(?:\n\s*[?:+|&(].*)*)")
SETTER = re.compile(r"\b(?:set(?:Text|Title|WindowTitle|ToolTip|StatusTip|PlaceholderText|InformativeText|LabelText|"
                    r"AccessibleName|AccessibleDescription)|add(?:Action|Menu|Button|Row|Tab)|showMessage|"
                    r"new Q(?:Label|PushButton|CheckBox|RadioButton|GroupBox|Action|Menu)|Q(?:Label|PushButton|Menu) \w+)"
                    rf"\(\s*(?:Q\w+\(\s*)?(?:u?{LITERAL})")


def is_text(literal):
    """Whether it has words in it, beside markup and escapes."""
    return literal not in NAMES and re.search(r"[^\W\d_]", re.sub(r"</?(?:qt|b|i|br|p)\b[^>]*>|\\.", "", literal))


def bare_texts(path):
    """(line, text) of each text of that file that no translation can have."""
    source = COMMENT.sub("", path.read_text(encoding="utf-8"))
    if path.suffix == ".cpp":
        found = [(match.start(), match[1]) for match in SETTER.finditer(source)]
    else:
        source = HARMLESS.sub(lambda match: "\n" * match[0].count("\n"), source)
        found = [(match.start(), text) for match in BINDING.finditer(source) for text in re.findall(LITERAL, match[1])]
    return [(source.count("\n", 0, start) + 1, text) for start, text in found if is_text(text)]


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parents[2]).resolve()
    files = [path for kind in ("qml", "cpp") for path in sorted((root / "src").rglob(f"*.{kind}"))]
    found = [f"{path.relative_to(root)}:{line}: \"{text}\" is never translated"
             for path in files for line, text in bare_texts(path)]
    print("\n".join(found) or f"bare texts: none in {len(files)} files")
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main())
