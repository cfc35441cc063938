// SPDX-License-Identifier: MIT
#include "model/DelayedFileCheck.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QMutex>

#include <algorithm>
#include <cerrno>
#include <thread>
#include <utility>

#include <sys/stat.h>

// A disk that wakes up may take longer; then others are looked at meanwhile, which does no harm.
constexpr qint64 stallMs = 500;

static bool isEmpty(const QByteArray &folder)
{
    return QDir(QFile::decodeName(folder))
        .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

// Whether a disk may be mounted in this folder at other times. Where disks come and go they do so with the folders they
// are mounted at, which then are missing beside others; shares of a desktop stand below /run/user as parts of one
// mount.
static bool mayHoldMounts(const QByteArray &folder, dev_t device)
{
    if (folder == "/" || folder.startsWith("/run/user/") || isEmpty(folder))
        return true;
    for (const char *root : {"/media", "/mnt", "/run", "/net"}) {
        struct stat status = {};
        const bool isBelow = folder == root || folder.startsWith(QByteArray(root) + '/');
        if (isBelow && (::stat(root, &status) != 0 || status.st_dev == device))
            return true;
    }
    return false;
}

// Shared with the thread.
struct DelayedFileCheck::Work
{
    mutable QMutex mutex;
    QStringList entries; // until urls are made of them
    QList<QUrl> urls;
    std::optional<Places> places; // when the entries are read, until they are taken
    int next = 0;                 // index of the url that is being looked at
    int taken = 0;
    Found found;
    QElapsedTimer sinceLook;
    bool isGone = false; // the check has

    void run(const Look &look)
    {
        readEntries();
        QUrl url;
        while (begin(url))
            end(url, look(url));
    }

    [[nodiscard]] static QList<QUrl> urlsOf(const QStringList &entries)
    {
        QList<QUrl> urls;
        urls.reserve(entries.size());
        for (const QString &entry : entries) {
            const QUrl url = entry.startsWith(QLatin1Char('/')) ? QUrl::fromLocalFile(entry) : QUrl(entry);
            if (url.isValid())
                urls.append(url);
        }
        return urls;
    }

private:
    void readEntries()
    {
        QMutexLocker lock(&mutex);
        const QStringList read = entries;
        lock.unlock();
        const QList<QUrl> made = urlsOf(read);
        Places madePlaces;
        madePlaces.reserve(made.size());
        for (int place = made.size() - 1; place >= 0; --place)
            madePlaces.insert(made.at(place), place);
        lock.relock();
        entries.clear();
        urls += made;
        places = std::move(madePlaces);
    }
    bool begin(QUrl &url)
    {
        const QMutexLocker lock(&mutex);
        if (isGone || next == urls.size())
            return false;
        url = urls.at(next);
        sinceLook.start();
        return true;
    }
    void end(const QUrl &url, Kind kind)
    {
        const QMutexLocker lock(&mutex);
        if (isGone)
            return;
        ++next;
        if (kind == Kind::File)
            found.files.append(url);
        else if (kind == Kind::Folder)
            found.folders.append(url);
        else if (kind == Kind::Away)
            found.away.append(url);
        else
            ++found.others;
    }
};

DelayedFileCheck::Found &DelayedFileCheck::Found::operator+=(const Found &more)
{
    files += more.files;
    folders += more.folders;
    away += more.away;
    others += more.others;
    return *this;
}

DelayedFileCheck::DelayedFileCheck(const QList<QUrl> &urls, const Look &look)
    : m_look(look)
    , m_work(std::make_shared<Work>())
{
    m_work->urls = urls;
}

DelayedFileCheck::DelayedFileCheck(const QStringList &entries, const Look &look)
    : m_look(look)
    , m_work(std::make_shared<Work>())
{
    m_work->entries = entries;
}

void DelayedFileCheck::start()
{
    if (std::exchange(m_isStarted, true))
        return;
    m_work->sinceLook.start();
    std::thread([work = m_work, look = m_look] { work->run(look); }).detach();
}

DelayedFileCheck::~DelayedFileCheck()
{
    const QMutexLocker lock(&m_work->mutex);
    m_work->isGone = true;
}

DelayedFileCheck::Found DelayedFileCheck::take()
{
    const QMutexLocker lock(&m_work->mutex);
    m_work->taken = m_work->next;
    return std::exchange(m_work->found, Found());
}

std::optional<DelayedFileCheck::Places> DelayedFileCheck::takePlaces()
{
    const QMutexLocker lock(&m_work->mutex);
    return std::exchange(m_work->places, std::nullopt);
}

QList<QUrl> DelayedFileCheck::untaken() const
{
    const QMutexLocker lock(&m_work->mutex);
    return m_work->urls.mid(m_work->taken) + Work::urlsOf(m_work->entries);
}

bool DelayedFileCheck::isAllTaken() const
{
    const QMutexLocker lock(&m_work->mutex);
    return m_work->entries.isEmpty() && m_work->taken == m_work->urls.size();
}

bool DelayedFileCheck::isStalled() const
{
    const QMutexLocker lock(&m_work->mutex);
    return m_work->next < m_work->urls.size() && m_work->sinceLook.hasExpired(stallMs);
}

QList<QUrl> DelayedFileCheck::giveUpOthers()
{
    const QMutexLocker lock(&m_work->mutex);
    QList<QUrl> &urls = m_work->urls;
    if (m_work->next == urls.size())
        return {};
    const QUrl folder = urls.at(m_work->next).adjusted(QUrl::RemoveFilename);
    const QList<QUrl> behind = urls.mid(m_work->next + 1);
    urls.erase(urls.begin() + m_work->next + 1, urls.end());
    QList<QUrl> others;
    for (const QUrl &url : behind)
        (url.adjusted(QUrl::RemoveFilename) == folder ? urls : others).append(url);
    return others;
}

DelayedFileCheck::Kind DelayedFileCheck::kindOf(const QUrl &url)
{
    if (isFile(url))
        return Kind::File;
    if (isFolder(url))
        return Kind::Folder;
    return isAway(url) ? Kind::Away : Kind::Nothing;
}

bool DelayedFileCheck::isFile(const QUrl &url)
{
    return url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile();
}

bool DelayedFileCheck::isFolder(const QUrl &url)
{
    return url.isLocalFile() && QFileInfo(url.toLocalFile()).isDir();
}

bool DelayedFileCheck::isAway(const QUrl &url)
{
    if (!url.isLocalFile())
        return false;
    QByteArray path = QFile::encodeName(url.toLocalFile());
    struct stat status = {};
    if (!path.startsWith('/') || ::stat(path.constData(), &status) == 0)
        return false; // something else than a file
    // Up to the nearest folder that is there.
    do {
        if (errno != ENOENT && errno != ENOTDIR)
            return true;
        if (::lstat(path.constData(), &status) == 0)
            return true; // a link to nothing
        path.truncate(std::max(path.lastIndexOf('/'), 1));
    } while (::stat(path.constData(), &status) != 0);
    return S_ISDIR(status.st_mode) && mayHoldMounts(path, status.st_dev);
}
