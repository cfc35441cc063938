// SPDX-License-Identifier: MIT
#include "network/ProxyTester.h"

#include "network/AccessManager.h"

#include <QAuthenticator>
#include <QNetworkReply>

#include <chrono>
#include <utility>

ProxyTester::ProxyTester(const QUrl &url, QObject *parent)
    : QObject(parent)
    , m_url(url)
    , m_timer(new QTimer(this))
    , m_manager(new AccessManager(this))
{
    m_timer->setSingleShot(true);
    connect(m_manager, &QNetworkAccessManager::authenticationRequired, this, &ProxyTester::authenticationRequired);
    connect(m_timer, &QTimer::timeout, this, &ProxyTester::onTimeout);
}

bool ProxyTester::start(const QNetworkProxy &proxy)
{
    if (m_url.isEmpty() || m_reply || proxy.type() == QNetworkProxy::NoProxy)
        return false;
    m_proxy = proxy;
    m_ranOutOfTime = false;
    m_manager->useProxy(m_proxy);
    // Nobody tests often enough to do harm, and an old answer says nothing of this proxy.
    m_manager->forgetLogin();
    m_manager->forgetPauses();
    m_reply = m_manager->get(QNetworkRequest(m_url));
    connect(m_reply, &QNetworkReply::finished, this, &ProxyTester::finished);
    m_timer->start(std::chrono::seconds(m_timeoutSeconds));
    setState(Working);
    return true;
}

void ProxyTester::stop()
{
    endReply();
    setState(Idle);
}

void ProxyTester::endReply()
{
    if (!m_reply)
        return;
    m_timer->stop();
    QNetworkReply *ended = std::exchange(m_reply, nullptr);
    ended->abort();
    ended->deleteLater();
}

void ProxyTester::finished()
{
    if (m_reply && sender() == m_reply)
        settle();
}

// A page that is still on its way has no error yet, so that a test which runs out of time ends as a success. This is
// deliberate.
void ProxyTester::onTimeout()
{
    m_timer->stop();
    m_ranOutOfTime = m_reply != nullptr;
    if (m_reply)
        settle();
}

void ProxyTester::settle()
{
    const bool failed = m_reply->error() != QNetworkReply::NoError;
    endReply();
    setState(failed ? Error : Success);
}

void ProxyTester::authenticationRequired(QNetworkReply *reply, QAuthenticator * /*auth*/)
{
    // The access manager names the reply behind the one that it hands out. As it logs in nowhere, Qt does not even ask;
    // the page ends with an error then, which comes to the same.
    if (!m_reply || reply->url() != m_reply->url())
        return;
    endReply();
    setState(Error);
}

void ProxyTester::setState(State state)
{
    if (m_state == state)
        return;
    m_state = state;
    emit stateChanged();
}
