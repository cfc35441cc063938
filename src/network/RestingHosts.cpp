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
    const auto found = m_until.constFind(serverOf(url));
    if (found == m_until.constEnd())
        return std::chrono::seconds(0);
    return std::max(std::chrono::seconds(0), std::chrono::ceil<std::chrono::seconds>(*found - m_clock()));
}

void RestingHosts::rest(const QUrl &url, std::chrono::seconds pause)
{
    auto &until = m_until[serverOf(url)];
    until = std::max(until, m_clock() + pause);
}
