// SPDX-License-Identifier: MIT
#include "updates/SetupVerifier.h"

#include "updates/OwnFile.h"
#include "updates/UpdateSignature.h"

#include <QCryptographicHash>
#include <QFile>

#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t blockBytes = 1024UL * 1024;

// Differs between any two files, and changes with every write. The time of access is not in it.
QByteArray identityOf(const struct stat &status)
{
    const qint64 parts[] = {qint64(status.st_dev),  qint64(status.st_ino),   qint64(status.st_size),
                            status.st_mtim.tv_sec,  status.st_mtim.tv_nsec,  status.st_ctim.tv_sec,
                            status.st_ctim.tv_nsec, qint64(status.st_nlink), qint64(status.st_mode)};
    return {reinterpret_cast<const char *>(parts), int(sizeof parts)};
}

QByteArray identityOf(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 ? identityOf(status) : QByteArray();
}

QByteArray identityOf(const QString &path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 ? identityOf(status) : QByteArray();
}

} // namespace

SetupVerifier::SetupVerifier(const QString &path, const ReleasedVersion &version, const QVector<QByteArray> &keys)
    : m_path(path)
    , m_version(version)
    , m_keys(keys)
{
}

SetupVerifier::~SetupVerifier()
{
    requestInterruption();
    wait();
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

bool SetupVerifier::isGood() const
{
    return m_result == Result::Good && !m_identity.isEmpty() && identityOf(m_path) == m_identity;
}

void SetupVerifier::run()
{
    m_descriptor = openOwnFile(m_path, O_RDONLY);
    if (m_descriptor < 0)
        return;
    m_identity = identityOf(m_descriptor);
    const QByteArray content = digest();
    if (content.isEmpty())
        return;
    const bool isSigned = isSignedUpdate(m_version.version, content, m_version.signature, m_keys);
    m_result = isSigned ? Result::Good : Result::Forged;
}

QByteArray SetupVerifier::digest() const
{
    QCryptographicHash hash(QCryptographicHash::Sha512);
    std::vector<char> block(blockBytes);
    while (!isInterruptionRequested()) {
        const ssize_t bytes = ::read(m_descriptor, block.data(), block.size());
        if (bytes == 0)
            return hash.result();
        if (bytes < 0)
            return {};
        hash.addData(block.data(), static_cast<int>(bytes));
    }
    return {};
}
