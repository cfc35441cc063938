// SPDX-License-Identifier: MIT
#include "ui/FileImageProvider.h"

#include "model/MainModel.h"

#include <QTest>

class tst_FileImageProvider : public QObject
{
    Q_OBJECT

private slots:
    void coversAreFoundByTheSongsId_data();
    void coversAreFoundByTheSongsId();
};

void tst_FileImageProvider::coversAreFoundByTheSongsId_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QSize>("requested");
    QTest::addColumn<QSize>("reported");
    QTest::addColumn<QSize>("image");
    QTest::newRow("no size is requested") << "1" << QSize(-1, -1) << QSize(32, 32) << QSize(32, 16);
    QTest::newRow("a size is requested") << "1" << QSize(100, 20) << QSize(100, 20) << QSize(40, 20);
    QTest::newRow("only one side is requested") << "1" << QSize(44, -1) << QSize(32, 32) << QSize(32, 16);
    QTest::newRow("the number has 16 bits") << "65537" << QSize() << QSize(32, 32) << QSize(32, 16);
    QTest::newRow("no such song") << "2" << QSize() << QSize(32, 32) << QSize();
    QTest::newRow("the song 0") << "0" << QSize() << QSize(32, 32) << QSize();
    QTest::newRow("a word") << "default" << QSize() << QSize(32, 32) << QSize();
}

void tst_FileImageProvider::coversAreFoundByTheSongsId()
{
    QFETCH(QString, id);
    QFETCH(QSize, requested);
    QFETCH(QSize, reported);
    QFETCH(QSize, image);
    MainModel model;
    model.add({QUrl::fromLocalFile(QStringLiteral(VERSEWELL_SAMPLES_DIR "/untagged.mp3"))});
    QImage cover(40, 20, QImage::Format_RGB32);
    cover.fill(Qt::red);
    model.itemAt(0)->setThumbnail(cover);
    FileImageProvider provider;
    QSize size;
    QVERIFY(provider.requestImage(id, &size, requested).isNull());
    provider.setModel(&model);
    const QImage served = provider.requestImage(id, &size, requested);
    QCOMPARE(served.isNull() ? QSize() : served.size(), image);
    QCOMPARE(size, reported);
}

QTEST_GUILESS_MAIN(tst_FileImageProvider)
#include "tst_fileimageprovider.moc"
