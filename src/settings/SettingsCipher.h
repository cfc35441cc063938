// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

// Keeps short secrets out of the settings file in readable form. Obfuscation against casual reading, not encryption.
//
// A cipher string is a version byte (3), a flags byte (0x01 compressed, 0x02 checksum, 0x04 hash) and a body under a
// keyed XOR chain: one random byte, then the 16-bit qChecksum (big-endian) or the SHA-1 of the payload, then the
// payload, which is the plain data or its qCompress form. The text form is that byte string in base64.
//
// Failures give an empty result and set lastError(). A compressed body that is no zlib data, or that becomes more than
// 16 MiB, is read as empty without an error. The random byte comes from the system, since seeding a generator for
// it would take a millisecond of each start. Not thread-safe.
class SettingsCipher
{
public:
    enum CompressionMode {
        CompressionAuto, // where it makes the data shorter
        CompressionAlways,
        CompressionNever
    };
    enum IntegrityProtectionMode { ProtectionNone, ProtectionChecksum, ProtectionHash };
    enum Error { ErrorNoError, ErrorNoKeySet, ErrorUnknownVersion, ErrorIntegrityFailed };

    // Without a key nothing can be enciphered or deciphered.
    SettingsCipher() = default;
    explicit SettingsCipher(quint64 key);

    void setKey(quint64 key);
    [[nodiscard]] bool hasKey() const { return !m_keyParts.isEmpty(); }

    void setCompressionMode(CompressionMode mode) { m_compressionMode = mode; }
    [[nodiscard]] CompressionMode compressionMode() const { return m_compressionMode; }
    void setIntegrityProtectionMode(IntegrityProtectionMode mode) { m_protectionMode = mode; }
    [[nodiscard]] IntegrityProtectionMode integrityProtectionMode() const { return m_protectionMode; }
    // Of the last operation. A cipher string of fewer than three bytes leaves it as it was.
    [[nodiscard]] Error lastError() const { return m_lastError; }

    // A text is enciphered as UTF-8.
    [[nodiscard]] QByteArray encryptToByteArray(const QByteArray &plain);
    [[nodiscard]] QByteArray encryptToByteArray(const QString &plain);
    // The result as base64.
    [[nodiscard]] QString encryptToString(const QByteArray &plain);
    [[nodiscard]] QString encryptToString(const QString &plain);

    // A text is taken as base64.
    [[nodiscard]] QByteArray decryptToByteArray(const QByteArray &cipher);
    [[nodiscard]] QByteArray decryptToByteArray(const QString &cipher);
    // The result read as UTF-8.
    [[nodiscard]] QString decryptToString(const QByteArray &cipher);
    [[nodiscard]] QString decryptToString(const QString &cipher);

private:
    [[nodiscard]] QByteArray pack(const QByteArray &plain, quint8 *flags) const;
    [[nodiscard]] QByteArray integrityField(const QByteArray &payload, quint8 *flags) const;
    [[nodiscard]] bool takeIntegrityField(QByteArray *body, quint8 flags) const;
    [[nodiscard]] QByteArray failed(Error error);

    QVector<quint8> m_keyParts; // least significant byte first
    CompressionMode m_compressionMode = CompressionAuto;
    IntegrityProtectionMode m_protectionMode = ProtectionChecksum;
    Error m_lastError = ErrorNoError;
};
