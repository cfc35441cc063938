// SPDX-License-Identifier: MIT
#include "GivenPages.h"

#include "Measuring.h"

#include <QNetworkReply>

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

class GivenReply : public QNetworkReply
{
public:
    GivenReply(const QNetworkRequest &request, QByteArray page, QObject *parent)
        : QNetworkReply(parent)
        , m_page(std::move(page))
    {
        setRequest(request);
        setUrl(request.url());
        setAttribute(QNetworkRequest::HttpStatusCodeAttribute, 200);
        open(ReadOnly);
        setFinished(true);
    }
    void abort() override {}
    [[nodiscard]] qint64 bytesAvailable() const override
    {
        return m_page.size() - m_read + QIODevice::bytesAvailable();
    }
    [[nodiscard]] bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        const qint64 size = std::min(maxSize, qint64{m_page.size()} - m_read);
        std::memcpy(data, m_page.constData() + m_read, static_cast<std::size_t>(size));
        m_read += size;
        return size;
    }

private:
    const QByteArray m_page;
    qint64 m_read = 0;
};

} // namespace

GivenPages::GivenPages(Page page)
    : m_page(std::move(page))
{
}

QNetworkReply *GivenPages::createRequest(Operation, const QNetworkRequest &request, QIODevice *)
{
    constexpr int large = 100'000;
    auto *reply = new GivenReply(request, m_page(request.url()), this);
    const bool isLarge = reply->bytesAvailable() > large;
    const auto deliver = [this, reply, isLarge] {
        const double busy = processorSecondsOf([reply] { emit reply->finished(); });
        m_seconds += isLarge ? busy : 0;
    };
    QMetaObject::invokeMethod(reply, deliver, Qt::QueuedConnection);
    return reply;
}
