// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>

// Remembers which servers are to be left alone, and until when (Server.h): those that asked for it, and those that do
// not answer. Each request to a silent server would take its whole time, and every song that is searched for with it.
class RestingHosts
{
public:
    // The clock is monotonic, so that a changed wall clock neither ends nor stretches a pause.
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    // A server that let so many requests in a row time out rests for so long, and again after each further one.
    static constexpr int mostTimeouts = 3;
    static constexpr std::chrono::seconds pauseOfSilence = std::chrono::minutes(3);

    explicit RestingHosts(Clock clock = &std::chrono::steady_clock::now);

    // Rounded up to whole seconds; 0 when the server of this address may be asked.
    [[nodiscard]] std::chrono::seconds remaining(const QUrl &url) const;
    // What the last request met, for users, when it is for its silence that the server rests longest.
    [[nodiscard]] QString silence(const QUrl &url) const;

    // The server asked for a pause. Of several pauses, and a rest for silence, the one that ends last holds.
    void rest(const QUrl &url, std::chrono::seconds pause);
    // A request timed out; `text` says so to users.
    void noteTimeout(const QUrl &url, const QString &text);
    // A request was answered, however: a rest for silence is over.
    void noteAnswer(const QUrl &url);

    // No server rests any more.
    void clear() { m_servers.clear(); }

private:
    using Moment = std::chrono::steady_clock::time_point;

    struct Server
    {
        // Apart from each other: an answer ends the rest for silence alone.
        Moment askedUntil = Moment::min();
        Moment silentUntil = Moment::min();
        QString silence;  // as long as silentUntil is known
        int timeouts = 0; // in a row
    };

    Clock m_clock;
    QHash<QString, Server> m_servers;
};
