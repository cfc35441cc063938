// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

// The signature of a setup file is Ed25519 (RFC 8032) over "versewell-update-1", a NUL byte, the version text, a NUL
// byte and the 64 bytes of the file's SHA-512 digest. script/sign-update makes it.

// The public keys that the build was given, 32 bytes each; may be empty.
[[nodiscard]] QVector<QByteArray> makerKeys();

// Whether the text is one: 64 bytes in base64 and nothing else.
[[nodiscard]] bool isUpdateSignature(const QByteArray &text);

// Whether one of the keys has signed this version of the file with this digest. The signature is in base64.
[[nodiscard]] bool isSignedUpdate(const QString &version, const QByteArray &digest, const QByteArray &signature,
                                  const QVector<QByteArray> &keys);
