#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Shows check-documents.py small trees with one fault each."""
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "support"))
from small_trees import check_rows, load  # noqa: E402

DOCUMENTS = load(pathlib.Path(__file__).with_name("check-documents.py"))

LICENCE = "// " + DOCUMENTS.LICENCE + "\n"
SOUND = {
    **{name: "" for name in DOCUMENTS.DOCUMENTS},
    "CMakePresets.json": '{"configurePresets": [{"name": "base", "hidden": true}, {"name": "release"}]}',
    "src/tags/TagWriter.h": LICENCE,
    "tests/tags/tst_tagwriter.cpp": LICENCE,
    "script/build": "#!/bin/sh\n# " + DOCUMENTS.LICENCE,
}

# Sentence, file, its text, what the report must hold ("" when the tree is in order).
ROWS = [
    ("what exists may be named", "README.md", "`./script/build release`, `src/tags/`, `tests/*/tst_*.cpp`, `tst_tagwriter`", ""),
    ("paths outside the tree are not judged", "README.md", "`/usr/share/doc`, `and/or`, `build/release/bin/x`", ""),
    ("a placeholder is not a path", "CONTRIBUTING.md", "`src/tags/<Name>.cpp`", ""),
    ("a file that is gone", "README.md", "\n`src/tags/Gone.h`", "README.md:2: names src/tags/Gone.h"),
    ("a script that is gone, in a block", "README.md", "```sh\n\n./script/gone --all\n```", "README.md:3: names script/gone"),
    ("a dead link", "README.md", "![picture](docs/none.png)", "links to docs/none.png"),
    ("a preset that is not there", "README.md", "`script/build fast`", "the preset fast"),
    ("a hidden preset", "README.md", "`cmake --preset base`", "the preset base"),
    ("a test that is not there", "README.md", "`ctest -R tst_nothing`", "the test tst_nothing"),
    ("a source without the licence line", "src/tags/A.h", "#pragma once\n", "src/tags/A.h:1: the first line"),
    ("a script without the licence line", "script/none", "#!/bin/sh\nset -e\n", "script/none:1: the first line"),
    ("the path of a home folder", "src/tags/A.h", LICENCE + "// see /" + "home/ann/notes", "A.h:2: holds a path of somebody's machine"),
    ("a path below a variable is fine", "src/tags/A.h", LICENCE + "// $TOP/" + "work/x", ""),
    ("a folder called home inside another is fine", "src/tags/A.h", LICENCE + "// private/" + "home/x", ""),
    ("a document that is not here", "src/tags/A.h", LICENCE + "// as elsewhere" + ".md says", "names elsewhere" + ".md"),
    ("a numbered part", "src/tags/A.h", LICENCE + "// Part " + "3.1", "A.h:2: holds a numbered part"),
]


class DocumentsTest(unittest.TestCase):
    def test_rows(self):
        check_rows(self, ROWS, SOUND, DOCUMENTS.offences)


if __name__ == "__main__":
    unittest.main()
