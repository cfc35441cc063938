// SPDX-License-Identifier: MIT
#pragma once

#include "support/LoopbackServer.h"

#include <QSemaphore>
#include <QStringList>
#include <QThread>

#include <functional>

// All lyrics sites on loopback, in a thread of their own, so that they do not stop when the program does and their work
// is not the program's. Each lists the song "Song <number>" by "Artist" that it is asked for, and has words for it.
// "/round" leads back to itself.
class LyricsSites : public QThread
{
public:
    static constexpr int count = 6;

    struct Request
    {
        int site;         // in the order in which the program asks them
        int song;         // -1 when it is not for a list of songs
        QByteArray found; // the page that has what is asked for
    };
    // What a site answers; called in the thread of the sites.
    using Answer = std::function<LoopbackResponse(const Request &)>;

    explicit LyricsSites(Answer answer);
    ~LyricsSites() override;

    // Starts the sites and has the program ask them instead of the real ones.
    void startSites();
    // Of each site, in their order; once they have started.
    [[nodiscard]] const QStringList &bases() const { return m_bases; }
    // How many requests lead a site to say that it has no such song.
    [[nodiscard]] static int requestsInVain(int site);
    // What a site at the address `base` has for a request of this path and query: a list with the song that it names,
    // or else the words.
    [[nodiscard]] static QByteArray pageFor(int site, const QByteArray &target, const QString &base);

protected:
    void run() override;

private:
    const Answer m_answer;
    QSemaphore m_ready;
    QStringList m_bases;
};
