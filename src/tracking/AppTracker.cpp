// SPDX-License-Identifier: MIT
#include "tracking/AppTracker.h"

#include "network/AccessManager.h"
#include "network/Endpoints.h"

#include <QCoreApplication>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QSslConfiguration>
#include <QStringList>
#include <QUuid>

#include <utility>

namespace {

// The property that all events belong to.
const QString trackingId = QStringLiteral("UA-73051829-04");

const QString usage = QStringLiteral("usage");
const QString social = QStringLiteral("social");
const QString start = QStringLiteral("start");
const QString quit = QStringLiteral("quit");
const QString search = QStringLiteral("search");

// Every character that could mean something in a form goes out as "%XX", "+" too, which would arrive as a blank.
QByteArray formOf(const QVector<QPair<QByteArray, QString>> &fields)
{
    QByteArrayList items;
    for (const auto &[name, value] : fields)
        items.append(name + '=' + QUrl::toPercentEncoding(value));
    return items.join('&');
}

} // namespace

AppTracker::AppTracker(QObject *parent, const SystemSources &sources)
    : QObject(parent)
    , m_system(sources)
{
    connect(&m_system, &OperatingSystemText::found, this, &AppTracker::systemKnown);
    connect(&m_system, &OperatingSystemText::found, this, &AppTracker::sendWaiting);
}

AppTracker::~AppTracker() = default;

void AppTracker::setNetworkAccessManager(const NetworkSource &network)
{
    m_network = network;
}

// Whether to speak

bool AppTracker::isClientId(const QString &text)
{
    static const QRegularExpression form(QRegularExpression::anchoredPattern(
        QStringLiteral(R"([\dabcdef]{8}-[\dabcdef]{4}-4[\dabcdef]{3}-[\dabcdef]{4}-[\dabcdef]{12})")));
    return form.match(text).hasMatch();
}

QString AppTracker::allow(const QString &clientId)
{
    m_isAllowed = true;
    m_clientId = isClientId(clientId) ? clientId : QUuid::createUuid().toString(QUuid::WithoutBraces);
    return m_clientId;
}

void AppTracker::forbid()
{
    m_isAllowed = false;
    m_clientId.clear();
    for (const Event &event : std::exchange(m_waiting, {})) {
        if (event.isQuit)
            announceQuit();
    }
    for (QNetworkReply *reply : std::exchange(m_replies, {}))
        reply->abort();
}

bool AppTracker::maySpeak() const
{
    return m_isAllowed && endpointExists(Endpoint::Collector);
}

// Events

void AppTracker::release()
{
    m_isHeld = false;
    sendWaiting();
}

void AppTracker::trackStart()
{
    trackEvent(usage, start);
}

void AppTracker::trackQuit()
{
    m_isHeld = false;
    if (maySpeak())
        trackEvent(usage, quit);
    else
        announceQuit();
}

void AppTracker::trackUpdate(const QString &previousVersion)
{
    trackEvent(QStringLiteral("update"), QStringLiteral("update"), previousVersion);
}

void AppTracker::trackFacebook()
{
    trackEvent(social, QStringLiteral("facebook"));
}

void AppTracker::trackGooglePlus()
{
    trackEvent(social, QStringLiteral("gplus"));
}

void AppTracker::trackTwitter()
{
    trackEvent(social, QStringLiteral("twitter"));
}

void AppTracker::trackDonation()
{
    trackEvent(QStringLiteral("donate"), QStringLiteral("donate"));
}

void AppTracker::trackSearch(const QString &artist, const QString &title)
{
    const QString label = searchLabel(artist, title);
    if (!label.isEmpty())
        trackEvent(usage, search, label);
}

QString AppTracker::searchLabel(const QString &artist, const QString &title)
{
    const QString name = artist.trimmed();
    const QString addition = title.trimmed();
    return name.isEmpty() || addition.isEmpty() ? name : name + QLatin1String(" // ") + addition;
}

void AppTracker::trackEvent(const QString &category, const QString &action, const QString &label,
                            std::optional<int> value)
{
    if (!maySpeak() || category.isEmpty() || action.isEmpty())
        return;
    m_waiting.append({formOf(fields(category, action, label, value, m_clientId)), action == quit});
    sendWaiting();
}

// What is sent

// In the order in which they are sent.
AppTracker::Fields AppTracker::fields(const QString &category, const QString &action, const QString &label,
                                      std::optional<int> value, const QString &clientId) const
{
    Fields fields{{"v", QStringLiteral("1")},
                  {"tid", trackingId},
                  {"cid", clientId},
                  {"t", QStringLiteral("event")},
                  {"an", QCoreApplication::applicationName()},
                  {"av", QCoreApplication::applicationVersion()},
                  {"ec", category},
                  {"ea", action}};
    if (action == start)
        fields.append({"sc", start});
    if (action == quit)
        fields.append({"sc", QStringLiteral("end")});
    if (value)
        fields.append({"ev", QString::number(*value)});
    if (!label.isEmpty())
        fields.append({"el", label});
    return fields;
}

QNetworkRequest AppTracker::request() const
{
    QNetworkRequest request(endpointUrl(Endpoint::Collector, QStringLiteral("/collect")));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArray("application/x-www-form-urlencoded"));
    const QString userAgent =
        QStringLiteral("%1/%2 (%3)")
            .arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(), m_system.text());
    request.setRawHeader("User-Agent", userAgent.toLatin1());
    // Else Qt would add the user's language and country.
    request.setRawHeader("Accept-Language", "en");
    request.setRawHeader("Accept-Encoding", "gzip, deflate");
    // A cookie would be a second identifier, which outlives a no.
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    // Deliberate: events count with any certificate that the collector has, and nothing that comes back is used.
    QSslConfiguration unchecked = QSslConfiguration::defaultConfiguration();
    unchecked.setPeerVerifyMode(QSslSocket::VerifyNone);
    request.setSslConfiguration(unchecked);
    return request;
}

QString AppTracker::searchExample(const QString &artist, const QString &title, const QString &identifier) const
{
    const QNetworkRequest sent = request();
    QStringList lines{QLatin1String("POST ") + sent.url().toString(QUrl::FullyEncoded)};
    for (const QByteArray &header : sent.rawHeaderList())
        lines.append(QString::fromLatin1(header + ": " + sent.rawHeader(header)));
    lines.append(QString());
    const QString clientId = m_clientId.isEmpty() ? identifier : m_clientId;
    for (const auto &[name, value] : fields(usage, search, searchLabel(artist, title), {}, clientId))
        lines.append(QString::fromLatin1(name) + QLatin1Char('=') + value);
    return lines.join(QLatin1Char('\n'));
}

void AppTracker::sendWaiting()
{
    if (m_isHeld || m_waiting.isEmpty())
        return;
    if (!m_system.isFound()) {
        m_system.find();
        return;
    }
    for (const Event &event : std::exchange(m_waiting, {}))
        send(event);
}

void AppTracker::send(const Event &event)
{
    QNetworkAccessManager *shared = m_network.manager();
    QNetworkAccessManager *manager = shared ? shared : new AccessManager(this);
    QNetworkReply *reply = manager->post(request(), event.body);
    m_replies.insert(reply);
    connect(reply, &QObject::destroyed, this, [this, reply] { m_replies.remove(reply); });
    connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
    if (!shared)
        connect(reply, &QNetworkReply::finished, manager, &QObject::deleteLater);
    if (event.isQuit)
        connect(reply, &QNetworkReply::finished, this, &AppTracker::quitTracked);
}

void AppTracker::announceQuit()
{
    QMetaObject::invokeMethod(this, &AppTracker::quitTracked, Qt::QueuedConnection);
}
