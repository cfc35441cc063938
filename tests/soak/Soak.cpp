// SPDX-License-Identifier: MIT
#include "soak/Soak.h"

#include "model/MainModel.h"
#include "model/ModelItem.h"
#include "tags/MediaFileTags.h"
#include "tags/TagWriter.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

#include <algorithm>

using namespace std::chrono_literals;

// How long all may take to end: above all limits of the program itself.
static constexpr std::chrono::milliseconds patience = 150s;

static void processEvents(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

// A song whose read was overtaken by another waits until it is searched for by hand: that is how it is meant.
static bool isUnderWay(const ModelItem &item)
{
    return (item.active() && item.tagsLoaded()) || item.writingTags();
}

static QString faultOf(const ModelItem &item)
{
    const QString name = item.filename();
    if (isUnderWay(item))
        return QStringLiteral("%1 is stuck: %2").arg(name, item.processStateText());
    if (!item.tagsLoaded() || item.unsaved())
        return item.unsaved() ? QStringLiteral("%1 was not saved: %2").arg(name, item.errorString()) : QString();
    MediaFileTags tags;
    if (!tags.read(item.url().toLocalFile()))
        return QStringLiteral("%1 cannot be read any more").arg(name);
    if (tags.value(QStringLiteral("lyrics")) != item.lyricsTag())
        return QStringLiteral("%1 has other lyrics than the list: \"%2\", \"%3\"")
            .arg(name, tags.value(QStringLiteral("lyrics")), item.lyricsTag());
    return {};
}

Soak::Soak(MainModel *model, int songs, quint32 seed)
    : m_model(model)
    , m_random(seed)
{
    makeSongs(songs);
}

void Soak::makeSongs(int count)
{
    const QStringList samples{QStringLiteral("untagged.mp3"), QStringLiteral("plain.flac"), QStringLiteral("plain.m4a"),
                              QStringLiteral("plain.ogg")};
    for (int i = 0; i < count; ++i) {
        const QString &sample = samples.at(i % samples.size());
        const QString suffix = sample.section(QLatin1Char('.'), -1);
        const QString song = m_folder.filePath(QStringLiteral("Artist - Song %1.%2").arg(i).arg(suffix));
        if (!QFile::copy(QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + sample, song))
            qFatal("cannot copy the sample %s", qPrintable(sample));
        m_songs.append(QUrl::fromLocalFile(song));
    }
}

void Soak::work(std::chrono::milliseconds time)
{
    QElapsedTimer clock;
    clock.start();
    while (!clock.hasExpired(time.count())) {
        doSomething();
        processEvents(5ms);
    }
    clock.restart();
    while (!settled() && !clock.hasExpired(patience.count()))
        processEvents(100ms);
}

// Reads come one after another without a pause: half a second without a change of any row means that none is left.
bool Soak::settled() const
{
    bool changed = false;
    const auto connection = QObject::connect(m_model, &QAbstractItemModel::dataChanged, [&changed] { changed = true; });
    processEvents(500ms);
    QObject::disconnect(connection);
    for (int row = 0; row < m_model->rowCount() && !changed; ++row)
        changed = isUnderWay(*m_model->itemAt(row));
    return !changed && TagWriter::pendingWrites() == 0;
}

QStringList Soak::faults() const
{
    QStringList found;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (const QString fault = faultOf(*m_model->itemAt(row)); !fault.isEmpty())
            found.append(fault);
    }
    return found;
}

QString Soak::summary() const
{
    return QStringLiteral("%1 songs listed; so far %2 added, %3 searched for, %4 edited, %5 removed")
        .arg(m_model->rowCount())
        .arg(m_added)
        .arg(m_searched)
        .arg(m_edited)
        .arg(m_removed);
}

void Soak::doSomething()
{
    const int dice = below(100);
    if (dice < 20)
        addSome();
    else if (dice < 60)
        searchSome();
    else if (dice < 85)
        editOne();
    else if (dice < 99)
        removeSome();
    else
        below(10) == 0 ? m_model->removeAll() : m_model->removeWithLyrics();
}

void Soak::addSome()
{
    const int first = below(m_songs.size());
    const QList<QUrl> songs = m_songs.mid(first, 1 + below(60));
    const int before = m_model->rowCount();
    m_model->add(songs);
    m_added += m_model->rowCount() - before;
}

void Soak::removeSome()
{
    QVector<int> rows;
    const int step = 1 + below(3);
    const int count = m_model->rowCount();
    for (int row = below(count + 1); row < count && rows.size() < 20; row += step)
        rows.append(row);
    m_model->removeScattered(rows);
    m_removed += rows.size();
}

void Soak::searchSome()
{
    for (int i = below(5); i >= 0; --i) {
        if (ModelItem *item = anyItem(); item && m_model->startSearch(item->id()))
            ++m_searched;
    }
}

void Soak::editOne()
{
    ModelItem *item = anyItem();
    if (!item || !item->editable() || !item->tagsLoaded())
        return;
    item->setEditedLyricsTag(QStringLiteral("typed %1").arg(m_edited));
    if (m_model->writeTags(item->id()))
        ++m_edited;
}

ModelItem *Soak::anyItem()
{
    return m_model->rowCount() == 0 ? nullptr : m_model->itemAt(below(m_model->rowCount()));
}
