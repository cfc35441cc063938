// SPDX-License-Identifier: MIT
#include "network/RefusedReply.h"

RefusedReply::RefusedReply(QNetworkAccessManager::Operation operation, const QNetworkRequest &request,
                           NetworkError error, const QString &text, QNetworkAccessManager *manager)
    : QNetworkReply(manager)
{
    setOperation(operation);
    setRequest(request);
    setUrl(request.url());
    open(ReadOnly);
    setError(error, text); // after open(), which resets the text
    // Qt's access manager hangs slots on the reply that use the manager; they must not outlive it.
    connect(manager, &QObject::destroyed, this, [this] { disconnect(this, nullptr, this, nullptr); });
    QMetaObject::invokeMethod(this, &RefusedReply::conclude, Qt::QueuedConnection);
}

qint64 RefusedReply::readData(char * /*data*/, qint64 /*maximumBytes*/)
{
    return -1;
}

void RefusedReply::conclude()
{
    setFinished(true);
    emit errorOccurred(error());
    emit finished();
}
