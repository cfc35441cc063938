// SPDX-License-Identifier: MIT
#include "model/IncomingFiles.h"

#include <algorithm>
#include <chrono>
#include <utility>

// How many files come out in one go: some ten milliseconds of work for the list.
constexpr int blockSize = 1000;
// So long the rows of the first block have to reach the screen before others come.
constexpr std::chrono::milliseconds paintTime(20);
// How often what was found is fetched.
constexpr std::chrono::milliseconds fetchInterval(20);
// So many folders of one job may fail to answer before the others have to wait for them.
constexpr std::size_t mostChecks = 32;

// Whoever waits for the kept list is told after so long that it may take a while.
constexpr std::chrono::seconds restorePatience(1);

// Folders side by side are mostly on one disk: when the one of an album does not answer, those of the same collection
// are looked at last.
static void putNeighboursLast(QList<QUrl> &urls, const QUrl &stalled)
{
    const QUrl collection = stalled.resolved(QUrl(QStringLiteral("../../")));
    std::stable_partition(urls.begin(), urls.end(),
                          [&collection](const QUrl &url) { return !collection.isParentOf(url); });
}

IncomingFiles::IncomingFiles(QObject *parent)
    : IncomingFiles(DelayedFileCheck::kindOf, parent)
{
}

IncomingFiles::IncomingFiles(const DelayedFileCheck::Look &look, QObject *parent)
    : QObject(parent)
    , m_look(look)
{
    connect(&m_nextBlock, &QTimer::timeout, this, [this] { emitBlock(false); });
    connect(&m_nextLook, &QTimer::timeout, this, &IncomingFiles::takeFound);
    m_nextLook.setInterval(fetchInterval);
}

void IncomingFiles::keep(const QStringList &entries)
{
    if (entries.isEmpty())
        return;
    m_kept = std::make_unique<DelayedFileCheck>(entries, m_look);
    m_places.reset();
    setRestoring(true);
}

void IncomingFiles::lookAtKept()
{
    if (m_kept)
        m_kept->start();
}

void IncomingFiles::restore()
{
    if (!m_kept)
        return;
    begin(
        std::move(m_kept), [this](const Found &found, bool isFirst) { useKept(found, isFirst); }, true);
    takeFound();
    QTimer::singleShot(restorePatience, this, [this] { setRestoring(false); });
}

void IncomingFiles::useKept(Found found, bool isFirst)
{
    m_away += found.away;
    // What was dropped meanwhile has become a row, which may be gone again.
    found.files.erase(std::remove_if(found.files.begin(), found.files.end(),
                                     [this](const QUrl &url) { return placeOf(url) == noPlace; }),
                      found.files.end());
    if (found.files.isEmpty()) // an empty block would come out
        return;
    add(found.files, isFirst);
    setRestoring(false);
}

void IncomingFiles::setRestoring(bool restoring)
{
    if (restoring == m_isRestoring)
        return;
    m_isRestoring = restoring;
    emit restoringChanged();
}

void IncomingFiles::look(const QList<QUrl> &urls, const Use &use)
{
    if (!urls.isEmpty())
        begin(std::make_unique<DelayedFileCheck>(urls, m_look), use, false);
}

void IncomingFiles::begin(std::unique_ptr<DelayedFileCheck> check, const Use &use, bool isKept)
{
    check->start();
    Job job;
    job.checks.push_back(std::move(check));
    job.use = use;
    job.isKept = isKept;
    m_jobs.insert(isKept ? m_jobs.begin() : m_jobs.end(), std::move(job));
    m_nextLook.start();
}

void IncomingFiles::takeFound()
{
    struct Report
    {
        Use use;
        Found found;
        bool isFirst;
    };
    std::vector<Report> reports; // used at the end, since a use may begin or clear jobs
    const bool isKeptBusy = isKeptComing();
    fetchPlaces();
    for (Job &job : m_jobs) {
        passStalled(job);
        if (!m_places)
            continue;
        Found found = takeFrom(job);
        const bool isFirst = !job.hasReported && (job.isKept ? !m_haveOthersCome : !isKeptBusy);
        job.hasReported = !isFirst || !found.files.isEmpty();
        m_haveOthersCome = m_haveOthersCome || (!job.isKept && !found.files.isEmpty());
        if (!found.isEmpty())
            reports.push_back({job.use, std::move(found), isFirst});
    }
    const auto isDone = [](const Job &job) {
        return job.checks.empty();
    };
    const bool isKeptDone =
        std::any_of(m_jobs.begin(), m_jobs.end(), [isDone](const Job &job) { return job.isKept && isDone(job); });
    m_jobs.erase(std::remove_if(m_jobs.begin(), m_jobs.end(), isDone), m_jobs.end());
    if (m_jobs.empty())
        m_nextLook.stop();
    for (const Report &report : reports)
        report.use(report.found, report.isFirst);
    if (isKeptDone)
        forgetMissing();
    if (m_jobs.empty() && !m_kept)
        setRestoring(false); // nothing was left of the list
}

void IncomingFiles::fetchPlaces()
{
    for (const Job &job : m_jobs) {
        if (job.isKept && !m_places)
            m_places = job.checks.front()->takePlaces();
    }
}

// Songs of the kept list that were deleted have no place any more: one that is added again is a new one.
void IncomingFiles::forgetMissing()
{
    DelayedFileCheck::Places places;
    for (const QList<QUrl> *urls : {&m_away, &m_known}) {
        for (const QUrl &url : *urls) {
            if (placeOf(url) != noPlace)
                places.insert(url, m_places->value(url));
        }
    }
    m_places = places;
}

bool IncomingFiles::isKeptComing() const
{
    const auto isBusy = [](const Job &job) {
        return job.isKept &&
               std::any_of(job.checks.begin(), job.checks.end(), [](const auto &check) { return !check->isStalled(); });
    };
    return m_kept || std::any_of(m_jobs.begin(), m_jobs.end(), isBusy);
}

IncomingFiles::Found IncomingFiles::takeFrom(Job &job)
{
    Found all;
    for (const auto &check : job.checks)
        all += check->take();
    job.checks.erase(
        std::remove_if(job.checks.begin(), job.checks.end(), [](const auto &check) { return check->isAllTaken(); }),
        job.checks.end());
    return all;
}

void IncomingFiles::passStalled(Job &job) const
{
    DelayedFileCheck &check = *job.checks.back();
    if (job.checks.size() >= mostChecks || !check.isStalled())
        return;
    QList<QUrl> others = check.giveUpOthers();
    if (others.isEmpty())
        return;
    putNeighboursLast(others, check.untaken().constFirst());
    job.checks.push_back(std::make_unique<DelayedFileCheck>(others, m_look));
    job.checks.back()->start();
}

quint64 IncomingFiles::placeOf(const QUrl &url) const
{
    const auto place = m_places->constFind(url);
    return place == m_places->constEnd() ? noPlace : static_cast<quint64>(*place);
}

quint64 IncomingFiles::takePlace(const QUrl &url)
{
    const quint64 place = m_places ? placeOf(url) : noPlace;
    if (place != noPlace)
        m_places->remove(url);
    return place;
}

QVector<IncomingFiles::Waiting> IncomingFiles::waiting() const
{
    QVector<Waiting> all;
    const auto add = [this, &all](const QList<QUrl> &urls, bool isKept) {
        for (const QUrl &url : urls) {
            const quint64 place = m_places ? placeOf(url) : isKept ? 0 : noPlace;
            if (!isKept || place != noPlace) // otherwise it has become a row
                all.append({url, place});
        }
    };
    add(m_away, true);
    if (m_kept)
        add(m_kept->untaken(), true);
    add(m_known, false);
    for (const Job &job : m_jobs) {
        for (const auto &check : job.checks)
            add(check->untaken(), job.isKept);
    }
    return all;
}

bool IncomingFiles::isAnyWaiting() const
{
    const bool isAnyAway =
        std::any_of(m_away.begin(), m_away.end(), [this](const QUrl &url) { return placeOf(url) != noPlace; });
    return isAnyAway || m_kept || !m_known.isEmpty() || !m_jobs.empty();
}

void IncomingFiles::clear()
{
    m_kept.reset();
    setRestoring(false);
    m_jobs.clear();
    m_nextLook.stop();
    m_known.clear();
    m_nextBlock.stop();
    m_places = DelayedFileCheck::Places();
    m_away.clear();
}

void IncomingFiles::add(const QList<QUrl> &files, bool isFirst)
{
    m_known += files;
    if (!m_nextBlock.isActive())
        emitBlock(isFirst);
}

void IncomingFiles::emitBlock(bool isFirst)
{
    const QList<QUrl> files = m_known.mid(0, blockSize);
    m_known.erase(m_known.begin(), m_known.begin() + files.size());
    const bool isAlone = !m_nextBlock.isActive();
    m_known.isEmpty() ? m_nextBlock.stop() : m_nextBlock.start(isAlone ? paintTime : std::chrono::milliseconds(0));
    emit block(files, isFirst);
}
