// SPDX-License-Identifier: MIT
#include "support/TestTable.h"
#include "tags/MediaInfoExtractor.h"
#include "tags/SongFiles.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>

#include <memory>

namespace {

class Extractor : public MediaInfoExtractor
{
public:
    Extractor() { setReaderProgram(QStringLiteral(VERSEWELL_READER)); }
};

QString title(const QList<QVariant> &arguments)
{
    return arguments.at(1).value<MediaFileTags>().value("title"_s);
}

} // namespace

class tst_MediaInfoExtractor : public QObject
{
    Q_OBJECT

private slots:
    void resultsAreAnnounced_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("decodeCover");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QSize>("thumbnail");
        const QString song = "The Song"_s;
        addRow("with cover", "rich.mp3"_s, true, song, QSize(50, 33));
        addRow("cover not wanted", "rich.mp3"_s, false, song, QSize());
        addRow("no cover", "plain.ogg"_s, true, song, QSize());
        addRow("not audio", "list.txt"_s, true, QString(), QSize());
        addRow("vanished", "vanished.mp3"_s, true, QString(), QSize());
    }

    void resultsAreAnnounced()
    {
        QFETCH(QString, name);
        QFETCH(bool, decodeCover);
        QFETCH(QSize, thumbnail);
        const SongFiles files;
        const QString path = files.path(name);
        if (name == QLatin1String("list.txt"))
            QCOMPARE(files.write(name, "a shopping list"), path);
        else if (name != QLatin1String("vanished.mp3"))
            QCOMPARE(files.copy(name), path);
        Extractor extractor;
        extractor.setDecodeCover(decodeCover);
        QSignalSpy spy(&extractor, &MediaInfoExtractor::infoExtracted);
        extractor.request(path);
        QVERIFY(spy.wait());
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.first().at(0).toString(), path);
        QTEST(title(spy.first()), "title");
        QCOMPARE(spy.first().at(1).value<MediaFileTags>().thumbnail().size(),
                 thumbnail.isValid() ? thumbnail : QSize(0, 0));
    }

    void overtakenResultsAreDropped()
    {
        const SongFiles files;
        Extractor extractor;
        QSignalSpy spy(&extractor, &MediaInfoExtractor::infoExtracted);
        extractor.request(files.copy("plain.ogg"_s));
        extractor.request(files.copy("plain.flac"_s));
        const QString newest = files.copy("v1-fills-v2.mp3"_s);
        extractor.request(newest);
        QVERIFY(spy.wait());
        // One more read shows that no answer is left over.
        extractor.request(newest);
        QVERIFY(spy.wait());
        QCOMPARE(spy.count(), 2);
        for (const QList<QVariant> &arguments : spy) {
            QCOMPARE(arguments.at(0).toString(), newest);
            QCOMPARE(title(arguments), "Title Of One"_s);
        }
    }

    void aRequestFromTheAnswerIsServed()
    {
        const SongFiles files;
        const QString first = files.copy("plain.ogg"_s);
        const QString second = files.copy("plain.flac"_s);
        Extractor extractor;
        QStringList answers;
        connect(&extractor, &MediaInfoExtractor::infoExtracted, this, [&](const QString &path) {
            answers.append(path);
            if (path == first)
                extractor.request(second);
        });
        extractor.request(first);
        QTRY_COMPARE(answers, (QStringList{first, second}));
    }

    void extractorMayDieDuringARead()
    {
        const SongFiles files;
        const QString path = files.copy("rich.mp3"_s);
        const QString stalling = files.copy("rich.mp3"_s, "stall.mp3"_s);
        for (int round = 0; round < 20; ++round) {
            auto extractor = std::make_unique<Extractor>();
            extractor->request(round % 2 == 0 ? path : stalling);
            extractor.reset();
            QCoreApplication::processEvents();
        }
        QVERIFY(QThreadPool::globalInstance()->waitForDone(4'000)); // sooner than the limit on a file
        QCoreApplication::processEvents();
    }

    void withoutReaderNothingIsRead()
    {
        const SongFiles files;
        MediaInfoExtractor extractor;
        QSignalSpy spy(&extractor, &MediaInfoExtractor::infoExtracted);
        extractor.request(files.copy("rich.mp3"_s));
        QVERIFY(spy.wait());
        QCOMPARE(title(spy.first()), QString());
        QCOMPARE(spy.first().at(1).value<MediaFileTags>().readFailure(), tags::ReadFailure::NoReader);
    }
};

QTEST_GUILESS_MAIN(tst_MediaInfoExtractor)
#include "tst_mediainfoextractor.moc"
