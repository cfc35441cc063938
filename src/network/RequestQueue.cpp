// SPDX-License-Identifier: MIT
#include "network/RequestQueue.h"

#include "network/Server.h"

#include <algorithm>
#include <utility>

bool RequestQueue::Server::allows(RequestKind kind) const
{
    return kind == RequestKind::Page ||
           std::count(underWay.cbegin(), underWay.cend(), RequestKind::Download) < placesForDownloads;
}

std::optional<RequestQueue::Waiting> RequestQueue::Server::takeNext()
{
    if (underWay.size() >= placesPerServer)
        return {};
    const auto next = std::find_if(waiting.begin(), waiting.end(),
                                   [this](const Waiting &candidate) { return allows(candidate.kind); });
    if (next == waiting.end())
        return {};
    Waiting taken = std::move(*next);
    waiting.erase(next);
    return taken;
}

void RequestQueue::add(const QUrl &url, RequestKind kind, Send send)
{
    const QString serverName = serverOf(url);
    m_servers[serverName].waiting.push_back({kind, std::move(send)});
    sendNext(serverName);
}

void RequestQueue::sendNext(const QString &serverName)
{
    Server &server = m_servers[serverName];
    while (const auto next = server.takeNext()) {
        const QNetworkReply *reply = next->send();
        if (!reply)
            continue;
        server.underWay.insert(reply, next->kind);
        const auto leaveServer = [this, serverName, reply] {
            leave(serverName, reply);
        };
        connect(reply, &QNetworkReply::finished, this, leaveServer);
        connect(reply, &QObject::destroyed, this, leaveServer);
    }
    if (server.underWay.isEmpty())
        m_servers.remove(serverName);
}

void RequestQueue::leave(const QString &serverName, const QObject *reply)
{
    const auto server = m_servers.find(serverName);
    if (server != m_servers.end() && server->underWay.remove(reply) > 0)
        sendNext(serverName);
}
