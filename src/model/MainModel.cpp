// SPDX-License-Identifier: MIT
#include "model/MainModel.h"

#include "lyrics/LyricsText.h"
#include "model/DelayedFileCheck.h"
#include "model/FileManager.h"
#include "settings/Settings.h"

#include <QQmlEngine>

#include <algorithm>
#include <iterator>
#include <limits>

namespace {

// Above this many ranges an insertion or a removal is one reset: each range costs every view a pass of its own.
constexpr int mostRangesAtOnce = 64;
// How many identifiers of 16 bits there are.
constexpr int idCount = std::numeric_limits<quint16>::max() + 1;

} // namespace

MainModel::MainModel(QObject *parent)
    : QAbstractListModel(parent)
{
    qRegisterMetaType<MediaFileTags>("MediaFileTags");
    qmlRegisterUncreatableType<ModelItem>("com.quillmarsh", 1, 0, "ModelItem", QStringLiteral("nope"));
    connect(&m_reads, &ReadQueue::infoExtracted, this, &MainModel::fileInfoExtracted);
    connect(&m_reads, &ReadQueue::tagsRead, this, &MainModel::useTags);
    connect(&m_searches, &SearchFeed::started, this, &MainModel::searchStarted);
    connect(&m_searches, &SearchFeed::finished, this, &MainModel::lyricsSearchFinished);
    connect(&m_searches, &SearchFeed::searchCountChanged, this, &MainModel::searchCountChanged);
    connect(&m_writes, &SongWrites::written, this, &MainModel::tagsWritten);
    connect(&m_failedWrites, &FailedWrites::counted, this, &MainModel::writesFailed);
    connect(&m_failedWrites, &FailedWrites::left, this, &MainModel::failedWritesLeft);
    connect(&m_exports, &LyricsExports::exported, this, &MainModel::lyricsExported);
    connect(&m_exports, &LyricsExports::automaticFailed, this, &MainModel::automaticExportFailed);
    // A read under way asks for the next one by itself; a request for each block would only overtake it.
    connect(&m_incoming, &IncomingFiles::block, this, [this](const QList<QUrl> &files, bool isFirst) {
        insertFiles(newUrls(files), isFirst || !m_reads.isReading());
    });
    connect(&m_incoming, &IncomingFiles::restoringChanged, this, &MainModel::restoringChanged);
}

MainModel::~MainModel() = default;

int MainModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_items.count();
}

QVariant MainModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    ModelItem *item = m_items.itemAt(index.row());
    switch (role) {
    case itemRole:
        QQmlEngine::setObjectOwnership(item, QQmlEngine::CppOwnership);
        return QVariant::fromValue(item);
    case urlRole:
        return item->url();
    case filenameRole:
        return item->filename();
    case extRole:
        return item->ext();
    case pathRole:
        return item->path();
    case existsRole:
        return item->fileExists();
    case badFileRole:
        return item->bad();
    case tagsLoadedRole:
        return item->tagsLoaded();
    case titleTagRole:
        return item->titleTag();
    case artistTagRole:
        return item->artistTag();
    case lyricsTagRole:
        return item->lyricsTag();
    case durationRole:
        return item->duration();
    case fileThumbnailRole:
        return item->tagsLoaded() ? QStringLiteral("image://file-cover/%1").arg(item->id()) : QString();
    case processStateRole:
        return item->processState();
    default:
        return {};
    }
}

QHash<int, QByteArray> MainModel::roleNames() const
{
    return {
        {itemRole, "itemRole"},
        {urlRole, "urlRole"},
        {filenameRole, "filenameRole"},
        {extRole, "extRole"},
        {pathRole, "pathRole"},
        {existsRole, "existsRole"},
        {badFileRole, "badFileRole"},
        {tagsLoadedRole, "tagsLoadedRole"},
        {titleTagRole, "titleTagRole"},
        {artistTagRole, "artistTagRole"},
        {lyricsTagRole, "lyricsTagRole"},
        {durationRole, "durationRole"},
        {fileThumbnailRole, "fileThumbnailRole"},
        {processStateRole, "processStateRole"},
        {selectedRole, "selectedRole"},
    };
}

QList<QUrl> MainModel::urls() const
{
    using PlacedUrl = std::pair<quint64, QUrl>;
    std::vector<PlacedUrl> placed;
    placed.reserve(static_cast<std::size_t>(m_items.count()));
    for (int row = 0; row < m_items.count(); ++row)
        placed.emplace_back(m_items.sequenceAt(row), m_items.itemAt(row)->url());
    for (const IncomingFiles::Waiting &file : m_incoming.waiting()) {
        const bool mayBecomeRow = file.place != IncomingFiles::noPlace || isSupported(file.url);
        if (mayBecomeRow && !m_items.contains(file.url))
            placed.emplace_back(file.place, file.url);
    }
    std::stable_sort(placed.begin(), placed.end(),
                     [](const PlacedUrl &a, const PlacedUrl &b) { return a.first < b.first; });
    QList<QUrl> urls;
    urls.reserve(static_cast<int>(placed.size()));
    for (const PlacedUrl &url : placed)
        urls.append(url.second);
    return urls;
}

QStringList MainModel::entries() const
{
    QStringList entries;
    for (const QUrl &url : urls()) {
        const QString text = url.toString(QUrl::FullyEncoded);
        // Some characters of file names, as U+FFFF, cannot be read back from a url.
        entries.append(QUrl(text) == url ? text : url.toLocalFile());
    }
    return entries;
}

// Adding

QString MainModel::supportedTypesMask(const QString &separator) const
{
    QStringList masks;
    for (const QString &extension : m_extensions)
        masks.append(QLatin1String("*.") + extension);
    return masks.join(separator);
}

bool MainModel::isSupported(const QUrl &url) const
{
    if (!url.isLocalFile())
        return false;
    const QString path = url.toLocalFile();
    return std::any_of(m_extensions.begin(), m_extensions.end(), [&path](const QString &extension) {
        return path.endsWith(QLatin1Char('.') + extension, Qt::CaseInsensitive);
    });
}

void MainModel::addUrls(const QList<QUrl> &urls)
{
    m_incoming.look(urls,
                    [this](const IncomingFiles::Found &found, bool isFirst) { m_incoming.add(found.files, isFirst); });
}

void MainModel::addUrlsFromDrop(const QList<QUrl> &urls)
{
    m_incoming.look(urls, [this](const IncomingFiles::Found &found, bool isFirst) {
        QList<QUrl> supported;
        std::copy_if(found.files.begin(), found.files.end(), std::back_inserter(supported),
                     [this](const QUrl &url) { return isSupported(url); });
        m_incoming.add(supported, isFirst);
        if (!found.folders.isEmpty())
            emit scanFolders(found.folders);
        const int unsupported = found.files.size() - supported.size() + found.away.size() + found.others;
        if (unsupported > 0)
            emit filesUnsupported(unsupported);
    });
}

void MainModel::add(const QList<QUrl> &urls, FileKnowledge knowledge)
{
    if (knowledge == IsRegularFile) {
        m_incoming.add(urls);
        return;
    }
    QList<QUrl> files = newUrls(urls);
    files.erase(
        std::remove_if(files.begin(), files.end(), [](const QUrl &url) { return !DelayedFileCheck::isFile(url); }),
        files.end());
    insertFiles(files, true);
}

void MainModel::insertFiles(const QList<QUrl> &files, bool requestRead)
{
    std::vector<std::unique_ptr<ModelItem>> items = makeItems(files);
    const int leftOut = files.size() - static_cast<int>(items.size());
    if (!items.empty()) {
        insertItems(std::move(items));
        if (requestRead)
            extractNextFileInfo();
        if (m_autoStart)
            m_searches.feed();
    }
    if (leftOut > 0)
        emit filesLeftOut(leftOut);
}

// Those that are not in the list, each once.
QList<QUrl> MainModel::newUrls(const QList<QUrl> &urls) const
{
    QList<QUrl> fresh;
    QSet<QUrl> seen;
    for (const QUrl &url : urls) {
        if (m_items.contains(url) || seen.contains(url))
            continue;
        seen.insert(url);
        fresh.append(url);
    }
    return fresh;
}

// One item a file, with ids that count up from the last one given and skip those in use; fewer items than files when
// the ids run out.
std::vector<std::unique_ptr<ModelItem>> MainModel::makeItems(const QList<QUrl> &files)
{
    std::vector<std::unique_ptr<ModelItem>> items;
    items.reserve(static_cast<std::size_t>(files.size()));
    quint16 id = m_lastId;
    auto nextFile = files.begin();
    for (int tried = 0; tried < idCount && nextFile != files.end(); ++tried) {
        ++id; // wraps from 65535 to 0
        if (isIdInUse(id))
            continue;
        auto item = std::make_unique<ModelItem>(*nextFile++);
        item->setId(id);
        item->setFileKind(ModelItem::FileKind::Regular); // other files are not added
        items.push_back(std::move(item));
        m_lastId = id;
    }
    return items;
}

bool MainModel::isIdInUse(quint16 id) const
{
    return m_items.find(id) || m_writes.isWriting(id) || m_reads.isInFlight(id) || m_searches.isSearching(id);
}

// Those of the kept list go to their places among its songs, all others behind all.
void MainModel::insertItems(std::vector<std::unique_ptr<ModelItem>> items)
{
    LooseItems loose;
    for (std::unique_ptr<ModelItem> &item : items) {
        const quint64 place = m_incoming.takePlace(item->url());
        loose.push_back({std::move(item), place == IncomingFiles::noPlace ? m_items.nextSequence() : place});
    }
    std::sort(loose.begin(), loose.end(), [](const auto &a, const auto &b) { return a.sequence < b.sequence; });
    if (gapsFor(loose) > mostRangesAtOnce) {
        beginResetModel();
        takeIn(std::move(loose));
        endResetModel();
    } else {
        insertIntoGaps(std::move(loose));
    }
    if (m_autoStart)
        emit activeCountChanged();
}

// Between how many rows of the list these items go.
int MainModel::gapsFor(const LooseItems &items) const
{
    int gaps = 0;
    int lastRow = -1;
    for (const ItemStore::LooseItem &item : items) {
        const int row = m_items.rowFor(item.sequence);
        gaps += row == lastRow ? 0 : 1;
        lastRow = row;
    }
    return gaps;
}

void MainModel::insertIntoGaps(LooseItems items)
{
    for (auto first = items.begin(); first != items.end();) {
        const int row = m_items.rowFor(first->sequence);
        const auto last =
            std::find_if(first, items.end(), [&](const auto &item) { return m_items.rowFor(item.sequence) != row; });
        beginInsertRows({}, row, row + static_cast<int>(last - first) - 1);
        takeIn({std::make_move_iterator(first), std::make_move_iterator(last)});
        endInsertRows();
        first = last;
    }
}

void MainModel::takeIn(LooseItems items)
{
    QVector<ModelItem *> taken;
    for (const ItemStore::LooseItem &loose : items) {
        ModelItem *item = loose.item.get();
        if (m_autoStart)
            item->setProcessState(ModelItem::ProcessWaiting);
        m_activeCount += item->active() ? 1 : 0;
        connectItem(item);
        taken.append(item);
    }
    m_items.insert(std::move(items));
    for (const ModelItem *item : qAsConst(taken)) {
        if (!m_heldBack.hold(item->url()))
            m_reads.add(item->id());
    }
}

void MainModel::connectItem(ModelItem *item)
{
    // The item comes along with each connection: sender() would walk the connections of all items at every change.
    connect(item, &ModelItem::changed, this, [this, item] { itemChanged(item); });
    connect(item, &ModelItem::activeChanged, this, [this, item] { countActive(item); });
    connect(item, &ModelItem::processStateChanged, this, [this, item] { followSearch(item); });
    connect(item, &ModelItem::tagsLoadedChanged, this, [this, item] { followSearch(item); });
}

// Those that were removed live on for a while (RemovedItems), and are disconnected when they go: for tens of thousands
// at once, that would make the window wait.
bool MainModel::isListed(const ModelItem *item) const
{
    return m_items.find(item->id()) == item;
}

void MainModel::countActive(const ModelItem *item)
{
    if (!isListed(item))
        return;
    m_activeCount += item->active() ? 1 : -1;
    emit activeCountChanged();
}

void MainModel::followSearch(const ModelItem *item)
{
    if (isListed(item))
        m_searches.follow(*item);
}

void MainModel::itemChanged(const ModelItem *item)
{
    if (const int row = m_items.rowOf(item->id()); row >= 0 && isListed(item))
        emit dataChanged(index(row), index(row));
}

void MainModel::setAutoStart(bool on)
{
    if (on == m_autoStart)
        return;
    m_autoStart = on;
    emit autoStartChanged(on);
}

// Removing

bool MainModel::removeRows(int row, int count, const QModelIndex &parent)
{
    if (parent.isValid() || row < 0 || count <= 0 || row + count > m_items.count())
        return false;
    beginRemoveRows({}, row, row + count - 1);
    std::vector<ItemStore::LooseItem> removed = m_items.take(row, row + count - 1);
    dequeue(removed);
    endRemoveRows();
    forgetItems(std::move(removed));
    return true;
}

void MainModel::removeScattered(const QVector<int> &rows)
{
    struct Range
    {
        int first;
        int last;
    };
    std::vector<Range> ranges;
    for (const int row : rows) {
        if (!ranges.empty() && ranges.back().last == row - 1)
            ranges.back().last = row;
        else
            ranges.push_back({row, row});
    }
    if (ranges.size() > mostRangesAtOnce) {
        beginResetModel();
        std::vector<ItemStore::LooseItem> removed = m_items.takeScattered(rows);
        dequeue(removed);
        endResetModel();
        forgetItems(std::move(removed));
        return;
    }
    // From the back, so that the rows still to go keep their numbers.
    std::for_each(ranges.rbegin(), ranges.rend(),
                  [this](const Range &range) { removeRows(range.first, range.last - range.first + 1); });
}

// Takes removed items out of every queue, before anybody hears that they are gone.
void MainModel::dequeue(const std::vector<ItemStore::LooseItem> &removed)
{
    for (const ItemStore::LooseItem &taken : removed) {
        m_activeCount -= taken.item->active() ? 1 : 0;
        m_searches.forget(taken.sequence);
        m_reads.remove(taken.item->id(), taken.sequence);
    }
}

void MainModel::forgetItems(std::vector<ItemStore::LooseItem> removed)
{
    const bool haveSomeBeenActive =
        std::any_of(removed.begin(), removed.end(), [](const auto &taken) { return taken.item->active(); });
    QVector<quint16> ids;
    ids.reserve(static_cast<int>(removed.size()));
    RemovedItems::Items items;
    items.reserve(removed.size());
    for (ItemStore::LooseItem &taken : removed) {
        ids.append(taken.item->id());
        m_renamed.remove(ids.last());
        items.push_back(std::move(taken.item));
    }
    m_removed.add(std::move(items));
    m_failedWrites.forget(ids);
    if (haveSomeBeenActive)
        emit activeCountChanged();
    if (!m_reads.isReading())
        extractNextFileInfo();
}

void MainModel::removeWithLyrics()
{
    QVector<int> rows;
    for (int row = 0; row < m_items.count(); ++row) {
        if (!m_items.itemAt(row)->lyricsTag().isEmpty())
            rows.append(row);
    }
    removeScattered(rows);
}

void MainModel::removeAll()
{
    m_incoming.clear();
    removeRows(0, m_items.count());
    emit cleared();
}

// Reading tags

void MainModel::extractNextFileInfo()
{
    m_reads.requestNext();
}

void MainModel::fileInfoExtracted(const QString &file, const MediaFileTags &tags)
{
    m_reads.take(file, tags);
}

void MainModel::useTags(quint16 id, const MediaFileTags &tags)
{
    ModelItem *item = m_items.find(id);
    if (tags.readFailure() != tags::ReadFailure::None) {
        if (tags.readFailure() == tags::ReadFailure::NotRegular)
            item->setFileKind(ModelItem::FileKind::Other);
        item->setUnreadable(textOf(tags.readFailure()));
        return;
    }
    item->setTags(tags);
    if (m_renamed.contains(id))
        item->setProcessState(ModelItem::ProcessWaiting);
    if (!item->lyricsTag().isEmpty())
        item->setProcessState(ModelItem::ProcessComplete);
    else if (m_searches.admit(item) && item->processState() == ModelItem::ProcessWaiting)
        m_searches.feed();
}

// Searching

bool MainModel::startSearch(quint16 id)
{
    ModelItem *item = m_items.find(id);
    if (!item)
        return false;
    m_renamed.remove(id);
    const bool isUnreadable = item->unreadable() && item->processState() != ModelItem::ProcessWaiting;
    if (m_reads.isOvertaken(id) || isUnreadable) {
        // Its names are not known yet; whether they are suitable shows when the tags are there.
        item->setProcessState(ModelItem::ProcessWaiting);
        m_reads.readAgain(id);
        return true;
    }
    if (item->processState() == ModelItem::ProcessWaiting)
        return true;
    if (!m_searches.admit(item))
        return false;
    item->setProcessState(ModelItem::ProcessWaiting);
    m_searches.feed();
    return true;
}

void MainModel::lyricsSearchFinished(quint16 id, const QString &artist, const QString &title, const QString &lyrics,
                                     const QString &errorString)
{
    ModelItem *item = m_items.find(id);
    if (!item)
        return;
    const QString text = withoutBrokenCharacters(decodeHtmlEntities(lyrics));
    item->setFoundNothing(text.isEmpty());
    if (!text.isEmpty()) {
        const bool withLineBreak = m_settings && m_settings->prependNewLine();
        item->setFoundLyricsTag(artist, title, withLineBreak ? QLatin1String("\r\n") + text : text);
    }
    // Lyrics that were there before the search are not written again.
    if (errorString.isEmpty() && !text.isEmpty() && !item->lyricsTag().isEmpty()) {
        startWriting(item, SongWrites::Kind::Found);
    } else {
        item->setErrorString(errorString);
        item->setProcessState(ModelItem::ProcessComplete);
    }
}

// Writing

bool MainModel::hasUnsavedLyrics(quint16 id) const
{
    const ModelItem *item = m_items.find(id);
    return item && !item->lyricsTag().isEmpty() && areLyricsUnsaved(*item);
}

bool MainModel::hasUnsavedDeletion(quint16 id) const
{
    const ModelItem *item = m_items.find(id);
    return item && item->lyricsTag().isEmpty() && areLyricsUnsaved(*item);
}

bool MainModel::areLyricsUnsaved(const ModelItem &item) const
{
    return item.lyricsEdited() || m_writes.isWritingOther(item.id(), item.lyricsTag());
}

QVector<quint16> MainModel::unsavedIds() const
{
    QVector<quint16> ids;
    for (int row = 0; row < m_items.count(); ++row) {
        const ModelItem *item = m_items.itemAt(row);
        if (item->namesEdited() || areLyricsUnsaved(*item))
            ids.append(item->id());
    }
    return ids;
}

void MainModel::giveUpUnsaved(const QVector<quint16> &ids)
{
    m_failedWrites.forget(ids);
    for (const quint16 id : ids) {
        if (ModelItem *item = m_items.find(id))
            item->revert();
    }
}

// Null when the song is not there, or nobody has seen what a write would replace.
ModelItem *MainModel::writableItem(quint16 id) const
{
    ModelItem *item = m_items.find(id);
    return item && item->tagsLoaded() ? item : nullptr;
}

bool MainModel::writeTags(quint16 id)
{
    ModelItem *item = writableItem(id);
    if (!item)
        return false;
    // Who saves once more, after being told of another program's change, means it.
    startWriting(item, m_failedWrites.isForeignChangeTold(id) ? SongWrites::Kind::Insisting : SongWrites::Kind::Typed);
    return true;
}

bool MainModel::writeTagsUnlessForeign(quint16 id)
{
    ModelItem *item = writableItem(id);
    if (!item)
        return false;
    if (item->active())
        m_writes.start(*item, SongWrites::Kind::Typed);
    else
        startWriting(item, SongWrites::Kind::Typed);
    return true;
}

void MainModel::startWriting(ModelItem *item, SongWrites::Kind kind)
{
    // The export comes first, and is meant to: also of words for names that another program has changed meanwhile,
    // which shows only when the song is written. It is searched for anew then; where nothing is found, the text file
    // stays.
    if (m_settings && m_settings->generateLyricsFileAuto())
        m_exports.queueAutomatic(*item);
    item->setErrorString(QString());
    item->setFoundNothing(false);
    item->setProcessState(ModelItem::ProcessWritingTags);
    m_writes.start(*item, kind);
}

void MainModel::tagsWritten(quint16 id)
{
    const std::optional<SongWrites::Outcome> outcome = m_writes.takeOutcome(id);
    if (!outcome)
        return;
    if (m_heldBack.release(outcome->file))
        readNow(outcome->file);
    ModelItem *item = m_items.find(id);
    if (!item)
        return;
    if (outcome->fileKind)
        item->setFileKind(*outcome->fileKind);
    if (outcome->reason.isEmpty()) {
        item->setStoredTexts(outcome->texts);
        m_failedWrites.forget({id});
        m_renamed.remove(id);
    } else if (outcome->isRenamed && searchAnew(item, outcome->reason)) {
        return;
    } else {
        m_failedWrites.note(item, outcome->reason, outcome->isForeignChange);
    }
    if (item->processState() != ModelItem::ProcessWritingTags)
        return;
    if (outcome->reason.isEmpty())
        item->setErrorString(QString()); // of an earlier write of this song that failed
    if (!m_writes.isWriting(id))
        item->setProcessState(ModelItem::ProcessComplete);
}

// Reads the names that another program has given to a song, and lets it be searched for under these: once, and only as
// long as no edit of the user would be lost. What was found under the old names is dropped.
bool MainModel::searchAnew(ModelItem *item, const QString &reason)
{
    const quint16 id = item->id();
    const bool isLeftAlone = item->processState() == ModelItem::ProcessWritingTags && !m_writes.isWriting(id);
    if (!isLeftAlone || item->namesEdited() || m_renamed.contains(id))
        return false;
    m_renamed.insert(id);
    item->setEditedLyricsTag(item->storedTexts().lyrics);
    item->setErrorString(reason);
    item->setProcessState(ModelItem::ProcessIdle);
    m_reads.readAgain(id);
    return true;
}

void MainModel::setSongsInMending(const QStringList &paths)
{
    const QList<QUrl> released = m_heldBack.setInMending(paths);
    for (const QUrl &file : released)
        readNow(file);
}

void MainModel::readNow(const QUrl &file)
{
    if (const ModelItem *item = m_items.find(file))
        m_reads.add(item->id());
    if (!m_reads.isReading())
        extractNextFileInfo();
}

// Exporting

bool MainModel::generateLyricsFile(quint16 id)
{
    const ModelItem *item = m_items.find(id);
    return item && m_exports.queue(*item);
}

void MainModel::locate(int row) const
{
    if (row >= 0 && row < m_items.count())
        showInFileManager(m_items.itemAt(row)->url().toLocalFile());
}
