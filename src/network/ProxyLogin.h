// SPDX-License-Identifier: MIT
#pragma once

#include <QNetworkProxy>
#include <QNetworkReply>
#include <QObject>

// What is known of the log-in at the proxy. The access managers of the program share one of these, so that a wrong
// log-in is tried once and not once by each: one of them checks it, and the others wait for checkEnded().
class ProxyLogin final : public QObject
{
    Q_OBJECT

public:
    // NotWanted: the proxy asks for none, or for none of the kind that is made up here.
    enum class State { Unknown, NotWanted, Works, Refused };

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] bool isBeingChecked() const { return m_check; }
    [[nodiscard]] bool isCheck(const QObject *check) const { return check && m_check == check; }
    // Whether this very proxy refused its user name and password, or that it was given none.
    [[nodiscard]] bool isRefusedBy(const QNetworkProxy &proxy) const;

    // What is known holds for one proxy: another one, or another log-in at it, makes it forgotten.
    void setProxy(const QNetworkProxy &proxy);
    void forget();

    // `check` stands for the attempt, in the place of an earlier one; the check ends when it is deleted.
    void beginCheck(const QObject *check);
    // With the error of a proxy that let nothing come of the check.
    void endCheck(State state, QNetworkReply::NetworkError error = QNetworkReply::NoError);
    // Does not count when another proxy is used by now.
    void refuse(const QNetworkProxy &proxy);

signals:
    // From the event loop. What waits for it is to be sent, or to fail with this error.
    void checkEnded(QNetworkReply::NetworkError error);

private:
    void setState(State state);

    QNetworkProxy m_proxy;
    State m_state = State::Unknown;
    const QObject *m_check = nullptr;
};
