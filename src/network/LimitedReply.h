// SPDX-License-Identifier: MIT
#pragma once

#include "network/Inflater.h"
#include "network/RequestLimits.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QTimer>

#include <optional>

// The reply that AccessManager hands out: stands before Qt's own reply and enforces the limits of one request.
//
// A page is collected and inflated here and can be read once finished() is emitted; a reply with an error has nothing
// to read, so that a cut page is never mistaken for a whole one. A download is passed on as it comes, not inflated,
// without limits of size and total time. Status, headers, attributes and address are those of Qt's reply; the headers
// "Content-Encoding" and "Content-Length" of an inflated page are left out, as they no longer describe what is read.
//
// One cut cannot be seen here: when the connection breaks in a chunked page that is not compressed, Qt 5.15 reports an
// error only about every second time. Whoever reads a page must want to see the end of what is looked for.
//
// finished() is emitted exactly once and always from the event loop, after abort() too. The error texts are for users.
class LimitedReply final : public QNetworkReply
{
    Q_OBJECT

public:
    // `request` is what the caller asked for. The manager becomes the parent; a reply that outlives it all the same
    // fails as cancelled.
    LimitedReply(QNetworkAccessManager::Operation operation, const QNetworkRequest &request, RequestKind kind,
                 const RequestLimits &limits, QNetworkAccessManager *manager);
    ~LimitedReply() override;

    [[nodiscard]] RequestKind kind() const { return m_kind; }
    // Whether the outcome is known, though finished() may be still to come.
    [[nodiscard]] bool isSettled() const { return m_settled; }
    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] qint64 bytesAvailable() const override;

    // The request was sent: `source` is Qt's reply to it, and the limits of time count from now. Once only, unless
    // taken back, and not after the outcome is known. The source stays with its owner, the manager, until this reply is
    // deleted, which then releases it; the children of this reply go with it, as they may hold the data that is
    // uploaded.
    void start(QNetworkReply *source);
    // Ends what was started, as if the request had not been sent yet.
    void takeBack();
    // Ends the request, sent or not, with this error. Does nothing once it has finished.
    void fail(NetworkError error, const QString &text);
    // The same, in the words for the status that has arrived.
    void failByStatus(NetworkError error);

    void abort() override;
    // Holds back a download that is not read; a page is limited anyway.
    void setReadBufferSize(qint64 bytes) override;
    // This and all that concerns SSL holds for a request that is sent later as well.
    void ignoreSslErrors() override;

protected:
    qint64 readData(char *data, qint64 maximumBytes) override;
    void sslConfigurationImplementation(QSslConfiguration &configuration) const override;
    void setSslConfigurationImplementation(const QSslConfiguration &configuration) override;
    void ignoreSslErrorsImplementation(const QList<QSslError> &errors) override;

private:
    void prepareTimers();
    void forwardSignals();
    void startTimers();
    void noteProgress();

    void takeHead();
    void copyHeaders(bool inflated);
    // False after a content coding that nobody can undo.
    bool chooseDecoder();
    void takeBody();
    void addToBody(const QByteArray &chunk);
    void sourceFinished();
    [[nodiscard]] bool isBodyExpected() const;
    [[nodiscard]] bool isBodyCut() const;
    [[nodiscard]] int httpStatus() const;
    [[nodiscard]] QString sourceErrorText() const;

    void failAsTooLarge();
    // Nothing of the source counts any more; conclude() follows from the event loop.
    void settle();
    void conclude();
    void endWithManager();

    QPointer<QNetworkReply> m_source; // null until the request is sent
    RequestKind m_kind;
    RequestLimits m_limits;
    QTimer m_idleTimer;
    QTimer m_totalTimer;
    std::optional<Inflater> m_inflater;
    QByteArray m_body;
    qint64 m_readBytes = 0;     // of m_body
    qint64 m_receivedBytes = 0; // as transferred, before inflation
    bool m_ignoresSslErrors = false;
    QList<QSslError> m_ignoredSslErrors;
    bool m_isDistrusted = false; // something is wrong with the certificate
    NetworkError m_failure = NoError;
    QString m_failureText;
    bool m_settled = false;
};
