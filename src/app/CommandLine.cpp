// SPDX-License-Identifier: MIT
#include "app/CommandLine.h"

#include <QDir>
#include <QLatin1String>

#include <cstring>

static const char help[] = "Usage: versewell [FILE|FOLDER]...\n"
                           "Finds the lyrics of songs and stores them in the files.\n"
                           "\n"
                           "Files and folders that are named are added to the list.\n"
                           "\n"
                           "  -h, --help     print this and end\n"
                           "  -v, --version  print the version and end\n";

static bool isOneOf(const char *argument, const char *shortForm, const char *longForm)
{
    return std::strcmp(argument, shortForm) == 0 || std::strcmp(argument, longForm) == 0;
}

// Desktops hand over paths or file addresses.
static QUrl songUrl(const QString &argument, const QString &folder)
{
    if (argument.startsWith(QLatin1String("file:///")))
        return QUrl(argument);
    return QUrl::fromLocalFile(QDir::cleanPath(QDir(folder).absoluteFilePath(argument)));
}

QByteArray answerFor(int argc, const char *const *argv)
{
    for (int i = 1; i < argc && std::strcmp(argv[i], "--") != 0; ++i) {
        if (isOneOf(argv[i], "-h", "--help"))
            return help;
        if (isOneOf(argv[i], "-v", "--version"))
            return "Versewell " VERSEWELL_VERSION "\n";
    }
    return {};
}

CommandLine readCommandLine(const QStringList &arguments, const QString &folder)
{
    CommandLine line;
    bool options = true;
    for (const QString &argument : arguments.mid(1)) {
        if (options && argument == QLatin1String("--"))
            options = false;
        else if (options && argument.startsWith(QLatin1Char('-')) && argument.size() > 1)
            line.unknownOption = line.unknownOption.isEmpty() ? argument : line.unknownOption;
        else if (!argument.isEmpty())
            line.songs.append(songUrl(argument, folder));
    }
    return line;
}
