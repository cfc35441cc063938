// SPDX-License-Identifier: MIT
#include "lyrics/LyricsProvider.h"

#include "lyrics/JunkCheck.h"
#include "lyrics/LyricsLog.h"
#include "lyrics/LyricsText.h"
#include "lyrics/NamedCharacters.h"
#include "lyrics/PageBytes.h"
#include "network/AccessManager.h"
#include "network/Redirects.h"

#include <utility>

namespace {

// Only these two; 302 and 303 are read as pages, deliberately.
bool isFollowedRedirect(const QNetworkReply &reply)
{
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    return status == 301 || status == 307;
}

// For the log, and apart from each other there: whoever wonders why songs are not found must be able to tell a site
// that has changed its pages from one that is down and from one that has no such song.
QByteArray outcome(const ProviderStep &result, const QByteArray &failure)
{
    switch (result.meaning()) {
    case ProviderStep::Meaning::Lyrics:
        break;
    case ProviderStep::Meaning::Failure:
        return failure;
    case ProviderStep::Meaning::NoSuchSong:
        return "has no such song";
    case ProviderStep::Meaning::ListedNothing:
        return "listed nothing";
    case ProviderStep::Meaning::NotUnderstood:
        return "gave a page that was not understood";
    }
    return "has the lyrics";
}

} // namespace

LyricsProvider::LyricsProvider(const NetworkSource &network, QObject *parent)
    : QObject(parent)
    , m_network(network)
{
}

LyricsProvider::~LyricsProvider()
{
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
}

bool LyricsProvider::canSearch(const QString &artist, const QString &title) const
{
    return !artist.trimmed().isEmpty() && !title.trimmed().isEmpty();
}

bool LyricsProvider::search(const QString &artist, const QString &title)
{
    if (isBusy() || !canSearch(artist, title))
        return false;
    m_errorString.clear();
    m_busy = true;
    const ProviderStep step = firstStep(artist, title);
    if (step.kind() == ProviderStep::Kind::Ask)
        carryOut(step);
    else
        QMetaObject::invokeMethod(
            this, [this, step] { carryOut(step); }, Qt::QueuedConnection);
    return true;
}

QByteArray LyricsProvider::browserUserAgent()
{
    return QByteArrayLiteral("Mozilla/5.0 (X11; Linux x86_64) AppleWebKit/537.36 (KHTML, like Gecko) "
                             "Chrome/46.0.2490.86 Safari/537.36");
}

QNetworkRequest LyricsProvider::browserRequest(const QUrl &url, const QUrl &referer)
{
    QNetworkRequest request(url);
    request.setRawHeader("User-Agent", browserUserAgent());
    request.setRawHeader("Referer", referer.toEncoded());
    return request;
}

QNetworkRequest LyricsProvider::redirectedRequest(const QUrl &target) const
{
    return QNetworkRequest(target);
}

QNetworkAccessManager *LyricsProvider::accessManager()
{
    if (QNetworkAccessManager *shared = m_network.manager())
        return shared;
    if (!m_ownNetworkManager)
        m_ownNetworkManager = new AccessManager(this);
    return m_ownNetworkManager;
}

void LyricsProvider::carryOut(const ProviderStep &step)
{
    if (step.kind() == ProviderStep::Kind::Result) {
        finish(step);
        return;
    }
    m_readPage = step.pageFunction();
    m_redirects = 0;
    send(step.request());
}

void LyricsProvider::send(QNetworkRequest request)
{
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    // A site is left alone as a whole when one of its servers asks for a pause.
    if (m_chainStart.isEmpty())
        m_chainStart = request.url();
    else
        request.setAttribute(AccessManager::ChainStartAttribute, m_chainStart);
    QNetworkReply *reply = accessManager()->get(request);
    m_reply = reply;
    connect(reply, &QNetworkReply::finished, this, [this, reply] { replyFinished(reply); });
}

void LyricsProvider::replyFinished(QNetworkReply *reply)
{
    if (reply != m_reply)
        return;
    m_reply->deleteLater();
    m_reply.clear();
    if (isFollowedRedirect(*reply))
        follow(*reply);
    else if (reply->error() != QNetworkReply::NoError)
        finish(ProviderStep::failure(reply->errorString()), failureForLog(*reply));
    else
        readPage(*reply);
}

void LyricsProvider::follow(const QNetworkReply &reply)
{
    const QUrl target = redirectTarget(reply.request().url(), reply.rawHeader("Location"));
    if (target.isEmpty())
        //: %1 is the name of a lyrics site.
        finish(ProviderStep::failure(tr("%1 redirects to something that is not a web page.").arg(name())),
               "redirects to something that is not a web page");
    else if (++m_redirects > maximumRedirects)
        //: %1 is the name of a lyrics site.
        finish(ProviderStep::failure(tr("%1 redirects too often.").arg(name())), "redirects too often");
    else
        send(redirectedRequest(target));
}

void LyricsProvider::readPage(QNetworkReply &reply)
{
    const QByteArray source = pageInUtf8(reply.readAll(), reply.rawHeader("Content-Type"));
    const Page page{textOf(source), reply.request().url(), source};
    const ProviderStep::PageFunction read = std::exchange(m_readPage, {});
    carryOut(read(page));
}

// Every result leaves here, whichever site it comes from: this is the place to look at it as a whole.
void LyricsProvider::finish(const ProviderStep &result, const QByteArray &failure)
{
    m_chainStart.clear();
    m_readPage = {};
    m_errorString = result.errorString();
    m_busy = false;
    QString text = withoutBrokenCharacters(withNamedCharacters(result.lyrics()));
    const bool junk = isJunk(result.lyrics(), result.markup());
    const QByteArray logged = junk ? QByteArrayLiteral("gave a page that holds no lyrics") : outcome(result, failure);
    qCInfo(lyricsLog, "%s %s", qUtf8Printable(name()), logged.constData());
    if (junk) {
        m_errorString = tr("%1 gave a page that holds no lyrics.").arg(name());
        text.clear();
    }
    emit finished(text);
}

QString LyricsProvider::textOf(const QByteArray &source) const
{
    QByteArray body = hasPercentEncodedPages() ? decodePercentEscapes(source) : source;
    const int nul = body.indexOf('\0');
    if (nul >= 0)
        body.truncate(nul);
    return QString::fromUtf8(body);
}
