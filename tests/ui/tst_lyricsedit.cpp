// SPDX-License-Identifier: MIT
#include "ui/LyricsEdit.h"

#include "model/MainModel.h"

#include <QFile>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class tst_LyricsEdit : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void onlyAnEditableSongIsEdited_data();
    void onlyAnEditableSongIsEdited();
    void theDraftIsTheUsersOwn();
    void lineBreaksOfAnEditorAreNoChange_data();
    void lineBreaksOfAnEditorAreNoChange();
    void aDraftIsKeptWhileItCannotBeWritten();
    void aSavedDraftReachesTheFile();
    void theEditOfADeletedSongEnds();

private:
    ModelItem *song(int row) const { return m_model->itemAt(row); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainModel> m_model;
};

void tst_LyricsEdit::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_model = std::make_unique<MainModel>();
    m_model->setReaderProgram(QStringLiteral(VERSEWELL_READER));
    QList<QUrl> urls;
    for (const QString &name : {QStringLiteral("a.mp3"), QStringLiteral("b.mp3")}) {
        QVERIFY(QFile::copy(QStringLiteral(VERSEWELL_SAMPLES_DIR "/untagged.mp3"), m_folder->filePath(name)));
        urls.append(QUrl::fromLocalFile(m_folder->filePath(name)));
    }
    m_model->add(urls);
    QTRY_COMPARE(song(1)->processState(), ModelItem::ProcessNotSuitable);
    QTRY_COMPARE(song(0)->processState(), ModelItem::ProcessNotSuitable);
}

void tst_LyricsEdit::onlyAnEditableSongIsEdited_data()
{
    QTest::addColumn<ModelItem::ProcessState>("state");
    QTest::addColumn<bool>("editable");
    QTest::newRow("complete") << ModelItem::ProcessComplete << true;
    QTest::newRow("not suitable") << ModelItem::ProcessNotSuitable << true;
    QTest::newRow("being searched for") << ModelItem::ProcessWorking << false;
}

void tst_LyricsEdit::onlyAnEditableSongIsEdited()
{
    QFETCH(ModelItem::ProcessState, state);
    LyricsEdit edit(m_model.get());
    song(0)->setProcessState(state);
    edit.begin(nullptr);
    QVERIFY(!edit.active());
    // As the scene calls it.
    QJSEngine engine;
    QQmlEngine::setObjectOwnership(&edit, QQmlEngine::CppOwnership);
    QQmlEngine::setObjectOwnership(song(0), QQmlEngine::CppOwnership);
    engine.globalObject().setProperty(QStringLiteral("edit"), engine.newQObject(&edit));
    engine.globalObject().setProperty(QStringLiteral("song"), engine.newQObject(song(0)));
    QVERIFY(!engine.evaluate(QStringLiteral("edit.begin(song)")).isError());
    QTEST(edit.active(), "editable");
    QCOMPARE(edit.songId(), edit.active() ? song(0)->id() : -1);
}

void tst_LyricsEdit::theDraftIsTheUsersOwn()
{
    LyricsEdit edit(m_model.get());
    edit.setText(QStringLiteral("of no song"));
    QCOMPARE(edit.text(), QString());
    edit.begin(song(0));
    QSignalSpy modifications(&edit, &LyricsEdit::modifiedChanged);
    edit.setText(QStringLiteral("mine"));
    song(0)->setFoundLyricsTag(QStringLiteral("A"), QStringLiteral("T"), QStringLiteral("a result"));
    edit.begin(song(1)); // a draft is not thrown away by the next one
    QCOMPARE(edit.text(), QStringLiteral("mine"));
    QCOMPARE(edit.songId(), int(song(0)->id()));
    edit.setText(QString());
    QCOMPARE(modifications.count(), 2);
    edit.begin(song(1));
    QCOMPARE(edit.songId(), int(song(1)->id()));
    edit.setText(QStringLiteral("mine"));
    edit.cancel();
    QVERIFY(!edit.active() && !edit.modified());
    QCOMPARE(edit.songId(), -1);
    QCOMPARE(song(0)->lyricsTag(), QStringLiteral("a result"));
    QCOMPARE(song(1)->lyricsTag(), QString());
}

void tst_LyricsEdit::lineBreaksOfAnEditorAreNoChange_data()
{
    QTest::addColumn<QString>("lyrics");
    QTest::newRow("of Windows") << "la\r\nla";
    QTest::newRow("of an old Macintosh") << "la\rla";
    QTest::newRow("a line separator") << QStringLiteral("la\u2028la");
    QTest::newRow("a no-break space") << QStringLiteral("la\u00a0!\nla");
}

void tst_LyricsEdit::lineBreaksOfAnEditorAreNoChange()
{
    QFETCH(QString, lyrics);
    song(0)->setEditedLyricsTag(lyrics);
    LyricsEdit edit(m_model.get());
    edit.begin(song(0));
    edit.setText(lyrics.contains(QLatin1Char('!')) ? QStringLiteral("la !\nla") : QStringLiteral("la\nla"));
    QVERIFY(!edit.modified());
    edit.save();
    QCOMPARE(song(0)->lyricsTag(), lyrics);
    QTRY_COMPARE(song(0)->processState(), ModelItem::ProcessComplete);
}

void tst_LyricsEdit::aDraftIsKeptWhileItCannotBeWritten()
{
    LyricsEdit edit(m_model.get());
    edit.begin(song(0));
    edit.setText(QStringLiteral("words of my own"));
    song(0)->setUnreadable(QStringLiteral("the disk is gone"));
    QVERIFY(!m_model->writeTags(song(0)->id()));
    edit.save();
    QCOMPARE(edit.text(), QStringLiteral("words of my own"));
    edit.cancel();
    m_model->setAutoStart(false);
    QVERIFY(QFile::copy(song(1)->url().toLocalFile(), m_folder->filePath(QStringLiteral("c.mp3"))));
    m_model->add({QUrl::fromLocalFile(m_folder->filePath(QStringLiteral("c.mp3")))});
    QVERIFY(!m_model->startSearch(song(2)->id()));
    QVERIFY(song(2)->editable() && !song(2)->tagsLoaded());
    edit.begin(song(2));
    QVERIFY(!edit.active());
    QVERIFY(!m_model->writeTags(song(2)->id()));
}

void tst_LyricsEdit::aSavedDraftReachesTheFile()
{
    LyricsEdit edit(m_model.get());
    edit.begin(song(0));
    edit.setText(QStringLiteral("words of my own"));
    edit.save();
    QVERIFY(!edit.active());
    QCOMPARE(song(0)->processState(), ModelItem::ProcessWritingTags);
    QTRY_COMPARE(song(0)->processState(), ModelItem::ProcessComplete);
    MainModel again;
    again.setReaderProgram(QStringLiteral(VERSEWELL_READER));
    again.add({song(0)->url()});
    QTRY_COMPARE(again.itemAt(0)->lyricsTag(), QStringLiteral("words of my own"));
}

void tst_LyricsEdit::theEditOfADeletedSongEnds()
{
    LyricsEdit edit(m_model.get());
    edit.begin(song(0));
    edit.setText(QStringLiteral("mine"));
    m_model->removeAll();
    edit.save(); // the song is not in the list any more
    QVERIFY(!edit.active());
    m_model->add({QUrl::fromLocalFile(m_folder->filePath(QStringLiteral("b.mp3")))});
    QTRY_VERIFY(song(0)->editable());
    edit.begin(song(0));
    m_model->removeAll();
    QTRY_VERIFY(!edit.active());
}

QTEST_GUILESS_MAIN(tst_LyricsEdit)
#include "tst_lyricsedit.moc"
