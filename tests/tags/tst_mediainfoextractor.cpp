// SPDX-License-Identifier: MIT
#include "tags/MediaInfoExtractor.h"
#include "tags/SongFiles.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>

#include <memory>

class tst_MediaInfoExtractor : public QObject
{
    Q_OBJECT

private slots:
    void resultsAreAnnounced_data();
    void resultsAreAnnounced();
    void overtakenResultsAreDropped();
    void aRequestFromTheAnswerIsServed();
    void extractorMayDieDuringARead();
    void withoutReaderNothingIsRead();
};

namespace {

class Extractor : public MediaInfoExtractor
{
public:
    Extractor() { setReaderProgram(QStringLiteral(VERSEWELL_READER)); }
};

QString title(const QList<QVariant> &arguments)
{
    return arguments.at(1).value<MediaFileTags>().value(QStringLiteral("title"));
}

} // namespace

void tst_MediaInfoExtractor::resultsAreAnnounced_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("decodeCover");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QSize>("thumbnail");
    const QString song = QStringLiteral("The Song");
    QTest::newRow("with cover") << QStringLiteral("rich.mp3") << true << song << QSize(50, 33);
    QTest::newRow("cover not wanted") << QStringLiteral("rich.mp3") << false << song << QSize();
    QTest::newRow("no cover") << QStringLiteral("plain.ogg") << true << song << QSize();
    QTest::newRow("not audio") << QStringLiteral("list.txt") << true << QString() << QSize();
    QTest::newRow("vanished") << QStringLiteral("vanished.mp3") << true << QString() << QSize();
}

void tst_MediaInfoExtractor::resultsAreAnnounced()
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

void tst_MediaInfoExtractor::overtakenResultsAreDropped()
{
    const SongFiles files;
    Extractor extractor;
    QSignalSpy spy(&extractor, &MediaInfoExtractor::infoExtracted);
    extractor.request(files.copy(QStringLiteral("plain.ogg")));
    extractor.request(files.copy(QStringLiteral("plain.flac")));
    const QString newest = files.copy(QStringLiteral("v1-fills-v2.mp3"));
    extractor.request(newest);
    QVERIFY(spy.wait());
    // One more read shows that no answer is left over.
    extractor.request(newest);
    QVERIFY(spy.wait());
    QCOMPARE(spy.count(), 2);
    for (const QList<QVariant> &arguments : spy) {
        QCOMPARE(arguments.at(0).toString(), newest);
        QCOMPARE(title(arguments), QStringLiteral("Title Of One"));
    }
}

void tst_MediaInfoExtractor::aRequestFromTheAnswerIsServed()
{
    const SongFiles files;
    const QString first = files.copy(QStringLiteral("plain.ogg"));
    const QString second = files.copy(QStringLiteral("plain.flac"));
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

void tst_MediaInfoExtractor::extractorMayDieDuringARead()
{
    const SongFiles files;
    const QString path = files.copy(QStringLiteral("rich.mp3"));
    const QString stalling = files.copy(QStringLiteral("rich.mp3"), QStringLiteral("stall.mp3"));
    for (int round = 0; round < 20; ++round) {
        auto extractor = std::make_unique<Extractor>();
        extractor->request(round % 2 == 0 ? path : stalling);
        extractor.reset();
        QCoreApplication::processEvents();
    }
    QVERIFY(QThreadPool::globalInstance()->waitForDone(4'000)); // sooner than the limit on a file
    QCoreApplication::processEvents();
}

void tst_MediaInfoExtractor::withoutReaderNothingIsRead()
{
    const SongFiles files;
    MediaInfoExtractor extractor;
    QSignalSpy spy(&extractor, &MediaInfoExtractor::infoExtracted);
    extractor.request(files.copy(QStringLiteral("rich.mp3")));
    QVERIFY(spy.wait());
    QCOMPARE(title(spy.first()), QString());
    QCOMPARE(spy.first().at(1).value<MediaFileTags>().readFailure(), tags::ReadFailure::NoReader);
}

QTEST_GUILESS_MAIN(tst_MediaInfoExtractor)
#include "tst_mediainfoextractor.moc"
