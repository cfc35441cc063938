// SPDX-License-Identifier: MIT
#pragma once

#include "updates/ReleasedVersion.h"

#include <QByteArray>
#include <QString>
#include <QThread>
#include <QVector>

// Checks the signature of a setup file on a thread of its own, since the file is large and its disk may be slow. The
// file must be the user's own (OwnFile.h). It stays open until this object goes, so that what has the path can be
// compared with what was checked.
//
// start() once; the result counts after finished(). Deleting it ends the check, at the latest after a block of the
// file.
class SetupVerifier final : public QThread
{
    Q_OBJECT

public:
    SetupVerifier(const QString &path, const ReleasedVersion &version, const QVector<QByteArray> &keys);
    ~SetupVerifier() override;

    // The path holds the very content that one of the keys signed for this version.
    [[nodiscard]] bool isGood() const;
    // The content was read to its end, and the signature is for something else.
    [[nodiscard]] bool isForged() const { return m_result == Result::Forged; }

protected:
    void run() override;

private:
    enum class Result { Unknown, Good, Forged };

    // SHA-512; empty when the file cannot be read, or when nobody waits for it any more.
    [[nodiscard]] QByteArray digest() const;

    const QString m_path;
    const ReleasedVersion m_version;
    const QVector<QByteArray> m_keys;
    int m_descriptor = -1;
    QByteArray m_identity; // of the open file, before it was read
    Result m_result = Result::Unknown;
};
