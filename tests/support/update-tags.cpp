// SPDX-License-Identifier: MIT
// Stores lyrics in one file as the program does, in a process of its own: for tests that kill the writer or starve it.
#include "tags/SaveJournal.h"
#include "tags/TagUpdate.h"

#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <cstdio>

namespace {

constexpr int wrongUsage = 100;

// As at the start of the program: one line for each song that a save was cut off in.
int mend(const QString &dataFolder)
{
    const tags::MendedSaves mended = tags::SaveJournal(dataFolder).mend();
    for (const QString &path : mended.restored)
        std::printf("restored %s\n", qUtf8Printable(path));
    for (const QString &path : mended.kept)
        std::printf("kept %s\n", qUtf8Printable(path));
    for (const QString &path : mended.waiting)
        std::printf("waiting %s\n", qUtf8Printable(path));
    return 0;
}

} // namespace

// Usage: versewell_update_tags SONG LYRICS-FILE DATA-FOLDER, with the UpdateResult as exit status, or
// versewell_update_tags --mend DATA-FOLDER.
int main(int argc, char **argv)
{
    std::signal(SIGXFSZ, SIG_IGN); // as the program: a limit on file sizes shows as an error
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1String("--mend"))
        return mend(arguments.at(2));
    QFile lyrics(arguments.value(2));
    if (arguments.size() != 4 || !lyrics.open(QIODevice::ReadOnly)) {
        std::fputs("usage: versewell_update_tags SONG LYRICS-FILE DATA-FOLDER\n", stderr);
        return wrongUsage;
    }
    return static_cast<int>(
        tags::updateTags(arguments.at(1), {{}, {}, QString::fromUtf8(lyrics.readAll())}, arguments.at(3)));
}
