// SPDX-License-Identifier: MIT
#include "support/TlsFront.h"

#include "support/Forwarding.h"
#include "support/TestFolder.h"

#include <QNetworkProxy>
#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>

TlsFront::TlsFront(quint16 plainPort, Trust trust)
    : m_plainPort(plainPort)
{
    const TestFolder folder;
    const QString key = folder.path(QStringLiteral("key"));
    const QString certificate = folder.path(QStringLiteral("certificate"));
    QProcess openssl;
    openssl.start(QStringLiteral("openssl"),
                  QStringLiteral("req -x509 -nodes -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -subj /CN=localhost"
                                 " -addext subjectAltName=DNS:localhost")
                          .split(QLatin1Char(' ')) +
                      QStringList{QStringLiteral("-keyout"), key, QStringLiteral("-out"), certificate});
    const bool isMade = openssl.waitForFinished() && openssl.exitCode() == 0;
    m_identity.setPrivateKey(QSslKey(folder.read(key), QSsl::Ec));
    m_identity.setLocalCertificate(QSslCertificate(folder.read(certificate)));
    if (!isMade || !listen(QHostAddress::LocalHost))
        qFatal("no server with TLS can be made");
    if (trust == Unknown)
        return;
    QSslConfiguration trusting = m_usual;
    trusting.addCaCertificate(m_identity.localCertificate());
    QSslConfiguration::setDefaultConfiguration(trusting);
}

TlsFront::~TlsFront()
{
    QSslConfiguration::setDefaultConfiguration(m_usual);
}

void TlsFront::incomingConnection(qintptr descriptor)
{
    auto *client = new QSslSocket(this);
    client->setSslConfiguration(m_identity);
    client->setSocketDescriptor(descriptor);
    forwardBoth(client, m_plainPort);
    client->startServerEncryption();
}
