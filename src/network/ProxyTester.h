// SPDX-License-Identifier: MIT
#pragma once

#include <QNetworkProxy>
#include <QObject>
#include <QTimer>
#include <QUrl>

class AccessManager;
class QAuthenticator;
class QNetworkReply;

// Tells whether a proxy works, by asking for a page through it. Has an access manager of its own, so that a test does
// not disturb the program's proxy and a log-in that was refused may be tried again. One test at a time. Main thread
// only.
class ProxyTester : public QObject
{
    Q_OBJECT
    Q_PROPERTY(State state READ state NOTIFY stateChanged)

public:
    enum State { Idle, Working, Error, Success };
    Q_ENUM(State)

    // The page should be one that is always there, over plain http.
    explicit ProxyTester(const QUrl &url, QObject *parent = nullptr);

    [[nodiscard]] State state() const { return m_state; }

    // Whether the last test ended because its time was over: nothing spoke against the proxy, and nothing for it.
    [[nodiscard]] bool ranOutOfTime() const { return m_ranOutOfTime; }
    [[nodiscard]] quint16 timeoutSeconds() const { return m_timeoutSeconds; }

    // 30 by default; for the tests that are started from now on.
    void setTimeoutSeconds(quint16 seconds) { m_timeoutSeconds = seconds; }

    // False, and nothing happens, without an address, during a test, and for a proxy of the type NoProxy.
    bool start(const QNetworkProxy &proxy);
    // Ends a test that runs, and forgets the last one's outcome.
    void stop();

signals:
    void stateChanged();

private slots:
    void finished();
    // The page wants to know who asks: that counts as a failure.
    void authenticationRequired(QNetworkReply *reply, QAuthenticator *auth);
    void onTimeout();
    void setState(State state);

private:
    void endReply();
    void settle();

    const QUrl m_url;
    State m_state = Idle;
    bool m_ranOutOfTime = false;
    quint16 m_timeoutSeconds = 30;
    QTimer *m_timer;
    AccessManager *m_manager;
    QNetworkReply *m_reply = nullptr;
    QNetworkProxy m_proxy;
};
