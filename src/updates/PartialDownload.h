// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <optional>

// What a download is the beginning of.
struct DownloadSource
{
    QString version;
    QString url;
    qint64 bytes = 0;     // of the whole file; 0 when the server does not say
    QByteArray validator; // what the server knows this content by: a strong ETag or a date; empty when it has none
};

// A setup file while it is downloaded: "<setup file>.part", with "<setup file>.part.source" beside it, which says what
// it is the beginning of. Without the second, nobody can tell which version's bytes the first one has, and so it is not
// gone on with. Neither file is ever reached through a link.
class PartialDownload
{
public:
    // The path of the setup file, in a folder of the user's own. Closes the file before.
    void setTarget(const QString &setupPath);

    // What an earlier download left: its source and its size in bytes, which is above 0 and less than the whole.
    struct Rest
    {
        DownloadSource source;
        qint64 bytes;
    };
    // Nothing when there is none of this version and address that can be gone on with.
    [[nodiscard]] std::optional<Rest> rest(const QString &version, const QString &url) const;

    [[nodiscard]] bool isOpen() const { return m_file.isOpen(); }
    // For users, after one of the following returned false.
    [[nodiscard]] QString errorString() const { return m_error; }

    // Opens an empty file.
    bool start(const DownloadSource &source);
    // Opens what is there, if it still has so many bytes.
    bool resume(qint64 bytes);
    bool write(const QByteArray &data);
    // Gives the closed file the name of the setup file, in place of an older one.
    bool finish();
    // Makes a setup file whose size is wrong the partial one, unless something has that name already.
    void adoptSetupFile() const;
    void close() { m_file.close(); }
    // Closes an open file, which goes when nobody could go on with it.
    void leave();
    void remove();

private:
    [[nodiscard]] QString partPath() const { return m_setupPath + QStringLiteral(".part"); }
    [[nodiscard]] QString sourcePath() const { return partPath() + QStringLiteral(".source"); }
    bool open(int descriptor, QIODevice::OpenMode mode);

    QString m_setupPath;
    QFile m_file;
    QString m_error;
};
