// SPDX-License-Identifier: MIT
// Stores lyrics in one file as the program does, in a process of its own: for tests that kill the writer or starve it.
#include "tags/TagUpdate.h"

#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <cstdio>

// Usage: update-tags SONG LYRICS-FILE DATA-FOLDER. Exit status: the UpdateResult; 100 for anything else.
int main(int argc, char **argv)
{
    std::signal(SIGXFSZ, SIG_IGN); // as the program: a limit on file sizes shows as an error
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QFile lyrics(arguments.value(2));
    if (arguments.size() != 4 || !lyrics.open(QIODevice::ReadOnly)) {
        std::fputs("usage: update-tags SONG LYRICS-FILE DATA-FOLDER\n", stderr);
        return 100;
    }
    return static_cast<int>(
        tags::updateTags(arguments.at(1), {{}, {}, QString::fromUtf8(lyrics.readAll())}, arguments.at(3)));
}
