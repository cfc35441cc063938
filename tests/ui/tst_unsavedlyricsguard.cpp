// SPDX-License-Identifier: MIT
#include "ui/UnsavedLyricsGuard.h"

#include "model/MainModel.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"
#include "tags/MediaFileTags.h"

#include <QMessageBox>
#include <QPushButton>
#include <QWidget>

namespace {

enum Action { Quit, Remove, RemoveAnother };
// What another program has done to the song.
enum Trouble { None, Gone, Changed };

} // namespace

class tst_UnsavedLyricsGuard : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsLostUnasked_data()
    {
        QTest::addColumn<int>("action");
        QTest::addColumn<int>("trouble");
        QTest::addColumn<bool>("isSaved"); // a moment before
        QTest::addColumn<QVector<int>>("answers");
        QTest::addColumn<bool>("goesOn");
        QTest::addColumn<QString>("stored");
        const int save = QMessageBox::Save;
        const int discard = QMessageBox::Discard;
        const int cancel = QMessageBox::Cancel;
        const auto row = [](const char *sentence, Action action, Trouble trouble, bool isSaved,
                            const QVector<int> &answers, bool goesOn, const char *stored) {
            addRow(sentence, int(action), int(trouble), isSaved, answers, goesOn, stored);
        };
        row("saved at the end", Quit, None, false, {save}, true, "Nora");
        row("discarded", Quit, None, false, {discard}, true, "");
        row("kept in the list, and the program stays", Quit, None, false, {cancel}, false, "");
        row("saved a moment before", Quit, None, true, {}, true, "Nora");
        row("the save fails, and the user stays", Quit, Gone, false, {save, cancel}, false, "");
        row("the save before fails, as does the next", Quit, Gone, true, {save, discard}, true, "");
        row("what another program has stored is not replaced", Quit, Changed, false, {save, cancel}, false, "");
        row("saved before it is removed", Remove, None, false, {save}, true, "Nora");
        row("removed and discarded", Remove, None, false, {discard}, true, "");
        row("not removed", Remove, Gone, false, {save, cancel}, false, "");
        row("another song is removed", RemoveAnother, None, false, {}, true, "");
    }

    void nothingIsLostUnasked()
    {
        QFETCH(int, action);
        QFETCH(int, trouble);
        QFETCH(bool, isSaved);
        QFETCH(QVector<int>, answers);
        QFETCH(bool, goesOn);
        const TestFolder folder;
        const QString file = folder.path("a.mp3"_s);
        const QString sample = QStringLiteral(VERSEWELL_SAMPLES_DIR "/untagged.mp3");
        QVERIFY(QFile::copy(sample, file) && QFile::copy(sample, folder.path("b.mp3"_s)));
        MainModel model;
        model.setReaderProgram(QStringLiteral(VERSEWELL_READER));
        model.add({folder.url("a.mp3"_s), folder.url("b.mp3"_s)});
        QTRY_VERIFY(model.itemAt(1)->tagsLoaded());
        const quint16 id = model.itemAt(0)->id();
        const quint16 removed = action == Remove ? id : model.itemAt(1)->id();
        makeTrouble(model, Trouble(trouble));

        QWidget window;
        UnsavedLyricsGuard guard(&model, &window);
        const auto typeName = [&](const QVector<quint16> &ids) {
            if (ids.isEmpty() || ids.contains(id))
                model.itemAt(0)->setArtistTag("Nora"_s);
        };
        guard.setTakeTypedNames(typeName);
        if (isSaved) {
            typeName({});
            QVERIFY(model.writeTags(id));
        }
        int done = 0;
        for (int attempt = 0; attempt < 2; ++attempt) { // the second one changes nothing
            if (action == Quit)
                guard.beforeQuitting([&done] { ++done; });
            else
                guard.beforeRemoving({removed}, [&] { done += model.removeRows(model.rowOf(removed), 1) ? 1 : 0; });
        }
        for (const int answer : answers) {
            QTRY_COMPARE(window.findChildren<QMessageBox *>().size(), 1);
            QCOMPARE(done, 0);
            auto *box = window.findChild<QMessageBox *>();
            const ModelItem *song = model.item(id);
            QCOMPARE(box->text().count(QLatin1Char('\n')), model.hasUnsavedLyrics(id) ? 1 : 0); // a line a kind
            QVERIFY(box->informativeText().contains(song->writeError()));
            QCOMPARE(box->informativeText().contains(song->filename()), song->unsaved());
            QCOMPARE(box->defaultButton(), box->button(song->unsaved() ? QMessageBox::Cancel : QMessageBox::Save));
            box->button(static_cast<QMessageBox::StandardButton>(answer))->click();
            QTRY_VERIFY(!window.findChild<QMessageBox *>());
        }
        QTRY_COMPARE(done, goesOn ? 1 : 0);
        QTRY_VERIFY(!model.isWriting(id));
        guard.giveUp();
        QCOMPARE(model.unsavedIds().isEmpty(), goesOn);
        MediaFileTags tags;
        QCOMPARE(tags.read(file), trouble != Gone);
        QTEST(tags.value("artist"_s), "stored");
        QCOMPARE(tags.value("lyrics"_s), trouble == Changed ? "theirs"_s : QString());
    }

private:
    static void makeTrouble(MainModel &model, Trouble trouble)
    {
        ModelItem *song = model.itemAt(0);
        const QString file = song->url().toLocalFile();
        if (trouble == Gone) {
            QVERIFY(QFile::remove(file));
        } else if (trouble == Changed) {
            QCOMPARE(tags::updateTags(file, {{}, {}, "theirs"_s}, {}), tags::UpdateResult::Saved);
            song->setEditedLyricsTag("mine"_s);
            QVERIFY(model.writeTags(song->id())); // the user is told; another save of these would replace theirs
            QTRY_VERIFY(song->unsaved());
        }
    }
};

QTEST_MAIN(tst_UnsavedLyricsGuard)
#include "tst_unsavedlyricsguard.moc"
