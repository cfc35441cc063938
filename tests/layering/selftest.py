#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Shows check-layering.py small trees that break one rule each, and some that break none."""
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "support"))
from small_trees import check_rows, load  # noqa: E402

LAYERING = load(pathlib.Path(__file__).with_name("check-layering.py"))

QT_HEADERS = ["QtCore/QString", "QtNetwork/QNetworkReply", "QtGui/QImage", "QtWidgets/QWidget", "QtQml/QJSEngine",
              "QtQuick/QQuickItem"]
ROOMS = ["network", "tags", "lyrics", "lyrics/providers", "model", "ui", "app"]
SOUND = {
    **{f"qt/{header}": "" for header in QT_HEADERS},
    **{f"src/{room}/X.h": "" for room in ROOMS},
    "src/lyrics/X.h": '#include "network/X.h"',
    "src/ui/F.ui": "",
}

# Sentence, file below src/, its text, what the report must hold ("" when the tree is in order).
ROWS = [
    ("a lower floor is fine", "model/A.cpp", '#include "lyrics/X.h"\n#include <QImage>\n#include <memory>', ""),
    ("a Qt module of a room that may be included comes along", "model/A.cpp", "#include <QNetworkReply>", ""),
    ("the generated moc file of the file itself is fine", "app/A.cpp", '#include "A.moc"', ""),
    ("the generated header of the file's own form is fine", "ui/F.cpp", '#include "ui_F.h"', ""),
    ("an include in a block comment counts for nothing", "tags/A.cpp", '/*\n#include "app/X.h"\n*/', ""),
    ("a higher floor", "lyrics/A.cpp", '\n#include "model/X.h"', "A.cpp:2: lyrics (floor 1) may not include model"),
    ("the room inside one's own", "lyrics/A.cpp", '#include "lyrics/providers/X.h"', "it stands above"),
    ("a path that climbs", "tags/A.cpp", '#include "lyrics/../tags/X.h"', "not a path written from"),
    ("a file of ours in angle brackets", "tags/A.cpp", "#include <tags/X.h>", "write it in quotes"),
    ("TagLib in a header", "tags/A.h", "#include <taglib/tag.h>", "in .cpp files only"),
    ("TagLib does not come along to other rooms", "model/A.cpp", "#include <taglib/tag.h>", "model may not use TagLib"),
    ("a Qt module that the row does not name", "lyrics/A.cpp", "#include <QWidget>", "lyrics may not use QtWidgets"),
    ("a link to a higher floor", "lyrics/CMakeLists.txt",
     "versewell_add_library(lyrics\n SOURCES A\n LINK versewell_model)", "CMakeLists.txt:3: lyrics may not link"),
    ("a link outside of the list", "tags/CMakeLists.txt", "target_link_libraries(versewell_tags PUBLIC Qt5::Widgets)",
     "tags may not link QtWidgets"),
    ("a link list within its row is fine", "lyrics/providers/CMakeLists.txt",
     "versewell_add_library(lyrics/providers SOURCES curl LINK Qt5::Network versewell_lyrics # versewell_app\n)", ""),
    ("another folder's name", "tags/CMakeLists.txt", "versewell_add_library(lyrics SOURCES A.cpp)", "is called tags"),
    ("an unknown target", "tags/CMakeLists.txt", "versewell_add_library(tags LINK curl)", "curl is nothing"),
    ("listed scene imports", "qml/A.qml", 'import QtQuick 2.15\nimport "img"\nimport com.quillmarsh 1.0', ""),
    ("a scene import without a package", "qml/A.qml", "import QtQuick.Dialogs 1.3", "may not import QtQuick.Dialogs"),
    ("a scene import out of the scene", "qml/A.qml", 'import "../model"', "leads out of the scene"),
    ("a scene document in another room", "model/A.qml", "import QtQuick 2.15", "do not belong in model"),
]


class LayeringTest(unittest.TestCase):
    def test_rows(self):
        rows = [(sentence, "src/" + name, text, expected) for sentence, name, text, expected in ROWS]
        check_rows(self, rows, SOUND, lambda root: LAYERING.offences(root, root / "qt"))


if __name__ == "__main__":
    unittest.main()
