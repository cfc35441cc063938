// SPDX-License-Identifier: MIT
#include "ui/UnsavedLyricsGuard.h"

#include "model/MainModel.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"

#include <QMessageBox>
#include <QPushButton>
#include <QWidget>

class tst_UnsavedLyricsGuard : public QObject
{
    Q_OBJECT

private slots:
    void newNamesAreNotLostAtTheEnd_data()
    {
        QTest::addColumn<QVector<int>>("answers");
        QTest::addColumn<bool>("isThere"); // the file
        QTest::addColumn<bool>("isSaved"); // a moment before
        QTest::addColumn<bool>("ends");
        QTest::addColumn<QString>("stored");
        const int save = QMessageBox::Save;
        const int discard = QMessageBox::Discard;
        const int cancel = QMessageBox::Cancel;
        addRow("saved at the end", QVector<int>{save}, true, false, true, "Nora");
        addRow("discarded", QVector<int>{discard}, true, false, true, "");
        addRow("kept in the list, and the program stays", QVector<int>{cancel}, true, false, false, "");
        addRow("saved a moment before", QVector<int>{}, true, true, true, "Nora");
        addRow("the save fails, and the user stays", QVector<int>{save, cancel}, false, false, false, "");
        addRow("the save before fails, as does the next", QVector<int>{save, discard}, false, true, true, "");
    }

    void newNamesAreNotLostAtTheEnd()
    {
        QFETCH(QVector<int>, answers);
        QFETCH(bool, isThere);
        QFETCH(bool, isSaved);
        QFETCH(bool, ends);
        const TestFolder folder;
        const QString file = folder.path("a.mp3"_s);
        QVERIFY(QFile::copy(QStringLiteral(VERSEWELL_SAMPLES_DIR "/untagged.mp3"), file));
        MainModel model;
        model.setReaderProgram(QStringLiteral(VERSEWELL_READER));
        model.add({folder.url("a.mp3"_s)});
        QTRY_VERIFY(model.itemAt(0)->tagsLoaded());
        model.itemAt(0)->setArtistTag("Nora"_s);
        QVERIFY(isThere || QFile::remove(file));
        QVERIFY(!isSaved || model.writeTags(model.itemAt(0)->id()));

        QWidget window;
        UnsavedLyricsGuard guard(&model, &window);
        int ended = 0;
        for (int attempt = 0; attempt < 2; ++attempt) // the second one changes nothing
            guard.beforeQuitting([&ended] { ++ended; });
        for (const int answer : answers) {
            QTRY_COMPARE(window.findChildren<QMessageBox *>().size(), 1);
            QCOMPARE(ended, 0);
            window.findChild<QMessageBox *>()->button(static_cast<QMessageBox::StandardButton>(answer))->click();
            QTRY_VERIFY(!window.findChild<QMessageBox *>());
        }
        QTRY_COMPARE(ended, ends ? 1 : 0);
        QTRY_VERIFY(!model.isWriting(model.itemAt(0)->id()));
        QTEST(model.itemAt(0)->storedTexts().artist, "stored");
    }
};

QTEST_MAIN(tst_UnsavedLyricsGuard)
#include "tst_unsavedlyricsguard.moc"
