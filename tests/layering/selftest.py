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

# Sentence, file, its text, what the report must hold ("" when the tree is in order).
ROWS = [
    ("a lower floor in quotes is fine", "src/model/A.cpp", '#include "lyrics/X.h"\n#include <QImage>\n#include <memory>', ""),
    ("a Qt module of a room that may be included comes along", "src/model/A.cpp", "#include <QNetworkReply>", ""),
    ("the generated moc file of the file itself is fine", "src/app/A.cpp", '#include "A.moc"', ""),
    ("the generated header of the file's own form is fine", "src/ui/F.cpp", '#include "ui_F.h"', ""),
    ("an include in a block comment counts for nothing", "src/tags/A.cpp", '/*\n#include "app/X.h"\n*/', ""),
    ("a higher floor", "src/lyrics/A.cpp", '\n#include "model/X.h"', "src/lyrics/A.cpp:2: lyrics (floor 1) may not include model"),
    ("the room inside one's own", "src/lyrics/A.cpp", '#include "lyrics/providers/X.h"', "it stands above"),
    ("a path that climbs", "src/tags/A.cpp", '#include "lyrics/../tags/X.h"', "not a path written from src/"),
    ("a file of ours in angle brackets", "src/tags/A.cpp", "#include <tags/X.h>", "write it in quotes"),
    ("TagLib in a header", "src/tags/A.h", "#include <taglib/tag.h>", "in .cpp files only"),
    ("TagLib does not come along to other rooms", "src/model/A.cpp", "#include <taglib/tag.h>", "model may not use TagLib"),
    ("a Qt module that the row does not name", "src/lyrics/A.cpp", "#include <QWidget>", "lyrics may not use QtWidgets"),
    ("a link to a higher floor", "src/lyrics/CMakeLists.txt", "versewell_add_library(lyrics\n    SOURCES A.cpp\n    LINK versewell_model)",
     "src/lyrics/CMakeLists.txt:3: lyrics may not link model"),
    ("a link added behind the back of the list", "src/tags/CMakeLists.txt", "target_link_libraries(versewell_tags PUBLIC Qt5::Widgets)",
     "tags may not link QtWidgets"),
    ("a link list within its row is fine", "src/lyrics/providers/CMakeLists.txt",
     "versewell_add_library(lyrics/providers SOURCES Qt5::Quick.cpp LINK Qt5::Network versewell_lyrics # versewell_app\n)", ""),
    ("a library with another folder's name", "src/tags/CMakeLists.txt", "versewell_add_library(lyrics SOURCES A.cpp)", "is called tags"),
    ("an unknown target", "src/tags/CMakeLists.txt", "versewell_add_library(tags LINK curl)", "curl is nothing"),
    ("scene imports within the list are fine", "src/qml/A.qml", 'import QtQuick 2.15\nimport "img"\nimport com.quillmarsh 1.0', ""),
    ("a scene import without a package", "src/qml/A.qml", "import QtQuick.Dialogs 1.3", "may not import QtQuick.Dialogs"),
    ("a scene import out of the scene", "src/qml/A.qml", 'import "../model"', "leads out of the scene"),
    ("a scene document in another room", "src/model/A.qml", "import QtQuick 2.15", "do not belong in model"),
]


class LayeringTest(unittest.TestCase):
    def test_rows(self):
        check_rows(self, ROWS, SOUND, lambda root: LAYERING.offences(root, root / "qt"))


if __name__ == "__main__":
    unittest.main()
