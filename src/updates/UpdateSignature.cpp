// SPDX-License-Identifier: MIT
#include "updates/UpdateSignature.h"

#include <openssl/evp.h>

#include <QList>

#include <algorithm>
#include <memory>

namespace {

constexpr int keyBytes = 32;
constexpr int signatureBytes = 64;

struct Release
{
    void operator()(EVP_PKEY *key) const { EVP_PKEY_free(key); }
    void operator()(EVP_MD_CTX *context) const { EVP_MD_CTX_free(context); }
};

const uchar *bytesOf(const QByteArray &data)
{
    return reinterpret_cast<const uchar *>(data.constData());
}

std::size_t sizeOf(const QByteArray &data)
{
    return static_cast<std::size_t>(data.size());
}

// Empty when the text is not a signature.
QByteArray decodedSignature(const QByteArray &text)
{
    const auto decoded = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    return decoded && (*decoded).size() == signatureBytes ? *decoded : QByteArray();
}

bool hasSigned(const QByteArray &key, const QByteArray &message, const QByteArray &signature)
{
    const std::unique_ptr<EVP_PKEY, Release> known(
        EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr, bytesOf(key), sizeOf(key)));
    const std::unique_ptr<EVP_MD_CTX, Release> context(EVP_MD_CTX_new());
    if (!known || !context || EVP_DigestVerifyInit(context.get(), nullptr, nullptr, nullptr, known.get()) != 1)
        return false;
    return EVP_DigestVerify(context.get(), bytesOf(signature), sizeOf(signature), bytesOf(message), sizeOf(message)) ==
           1;
}

} // namespace

QVector<QByteArray> makerKeys()
{
    QVector<QByteArray> keys;
    const QList<QByteArray> texts = QByteArray(VERSEWELL_UPDATE_KEYS).split(',');
    for (const QByteArray &text : texts) {
        const QByteArray key = QByteArray::fromBase64(text);
        if (key.size() == keyBytes)
            keys.append(key);
    }
    return keys;
}

bool isUpdateSignature(const QByteArray &text)
{
    return !decodedSignature(text).isEmpty();
}

bool isSignedUpdate(const QString &version, const QByteArray &digest, const QByteArray &signature,
                    const QVector<QByteArray> &keys)
{
    const QByteArray decoded = decodedSignature(signature);
    if (decoded.isEmpty())
        return false;
    const QByteArray message = QByteArray("versewell-update-1") + '\0' + version.toUtf8() + '\0' + digest;
    return std::any_of(keys.begin(), keys.end(), [&](const QByteArray &key) {
        return key.size() == keyBytes && hasSigned(key, message, decoded);
    });
}
