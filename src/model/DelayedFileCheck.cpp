// SPDX-License-Identifier: MIT
#include "model/DelayedFileCheck.h"

#include <QElapsedTimer>
#include <QFileInfo>

// What was found is told after this time, so that the first files show while a slow disk still answers for the others.
constexpr qint64 reportIntervalMs = 100;

bool DelayedFileCheck::isFile(const QUrl &url)
{
    return url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile();
}

void DelayedFileCheck::run()
{
    QElapsedTimer sinceReport;
    sinceReport.start();
    QList<QUrl> files;
    int count = 0;
    for (int i = 0; i < m_urls.size() && !*m_cancelled; ++i) {
        ++count;
        if (isFile(m_urls.at(i)))
            files.append(m_urls.at(i));
        if (i + 1 < m_urls.size() && !sinceReport.hasExpired(reportIntervalMs))
            continue;
        emit checked(count, files);
        files.clear();
        count = 0;
        sinceReport.restart();
    }
}
