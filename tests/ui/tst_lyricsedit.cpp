// SPDX-License-Identifier: MIT
#include "ui/LyricsEdit.h"

#include "model/MainModel.h"
#include "support/TestFolder.h"
#include "support/TestTable.h"

#include <QFile>
#include <QQmlEngine>
#include <QSignalSpy>

class tst_LyricsEdit : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        m_model = std::make_unique<MainModel>();
        m_model->setReaderProgram(QStringLiteral(VERSEWELL_READER));
        addSongs({"a.mp3"_s, "b.mp3"_s});
        for (int row = 0; row < 2; ++row)
            QTRY_COMPARE(song(row)->processState(), ModelItem::ProcessNotSuitable);
        m_edit = std::make_unique<LyricsEdit>(m_model.get());
    }

    void cleanup() { m_edit.reset(); }

    void onlyAnEditableSongIsEdited()
    {
        // As the scene calls it.
        QJSEngine engine;
        QQmlEngine::setObjectOwnership(m_edit.get(), QQmlEngine::CppOwnership);
        QQmlEngine::setObjectOwnership(song(0), QQmlEngine::CppOwnership);
        engine.globalObject().setProperty("edit"_s, engine.newQObject(m_edit.get()));
        engine.globalObject().setProperty("song"_s, engine.newQObject(song(0)));
        m_edit->begin(nullptr);
        QVERIFY(!m_edit->active());
        for (const auto state :
             {ModelItem::ProcessComplete, ModelItem::ProcessNotSuitable, ModelItem::ProcessWorking}) {
            song(0)->setProcessState(state);
            QVERIFY(!engine.evaluate("edit.begin(song)"_s).isError());
            QCOMPARE(m_edit->songId(), state == ModelItem::ProcessWorking ? -1 : song(0)->id());
            m_edit->cancel();
        }
    }

    void theDraftIsTheUsersOwn()
    {
        m_edit->setText("of no song"_s);
        QCOMPARE(m_edit->text(), QString());
        m_edit->begin(song(0));
        QSignalSpy modifications(m_edit.get(), &LyricsEdit::modifiedChanged);
        m_edit->setText("mine"_s);
        song(0)->setFoundLyricsTag("A"_s, "T"_s, "a result"_s);
        m_edit->begin(song(1)); // a draft is not thrown away by the next one
        QCOMPARE(m_edit->text(), "mine"_s);
        QCOMPARE(m_edit->songId(), int(song(0)->id()));
        m_edit->setText(QString());
        QCOMPARE(modifications.count(), 2);
        m_edit->begin(song(1));
        QCOMPARE(m_edit->songId(), int(song(1)->id()));
        m_edit->setText("mine"_s);
        m_edit->cancel();
        QVERIFY(!m_edit->active() && !m_edit->modified());
        QCOMPARE(song(0)->lyricsTag(), "a result"_s);
        QCOMPARE(song(1)->lyricsTag(), QString());
    }

    void lineBreaksOfAnEditorAreNoChange_data()
    {
        addTextColumns("lyrics", "edited");
        addRow("of Windows", "la\r\nla", "la\nla");
        addRow("of an old Macintosh", "la\rla", "la\nla");
        addRow("a line separator", "la\u2028la", "la\nla");
        addRow("a no-break space", "la\u00a0!\nla", "la !\nla");
    }

    void lineBreaksOfAnEditorAreNoChange()
    {
        QFETCH(QString, lyrics);
        QFETCH(QString, edited);
        song(0)->setEditedLyricsTag(lyrics);
        m_edit->begin(song(0));
        m_edit->setText(edited);
        QVERIFY(!m_edit->modified());
        m_edit->save();
        QCOMPARE(song(0)->lyricsTag(), lyrics);
        QTRY_COMPARE(song(0)->processState(), ModelItem::ProcessComplete);
    }

    void aDraftIsKeptWhileItCannotBeWritten()
    {
        m_edit->begin(song(0));
        m_edit->setText("words of my own"_s);
        song(0)->setUnreadable("the disk is gone"_s);
        m_edit->save();
        QCOMPARE(m_edit->text(), "words of my own"_s);
        m_edit->cancel();
        m_model->setAutoStart(false);
        addSongs({"c.mp3"_s});
        QVERIFY(!m_model->startSearch(song(2)->id())); // it has no names
        QVERIFY(song(2)->editable() && !song(2)->tagsLoaded());
        m_edit->begin(song(2));
        QVERIFY(!m_edit->active());
    }

    void aSavedDraftReachesTheFile()
    {
        m_edit->begin(song(0));
        m_edit->setText("words of my own"_s);
        m_edit->save();
        QVERIFY(!m_edit->active());
        QTRY_COMPARE(song(0)->processState(), ModelItem::ProcessComplete);
        MainModel again;
        again.setReaderProgram(QStringLiteral(VERSEWELL_READER));
        again.add({song(0)->url()});
        QTRY_COMPARE(again.itemAt(0)->lyricsTag(), "words of my own"_s);
    }

    void theEditOfADeletedSongEnds()
    {
        m_edit->begin(song(0));
        m_edit->setText("mine"_s);
        m_model->removeAll();
        m_edit->save(); // the song is not in the list any more
        QVERIFY(!m_edit->active());
        m_model->add({m_folder->url("b.mp3"_s)});
        QTRY_VERIFY(song(0)->editable());
        m_edit->begin(song(0));
        m_model->removeAll();
        QTRY_VERIFY(!m_edit->active());
    }

private:
    [[nodiscard]] ModelItem *song(int row) const { return m_model->itemAt(row); }

    void addSongs(const QStringList &names)
    {
        QList<QUrl> urls;
        for (const QString &name : names) {
            QVERIFY(QFile::copy(QStringLiteral(VERSEWELL_SAMPLES_DIR "/untagged.mp3"), m_folder->path(name)));
            urls.append(m_folder->url(name));
        }
        m_model->add(urls);
    }

    std::unique_ptr<TestFolder> m_folder;
    std::unique_ptr<MainModel> m_model;
    std::unique_ptr<LyricsEdit> m_edit;
};

QTEST_GUILESS_MAIN(tst_LyricsEdit)
#include "tst_lyricsedit.moc"
