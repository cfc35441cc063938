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

enum Action { Quit, Remove, RemoveAnother, Search };
// What another program has done to the song.
enum Trouble { None, Gone, Changed, NotDeleted };

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
        row("a deletion fails, and the user stays", Quit, NotDeleted, false, {save, cancel}, false, "");
        row("removed before its lyrics are deleted", Remove, NotDeleted, false, {discard}, true, "");
        row("not searched for before words are saved that could not be", Search, Changed, false, {cancel}, false, "");
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
        bool isTyped = true;
        const auto typed = [&] {
            return isTyped && model.item(id) ? QVector<quint16>{id} : QVector<quint16>();
        };
        const auto take = [&](const QVector<quint16> &ids) {
            if (!ids.contains(id) || !isTyped)
                return;
            model.item(id)->setArtistTag("Nora"_s);
            isTyped = false;
        };
        guard.setTypedNames({typed, take});
        if (isSaved) {
            take({id});
            QVERIFY(model.writeTags(id));
        }
        int done = 0;
        for (int attempt = 0; attempt < 2; ++attempt) { // the second one changes nothing
            if (action == Quit)
                guard.beforeQuitting([&done] { ++done; });
            else if (action == Search)
                guard.beforeSearching({id}, [&done] { ++done; });
            else
                guard.beforeRemoving(
                    [&] { return model.item(removed) ? QVector<quint16>{removed} : QVector<quint16>(); },
                    [&] { done += model.removeRows(model.rowOf(removed), 1) ? 1 : 0; });
        }
        for (const int answer : answers) {
            QTRY_COMPARE(window.findChildren<QMessageBox *>().size(), 1);
            QCOMPARE(done, 0);
            auto *box = window.findChild<QMessageBox *>();
            const ModelItem *song = model.item(id);
            QCOMPARE(box->text().count(QLatin1Char('\n')),
                     trouble == Changed || trouble == NotDeleted); // a line a kind
            QCOMPARE(box->text().contains("deleted"_s), trouble == NotDeleted);
            QVERIFY(box->informativeText().contains(song->writeError()));
            QVERIFY(box->informativeText().contains(song->filename()));
            QCOMPARE(box->defaultButton(), box->button(song->unsaved() ? QMessageBox::Cancel : QMessageBox::Save));
            box->button(static_cast<QMessageBox::StandardButton>(answer))->click();
            QTRY_VERIFY(!window.findChild<QMessageBox *>());
        }
        QTRY_COMPARE(done, goesOn ? 1 : 0);
        QTRY_VERIFY(!model.isWriting(id));
        guard.giveUp();
        QCOMPARE((typed() + model.unsavedIds()).isEmpty(), goesOn && action != RemoveAnother);
        QVERIFY(isTyped || answers != QVector<int>{QMessageBox::Cancel}); // what was not confirmed still is not
        MediaFileTags tags;
        QCOMPARE(tags.read(file), trouble != Gone);
        QTEST(tags.value("artist"_s), "stored");
        QCOMPARE(tags.value("lyrics"_s), trouble == Changed || trouble == NotDeleted ? "theirs"_s : QString());
    }

private:
    static void makeTrouble(MainModel &model, Trouble trouble)
    {
        ModelItem *song = model.itemAt(0);
        const QString file = song->url().toLocalFile();
        if (trouble == NotDeleted) {
            song->setEditedLyricsTag("old"_s);
            QVERIFY(model.writeTags(song->id()));
            QTRY_VERIFY(!model.isWriting(song->id()));
        }
        if (trouble == Gone) {
            QVERIFY(QFile::remove(file));
        } else if (trouble != None) {
            QCOMPARE(tags::updateTags(file, {{}, {}, "theirs"_s}, {}), tags::UpdateResult::Saved);
            song->setEditedLyricsTag(trouble == Changed ? "mine"_s : QString());
            QVERIFY(model.writeTags(song->id())); // the user is told; another save of these would replace theirs
            QTRY_VERIFY(song->unsaved());
        }
    }
};

QTEST_MAIN(tst_UnsavedLyricsGuard)
#include "tst_unsavedlyricsguard.moc"
