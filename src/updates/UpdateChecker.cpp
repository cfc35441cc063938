// SPDX-License-Identifier: MIT
#include "updates/UpdateChecker.h"

#include "network/Endpoints.h"
#include "network/Redirects.h"
#include "updates/OwnFile.h"
#include "updates/UpdateInformation.h"
#include "updates/UpdateSignature.h"
#include "updates/UpdatesLog.h"
#include "updates/VersionOrder.h"

#include <QCoreApplication>
#include <QSslConfiguration>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr qint64 chunkBytes = 65536;
// What may wait in memory when the disk is slower than the site.
constexpr qint64 bufferedBytes = 1024LL * 1024;

// More than a page about an error ever has.
constexpr qint64 mostPageBytes = 16LL * 1024 * 1024;

constexpr int wholeFile = 200;
constexpr int partOfFile = 206;
constexpr int noSuchPart = 416;

int progressOf(qint64 bytes)
{
    return static_cast<int>(std::min<qint64>(bytes, std::numeric_limits<int>::max()));
}

// 0 when the server does not say.
qint64 announcedBytes(const QNetworkReply &reply)
{
    return std::max<qint64>(0, reply.header(QNetworkRequest::ContentLengthHeader).toLongLong());
}

// The site must not choose a name of another version, by which the folder is tidied. 2.0 and 2.0.0 are the same one
// here; a name may also hold none.
bool mayBeNameOfVersion(const QString &name, const QString &version)
{
    const auto shortKey = [](const QString &text) {
        QByteArray key = versionKey(text);
        while (key.endsWith('\0'))
            key.chop(1);
        return key;
    };
    const QString found = versionInName(name);
    return found.isEmpty() || shortKey(found) == shortKey(version);
}

// What the server can be asked for the rest of just this content by (RFC 9110, section 13.1.5).
QByteArray validatorOf(const QNetworkReply &reply)
{
    const QByteArray tag = reply.rawHeader("ETag");
    return tag.startsWith('"') ? tag : reply.rawHeader("Last-Modified");
}

} // namespace

UpdateChecker::UpdateChecker(const UpdateEnvironment &environment, QObject *parent)
    : QObject(parent)
    , m_environment(environment)
    , m_folder(environment.folder)
    , m_installation(environment)
    , m_downloadAction(tr("Download update", "Action text"))
    , m_abortAction(tr("Cancel downloading", "Action text"))
    , m_installAction(tr("Exit and install update", "Action text"))
{
    connect(&m_downloadAction, &QAction::triggered, this, &UpdateChecker::download);
    connect(&m_abortAction, &QAction::triggered, this, &UpdateChecker::abortDownload);
    connect(&m_installAction, &QAction::triggered, this, &UpdateChecker::install);
    connect(&m_installation, &SetupInstallation::changed, this, &UpdateChecker::installingChanged);
    connect(&m_installation, &SetupInstallation::handedOver, this, &UpdateChecker::exitRequest);
    connect(&m_installation, &SetupInstallation::failed, this, &UpdateChecker::installFailed);
    updateActions();
}

UpdateChecker::~UpdateChecker()
{
    dropReply();
}

QString UpdateChecker::stateName() const
{
    switch (m_state) {
    case Checking:
        return QStringLiteral("checking");
    case UpdateAvailable:
        return QStringLiteral("updateFound");
    case Downloading:
        return QStringLiteral("downloading");
    case InstallAvailable:
        return QStringLiteral("restart");
    case Error:
        return QStringLiteral("error");
    case Normal:
    case UpToDate:
        break;
    }
    return {};
}

QString UpdateChecker::latestVersion() const
{
    return m_versions.isEmpty() ? QString() : latest().version;
}

void UpdateChecker::useProxy(const QNetworkProxy &proxy)
{
    m_proxy = proxy;
    if (m_manager)
        m_manager->useProxy(proxy);
}

AccessManager &UpdateChecker::manager()
{
    if (!m_manager) {
        m_manager = std::make_unique<AccessManager>();
        m_manager->setLimits(m_environment.limits);
        m_manager->shareLogin(m_environment.proxyLogin);
        m_manager->useProxy(m_proxy);
    }
    return *m_manager;
}

void UpdateChecker::setState(States state)
{
    if (state == m_state)
        return;
    m_state = state;
    updateActions();
    emit stateChanged();
    if (state == Checking)
        emit checkStarted();
}

void UpdateChecker::updateActions()
{
    m_downloadAction.setVisible(m_state == UpdateAvailable && m_isSizeAsked);
    m_abortAction.setVisible(m_state == Downloading);
    m_installAction.setVisible(m_state == InstallAvailable);
}

void UpdateChecker::setError(const QString &text)
{
    m_error = text;
    if (text.isEmpty())
        return;
    emit errorMessageChanged();
    setState(Error);
}

// Requests

QNetworkRequest UpdateChecker::request(const QUrl &url) const
{
    const QString agent =
        QStringLiteral("%1 (%2 v%3 / Linux / %4 )")
            .arg(m_forced ? QStringLiteral("UpdateChecker [forced]") : QStringLiteral("UpdateChecker"),
                 QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
                 m_environment.userAgentText);
    QNetworkRequest request(url);
    request.setRawHeader("User-Agent", agent.toLatin1());
    request.setRawHeader("Allow-Redirect", "true");
    // Else Qt would add the user's language and country, and a cookie would tell one user from another.
    request.setRawHeader("Accept-Language", "en");
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    // Certificates are not checked, on purpose: a program whose certificates have grown old, or whose clock is wrong,
    // must still find its update. Nothing depends on who sent it, as a setup file is opened for its signature alone.
    QSslConfiguration ssl = QSslConfiguration::defaultConfiguration();
    ssl.setPeerVerifyMode(QSslSocket::VerifyNone);
    request.setSslConfiguration(ssl);
    return request;
}

void UpdateChecker::requestInformation(const QUrl &url)
{
    await(manager().get(request(url)), &UpdateChecker::checkFinished);
}

void UpdateChecker::requestSize(const QUrl &url)
{
    QNetworkRequest sizeRequest = request(url);
    sizeRequest.setAttribute(AccessManager::DownloadAttribute, true); // or the size is that of a compressed file
    await(manager().head(sizeRequest), &UpdateChecker::sizeRequestFinished);
}

void UpdateChecker::requestDownload(const QUrl &url)
{
    QNetworkRequest downloadRequest = request(url);
    downloadRequest.setAttribute(AccessManager::DownloadAttribute, true);
    if (m_rest) {
        downloadRequest.setRawHeader("Range", "bytes=" + QByteArray::number(m_rest->bytes) + '-');
        downloadRequest.setRawHeader("If-Range", m_rest->source.validator);
    }
    await(manager().get(downloadRequest), &UpdateChecker::downloadFinished);
    m_discarded = 0;
    m_reply->setReadBufferSize(bufferedBytes);
    connect(m_reply, &QNetworkReply::readyRead, this, &UpdateChecker::downloadReadyRead);
}

void UpdateChecker::await(QNetworkReply *reply, Handler finished)
{
    dropReply();
    m_reply = reply;
    connect(reply, &QNetworkReply::finished, this, finished);
}

void UpdateChecker::dropReply()
{
    m_partial.leave();
    abortInstall();
    if (!m_reply)
        return;
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
    m_reply = nullptr;
}

std::optional<UpdateChecker::Redirect> UpdateChecker::nextRedirect()
{
    if (!m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).isValid())
        return {};
    const QUrl target = redirectTarget(m_reply->request().url(), m_reply->rawHeader("Location"));
    if (target.isEmpty())
        return Redirect{{}, tr("The server redirects to something that is not a web page.")};
    if (++m_redirects > maximumRedirects)
        return Redirect{{}, tr("The server redirects too often.")};
    return Redirect{target, {}};
}

int UpdateChecker::replyStatus() const
{
    return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

// The check

void UpdateChecker::check(bool forced)
{
    m_folder.removeUpTo(QCoreApplication::applicationVersion());
    dropReply();
    m_forced = forced;
    m_setupPath.clear();
    m_isSizeAsked = false;
    m_redirects = 0;
    setError({});
    if (endpointExists(Endpoint::Maker))
        requestInformation(endpointUrl(Endpoint::Maker, QStringLiteral("/versewell/Versewell.xml")));
    else
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_state == Checking)
                    checkFailed(tr("This build of the program knows no site to ask."));
            },
            Qt::QueuedConnection);
    setState(Checking);
}

void UpdateChecker::abortCheck()
{
    if (m_state != Checking)
        return;
    dropReply();
    setState(Normal);
}

void UpdateChecker::checkFinished()
{
    m_lastCheck = m_environment.now();
    if (const auto redirect = nextRedirect()) {
        if (redirect->target.isEmpty())
            checkFailed(redirect->problem);
        else
            requestInformation(redirect->target);
        return;
    }
    if (m_reply->error() != QNetworkReply::NoError)
        checkFailed(m_reply->errorString());
    else
        readInformation(m_reply->readAll());
}

void UpdateChecker::checkFailed(const QString &reason)
{
    dropReply();
    if (m_quiet)
        setState(UpToDate);
    else
        setError(tr("Can't check for update: %1").arg(reason));
}

void UpdateChecker::readInformation(const QByteArray &answer)
{
    dropReply();
    m_versions = readUpdateInformation(answer);
    if (m_versions.isEmpty())
        setError(tr("Failed to parse version information data.", "Updater error message"));
    else if (!isNewerVersion(latestVersion(), QCoreApplication::applicationVersion()))
        setState(UpToDate);
    else
        offerLatest();
}

void UpdateChecker::offerLatest()
{
    const QUrl url(latest().url);
    const QString name = setupFileName(url);
    if (!isWebAddress(url) || name.isEmpty() || !mayBeNameOfVersion(name, latestVersion())) {
        setError(tr("Can't get update: %1").arg(tr("The address of the setup file is not one that can be used.")));
        return;
    }
    if (const QString problem = m_folder.prepare(); !problem.isEmpty()) {
        fileFailed(problem);
        return;
    }
    m_setupPath = m_folder.path(name);
    m_partial.setTarget(m_setupPath);
    m_downloaded = 0;
    setDownloadSize(0);
    m_redirects = 0;
    requestSize(url);
    setState(UpdateAvailable);
}

void UpdateChecker::sizeRequestFinished()
{
    const auto redirect = nextRedirect();
    if (redirect && !redirect->target.isEmpty()) {
        requestSize(redirect->target);
        return;
    }
    // A server that does not tell the size may send the file all the same. Nor does that speak against a setup file
    // that is there: its signature decides.
    const qint64 bytes = !redirect && m_reply->error() == QNetworkReply::NoError ? announcedBytes(*m_reply) : 0;
    dropReply();
    setDownloadSize(bytes);
    m_isSizeAsked = true;
    updateActions();
    const qint64 present = ownFileSize(m_setupPath);
    const bool complete = present > 0 && (bytes == 0 || present == bytes);
    if (!complete)
        m_partial.adoptSetupFile();
    setState(complete ? InstallAvailable : UpdateAvailable);
    if (m_forced && m_state == InstallAvailable)
        install();
    else if (m_forced && m_state == UpdateAvailable)
        download();
}

void UpdateChecker::setDownloadSize(qint64 bytes)
{
    m_downloadSize = bytes;
    emit downloadSizeChanged();
}

// The download

void UpdateChecker::download()
{
    const bool possible = m_state == UpdateAvailable || m_state == Error;
    if (!possible || m_setupPath.isEmpty())
        return;
    setError({});
    if (!isInstallable()) {
        installFailed("there is no signature, or no key to check it with");
        return;
    }
    m_isSizeAsked = true; // or it will not be any more
    m_redirects = 0;
    m_downloaded = 0;
    m_rest = m_partial.rest(latestVersion(), latest().url);
    if (m_rest && m_downloadSize > 0 && m_rest->source.bytes != m_downloadSize)
        m_rest.reset();
    requestDownload(QUrl(latest().url));
    setState(Downloading);
}

void UpdateChecker::abortDownload()
{
    if (m_state != Downloading)
        return;
    dropReply();
    setState(m_forced ? Normal : UpdateAvailable);
}

void UpdateChecker::downloadReadyRead()
{
    if (m_partial.isOpen() || beginWriting())
        writeReceived();
}

bool UpdateChecker::beginWriting()
{
    if (m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).isValid()) {
        downloadFinished(); // whatever else the answer says
        return false;
    }
    switch (replyStatus()) {
    case wholeFile:
        return beginAnew();
    case partOfFile:
        return goOn();
    default:
        discardReceived();
        return false;
    }
}

// Read, since an answer whose buffer is full waits for its reader and never tells its error.
void UpdateChecker::discardReceived()
{
    m_discarded += m_reply->readAll().size();
    if (m_discarded > mostPageBytes)
        downloadFailed(tr("The server sent something else than the setup file."));
}

bool UpdateChecker::beginAnew()
{
    const qint64 bytes = announcedBytes(*m_reply);
    if (std::max(bytes, m_downloadSize) > m_environment.mostSetupBytes) {
        downloadFailed(tr("The setup file is larger than it should be."));
        return false;
    }
    if (m_downloadSize > 0 && bytes > 0 && bytes != m_downloadSize) {
        downloadFailed(tr("The setup file has another size than the server said."));
        return false;
    }
    if (m_downloadSize == 0 && bytes > 0)
        setDownloadSize(bytes);
    m_rest.reset();
    if (m_partial.start({latest().version, latest().url, m_downloadSize, validatorOf(*m_reply)}))
        return true;
    fileFailed(m_partial.errorString());
    return false;
}

bool UpdateChecker::goOn()
{
    if (!hasFittingRange() || !m_partial.resume(m_rest->bytes)) {
        downloadAnew();
        return false;
    }
    m_downloaded = m_rest->bytes;
    if (m_downloadSize == 0)
        setDownloadSize(m_rest->source.bytes);
    m_rest.reset();
    return true;
}

void UpdateChecker::downloadAnew()
{
    if (!m_rest) {
        downloadFailed(tr("The server sent something else than the setup file."));
        return;
    }
    m_rest.reset();
    m_partial.remove();
    requestDownload(QUrl(latest().url));
}

bool UpdateChecker::hasFittingRange() const
{
    if (!m_rest)
        return false;
    const QByteArray validator = validatorOf(*m_reply); // which the answer to "If-Range" may leave out
    if (!validator.isEmpty() && validator != m_rest->source.validator)
        return false;
    const qint64 bytes = m_rest->source.bytes;
    const QString fitting = QStringLiteral("bytes %1-%2/%3").arg(m_rest->bytes).arg(bytes - 1).arg(bytes);
    return m_reply->rawHeader("Content-Range").trimmed() == fitting.toLatin1();
}

void UpdateChecker::writeReceived()
{
    const qint64 before = m_downloaded;
    const qint64 limit = m_environment.mostSetupBytes;
    const qint64 mostBytes = m_downloadSize > 0 ? std::min(m_downloadSize, limit) : limit;
    for (QByteArray data = m_reply->read(chunkBytes); !data.isEmpty(); data = m_reply->read(chunkBytes)) {
        if (m_downloaded + data.size() > mostBytes) {
            downloadFailed(tr("The setup file is larger than it should be."));
            return;
        }
        if (!m_partial.write(data)) {
            downloadFailed(m_partial.errorString());
            return;
        }
        m_downloaded += data.size();
    }
    if (m_downloaded == before)
        return;
    emit downloadedChanged();
    emit progressChanged(progressOf(m_downloaded), progressOf(m_downloadSize));
}

void UpdateChecker::downloadFinished()
{
    if (const auto redirect = nextRedirect()) {
        m_rest.reset();
        m_partial.remove();
        if (redirect->target.isEmpty())
            downloadFailed(redirect->problem);
        else
            requestDownload(redirect->target);
    } else if (m_rest && replyStatus() == noSuchPart) {
        downloadAnew();
    } else if (m_reply->error() != QNetworkReply::NoError) {
        downloadFailed(m_reply->errorString());
    } else {
        finishDownload();
    }
}

void UpdateChecker::finishDownload()
{
    const QPointer<QNetworkReply> reply = m_reply;
    downloadReadyRead();
    if (m_state != Downloading || reply != m_reply)
        return; // it failed, or begins anew
    const bool complete = m_partial.isOpen() && m_downloaded > 0;
    if (!complete || (m_downloadSize > 0 && m_downloaded != m_downloadSize)) {
        downloadFailed(tr("The server did not send the whole setup file."));
        return;
    }
    if (!m_partial.finish()) {
        downloadFailed(m_partial.errorString());
        return;
    }
    dropReply();
    setState(InstallAvailable);
    if (m_forced)
        install();
}

void UpdateChecker::fileFailed(const QString &reason)
{
    dropReply();
    setError(tr("Can't open file: %1").arg(reason));
}

void UpdateChecker::downloadFailed(const QString &reason)
{
    dropReply();
    m_partial.remove();
    setError(tr("Can't get update: %1").arg(reason));
}

// The installation

bool UpdateChecker::isInstallable() const
{
    return !m_setupPath.isEmpty() && !m_environment.keys.isEmpty() && isUpdateSignature(latest().signature);
}

void UpdateChecker::install()
{
    if (m_state != InstallAvailable)
        return;
    if (isInstallable())
        m_installation.begin(m_setupPath, latest());
    else
        installFailed("there is no setup file, no signature, or no key to check it with");
}

void UpdateChecker::installFailed(const char *reason)
{
    qCWarning(updatesLog, "The update is not installed: %s.", reason);
    setError(tr("Can't install update"));
}
