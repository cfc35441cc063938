// SPDX-License-Identifier: MIT
#include "network/ProxyLogin.h"

#include "network/NetworkLog.h"

bool ProxyLogin::isRefusedBy(const QNetworkProxy &proxy) const
{
    return m_state == State::Refused && proxy == m_proxy;
}

void ProxyLogin::setProxy(const QNetworkProxy &proxy)
{
    if (proxy == m_proxy)
        return;
    m_proxy = proxy;
    forget();
}

void ProxyLogin::forget()
{
    if (m_check)
        endCheck(State::Unknown);
    setState(State::Unknown);
}

void ProxyLogin::beginCheck(const QObject *check)
{
    m_check = check;
    connect(check, &QObject::destroyed, this, [this, check] {
        if (m_check == check)
            endCheck(State::Unknown);
    });
}

void ProxyLogin::endCheck(State state, QNetworkReply::NetworkError error)
{
    m_check = nullptr;
    setState(state);
    // Not at once: some of the managers may still have the proxy that was used before.
    QMetaObject::invokeMethod(
        this, [this, error] { emit checkEnded(error); }, Qt::QueuedConnection);
}

void ProxyLogin::refuse(const QNetworkProxy &proxy)
{
    if (proxy == m_proxy)
        setState(State::Refused);
}

void ProxyLogin::setState(State state)
{
    if (state == State::Refused && m_state != state)
        qCWarning(networkLog, "The proxy refuses the log-in.");
    m_state = state;
}
