// SPDX-License-Identifier: MIT
#include "network/AccessManager.h"

#include "network/LimitedReply.h"
#include "network/NetworkLog.h"
#include "network/ProxyErrors.h"
#include "network/Redirects.h"
#include "network/RefusedReply.h"
#include "network/RetryAfter.h"
#include "network/SocksLoginCheck.h"

#include <algorithm>
#include <utility>

namespace {

using Login = ProxyLogin::State;

constexpr auto loginRefused = QNetworkReply::ProxyAuthenticationRequiredError;
constexpr int shownAddressCharacters = 120; // a data: address can be as long as a page

// A name that is reserved for never existing (RFC 2606): whatever comes of it was said by the proxy.
const QUrl nowhere(QStringLiteral("http://login.invalid/"));

// Qt writes user names and passwords in Latin-1, where a proxy that follows RFC 7617 expects UTF-8. Given UTF-8 byte by
// byte, it sends that.
QNetworkProxy withLoginInUtf8(QNetworkProxy proxy)
{
    proxy.setUser(QString::fromLatin1(proxy.user().toUtf8()));
    proxy.setPassword(QString::fromLatin1(proxy.password().toUtf8()));
    return proxy;
}

bool hasHttpLogin(const QNetworkProxy &proxy)
{
    return proxy.type() == QNetworkProxy::HttpProxy && !proxy.user().isEmpty();
}

bool hasSocksLogin(const QNetworkProxy &proxy)
{
    return proxy.type() == QNetworkProxy::Socks5Proxy && !proxy.user().isEmpty();
}

bool isPlain(const QUrl &url)
{
    return url.scheme() == QLatin1String("http");
}

// The elements of a list in a header, without their quoted texts; commas and line ends part them (RFC 7235).
QByteArrayList listElements(const QByteArray &header)
{
    QByteArrayList elements{QByteArray()};
    bool quoted = false;
    for (int i = 0; i < header.size(); ++i) {
        const char c = header.at(i);
        if (quoted && c == '\\')
            ++i;
        else if (c == '"')
            quoted = !quoted;
        else if (!quoted && (c == ',' || c == '\n'))
            elements.append(QByteArray());
        else if (!quoted)
            elements.last().append(c == '\t' ? ' ' : c);
    }
    return elements;
}

// An element begins a challenge with its scheme, or goes on with a parameter: name=value.
bool namesBasic(const QByteArray &header)
{
    const QByteArrayList elements = listElements(header);
    return std::any_of(elements.begin(), elements.end(), [](const QByteArray &element) {
        const QByteArray text = element.trimmed().toLower();
        return text == "basic" || (text.startsWith("basic ") && !text.mid(5).trimmed().startsWith('='));
    });
}

// The log-in that is made up here is of this kind; it would give the password away to any other.
bool asksForBasicLogin(const QNetworkReply &reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() == 407 &&
           namesBasic(reply.rawHeader("Proxy-Authenticate"));
}

bool canBeSentAgain(QIODevice *data)
{
    return !data || (!data->isSequential() && data->seek(0));
}

// Naming the codings ourselves keeps Qt from inflating, which it does without any bound.
//
// Left to itself, Qt 5.15 gives the proxy's user name and password to an http site that asks for some under the name
// under which the proxy did. So it is kept from logging in anywhere, and an http page is asked for with the log-in for
// the proxy. For https Qt gives it to the proxy alone.
QNetworkRequest asSent(const LimitedReply &reply, const QNetworkProxy &proxy, bool withLogin)
{
    QNetworkRequest sent = reply.request();
    sent.setRawHeader("Accept-Encoding", reply.kind() == RequestKind::Page ? "gzip, deflate" : "identity");
    sent.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    sent.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    if (withLogin) {
        const QString login = proxy.user() + QLatin1Char(':') + proxy.password(); // bytes, see withLoginInUtf8()
        sent.setRawHeader("Proxy-Authorization", "Basic " + login.toLatin1().toBase64()); // RFC 7617
    }
    return sent;
}

} // namespace

AccessManager::AccessManager(QObject *parent, RestingHosts::Clock clock)
    : QNetworkAccessManager(parent)
    , m_restingHosts(std::move(clock))
{
    shareLogin(std::make_shared<ProxyLogin>());
}

void AccessManager::setLimits(const RequestLimits &limits)
{
    m_limits = limits;
}

void AccessManager::shareLogin(const std::shared_ptr<ProxyLogin> &login)
{
    if (m_login)
        m_login->disconnect(this);
    m_login = login;
    connect(m_login.get(), &ProxyLogin::checkEnded, this, &AccessManager::release);
}

void AccessManager::useProxy(const QNetworkProxy &proxy)
{
    const QNetworkProxy used = withLoginInUtf8(proxy);
    if (used != this->proxy())
        forgetPauses();
    setProxy(used);
    m_login->setProxy(used);
}

void AccessManager::forgetPauses()
{
    m_restingHosts.clear();
}

QNetworkReply *AccessManager::createRequest(Operation operation, const QNetworkRequest &request,
                                            QIODevice *outgoingData)
{
    if (QNetworkReply *refused = refusal(operation, request))
        return refused;
    const bool isDownload = request.attribute(DownloadAttribute).toBool();
    const auto kind = isDownload ? RequestKind::Download : RequestKind::Page;
    auto *reply = new LimitedReply(operation, request, kind, m_limits, this);
    connect(reply, &QNetworkReply::metaDataChanged, this, [this, reply] { noteWish(*reply); });
    connect(reply, &QNetworkReply::finished, this, [this, reply] { noteSilence(*reply); });
    enqueue(reply, outgoingData);
    return reply;
}

void AccessManager::enqueue(LimitedReply *reply, QIODevice *outgoingData)
{
    const bool uploads = outgoingData;
    const QPointer<LimitedReply> waiting(reply);
    const QPointer<QIODevice> data(outgoingData);
    m_queue.add(reply->url(), reply->kind(), [this, waiting, uploads, data]() -> QNetworkReply * {
        if (waiting && uploads && !data)
            waiting->abort(); // rather than send half of it
        return waiting ? send(waiting, data) : nullptr;
    });
}

QNetworkReply *AccessManager::refusal(Operation operation, const QNetworkRequest &request)
{
    const QUrl url = request.url();
    if (!isWebAddress(url)) {
        const QString text = tr("Not a web address: %1").arg(url.toDisplayString().left(shownAddressCharacters));
        return new RefusedReply(operation, request, QNetworkReply::ProtocolUnknownError, text, this);
    }
    if (const auto hindered = hindrance(url))
        return new RefusedReply(operation, request, hindered->error, hindered->text, this);
    return nullptr;
}

std::optional<AccessManager::Hindrance> AccessManager::hindrance(const QUrl &url) const
{
    if (m_login->isRefusedBy(proxy()))
        return Hindrance{loginRefused, proxyErrorText(loginRefused)};
    const qint64 seconds = m_restingHosts.remaining(url).count();
    if (seconds == 0)
        return {};
    if (const QString silence = m_restingHosts.silence(url); !silence.isEmpty())
        return Hindrance{QNetworkReply::TimeoutError, silence};
    const QString text = tr("%1 asked for a pause and can be asked again in %2 s.", "%1 is a host name");
    return Hindrance{QNetworkReply::ServiceUnavailableError, text.arg(url.host()).arg(seconds)};
}

QNetworkReply *AccessManager::send(LimitedReply *reply, QIODevice *outgoingData)
{
    if (reply->isSettled())
        return nullptr;
    if (const auto hindered = hindrance(reply->url())) {
        reply->fail(hindered->error, hindered->text);
        return nullptr;
    }
    const bool isUnknown = m_login->state() == Login::Unknown;
    const bool isGivenLogin = hasSocksLogin(proxy()) || (hasHttpLogin(proxy()) && !isPlain(reply->url()));
    if (m_login->isBeingChecked() || (isUnknown && isGivenLogin)) {
        hold(reply, outgoingData);
        return nullptr;
    }
    return sendNow(reply, outgoingData);
}

QNetworkReply *AccessManager::sendNow(LimitedReply *reply, QIODevice *outgoingData)
{
    const QNetworkProxy used = proxy();
    const bool withLogin = m_login->state() == Login::Works && hasHttpLogin(used) && isPlain(reply->url());
    QNetworkReply *source =
        QNetworkAccessManager::createRequest(reply->operation(), asSent(*reply, used, withLogin), outgoingData);
    const QPointer<LimitedReply> waiting(reply);
    // Before the reply that is handed out sees anything of it.
    if (hasHttpLogin(used) && isPlain(reply->url()) && !withLogin)
        connect(source, &QNetworkReply::metaDataChanged, this,
                [this, source, used, waiting, data = QPointer(outgoingData), uploads = outgoingData != nullptr] {
                    if (waiting && (data || !uploads))
                        repeatWithLogin(*source, used, waiting, data);
                });
    // Here and not where the outcome is handed out, so that it is known before the next one in the queue is sent.
    connect(source, &QNetworkReply::finished, this,
            [this, source, used, waiting, withLogin] { noteProxy(*source, used, waiting, withLogin); });
    reply->start(source);
    return source;
}

void AccessManager::repeatWithLogin(const QNetworkReply &source, const QNetworkProxy &proxy, LimitedReply *reply,
                                    QIODevice *outgoingData)
{
    const bool wanted = proxy == this->proxy() && m_login->state() != Login::NotWanted && !m_login->isRefusedBy(proxy);
    if (!wanted || !asksForBasicLogin(source) || !canBeSentAgain(outgoingData))
        return;
    reply->takeBack();
    if (m_login->state() == Login::Works)
        enqueue(reply, outgoingData);
    else
        hold(reply, outgoingData);
}

// Checking the log-in

void AccessManager::hold(LimitedReply *reply, QIODevice *outgoingData)
{
    m_held.append({reply, outgoingData, outgoingData != nullptr, false});
    if (m_login->isBeingChecked())
        return;
    if (hasSocksLogin(proxy()))
        checkSocksLogin();
    else
        checkLogin(false);
}

void AccessManager::checkLogin(bool withLogin)
{
    const QNetworkProxy used = proxy();
    auto *check = new LimitedReply(GetOperation, QNetworkRequest(nowhere), RequestKind::Page, m_limits, this);
    m_login->beginCheck(check);
    connect(check, &QNetworkReply::finished, this, [this, check, withLogin] { loginChecked(check, withLogin); });
    QNetworkReply *source =
        QNetworkAccessManager::createRequest(GetOperation, asSent(*check, used, withLogin), nullptr);
    connect(source, &QNetworkReply::finished, check, [source, used, check] {
        const QNetworkReply::NetworkError error = proxyError(*source, used);
        if (error != QNetworkReply::NoError)
            check->fail(error, proxyErrorText(error));
    });
    check->start(source);
}

void AccessManager::loginChecked(LimitedReply *check, bool withLogin)
{
    check->deleteLater();
    if (!m_login->isCheck(check))
        return; // of a proxy that is not used any more
    const int status = check->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool hasLogin = hasHttpLogin(proxy());
    if (!withLogin && hasLogin && asksForBasicLogin(*check))
        checkLogin(true);
    // There are proxies that answer a wrong password as if a site had been asked for one.
    else if ((withLogin && (status == 401 || status == 407)) || (!hasLogin && status == 407))
        m_login->endCheck(Login::Refused);
    else if (status != 0)
        m_login->endCheck(withLogin ? Login::Works : Login::NotWanted);
    else
        m_login->endCheck(Login::Unknown, check->error());
}

void AccessManager::checkSocksLogin()
{
    auto *check = new SocksLoginCheck(proxy(), m_limits.idle, this);
    m_login->beginCheck(check);
    connect(check, &SocksLoginCheck::finished, this, [this, check](Login state, QNetworkReply::NetworkError error) {
        check->deleteLater();
        if (m_login->isCheck(check)) // else of a proxy that is not used any more
            m_login->endCheck(state, error);
    });
}

void AccessManager::doubt(LimitedReply *reply, bool withLogin)
{
    reply->takeBack();
    m_held.append({reply, {}, false, true});
    if (!m_login->isBeingChecked())
        checkLogin(withLogin);
}

void AccessManager::release(QNetworkReply::NetworkError error)
{
    for (const Held &held : std::exchange(m_held, {})) {
        if (!held.reply)
            continue;
        if (error != QNetworkReply::NoError)
            held.reply->fail(error, proxyErrorText(error));
        else if (held.isAnswered && m_login->isRefusedBy(proxy()))
            held.reply->fail(loginRefused, proxyErrorText(loginRefused));
        else if (held.isAnswered)
            held.reply->failByStatus(loginRefused);
        else if (held.uploads && !held.data)
            held.reply->abort(); // rather than send half of it
        else
            enqueue(held.reply, held.data);
    }
}

void AccessManager::noteProxy(const QNetworkReply &source, const QNetworkProxy &proxy, LimitedReply *reply,
                              bool withLogin)
{
    const QNetworkReply::NetworkError error = proxyError(source, proxy);
    if (error == QNetworkReply::NoError || !reply || reply->isSettled())
        return;
    const bool isAnswered = source.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
    const bool isRefused = m_login->isRefusedBy(proxy);
    // What a proxy says about a log-in that it was never given is no refusal, and a site may say so as well.
    if (error == loginRefused && isAnswered && hasHttpLogin(proxy) && !withLogin && !isRefused) {
        reply->fail(error, asksForBasicLogin(source)
                               ? tr("The proxy asks for a log-in for some pages only, which is not supported.")
                               : tr("The proxy wants a log-in of a kind that is not known here."));
        return;
    }
    if (error == loginRefused && isAnswered && !isRefused && proxy == this->proxy()) {
        doubt(reply, withLogin);
        return;
    }
    if (error == loginRefused)
        m_login->refuse(proxy);
    reply->fail(error, proxyErrorText(error));
}

void AccessManager::noteSilence(const QNetworkReply &reply)
{
    const bool answered = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
    if (reply.error() == QNetworkReply::TimeoutError)
        m_restingHosts.noteTimeout(reply.url(), reply.errorString());
    else if (answered)
        m_restingHosts.noteAnswer(reply.url());
}

void AccessManager::noteWish(const QNetworkReply &reply)
{
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status != 429 && status != 503)
        return;
    const auto pause = retryAfter(reply.rawHeader("Retry-After"), QDateTime::currentDateTimeUtc());
    if (!pause)
        return;
    qCInfo(networkLog) << reply.url().host() << "asked for a pause of" << pause->count() << "s";
    m_restingHosts.rest(reply.url(), *pause);
    const QUrl chainStart = reply.request().attribute(ChainStartAttribute).toUrl();
    if (isWebAddress(chainStart))
        m_restingHosts.rest(chainStart, *pause);
}
