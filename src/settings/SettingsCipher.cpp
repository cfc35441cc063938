// SPDX-License-Identifier: MIT
#include "settings/SettingsCipher.h"

#include "network/Inflater.h"
#include "settings/SettingsLog.h"

#include <QCryptographicHash>
#include <QRandomGenerator>
#include <QtEndian>

namespace {

constexpr char version = 3;
constexpr int headerSize = 2;
constexpr int keySize = 8;
constexpr int checksumSize = 2;
constexpr int hashSize = 20;
// qCompress puts the length of the plain data in front, as a big-endian number.
constexpr int lengthSize = 4;
// Far beyond any secret; what claims or becomes more is damage, or was made to exhaust the memory.
constexpr quint32 largestPlainBytes = 16 * 1024 * 1024;

enum Flag : quint8 { FlagCompressed = 0x01, FlagChecksum = 0x02, FlagHash = 0x04 };

quint16 checksumOf(const QByteArray &data)
{
    return qChecksum(data.constData(), static_cast<uint>(data.size()));
}

QByteArray hashOf(const QByteArray &data)
{
    return QCryptographicHash::hash(data, QCryptographicHash::Sha1);
}

// The two bytes that begin a zlib stream (RFC 1950): the method is deflate, and the two have a checksum in them.
bool beginsLikeZlib(const QByteArray &data)
{
    return data.size() >= 2 && (data.at(0) & 0x0f) == 8 && qFromBigEndian<quint16>(data.constData()) % 31 == 0;
}

// What qUncompress gives, empty for anything that is not qCompress's form, but without its dangers: it allocates
// whatever the length in front claims, and goes on without bounds when more than that comes out.
QByteArray uncompressed(const QByteArray &compressed)
{
    if (compressed.size() <= lengthSize || qFromBigEndian<quint32>(compressed.constData()) > largestPlainBytes)
        return {};
    const QByteArray stream = compressed.mid(lengthSize);
    Inflater inflater(Inflater::Format::Deflate, largestPlainBytes);
    QByteArray plain;
    if (!beginsLikeZlib(stream) || inflater.add(stream, &plain) != Inflater::Result::Good || !inflater.isComplete())
        return {};
    return plain;
}

} // namespace

SettingsCipher::SettingsCipher(quint64 key)
{
    setKey(key);
}

void SettingsCipher::setKey(quint64 key)
{
    m_keyParts.resize(keySize);
    for (quint8 &part : m_keyParts) {
        part = static_cast<quint8>(key & 0xff);
        key >>= 8;
    }
}

QByteArray SettingsCipher::failed(Error error)
{
    m_lastError = error;
    if (error == ErrorNoKeySet)
        qCWarning(settingsLog, "No key set.");
    if (error == ErrorUnknownVersion)
        qCWarning(settingsLog, "Invalid version or not a cyphertext.");
    return {};
}

// Enciphering

QByteArray SettingsCipher::encryptToByteArray(const QByteArray &plain)
{
    if (!hasKey())
        return failed(ErrorNoKeySet);
    quint8 flags = 0;
    const QByteArray payload = pack(plain, &flags);
    const QByteArray integrity = integrityField(payload, &flags);
    QByteArray body = QByteArray(1, static_cast<char>(QRandomGenerator::system()->bounded(256))) + integrity + payload;
    quint8 last = 0;
    for (int i = 0; i < body.size(); ++i) {
        last = static_cast<quint8>(body.at(i)) ^ m_keyParts.at(i % keySize) ^ last;
        body[i] = static_cast<char>(last);
    }
    m_lastError = ErrorNoError;
    return QByteArray(1, version) + static_cast<char>(flags) + body;
}

// The plain bytes, compressed as the mode has it.
QByteArray SettingsCipher::pack(const QByteArray &plain, quint8 *flags) const
{
    if (m_compressionMode == CompressionNever)
        return plain;
    const QByteArray compressed = qCompress(plain, 9);
    if (m_compressionMode == CompressionAuto && compressed.size() >= plain.size())
        return plain;
    *flags |= FlagCompressed;
    return compressed;
}

QByteArray SettingsCipher::integrityField(const QByteArray &payload, quint8 *flags) const
{
    switch (m_protectionMode) {
    case ProtectionChecksum: {
        *flags |= FlagChecksum;
        QByteArray field(checksumSize, 0);
        qToBigEndian(checksumOf(payload), field.data());
        return field;
    }
    case ProtectionHash:
        *flags |= FlagHash;
        return hashOf(payload);
    case ProtectionNone:
        break;
    }
    return {};
}

QByteArray SettingsCipher::encryptToByteArray(const QString &plain)
{
    return encryptToByteArray(plain.toUtf8());
}

QString SettingsCipher::encryptToString(const QByteArray &plain)
{
    return QString::fromLatin1(encryptToByteArray(plain).toBase64());
}

QString SettingsCipher::encryptToString(const QString &plain)
{
    return encryptToString(plain.toUtf8());
}

// Deciphering

QByteArray SettingsCipher::decryptToByteArray(const QByteArray &cipher)
{
    if (!hasKey())
        return failed(ErrorNoKeySet);
    if (cipher.size() <= headerSize)
        return {}; // too short to be anything; lastError stays as it is
    if (cipher.at(0) != version)
        return failed(ErrorUnknownVersion);
    const auto flags = static_cast<quint8>(cipher.at(1));
    QByteArray body = cipher.mid(headerSize);
    quint8 last = 0;
    for (int i = 0; i < body.size(); ++i) {
        const auto enciphered = static_cast<quint8>(body.at(i));
        body[i] = static_cast<char>(enciphered ^ last ^ m_keyParts.at(i % keySize));
        last = enciphered;
    }
    body.remove(0, 1); // the random byte
    if (!takeIntegrityField(&body, flags))
        return failed(ErrorIntegrityFailed);
    // A body that cannot be inflated counts as an empty text, and deliberately not as an error.
    if (flags & FlagCompressed)
        body = uncompressed(body);
    m_lastError = ErrorNoError;
    return body;
}

// Cuts the checksum or the hash off the body; whether it fits the rest. When both are flagged the checksum alone is
// looked at, and the hash counts as part of the rest; that is meant.
bool SettingsCipher::takeIntegrityField(QByteArray *body, quint8 flags) const
{
    const bool hasChecksum = flags & FlagChecksum;
    if (!hasChecksum && !(flags & FlagHash))
        return true;
    const int size = hasChecksum ? checksumSize : hashSize;
    if (body->size() < size)
        return false;
    const QByteArray field = body->left(size);
    body->remove(0, size);
    if (hasChecksum)
        return qFromBigEndian<quint16>(field.constData()) == checksumOf(*body);
    return field == hashOf(*body);
}

QByteArray SettingsCipher::decryptToByteArray(const QString &cipher)
{
    return decryptToByteArray(QByteArray::fromBase64(cipher.toLatin1()));
}

QString SettingsCipher::decryptToString(const QByteArray &cipher)
{
    const QByteArray plain = decryptToByteArray(cipher);
    return QString::fromUtf8(plain.constData(), plain.size()); // with its size, else it would end at a NUL
}

QString SettingsCipher::decryptToString(const QString &cipher)
{
    return decryptToString(QByteArray::fromBase64(cipher.toLatin1()));
}
