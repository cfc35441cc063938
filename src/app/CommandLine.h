// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

// What stands on the command line, Qt's own options apart.
struct CommandLine
{
    QString unknownOption; // empty when all are known
    QList<QUrl> songs;     // the files and folders to add, local, in the order in which they were named
};

// What --help or --version prints, in UTF-8; empty when the arguments of main() hold neither. Needs no application and
// no display.
[[nodiscard]] QByteArray answerFor(int argc, const char *const *argv);

// Reads what Qt's application left of the arguments, the program's own name first. Relative paths begin at `folder`. A
// "--" ends the options.
[[nodiscard]] CommandLine readCommandLine(const QStringList &arguments, const QString &folder);
