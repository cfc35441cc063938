// SPDX-License-Identifier: MIT
#include "settings/SettingsCipher.h"

#include <QCryptographicHash>
#include <QLoggingCategory>
#include <QtEndian>

Q_LOGGING_CATEGORY(settingsLog, "versewell.settings")

namespace {

constexpr char version = 3;
constexpr int headerSize = 2;
constexpr int keySize = 8;
constexpr int checksumSize = 2;
constexpr int hashSize = 20;
/// zlib cannot make more of a byte than this; a length that claims more is a lie, and is not to be allocated.
constexpr quint64 largestInflation = 1032;
/// qCompress puts the length of the plain data in front.
constexpr int lengthSize = 4;

enum Flag : quint8 { FlagCompressed = 0x01, FlagChecksum = 0x02, FlagHash = 0x04 };

quint16 checksumOf(const QByteArray &data)
{
    return qChecksum(data.constData(), static_cast<uint>(data.size()));
}

QByteArray hashOf(const QByteArray &data)
{
    return QCryptographicHash::hash(data, QCryptographicHash::Sha1);
}

bool hasPlausibleLength(const QByteArray &compressed)
{
    if (compressed.size() <= lengthSize)
        return true; // qUncompress says what to make of it without allocating
    const quint64 claimed = qFromBigEndian<quint32>(compressed.constData());
    return claimed <= static_cast<quint64>(compressed.size() - lengthSize) * largestInflation;
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
    QByteArray body = QByteArray(1, static_cast<char>(m_random.bounded(256))) + integrity + payload;
    quint8 last = 0;
    for (int i = 0; i < body.size(); ++i) {
        last = static_cast<quint8>(body.at(i)) ^ m_keyParts.at(i % keySize) ^ last;
        body[i] = static_cast<char>(last);
    }
    m_lastError = ErrorNoError;
    return QByteArray(1, version) + static_cast<char>(flags) + body;
}

/// The plain bytes, compressed as the mode has it.
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
    if (flags & FlagCompressed) {
        if (!hasPlausibleLength(body))
            return failed(ErrorIntegrityFailed);
        body = qUncompress(body);
    }
    m_lastError = ErrorNoError;
    return body;
}

/// Cuts the checksum or the hash off the body; whether it fits the rest. The checksum alone counts when both are flagged.
bool SettingsCipher::takeIntegrityField(QByteArray *body, quint8 flags) const
{
    const int size = flags & FlagChecksum ? checksumSize : flags & FlagHash ? hashSize : 0;
    if (size == 0)
        return true;
    if (body->size() < size)
        return false;
    const QByteArray field = body->left(size);
    body->remove(0, size);
    if (flags & FlagChecksum)
        return qFromBigEndian<quint16>(field.constData()) == checksumOf(*body);
    return field == hashOf(*body);
}

QByteArray SettingsCipher::decryptToByteArray(const QString &cipher)
{
    return decryptToByteArray(QByteArray::fromBase64(cipher.toLatin1()));
}

QString SettingsCipher::decryptToString(const QByteArray &cipher)
{
    return QString::fromUtf8(decryptToByteArray(cipher));
}

QString SettingsCipher::decryptToString(const QString &cipher)
{
    return QString::fromUtf8(decryptToByteArray(cipher));
}
