// SPDX-License-Identifier: MIT
#include "model/ModelItem.h"

#include "tags/MediaFileTags.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
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
        QTest::newRow("both from the tags, trimmed") << "/m/X - Y.mp3"
                                                     << "  Nora Vale "
                                                     << "\tHarbour\n"
                                                     << "Nora Vale"
                                                     << "Harbour";
        QTest::newRow("both from the file name") << "/m/Nora Vale - Harbour.mp3"
                                                 << ""
                                                 << "  "
                                                 << "Nora Vale"
                                                 << "Harbour";
        QTest::newRow("the last dash splits") << "/m/A - B - C.mp3"
                                              << ""
                                              << ""
                                              << "A - B"
                                              << "C";
        QTest::newRow("title from the file name, artist from the tag") << "/m/X - Harbour.mp3"
                                                                       << "Nora Vale"
                                                                       << ""
                                                                       << "Nora Vale"
                                                                       << "Harbour";
        QTest::newRow("artist from the file name, title from the tag") << "/m/Nora Vale - Y.mp3"
                                                                       << ""
                                                                       << "Harbour"
                                                                       << "Nora Vale"
                                                                       << "Harbour";
        QTest::newRow("no blanks around the dash") << "/m/Artist-Title.mp3"
                                                   << ""
                                                   << ""
                                                   << ""
                                                   << "";
        QTest::newRow("the artist alone when the file name says nothing") << "/m/07.mp3"
                                                                          << "Nora Vale"
                                                                          << ""
                                                                          << "Nora Vale"
                                                                          << "";
        QTest::newRow("only the last suffix is cut") << "/m/Mr. Vale - No. 5.live.mp3"
                                                     << ""
                                                     << ""
                                                     << "Mr. Vale"
                                                     << "No. 5.live";
        QTest::newRow("a file name with a line break") << "/m/Nora\nVale - Harbour.mp3"
                                                       << ""
                                                       << ""
                                                       << "Nora\nVale"
                                                       << "Harbour";
        QTest::newRow("not a local file") << "http://h/Nora Vale - Harbour.mp3"
                                          << "Nora Vale"
                                          << ""
                                          << ""
                                          << "";
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
        QTest::newRow("a file") << "song.live.mp3" << true << true << "mp3";
        QTest::newRow("a link to a file") << "link.ogg" << true << true << "ogg";
        QTest::newRow("a folder") << "folder.mp3" << false << true << "mp3";
        QTest::newRow("nothing there") << "gone" << false << false << "";
    }

    void fileProperties()
    {
        QFETCH(QString, relative);
        QFETCH(bool, valid);
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("song.live.mp3")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.link(folder.filePath(QStringLiteral("link.ogg"))));
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder.mp3")));

        ModelItem item(QUrl::fromLocalFile(folder.filePath(relative)));
        QCOMPARE(item.valid(), valid);
        QTEST(item.fileExists(), "exists");
        QCOMPARE(item.bad(), !valid);
        QTEST(item.ext(), "ext");
        QCOMPARE(item.filename(), relative);
        QCOMPARE(item.path(), folder.path());
        item.setTags({});
        QVERIFY2(item.bad(), "read, and without any playing time");

        item.setUrl(QUrl(QStringLiteral("http://h/a/song.mp3")));
        QVERIFY(!item.valid() && !item.fileExists() && item.bad());
        QCOMPARE(item.filename() + item.path() + item.ext(), QString());
    }

    void thumbnails_data()
    {
        QTest::addColumn<QSize>("original");
        QTest::addColumn<QSize>("expected");
        QTest::newRow("none") << QSize(0, 0) << QSize(0, 0);
        QTest::newRow("small enough") << QSize(40, 30) << QSize(40, 30);
        QTest::newRow("just small enough") << QSize(50, 50) << QSize(50, 50);
        QTest::newRow("high") << QSize(100, 400) << QSize(13, 50);
        QTest::newRow("wide") << QSize(400, 100) << QSize(50, 13);
        QTest::newRow("square") << QSize(300, 300) << QSize(50, 50);
        QTest::newRow("a line") << QSize(5000, 1) << QSize(50, 1);
    }

    void thumbnails()
    {
        QFETCH(QSize, original);
        QImage image(original, QImage::Format_RGB32);
        image.fill(Qt::red);
        ModelItem item;
        item.setThumbnail(image);
        QTEST(item.thumbnail().size(), "expected");
    }

    void tagsAreTakenAndAnnounced()
    {
        ModelItem item(QUrl::fromLocalFile(QStringLiteral("/m/a.flac")));
        QSignalSpy titles(&item, &ModelItem::titleTagChanged);
        QSignalSpy artists(&item, &ModelItem::artistTagChanged);
        QSignalSpy lyrics(&item, &ModelItem::lyricsTagChanged);
        QSignalSpy loaded(&item, &ModelItem::tagsLoadedChanged);
        item.setTags(tagsWith(QStringLiteral("Nora"), QStringLiteral("Harbour"), QStringLiteral("la la")));
        QCOMPARE(titles.value(0), QVariantList{QStringLiteral("Harbour")});
        QCOMPARE(artists.value(0), QVariantList{QStringLiteral("Nora")});
        QCOMPARE(lyrics.value(0), QVariantList{QStringLiteral("la la")});
        QCOMPARE(loaded.value(0), QVariantList{true});
        QVERIFY(item.lyricsEmbedded());
        QVERIFY(item.duration() > 0);
    }

    void namesCannotBeSetBeforeTheTagsAreLoaded()
    {
        ModelItem item;
        QSignalSpy changes(&item, &ModelItem::changed);
        item.setTitleTag(QStringLiteral("T"));
        item.setArtistTag(QStringLiteral("A"));
        item.setLyricsTag(QStringLiteral("L"));
        QCOMPARE(changes.count(), 0);
        item.setTags({});
        QCOMPARE(item.titleTag() + item.artistTag() + item.lyricsTag(), QString());
        item.setTitleTag(QStringLiteral("T"));
        QCOMPARE(item.titleTag(), QStringLiteral("T"));
    }

    void lyricsForgetTheirNamesWhenEdited()
    {
        ModelItem item;
        item.setTags({});
        item.setFoundLyricsTag(QStringLiteral("A"), QStringLiteral("T"), QStringLiteral("found"));
        QCOMPARE(item.lyricsArtist() + item.lyricsTitle() + item.lyricsTag(), QStringLiteral("ATfound"));
        QVERIFY(!item.lyricsEmbedded());
        QSignalSpy lyrics(&item, &ModelItem::lyricsTagChanged);
        item.setEditedLyricsTag(QStringLiteral("typed"));
        QCOMPARE(lyrics.value(0), QVariantList{QStringLiteral("typed")});
        QVERIFY(item.lyricsArtist().isNull() && item.lyricsTitle().isNull());
        QVERIFY(!item.lyricsEmbedded());
    }

    void stateChangesAreAnnouncedInOrder()
    {
        ModelItem item;
        QStringList heard;
        connect(&item, &ModelItem::activeChanged, this, [&] { heard << QStringLiteral("active"); });
        connect(&item, &ModelItem::writingTagsChanged, this, [&] { heard << QStringLiteral("writing"); });
        connect(&item, &ModelItem::processStateChanged, this, [&] { heard << item.processStateText(); });
        item.setProcessState(ModelItem::ProcessWaiting);
        item.setProcessState(ModelItem::ProcessWaiting);
        item.setProcessState(ModelItem::ProcessWorking);
        item.setProcessState(ModelItem::ProcessWritingTags);
        item.setProcessState(ModelItem::ProcessComplete);
        const QStringList expected{QStringLiteral("active"),       QStringLiteral("queued to search..."),
                                   QStringLiteral("searching..."), QStringLiteral("active"),
                                   QStringLiteral("writing"),      QStringLiteral("writing tags"),
                                   QStringLiteral("writing"),      QStringLiteral("complete")};
        QCOMPARE(heard, expected);
        QVERIFY(item.editable());
        QCOMPARE(ModelItem::textOf(static_cast<ModelItem::ProcessState>(99)), QString());
    }

    void everySignalIsFollowedByChanged()
    {
        ModelItem item;
        QSignalSpy changes(&item, &ModelItem::changed);
        item.setTags({});
        QCOMPARE(changes.count(), 4);
        item.setUrl(QUrl::fromLocalFile(QStringLiteral("/a")));
        item.setErrorString(QStringLiteral("e"));
        item.setErrorString(QStringLiteral("e"));
        item.setProcessState(ModelItem::ProcessComplete);
        QCOMPARE(changes.count(), 7);
    }

private:
    static MediaFileTags tagsWith(const QString &artist, const QString &title, const QString &lyrics)
    {
        MediaFileTags tags;
        if (!lyrics.isNull())
            tags.read(QStringLiteral(VERSEWELL_SAMPLES_DIR "/plain.flac")); // lyrics need a tag to live in
        tags.setValue(QStringLiteral("artist"), artist);
        tags.setValue(QStringLiteral("title"), title);
        tags.setValue(QStringLiteral("lyrics"), lyrics);
        return tags;
    }
};

QTEST_GUILESS_MAIN(tst_ModelItem)
#include "tst_modelitem.moc"
