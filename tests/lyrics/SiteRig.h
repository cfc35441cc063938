// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/LyricsProvider.h"
#include "network/AccessManager.h"
#include "network/Endpoints.h"
#include "support/LoopbackServer.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <initializer_list>

// What a search on a site came to.
struct SiteAnswer
{
    QString lyrics;
    QString errorString;
};

// A loopback site to which the given addresses of the program point, with settings and a connection of its own. One for
// each test function.
class SiteRig
{
public:
    explicit SiteRig(std::initializer_list<Endpoint> endpoints);

    [[nodiscard]] LoopbackServer &server() { return m_server; }
    [[nodiscard]] AccessManager *manager() { return &m_manager; }

    // Answers `path` with this text.
    void page(const QByteArray &path, const QString &html);
    // The requests so far as they were sent: path and query.
    [[nodiscard]] QList<QByteArray> targets() const;

    // Searches with a new client of the site and waits for its answer.
    template<typename Provider>
    SiteAnswer search(const char *artist, const char *title)
    {
        Provider site(manager());
        return search(site, QString::fromUtf8(artist), QString::fromUtf8(title));
    }

    // The same with this client.
    static SiteAnswer search(LyricsProvider &site, const QString &artist, const QString &title);

private:
    QTemporaryDir m_settingsFolder;
    LoopbackServer m_server;
    AccessManager m_manager;
};
