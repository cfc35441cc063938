// SPDX-License-Identifier: MIT
#include "ui/FileImageProvider.h"

#include "model/MainModel.h"
#include "support/TestTable.h"

class tst_FileImageProvider : public QObject
{
    Q_OBJECT

private slots:
    void coversAreFoundByTheSongsId_data()
    {
        const QSize usual(32, 32);
        addTextColumns("id");
        QTest::addColumn<QSize>("requested");
        QTest::addColumn<QSize>("reported");
        QTest::addColumn<QSize>("image");
        addRow("no size is requested", "1", QSize(-1, -1), usual, QSize(32, 16));
        addRow("a size is requested", "1", QSize(100, 20), QSize(100, 20), QSize(40, 20));
        addRow("only one side is requested", "1", QSize(44, -1), usual, QSize(32, 16));
        addRow("the number has 16 bits", "65537", QSize(), usual, QSize(32, 16));
        addRow("no such song", "2", QSize(), usual, QSize());
        addRow("a word", "default", QSize(), usual, QSize());
    }

    void coversAreFoundByTheSongsId()
    {
        QFETCH(QString, id);
        QFETCH(QSize, requested);
        QImage cover(40, 20, QImage::Format_RGB32);
        cover.fill(Qt::red);
        MainModel model;
        model.add({QUrl::fromLocalFile(QStringLiteral(VERSEWELL_SAMPLES_DIR "/untagged.mp3"))});
        model.itemAt(0)->setThumbnail(cover);
        FileImageProvider provider;
        QSize size;
        QVERIFY(provider.requestImage(id, &size, requested).isNull()); // without a model
        provider.setModel(&model);
        const QImage served = provider.requestImage(id, &size, requested);
        QTEST(served.isNull() ? QSize() : served.size(), "image");
        QTEST(size, "reported");
    }
};

QTEST_GUILESS_MAIN(tst_FileImageProvider)
#include "tst_fileimageprovider.moc"
