// SPDX-License-Identifier: MIT
#include "model/UnsavedTexts.h"

#include "model/MainModel.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <unistd.h>

namespace {

// Of the song's name: a file name takes 255 bytes, and a number and a suffix follow.
constexpr int mostNameBytes = 200;

QString baseName(const ModelItem &item)
{
    QString name = item.filename();
    while (name.toUtf8().size() > mostNameBytes)
        name.chop(1);
    return name;
}

QString oneLine(QString text)
{
    return text.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

QByteArray contentFor(const ModelItem &item, bool withLyrics)
{
    QString content = oneLine(item.url().toLocalFile()) + QLatin1Char('\n');
    QString names;
    if (item.artistEdited())
        names += QCoreApplication::translate("UnsavedTexts", "Artist: %1").arg(oneLine(item.artistTag())) +
                 QLatin1Char('\n');
    if (item.titleEdited())
        names +=
            QCoreApplication::translate("UnsavedTexts", "Title: %1").arg(oneLine(item.titleTag())) + QLatin1Char('\n');
    if (!names.isEmpty())
        content += QLatin1Char('\n') + names;
    if (withLyrics)
        content += QLatin1Char('\n') + item.lyricsTag() + QLatin1Char('\n');
    return content.toUtf8();
}

bool holds(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.size() == content.size() && file.open(QIODevice::ReadOnly) && file.readAll() == content;
}

bool create(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return false;
    if (file.write(content) == content.size() && file.flush() && ::fsync(file.handle()) == 0)
        return true;
    file.remove();
    return false;
}

bool keep(const ModelItem &item, const QByteArray &content, const QString &folder)
{
    const QString start = folder + QLatin1Char('/') + baseName(item);
    QString path = start + QLatin1String(".txt");
    for (int number = 2; QFile::exists(path); ++number) {
        if (holds(path, content))
            return true;
        path = QStringLiteral("%1 %2.txt").arg(start, QString::number(number));
    }
    return create(path, content);
}

} // namespace

KeptTexts keepUnsavedTexts(const MainModel &model, const QString &folder)
{
    KeptTexts kept;
    const QVector<quint16> ids = model.unsavedIds();
    if (!ids.isEmpty())
        QDir().mkpath(folder);
    for (const quint16 id : ids) {
        const ModelItem *item = model.item(id);
        if (!item->namesEdited() && !model.hasUnsavedLyrics(id))
            continue; // what was deleted leaves no words to keep
        const QByteArray content = contentFor(*item, model.hasUnsavedLyrics(id));
        if (keep(*item, content, folder))
            ++kept.songs;
        else
            kept.lost.append(QString::fromUtf8(content));
    }
    return kept;
}
