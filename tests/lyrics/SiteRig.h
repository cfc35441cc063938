// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/LyricsProvider.h"
#include "network/AccessManager.h"
#include "support/LoopbackServer.h"
#include "support/TestFolder.h"

// What a search on a site came to.
struct SiteAnswer
{
    QString lyrics;
    QString errorString;
};

// A loopback site to which all addresses of the program point, with settings and a connection of its own. One for each
// test function.
class SiteRig
{
public:
    SiteRig();

    [[nodiscard]] LoopbackServer &server() { return m_server; }
    [[nodiscard]] AccessManager *manager() { return &m_manager; }

    // Answers `path` with this text.
    void page(const QString &path, const QString &html);
    // The requests so far as they were sent, path and query, separated by blanks.
    [[nodiscard]] QString targets() const;

    // Searches with this client and waits for its answer.
    static SiteAnswer search(LyricsProvider &site, const QString &artist, const QString &title);

private:
    TestFolder m_folder;
    LoopbackServer m_server;
    AccessManager m_manager;
};
