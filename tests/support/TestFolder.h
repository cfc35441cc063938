// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QUrl>

// A temporary folder, and what tests do with it. A step that fails ends the test.
class TestFolder
{
public:
    // Absolute names stay as they are, here and below.
    [[nodiscard]] QString path(const QString &name = {}) const;
    [[nodiscard]] QUrl url(const QString &name = {}) const { return QUrl::fromLocalFile(path(name)); }
    // Folders on the way are made; the path is returned.
    QString write(const QString &name, const QByteArray &content = {}) const;
    // "(no file)" when there is none.
    [[nodiscard]] QByteArray read(const QString &name) const;
    // Of files and folders, hidden ones too.
    [[nodiscard]] QStringList names(const QString &folder = {}) const;

    // The program's settings lie here from now on; the path of their file is returned.
    QString holdSettings() const;

private:
    QTemporaryDir m_folder;
};
