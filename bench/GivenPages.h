// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QUrl>

#include <functional>

// An access manager that asks nobody: each page is there at once, and comes from the event loop. It tells how long
// whoever asked for a page was busy with it.
class GivenPages : public QNetworkAccessManager
{
public:
    using Page = std::function<QByteArray(const QUrl &url)>;

    explicit GivenPages(Page page);

    // Processor time in seconds, of all pages that were larger than 100 kB.
    [[nodiscard]] double seconds() const { return m_seconds; }

protected:
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest &request, QIODevice *outgoingData) override;

private:
    const Page m_page;
    double m_seconds = 0;
};
