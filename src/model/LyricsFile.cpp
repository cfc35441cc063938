// SPDX-License-Identifier: MIT
#include "model/LyricsFile.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QTextCodec>
#include <QTextStream>

QString lyricsFileName(const QString &audioFile)
{
    const QFileInfo info(audioFile);
    return info.path() + QLatin1Char('/') + info.completeBaseName() + QLatin1String(".txt");
}

bool writeLyricsFile(const QString &audioFile, const QString &lyrics)
{
    QSaveFile file(lyricsFileName(audioFile));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    QTextStream stream(&file);
    QTextCodec *locale = QTextCodec::codecForLocale();
    if (locale && locale->canEncode(lyrics))
        stream.setCodec(locale);
    else
        stream.setCodec("UTF-8");
    stream << lyrics;
    stream.flush();
    // commit() alone would take a file that a full disk has cut for a good one (Qt 5.15).
    return stream.status() == QTextStream::Ok && file.flush() && file.commit();
}
