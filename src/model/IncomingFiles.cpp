// SPDX-License-Identifier: MIT
#include "model/IncomingFiles.h"

#include <algorithm>
#include <chrono>
#include <utility>

// How many files come out in one go: some ten milliseconds of work for the list.
constexpr int blockSize = 1000;
// How often what was found is fetched.
constexpr std::chrono::milliseconds fetchInterval(20);
// So many folders of one job may fail to answer before the others have to wait for them.
constexpr std::size_t mostChecks = 32;

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

void IncomingFiles::restore(const QList<QUrl> &urls)
{
    const auto use = [this](const Found &found, bool isFirst) {
        m_away += found.away;
        if (!found.files.isEmpty()) // else an empty block would come out
            add(found.files, isFirst);
    };
    begin(urls, use, true);
}

void IncomingFiles::look(const QList<QUrl> &urls, const Use &use)
{
    begin(urls, use, false);
}

void IncomingFiles::begin(const QList<QUrl> &urls, const Use &use, bool isKept)
{
    if (urls.isEmpty())
        return;
    Job job;
    job.checks.push_back(std::make_unique<DelayedFileCheck>(urls, m_look));
    job.use = use;
    job.isKept = isKept;
    m_jobs.push_back(std::move(job));
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
    for (Job &job : m_jobs) {
        passStalled(job);
        Found found = takeFrom(job);
        if (!found.files.isEmpty() || !found.folders.isEmpty() || !found.away.isEmpty())
            reports.push_back({job.use, std::move(found), !std::exchange(job.hasReported, true)});
    }
    m_jobs.erase(std::remove_if(m_jobs.begin(), m_jobs.end(), [](const Job &job) { return job.checks.empty(); }),
                 m_jobs.end());
    if (m_jobs.empty())
        m_nextLook.stop();
    for (const Report &report : reports)
        report.use(report.found, report.isFirst);
}

IncomingFiles::Found IncomingFiles::takeFrom(Job &job)
{
    Found all;
    for (const auto &check : job.checks) {
        const Found found = check->take();
        all.files += found.files;
        all.folders += found.folders;
        all.away += found.away;
    }
    job.checks.erase(std::remove_if(job.checks.begin(), job.checks.end(),
                                    [](const auto &check) { return check->untaken().isEmpty(); }),
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
}

QList<QUrl> IncomingFiles::waiting() const
{
    QList<QUrl> urls = m_known;
    for (const Job &job : m_jobs) {
        for (const auto &check : job.checks)
            urls += job.isKept ? check->untaken() : QList<QUrl>();
    }
    return urls;
}

void IncomingFiles::clear()
{
    m_jobs.clear();
    m_nextLook.stop();
    m_known.clear();
    m_nextBlock.stop();
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
    const bool areMoreLeft = !m_known.isEmpty();
    if (areMoreLeft != m_nextBlock.isActive())
        areMoreLeft ? m_nextBlock.start() : m_nextBlock.stop();
    emit block(files, isFirst);
}
