// SPDX-License-Identifier: MIT
#pragma once

#include "network/RequestLimits.h"

#include <QHash>
#include <QNetworkReply>
#include <QObject>
#include <QUrl>

#include <deque>
#include <functional>
#include <optional>

// Lets a few requests to each server (Server.h) be under way at a time. The others wait and are sent in the order in
// which they came, whatever their priority; what was sent is under way until its reply has finished or is deleted.
//
// A download may take an hour and a page takes a second. So that pages keep moving beside downloads, those have only
// some of the places, and a page does not wait behind downloads that wait for one of theirs.
class RequestQueue : public QObject
{
    Q_OBJECT

public:
    // Sends the request and returns its reply, which stays with its owner; null when it need not be sent any more. It
    // is called once, from add() or later, and must not call add().
    using Send = std::function<QNetworkReply *()>;

    // As many as QNetworkAccessManager itself sends to a host at once. What it was given beyond that would wait in
    // there, where nobody knows of it.
    static constexpr int placesPerServer = 6;
    static constexpr int placesForDownloads = 3; // of these

    void add(const QUrl &url, RequestKind kind, Send send);

private:
    struct Waiting
    {
        RequestKind kind;
        Send send;
    };
    struct Server
    {
        QHash<const QObject *, RequestKind> underWay; // by reply
        std::deque<Waiting> waiting;

        // Whether a free place may be given to this kind.
        [[nodiscard]] bool allows(RequestKind kind) const;
        // Nothing when there is no place for anything that waits.
        [[nodiscard]] std::optional<Waiting> takeNext();
    };

    void sendNext(const QString &serverName);
    void leave(const QString &serverName, const QObject *reply);

    QHash<QString, Server> m_servers; // only those with something to do
};
