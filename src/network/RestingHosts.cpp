// SPDX-License-Identifier: MIT
#include "network/RestingHosts.h"

#include "network/Server.h"

#include <algorithm>
#include <utility>

RestingHosts::RestingHosts(Clock clock)
    : m_clock(std::move(clock))
{
}

std::chrono::seconds RestingHosts::remaining(const QUrl &url) const
{
    const auto found = m_servers.constFind(serverOf(url));
    if (found == m_servers.constEnd())
        return std::chrono::seconds(0);
    const Moment now = m_clock();
    const Moment until = std::max({found->askedUntil, found->silentUntil, now});
    return std::chrono::ceil<std::chrono::seconds>(until - now);
}

QString RestingHosts::silence(const QUrl &url) const
{
    const Server server = m_servers.value(serverOf(url));
    return server.silentUntil > server.askedUntil ? server.silence : QString();
}

void RestingHosts::rest(const QUrl &url, std::chrono::seconds pause)
{
    Server &server = m_servers[serverOf(url)];
    server.askedUntil = std::max(server.askedUntil, m_clock() + pause);
}

void RestingHosts::noteTimeout(const QUrl &url, const QString &text)
{
    Server &server = m_servers[serverOf(url)];
    if (++server.timeouts < mostTimeouts)
        return;
    server.silentUntil = m_clock() + pauseOfSilence;
    server.silence = text;
}

void RestingHosts::noteAnswer(const QUrl &url)
{
    const auto found = m_servers.find(serverOf(url));
    if (found == m_servers.end())
        return;
    found->timeouts = 0;
    found->silentUntil = Moment::min();
    found->silence.clear();
}
