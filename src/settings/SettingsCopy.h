// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QTemporaryFile>

#include <optional>

// The settings file as it is to be: made beside it, and put into its place when all of it is there. As long as it is
// not, the old one stays as it was.
class SettingsCopy
{
public:
    // `path` is that of the settings file; where it is a link, the file behind it is meant.
    explicit SettingsCopy(const QString &path);

    // Its own name, once something was written.
    [[nodiscard]] QString fileName() const { return m_file.fileName(); }
    // Replaces what it holds, and reads it back. It gets the owner and the permissions of the settings file; where that
    // is not allowed it fails.
    [[nodiscard]] bool write(const QByteArray &content);
    [[nodiscard]] bool takePlace();

    // Removes what killed programs have left. Nobody may be writing settings.
    static void removeLeft(const QString &path);

private:
    const QString m_path;
    QTemporaryFile m_file;
};

// All of a file that is open; nothing when the disk gives less, or an error.
[[nodiscard]] std::optional<QByteArray> wholeContent(QFile *file);

// Gives an open file the owner and the permissions of the one at this path, if there is one: when root runs the program
// on somebody's settings, they must stay theirs.
[[nodiscard]] bool giveSameOwner(QFile *file, const QString &path);
