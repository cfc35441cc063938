// SPDX-License-Identifier: MIT
#include "soak/Soak.h"

#include "app/Application.h"
#include "model/ModelItem.h"
#include "tags/MediaFileTags.h"
#include "tags/TagWriter.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QPointer>
#include <QTimer>

#include <algorithm>

using namespace std::chrono_literals;

// How long all may take to end: above all limits of the program itself.
static constexpr std::chrono::milliseconds patience = 150s;
static constexpr int songsPerAlbum = 50;

static void processEvents(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

Soak::Soak(Application &app, int songs, quint32 seed)
    : m_app(app)
    , m_random(seed)
{
    makeSongs(songs);
    QObject::connect(app.mainModel(), &QAbstractItemModel::rowsInserted, &app,
                     [this](const QModelIndex &, int first, int last) { m_added += last - first + 1; });
}

void Soak::makeSongs(int count)
{
    const QStringList samples{QStringLiteral("untagged.mp3"), QStringLiteral("plain.flac"), QStringLiteral("plain.m4a"),
                              QStringLiteral("plain.ogg")};
    for (int i = 0; i < count; ++i) {
        const QString &sample = samples.at(i % samples.size());
        const QString album = m_folder.filePath(QString::number(i / songsPerAlbum));
        const QString song =
            QStringLiteral("%1/Artist - Song %2.%3").arg(album).arg(i).arg(sample.section(QLatin1Char('.'), -1));
        if (!QDir().mkpath(album) || !QFile::copy(QStringLiteral(VERSEWELL_SAMPLES_DIR "/") + sample, song))
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
    m_app.proxyModel()->setShowFound(true);
    clock.restart();
    while (!settled() && !clock.hasExpired(patience.count()))
        processEvents(100ms);
}

// Only a read that was overtaken by another may stay without an end.
bool Soak::isUnderWay(const ModelItem &item) const
{
    const bool isUnread = !item.tagsLoaded() && !item.unreadable();
    return isUnread ? !m_app.mainModel()->isReadOvertaken(item.id()) : item.active() || item.writingTags();
}

// Files come in and are looked at without a pause: half a second without a change of any row means that none is left.
bool Soak::settled() const
{
    const MainModel &model = *m_app.mainModel();
    bool changed = false;
    const auto note = [&changed] {
        changed = true;
    };
    const auto change = QObject::connect(&model, &QAbstractItemModel::dataChanged, note);
    const auto insertion = QObject::connect(&model, &QAbstractItemModel::rowsInserted, note);
    processEvents(500ms);
    QObject::disconnect(change);
    QObject::disconnect(insertion);
    for (int row = 0; row < model.rowCount() && !changed; ++row)
        changed = isUnderWay(*model.itemAt(row));
    return !changed && !m_app.folderScanner()->processing() && TagWriter::pendingWrites() == 0;
}

QStringList Soak::faults() const
{
    QStringList found;
    for (int row = 0; row < m_app.mainModel()->rowCount(); ++row) {
        if (const QString fault = faultOf(*m_app.mainModel()->itemAt(row)); !fault.isEmpty())
            found.append(fault);
    }
    return found;
}

QString Soak::faultOf(const ModelItem &item) const
{
    const QString name = item.filename();
    if (isUnderWay(item))
        return QStringLiteral("%1 is stuck: %2").arg(name, item.processStateText());
    if (m_app.mainModel()->isReadOvertaken(item.id()))
        return {};
    if (item.processState() != ModelItem::ProcessComplete || item.unsaved())
        return QStringLiteral("%1 has ended as \"%2\": %3").arg(name, item.processStateText(), item.errorString());
    MediaFileTags tags;
    if (!tags.read(item.url().toLocalFile()))
        return QStringLiteral("%1 cannot be read any more").arg(name);
    const auto differs = [&tags](const char *key, const QString &text) {
        return tags.value(QLatin1String(key)) != text;
    };
    if (differs("artist", item.artistTag()) || differs("title", item.titleTag()) || differs("lyrics", item.lyricsTag()))
        return QStringLiteral("%1 holds other texts than the list: \"%2\", \"%3\", \"%4\"")
            .arg(name, item.artistTag(), item.titleTag(), item.lyricsTag());
    return {};
}

void Soak::clear()
{
    const MainModel &model = *m_app.mainModel();
    QList<QPointer<ModelItem>> songs;
    for (int row = 0; row < model.rowCount(); ++row)
        songs.append(model.itemAt(row));
    m_app.proxyModel()->removeAll();
    while (std::any_of(songs.begin(), songs.end(), [](const auto &song) { return !song.isNull(); }))
        processEvents(100ms);
    processEvents(500ms); // of what else goes by itself
}

QString Soak::summary() const
{
    const MainModel &model = *m_app.mainModel();
    int overtaken = 0;
    for (int row = 0; row < model.rowCount(); ++row)
        overtaken += model.isReadOvertaken(model.itemAt(row)->id()) ? 1 : 0;
    return QStringLiteral(
               "%1 songs listed, %2 of them overtaken; so far %3 added, %4 searched for, %5 edited, %6 removed")
        .arg(model.rowCount())
        .arg(overtaken)
        .arg(m_added)
        .arg(m_searched)
        .arg(m_edited)
        .arg(m_removed);
}

void Soak::doSomething()
{
    const int dice = below(100);
    if (dice < 15)
        addSome();
    else if (dice < 55)
        searchSome();
    else if (dice < 83)
        editOne();
    else if (dice < 97)
        removeSome();
    else if (dice < 99)
        m_app.proxyModel()->setShowFound(below(2) == 0);
    else
        below(10) == 0 ? m_app.proxyModel()->removeAll() : m_app.mainModel()->removeWithLyrics();
}

QUrl Soak::anyAlbum()
{
    return m_songs.at(below(m_songs.size())).adjusted(QUrl::RemoveFilename | QUrl::StripTrailingSlash);
}

// Chosen files, folders with and without second thoughts, and a drop of both.
void Soak::addSome()
{
    const QList<QUrl> songs = m_songs.mid(below(m_songs.size()), 1 + below(60));
    const int dice = below(10);
    if (dice < 4)
        m_app.mainModel()->addUrls(songs);
    else if (dice < 7)
        m_app.mainModel()->addUrlsFromDrop(QList<QUrl>(songs) << anyAlbum());
    else
        m_app.folderScanner()->addFolder(anyAlbum());
    if (dice == 9)
        m_app.folderScanner()->cancel();
}

// A run of rows, or every second one.
void Soak::removeSome()
{
    ProxyModel &rows = *m_app.proxyModel();
    if (rows.rowCount() == 0)
        return;
    const int first = below(rows.rowCount());
    const int last = std::min(first + below(20), rows.rowCount() - 1);
    rows.setCurrentIndex(-1);
    rows.setCurrentIndex(first);
    if (below(2) == 0) {
        rows.extendSelection(last);
    } else {
        for (int row = first + 2; row <= last; row += 2) {
            rows.moveCurrent(row);
            rows.toggleCurrent();
        }
    }
    m_removed += rows.selectedCount();
    rows.removeSelected();
}

void Soak::searchSome()
{
    for (int i = below(5); i >= 0; --i) {
        if (const ModelItem *item = anyItem(); item && m_app.mainModel()->startSearch(item->id()))
            ++m_searched;
    }
}

// The lyrics, the names, or both.
void Soak::editOne()
{
    ModelItem *item = anyItem();
    if (!item || !item->editable() || !item->tagsLoaded())
        return;
    const int dice = below(3);
    if (dice != 0)
        item->setEditedLyricsTag(QStringLiteral("typed %1").arg(m_edited));
    if (dice != 1) {
        item->setArtistTag(QStringLiteral("Artist %1").arg(below(3)));
        item->setTitleTag(QStringLiteral("Song %1").arg(below(m_songs.size())));
    }
    if (m_app.mainModel()->writeTags(item->id()))
        ++m_edited;
}

ModelItem *Soak::anyItem()
{
    const MainModel &model = *m_app.mainModel();
    return model.rowCount() == 0 ? nullptr : model.itemAt(below(model.rowCount()));
}
