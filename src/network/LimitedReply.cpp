// SPDX-License-Identifier: MIT
#include "network/LimitedReply.h"

#include <QLocale>
#include <QSslConfiguration>

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

// Data that cannot be compressed grows a little when it is; no honest body grows by more than this.
constexpr qint64 compressionOverheadBytes = 4096;

constexpr qint64 chunkBytes = 65536;

constexpr QNetworkRequest::Attribute copiedAttributes[] = {
    QNetworkRequest::HttpStatusCodeAttribute,        QNetworkRequest::HttpReasonPhraseAttribute,
    QNetworkRequest::RedirectionTargetAttribute,     QNetworkRequest::ConnectionEncryptedAttribute,
    QNetworkRequest::SourceIsFromCacheAttribute,     QNetworkRequest::OriginalContentLengthAttribute,
    QNetworkRequest::HttpPipeliningWasUsedAttribute, QNetworkRequest::Http2WasUsedAttribute,
};

qint64 wholeSeconds(std::chrono::milliseconds duration)
{
    return std::chrono::ceil<std::chrono::seconds>(duration).count();
}

QString statusText(int status)
{
    if (status == 401 || status == 403)
        return LimitedReply::tr("The server refuses to answer (HTTP %1).").arg(status);
    if (status == 404 || status == 410)
        return LimitedReply::tr("The server has no such page (HTTP %1).").arg(status);
    if (status == 429)
        return LimitedReply::tr("The server is asked too often (HTTP %1).").arg(status);
    if (status >= 500)
        return LimitedReply::tr("The server is out of order (HTTP %1).").arg(status);
    return LimitedReply::tr("The server cannot answer the request (HTTP %1).").arg(status);
}

} // namespace

LimitedReply::LimitedReply(QNetworkAccessManager::Operation operation, const QNetworkRequest &request, RequestKind kind,
                           const RequestLimits &limits, QNetworkAccessManager *manager)
    : QNetworkReply(manager)
    , m_kind(kind)
    , m_limits(limits)
{
    setOperation(operation);
    setRequest(request);
    setUrl(request.url());
    connect(manager, &QObject::destroyed, this, &LimitedReply::endWithManager);
    prepareTimers();
    open(ReadOnly);
}

LimitedReply::~LimitedReply()
{
    if (!m_source)
        return;
    // Not deleted at once: this may be a slot of one of its signals. Until then it reads the data that is uploaded,
    // which QNetworkAccessManager::post() has made a child of this reply.
    const QObjectList guests = children();
    for (QObject *guest : guests)
        guest->setParent(m_source);
    m_source->disconnect(this);
    m_source->deleteLater();
}

qint64 LimitedReply::bytesAvailable() const
{
    qint64 waiting = 0;
    if (m_kind == RequestKind::Page)
        waiting = isFinished() ? m_body.size() - m_readBytes : 0;
    else if (m_source && m_source->isReadable())
        waiting = m_source->bytesAvailable();
    return QNetworkReply::bytesAvailable() + waiting;
}

void LimitedReply::start(QNetworkReply *source)
{
    m_source = source;
    setUrl(source->url());
    if (m_kind == RequestKind::Download)
        source->setReadBufferSize(readBufferSize());
    if (m_ignoresSslErrors)
        source->ignoreSslErrors();
    source->ignoreSslErrors(m_ignoredSslErrors);
    forwardSignals();
    startTimers();
}

void LimitedReply::takeBack()
{
    m_idleTimer.stop();
    m_totalTimer.stop();
    QNetworkReply *source = std::exchange(m_source, nullptr).data();
    if (!source)
        return;
    source->disconnect(this);
    source->abort();
    source->deleteLater();
}

void LimitedReply::abort()
{
    fail(OperationCanceledError, tr("The request was cancelled."));
}

void LimitedReply::setReadBufferSize(qint64 bytes)
{
    QNetworkReply::setReadBufferSize(bytes);
    if (m_source && m_kind == RequestKind::Download)
        m_source->setReadBufferSize(bytes);
}

void LimitedReply::ignoreSslErrors()
{
    m_ignoresSslErrors = true;
    if (m_source)
        m_source->ignoreSslErrors();
}

qint64 LimitedReply::readData(char *data, qint64 maximumBytes)
{
    if (m_kind == RequestKind::Download)
        return m_source && m_source->isReadable() ? m_source->read(data, maximumBytes) : -1;
    if (!isFinished())
        return 0;
    const qint64 bytes = std::min(maximumBytes, m_body.size() - m_readBytes);
    if (bytes == 0)
        return maximumBytes == 0 ? 0 : -1;
    std::memcpy(data, m_body.constData() + m_readBytes, static_cast<std::size_t>(bytes));
    m_readBytes += bytes;
    return bytes;
}

void LimitedReply::sslConfigurationImplementation(QSslConfiguration &configuration) const
{
    configuration = m_source ? m_source->sslConfiguration() : request().sslConfiguration();
}

void LimitedReply::setSslConfigurationImplementation(const QSslConfiguration &configuration)
{
    if (m_source) {
        m_source->setSslConfiguration(configuration);
        return;
    }
    QNetworkRequest changed = request();
    changed.setSslConfiguration(configuration);
    setRequest(changed);
}

void LimitedReply::ignoreSslErrorsImplementation(const QList<QSslError> &errors)
{
    m_ignoredSslErrors = errors;
    if (m_source)
        m_source->ignoreSslErrors(errors);
}

void LimitedReply::forwardSignals()
{
    QNetworkReply *source = m_source;
    connect(source, &QNetworkReply::metaDataChanged, this, &LimitedReply::takeHead);
    connect(source, &QNetworkReply::readyRead, this, &LimitedReply::takeBody);
    connect(source, &QNetworkReply::finished, this, &LimitedReply::sourceFinished);
    connect(source, &QNetworkReply::uploadProgress, this, &LimitedReply::noteProgress);
    connect(source, &QNetworkReply::downloadProgress, this, &LimitedReply::noteProgress);
    connect(source, &QNetworkReply::encrypted, this, &LimitedReply::noteProgress);
    connect(source, &QNetworkReply::uploadProgress, this, &QNetworkReply::uploadProgress);
    connect(source, &QNetworkReply::downloadProgress, this, &QNetworkReply::downloadProgress);
    connect(source, &QNetworkReply::encrypted, this, &QNetworkReply::encrypted);
    connect(source, &QNetworkReply::sslErrors, this, [this] { m_isDistrusted = true; });
    connect(source, &QNetworkReply::sslErrors, this, &QNetworkReply::sslErrors);
}

void LimitedReply::prepareTimers()
{
    m_idleTimer.setSingleShot(true);
    m_totalTimer.setSingleShot(true);
    connect(&m_idleTimer, &QTimer::timeout, this, [this] {
        fail(TimeoutError, tr("The server has been silent for %1 seconds.").arg(wholeSeconds(m_limits.idle)));
    });
    connect(&m_totalTimer, &QTimer::timeout, this, [this] {
        fail(TimeoutError, tr("The server took longer than %1 seconds.").arg(wholeSeconds(m_limits.total)));
    });
}

void LimitedReply::startTimers()
{
    m_idleTimer.start(m_limits.idle);
    if (m_kind == RequestKind::Page)
        m_totalTimer.start(m_limits.total);
}

void LimitedReply::noteProgress()
{
    if (!m_settled)
        m_idleTimer.start();
}

void LimitedReply::takeHead()
{
    noteProgress();
    setUrl(m_source->url());
    for (const QNetworkRequest::Attribute attribute : copiedAttributes)
        setAttribute(attribute, m_source->attribute(attribute));
    const bool known = m_kind == RequestKind::Download || chooseDecoder();
    copyHeaders(m_inflater.has_value());
    emit metaDataChanged();
    if (!known)
        fail(UnknownContentError, tr("The answer is packed in a way that is not known here."));
    else if (m_kind == RequestKind::Page && isBodyExpected() &&
             m_source->header(QNetworkRequest::ContentLengthHeader).toLongLong() >
                 m_limits.bodyBytes + compressionOverheadBytes)
        failAsTooLarge();
}

void LimitedReply::copyHeaders(bool inflated)
{
    for (const auto &[name, value] : m_source->rawHeaderPairs()) {
        const QByteArray key = name.toLower();
        const bool describesTransfer = key == "content-encoding" || key == "content-length";
        if (!inflated || !describesTransfer)
            setRawHeader(name, value);
    }
}

bool LimitedReply::chooseDecoder()
{
    const QByteArray coding = m_source->rawHeader("Content-Encoding").trimmed().toLower();
    if (coding.isEmpty() || coding == "identity" || !isBodyExpected())
        return true;
    if (coding == "gzip" || coding == "x-gzip")
        m_inflater.emplace(Inflater::Format::Gzip, m_limits.bodyBytes);
    else if (coding == "deflate")
        m_inflater.emplace(Inflater::Format::Deflate, m_limits.bodyBytes);
    return m_inflater.has_value();
}

void LimitedReply::takeBody()
{
    noteProgress();
    if (m_kind == RequestKind::Download) {
        emit readyRead();
        return;
    }
    while (!m_settled && m_source->bytesAvailable() > 0)
        addToBody(m_source->read(chunkBytes));
}

void LimitedReply::addToBody(const QByteArray &chunk)
{
    m_receivedBytes += chunk.size();
    if (m_receivedBytes > m_limits.bodyBytes + compressionOverheadBytes) {
        failAsTooLarge();
        return;
    }
    if (!m_inflater) {
        m_body += chunk;
        if (m_body.size() > m_limits.bodyBytes)
            failAsTooLarge();
        return;
    }
    const Inflater::Result result = m_inflater->add(chunk, &m_body);
    if (result == Inflater::Result::TooLarge)
        failAsTooLarge();
    else if (result == Inflater::Result::Damaged)
        fail(UnknownContentError, tr("The answer arrived damaged."));
}

void LimitedReply::sourceFinished()
{
    if (m_kind == RequestKind::Page)
        takeBody();
    if (m_settled)
        return;
    if (m_source->error() != NoError)
        fail(m_source->error(), sourceErrorText());
    else if (isBodyCut())
        fail(RemoteHostClosedError, tr("The connection broke before the whole answer had arrived."));
    else
        settle();
}

bool LimitedReply::isBodyExpected() const
{
    const int status = httpStatus();
    return operation() != QNetworkAccessManager::HeadOperation && status != 204 && status != 304;
}

bool LimitedReply::isBodyCut() const
{
    return m_inflater && !m_inflater->isComplete();
}

int LimitedReply::httpStatus() const
{
    return attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

QString LimitedReply::sourceErrorText() const
{
    // Qt has its words for these in English alone, and they name what nobody can do anything about.
    if (m_source->error() == SslHandshakeFailedError)
        return m_isDistrusted ? tr("The site's certificate is not trusted.")
                              : tr("No secure connection to the site could be made.");
    // Qt's text for these names the whole address, which helps nobody and may hold a key of a web service.
    return httpStatus() >= 400 ? statusText(httpStatus()) : m_source->errorString();
}

void LimitedReply::failAsTooLarge()
{
    fail(UnknownContentError,
         tr("The answer is larger than %1.").arg(QLocale().formattedDataSize(m_limits.bodyBytes, 0)));
}

void LimitedReply::fail(NetworkError error, const QString &text)
{
    if (isFinished())
        return;
    m_failure = error;
    m_failureText = text;
    m_body = QByteArray();
    m_inflater.reset();
    settle();
}

void LimitedReply::failByStatus(NetworkError error)
{
    fail(error, statusText(httpStatus()));
}

void LimitedReply::settle()
{
    if (m_settled)
        return;
    m_settled = true;
    m_idleTimer.stop();
    m_totalTimer.stop();
    if (m_source && m_source->isRunning()) {
        m_source->disconnect(this);
        m_source->abort();
    }
    QMetaObject::invokeMethod(this, &LimitedReply::conclude, Qt::QueuedConnection);
}

void LimitedReply::endWithManager()
{
    // Qt's access manager hangs slots on the reply that use the manager; they must not outlive it.
    disconnect(this, nullptr, this, nullptr);
    abort();
}

void LimitedReply::conclude()
{
    setFinished(true);
    if (m_failure != NoError) {
        setError(m_failure, m_failureText);
        emit errorOccurred(m_failure);
    } else if (m_kind == RequestKind::Page && !m_body.isEmpty()) {
        emit readyRead();
    }
    emit finished();
}
