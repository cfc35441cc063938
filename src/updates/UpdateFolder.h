// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

// The folder for setup files, of which only the user sees anything. As long as it is a link or somebody else's, it
// counts as unusable, and nothing in it is touched.
class UpdateFolder
{
public:
    // "Update" in the user's local data of the program, whose names must be set.
    [[nodiscard]] static QString standardPath();

    explicit UpdateFolder(const QString &path);

    [[nodiscard]] QString path(const QString &name) const;

    // Makes the folder when it is missing; the reason, for users, when it cannot be used.
    [[nodiscard]] QString prepare() const;

    // Deletes the files and folders whose names hold a version that is not newer than this one, links not followed.
    // Names without a version stay.
    void removeUpTo(const QString &version) const;

private:
    QString m_path;
};

// The name that the file of this address gets: the last segment of its path. Empty when it could mean more than a name:
// only ASCII letters, digits and ".-_+" are allowed, no "." or "-" in front, and 128 characters.
[[nodiscard]] QString setupFileName(const QUrl &url);
