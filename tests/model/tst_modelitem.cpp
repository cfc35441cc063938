// SPDX-License-Identifier: MIT
#include "model/ModelItem.h"
#include "support/TestTable.h"

#include "support/TestFolder.h"
#include "tags/MediaFileTags.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

class tst_ModelItem : public QObject
{
    Q_OBJECT

private slots:
    void searchNames_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("artistTag");
        QTest::addColumn<QString>("titleTag");
        QTest::addColumn<QString>("artist");
        QTest::addColumn<QString>("title");
        const auto row = [](const char *name, const char *file, const char *artistTag, const char *titleTag,
                            const char *artist, const char *title) {
            addRow(name, QString::fromLatin1(file), QString::fromLatin1(artistTag), QString::fromLatin1(titleTag),
                   QString::fromLatin1(artist), QString::fromLatin1(title));
        };
        row("both from the tags, trimmed", "/m/X - Y.mp3", "  Nora ", "\tHarbour\n", "Nora", "Harbour");
        row("both from the file name", "/m/Nora - Harbour.mp3", "", "  ", "Nora", "Harbour");
        row("the last dash splits", "/m/A - B - C.mp3", "", "", "A - B", "C");
        row("only the title from the file name", "/m/X - Harbour.mp3", "Nora", "", "Nora", "Harbour");
        row("only the artist from the file name", "/m/Nora - Y.mp3", "", "Harbour", "Nora", "Harbour");
        row("no blanks around the dash", "/m/Artist-Title.mp3", "", "", "", "");
        row("the artist alone when the file name says nothing", "/m/07.mp3", "Nora", "", "Nora", "");
        row("only the last suffix is cut", "/m/Mr. Vale - No. 5.live.mp3", "", "", "Mr. Vale", "No. 5.live");
        row("a file name with a line break", "/m/Nora\nVale - Harbour.mp3", "", "", "Nora\nVale", "Harbour");
        row("not a local file", "http://h/Nora - Harbour.mp3", "Nora", "", "", "");
    }

    void searchNames()
    {
        QFETCH(QString, file);
        QFETCH(QString, artistTag);
        QFETCH(QString, titleTag);
        const QUrl url = file.startsWith(QLatin1Char('/')) ? QUrl::fromLocalFile(file) : QUrl(file);
        ModelItem item(url);
        item.setTags(tagsWith(artistTag, titleTag));
        QTEST(item.searchArtistTitle().artist, "artist");
        QTEST(item.searchArtistTitle().title, "title");
    }

    void fileProperties_data()
    {
        QTest::addColumn<QString>("relative");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<bool>("exists");
        QTest::addColumn<QString>("ext");
        addRow("a file", "song.live.mp3", true, true, "mp3");
        addRow("a folder", "folder.mp3", false, true, "mp3");
    }

    void fileProperties()
    {
        QFETCH(QString, relative);
        QFETCH(bool, valid);
        const TestFolder folder;
        folder.write("song.live.mp3"_s);
        QVERIFY(QDir(folder.path()).mkdir("folder.mp3"_s));

        ModelItem item(QUrl::fromLocalFile(folder.path(relative)));
        QCOMPARE(item.valid(), valid);
        QTEST(item.fileExists(), "exists");
        QCOMPARE(item.bad(), !valid);
        QVERIFY(QFile::rename(folder.path(relative), folder.path("away"_s)));
        QCOMPARE(item.valid(), valid); // from memory
        item.setFileKind(ModelItem::FileKind::Missing);
        QVERIFY(!item.valid() && !item.fileExists());
        QVERIFY(QFile::rename(folder.path("away"_s), folder.path(relative)));
        QTEST(item.ext(), "ext");
        QCOMPARE(item.filename(), relative);
        QCOMPARE(item.path(), folder.path());
        item.setTags({});
        QVERIFY2(item.bad(), "read, and without any playing time");

        item.setUrl(QUrl("http://h/a/song.mp3"_s));
        QVERIFY(!item.valid() && !item.fileExists() && item.bad());
        QCOMPARE(item.filename() + item.path() + item.ext(), QString());
    }

    void tagsAreTakenAndAnnounced()
    {
        ModelItem item(QUrl::fromLocalFile("/m/a.flac"_s));
        QSignalSpy titles(&item, &ModelItem::titleTagChanged);
        QSignalSpy artists(&item, &ModelItem::artistTagChanged);
        QSignalSpy lyrics(&item, &ModelItem::lyricsTagChanged);
        QSignalSpy loaded(&item, &ModelItem::tagsLoadedChanged);
        item.setTags(tagsWith("Nora"_s, "Harbour"_s, "la la"_s));
        QCOMPARE(titles.value(0), QVariantList{"Harbour"_s});
        QCOMPARE(artists.value(0), QVariantList{"Nora"_s});
        QCOMPARE(lyrics.value(0), QVariantList{"la la"_s});
        QCOMPARE(loaded.value(0), QVariantList{true});
        QVERIFY(item.lyricsEmbedded());
        QVERIFY(item.duration() > 0);
    }

    void namesCannotBeSetBeforeTheTagsAreLoaded()
    {
        ModelItem item;
        QSignalSpy changes(&item, &ModelItem::changed);
        item.setTitleTag("T"_s);
        item.setArtistTag("A"_s);
        item.setLyricsTag("L"_s);
        QCOMPARE(changes.count(), 0);
        item.setTags({});
        QCOMPARE(item.titleTag() + item.artistTag() + item.lyricsTag(), QString());
        item.setTitleTag("T"_s);
        QCOMPARE(item.titleTag(), "T"_s);
    }

    void lyricsForgetTheirNamesWhenEdited()
    {
        ModelItem item;
        item.setTags({});
        item.setFoundLyricsTag("A"_s, "T"_s, "found"_s);
        QCOMPARE(item.lyricsArtist() + item.lyricsTitle() + item.lyricsTag(), "ATfound"_s);
        QVERIFY(!item.lyricsEmbedded());
        QSignalSpy lyrics(&item, &ModelItem::lyricsTagChanged);
        item.setEditedLyricsTag("typed"_s);
        QCOMPARE(lyrics.value(0), QVariantList{"typed"_s});
        QVERIFY(item.lyricsArtist().isNull() && item.lyricsTitle().isNull());
        QVERIFY(!item.lyricsEmbedded());
    }

    void stateChangesAreAnnouncedInOrder()
    {
        ModelItem item;
        QSignalSpy changes(&item, &ModelItem::changed);
        QStringList heard;
        connect(&item, &ModelItem::activeChanged, this, [&] { heard << "active"_s; });
        connect(&item, &ModelItem::writingTagsChanged, this, [&] { heard << "writing"_s; });
        connect(&item, &ModelItem::processStateChanged, this, [&] { heard << item.processStateText(); });
        item.setProcessState(ModelItem::ProcessWaiting);
        item.setProcessState(ModelItem::ProcessWaiting);
        item.setProcessState(ModelItem::ProcessWorking);
        item.setProcessState(ModelItem::ProcessWritingTags);
        item.setProcessState(ModelItem::ProcessComplete);
        const QStringList expected{"active"_s,  "queued to search..."_s, "searching..."_s, "active"_s,
                                   "writing"_s, "writing tags"_s,        "writing"_s,      "complete"_s};
        QCOMPARE(heard, expected);
        QVERIFY(item.editable());
        // Every signal but the first two kinds is followed by this one.
        QCOMPARE(changes.count(), 4);
        item.setTags({});
        QCOMPARE(changes.count(), 8);
        item.setUrl(QUrl::fromLocalFile("/a"_s));
        item.setErrorString("e"_s);
        item.setErrorString("e"_s);
        QCOMPARE(changes.count(), 10);
    }

private:
    static MediaFileTags tagsWith(const QString &artist, const QString &title, const QString &lyrics = {})
    {
        MediaFileTags tags;
        if (!lyrics.isNull())
            tags.read(QStringLiteral(VERSEWELL_SAMPLES_DIR "/plain.flac")); // lyrics need a tag to live in
        tags.setValue("artist"_s, artist);
        tags.setValue("title"_s, title);
        tags.setValue("lyrics"_s, lyrics);
        return tags;
    }
};

QTEST_GUILESS_MAIN(tst_ModelItem)
#include "tst_modelitem.moc"
