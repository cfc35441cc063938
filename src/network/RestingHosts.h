// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>

// Remembers which servers asked to be left alone, and until when (Server.h).
class RestingHosts
{
public:
    // The clock is monotonic, so that a changed wall clock neither ends nor stretches a pause.
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    explicit RestingHosts(Clock clock = &std::chrono::steady_clock::now);

    // Rounded up to whole seconds; 0 when the server of this address may be asked.
    [[nodiscard]] std::chrono::seconds remaining(const QUrl &url) const;

    // A pause that ends earlier than the one that holds already changes nothing.
    void rest(const QUrl &url, std::chrono::seconds pause);

    // No server rests any more.
    void clear() { m_until.clear(); }

private:
    Clock m_clock;
    QHash<QString, std::chrono::steady_clock::time_point> m_until;
};
