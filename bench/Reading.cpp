// SPDX-License-Identifier: MIT
#include "Benches.h"
#include "Table.h"

#include "model/MainModel.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <fileref.h>
#include <tag.h>

namespace {

QList<QUrl> copySamples(const QString &folder, int count)
{
    const QStringList samples{QStringLiteral("plain-v23.mp3"), QStringLiteral("plain.flac"),
                              QStringLiteral("plain.m4a"), QStringLiteral("plain.ogg")};
    QList<QUrl> urls;
    for (int i = 0; i < count; ++i) {
        const QString &sample = samples.at(i % samples.size());
        const QString copy = QStringLiteral("%1/%2-%3").arg(folder).arg(i).arg(sample);
        if (!QFile::copy(QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + sample, copy))
            qFatal("cannot copy the sample %s", qPrintable(sample));
        urls.append(QUrl::fromLocalFile(copy));
    }
    return urls;
}

void readBare(const QList<QUrl> &urls)
{
    for (const QUrl &url : urls) {
        const TagLib::FileRef file(QFile::encodeName(url.toLocalFile()).constData());
        if (file.isNull() || file.tag()->title().isEmpty() || file.tag()->artist().isEmpty())
            qFatal("a sample has lost its tags");
    }
}

void readThroughModel(const QList<QUrl> &urls)
{
    MainModel model;
    model.setReaderProgram(QCoreApplication::applicationFilePath());
    model.setAutoStart(false);
    model.add(urls);
    while (!model.itemAt(urls.size() - 1)->tagsLoaded())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace

void benchReading()
{
    const QTemporaryDir folder;
    const QList<QUrl> many = copySamples(folder.path(), 2000);
    const QList<QUrl> few = many.mid(0, 500);
    readBare(many); // both then find the files in the cache
    const QString name = QStringLiteral("read tags through the model / bare TagLib loop");
    const double fewTime = secondsOf([&] { readThroughModel(few); });
    BenchTable::printRow(name, few.size(), fewTime, secondsOf([&] { readBare(few); }));
    const double manyTime = secondsOf([&] { readThroughModel(many); });
    BenchTable::printRow(name, many.size(), manyTime, secondsOf([&] { readBare(many); }), fewTime, 4);
}
