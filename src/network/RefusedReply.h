// SPDX-License-Identifier: MIT
#pragma once

#include <QNetworkAccessManager>
#include <QNetworkReply>

// The answer to a request that is not sent at all: fails with the given error as soon as the event loop runs.
class RefusedReply final : public QNetworkReply
{
    Q_OBJECT

public:
    RefusedReply(QNetworkAccessManager::Operation operation, const QNetworkRequest &request, NetworkError error,
                 const QString &text, QNetworkAccessManager *manager);

    // Does nothing: the reply has failed already.
    void abort() override {}
    [[nodiscard]] bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 maximumBytes) override;

private:
    void conclude();
};
