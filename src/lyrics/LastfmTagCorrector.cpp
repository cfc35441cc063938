// SPDX-License-Identifier: MIT
#include "lyrics/LastfmTagCorrector.h"

#include "lyrics/LyricsLog.h"
#include "lyrics/SongNames.h"
#include "lyrics/XmlPaths.h"
#include "network/AccessManager.h"
#include "network/Endpoints.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrlQuery>

#include <algorithm>

namespace {

// The service is asked for two tracks and knows a correction or two. More than this is a lie that would cost a search
// on every site for each entry, and reading an entry takes as long as there are entries before it.
constexpr int mostEntries = 50;

QUrlQuery methodQuery(const QString &method, const QString &artist)
{
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("method"), method);
    // The program's account with the service. It names the program and protects nothing.
    query.addQueryItem(QStringLiteral("api_key"), QStringLiteral("4c1e9a7b30d2f58e6a0b7c3d9e2f1a85"));
    query.addQueryItem(QStringLiteral("artist"), queryValue(artist));
    return query;
}

// The elements at `path`, as paths of their own.
QStringList entriesAt(const XmlPaths &answer, const QString &path)
{
    if (answer.count(QStringLiteral("lfm")) == 0)
        qCWarning(lyricsLog) << "Last.fm gave an answer that was not understood";
    else if (answer.count(QStringLiteral("lfm.error")) > 0)
        qCWarning(lyricsLog) << "Last.fm reports an error:" << answer.text(QStringLiteral("lfm.error")).left(200);
    QStringList entries;
    const int count = std::min(answer.count(path), mostEntries);
    for (int i = 0; i < count; ++i)
        entries.append(QStringLiteral("%1[%2]").arg(path).arg(i));
    return entries;
}

QString nameAt(const XmlPaths &answer, const QString &path)
{
    const QString name = answer.text(path);
    return name.size() <= longestName ? name : QString();
}

QString corrections()
{
    return QStringLiteral("lfm.corrections.correction");
}

} // namespace

LastfmTagCorrector::LastfmTagCorrector(const NetworkSource &network, QObject *parent)
    : TagCorrector(parent)
    , m_network(network)
{
}

LastfmTagCorrector::~LastfmTagCorrector()
{
    abort();
}

TagCorrector *LastfmTagCorrector::clone(QObject *parent) const
{
    return new LastfmTagCorrector(m_network, parent);
}

bool LastfmTagCorrector::correct(const QString &artist, const QString &title)
{
    if (isBusy() || artist.trimmed().isEmpty())
        return false;
    m_artist = artist.trimmed();
    m_title = title.trimmed();
    m_names = {};
    m_errorString.clear();
    askForCorrections();
    return true;
}

bool LastfmTagCorrector::abort()
{
    if (!m_reply)
        return false;
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
    m_reply.clear();
    return true;
}

void LastfmTagCorrector::askForCorrections()
{
    const QString method =
        m_title.isEmpty() ? QStringLiteral("artist.getCorrection") : QStringLiteral("track.getCorrection");
    QUrlQuery query = methodQuery(method, m_artist);
    if (!m_title.isEmpty())
        query.addQueryItem(QStringLiteral("track"), queryValue(m_title));
    ask(query, &LastfmTagCorrector::replyFinished);
}

// For the names as they were given, not for corrected ones.
void LastfmTagCorrector::searchTracks()
{
    QUrlQuery query = methodQuery(QStringLiteral("track.search"), m_artist);
    query.addQueryItem(QStringLiteral("track"), queryValue(m_title));
    query.addQueryItem(QStringLiteral("limit"), QStringLiteral("2"));
    ask(query, &LastfmTagCorrector::searchFinished);
}

QNetworkAccessManager *LastfmTagCorrector::accessManager()
{
    if (QNetworkAccessManager *shared = m_network.manager())
        return shared;
    if (!m_ownNetworkManager)
        m_ownNetworkManager = new AccessManager(this);
    return m_ownNetworkManager;
}

void LastfmTagCorrector::ask(const QUrlQuery &query, AnswerSlot slot)
{
    QUrl url = endpointUrl(Endpoint::Lastfm, QStringLiteral("/2.0/"));
    url.setQuery(query);
    QNetworkReply *reply = accessManager()->get(QNetworkRequest(url));
    m_reply = reply;
    connect(reply, &QNetworkReply::finished, this, [this, reply, slot] {
        if (reply != m_reply)
            return;
        reply->deleteLater();
        m_reply.clear();
        m_errorString = reply->error() == QNetworkReply::NoError ? QString() : reply->errorString();
        if (!m_errorString.isEmpty())
            qCInfo(lyricsLog, "Last.fm %s", failureForLog(*reply).constData());
        (this->*slot)(*reply);
        if (!isBusy())
            emit finished(m_names.artists, m_names.titles);
    });
}

void LastfmTagCorrector::replyFinished(QNetworkReply &reply)
{
    if (!m_errorString.isEmpty())
        return;
    const QByteArray answer = reply.readAll();
    append(m_title.isEmpty() ? artistCorrections(answer) : trackCorrections(answer));
    if (!m_title.isEmpty())
        searchTracks();
}

void LastfmTagCorrector::searchFinished(QNetworkReply &reply)
{
    if (m_errorString.isEmpty())
        append(foundTracks(reply.readAll()));
}

void LastfmTagCorrector::append(const Names &names)
{
    m_names.artists += names.artists;
    m_names.titles += names.titles;
}

LastfmTagCorrector::Names LastfmTagCorrector::trackCorrections(const QByteArray &answer)
{
    const XmlPaths xml(answer);
    Names names;
    for (const QString &entry : entriesAt(xml, corrections())) {
        const QString title = nameAt(xml, entry + QLatin1String(".track.name"));
        if (title.isEmpty())
            continue;
        names.artists.append(nameAt(xml, entry + QLatin1String(".track.artist.name")));
        names.titles.append(title);
    }
    return names;
}

LastfmTagCorrector::Names LastfmTagCorrector::artistCorrections(const QByteArray &answer)
{
    const XmlPaths xml(answer);
    Names names;
    for (const QString &entry : entriesAt(xml, corrections()))
        names.artists.append(nameAt(xml, entry + QLatin1String(".artist.name")));
    return names;
}

LastfmTagCorrector::Names LastfmTagCorrector::foundTracks(const QByteArray &answer)
{
    const XmlPaths xml(answer);
    Names names;
    for (const QString &entry : entriesAt(xml, QStringLiteral("lfm.results.trackmatches.track"))) {
        names.artists.append(nameAt(xml, entry + QLatin1String(".artist")));
        names.titles.append(nameAt(xml, entry + QLatin1String(".name")));
    }
    return names;
}
