// SPDX-License-Identifier: MIT
#include "network/RestingHosts.h"

#include "network/Server.h"

#include <utility>

RestingHosts::RestingHosts(Clock clock)
    : m_clock(std::move(clock))
{
}

std::chrono::seconds RestingHosts::remaining(const QUrl &url) const
{
    const auto found = m_servers.constFind(serverOf(url));
    const auto now = m_clock();
    if (found == m_servers.constEnd() || found->until <= now)
        return std::chrono::seconds(0);
    return std::chrono::ceil<std::chrono::seconds>(found->until - now);
}

QString RestingHosts::silence(const QUrl &url) const
{
    return m_servers.value(serverOf(url)).silence;
}

void RestingHosts::rest(const QUrl &url, std::chrono::seconds pause)
{
    restFor(m_servers[serverOf(url)], pause, {});
}

void RestingHosts::noteTimeout(const QUrl &url, const QString &text)
{
    Server &server = m_servers[serverOf(url)];
    if (++server.timeouts >= mostTimeouts)
        restFor(server, pauseOfSilence, text);
}

void RestingHosts::noteAnswer(const QUrl &url)
{
    const auto found = m_servers.find(serverOf(url));
    if (found == m_servers.end())
        return;
    found->timeouts = 0;
    if (found->silence.isEmpty())
        return;
    found->silence.clear();
    found->until = Server().until;
}

void RestingHosts::restFor(Server &server, std::chrono::seconds pause, const QString &silence)
{
    const auto until = m_clock() + pause;
    if (until <= server.until)
        return;
    server.until = until;
    server.silence = silence;
}
