// SPDX-License-Identifier: MIT
#pragma once

#include "lyrics/TagCorrector.h"
#include "network/NetworkSource.h"

#include <QPointer>

class QNetworkAccessManager;
class QNetworkReply;
class QUrlQuery;

// Asks the Last.fm web service for its correction of a song's names, then for the two tracks that its search finds for
// the names as they were: first the corrections, then the tracks. Format: https://www.last.fm/api (XML answers).
//
// For an artist alone only the artist's corrections are asked for; the list of titles is empty then.
class LastfmTagCorrector final : public TagCorrector
{
    Q_OBJECT

public:
    // The manager must outlive the corrector. Without one, it makes its own at its first request.
    explicit LastfmTagCorrector(const NetworkSource &network, QObject *parent = nullptr);
    // Gives up a request in flight; finished() is not emitted then.
    ~LastfmTagCorrector() override;

    // False when the artist is blank, or while a correction is running.
    bool correct(const QString &artist, const QString &title) override;
    [[nodiscard]] bool isBusy() const override { return m_reply; }
    bool abort() override;
    [[nodiscard]] TagCorrector *clone(QObject *parent) const override;
    [[nodiscard]] QString errorString() const override { return m_errorString; }

    // Pairs of names, entry i of each list making one.
    struct Names
    {
        QStringList artists;
        QStringList titles;
    };
    // Read an answer of "track.getCorrection", "artist.getCorrection" and "track.search"; empty when it is none, or one
    // that reports an error. Of each answer the first 50 count, more than the service ever gives: all sites are
    // asked for each, so an answer made to do harm must not name them by the thousand.
    [[nodiscard]] static Names trackCorrections(const QByteArray &answer);
    [[nodiscard]] static Names artistCorrections(const QByteArray &answer);
    [[nodiscard]] static Names foundTracks(const QByteArray &answer);

private:
    using AnswerSlot = void (LastfmTagCorrector::*)(QNetworkReply &reply);

    QNetworkAccessManager *accessManager();
    void ask(const QUrlQuery &query, AnswerSlot slot);
    void askForCorrections();
    void searchTracks();
    void replyFinished(QNetworkReply &reply);
    void searchFinished(QNetworkReply &reply);
    void append(const Names &names);

    NetworkSource m_network;
    QNetworkAccessManager *m_ownNetworkManager = nullptr;
    QPointer<QNetworkReply> m_reply;
    QString m_artist; // both trimmed
    QString m_title;
    QString m_errorString;
    Names m_names;
};
