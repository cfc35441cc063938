// SPDX-License-Identifier: MIT
#include "model/ModelItem.h"
#include "support/TestTable.h"

#include "support/TestFolder.h"
#include "tags/MediaFileTags.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

class tst_ModelItem : public QObject
{
    Q_OBJECT

private slots:
    void searchNames_data()
    {
        addTextColumns("file", "artistTag", "titleTag", "artist", "title");
        addRow("both from the tags, trimmed", "/m/X - Y.mp3", "  Nora ", "\tHarbour\n", "Nora", "Harbour");
        addRow("both from the file name", "/m/Nora - Harbour.mp3", "", "  ", "Nora", "Harbour");
        addRow("the last dash splits", "/m/A - B - C.mp3", "", "", "A - B", "C");
        addRow("only the title from the file name", "/m/X - Harbour.mp3", "Nora", "", "Nora", "Harbour");
        addRow("only the artist from the file name", "/m/Nora - Y.mp3", "", "Harbour", "Nora", "Harbour");
        addRow("no blanks around the dash", "/m/Artist-Title.mp3", "", "", "", "");
        addRow("the artist alone when the file name says nothing", "/m/07.mp3", "Nora", "", "Nora", "");
        addRow("only the last suffix is cut", "/m/Mr. Vale - No. 5.live.mp3", "", "", "Mr. Vale", "No. 5.live");
        addRow("a file name with a line break", "/m/Nora\nVale - Harbour.mp3", "", "", "Nora\nVale", "Harbour");
        addRow("not a local file", "http://h/Nora - Harbour.mp3", "Nora", "", "", "");
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

    void fileProperties()
    {
        const TestFolder folder;
        folder.write("folder.mp3/song"_s);
        const ModelItem notFile(folder.url("folder.mp3"_s));
        QVERIFY(!notFile.valid() && notFile.fileExists() && notFile.bad());
        ModelItem item(QUrl::fromLocalFile(folder.write("song.live.mp3"_s)));
        QVERIFY(item.valid() && item.fileExists() && !item.bad());
        QCOMPARE(item.filename() + "|"_s + item.path() + "|"_s + item.ext(),
                 "song.live.mp3|"_s + folder.path() + "|mp3"_s);
        item.setTags({});
        QVERIFY2(item.bad(), "read, and without any playing time");
        item.setFileKind(ModelItem::FileKind::Missing);
        QVERIFY(!item.valid() && !item.fileExists());
        item.setUrl(QUrl("http://h/a/song.mp3"_s));
        QVERIFY(!item.valid() && !item.fileExists() && item.bad());
        QCOMPARE(item.filename() + item.path() + item.ext(), QString());
    }

    void textsAreTakenAndAnnounced()
    {
        ModelItem item(QUrl::fromLocalFile("/m/a.flac"_s));
        QSignalSpy titles(&item, &ModelItem::titleTagChanged);
        QSignalSpy artists(&item, &ModelItem::artistTagChanged);
        QSignalSpy lyrics(&item, &ModelItem::lyricsTagChanged);
        QSignalSpy loaded(&item, &ModelItem::tagsLoadedChanged);
        item.setTitleTag("before the tags are loaded"_s);
        item.setArtistTag("before the tags are loaded"_s);
        item.setLyricsTag("before the tags are loaded"_s);
        item.setTags(tagsWith("Nora"_s, "Harbour"_s, "la la"_s));
        QVERIFY(item.lyricsEmbedded() && item.duration() > 0);
        item.setTitleTag("Quay"_s);
        item.setFoundLyricsTag("A"_s, "T"_s, "found"_s);
        QCOMPARE(item.lyricsArtist() + item.lyricsTitle() + item.lyricsTag(), "ATfound"_s);
        QVERIFY(!item.lyricsEmbedded());
        item.setEditedLyricsTag("typed"_s);
        QVERIFY(item.lyricsArtist().isNull() && item.lyricsTitle().isNull() && !item.lyricsEmbedded());
        QCOMPARE(titles, (QList<QVariantList>{{"Harbour"_s}, {"Quay"_s}}));
        QCOMPARE(artists, (QList<QVariantList>{{"Nora"_s}}));
        QCOMPARE(lyrics, (QList<QVariantList>{{"la la"_s}, {"found"_s}, {"typed"_s}}));
        QCOMPARE(loaded, (QList<QVariantList>{{true}}));
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
        QCOMPARE(heard.join(QLatin1Char('|')),
                 "active|queued to search...|searching...|active|writing|writing tags|writing|complete"_s);
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
